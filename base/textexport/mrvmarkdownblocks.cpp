#include "textexport/mrvmarkdownblocks_p.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>

namespace {

// A paragraph without text. The tag alone would begin HTML, where several are ends of lines.
const QLatin1String Empty("<br><!-- -->");

// What follows the fence, in which a backtick may not stand as it is.
QString fenceInfo(const QString &language)
{
    static const QRegularExpression lineEnds(QStringLiteral("[\\r\\n]+"));
    QString info = language;
    info.replace(lineEnds, QStringLiteral(" "));
    info.replace(u'\\', QLatin1String("\\\\")).replace(u'&', QLatin1String("&amp;"));
    return info.replace(u'`', QLatin1String("&#96;"));
}

} // namespace

MRVMarkdownBlocks::MRVMarkdownBlocks(const MRVDocumentFlow &flow, const MRVTextNotes &notes,
                                     const QHash<QString, QString> &pictures)
    : m_flow(flow)
    , m_notes(notes)
    , m_blocks(flow, notes)
    , m_inline(flow, notes, pictures)
{
    m_text.reserve(flow.text.size() + flow.text.size() / 8);
}

QString MRVMarkdownBlocks::write()
{
    MRVTextBlock body = m_blocks.document();
    const auto isEmpty = [this](const MRVTextBlock &block) {
        return block.kind == MRVTextBlock::Paragraph && m_flow.isBlank(block.first);
    };
    // Qt puts a paragraph before a table at the beginning, and after one at the end.
    std::vector<MRVTextBlock> &blocks = body.children;
    const bool isTable = blocks.size() > 1 && blocks[1].kind == MRVTextBlock::Table;
    if ((isTable || blocks.size() == 1) && isEmpty(blocks.front())) {
        blocks.erase(blocks.begin());
    }
    if (blocks.size() > 1 && isEmpty(blocks.back())
        && blocks[blocks.size() - 2].kind == MRVTextBlock::Table) {
        blocks.pop_back();
    }
    writeChildren(body, false);
    writeNotes();
    return m_text;
}

void MRVMarkdownBlocks::line(const QString &text)
{
    QString whole;
    for (int i = 0; i < m_containers.size(); ++i) {
        whole += i < m_begun ? m_containers.at(i).rest : m_containers.at(i).first;
    }
    m_begun = m_containers.size();
    whole += text;
    if (text.isEmpty()) {
        while (whole.endsWith(u' ')) {
            whole.chop(1);
        }
    }
    m_text += whole + u'\n';
}

void MRVMarkdownBlocks::writeChildren(const MRVTextBlock &parent, bool isTight)
{
    for (const MRVTextBlock &block : parent.children) {
        if (&block != &parent.children.front() && !isTight) {
            line(QString());
        }
        writeBlock(block);
    }
}

void MRVMarkdownBlocks::writeBlock(const MRVTextBlock &block)
{
    switch (block.kind) {
    case MRVTextBlock::Paragraph:
        writeParagraph(block);
        break;
    case MRVTextBlock::Heading:
        writeHeading(block);
        break;
    case MRVTextBlock::Code:
        writeCode(block);
        break;
    case MRVTextBlock::Rule:
        // Other signs could be read as the marker of an item.
        line(m_listDepth > 0 ? QStringLiteral("___") : QStringLiteral("* * *"));
        break;
    case MRVTextBlock::Quote:
        writeIn({QStringLiteral("> "), QStringLiteral("> ")}, block, false);
        break;
    case MRVTextBlock::List:
        writeList(block);
        break;
    case MRVTextBlock::Table:
        writeTable(block);
        break;
    default:
        writeChildren(block, false);
        break;
    }
}

void MRVMarkdownBlocks::writeIn(const Container &container, const MRVTextBlock &parent,
                                bool isTight)
{
    m_containers.append(container);
    writeChildren(parent, isTight);
    m_containers.removeLast();
    m_begun = qMin(m_begun, m_containers.size());
}

QString MRVMarkdownBlocks::taskMark(const MRVTextBlock &block) const
{
    const auto format = m_flow.formats.at(m_flow.paragraphs.at(block.first).format);
    switch (format.toBlockFormat().marker()) {
    case QTextBlockFormat::MarkerType::Unchecked:
        return QStringLiteral("[ ] ");
    case QTextBlockFormat::MarkerType::Checked:
        return QStringLiteral("[x] ");
    default:
        return QString();
    }
}

