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

/** The text of one or more paragraphs as it is and as it is searched, with the map between both. */
class MRVSearchedText
{
public:
    /** @param position of the text in the document, whose separators it holds. */
    MRVSearchedText(int position, const QString &original, MRVFoldedText::Options folding);

    int position() const { return m_position; }
    const QString &original() const { return m_original; }
    const QString &searched() const { return m_searched; }
    /** For the matcher, which makes it ready to be searched. */
    QString *toBePrepared() { return &m_searched; }

    int fromOriginal(int offset) const { return m_folded.fromOriginal(offset); }
    /** Offsets in the original. */
    MRVTextMatch toOriginal(MRVTextMatch match) const;
    QString original(MRVTextMatch match) const;
    /** Whether a match takes nothing but whole letters of the original. */
    bool isOfWholeLetters(MRVTextMatch match) const;

private:
    int m_position;
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
    bool m_isAcross;
};

/** The text that is of all kinds of a query, in order; all of the document without kinds. */
QVector<MRVTextRange> mrvRunsOfKinds(const QTextDocument *document, const MRVTextQuery &query);

/** Tells whether text has the format and the kinds of a query. To be asked in document order. */
class MRVQueryFilter
{
public:
    MRVQueryFilter(const QTextDocument *document, const MRVTextQuery &query);

    /** @param text in which @p find lies. */
    bool accepts(const MRVSearchedText &text, const MRVTextRange &find);

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
    void load(const MRVSearchedText &text);

    const QTextDocument *m_document;
    MRVFormatVerdicts<Test> m_verdicts;
    int m_loaded = -1; // the position of the text that the runs are of
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
    bool eachFindIn(MRVSearchedText text, int from, int to, Found &found);
    bool accepts(const MRVSearchedText &text, const MRVTextRange &find);
    bool goesOn(int position);
    MRVSearchedText textAcross(int position) const;

    const QTextDocument *m_document;
    const MRVTextQuery &m_query;
    MRVFoldedText::Options m_folding;
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
    int searched = -1; // up to where the text has been searched with that of earlier paragraphs
    mrvEachBlock(m_document, within, [&](const QTextBlock &block, int position, int from, int to) {
        if (!m_query.acrossParagraphs) {
            const MRVSearchedText text(position, block.text(), m_folding);
            return eachFindIn(text, from, to, found) && goesOn(position);
        }
        if (position < searched) {
            return true;
        }
        const MRVSearchedText text = textAcross(position);
        searched = text.position() + text.original().size();
        return eachFindIn(text, position + from - text.position(),
                          qMin(within.end(), searched) - text.position(), found)
            && goesOn(position);
    });
}

template<typename Found>
bool MRVQuerySearch::eachFindIn(MRVSearchedText text, int from, int to, Found &found)
{
    m_matcher.prepare(text.toBePrepared());
    bool goesOn = true;
    mrvEachMatch(m_matcher, text.searched(), text.fromOriginal(from), text.searched().size(),
                 m_query.flags, [&](MRVTextMatch match) {
                     if (!text.isOfWholeLetters(match)) {
                         return MRVNextMatch::Overlapping;
                     }
                     const MRVTextMatch own = text.toOriginal(match);
                     const MRVTextRange range(text.position() + own.start,
                                              text.position() + own.end());
                     if (own.end() <= to && accepts(text, range)) {
                         goesOn = found(MRVQueryFind{range, match, text, m_matcher.expression()});
                     }
                     return goesOn && own.end() <= to ? MRVNextMatch::After : MRVNextMatch::None;
                 });
    return goesOn;
}
