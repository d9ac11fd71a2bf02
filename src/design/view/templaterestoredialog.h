#pragma once

#include <QDialog>
#include <QTimer>

class QLabel;

// Restores the edited template to its factory copy, one step per tick so the operator sees each
// one; the dialog cannot be closed while a step is under way. On the way out it tells the
// designer to reload its working copy (finished()).
class TemplateRestoreDialog : public QDialog {
    Q_OBJECT
public:
    explicit TemplateRestoreDialog(QWidget *parent = nullptr);

    QLabel *labInfo = nullptr;
    QTimer tm;
    int step = 1;
    bool restored = false;
    void tm_Timer();

Q_SIGNALS:
    void reloadRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override;

private:
    static constexpr int kClosable = 65535;
};
