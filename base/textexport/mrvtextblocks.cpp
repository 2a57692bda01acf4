#include "textexport/mrvtextblocks_p.h"

#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextformat.h"

#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <iterator>

namespace {

constexpr int DeepestQuote = 20;

} // namespace

MRVTextBlockReader::MRVTextBlockReader(const MRVDocumentFlow &flow, const MRVTextNotes &notes)
    : m_flow(flow)
    , m_notes(notes)
    , m_places(flow.formats.size())
{
    for (int i = 0; i < flow.frames.size(); ++i) {
        m_frames[flow.frames.at(i).frame->parentFrame()].append(i);
    }
}

MRVTextBlock MRVTextBlockReader::document()
{
    MRVTextBlock body(MRVTextBlock::Body);
    const Frames frames = m_frames.value(m_flow.document.rootFrame());
    auto frame = frames.constBegin();
    m_isNote = false;
    read(0, m_flow.count(), frames, &frame, &body);
    // A rule above the notes has nothing to separate when they have moved.
    if (m_notes.hasMoved(m_flow.count() - 1) && !body.children.empty()
        && body.children.back().kind == MRVTextBlock::Rule) {
        body.children.pop_back();
    }
    return body;
}

MRVTextBlock MRVTextBlockReader::note(const MRVTextNote &note)
{
    MRVTextBlock body(MRVTextBlock::Body);
    const Frames frames;
    auto frame = frames.constBegin();
    m_isNote = true;
    read(note.firstParagraph, note.endParagraph, frames, &frame, &body);
    // Notes are often items of a list, whose numbers are those of the notes.
    if (body.children.size() == 1 && body.children.front().kind == MRVTextBlock::List
        && body.children.front().children.size() == 1) {
        std::vector<MRVTextBlock> children =
            std::move(body.children.front().children.front().children);
        body.children = std::move(children);
    }
    return body;
}

// The frames are those of one frame; *frame is the first of them that was not read.
void MRVTextBlockReader::read(int begin, int end, const Frames &frames,
                              Frames::const_iterator *frame, MRVTextBlock *body)
{
    MRVTextBlock *const outerBody = m_body;
    std::vector<Open> outerOpen;
    outerOpen.swap(m_open);
    m_body = body;
    for (int i = begin; i < end;) {
        if (*frame == frames.constEnd() || m_flow.frames.at(**frame).begin != i) {
            readParagraph(i++);
            continue;
        }
        const MRVFlowFrame &inner = m_flow.frames.at(**frame);
        ++*frame;
        if (inner.table) {
            readTable(inner);
        } else {
            MRVTextBlock content(MRVTextBlock::Body);
            const Frames own = m_frames.value(inner.frame);
            auto first = own.constBegin();
            read(inner.begin, inner.end, own, &first, &content);
            m_open.clear();
            std::move(content.children.begin(), content.children.end(),
                      std::back_inserter(m_body->children));
        }
        i = qMax(i, inner.end);
    }
    m_body = outerBody;
    m_open.swap(outerOpen);
}

MRVTextBlockReader::Place MRVTextBlockReader::placeOf(int paragraph)
{
    const MRVFlowParagraph &flow = m_flow.paragraphs.at(paragraph);
    Place &place = m_places[flow.format];
    if (!place.isKnown) {
        const QTextBlockFormat format = m_flow.formats.at(flow.format).toBlockFormat();
        place.isKnown = true;
        place.quotes = qBound(0, format.intProperty(QTextFormat::BlockQuoteLevel), DeepestQuote);
        place.isCode = format.nonBreakableLines();
        place.indent = format.indent();
        if (flow.list >= 0) {
            const auto *list = qobject_cast<QTextList *>(m_flow.document.object(flow.list));
            place.level = flow.listLevel;
            place.indent = qMax(1, list->format().indent()) + flow.listLevel;
        }
    }
    return place;
}

// The block that something belongs to, which may have to be made.
MRVTextBlock *MRVTextBlockReader::parentAt(const Place &place, int list)
{
    int quotes = 0;
    std::size_t kept = 0;
    for (; kept < m_open.size(); ++kept) {
        const Open &open = m_open[kept];
        const bool isInside = !open.list ? quotes < place.quotes
            : list >= 0                  ? open.indent < place.indent
                                         : open.indent <= place.indent;
        if (!isInside) {
            break;
        }
        quotes += open.list ? 0 : 1;
    }
    MRVTextBlock *sibling = nullptr;
    if (list >= 0 && kept < m_open.size() && quotes == place.quotes && m_open[kept].object == list
        && m_open[kept].indent == place.indent) {
        sibling = m_open[kept].list;
    }
    m_open.erase(m_open.begin() + int(kept), m_open.end());
    for (; quotes < place.quotes; ++quotes) {
        MRVTextBlock *const outside = m_open.empty() ? m_body : m_open.back().block;
        outside->children.emplace_back(MRVTextBlock::Quote);
        m_open.push_back({&outside->children.back(), nullptr, -1, 0});
    }
    MRVTextBlock *const parent = m_open.empty() ? m_body : m_open.back().block;
    return list < 0 ? parent : newItem(parent, sibling, place, list);
}