void MRVMarkdownBlocks::writeParagraph(const MRVTextBlock &block)
{
    const QString text = m_inline.paragraph(block.first, MRVInlineWriter::Lines);
    const bool isItem = m_flow.paragraphs.at(block.first).list >= 0;
    const QString mark = isItem ? taskMark(block) : QString();
    const QStringList lines = (mark + (text.isEmpty() ? QString(Empty) : text)).split(u'\n');
    for (const QString &one : lines) {
        line(one);
    }
}

void MRVMarkdownBlocks::writeHeading(const MRVTextBlock &block)
{
    QString text = m_inline.paragraph(block.first, MRVInlineWriter::Heading);
    if (text.endsWith(u'#')) { // could end the heading
        text.insert(text.size() - 1, u'\\');
    }
    line(QString(block.number, u'#') + u' ' + (text.isEmpty() ? QString(Empty) : text));
}

QString MRVMarkdownBlocks::languageOf(const MRVTextBlock &code) const
{
    const int format = m_flow.paragraphs.at(code.first).format;
    return m_flow.formats.at(format).stringProperty(QTextFormat::BlockCodeLanguage);
}

void MRVMarkdownBlocks::writeCode(const MRVTextBlock &block)
{
    bool isPlain = true;
    QString code;
    for (int i = block.first; i < block.end; ++i) {
        isPlain = isPlain && m_inline.isPlain(i);
        code += m_flow.textOf(m_flow.paragraphs.at(i)).toString() + u'\n';
    }
    if (!isPlain) {
        line(htmlOfCode(block));
        return;
    }
    code.replace(QChar::LineSeparator, u'\n');
    int fence = 3;
    for (int at = 0; (at = code.indexOf(u'`', at)) >= 0;) {
        int end = at;
        while (end < code.size() && code.at(end) == u'`') {
            ++end;
        }
        fence = qMax(fence, end - at + 1);
        at = end;
    }
    line(QString(fence, u'`') + fenceInfo(languageOf(block)));
    code.chop(1);
    const QStringList lines = code.split(u'\n');
    for (const QString &one : lines) {
        line(one);
    }
    line(QString(fence, u'`'));
}

// A list is tight where nothing in it needs a blank line, and its paragraphs stand close together.
bool MRVMarkdownBlocks::isTight(const MRVTextBlock &list) const
{
    const auto isSpaced = [this](const MRVTextBlock &block) {
        const int format = m_flow.paragraphs.at(block.first).format;
        return m_flow.formats.at(format).toBlockFormat().topMargin() > 0;
    };
    for (const MRVTextBlock &item : list.children) {
        for (const MRVTextBlock &block : item.children) {
            const bool isText =
                block.kind == MRVTextBlock::Paragraph && &block == &item.children.front();
            // Only a list that begins with 1 ends a paragraph without a blank line.
            const bool isList = block.kind == MRVTextBlock::List
                && (!block.isNumbered || block.children.front().number == 1);
            if ((!isText && !isList)
                || (isText && &item != &list.children.front() && isSpaced(block))) {
                return false;
            }
        }
    }
    return true;
}

// Two lists in a row need different markers, or they would be one.
void MRVMarkdownBlocks::writeList(const MRVTextBlock &list)
{
    constexpr int MostNumber = 999999999;
    const bool tight = isTight(list);
    int number = list.children.empty() ? 1 : qBound(0, list.children.front().number, MostNumber);
    ++m_listDepth;
    for (const MRVTextBlock &item : list.children) {
        if (&item != &list.children.front() && !tight) {
            line(QString());
        }
        const QString marker = list.isNumbered
            ? QString::number(qMin(number++, MostNumber)) + (list.isOther ? u')' : u'.')
            : QString(list.isOther ? u'*' : u'-');
        writeIn({marker + u' ', QString(marker.size() + 1, u' ')}, item, tight);
    }
    --m_listDepth;
}

void MRVMarkdownBlocks::writeNotes()
{
    for (const MRVTextNote &note : m_notes.all()) {
        if (!m_text.isEmpty()) {
            line(QString());
        }
        const Container container{QStringLiteral("[^%1]: ").arg(note.label),
                                  QStringLiteral("    ")};
        if (note.firstParagraph >= 0) {
            writeIn(container, m_blocks.note(note), false);
            continue;
        }
        m_containers.append(container);
        const QStringList lines = m_inline.note(note).split(u'\n');
        std::for_each(lines.begin(), lines.end(), [this](const QString &one) { line(one); });
        m_containers.removeLast();
        m_begun = 0;
    }
}
