#include "epub/mrvepubwriter_p.h"

#include "text/mrvlistmarkers.h"
#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvprogress.h"

#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace {

struct ListType
{
    QTextListFormat::Style style;
    const char *name;
    bool isUsual; // needs no class
};

constexpr ListType listTypes[] = {
    {QTextListFormat::ListDisc, "disc", true},
    {QTextListFormat::ListCircle, "circle", false},
    {QTextListFormat::ListSquare, "square", false},
    {QTextListFormat::ListDecimal, "decimal", true},
    {QTextListFormat::ListLowerAlpha, "lower-alpha", false},
    {QTextListFormat::ListUpperAlpha, "upper-alpha", false},
    {QTextListFormat::ListLowerRoman, "lower-roman", false},
    {QTextListFormat::ListUpperRoman, "upper-roman", false},
};

const ListType &listType(QTextListFormat::Style style)
{
    const auto row = std::find_if(std::begin(listTypes), std::end(listTypes),
                                  [style](const ListType &type) { return type.style == style; });
    return row == std::end(listTypes) ? listTypes[0] : *row;
}

bool isNumbered(QTextListFormat::Style style)
{
    return style <= QTextListFormat::ListDecimal;
}

// Whether readers show the items of a level as they are meant to without being told more than the
// type of the list.
bool isUsualMarker(const MRVTextListLevel &level, QTextListFormat::Style style)
{
    QTextListFormat plain;
    plain.setStyle(style);
    const MRVTextListLevel usual = MRVTextListFormat::shownLevel(plain, 0);
    return level.text == usual.text && level.numberStyle == usual.numberStyle
        && style != QTextListFormat::ListStyleUndefined;
}

// Whether a paragraph holds marks such as "* * *" and nothing else.
bool isSceneBreak(QStringView text)
{
    constexpr int Longest = 20;
    constexpr ushort marks[] = {'*',    '#',    '~',    '-',    '+',    0x2022,
                                0x2013, 0x2014, 0x2042, 0x2766, 0x2767, 0xb7};
    bool isBreak = text.size() <= Longest;
    bool hasMark = false;
    for (int i = 0; i < text.size() && isBreak; ++i) {
        const bool isMark =
            std::find(std::begin(marks), std::end(marks), text[i].unicode()) != std::end(marks);
        hasMark = hasMark || isMark;
        isBreak = isMark || text[i].isSpace();
    }
    return isBreak && hasMark;
}

constexpr int NarrowestFigure = 150; // pixels

} // namespace

// Writes paragraphs, and the tables and frames among them.
void MRVEPubWriter::writeFlow(int begin, int end)
{
    const QVector<Container> outside = m_containers;
    m_containers.clear();
    for (int i = begin, last = begin; i < end && m_meter->advance(i - last);) {
        last = i;
        const int frame = frameAt(i);
        const int note = m_notes.beginningAt(i);
        if (frame >= 0) {
            i = writeFramePlace(frame, end);
        } else if (!isWritten(i, begin, end)) {
            ++i;
        } else if (note >= 0 && m_flow.paragraphs.at(i).list < 0 && m_openNote != note) {
            closeContainers(0);
            writeNote(note, end);
            i = qMin(end, m_notes.all().at(note).end);
        } else if (i + 1 < end && isTableCaption(frameAt(i + 1), i)) {
            arrange(i);
            m_caption = i++;
        } else {
            i = writeBlock(i, end);
        }
    }
    closeContainers(0);
    m_containers = outside;
}

// Writes a table or a frame, and a caption below it; returns where they end.
int MRVEPubWriter::writeFramePlace(int frame, int end)
{
    const MRVFlowFrame &place = m_flow.frames.at(frame);
    if (m_notes.isMoved(place.begin) && m_openNote < 0) {
        return place.end;
    }
    const bool hasCaption = m_caption < 0 && place.end < end && isTableCaption(frame, place.end);
    const QPair<int, int> levels = placeOf(place.begin);
    arrangeIn(levels.first, levels.second);
    if (hasCaption) {
        m_out.append(element("<figure>\n", "<div class=\"figure\">\n"));
    }
    writeFrame(frame);
    if (hasCaption) {
        writeCaption(place.end);
        m_out.append(element("\n</figure>\n", "\n</div>\n"));
    }
    return place.end + (hasCaption ? 1 : 0);
}

