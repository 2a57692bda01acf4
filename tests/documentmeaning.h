#pragma once

#include "document/mrvdocumentflow.h"
#include "text/mrvlistmarkers.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>

/// What plain forms of text can say of the format of a character.
inline QString characterMeaning(const QTextCharFormat &format, bool isHeading)
{
    const bool isLink = !format.anchorHref().isEmpty();
    const auto alignment = format.verticalAlignment();
    QString meaning;
    meaning += format.fontWeight() >= QFont::Bold && !isHeading ? "b" : "";
    meaning += format.fontItalic() ? "i" : "";
    meaning += format.fontStrikeOut() ? "s" : "";
    meaning += format.fontUnderline() && !isLink ? "u" : "";
    meaning += alignment == QTextCharFormat::AlignSuperScript ? "^" : "";
    meaning += alignment == QTextCharFormat::AlignSubScript ? "_" : "";
    meaning += format.fontCapitalization() == QFont::SmallCaps ? "c" : "";
    meaning += format.fontFamily() == "monospace" ? "m" : "";
    if (isLink) {
        const QByteArray address = QByteArray::fromPercentEncoding(format.anchorHref().toUtf8());
        meaning += "<" + QString::fromUtf8(address) + "|" + format.toolTip().simplified() + ">";
    }
    if (format.isImageFormat()) {
        const QString name = format.toImageFormat().name();
        meaning += "!" + QString::fromUtf8(QByteArray::fromPercentEncoding(name.toUtf8())) + "|"
            + format.stringProperty(QTextFormat::ImageAltText) + "|"
            + format.stringProperty(QTextFormat::ImageTitle) + "|"
            + QString::number(format.toImageFormat().width());
    }
    if (format.boolProperty(MRVTextFormat::InspectorCommentProperty)) {
        meaning += "{" + format.stringProperty(MRVTextFormat::CommentData0) + "}";
    }
    return meaning;
}

/// A document as plain forms of text can say it, a line a paragraph: what it is, its text, and the
/// formats of what is not blank. Blanks in a row are one.
inline QStringList documentMeaning(const QTextDocument &document)
{
    QStringList lines;
    const QVector<MRVListMarker> markers = mrvListMarkers(document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        const MRVListMarker marker = markers.at(block.blockNumber());
        const int level = MRVTextBlockFormat::headingLevel(format);
        const QTextTable *table = QTextCursor(block).currentTable();
        const bool isHeader =
            table && table->cellAt(block.position()).row() < table->format().headerRowCount();
        QString line;
        line += level > 0 ? QString("h%1 ").arg(level) : QString();
        line += QString(format.intProperty(QTextFormat::BlockQuoteLevel), '>');
        line += QString(format.indent(), ' ');
        line += format.nonBreakableLines() ? "code " : "";
        line += format.stringProperty(QTextFormat::BlockCodeLanguage);
        line += marker.level < 0 ? QString() : marker.text + QString::number(int(format.marker()));
        line += table ? "|" : "";
        line += format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth) ? "---" : "";
        QString last;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat own = it.fragment().charFormat();
            const QString meaning = characterMeaning(own, level > 0 || isHeader);
            const QString text = it.fragment().text();
            for (const QChar c : text) {
                const bool isBlank = c.isSpace();
                if (!isBlank && meaning != last) {
                    line += "[" + meaning + "]";
                    last = meaning;
                }
                const bool isKept = format.nonBreakableLines() || c != ' ' || !line.endsWith(' ');
                line += isKept ? QString(c) : QString();
            }
        }
        while (line.endsWith(' ')) {
            line.chop(1);
        }
        lines << line;
    }
    return lines;
}
