#pragma once

#include "core/mrverror.h"
#include "document/mrvdocumentflow.h"
#include "epub/mrvepubbook_p.h"
#include "epub/mrvepubformats_p.h"
#include "epub/mrvepubmarkup_p.h"
#include "epub/mrvepubnotes_p.h"
#include "text/mrvtextlistformat.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QTextTableCell>
#include <QVector>

class MRVEPubPages;
class MRVProgressMeter;
struct MRVEPubSection;

/**
 * Writes the pages of a document into a book.
 *
 * Elements are chosen from what paragraphs and text are, classes from what they look like besides.
 * Classes of paragraphs and targets of links are known once the book is complete; a page keeps
 * the places where they go.
 */
class MRVEPubWriter
{
public:
    /**
     * Adds the pages of a document, its pictures, and all that the book has to know of them.
     *
     * @param fileName of the document, as links of others name it.
     * @return false, with nothing added, when one of its pictures cannot be read; or with a part of
     *         it, when it was cancelled.
     */
    static bool add(MRVEPubBook *book, const QTextDocument &document, const QString &fileName,
                    MRVProgressMeter *meter, MRVErrorSink error);

private:
    static constexpr int InList = 2; // elements around what an item holds

    // An element around paragraphs.
    struct Container
    {
        bool isQuote = false;
        int list = -1;
        int depth = 0; // of a list
        QTextListFormat::Style style = QTextListFormat::ListDisc;
        int number = 0; // of its last item
        Qt::LayoutDirection direction = Qt::LeftToRight;
        QString markers; // the text around numbers, or the bullet
        bool isCounted = false; // markers are text, as no type of list is like them
        QByteArray end;
    };
    // What the items of a level of a list look like.
    struct ListLook
    {
        QTextListFormat::Style style;
        MRVTextListLevel level;
        bool isUsual; // as readers show items of the style
        bool isTold; // a disc on purpose, where readers draw others
        int depth; // in lists, levels included
    };
    struct Element
    {
        MRVEPubInline kind;
        int link = -1; // in the book's links
        QByteArray attributes; // of a span
        const MRVEPubDirection *direction = nullptr;
    };

    // The elements that a fragment of text stands in.
    struct Needs
    {
        uint elements = 0; // bits by MRVEPubInline
        int link = -1;
        QByteArray span;
        QVector<const MRVEPubDirection *> directions;

        bool include(const Element &element) const;
    };
    // An annotation in the text that has become a note.
    struct Comment
    {
        int position;
        int begin; // fragments, up to end
        int end;
        int number;
        QByteArray id;
        QByteArray mark; // where a link back leads
        QString text; // of one in the margin, which has no fragments
    };

    // Pictures are paths in the package by resource id; empty for those that it cannot hold.
    MRVEPubWriter(MRVEPubBook *book, const MRVDocumentFlow &flow,
                  const QHash<QString, QString> &pictures, const QString &title,
                  MRVProgressMeter *meter);

    // Pages: mrvepubwriter.cpp
    bool write(const QString &fileName);
    void writePage(int begin, int end, const MRVEPubPages &plan);
    int openSections(int begin, int end, const MRVEPubPages &plan, MRVEPubPage *notes);
    int openChapter(int begin, int first, int end, const MRVEPubPages &plan);
    bool isTitlePage(int begin, int end) const;
    bool isTitle(int heading, int end, const MRVEPubPages &plan) const;
    const MRVEPubSection *sectionOf(int heading, int end, const MRVEPubPages &plan) const;
    void openSection(const MRVEPubSection &section);
    int shownEnd(int begin, int end);
    QString headingText(int paragraph) const;
    QString plainText(int begin, int end) const;
    void addPlates();
    void writeNotes();
    void writeNote(int note, int end);
    const MRVEPubEntry *chapterOf(const MRVEPubPages &plan) const;
    void writeNotesPage(const MRVEPubPages &plan, const MRVEPubEntry *chapter);
    int writeAnnotationMark(int fragment, int end, int position);
    void readMarginComments();
    void writeMarginMark(int position);
    void writeCommentMark(Comment comment);
    void writeComment(const Comment &comment);

