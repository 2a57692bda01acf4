#pragma once

#include "documentdump.h"
#include "images.h"
#include "text/mrvlistmarkers.h"
#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QTextList>
#include <QTextTable>

/// A document with everything that has to be kept.
inline void fillDocument(QTextDocument *document)
{
    QTextCursor cursor(document);
    QTextBlockFormat heading;
    heading.setHeadingLevel(2);
    MRVTextBlockFormat::setLineSpacing(&heading, 18, 12);
    cursor.setBlockFormat(heading);
    cursor.insertText("Heading");

    cursor.insertBlock(QTextBlockFormat());
    QTextListFormat list;
    MRVTextListFormat::setLevels(list, {{"%0.", 1, 36, 18}, {"%0)", 2, 72, 18}});
    QTextList *items = cursor.createList(list);
    for (const int level : {0, 1, 1, 0}) {
        MRVTextListFormat::setBlockLevel(*items, cursor.block(), level);
        QTextCharFormat comment;
        comment.setProperty(MRVTextFormat::InspectorCommentProperty, true);
        comment.setProperty(MRVTextFormat::CommentData0, QString("Comment %1").arg(level));
        cursor.insertText("item ");
        cursor.insertText("with", comment);
        cursor.insertText(" comment", QTextCharFormat());
        cursor.insertBlock();
    }
    cursor.setBlockFormat(QTextBlockFormat());
    QTextCharFormat footnote;
    footnote.setProperty(MRVTextFormat::InlineFootnoteProperty, true);
    cursor.insertText("A note", footnote);
    for (const auto position : {QTextFrameFormat::FloatLeft, QTextFrameFormat::FloatRight}) {
        const QString name = QString("picture-%1").arg(position);
        document->addResource(QTextDocument::ImageResource, QUrl(name), filledImage(4, 3, Qt::red));
        QTextImageFormat image;
        image.setName(name);
        image.setProperty(MRVTextFormat::ImageTypeProperty, "JPG");
        cursor.insertImage(image, position);
        cursor.insertImage(image);
    }
    QTextTableFormat wide;
    wide.setColumnWidthConstraints(
        {QTextLength(), QTextLength(QTextLength::FixedLength, 40), QTextLength()});
    QTextTable *table = cursor.insertTable(3, 3, wide);
    table->mergeCells(1, 1, 2, 2);
    table->cellAt(0, 2).firstCursorPosition().insertText("cell");
    QTextCursor inner = table->cellAt(1, 1).firstCursorPosition();
    inner.insertText("merged");
    inner.insertFrame(QTextFrameFormat());
    inner.insertText("framed");
    cursor.movePosition(QTextCursor::End);
    cursor.insertText("last");
}

/// All that can be seen of a document, without the numbers of its objects.
inline QStringList fullDump(const QTextDocument &document)
{
    QStringList lines;
    const QVector<MRVListMarker> markers = mrvListMarkers(document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        format.clearProperty(QTextFormat::ObjectIndex);
        QTextCharFormat own = block.charFormat();
        own.clearProperty(QTextFormat::ObjectIndex);
        QTextCursor cursor(block);
        QString place;
        for (QTextFrame *frame = cursor.currentFrame(); frame; frame = frame->parentFrame()) {
            place += propertyDump(frame->parentFrame() ? frame->frameFormat() : QTextFormat());
        }
        if (QTextTable *table = cursor.currentTable()) {
            const QTextTableCell cell = table->cellAt(block.position());
            place += QString("%1,%2 %3x%4")
                         .arg(cell.row())
                         .arg(cell.column())
                         .arg(cell.rowSpan())
                         .arg(cell.columnSpan());
        }
        lines << place + markers.at(block.blockNumber()).text + propertyDump(format)
                + propertyDump(own);
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QTextCharFormat text = it.fragment().charFormat();
            const QTextObject *object = document.objectForFormat(text);
            lines << it.fragment().text() + (object ? propertyDump(object->format()) : QString());
            text.clearProperty(QTextFormat::ObjectIndex);
            lines << propertyDump(text);
        }
    }
    return lines;
}
