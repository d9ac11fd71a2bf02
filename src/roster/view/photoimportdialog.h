#pragma once

#include "roster/view/importdialog.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QSlider;

// Makes one participant from each chosen picture: name and remark from the file name, the
// picture copied or shrunk into Photos/.
class PhotoImportDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit PhotoImportDialog(QWidget *parent = nullptr);

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    void buildLayout(QWidget *chooseBox);
    void chooseFiles();
    void startImport();
    void showImporting(bool importing);

    QPushButton *m_chooseButton = nullptr;
    QCheckBox *m_shrinkBox = nullptr;
    QLabel *m_shrinkHint = nullptr;
    QSlider *m_sizeSlider = nullptr;
    QLabel *m_sizeLabel = nullptr;
    QLabel *m_rawPhotosHint = nullptr;
    QRadioButton *m_appendButton = nullptr;
    QRadioButton *m_replaceButton = nullptr;
    QPlainTextEdit *m_logEdit = nullptr;
    QLabel *m_statusLabel = nullptr;
    QPushButton *m_startButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
    QStringList m_files;
};
