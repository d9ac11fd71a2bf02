#include "design/designerdocument.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSqlQuery>
#include <QUndoCommand>

#include "core/helpers.h"
#include "core/logging.h"
#include "core/store.h"
#include "core/ui.h"
#include "design/payloads.h"
#include "design/stageload.h"
#include "stage/protocol.h"
#include "stage/stage.h"

namespace design {

namespace {

const QString kConnection = QStringLiteral("quellio.designer");
const QString kPictureFolder = QStringLiteral("skin/sPhoto/");

QByteArray fileDigest(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QCryptographicHash hash(QCryptographicHash::Md5);
    hash.addData(&file);
    return hash.result();
}

bool isNumber(const QString &text) {
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

// One undo step: the working file before and after a change.
class SnapshotCommand : public QUndoCommand {
public:
    SnapshotCommand(DesignerDocument *document, const QString &text, QByteArray before,
                    QByteArray after)
        : QUndoCommand(text),
          m_document(document),
          m_before(std::move(before)),
          m_after(std::move(after)) {}
    void undo() override { m_document->restoreBytes(m_before); }
    void redo() override {
        // The change itself has already been made when the step is pushed.
        if (m_firstRedo) {
            m_firstRedo = false;
            return;
        }
        m_document->restoreBytes(m_after);
    }

private:
    DesignerDocument *m_document;
    QByteArray m_before;
    QByteArray m_after;
    bool m_firstRedo = true;
};

}  // namespace

QStringList switchableSystemObjects() {
    return {sysobj::img_jpimgs, sysobj::txt_jpname, sysobj::txt_jxname, sysobj::txt_jpinfo,
            sysobj::scr_luckls, sysobj::txt_zbt,    sysobj::txt_fbt};
}

bool isUserObject(const QString &name) {
    return name.trimmed().size() >= 11;
}

DesignerDocument::DesignerDocument(const QString &appPath, const QString &templateFile,
                                   Stage &stage, QObject *parent)
    : QObject(parent),
      m_appPath(appPath),
      m_templateFile(templateFile),
      m_workingFile(appPath + QStringLiteral("skin/sdb.tmp")),
      m_connection(kConnection),
      m_stage(stage) {
    // Snapshots are the size of a template (tens of KB); a long evening of edits stays small.
    m_undoStack.setUndoLimit(300);
}

DesignerDocument::~DesignerDocument() {
    closeConnection();
}

QSqlDatabase DesignerDocument::db() const {
    return QSqlDatabase::database(m_connection, false);
}

bool DesignerDocument::open(QString *error) {
    closeConnection();
    if (!QFile::exists(m_workingFile)) {
        if (error) *error = QStringLiteral("working copy missing");
        return false;
    }
    return store::openTemplate(m_workingFile, m_connection, error);
}

void DesignerDocument::closeConnection() {
    store::close(m_connection);
}

QStringList DesignerDocument::loadStage() {
    const PayloadContext context = contextFor(Reader::Designer);
    m_page = readBg(db());
    sendBackground(m_stage, m_page, context);
    const QList<ObjRow> objects = readVisibleObjects(db());
    sendObjects(m_stage, objects, context);
    QStringList shownSystem;
    for (const ObjRow &row : objects) {
        if (!isUserObject(row.ObjName)) shownSystem << row.ObjName;
    }
    return shownSystem;
}

bool DesignerDocument::isModified() const {
    return fileDigest(m_templateFile) != fileDigest(m_workingFile);
}

QByteArray DesignerDocument::workingBytes() const {
    QFile file(m_workingFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <typename Change>
bool DesignerDocument::record(const QString &text, Change &&change) {
    const QByteArray before = workingBytes();
    const bool ok = change();
    const QByteArray after = workingBytes();
    if (ok && before != after) m_undoStack.push(new SnapshotCommand(this, text, before, after));
    Q_EMIT changed();
    return ok;
}

void DesignerDocument::restoreBytes(const QByteArray &bytes) {
    closeConnection();
    QSaveFile file(m_workingFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        qCWarning(lcDesign) << "cannot write the working copy back" << m_workingFile;
    open();
    loadStage();
    Q_EMIT reloaded();
    Q_EMIT changed();
}

void DesignerDocument::advanceInsertionPoint() {
    m_insertAt += QPoint(20, 20);
    if (m_insertAt.x() > m_page.BgW / 2) m_insertAt.setX(50);
    if (m_insertAt.y() > m_page.BgH / 2) m_insertAt.setY(50);
}

QString DesignerDocument::addText() {
    const QString name = QStringLiteral("txt_") + makeRandomName(16);
    const int depth =
        qint16(store::getNextID(QStringLiteral("LuckObj"), QStringLiteral("ObjDepth"), db()));
    const QPoint at = m_insertAt;
    const bool ok = record(tr("添加文字"), [&] {
        m_stage.setVariable(proto::vbAddTxt, addTextPayload(name, depth, at.x(), at.y()));
        return store::exec(
            db(),
            QStringLiteral("INSERT INTO LuckObj (ObjName,ObjType,ObjDepth,ObjX,ObjY,ObjAlpha,"
                           "bgColor,bgAlpha,borderNum,borderType,fTxt,fFont,fColor,fSize,fBold,"
                           "fItalic,fUnderline,isVisible) VALUES (?,'vbAddTxt',?,?,?,100,"
                           "'0xFFFFFF',50,5,'round',?,'宋体','0x000000',16,'true','false',"
                           "'false',1)"),
            {name, depth, at.x(), at.y(), newTextContent()});
    });
    if (!ok) return QString();
    m_stage.setVariable(proto::selMcByName, selectObjectPayload(name));
    advanceInsertionPoint();
    return name;
}

QString DesignerDocument::addScrollText() {
    const QString name = QStringLiteral("scr_") + makeRandomName(16);
    const int depth =
        qint16(store::getNextID(QStringLiteral("LuckObj"), QStringLiteral("ObjDepth"), db()));
    const QPoint at = m_insertAt;
    const bool ok = record(tr("添加滚动文字"), [&] {
        const bool stored = store::exec(
            db(),
            QStringLiteral("INSERT INTO LuckObj (ObjName,ObjType,ObjDepth,ObjDirection,ObjX,ObjY,"
                           "ObjW,ObjH,bgColor,bgAlpha,borderType,borderNum,fTxt,ObjAlpha,fFont,"
                           "fColor,fSize,fBold,fItalic,fUnderline,SrcV,isVisible) VALUES (?,"
                           "'vbAddStxt',?,0,?,?,280,20,'0xFFFFFF',50,'round',5,?,100,'宋体',"
                           "'0x000000',14,'false','false','false',1,1)"),
            {name, depth, at.x(), at.y(), newScrollTextContent()});
        if (stored)
            m_stage.setVariable(proto::vbAddStxt,
                                addScrollTextPayload(name, depth, at.x(), at.y()));
        return stored;
    });
    if (!ok) return QString();
    advanceInsertionPoint();
    return name;
}

QString DesignerDocument::copyPicture(const QString &sourceFile, const QString &prefix) {
    QDir().mkpath(m_appPath + kPictureFolder);
    const QString relative = kPictureFolder + prefix + makeRandomName(8) + getExt(sourceFile);
    const QString target = m_appPath + relative;
    QFile::remove(target);
    if (!QFile::copy(sourceFile, target)) {
        qCWarning(lcDesign) << "cannot copy" << sourceFile << "to" << target;
        return QString();
    }
    m_addedFiles << target;
    return relative;
}

QString DesignerDocument::addFileObject(const QString &sourceFile, const QString &filePrefix,
                                        const QString &namePrefix, const QString &type) {
    if (sourceFile.trimmed().isEmpty()) return QString();
    const QString relative = copyPicture(sourceFile, filePrefix);
    if (relative.isEmpty()) return QString();
    const QString name = namePrefix + makeRandomName(16);
    const int depth =
        qint16(store::getNextID(QStringLiteral("LuckObj"), QStringLiteral("ObjDepth"), db()));
    const QPoint at = m_insertAt;
    const bool image = type == proto::vbAddImg;
    const bool ok = record(image ? tr("添加图片") : tr("添加动画"), [&] {
        const bool stored = store::exec(
            db(),
            QStringLiteral("INSERT INTO LuckObj (ObjName,ObjType,ObjDepth,ObjX,ObjY,ObjW,ObjH,"
                           "ObjAlpha,isImgFilter,ImgPath,isVisible) VALUES (?,?,?,?,?,0,0,100,"
                           "'false',?,1)"),
            {name, type, depth, at.x(), at.y(), relative});
        const QString absolute = m_appPath + relative;
        if (stored)
            m_stage.setVariable(type,
                                image ? addImagePayload(name, depth, at.x(), at.y(), absolute)
                                      : addAnimationPayload(name, depth, at.x(), at.y(), absolute));
        return stored;
    });
    if (!ok) return QString();
    m_stage.setVariable(proto::selMcByName, selectObjectPayload(name));
    advanceInsertionPoint();
    return name;
}

QString DesignerDocument::addImage(const QString &sourceFile) {
    return addFileObject(sourceFile, QStringLiteral("img"), QStringLiteral("img_"),
                         proto::vbAddImg);
}

QString DesignerDocument::addAnimation(const QString &sourceFile) {
    return addFileObject(sourceFile, QStringLiteral("swf"), QStringLiteral("swf_"),
                         proto::vbAddSwf);
}

bool DesignerDocument::storeGeometry(const QString &name, const QString &x, const QString &y,
                                     const QString &w, const QString &h) {
    const QString kind = objectKind(name.trimmed());
    if (!isNumber(x) || !isNumber(y)) {
        ui().message(tr("坐标数据错误,非数字类型"), MsgStyle::Critical, titles::warning);
        return false;
    }
    const QString objName = name.trimmed();
    return record(tr("移动"), [&] {
        if (kind == QLatin1String("txt"))
            return store::exec(db(),
                               QStringLiteral("UPDATE LuckObj SET ObjX=?, ObjY=? WHERE ObjName=?"),
                               {x.trimmed().toDouble(), y.trimmed().toDouble(), objName});
        if (kind == QLatin1String("img") || kind == QLatin1String("swf") ||
            kind == QLatin1String("scr") || kind == QLatin1String("ssm"))
            return store::exec(
                db(),
                QStringLiteral("UPDATE LuckObj SET ObjX=?, ObjY=?, ObjW=?, ObjH=? WHERE ObjName=?"),
                {x.trimmed().toDouble(), y.trimmed().toDouble(),
                 qint16(qRound(w.trimmed().toDouble())), qint16(qRound(h.trimmed().toDouble())),
                 objName});
        return true;
    });
}

bool DesignerDocument::nudge(const QString &name, int dx, int dy) {
    ObjRow row;
    if (name.isEmpty() || !readObject(name, &row)) return false;
    const bool ok = record(tr("移动"), [&] {
        return store::exec(db(),
                           QStringLiteral("UPDATE LuckObj SET ObjX=?, ObjY=? WHERE ObjName=?"),
                           {row.ObjX + dx, row.ObjY + dy, name});
    });
    if (ok) refreshObject(name);
    return ok;
}

void DesignerDocument::setVisible(const QString &name, bool visible) {
    record(visible ? tr("显示") : tr("隐藏"), [&] {
        const bool ok =
            store::exec(db(), QStringLiteral("UPDATE LuckObj SET isVisible=? WHERE ObjName=?"),
                        {visible ? 1 : 0, name});
        if (visible)
            refreshObject(name);
        else
            m_stage.setVariable(proto::delObj, name);
        return ok;
    });
}

DeleteOutcome DesignerDocument::deleteObject(const QString &name) {
    const QString objName = name.trimmed();
    if (objName.isEmpty()) return DeleteOutcome::Nothing;
    if (!isUserObject(objName)) {
        if (!switchableSystemObjects().contains(objName)) {
            ui().message(tr("系统变量不能删除!"), MsgStyle::Critical, titles::warning);
            return DeleteOutcome::Refused;
        }
        setVisible(objName, false);
        return DeleteOutcome::Hidden;
    }
    const QString kind = objectKind(objName);
    if (kind == QLatin1String("img") || kind == QLatin1String("swf")) {
        const QString path = normalizeSlashes(
            store::scalar(db(), QStringLiteral("SELECT ImgPath FROM LuckObj WHERE ObjName=?"),
                          {objName})
                .toString());
        if (!path.isEmpty() && fileExists(m_appPath + path)) m_removedFiles << m_appPath + path;
    }
    record(tr("删除"), [&] {
        m_stage.setVariable(proto::delObj, objName);
        return store::exec(db(), QStringLiteral("DELETE FROM LuckObj WHERE ObjName=?"), {objName});
    });
    return DeleteOutcome::Deleted;
}

bool DesignerDocument::moveDepth(const QString &name, bool up) {
    const QString objName = name.trimmed();
    if (objName.isEmpty()) return false;
    const int depth =
        store::scalar(db(), QStringLiteral("SELECT ObjDepth FROM LuckObj WHERE ObjName=?"),
                      {objName})
            .toInt();
    QSqlQuery query(db());
    query.prepare(up ? QStringLiteral("SELECT ObjName, ObjDepth FROM LuckObj WHERE ObjDepth>? "
                                      "ORDER BY ObjDepth ASC LIMIT 1")
                     : QStringLiteral("SELECT ObjName, ObjDepth FROM LuckObj WHERE ObjDepth<? "
                                      "ORDER BY ObjDepth DESC LIMIT 1"));
    query.addBindValue(depth);
    if (!query.exec() || !query.next()) return false;
    const QString neighbour = query.value(0).toString();
    const int neighbourDepth = query.value(1).toInt();
    query.finish();
    return record(up ? tr("上移一层") : tr("下移一层"), [&] {
        const QString sql = QStringLiteral("UPDATE LuckObj SET ObjDepth=? WHERE ObjName=?");
        const bool ok = store::exec(db(), sql, {neighbourDepth, objName}) &&
                        store::exec(db(), sql, {depth, neighbour});
        if (ok) m_stage.setVariable(proto::resetAsDepth, swapDepthPayload(objName, neighbour));
        return ok;
    });
}

namespace {

bool updateRow(QSqlDatabase db, const QString &table, const QString &name,
               const QVariantMap &columns) {
    QStringList sets;
    QVariantList values;
    for (auto it = columns.cbegin(); it != columns.cend(); ++it) {
        if (!store::isIdentifier(it.key())) return false;
        sets << it.key() + QStringLiteral("=?");
        values << it.value();
    }
    if (sets.isEmpty()) return true;
    values << name;
    return store::exec(db,
                       QStringLiteral("UPDATE %1 SET %2 WHERE ObjName=?")
                           .arg(table, sets.join(QStringLiteral(", "))),
                       values);
}

}  // namespace

bool DesignerDocument::updateObject(const QString &name, const QVariantMap &columns) {
    const bool ok = record(
        tr("编辑"), [&] { return updateRow(db(), QStringLiteral("LuckObj"), name, columns); });
    if (ok) refreshObject(name);
    return ok;
}

bool DesignerDocument::updatePlay(const QString &row, const QVariantMap &columns) {
    return record(tr("样式"),
                  [&] { return updateRow(db(), QStringLiteral("LuckPlay"), row, columns); });
}

bool DesignerDocument::updateImage(const QString &name, int alpha, bool reflection,
                                   bool reflectionChanged) {
    ObjRow row;
    if (!readObject(name, &row)) return false;
    const int factor = reflectionChanged ? 2 : 1;
    const int height = reflection ? row.ObjH * factor : qRound(row.ObjH / double(factor));
    return updateObject(
        name, {{QStringLiteral("ObjAlpha"), alpha},
               {QStringLiteral("isImgFilter"), reflection ? proto::trueText : proto::falseText},
               {QStringLiteral("ObjH"), height}});
}

bool DesignerDocument::readObject(const QString &name, ObjRow *row) const {
    return readVisibleObject(db(), name, row);
}

PlayRow DesignerDocument::readPlayRow(const QString &row) const {
    return readPlay(db(), row);
}

void DesignerDocument::refreshObject(const QString &name) {
    design::refreshObject(m_stage, db(), name, contextFor(Reader::Designer));
}

QStringList DesignerDocument::referencedFiles(QSqlDatabase database) const {
    QStringList files;
    QSqlQuery query(database);
    if (!query.exec(QStringLiteral("SELECT ImgPath FROM LuckObj WHERE ImgPath IS NOT NULL")))
        return files;
    while (query.next()) {
        const QString path = normalizeSlashes(query.value(0).toString());
        if (!path.isEmpty()) files << QDir::cleanPath(m_appPath + path);
    }
    return files;
}

// Only pictures the designer put under skin/sPhoto/ are deleted, and none that a row still names
// (an undone delete brings a picture back into use).
void DesignerDocument::deleteUnreferenced(const QStringList &files, const QStringList &referenced) {
    for (const QString &file : files) {
        const QString clean = QDir::cleanPath(file);
        if (referenced.contains(clean) || !getFileName(clean).contains(QLatin1Char('.'))) continue;
        const QString folder = m_appPath + kPictureFolder;
        if (!clean.startsWith(folder) ||
            ownedFile(m_appPath, kPictureFolder, clean.mid(m_appPath.size())).isEmpty())
            continue;
        QFile::remove(clean);
    }
}

bool DesignerDocument::save() {
    closeConnection();
    QFile::remove(m_templateFile);
    const bool copied = QFile::copy(m_workingFile, m_templateFile);
    if (!copied) qCWarning(lcDesign) << "cannot save" << m_templateFile;
    open();
    deleteUnreferenced(m_removedFiles, referencedFiles(db()));
    m_removedFiles.clear();
    m_addedFiles.clear();
    Q_EMIT changed();
    return copied;
}

void DesignerDocument::discard() {
    const QString connection = QStringLiteral("quellio.designer.template");
    QStringList referenced;
    if (store::openTemplate(m_templateFile, connection, nullptr))
        referenced = referencedFiles(QSqlDatabase::database(connection, false));
    store::close(connection);
    deleteUnreferenced(m_addedFiles, referenced);
    m_addedFiles.clear();
    m_removedFiles.clear();
}

void DesignerDocument::dropWorkingCopy() {
    closeConnection();
    discard();
    QFile::remove(m_workingFile);
}

bool DesignerDocument::reopen() {
    m_undoStack.clear();
    if (!open()) return false;
    loadStage();
    Q_EMIT reloaded();
    Q_EMIT changed();
    return true;
}

}  // namespace design
