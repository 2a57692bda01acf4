#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTextDocument>
#include <QTimer>
#include <QVector>

#include <functional>
#include <memory>

class MRVDocumentArchive;
class QLockFile;

/**
 * A copy of a document that was left behind by a program that did not end as it should.
 *
 * @since 1.0
 */
struct MRVRecoveredFile
{
    QString copy; ///< an MRVDocumentArchive
    QString path; ///< of the document's own file; empty where it was never saved
    QDateTime time; ///< when the copy was written
};

/**
 * Keeps a copy of a document that is being edited, so that a crash, or kill -9, loses at most what
 * was typed in the last seconds: in the last 20 while typing goes on, and else since the last pause
 * of 2.
 *
 * The copy is an MRVDocumentArchive in a folder of the application. It is written when typing
 * pauses, or goes on for long, whole or not at all, and goes when the document is saved or closed.
 * A picture that cannot be read is left out of it. Programs that share the folder leave each
 * other's copies alone. GUI thread only.
 *
 * The document is taken in the GUI thread, which takes about a quarter of a second for a million
 * words; a thread of this class's own compresses and writes it, one copy at a time, in about as
 * much. The pictures are read there, too.
 *
 * @code
 * // At the start: what did the last run leave behind?
 * for (const MRVRecoveredFile &file : MRVRecovery::leftBehind(MRVRecovery::defaultFolder())) {
 *     qDebug() << file.copy << "is a copy of" << file.path;
 * }
 * // For each document that is open:
 * MRVRecovery recovery(MRVRecovery::defaultFolder());
 * recovery.follow(&document, QStringLiteral("/home/ann/novel.mrvdoc"));
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVRecovery : public QObject
{
    Q_OBJECT

public:
    /**
     * Follows no document yet.
     *
     * @param folder for the copies; it is made when the first one is written.
     */
    explicit MRVRecovery(const QString &folder, QObject *parent = nullptr);
    /** Removes the copy: a document that is closed on purpose needs none. */
    ~MRVRecovery() override;

    /** "Recovery" in the application's local data folder; QStandardPaths::AppLocalDataLocation. */
    static QString defaultFolder();

    /**
     * How many seconds without a change pass before the copy is written: 2 at first. While changes
     * go on, it is written after ten times as long, or after 20 seconds, or @p seconds if that is
     * longer. The pause of a large document is ten times as long as taking it keeps the GUI thread,
     * but no longer than that.
     */
    void setInterval(int seconds);
    /**
     * What copies hold besides the document, metadata and properties: @p archive is called for each
     * and returns it.
     */
    void setArchive(const std::function<MRVDocumentArchive()> &archive) { m_archive = archive; }

    /**
     * Follows another document, and removes the copy of the one before. Where it is modified
     * already, it gets its copy as after a change.
     *
     * @param document null for none. It may go earlier: the copy then stays until this goes.
     * @param path     its own file, which a program that runs in another folder finds, too; empty
     *                 where it was never saved.
     */
    void follow(QTextDocument *document, const QString &path);
    /** The document was saved as @p path: the copy goes, and the next one is of that file. */
    void saved(const QString &path);
    /**
     * Writes the copy now where something has changed since it was written, and waits for it.
     *
     * @return false where it cannot be written; failed() says why.
     */
    bool keep();

    /** The copies of programs that have ended without saving, the latest first. */
    static QVector<MRVRecoveredFile> leftBehind(const QString &folder);
    /** Removes one of leftBehind(). */
    static void discard(const MRVRecoveredFile &file);

Q_SIGNALS:
    /** A copy could not be written; it will be tried again after the next change. */
    void failed(const MRVError &error);

private:
    class Copying;

    void followChange();
    void keepSoon();
    bool begin();
    bool end();
    void finish();
    void remove();
    bool lock();

    const QString m_folder;
    QPointer<QTextDocument> m_document;
    QString m_base; // the path of the copy's files without their suffixes; empty before the first
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
    std::function<MRVDocumentArchive()> m_archive;
    QTimer m_pause; // runs from the last change
    QTimer m_limit; // runs from the first one
    int m_interval = 2000; // in milliseconds
    bool m_isChanged = false; // since the copy that was begun last
    bool m_isDue = false; // when the copy that is being written is done
    std::unique_ptr<Copying> m_copying; // null where no thread runs
};
