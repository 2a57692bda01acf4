#include "textformat/mrvtextfragment.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextFrame>

namespace {

// Before a table or frame at the start of a document there is always an empty paragraph, which
// nobody sees.
QTextBlock firstBlock(QTextDocument *document)
{
    const auto frameOf = [](const QTextBlock &block) { return QTextCursor(block).currentFrame(); };
    QTextBlock block = document->begin();
    QTextBlock next = block.next();
    while (block.length() == 1 && next.isValid()
           && frameOf(next)->parentFrame() == frameOf(block)) {
        block = next;
        next = block.next();
    }
    return block;
}

} // namespace

void mrvFragmentFormat(const QTextDocumentFragment &fragment, QTextBlockFormat *blockFormat,
                       QTextCharFormat *charFormat)
{
    // Qt does not publish a fragment's formats; only a document that it was inserted into shows
    // them.
    QTextDocument scratch;
    scratch.setUndoRedoEnabled(false);
    QTextCursor(&scratch).insertFragment(fragment);

    const QTextBlock block = firstBlock(&scratch);
    if (blockFormat) {
        *blockFormat = block.blockFormat();
        blockFormat->clearProperty(QTextFormat::ObjectIndex);
    }
    if (charFormat) {
        const QTextBlock::iterator run = block.begin();
        *charFormat = run.atEnd() ? block.charFormat() : run.fragment().charFormat();
        charFormat->clearProperty(QTextFormat::ObjectIndex);
    }
}

QTextBlockFormat mrvFragmentBlockFormat(const QTextDocumentFragment &fragment)
{
    QTextBlockFormat format;
    mrvFragmentFormat(fragment, &format, nullptr);
    return format;
}

QTextCharFormat mrvFragmentCharFormat(const QTextDocumentFragment &fragment)
{
    QTextCharFormat format;
    mrvFragmentFormat(fragment, nullptr, &format);
    return format;
}
