#pragma once

#include "core/mrverror.h"
#include "document/mrvnumberedfiles.h"
#include "util/mrvbase_export.h"

#include "core/mrvfilebatch.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

/**
 * The files that one export writes for the pictures of a document.
 *
 * Each picture gets a file of its own, under its name or with a number, and no file of before is
 * replaced. One that holds the same bytes under such a name is used again, so that exporting again
 * adds no files. All are brought to the disk together; they are in their places after commit().
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPictureFiles
{
public:
    /**
     * Writes a picture.
     *
     * @param wanted its path; where that is taken, a number is added as
     *               MRVCoreUtil::NumberedFileName() does. Its folder must exist.
     * @param bytes  the contents of the file.
     * @param error  if given, receives a translated line on failure; untouched on success.
     * @return the path of the file that holds the picture, or will; empty on failure.
     */
    QString write(const QString &wanted, const QByteArray &bytes, MRVErrorSink error = nullptr);

    /**
     * The same, at @p path, in place of the file that may be there; none that this object has
     * written.
     *
     * @param bytes the contents of the file.
     * @param error if given, receives a translated line on failure; untouched on success.
     */
    bool replace(const QString &path, const QByteArray &bytes, MRVErrorSink error = nullptr);

    /** Keeps write() from giving @p path to a picture. */
    void take(const QString &path) { m_taken.insert(path); }

    /**
     * Puts all files in their places.
     *
     * @return those that could not be, by their paths, each with a translated line; empty on
     *         success.
     */
    QMap<QString, MRVError> commit();

    /**
     * The files that write() and replace() have made, in order, without those that were there
     * before and those that failed.
     */
    QStringList created() const { return m_created; }

private:
    MRVNumberedFiles m_numbered;
    MRVFileBatch m_batch;
    QSet<QString> m_taken;
    QStringList m_created;
};