// The table or frame that begins with a paragraph, unless that is looked at from the inside; -1:
// none.
int MRVEPubWriter::frameAt(int paragraph) const
{
    const int frame = m_frames.value(paragraph, -1);
    return frame == m_openFrame ? -1 : frame;
}

// Qt needs empty paragraphs around tables, and what has moved leaves none. At the ends, an empty
// paragraph shows nothing.
bool MRVEPubWriter::isWritten(int paragraph, int begin, int end) const
{
    if (m_notes.isMoved(paragraph) && m_openNote < 0) {
        return false;
    }
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    if (place.length > 0 || place.list >= 0 || m_flow.hasRule(paragraph)) {
        return true;
    }
    const bool isAtFrame = frameAt(paragraph + 1) >= 0
        || (place.position > 0 && m_flow.text.at(place.position - 1) == QChar(0xfdd1));
    return paragraph > begin && paragraph + 1 < end && !isAtFrame;
}

int MRVEPubWriter::writeBlock(int paragraph, int end)
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    arrange(paragraph);
    if (m_flow.hasRule(paragraph)) {
        m_out.append(QLatin1String("<hr />\n"));
        if (place.length == 0) {
            return paragraph + 1;
        }
    }
    if (isFigure(paragraph, end)) {
        return writeFigure(paragraph, end);
    }
    if (isCode(paragraph)) {
        return writePreformatted(paragraph, end);
    }
    if (place.headingLevel > 0) {
        writeHeading(paragraph);
    } else if (place.list >= 0 && !m_containers.isEmpty() && !m_containers.constLast().isQuote
               && !hasParagraphAfter(paragraph, end)) {
        MRVEPubContext context;
        m_formats.look(paragraph, MRVEPubKind::Item, usedIndent(), &context);
        m_page.holes[m_itemHole].flags |= writeText(paragraph, context) ? MRVEPubHole::Spaced : 0;
    } else if (place.length == 0 && place.list < 0) {
        m_out.append(QLatin1String("<p class=\"blank\"><br /></p>\n"));
    } else {
        writeParagraph(paragraph, MRVEPubKind::Paragraph, "p");
    }
    return paragraph + 1;
}

// Whether a paragraph goes on with the item that this one begins.
bool MRVEPubWriter::hasParagraphAfter(int paragraph, int end) const
{
    const int next = paragraph + 1;
    return next < end && frameAt(next) < 0 && m_flow.paragraphs.at(next).list < 0
        && m_flow.paragraphs.at(next).length > 0
        && m_flow.formats.at(m_flow.paragraphs.at(next).format).toBlockFormat().indent()
        >= usedIndent()
        && usedIndent() > 0;
}

int MRVEPubWriter::usedIndent() const
{
    for (int i = m_containers.size() - 1; i >= 0; --i) {
        if (!m_containers.at(i).isQuote) {
            return m_containers.at(i).depth;
        }
    }
    return 0;
}

void MRVEPubWriter::closeContainers(int count)
{
    while (m_containers.size() > count) {
        m_out.append(m_containers.takeLast().end);
    }
}

void MRVEPubWriter::openQuotes(int level)
{
    int open = int(std::count_if(m_containers.begin(), m_containers.end(),
                                 [](const Container &container) { return container.isQuote; }));
    for (; open < level && !isDeep(); ++open) {
        Container quote;
        quote.isQuote = true;
        quote.end = "</blockquote>\n";
        m_out.append(QLatin1String("<blockquote>\n"));
        m_containers.append(quote);
    }
}

// Closes and opens lists and quotations until the paragraph can be written.
void MRVEPubWriter::arrange(int paragraph)
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const MRVEPubParagraphFormat format = m_formats.paragraph(place.format);
    if (place.list >= 0) {
        arrangeItem(place, format);
    } else {
        arrangeIn(format.quoteLevel, format.indent);
    }
}

