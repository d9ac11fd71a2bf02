#pragma once

#include <QList>

class TempProgramFolder;

// A party in full swing for screenshots: 120 participants in six departments, five awards, and
// the first awards drawn batch by batch (one holder of two awards, one give-up).
// Returns the participants' IDs.
QList<int> fillSampleEvening(TempProgramFolder &folder);
