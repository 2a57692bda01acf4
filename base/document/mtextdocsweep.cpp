#include "document/mtextdocsweep_p.h"

#include "search/mrvtextfinder.h"
#include "text/mrvtextcursor.h"
#include "textformat/mrvtextformatchanges.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// Walks the fragments of ranges in document order, each block once. Positions are added up, since
// Qt searches a tree for each position that it is asked for.
class RunWalk
{
public:
    explicit RunWalk(const QTextDocument &document)
        : m_document(document)
    {
    }

    // Calls visit(fragment, start, end) for the part of each fragment that lies in range.
    template<typename Visit>
    void visitRange(const MRVTextRange &range, Visit visit)
    {
        if (range.start() >= m_blockEnd) {
            enter(m_document.findBlock(range.start()));
        }
        while (m_block.isValid()) {
            for (; !m_run.atEnd(); ++m_run) {
                if (m_runStart >= range.end()) {
                    return;
                }
                const QTextFragment run = m_run.fragment();
                const int runEnd = m_runStart + run.length();
                if (runEnd > range.start()) {
                    visit(run, qMax(m_runStart, range.start()), qMin(runEnd, range.end()));
                }
                if (runEnd > range.end()) { // its rest may lie in the next range
                    return;
                }
                m_runStart = runEnd;
            }
            if (m_blockEnd >= range.end()) {
                return;
            }
            enter(m_block.next());
        }
    }

private:
    void enter(const QTextBlock &block)
    {
        m_block = block;
        m_run = block.begin();
        m_runStart = block.position();
        m_blockEnd = m_runStart + block.length();
    }

    const QTextDocument &m_document;
    QTextBlock m_block;
    QTextBlock::iterator m_run;
    int m_runStart = 0;
    int m_blockEnd = 0;
};

} // namespace

QTextCharFormat MrvSweep::pattern(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return format;
}

void MrvSweep::changeRanges(QTextDocument *document, const QVector<MRVTextRange> &ranges,
                            const Change &change)
{
    MrvReplacements<QTextCharFormat, int> replacements;
    MrvFormatChanges changes;
    RunWalk walk(*document);
    for (const MRVTextRange &range : ranges) {
        walk.visitRange(range, [&](const QTextFragment &run, int start, int end) {
            const auto &changed = replacements.value(
                run.charFormatIndex(), [&] { return run.charFormat(); }, change);
            if (changed) {
                changes.setCharFormat(start, end, *changed);
            }
        });
    }
    changes.apply(document);
}

void MrvSweep::changeRuns(QTextDocument *document, const QTextCharFormat &pattern,
                          bool compareValues, const Change &change)
{
    if (document) {
        changeRanges(document, MRVTextFinder::findAllFragments(document, pattern, compareValues),
                     change);
    }
}

void MrvSweep::changeSelection(QTextCursor *cursor, const Change &change)
{
    if (!cursor || cursor->isNull()) {
        return;
    }
    // A cursor knows one format only, but the selection may hold several.
    if (cursor->hasSelection()) {
        changeRanges(cursor->document(), MRVTextCursor::selectedRanges(*cursor), change);
    } else {
        cursor->setCharFormat(change(cursor->charFormat()));
    }
}

void MrvSweep::removeRanges(QTextDocument *document, const QVector<MRVTextRange> &ranges)
{
    if (ranges.isEmpty()) {
        return;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // From the last to the first, so that the positions of the others stay valid.
    for (int i = ranges.size() - 1; i >= 0;) {
        const int end = ranges.at(i).end();
        int start = ranges.at(i).start();
        // Adjacent ranges are removed together: a paragraph that is removed as a whole, with its
        // end, must not pass its format on to the next one.
        for (--i; i >= 0 && ranges.at(i).end() == start; --i) {
            start = ranges.at(i).start();
        }
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
}
