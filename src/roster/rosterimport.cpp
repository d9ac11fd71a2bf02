#include "roster/rosterimport.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include "core/appstate.h"
#include "core/helpers.h"
#include "roster/photofiles.h"
#include "roster/photoimport.h"

namespace {

// A slice this long keeps the progress bar moving and the close button answering.
constexpr qint64 kSliceMs = 30;

}  // namespace

RosterImport::~RosterImport() = default;

bool RosterImport::start(QString *error) {
    if (m_started || !canStart(error)) return false;
    if (!m_writer.begin(replaceAtStart(), error)) return false;
    if (!m_writer.reserve(itemCount(), error)) {
        m_writer.rollback();
        return false;
    }
    m_started = true;
    m_outcome = Outcome::Running;
    m_scheduled = true;
    QTimer::singleShot(0, this, &RosterImport::runSlice);
    return true;
}

void RosterImport::cancel() {
    if (isRunning()) finish(Outcome::Cancelled);
}

void RosterImport::resume() {
    m_paused = false;
    if (isRunning() && !m_scheduled) {
        m_scheduled = true;
        QTimer::singleShot(0, this, &RosterImport::runSlice);
    }
}

void RosterImport::runSlice() {
    m_scheduled = false;
    if (!isRunning() || m_paused) return;
    QElapsedTimer clock;
    clock.start();
    const qint64 count = itemCount();
    while (m_index < count && clock.elapsed() < kSliceMs) {
        QString error;
        if (!processItem(m_index, &error)) {
            finish(Outcome::Failed, error);
            return;
        }
        ++m_index;
    }
    emit progress(m_index, count);
    if (!isRunning()) return;  // cancelled from a progress handler
    if (m_index < count) {
        m_scheduled = true;
        QTimer::singleShot(0, this, &RosterImport::runSlice);
        return;
    }
    QString error;
    if (!m_writer.commit(&error)) {
        finish(Outcome::Failed, error);
        return;
    }
    afterCommit();
    finish(Outcome::Finished);
}

void RosterImport::removeReplacedPhotos() {
    if (m_writer.cleared())
        roster::removePhotosOfReplacedRoster(m_writer.database(), appState().appPath,
                                             m_writer.formerPhotos());
}

void RosterImport::skipBlankName() {
    ++m_blanks;
    appendLog(tr("\n屏蔽空白数据"));
}

void RosterImport::finish(Outcome outcome, const QString &error) {
    if (outcome != Outcome::Finished) {
        m_writer.rollback();
        afterRollback();
    }
    m_outcome = outcome;
    m_errorText = error;
    emit finished(outcome);
}

RosterImport::Outcome RosterImport::runToEnd() {
    if (m_outcome != Outcome::Running) return m_outcome;
    QEventLoop loop;
    connect(this, &RosterImport::finished, &loop, &QEventLoop::quit);
    QString error;
    if (!m_started && !start(&error)) {
        m_errorText = error;
        return m_outcome = Outcome::Failed;
    }
    loop.exec();
    return m_outcome;
}

// ---- Excel ----

ExcelImport::ExcelImport(const QList<workbook::Row> &rows, const QList<bool> &nameColumns,
                         const QString &joiner, bool titleRow, bool replace, QObject *parent)
    : RosterImport(parent),
      m_rows(rows),
      m_nameColumns(nameColumns),
      m_joiner(joiner),
      m_titleRow(titleRow),
      m_replace(replace) {}

void ExcelImport::mergeRow(const workbook::Row &row, const QList<bool> &nameColumns,
                           const QString &joiner, QString *name, QString *part) {
    name->clear();
    part->clear();
    for (int column = 0; column < nameColumns.size(); ++column) {
        const QString cell = row.value(column);
        if (nameColumns.at(column))
            *name += cell + joiner;
        else
            *part += cell + joiner;
    }
}

bool ExcelImport::processItem(qint64 index, QString *error) {
    if (index == 0 && m_titleRow) return true;
    QString name;
    QString part;
    mergeRow(m_rows.at(index), m_nameColumns, m_joiner, &name, &part);
    name = name.trimmed();
    part = part.trimmed();
    if (name.isEmpty()) {
        skipBlankName();
        return true;
    }
    if (writer().isDuplicate(name, part)) {
        ++m_duplicates;
        appendLog(tr("\n重复数据：") + name);
        return true;
    }
    if (!writer().insert(name, part, QString(), 0, error)) return false;
    ++m_imported;
    return true;
}

void ExcelImport::afterCommit() {
    removeReplacedPhotos();
}

// ---- text ----

TxtImport::TxtImport(const QStringList &lines, const QString &separator, bool replace,
                     QObject *parent)
    : RosterImport(parent),
      m_lines(lines),
      m_separator(separator),
      m_replace(replace),
      m_parser(separator) {}

