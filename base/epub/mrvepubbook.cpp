#include "epub/mrvepubbook_p.h"

#include "core/mrvxmltext.h"
#include "document/mtextdoc.h"
#include "epub/mrvpagestarts_p.h"
#include "gui/mrvguiutil.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"
#include "xhtml/mrvdocumenthtml.h"
#include "xhtml/mrvdocumenttitle.h"
#include "xhtml/mrvhtmltext.h"
#include "xhtml/mrvpagewriter.h"

#include <QFileInfo>
#include <QLocale>
#include <QSet>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

#include <algorithm>

namespace {

bool isRemote(const QString &id)
{
    const QString scheme = QUrl(id).scheme();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https")
        || scheme == QLatin1String("ftp");
}

// ASCII letters, digits and hyphens are safe in every archive, file system and URL.
QString safeName(const QString &name)
{
    QString safe;
    for (const QChar c : QFileInfo(name).completeBaseName()) {
        const bool plain = c.unicode() < 0x80 && c.isLetterOrNumber();
        if (plain) {
            safe += c.toLower();
        } else if (!safe.isEmpty() && !safe.endsWith(u'-')) {
            safe += u'-';
        }
    }
    constexpr int Longest = 40;
    safe.truncate(Longest);
    while (safe.endsWith(u'-')) {
        safe.chop(1);
    }
    return safe.isEmpty() ? QStringLiteral("picture") : safe;
}

// The text of an element; tags within words (emphasis) become no blank, line breaks do.
QString elementText(QStringView page, int offset, QLatin1String close)
{
    const int begin = int(page.indexOf(u'>', offset)) + 1;
    const int end = int(page.indexOf(close, begin));
    QString markup = page.mid(begin, end - begin).toString();
    markup.replace(QLatin1String("<br />"), QLatin1String(" "));
    MRVHtmlText::rewriteBetween(
        &markup, QLatin1String("<img alt=\""), QLatin1String("\""), Qt::CaseSensitive,
        [](QStringView alt) { return QString(alt.toString() + QLatin1String("<img")); });
    MRVHtmlText::rewriteBetween(&markup, QLatin1String("<"), QLatin1String(">"), Qt::CaseSensitive,
                                [](QStringView) { return QString(); });
    return MRVHtmlText::unescaped(markup).simplified();
}

QString freeHeadingPrefix(const QHash<QString, QString> &ids)
{
    QString prefix = QStringLiteral("heading-");
    while (std::any_of(ids.begin(), ids.end(),
                       [&](const QString &id) { return id.startsWith(prefix); })) {
        prefix.prepend(u'_');
    }
    return prefix;
}

} // namespace

void MRVEPubBook::addCover()
{
    MRVDocumentPicture cover = MRVDocumentPicture::fromBytes(metadata.cover);
    if (cover.type() == MRVDocumentPicture::Svg) { // which libraries of books do not show
        const QImage drawn = MRVGuiUtil::toImage(metadata.cover);
        cover = MRVDocumentPicture::fromBytes(MRVGuiUtil::toByteArray(drawn, "PNG"));
    }
    metadata.cover = cover.bytes();
    if (cover.type() != MRVDocumentPicture::None) {
        addPicture(cover, QStringLiteral("cover"));
    }
}

bool MRVEPubBook::addPictures(const QTextDocument &document, QHash<QString, QString> *references,
                              QString *error)
{
    const MRVDocumentPictures shown(document);
    QStringList paths;
    for (const MRVDocumentPicture &picture : shown.all()) {
        paths.append(addPicture(picture, picture.name()));
    }
    const QSet<QString> ids = MTextDoc::imageResourceIds(document);
    for (const QString &id : ids) {
        // A book cannot hold a picture from the web: its alternative text takes its place.
        references->insert(id, paths.value(shown.indexOf(id)));
    }
    for (const MRVMissingPicture &missing : shown.missing()) {
        if (!isRemote(missing.id)) {
            return MRV::fail(error,
                             MRVEPubBook::tr("The picture %1 cannot be read.").arg(missing.name));
        }
    }
    return true;
}

QString MRVEPubBook::addPicture(const MRVDocumentPicture &picture, const QString &name)
{
    QString &path = picturePaths[picture.digest()];
    if (path.isEmpty()) {
        path = QStringLiteral("images/%1-%2.%3")
                   .arg(safeName(name), QString::number(pictures.size() + 1), picture.suffix());
        pictures.append({path, picture.mediaType(), picture});
    }
    return path;
}

