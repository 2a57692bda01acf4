#pragma once

#include "archive/mrvarchivecontent_p.h"
#include "zip/mrvzipwriter.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <vector>

class QTextDocument;

/**
 * The pictures of a document as files of an archive, each once, in order of their appearance.
 *
 * Each is read once here, for its digest, and again when its place in the archive is reached; in
 * between, what the document does not hold itself is not in memory.
 */
class MRVArchivePictures
{
public:
    /**
     * Takes those that the formats of @p content show; their raw data is moved out of them.
     * @p document must outlive the files.
     */
    MRVArchivePictures(const QTextDocument &document, MRVArchiveContent *content);

    /** To be written; the pictures of the content name them. */
    const std::vector<MRVZipEntry> &files() const { return m_files; }
    /** How many bytes the files with raw data have. */
    qint64 rawBytes() const { return m_rawBytes; }
    /** The names of those without bytes, but for those on other machines. */
    QStringList missing() const { return m_missing; }
    /**
     * The name of one that a loader cannot read any more, or that could not be read again while it
     * was written; else empty.
     */
    QString failed() const { return *m_failed; }

private:
    void addShown(const QTextDocument &document, const QString &name);
    void addRawData(int format);
    QString add(const QString &name, const QByteArray &bytes,
                const std::function<QByteArray()> &content);

    MRVArchiveContent &m_content;
    std::vector<MRVZipEntry> m_files;
    QHash<QByteArray, QString> m_paths; // by digest
    QSet<QString> m_rawFiles;
    qint64 m_rawBytes = 0;
    QStringList m_missing;
    std::shared_ptr<QString> m_failed;
};
