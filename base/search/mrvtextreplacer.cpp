#include "search/mrvtextreplacer.h"

#include "search/mrvtextfold_p.h"
#include "search/mrvtextmatcher_p.h"
#include "search/mrvtextpieces_p.h"
#include "text/mrvreplacetext.h"
#include "textformat/mrvtextformat.h"

#include <QCoreApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

using Finder = MRVTextFinder;

QRegularExpression expressionOf(const MRVTextQuery &query)
{
    const bool cased = query.flags & Finder::FindCaseSensitively;
    return QRegularExpression(query.ignoreTypography ? MRVFoldedText::foldExpression(query.text)
                                                     : query.text,
                              QRegularExpression::UseUnicodePropertiesOption
                                  | (cased ? QRegularExpression::NoPatternOption
                                           : QRegularExpression::CaseInsensitiveOption));
}

/// Calls @p work with the matcher of a query.
template<typename Work>
auto withMatcher(const MRVTextQuery &query, Work work)
{
    if (query.syntax == MRVTextQuery::RegularExpression) {
        return work(MRVRegularExpressionMatcher(expressionOf(query)));
    }
    const auto cs =
        query.flags & Finder::FindCaseSensitively ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const QString text =
        query.ignoreTypography ? MRVFoldedText::foldPattern(query.text) : query.text;
    if (MRVLiteralMatcher::canMatch(text, cs)) {
        return work(MRVLiteralMatcher(text, cs));
    }
    return work(MRVRegExpMatcher(QRegExp(text, cs, QRegExp::FixedString)));
}

/// The text of a paragraph as it is and as it is searched, with the mapping between the two.
class SearchedText
{
public:
    template<typename Matcher>
    SearchedText(const QTextBlock &block, const Matcher &matcher, bool fold)
        : m_position(block.position())
        , m_original(block.text())
        , m_folded(fold ? MRVFoldedText(m_original) : MRVFoldedText(QString()))
        , m_isFolded(fold)
        , m_searched(fold ? m_folded.text() : m_original)
    {
        matcher.prepare(&m_searched);
    }

    int position() const { return m_position; }
    const QString &searched() const { return m_searched; }
    int fromOriginal(int offset) const
    {
        return m_isFolded ? m_folded.fromOriginal(offset) : offset;
    }
    /// Offsets in the paragraph.
    MRVTextMatch toOriginal(int start, int length) const
    {
        if (!m_isFolded) {
            return {start, length};
        }
        const int from = m_folded.toOriginalStart(start);
        const int to = length > 0 ? m_folded.toOriginalEnd(start + length) : from;
        return {from, to - from};
    }
    QString original(int start, int length) const
    {
        const MRVTextMatch part = toOriginal(start, length);
        return m_original.mid(part.start, part.length);
    }

private:
    int m_position;
    QString m_original;
    MRVFoldedText m_folded;
    bool m_isFolded;
    QString m_searched;
};

QVector<MRVTextRange> intersection(const QVector<MRVTextRange> &first,
                                   const QVector<MRVTextRange> &second)
{
    QVector<MRVTextRange> common;
    for (int i = 0, j = 0; i < first.size() && j < second.size();) {
        const int start = qMax(first[i].start(), second[j].start());
        const int end = qMin(first[i].end(), second[j].end());
        if (start < end) {
            common.append(MRVTextRange(start, end));
        }
        first[i].end() < second[j].end() ? ++i : ++j;
    }
    return common;
}

/// The text that is of all kinds of a query, in order; all of the document without kinds.
QVector<MRVTextRange> runsOfKinds(const QTextDocument *document, const MRVTextQuery &query)
{
    const MRVTextRange all(0, document->characterCount() - 1);
    QVector<MRVTextRange> common{MRVTextRange(0, document->characterCount())};
    for (const MRVTextQuery::Kind &kind : query.kinds) {
        // A run would join links side by side.
        const bool isLink = kind.type == Finder::FindLink
            && kind.value.toInt() == (Finder::ExternalLinks | Finder::InternalLinks);
        common = intersection(common,
                              isLink ? Finder::findAllAnchors(mrvSelect(document, all)).toVector()
                                     : Finder::findAllRuns(document, kind.type, kind.value));
        if (common.isEmpty()) {
            break;
        }
    }
    return common;
}

/// Tells whether text has the format and the kinds of a query. To be asked for the ranges of a
/// paragraph in document order.
class FormatFilter
{
public:
    FormatFilter(const QTextDocument *document, const MRVTextQuery &query)
        : m_verdicts(document, Test{query})
        , m_all(query.format.propertyCount() == 0)
        , m_hasKinds(!query.kinds.isEmpty())
        , m_ofKinds(m_hasKinds ? runsOfKinds(document, query) : QVector<MRVTextRange>())
    {
    }

