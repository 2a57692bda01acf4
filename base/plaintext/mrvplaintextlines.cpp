#include "plaintext/mrvplaintextlines_p.h"

#include <QMap>

#include <algorithm>

namespace {

// Measured on some hundred texts: broken lines of prose end within 8 columns of what fits in three
// of four cases. So do the lines of some verse, but these begin with capitals.
constexpr int Slack = 8;
constexpr double LeastShare = 0.7;
constexpr int LeastLines = 3;
constexpr double MostCapitals = 0.75;
// Narrower columns than this are verse or lists.
constexpr int LeastWidth = 45;
constexpr int MostWidth = 140;

int indentOf(const QString &line)
{
    int columns = 0;
    for (const QChar character : line) {
        if (character == u'\t') {
            columns += 8 - columns % 8;
        } else if (character.isSpace()) {
            ++columns;
        } else {
            break;
        }
    }
    return columns;
}

int firstWordWidth(const QString &text)
{
    const auto end = std::find_if(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
    return int(end - text.begin());
}

int quantile(QVector<int> values, double share)
{
    const auto at = values.begin() + int(values.size() * share);
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

bool isLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r' || character == u'\f' || character == u'\v'
        || character == QChar(0x85) || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator;
}

// HTML has none. Files of DOS end with one.
bool isControl(QChar character)
{
    return character != u'\t' && character.category() == QChar::Other_Control;
}

int widthOf(const MRVPlainGroup &group)
{
    int width = 0;
    for (const MRVPlainLine &line : group) {
        width = qMax(width, line.width());
    }
    return width;
}

// Each group is measured by its own longest line, since parts of a text may differ in width.
int wrapWidth(const QVector<MRVPlainGroup> &groups)
{
    QVector<int> widths; // of groups that may be paragraphs
    QVector<int> all; // of lines
    int breaks = 0;
    int full = 0;
    int capitals = 0;
    for (const MRVPlainGroup &group : groups) {
        for (const MRVPlainLine &line : group) {
            all.append(line.width());
        }
        if (group.size() < LeastLines) {
            continue;
        }
        const MRVPlainLayout own{widthOf(group), 0, false};
        widths.append(own.width);
        for (int i = 0; i + 1 < group.size(); ++i) {
            ++breaks;
            full += own.endsEarly(group.at(i), group.at(i + 1), Slack) ? 0 : 1;
            capitals += group.at(i + 1).hasCapital() ? 1 : 0;
        }
    }
    if (widths.isEmpty() || full < LeastShare * breaks || capitals > MostCapitals * breaks) {
        return 0;
    }
    const int width = quantile(widths, 0.5);
    const bool isWidth = width >= LeastWidth && width <= MostWidth;
    return isWidth && quantile(all, 0.95) <= width * 3 / 2 ? width : 0;
}

} // namespace

bool MRVPlainLine::hasCapital() const
{
    const auto first =
        std::find_if(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
    return first != text.end() && first->isUpper();
}

bool MRVPlainLayout::endsEarly(const MRVPlainLine &line, const MRVPlainLine &next, int slack) const
{
    return line.width() + 1 + firstWordWidth(next.text) <= width - slack;
}

QVector<MRVPlainGroup> mrvPlainGroups(const QString &text)
{
    QVector<MRVPlainGroup> groups;
    bool continues = false;
    int number = 1;
    for (int begin = 0; begin < text.size(); ++number) {
        int end = begin;
        while (end < text.size() && !isLineEnd(text.at(end))) {
            ++end;
        }
        QString line = text.mid(begin, end - begin);
        line.resize(int(std::remove_if(line.begin(), line.end(), isControl) - line.begin()));
        const QString shown = line.trimmed();
        if (!shown.isEmpty()) {
            if (!continues) {
                groups.append(MRVPlainGroup());
            }
            groups.last().append({shown, number, indentOf(line)});
        }
        const bool isPair = text.midRef(end, 2) == QLatin1String("\r\n");
        continues = !shown.isEmpty() && text.midRef(end, 1) != QLatin1String("\f");
        begin = end + (isPair ? 2 : 1);
    }
    return groups;
}

MRVPlainLayout mrvPlainLayout(const QVector<MRVPlainGroup> &groups)
{
    MRVPlainLayout layout;
    layout.width = wrapWidth(groups);
    QMap<int, int> indents; // how many groups have which
    int lines = 0;
    int severalLines = 0;
    int longLines = 0;
    for (const MRVPlainGroup &group : groups) {
        ++indents[group.constLast().indent];
        lines += group.size();
        severalLines += group.size() > 1 ? 1 : 0;
        longLines += group.size() > 1 && widthOf(group) > MRVPlainLayout::VerseWidth ? 1 : 0;
    }
    for (auto it = indents.constBegin(); it != indents.constEnd(); ++it) {
        if (it.value() > indents.value(layout.indent)) {
            layout.indent = it.key();
        }
    }
    layout.hasBlankLines = groups.size() * 3 > lines || longLines * 2 < severalLines;
    return layout;
}
