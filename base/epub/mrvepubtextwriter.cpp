#include "epub/mrvepubwriter_p.h"

#include "document/mrvmarginnotes.h"
#include "textformat/mrvtextformat.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>

#include <algorithm>

namespace {

struct InlineElement
{
    MRVEPubInline kind;
    const char *epub3;
    const char *epub2;
};

// In the order in which they are opened.
constexpr InlineElement inlineElements[] = {
    {MRVEPubInline::Direction, "", ""}, // has tags of its own
    {MRVEPubInline::Link, "a", "a"},
    {MRVEPubInline::Span, "span", "span"},
    {MRVEPubInline::Strong, "strong", "strong"},
    {MRVEPubInline::Emphasis, "em", "em"},
    {MRVEPubInline::Code, "code", "code"},
    {MRVEPubInline::Mark, "mark", "span"},
    {MRVEPubInline::Strike, "s", "del"},
    {MRVEPubInline::Raised, "sup", "sup"},
    {MRVEPubInline::Lowered, "sub", "sub"},
};

const InlineElement &inlineElement(MRVEPubInline kind)
{
    return inlineElements[int(kind)];
}

uint bit(MRVEPubInline kind)
{
    return 1U << int(kind);
}

// The number of a page of the printed edition that an anchor is named after; empty: none.
QString printedPage(const QString &name)
{
    static const QRegularExpression page(
        QStringLiteral("^(?:page|pg|seite|pagina)[-_. ]?(\\d{1,5}[a-z]?|[ivxlcdm]{1,9})$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = page.match(name);
    QString label = match.captured(1);
    while (label.size() > 1 && label.at(0) == u'0' && label.at(1).isDigit()) {
        label.remove(0, 1);
    }
    return label;
}

} // namespace

// Returns whether the text holds white space that a browser would swallow.
bool MRVEPubWriter::writeText(int paragraph, const MRVEPubContext &context)
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const int end = m_flow.paragraphs.at(paragraph + 1).firstFragment;
    m_isSpaced = false;
    m_isAfterBlank = true;
    if (!m_itemLabel.isEmpty()) {
        const bool isRight = direction() == Qt::RightToLeft;
        m_out.append(isRight ? QLatin1String("<span class=\"marker-right\">")
                             : QLatin1String("<span class=\"marker\">"));
        m_out.appendText(std::exchange(m_itemLabel, QString()), QLatin1String(), false);
        m_out.append(QLatin1String("</span> "));
    }
    int position = place.position;
    for (int i = place.firstFragment; i < end; ++i) {
        if (m_book.options.commentsAsNotes
            && m_formats.text(m_flow.fragments.at(i).format).isComment) {
            const int last = writeAnnotationMark(i, end, position);
            for (; i < last; ++i) {
                position += m_flow.fragments.at(i).length;
            }
        } else {
            writeFragment(i, end, position, context);
        }
        position += m_flow.fragments.at(i).length;
        writeMarginMark(position);
    }
    closeElements(0);
    return m_isSpaced;
}

// Puts a mark in the place of an annotation; returns its last fragment.
int MRVEPubWriter::writeAnnotationMark(int fragment, int end, int position)
{
    int last = fragment;
    while (last + 1 < end && m_formats.text(m_flow.fragments.at(last + 1).format).isComment) {
        ++last;
    }
    writeCommentMark({position, fragment, last + 1, 0, {}, {}, {}});
    return last;
}

void MRVEPubWriter::readMarginComments()
{
    const QVector<MRVMarginNote> notes = MRVMarginNotes::all(&m_flow.document);
    for (const MRVMarginNote &note : notes) {
        if (note.kind == MRVMarginNote::Comment && !note.text.isEmpty()) {
            const QString author =
                note.author.isEmpty() ? QString() : note.author + QLatin1String(": ");
            m_marginComments.insert(note.range.end(), author + note.text);
        }
    }
}

// After the text that a comment in the margin is about.
void MRVEPubWriter::writeMarginMark(int position)
{
    const auto comment = m_marginComments.constFind(position);
    if (comment != m_marginComments.constEnd()) {
        writeCommentMark({0, 0, 0, 0, {}, {}, *comment});
    }
}

void MRVEPubWriter::writeCommentMark(Comment comment)
{
    comment.number = ++m_book.comments;
    const QByteArray number = QByteArray::number(comment.number);
    comment.id = uniqueId(QLatin1String("comment-") + QString::fromLatin1(number));
    const QByteArray mark = uniqueId(QLatin1String("comment-mark-") + QString::fromLatin1(number));
    const bool isHere = m_book.options.notes == MRVEPubOptions::ChapterNotes;
    const QString page = isHere ? QString() : QString(MRVEPubBook::NotesPage);
    comment.mark = (isHere ? QByteArray() : m_page.fileName.toUtf8()) + '#' + mark;
    closeElements(0);
    m_out.append("<a id=\"" + mark + '"');
    m_out.append(element(" epub:type=\"noteref\" role=\"doc-noteref\"", ""));
    m_out.append(" href=\"" + page.toUtf8() + '#' + comment.id + "\">[" + number + "]</a>");
    m_comments.append(comment);
    m_isAfterBlank = false;
}

void MRVEPubWriter::writeComment(const Comment &comment)
{
    m_out.append(
        element("<aside epub:type=\"footnote\" role=\"doc-footnote\"", "<div class=\"note\""));
    m_out.append(" id=\"" + comment.id + "\"><p>");
    m_out.append(QLatin1String("<a"));
    m_out.append(element(" role=\"doc-backlink\"", ""));
    m_out.append(" href=\"" + comment.mark + "\">[" + QByteArray::number(comment.number)
                 + "]</a> ");
    m_out.appendText(QString(comment.text).replace(u'\n', QChar::LineSeparator),
                     QLatin1String("<br />"), true);
    int position = comment.position;
    for (int i = comment.begin; i < comment.end; ++i) {
        writeFragment(i, comment.end, position, MRVEPubContext());
        position += m_flow.fragments.at(i).length;
    }
    closeElements(0);
    m_out.append(QLatin1String("</p>"));
    m_out.append(element("</aside>\n", "</div>\n"));
}

void MRVEPubWriter::writeFragment(int index, int end, int position, const MRVEPubContext &context)
{
    const MRVFlowFragment &fragment = m_flow.fragments.at(index);
    const MRVEPubTextFormat &format = m_formats.text(fragment.format);
    const Needs needs = needsOf(fragment.format, context);
    closeUnfit(needs);
    QByteArray id;
    if (format.hasNames) {
        writePageBreaks(fragment.format);
        id = takeId(fragment.format);
    }
    if (needs.elements & ~openElements() & bit(MRVEPubInline::Link)) {
        beginLink(index, end, needs, context);
        openLink(needs.link, position, &id);
    }
    if (format.hasNames && !format.isPicture) {
        for (id = id.isEmpty() ? takeId(fragment.format) : id; !id.isEmpty();
             id = takeId(fragment.format)) {
            m_out.append("<span id=\"" + id + "\"></span>");
        }
    }
    addElements(needs);
    if (format.isPicture) {
        writePicture(fragment, id);
        m_isAfterBlank = false;
        return;
    }
    const QStringView text = QStringView(m_flow.text).mid(position, fragment.length);
    m_isSpaced = m_out.appendText(text, QLatin1String("<br />"), m_isAfterBlank) || m_isSpaced;
    m_isAfterBlank = text.back() == u' ' || text.back() == QChar::LineSeparator;
}

bool MRVEPubWriter::Needs::include(const Element &element) const
{
    switch (element.kind) {
    case MRVEPubInline::Link:
        return element.link == link;
    case MRVEPubInline::Span:
        return element.attributes == span;
    default:
        return elements & bit(element.kind);
    }
}

MRVEPubWriter::Needs MRVEPubWriter::needsOf(int index, const MRVEPubContext &context)
{
    const MRVEPubTextFormat &format = m_formats.text(index);
    Needs needs;
    needs.span = m_formats.span(index, context);
    needs.directions = format.directions;
    needs.link = format.address.isEmpty() ? -1 : linkNumber(format);
    needs.elements = format.elements;
    needs.elements |= format.isBold && !context.isBold ? bit(MRVEPubInline::Strong) : 0;
    needs.elements &= context.isCode ? ~bit(MRVEPubInline::Code) : ~0U;
    needs.elements |= needs.link >= 0 ? bit(MRVEPubInline::Link) : 0;
    needs.elements |= needs.span.isEmpty() ? 0 : bit(MRVEPubInline::Span);
    return needs;
}

uint MRVEPubWriter::openElements() const
{
    uint open = 0;
    for (const Element &element : m_elements) {
        open |= bit(element.kind);
    }
    return open;
}

int MRVEPubWriter::openDirections() const
{
    return int(std::count_if(m_elements.begin(), m_elements.end(),
                             [](const Element &element) { return element.direction; }));
}

// How many of the open elements may stay around what needs these.
int MRVEPubWriter::fittingElements(const Needs &needs) const
{
    int fitting = 0;
    int level = 0;
    for (; fitting < m_elements.size(); ++fitting) {
        const Element &element = m_elements.at(fitting);
        const bool fits = element.direction
            ? needs.directions.value(level++, nullptr) == element.direction
            : needs.include(element);
        if (!fits) {
            break;
        }
    }
    return fitting;
}

// A direction that begins stands around everything but links, since it must not be closed before it
// ends: two of them beside each other are read in another order than one.
void MRVEPubWriter::closeUnfit(const Needs &needs)
{
    closeElements(fittingElements(needs));
    const auto isOuter = [](const Element &element) {
        return element.direction || element.kind == MRVEPubInline::Link;
    };
    if (!needs.directions.isEmpty() && needs.directions.size() > openDirections()) {
        const auto inner = std::find_if_not(m_elements.cbegin(), m_elements.cend(), isOuter);
        closeElements(int(inner - m_elements.cbegin()));
    }
}

// Opens what is needed beside what is open.
void MRVEPubWriter::addElements(const Needs &needs)
{
    if (!needs.directions.isEmpty()) {
        addDirections(needs.directions);
    }
    const uint missing = needs.elements & ~openElements();
    for (int kind = int(MRVEPubInline::Span); missing >> kind != 0; ++kind) {
        if (missing & (1U << kind)) {
            const InlineElement &row = inlineElements[kind];
            const bool isSpan = row.kind == MRVEPubInline::Span;
            m_out.append('<');
            m_out.append(element(row.epub3, row.epub2));
            m_out.append(isSpan ? needs.span : QByteArray());
            m_out.append('>');
            m_elements.append({row.kind, -1, isSpan ? needs.span : QByteArray(), nullptr});
        }
    }
}

void MRVEPubWriter::addDirections(const QVector<const MRVEPubDirection *> &directions)
{
    for (int level = openDirections(); level < directions.size(); ++level) {
        m_out.append(QLatin1String(directions.at(level)->begin));
        m_elements.append({MRVEPubInline::Direction, -1, QByteArray(), directions.at(level)});
    }
}

// Closes what does not go on to the end of the link that begins with a fragment, so that it is one
// element, and opens the directions that do.
void MRVEPubWriter::beginLink(int index, int end, const Needs &needs, const MRVEPubContext &context)
{
    int common = m_elements.size();
    QVector<const MRVEPubDirection *> directions = needs.directions;
    const MRVEPubTextFormat first = m_formats.text(m_flow.fragments.at(index).format);
    for (int i = index; i < end && (common > 0 || !directions.isEmpty()); ++i) {
        const int format = m_flow.fragments.at(i).format;
        const MRVEPubTextFormat &text = m_formats.text(format);
        if (text.address != first.address || text.linkTitle != first.linkTitle) {
            break;
        }
        const Needs inside = needsOf(format, context);
        common = qMin(common, fittingElements(inside));
        const auto differ = std::mismatch(directions.begin(), directions.end(),
                                          inside.directions.begin(), inside.directions.end());
        directions.resize(int(differ.first - directions.begin()));
    }
    closeElements(common);
    addDirections(directions);
}

void MRVEPubWriter::openLink(int link, int position, QByteArray *id)
{
    QByteArray attributes;
    if (!id->isEmpty()) {
        attributes = " id=\"" + *id + '"';
        id->clear();
    }
    const int note = m_notes.ofMark(position);
    if (note >= 0) {
        attributes += m_isEPub3 ? " epub:type=\"noteref\" role=\"doc-noteref\"" : "";
        if (m_notes.all().at(note).isMoved && !m_isNoteWritten.value(note)) {
            m_pageNotes.append(note);
            m_isNoteWritten.insert(note, true);
        }
    } else if (m_isEPub3 && m_notes.isBackLink(position)) {
        attributes += " role=\"doc-backlink\"";
    }
    m_linkAttributes = -1;
    if (!attributes.isEmpty()) {
        m_linkAttributes = m_page.attributes.size();
        m_page.attributes.append(attributes);
    }
    m_page.holes.append({m_out.size(), MRVEPubHole::LinkBegin, link, 0, m_linkAttributes});
    m_elements.append({MRVEPubInline::Link, link, QByteArray(), nullptr});
}

void MRVEPubWriter::closeElements(int count)
{
    while (m_elements.size() > count) {
        const Element element = m_elements.takeLast();
        if (element.direction) {
            m_out.append(QLatin1String(element.direction->end));
            continue;
        }
        if (element.kind == MRVEPubInline::Link) {
            m_page.holes.append(
                {m_out.size(), MRVEPubHole::LinkEnd, element.link, 0, m_linkAttributes});
            continue;
        }
        const InlineElement &row = inlineElement(element.kind);
        m_out.append(QLatin1String("</"));
        m_out.append(this->element(row.epub3, row.epub2));
        m_out.append('>');
    }
}

int MRVEPubWriter::linkNumber(const MRVEPubTextFormat &format)
{
    const QPair<QString, QString> link(format.address, format.linkTitle);
    auto known = m_linkNumbers.constFind(link);
    if (known == m_linkNumbers.constEnd()) {
        known = m_linkNumbers.insert(link, m_book.links.size());
        m_book.links.append({format.address, m_book.anchors.size(), format.linkTitle});
    }
    return *known;
}

// The id of what stands at anchors, for the first of their names that is not known yet; empty where
// all are. One that is preferred comes first.
QByteArray MRVEPubWriter::takeId(int format, const QString &preferred)
{
    if (format < 0 || !m_formats.text(format).hasNames) {
        return QByteArray();
    }
    auto names = m_names.find(format);
    if (names == m_names.end()) {
        names = m_names.insert(format, m_flow.formats.at(format).toCharFormat().anchorNames());
    }
    if (!preferred.isEmpty() && names->contains(preferred)) {
        names->prepend(preferred);
    }
    while (!names->isEmpty()) {
        const QString name = names->takeFirst();
        if (!name.isEmpty() && !m_targets.targets.contains(name) && printedPage(name).isEmpty()) {
            const QByteArray id = uniqueId(name);
            m_targets.targets.insert(name, m_page.fileName + u'#' + QString::fromUtf8(id));
            return id;
        }
    }
    return QByteArray();
}

void MRVEPubWriter::writePageBreaks(int format)
{
    if (m_hasPageBreaks.contains(format)) {
        return;
    }
    m_hasPageBreaks.insert(format);
    const QStringList names = m_flow.formats.at(format).toCharFormat().anchorNames();
    for (const QString &name : names) {
        const QString label = printedPage(name);
        if (label.isEmpty() || m_targets.targets.contains(name)) {
            continue;
        }
        const QByteArray id = uniqueId(name);
        const QString target = m_page.fileName + u'#' + QString::fromUtf8(id);
        m_targets.targets.insert(name, target);
        m_book.pageBreaks.append({label, target});
        m_out.append("<span id=\"" + id + '"');
        if (m_isEPub3) {
            m_out.append(" epub:type=\"pagebreak\" role=\"doc-pagebreak\" aria-label=\""
                         + mrvEPubValue(label) + '"');
        }
        m_out.append(QLatin1String("></span>"));
    }
}

QByteArray MRVEPubWriter::uniqueId(const QString &name)
{
    return m_book.uniqueIds.idFor(name).toUtf8();
}

void MRVEPubWriter::writePicture(const MRVFlowFragment &fragment, const QByteArray &id)
{
    const QTextImageFormat format = m_flow.formats.at(fragment.format).toImageFormat();
    const QString path = m_pictures.value(MRVTextFormat::imageResourceId(format));
    QString alternative = format.stringProperty(QTextFormat::ImageAltText);
    // An empty text marks a decoration; blanks are nothing that could be read.
    const bool isDescribed = format.hasProperty(QTextFormat::ImageAltText)
        && (alternative.isEmpty() || !alternative.trimmed().isEmpty());
    alternative = alternative.trimmed();
    for (int i = 0; i < fragment.length; ++i) {
        if (path.isEmpty()) {
            m_out.appendText(alternative, QLatin1String(" "), false);
            continue;
        }
        if (!isDescribed) {
            QString name = MRVTextFormat::imageName(format);
            if (!name.contains(u'.')) {
                name += u'.' + QFileInfo(path).suffix();
            }
            if (!m_book.picturesWithoutText.contains(name)) {
                m_book.picturesWithoutText.append(name);
            }
        }
        m_out.append("<img" + (i == 0 && !id.isEmpty() ? " id=\"" + id + '"' : QByteArray())
                     + " src=\"" + mrvEPubValue(path) + "\" alt=\"" + mrvEPubValue(alternative)
                     + '"' + pictureAttributes(format) + " />");
    }
}

QByteArray MRVEPubWriter::pictureAttributes(const QTextImageFormat &format) const
{
    QByteArray attributes;
    const QString title = format.stringProperty(QTextFormat::ImageTitle);
    if (!title.isEmpty()) {
        attributes += " title=\"" + mrvEPubValue(title) + '"';
    }
    const int width = qRound(format.width());
    const int height = qRound(format.height());
    if (width > 0) {
        attributes += " width=\"" + QByteArray::number(width) + '"';
    }
    if (height > 0) {
        attributes += " height=\"" + QByteArray::number(height) + '"';
    }
    const char *place = "";
    const auto *frame = qobject_cast<QTextFrame *>(m_flow.document.object(format.objectIndex()));
    if (frame && frame->frameFormat().position() != QTextFrameFormat::InFlow) {
        place = frame->frameFormat().position() == QTextFrameFormat::FloatLeft ? "float-left"
                                                                               : "float-right";
    } else if (format.verticalAlignment() == QTextCharFormat::AlignMiddle) {
        place = "middle";
    } else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript
               || format.verticalAlignment() == QTextCharFormat::AlignBottom) {
        place = "low";
    }
    if (*place) {
        attributes += " class=\"" + QByteArray(place) + '"';
    }
    return attributes;
}
