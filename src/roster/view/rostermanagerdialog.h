#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;
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

    // Fills the list: key "K<ID>" selects that row, search looks in the names, page is clamped.
    void rdUserLst(const QString &key, const QString &search, int page);
    int currentPage() const { return m_page; }

    // Handlers, public so the console and tests can drive them.
    void cmdSaveClicked();
    void deleteTicked();
    void selectAll();
    void cmdSetDiffClicked();
    void cmdOutClicked();
    void addUser();
    void importExcel();
    void importTxt();
    void importPhotos();
    void generateNumbers();
    void loadEditor(QTreeWidgetItem *item);

    QToolBar *Toolbar = nullptr;
    QLineEdit *txtKey = nullptr;
    QPushButton *cmdCancelKey = nullptr;
    QPushButton *cmdSearch = nullptr;
    QComboBox *comboType = nullptr;
    QTreeWidget *lstUser = nullptr;
    QCheckBox *chkAll = nullptr;
    QPushButton *cmdPageUp = nullptr;
    QPushButton *cmdPageDown = nullptr;
    QPushButton *cmdSetDiff = nullptr;
    QPushButton *cmdOut = nullptr;
    QLabel *labInfo1 = nullptr;
    QLabel *labInfo2 = nullptr;
    QLabel *labinfo3 = nullptr;
    QLabel *labPage = nullptr;
    QGroupBox *frm = nullptr;
    PictureBox *imgViewBox = nullptr;
    QToolBar *toolPhoto = nullptr;
    QLineEdit *txtUserName = nullptr;
    QLineEdit *txtUserPart = nullptr;
    QLineEdit *txtDiffNum = nullptr;
    QLineEdit *txtIsPhoto = nullptr;
    QPushButton *cmdSave = nullptr;

private:
    QWidget *buildList();
    QWidget *buildEditor();
    void addRow(int place, const roster::Participant &participant);
    QList<int> tickedIds(QStringList *photos = nullptr) const;
    void setEditorEnabled(bool enabled);
    void clearEditor();
    void reload();

    int m_page = 1;
};