void MRVEPubWriter::arrangeIn(int quoteLevel, int indent)
{
    int kept = 0;
    int quotes = 0;
    for (; kept < m_containers.size(); ++kept) {
        const Container &container = m_containers.at(kept);
        const bool stays = container.isQuote ? quotes < quoteLevel : indent >= container.depth;
        if (!stays) {
            break;
        }
        quotes += container.isQuote ? 1 : 0;
    }
    closeContainers(kept);
    openQuotes(quoteLevel);
}

void MRVEPubWriter::arrangeItem(const MRVFlowParagraph &paragraph,
                                const MRVEPubParagraphFormat &format)
{
    const ListLook &look = listLook(paragraph);
    const int depth = look.depth;
    int kept = 0;
    int quotes = 0;
    bool isOpen = false;
    for (; kept < m_containers.size() && !isOpen; ++kept) {
        Container &container = m_containers[kept];
        const bool goesOn = !container.isQuote && container.depth == depth
            && container.style == look.style && container.markers == look.level.text
            && isNumbered(look.style) && paragraph.itemNumber != 1
            && kept + 1 == m_containers.size();
        const bool isNext = m_isEPub3 || container.isCounted || !isNumbered(container.style)
            || paragraph.itemNumber == container.number + 1;
        const bool isSame = container.list == paragraph.list && container.depth == depth;
        isOpen = !container.isQuote && (isSame || goesOn) && isNext;
        const bool stays =
            isOpen || (container.isQuote ? quotes < format.quoteLevel : container.depth < depth);
        if (!stays) {
            break;
        }
        quotes += container.isQuote ? 1 : 0;
    }
    closeContainers(kept);
    if (isOpen) {
        m_containers.last().list = paragraph.list;
        m_out.append(QLatin1String("</li>\n"));
    } else if (isDeep() && m_containers.isEmpty()) {
        return; // a paragraph, as no list can be opened
    } else if (isDeep() && !m_containers.constLast().isQuote) {
        m_out.append(QLatin1String("</li>\n")); // goes on at the depth that has been reached
    } else {
        openQuotes(format.quoteLevel);
        openList(paragraph);
    }
    openItem(paragraph, format);
    openQuotes(format.quoteLevel);
}

const MRVEPubWriter::ListLook &MRVEPubWriter::listLook(const MRVFlowParagraph &paragraph)
{
    const QPair<int, int> key(paragraph.list, paragraph.listLevel);
    auto known = m_listLooks.find(key);
    if (known == m_listLooks.end()) {
        // As many lists are open around an item as it is deep, at most.
        constexpr int Deepest = 1000;
        const QTextListFormat format =
            m_flow.document.object(paragraph.list)->format().toListFormat();
        ListLook look;
        look.style = MRVTextListFormat::shownStyle(format, paragraph.listLevel);
        look.level = MRVTextListFormat::shownLevel(format, paragraph.listLevel);
        look.isUsual = isUsualMarker(look.level, look.style);
        look.depth = format.indent() + qMin(paragraph.listLevel, Deepest);
        // Readers draw circles in a list within a list, where nobody tells them what to draw.
        look.isTold =
            look.style == QTextListFormat::ListDisc && !MRVTextListFormat::levels(format).isEmpty();
        known = m_listLooks.insert(key, look);
    }
    return *known;
}

// Whether no more elements must be opened around text: parsers of XML take 256 within each other.
bool MRVEPubWriter::isDeep() const
{
    constexpr int Deepest = 200;
    return m_depth + InList * m_containers.size() > Deepest;
}

bool MRVEPubWriter::isInList() const
{
    return std::any_of(m_containers.begin(), m_containers.end(),
                       [](const Container &container) { return !container.isQuote; });
}

