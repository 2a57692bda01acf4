#include "epub/mrvepubpackagemetadata_p.h"

#include "epub/mrvbooknames_p.h"
#include "epub/mrvepubbook_p.h"

#include "core/mrvxmltext.h"

#include <QDateTime>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

const QLatin1String IsbnScheme("urn:isbn:");

QString isoDate(const QDateTime &date)
{
    return date.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ"));
}

/** Writes the metadata of one version of the format. Empty values are left out. */
class MetadataWriter
{
public:
    MetadataWriter(QXmlStreamWriter *xml, const MRVEPubBook &book)
        : m_xml(*xml)
        , m_book(book)
        , m_metadata(book.metadata)
        , m_isEPub3(book.version == MRVEPubVersion::EPub3)
    {
    }

    void write(const QString &identifier, const QDateTime &modified);

private:
    using Attributes = QVector<QPair<const char *, QString>>;

    bool writeElement(const char *name, const QString &text, const Attributes &attributes = {});
    void writeProperty(const char *property, const QString &value);
    void refine(const QString &id, const char *property, const QString &value,
                const char *scheme = nullptr);
    void writePerson(const char *element, const QString &id, const QString &name,
                     const QString &role);
    void writeNamedMeta(const char *name, const QString &content);
    void writeIdentifiers(const QString &identifier);
    void writeTitles();
    void writePeople();
    void writeDates(const QDateTime &modified);
    void writeSeries();
    void writePageSource();
    void writeAccessibility();
    void writeFeatures(bool shows, bool isDescribed);

    QXmlStreamWriter &m_xml;
    const MRVEPubBook &m_book;
    const MRVEPubMetadata &m_metadata;
    const bool m_isEPub3;
};

// Texts that users enter may hold characters that XML forbids.
bool MetadataWriter::writeElement(const char *name, const QString &text,
                                  const Attributes &attributes)
{
    const QString clean = mrvXmlText(text).simplified();
    if (clean.isEmpty()) {
        return false;
    }
    m_xml.writeStartElement(QLatin1String(name));
    for (const auto &attribute : attributes) {
        const QString value = mrvXmlText(attribute.second).simplified();
        if (!value.isEmpty()) {
            m_xml.writeAttribute(QLatin1String(attribute.first), value);
        }
    }
    m_xml.writeCharacters(clean);
    m_xml.writeEndElement();
    return true;
}

void MetadataWriter::writeProperty(const char *property, const QString &value)
{
    writeElement("meta", value, {{"property", QLatin1String(property)}});
}

void MetadataWriter::refine(const QString &id, const char *property, const QString &value,
                            const char *scheme)
{
    writeElement("meta", value,
                 {{"refines", u'#' + id},
                  {"property", QLatin1String(property)},
                  {"scheme", QLatin1String(scheme)}});
}

void MetadataWriter::writeNamedMeta(const char *name, const QString &content)
{
    m_xml.writeEmptyElement(QStringLiteral("meta"));
    m_xml.writeAttribute(QStringLiteral("name"), QLatin1String(name));
    m_xml.writeAttribute(QStringLiteral("content"), content);
}

void MetadataWriter::writePerson(const char *element, const QString &id, const QString &name,
                                 const QString &role)
{
    const QString fileAs = m_metadata.sortName(name);
    if (!m_isEPub3) {
        writeElement(element, name, {{"opf:role", role}, {"opf:file-as", fileAs}});
    } else if (writeElement(element, name, {{"id", id}})) {
        refine(id, "role", role, "marc:relators");
        refine(id, "file-as", fileAs);
    }
}

void MetadataWriter::writeIdentifiers(const QString &identifier)
{
    writeElement("dc:identifier", identifier, {{"id", QStringLiteral("book-id")}});
    const QString isbn = mrvIsbn(m_metadata.isbn);
    if (!isbn.isEmpty() && identifier != IsbnScheme + isbn) {
        writeElement("dc:identifier", IsbnScheme + isbn,
                     {{m_isEPub3 ? "id" : "opf:scheme",
                       m_isEPub3 ? QStringLiteral("isbn") : QStringLiteral("ISBN")}});
    }
}

void MetadataWriter::writeTitles()
{
    const QString title = QStringLiteral("title");
    const QString subtitle = QStringLiteral("subtitle");
    if (!m_isEPub3 || mrvXmlText(m_metadata.subtitle).simplified().isEmpty()) {
        writeElement("dc:title", m_book.title());
        writeElement("dc:title", m_metadata.subtitle);
        return;
    }
    writeElement("dc:title", m_book.title(), {{"id", title}});
    refine(title, "title-type", QStringLiteral("main"));
    writeElement("dc:title", m_metadata.subtitle, {{"id", subtitle}});
    refine(subtitle, "title-type", subtitle);
}

void MetadataWriter::writePeople()
{
    int number = 0;
    const QStringList authors = m_book.authors();
    for (const QString &author : authors) {
        writePerson("dc:creator", QStringLiteral("creator-%1").arg(++number), author,
                    QStringLiteral("aut"));
    }
    number = 0;
    for (const MRVEPubContributor &contributor : m_metadata.contributors) {
        writePerson("dc:contributor", QStringLiteral("contributor-%1").arg(++number),
                    contributor.name, mrvRoleCode(contributor.role));
    }
}

void MetadataWriter::writeDates(const QDateTime &modified)
{
    const auto event = [this](const char *name) {
        return m_isEPub3 ? Attributes() : Attributes{{"opf:event", QLatin1String(name)}};
    };
    writeElement("dc:date", m_metadata.published, event("publication"));
    if (m_isEPub3) {
        writeProperty("dcterms:modified", isoDate(modified));
    } else {
        writeElement("dc:date", isoDate(modified), event("modification"));
    }
}

