#pragma once

#include "search/mrvsearchguard_p.h"
#include "search/mrvtextfold_p.h"
#include "search/mrvtextmatcher_p.h"
#include "search/mrvtextpieces_p.h"
#include "search/mrvtextquery.h"
#include "textformat/mrvtextformat.h"

#include <QString>
#include <QTextBlock>
#include <QTextDocument>
#include <QVector>

#include <memory>
#include <variant>

/** The text of a paragraph as it is and as it is searched, with the mapping between the two. */
class MRVSearchedText
{
public:
    MRVSearchedText(int position, const QString &original, bool fold);

    /** Of the paragraph in the document. */
    int position() const { return m_position; }
    const QString &original() const { return m_original; }
    const QString &searched() const { return m_searched; }
    /** For the matcher, which makes it ready to be searched. */
    QString *toBePrepared() { return &m_searched; }

    int fromOriginal(int offset) const;
    /** Offsets in the paragraph. */
    MRVTextMatch toOriginal(MRVTextMatch match) const;
    QString original(MRVTextMatch match) const;

private:
    int m_position;
    bool m_isFolded;
    QString m_original;
    MRVFoldedText m_folded;
    QString m_searched;
};

/** Finds the text of a query, in the way that suits it best. */
class MRVQueryMatcher
{
public:
    MRVQueryMatcher(const MRVTextQuery &query, MRVSearchGuard *guard);

    bool isEmpty() const;
    void prepare(QString *text) const;
    MRVTextMatch next(const QString &text, int offset, MRVEmptyMatch empty) const;
    MRVTextMatch last(const QString &text, int offset) const;
    /** With the groups of the match that was given last; null for plain text. */
    const MRVExpression *expression() const;

private:
    std::variant<MRVLiteralMatcher, MRVRegularExpressionMatcher> m_matcher;
    bool m_hasGroups;
};

/** The expression of a query, as it is compiled. */
QRegularExpression mrvExpressionOf(const MRVTextQuery &query);

/** The text that is of all kinds of a query, in order; all of the document without kinds. */
QVector<MRVTextRange> mrvRunsOfKinds(const QTextDocument *document, const MRVTextQuery &query);

/**
 * Tells whether text has the format and the kinds of a query. To be asked for the ranges of a
 * paragraph in document order.
 */
class MRVQueryFilter
{
public:
    MRVQueryFilter(const QTextDocument *document, const MRVTextQuery &query);

    /** @param block the paragraph that @p find lies in. */
    bool accepts(const QTextBlock &block, const MRVTextRange &find);

private:
    struct Test
    {
        bool operator()(const QTextCharFormat &format) const
        {
            return MRVTextFormat::formatsMatch(format, query.format, query.compareFormatValues);
        }
        const MRVTextQuery &query;
    };

    bool isOfKinds(const MRVTextRange &find) const;
    void load(const QTextBlock &block);

    MRVFormatVerdicts<Test> m_verdicts;
    QTextBlock m_block;
    QVector<MRVTextRange> m_runs;
    int m_next = 0;
    bool m_all;
    bool m_hasKinds;
    QVector<MRVTextRange> m_ofKinds;
};

/** A find, and where it was found; valid until the next one is looked for. */
struct MRVQueryFind
{
    MRVTextRange range; ///< in the document
    MRVTextMatch match; ///< in the searched text
    const MRVSearchedText &text;
    const MRVExpression *expression; ///< with the groups of the match; null for plain text

    /** What was found, as it is in the document. */
    QString before() const { return text.original(match); }
};

/** A search of a document for a query. The document must not change meanwhile. */
class MRVQuerySearch
{
public:
    /** @p query must live as long. */
    MRVQuerySearch(const QTextDocument *document, const MRVTextQuery &query);

    /** The part of the document that is searched. */
    MRVTextRange range() const { return m_range; }

    /**
     * Calls @p found(find) for the finds within a part, in document order, until it returns false.
     * Searching ends early where the outcome is not complete.
     */
    template<typename Found>
    void eachFind(const MRVTextRange &within, Found found);

    MRVSearchOutcome outcome() const { return m_outcome; }
    /** Hands the outcome over to a caller who asks for it. @return whether it is complete. */
    bool report(MRVSearchOutcome *outcome) const;

private:
    template<typename Found>
    bool eachFindInBlock(const QTextBlock &block, int position, int from, int to, Found &found);
    bool accepts(const QTextBlock &block, const MRVTextRange &find);

    const QTextDocument *m_document;
    const MRVTextQuery &m_query;
    MRVTextRange m_range;
    MRVSearchGuard m_guard;
    MRVQueryMatcher m_matcher;
    std::unique_ptr<MRVQueryFilter> m_filter; ///< null where any text will do
    MRVSearchOutcome m_outcome;
};

template<typename Found>
void MRVQuerySearch::eachFind(const MRVTextRange &within, Found found)
{
    if (m_matcher.isEmpty()) {
        return;
    }
    mrvEachBlock(m_document, within, [&](const QTextBlock &block, int position, int from, int to) {
        const bool goesOn = eachFindInBlock(block, position, from, to, found);
        if (m_guard.goesOn()) {
            return goesOn;
        }
        m_outcome.reason = m_guard.reason();
        m_outcome.paragraph = block.blockNumber();
        return false;
    });
}

template<typename Found>
bool MRVQuerySearch::eachFindInBlock(const QTextBlock &block, int position, int from, int to,
                                     Found &found)
{
    MRVSearchedText text(position, block.text(), m_query.ignoreTypography);
    m_matcher.prepare(text.toBePrepared());
    int last = from;
    bool goesOn = true;
    const auto take = [&](MRVTextMatch match) {
        const MRVTextMatch own = text.toOriginal(match);
        const MRVTextRange range(position + own.start, position + own.end());
        if (own.end() > to) {
            return false;
        }
        // Two matches within the expansion of one letter are one match.
        if (own.start >= last && accepts(block, range)) {
            last = own.end();
            goesOn = found(MRVQueryFind{range, match, text, m_matcher.expression()});
        }
        return goesOn;
    };
    mrvEachMatch(m_matcher, text.searched(), text.fromOriginal(from), text.searched().size(),
                 m_query.flags, take);
    return goesOn;
}
