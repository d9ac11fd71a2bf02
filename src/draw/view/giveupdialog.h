#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeWidget;

// "弃奖": the winners page by page, newest batch first, searchable by name. Ticked rows of the
// page shown give up, after a question; their slots come back for later batches.
class GiveUpDialog : public QDialog {
    Q_OBJECT
public:
    enum Column { ColNumber, ColName, ColAwards, ColStatus, ColumnCount };

    explicit GiveUpDialog(QWidget *parent = nullptr);

    QLineEdit *txtKey = nullptr;
    QToolButton *cmdCancelKey = nullptr;
    QPushButton *cmdSearch = nullptr;
    QTreeWidget *lstUser = nullptr;
    QLabel *labInfo = nullptr;
    QPushButton *cmdPre = nullptr;
    QPushButton *cmdNext = nullptr;
    QPushButton *cmdDelLuck = nullptr;

    int pageNo = 1;

    void showList(const QString &keyword, int page);
    void delLuck();
    // Ticks the row of a participant on the page shown.
    void setTicked(qint64 id, bool ticked);

Q_SIGNALS:
    // Participants gave up: the draw screen refreshes its award (reFrashJx(true, true)).
    void givenUp();

private:
    QWidget *buildSearchBar();
    void buildList();
    void turnPage(int step);
};