MRVTextBlock *MRVTextBlockReader::newItem(MRVTextBlock *parent, MRVTextBlock *list,
                                          const Place &place, int object)
{
    if (!list) {
        parent->children.emplace_back(MRVTextBlock::List);
        list = &parent->children.back();
        const QTextListFormat format = m_flow.document.object(object)->format().toListFormat();
        list->isNumbered = MRVTextListFormat::shownLevel(format, place.level).numberStyle > 0;
        const MRVTextBlock *const before = parent->children.size() > 1 ? list - 1 : nullptr;
        list->isOther = before && before->kind == MRVTextBlock::List
            && before->isNumbered == list->isNumbered && !before->isOther;
    }
    list->children.emplace_back(MRVTextBlock::Item);
    m_open.push_back({&list->children.back(), list, object, place.indent});
    return &list->children.back();
}

void MRVTextBlockReader::readParagraph(int paragraph)
{
    if (!m_isNote && m_notes.hasMoved(paragraph)) {
        return;
    }
    const MRVFlowParagraph &flow = m_flow.paragraphs.at(paragraph);
    const Place place = placeOf(paragraph);
    MRVTextBlock *const parent = parentAt(place, flow.list);
    if (flow.list >= 0) {
        parent->number = flow.itemNumber;
    }
    const bool hasRule = m_flow.hasRule(paragraph);
    if (place.isCode && flow.headingLevel == 0 && !hasRule) {
        addCode(paragraph, parent);
        return;
    }
    if (!hasRule || !m_flow.textOf(flow).trimmed().isEmpty()) {
        MRVTextBlock block(flow.headingLevel > 0 ? MRVTextBlock::Heading : MRVTextBlock::Paragraph);
        block.number = flow.headingLevel;
        block.first = paragraph;
        block.end = paragraph + 1;
        parent->children.push_back(std::move(block));
    }
    if (hasRule) {
        parent->children.emplace_back(MRVTextBlock::Rule);
    }
}

// Lines of code are paragraphs. Space between two of them separates two pieces of code, as another
// language does.
void MRVTextBlockReader::addCode(int paragraph, MRVTextBlock *parent)
{
    const auto formatOf = [this](int index) {
        return m_flow.formats.at(m_flow.paragraphs.at(index).format).toBlockFormat();
    };
    const auto goesOn = [&formatOf](int index) {
        const QTextBlockFormat before = formatOf(index - 1);
        const QTextBlockFormat format = formatOf(index);
        constexpr int Language = QTextFormat::BlockCodeLanguage;
        return (before.bottomMargin() <= 0 || format.topMargin() <= 0)
            && before.stringProperty(Language) == format.stringProperty(Language);
    };
    MRVTextBlock *const last = parent->children.empty() ? nullptr : &parent->children.back();
    if (last && last->kind == MRVTextBlock::Code && last->end == paragraph && goesOn(paragraph)) {
        ++last->end;
        return;
    }
    MRVTextBlock code(MRVTextBlock::Code);
    code.first = paragraph;
    code.end = paragraph + 1;
    parent->children.push_back(std::move(code));
}

void MRVTextBlockReader::readTable(const MRVFlowFrame &frame)
{
    const QTextTable &table = *frame.table;
    Place place;
    place.quotes =
        qBound(0, table.format().intProperty(QTextFormat::BlockQuoteLevel), DeepestQuote);
    place.indent = table.format().intProperty(QTextFormat::BlockIndent);
    MRVTextBlock block(MRVTextBlock::Table);
    block.table = frame.table;
    const Frames frames = m_frames.value(frame.frame);
    auto inner = frames.constBegin();
    const int headerRows = table.format().headerRowCount();
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() != row || cell.column() != column) {
                continue; // a part of a cell that spans several places
            }
            MRVTextBlock content(MRVTextBlock::Cell);
            content.row = row;
            content.column = column;
            content.rowSpan = cell.rowSpan();
            content.columnSpan = cell.columnSpan();
            content.isHeader =
                row < headerRows || cell.format().boolProperty(MRVTextFormat::HeaderCellProperty);
            read(m_flow.paragraphAt(cell.firstPosition()),
                 m_flow.paragraphAt(cell.lastPosition()) + 1, frames, &inner, &content);
            block.children.push_back(std::move(content));
        }
    }
    parentAt(place, -1)->children.push_back(std::move(block));
}