// A document's page as it is cut into the pages of the book.
struct MRVEPubBook::Cutting
{
    const MRVPageWriter &writer;
    const QString &page;
    int body; // offset of the tag
    int bodyBegin;
    int bodyEnd;
    QVector<int> starts; // offsets of the pieces

    Cutting(const MRVPageWriter &pageWriter, const QString &text)
        : writer(pageWriter)
        , page(text)
        , body(text.indexOf(QLatin1String("<body")))
        , bodyBegin(text.indexOf(u'>', body) + 1)
        , bodyEnd(text.lastIndexOf(QLatin1String("</body>")))
        , starts(mrvPageStarts(pageWriter.blocks(), text, bodyBegin, bodyEnd))
    {
    }

    int pieceOf(int offset) const
    {
        return int(std::upper_bound(starts.begin(), starts.end(), offset) - starts.begin()) - 1;
    }
    int end(int piece) const { return piece + 1 < starts.size() ? starts.at(piece + 1) : bodyEnd; }
};

bool MRVEPubBook::addAllPictures(const QTextDocument &document, QHash<QString, QString> *references,
                                 QString *error)
{
    const QVector<MRVEPubFile> picturesBefore = pictures;
    const QHash<QByteArray, QString> pathsBefore = picturePaths;
    if (addPictures(document, references, error)) {
        return true;
    }
    pictures = picturesBefore;
    picturePaths = pathsBefore;
    return false;
}

bool MRVEPubBook::addDocument(const QTextDocument &document, const QString &fileName,
                              QString *error)
{
    QHash<QString, QString> references;
    if (!addAllPictures(document, &references, error)) {
        return false;
    }
    QString html = mrvDocumentHtml(document);
    MRVHtmlText::replaceImageSources(&html, references);
    const QString documentTitle = document.metaInformation(QTextDocument::DocumentTitle);
    if (metadata.title.isEmpty() && pages.isEmpty()) {
        metadata.title = mrvDocumentTitle(document, QString());
    }
    const bool html5 = version == MRVEPubVersion::EPub3;
    MRVPageWriter writer(MRVTextXhtmlExporter::EPub,
                         html5 ? MRVHtmlDialect::Html5 : MRVHtmlDialect::Xhtml11, &styles);
    writer.setCollecting(true);
    const QString page = writer.write(html, documentTitle, title());
    const QList<QTextImageFormat> images = MTextDoc::imageFormats(document);
    for (const QTextImageFormat &image : images) {
        const QString name = MRVTextFormat::imageName(image);
        if (!image.hasProperty(QTextFormat::ImageAltText) && !picturesWithoutText.contains(name)) {
            picturesWithoutText.append(name);
        }
    }

    const Cutting cutting(writer, page);
    const MRVEPubAnchors targets = anchorTargets(cutting, fileName);
    addPages(cutting);
    anchors.append(targets);
    return true;
}

// The name of the page that the piece of the next document becomes.
QString MRVEPubBook::pageName(int piece) const
{
    return QStringLiteral("page-%1.xhtml").arg(pages.size() + piece + 1, 3, 10, QLatin1Char('0'));
}

MRVEPubAnchors MRVEPubBook::anchorTargets(const Cutting &cutting, const QString &fileName) const
{
    MRVEPubAnchors targets{fileName, pageName(0), {}};
    const QHash<QString, int> places = MRVHtmlText::idPlaces(cutting.page);
    const QHash<QString, QString> ids = cutting.writer.ids();
    for (auto id = ids.constBegin(); id != ids.constEnd(); ++id) {
        const QString name = pageName(cutting.pieceOf(places.value(*id)));
        targets.targets.insert(id.key(), name + u'#' + *id);
    }
    return targets;
}

