#include "textformat/mrvtextfragment.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

void mrvFragmentFormat(const QTextDocumentFragment &fragment, QTextBlockFormat *blockFormat,
                       QTextCharFormat *charFormat)
{
    // Qt does not publish a fragment's formats; only a document that it was inserted into shows
    // them.
    QTextDocument scratch;
    scratch.setUndoRedoEnabled(false);
    QTextCursor(&scratch).insertFragment(fragment);

    const QTextBlock block = scratch.begin();
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
