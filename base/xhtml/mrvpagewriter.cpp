#include "xhtml/mrvpagewriter.h"

#include "core/mrvxmltext.h"
#include "xhtml/mrvhtmltext.h"

#include <QUrl>

namespace {

const QLatin1String EmptyParagraph("<br /></p>");
const QLatin1String ParagraphEnd("</p>");

bool isList(const QString &name)
{
    return name == QLatin1String("ul") || name == QLatin1String("ol");
}

QStringView tagName(QStringView tag)
{
    int begin = tag.size() > 1 && tag[1] == u'/' ? 2 : 1;
    int end = begin;
    while (end < tag.size() && (tag[end].isLetterOrNumber())) {
        ++end;
    }
    return tag.mid(begin, end - begin);
}

bool isHeading(QStringView name)
{
    return name.size() == 2 && name[0] == u'h' && name[1] >= u'1' && name[1] <= u'6';
}

} // namespace

MRVPageWriter::MRVPageWriter(ExportType type, MRVHtmlDialect dialect,
                             MRVTextXhtmlExporter::StyleList *styles)
    : m_type(type)
    , m_dialect(dialect)
{
    if (styles && type >= MRVTextXhtmlExporter::EPub) {
        m_classes = std::make_unique<MRVStyleClasses>(styles, true,
                                                      type == MRVTextXhtmlExporter::KindleKF8);
    }
}

QString MRVPageWriter::write(const QString &html, const QString &documentTitle,
                             const QString &title)
{
    m_page.reserve(html.size());
    const int body = html.indexOf(QLatin1String("<body"));
    writeHead(html, body, documentTitle, title);
    writeBody(QStringView(html).mid(body));
    m_rewritten.clear();
    m_spaced.clear();
    resolveLinks();
    return m_page;
}

void MRVPageWriter::writeHead(const QString &html, int end, const QString &documentTitle,
                              const QString &title)
{
    QString head = html.left(end);
    const QString own =
        QLatin1String("<title>") + documentTitle.toHtmlEscaped() + QLatin1String("</title>");
    int at = documentTitle.isEmpty() ? -1 : head.indexOf(own);
    if (at >= 0) {
        head.remove(at, own.size());
    } else {
        at = head.indexOf(QLatin1String("<style"));
    }
    const QString shown = mrvXmlText(at >= 0 && !documentTitle.isEmpty() ? documentTitle : title);
    // The title is prose, which the fix-ups must not see.
    QString start = chain(head.left(at));
    const QLatin1String root("<html ");
    if (!m_language.isEmpty() && start.contains(root)) {
        const QString attribute =
            QLatin1String("xml:lang=\"") + m_language.toHtmlEscaped() + QLatin1String("\" ");
        start.insert(start.indexOf(root) + root.size(), attribute);
    }
    m_page += start + QLatin1String("<title>") + shown.toHtmlEscaped() + QLatin1String("</title>")
        + chain(head.mid(at));
}

void MRVPageWriter::writeBody(QStringView html)
{
    const int size = int(html.size());
    int done = 0;
    while (done < size) {
        int begin = int(html.indexOf(u'<', done));
        begin = begin < 0 ? size : begin;
        appendText(html.mid(done, begin - done));
        if (begin == size) {
            break;
        }
        const int end = tagEnd(html, begin);
        done = end;
        const QChar first = html[begin + 1];
        if (first == u'/') {
            endTag(html, begin, end);
        } else if (first == u's') { // span
            m_page += rewritten(html.mid(begin, end - begin));
        } else if (first == u'b' && html[begin + 2] == u'r') {
            m_page.append(html.data() + begin, end - begin);
            m_paragraph.afterBlank = true;
        } else if (first == u'p' && html[begin + 2] != u'r') {
            done = paragraphEnd(html, end);
            startBlock(html, begin, done);
        } else if (first == u'a') {
            done = startAnchor(html, begin, end);
        } else {
            startTag(html, begin, end);
        }
    }
    while (!m_open.isEmpty()) {
        close();
    }
}

// One past the tag's end. A tag ends where another one begins.
int MRVPageWriter::tagEnd(QStringView html, int begin) const
{
    const QChar first = html[begin + 1];
    if (first == u's' || first == u'p' || first == u'/') { // no raw markup characters in these
        const int end = int(html.indexOf(u'>', begin));
        return end < 0 ? int(html.size()) : end + 1;
    }
    bool quoted = false;
    for (int i = begin + 1; i < html.size(); ++i) {
        const QChar c = html[i];
        quoted ^= c == u'"';
        if (!quoted && c == u'>') {
            return i + 1;
        }
        if (!quoted && c == u'<') {
            return i;
        }
    }
    return int(html.size());
}

