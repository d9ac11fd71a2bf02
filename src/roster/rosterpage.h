#pragma once

#include <QColor>
#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "core/language.h"
#include "core/store.h"

// What the roster manager reads and writes, without its widgets.
namespace roster {

constexpr int kPageSize = 1000;

enum SortType { ById = 0, ByPart = 1, ByDiffNum = 2, ByStatus = 3 };

struct Participant {
    int id = 0;
    QString name;
    QString part;
    QString photo;
    int status = 0;
    QVariant diffNum;  // null when the row holds none
};

struct Page {
    QList<Participant> rows;
    qint64 recordCount = 0;  // rows of the listing (the hits of a search)
    int page = 1;            // as asked when nothing was found, else clamped
    int pageCount = 0;
    qint64 won = 0;
    qint64 gaveUp = 0;
};

// " ORDER BY ..." for the sort mode; every mode ends in ID so pages never overlap.
QString orderClause(int sortType);
// One page of the roster. The count and the page use the indexes of the sort columns, so
// paging stays quick at a million participants; a search looks in UserName only.
bool readPage(QSqlDatabase db, const QString &search, int sortType, int page, Page *result,
              QString *error);
// The status word and its colour (invalid colour: the standard one).
QString statusWord(int status);
QColor statusColor(int status);
// The distinction number as shown: empty when it is not a number.
QString diffNumText(const QVariant &value);
bool isNumeric(const QString &text);
// Whether a typed distinction number fits the stored 32-bit value; a longer number is refused
// with kDiffNumTooLarge rather than stored as 0.
bool diffNumFits(const QString &text);
inline const TranslatedText kDiffNumTooLarge{
    "roster", QT_TRANSLATE_NOOP("roster", "“区分编号”不能大于2147483647")};

bool loadParticipant(QSqlDatabase db, int id, Participant *participant);

// Deletes the participants and then those of their photo files the program owns and no other
// row names (the store's own paths decide, never a list shown on screen); false with a message
// on failure.
bool deleteParticipants(QSqlDatabase db, const QList<int> &ids, QString *error);
bool setDiffNum(QSqlDatabase db, const QList<int> &ids, int diffNum, QString *error);

// The picture of an editor after a save. photoState is the hidden picture state: "no",
// "yes", "camre" or a chosen file. Returns the UserPhoto to store (relative to the program
// folder), copying files as needed; a cleared photo's file goes only when the program owns it
// and no other row names it.
QString settlePhoto(int id, const QString &photoState, const QString &storedPhoto);

// Fields joined for a CSV line: a field with a comma, quote or line break is quoted.
QString csvLine(const QStringList &fields);
// Writes UTF-8 with a byte-order mark and CR LF line ends.
bool writeCsv(const QString &path, const QList<QStringList> &lines, QString *error);

}  // namespace roster
