#pragma once

#include "pdf/mrvprintlook_p.h"

#include <QHash>
#include <QRectF>
#include <QString>
#include <QTextObjectInterface>
#include <QTextOption>
#include <QVector>

#include <memory>

class MRVProgressMeter;
class MrvPrintStyler;
class QPaintDevice;
class QPainter;
class QTextBlock;
class QTextDocument;
class QTextFrame;
class QTextLayout;
class QTextTable;

/** What stands on a page of a document: from #top up to #bottom, in the document's own dots. */
struct MrvPrintedPage
{
    qreal top;
    qreal bottom;
    bool beginsChapter;
};

/** A place of a document, by its distance from the document's beginning. */
struct MrvPrintedHeading
{
    qreal y;
    int level;
    QString text;
};
struct MrvPrintedTarget
{
    qreal y;
    QString name;
};
struct MrvPrintedLink
{
    qreal y;
    QRectF area;
    QString address;
};

/**
 * A copy of a document that is laid out for paper: as one long column, which is then divided.
 *
 * Qt's own pages know neither orphans nor headings, and cannot begin lower down.
 */
class MrvPrintedDocument : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /**
     * A copy of the paragraphs from @p first to @p last. Pictures are fetched later from
     * @p original, which has to live as long.
     */
    MrvPrintedDocument(const QTextBlock &first, const QTextBlock &last, const MrvPrintLook &look,
                       const QTextDocument &original, const QHash<QString, QSize> &pictureSizes);
    ~MrvPrintedDocument() override;

    /** Adds a heading before all else. */
    void insertHeading(const QString &text, int level);
    /** Leaves out the first paragraph where it is a heading with this text. */
    void removeHeading(const QString &text);
    /** The sizes of a document's pictures in pixels, by resource id. */
    static QHash<QString, QSize> pictureSizesOf(const QTextDocument &document);
    /**
     * The places at which a document is divided into such copies: their first paragraphs. Qt's
     * lengths end at 2^23 dots where it paints, which are some 800 pages.
     */
    static QVector<QTextBlock> piecesOf(const QTextDocument &document, int chapterLevel);

    /**
     * Computes all of the below, the lists in order of their y. @p chapterLevel is that of headings
     * that begin a page.
     *
     * @param meter counts the characters.
     * @return false where it is too long to be painted, or was cancelled.
     */
    bool layOut(QPaintDevice *device, int chapterLevel, MRVProgressMeter *meter);

    const QVector<MrvPrintedPage> &pages() const { return m_pages; }
    const QVector<MrvPrintedHeading> &headings() const { return m_headings; }
    const QVector<MrvPrintedTarget> &targets() const { return m_targets; }
    const QVector<MrvPrintedLink> &links() const { return m_links; }
    /** How many tables do not fit on the paper, however small their type. */
    int wideTables() const { return m_wideTables; }
    /** How many tables are lines of text, since they are nested too deeply. */
    int flattenedTables() const { return m_flattenedTables; }

    /** Paints a page's part, with its top where the painter has its origin. */
    void paint(QPainter *painter, const MrvPrintedPage &page) const;

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    // What no page break divides, from top to bottom.
    struct Box
    {
        qreal top;
        qreal bottom;
        int line = 0; // of its paragraph
        int lineCount = 1;
        bool keepsWithNext = false;
        bool breaksBefore = false;
        bool beginsChapter = false;
    };

    // A paragraph of more than a page. Qt keeps the shapes of its letters for the next page only
    // where it is told to, and takes time for all of it otherwise.
    struct LongParagraph
    {
        qreal top;
        qreal bottom;
        QTextLayout *lines;
    };

    // Positions in a paragraph, and the index of the line in which it starts.
    struct LinkedText
    {
        QString address;
        int start = 0;
        int end = 0;
        int firstLine = 0;
    };

    qreal likelyHeight(const QTextBlock &block, int columns) const;
    bool mayBeTooLong(const QTextBlock &first, const QTextBlock &last, int columns) const;
    bool hasEndlessPart() const;
    void setWrapMode(QTextOption::WrapMode mode);
    QVector<QTextTable *> wideTablesNow() const;
    bool layOutSlowly(MRVProgressMeter *meter) const;
    void shrinkTables(MrvPrintStyler *styler);
    void collect(QTextFrame *frame, int chapterLevel);
    void collectBlock(const QTextBlock &block, int chapterLevel);
    void collectTable(QTextTable *table);
    void collectRow(const QVector<QTextBlock> &blocks, qreal padding);
    void collectPlaces();
    void collectPlaces(const QTextBlock &block);
    void collectLink(const QTextLayout &lines, const QPointF &origin, const LinkedText &link);
    void divide();
    bool mayBreakBefore(int box) const;

    const QTextDocument &m_original;
    const MrvPrintLook &m_look;
    std::unique_ptr<QTextDocument> m_copy;
    const QHash<QString, QSize> &m_pictureSizes; // in pixels, by resource id
    int m_wideTables = 0;
    int m_flattenedTables = 0;
    QVector<Box> m_boxes;
    QVector<LongParagraph> m_longParagraphs;
    QVector<MrvPrintedPage> m_pages;
    QVector<MrvPrintedHeading> m_headings;
    QVector<MrvPrintedTarget> m_targets;
    QVector<MrvPrintedLink> m_links;
};
