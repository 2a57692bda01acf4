#pragma once

#include "core/mrverror.h"
#include "search/mrvtextfinder.h"
#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>
#include <QTextCharFormat>
#include <QVariant>
#include <QVector>

#include <functional>
#include <limits>

/**
 * What to look for, in all that a search dialog can ask: a text or an expression, the word rules,
 * the part of the document, the format of the text, and what the search may cost.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextQuery
{
    enum Syntax {
        PlainText,
        RegularExpression, ///< of QRegularExpression; letters and digits are those of Unicode
    };

    /** An empty text finds nothing, but see #kinds. */
    QString text;
    Syntax syntax = PlainText;
    /** FindCaseSensitively counts for expressions, too. FindBackward counts in find() only. */
    MRVTextFinder::FindFlags flags;
    /**
     * Whether what writers type one way or the other counts as the same, in the text as in what is
     * looked for, expressions included: straight, curly and pointed quotes and apostrophes;
     * hyphens, figure dash, en dash and minus (not the em dash); blanks, no-break spaces and
     * objects; composed and decomposed letters; ligatures, full-width letters and the ellipsis, and
     * what they are spelled out as; where case does not matter, also the sharp s and "ss". Soft
     * hyphens and characters without width are passed over. Finds are whole letters with their
     * accents, and whole ligatures.
     */
    bool ignoreTypography = false;
    /**
     * Whether letters count as the same with and without accents, points of Hebrew and Arabic
     * included. Letters that do not decompose, such as the Danish o with its stroke, stay apart.
     */
    bool ignoreAccents = false;
    /**
     * Whether a find may go on over paragraph ends, which are line feeds in #text and for its
     * expression; there "^" and "$" stand for the start and end of each paragraph, and white space
     * holds paragraph ends. A find stays within the text of a cell or frame. The search takes the
     * memory of the whole text, and a limit of what an expression may cost holds for all of it.
     */
    bool acrossParagraphs = false;
    /** Only finds that lie as a whole within this range count. All of the document at first. */
    MRVTextRange range = MRVTextRange(0, std::numeric_limits<int>::max());
    /**
     * Only finds all of whose characters carry this format count; see MRVTextFinder. An empty one
     * must lie in such text or at an end of it. Without properties, any format will do.
     */
    QTextCharFormat format;
    bool compareFormatValues = true;

    /** A kind of text, as MRVTextFinder::matchFormat() takes it. */
    struct Kind
    {
        MRVTextFinder::FindType type;
        QVariant value;
    };
    /**
     * Only finds that lie as a whole in runs of each of these kinds count. Links side by side are
     * runs of their own. With kinds and an empty #text, MRVTextReplacer::findAll() and count() find
     * the text that is of all these kinds; it may go on over paragraph ends, and #format does not
     * count then.
     */
    QVector<Kind> kinds;
    /**
     * Only text whose format this accepts counts, as if that were one more of the #kinds. Asked
     * once for each format of the document. Empty at first.
     */
    std::function<bool(const QTextCharFormat &)> accepts;

    /** Whether it asks for text of #kinds or formats that #accepts takes, instead of a #text. */
    bool isForRuns() const { return text.isEmpty() && (!kinds.isEmpty() || accepts); }

    /** After how many milliseconds a search is given up; 0, as at first: never. */
    int timeLimit = 0;
    /**
     * Asked every 10 ms or so whether the search is to be given up, for instance because the user
     * has pressed Escape. It must not change the document. Empty at first.
     *
     * Neither this nor #timeLimit can interrupt a single step of an expression, which takes up to
     * two tenths of a second in a paragraph of usual length.
     */
    std::function<bool()> isCancelled;

    /**
     * Whether @p text is an expression that can be searched for; true for plain text.
     *
     * @param error if given, receives a translated text that says why not, and where.
     */
    bool isValid(MRVErrorSink error = nullptr) const;
};

/**
 * Whether a search looked at all that it was to look at, and if not, why and where it ended.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVSearchOutcome
{
    Q_DECLARE_TR_FUNCTIONS(MRVSearchOutcome)

public:
    enum Reason {
        Complete,
        TooCostly, ///< matching the expression took more steps or memory than it may
        TimedOut, ///< see MRVTextQuery::timeLimit
        Cancelled, ///< see MRVTextQuery::isCancelled
    };
    Reason reason = Complete;
    int paragraph = -1; ///< its number from 0, as QTextBlock::blockNumber(); -1 where complete

    /** Whether the search looked at everything. */
    bool isComplete() const { return reason == Complete; }
    /** A translated sentence without a full stop, counting paragraphs from 1; empty if complete. */
    QString text() const;
};
