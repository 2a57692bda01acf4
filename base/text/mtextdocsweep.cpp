#include "text/mtextdocsweep_p.h"

#include "search/mrvtextfinder.h"
#include "text/mrvtextformatchanges_p.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// Walks the runs of ranges in document order, each block once.
class RunWalk
{
public:
    explicit RunWalk(const QTextDocument &document)
        : m_document(document)
    {
    }

    // Calls visit(run, start, end) for each part of a run that lies in range.
    template<typename Visit>
    void visitRange(const MRVTextRange &range, Visit visit)
    {
        if (!m_block.contains(range.start()))
            enter(m_document.findBlock(range.start()));
        while (m_block.isValid() && m_block.position() < range.end()) {
            for (; !m_run.atEnd(); ++m_run) {
                const QTextFragment run = m_run.fragment();
                const int runEnd = run.position() + run.length();
                if (run.position() >= range.end())
                    return;
                if (runEnd <= range.start())
                    continue;
                visit(run, qMax(run.position(), range.start()), qMin(runEnd, range.end()));
                if (runEnd > range.end()) // its rest may lie in the next range
                    return;
            }
            if (m_block.position() + m_block.length() >= range.end())
                return;
            enter(m_block.next());
        }
    }

private:
    void enter(const QTextBlock &block)
    {
        m_block = block;
        m_run = block.begin();
    }

    const QTextDocument &m_document;
    QTextBlock m_block;
    QTextBlock::iterator m_run;
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
            const auto &changed =
                replacements.value(run.charFormatIndex(), run.charFormat(), change);
            if (changed)
                changes.setCharFormat(start, end, *changed);
        });
    }
    changes.apply(document);
}

void MrvSweep::changeRuns(QTextDocument *document, const QTextCharFormat &pattern,
                          bool compareValues, const Change &change)
{
    if (document)
        changeRanges(document, MRVTextFinder::findAllFragments(document, pattern, compareValues),
                     change);
}

void MrvSweep::changeSelection(QTextCursor *cursor, const Change &change)
{
    if (!cursor || cursor->isNull())
        return;
    // Not by the cursor itself: it knows one format, and the selection may hold several.
    if (cursor->hasSelection())
        changeRanges(cursor->document(), {MRVTextRange(*cursor)}, change);
    else
        cursor->setCharFormat(change(cursor->charFormat()));
}

void MrvSweep::removeRanges(QTextDocument *document, const QVector<MRVTextRange> &ranges)
{
    if (ranges.isEmpty())
        return;
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // From the last to the first, so that the positions of the others hold.
    for (int i = ranges.size() - 1; i >= 0;) {
        const int end = ranges.at(i).end();
        int start = ranges.at(i).start();
        // Side by side they go at once: a paragraph that goes as a whole, with its end, must not
        // leave its format to the next one.
        for (--i; i >= 0 && ranges.at(i).end() == start; --i)
            start = ranges.at(i).start();
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
}