// An empty paragraph is one unit with its tag, as some fix-ups look at both.
int MRVPageWriter::paragraphEnd(QStringView html, int end) const
{
    for (const QLatin1String &rest : {EmptyParagraph, ParagraphEnd}) {
        if (html.mid(end, rest.size()) == rest) {
            return end + rest.size();
        }
    }
    return end;
}

void MRVPageWriter::startTag(QStringView html, int begin, int end)
{
    const QStringView tag = html.mid(begin, end - begin);
    const QString name = tagName(tag).toString();
    if (name == QLatin1String("li")) {
        startItem(tag);
    } else if (name == QLatin1String("hr")) {
        startRule(html, begin, end);
    } else if (isList(name) || name == QLatin1String("table")) {
        enterBlock();
        startContainer(tag, name);
    } else if (name == QLatin1String("thead") || name == QLatin1String("tr")
               || name == QLatin1String("td")) {
        startContainer(tag, name);
    } else if (isHeading(name) || name == QLatin1String("pre")) {
        startBlock(html, begin, end);
    } else if (name == QLatin1String("img") && !tag.contains(QLatin1String(" src=\""))) {
        // A picture without a source has nothing to show but its text.
        mrvAppendXmlText(&m_page, MRVHtmlTag::parsed(tag).value(QLatin1String("alt")));
    } else {
        m_page += rewritten(tag);
    }
}

int MRVPageWriter::startAnchor(QStringView html, int begin, int end)
{
    const QLatin1String reference("<a href=\"");
    const QLatin1String named("<a name=\"");
    const QLatin1String anchorEnd("</a>");
    const QString tag = mrvXmlText(html.mid(begin, end - begin).toString());
    if (tag.startsWith(reference)) {
        const QString escaped = tag.mid(reference.size(), tag.size() - reference.size() - 2);
        const QString target = MRVHtmlText::unescaped(escaped);
        const auto replacement = m_replacedLinks.constFind(target);
        if (replacement != m_replacedLinks.constEnd()) {
            m_page += reference + replacement->toHtmlEscaped() + QLatin1String("\">");
            return end;
        }
        if (target.startsWith(u'#')) {
            m_links.append({m_page.size() + reference.size(), escaped.size(), target.mid(1)});
        }
        m_page += tag;
        return end;
    }
    const int after = html.mid(end, anchorEnd.size()) == anchorEnd ? end + anchorEnd.size() : end;
    const QString name =
        MRVHtmlText::unescaped(tag.mid(named.size(), tag.size() - named.size() - 2));
    if (after > end && (name.isEmpty() || m_ids.contains(name))) {
        return after; // Qt repeats the name of an anchor in each fragment: the first one counts
    }
    QString text = tag;
    MRVTextXhtmlExporter::convertAnchorNameToId(&text);
    if (text.startsWith(QLatin1String("<a id"))) {
        text = QLatin1String("<a id=\"") + uniqueId(name) + QLatin1String("\">");
    }
    m_page += text;
    m_page.append(html.data() + end, after - end);
    return after;
}

void MRVPageWriter::startItem(QStringView tag)
{
    endParagraph();
    if (topIs(QLatin1String("li"))) {
        closeItem();
    }
    if (m_open.isEmpty() || !isList(m_open.constLast().name)) {
        const QString list =
            m_suspended.isEmpty() ? QStringLiteral("<ul>") : m_suspended.takeLast();
        Open open;
        open.name = tagName(list).toString();
        open.tag = list;
        m_open.append(open);
        m_page += list;
    }
    startContainer(tag, QStringLiteral("li"));
    beginParagraph(m_open.constLast().offset, tag);
}

// Qt closes neither the list item that holds a rule nor, after the last one, the list.
void MRVPageWriter::startRule(QStringView html, int begin, int end)
{
    const bool inItem = topIs(QLatin1String("li")) && html[begin - 1] != u'\n';
    if (!inItem) {
        startBlock(html, begin, end);
        return;
    }
    m_page += rewritten(html.mid(begin, end - begin));
    closeItem();
    const int next = int(html.indexOf(u'<', end));
    const QString following = next < 0 ? QString() : tagName(html.mid(next)).toString();
    if (following != QLatin1String("li") && !isList(following)) {
        m_suspended.append(m_open.constLast().tag); // in case the list goes on later
        close();
    }
}

