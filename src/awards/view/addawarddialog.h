#pragma once

#include <QDialog>

class AwardEditor;

// Adds one award at the end of the draw order, with the same fields and rules as the award
// manager's editor. A new award excludes people who have already won unless the operator says
// otherwise.
class AddAwardDialog : public QDialog {
    Q_OBJECT
public:
    explicit AddAwardDialog(QWidget *parent = nullptr);

private:
    void addAward();

    AwardEditor *m_editor = nullptr;
};
