#include "markdown/mrvmarkdowncost_p.h"

#include "core/mrvinputlimits.h"

#include <algorithm>
#include <string_view>

namespace {

using Text = std::string_view;

// Tags of these kinds are looked for up to the end of the paragraph, each time one begins.
constexpr struct
{
    const char *start;
    const char *end;
} openTags[] = {{"<?", "?>"}, {"<!", ">"}, {"<![CDATA[", "]]>"}};

qint64 count(Text text, Text part)
{
    qint64 found = 0;
    for (size_t at = text.find(part); at != Text::npos; at = text.find(part, at + part.size())) {
        ++found;
    }
    return found;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

bool consistsOf(Text text, const char *characters)
{
    return text.find_first_not_of(characters) == Text::npos;
}

/** Whether a line is a heading, a break or a bullet with text, whatever precedes it. */
bool endsParagraphs(Text line)
{
    const size_t start = line.find_first_not_of(' ');
    if (start > 3) {
        return false;
    }
    const Text text = line.substr(start);
    const size_t marks = text.find_first_not_of('#');
    const bool bullet = text[0] == '-' || text[0] == '+' || text[0] == '*';
    return (marks > 0 && marks <= 6 && isBlank(text[marks]))
        || (bullet && isBlank(text[1]) && !consistsOf(text.substr(1), " \t\n"))
        || (text.substr(0, 3) == "---" && consistsOf(text, "- \t\n"));
}

/** What stands before the text of a line. */
struct Indent
{
    int columns = 0;
    int markers = 0; // of quotes, items, notes and definitions
};

/** The length of the marker of an item, a note or a definition; 0 where the text has none. */
size_t markerLength(Text text)
{
    size_t length = 0;
    if (text.substr(0, 2) == "[^") {
        length = text.find_first_of("] \t", 2);
        length = length == Text::npos || text[length] != ']' ? 0 : length + 1;
        return text.substr(length, 1) == ":" ? length + 1 : 0;
    }
    if (text[0] >= '0' && text[0] <= '9') {
        length = text.find_first_not_of("0123456789");
        length = length < 10 && (text[length] == '.' || text[length] == ')') ? length + 1 : 0;
    } else if (text[0] == '-' || text[0] == '+' || text[0] == '*' || text[0] == ':') {
        length = 1;
    }
    return length == text.size() || isBlank(text[length]) ? length : 0;
}

Indent indentOf(Text line)
{
    Indent indent;
    for (size_t at = 0; at < line.size();) {
        if (isBlank(line[at])) {
            indent.columns += line[at++] == '\t' ? 4 : 1;
            continue;
        }
        const size_t length = line[at] == '>' ? 1 : markerLength(line.substr(at));
        if (length == 0) {
            return indent;
        }
        ++indent.markers;
        at += length;
    }
    // A line of hyphens or asterisks is a break, however many they are.
    if (consistsOf(line, "- \t\r") || consistsOf(line, "* \t\r")) {
        indent.markers = 0;
    }
    return indent;
}

class Estimate
{
public:
    bool isCostly(Text text)
    {
        for (size_t at = 0; at < text.size() && !m_costly;) {
            const size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
            readLine(text, at, end);
            at = end;
        }
        endParagraph(text, text.size());
        const qint64 links = count(text, "[");
        return m_costly || m_definition * links > MRVInputLimits::MarkdownExpansion;
    }

private:
    void readLine(Text text, size_t start, size_t end)
    {
        const Text line = text.substr(start, end - start);
        const bool blank = consistsOf(line, "> \t\r\n");
        nest(indentOf(line.substr(0, line.find_last_not_of('\n') + 1)),
             consistsOf(line, " \t\r\n"));
        if (blank || endsParagraphs(line)) {
            endParagraph(text, start);
            m_paragraph = end;
        } else {
            readCells(line);
            readDefinition(line);
            // The text is copied from each address of mail to the end of the line.
            m_copied += count(line, "@") * qint64(line.size());
            m_costly = m_costly || m_copied > MRVInputLimits::MarkdownExpansion;
        }
    }

    // Within a paragraph, what is indented less may still continue the innermost block.
    void nest(const Indent &indent, bool blank)
    {
        if (!blank) {
            const int depth = std::min(m_depth, indent.columns / 2) + indent.markers;
            m_depth = m_afterBlank ? depth : std::max(m_depth, depth);
            m_costly = m_costly || m_depth > MRVInputLimits::MarkdownDepth;
        }
        m_afterBlank = blank;
    }

    // A table gives each row as many cells as its head has, and finds each in quadratic time.
    void readCells(Text line)
    {
        const qint64 cells = count(line, "|") + 1;
        if (consistsOf(line, "|:-> \t\r\n") && line.find('-') != Text::npos
            && line.find_first_of("|:") != Text::npos) {
            ++m_rulers;
            m_columns = std::max(m_columns, cells);
        }
        if (m_columns > 0) {
            m_padding += std::max(qint64(0), m_columns - cells);
        }
        m_widest = std::max(m_widest, cells);
        m_costly = m_costly || m_padding > MRVInputLimits::MarkdownTableCells
            || (m_columns > 0 && m_widest > MRVInputLimits::MarkdownColumns);
    }

    // "[name]: address" may be repeated by each link. The title may take more lines.
    void readDefinition(Text line)
    {
        const size_t start = line.find_first_not_of("> \t");
        const bool definition = start < line.size() && line[start] == '['
            && line.substr(start, 2) != "[^" && line.find("]:") != Text::npos;
        m_current = definition ? line.size() : m_current > 0 ? m_current + line.size() : 0;
        m_definition = std::max(m_definition, qint64(m_current));
    }

    // All of this is searched again from the start or to the end of the paragraph.
    void endParagraph(Text text, size_t end)
    {
        const Text paragraph = text.substr(m_paragraph, end - m_paragraph);
        const qint64 length = qint64(paragraph.size());
        for (const auto &tag : openTags) {
            m_steps += unclosed(paragraph, tag.start, tag.end);
        }
        m_steps += m_rulers * length;
        const qint64 links = count(paragraph, "]");
        m_steps += links * (count(paragraph, "![") + count(paragraph, "*") + count(paragraph, "_"));
        m_costly = m_costly || m_steps > MRVInputLimits::MarkdownSteps;
        m_current = 0;
        m_columns = 0;
        m_widest = 0;
        m_rulers = 0;
    }

    /** How many bytes are passed in search of the ends of all these tags. */
    static qint64 unclosed(Text text, Text start, Text end)
    {
        qint64 passed = 0;
        size_t closing = 0;
        for (size_t at = text.find(start); at != Text::npos; at = text.find(start, at + 1)) {
            if (closing < at) {
                closing = std::min(text.find(end, at), text.size());
            }
            passed += qint64(closing - at);
        }
        return passed;
    }

    size_t m_paragraph = 0; // where it begins
    size_t m_current = 0; // length of the definition that is being read
    qint64 m_definition = 0; // of the longest one
    qint64 m_columns = 0;
    qint64 m_widest = 0;
    qint64 m_rulers = 0;
    qint64 m_padding = 0;
    qint64 m_steps = 0;
    qint64 m_copied = 0;
    int m_depth = 0;
    bool m_afterBlank = true;
    bool m_costly = false;
};

} // namespace

bool mrvIsCostlyMarkdown(const QByteArray &markdown)
{
    return Estimate().isCostly({markdown.constData(), size_t(markdown.size())});
}
