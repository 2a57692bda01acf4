#pragma once

#include "core/mrverror.h"
#include "fileformats/mrvformat.h"
#include "office/mrvofficeloss.h"
#include "util/mrvbase_export.h"
#include "util/mrvprogress.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

struct MRVProgramResult;

/**
 * Makes pages of HTML of documents of word processors (DOCX, ODT, RTF), by a converter that is
 * installed on this machine: pandoc.
 *
 * The converter gets no network, reads no other file, and has limits of time, memory and output,
 * because a small file may unpack to a huge one. It and all that it starts end with this process.
 * Blocks until it is done; GUI thread only.
 *
 * @code
 * MRVOfficeConverter converter;
 * QString error;
 * const QByteArray rtf = "{\\rtf1\\ansi High {\\b water}.}";
 * const QString page = converter.toHtml(rtf, MRVFormat::RTF, &error);
 * qDebug() << (page.isNull() ? error : page) << converter.warnings();
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVOfficeConverter
{
    Q_DECLARE_TR_FUNCTIONS(MRVOfficeConverter)

public:
    /** What the converter may use. A novel of 4 MB takes 10 seconds and 1.2 GB. */
    struct Limits
    {
        int milliseconds = 300000;
        qint64 memory = qint64(3) << 30; ///< bytes of address space
        qint64 output = qint64(1) << 28; ///< bytes of the page, with its pictures
    };

    /** For the conversions that follow. */
    void setLimits(const Limits &limits) { m_limits = limits; }
    /**
     * Whether the page holds the pictures, as addresses of the scheme "data", which it does at
     * first. Else it names them as the document does, and the conversion is faster.
     */
    void setEmbedsPictures(bool embeds) { m_embedsPictures = embeds; }
    /** What may cancel toHtml(); it is told 0 all the time, since no program says how far it is. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }

    /** Whether toHtml() can read that format, if the program is installed. */
    static bool canConvert(MRVFormat::Format format);
    /** The format of a document, by its first bytes; MRVFormat::NoFormat for anything else. */
    static MRVFormat::Format formatOf(const QByteArray &bytes);

    /**
     * A whole page of HTML of a document, with title, authors, description and language in its
     * head where the document tells them.
     *
     * @param bytes a whole file.
     * @param error receives a translated reason in one line, which does not name the document, on
     *              failure: the program is missing, cannot read the document, or has reached a
     *              limit. Untouched on success; may be null.
     * @return null on failure.
     */
    QString toHtml(const QByteArray &bytes, MRVFormat::Format format, MRVErrorSink error = nullptr);
    /**
     * Words of the last document that the page lacks, in order; empty if all is well. No page lacks
     * a word without this.
     */
    QVector<MRVOfficeLoss> missingWords() const { return m_missingWords; }
    /**
     * The texts of comments of the last document that its text, or the page, has no place for. The
     * others are elements "mrv-comment" of the page, which MRVHtmlDocument reads.
     */
    QStringList missingComments() const { return m_missingComments; }
    /** What the converter said of the last document, a line each, in English. */
    QStringList warnings() const { return m_warnings; }

private:
    static bool begins(const QByteArray &bytes, MRVFormat::Format format, MRVErrorSink error);
    MRVError failureOf(const MRVProgramResult &result) const;

    Limits m_limits;
    bool m_embedsPictures = true;
    MRVProgress m_progress;
    QStringList m_warnings;
    QVector<MRVOfficeLoss> m_missingWords;
    QStringList m_missingComments;
};
