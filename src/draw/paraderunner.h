#pragma once

#include <QObject>
#include <QString>

#include <functional>

class Stage;

namespace draw {

// The winner parade: every award in draw order, each with its winners, newest batch first. The
// stage asks for the next award when it has shown one (callLoadPlay) and says when the parade
// is over (luckplaystop). Every parade starts scrolling at the first award; the running number
// of the awards shown goes on from one parade to the next while the draw screen lives.
class ParadeRunner : public QObject {
    Q_OBJECT
public:
    // playbackStyle builds the parade's style fields; it is asked once, at the first award shown.
    ParadeRunner(Stage &stage, std::function<QString()> playbackStyle, QObject *parent = nullptr);

    // From the first award, scrolling.
    void start();
    // The award after the last one shown; past the last award the list keeps scrolling.
    void showNextAward();
    // The start and stop keys pause and resume the scrolling list.
    void toggleScroll();
    // The stage ended the parade.
    void finish();

    // The number the next award shown will carry, from 1.
    int nextNumber() const { return m_nextNumber; }
    // The draw-order position (OrderNum) of the last award shown; 0 before the first.
    int lastShownOrder() const { return m_lastShownOrder; }

Q_SIGNALS:
    // Emitted before the first award is sent, so the draw is in its parade state by then.
    // Without any award the stage ends the parade at once: nothing to play music to.
    void started(bool anyAward);
    void finished();

private:
    void send(const QString &name, const QString &value);

    Stage &m_stage;
    std::function<QString()> m_playbackStyle;
    QString m_style;
    int m_lastShownOrder = 0;
    int m_nextNumber = 1;
    bool m_isScrolling = true;
};

}  // namespace draw