    /// @param block the paragraph that @p find lies in
    bool accepts(const QTextBlock &block, const MRVTextRange &find)
    {
        if (m_hasKinds && !isOfKinds(find)) {
            return false;
        }
        if (m_all) {
            return true;
        }
        if (block != m_block) {
            load(block);
        }
        while (m_next < m_runs.size() && m_runs.at(m_next).end() < find.end()) {
            ++m_next;
        }
        return m_next < m_runs.size() && m_runs.at(m_next).start() <= find.start();
    }

private:
    struct Test
    {
        bool operator()(const QTextCharFormat &format) const
        {
            return MRVTextFormat::formatsMatch(format, query.format, query.compareFormatValues);
        }
        const MRVTextQuery &query;
    };

    bool isOfKinds(const MRVTextRange &find) const
    {
        const auto after = std::upper_bound(
            m_ofKinds.cbegin(), m_ofKinds.cend(), find.start(),
            [](int position, const MRVTextRange &run) { return position < run.start(); });
        return after != m_ofKinds.cbegin() && find.end() <= std::prev(after)->end();
    }

    void load(const QTextBlock &block)
    {
        m_block = block;
        m_runs.resize(0);
        m_next = 0;
        const int start = block.position();
        const MRVTextRange text(start, start + block.length() - 1);
        mrvEachPiece(block.document(), text, m_verdicts, [this](const MRVTextPiece &piece) {
            const bool adjoins = !m_runs.isEmpty() && m_runs.last().end() == piece.start;
            const int from = adjoins ? m_runs.takeLast().start() : piece.start;
            m_runs.append(MRVTextRange(from, piece.end));
        });
    }

    MRVFormatVerdicts<Test> m_verdicts;
    QTextBlock m_block;
    QVector<MRVTextRange> m_runs;
    int m_next = 0;
    bool m_all;
    bool m_hasKinds;
    QVector<MRVTextRange> m_ofKinds;
};

MRVTextRange clipped(const MRVTextRange &range, int start, int end)
{
    const int from = qBound(start, range.start(), end);
    return MRVTextRange(from, qBound(from, range.end(), end));
}

MRVTextRange searchedRange(const QTextDocument *document, const MRVTextQuery &query)
{
    return clipped(query.range, 0, document->characterCount());
}

/// Calls @p found(text, match, range) for the matches in a part of a paragraph until it returns
/// false: with the match in the searched text and the range in the document.
template<typename Matcher, typename Found>
bool eachFindInBlock(const Matcher &matcher, const MRVTextQuery &query, const QTextBlock &block,
                     int from, int to, FormatFilter &filter, Found found)
{
    const SearchedText text(block, matcher, query.ignoreTypography);
    int last = from;
    bool goesOn = true;
    const auto take = [&](MRVTextMatch match) {
        const MRVTextMatch own = text.toOriginal(match.start, match.length);
        const MRVTextRange range(text.position() + own.start, text.position() + own.end());
        if (own.end() > to) {
            return false;
        }
        // Two matches within the expansion of one letter are one match.
        if (own.start >= last && filter.accepts(block, range)) {
            last = own.end();
            goesOn = found(text, match, range);
        }
        return goesOn;
    };
    mrvEachMatch(matcher, text.searched(), text.fromOriginal(from), text.searched().size(),
                 query.flags, take);
    return goesOn;
}

/// The same for the matches of a query within a part of a document.
template<typename Matcher, typename Found>
void eachFind(const QTextDocument *document, const Matcher &matcher, const MRVTextQuery &query,
              const MRVTextRange &within, FormatFilter &filter, Found found)
{
    if (matcher.isEmpty()) {
        return;
    }
    bool goesOn = true;
    mrvEachBlock(document, within, [&](const QTextBlock &block, int, int from, int to) {
        goesOn = goesOn && eachFindInBlock(matcher, query, block, from, to, filter, found);
        return goesOn;
    });
}

/// The text that a replacement stands for, given the groups of a match.
class Replacement
{
public:
    Replacement(const QString &text, const SearchedText &searched,
                const QRegularExpressionMatch &match)
        : m_text(text)
        , m_searched(searched)
        , m_match(match)
        , m_groups(match.regularExpression().captureCount())
    {
    }

    QString expanded()
    {
        QString result;
        while (m_at < m_text.size()) {
            const QChar c = m_text.at(m_at++);
            if (c != QLatin1Char('\\') && c != QLatin1Char('$')) {
                result += c;
            } else if (!takeGroup(&result) && !takeCharacter(c, &result)
                       && !(c == QLatin1Char('$') && takeNamed(&result))) {
                result += c;
            }
        }
        return result;
    }

private:
    QString group(int number) const
    {
        if (m_match.capturedStart(number) < 0) {
            return QString();
        }
        return m_searched.original(m_match.capturedStart(number), m_match.capturedLength(number));
    }

