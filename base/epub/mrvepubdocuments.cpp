#include "core/mrvxmltext.h"

#include "epub/mrvepubbook_p.h"
#include "xhtml/mrvhtmltext.h"

#include <QLocale>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

// Texts that users enter may be empty, or hold characters that XML forbids.
void writeText(QXmlStreamWriter *xml, const char *element, const QString &text)
{
    const QString clean = mrvXmlText(text).simplified();
    if (!clean.isEmpty()) {
        xml->writeTextElement(QLatin1String(element), clean);
    }
}

QString isoDate(const QDateTime &date)
{
    return date.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ"));
}

void writeProperty(QXmlStreamWriter *xml, const QString &property, const QString &value)
{
    xml->writeStartElement(QStringLiteral("meta"));
    xml->writeAttribute(QStringLiteral("property"), property);
    xml->writeCharacters(value);
    xml->writeEndElement();
}

// The metadata that the W3C's EPUB Accessibility 1.0 (section 3.2) requires of a package.
void writeAccessibility(QXmlStreamWriter *xml, const MRVEPubBook &book)
{
    const bool described = book.picturesWithoutText.isEmpty();
    writeProperty(xml, QStringLiteral("schema:accessMode"), QStringLiteral("textual"));
    if (!book.pictures.isEmpty()) {
        writeProperty(xml, QStringLiteral("schema:accessMode"), QStringLiteral("visual"));
        writeProperty(xml, QStringLiteral("schema:accessModeSufficient"),
                      QStringLiteral("textual,visual"));
    }
    if (described) {
        writeProperty(xml, QStringLiteral("schema:accessModeSufficient"),
                      QStringLiteral("textual"));
    }
    for (const char *feature : {"structuralNavigation", "tableOfContents"}) {
        writeProperty(xml, QStringLiteral("schema:accessibilityFeature"), QLatin1String(feature));
    }
    if (described && !book.pictures.isEmpty()) {
        writeProperty(xml, QStringLiteral("schema:accessibilityFeature"),
                      QStringLiteral("alternativeText"));
    }
    // A GIF may flash.
    const bool moving =
        std::any_of(book.pictures.begin(), book.pictures.end(), [](const MRVEPubFile &picture) {
            return picture.mediaType == QLatin1String("image/gif");
        });
    writeProperty(xml, QStringLiteral("schema:accessibilityHazard"),
                  moving ? QStringLiteral("unknown") : QStringLiteral("none"));
    writeProperty(
        xml, QStringLiteral("schema:accessibilitySummary"),
        described ? MRVEPubBook::tr(
            "The text can be read with a screen reader; headings and a table of contents "
            "guide through it.")
                  : MRVEPubBook::tr(
                      "The text can be read with a screen reader; headings and a table of contents "
                      "guide through it. Not all pictures have a description."));
}

void writeMetadata(QXmlStreamWriter *xml, const MRVEPubBook &book, const QString &identifier,
                   const QDateTime &modified)
{
    const bool epub3 = book.version == MRVEPubVersion::EPub3;
    xml->writeStartElement(QStringLiteral("metadata"));
    xml->writeAttribute(QStringLiteral("xmlns:dc"),
                        QStringLiteral("http://purl.org/dc/elements/1.1/"));
    if (!epub3) {
        xml->writeAttribute(QStringLiteral("xmlns:opf"),
                            QStringLiteral("http://www.idpf.org/2007/opf"));
    }
    xml->writeStartElement(QStringLiteral("dc:identifier"));
    xml->writeAttribute(QStringLiteral("id"), QStringLiteral("book-id"));
    xml->writeCharacters(identifier);
    xml->writeEndElement();
    writeText(xml, "dc:title", book.title());
    writeText(xml, "dc:language", book.language());
    const QStringList authors = book.authors();
    for (const QString &author : authors) {
        writeText(xml, "dc:creator", author);
    }
    writeText(xml, "dc:publisher", book.metadata.publisher);
    writeText(xml, "dc:description", book.metadata.description);
    writeText(xml, "dc:rights", book.metadata.rights);
    if (epub3) {
        writeProperty(xml, QStringLiteral("dcterms:modified"), isoDate(modified));
        writeAccessibility(xml, book);
    } else {
        xml->writeStartElement(QStringLiteral("dc:date"));
        xml->writeAttribute(QStringLiteral("opf:event"), QStringLiteral("modification"));
        xml->writeCharacters(isoDate(modified));
        xml->writeEndElement();
    }
    if (!book.metadata.cover.isEmpty()) {
        xml->writeEmptyElement(QStringLiteral("meta")); // EPUB 2 readers find the cover by this
        xml->writeAttribute(QStringLiteral("name"), QStringLiteral("cover"));
        xml->writeAttribute(QStringLiteral("content"), QStringLiteral("picture-1"));
    }
    xml->writeEndElement();
}

