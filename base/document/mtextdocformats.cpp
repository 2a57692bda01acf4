#include "document/mtextdoc.h"

#include "document/mtextdocsweep_p.h"
#include "search/mrvtextfinder.h"
#include "textformat/mrvtextformat.h"

#include <QBrush>
#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

QTextCharFormat without(QTextCharFormat format, const QList<int> &properties)
{
    for (int property : properties) {
        format.clearProperty(property);
    }
    return format;
}

void changeTextColor(QTextDocument *document, const MrvSweep::Change &change)
{
    const auto unlessLink = [&](const QTextCharFormat &format) {
        return format.isAnchor() ? format : change(format);
    };
    MrvSweep::changeRuns(document, MrvSweep::pattern(QTextFormat::ForegroundBrush, QBrush()), false,
                         unlessLink);
}

} // namespace

void MTextDoc::clearTextColor(QTextDocument *document)
{
    changeTextColor(document, [](const QTextCharFormat &format) {
        return without(format, {QTextFormat::ForegroundBrush});
    });
}

void MTextDoc::setTextColor(QTextDocument *document, const QColor &color)
{
    if (!color.isValid()) {
        clearTextColor(document);
        return;
    }
    changeTextColor(document, [&](QTextCharFormat format) {
        format.setForeground(QBrush(color));
        return format;
    });
}

void MTextDoc::clearHighlighting(QTextDocument *document)
{
    clearAll(document, MrvSweep::pattern(QTextFormat::BackgroundBrush, QBrush()), false);
}

void MTextDoc::clearAll(QTextDocument *document, const QTextCharFormat &pattern, bool matchValues)
{
    const QList<int> properties = pattern.properties().keys();
    if (properties.isEmpty()) {
        return;
    }
    MrvSweep::changeRuns(document, pattern, matchValues, [&](const QTextCharFormat &format) {
        return without(format, properties);
    });
}

void MTextDoc::clearAllProperty(QTextDocument *document, int property, const QVariant &value,
                                bool matchValues)
{
    if (value.isValid()) {
        clearAll(document, MrvSweep::pattern(property, value), matchValues);
    } else if (!matchValues) {
        // A format cannot hold an invalid value; where only the property counts, any value will do.
        clearAll(document, MrvSweep::pattern(property, true), false);
    }
}

void MTextDoc::clearAllSelection(QTextCursor cursor, const QTextCharFormat &pattern,
                                 bool matchValues)
{
    if (!cursor.hasSelection()) {
        return;
    }
    const QList<int> properties = pattern.properties().keys();
    MrvSweep::changeSelection(&cursor, [&](const QTextCharFormat &format) {
        return MRVTextFormat::formatsMatch(format, pattern, matchValues)
            ? without(format, properties)
            : format;
    });
}

void MTextDoc::replaceAll(QTextDocument *document, const QTextCharFormat &from,
                          const QTextCharFormat &to, bool matchValues)
{
    const QList<int> properties = from.properties().keys();
    MrvSweep::changeRuns(document, from, matchValues, [&](const QTextCharFormat &format) {
        QTextCharFormat changed = without(format, properties);
        changed.merge(to);
        return changed;
    });
}

bool MTextDoc::findInBlock(const QTextBlock &block, const QTextCharFormat &pattern, int offset,
                           QTextCursor &cursor, bool matchValues)
{
    return MRVTextFinder::findInBlock(block, pattern, offset, cursor, matchValues, false);
}

int MTextDoc::continuousFragmentCount(const QTextCharFormat &format, const QTextCursor &from,
                                      bool compareValues)
{
    return MRVTextFinder::continuousFragmentCount(format, from, compareValues);
}
