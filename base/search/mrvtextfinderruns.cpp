#include "search/mrvtextfinder.h"

#include "search/mrvtextpieces_p.h"
#include "textformat/mrvtextformat.h"

#include <QBrush>
#include <QColor>
#include <QMap>
#include <QTextBlock>
#include <QTextDocument>

namespace {

using Finder = MRVTextFinder;

bool matchesBrush(const QTextCharFormat &format, int property, const QVariant &value)
{
    if (!format.hasProperty(property)) {
        return false;
    }
    const QBrush brush = format.brushProperty(property);
    return value.isNull() ? brush != QBrush() : brush.color() == value.value<QColor>();
}

bool matchesLink(const QTextCharFormat &format, int kinds)
{
    if (!format.hasProperty(QTextFormat::AnchorHref)) {
        return false;
    }
    bool number = false;
    format.stringProperty(QTextFormat::AnchorHref).toInt(&number);
    return kinds & (number ? Finder::InternalLinks : Finder::ExternalLinks);
}

bool matchesAll(const QTextCharFormat &format, const QVariant &value)
{
    if (!value.canConvert<QTextFormat>()) {
        return false;
    }
    QTextCharFormat pattern;
    const QMap<int, QVariant> wanted = value.value<QTextFormat>().properties();
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        pattern.setProperty(it.key(), it.value());
    }
    return MRVTextFormat::formatsMatch(format, pattern, true);
}

auto verdictsOf(const QTextDocument *document, Finder::FindType type, const QVariant &value)
{
    return MRVFormatVerdicts(document, [type, &value](const QTextCharFormat &format) {
        return Finder::matchFormat(format, type, value);
    });
}

/// Whether QTextDocument::find() from the start of the run finds the text before the end of it.
/// Only the paragraphs of the run are searched; otherwise a rare text would take time proportional
/// to the number of runs times the length of the document.
bool holdsText(const QTextDocument *document, const MRVTextRange &run, const QString &text)
{
    for (QTextBlock block = document->findBlock(run.start());
         block.isValid() && block.position() < run.end(); block = block.next()) {
        QString blockText = block.text();
        blockText.replace(QChar(QChar::Nbsp), QLatin1Char(' '));
        const int from = qMax(0, run.start() - block.position());
        const int at = blockText.indexOf(text, from, Qt::CaseInsensitive);
        if (at >= 0) {
            return block.position() + at + text.size() <= run.end();
        }
    }
    return false;
}

} // namespace

bool MRVTextFinder::matchFormat(const QTextCharFormat &format, FindType type, const QVariant &value)
{
    switch (type) {
    case FindInlineAnnotation:
        return format.boolProperty(MRVTextFormat::InlineAnnotationProperty);
    case FindInlineFootnote:
        return format.boolProperty(MRVTextFormat::InlineFootnoteProperty);
    case FindInspectorComment:
        return format.boolProperty(MRVTextFormat::InspectorCommentProperty);
    case FindInspectorFootnote:
        return format.boolProperty(MRVTextFormat::InspectorFootnoteProperty);
    case FindRevisionLevel: {
        const QVariant level = format.property(MRVTextFormat::RevisionLevelProperty);
        return level.userType() == QMetaType::Int && level.toInt() == value.toInt();
    }
    case FindTextColor:
        return matchesBrush(format, QTextFormat::ForegroundBrush, value);
    case FindHighlight:
        return matchesBrush(format, QTextFormat::BackgroundBrush, value);
    case FindLink:
        return matchesLink(format, value.toInt());
    case FindFormat:
        return matchesAll(format, value);
    }
    return false;
}

QTextCursor MRVTextFinder::find(const QTextCursor &from, FindType type, const QVariant &value,
                                bool backward)
{
    return findText(from, type, QString(), value, backward);
}

QTextCursor MRVTextFinder::findText(const QTextCursor &from, FindType type, const QString &text,
                                    const QVariant &value, bool backward)
{
    if (from.isNull() || (backward ? from.atStart() : from.atEnd())) {
        return QTextCursor();
    }
    const QTextDocument *document = from.document();
    auto verdicts = verdictsOf(document, type, value);
    // What the cursor shows as selected may reach further than its ends.
    const MRVTextRange selection(from.selectionStart(), from.selectionEnd());
    MRVRunFinder finder(document, selection, backward, verdicts);
    MRVTextRange run;
    while (finder.next(&run)) {
        if (text.isEmpty() || holdsText(document, run, text)) {
            return mrvSelect(document, run);
        }
    }
    return QTextCursor();
}

QTextCursor MRVTextFinder::findNext(const QTextCursor &from, FindType type, const QString &text,
                                    const QVariant &value)
{
    return findText(from, type, text, value, false);
}

QTextCursor MRVTextFinder::findPrevious(const QTextCursor &from, FindType type, const QString &text,
                                        const QVariant &value)
{
    return findText(from, type, text, value, true);
}

QVector<MRVTextRange> MRVTextFinder::findAllRuns(const QTextDocument *document, FindType type,
                                                 const QVariant &value)
{
    if (!document) {
        return QVector<MRVTextRange>();
    }
    auto verdicts = verdictsOf(document, type, value);
    return mrvAllRuns(document, verdicts);
}