void writeItem(QXmlStreamWriter *xml, const QString &id, const QString &path,
               const QString &mediaType, const QString &properties = QString())
{
    xml->writeEmptyElement(QStringLiteral("item"));
    xml->writeAttribute(QStringLiteral("id"), id);
    xml->writeAttribute(QStringLiteral("href"), path);
    xml->writeAttribute(QStringLiteral("media-type"), mediaType);
    if (!properties.isEmpty()) {
        xml->writeAttribute(QStringLiteral("properties"), properties);
    }
}

QString pageId(int page)
{
    return QStringLiteral("page-%1").arg(page + 1);
}

void writeManifest(QXmlStreamWriter *xml, const MRVEPubBook &book)
{
    const bool epub3 = book.version == MRVEPubVersion::EPub3;
    const QString xhtml = QStringLiteral("application/xhtml+xml");
    xml->writeStartElement(QStringLiteral("manifest"));
    if (epub3) {
        writeItem(xml, QStringLiteral("nav"), QStringLiteral("nav.xhtml"), xhtml,
                  QStringLiteral("nav"));
    }
    writeItem(xml, QStringLiteral("ncx"), QStringLiteral("toc.ncx"),
              QStringLiteral("application/x-dtbncx+xml"));
    writeItem(xml, QStringLiteral("css"), QStringLiteral("css/stylesheet.css"),
              QStringLiteral("text/css"));
    writeItem(xml, QStringLiteral("cover"), QStringLiteral("cover.xhtml"), xhtml);
    for (int i = 0; i < book.pages.size(); ++i) {
        writeItem(xml, pageId(i), book.pages.at(i).fileName, xhtml);
    }
    for (int i = 0; i < book.pictures.size(); ++i) {
        const bool cover =
            i == 0 && !book.metadata.cover.isEmpty() && epub3; // the cover is added first
        writeItem(xml, QStringLiteral("picture-%1").arg(i + 1), book.pictures.at(i).path,
                  book.pictures.at(i).mediaType, cover ? QStringLiteral("cover-image") : QString());
    }
    xml->writeEndElement();
}

void writeSpine(QXmlStreamWriter *xml, const MRVEPubBook &book)
{
    xml->writeStartElement(QStringLiteral("spine"));
    xml->writeAttribute(QStringLiteral("toc"), QStringLiteral("ncx"));
    const bool rightToLeft = QLocale(book.language()).textDirection() == Qt::RightToLeft;
    if (book.version == MRVEPubVersion::EPub3 && rightToLeft) {
        xml->writeAttribute(QStringLiteral("page-progression-direction"), QStringLiteral("rtl"));
    }
    auto writeReference = [xml](const QString &id) {
        xml->writeEmptyElement(QStringLiteral("itemref"));
        xml->writeAttribute(QStringLiteral("idref"), id);
    };
    writeReference(QStringLiteral("cover"));
    if (book.version == MRVEPubVersion::EPub3) {
        writeReference(QStringLiteral("nav"));
    }
    for (int i = 0; i < book.pages.size(); ++i) {
        writeReference(pageId(i));
    }
    xml->writeEndElement();
}

// A place of the book by its role; EPUB 2 lists these in the guide, EPUB 3 in the landmarks.
struct Landmark
{
    const char *guideType;
    const char *epubType;
    QString title;
    QString target;
};

QVector<Landmark> landmarks(const MRVEPubBook &book)
{
    QVector<Landmark> marks{
        {"cover", "cover", MRVEPubBook::tr("Cover"), QStringLiteral("cover.xhtml")}};
    if (book.version == MRVEPubVersion::EPub3) {
        marks.append({"toc", "toc", MRVEPubBook::tr("Contents"), QStringLiteral("nav.xhtml#toc")});
    }
    if (!book.pages.isEmpty()) {
        marks.append(
            {"text", "bodymatter", MRVEPubBook::tr("Beginning"), book.pages.constFirst().fileName});
    }
    return marks;
}

void writeGuide(QXmlStreamWriter *xml, const MRVEPubBook &book)
{
    xml->writeStartElement(QStringLiteral("guide"));
    const QVector<Landmark> marks = landmarks(book);
    for (const Landmark &mark : marks) {
        xml->writeEmptyElement(QStringLiteral("reference"));
        xml->writeAttribute(QStringLiteral("type"), QLatin1String(mark.guideType));
        xml->writeAttribute(QStringLiteral("title"), mark.title);
        xml->writeAttribute(QStringLiteral("href"), mark.target);
    }
    xml->writeEndElement();
}

// Calls @p open for each entry, and @p close for it once all entries below it are done.
template<typename Open, typename Close>
void walkContents(const QVector<MRVEPubEntry> &entries, Open open, Close close)
{
    int depth = -1;
    for (const MRVEPubEntry &entry : entries) {
        for (; depth >= entry.depth; --depth) {
            close(depth);
        }
        open(entry);
        depth = entry.depth;
    }
    for (; depth >= 0; --depth) {
        close(depth);
    }
}

