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
 * was typed in the last seconds.
 *
 * The copy is an MRVDocumentArchive in a folder of the application. It is written when typing
 * pauses, or goes on for long, whole or not at all, and goes when the document is saved or closed.
 * Programs that share the folder leave each other's copies alone. GUI thread only.
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
     * go on, it is written after ten times as long. A copy that takes long is written less often,
     * so that it takes a tenth of the time at most.
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
     * Writes the copy now where something has changed since it was written.
     *
     * @return false where it cannot be written; failed() says why.
     */
    bool keep();

    /** The copies of programs that have ended without saving, the latest first. */
    static QVector<MRVRecoveredFile> leftBehind(const QString &folder);
    /** Removes one of leftBehind(). */
    static void discard(const MRVRecoveredFile &file);

Q_SIGNALS:
    /** The copy could not be written; it will be tried again after the next change. */
    void failed(const MRVError &error);

private:
    void followChange();
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
    bool m_isChanged = false;
};