    int digitAt(int at) const
    {
        const ushort c = at < m_text.size() ? m_text.at(at).unicode() : 0;
        return c >= '0' && c <= '9' ? c - '0' : -1;
    }

    bool takeGroup(QString *result)
    {
        int number = digitAt(m_at);
        if (number < 0 || number > m_groups) {
            return false;
        }
        ++m_at;
        const int second = digitAt(m_at);
        if (number > 0 && second >= 0 && number * 10 + second <= m_groups) {
            number = number * 10 + second;
            ++m_at;
        }
        *result += group(number);
        return true;
    }

    bool takeCharacter(QChar sign, QString *result)
    {
        const QChar c = m_at < m_text.size() ? m_text.at(m_at) : QChar();
        const bool backslash = sign == QLatin1Char('\\');
        if (c == sign) {
            *result += c;
        } else if (backslash && c == QLatin1Char('n')) {
            *result += QChar(QChar::ParagraphSeparator);
        } else if (backslash && c == QLatin1Char('t')) {
            *result += QLatin1Char('\t');
        } else if (!backslash && c == QLatin1Char('&')) {
            *result += group(0);
        } else {
            return false;
        }
        ++m_at;
        return true;
    }

    bool takeNamed(QString *result)
    {
        const int end = m_text.indexOf(QLatin1Char('}'), m_at);
        if (end < 0 || m_text.at(m_at) != QLatin1Char('{')) {
            return false;
        }
        const QString name = m_text.mid(m_at + 1, end - m_at - 1);
        bool isNumber = false;
        int number = name.toInt(&isNumber);
        if (!isNumber) {
            number = name.isEmpty()
                ? -1
                : m_match.regularExpression().namedCaptureGroups().indexOf(name);
        }
        if (number < 0 || number > m_groups) {
            return false;
        }
        m_at = end + 1;
        *result += group(number);
        return true;
    }

    const QString &m_text;
    const SearchedText &m_searched;
    const QRegularExpressionMatch &m_match;
    const int m_groups;
    int m_at = 0;
};

QString replacementFor(const MRVRegularExpressionMatcher &matcher, const SearchedText &text,
                       MRVTextMatch match, const QString &replacement)
{
    return Replacement(replacement, text, matcher.match(text.searched(), match.from)).expanded();
}

template<typename Matcher>
QString replacementFor(const Matcher &, const SearchedText &, MRVTextMatch,
                       const QString &replacement)
{
    return replacement;
}

bool holdsObject(const QString &text)
{
    return text.contains(QChar(QChar::ObjectReplacementCharacter));
}

void select(QTextCursor *cursor, const MRVTextRange &range)
{
    cursor->setPosition(range.start());
    cursor->setPosition(range.end(), QTextCursor::KeepAnchor);
}

MRVTextRange partBefore(const QTextCursor &cursor, const MRVTextQuery &query)
{
    return clipped(query.range, 0, cursor.selectionStart());
}

} // namespace

bool MRVTextQuery::isValid(QString *error) const
{
    if (syntax == PlainText) {
        return true;
    }
    const QRegularExpression expression = expressionOf(*this);
    if (expression.isValid()) {
        return true;
    }
    if (error) {
        *error = QCoreApplication::translate("MRVTextQuery", "%1 (at character %2)")
                     .arg(expression.errorString(),
                          QString::number(expression.patternErrorOffset() + 1));
    }
    return false;
}

QVector<MRVTextRange> MRVTextReplacer::findAll(const QTextDocument *document,
                                               const MRVTextQuery &query)
{
    QVector<MRVTextRange> finds;
    if (!document) {
        return finds;
    }
    const MRVTextRange within = searchedRange(document, query);
    if (query.text.isEmpty() && !query.kinds.isEmpty()) {
        finds = runsOfKinds(document, query);
        const auto isOutside = [&](const MRVTextRange &find) {
            return find.start() < within.start() || find.end() > within.end();
        };
        finds.erase(std::remove_if(finds.begin(), finds.end(), isOutside), finds.end());
        return finds;
    }
    FormatFilter filter(document, query);
    withMatcher(query, [&](const auto &matcher) {
        eachFind(document, matcher, query, within, filter,
                 [&](const SearchedText &, MRVTextMatch, const MRVTextRange &range) {
                     finds.append(range);
                     return true;
                 });
    });
    return finds;
}

int MRVTextReplacer::count(const QTextDocument *document, const MRVTextQuery &query)
{
    return findAll(document, query).size();
}

