#pragma once

#include <QColor>
#include <QList>
#include <QSqlDatabase>
#include <QString>

#include <functional>
#include <optional>

#include "core/language.h"
#include "core/store.h"

// One row of JPList as the award manager shows and edits it.
struct AwardRow {
    int ID = 0;
    int OrderNum = 0;
    QString JXName;
    int JXNum = 0;
    int JXGroup = 0;
    QString JPName;
    QString JPPhoto;  // relative to appPath, "Photos/JP<ID><ext>", or empty
    int isReLuck = 0;
    int RangeType = 0;
    int RangeNum1 = 0;
    int RangeNum2 = 0;
};

// The editor's fields as the operator typed them.
struct AwardInput {
    QString JXName;
    QString JXNum;
    QString JXGroup;
    QString JPName;
    // The picture state of the editor: "no", "camre" or the full path of a picture file.
    QString txtPhoto = QStringLiteral("no");
    bool isReLuck = true;
    int RangeType = 0;
    QString RangeNum1;
    QString RangeNum2;
};

// The field a failed check sends the focus back to.
enum class AwardField { None, JxName, JxNum, JxGroup, JpName, RangeNum2 };

struct AwardFault {
    QString message;
    AwardField field = AwardField::None;
    bool failed() const { return field != AwardField::None; }
};

// The texts and colours of the list columns "重复中奖" and "区分编号范围".
namespace awardtext {
inline const QColor kRed(255, 0, 0);
inline const QColor kGreen(18, 118, 0);
QString reLuck(int isReLuck);
QColor reLuckColor(int isReLuck);
QString range(int rangeType, int first, int second);
// Only "不限制" has its own colour; an invalid colour means the list's usual text colour.
QColor rangeColor(int rangeType);
// The items of ComboRange, index = RangeType.
QStringList rangeItems();
}  // namespace awardtext

// The rules of the award table: validation, insert and save, the clearing of an award's wins,
// delete with renumbering, and moving in the draw order. No widgets: the award manager and the
// add-award dialog hold the controls and call this.
class AwardBook {
public:
    // Slots, batches and award ids are 16-bit numbers; the draw depends on that.
    static constexpr int kMax16 = 32767;
    static const QString kPhotoPrefix;  // "Photos/JP"
    static const QString kCameraFile;   // "Photos/camertemp.jpg"

    explicit AwardBook(QSqlDatabase db = store::mainConn()) : m_db(db) {}

    // The first failing rule, in the order the operator reads the editor; no fault when valid.
    static AwardFault validate(const AwardInput &input);

    // True when the next award would need an ID or position beyond 16 bits.
    bool isFull() const;
    static const TranslatedText kFullMessage;

    // Every award in draw order; empty with the store's message in error when the read fails.
    QList<AwardRow> list(QString *error = nullptr) const;
    std::optional<AwardRow> find(int id) const;
    bool hasWinners(int id) const;

    // Inserts a new award under the next ID and OrderNum; 0 with the fault's message in error
    // when the table has no 16-bit id or position left or the store refuses.
    int add(const AwardInput &input, QString *error);
    // Clears the award's wins, settles its picture and writes the editor back, all or nothing.
    // The draw's selected award is reset when it is this one.
    bool save(int id, const AwardInput &input, QString *error);
    // Clears the wins of every award in ids, deletes them and their pictures, and renumbers the
    // rest from 1, all or nothing.
    bool remove(const QList<int> &ids, QString *error);
    // Swaps the award with its neighbour in the draw order (step -1 up, +1 down); false at the
    // ends, where nothing changes.
    bool move(int id, int step);

    // Removes the award's marker from every participant who won it. A participant left with no
    // win at all is normal again (UserStatus 0); one who still holds another award keeps the
    // status. Runs inside the caller's transaction. Returns the participants changed, -1 on error.
    int clearWins(int awardId, QString *error);

private:
    struct PhotoPlan {
        QString stored;      // the JPPhoto value to write
        QString copyFrom;    // absolute source to copy to `stored`, or empty
        QString removeFile;  // stored path of a picture that may go, or empty
        bool cameraMissing = false;
    };
    static PhotoPlan planPhoto(int id, const QString &txtPhoto);
    void applyPhoto(const PhotoPlan &plan) const;
    bool renumber(QString *error);
    bool inTransaction(const std::function<bool(QString *)> &work, QString *error);

    QSqlDatabase m_db;
};
