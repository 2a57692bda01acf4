#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QMultiHash>
#include <QSet>
#include <QString>
#include <QStringList>

/**
 * The files that one export writes for the pictures of a document.
 *
 * Each picture gets a file of its own, under its name or with a number, and no file of before is
 * replaced. One that holds the same bytes under such a name is used again, so that exporting again
 * adds no files.
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
     * @return the path of the file that holds the picture; empty on failure.
     */
    QString write(const QString &wanted, const QByteArray &bytes, QString *error = nullptr);

    /** Keeps write() from giving @p path to a picture. */
    void take(const QString &path) { m_taken.insert(path); }

    /** The files that write() has made, in order, without those that were there before. */
    QStringList created() const { return m_created; }

private:
    /** What is known of the numbers of one name. */
    struct Numbered
    {
        int next = 0; // the first one that was not looked at
        QMultiHash<QByteArray, QString> held; // files of before, by a digest of their bytes
    };

    QHash<QString, Numbered> m_numbered; // by the path that was wanted
    QSet<QString> m_taken;
    QStringList m_created;
};
