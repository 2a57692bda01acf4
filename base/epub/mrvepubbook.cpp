#include "epub/mrvepubbook_p.h"

#include "core/mrvxmltext.h"
#include "document/mtextdoc.h"
#include "epub/mrvepubmarkup_p.h"
#include "epub/mrvepubstyles_p.h"
#include "gui/mrvguiutil.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"
#include "util/mrvprogress.h"

#include <QFileInfo>
#include <QLocale>
#include <QSet>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QTranslator>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int LowestNotes = 4; // of six, for headings of chapters and of what they call notes

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
                              MRVProgressMeter *meter, MRVErrorSink error)
{
    const MRVDocumentPictures shown(document, meter);
    if (meter->isCancelled()) {
        return MRV::fail(error, MRVProgressMeter::cancelled());
    }
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
            return MRV::fail(error, missing.kind,
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

bool MRVEPubBook::addAllPictures(const QTextDocument &document, QHash<QString, QString> *references,
                                 MRVProgressMeter *meter, MRVErrorSink error)
{
    const QVector<MRVEPubFile> picturesBefore = pictures;
    const QHash<QByteArray, QString> pathsBefore = picturePaths;
    if (addPictures(document, references, meter, error)) {
        return true;
    }
    pictures = picturesBefore;
    picturePaths = pathsBefore;
    return false;
}

void MRVEPubBook::addPage(const MRVEPubPage &page)
{
    pages.insert(documentEnd(), page);
}

void MRVEPubBook::addPart(const QString &partTitle)
{
    const bool isFirst = pages.isEmpty();
    const bool isEPub3 = version == MRVEPubVersion::EPub3;
    hasParts = true;
    const QString text = mrvXmlText(partTitle).simplified();
    MRVEPubPage page;
    page.fileName = QStringLiteral("page-%1.xhtml").arg(++pageNumber, 3, 10, QChar(u'0'));
    page.title = text;
    page.type = QStringLiteral("part");
    const QString id = uniqueIds.idFor(QStringLiteral("part"));
    page.body = (isEPub3 ? "<section epub:type=\"part\" role=\"doc-part\">\n" : QByteArray())
        + "<h1 id=\"" + id.toUtf8() + "\">" + mrvEPubValue(text) + "</h1>\n";
    page.end = isEPub3 ? "</section>\n" : QByteArray();
    addPage(page);
    isPartOpen = true;
    headings.append({text, page.fileName + u'#' + id, 0});
    if (isFirst) {
        addTitlePage();
    }
}

void MRVEPubBook::addTitlePage()
{
    const bool hasTitle = !pages.isEmpty()
        && (pages.constFirst().type == QLatin1String("titlepage")
            || pages.constFirst().title.compare(title(), Qt::CaseInsensitive) == 0);
    if (hasTitle || metadata.title.isEmpty()) {
        return;
    }
    MRVEPubPage page;
    page.fileName = QStringLiteral("title.xhtml");
    page.title = title();
    page.type = QStringLiteral("titlepage");
    page.body = titleBody();
    pages.prepend(page);
}

QByteArray MRVEPubBook::titleBody() const
{
    const bool isEPub3 = version == MRVEPubVersion::EPub3;
    QByteArray body =
        isEPub3 ? "<section class=\"cover\" epub:type=\"titlepage\">\n" : "<div class=\"cover\">\n";
    body += "<h1 class=\"cover-title\">" + mrvEPubValue(title()) + "</h1>\n";
    const QString subtitle = mrvXmlText(metadata.subtitle).simplified();
    if (!subtitle.isEmpty()) {
        body += QByteArray("<p class=\"cover-subtitle\"")
            + (isEPub3 ? " role=\"doc-subtitle\">" : ">") + mrvEPubValue(subtitle) + "</p>\n";
    }
    const QStringList names = authors();
    for (const QString &author : names) {
        body += "<p class=\"cover-author\">" + mrvEPubValue(author) + "</p>\n";
    }
    const QString publisher = mrvXmlText(metadata.publisher).simplified();
    if (!publisher.isEmpty()) {
        body += "<p class=\"cover-publisher\">" + mrvEPubValue(publisher) + "</p>\n";
    }
    return body + (isEPub3 ? "</section>\n" : "</div>\n");
}

MRVEPubPage MRVEPubBook::beginPage()
{
    MRVEPubPage page;
    if (std::exchange(isPartOpen, false)) {
        page = pages.takeAt(documentEnd() - 1);
    } else {
        page.fileName = QStringLiteral("page-%1.xhtml").arg(++pageNumber, 3, 10, QChar(u'0'));
    }
    return page;
}

MRVEPubPage MRVEPubBook::adoptNotes(MRVEPubPage *chapter, int level)
{
    if (options.notes != MRVEPubOptions::BookNotes || areNotesInChapter
        || chapter->type != QLatin1String("endnotes")) {
        return MRVEPubPage();
    }
    const MRVEPubPage others = notesLevel > 0 ? pages.takeLast() : MRVEPubPage();
    areNotesInChapter = true;
    notesLevel = qMin(level, LowestNotes);
    chapter->fileName = NotesPage;
    return others;
}

MRVEPubPage MRVEPubBook::beginNotes(int level)
{
    MRVEPubPage page;
    page.fileName = NotesPage;
    page.title = text(QT_TRANSLATE_NOOP("MRVEPubBook", "Notes"));
    page.type = QStringLiteral("endnotes");
    if (notesLevel == 0) {
        const bool isEPub3 = version == MRVEPubVersion::EPub3;
        notesLevel = qBound(1, level, LowestNotes);
        const QByteArray tag = 'h' + QByteArray::number(notesLevel);
        MRVEPubPage first = page;
        first.begin =
            (isEPub3 ? "<section epub:type=\"endnotes\" role=\"doc-endnotes\">\n" : "<div>\n")
            + ('<' + tag + '>' + mrvEPubValue(page.title) + "</" + tag + ">\n");
        first.end = isEPub3 ? "</section>\n" : "</div>\n";
        pages.append(first);
    }
    return page;
}

void MRVEPubBook::addNotes(const MRVEPubPage &page)
{
    const auto last = std::find_if(pages.rbegin(), pages.rend(), [](const MRVEPubPage &one) {
        return one.fileName == NotesPage;
    });
    for (MRVEPubHole hole : page.holes) {
        hole.offset += last->body.size();
        hole.extra += hole.extra < 0 ? 0 : last->attributes.size();
        last->holes.append(hole);
    }
    last->body += page.body;
    last->attributes += page.attributes;
}

QVector<MRVEPubEntry> MRVEPubBook::contents() const
{
    QVector<MRVEPubEntry> entries;
    QVector<int> open;
    QVector<MRVEPubEntry> all = headings;
    if (notesLevel > 0 && !areNotesInChapter && !all.isEmpty()) {
        const MRVEPubPage &notesPage = pages.constLast();
        all.append({notesPage.title, NotesPage, hasParts ? 0 : notesLevel - 1});
    }
    for (MRVEPubEntry entry : qAsConst(all)) {
        while (!open.isEmpty() && open.constLast() >= entry.depth) {
            open.removeLast();
        }
        open.append(entry.depth);
        entry.depth = open.size() - 1;
        if (options.contentsDepth <= 0 || entry.depth < options.contentsDepth) {
            entries.append(entry);
        }
    }
    if (!headings.isEmpty()) {
        return entries;
    }
    for (const MRVEPubPage &page : pages) {
        if (page.type != QLatin1String("titlepage")) {
            const bool isNotes = page.fileName == NotesPage;
            const QString name =
                text(QT_TRANSLATE_NOOP("MRVEPubBook", "Section %1")).arg(entries.size() + 1);
            entries.append({isNotes ? page.title : name, page.fileName, 0});
        }
    }
    if (entries.size() == (notesLevel > 0 ? 2 : 1)) {
        entries.first().text = title();
    }
    return entries;
}

QStringList MRVEPubBook::deadLinks() const
{
    QStringList dead;
    for (const MRVEPubAddress &link : links) {
        if (resolved(link.address, link.document).isEmpty()) {
            dead.append(link.address);
        }
    }
    dead.removeDuplicates();
    return dead;
}

// Empty where the link leads to a place outside the book that a reader cannot open.
QString MRVEPubBook::resolved(const QString &href, int document) const
{
    const int hash = href.indexOf(u'#');
    const QString anchor = hash < 0 ? QString() : href.mid(hash + 1);
    const QString file = linkedFile(href, anchors.at(document).path);
    const int linked = hash == 0 ? document : documents.value(file, -1);
    const QString plate = plates.value(file);
    if (!plate.isEmpty()) {
        return plate;
    }
    if (linked >= 0) {
        const MRVEPubAnchors &there = anchors.at(linked);
        const QString target = there.targets.value(anchor);
        return anchor.isEmpty() ? there.firstPage
            : target.isEmpty()  ? there.targets.value(QUrl::fromPercentEncoding(anchor.toUtf8()))
                                : target;
    }
    const bool hasScheme = !href.startsWith(QLatin1String("//"));
    const QUrl url(hasScheme ? href : QLatin1String("https:") + href, QUrl::TolerantMode);
    const QString scheme = url.scheme();
    const bool web = (scheme == QLatin1String("http") || scheme == QLatin1String("https")
                      || scheme == QLatin1String("ftp"))
        && !url.host().isEmpty();
    const bool mail = scheme == QLatin1String("mailto") || scheme == QLatin1String("tel");
    return url.isValid() && (web || mail) ? QString::fromLatin1(url.toEncoded()) : QString();
}

QByteArray MRVEPubBook::pageBytes(const MRVEPubPage &page) const
{
    QByteArray bytes =
        head(page.title.isEmpty() ? title() : page.title).toUtf8() + "<body>\n" + page.begin;
    bytes.reserve(bytes.size() + page.body.size() + 40 * page.holes.size());
    int done = 0;
    for (const MRVEPubHole &hole : page.holes) {
        bytes.append(page.body.constData() + done, hole.offset - done);
        done = hole.offset;
        bytes += hole.kind == MRVEPubHole::Class ? classAttribute(page, hole) : linkTag(page, hole);
    }
    bytes.append(page.body.constData() + done, page.body.size() - done);
    return bytes + page.end + "</body>\n</html>\n";
}

QByteArray MRVEPubBook::classAttribute(const MRVEPubPage &page, const MRVEPubHole &hole) const
{
    QByteArray names = classes.at(hole.value);
    const auto add = [&names](const QByteArray &name) {
        names += names.isEmpty() ? name : ' ' + name;
    };
    if (hole.extra >= 0) {
        add(page.attributes.at(hole.extra));
    }
    if (hole.flags & MRVEPubHole::Spaced) {
        add("spaced");
    }
    if (hole.flags & (MRVEPubHole::Open | MRVEPubHole::Done)) {
        add(hole.flags & MRVEPubHole::Done ? "checked" : "unchecked");
    }
    if (hole.flags & MRVEPubHole::SceneBreak) {
        add("scene-break");
    }
    return names.isEmpty() ? names : " class=\"" + names + '"';
}

// A link that leads nowhere is text, with the id that it has.
QByteArray MRVEPubBook::linkTag(const MRVEPubPage &page, const MRVEPubHole &hole) const
{
    const MRVEPubAddress &link = links.at(hole.value);
    QString target = resolved(link.address, link.document);
    if (target.startsWith(page.fileName + u'#')) {
        target.remove(0, page.fileName.size());
    }
    const QByteArray attributes = hole.extra < 0 ? QByteArray() : page.attributes.at(hole.extra);
    const bool hasElement = attributes.startsWith(" id=");
    if (hole.kind == MRVEPubHole::LinkEnd) {
        return !target.isEmpty() ? "</a>" : hasElement ? "</span>" : "";
    }
    if (!target.isEmpty()) {
        const QByteArray title =
            link.title.isEmpty() ? QByteArray() : " title=\"" + mrvEPubValue(link.title) + '"';
        return "<a" + attributes + " href=\"" + mrvEPubValue(target) + '"' + title + '>';
    }
    return hasElement ? "<span" + attributes + '>' : QByteArray();
}

QString MRVEPubBook::head(const QString &pageTitle) const
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
    if (QLocale(language()).textDirection() == Qt::RightToLeft) {
        text += QLatin1String("\" dir=\"rtl");
    }
    return text + QLatin1String("\">\n<head>\n<title>") + mrvXmlText(pageTitle).toHtmlEscaped()
        + QLatin1String("</title>\n<link rel=\"stylesheet\" href=\"css/stylesheet.css\" "
                        "type=\"text/css\" />\n</head>\n");
}

QString MRVEPubBook::framed(const QString &pageTitle, const QString &bodyTag,
                            const QString &body) const
{
    return head(pageTitle) + bodyTag + body + QLatin1String("</body>\n</html>\n");
}

QByteArray MRVEPubBook::coverBytes() const
{
    const QByteArray body = metadata.cover.isEmpty()
        ? titleBody()
        : "<div class=\"cover\"><img src=\"" + mrvEPubValue(pictures.constFirst().path)
            + "\" alt=\"" + mrvEPubValue(title()) + "\" /></div>\n";
    const bool isEPub3 = version == MRVEPubVersion::EPub3;
    return head(title()).toUtf8() + (isEPub3 ? "<body epub:type=\"cover\">\n" : "<body>\n") + body
        + "</body>\n</html>\n";
}

QByteArray MRVEPubBook::styleSheet() const
{
    const QByteArray own = QString::fromUtf8(options.styleSheet).toUtf8();
    return mrvEPubBaseSheet(own.isEmpty() ? options.styleBase : MRVEPubOptions::NoStyle)
        + "\n/* The looks of this book */\n\n" + looks.rules(options.textWidth)
        + (own.isEmpty() ? own : "\n/* The sheet that was asked for */\n\n" + own);
}

QString MRVEPubBook::title() const
{
    const QString own = mrvXmlText(metadata.title).simplified();
    return own.isEmpty() ? text(QT_TRANSLATE_NOOP("MRVEPubBook", "Untitled")) : own;
}

QString MRVEPubBook::text(const char *source) const
{
    if (QLocale(language()).language() == QLocale::English) {
        return QString::fromUtf8(source);
    }
    const QString own = translator ? translator->translate("MRVEPubBook", source) : QString();
    return own.isEmpty() ? MRVEPubBook::tr(source) : own;
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
