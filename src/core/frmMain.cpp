#include "core/frmMain.h"

#include <QLabel>
#include <QVBoxLayout>

#include "core/appstate.h"
#include "core/store.h"

frmMain::frmMain(QWidget *parent) : QWidget(parent) {
    const AppState &state = appState();
    setWindowTitle(QStringLiteral("Quellio抽奖(全能版)"));
    setFixedSize(757, 448);
    setStyleSheet(QStringLiteral("background: rgb(255,235,236); color: rgb(128,23,25);"));
    auto *layout = new QVBoxLayout(this);
    auto *title = new QLabel(state.title1, this);
    title->setStyleSheet(QStringLiteral("font-size: 28px; font-weight: bold;"));
    auto *subtitle = new QLabel(state.title2, this);
    subtitle->setStyleSheet(QStringLiteral("font-size: 18px; color: rgb(169,97,100);"));
    const int roster =
        store::scalar(store::mainConn(), QStringLiteral("SELECT COUNT(*) FROM UserList")).toInt();
    const int awards =
        store::scalar(store::mainConn(), QStringLiteral("SELECT COUNT(*) FROM JPList")).toInt();
    auto *figures = new QLabel(QStringLiteral("模板: %1    名单: %2 人    奖项: %3 个")
                                   .arg(state.selSkinName)
                                   .arg(roster)
                                   .arg(awards),
                               this);
    for (QLabel *label : {title, subtitle, figures}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
}
