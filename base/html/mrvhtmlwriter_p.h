#pragma once

#include "html/mrvhtmlcomments_p.h"
#include "html/mrvhtmlstyle_p.h"

#include <QPointer>
#include <QStringList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QVector>

#include <memory>

/** A list of a page; its items share it. */
struct MRVHtmlList
{
    QTextListFormat format; ///< without a style: items have no marks
    QTextList *list = nullptr; ///< once there is an item
    int number = 1; ///< of the next item
    int step = 1; ///< from one item to the next

    bool isNumbered() const;
    /** Makes the next item the first one of another list, with this number. */
    void goOnWith(int next);
};

/** What a block-level element gives to the paragraphs in it, beside its style. */
struct MRVHtmlBox
{
    int headingLevel = 0; ///< 0: none
    int caption = 0; ///< an MRVTextFormat::Caption; 0: none
    int note = 0; ///< MRVParagraphNoteProperty; 0: that of the box outside
    bool isQuote = false;
    bool isItem = false; ///< its first paragraph is an item of the list
    QTextBlockFormat::MarkerType marker = QTextBlockFormat::MarkerType::NoMarker;
    std::shared_ptr<MRVHtmlList> list; ///< null: that of the box outside
};

/**
 * Writes what a page shows to the end of a document, or of one of its cells.
 *
 * White space is what CSS makes of it. A paragraph begins with the first thing that it shows, so
 * that elements without content leave nothing. A document has one writer; entering a cell and
 * leaving it moves that.
 */
class MRVHtmlWriter
{
public:
    explicit MRVHtmlWriter(QTextDocument *document);

    /** Whether the page was written by Qt, where elements for line ends count at any place. */
    void setIsQtPage(bool is) { m_isQtPage = is; }

    /** Begins a block-level element. */
    void enter(const MRVHtmlStyle &style, const MRVHtmlBox &box);
    /** Ends the last one that was begun. */
    void leave();
    /** Ends the present paragraph, if there is one. */
    void endParagraph();
    /** Makes the paragraph of an element that shows one in any case. */
    void writeEmptyParagraph();

    void writeText(const QString &text, const MRVHtmlStyle &style);
    /** Writes a blank that does not count where a line begins, nor beside another. */
    void writeSpace(const MRVHtmlStyle &style) { writeCollapsed(QStringLiteral(" "), style); }
    void writeLineEnd(const MRVHtmlStyle &style);
    void writeImage(const QTextImageFormat &image, const MRVHtmlStyle &style);
    void writeRule(const QTextLength &width, const MRVHtmlStyle &style);
    /** A name for the next character. */
    void addName(const QString &name);
    void beginComment(const MRVHtmlComment &comment);
    /** One that has ended without text is about the character before it, if that has none. */
    void endComment(int number);
    int commentCount() const { return m_comments.count(); }
    /** The mark of a task: the present paragraph's, or that of the next one. */
    void setMarker(QTextBlockFormat::MarkerType marker);

    /** Makes a table, whose cells are entered next. */
    QTextTable *writeTable(int rows, int columns, const QTextTableFormat &format);
    void enterCell(const QTextTableCell &cell, const MRVHtmlStyle &style);
    void leaveCell();
    /** Goes on after a table whose cells have been left. */
    void leaveTable(const QTextFrame *table);
    /** Goes to the end of a new frame, which leaveFrame() leaves. */
    void enterFrame(const QTextFrameFormat &format, const MRVHtmlStyle &style);
    void leaveFrame();

    /** The list around this place, whose items have a number; null outside of lists. */
    MRVHtmlList *list() const { return m_boxes.last().list.get(); }
    /** How many lists are around this place, in the present cell. */
    int listDepth() const { return m_boxes.last().listDepth; }

    /** Writes what is left. Nothing may be written afterwards. */
    void finish();

private:
    struct Box
    {
        MRVHtmlStyle style;
        MRVHtmlBox box;
        qreal left = 0; // of all boxes up to this one
        qreal right = 0;
        qreal top = 0; // what the first paragraph gets
        int headingLevel = 0;
        int caption = 0;
        int note = 0;
        int quoteLevel = 0;
        int listDepth = 0;
        QBrush background;
        std::shared_ptr<MRVHtmlList> list;
        bool breaksBefore = false;
        bool endsWithText = false; // with a paragraph of its own, not of an element in it
        bool isStarted = false; // has a paragraph
        bool isItemStarted = false;
        QTextBlockFormat::MarkerType marker = QTextBlockFormat::MarkerType::NoMarker;
    };
    void startInside(const MRVHtmlStyle &style);
    enum class Place { Fresh, Open, Closed };

    // Preformatted white space, which counts where text follows.
    struct Blanks
    {
        QString text;
        MRVHtmlStyle style;
    };

    void openParagraph();
    QTextBlockFormat paragraphFormat();
    void setBottomMargin(qreal margin);
    void startBoxes(QTextBlockFormat *format);
    bool joinList(QTextBlockFormat *format);
    void startItem();
    void setParagraphFormat(const QTextBlockFormat &format, const QTextCharFormat &text);
    void writeCollapsed(const QString &text, const MRVHtmlStyle &style);
    void writePreformatted(const QString &text, const MRVHtmlStyle &style);
    void append(const QString &text, const QTextCharFormat &format);
    /** The same without the comment and the names of the place. */
    void put(const QString &text, const QTextCharFormat &format);
    bool isCommenting() const;
    /** Gives what is put off the comment in which it stands, and not that of the next character. */
    void settlePending();
    void writeBlanks();
    void writeLines(const QString &lines, const MRVHtmlStyle &style);
    void prepareContent();
    void writePendingLineEnds();
    void flush();
    void markCharacter(int position);
    QTextCharFormat withNames(const QTextCharFormat &format);

    QTextDocument *const m_document;
    QTextCursor m_cursor;
    QVector<Box> m_boxes;
    Place m_place = Place::Fresh;
    bool m_isCellStart = false; // its paragraph's character format is the cell's
    bool m_isQtPage = false;
    bool m_breakIsPending = false; // a page break after what has ended
    bool m_atLineStart = true; // where white space does not count
    bool m_spaceIsPending = false;
    QTextCharFormat m_spaceFormat;
    bool m_spaceIsSettled = true;
    QVector<QTextCharFormat> m_lineEnds; // not written yet
    int m_settledEnds = 0; // of them, the first ones
    QVector<Blanks> m_blanks; // at the beginning of a paragraph
    QString m_text; // not written yet
    QTextCharFormat m_textFormat;
    QStringList m_names; // for the next character
    MRVHtmlComments m_comments;
};
