#pragma once

#include "css/mrvstylesheet.h"

#include <QBrush>
#include <QTextFormat>
#include <QTextFrameFormat>
#include <QTextListFormat>

/** The sides of a box, as CSS orders them. */
enum class MRVHtmlSide { Top = 0, Right = 1, Bottom = 2, Left = 3 };

/** A border of one side of a table or a cell. */
struct MRVHtmlBorder
{
    qreal width = 0;
    QTextFrameFormat::BorderStyle style = QTextFrameFormat::BorderStyle_None;
    QBrush brush{Qt::black};

    bool isVisible() const { return width > 0 && style != QTextFrameFormat::BorderStyle_None; }
};

/**
 * What the sheets, the attributes and the kind of an element say about its looks, in the terms of
 * rich text. Lengths are in pixels.
 */
struct MRVHtmlStyle
{
    /** Apart is within a line, but not of the words before and after it: a button. */
    enum Display { Inline, Apart, Block, ListItem, Hidden };
    enum WhiteSpace { Collapsed, Unwrapped, Preformatted, PreformattedWrapped, PreformattedLines };

    // Inherited from the element outside.
    QTextCharFormat text;
    qreal fontPixels = 16;
    Qt::Alignment alignment;
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    qreal textIndent = 0;
    qreal lineHeight = 0;
    int lineHeightType = QTextBlockFormat::SingleHeight;
    WhiteSpace whiteSpace = Collapsed;
    int listStyle = QTextListFormat::ListDisc; ///< ListStyleUndefined: without marks
    QString language;
    QString codeLanguage; ///< of preformatted text: what a fence of Markdown says of it
    bool isInvisible = false; ///< takes up space, but is not seen

    // The element's own.
    Display display = Inline;
    Display innerDisplay = Inline; ///< of the elements in it that would be Inline
    qreal margins[4] = {0, 0, 0, 0}; ///< by MRVHtmlSide
    bool isFree[4] = {false, false, false, false}; ///< by MRVHtmlSide; margins that are "auto"
    qreal paddings[4] = {-1, -1, -1, -1}; ///< by MRVHtmlSide; -1: not said
    MRVHtmlBorder borders[4]; ///< by MRVHtmlSide
    QBrush background;
    bool breaksBefore = false;
    bool breaksAfter = false;
    QTextFrameFormat::Position position = QTextFrameFormat::InFlow;
    QTextLength width; ///< variable: not said
    QTextLength height;
    QTextCharFormat::VerticalAlignment verticalAlignment = QTextCharFormat::AlignNormal;
    bool collapsesBorders = false;
    bool hasListStart = false;
    int listStart = 1; ///< of the list's first item, where hasListStart
    // What Qt's own pages say.
    int blockIndent = 0;
    int listIndent = 0;
    int userState = -1;
    QString numberPrefix;
    QString numberSuffix;
    bool hasNumberPrefix = false;
    bool hasNumberSuffix = false;
    bool isEmptyParagraph = false;
    QString tableType; ///< "root", "frame" or empty

    qreal margin(MRVHtmlSide side) const { return margins[int(side)]; }
    bool isInLine() const { return display == Inline || display == Apart; }

    /** What elements inside of this one begin with: what is inherited, and innerDisplay. */
    MRVHtmlStyle inherited() const;
};

/** Applies declarations to styles. */
class MRVHtmlStyler
{
public:
    /** What 1 rem is; the element html decides. */
    void setRootPixels(qreal pixels) { m_rootPixels = pixels; }
    /**
     * Whether Qt has written the page: weights of fonts are eighths of those of CSS, and
     * properties of its own count.
     */
    void setIsQtPage(bool is) { m_isQtPage = is; }

    /**
     * Applies declarations, weakest first, to a style that holds what is inherited.
     *
     * @param outside the style of the element outside.
     */
    void apply(const QVector<MRVCssDeclaration> &declarations, const MRVHtmlStyle &outside,
               MRVHtmlStyle *style) const;

private:
    qreal m_rootPixels = 16;
    bool m_isQtPage = false;
};
