#pragma once

#include <QString>

#include "draw/audit.h"
#include "draw/batchplan.h"
#include "draw/selection.h"

namespace draw {

// Where the draw is: at rest, names rolling or landing, a stored batch on show, the parade.
enum DrawState : int { Idle = 0, Running = 1, Result = 2, Playback = 3 };

// The award the draw screen has loaded.
struct LoadedAward {
    int id = 0;  // 0: none loaded yet
    int orderNum = 0;
    QString name;         // JXName
    QString prizeName;    // JPName
    QString picturePath;  // absolute, "/" separators
    AwardRule rule;
    BatchPlan plan;
};

// Everything the draw keeps between presses, for as long as the draw screen lives. The engine
// owns it; everyone else reads it.
struct DrawSession {
    LoadedAward award;
    int batchCount = 0;
    DrawState drawState = Idle;
    bool canCancel = false;
    // Running, after Stop: the winners land, and nothing may clear or replace them.
    bool landing = false;
    // The press in progress: "name$id|name$id" for the stage, and the IDs joined by ",".
    QString winnerList;
    QString winnerIds;
    // The winnerIds of the last Start, kept for Cancel and the printout of the batch.
    QString lastWinnerIds;
    // The nine leading vbAddImg fields of the prize picture, each followed by "|"; blank when the
    // template shows no prize picture.
    QString prizeHead;
    // The eligible participants of the loaded award, built when the award loads so that Start
    // costs little, and built again at Start when who may win has changed since. The scroll
    // samples from here.
    Candidates candidates;
    QString candidatesDigest;
    std::vector<qint64> candidatesExcluded;  // who could not win when they were built
    // IDs and distinction numbers of the whole roster, read when the first award loads and read
    // again on a worker thread when the store changed in a way the draw's own recording does not
    // explain. Until then the draw goes on with this one.
    Roster roster;
    StoreStamp rosterStamp;  // dataVersion < 0: never read
    AwardRule candidatesRule;
    StoreStamp candidatesStamp;
    PressRecord lastPress;
};

}  // namespace draw
