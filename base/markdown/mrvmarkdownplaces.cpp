#include "markdown/mrvmarkdownplaces_p.h"

#include "markdown/mrvmarkdowntree_p.h"

#include <cctype>
#include <cstring>
#include <memory>

namespace {

// Around the number of a text in the HTML. Text that is exchanged does not have these characters.
constexpr QChar MarkStart(0xfde0);
constexpr QChar MarkEnd(0xfde1);

// How far a text is looked for that does not stand where cmark says.
constexpr int LongestSearch = 4096;

using NodePointer = std::unique_ptr<cmark_node, decltype(&cmark_node_free)>;

bool isText(cmark_node *node)
{
    switch (cmark_node_get_type(node)) {
    case CMARK_NODE_TEXT:
    case CMARK_NODE_CODE:
    case CMARK_NODE_CODE_BLOCK:
    case CMARK_NODE_HTML_BLOCK:
        return true;
    default:
        return false;
    }
}

cmark_node *blockOf(cmark_node *node)
{
    while (node && (cmark_node_get_type(node) & CMARK_NODE_TYPE_MASK) == CMARK_NODE_TYPE_INLINE) {
        node = cmark_node_parent(node);
    }
    return node;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

// What a character is in HTML.
int renderedLength(QChar character, bool isRaw)
{
    return isRaw                                 ? 1
        : character == u'&'                      ? 5
        : character == u'<' || character == u'>' ? 4
        : character == u'"'                      ? 6
                                                 : 1;
}

} // namespace

MRVMarkdownPlaces::MRVMarkdownPlaces(const QByteArray &markdown)
    : m_markdown(markdown)
    , m_lines{0}
{
    for (int at = markdown.indexOf('\n'); at >= 0; at = markdown.indexOf('\n', at + 1)) {
        m_lines.append(at + 1);
    }
}

void MRVMarkdownPlaces::find(cmark_node *root)
{
    m_texts.clear();
    m_indexes.clear();
    m_end = 0;
    mrvVisitMarkdownTree(root, [this](cmark_node *node, bool left) {
        if (!left && isText(node)) {
            findText(node);
        }
    });
}

void MRVMarkdownPlaces::findText(cmark_node *node)
{
    Text text;
    text.literal = cmark_node_get_literal(node);
    text.places.resize(text.literal.size());
    int length = 0;
    int offset = 0;
    char fence = 0;
    switch (cmark_node_get_type(node)) {
    case CMARK_NODE_HTML_BLOCK:
        text.syntax = MRVSourcePlace::Page;
        findLines(cmark_node_get_start_line(node), &text);
        break;
    case CMARK_NODE_CODE_BLOCK:
        text.syntax = MRVSourcePlace::Plain;
        findLines(cmark_node_get_start_line(node)
                      + (cmark_node_get_fenced(node, &length, &offset, &fence) ? 1 : 0),
                  &text);
        break;
    case CMARK_NODE_CODE:
        text.syntax = MRVSourcePlace::Plain;
        findInline(node, &text);
        break;
    default:
        text.syntax = MRVSourcePlace::Markdown;
        findInline(node, &text);
    }
    m_indexes.insert(node, m_texts.size());
    m_texts.append(text);
}

// Without the containers around them, lines are what the source has at the end of its own.
void MRVMarkdownPlaces::findLines(int line, Text *text)
{
    for (int begin = 0; begin < text->literal.size(); ++line) {
        const int found = text->literal.indexOf('\n', begin);
        const int end = found < 0 ? text->literal.size() : found;
        const int start = lineEnd(line) - (end - begin);
        if (start >= lineStart(line)
            && m_markdown.indexOf(text->literal.mid(begin, end - begin), start) == start) {
            // The last line may lack its end.
            const int stop = found < 0 || lineEnd(line) == m_markdown.size() ? end : end + 1;
            for (int i = begin; i < stop; ++i) {
                text->places[i] = {start + i - begin, 1, text->syntax};
            }
        }
        begin = end + 1;
    }
}

void MRVMarkdownPlaces::findInline(cmark_node *node, Text *text)
{
    const int line = cmark_node_get_start_line(node);
    const int column = cmark_node_get_start_column(node);
    cmark_node *const block = blockOf(node);
    const int blockLine = cmark_node_get_start_line(block);
    const int blockEnd = lineEnd(qMax(line, cmark_node_get_end_line(block)));
    const int start = lineStart(line);
    // The texts of a block follow each other.
    const int least = m_end >= lineStart(blockLine) && m_end <= blockEnd ? m_end : -1;
    const auto isAt = [&](int at) { return at >= least && take(at, text); };
    // In the lines after the first one, columns are those of the text without its beginning.
    const int shifted = pastPrefix(start) + column - cmark_node_get_start_column(block);
    if ((line > blockLine && isAt(shifted)) || isAt(start + column - 1)
        || search(qMax(least, start), lineEnd(line), text)) {
        return;
    }
    search(qMax(least, lineStart(blockLine)), blockEnd, text); // cmark counts some lines wrong
}

bool MRVMarkdownPlaces::search(int begin, int end, Text *text)
{
    const int last = qMin(end, begin + LongestSearch);
    while (begin < last && !take(begin, text)) {
        begin = pastMarkup(begin);
    }
    return begin < last;
}

bool MRVMarkdownPlaces::take(int at, Text *text)
{
    int end = at;
    const bool isTaken = at >= 0
        && (text->syntax == MRVSourcePlace::Markdown
                ? takeText(at, text, &end) || takeBytes(at, text, &end)
                : takeCode(at, text, &end));
    if (isTaken) {
        m_end = end;
    } else {
        text->places.fill(MRVSourcePlace());
    }
    return isTaken;
}

bool MRVMarkdownPlaces::takeText(int at, Text *text, int *end)
{
    const auto hasByte = [&](int offset, int i) {
        return offset < m_markdown.size() && m_markdown.at(offset) == text->literal.at(i);
    };
    for (int i = 0; i < text->literal.size();) {
        QByteArray meant;
        const int reference = referenceAt(at, &meant);
        const bool isEscape = at + 1 < m_markdown.size() && m_markdown.at(at) == '\\'
            && std::ispunct(uchar(m_markdown.at(at + 1)));
        int taken = 1;
        int length = 1;
        if (reference > 0) {
            taken = text->literal.mid(i, meant.size()) == meant ? meant.size() : 0;
            length = reference;
        } else if (isEscape) {
            taken = hasByte(at + 1, i) ? 1 : 0;
            length = 2;
        } else if (!hasByte(at, i)) {
            taken = 0;
        }
        if (taken == 0) {
            return false;
        }
        for (int k = 0; k < taken; ++k) {
            text->places[i + k] = {k == 0 ? at : at + length, k == 0 ? length : 0, text->syntax};
        }
        at += length;
        i += taken;
    }
    *end = at;
    return true;
}

// As in bare links, where a backslash is one.
bool MRVMarkdownPlaces::takeBytes(int at, Text *text, int *end)
{
    const int size = text->literal.size();
    if (m_markdown.mid(at, size) != text->literal) {
        return false;
    }
    for (int i = 0; i < size; ++i) {
        text->places[i] = {at + i, 1, MRVSourcePlace::Plain};
    }
    *end = at + size;
    return true;
}

// A line end in code is a blank, and a bar in a table has a backslash.
bool MRVMarkdownPlaces::takeCode(int at, Text *text, int *end)
{
    for (int i = 0; i < text->literal.size(); ++i) {
        const QByteArray two = m_markdown.mid(at, 2);
        const char character = text->literal.at(i);
        int length = 1;
        if (character == '|' && two == "\\|") {
            length = 2;
        } else if (character == ' ' && two.startsWith('\n')) {
            length = pastPrefix(at + 1) - at;
        } else if (!two.startsWith(character)) {
            return false;
        }
        text->places[i] = {at, length, text->syntax};
        at += length;
    }
    *end = at;
    return true;
}

// The length of a reference such as "&amp;", whose text is @p meant; 0 where none stands there.
int MRVMarkdownPlaces::referenceAt(int at, QByteArray *meant)
{
    constexpr int Longest = 40;
    if (at >= m_markdown.size() || m_markdown.at(at) != '&') {
        return 0;
    }
    int end = at + 1;
    while (end < m_markdown.size() && end - at < Longest
           && (std::isalnum(uchar(m_markdown.at(end))) || m_markdown.at(end) == '#')) {
        ++end;
    }
    if (end >= m_markdown.size() || m_markdown.at(end) != ';') {
        return 0;
    }
    const QByteArray reference = m_markdown.mid(at, end + 1 - at);
    auto known = m_meanings.constFind(reference);
    if (known == m_meanings.constEnd()) {
        const NodePointer root(
            cmark_parse_document(reference.constData(), size_t(reference.size()), 0),
            cmark_node_free);
        cmark_node *const paragraph = cmark_node_first_child(root.get());
        cmark_node *const text = paragraph ? cmark_node_first_child(paragraph) : nullptr;
        const QByteArray literal = text ? cmark_node_get_literal(text) : "";
        known = m_meanings.insert(reference, literal == reference ? QByteArray() : literal);
    }
    *meant = *known;
    return meant->isEmpty() ? 0 : reference.size();
}

int MRVMarkdownPlaces::lineStart(int line) const
{
    return m_lines.value(line - 1, m_markdown.size());
}

int MRVMarkdownPlaces::lineEnd(int line) const
{
    return line < m_lines.size() ? lineStart(line + 1) - 1 : m_markdown.size();
}

// The next place at which text may stand: after a tag or the address of a link.
int MRVMarkdownPlaces::pastMarkup(int at) const
{
    const QByteArray two = m_markdown.mid(at, 2);
    int name = at + 1;
    while (name < m_markdown.size() && std::isalnum(uchar(m_markdown.at(name)))) {
        ++name;
    }
    // An address in such brackets is text.
    const bool isTag = two == "</" || two == "<!"
        || (two.startsWith('<') && name > at + 1 && name < m_markdown.size()
            && std::strchr(" \n/>", m_markdown.at(name)));
    const int end = isTag ? m_markdown.indexOf('>', at)
        : two == "]("     ? m_markdown.indexOf(')', at)
                          : at;
    return qMax(at, end) + 1;
}

// What stands before the text of a line in lists and quotations.
int MRVMarkdownPlaces::pastPrefix(int at) const
{
    while (at < m_markdown.size() && (isBlank(m_markdown.at(at)) || m_markdown.at(at) == '>')) {
        ++at;
    }
    return at;
}

void MRVMarkdownPlaces::setMarks(cmark_node *root)
{
    mrvVisitMarkdownTree(root, [this](cmark_node *node, bool left) {
        const int index = left || !isText(node) ? -1 : m_indexes.value(node, -1);
        // The end of a heading may have gone.
        if (index >= 0 && m_texts.at(index).literal.startsWith(cmark_node_get_literal(node))) {
            const QString mark = MarkStart + QString::number(index) + MarkEnd;
            const QByteArray marked = mark.toUtf8() + cmark_node_get_literal(node);
            cmark_node_set_literal(node, marked.constData());
        }
    });
}

QString MRVMarkdownPlaces::takeMarks(const QString &html)
{
    QString plain;
    plain.reserve(html.size());
    m_places.clear();
    m_places.reserve(html.size());
    m_end = -1;
    for (int at = 0; at < html.size();) {
        const int begin = html.at(at) == MarkStart ? html.indexOf(MarkEnd, at) + 1 : 0;
        bool isMark = false;
        const int index = begin > 0 ? html.midRef(at + 1, begin - at - 2).toInt(&isMark) : 0;
        if (!isMark || index >= m_texts.size()) {
            m_places.append(html.at(at) == u'\n' ? lineEndPlace() : MRVSourcePlace());
            plain += html.at(at++);
            continue;
        }
        const Text &text = m_texts.at(index);
        const int marked = html.indexOf(MarkStart, begin);
        const QStringView rest =
            QStringView(html).mid(begin, (marked < 0 ? html.size() : marked) - begin);
        const int taken = appendPlaces(text, rest);
        plain += rest.left(taken);
        at = begin + taken;
    }
    return plain;
}

// How much of some HTML a text is, whose places are appended.
int MRVMarkdownPlaces::appendPlaces(const Text &text, QStringView html)
{
    const QString literal = QString::fromUtf8(text.literal);
    int taken = 0;
    int byte = 0;
    for (int i = 0; i < literal.size() && taken < html.size(); ++i) {
        const bool isPair = literal.at(i).isHighSurrogate();
        const QChar character = literal.at(i);
        const int bytes = isPair       ? 4
            : character < QChar(0x80)  ? 1
            : character < QChar(0x800) ? 2
                                       : 3;
        const MRVSourcePlace &first = text.places.at(byte);
        const MRVSourcePlace &last = text.places.at(byte + bytes - 1);
        const int length = renderedLength(character, text.syntax == MRVSourcePlace::Page);
        m_places.append(first.isKnown()
                            ? MRVSourcePlace{first.start, last.end() - first.start, first.syntax}
                            : MRVSourcePlace());
        for (int k = 1; k < length + (isPair ? 1 : 0); ++k) {
            m_places.append({last.end(), 0, first.syntax});
        }
        taken += length + (isPair ? 1 : 0);
        i += isPair ? 1 : 0;
        byte += bytes;
        m_end = first.isKnown() ? last.end() : m_end;
    }
    return taken;
}

// Of the end of the line in which the last text is, with what begins the next one.
MRVSourcePlace MRVMarkdownPlaces::lineEndPlace() const
{
    const int end = m_end < 0 ? -1 : m_markdown.indexOf('\n', m_end);
    if (end < 0) {
        return MRVSourcePlace();
    }
    int begin = end;
    while (begin > m_end && isBlank(m_markdown.at(begin - 1))) {
        --begin;
    }
    return {begin, pastPrefix(end + 1) - begin, MRVSourcePlace::Plain};
}
