#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeWidget;

// "弃奖": the winners page by page, newest batch first, searchable by name. Ticked rows of the
// page shown give up, after a question; their slots come back for later batches. Each row keeps
// "K" and the participant's ID under Qt::UserRole of its first column.
class GiveUpDialog : public QDialog {
    Q_OBJECT
public:
    enum Column { ColNumber, ColName, ColAwards, ColStatus, ColumnCount };

    explicit GiveUpDialog(QWidget *parent = nullptr);

Q_SIGNALS:
    // Participants gave up: the draw screen loads its award again.
    void givenUp();

private:
    QWidget *buildSearchBar();
    void buildList();
    void showList(const QString &keyword, int page);
    void turnPage(int step);
    void giveUpTicked();

    QLineEdit *m_searchEdit = nullptr;
    QToolButton *m_clearSearchButton = nullptr;
    QPushButton *m_searchButton = nullptr;
    QTreeWidget *m_winnerList = nullptr;
    QLabel *m_pageLabel = nullptr;
    QPushButton *m_previousPageButton = nullptr;
    QPushButton *m_nextPageButton = nullptr;
    QPushButton *m_giveUpButton = nullptr;
    int m_pageNo = 1;
};
