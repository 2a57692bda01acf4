#include "office/mrvofficesource_p.h"

#include "office/mrvofficeboxes_p.h"
#include "office/mrvofficertf_p.h"
#include "office/mrvofficetext_p.h"
#include "office/mrvofficewords_p.h"
#include "zip/mrvzipreader.h"
#include "zip/mrvzipwriter.h"

#include <QBuffer>

namespace {

constexpr int Level = 1; // of what is read once

bool hasText(MRVFormat::Format format, const QString &name)
{
    if (format == MRVFormat::ODT) {
        return name == QLatin1String("content.xml");
    }
    return name == QLatin1String("word/document.xml") || name == QLatin1String("word/footnotes.xml")
        || name == QLatin1String("word/endnotes.xml");
}

} // namespace

MRVOfficeSource::MRVOfficeSource(const QByteArray &bytes, MRVFormat::Format format)
    : m_prepared(bytes)
{
    if (format == MRVFormat::RTF) {
        m_prepared = mrvPreparedRtf(bytes, &m_comments);
        m_text = mrvRtfText(bytes);
    } else {
        readArchive(bytes, format);
    }
}

void MRVOfficeSource::readArchive(const QByteArray &bytes, MRVFormat::Format format)
{
    const MRVZipReader archive(bytes);
    std::vector<MRVZipEntry> entries;
    m_fault = archive.error();
    bool ok = archive.isOpen();
    for (int i = 0; i < archive.files().size() && ok; ++i) {
        const QString path = archive.files().at(i).path;
        if (!hasText(format, path)) {
            readParts(archive, i);
            entries.push_back({path, MRVZipEntry::Stored, {}, -1, &archive, i});
            continue;
        }
        m_isTooLarge = m_isTooLarge || archive.files().at(i).size > MostUnpacked;
        const QByteArray text = archive.read(i, MostUnpacked);
        ok = !text.isNull();
        if (ok) {
            m_text += mrvOfficeXmlText(mrvWithPlainRuby(text)) + u' ';
            const QByteArray prepared = preparedText(text, format);
            entries.push_back({path, MRVZipEntry::Stored, [prepared] { return prepared; }});
        }
    }
    QBuffer target;
    target.open(QIODevice::WriteOnly);
    const QDateTime date(QDate(1980, 1, 1), QTime(0, 0), Qt::UTC); // which nobody reads
    if (ok && mrvWriteZip(entries, Level, date, &target, nullptr)) {
        m_prepared = target.data();
    }
}

QByteArray MRVOfficeSource::preparedText(const QByteArray &text, MRVFormat::Format format)
{
    return format == MRVFormat::ODT ? mrvPreparedOdt(mrvWithMarksOfOdtComments(text, &m_comments))
                                    : mrvPreparedDocx(mrvWithMarksOfDocxComments(text));
}

// What is read beside the text: the comments of a DOCX, which are in a file of their own, the
// formulas of an ODT, each a document in a folder of its own, and the properties.
void MRVOfficeSource::readParts(const MRVZipReader &archive, int index)
{
    const QString path = archive.files().at(index).path;
    if (path == QLatin1String("word/comments.xml")) {
        m_isTooLarge = m_isTooLarge || archive.files().at(index).size > MostUnpacked;
        m_comments = mrvCommentsOfDocx(archive.read(index, MostUnpacked));
    } else if (path == QLatin1String("docProps/core.xml") || path == QLatin1String("meta.xml")) {
        m_properties = mrvOfficeProperties(archive.read(index, MostUnpacked));
    } else if (path.endsWith(QLatin1String("/content.xml"))) {
        const QString formula = mrvOfficeXmlText(archive.read(index, MostUnpacked));
        if (!formula.isEmpty()) {
            m_formulas.append(formula);
        }
    }
}

QString MRVOfficeSource::withMarks(const QString &html)
{
    return mrvWithCharacters(mrvWithAnchors(mrvWithComments(html, &m_comments)));
}

QStringList MRVOfficeSource::missingComments() const
{
    QStringList missing;
    for (const MRVOfficeComment &comment : m_comments) {
        missing.append(comment.text.simplified());
    }
    return missing;
}

QVector<MRVOfficeLoss> MRVOfficeSource::missingFrom(const QString &html) const
{
    // Their words cannot be compared, as they may be written as TeX.
    const bool hasFormulas = html.count(QLatin1String("<span class=\"math ")) >= m_formulas.size();
    return mrvMissingWords(m_text, hasFormulas ? QString() : m_formulas.join(u' '),
                           mrvTextOfPage(html));
}
