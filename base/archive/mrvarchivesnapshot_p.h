#pragma once

#include "archive/mrvarchivecontent_p.h"
#include "archive/mrvarchivepictures_p.h"
#include "core/mrverror.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

class MRVProgressMeter;
class QIODevice;
class QTextDocument;

/** What an archive holds beside a document. */
struct MRVArchiveExtras
{
    QVector<MRVMetadataEntry> metadata;
    QMap<QString, QByteArray> properties;
    QDateTime modified;
};

/**
 * A document as it was when this was made, as what an archive holds.
 *
 * It is made in the GUI thread, without the pictures' bytes, and may be written in another one:
 * nothing in it belongs to the document, formats are bytes already.
 */
class MRVArchiveSnapshot
{
    Q_DECLARE_TR_FUNCTIONS(MRVDocumentArchive)

public:
    MRVArchiveSnapshot(const QTextDocument &document, const MRVArchiveExtras &extras);

    /** What becomes of the archive where a loader cannot read a picture any more; at first Fail. */
    void setLostPictures(MRVArchivePictures::Lost lost) { m_lost = lost; }
    /** Of libdeflate; at first one beyond which archives hardly become smaller. */
    void setLevel(int level) { m_level = level; }

    /** Writes an archive, as MRVDocumentArchive::write() does. */
    bool write(QIODevice *device, MRVErrorSink error, MRVProgressMeter *meter = nullptr);
    /**
     * Whether writing once more may succeed where it has failed: a picture has changed between its
     * two readings. The next time, one is enough for it.
     */
    bool canTryAgain() { return m_pictures.keepFailed(); }
    /** The names of pictures without bytes, when it was written. */
    QStringList missingPictures() const { return m_pictures.missing(); }

private:
    MRVArchiveContent m_content; // without its beginning
    MRVArchivePictures m_pictures;
    QByteArray m_beginning;
    bool m_isReadable;
    QString m_text;
    MRVArchiveExtras m_extras;
    MRVArchivePictures::Lost m_lost = MRVArchivePictures::Fail;
    int m_level = 6;
};
