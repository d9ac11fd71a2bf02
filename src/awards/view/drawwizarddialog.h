#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSlider;
class QTabWidget;

// The draw wizard: what scrolls on the stage, how fast, and whether names are masked. Opened as
// settings or on the way into the draw; in the second case an accepted wizard means "open the
// draw screen now".
class DrawWizardDialog : public QDialog {
    Q_OBJECT
public:
    enum class Purpose {
        EditSettings,  // from the console's tool strip: saving confirms with a message
        StartDraw,     // before the draw screen: saving goes straight on to the draw
    };
    Q_ENUM(Purpose)

    explicit DrawWizardDialog(Purpose purpose, QWidget *parent = nullptr);

private:
    QWidget *buildModePage();
    QWidget *buildMaskPage();
    QWidget *buildScreenRow();
    void loadSettings();
    void showMaskedSample();
    void saveSettings();

    Purpose m_purpose;
    QTabWidget *m_tabs = nullptr;
    QRadioButton *m_textMode = nullptr;
    QRadioButton *m_pictureMode = nullptr;
    QRadioButton *m_pictureAndTextMode = nullptr;
    QSlider *m_speedSlider = nullptr;
    QComboBox *m_screenCombo = nullptr;
    QCheckBox *m_rememberCheck = nullptr;
    QCheckBox *m_maskCheck = nullptr;
    QLineEdit *m_keepLeftEdit = nullptr;
    QLineEdit *m_keepRightEdit = nullptr;
    QLineEdit *m_replacementEdit = nullptr;
    QLabel *m_maskedSampleLabel = nullptr;
};
