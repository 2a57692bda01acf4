#pragma once

#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QFlags>
#include <QList>
#include <QString>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QVariant>
#include <QVector>

class QRegExp;
class QRegularExpression;
class QTextBlock;
class QTextDocument;

/**
 * Searches documents for text and for formats.
 *
 * Text is searched paragraph by paragraph, so a match never crosses a paragraph end. Images and
 * other objects (U+FFFC) and no-break spaces (U+00A0) count as blanks in the text; in what is
 * searched for they do not, so a pattern that holds one of them as such finds nothing.
 *
 * Formats are searched fragment by fragment. A fragment is a stretch of one paragraph in one
 * character format. Where a function takes a format to look for, a fragment carries it if it sets
 * every property of it, to an equal value where @c compareValues is true (see
 * MRVTextFormat::formatsMatch()). A format without properties is carried by all text.
 *
 * Single searches give a cursor that selects the find, anchor first, or a null cursor where there
 * is none. Nothing fails otherwise: a null document or cursor, a start outside the document and an
 * empty or invalid expression find nothing. The functions whose names begin with findAll give
 * positions instead, of all finds in document order, and take time linear in the document; they are
 * the ones to use for more than a few finds.
 *
 * Keeps no state, changes nothing. GUI thread only.
 *
 * @code
 * // Select the next "Anna" after the cursor, as a search dialog does.
 * const QTextCursor found = MRVTextFinder::find(&document, QStringLiteral("Anna"), cursor,
 *                                               MRVTextFinder::FindWholeWords);
 * if (!found.isNull()) {
 *     cursor = found;
 * }
 *
 * // All places of a word at once, in linear time.
 * const QVector<MRVTextRange> places = MRVTextFinder::findAll(&document, QStringLiteral("tide"));
 * for (const MRVTextRange &place : places) {
 *     qDebug() << place.start() << place.end();
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextFinder
{
public:
    MRVTextFinder() = delete;

    enum FindFlag {
        FindBackward = 0x1,
        FindCaseSensitively = 0x2, ///< only for plain strings; an expression knows by itself
        FindWordStart = 0x4, ///< no letter or digit before the match
        FindWordEnd = 0x8, ///< no letter or digit after the match
        FindWholeWords = FindWordStart | FindWordEnd,
    };
    Q_DECLARE_FLAGS(FindFlags, FindFlag)

    /** What matchFormat() tests, and what it takes as value. */
    enum FindType : int {
        FindInlineAnnotation = 0, ///< no value
        FindInlineFootnote = 1, ///< no value
        FindInspectorComment = 2, ///< no value
        FindInspectorFootnote = 3, ///< no value
        FindRevisionLevel = 4, ///< int: the level
        FindTextColor = 5, ///< QColor, or null for any
        FindHighlight = 6, ///< QColor, or null for any
        FindLink = 7, ///< int: LinkKind values, or-ed
        FindFormat = 8, ///< QTextFormat: all its properties, with equal values
    };

    enum LinkKind {
        ExternalLinks = 1, ///< the address is no integer
        InternalLinks = 2, ///< the address is an integer: the number of a document of the project
    };

    // Text

    /**
     * The nearest match from @p from on, or before it where @p flags say backward.
     *
     * Forward, a match may start at @p from. Backward it starts before @p from, and may reach
     * beyond it. A match that breaks a word rule is passed over; the search goes on one character
     * before its start, or, forward, one character after its end: a match right at the end of one
     * that was passed over is not seen. A match may be empty; then the cursor has no selection.
     */
    static QTextCursor find(const QTextDocument *document, const QRegExp &expression, int from,
                            FindFlags flags = FindFlags());
    /**
     * The same from the selection of @p from: from its end, or backward from its start; from 0 for
     * a null cursor.
     *
     * An empty match right at a @p from without selection is taken for the previous find and passed
     * over, so that searching on from each find comes to an end.
     */
    static QTextCursor find(const QTextDocument *document, const QRegExp &expression,
                            const QTextCursor &from, FindFlags flags = FindFlags());
    /** The same for @p text as it stands, without regard to case unless @p flags say so. */
    static QTextCursor find(const QTextDocument *document, const QString &text, int from,
                            FindFlags flags = FindFlags());
    static QTextCursor find(const QTextDocument *document, const QString &text,
                            const QTextCursor &from, FindFlags flags = FindFlags());
    /**
     * The same for the other, faster kind of expression. It finds what a QRegExp of the same
     * pattern finds, as far as both know the pattern: backward, the match that starts last; \\w,
     * \\d, \\s, \\b and case go by Unicode, whether or not @p expression sets
     * UseUnicodePropertiesOption. By its nature it takes the first of several alternatives that
     * fit, where QRegExp takes the longest, and counts a character beyond U+FFFF as one, where
     * QRegExp counts two. Where matching takes too many steps or too much memory, the search ends
     * without a find; MRVTextReplacer tells of that.
     */
    static QTextCursor find(const QTextDocument *document, const QRegularExpression &expression,
                            int from, FindFlags flags = FindFlags());
    static QTextCursor find(const QTextDocument *document, const QRegularExpression &expression,
                            const QTextCursor &from, FindFlags flags = FindFlags());

    /**
     * The same in one paragraph.
     *
     * @param offset where to start, from the start of @p block; backward, the last place where a
     *               match may start. Nothing is found where it is negative or greater than the
     *               length of the text. The end of the text is a valid place.
     * @param result receives the match; untouched where there is none.
     * @param expression an empty or invalid one finds nothing.
     * @return whether there is a match.
     */
    static bool findInBlock(const QTextBlock &block, const QRegExp &expression, int offset,
                            FindFlags flags, QTextCursor &result);
    static bool findInBlock(const QTextBlock &block, const QRegularExpression &expression,
                            int offset, FindFlags flags, QTextCursor &result);

    /**
     * All matches in a document or in a part of it, in document order, none overlapping another.
     *
     * They are those that find() gives forward from the start of the part and on from the end of
     * each find; after an empty match follows a longer one in its place, or the next one, as in
     * Perl. Of those, the ones that lie within the part as a whole. Word rules and expressions see
     * the whole paragraphs, also around the part. FindBackward has no meaning here.
     *
     * The part is @p within; what of it lies outside the document is ignored. An empty @p text or
     * @p expression finds nothing.
     */
    static QVector<MRVTextRange> findAll(const QTextDocument *document, const QString &text,
                                         FindFlags flags = FindFlags());
    static QVector<MRVTextRange> findAll(const QTextDocument *document, const QString &text,
                                         FindFlags flags, const MRVTextRange &within);
    static QVector<MRVTextRange> findAll(const QTextDocument *document, const QRegExp &expression,
                                         FindFlags flags = FindFlags());
    static QVector<MRVTextRange> findAll(const QTextDocument *document, const QRegExp &expression,
                                         FindFlags flags, const MRVTextRange &within);
    static QVector<MRVTextRange> findAll(const QTextDocument *document,
                                         const QRegularExpression &expression,
                                         FindFlags flags = FindFlags());
    static QVector<MRVTextRange> findAll(const QTextDocument *document,
                                         const QRegularExpression &expression, FindFlags flags,
                                         const MRVTextRange &within);

    // Runs: fragments in a row that are of a kind

    /**
     * Whether @p format is of the kind @p type with @p value (see FindType). A mark must be true, a
     * revision level an int. For FindTextColor and FindHighlight the brush must be set: to the
     * colour, or, for a null @p value, to something else than an empty brush. For FindFormat, a
     * @p value that holds no format matches nothing, an empty format everything. An unknown type
     * matches nothing.
     */
    static bool matchFormat(const QTextCharFormat &format, FindType type, const QVariant &value);

    /**
     * The nearest run beyond the selection of @p from: the first that starts at its end or later,
     * or, backward, the last that ends at its start or earlier.
     *
     * A run is as many fragments in a row as match. It goes on over paragraph ends, and over empty
     * paragraphs between two fragments that match. A run of which a part lies in the selection, or
     * in whose midst the cursor is, does not count as beyond.
     *
     * @param value    see FindType.
     * @param backward searches before the selection instead of after it.
     */
    static QTextCursor find(const QTextCursor &from, FindType type, const QVariant &value,
                            bool backward = false);
    /**
     * The nearest run beyond the selection of @p from, after it or, where @p backward says so,
     * before it, that holds @p text somewhere within one of its paragraphs, without regard to case,
     * a no-break space counting as a blank. The run is selected, not the text. An empty @p text is
     * held by every run.
     *
     * @param value see FindType.
     */
    static QTextCursor findText(const QTextCursor &from, FindType type, const QString &text,
                                const QVariant &value, bool backward);
    /** findText() forward, with the same @p from, @p text and @p value. */
    static QTextCursor findNext(const QTextCursor &from, FindType type, const QString &text,
                                const QVariant &value);
    /** findText() backward, with the same @p from, @p text and @p value. */
    static QTextCursor findPrevious(const QTextCursor &from, FindType type, const QString &text,
                                    const QVariant &value);
    /**
     * All runs of a document, as find() gives them one after the other.
     *
     * @param value see FindType.
     */
    static QVector<MRVTextRange> findAllRuns(const QTextDocument *document, FindType type,
                                             const QVariant &value);

    // Fragments of a format

    /**
     * The first fragment of a paragraph that carries @p format.
     *
     * @param offset        where to start, from the start of @p block.
     * @param result        receives the fragment, or its part from @p offset on; untouched where
     *                      there is none.
     * @param acceptPartial whether a fragment counts that starts before @p offset and reaches
     *                      beyond it.
     */
    static bool findInBlock(const QTextBlock &block, const QTextCharFormat &format, int offset,
                            QTextCursor &result, bool compareValues, bool acceptPartial);
    /**
     * The first fragment that carries @p format from the end of the selection of @p from on; of a
     * fragment around that place, the rest. Two fragments side by side that carry the format but
     * differ otherwise are two finds.
     */
    static QTextCursor findFragment(const QTextCharFormat &format, const QTextCursor &from,
                                    bool compareValues);
    /**
     * findFragment() from @p from on for a format of the one @p property with the @p value, which
     * is not looked at unless values are compared.
     */
    static QTextCursor findFragmentByProperty(int property, const QVariant &value,
                                              const QTextCursor &from, bool compareValues);
    /** All that findFragment() finds from the start of a document on, one after the other. */
    static QVector<MRVTextRange> findAllFragments(const QTextDocument *document,
                                                  const QTextCharFormat &format,
                                                  bool compareValues);

    /**
     * The fragment that findFragment() finds, grown in both directions over the neighbouring
     * fragments that set the properties of @p format to the same values as it does, whether or not
     * @p compareValues is set; also over paragraph ends and empty paragraphs. The start of the find
     * may thus lie before @p from. For a @p format without properties, all text up to the end and
     * the start of the document.
     */
    static QTextCursor findContinuousFragment(const QTextCharFormat &format,
                                              const QTextCursor &from, bool compareValues);
    /**
     * The fragment that findFragment() finds, grown to the whole inspector comment or footnote:
     * over neighbours as findContinuousFragment() does, but only as long as marks and data of the
     * comment (InspectorCommentProperty, InspectorFootnoteProperty, CommentData0 to CommentData2)
     * are the same too, present or not. Two comments side by side are thus two finds.
     *
     * @param from see findFragment().
     */
    static QTextCursor findContinuousInspectorFragment(const QTextCharFormat &format,
                                                       const QTextCursor &from, bool compareValues);
    /**
     * How many finds findContinuousFragment() makes from the end of the selection of @p from to the
     * end of the document, going on from the end of each.
     */
    static int continuousFragmentCount(const QTextCharFormat &format, const QTextCursor &from,
                                       bool compareValues);
    /** The first fragment within the @p selection that carries @p format; only its part within. */
    static QTextCursor findFragmentInSelection(const QTextCharFormat &format,
                                               const QTextCursor &selection, bool compareValues);
    /**
     * The continuous run, grown as in findContinuousFragment(), that the whole selection of
     * @p cursor lies in. A cursor without selection may also be at either end of the run; between
     * two runs, the one after the cursor is taken.
     */
    static QTextCursor findFragmentAround(const QTextCharFormat &format, const QTextCursor &cursor,
                                          bool compareValues);
    /**
     * The whole fragment of the character at the start of the selection of @p cursor (without
     * selection, of the character after it), if it carries @p format. Nothing at a paragraph end.
     */
    static QTextCursor findFragmentAtPosition(const QTextCharFormat &format,
                                              const QTextCursor &cursor, bool compareValues);
    /**
     * The same, and where there is nothing, the whole fragment that carries @p format and ends
     * there in the same paragraph: what a caret right after marked text belongs to.
     */
    static QTextCursor findFragmentAtPositionGeneral(const QTextCharFormat &format,
                                                     const QTextCursor &cursor, bool compareValues);
    /**
     * The fragments of a @p selection that carry @p format with equal values; of those at its ends
     * the parts within. Neighbours are not joined, so that each range has one format. Empty without
     * a selection.
     */
    static QList<MRVTextRange> findFragmentsByFormat(const QTextCursor &selection,
                                                     const QTextCharFormat &format);

    /**
     * How many fragments of a document set @p property to @p value. A marked passage counts once
     * for each of its formats: with a bold word inside, three times.
     */
    static int formatCount(const QTextDocument *document, int property, const QVariant &value);
    /** How many characters the fragments that set @p property to @p value hold. */
    static int formatLengthCount(const QTextDocument *document, int property,
                                 const QVariant &value);

    // Formats at a cursor. Paragraph ends have no format here; false for a null cursor.

    /**
     * Whether the first character of the selection carries @p format; without a selection, the
     * character after the cursor.
     */
    static bool startsWithFormat(const QTextCursor &cursor, const QTextCharFormat &format,
                                 bool compareValues);
    /** startsWithFormat() for a format of the one @p property with the @p value. */
    static bool startsWithFormatProperty(const QTextCursor &cursor, int property,
                                         const QVariant &value, bool compareValues);
    /**
     * Whether the cursor is inside text that carries @p format: all characters of the selection do;
     * without a selection, both the character before the cursor and the one after it do, in the
     * same paragraph.
     */
    static bool isInFormat(const QTextCursor &cursor, const QTextCharFormat &format,
                           bool compareValues);
    /** isInFormat() for a format of the one @p property with the @p value. */
    static bool isInFormatProperty(const QTextCursor &cursor, int property, const QVariant &value,
                                   bool compareValues);
    /**
     * Whether a button for @p format should show as pressed: all characters of the selection carry
     * it; without a selection (or where only paragraph ends are selected), text typed at the cursor
     * would carry it.
     */
    static bool isFormatChecked(const QTextCursor &cursor, const QTextCharFormat &format,
                                bool compareValues);
    /** isFormatChecked() for a format of the one @p property with the @p value. */
    static bool isFormatCheckedProperty(const QTextCursor &cursor, int property,
                                        const QVariant &value, bool compareValues);
    /**
     * Whether any character of the selection carries @p format; without a selection, the character
     * before the cursor or the one after it, in the same paragraph.
     */
    static bool hasFormat(const QTextCursor &cursor, const QTextCharFormat &format,
                          bool compareValues);
    /** hasFormat() for a format of the one @p property with the @p value. */
    static bool hasFormatProperty(const QTextCursor &cursor, int property, const QVariant &value,
                                  bool compareValues);

    /**
     * @name Links
     *
     * Comments carry an address too; @p withComments says whether they count as links. Except in
     * the first three functions, a link is all text that sets AnchorHref, in one passage with the
     * same address: over changes of format, paragraph ends and empty paragraphs. (HTML import sets
     * IsAnchor on the first character of a named link only.)
     */
    //@{
    /**
     * The format of the first character of the selection, or of the character after a cursor
     * without selection, if it has IsAnchor true and AnchorHref set; else an empty format.
     */
    static QTextCharFormat findAnchorFormat(const QTextCursor &cursor);
    /** Whether findAnchorFormat() finds one. */
    static bool isAnchorStart(const QTextCursor &cursor);
    /** Whether the first and the last character of a selection are such anchors. */
    static bool isAnchorTight(const QTextCursor &cursor);
    /**
     * The first link that reaches beyond the end of the selection of @p from, as a whole: where
     * that place is inside a link, that link.
     */
    static QTextCursor findAnchor(const QTextCursor &from, bool withComments = false);
    /**
     * The link of the first character of the selection; without a selection, the link around the
     * cursor, else the one that starts there, else the one that ends there.
     */
    static QTextCursor anchorForCursor(const QTextCursor &cursor, bool withComments = false);
    /** Whether findAllAnchors() finds any. */
    static bool hasAnchor(const QTextCursor &cursor, bool withComments = false);
    /**
     * All links that a selection touches, as wholes, in document order; without a selection, what
     * anchorForCursor() finds.
     */
    static QList<MRVTextRange> findAllAnchors(const QTextCursor &cursor, bool withComments = false);
    /** How many findAllAnchors() finds. */
    static int anchorsCount(const QTextCursor &cursor, bool withComments = false);
    /**
     * Grows the selection of @p cursor in both directions over the fragments whose AnchorHref is
     * @p href, also over paragraph ends and empty paragraphs. The anchor comes to lie first.
     * Unchanged where no such fragment adjoins; null does nothing.
     */
    static void adjustContinuousAnchorCursor(QTextCursor *cursor, const QString &href);
    //@}

    // Comments. Text is commented where it sets CommentData0, or has InspectorCommentProperty true.

    /** The whole comment on the character at @p pos. */
    static QTextCursor findCommentViaPos(const QTextDocument *document, int pos);
    /** The comment that, as a whole, starts at @p pos. */
    static QTextCursor findCommentViaStartPos(const QTextDocument *document, int pos);
    /**
     * The first comment of which at least one character lies in [@p start, @p end), as a whole;
     * where the two are equal, the comment on the character at that place.
     */
    static QTextCursor findCommentViaRange(const QTextDocument *document, int start, int end);
    /**
     * Grows the selection of @p cursor in both directions to the whole comment that its first
     * character belongs to (without selection, the character after it): over the fragments with the
     * same comment marks and data (see findContinuousInspectorFragment()), also over paragraph ends
     * and empty paragraphs. Unchanged where that character has no comment.
     */
    static void adjustContinuousCommentCursor(QTextCursor &cursor);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVTextFinder::FindFlags)
