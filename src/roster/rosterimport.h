#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include "roster/numbergen.h"
#include "roster/rosterwriter.h"
#include "roster/textimport.h"
#include "roster/workbook.h"

// A bulk change of the roster (an import or the number generator) worked through item by item on
// the event loop, in slices short enough that the window keeps answering. Everything happens in
// one transaction: a cancel or a failure leaves the roster exactly as it was before the start,
// and files are only put in place (or old photos removed) once the rows are committed. A replace
// that writes no row leaves the roster as it was.
class RosterImport : public QObject {
    Q_OBJECT
public:
    enum class Outcome { Running, Finished, Cancelled, Failed };

    explicit RosterImport(QObject *parent = nullptr) : QObject(parent) {}
    ~RosterImport() override;

    // Opens the transaction and schedules the first slice; false with a message when the
    // transaction cannot be opened.
    bool start(QString *error);
    // Stops at the next item and rolls back (also from inside a paused state).
    void cancel();
    // While a question is shown, its event loop must not run more slices.
    void pause() { m_paused = true; }
    void resume();
    bool isRunning() const { return m_outcome == Outcome::Running && m_started; }

    // Runs the whole job on the current event loop and returns how it ended.
    Outcome runToEnd();

    Outcome outcome() const { return m_outcome; }
    QString errorText() const { return m_errorText; }
    qint64 done() const { return m_index; }
    qint64 total() const { return itemCount(); }
    qint64 imported() const { return m_imported; }
    qint64 duplicates() const { return m_duplicates; }
    // Rows passed over because their name is blank after trimming.
    qint64 blankNames() const { return m_blanks; }
    // Every row passed over that is not a duplicate: blank names, and unreadable lines of text.
    virtual qint64 skipped() const { return m_blanks; }
    const QString &log() const { return m_log; }

Q_SIGNALS:
    void progress(qint64 done, qint64 total);
    void finished(RosterImport::Outcome outcome);

protected:
    virtual qint64 itemCount() const = 0;
    // A last check before the transaction opens; false with a message refuses the job.
    virtual bool canStart(QString *) { return true; }
    virtual bool replaceAtStart() const { return false; }
    virtual bool processItem(qint64 index, QString *error) = 0;
    virtual void afterCommit() {}
    virtual void afterRollback() {}

    void appendLog(const QString &text) { m_log += text; }
    // Counts and logs a row whose name is blank: no participant is ever nameless.
    void skipBlankName();
    // After a replace: the photos no row names any more.
    void removeReplacedPhotos();
    RosterWriter &writer() { return m_writer; }

    qint64 m_imported = 0;
    qint64 m_duplicates = 0;
    qint64 m_blanks = 0;

private:
    void runSlice();
    void finish(Outcome outcome, const QString &error = QString());

    RosterWriter m_writer;
    QString m_log;
    QString m_errorText;
    qint64 m_index = 0;
    Outcome m_outcome = Outcome::Running;
    bool m_started = false;
    bool m_paused = false;
    bool m_scheduled = false;
};

// Workbook rows: the ticked columns make the name, the others the remark, each followed by the
// merge text.
class ExcelImport : public RosterImport {
    Q_OBJECT
public:
    ExcelImport(const QList<workbook::Row> &rows, const QList<bool> &nameColumns,
                const QString &joiner, bool titleRow, bool replace, QObject *parent = nullptr);

    static void mergeRow(const workbook::Row &row, const QList<bool> &nameColumns,
                         const QString &joiner, QString *name, QString *part);

protected:
    qint64 itemCount() const override { return m_rows.size(); }
    bool replaceAtStart() const override { return m_replace; }
    bool processItem(qint64 index, QString *error) override;
    void afterCommit() override;

private:
    QList<workbook::Row> m_rows;
    QList<bool> m_nameColumns;
    QString m_joiner;
    bool m_titleRow;
    bool m_replace;
};

// Text lines: name, remark, photo path and distinction number split by the separator.
class TxtImport : public RosterImport {
    Q_OBJECT
public:
    TxtImport(const QStringList &lines, const QString &separator, bool replace,
              QObject *parent = nullptr);
    // Reads and decodes the whole file into lines; false with a message for a file that is not
    // readable text.
    static bool readLines(const QString &path, QStringList *lines, QString *error);
    // Lines passed over for a control or replacement character (each logged with its number).
    qint64 unreadableLines() const { return m_unreadable; }
    qint64 skipped() const override { return m_blanks + m_unreadable; }

protected:
    qint64 itemCount() const override { return m_lines.size(); }
    bool replaceAtStart() const override { return m_replace; }
    bool processItem(qint64 index, QString *error) override;
    void afterCommit() override;

private:
    QStringList m_lines;
    QString m_separator;
    bool m_replace;
    textimport::TxtLineParser m_parser;
    qint64 m_unreadable = 0;
};

// Picture files: one participant each, the picture copied or shrunk to Photos/U<ID>.<ext>.
// New pictures wait in a staging folder until the rows are committed.
class PhotoImport : public RosterImport {
    Q_OBJECT
public:
    PhotoImport(const QStringList &files, bool compress, int sliderValue, bool replace,
                QObject *parent = nullptr);
    ~PhotoImport() override;

protected:
    qint64 itemCount() const override { return m_files.size(); }
    bool replaceAtStart() const override { return m_replace; }
    bool processItem(qint64 index, QString *error) override;
    void afterCommit() override;
    void afterRollback() override;

private:
    QString stagingFolder();
    QStringList m_files;
    bool m_compress;
    int m_sliderValue;
    bool m_replace;
    QString m_staging;
    QStringList m_staged;
};

// The number generator: the whole roster replaced by codes.
class NumberGeneration : public RosterImport {
    Q_OBJECT
public:
    // The options must give a valid range (numbergen::range).
    explicit NumberGeneration(const numbergen::Options &options, QObject *parent = nullptr);
    qint64 excluded() const { return m_duplicates; }

protected:
    qint64 itemCount() const override { return qint64(m_end) - m_start + 1; }
    bool canStart(QString *error) override;
    bool replaceAtStart() const override { return true; }
    bool processItem(qint64 index, QString *error) override;
    void afterCommit() override;

private:
    numbergen::Options m_options;
    int m_start = 0;
    int m_end = 0;
    QStringList m_mask;
};
