#include "epub/mrvepubbook_p.h"
#include "epub/mrvepubnavigation_p.h"
#include "epub/mrvepubpackagemetadata_p.h"

#include <QLocale>
#include <QXmlStreamWriter>

namespace {

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

QString plateId(int plate)
{
    return QStringLiteral("plate-%1").arg(plate + 1);
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
    if (book.hasCoverPage()) {
        writeItem(xml, QStringLiteral("cover"), QStringLiteral("cover.xhtml"), xhtml);
    }
    for (int i = 0; i < book.pages.size(); ++i) {
        writeItem(xml, pageId(i), book.pages.at(i).fileName, xhtml);
    }
    for (int i = 0; i < book.platePages.size(); ++i) {
        writeItem(xml, plateId(i), book.platePages.at(i).fileName, xhtml);
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
    QStringList ids;
    for (int i = 0; i < book.pages.size(); ++i) {
        ids.append(pageId(i));
    }
    if (book.version == MRVEPubVersion::EPub3) {
        ids.insert(mrvEPubContentsPlace(book), QStringLiteral("nav"));
    }
    if (book.hasCoverPage()) {
        ids.prepend(QStringLiteral("cover"));
    }
    for (const QString &id : qAsConst(ids)) {
        xml->writeEmptyElement(QStringLiteral("itemref"));
        xml->writeAttribute(QStringLiteral("idref"), id);
    }
    for (int i = 0; i < book.platePages.size(); ++i) {
        xml->writeEmptyElement(QStringLiteral("itemref"));
        xml->writeAttribute(QStringLiteral("idref"), plateId(i));
        xml->writeAttribute(QStringLiteral("linear"), QStringLiteral("no"));
    }
    xml->writeEndElement();
}

void writeGuide(QXmlStreamWriter *xml, const MRVEPubBook &book)
{
    xml->writeStartElement(QStringLiteral("guide"));
    const QVector<MRVEPubLandmark> marks = mrvEPubLandmarks(book);
    for (const MRVEPubLandmark &mark : marks) {
        if (mark.guideType) {
            xml->writeEmptyElement(QStringLiteral("reference"));
            xml->writeAttribute(QStringLiteral("type"), QLatin1String(mark.guideType));
            xml->writeAttribute(QStringLiteral("title"), mark.title);
            xml->writeAttribute(QStringLiteral("href"), mark.target);
        }
    }
    xml->writeEndElement();
}

} // namespace

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
    mrvWriteEPubMetadata(&xml, book, identifier, modified);
    writeManifest(&xml, book);
    writeSpine(&xml, book);
    writeGuide(&xml, book);
    xml.writeEndDocument();
    return bytes;
}
