#pragma once

// The controls of the draw's dialogs, found by their object names.

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

#include "draw/view/endofdrawdialog.h"
#include "draw/view/giveupdialog.h"
#include "draw/view/makeupdrawdialog.h"
#include "support/childwidget.h"

inline QPushButton *button(QWidget &dialog, const char *name) {
    return child<QPushButton>(dialog, name);
}
inline QLineEdit *edit(QWidget &dialog, const char *name) {
    return child<QLineEdit>(dialog, name);
}
inline QTreeWidget *winnerList(GiveUpDialog &dialog) {
    return child<QTreeWidget>(dialog, "winnerList");
}
inline QTreeWidgetItem *row(GiveUpDialog &dialog, int index) {
    return winnerList(dialog)->topLevelItem(index);
}
inline QString pageInfo(GiveUpDialog &dialog) {
    return child<QLabel>(dialog, "pageLabel")->text();
}
// Ticks the row of a participant on the page shown.
inline void tick(GiveUpDialog &dialog, qint64 id) {
    QTreeWidget *list = winnerList(dialog);
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = list->topLevelItem(i);
        if (item->data(GiveUpDialog::ColNumber, Qt::UserRole) == QStringLiteral("K%1").arg(id))
            item->setCheckState(GiveUpDialog::ColNumber, Qt::Checked);
    }
}
inline QComboBox *awardCombo(MakeUpDrawDialog &dialog) {
    return child<QComboBox>(dialog, "awardCombo");
}
inline QTabWidget *tabs(MakeUpDrawDialog &dialog) {
    return child<QTabWidget>(dialog, "tabs");
}
inline QAbstractButton *choice(EndOfDrawDialog &dialog, const char *name) {
    return child<QAbstractButton>(dialog, name);
}
// Fills the make-up dialog's page for an award nobody planned (name, slots, batches, prize) and
// presses OK.
inline void addNewAward(MakeUpDrawDialog &dialog, const QStringList &fields) {
    tabs(dialog)->setCurrentIndex(1);
    const char *names[] = {"awardNameEdit", "slotCountEdit", "batchCountEdit", "prizeNameEdit"};
    for (int i = 0; i < 4; ++i)
        edit(dialog, names[i])->setText(fields[i]);
    button(dialog, "okButton")->click();
}
