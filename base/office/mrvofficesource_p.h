#pragma once

#include "fileformats/mrvformat.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

struct zip;

/**
 * A document of a word processor, as far as it takes to see that a converter loses nothing of it.
 *
 * What cannot be read of it, as it is damaged or large, is left to the converter.
 */
class MRVOfficeSource
{
public:
    MRVOfficeSource(const QByteArray &bytes, MRVFormat::Format format);

    /**
     * The document, written so that pandoc keeps what it would lose: rows of headings, formulas and
     * names of places in ODT, names before paragraphs, fields and moved text in DOCX, characters,
     * notes, fields and boxes in RTF.
     */
    QByteArray prepared() const { return m_prepared; }

    /** @p html of the prepared document, with anchors where prepared() has marked names. */
    static QString withAnchors(QString html);

    /** Words of the document that @p html lacks, sorted. */
    QStringList missingFrom(const QString &html) const;

private:
    void readArchive(const QByteArray &bytes, MRVFormat::Format format);
    void readFormula(zip *archive, quint64 index, const QByteArray &name);

    QByteArray m_prepared;
    QHash<QString, int> m_words; // and how often each occurs
    QStringList m_formulas; // of an ODT
};
