#include "epub/mrvepubwriter_p.h"

#include "textformat/mrvtextformat.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTextFrame>

namespace {

struct InlineElement
{
    MRVEPubInline kind;
    const char *epub3;
    const char *epub2;
};

// In the order in which they are opened.
constexpr InlineElement inlineElements[] = {
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

bool isNameStart(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || u == '_'
        || (u >= 0xC0 && u <= 0xFF && u != 0xD7 && u != 0xF7);
}

bool isNameCharacter(QChar c)
{
    return isNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
}

// The number of a page of the printed edition that an anchor is named after; empty: none.
QString printedPage(const QString &name)
{
    static const QRegularExpression page(
        QStringLiteral("^(?:page|pg|seite|pagina)[-_. ]?(\\d{1,5}[a-z]?|[ivxlcdm]{1,9})$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = page.match(name);
    return match.hasMatch() ? match.captured(1) : QString();
}

} // namespace

// Returns whether the text holds white space that a browser would swallow.
bool MRVEPubWriter::writeText(int paragraph, const MRVEPubContext &context)
{
    const MRVEPubParagraph &place = m_flow.paragraphs.at(paragraph);
    const int end = m_flow.paragraphs.at(paragraph + 1).firstFragment;
    m_isSpaced = false;
    m_isAfterBlank = true;
    int position = place.position;
    for (int i = place.firstFragment; i < end; ++i) {
        writeFragment(i, end, position, context);
        position += m_flow.fragments.at(i).length;
    }
    closeElements(0);
    return m_isSpaced;
}

void MRVEPubWriter::writeFragment(int index, int end, int position, const MRVEPubContext &context)
{
    const MRVEPubFragment &fragment = m_flow.fragments.at(index);
    const MRVEPubTextFormat &format = m_formats.text(fragment.format);
    if (format.hasNames) {
        writePageBreaks(fragment.format);
    }
    QByteArray id = format.hasNames ? takeId(fragment.format) : QByteArray();
    const QByteArray &span = m_formats.span(fragment.format, context);
    uint needed = format.elements;
    needed |= format.isBold && !context.isBold ? bit(MRVEPubInline::Strong) : 0;
    needed &= context.isCode ? ~bit(MRVEPubInline::Code) : ~0U;
    const int link = format.address.isEmpty() ? -1 : linkNumber(format.address);
    const auto isKept = [&](const Element &element) {
        return element.kind == MRVEPubInline::Link ? element.link == link
            : element.kind == MRVEPubInline::Span  ? element.attributes == span
                                                   : bool(needed & bit(element.kind));
    };
    int kept = 0;
    bool hasLink = false;
    bool hasSpan = false;
    uint open = 0;
    for (; kept < m_elements.size() && isKept(m_elements.at(kept)); ++kept) {
        const Element &element = m_elements.at(kept);
        hasLink = hasLink || element.kind == MRVEPubInline::Link;
        hasSpan = hasSpan || element.kind == MRVEPubInline::Span;
        open |= bit(element.kind);
    }
    closeElements(kept);
    if (link >= 0 && !hasLink) {
        const int common = commonElements(index, end, context);
        if (common < kept) {
            closeElements(common);
            open = 0;
            for (const Element &element : qAsConst(m_elements)) {
                open |= bit(element.kind);
            }
            hasSpan = open & bit(MRVEPubInline::Span);
        }
        openLink(link, position, &id);
    }
    if (!id.isEmpty() && !format.isPicture) {
        m_out.append("<span id=\"" + id + "\"></span>");
    }
    if (!span.isEmpty() && !hasSpan) {
        m_out.append("<span" + span + '>');
        m_elements.append({MRVEPubInline::Span, -1, span});
    }
    for (int kind = int(MRVEPubInline::Strong); kind <= int(MRVEPubInline::Lowered); ++kind) {
        const uint missing = needed & ~open;
        if (missing == 0) {
            break;
        }
        if (missing & (1U << kind)) {
            const InlineElement &element = inlineElements[kind];
            m_out.append('<');
            m_out.append(this->element(element.epub3, element.epub2));
            m_out.append('>');
            m_elements.append({element.kind, -1, QByteArray()});
            open |= 1U << kind;
        }
    }
    if (format.isPicture) {
        writePicture(fragment, id);
        m_isAfterBlank = false;
        return;
    }
    const QStringView text = QStringView(m_flow.text).mid(position, fragment.length);
    m_isSpaced = m_out.appendText(text, QLatin1String("<br />"), m_isAfterBlank) || m_isSpaced;
    m_isAfterBlank = text.back() == u' ' || text.back() == QChar::LineSeparator;
}

// How many of the open elements go on to the end of the link that begins with a fragment, so that
// it is one element.
int MRVEPubWriter::commonElements(int index, int end, const MRVEPubContext &context)
{
    int common = m_elements.size();
    const QString address = m_formats.text(m_flow.fragments.at(index).format).address;
    for (int i = index; i < end; ++i) {
        const int number = m_flow.fragments.at(i).format;
        const MRVEPubTextFormat &format = m_formats.text(number);
        if (format.address != address) {
            break;
        }
        const uint needed =
            format.elements | (format.isBold && !context.isBold ? bit(MRVEPubInline::Strong) : 0);
        const QByteArray &span = m_formats.span(number, context);
        for (int at = 0; at < common; ++at) {
            const Element &element = m_elements.at(at);
            const bool isKept = element.kind == MRVEPubInline::Span
                ? element.attributes == span
                : bool(needed & bit(element.kind));
            if (!isKept) {
                common = at;
            }
        }
    }
    return common;
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
    m_elements.append({MRVEPubInline::Link, link, QByteArray()});
}

void MRVEPubWriter::closeElements(int count)
{
    while (m_elements.size() > count) {
        const Element element = m_elements.takeLast();
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

int MRVEPubWriter::linkNumber(const QString &address)
{
    auto known = m_linkNumbers.constFind(address);
    if (known == m_linkNumbers.constEnd()) {
        known = m_linkNumbers.insert(address, m_book.links.size());
        m_book.links.append({address, m_book.anchors.size()});
    }
    return *known;
}

// Makes the id of what stands at anchors, for all their names; empty where the names are known.
QByteArray MRVEPubWriter::takeId(int format)
{
    if (format < 0 || !m_formats.text(format).hasNames) {
        return QByteArray();
    }
    QByteArray id;
    const QStringList names = m_flow.formats.at(format).toCharFormat().anchorNames();
    for (const QString &name : names) {
        if (name.isEmpty() || m_targets.targets.contains(name) || !printedPage(name).isEmpty()) {
            continue;
        }
        id = id.isEmpty() ? uniqueId(name) : id;
        m_targets.targets.insert(name, m_page.fileName + u'#' + QString::fromUtf8(id));
    }
    return id;
}

void MRVEPubWriter::writePageBreaks(int format)
{
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
        closeElements(0);
        m_out.append("<span id=\"" + id + '"');
        if (m_isEPub3) {
            m_out.append(" epub:type=\"pagebreak\" role=\"doc-pagebreak\" aria-label=\""
                         + mrvEPubValue(label) + '"');
        }
        m_out.append(QLatin1String("></span>"));
    }
}

// Identifiers are XML names (XML 1.0, section 2.3), limited to what all its editions allow.
QByteArray MRVEPubWriter::uniqueId(const QString &name)
{
    QString base;
    for (const QChar c : name) {
        base += isNameCharacter(c) ? c : QChar(u'_');
    }
    if (!isNameStart(base.at(0))) {
        base.prepend(u'_');
    }
    QString id = base;
    int &number = m_book.idNumbers[base];
    while (m_book.usedIds.contains(id)) {
        id = base + u'-' + QString::number(++number);
    }
    m_book.usedIds.insert(id);
    return id.toUtf8();
}

void MRVEPubWriter::writePicture(const MRVEPubFragment &fragment, const QByteArray &id)
{
    const QTextImageFormat format = m_flow.formats.at(fragment.format).toImageFormat();
    const QString path = m_pictures.value(MRVTextFormat::imageResourceId(format));
    const QString alternative = format.stringProperty(QTextFormat::ImageAltText);
    for (int i = 0; i < fragment.length; ++i) {
        if (path.isEmpty()) {
            m_out.appendText(alternative, QLatin1String(" "), false);
            continue;
        }
        if (!format.hasProperty(QTextFormat::ImageAltText)) {
            const QString name = MRVTextFormat::imageName(format);
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
