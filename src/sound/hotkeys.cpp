#include "sound/hotkeys.h"

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
    if (code >= 65 && code <= 90) return QChar(code) + QStringLiteral("键");
    if (code >= 48 && code <= 57) return QStringLiteral("数字") + QChar(code);
    if (code >= 96 && code <= 105) return QStringLiteral("小键盘数字") + QChar(code - 48);
    switch (code) {
        case 8:
            return QStringLiteral("BackSpace键");
        case 13:
            return QStringLiteral("回车键(Enter)");
        case 32:
            return QStringLiteral("空格键(Space)");
        case 33:
            return QStringLiteral("PageUp键");
        case 34:
            return QStringLiteral("PageDown键");
        case 38:
            return QStringLiteral("↑键");
        case 40:
            return QStringLiteral("↓键");
        case 46:
            return QStringLiteral("Delete键");
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
