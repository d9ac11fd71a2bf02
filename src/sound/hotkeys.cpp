#include "sound/hotkeys.h"

#include <QCoreApplication>
#include <QSqlQuery>
#include <QVariant>

#include "core/store.h"
#include "stage/keycodes.h"

namespace hotkeys {

namespace {

bool isTaken(QSqlDatabase db, int row, int code) {
    // Start and stop only look at the seven other functions, so one key can toggle the draw.
    const QVariant found =
        row < 2 ? store::scalar(db,
                                QStringLiteral("SELECT COUNT(*) FROM KeyBoard WHERE ID>2 AND "
                                               "KeyAsc=?"),
                                {code})
                : store::scalar(db,
                                QStringLiteral("SELECT COUNT(*) FROM KeyBoard WHERE ID<>? AND "
                                               "KeyAsc=?"),
                                {row + 1, code});
    return found.toInt() > 0;
}

}  // namespace

QString keyName(int code) {
    if (code >= 65 && code <= 90)
        return QCoreApplication::translate("hotkeys", "%1键").arg(QChar(code));
    if (code >= 48 && code <= 57)
        return QCoreApplication::translate("hotkeys", "数字%1").arg(QChar(code));
    if (code >= 96 && code <= 105)
        return QCoreApplication::translate("hotkeys", "小键盘数字%1").arg(QChar(code - 48));
    switch (code) {
        case 8:
            return QCoreApplication::translate("hotkeys", "BackSpace键");
        case 13:
            return QCoreApplication::translate("hotkeys", "回车键(Enter)");
        case 32:
            return QCoreApplication::translate("hotkeys", "空格键(Space)");
        case 33:
            return QCoreApplication::translate("hotkeys", "PageUp键");
        case 34:
            return QCoreApplication::translate("hotkeys", "PageDown键");
        case 38:
            return QCoreApplication::translate("hotkeys", "↑键");
        case 40:
            return QCoreApplication::translate("hotkeys", "↓键");
        case 46:
            return QCoreApplication::translate("hotkeys", "Delete键");
        default:
            return kUnsupported;
    }
}

int keyCodeFromQt(int qtKey, Qt::KeyboardModifiers modifiers) {
    return stagekeys::windowsKeyCode(qtKey, modifiers);
}

QList<int> loadKeys(QSqlDatabase db) {
    QList<int> codes(kRowCount, 0);
    QSqlQuery query(db);
    query.exec(QStringLiteral("SELECT ID, KeyAsc FROM KeyBoard ORDER BY ID ASC"));
    while (query.next()) {
        const int row = query.value(0).toInt() - 1;
        if (row >= 0 && row < kRowCount) codes[row] = query.value(1).toInt();
    }
    return codes;
}

QList<SaveOutcome> saveKeys(const QList<int> &codes, QSqlDatabase db) {
    QList<SaveOutcome> outcomes;
    for (int row = 0; row < codes.size() && row < kRowCount; ++row) {
        const int code = codes.at(row);
        if (code == 0) {
            outcomes << SaveOutcome::Skipped;
            continue;
        }
        const bool clash = isTaken(db, row, code);
        store::exec(db, QStringLiteral("UPDATE KeyBoard SET KeyAsc=? WHERE ID=?"),
                    {clash ? kNoKey : code, row + 1});
        outcomes << (clash ? SaveOutcome::Clash : SaveOutcome::Saved);
    }
    return outcomes;
}

}  // namespace hotkeys
