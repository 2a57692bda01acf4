#include "manuscript/mrvparagraphs_p.h"

#include "textformat/mrvtextformat.h"
#include "util/mrvmarkupcharacters.h"

#include <QHash>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace {

// How many paragraphs may be wrong in a row before only unique ones tell where others go on.
constexpr int LongestDifference = 20;

// The end of a paragraph, or the beginning or end of a cell or frame.
bool isEndOfParagraph(QChar character)
{
    return mrvIsStructure(character) && character != QChar::LineSeparator
        && character != QChar::ObjectReplacementCharacter;
}

// A paragraph as markup can say it: several blanks count as one, and those at a line end do not.
QString inMarkup(QStringView paragraph)
{
    QString result;
    result.reserve(paragraph.size());
    bool isBlank = false;
    for (const QChar character : paragraph) {
        if (mrvIsMarkupBlank(character)) {
            isBlank = true;
            continue;
        }
        if (isBlank && !result.isEmpty() && !mrvIsStructure(result.back())
            && !mrvIsStructure(character)) {
            result += u' ';
        }
        isBlank = false;
        result += character;
    }
    while (result.endsWith(QChar::LineSeparator)) {
        result.chop(1);
    }
    return result;
}

QString lookOf(const QTextBlock &block, const QTextList *previousList)
{
    const QTextBlockFormat format = block.blockFormat();
    const QTextList *list = block.textList();
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(format.intProperty(MRVTextFormat::HeadingLevelProperty))
        .arg(format.intProperty(QTextFormat::BlockQuoteLevel))
        .arg(format.nonBreakableLines()
                 ? QLatin1String("code ") + format.stringProperty(QTextFormat::BlockCodeLanguage)
                 : QString())
        .arg(format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth))
        .arg(!list                      ? 0
                 : list == previousList ? -list->format().indent()
                                        : list->format().indent());
}

void countLinks(const QTextBlock &block, MRVParagraph *paragraph)
{
    QString last;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QString address = fragment.charFormat().anchorHref();
        paragraph->links += !address.isEmpty() && address != last ? 1 : 0;
        last = address;
        if (!address.isEmpty()) {
            const QString text = fragment.text();
            paragraph->linkedCharacters +=
                text.size() - int(std::count_if(text.cbegin(), text.cend(), mrvIsMarkupBlank));
        }
    }
}

bool isSame(const MRVParagraph &wanted, const MRVParagraph &found)
{
    return wanted.text == found.text && wanted.look == found.look && wanted.links <= found.links
        && wanted.linkedCharacters <= found.linkedCharacters;
}

/** Finds where two lists of paragraphs go on being the same. */
class Comparison
{
public:
    Comparison(const MRVParagraphs &wanted, const MRVParagraphs &found)
        : m_wanted(wanted)
        , m_found(found)
    {
        for (int i = 0; i < found.size(); ++i) {
            const QString key = keyOf(found[i]);
            m_places.insert(key, m_places.contains(key) ? -1 : i);
        }
    }

    // The first places from these on; the ends where nothing is the same.
    void goOn(int *i, int *j)
    {
        if (!findNear(i, j) && !findUnique(i, j)) {
            *i = m_wanted.size();
            *j = m_found.size();
        }
    }

private:
    bool isSameAt(int left, int right) const
    {
        const bool isEnd = left >= m_wanted.size() || right >= m_found.size();
        return isEnd ? left >= m_wanted.size() && right >= m_found.size()
                     : isSame(m_wanted[left], m_found[right]);
    }

    bool findNear(int *i, int *j) const
    {
        for (int distance = 1; distance < LongestDifference; ++distance) {
            for (int step = 0; step <= distance; ++step) {
                const int left = *i + step;
                const int right = *j + distance - step;
                if (left <= m_wanted.size() && right <= m_found.size() && isSameAt(left, right)
                    && (left == m_wanted.size() || m_places.value(keyOf(m_wanted[left])) >= 0
                        || isSameAt(left + 1, right + 1))) {
                    *i = left;
                    *j = right;
                    return true;
                }
            }
        }
        return false;
    }

    bool findUnique(int *i, int *j)
    {
        for (int left = *i; left < m_wanted.size(); ++left) {
            const int right = m_places.value(keyOf(m_wanted[left]), -1);
            if (right >= *j && isSameAt(left, right)) {
                *i = left;
                *j = right;
                return true;
            }
        }
        return false;
    }

    static QString keyOf(const MRVParagraph &paragraph)
    {
        return paragraph.look + u'\n' + paragraph.text;
    }

    const MRVParagraphs &m_wanted;
    const MRVParagraphs &m_found;
    QHash<QString, int> m_places; // of what is found; -1 for what is there several times
};

} // namespace

MRVParagraphs mrvParagraphs(const QTextDocument &document, const QString &text, bool isMarkup)
{
    MRVParagraphs paragraphs;
    const QTextList *list = nullptr;
    QTextBlock block = document.begin();
    for (int begin = 0, number = 0; begin <= text.size(); ++number) {
        int end = begin;
        while (end < text.size() && !isEndOfParagraph(text.at(end))) {
            ++end;
        }
        const QStringView raw = QStringView(text).mid(begin, end - begin);
        MRVParagraph paragraph;
        paragraph.block = number;
        paragraph.text = isMarkup ? inMarkup(raw) : raw.toString();
        if (isMarkup) {
            paragraph.look = lookOf(block, list);
            countLinks(block, &paragraph);
        }
        const bool isRule =
            block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
        if (!isMarkup || isRule || !paragraph.text.isEmpty()) {
            paragraphs.append(paragraph);
            list = block.textList();
        }
        if (end < text.size() && text.at(end) != QChar::ParagraphSeparator) {
            MRVParagraph cell;
            cell.text = text.at(end);
            cell.block = number;
            paragraphs.append(cell);
        }
        begin = end + 1;
        block = block.next();
    }
    return paragraphs;
}

QSet<int> mrvDifferingBlocks(const MRVParagraphs &wanted, const MRVParagraphs &found)
{
    Comparison comparison(wanted, found);
    QSet<int> blocks;
    int i = 0;
    int j = 0;
    while (i < wanted.size() || j < found.size()) {
        if (i < wanted.size() && j < found.size() && isSame(wanted[i], found[j])) {
            ++i;
            ++j;
            continue;
        }
        const int first = i;
        comparison.goOn(&i, &j);
        // What is there in addition comes from the paragraph before or after.
        const int last = i == first ? i : i - 1;
        for (int k = i == first ? first - 1 : first; k <= last; ++k) {
            if (k >= 0 && k < wanted.size()) {
                blocks.insert(wanted[k].block);
            }
        }
        if (wanted.isEmpty()) {
            blocks.insert(0);
        }
    }
    return blocks;
}
