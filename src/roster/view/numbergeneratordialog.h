#pragma once

#include "roster/numbergen.h"
#include "roster/view/importdialog.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// Replaces the whole roster with generated codes: prefix, counting number, suffix, leaving out
// codes that contain a masked digit group.
class NumberGeneratorDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit NumberGeneratorDialog(QWidget *parent = nullptr);

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    QWidget *buildOptions();
    numbergen::Options options() const;
    // Shows the first and the last code; false (after the message) when the range is wrong.
    bool showSample();
    void boundEdited(QLineEdit *edit, const QString &emptyMessage);
    void startGenerating();
    // The mask must leave a code; then the question, and the snapshot when something is stored.
    bool confirmGenerating();
    void showGenerating(bool generating);
    void showMaskedCodes();

    QLineEdit *m_prefixEdit = nullptr;
    QLineEdit *m_suffixEdit = nullptr;
    QLineEdit *m_startEdit = nullptr;
    QLineEdit *m_endEdit = nullptr;
    QCheckBox *m_padBox = nullptr;
    QLineEdit *m_padEdit = nullptr;
    QLineEdit *m_maskEdit = nullptr;
    QLabel *m_sampleLabel = nullptr;
    QWidget *m_progressPanel = nullptr;
    QPlainTextEdit *m_maskedCodesEdit = nullptr;
    QPushButton *m_startButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
};