void MetadataWriter::writeSeries()
{
    const QString id = QStringLiteral("series");
    const QString name = mrvXmlText(m_metadata.series).simplified();
    const QString number = mrvXmlText(m_metadata.seriesNumber).simplified();
    if (name.isEmpty()) {
        return;
    }
    if (m_isEPub3) {
        writeElement("meta", name,
                     {{"id", id}, {"property", QStringLiteral("belongs-to-collection")}});
        refine(id, "collection-type", id);
        refine(id, "group-position", number);
        return;
    }
    // EPUB 2 has no word for it; libraries and readers look for this one.
    writeNamedMeta("calibre:series", name);
    if (!number.isEmpty()) {
        writeNamedMeta("calibre:series_index", number);
    }
}

// The edition whose page numbers the page list has. Pages need one, even where nobody has said
// which it is.
void MetadataWriter::writePageSource()
{
    const QString isbn = mrvIsbn(m_metadata.source);
    const bool isPaged = m_isEPub3 && !m_book.pageBreaks.isEmpty();
    QString source = isbn.isEmpty() ? m_metadata.source : IsbnScheme + isbn;
    if (source.isEmpty() && isPaged) {
        source = m_book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Printed edition of %1"))
                     .arg(m_book.title());
    }
    const QString id = isPaged ? QStringLiteral("source") : QString();
    if (writeElement("dc:source", source, {{"id", id}}) && isPaged) {
        refine(id, "source-of", QStringLiteral("pagination"));
    }
}

void MetadataWriter::writeFeatures(bool shows, bool isDescribed)
{
    struct Feature
    {
        const char *name;
        bool is;
    };
    const bool isPaged = !m_book.pageBreaks.isEmpty();
    const Feature features[] = {
        {"alternativeText", shows && isDescribed},
        {"pageNavigation", isPaged},
        {"printPageNumbers", isPaged},
        {"readingOrder", true},
        {"structuralNavigation", !m_book.headings.isEmpty()},
        {"tableOfContents", true},
    };
    for (const Feature &feature : features) {
        if (feature.is) {
            writeProperty("schema:accessibilityFeature", QLatin1String(feature.name));
        }
    }
}

// What EPUB Accessibility 1.1 (section 2) asks for. That a book conforms to it is not claimed,
// since only people can judge the alternative texts.
void MetadataWriter::writeAccessibility()
{
    const bool isDescribed = m_book.picturesWithoutText.isEmpty();
    const bool shows = m_book.pictures.size() > (m_metadata.cover.isEmpty() ? 0 : 1);
    writeProperty("schema:accessMode", QStringLiteral("textual"));
    if (shows) {
        writeProperty("schema:accessMode", QStringLiteral("visual"));
        writeProperty("schema:accessModeSufficient", QStringLiteral("textual,visual"));
    }
    if (isDescribed) {
        writeProperty("schema:accessModeSufficient", QStringLiteral("textual"));
    }
    writeFeatures(shows, isDescribed);
    // A GIF may flash.
    const bool isMoving =
        std::any_of(m_book.pictures.begin(), m_book.pictures.end(), [](const MRVEPubFile &picture) {
            return picture.mediaType == QLatin1String("image/gif");
        });
    writeProperty("schema:accessibilityHazard",
                  isMoving ? QStringLiteral("unknown") : QStringLiteral("none"));
    QString summary =
        m_book.text(QT_TRANSLATE_NOOP("MRVEPubBook",
                                      "The text can be read with a screen reader; headings and a "
                                      "table of contents guide through it."));
    if (!isDescribed) {
        summary += u' '
            + m_book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Not all pictures have a description."));
    }
    if (!m_book.pageBreaks.isEmpty()) {
        summary += u' '
            + m_book.text(QT_TRANSLATE_NOOP("MRVEPubBook",
                                            "A list leads to the pages of the printed edition."));
    }
    writeProperty("schema:accessibilitySummary", summary);
}

void MetadataWriter::write(const QString &identifier, const QDateTime &modified)
{
    m_xml.writeStartElement(QStringLiteral("metadata"));
    m_xml.writeAttribute(QStringLiteral("xmlns:dc"),
                         QStringLiteral("http://purl.org/dc/elements/1.1/"));
    if (!m_isEPub3) {
        m_xml.writeAttribute(QStringLiteral("xmlns:opf"),
                             QStringLiteral("http://www.idpf.org/2007/opf"));
    }
    writeIdentifiers(identifier);
    writeTitles();
    writeElement("dc:language", m_book.language());
    for (const QString &language : m_book.languages) {
        writeElement("dc:language", language);
    }
    writePeople();
    writeElement("dc:publisher", m_metadata.publisher);
    writeElement("dc:description", m_metadata.description);
    for (const QString &subject : m_metadata.subjects) {
        writeElement("dc:subject", subject);
    }
    writeElement("dc:rights", m_metadata.rights);
    writePageSource();
    writeDates(modified);
    writeSeries();
    if (m_isEPub3) {
        writeAccessibility();
    }
    if (!m_metadata.cover.isEmpty()) {
        writeNamedMeta("cover", QStringLiteral("picture-1")); // EPUB 2 readers find it by this
    }
    m_xml.writeEndElement();
}

} // namespace

void mrvWriteEPubMetadata(QXmlStreamWriter *xml, const MRVEPubBook &book, const QString &identifier,
                          const QDateTime &modified)
{
    MetadataWriter(xml, book).write(identifier, modified);
}
