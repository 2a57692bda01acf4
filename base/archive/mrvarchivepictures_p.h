#pragma once

#include "archive/mrvarchivecontent_p.h"
#include "zip/mrvzipwriter.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QTextDocument;

/**
 * The pictures of a document as files of an archive, each once, in order of their appearance.
 *
 * Each is read once for its digest, and again when its place in the archive is reached; in between,
 * what the document does not hold itself is not in memory.
 */
class MRVArchivePictures
{
public:
    /** What a picture does that a loader has and cannot read any more. */
    enum Lost { Fail, LeaveOut };

    /**
     * Finds those that the formats of @p fragment show; their raw data is moved out of them. GUI
     * thread only; what follows may be called in another one, when the document is gone.
     */
    MRVArchivePictures(const QTextDocument &document, MRVDocumentFragment *fragment);

    /**
     * Reads each. It may be called again, when nothing is written from the files() before.
     *
     * @return false where one is lost, and where the raw data is too large.
     */
    bool read(Lost lost, QVector<MRVArchivedPicture> *pictures);
    /** To be written; the pictures that read() gives name them. */
    const std::vector<MRVZipEntry> &files() const { return m_files; }
    /** The names of those without bytes, except those on other machines. */
    QStringList missing() const { return m_missing; }
    /** The name of one that is lost, or could not be read again while it was written; or empty. */
    QString failed() const { return *m_failed; }
    /**
     * After the next read(), the failed() one is written from memory, and so cannot change again.
     *
     * @return false where there is none, or it was so already.
     */
    bool keepFailed();

private:
    struct Source
    {
        QString name;
        int format = -1; // of raw data
        std::function<QByteArray()> bytes; // in any thread
        bool isOfLoader = false;
        bool isKept = false; // in memory, from read() on
    };

    void addShown(const QTextDocument &document, const QString &name);
    QString add(const QString &name, const QByteArray &bytes,
                const std::function<QByteArray()> &content);

    QVector<Source> m_sources;
    std::vector<MRVZipEntry> m_files;
    QHash<QByteArray, QString> m_paths; // by digest
    QStringList m_missing;
    std::shared_ptr<QString> m_failed;
};