bool TxtImport::readLines(const QString &path, QStringList *lines, QString *error) {
    if (store::isStoreFile(path)) {
        *error = textimport::notTextMessage();
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = tr("无法打开文件：") + path;
        return false;
    }
    QString text;
    if (!textimport::decodeText(file.readAll(), &text, error)) return false;
    *lines = textimport::splitLines(text);
    return true;
}

bool TxtImport::processItem(qint64 index, QString *error) {
    const QString &line = m_lines.at(index);
    if (!textimport::isRosterLine(line)) {
        ++m_unreadable;
        appendLog(tr("\n屏蔽无法识别的数据：第%1行").arg(index + 1));
        return true;
    }
    const textimport::TxtRow row = m_parser.parse(line);
    if (row.name.isEmpty()) {
        // An empty line is only a gap; a line with fields but no name is a row passed over.
        if (!line.trimmed().isEmpty()) skipBlankName();
        return true;
    }
    if (writer().isDuplicate(row.name, row.part)) {
        ++m_duplicates;
        appendLog(tr("\n重复数据：") + row.name + m_separator + row.part);
        return true;
    }
    if (row.diffNumTooLarge) appendLog(tr("\n区分编号超出范围,记为0：第%1行").arg(index + 1));
    if (!writer().insert(row.name, row.part, row.photo, row.diffNum, error)) return false;
    ++m_imported;
    return true;
}

void TxtImport::afterCommit() {
    removeReplacedPhotos();
}

// ---- photos ----

PhotoImport::PhotoImport(const QStringList &files, bool compress, int sliderValue, bool replace,
                         QObject *parent)
    : RosterImport(parent),
      m_files(files),
      m_compress(compress),
      m_sliderValue(sliderValue),
      m_replace(replace) {}

PhotoImport::~PhotoImport() {
    if (!m_staging.isEmpty()) QDir(m_staging).removeRecursively();
}

QString PhotoImport::stagingFolder() {
    if (m_staging.isEmpty()) {
        m_staging = appState().path(QStringLiteral("Photos/.import-") + makeRandomName(8));
        QDir().mkpath(m_staging);
    }
    return m_staging;
}

bool PhotoImport::processItem(qint64 index, QString *error) {
    const QString source = m_files.at(index);
    const QString newName =
        QStringLiteral("U") + QString::number(writer().nextId()) + getExt(source);
    const photoimport::PhotoName parsed = photoimport::parsePhotoName(getFileName(source));
    if (!parsed.hasName()) {
        skipBlankName();
        return true;
    }
    // The remark is stored with a blank behind it; duplicates are looked for in that form.
    const QString part = parsed.part + QLatin1Char(' ');
    if (writer().isDuplicate(parsed.name, part)) {
        ++m_duplicates;
        appendLog(tr("\n重复图片∶") + source);
        return true;
    }
    const QString staged = stagingFolder() + QLatin1Char('/') + newName;
    switch (photoimport::settlePicture(source, staged, m_compress, m_sliderValue)) {
        case photoimport::Settled::PngCopied:
            appendLog(tr("\nPNG不支持压缩∶") + source);
            break;
        case photoimport::Settled::Failed:
            appendLog(tr("\n压缩失败∶") + source);
            break;
        default:
            break;
    }
    // A picture that could not be settled leaves the row without one, never pointing nowhere.
    QString photo;
    if (QFile::exists(staged)) {
        m_staged << newName;
        photo = QStringLiteral("Photos/") + newName;
    }
    if (!writer().insert(parsed.name, part, photo, 0, error)) return false;
    ++m_imported;
    return true;
}

void PhotoImport::afterCommit() {
    removeReplacedPhotos();
    const QString photos = appState().path(QStringLiteral("Photos/"));
    for (const QString &name : std::as_const(m_staged)) {
        QFile::remove(photos + name);
        QFile::rename(m_staging + QLatin1Char('/') + name, photos + name);
    }
    if (!m_staging.isEmpty()) QDir(m_staging).removeRecursively();
    m_staging.clear();
}

void PhotoImport::afterRollback() {
    if (!m_staging.isEmpty()) QDir(m_staging).removeRecursively();
    m_staging.clear();
}

// ---- number generator ----

NumberGeneration::NumberGeneration(const numbergen::Options &options, QObject *parent)
    : RosterImport(parent), m_options(options), m_mask(numbergen::maskParts(options.mask)) {
    numbergen::range(options, &m_start, &m_end);
}

bool NumberGeneration::canStart(QString *error) {
    if (numbergen::keepsAnyCode(m_options)) return true;
    *error = numbergen::kNoCodeLeftMessage;
    return false;
}

bool NumberGeneration::processItem(qint64 index, QString *error) {
    const QString code = numbergen::makeCode(m_options, m_start + static_cast<int>(index));
    if (numbergen::isExcluded(code, m_mask)) {
        ++m_duplicates;
        appendLog(code + QLatin1Char('\n'));
        return true;
    }
    if (!writer().insert(code, QString(), QString(), 0, error)) return false;
    ++m_imported;
    return true;
}

void NumberGeneration::afterCommit() {
    removeReplacedPhotos();
}
