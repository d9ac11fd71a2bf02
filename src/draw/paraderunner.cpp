#include "draw/paraderunner.h"

#include <QSqlError>
#include <QSqlQuery>

#include "core/appstate.h"
#include "core/logging.h"
#include "core/store.h"
#include "design/payloads.h"
#include "draw/winners.h"
#include "stage/protocol.h"
#include "stage/stage.h"

namespace draw {

ParadeRunner::ParadeRunner(Stage &stage, std::function<QString()> playbackStyle, QObject *parent)
    : QObject(parent), m_stage(stage), m_playbackStyle(std::move(playbackStyle)) {}

void ParadeRunner::send(const QString &name, const QString &value) {
    m_stage.setVariable(name, value);
}

void ParadeRunner::start() {
    Q_EMIT started(
        store::scalar(store::mainConn(), QStringLiteral("SELECT 1 FROM JPList LIMIT 1")).isValid());
    // Every parade starts scrolling, whatever the last one was left at.
    m_isScrolling = true;
    m_lastShownOrder = 0;
    showNextAward();
}

void ParadeRunner::showNextAward() {
    send(proto::changBtn, proto::buttons::luckplay);
    QSqlDatabase db = store::mainConn();
    QSqlQuery award(db);
    award.prepare(
        QStringLiteral("SELECT ID, OrderNum, JXName, JPName FROM JPList "
                       "WHERE OrderNum>? ORDER BY OrderNum ASC LIMIT 1"));
    award.addBindValue(m_lastShownOrder);
    if (!award.exec()) qCWarning(lcDraw) << "next award of the parade" << award.lastError();
    if (!award.next()) {
        send(proto::vbStartScroll, proto::yes);
        return;
    }
    const int id = award.value(0).toInt();
    const int orderNum = award.value(1).toInt();
    const QString awardName = award.value(2).toString();
    const QString prizeName = award.value(3).toString();
    award.finish();

    if (m_style.isEmpty() && m_playbackStyle) m_style = m_playbackStyle();
    QStringList names;
    QList<int> ids;
    for (const AwardWinner &winner : awardWinners(db, id)) {
        names << design::safeName(winner.name);
        ids << int(winner.id);
    }
    const QString &variable = m_lastShownOrder == 0 ? proto::vbLuckPlay : proto::vbLuckPlay1;
    send(variable, design::luckPlayPayload(m_style, awardName, prizeName, appState().playTitleType,
                                           m_nextNumber, names, ids));
    m_lastShownOrder = orderNum;
    ++m_nextNumber;
}

void ParadeRunner::toggleScroll() {
    m_isScrolling = !m_isScrolling;
    send(proto::vbStartScroll, m_isScrolling ? proto::yes : proto::no);
}

void ParadeRunner::finish() {
    Q_EMIT finished();
}

}  // namespace draw
