#pragma once

#include <QWidget>

// The console: the operator's home screen. For now it shows the titles, the template and the
// roster size so a start-up can be seen to have worked.
class frmMain : public QWidget {
    Q_OBJECT
public:
    explicit frmMain(QWidget *parent = nullptr);
};