QString navigationList(const QVector<MRVEPubEntry> &entries)
{
    QString list;
    int lists = 0; // opened so far
    walkContents(
        entries,
        [&](const MRVEPubEntry &entry) {
            if (lists <= entry.depth) {
                list += QLatin1String("<ol>\n");
                ++lists;
            }
            list += QLatin1String("<li><a href=\"") + entry.target.toHtmlEscaped()
                + QLatin1String("\">") + entry.text.toHtmlEscaped() + QLatin1String("</a>");
        },
        [&](int depth) {
            for (; lists > depth + 1; --lists) {
                list += QLatin1String("</ol>");
            }
            list += QLatin1String("</li>\n");
        });
    return list + (lists > 0 ? QLatin1String("</ol>\n") : QLatin1String());
}

} // namespace

QByteArray mrvEPubNavigation(const MRVEPubBook &book)
{
    const QString contents = MRVEPubBook::tr("Contents").toHtmlEscaped();
    QVector<MRVEPubEntry> entries = book.contents();
    if (entries.isEmpty()) {
        entries.append({MRVEPubBook::tr("Cover"), QStringLiteral("cover.xhtml"), 0});
    }
    QString body =
        QLatin1String("\n<nav epub:type=\"toc\" id=\"toc\" role=\"doc-toc\">\n<h1>") + contents
        + QLatin1String("</h1>\n") + navigationList(entries)
        + QLatin1String(
            "</nav>\n<nav epub:type=\"landmarks\" id=\"landmarks\" hidden=\"hidden\">\n<ol>\n");
    const QVector<Landmark> marks = landmarks(book);
    for (const Landmark &mark : marks) {
        body += QLatin1String("<li><a epub:type=\"") + QLatin1String(mark.epubType)
            + QLatin1String("\" href=\"") + mark.target + QLatin1String("\">")
            + mark.title.toHtmlEscaped() + QLatin1String("</a></li>\n");
    }
    body += QLatin1String("</ol>\n</nav>\n");
    return book.framed(MRVEPubBook::tr("Contents"), QStringLiteral("<body>"), body).toUtf8();
}

QByteArray mrvEPubNcx(const MRVEPubBook &book, const QString &identifier)
{
    QVector<MRVEPubEntry> entries = book.contents();
    if (entries.isEmpty()) {
        entries.append({MRVEPubBook::tr("Cover"), QStringLiteral("cover.xhtml"), 0});
    }
    int deepest = 0;
    for (const MRVEPubEntry &entry : qAsConst(entries)) {
        deepest = qMax(deepest, entry.depth);
    }
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("ncx"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.daisy.org/z3986/2005/ncx/"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2005-1"));
    xml.writeStartElement(QStringLiteral("head"));
    const QPair<const char *, QString> metas[] = {
        {"dtb:uid", identifier},
        {"dtb:depth", QString::number(deepest + 1)},
        {"dtb:totalPageCount", QStringLiteral("0")},
        {"dtb:maxPageNumber", QStringLiteral("0")},
    };
    for (const auto &meta : metas) {
        xml.writeEmptyElement(QStringLiteral("meta"));
        xml.writeAttribute(QStringLiteral("name"), QLatin1String(meta.first));
        xml.writeAttribute(QStringLiteral("content"), meta.second);
    }
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("docTitle"));
    xml.writeTextElement(QStringLiteral("text"), book.title());
    xml.writeEndElement();
    xml.writeStartElement(QStringLiteral("navMap"));
    int number = 0;
    walkContents(
        entries,
        [&](const MRVEPubEntry &entry) {
            ++number;
            xml.writeStartElement(QStringLiteral("navPoint"));
            xml.writeAttribute(QStringLiteral("id"), QStringLiteral("nav-%1").arg(number));
            xml.writeAttribute(QStringLiteral("playOrder"), QString::number(number));
            xml.writeStartElement(QStringLiteral("navLabel"));
            xml.writeTextElement(QStringLiteral("text"), entry.text);
            xml.writeEndElement();
            xml.writeEmptyElement(QStringLiteral("content"));
            xml.writeAttribute(QStringLiteral("src"), entry.target);
        },
        [&](int) { xml.writeEndElement(); });
    xml.writeEndDocument();
    return bytes;
}

QByteArray mrvEPubPackageDocument(const MRVEPubBook &book, const QString &identifier,
                                  const QDateTime &modified)
{
    const bool epub3 = book.version == MRVEPubVersion::EPub3;
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("package"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.idpf.org/2007/opf"));
    xml.writeAttribute(QStringLiteral("version"),
                       epub3 ? QStringLiteral("3.0") : QStringLiteral("2.0"));
    xml.writeAttribute(QStringLiteral("unique-identifier"), QStringLiteral("book-id"));
    if (epub3) {
        xml.writeAttribute(QStringLiteral("xml:lang"), book.language());
    }
    writeMetadata(&xml, book, identifier, modified);
    writeManifest(&xml, book);
    writeSpine(&xml, book);
    writeGuide(&xml, book);
    xml.writeEndDocument();
    return bytes;
}
