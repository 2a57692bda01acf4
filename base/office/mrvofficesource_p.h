#pragma once

#include "core/mrverror.h"
#include "fileformats/mrvformat.h"
#include "office/mrvofficecomments_p.h"
#include "office/mrvofficeloss.h"
#include "office/mrvofficeproperties_p.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

class MRVZipReader;

/**
 * A document of a word processor, as far as it takes to see that a converter loses nothing of it.
 *
 * What cannot be read of it, as it is damaged, is left to the converter.
 */
class MRVOfficeSource
{
public:
    MRVOfficeSource(const QByteArray &bytes, MRVFormat::Format format);

    /** Bytes that a text of an archive may unpack to, some ten novels; a small file may be huge. */
    static constexpr int MostUnpacked = 1 << 26;

    /** Why an archive is none, as MRVZipReader::error() says it; else empty. */
    const MRVError &fault() const { return m_fault; }
    /** Whether a text is larger: it is not prepared, and losses would not be seen. */
    bool isTooLarge() const { return m_isTooLarge; }
    /** What an archive says about itself. */
    MRVOfficeProperties properties() const { return m_properties; }

    /**
     * The document, written so that pandoc keeps what it would lose: rows of headings, formulas and
     * names of places in ODT, names before paragraphs, links and moved text in DOCX, boxes,
     * readings of characters and comments in both, characters, notes, fields and boxes in RTF.
     */
    QByteArray prepared() const { return m_prepared; }

    /**
     * @p html of the prepared document, with the names of places, the comments and the characters
     * that prepared() has written in another way. To be called once.
     */
    QString withMarks(const QString &html);

    /** Words of the document that @p html lacks. */
    QVector<MRVOfficeLoss> missingFrom(const QString &html) const;
    /** The texts of comments that withMarks() has found no place for. */
    QStringList missingComments() const;

private:
    QByteArray preparedText(const QByteArray &text, MRVFormat::Format format);
    void readArchive(const QByteArray &bytes, MRVFormat::Format format);
    void readParts(const MRVZipReader &archive, int index);

    QByteArray m_prepared;
    MRVError m_fault;
    bool m_isTooLarge = false;
    MRVOfficeProperties m_properties;
    QString m_text; // that a reader is to see
    QStringList m_formulas; // of an ODT
    MRVOfficeComments m_comments; // that have no place in a page yet
};
