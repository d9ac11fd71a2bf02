#include "roster/view/picturebox.h"

#include <QDir>
#include <QFileInfo>
#include <QVBoxLayout>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/logging.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"

PictureBox::PictureBox(QWidget *parent) : QFrame(parent), m_stage(createStage(this)) {
    setFixedSize(189, 152);
    setFrameShape(QFrame::StyledPanel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    if (QWidget *view = m_stage->widget()) layout->addWidget(view);
    connect(m_stage.get(), &Stage::commandReceived, this,
            [this](const QString &command, const QString &args) {
                if (command == proto::cmd::loadok && args == QLatin1String("yes")) emit loaded();
            });
}

PictureBox::~PictureBox() = default;

bool PictureBox::start() {
    // The fallback stage never reports "loadok"; waiting for it would leave screens empty.
    if (qobject_cast<SilentStage *>(m_stage.get())) return false;
    const QString movie = appState().path(appState().moviePhoto);
    if (m_stage->loadMovie(movie)) return true;
    qCWarning(lcRoster) << "cannot load the picture viewer" << movie;
    return false;
}

void PictureBox::showPicture(const QString &path) {
    QString absolute = normalizeSlashes(path);
    if (QFileInfo(absolute).isRelative()) absolute = appState().path(absolute);
    m_stage->setVariable(proto::vbAddImg, absolute);
}

void PictureBox::clearPicture() {
    m_stage->setVariable(proto::vbAddImg, QString());
}
