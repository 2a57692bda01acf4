#include "document/mtextdoc.h"

#include "textformat/mrvtextformat.h"
#include "textformat/mrvtextformatchanges.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

namespace {

constexpr QTextOption::Flags invisibles()
{
    return QTextOption::ShowTabsAndSpaces | QTextOption::ShowLineAndParagraphSeparators;
}

void setFlags(QTextDocument *document, QTextOption::Flags flags)
{
    QTextOption option = document->defaultTextOption();
    if (option.flags() == flags) {
        return; // setting an option would lay out the document again
    }
    option.setFlags(flags);
    document->setDefaultTextOption(option);
}

// Invalid for an unknown number.
QTextBlock blockByNumber(const QTextDocument *document, int number)
{
    return document && number >= 0 ? document->findBlockByNumber(number) : QTextBlock();
}

// The first fragment of a paragraph; invalid for an empty paragraph.
QTextFragment firstRun(const QTextBlock &block)
{
    return block.begin().atEnd() ? QTextFragment() : block.begin().fragment();
}

// An image without the format of one would be a stray character.
bool isOfImage(int property)
{
    return property == QTextFormat::ObjectType
        || (property >= QTextFormat::ImageName && property <= QTextFormat::ImageQuality)
        || (property >= MRVTextFormat::ImageLinkProperty
            && property <= MRVTextFormat::ImageNameProperty);
}

} // namespace

bool MTextDoc::invisiblesShown(const QTextDocument &document)
{
    return (document.defaultTextOption().flags() & invisibles()) == invisibles();
}

void MTextDoc::showInvisibles(QTextDocument *document, bool show)
{
    if (!document || invisiblesShown(*document) == show) {
        return;
    }
    const QTextOption::Flags flags = document->defaultTextOption().flags();
    setFlags(document, show ? flags | invisibles() : flags & ~invisibles());
}

void MTextDoc::clearDefaultTextOptionFlags(QTextDocument *document)
{
    if (document) {
        setFlags(document, QTextOption::Flags());
    }
}

void MTextDoc::normalizePageBreaks(QTextDocument *document)
{
    if (!document) {
        return;
    }
    MrvFormatChanges changes;
    bool carry = false;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const QTextFormat::PageBreakFlags present = block.blockFormat().pageBreakPolicy();
        QTextFormat::PageBreakFlags wanted = present & ~QTextFormat::PageBreak_AlwaysAfter;
        if (carry) {
            wanted |= QTextFormat::PageBreak_AlwaysBefore;
        }
        carry = present.testFlag(QTextFormat::PageBreak_AlwaysAfter);
        if (wanted == present) {
            continue;
        }
        QTextBlockFormat format = block.blockFormat();
        if (wanted == QTextFormat::PageBreak_Auto) {
            format.clearProperty(QTextFormat::PageBreakPolicy);
        } else {
            format.setPageBreakPolicy(wanted);
        }
        changes.setBlockFormat(block.position(), format);
    }
    changes.apply(document);
}

QTextBlockFormat MTextDoc::blockFormatByBlockNumber(const QTextDocument *document, int number)
{
    // Qt returns a format that is not a block format for an invalid block; it cannot be set.
    const QTextBlock block = blockByNumber(document, number);
    return block.isValid() ? block.blockFormat() : QTextBlockFormat();
}

void MTextDoc::setBlockFormatByBlockNumber(QTextDocument *document, int number,
                                           const QTextBlockFormat &format)
{
    const QTextBlock block = blockByNumber(document, number);
    if (!block.isValid()) {
        return;
    }
    // In another document the index of a list names a different list, or none.
    QTextBlockFormat wanted = format;
    wanted.setObjectIndex(block.blockFormat().objectIndex());
    MrvFormatChanges changes;
    if (!mrvIsSameFormat(wanted, block.blockFormat())) {
        changes.setBlockFormat(block.position(), wanted);
    }
    changes.apply(document);
}

QTextCharFormat MTextDoc::charFormatByBlockNumber(const QTextDocument *document, int number)
{
    return firstRun(blockByNumber(document, number)).charFormat();
}

void MTextDoc::setCharFormatByBlockNumber(QTextDocument *document, int number,
                                          const QTextCharFormat &format)
{
    const QTextFragment run = firstRun(blockByNumber(document, number));
    if (!run.isValid()) {
        return;
    }
    QTextCharFormat wanted = format;
    const QTextCharFormat present = run.charFormat();
    if (present.isImageFormat() && !format.isImageFormat()) {
        const QMap<int, QVariant> properties = present.properties();
        for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
            if (isOfImage(it.key())) {
                wanted.setProperty(it.key(), it.value());
            }
        }
    }
    MrvFormatChanges changes;
    if (!mrvIsSameFormat(wanted, present)) {
        changes.setCharFormat(run.position(), run.position() + run.length(), wanted);
    }
    changes.apply(document);
}