void MRVPageWriter::startBlock(QStringView html, int begin, int end)
{
    endParagraph();
    enterBlock();
    const QStringView unit = html.mid(begin, end - begin);
    if (tagName(unit) == QLatin1String("pre")) {
        const int close = int(html.indexOf(QLatin1String("</pre>"), end));
        m_preAsParagraph = html.mid(end, close - end).contains(QLatin1String("<img"));
        if (m_preAsParagraph) { // preformatted text holds no pictures
            MRVHtmlTag tag = MRVHtmlTag::parsed(unit);
            tag.name = QStringLiteral("p");
            tag.addStyle(QStringLiteral("white-space:pre;"));
            m_page += rewrite(tag.text(), QString());
            return;
        }
    } else {
        beginParagraph(m_page.size(), unit);
    }
    m_page += rewritten(unit);
}

void MRVPageWriter::beginParagraph(int offset, QStringView tag)
{
    m_paragraph = Paragraph();
    m_paragraph.offset = offset;
    m_paragraph.tag = tag;
}

void MRVPageWriter::appendText(QStringView text)
{
    mrvAppendXmlText(&m_page, text);
    if (m_paragraph.offset >= 0 && !m_paragraph.spaced && !text.isEmpty()) {
        m_paragraph.spaced =
            (m_paragraph.afterBlank && text.front() == u' ') || MRVHtmlText::hasWideSpace(text);
        m_paragraph.afterBlank = text.back() == u' ';
    }
}

// The fix-ups remove Qt's rule for white space from the page: a paragraph that needs it gets it
// back.
void MRVPageWriter::endParagraph()
{
    const Paragraph paragraph = m_paragraph;
    m_paragraph = Paragraph();
    if (!paragraph.spaced || !paragraph.tag.endsWith(u'>')) {
        return;
    }
    auto known = m_spaced.constFind(paragraph.tag);
    if (known == m_spaced.constEnd()) {
        MRVHtmlTag tag = MRVHtmlTag::parsed(paragraph.tag);
        tag.addStyle(QStringLiteral("white-space:pre-wrap;"));
        known = m_spaced.insert(paragraph.tag, rewrite(tag.text(), QString()));
    }
    const int before = rewritten(paragraph.tag).size();
    m_page.replace(paragraph.offset, before, *known);
    for (int i = m_links.size() - 1; i >= 0 && m_links.at(i).offset > paragraph.offset; --i) {
        m_links[i].offset += known->size() - before;
    }
}

void MRVPageWriter::startContainer(QStringView tag, const QString &name)
{
    endParagraph();
    Open open;
    open.name = name;
    open.offset = m_page.size();
    QString cellStyle;
    if (m_dialect == MRVHtmlDialect::Html5 && name == QLatin1String("table")) {
        open.cellStyle = mrvCellStyle(tag);
    } else if (m_dialect == MRVHtmlDialect::Html5 && name == QLatin1String("td")) {
        for (int i = m_open.size() - 1; i >= 0; --i) {
            if (m_open.at(i).name == QLatin1String("table")) {
                cellStyle = m_open.at(i).cellStyle;
                break;
            }
        }
    }
    const bool interrupted = !tag.endsWith(u'>');
    if (interrupted) {
        open.tag = rewrite(tag.toString() + u'>', cellStyle);
    } else {
        open.tag = cellStyle.isEmpty() ? rewritten(tag) : rewrite(tag.toString(), cellStyle);
    }
    m_page += open.tag;
    m_open.append(open);
}

// A block that stands between the items of a list belongs to the item before it.
void MRVPageWriter::enterBlock()
{
    if (m_open.isEmpty() || !isList(m_open.constLast().name)) {
        return;
    }
    const QLatin1String itemEnd("</li>");
    if (m_itemEnd >= 0 && QStringView(m_page).mid(m_itemEnd).trimmed().isEmpty()) {
        m_page.remove(m_itemEnd - itemEnd.size(), itemEnd.size());
    } else {
        m_page += QLatin1String("<li>");
    }
    Open item;
    item.name = QStringLiteral("li");
    m_open.append(item);
}

void MRVPageWriter::endTag(QStringView html, int begin, int end)
{
    const QStringView tag = html.mid(begin, end - begin);
    const QStringView name = tagName(tag);
    const QLatin1String inlines[] = {QLatin1String("span"), QLatin1String("p"), QLatin1String("a")};
    if (name != inlines[0] && name != inlines[2]) {
        endParagraph();
    }
    if (name == inlines[0] || name == inlines[1] || name == inlines[2] || isHeading(name)) {
        m_page.append(tag.data(), int(tag.size()));
    } else if (name == QLatin1String("pre")) {
        m_page += m_preAsParagraph ? ParagraphEnd : QLatin1String("</pre>");
        m_preAsParagraph = false;
    } else if (name == QLatin1String("body") || name == QLatin1String("html")) {
        while (!m_open.isEmpty()) {
            close();
        }
        m_page.append(tag.data(), int(tag.size()));
    } else if (name == QLatin1String("li")) {
        if (topIs(QLatin1String("li"))) {
            closeItem();
        }
    } else if (name == QLatin1String("thead")) {
        endHeaderRows(html.mid(end));
    } else {
        endContainer(name.toString());
    }
}

