#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QVector>

#include <memory>

/**
 * A file in a zip archive.
 *
 * @since 1.0
 */
struct MRVZipFile
{
    QString path; ///< relative, with "/" between folders; it leads nowhere else
    qint64 size = 0; ///< in bytes, as the archive says
};

/**
 * Reads zip archives that anybody may have made.
 *
 * An archive is refused as a whole where its files overlap or claim more than their bytes can hold,
 * where two have one name, where a name leads out of the folder that the archive would be unpacked
 * to, and where there are more than MRVInputLimits::ZipFiles. Memory grows with what was read, not
 * with what the archive says. Folders have no entry here. Several threads may read from one at the
 * same time.
 *
 * @code
 * const MRVZipReader archive(QStringLiteral("book.zip"));
 * MRVError error = archive.error();
 * const QByteArray text =
 *     archive.read(archive.indexOf(QStringLiteral("text.txt")), 1 << 20, &error);
 * if (text.isNull()) {
 *     qWarning() << error.text;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVZipReader
{
    Q_DECLARE_TR_FUNCTIONS(MRVZipReader)

public:
    /** Opens the archive in @p bytes, which it shares. */
    explicit MRVZipReader(const QByteArray &bytes);
    /**
     * Opens the archive in the regular file @p path, which stays open: what is read later is of the
     * same file, even if another one has taken its place.
     */
    explicit MRVZipReader(const QString &path);
    ~MRVZipReader();
    MRVZipReader(const MRVZipReader &) = delete;
    MRVZipReader &operator=(const MRVZipReader &) = delete;

    /** Whether it is an archive that can be read; else it has no files. */
    bool isOpen() const { return !m_error; }
    /** Why it is none, as a translated end of a sentence ("it is damaged"); none if isOpen(). */
    const MRVError &error() const { return m_error; }

    /** In the order of the archive. */
    const QVector<MRVZipFile> &files() const { return m_files; }
    /** The place in files() of the file with that path, in this case; -1 where it is missing. */
    int indexOf(const QString &path) const { return m_places.value(path, -1); }

    /**
     * The bytes of a file, unpacked, as its checksum says that they were.
     *
     * @param index a place in files(); any other number gives null and an error.
     * @param most  bytes that it may have.
     * @param error if given, receives a translated end of a sentence on failure; untouched on
     *              success.
     * @return null on failure; empty for an empty file.
     */
    QByteArray read(int index, qint64 most, MRVErrorSink error = nullptr) const;
    /**
     * Whether read() would succeed with the same @p index and @p most; takes no memory for it.
     *
     * @param error as for read().
     */
    bool check(int index, qint64 most, MRVErrorSink error = nullptr) const;

private:
    friend class MRVZipAccess;

    static MRVError damaged();
    void open(void *source);
    MRVError listFiles(qint64 bytes);
    bool readAll(int index, qint64 most, QByteArray *bytes, MRVErrorSink error) const;

    struct Archive;

    std::unique_ptr<Archive> m_archive;
    MRVError m_error;
    QVector<MRVZipFile> m_files;
    QVector<quint64> m_numbers; // of the files in the archive
    QHash<QString, int> m_places;
};
