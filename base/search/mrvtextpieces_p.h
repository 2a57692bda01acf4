#pragma once

#include "text/mrvtextcursor.h"
#include "text/mrvtextrange.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFormat>
#include <QVector>

#include <utility>

/**
 * The verdicts of a test on the formats of a document, computed once for each format.
 *
 * A document has few formats and many fragments. It must not be edited meanwhile.
 */
template<typename Test>
class MRVFormatVerdicts
{
public:
    MRVFormatVerdicts(const QTextDocument *document, Test test)
        : m_formats(document->allFormats())
        , m_verdicts(m_formats.size(), Unknown)
        , m_test(std::move(test))
    {
    }

    bool operator()(int formatIndex)
    {
        signed char &verdict = m_verdicts[formatIndex];
        if (verdict == Unknown) {
            verdict = m_test(format(formatIndex)) ? Yes : No;
        }
        return verdict == Yes;
    }

    QTextCharFormat format(int index) const { return m_formats.at(index).toCharFormat(); }

private:
    enum : signed char { Unknown, No, Yes };
    const QVector<QTextFormat> m_formats;
    QVector<signed char> m_verdicts;
    Test m_test;
};

/** A fragment by numbers: [start, end) and the index of its format in the document. */
struct MRVTextPiece
{
    int start = 0;
    int end = 0;
    int format = -1;
};

Q_DECLARE_TYPEINFO(MRVTextPiece, Q_MOVABLE_TYPE);

/** Moves from fragment to fragment in either direction, across paragraph ends. */
class MRVPieceWalker
{
public:
    /** On the first fragment that reaches beyond @p position. */
    MRVPieceWalker(const QTextDocument *document, int position);

    bool isValid() const { return m_index >= 0 && m_index < m_pieces.size(); }
    const MRVTextPiece &piece() const { return m_pieces.at(m_index); }
    void next();
    /** Also from after the last fragment back to it. */
    void previous();

private:
    void load(const QTextBlock &block);

    QTextBlock m_block; // the last valid one
    QVector<MRVTextPiece> m_pieces;
    int m_index = 0;
};

/**
 * Whether [end, start) holds only paragraph ends. A run never crosses the border of a cell or
 * frame: a cursor that selects across it selects the whole table.
 */
bool mrvAdjoins(const QTextDocument *document, int end, int start);

/** Calls @p found(piece) for the fragments of a part of a document, clipped to it, that pass. */
template<typename Verdicts, typename Found>
void mrvEachPiece(const QTextDocument *document, const MRVTextRange &within, Verdicts &verdicts,
                  Found found)
{
    QTextBlock block = document->findBlock(within.start());
    for (; block.isValid() && block.position() < within.end(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            // The verdict first, since asking for a position searches a tree.
            const QTextFragment fragment = it.fragment();
            if (!verdicts(fragment.charFormatIndex())) {
                continue;
            }
            const int position = fragment.position();
            const int start = qMax(position, within.start());
            const int end = qMin(position + fragment.length(), within.end());
            if (start < end) {
                found(MRVTextPiece{start, end, fragment.charFormatIndex()});
            }
        }
    }
}

/** As mrvEachPiece(), for what a cursor has selected. */
template<typename Verdicts, typename Found>
void mrvEachSelected(const QTextCursor &cursor, Verdicts &verdicts, Found found)
{
    const QVector<MRVTextRange> ranges = MRVTextCursor::selectedRanges(cursor);
    for (const MRVTextRange &range : ranges) {
        mrvEachPiece(cursor.document(), range, verdicts, found);
    }
}

/**
 * Extends a range in both directions over the fragments that pass and overlap it, adjoin it, or are
 * separated from it only by paragraph ends. An empty range must touch them.
 */
