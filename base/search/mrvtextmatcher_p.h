#pragma once

#include "search/mrvexpression_p.h"
#include "search/mrvsearchguard_p.h"
#include "search/mrvtextfinder.h"
#include "search/mrvtextmatch_p.h"

#include <QRegExp>
#include <QRegularExpression>
#include <QString>
#include <QTextBlock>
#include <QTextDocument>

#include <array>

// The three ways to search for text, with one interface: prepare a paragraph's text, find the next
// match from an offset on, and find the last match that starts at or before an offset.

/** Replaces objects and no-break spaces by blanks, which keeps all positions. */
void mrvBlankObjects(QString *text);

/** A plain text. Finds what a QRegExp of pattern syntax FixedString finds, only faster. */
class MRVLiteralMatcher
{
public:
    MRVLiteralMatcher(const QString &text, Qt::CaseSensitivity sensitivity);

    /**
     * Whether QRegExp, which compares letters by two rules at once, can be foretold for @p text. It
     * cannot for the dotted capital I and beyond U+FFFF, where case matters.
     */
    static bool canMatch(const QString &text, Qt::CaseSensitivity sensitivity);

    bool isEmpty() const { return m_text.isEmpty(); }
    int length() const { return m_text.size(); }
    void prepare(QString *text) const;
    MRVTextMatch next(const QString &text, int offset, MRVEmptyMatch empty) const;
    MRVTextMatch last(const QString &text, int offset) const;

private:
    bool isAt(const QString &text, int at) const;
    int nearestAnchor(const QString &text, int from) const;
    int byAnchor(const QString &text, int offset) const;
    template<bool Fold>
    int bySkipping(const ushort *text, int length, int offset) const;

    QString m_text; // as given
    QString m_folded; // where case does not matter, else the same
    std::array<uchar, 256> m_skip; // by the low byte of the character
    int m_anchor = -1; // the index of a character that is rare in most texts; -1: none is known
    QChar m_anchorCharacter;
    QChar m_otherCase; // of the anchor, or the same
    Qt::CaseSensitivity m_sensitivity;
    bool m_blanks;
};

class MRVRegExpMatcher
{
public:
    explicit MRVRegExpMatcher(const QRegExp &expression)
        : m_expression(expression)
    {
    }

    bool isEmpty() const { return m_expression.isEmpty(); }
    void prepare(QString *text) const { mrvBlankObjects(text); }
    MRVTextMatch next(const QString &text, int offset, MRVEmptyMatch empty) const;
    MRVTextMatch last(const QString &text, int offset) const;

private:
    mutable QRegExp m_expression; // remembers its last match
};

/** Gives up where the guard says so, or where an expression costs too much, which it then tells. */
class MRVRegularExpressionMatcher
{
public:
    MRVRegularExpressionMatcher(const QRegularExpression &expression, MRVSearchGuard *guard);

    bool isEmpty() const { return m_isEmpty; }
    /** Also replaces lone surrogates, since a text with one of them cannot be searched at all. */
    void prepare(QString *text) const;
    MRVTextMatch next(const QString &text, int offset, MRVEmptyMatch empty) const;
    MRVTextMatch last(const QString &text, int offset) const;
    /** The expression, whose captures are those of the match that was given last. */
    const MRVExpression &expression() const { return m_expression; }

private:
    MRVTextMatch search(const QString &text, int from, int last, MRVEmptyMatch empty) const;

    MRVExpression m_expression;
    MRVSearchGuard *m_guard;
    bool m_isEmpty;
};

/** Whether the word rules of @p flags accept @p match. */
bool mrvKeepsWordRules(const QString &text, MRVTextMatch match, MRVTextFinder::FindFlags flags);

/**
 * The nearest match in a prepared text that satisfies the word rules. A match that breaks them is
 * skipped together with one more character. Deliberate: a match that starts right after it is not
 * found.
 */
template<typename Matcher>
MRVTextMatch mrvFindInText(const Matcher &matcher, const QString &text, int offset,
                           MRVTextFinder::FindFlags flags,
                           MRVEmptyMatch empty = MRVEmptyMatch::Allowed)
{
    const bool backward = flags & MRVTextFinder::FindBackward;
    while (offset >= 0 && offset <= text.size()) {
        const MRVTextMatch match =
            backward ? matcher.last(text, offset) : matcher.next(text, offset, empty);
        if (!match || mrvKeepsWordRules(text, match, flags)) {
            return match;
        }
        offset = backward ? match.start - 1 : match.end() + 1;
        empty = MRVEmptyMatch::Allowed;
    }
    return MRVTextMatch();
}

/** Where to go on after a match: after it, one character after its start, or not at all. */
enum class MRVNextMatch { After, Overlapping, None };

/**
 * Calls @p found(match) for the matches in a prepared text from @p offset on, until a match reaches
 * beyond @p limit or @p found wants no more.
 */
template<typename Matcher, typename Found>
void mrvEachMatch(const Matcher &matcher, const QString &text, int offset, int limit,
                  MRVTextFinder::FindFlags flags, Found found)
{
    flags &= ~MRVTextFinder::FindBackward;
    MRVEmptyMatch empty = MRVEmptyMatch::Allowed;
    while (offset <= limit) {
        const MRVTextMatch match = mrvFindInText(matcher, text, offset, flags, empty);
        if (!match || match.end() > limit) {
            return;
        }
        const MRVNextMatch next = found(match);
        if (next == MRVNextMatch::None) {
            return;
        }
        const bool overlaps = next == MRVNextMatch::Overlapping;
        offset = overlaps ? match.start + 1 : match.end();
        // After an empty match as in Perl: a longer one in its place, or the next one.
        empty = match.length > 0 || overlaps ? MRVEmptyMatch::Allowed : MRVEmptyMatch::NotAtStart;
    }
}

/**
 * Calls @p visit(block, position, from, to), with offsets in its text, for each paragraph of a part
 * until it returns false.
 */
template<typename Visit>
void mrvEachBlock(const QTextDocument *document, const MRVTextRange &within, Visit visit)
{
    const int start = qMax(0, within.start());
    if (!document || within.end() < 0) {
        return;
    }
    QTextBlock block = document->findBlock(start);
    int position = block.position(); // added up, since Qt searches a tree for it
    for (; block.isValid() && position <= within.end(); block = block.next()) {
        const int length = block.length();
        if (!visit(block, position, qMax(0, start - position),
                   qMin(length - 1, within.end() - position))) {
            return;
        }
        position += length;
    }
}
