#include "document/mtextdoc.h"

#include "document/mtextdocsweep_p.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

// A raised or lowered link is the mark of a note.
bool isRaisedOrLowered(const QTextCharFormat &format)
{
    return format.verticalAlignment() == QTextCharFormat::AlignSuperScript
        || format.verticalAlignment() == QTextCharFormat::AlignSubScript;
}

// A link to a footnote, or back from it, in a document that was HTML.
bool isHtmlFootnote(const QTextCharFormat &format)
{
    return format.anchorNames().value(0).startsWith(QLatin1String("fn"))
        && format.anchorHref().contains(QLatin1String("html#fn"));
}

QTextCharFormat withoutHyperlink(QTextCharFormat format)
{
    if (!isHtmlFootnote(format) && !isRaisedOrLowered(format)) {
        MTextDoc::clearLinkProperties(&format);
    }
    return format;
}

QTextCharFormat withoutMorvaneLink(QTextCharFormat format)
{
    // Deliberate: any integer counts here, one with a sign too.
    bool isInt = false;
    format.anchorHref().toInt(&isInt, 10);
    if (isInt && !isRaisedOrLowered(format)) {
        MTextDoc::clearLinkProperties(&format);
    }
    return format;
}

} // namespace

void MTextDoc::clearLinkProperties(QTextCharFormat *format)
{
    if (!format) {
        return;
    }
    format->clearProperty(QTextFormat::AnchorHref);
    format->clearProperty(QTextFormat::AnchorName);
    format->clearProperty(QTextFormat::IsAnchor);
    MRVFormatSpread::update(format);
}

bool MTextDoc::leaveLink(QTextCursor *cursor)
{
    if (!cursor || cursor->isNull() || cursor->hasSelection()) {
        return false;
    }
    const QTextCharFormat caret = cursor->charFormat();
    const QString address = caret.anchorHref();
    if (address.isEmpty()) {
        return false;
    }
    QTextCharFormat format = cursor->blockCharFormat();
    QTextCharFormat link = caret;
    bool isAfterLink = false;
    const QTextBlock block = cursor->block();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const bool isLink = fragment.charFormat().anchorHref() == address;
        if (fragment.position() >= cursor->position()) {
            if (isLink && isAfterLink) {
                return false;
            }
            break;
        }
        if (fragment.position() + fragment.length() > cursor->position()) {
            return false;
        }
        isAfterLink = isLink;
        link = isLink ? fragment.charFormat() : link;
        if (!isLink && !fragment.charFormat().isImageFormat()) {
            format = fragment.charFormat();
        }
    }
    // A note before the link is not gone on with, and what the user has just chosen stays.
    for (const int note :
         {MRVTextFormat::InlineFootnoteProperty, MRVTextFormat::InlineAnnotationProperty}) {
        if (!link.hasProperty(note)) {
            format.clearProperty(note);
        }
    }
    const QMap<int, QVariant> chosen = caret.properties();
    for (auto it = chosen.cbegin(); it != chosen.cend(); ++it) {
        if (link.property(it.key()) != it.value()) {
            format.setProperty(it.key(), it.value());
        }
    }
    clearLinkProperties(&format);
    cursor->setCharFormat(format);
    return true;
}

void MTextDoc::clearHyperlinks(QTextDocument *document)
{
    MrvSweep::changeRuns(document, MrvSweep::pattern(QTextFormat::IsAnchor, true), true,
                         withoutHyperlink);
}

void MTextDoc::clearMorvaneLinks(QTextDocument *document)
{
    MrvSweep::changeRuns(document, MrvSweep::pattern(QTextFormat::IsAnchor, true), true,
                         withoutMorvaneLink);
}
