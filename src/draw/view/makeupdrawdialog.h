#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QComboBox;
class QLineEdit;
class QPushButton;
class QTabWidget;

// "补奖": more slots for an award, or a new award, without leaving the draw. On success the
// dialog is accepted and names the award the draw screen should load (loadJx(id, true)).
class MakeUpDrawDialog : public QDialog {
    Q_OBJECT
public:
    // currentAward: the award the draw screen has loaded, preselected in the list.
    explicit MakeUpDrawDialog(int currentAward = 0, QWidget *parent = nullptr);

    QTabWidget *sTab = nullptr;
    QComboBox *ComboJX = nullptr;
    QLineEdit *txtNum = nullptr;
    QLabel *labJxInfo = nullptr;  // the chosen award's slots and winners
    QLineEdit *txtJxName = nullptr;
    QLineEdit *txtJxNum = nullptr;
    QLineEdit *txtJxGroup = nullptr;
    QLineEdit *txtJpName = nullptr;
    QCheckBox *chkIsReLuck = nullptr;
    QPushButton *cmdSave = nullptr;
    QPushButton *cmdExit = nullptr;

    // Fills ComboJX with every award in draw order, "无任何奖项" when there is none.
    void rdJXLst(int selectId);
    void save();
    // The award to load after an accepted dialog; 0 before.
    int awardToLoad() const { return m_awardToLoad; }

Q_SIGNALS:
    // Slots were added to the award, or it was created: the draw screen loads it.
    void loadAward(int id);

private:
    QWidget *buildQuickTab();
    QWidget *buildAwardTab();
    void saveSlots();
    void saveNewAward();
    void finish(int id);
    void showAwardInfo();

    int m_awardToLoad = 0;
};