void MRVEPubWriter::openList(const MRVFlowParagraph &paragraph)
{
    const ListLook &look = listLook(paragraph);
    const ListType &type = listType(look.style);
    const bool hasNumbers = isNumbered(look.style);
    Container list;
    list.list = paragraph.list;
    list.depth = look.depth;
    list.style = look.style;
    list.markers = look.level.text;
    list.number = paragraph.itemNumber - 1;
    list.isCounted = !look.isUsual || (hasNumbers && !m_isEPub3 && paragraph.itemNumber != 1);
    list.end = hasNumbers ? "</li>\n</ol>\n" : "</li>\n</ul>\n";
    m_out.append(hasNumbers ? QLatin1String("<ol") : QLatin1String("<ul"));
    // Markers stand on the side that the first item begins at.
    const bool isRight = m_formats.isRightToLeft(int(&paragraph - m_flow.paragraphs.constData()));
    list.direction = isRight ? Qt::RightToLeft : direction();
    writeDirection(list.direction, direction());
    if (list.isCounted) {
        m_out.append(QLatin1String(" class=\"counted\""));
    } else if (!type.isUsual || (look.isTold && isInList())) {
        const QByteArray rule = QByteArray("    list-style-type: ") + type.name + ";\n";
        m_out.append(" class=\"" + m_book.looks.boxClass(type.name, rule) + '"');
    }
    if (hasNumbers && m_isEPub3 && paragraph.itemNumber != 1) {
        m_out.append(" start=\"" + QByteArray::number(paragraph.itemNumber) + '"');
    }
    m_out.append(QLatin1String(">\n"));
    m_containers.append(list);
}

void MRVEPubWriter::openItem(const MRVFlowParagraph &paragraph,
                             const MRVEPubParagraphFormat &format)
{
    Container &list = m_containers.last();
    const int index = int(&paragraph - m_flow.paragraphs.constData());
    MRVEPubContext context;
    MRVEPubParagraphLook own = m_formats.look(index, MRVEPubKind::Item, list.depth, &context);
    // Space around items is the list's, which gave it to the first and the last one.
    own[MRVEPubParagraphLook::Top] = own[MRVEPubParagraphLook::Bottom] = 0;
    const int look = m_book.looks.add(own);
    m_out.append(QLatin1String("<li"));
    m_itemHole = writeClass(look);
    if (isNumbered(list.style) && m_isEPub3 && paragraph.itemNumber != list.number + 1) {
        m_out.append(" value=\"" + QByteArray::number(paragraph.itemNumber) + '"');
    }
    list.number = paragraph.itemNumber;
    const bool isTask = format.marker != QTextBlockFormat::MarkerType::NoMarker;
    m_itemLabel = list.isCounted && !isTask
        ? mrvListMarkerText(listLook(paragraph).level, list.number)
        : QString();
    if (isTask) {
        const bool isDone = format.marker == QTextBlockFormat::MarkerType::Checked;
        m_page.holes[m_itemHole].flags |= isDone ? MRVEPubHole::Done : MRVEPubHole::Open;
    }
    const int note = m_notes.beginningAt(index);
    const bool isNote = note >= 0 && m_openNote != note;
    writeAttributes(index, context, QByteArray());
    if (isNote && m_isEPub3) {
        m_out.append(QLatin1String(" epub:type=\"footnote\""));
    }
    m_out.append('>');
}

// The place where the class of a paragraph goes.
int MRVEPubWriter::writeClass(int look)
{
    m_book.looks.count(look);
    m_page.holes.append({m_out.size(), MRVEPubHole::Class, look, 0, -1});
    return m_page.holes.size() - 1;
}

void MRVEPubWriter::writeAttributes(int paragraph, const MRVEPubContext &context,
                                    const QByteArray &id)
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    QByteArray own = id;
    const int last = m_flow.paragraphs.at(paragraph + 1).firstFragment;
    if (own.isEmpty() && place.firstFragment < last) {
        own = takeId(m_flow.fragments.at(place.firstFragment).format);
    }
    if (!own.isEmpty()) {
        m_out.append(" id=\"" + own + '"');
    }
    if (!context.language.isEmpty()) {
        const QByteArray language = context.language.toUtf8();
        if (m_isEPub3) {
            m_out.append(" lang=\"" + language + '"');
        }
        m_out.append(" xml:lang=\"" + language + '"');
    }
    const bool isAuto = m_formats.paragraph(place.format).direction == Qt::LayoutDirectionAuto;
    const bool isRight = m_formats.isRightToLeft(paragraph);
    if (!isAuto || isRight) {
        writeDirection(isRight ? Qt::RightToLeft : Qt::LeftToRight, direction());
    }
}

