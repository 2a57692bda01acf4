#pragma once

#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTextFrame>

class QTextBlock;
class QTextDocument;
class QTextFragment;
class QTextTable;

/**
 * Walks over a document depth-first, in document order, and tells of each frame, table, paragraph
 * and run when it starts and when it ends: through the hooks, for subclasses, and right after each
 * hook through the signal of the same element.
 *
 * Of a table, the columns are walked one after the other, and in each the cells from top to bottom.
 * A cell that covers several places in the table is walked at each of them.
 *
 * The walk does not change the document, and hooks and receivers must not do so while it lasts. It
 * keeps nothing between two walks. Takes time linear in what is walked. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocNavigator : public QObject
{
    Q_OBJECT

public:
    /** The document may be null, and is not owned; when it is gone, there is nothing to walk. */
    explicit MRVDocNavigator(QTextDocument *document, QObject *parent = nullptr);

    /** Walks over the whole document. False only where there is none. */
    bool navigate();
    /**
     * Looks at each run once, paragraph by paragraph, and tells table, cell, list and image formats
     * apart. It tells nobody of it: neither hooks nor signals. False only where there is no
     * document.
     */
    bool navigateIteration();

    // The order of these is the order in the table of virtual functions.

    virtual void startBlock(QTextBlock &block);
    virtual void finishBlock(QTextBlock &block);
    virtual void startFragment(QTextFragment &fragment);
    virtual void finishFragment(QTextFragment &fragment);
    virtual void startFrame(QTextFrame &frame);
    virtual void finishFrame(QTextFrame &frame);
    virtual void startTable(QTextTable &table);
    virtual void finishTable(QTextTable &table);

    /** A paragraph with its runs. False, and no calls, for an invalid one. */
    virtual bool processBlock(QTextBlock &block);
    /** A run, which starts and ends with nothing in between. False for an invalid one. */
    virtual bool processFragment(QTextFragment &fragment);
    /** A table with its cells. True. */
    virtual bool processTable(QTextTable &table);
    /** Whatever the iterator stands on: a table, another frame, or a valid paragraph. True. */
    virtual bool processFrameIterator(QTextFrame::iterator it);
    /** A frame with its children. True. */
    virtual bool processFrame(QTextFrame &frame);

Q_SIGNALS:
    void blockStarted(QTextBlock &block);
    void blockFinished(QTextBlock &block);
    void fragmentStarted(QTextFragment &fragment);
    void fragmentFinished(QTextFragment &fragment);
    void frameStarted(QTextFrame &frame);
    void frameFinished(QTextFrame &frame);
    void tableStarted(QTextTable &table);
    void tableFinished(QTextTable &table);

private:
    QPointer<QTextDocument> m_document;
};

/**
 * Collects the ranges of all tables, an outer table before those nested in it.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTableCollector : public MRVDocNavigator
{
    Q_OBJECT

public:
    explicit MRVTableCollector(QTextDocument *document, QObject *parent = nullptr);

    /**
     * A range for each table that was met, in the order of the walks so far: from firstPosition()
     * to lastPosition() of the table, both inside it. Each walk adds to the list. A table in a cell
     * that covers several places is there once for each.
     */
    QList<MRVTextRange> tables() const { return m_tables; }

    bool processTable(QTextTable &table) override;

private:
    QList<MRVTextRange> m_tables;
};
