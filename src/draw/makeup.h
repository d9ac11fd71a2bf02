#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>

#include "core/language.h"

// The make-up of the draw screen: more slots for an award, or a whole new award, in the middle
// of an evening. No widgets: MakeUpDrawDialog holds the controls and calls this. The batch plan
// follows by itself, since it is worked out from JXNum at every load.
namespace draw {

// Slots and batches are 16-bit numbers, as everywhere in the draw.
constexpr int kMaxSlots = 32767;

// One entry of the award list: "ID|JXName(JPName)".
struct MakeupChoice {
    int id = 0;
    QString text;
};

// Every award in draw order.
QList<MakeupChoice> makeupChoices(QSqlDatabase db);
// The award ID of an entry: the text before the first "|"; 0 when there is none.
int choiceId(const QString &text);

// The field a failed check sends the focus back to.
enum class MakeupField { None, AddedSlots, AwardName, SlotCount, BatchCount, PrizeName };

struct MakeupFault {
    QString message;
    MakeupField field = MakeupField::None;
    bool failed() const { return field != MakeupField::None; }
};

// Checks the added slot count as typed and against the award's slots now; no fault when it may
// be added.
MakeupFault checkAddedSlots(const QString &typed, int slotsNow);
// Adds `count` slots to the award in one transaction. False with the store's message in error.
bool addSlots(QSqlDatabase db, int awardId, int count, QString *error);

// The fields of the new-award tab as typed.
struct NewAward {
    QString name;
    QString slotCount;
    QString batchCount;
    QString prizeName;
    bool excludeWinners = true;  // no second win for anyone who has won before
};

// The first failing rule in the order of the tab's fields.
MakeupFault checkNewAward(const NewAward &award);
inline const TranslatedText kAwardsFullMessage{
    "draw", QT_TRANSLATE_NOOP("draw", "奖项编号已到上限32767,不能再增加奖项!")};
// Inserts the award last in the draw order, without a picture and with no distinction range.
// Returns its ID, or 0 with the reason in error (also when no 16-bit ID or position is left).
int insertAward(QSqlDatabase db, const NewAward &award, QString *error);

// The slots of an award now; -1 when it does not exist.
int slotsOf(QSqlDatabase db, int awardId);

}  // namespace draw
