#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class PictureBox;
namespace roster {
struct Participant;
}

// The roster manager: a page of 1000 participants with tick boxes, search, four sort modes and
// counters; an editor for the selected participant; delete, batch distinction number, the page's
// CSV export, and the add dialog and the four bulk imports.
class RosterManagerDialog : public QDialog {
    Q_OBJECT
public:
    explicit RosterManagerDialog(QWidget *parent = nullptr);
    ~RosterManagerDialog() override;

    // Opens the manager modally over parent (the console's roster page calls this).
    static void showManager(QWidget *parent);

    // Fills the list with the page of the participants whose names contain search (the page is
    // clamped) and selects the participant selectId, or by default the roster's last row when
    // it is on the page.
    void showParticipants(const QString &search, int page, int selectId = 0);

private:
    QWidget *buildList();
    QToolBar *buildToolbar(QWidget *parent);
    QWidget *buildEditor();
    void addRow(int place, const roster::Participant &participant);
    QList<int> tickedIds() const;
    void setAllTicks(bool ticked);
    void setEditorEnabled(bool enabled);
    void clearEditor();
    void loadEditor(QTreeWidgetItem *item);
    // The current page again, with the search as typed.
    void refresh();
    void updateCounters(int total, int won, int gaveUp, int pageCount);

    void saveParticipant();
    void toggleAllTicks();
    void deleteTicked();
    void setDiffNumOfTicked();
    void exportPage();
    void addParticipant();
    void importExcel();
    void importText();
    void importPhotos();
    void generateNumbers();

    QLineEdit *m_searchEdit = nullptr;
    QToolButton *m_clearSearchButton = nullptr;
    QPushButton *m_searchButton = nullptr;
    QComboBox *m_sortCombo = nullptr;
    QTreeWidget *m_participantList = nullptr;
    QCheckBox *m_tickAllBox = nullptr;
    QPushButton *m_previousPageButton = nullptr;
    QPushButton *m_nextPageButton = nullptr;
    QPushButton *m_setDiffNumButton = nullptr;
    QPushButton *m_exportButton = nullptr;
    QLabel *m_totalLabel = nullptr;
    QLabel *m_wonLabel = nullptr;
    QLabel *m_gaveUpLabel = nullptr;
    QLabel *m_pageLabel = nullptr;
    PictureBox *m_pictureBox = nullptr;
    QToolBar *m_photoToolbar = nullptr;
    QLineEdit *m_nameEdit = nullptr;
    QLineEdit *m_remarkEdit = nullptr;
    QLineEdit *m_diffNumEdit = nullptr;
    QLineEdit *m_photoStateEdit = nullptr;  // hidden: "no", "yes", "camre" or a chosen file
    QPushButton *m_saveButton = nullptr;

    int m_page = 1;
};