// Of what is open.
Qt::LayoutDirection MRVEPubWriter::direction() const
{
    for (int i = m_containers.size() - 1; i >= 0; --i) {
        if (!m_containers.at(i).isQuote) {
            return m_containers.at(i).direction;
        }
    }
    return m_boxDirection;
}

void MRVEPubWriter::writeDirection(Qt::LayoutDirection own, Qt::LayoutDirection around)
{
    if (own != around) {
        m_out.append(own == Qt::RightToLeft ? QLatin1String(" dir=\"rtl\"")
                                            : QLatin1String(" dir=\"ltr\""));
    }
}

void MRVEPubWriter::writeParagraph(int paragraph, MRVEPubKind kind, const char *element)
{
    MRVEPubContext context;
    MRVEPubParagraphLook look = m_formats.look(paragraph, kind, usedIndent(), &context);
    if (usedIndent() > 0) { // as with the items themselves
        const MRVEPubParagraphLook plain = mrvEPubPlainLook(kind);
        look[MRVEPubParagraphLook::Top] = plain[MRVEPubParagraphLook::Top];
        look[MRVEPubParagraphLook::Bottom] = plain[MRVEPubParagraphLook::Bottom];
    }
    m_out.append('<');
    m_out.append(QLatin1String(element));
    const int hole = writeClass(m_book.looks.add(look));
    if (isSceneBreak(m_flow.textOf(m_flow.paragraphs.at(paragraph)))) {
        m_page.holes[hole].flags |= MRVEPubHole::SceneBreak;
    }
    writeAttributes(paragraph, context, QByteArray());
    m_out.append('>');
    m_page.holes[hole].flags |= writeText(paragraph, context) ? MRVEPubHole::Spaced : 0;
    m_out.append(QLatin1String("</"));
    m_out.append(QLatin1String(element));
    m_out.append(QLatin1String(">\n"));
}

void MRVEPubWriter::writeHeading(int paragraph)
{
    const int own = m_flow.paragraphs.at(paragraph).headingLevel;
    const bool isInNote = m_openNote >= 0;
    const bool isOfBook = isInNote && m_page.fileName == MRVEPubBook::NotesPage;
    const int level = isOfBook ? qMax(own, m_book.notesLevel + 2) : own; // below a chapter's
    const bool isListed =
        !isInNote || (!isOfBook && m_notes.all().at(m_openNote).heading == paragraph);
    const QByteArray element = "h" + QByteArray::number(level);
    const auto kind = MRVEPubKind(int(MRVEPubKind::Heading1) + level - 1);
    MRVEPubContext context;
    const int look = m_book.looks.add(m_formats.look(paragraph, kind, usedIndent(), &context));
    const QString text = headingText(paragraph);
    QByteArray id =
        takeId(m_flow.paragraphs.at(paragraph).length > 0
                   ? m_flow.fragments.at(m_flow.paragraphs.at(paragraph).firstFragment).format
                   : -1);
    if (!text.isEmpty() && isListed) {
        if (id.isEmpty()) {
            id = uniqueId(QStringLiteral("heading-%1").arg(m_book.headings.size() + 1));
        }
        m_page.title = m_page.title.isEmpty() ? text : m_page.title;
        m_book.headings.append({text, m_page.fileName + u'#' + QString::fromUtf8(id), level - 1});
    }
    m_out.append('<' + element);
    const int hole = writeClass(look);
    writeAttributes(paragraph, context, id);
    m_out.append('>');
    m_page.holes[hole].flags |= writeText(paragraph, context) ? MRVEPubHole::Spaced : 0;
    m_out.append("</" + element + ">\n");
}

bool MRVEPubWriter::isCode(int paragraph)
{
    return m_formats.paragraph(m_flow.paragraphs.at(paragraph).format).isPreformatted;
}

