#pragma once

#include "screenplay/mrvscriptpage.h"
#include "util/mrvbase_export.h"

#include <QColor>
#include <QFont>
#include <QSizeF>
#include <QString>
#include <QVector>

class MRVScriptMode;
struct MrvScriptStyle;

/**
 * How a script is divided into pages.
 *
 * The mode says what each element looks like: indents in a column of six inches, which begins 1.5
 * inches from the left of Letter paper and 1.25 inches of A4, so that lines break at the same words
 * on both; an inch remains above and below. Fonts of fixed pitch ("Courier") have ten characters to
 * the inch at 12 points and six lines, whatever font stands for them at hand, so that a screenplay
 * has the same pages everywhere: 54 lines on Letter, 58 on A4. Other fonts are measured as they
 * are installed, with lines of 1.15 times their size.
 *
 * The trade's rules hold: no heading or cue stands alone at the foot of a page; a speech that does
 * not fit is divided between sentences, with "(MORE)" and the repeated cue, and so is action; at
 * least two lines are left on either side; speeches side by side stay together. What is longer than
 * a page is divided where it must be; of speeches side by side, each repeats its cue then. Notes,
 * sections, synopses and what was cut out are not printed. Space before a paragraph is left out at
 * the head of a page.
 *
 * Takes time linear in the script. Modes with other fonts need a QGuiApplication.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptPagination
{
public:
    enum Paper {
        PaperOfMode, ///< A4 for modes in centimetres, else Letter
        Letter,
        A4,
    };

    /** What stands on the pages besides the script, and how large they are. */
    struct Options
    {
        Paper paper = PaperOfMode;
        /**
         * Numbers of scenes stand in both margins: those of the script or, where no heading has
         * one, counted from 1.
         */
        bool sceneNumbers = false;
        bool sceneContinuations = false; ///< "(CONTINUED)" and "CONTINUED:", in the margins
        QString more = QStringLiteral("(MORE)");
        QString continuedCue = QStringLiteral("(CONT'D)");
        QString sceneContinues = QStringLiteral("(CONTINUED)");
        QString sceneContinued = QStringLiteral("CONTINUED:");
    };

    /** The distance of tab stops, in points, after that of MRVScriptLine::tabStop. */
    static constexpr qreal TabDistance = 28.8;

    /** The paper named "letter" or "a4"; PaperOfMode for any other text. */
    static Paper paperNamed(const QString &name);

    /** No pages. */
    MRVScriptPagination();
    /** The pages of a script in a mode, as the default options have it. */
    MRVScriptPagination(const MRVFountainScript &script, const MRVScriptMode &mode);
    /** The same with options. */
    MRVScriptPagination(const MRVFountainScript &script, const MRVScriptMode &mode,
                        const Options &options);

    MRVScriptPagination(const MRVScriptPagination &other);
    /** Takes the pages of @p other. */
    MRVScriptPagination &operator=(const MRVScriptPagination &other);
    ~MRVScriptPagination();

    /** The size of the paper in points. */
    QSizeF paperSize() const { return m_paperSize; }
    /** The pages of the entries of the title page; most scripts have one, many none. */
    QVector<MRVScriptPage> titlePages() const { return m_titlePages; }
    /** The pages of the script itself; a script without printed text has none. */
    QVector<MRVScriptPage> pages() const { return m_pages; }

    /** The printed length in eighths of a page, of which the last page may have fewer. */
    int eighths() const;
    /**
     * The length of the elements from @p first up to @p end (not included), in eighths of a page as
     * breakdowns count them: rounded up, and at least 1 where anything is printed. What is left
     * blank at the foot of a page does not count.
     */
    int eighths(int first, int end) const;
    /** The page, from 1, on which the element begins, or would begin where it is not printed. */
    int pageOf(int element) const;
    /** How many lines an element takes on all of its pages. */
    int lineCount(int element) const;
    /** Eighths as breakdowns write them: "3", "1 3/8", "5/8". */
    static QString eighthsText(int eighths);

    /**
     * The font of a line's piece.
     *
     * @param style       that of the line.
     * @param emphasis    of the piece.
     * @param dotsPerInch the resolution: the size is set in dots. Fonts of fixed pitch have ten
     *                    characters to the inch at 12 points exactly, up to rounding to dots.
     */
    QFont font(int style, MRVFountainRun::Emphasis emphasis, int dotsPerInch) const;
    /** The colour of a line's text; black where the mode does not say. */
    QColor color(int style) const;

private:
    friend class MrvScriptPaginator;

    struct Extent
    {
        int page = 0; // from 0
        int lines = 0;
        qreal height = 0;
    };

    QSizeF m_paperSize;
    qreal m_textHeight = 0;
    qreal m_lastHeight = 0; // of the text on the last page
    QVector<MRVScriptPage> m_titlePages;
    QVector<MRVScriptPage> m_pages;
    QVector<Extent> m_extents; // by element
    QVector<MrvScriptStyle> m_styles;
};