QTextCursor MRVTextReplacer::find(const QTextCursor &from, const MRVTextQuery &query)
{
    QTextCursor result;
    if (from.isNull()) {
        return result;
    }
    const QTextDocument *document = from.document();
    const bool backward = query.flags & Finder::FindBackward;
    const MRVTextRange all = searchedRange(document, query);
    const MRVTextRange own(from);
    MRVTextRange last(-1, -1);
    const auto take = [&](const SearchedText &, MRVTextMatch, const MRVTextRange &range) {
        if (range == own && !from.hasSelection()) {
            return true;
        }
        last = range;
        return backward;
    };
    FormatFilter filter(document, query);
    withMatcher(query, [&](const auto &matcher) {
        if (!backward) {
            if (own.end() <= all.end()) {
                eachFind(document, matcher, query, clipped(all, own.end(), all.end()), filter,
                         take);
            }
            return;
        }
        // From paragraph to paragraph; of each, the last match.
        const MRVTextRange part = partBefore(from, query);
        for (QTextBlock block = document->findBlock(part.end()); block.isValid() && last.start() < 0
             && block.position() + block.length() > part.start();
             block = block.previous()) {
            eachFind(document, matcher, query,
                     clipped(part, block.position(), block.position() + block.length() - 1), filter,
                     take);
        }
    });
    return last.start() < 0 ? result : mrvSelect(document, last);
}

QVector<MRVTextChange> MRVTextReplacer::preview(const QTextDocument *document,
                                                const MRVTextQuery &query,
                                                const QString &replacement)
{
    QVector<MRVTextChange> changes;
    if (!document) {
        return changes;
    }
    FormatFilter filter(document, query);
    withMatcher(query, [&](const auto &matcher) {
        eachFind(document, matcher, query, searchedRange(document, query), filter,
                 [&](const SearchedText &text, MRVTextMatch match, const MRVTextRange &range) {
                     const QString before = text.original(match.start, match.length);
                     const QString after = replacementFor(matcher, text, match, replacement);
                     if (before != after && !holdsObject(before)) {
                         changes.append({range, before, after});
                     }
                     return true;
                 });
    });
    return changes;
}

int MRVTextReplacer::replaceAll(QTextDocument *document, const MRVTextQuery &query,
                                const QString &replacement)
{
    const QVector<MRVTextChange> changes = preview(document, query, replacement);
    if (changes.isEmpty()) {
        return 0;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // From the last to the first, so that the positions of the others stay valid.
    for (auto change = changes.crbegin(); change != changes.crend(); ++change) {
        select(&cursor, change->range);
        mrvReplaceText(cursor, change->after);
    }
    cursor.endEditBlock();
    return changes.size();
}

int MRVTextReplacer::apply(QTextDocument *document, const QVector<MRVTextChange> &changes)
{
    if (!document || changes.isEmpty()) {
        return 0;
    }
    QVector<const MRVTextChange *> order;
    for (const MRVTextChange &change : changes) {
        order.append(&change);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const auto *a, const auto *b) { return b->range < a->range; });
    QTextCursor cursor(document);
    int made = 0;
    int limit = document->characterCount() - 1;
    for (const MRVTextChange *change : qAsConst(order)) {
        const MRVTextRange &range = change->range;
        if (range.start() < 0 || range.end() > limit || change->before == change->after) {
            continue;
        }
        select(&cursor, range);
        if (cursor.selectedText() != change->before) {
            continue;
        }
        if (made++ == 0) {
            cursor.beginEditBlock();
        }
        mrvReplaceText(cursor, change->after);
        limit = range.start();
    }
    if (made > 0) {
        cursor.endEditBlock();
    }
    return made;
}

bool MRVTextReplacer::replace(QTextCursor &cursor, const MRVTextQuery &query,
                              const QString &replacement)
{
    if (cursor.isNull()) {
        return false;
    }
    const MRVTextRange own(cursor);
    QTextDocument *document = cursor.document();
    const MRVTextRange all = searchedRange(document, query);
    if (own.start() < all.start() || own.end() > all.end()) {
        return false;
    }
    bool isFind = false;
    QString after;
    // First from the selection itself; an expression that requires text before the match without
    // including it (\K) needs the paragraph from its start.
    const int paragraph = qMax(all.start(), document->findBlock(own.start()).position());
    for (int from : {own.start(), paragraph}) {
        if (isFind) {
            break;
        }
        FormatFilter filter(document, query);
        withMatcher(query, [&](const auto &matcher) {
            eachFind(document, matcher, query, MRVTextRange(from, own.end()), filter,
                     [&](const SearchedText &text, MRVTextMatch match, const MRVTextRange &range) {
                         if (range == own) {
                             isFind = !holdsObject(text.original(match.start, match.length));
                             after = replacementFor(matcher, text, match, replacement);
                         }
                         return range.start() < own.start();
                     });
        });
    }
    if (isFind) {
        mrvReplaceText(cursor, after);
        if (query.flags & Finder::FindBackward) {
            cursor.setPosition(own.start());
        }
    }
    return isFind;
}
