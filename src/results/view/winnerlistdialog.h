#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

// "查看中奖": every win of every award, read only, with the number of wins and of prizes, and
// the export and printout of all winners.
class WinnerListDialog : public QDialog {
    Q_OBJECT
public:
    enum Column {
        ColNumber,
        ColJxName,
        ColJpName,
        ColUserName,
        ColUserPart,
        ColStatus,
        ColumnCount
    };

    explicit WinnerListDialog(QWidget *parent = nullptr);

    QPushButton *cmdOut = nullptr;    // toolbar button 2
    QPushButton *cmdPrint = nullptr;  // toolbar button 3
    QTreeWidget *lstUser = nullptr;
    QLabel *labmsg = nullptr;
    QLabel *Label1 = nullptr;

    void fill();

private:
    QWidget *buildToolbar();
    void buildList();
};
