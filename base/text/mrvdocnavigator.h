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
 * Walks over a document depth-first, in document order, and reports each frame, table, paragraph
 * and fragment when it starts and when it ends: through the hooks, for subclasses, and right after
 * each hook through the signal of the same element.
 *
 * So a document of one paragraph in one format gives startFrame() of the root frame, startBlock(),
 * startFragment(), finishFragment(), finishBlock(), finishFrame(). A table gives startTable(), the
 * paragraphs of its cells, finishTable(); it is not reported as a frame as well.
 *
 * Of a table, the columns are walked one after the other, and in each the cells from top to bottom.
 * A cell that covers several places in the table is walked at each of them.
 *
 * The walk does not change the document, and hooks and receivers must not do so while it lasts. It
 * keeps nothing between two walks. Takes time linear in what is walked. GUI thread only.
 *
 * @code
 * class HeadingCounter : public MRVDocNavigator
 * {
 * public:
 *     using MRVDocNavigator::MRVDocNavigator;
 *     int count = 0;
 *
 *     void startBlock(QTextBlock &block) override
 *     {
 *         count += MRVTextBlockFormat::headingLevel(block.blockFormat()) > 0 ? 1 : 0;
 *     }
 * };
 * HeadingCounter counter(&document);
 * counter.navigate();
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocNavigator : public QObject
{
    Q_OBJECT

public:
    /** The document may be null, and is not owned; when it is gone, there is nothing to walk. */
    explicit MRVDocNavigator(QTextDocument *document, QObject *parent = nullptr);

    /** Walks over the whole document. False only for a null document. */
    bool navigate();
    /**
     * Looks at each fragment once, paragraph by paragraph, and writes its position and whether it
     * has a table, cell, list or image format to the log category mrv.text.navigator, which is off
     * by default. Calls neither hooks nor signals. False only for a null document.
     */
    bool navigateIteration();

    // The order of these is the order in the table of virtual functions.

    /**
     * @name Hooks
     *
     * Each is called once when the walk enters or leaves the element, and before the signal of the
     * same element. They do nothing here; an override need not call them. The element is valid, and
     * the reference holds during the call only.
     */
    //@{
    virtual void startBlock(QTextBlock &block);
    virtual void finishBlock(QTextBlock &block);
    virtual void startFragment(QTextFragment &fragment);
    virtual void finishFragment(QTextFragment &fragment);
    virtual void startFrame(QTextFrame &frame);
    virtual void finishFrame(QTextFrame &frame);
    virtual void startTable(QTextTable &table);
    virtual void finishTable(QTextTable &table);
    //@}

    /**
     * Reports a paragraph and its fragments. An override that calls it goes on into the fragments,
     * one that does not skips them; the same holds for the functions below.
     *
     * @return false, without a call of a hook, for an invalid paragraph.
     */
    virtual bool processBlock(QTextBlock &block);
    /**
     * Reports a fragment, which starts and ends with nothing in between. False for an invalid one.
     */
    virtual bool processFragment(QTextFragment &fragment);
    /** Reports a table and what is in its cells. Always true. */
    virtual bool processTable(QTextTable &table);
    /**
     * Reports what the iterator stands on: a table, another frame, or a valid paragraph. Always
     * true.
     */
    virtual bool processFrameIterator(QTextFrame::iterator it);
    /** Reports a frame and what is in it. Always true. */
    virtual bool processFrame(QTextFrame &frame);

Q_SIGNALS:
    /**
     * @name Signals
     *
     * Each follows the hook of the same element. Receivers must not change the document. The
     * references hold during the emission, so connections must be direct.
     */
    //@{
    void blockStarted(QTextBlock &block);
    void blockFinished(QTextBlock &block);
    void fragmentStarted(QTextFragment &fragment);
    void fragmentFinished(QTextFragment &fragment);
    void frameStarted(QTextFrame &frame);
    void frameFinished(QTextFrame &frame);
    void tableStarted(QTextTable &table);
    void tableFinished(QTextTable &table);
    //@}

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
    /** Collects nothing before navigate() is called. */
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
