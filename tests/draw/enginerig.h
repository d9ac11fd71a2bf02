#pragma once

// A started program folder with the draw engine on a recording stage, as the draw screen has it.

#include <QVariant>

#include "core/store.h"
#include "draw/engine.h"
#include "draw/winners.h"
#include "support/recordingstage.h"
#include "support/tempprogramfolder.h"

struct EngineRig {
    TempProgramFolder folder;
    RecordingStage stage;
    draw::DrawEngine engine{stage};
    const draw::DrawSession &session = engine.session();
    bool started = folder.start();

    QVariant cell(qint64 id, const QString &column) {
        return store::scalar(
            folder.db(), QStringLiteral("SELECT %1 FROM UserList WHERE ID=?").arg(column), {id});
    }
    void setWins(qint64 id, const QVariant &jxId, int status, const QString &time = QString()) {
        store::exec(folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=?, UpdateTime=? "
                                   "WHERE ID=?"),
                    {jxId, status, time.isEmpty() ? QVariant() : QVariant(time), id});
    }
    int winners(int award) { return draw::countAwardWinners(folder.db(), award); }
    // A whole draw: Start, then the stage's stoplucksub.
    bool drawAndRecord() {
        return engine.pressStart() == draw::DrawEngine::StartOutcome::Drawn &&
               engine.recordWinners();
    }
};