    // Paragraphs: mrvepubflowwriter.cpp
    void writeFlow(int begin, int end);
    int writeFramePlace(int frame, int end);
    int frameAt(int paragraph) const;
    int writeBlock(int paragraph, int end);
    bool isWritten(int paragraph, int begin, int end) const;
    void arrange(int paragraph);
    void arrangeIn(int quoteLevel, int indent);
    void arrangeItem(const MRVFlowParagraph &paragraph, const MRVEPubParagraphFormat &format);
    bool isInList() const;
    void openList(const MRVFlowParagraph &paragraph);
    void openItem(const MRVFlowParagraph &paragraph, const MRVEPubParagraphFormat &format);
    void openQuotes(int level);
    void closeContainers(int count);
    int usedIndent() const;
    bool isDeep() const;
    int writePreformatted(int paragraph, int end);
    void writeHeading(int paragraph);
    int writeFigure(int paragraph, int end);
    bool isPicture(int paragraph) const;
    bool isFigure(int paragraph, int end);
    bool isCaption(int paragraph, int shown);
    bool hasCaptionAfter(int shown, int end);
    bool isPlainText(int paragraph);
    bool standsWith(int first, int second);
    QPair<int, int> placeOf(int paragraph);
    const ListLook &listLook(const MRVFlowParagraph &paragraph);
    bool isTableCaption(int frame, int paragraph);
    void writeCaption(int paragraph);
    void writeCaption(int paragraph, QLatin1String tag, QLatin1String end);
    bool isCode(int paragraph);
    int codeEnd(int paragraph, int end);
    bool hasParagraphAfter(int paragraph, int end) const;
    void writeParagraph(int paragraph, MRVEPubKind kind, const char *element);
    void writeAttributes(int paragraph, const MRVEPubContext &context, const QByteArray &id);
    int writeClass(int look);
    Qt::LayoutDirection direction() const;
    void writeDirection(Qt::LayoutDirection own, Qt::LayoutDirection around);

    // Tables and frames: mrvepubtablewriter.cpp
    void writeFrame(int frame);
    void writeBox(int frame);
    void writeTable(int frame);
    bool isRightToLeft(int frame) const;
    void writeRows(int frame, int begin, int end);
    void writeCell(int frame, const QTextTableCell &cell, int lastRow);
    void writeCellText(int paragraph, const QByteArray &box, bool isHeader);
    QByteArray cellRule(const QTextTableCellFormat &format) const;

    // Text: mrvepubtextwriter.cpp
    bool writeText(int paragraph, const MRVEPubContext &context);
    void writeFragment(int index, int end, int position, const MRVEPubContext &context);
    Needs needsOf(int index, const MRVEPubContext &context);
    uint openElements() const;
    int openDirections() const;
    int fittingElements(const Needs &needs) const;
    void addElements(const Needs &needs);
    void addDirections(const QVector<const MRVEPubDirection *> &directions);
    void closeUnfit(const Needs &needs);
    void beginLink(int index, int end, const Needs &needs, const MRVEPubContext &context);
    void openLink(int link, int position, QByteArray *id);
    void closeElements(int count);
    void writePicture(const MRVFlowFragment &fragment, const QByteArray &id);
    QByteArray pictureAttributes(const QTextImageFormat &format) const;
    QByteArray takeId(int format, const QString &preferred = QString());
    void writePageBreaks(int format);
    QByteArray uniqueId(const QString &name);
    int linkNumber(const MRVEPubTextFormat &format);
    QLatin1String element(const char *epub3, const char *epub2) const
    {
        return QLatin1String(m_isEPub3 ? epub3 : epub2);
    }

    MRVEPubBook &m_book;
    const MRVDocumentFlow &m_flow;
    const QHash<QString, QString> &m_pictures;
    const QString m_title; // of the book, where one is stated
    MRVProgressMeter *const m_meter; // counts paragraphs
    const bool m_isEPub3;
    Qt::LayoutDirection m_boxDirection; // of the book, or of the table that is being written
    MRVEPubFormats m_formats;
    MRVEPubNotes m_notes;
    QHash<int, int> m_frames; // by their first paragraph

    MRVEPubPage m_page;
    MRVEPubMarkup m_out;
    QVector<Container> m_containers;
    int m_caption = -1; // the paragraph that is one of the next table
    int m_depth = 0; // of the elements of tables and frames
    QVector<Element> m_elements;
    int m_linkAttributes = -1; // of the open link
    bool m_isSpaced = false; // the text of the paragraph holds white space that counts
    bool m_isAfterBlank = true;
    QHash<QPair<int, int>, ListLook> m_listLooks; // by list and level
    QString m_itemLabel; // the marker before the text of the next paragraph
    int m_itemHole = 0; // of the item that was begun last
    int m_openNote = -1; // the note that is being written
    int m_openFrame = -1; // the innermost table or frame that is
    QVector<QByteArray> m_sections; // end tags
    QVector<int> m_pageNotes; // whose marks stand on the page, and that are moved
    QHash<int, bool> m_isNoteWritten;
    const int m_firstHeading; // of the document, in the book
    QString m_notesChapter; // that the notes of the book are at, by the target of its heading
    QHash<int, QString> m_marginComments; // by where their text ends
    QVector<Comment> m_comments; // whose marks stand on the page
    MRVEPubAnchors m_targets;
    QHash<int, QStringList> m_names; // of formats, without those that have an id
    QSet<int> m_hasPageBreaks; // formats whose printed pages are written
    QHash<QPair<QString, QString>, int> m_linkNumbers; // by address and title
};
