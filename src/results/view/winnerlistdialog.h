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
        NumberColumn,
        AwardColumn,
        PrizeColumn,
        WinnerColumn,
        RemarkColumn,
        StatusColumn,
        ColumnCount
    };

    explicit WinnerListDialog(QWidget *parent = nullptr);

private:
    QWidget *buildToolbar();
    void buildList();
    void showWinners();

    QPushButton *m_exportButton = nullptr;
    QPushButton *m_printButton = nullptr;
    QTreeWidget *m_winnerList = nullptr;
    QLabel *m_winnerCountLabel = nullptr;
    QLabel *m_prizeTotalLabel = nullptr;
};
