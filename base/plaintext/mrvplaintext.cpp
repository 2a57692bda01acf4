#include "plaintext/mrvplaintext.h"

#include "markdown/mrvmarkdown.h"
#include "plaintext/mrvplaintextheadings_p.h"
#include "util/mrvescape.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using Lines = QVector<const MRVPlainLine *>;

// What is set to the middle of the lines begins at least so far from their start, in columns.
constexpr int LeastCentred = 8;

bool isIdeograph(QChar character)
{
    const QChar::Script script = character.script();
    return script == QChar::Script_Han || script == QChar::Script_Hiragana
        || script == QChar::Script_Katakana;
}

// "- a", "* b", "1. c", "(d) e"
bool isItem(const QString &line)
{
    static const QRegularExpression item(
        QStringLiteral("^(?:[-*+•–]|\\(?(?:\\d{1,3}|[A-Za-z]|[ivxlc]+)[.)]|\\[\\d+\\])\\s+\\S"));
    return item.match(line).hasMatch();
}

// Words that are set apart by several blanks, and lines that are drawn.
bool hasColumns(const QString &line)
{
    static const QRegularExpression columns(
        QStringLiteral("\\S(?:   +|\\t)\\s*\\S|^[-+|=:. ]{5,}$|^\\|.*\\|$"));
    return columns.match(line).hasMatch();
}

/** Writes the groups of a text as HTML. */
class Writer
{
public:
    explicit Writer(const MRVPlainLayout &layout)
        : m_layout(layout)
    {
    }

    void writeHeading(int level, const MRVPlainGroup &lines)
    {
        const QString name = QStringLiteral("h%1").arg(level);
        write(name, QString(), pointers(lines), true);
    }

    void writeBreak(bool isRule, const MRVPlainGroup &group)
    {
        if (isRule) {
            m_html += QStringLiteral("<hr%1 />\n").arg(place(pointers(group)));
        } else {
            write(paragraph(), centred(), pointers(group), true);
        }
    }

    void writeText(const MRVPlainGroup &group)
    {
        const int inColumns = int(std::count_if(
            group.begin(), group.end(), [](const auto &line) { return hasColumns(line.text); }));
        const int items = int(std::count_if(group.begin(), group.end(),
                                            [](const auto &line) { return isItem(line.text); }));
        if (inColumns >= 2 && inColumns * 2 >= group.size()) {
            writePreformatted(group);
        } else if (isCentred(group)) {
            write(paragraph(), centred(), pointers(group), true);
        } else if (items > 0 && isItem(group.constFirst().text)) {
            writeItems(group);
        } else if (m_layout.width > 0) {
            writeWrapped(group);
        } else {
            writeUnwrapped(group);
        }
    }

    QString html() const { return m_html; }

private:
    static QString paragraph() { return QStringLiteral("p"); }
    static QString centred() { return QStringLiteral(" style=\"text-align: center\""); }

    static Lines pointers(const MRVPlainGroup &group)
    {
        Lines lines;
        for (const MRVPlainLine &line : group) {
            lines.append(&line);
        }
        return lines;
    }

    static QString place(const Lines &lines)
    {
        return QStringLiteral(" data-sourcepos=\"%1:1-%2:1\"")
            .arg(lines.constFirst()->number)
            .arg(lines.constLast()->number);
    }

    // The lines of a block, joined or with their ends.
    void write(const QString &name, const QString &attributes, const Lines &lines, bool keepsEnds,
               bool keepsIndents = false)
    {
        m_html += u'<' + name + attributes + place(lines) + u'>';
        const MRVPlainLine *before = nullptr;
        for (const MRVPlainLine *line : lines) {
            if (before) {
                m_html += keepsEnds || endsFarBefore(*before, *line) ? QStringLiteral("<br />\n")
                                                                     : separator(*before, *line);
            }
            if (keepsIndents) {
                m_html += QString(qMin(line->indent - m_layout.indent, 40), QChar::Nbsp);
            }
            m_html += MRV::escape(line->text);
            before = line;
        }
        m_html += QLatin1String("</") + name + QLatin1String(">\n");
    }

    static QString separator(const MRVPlainLine &before, const MRVPlainLine &line)
    {
        const bool isRunning =
            isIdeograph(before.text.at(before.text.size() - 1)) && isIdeograph(line.text.at(0));
        return isRunning ? QString() : QStringLiteral("\n");
    }

    // A line in prose that ends far before the others, as that of an address does.
    bool endsFarBefore(const MRVPlainLine &line, const MRVPlainLine &next) const
    {
        return m_layout.width == 0
            || (line.width() < m_layout.width * 3 / 5 && m_layout.endsEarly(line, next, 0));
    }

    bool isCentred(const MRVPlainGroup &group) const
    {
        const auto isInMiddle = [this](const MRVPlainLine &line) {
            const int left = line.indent - m_layout.indent;
            const int right = m_layout.width - line.width();
            return left >= LeastCentred && qAbs(left - right) <= 6;
        };
        return m_layout.width > 0 && std::all_of(group.begin(), group.end(), isInMiddle);
    }

    void writePreformatted(const MRVPlainGroup &group)
    {
        const Lines lines = pointers(group);
        m_html += QLatin1String("<pre") + place(lines) + u'>';
        for (const MRVPlainLine *line : lines) {
            m_html += QString(qMin(line->indent, 200), u' ') + MRV::escape(line->text);
            m_html += line == lines.constLast() ? QLatin1String("</pre>\n") : QLatin1String("\n");
        }
    }