template<typename Verdicts>
MRVTextRange mrvGrown(const QTextDocument *document, const MRVTextRange &range, Verdicts &verdicts)
{
    int start = range.start();
    int end = range.end();
    const auto passes = [&](const MRVPieceWalker &walker) {
        return walker.isValid() && verdicts(walker.piece().format);
    };
    MRVPieceWalker walker(document, end);
    MRVPieceWalker back(document, start);
    if (!back.isValid() || back.piece().start >= start) {
        back.previous();
    }
    const bool touches = start < end || (passes(walker) && walker.piece().start <= end)
        || (passes(back) && back.piece().end >= start);
    if (!touches) {
        return range;
    }
    for (; passes(walker) && mrvAdjoins(document, end, walker.piece().start); walker.next()) {
        end = walker.piece().end;
    }
    for (; passes(back) && mrvAdjoins(document, back.piece().end, start); back.previous()) {
        start = back.piece().start;
    }
    return MRVTextRange(start, end);
}

/** All runs of a document, in order. */
template<typename Verdicts>
QVector<MRVTextRange> mrvAllRuns(const QTextDocument *document, Verdicts &verdicts)
{
    QVector<MRVTextRange> runs;
    int lastEnd = -1; // of the last fragment, if it passed
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!verdicts(fragment.charFormatIndex())) {
                lastEnd = -1;
                continue;
            }
            const int end = fragment.position() + fragment.length();
            if (lastEnd < 0 || !mrvAdjoins(document, lastEnd, fragment.position())) {
                runs.append(MRVTextRange(fragment.position(), end));
            } else {
                runs.last() = MRVTextRange(runs.last().start(), end);
            }
            lastEnd = end;
        }
    }
    return runs;
}

/** Finds the runs outside a selection, one after the other; see MRVTextFinder::find(). */
template<typename Verdicts>
class MRVRunFinder
{
public:
    MRVRunFinder(const QTextDocument *document, const MRVTextRange &selection, bool backward,
                 Verdicts &verdicts)
        : m_document(document)
        , m_walker(document, backward ? selection.start() : selection.end())
        , m_verdicts(verdicts)
        , m_backward(backward)
    {
        const int edge = backward ? selection.start() : selection.end();
        MRVPieceWalker inner = m_walker; // the nearest fragment on the selection's side of the edge
        const bool across = m_walker.isValid() && m_walker.piece().start < edge;
        if (!across) {
            (backward ? m_walker : inner).previous();
        }
        // The rest of a run that begins on the other side does not count.
        if (passes(m_walker)
            && (across || (passes(inner) && adjoin(inner.piece(), m_walker.piece())))) {
            skip();
        }
    }

    bool next(MRVTextRange *run)
    {
        while (m_walker.isValid() && !passes(m_walker)) {
            step();
        }
        if (!m_walker.isValid()) {
            return false;
        }
        const MRVTextPiece first = m_walker.piece();
        const MRVTextPiece last = skip();
        *run =
            m_backward ? MRVTextRange(last.start, first.end) : MRVTextRange(first.start, last.end);
        return true;
    }

private:
    bool passes(const MRVPieceWalker &walker) const
    {
        return walker.isValid() && m_verdicts(walker.piece().format);
    }
    void step() { m_backward ? m_walker.previous() : m_walker.next(); }
    MRVTextPiece skip()
    {
        MRVTextPiece last;
        for (; passes(m_walker) && (last.format < 0 || adjoin(last, m_walker.piece())); step()) {
            last = m_walker.piece();
        }
        return last;
    }
    bool adjoin(const MRVTextPiece &a, const MRVTextPiece &b) const
    {
        return a.start < b.start ? mrvAdjoins(m_document, a.end, b.start)
                                 : mrvAdjoins(m_document, b.end, a.start);
    }

    const QTextDocument *m_document;
    MRVPieceWalker m_walker;
    Verdicts &m_verdicts;
    bool m_backward;
};

/** The fragment of the character at a position; invalid (format -1) at a paragraph end. */
MRVTextPiece mrvPieceAt(const QTextDocument *document, int position);

/** A cursor with the anchor at the start; also for a const document. */
QTextCursor mrvSelect(const QTextDocument *document, const MRVTextRange &range);

/** The part of a range between two positions; empty at one of them where it lies outside. */
MRVTextRange mrvClipped(const MRVTextRange &range, int start, int end);
