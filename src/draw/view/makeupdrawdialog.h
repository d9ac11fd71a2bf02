#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QComboBox;
class QLineEdit;
class QPushButton;
class QTabWidget;

// "补奖": more slots for an award (first tab), or a new award (second tab), without leaving the
// draw. On success the dialog names the award the draw screen should load, and is accepted.
class MakeUpDrawDialog : public QDialog {
    Q_OBJECT
public:
    // currentAward: the award the draw screen has loaded, preselected in the list.
    explicit MakeUpDrawDialog(int currentAward = 0, QWidget *parent = nullptr);

Q_SIGNALS:
    // Slots were added to the award, or it was created: the draw screen loads it.
    void awardChanged(int id);

private:
    QWidget *buildQuickTab();
    QWidget *buildAwardTab();
    // Every award in draw order, "无任何奖项" when there is none.
    void fillAwardList(int selectId);
    void save();
    void saveSlots();
    void saveNewAward();
    void finish(int id);
    void showAwardInfo();

    QTabWidget *m_tabs = nullptr;
    QComboBox *m_awardCombo = nullptr;
    QLineEdit *m_addedSlotsEdit = nullptr;
    QLabel *m_awardInfoLabel = nullptr;  // the chosen award's slots and winners
    QLineEdit *m_awardNameEdit = nullptr;
    QLineEdit *m_slotCountEdit = nullptr;
    QLineEdit *m_batchCountEdit = nullptr;
    QLineEdit *m_prizeNameEdit = nullptr;
    QCheckBox *m_excludeWinnersCheck = nullptr;
    QPushButton *m_okButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
};
