#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QSqlDatabase>
#include <QString>

// The give-up list: every participant who holds a win (or gave one up), newest batch first,
// fifty to a page, searchable by name; and the give-up itself, which wipes a participant's
// whole win history and keeps them out of every later draw until a restart. Their slots come
// back by themselves, since the draw counts an award's winners from JxID.
namespace draw {

constexpr int kGiveUpPageSize = 50;

struct GiveUpRow {
    qint64 id = 0;
    int number = 0;    // the row's place on its page, from 1
    QString userName;  // trimmed
    QString awards;    // the names of the awards held, joined by a blank
    int status = 0;    // UserStatus
};

struct GiveUpPage {
    int total = 0;   // participants listed over all pages
    int pageNo = 1;  // the page shown, after clamping
    int pages = 1;   // at least 1
    QList<GiveUpRow> rows;
};

// One page of the list. A blank keyword lists everybody; otherwise the names containing it (the
// user's % and _ are taken as they are). The page is clamped to the pages there are.
GiveUpPage giveUpPage(QSqlDatabase db, const QString &keyword, int pageNo);

// The awards column of one JxID: the names of the awards it holds, in ID order, joined by a
// blank. "无" and unknown IDs give nothing.
QString awardNames(const QString &jxId, const QHash<int, QString> &namesById);

// "总计∶120 人, 当前第2页/共3页".
QString pageInfo(const GiveUpPage &page);

// The status column: text and colour for UserStatus 1, 2 and 3; empty for anything else.
struct StatusLook {
    QString text;
    QColor color;
};
StatusLook giveUpStatus(int status);

// Marks the participants as having given up (JxID "无", UserStatus 1) in one transaction.
bool giveUp(QSqlDatabase db, const QList<qint64> &ids, QString *error);

}  // namespace draw