void MRVPageWriter::endContainer(const QString &name)
{
    int index = m_open.size() - 1;
    while (index >= 0 && m_open.at(index).name != name) {
        // A list ends in the cell that it began in.
        index = isList(name) && m_open.at(index).name == QLatin1String("td") ? -1 : index - 1;
    }
    if (index < 0) {
        if (!m_suspended.isEmpty() && tagName(m_suspended.constLast()) == name) {
            m_suspended.removeLast();
        }
        return;
    }
    while (m_open.size() > index + 1) {
        if (isList(m_open.constLast().name)) {
            m_suspended.append(m_open.constLast().tag);
        }
        close();
    }
    close();
}

// A table is either rows alone, or header rows followed by a body.
void MRVPageWriter::endHeaderRows(QStringView rest)
{
    const Open head = m_open.isEmpty() ? Open() : m_open.constLast();
    if (head.name != QLatin1String("thead")) {
        return;
    }
    m_open.removeLast();
    if (rest.trimmed().startsWith(QLatin1String("<tr"))) {
        m_page += QLatin1String("</thead><tbody>");
        m_open.last().hasBody = true;
    } else {
        const QLatin1String body("<tbody>");
        m_page.replace(head.offset, body.size(), body);
        m_page += QLatin1String("</tbody>");
    }
}

bool MRVPageWriter::topIs(QLatin1String name) const
{
    return !m_open.isEmpty() && m_open.constLast().name == name;
}

void MRVPageWriter::close()
{
    static const QString hiddenCell = QStringLiteral("<td style=\"display:none;\">");
    const Open open = m_open.takeLast();
    if (open.hasBody) {
        m_page += QLatin1String("</tbody>");
    } else if (open.name == QLatin1String("tr") && m_page.endsWith(open.tag)) {
        // All its cells are covered by cells above, but a row must have one.
        m_page += rewritten(hiddenCell) + QLatin1String("</td>");
    }
    m_page += QLatin1String("</") + open.name + u'>';
}

void MRVPageWriter::closeItem()
{
    close();
    m_itemEnd = m_page.size();
}

const QString &MRVPageWriter::rewritten(QStringView unit)
{
    auto known = m_rewritten.constFind(unit);
    if (known == m_rewritten.constEnd()) {
        known = m_rewritten.insert(unit, rewrite(unit.toString(), QString()));
    }
    return *known;
}

QString MRVPageWriter::rewrite(const QString &unit, const QString &cellStyle)
{
    QString text = mrvNormalisedTag(mrvXmlText(unit));
    if (text.startsWith(QLatin1String("<img"))) {
        // Its texts are prose, which the fix-ups of styles must not see.
        text = MRVTextXhtmlExporter::htmlToXhtml(text);
    } else {
        text = chain(text);
    }
    text = mrvValidTag(text, m_dialect, cellStyle);
    if (m_classes) {
        m_classes->convert(&text);
    }
    if (m_dialect == MRVHtmlDialect::Html5) {
        MRVHtmlText::replaceAll(&text, QLatin1String("&nbsp;"), QLatin1String("&#160;"));
    }
    return text;
}

QString MRVPageWriter::chain(const QString &text) const
{
    return m_type == MRVTextXhtmlExporter::Xhtml ? MRVTextXhtmlExporter::htmlToXhtml(text)
                                                 : MRVTextXhtmlExporter::htmlToEBook(text);
}

QString MRVPageWriter::uniqueId(const QString &name)
{
    const QString id = m_uniqueIds.idFor(name);
    m_ids.insert(name, id);
    return id;
}

void MRVPageWriter::resolveLinks()
{
    QString page;
    int done = 0;
    for (const Link &link : qAsConst(m_links)) {
        auto id = m_ids.constFind(link.anchor);
        if (id == m_ids.constEnd()) {
            id = m_ids.constFind(QUrl::fromPercentEncoding(link.anchor.toUtf8()));
        }
        if (id == m_ids.constEnd() || *id == link.anchor) {
            continue;
        }
        page.append(m_page.constData() + done, link.offset - done);
        page.append(u'#' + *id);
        done = link.offset + link.length;
    }
    if (done > 0) {
        page.append(m_page.constData() + done, m_page.size() - done);
        m_page = page;
    }
}