// Adds a page for each piece, and its headings, which get ids, to the table of contents.
void MRVEPubBook::addPages(const Cutting &cutting)
{
    const QString prefix = freeHeadingPrefix(cutting.writer.ids());
    const QString &page = cutting.page;
    int block = 0;
    const QVector<MRVPageWriter::Block> blocks = cutting.writer.headings();
    for (int piece = 0; piece < cutting.starts.size(); ++piece) {
        const int end = cutting.end(piece);
        MRVEPubPage result{pageName(0), QString(),
                           QString(),   page.mid(cutting.body, cutting.bodyBegin - cutting.body),
                           QString(),   anchors.size()};
        int done = cutting.starts.at(piece);
        for (; block < blocks.size() && blocks.at(block).offset < end; ++block) {
            const MRVPageWriter::Block &heading = blocks.at(block);
            const QString text = elementText(page, heading.offset, QLatin1String("</h"));
            if (text.isEmpty()) {
                continue;
            }
            const int afterName = heading.offset + 3; // "<h1"
            const QString id = prefix + QString::number(headings.size() + 1);
            result.body.append(page.constData() + done, afterName - done);
            result.body.append(QLatin1String(" id=\"") + id + u'"');
            done = afterName;
            result.title = result.title.isEmpty() ? text : result.title;
            headings.append({text, result.fileName + u'#' + id, heading.headingLevel - 1});
        }
        result.body.append(page.constData() + done, end - done);
        pages.append(result);
    }
}

QVector<MRVEPubEntry> MRVEPubBook::contents() const
{
    QVector<MRVEPubEntry> entries;
    QVector<int> open;
    for (MRVEPubEntry entry : headings) {
        while (!open.isEmpty() && open.constLast() >= entry.depth) {
            open.removeLast();
        }
        open.append(entry.depth);
        entry.depth = open.size() - 1;
        if (options.contentsDepth <= 0 || entry.depth < options.contentsDepth) {
            entries.append(entry);
        }
    }
    for (int i = 0; headings.isEmpty() && i < pages.size(); ++i) {
        const QString text = pages.size() == 1 ? title() : MRVEPubBook::tr("Section %1").arg(i + 1);
        entries.append({text, pages.at(i).fileName, 0});
    }
    return entries;
}

// Empty where the link leads to a place outside the book that a reader cannot open.
QString MRVEPubBook::resolved(const QString &href, int document) const
{
    const int hash = href.indexOf(u'#');
    const QString file =
        QUrl::fromPercentEncoding(href.left(hash < 0 ? href.size() : hash).toUtf8());
    const QString anchor = hash < 0 ? QString() : href.mid(hash + 1);
    for (int i = 0; i < anchors.size(); ++i) {
        const MRVEPubAnchors &candidate = anchors.at(i);
        const bool own = file.isEmpty() && hash >= 0 && i == document;
        if (!own && (file.isEmpty() || file != candidate.fileName)) {
            continue;
        }
        if (anchor.isEmpty()) {
            return candidate.firstPage;
        }
        const QString target = candidate.targets.value(anchor);
        return target.isEmpty()
            ? candidate.targets.value(QUrl::fromPercentEncoding(anchor.toUtf8()))
            : target;
    }
    const QUrl url(href, QUrl::TolerantMode);
    const QString scheme = url.scheme();
    const bool web = (scheme == QLatin1String("http") || scheme == QLatin1String("https"))
        && !url.host().isEmpty();
    const bool mail = scheme == QLatin1String("mailto") || scheme == QLatin1String("tel");
    return url.isValid() && (web || mail) ? QString::fromLatin1(url.toEncoded()) : QString();
}

QByteArray MRVEPubBook::pageBytes(const MRVEPubPage &page) const
{
    const QLatin1String opening("<a href=\"");
    const QLatin1String closing("</a>");
    const QStringView all(page.body);
    QString body;
    int done = 0;
    for (int at = page.body.indexOf(opening); at >= 0; at = page.body.indexOf(opening, done)) {
        const int begin = at + opening.size();
        const int end = page.body.indexOf(u'"', begin);
        const int tagEnd = page.body.indexOf(u'>', end) + 1;
        const int close = page.body.indexOf(closing, tagEnd);
        const QString target =
            resolved(MRVHtmlText::unescaped(all.mid(begin, end - begin)), page.document);
        body.append(all.data() + done, at - done);
        if (target.isEmpty()) { // and without the look of a link
            body += QLatin1String("<span class=\"unlinked\">");
            body.append(all.data() + tagEnd, close - tagEnd);
            body += QLatin1String("</span>");
            done = close + closing.size();
        } else {
            body += opening + target.toHtmlEscaped();
            done = end;
        }
    }
    body.append(all.data() + done, page.body.size() - done);
    return framed(page.title.isEmpty() ? title() : page.title, page.bodyTag, body).toUtf8();
}

