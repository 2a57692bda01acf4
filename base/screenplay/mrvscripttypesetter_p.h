#pragma once

#include "screenplay/mrvprintedparagraph_p.h"
#include "screenplay/mrvscriptroles_p.h"

#include <QColor>
#include <QVector>

/** A font that a script is printed in. */
struct MrvScriptStyle
{
    QString family;
    qreal size = 12;
    QColor color; ///< invalid where the mode does not say
    bool isFixedPitch = true;

    bool operator==(const MrvScriptStyle &other) const
    {
        return family == other.family && size == other.size && color == other.color;
    }
};

/** The font of a style at a resolution; see MRVScriptPagination::font(). */
QFont mrvScriptFont(const MrvScriptStyle &style, MRVFountainRun::Emphasis emphasis,
                    int dotsPerInch);

/** Turns the elements of a script into paragraphs with broken lines. */
class MrvScriptTypesetter
{
public:
    /** @p columnWidth is that of the text between the margins, in points. */
    MrvScriptTypesetter(const MRVScriptMode &mode, qreal columnWidth);

    /** Whether the mode has a cue and its speech in one paragraph. */
    bool hasHangingSpeeches() const { return m_hangs; }

    /** The paragraph of an element, with its lines; without text where nothing is printed. */
    MrvPrintedParagraph paragraph(const MRVFountainElement &element, int index);

    /** A cue and its speech in one paragraph; see hasHangingSpeeches(). */
    MrvPrintedParagraph hangingSpeech(const MRVFountainScript &script, int cue, int end);

    /** A paragraph of one of two who speak side by side, @p side 0 or 1. */
    MrvPrintedParagraph besideParagraph(const MRVFountainElement &element, int index, int side);

    /** A line of a title page's entry. */
    MrvPrintedParagraph titleParagraph(const MRVFountainRuns &runs, Qt::Alignment alignment,
                                       qreal width);

    /** A line that looks like an element's: "(MORE)", for example. */
    MrvPrintedParagraph lineLike(MRVFountainElement::Kind kind, const QString &text);

    /** Breaks the lines of a paragraph from a position on. */
    QVector<MrvPrintedLine> linesFrom(const MrvPrintedParagraph &paragraph, int start) const;

    const QVector<MrvScriptStyle> &styles() const { return m_styles; }

private:
    struct Look
    {
        MRVScriptElement element;
        int style = 0;
        bool isKnown = false;
    };

    const Look &look(MrvScriptRole role);
    int styleOf(const QTextCharFormat &format);
    MrvPrintedParagraph emptyParagraph(MrvScriptRole role);
    void append(MrvPrintedParagraph *paragraph, const MRVFountainRuns &runs, MrvScriptRole role);
    void breakLines(MrvPrintedParagraph *paragraph) const;

    MrvScriptRoles m_roles;
    qreal m_columnWidth;
    bool m_hangs;
    QHash<int, Look> m_looks;
    QVector<MrvScriptStyle> m_styles;
    QVector<MrvPrintedFont> m_fonts; // of the styles
};
