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

    void cmdOpenClicked();
    void setFiles(const QStringList &files);
    void cmdStartClicked();

    QPushButton *cmdOpen = nullptr;
    QCheckBox *chkYS = nullptr;
    QSlider *sld = nullptr;
    QLabel *labFW = nullptr;
    QRadioButton *opt1 = nullptr;
    QRadioButton *opt2 = nullptr;
    QPlainTextEdit *txtInfo = nullptr;
    QLabel *labmsg = nullptr;
    QPushButton *cmdStart = nullptr;
    QPushButton *cmdExit = nullptr;
    QPushButton *cmdOk = nullptr;

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    QStringList m_files;
};
