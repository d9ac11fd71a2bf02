#include "sound/hotkeys.h"

#include <QSqlQuery>
#include <QVariant>

#include "core/store.h"

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
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)
        return modifiers.testFlag(Qt::KeypadModifier) ? 96 + (qtKey - Qt::Key_0) : qtKey;
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return qtKey;
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return 112 + (qtKey - Qt::Key_F1);
    switch (qtKey) {
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Tab:
            return 9;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Shift:
            return 16;
        case Qt::Key_Control:
            return 17;
        case Qt::Key_Alt:
            return 18;
        case Qt::Key_Pause:
            return 19;
        case Qt::Key_CapsLock:
            return 20;
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Space:
            return 32;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_End:
            return 35;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_Left:
            return 37;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Right:
            return 39;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return 46;
        default:
            return kNoKey;
    }
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
