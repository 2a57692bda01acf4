#include "search/mrvtextfinder.h"

#include "search/mrvtextmatcher_p.h"

#include <QTextBlock>
#include <QTextDocument>

#include <utility>

namespace {

using Finder = MRVTextFinder;

void selectMatch(const QTextBlock &block, int position, MRVTextMatch match, QTextCursor *result)
{
    // A const document gives no cursor, but its blocks do.
    QTextCursor cursor(block);
    cursor.setPosition(position + match.start);
    if (match.length > 0) {
        cursor.setPosition(position + match.end(), QTextCursor::KeepAnchor);
    }
    *result = std::move(cursor);
}

template<typename Matcher>
MRVTextMatch matchInBlock(const Matcher &matcher, const QTextBlock &block, int offset,
                          Finder::FindFlags flags, MRVEmptyMatch empty)
{
    if (!block.isValid() || offset < 0 || matcher.isEmpty()) {
        return MRVTextMatch();
    }
    QString text = block.text();
    matcher.prepare(&text);
    return mrvFindInText(matcher, text, offset, flags, empty);
}

/// The text of a paragraph between two offsets.
QString textBetween(const QTextBlock &block, int start, int end)
{
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + start);
    cursor.setPosition(block.position() + end, QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

/// Searches a long paragraph in pieces of growing size. Fetching all of it for each match would
/// make a loop over the matches quadratic in its length.
MRVTextMatch matchInLongBlock(const MRVLiteralMatcher &matcher, const QTextBlock &block, int offset,
                              Finder::FindFlags flags)
{
    const bool backward = flags & Finder::FindBackward;
    const int length = block.length() - 1;
    const int near = matcher.length() + 1; // one more, for the word rules
    if (offset < 0 || offset > length || matcher.isEmpty()) {
        return MRVTextMatch();
    }
    for (qint64 reach = 512 + near;; reach *= 4) {
        const int start = int(qMax<qint64>(0, offset - (backward ? reach : 1)));
        const int end = int(qMin<qint64>(length, offset + (backward ? near : reach)));
        QString text = textBetween(block, start, end);
        matcher.prepare(&text);
        MRVTextMatch match = mrvFindInText(matcher, text, offset - start, flags);
        const bool whole = backward ? start == 0 : end == length;
        // For a match at the end of the piece, what follows outside decides about whole words.
        const bool touches = backward ? match.start == 0 : match.end() == text.size();
        if (whole || (match && !touches)) {
            if (match) {
                match.start += start;
            }
            return match;
        }
    }
}

MRVTextMatch matchInBlock(const MRVLiteralMatcher &matcher, const QTextBlock &block, int offset,
                          Finder::FindFlags flags, MRVEmptyMatch empty)
{
    constexpr int LongParagraph = 4096;
    if (block.length() > LongParagraph) {
        return matchInLongBlock(matcher, block, offset, flags);
    }
    return matchInBlock<MRVLiteralMatcher>(matcher, block, offset, flags, empty);
}

template<typename Matcher>
QTextCursor findFrom(const QTextDocument *document, const Matcher &matcher, int from,
                     Finder::FindFlags flags, MRVEmptyMatch empty, const MRVSearchGuard &guard)
{
    QTextCursor result;
    const bool backward = flags & Finder::FindBackward;
    const int start = backward ? from - 1 : from;
    if (!document || start < 0 || matcher.isEmpty()) {
        return result;
    }
    QTextBlock block = document->findBlock(start);
    int position = block.position(); // fetched once, since Qt searches a tree for it
    int offset = start - position;
    while (block.isValid() && guard.isComplete()) {
        const MRVTextMatch match = matchInBlock(matcher, block, offset, flags, empty);
        if (match) {
            selectMatch(block, position < 0 ? block.position() : position, match, &result);
            return result;
        }
        block = backward ? block.previous() : block.next();
        offset = backward ? block.length() - 1 : 0;
        position = -1;
        empty = MRVEmptyMatch::Allowed;
    }
    return result;
}

/// Calls @p work with the fastest matcher for a text.
template<typename Work>
auto withLiteralMatcher(const QString &text, Qt::CaseSensitivity cs, Work work)
{
    if (MRVLiteralMatcher::canMatch(text, cs)) {
        return work(MRVLiteralMatcher(text, cs));
    }
    return work(MRVRegExpMatcher(QRegExp(text, cs, QRegExp::FixedString)));
}

template<typename Work>
auto withMatcher(const QString &text, Finder::FindFlags flags, MRVSearchGuard *, Work work)
{
    return withLiteralMatcher(
        text, flags & Finder::FindCaseSensitively ? Qt::CaseSensitive : Qt::CaseInsensitive, work);
}

/// The same for an expression.
template<typename Work>
auto withMatcher(const QRegExp &expression, Finder::FindFlags, MRVSearchGuard *, Work work)
{
    if (expression.patternSyntax() == QRegExp::FixedString) {
        return withLiteralMatcher(expression.pattern(), expression.caseSensitivity(), work);
    }
    return work(MRVRegExpMatcher(expression));
}

template<typename Work>
auto withMatcher(const QRegularExpression &expression, Finder::FindFlags, MRVSearchGuard *guard,
                 Work work)
{
    return work(MRVRegularExpressionMatcher(expression, guard));
}

template<typename Pattern>
QTextCursor findFrom(const QTextDocument *document, const Pattern &pattern, int from,
                     Finder::FindFlags flags, MRVEmptyMatch empty = MRVEmptyMatch::Allowed)
{
    MRVSearchGuard guard;
    return withMatcher(pattern, flags, &guard, [&](const auto &matcher) {
        return findFrom(document, matcher, from, flags, empty, guard);
    });
}

template<typename Pattern>
QTextCursor findFrom(const QTextDocument *document, const Pattern &pattern, const QTextCursor &from,
                     Finder::FindFlags flags)
{
    if (from.isNull()) {
        return findFrom(document, pattern, 0, flags);
    }
    if (flags & Finder::FindBackward) {
        return findFrom(document, pattern, from.selectionStart(), flags);
    }
    return findFrom(document, pattern, from.selectionEnd(), flags,
                    from.hasSelection() ? MRVEmptyMatch::Allowed : MRVEmptyMatch::NotAtStart);
}

template<typename Pattern>
bool findInOneBlock(const QTextBlock &block, const Pattern &pattern, int offset,
                    Finder::FindFlags flags, QTextCursor *result)
{
    MRVSearchGuard guard;
    const MRVTextMatch match = withMatcher(pattern, flags, &guard, [&](const auto &matcher) {
        return matchInBlock(matcher, block, offset, flags, MRVEmptyMatch::Allowed);
    });
    if (match) {
        selectMatch(block, block.position(), match, result);
    }
    return bool(match);
}

template<typename Pattern>
QVector<MRVTextRange> findAllOf(const QTextDocument *document, const Pattern &pattern,
                                Finder::FindFlags flags, const MRVTextRange &within)
{
    QVector<MRVTextRange> finds;
    MRVSearchGuard guard;
    withMatcher(pattern, flags, &guard, [&](const auto &matcher) {
        if (matcher.isEmpty()) {
            return;
        }
        mrvEachBlock(
            document, within, [&](const QTextBlock &block, int position, int from, int to) {
                QString text = block.text();
                matcher.prepare(&text);
                mrvEachMatch(matcher, text, from, to, flags, [&](MRVTextMatch match) {
                    finds.append(MRVTextRange(position + match.start, position + match.end()));
                    return MRVNextMatch::After;
                });
                return guard.isComplete();
            });
    });
    return finds;
}

MRVTextRange whole(const QTextDocument *document)
{
    return document ? MRVTextRange(0, document->characterCount()) : MRVTextRange();
}

} // namespace

QTextCursor MRVTextFinder::find(const QTextDocument *document, const QRegExp &expression, int from,
                                FindFlags flags)
{
    return findFrom(document, expression, from, flags);
}

QTextCursor MRVTextFinder::find(const QTextDocument *document, const QRegExp &expression,
                                const QTextCursor &from, FindFlags flags)
{
    return findFrom(document, expression, from, flags);
}

QTextCursor MRVTextFinder::find(const QTextDocument *document, const QString &text, int from,
                                FindFlags flags)
{
    return findFrom(document, text, from, flags);
}

QTextCursor MRVTextFinder::find(const QTextDocument *document, const QString &text,
                                const QTextCursor &from, FindFlags flags)
{
    return findFrom(document, text, from, flags);
}

QTextCursor MRVTextFinder::find(const QTextDocument *document, const QRegularExpression &expression,
                                int from, FindFlags flags)
{
    return findFrom(document, expression, from, flags);
}

QTextCursor MRVTextFinder::find(const QTextDocument *document, const QRegularExpression &expression,
                                const QTextCursor &from, FindFlags flags)
{
    return findFrom(document, expression, from, flags);
}

bool MRVTextFinder::findInBlock(const QTextBlock &block, const QRegExp &expression, int offset,
                                FindFlags flags, QTextCursor &result)
{
    return findInOneBlock(block, expression, offset, flags, &result);
}

bool MRVTextFinder::findInBlock(const QTextBlock &block, const QRegularExpression &expression,
                                int offset, FindFlags flags, QTextCursor &result)
{
    return findInOneBlock(block, expression, offset, flags, &result);
}

QVector<MRVTextRange> MRVTextFinder::findAll(const QTextDocument *document, const QString &text,
                                             FindFlags flags)
{
    return findAllOf(document, text, flags, whole(document));
}

QVector<MRVTextRange> MRVTextFinder::findAll(const QTextDocument *document, const QString &text,
                                             FindFlags flags, const MRVTextRange &within)
{
    return findAllOf(document, text, flags, within);
}

QVector<MRVTextRange> MRVTextFinder::findAll(const QTextDocument *document,
                                             const QRegExp &expression, FindFlags flags)
{
    return findAllOf(document, expression, flags, whole(document));
}

QVector<MRVTextRange> MRVTextFinder::findAll(const QTextDocument *document,
                                             const QRegExp &expression, FindFlags flags,
                                             const MRVTextRange &within)
{
    return findAllOf(document, expression, flags, within);
}

QVector<MRVTextRange> MRVTextFinder::findAll(const QTextDocument *document,
                                             const QRegularExpression &expression, FindFlags flags)
{
    return findAllOf(document, expression, flags, whole(document));
}

QVector<MRVTextRange> MRVTextFinder::findAll(const QTextDocument *document,
                                             const QRegularExpression &expression, FindFlags flags,
                                             const MRVTextRange &within)
{
    return findAllOf(document, expression, flags, within);
}