// Lines that are not broken are one element, up to one with space above it.
int MRVEPubWriter::codeEnd(int paragraph, int end)
{
    using Look = MRVEPubParagraphLook;
    const int format = m_flow.paragraphs.at(paragraph).format;
    const MRVEPubParagraphFormat first = m_formats.paragraph(format);
    int last = paragraph + 1;
    for (; last < end; ++last) {
        const MRVFlowParagraph &place = m_flow.paragraphs.at(last);
        const MRVEPubParagraphFormat &next = m_formats.paragraph(place.format);
        const bool goesOn = next.isPreformatted && place.list < 0 && frameAt(last) < 0
            && next.quoteLevel == first.quoteLevel && next.look[Look::Top] == 0
            && place.headingLevel == 0 && m_notes.beginningAt(last) < 0;
        if (!goesOn) {
            break;
        }
    }
    return last;
}

int MRVEPubWriter::writePreformatted(int paragraph, int end)
{
    const int last = codeEnd(paragraph, end);
    MRVEPubContext context;
    const int fragments = m_flow.paragraphs.at(last).firstFragment;
    bool isPlain = true; // XHTML 1.1 allows neither pictures nor raised text in the element
    bool isCode = true;
    for (int i = m_flow.paragraphs.at(paragraph).firstFragment; i < fragments; ++i) {
        const MRVEPubTextFormat &text = m_formats.text(m_flow.fragments.at(i).format);
        const uint unfit = 1U << int(MRVEPubInline::Raised) | 1U << int(MRVEPubInline::Lowered);
        isPlain = isPlain && !text.isPicture && !(text.elements & unfit);
        isCode = isCode && (text.elements & 1U << int(MRVEPubInline::Code));
    }
    const bool isElement = m_isEPub3 || isPlain;
    context.isCode = isCode && isElement;
    m_out.append(isElement ? isCode ? QLatin1String("<pre") : QLatin1String("<pre class=\"lines\"")
                           : QLatin1String("<p class=\"lines\""));
    writeAttributes(paragraph, context, QByteArray());
    m_out.append('>');
    for (int i = paragraph; i < last; ++i) {
        if (i > paragraph) {
            m_out.append(isElement ? QLatin1String("\n") : QLatin1String("<br />"));
        }
        writeText(i, context);
    }
    m_out.append(isElement ? QLatin1String("</pre>\n") : QLatin1String("</p>\n"));
    return last;
}

// Whether a paragraph shows pictures and nothing else.
bool MRVEPubWriter::isPicture(int paragraph) const
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const int end = m_flow.paragraphs.at(paragraph + 1).firstFragment;
    bool hasPicture = false;
    int position = place.position;
    for (int i = place.firstFragment; i < end; ++i) {
        const MRVFlowFragment &fragment = m_flow.fragments.at(i);
        const QTextFormat &format = m_flow.formats.at(fragment.format);
        if (format.isImageFormat()) {
            hasPicture = true;
            const int width = qRound(format.doubleProperty(QTextFormat::ImageWidth));
            if (format.objectIndex() >= 0 || (width > 0 && width < NarrowestFigure)) {
                return false; // text flows around it, or it is an initial or an ornament
            }
        } else if (!QStringView(m_flow.text).mid(position, fragment.length).trimmed().isEmpty()) {
            return false;
        }
        position += fragment.length;
    }
    return hasPicture;
}

// Whether a paragraph is the caption of what stands from another one on, or up to it. The first of
// the two is where it can be written.
bool MRVEPubWriter::isCaption(int paragraph, int shown)
{
    const QTextFormat &format = m_flow.formats.at(m_flow.paragraphs.at(paragraph).format);
    const bool isBefore = paragraph < shown;
    return format.intProperty(MRVTextFormat::CaptionProperty)
        == (isBefore ? MRVTextFormat::CaptionOfNext : MRVTextFormat::CaptionOfPrevious)
        && isPlainText(paragraph)
        && (isBefore ? standsWith(paragraph, shown) : standsWith(shown, paragraph));
}

// Whether what two paragraphs begin stands in the same quotations, the same item and the same note.
bool MRVEPubWriter::standsWith(int first, int second)
{
    const QPair<int, int> one = placeOf(first);
    const QPair<int, int> other = placeOf(second);
    return one.first == other.first && one.second <= other.second
        && (frameAt(second) >= 0 || m_flow.paragraphs.at(second).list < 0)
        && m_notes.beginningAt(second) < 0 && (!m_notes.isMoved(second) || m_openNote >= 0);
}