QString MRVEPubBook::framed(const QString &pageTitle, const QString &bodyTag,
                            const QString &body) const
{
    const QString tag = language().toHtmlEscaped();
    QString text = QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n");
    if (version == MRVEPubVersion::EPub3) {
        text += QLatin1String("<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" "
                              "xmlns:epub=\"http://www.idpf.org/2007/ops\" lang=\"")
            + tag + QLatin1String("\" xml:lang=\"") + tag;
    } else {
        text += QLatin1String("<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.1//EN\" "
                              "\"http://www.w3.org/TR/xhtml11/DTD/xhtml11.dtd\">\n"
                              "<html xmlns=\"http://www.w3.org/1999/xhtml\" xml:lang=\"")
            + tag;
    }
    return text + QLatin1String("\">\n<head><title>") + pageTitle.toHtmlEscaped()
        + QLatin1String("</title>\n  <link rel=\"stylesheet\" href=\"css/stylesheet.css\" "
                        "type=\"text/css\" />\n</head>")
        + bodyTag + body + QLatin1String("</body></html>\n");
}

QByteArray MRVEPubBook::coverBytes() const
{
    QString body;
    const QString shownTitle = title().toHtmlEscaped();
    if (!metadata.cover.isEmpty()) {
        body = QLatin1String("\n<div class=\"cover\"><img src=\"") + pictures.constFirst().path
            + QLatin1String("\" alt=\"") + shownTitle + QLatin1String("\" /></div>\n");
    } else {
        body = QLatin1String("\n<div class=\"cover\">\n<h1 class=\"cover-title\">") + shownTitle
            + QLatin1String("</h1>\n");
        const QStringList names = authors();
        for (const QString &author : names) {
            body += QLatin1String("<p class=\"cover-author\">") + author.toHtmlEscaped()
                + QLatin1String("</p>\n");
        }
        body += QLatin1String("</div>\n");
    }
    const bool html5 = version == MRVEPubVersion::EPub3;
    return framed(title(),
                  html5 ? QStringLiteral("<body epub:type=\"cover\">") : QStringLiteral("<body>"),
                  body)
        .toUtf8();
}

QByteArray MRVEPubBook::styleSheet() const
{
    MRVTextXhtmlExporter::StyleList own = styles;
    for (QHash<QString, QString> &rules : own) {
        for (auto rule = rules.begin(); rule != rules.end();) {
            // A background picture is not in the package.
            rule = rule->contains(QLatin1String("url(")) ? rules.erase(rule) : ++rule;
        }
    }
    const QString text =
        MRVTextXhtmlExporter::styleSheetText(own)
        + QLatin1String(
            "img {\n    height: auto;\n    max-width: 100%;\n}\n"
            "nav ol {\n    list-style-type: none;\n}\n"
            ".unlinked, .unlinked span {\n    color: inherit;\n    text-decoration: none;\n}\n"
            ".cover {\n    text-align: center;\n}\n"
            ".cover img {\n    max-height: 95vh;\n}\n"
            ".cover-title {\n    margin-top: 25%;\n}\n"
            ".cover-author {\n    font-size: 120%;\n    margin-top: 2em;\n}\n");
    return text.toUtf8();
}

QString MRVEPubBook::title() const
{
    const QString own = mrvXmlText(metadata.title).simplified();
    return own.isEmpty() ? MRVEPubBook::tr("Untitled") : own;
}

QStringList MRVEPubBook::authors() const
{
    QStringList names;
    for (const QString &author : metadata.authors) {
        const QString name = mrvXmlText(author).simplified();
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    return names;
}

QString MRVEPubBook::language() const
{
    // Primary subtag and further ones (RFC 5646, section 2.1), without looking them up in the
    // registry.
    const QStringList subtags = metadata.language.split(u'-');
    for (int i = 0; i < subtags.size(); ++i) {
        const QString &subtag = subtags.at(i);
        bool ok = subtag.size() >= (i == 0 ? 2 : 1) && subtag.size() <= 8;
        for (const QChar c : subtag) {
            ok = ok && c.unicode() < 0x80 && (i == 0 ? c.isLetter() : c.isLetterOrNumber());
        }
        if (!ok) {
            return QStringLiteral("und");
        }
    }
    return metadata.language;
}
