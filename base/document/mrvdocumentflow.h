#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QTextFormat>
#include <QVector>

class QTextDocument;
class QTextFrame;
class QTextTable;

/**
 * A stretch of one format in a paragraph.
 *
 * @since 1.0
 */
struct MRVFlowFragment
{
    int length; ///< in QChars
    int format; ///< an index into MRVDocumentFlow::formats
};

/**
 * An anchor's place: names are those of the character that stands there.
 *
 * @since 1.0
 */
struct MRVFlowAnchor
{
    QString name; ///< not empty
    int position; ///< in the document
};

/**
 * Text with an address; adjacent fragments with the same address and title are one.
 *
 * @since 1.0
 */
struct MRVFlowLink
{
    QString address; ///< as the format has it
    int begin; ///< in the document
    int end; ///< after it
    QString title; ///< its tooltip
};

/**
 * A paragraph.
 *
 * @since 1.0
 */
struct MRVFlowParagraph
{
    int position; ///< in the document
    int length; ///< without the separator
    int format; ///< an index into MRVDocumentFlow::formats
    int firstFragment; ///< its fragments end where those of the next paragraph begin
    int headingLevel; ///< 1 to 6, or 0
    int list = -1; ///< an object index; -1: none
    int itemNumber = 0; ///< as MRVListCounter counts
    int listLevel = 0; ///< from 0
};

/**
 * A table or a frame.
 *
 * @since 1.0
 */
struct MRVFlowFrame
{
    QTextFrame *frame; ///< the document's
    QTextTable *table; ///< the same; null where it is no table
    int begin; ///< its first paragraph
    int end; ///< the paragraph after its last one
};

/**
 * A document as arrays, read in one pass, for all that looks at it as a whole.
 *
 * Formats are known by their index, so that what a format means is found out once. The document
 * must not change, and must live as long. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentFlow
{
public:
    /** Looks through all of @p document once. */
    explicit MRVDocumentFlow(const QTextDocument &document);

    const QTextDocument &document;
    const QString text; ///< whole, with separators
    const QVector<QTextFormat> formats; ///< as QTextDocument::allFormats() has them
    QVector<MRVFlowParagraph> paragraphs; ///< and one that stands for the end
    QVector<MRVFlowFragment> fragments; ///< in order
    QVector<MRVFlowFrame> frames; ///< by their first paragraph
    QVector<MRVFlowAnchor> anchors; ///< in order
    QVector<MRVFlowLink> links; ///< in order

    /** How many paragraphs the document has. */
    int count() const { return paragraphs.size() - 1; }
    /** The paragraph that a position lies in. */
    int paragraphAt(int position) const;
    /** The text of a paragraph, which lasts as long as this. */
    QStringView textOf(const MRVFlowParagraph &paragraph) const
    {
        return QStringView(text).mid(paragraph.position, paragraph.length);
    }
    /** Whether a paragraph shows nothing: no text but blanks, no picture, no rule. */
    bool isBlank(int paragraph) const;
    /** Whether a paragraph ends with a rule. */
    bool hasRule(int paragraph) const;
    /** Whether a paragraph stands in a table or a frame. */
    bool isInFrame(int paragraph) const { return m_isInFrame.at(paragraph); }

private:
    struct Reader;
    void readFrames();

    QVector<bool> m_isInFrame;
};
