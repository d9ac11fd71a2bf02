#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>

// Who holds a win of an award. Every count and list of an award's winners in the draw goes
// through here, so "winner of award N" has one meaning: N's marker in the participant's JxID.
namespace draw {

struct AwardWinner {
    qint64 id = 0;
    QString name;  // UserName as stored
};

// The winners of the award, newest batch first, then by ID.
QList<AwardWinner> awardWinners(QSqlDatabase db, int awardId);
// How many participants hold a win of the award.
int countAwardWinners(QSqlDatabase db, int awardId);
// The names of an award's winners, newest batch first, each followed by three blanks; masked
// when names are hidden. Empty when nobody has won it.
QString winnersText(const QList<AwardWinner> &winners);

}  // namespace draw
