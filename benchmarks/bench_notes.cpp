#include "novel.h"

#include "document/mtextdoc.h"
#include "textformat/mrvtextcharformat.h"
#include "textformat/mrvtextformat.h"

#include <QAbstractTextDocumentLayout>
#include <QBrush>
#include <QTextBlock>

#include <vector>

namespace {

QTextCharFormat pattern(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return format;
}

std::unique_ptr<QTextDocument> undoableNovel(const benchmark::State &state)
{
    auto document = novel(int(state.range(0)));
    document->setUndoRedoEnabled(true);
    return document;
}

// With inline footnotes in the place of comments.
std::unique_ptr<QTextDocument> novelWithNotes(const benchmark::State &state)
{
    auto document = undoableNovel(state);
    MTextDoc::replaceAll(document.get(), pattern(MRVTextFormat::InspectorCommentProperty, true),
                         pattern(MRVTextFormat::InlineFootnoteProperty, true), true);
    document->clearUndoRedoStacks();
    return document;
}

// A search as it is written down, without anything remembered.
QTextCursor findFragment(QTextDocument *document, const QTextCharFormat &format, int from,
                         bool compareValues)
{
    for (QTextBlock block = document->findBlock(from); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            const int end = run.position() + run.length();
            if (end > from
                && MRVTextFormat::formatsMatch(run.charFormat(), format, compareValues)) {
                QTextCursor cursor(document);
                cursor.setPosition(qMax(from, run.position()));
                cursor.setPosition(end, QTextCursor::KeepAnchor);
                return cursor;
            }
        }
    }
    return QTextCursor();
}

// What an operation is against: in one edit block a find at a time, changed by the cursor that it
// comes with.
template<typename Change>
void changeOneByOne(QTextDocument *document, const QTextCharFormat &format, bool compareValues,
                    Change change)
{
    QTextCursor block(document);
    block.beginEditBlock();
    for (QTextCursor hit(document);
         !(hit = findFragment(document, format, hit.selectionEnd(), compareValues)).isNull();) {
        change(&hit);
    }
    block.endEditBlock();
}

void clearComments(benchmark::State &state)
{
    const auto document = undoableNovel(state);
    const auto mark = pattern(MRVTextFormat::InspectorCommentProperty, true);
    compare(
        state, [&] { MTextDoc::removeInspectorComments(document.get()); },
        [&] {
            changeOneByOne(document.get(), mark, true, [](QTextCursor *hit) {
                QTextCharFormat format = hit->charFormat();
                MTextDoc::clearCommentProperties(&format);
                hit->setCharFormat(format);
            });
        },
        [&] { document->undo(); });
}

// Two runs in five.
void changeColors(benchmark::State &state)
{
    const auto document = undoableNovel(state);
    const auto mark = pattern(QTextFormat::ForegroundBrush, QBrush());
    compare(
        state, [&] { MTextDoc::setTextColor(document.get(), Qt::green); },
        [&] {
            changeOneByOne(document.get(), mark, false, [](QTextCursor *hit) {
                hit->mergeCharFormat(pattern(QTextFormat::ForegroundBrush, QBrush(Qt::green)));
            });
        },
        [&] { document->undo(); });
}

void removeNotes(benchmark::State &state)
{
    const auto document = novelWithNotes(state);
    const auto note = pattern(MRVTextFormat::InlineFootnoteProperty, true);
    compare(
        state, [&] { MTextDoc::removeInlineFootnotes(document.get()); },
        [&] {
            changeOneByOne(document.get(), note, true,
                           [](QTextCursor *hit) { hit->removeSelectedText(); });
        },
        [&] { document->undo(); });
}

void restyle(benchmark::State &state)
{
    const auto document = undoableNovel(state);
    QTextCharFormat style;
    style.setFontPointSize(14);
    compare(
        state,
        [&] {
            MRVTextFormat::convertToFormat(document.get(), &style, nullptr, false, true, true,
                                           false, false, false, false, {}, false, false);
        },
        [&] {
            std::vector<std::pair<QTextCursor, QTextCharFormat>> runs;
            for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
                for (auto it = block.begin(); !it.atEnd(); ++it) {
                    const QTextFragment run = it.fragment();
                    QTextCursor cursor(document.get());
                    cursor.setPosition(run.position());
                    cursor.setPosition(run.position() + run.length(), QTextCursor::KeepAnchor);
                    runs.emplace_back(cursor,
                                      MRVTextCharFormat::merge(run.charFormat(), style, false, true,
                                                               true, false, {}, false, false));
                }
            }
            QTextCursor block(document.get());
            block.beginEditBlock();
            for (auto &[cursor, format] : runs) {
                cursor.setCharFormat(format);
            }
            block.endEditBlock();
        },
        [&] { document->undo(); });
}

// Lays out what is left to lay out.
void finishLayout(QTextDocument *document)
{
    benchmark::DoNotOptimize(document->documentLayout()->pageCount());
}

template<typename Operation>
void laidOut(benchmark::State &state, const std::unique_ptr<QTextDocument> &document,
             Operation operation)
{
    document->setTextWidth(500);
    finishLayout(document.get());
    compare(
        state,
        [&] {
            operation(document.get());
            finishLayout(document.get());
        },
        [&] {
            document->markContentsDirty(0, document->characterCount());
            finishLayout(document.get());
        },
        [&] {
            document->undo();
            finishLayout(document.get());
        });
}

void laidOutClearComments(benchmark::State &state)
{
    laidOut(state, undoableNovel(state), MTextDoc::removeInspectorComments);
}

void laidOutChangeColors(benchmark::State &state)
{
    laidOut(state, undoableNovel(state),
            [](QTextDocument *document) { MTextDoc::setTextColor(document, Qt::green); });
}

void laidOutRemoveNotes(benchmark::State &state)
{
    laidOut(state, novelWithNotes(state), MTextDoc::removeInlineFootnotes);
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(10000)->Arg(100000)->Arg(1000000)->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(clearComments)->Apply(sizes);
BENCHMARK(changeColors)->Apply(sizes);
BENCHMARK(removeNotes)->Apply(sizes);
BENCHMARK(restyle)->Apply(sizes);
BENCHMARK(laidOutClearComments)->Apply(sizes);
BENCHMARK(laidOutChangeColors)->Apply(sizes);
BENCHMARK(laidOutRemoveNotes)->Apply(sizes);

} // namespace