// How deep a paragraph, or the table or frame that it begins, stands in quotations and in lists.
QPair<int, int> MRVEPubWriter::placeOf(int paragraph)
{
    const int frame = frameAt(paragraph);
    if (frame >= 0) { // with the same properties, where the reader of pages has set them
        const QTextFrameFormat format = m_flow.frames.at(frame).frame->frameFormat();
        return {format.intProperty(QTextFormat::BlockQuoteLevel),
                format.intProperty(QTextFormat::BlockIndent)};
    }
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const MRVEPubParagraphFormat &format = m_formats.paragraph(place.format);
    return {format.quoteLevel, place.list < 0 ? format.indent : listLook(place).depth};
}

bool MRVEPubWriter::isPlainText(int paragraph)
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    return place.headingLevel == 0 && place.length > 0 && frameAt(paragraph) < 0
        && !m_formats.paragraph(place.format).isPreformatted && !m_flow.hasRule(paragraph)
        && !isPicture(paragraph) && !isSceneBreak(m_flow.textOf(place));
}

// Whether a paragraph is the caption of a table, beside which it stands.
bool MRVEPubWriter::isTableCaption(int frame, int paragraph)
{
    return frame >= 0 && m_flow.frames.at(frame).table && !isDeep()
        && isCaption(paragraph, m_flow.frames.at(frame).begin);
}

// The caption of a figure.
void MRVEPubWriter::writeCaption(int paragraph)
{
    writeCaption(paragraph, element("<figcaption", "<p class=\"caption\""),
                 element("</figcaption>", "</p>"));
}

void MRVEPubWriter::writeCaption(int paragraph, QLatin1String tag, QLatin1String end)
{
    MRVEPubContext context;
    m_formats.look(paragraph, MRVEPubKind::Paragraph, 0, &context);
    context.size = 100;
    m_out.append(tag);
    writeAttributes(paragraph, context, QByteArray());
    m_out.append('>');
    writeText(paragraph, context);
    m_out.append(end);
}

// Writes a picture or lines of code with the caption above or below; returns where they end.
int MRVEPubWriter::writeFigure(int begin, int end)
{
    const auto isShown = [this](int paragraph) {
        return isPicture(paragraph) || isCode(paragraph);
    };
    const bool hasTitle = !isShown(begin);
    const int shown = begin + (hasTitle ? 1 : 0);
    int next = isPicture(shown) ? shown + 1 : codeEnd(shown, end);
    m_out.append(element("<figure", "<div class=\"figure\""));
    MRVEPubContext context;
    if (isPicture(shown) && !hasTitle) {
        m_formats.look(shown, MRVEPubKind::Paragraph, 0, &context);
        writeAttributes(shown, context, QByteArray());
    }
    m_out.append('>');
    if (hasTitle) {
        writeCaption(begin);
        m_out.append('\n');
    }
    if (isPicture(shown)) {
        writeText(shown, context);
        m_out.append(QLatin1String(!hasTitle && hasCaptionAfter(shown, end) ? "\n" : ""));
    } else {
        writePreformatted(shown, next);
    }
    if (!hasTitle && hasCaptionAfter(next - 1, end)) {
        writeCaption(next++);
    }
    m_out.append(element("</figure>\n", "</div>\n"));
    return next;
}

bool MRVEPubWriter::hasCaptionAfter(int shown, int end)
{
    return shown + 1 < end && isCaption(shown + 1, shown);
}

// Whether a figure begins with a paragraph. Outside of lists and quotations, a picture on its own
// is one, too.
bool MRVEPubWriter::isFigure(int paragraph, int end)
{
    const bool hasPicture = isPicture(paragraph);
    if (hasPicture && m_containers.isEmpty()) {
        return true;
    }
    if (hasPicture || isCode(paragraph)) {
        return hasCaptionAfter(hasPicture ? paragraph : codeEnd(paragraph, end) - 1, end);
    }
    const int next = paragraph + 1;
    return next < end && (isPicture(next) || isCode(next)) && frameAt(next) < 0
        && isCaption(paragraph, next);
}
