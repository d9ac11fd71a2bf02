#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QUndoStack>
#include <QVariantMap>

#include "design/templatemodel.h"

class Stage;

// The template as the designer edits it: the working copy skin/sdb.tmp, the stage that shows it
// and the rules of every object operation. Each change writes the working copy and updates the
// stage in the same step, so the two never differ. Every change is one step of the undo stack,
// kept as the working file's bytes before and after: an undo puts the very same bytes back, so
// the save button goes dark again exactly when the template is as it was.
namespace design {

enum class DeleteOutcome { Nothing, Deleted, Hidden, Refused };

class DesignerDocument : public QObject {
    Q_OBJECT
public:
    DesignerDocument(const QString &appPath, const QString &templateFile, Stage &stage,
                     QObject *parent = nullptr);
    ~DesignerDocument() override;

    QString templateFile() const { return m_templateFile; }
    QString workingFile() const { return m_workingFile; }
    QSqlDatabase db() const;

    // Opens the working copy; false when it is missing or unreadable.
    bool open(QString *error = nullptr);
    void closeConnection();
    // Background, then every visible object; returns the visible system objects.
    QStringList loadStage();
    const BgRow &page() const { return m_page; }

    // The digests of the template and of its working copy differ.
    bool isModified() const;

    // Adding at the running insertion point; each returns the new object's name (empty when
    // nothing was added).
    QString addText();
    QString addScrollText();
    QString addImage(const QString &sourceFile);
    QString addAnimation(const QString &sourceFile);
    QPoint insertionPoint() const { return m_insertAt; }

    // The stage's report of a drag or resize. False (the row untouched) for a position that is
    // not a number.
    bool storeGeometry(const QString &name, const QString &x, const QString &y, const QString &w,
                       const QString &h);
    // Moves the object by a whole number of pixels (arrow keys), on the stage as well.
    bool nudge(const QString &name, int dx, int dy);
    void setVisible(const QString &name, bool visible);
    DeleteOutcome deleteObject(const QString &name);
    // Swaps the object with its neighbour in depth; false when it has none that way.
    bool moveDepth(const QString &name, bool up);

    // A dialog's save: the columns of one LuckObj row, then the object's refresh on the stage.
    bool updateObject(const QString &name, const QVariantMap &columns);
    // A panel's write of one LuckPlay row.
    bool updatePlay(const QString &row, const QVariantMap &columns);
    // Turning an image's reflection on doubles its stored height, turning it off halves it.
    bool updateImage(const QString &name, int alpha, bool reflection, bool reflectionChanged);

    bool readObject(const QString &name, ObjRow *row) const;
    PlayRow readPlayRow(const QString &row) const;
    void refreshObject(const QString &name);

    // Copies the working copy over the template and deletes the pictures no longer used.
    bool save();
    // Leaving without saving: the pictures added for the working copy only are deleted.
    void discard();
    // The restore: added pictures go, and the working copy is deleted for the restore dialog.
    void dropWorkingCopy();
    // After the restore dialog: the working copy is read again and the history starts anew.
    bool reopen();

    QStringList addedFiles() const { return m_addedFiles; }
    QStringList removedFiles() const { return m_removedFiles; }
    QUndoStack *undoStack() { return &m_undoStack; }

    // Puts the working file's bytes back and reloads the stage (undo and redo).
    void restoreBytes(const QByteArray &bytes);

Q_SIGNALS:
    // After every change, undo or redo: the window re-tests the save button.
    void changed();
    // The stage was loaded again from the working copy (undo, redo, restore).
    void reloaded();

private:
    template <typename Change>
    bool record(const QString &text, Change &&change);
    QByteArray workingBytes() const;
    void advanceInsertionPoint();
    QString copyPicture(const QString &sourceFile, const QString &prefix);
    QString addFileObject(const QString &sourceFile, const QString &filePrefix,
                          const QString &namePrefix, const QString &type);
    QStringList referencedFiles(QSqlDatabase db) const;
    void deleteUnreferenced(const QStringList &files, const QStringList &referenced);

    QString m_appPath;
    QString m_templateFile;
    QString m_workingFile;
    QString m_connection;
    Stage &m_stage;
    BgRow m_page;
    QPoint m_insertAt{50, 50};
    QStringList m_addedFiles;
    QStringList m_removedFiles;
    QUndoStack m_undoStack;
};

// The system objects that a check box of the designer shows and hides, in the box order.
QStringList switchableSystemObjects();
// A name of 11 characters or more belongs to an object the operator added.
bool isUserObject(const QString &name);

}  // namespace design