    // Each begins with its mark, which stays.
    void writeItems(const MRVPlainGroup &group)
    {
        Lines item;
        for (const MRVPlainLine &line : group) {
            if (isItem(line.text) && !item.isEmpty()) {
                write(paragraph(), QString(), item, false);
                item.clear();
            }
            item.append(&line);
        }
        write(paragraph(), QString(), item, false);
    }

    void writeWrapped(const MRVPlainGroup &group)
    {
        int early = 0;
        int indent = group.constFirst().indent;
        for (int i = 0; i + 1 < group.size(); ++i) {
            early += m_layout.endsEarly(group.at(i), group.at(i + 1), 8) ? 1 : 0;
            indent = qMin(indent, group.at(i + 1).indent);
        }
        if (early * 2 > group.size() - 1 || isVerse(group)) {
            write(paragraph(), QString(), pointers(group), true, true);
            return;
        }
        const bool isQuotation = group.size() > 1 && indent >= m_layout.indent + 2;
        m_html += isQuotation ? QLatin1String("<blockquote>\n") : QLatin1String();
        Lines lines;
        for (int i = 0; i < group.size(); ++i) {
            if (i > 0 && beginsParagraph(group, i)) {
                write(paragraph(), QString(), lines, false);
                lines.clear();
            }
            lines.append(&group.at(i));
        }
        write(paragraph(), QString(), lines, false);
        m_html += isQuotation ? QLatin1String("</blockquote>\n") : QLatin1String();
    }

    // Each line begins with a capital, and is shorter than those of prose.
    bool isVerse(const MRVPlainGroup &group) const
    {
        return group.size() >= 4
            && std::all_of(group.begin(), group.end(), [this](const MRVPlainLine &line) {
                   return line.hasCapital() && line.text.size() < m_layout.width * 17 / 20;
               });
    }

    // An indented first line among others.
    static bool beginsParagraph(const MRVPlainGroup &group, int i)
    {
        const int indent = group.at(i).indent;
        const bool isLast = i + 1 == group.size();
        return indent >= group.constFirst().indent
            && indent >= group.at(i - 1).indent + (isLast ? 2 : 1)
            && (isLast || indent > group.at(i + 1).indent);
    }

    // Lines of verse stay together where blank lines are between paragraphs.
    void writeUnwrapped(const MRVPlainGroup &group)
    {
        const bool isShort = group.size() > 1 && m_layout.hasBlankLines
            && std::all_of(group.begin(), group.end(), [](const auto &line) {
                                 return line.width() <= MRVPlainLayout::VerseWidth;
                             });
        if (isShort) {
            write(paragraph(), QString(), pointers(group), true, true);
            return;
        }
        for (const MRVPlainLine &line : group) {
            write(paragraph(), QString(), {&line}, true);
        }
    }

    const MRVPlainLayout m_layout;
    QString m_html;
};

// Without the lines that are metadata, if all of them are understood.
QString withoutHead(const QString &text, MRVMarkdownHead *head)
{
    static const QRegularExpression known(
        QStringLiteral(
            "^(?:-{3}|\\.{3}|(?:title|author|authors|date|lang|language|description)\\s*:.*)?"
            "\\s*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QString rest = MRVMarkdown::takeHead(text, head);
    int begin = 0;
    while (begin < rest.size() && (rest.at(begin) == u'\n' || rest.at(begin) == u'\r')) {
        ++begin;
    }
    const QString taken = text.left(text.size() - (rest.size() - begin));
    static const QRegularExpression lineEnd(QStringLiteral("[\\r\\n]+"));
    const QStringList lines = taken.split(lineEnd);
    const bool isKnown = std::all_of(lines.begin(), lines.end(), [](const QString &line) {
        return known.match(line).hasMatch();
    });
    if (!isKnown) {
        *head = MRVMarkdownHead();
        return text;
    }
    return rest;
}

} // namespace

QString MRVPlainText::toHtml(const QString &text, MRVMarkdownHead *head)
{
    MRVMarkdownHead read;
    QVector<MRVPlainGroup> groups = mrvPlainGroups(withoutHead(text, &read));
    if (head) {
        *head = read;
    }
    if (groups.isEmpty()) {
        return QString();
    }
    const MRVPlainLayout layout = mrvPlainLayout(groups);
    Writer writer(layout);
    groups = mrvWithHeadingsApart(groups, layout.width == 0);
    int group = 0;
    for (const MRVPlainBlock &block : mrvPlainBlocks(groups)) {
        if (block.level > 0) {
            writer.writeHeading(block.level,
                                block.groups > 1 ? groups.at(group) + groups.at(group + 1)
                                                 : groups.at(group));
        } else if (block.kind == MRVPlainMark::Stars || block.kind == MRVPlainMark::Rule) {
            writer.writeBreak(block.kind == MRVPlainMark::Rule, groups.at(group));
        } else {
            writer.writeText(groups.at(group));
        }
        group += block.groups;
    }
    return writer.html();
}

QString MRVPlainText::titleOfFile(const QString &fileName)
{
    const int dot = fileName.lastIndexOf(u'.');
    QString title = dot > 0 ? fileName.left(dot) : fileName;
    if (!title.contains(u'_') && !title.contains(u' ')) {
        title.replace(u'-', u' ');
    }
    title = title.replace(u'_', u' ').simplified();
    return title.left(1).toUpper() + title.mid(1);
}
