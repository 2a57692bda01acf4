#include "xhtml/mrvdocumenthtml.h"

#include "document/mrvdocumentcopy.h"
#include "document/mrvmarginnotes.h"
#include "text/mrvlistmarkers.h"
#include "text/mrvnestedlists.h"
#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QHash>
#include <QPair>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <memory>

namespace {

constexpr int BorderStyles[] = {
    QTextFormat::FrameBorderStyle,           QTextFormat::TableCellTopBorderStyle,
    QTextFormat::TableCellBottomBorderStyle, QTextFormat::TableCellLeftBorderStyle,
    QTextFormat::TableCellRightBorderStyle,
};

bool isUnknownStyle(const QTextFormat &format, int property)
{
    const int style = format.intProperty(property);
    return style < QTextFrameFormat::BorderStyle_None
        || style > QTextFrameFormat::BorderStyle_Outset;
}

bool hasUnknownStyle(const QTextFormat &format)
{
    return std::any_of(std::begin(BorderStyles), std::end(BorderStyles),
                       [&format](int property) { return isUnknownStyle(format, property); });
}

void clampStyles(QTextFormat *format)
{
    for (int property : BorderStyles) {
        if (isUnknownStyle(*format, property)) {
            format->setProperty(property, int(QTextFrameFormat::BorderStyle_None));
        }
    }
}

bool isHiddenHeading(const QTextBlockFormat &format)
{
    const int level = MRVTextBlockFormat::headingLevel(format);
    return level > 0 && level != format.headingLevel();
}

bool hasRule(const QTextFormat &format)
{
    return format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

bool hasText(const QTextBlock &block)
{
    return block.length() > 1;
}

// Qt writes no empty paragraph after the beginning or the end of a frame, nor the rule in it.
bool isAfterFrameEdge(const QTextBlock &block)
{
    const QChar before = block.document()->characterAt(block.position() - 1);
    return before == QChar(0xfdd0) || before == QChar(0xfdd1);
}

bool isWrongRule(const QTextBlock &block, const QTextFormat &format)
{
    return hasRule(format) && (hasText(block) || isAfterFrameEdge(block));
}

// What of a document QTextDocument::toHtml() would get wrong.
struct Faults
{
    explicit Faults(const QTextDocument &document)
        : inLists(MRVNestedLists::hasLevels(document))
    {
        // Formats, of which a document has far fewer than paragraphs and cells. Some may be out of
        // use, which costs a copy and no more.
        const QVector<QTextFormat> formats = document.allFormats();
        bool rules = false;
        for (const QTextFormat &format : formats) {
            if (format.isBlockFormat()) {
                rules = rules || hasRule(format);
                inBlocks = inBlocks || isHiddenHeading(format.toBlockFormat());
            } else {
                inBorders = inBorders || hasUnknownStyle(format);
            }
        }
        for (QTextBlock block = document.begin(); rules && !inBlocks && block.isValid();
             block = block.next()) {
            inBlocks = isWrongRule(block, formats.at(block.blockFormatIndex()));
        }
    }

    bool any() const { return inLists || inBlocks || inBorders; }

    bool inLists = false; // levels
    bool inBlocks = false;
    bool inBorders = false;
};

// Gives the rule of the cursor's paragraph a paragraph of its own, before it.
void separateRule(QTextCursor *cursor, QTextBlockFormat format)
{
    const QTextBlock block = cursor->block();
    QTextBlockFormat rule;
    rule.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                     format.property(QTextFormat::BlockTrailingHorizontalRulerWidth));
    format.clearProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
    const int position = cursor->position();
    cursor->insertBlock(format, block.charFormat());
    cursor->setPosition(position);
    cursor->setBlockFormat(rule); // a list that the paragraph is in goes on with the text
    cursor->setPosition(position + 1);
}

void mendBlocks(QTextDocument *document)
{
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        cursor.setPosition(block.position());
        if (isHiddenHeading(format)) {
            format.setHeadingLevel(MRVTextBlockFormat::headingLevel(format));
            cursor.setBlockFormat(format);
        }
        const bool isAfterEdge = isAfterFrameEdge(block);
        if (hasRule(format) && hasText(block)) {
            separateRule(&cursor, format);
            block = cursor.block();
            cursor.setPosition(block.previous().position());
        }
        if (hasRule(format) && isAfterEdge) {
            cursor.insertText(QString(QChar::Nbsp)); // gives way to the rule
        }
    }
    cursor.endEditBlock();
}

void mendCells(const QTextTable &table)
{
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            QTextTableCell cell = table.cellAt(row, column);
            QTextCharFormat format = cell.format();
            if (hasUnknownStyle(format)) {
                clampStyles(&format);
                cell.setFormat(format);
            }
        }
    }
}

void mendBorders(const QTextDocument &document)
{
    QList<QTextFrame *> frames{document.rootFrame()};
    while (!frames.isEmpty()) {
        QTextFrame *frame = frames.takeLast();
        frames.append(frame->childFrames());
        QTextFrameFormat format = frame->frameFormat();
        if (hasUnknownStyle(format)) {
            clampStyles(&format);
            frame->setFrameFormat(format);
        }
        if (const auto *table = qobject_cast<QTextTable *>(frame)) {
            mendCells(*table);
        }
    }
}

QString anchorHtml(const QString &name)
{
    return QStringLiteral("<a name=\"%1\"></a>").arg(name.toHtmlEscaped());
}

// What Qt's HTML does not say of a list or of an item, as declarations and attributes.
struct ListTag
{
    QString attributes;
    QString style;
};

QString cssString(const QString &text)
{
    QString escaped;
    for (const QChar c : text) {
        const bool isPlain = c.isLetterOrNumber() || QStringLiteral(" .()[]-*+").contains(c);
        escaped += isPlain || c.unicode() > 0x7f ? QString(c)
                                                 : u'\\' + QString::number(c.unicode(), 16) + u' ';
    }
    return u'\'' + escaped + u'\'';
}

// The tags of lists and of items, in the order in which Qt writes them: that of the paragraphs.
class ListTags
{
public:
    // Written is the document itself, or a copy in which the levels of lists are nested.
    ListTags(const QTextDocument &document, const QTextDocument &written)
    {
        for (QTextBlock block = written.begin(); block.isValid(); block = block.next()) {
            const QTextList *list = block.textList();
            if (list && list->item(0) == block) {
                addList(list->format(), block.textDirection(), &document != &written);
            }
        }
        QHash<QPair<const QTextList *, int>, Look> looks;
        MRVListCounter counter;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            if (const QTextList *list = block.textList()) {
                const int level = mrvListLevel(*list, block);
                auto look = looks.find({list, level});
                if (look == looks.end()) {
                    look = looks.insert({list, level}, lookOf(list->format(), level));
                }
                addItem(*look, counter.next(look->format, list->objectIndex(), level));
            }
        }
    }

    bool any() const { return m_any; }
    ListTag takeList() { return m_lists.value(m_list++); }
    ListTag takeItem() { return m_items.value(m_item++); }

private:
    struct Look
    {
        QTextListFormat format;
        MRVTextListLevel level;
        bool isUsual; // as HTML shows items of the style, from 1 on
    };

    static Look lookOf(const QTextListFormat &format, int level)
    {
        const QTextListFormat::Style style = MRVTextListFormat::shownStyle(format, level);
        QTextListFormat plain;
        plain.setStyle(style);
        const MRVTextListLevel usual = MRVTextListFormat::shownLevel(plain, 0);
        const MRVTextListLevel shown = MRVTextListFormat::shownLevel(format, level);
        // XHTML 1.1 has no attribute for the start, and some browsers not its declaration in CSS.
        const bool begins = level == 0 && hasStart(format);
        return {format, shown,
                !begins && shown.text == usual.text && shown.numberStyle == usual.numberStyle};
    }

    static bool hasStart(const QTextListFormat &format)
    {
        return format.hasProperty(MRVTextFormat::ListStartProperty)
            && format.intProperty(MRVTextFormat::ListStartProperty) != 1
            && MRVTextListFormat::qtStyle(format) <= QTextListFormat::ListDecimal;
    }

    // Browsers draw circles in a list within a list, where nobody tells them what to draw. Qt draws
    // discs, but as its HTML has always been, only lists that had levels are told.
    void addList(const QTextListFormat &format, Qt::LayoutDirection direction, bool areDiscsTold)
    {
        ListTag tag;
        const QTextListFormat::Style style = MRVTextListFormat::qtStyle(format);
        if (hasStart(format)) {
            tag.attributes = QStringLiteral(" start=\"%1\"")
                                 .arg(format.intProperty(MRVTextFormat::ListStartProperty));
        }
        if (direction == Qt::RightToLeft) { // or the markers stand outside of the page
            tag.attributes += QLatin1String(" dir=\"rtl\"");
        }
        if (style == QTextListFormat::ListStyleUndefined) {
            tag.style = QStringLiteral("list-style-type: none; ");
        } else if (areDiscsTold && style == QTextListFormat::ListDisc && format.indent() > 1) {
            tag.style = QStringLiteral("list-style-type: disc; ");
        }
        append(&m_lists, tag);
    }

    // Browsers that know no texts here go on with the type of the list.
    void addItem(const Look &look, int number)
    {
        ListTag tag;
        if (!look.isUsual) {
            const QString marker = mrvListMarkerText(look.level, number);
            tag.style =
                QStringLiteral("list-style-type: %1; ")
                    .arg(marker.isEmpty() ? QStringLiteral("none") : cssString(marker + u' '));
        }
        append(&m_items, tag);
    }

    void append(QVector<ListTag> *tags, const ListTag &tag)
    {
        m_any = m_any || !tag.attributes.isEmpty() || !tag.style.isEmpty();
        tags->append(tag);
    }

    QVector<ListTag> m_lists;
    QVector<ListTag> m_items;
    int m_list = 0;
    int m_item = 0;
    bool m_any = false;
};

QString withListTags(const QString &html, const QTextDocument &document,
                     const QTextDocument &written)
{
    ListTags tags(document, written);
    if (!tags.any()) {
        return html;
    }
    static const QRegularExpression opening(
        QStringLiteral("<(?:(ol|ul)|li)(?=[ >])(?:[^>\"']|\"[^\"]*\"|'[^']*')*?(?= style=\"| ?>)"));
    QString whole;
    int done = 0;
    QRegularExpressionMatchIterator it = opening.globalMatch(html);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        const ListTag tag = match.capturedLength(1) > 0 ? tags.takeList() : tags.takeItem();
        whole += html.midRef(done, match.capturedEnd() - done);
        whole += tag.attributes;
        done = match.capturedEnd();
        const QLatin1String style(" style=\"");
        if (html.midRef(done).startsWith(style) && !tag.style.isEmpty()) {
            whole += style + tag.style;
            done += style.size();
        }
    }
    return whole + html.midRef(done);
}

// Of the names of an anchor, Qt writes the first one.
QString withAllNames(const QString &html, const QTextDocument &document)
{
    QHash<QString, QString> others; // by the first name, both as HTML
    QSet<QPair<QString, QString>> known;
    const QVector<QTextFormat> formats = document.allFormats();
    for (const QTextFormat &format : formats) {
        const QStringList names = format.toCharFormat().anchorNames();
        for (int i = 1; i < names.size(); ++i) {
            // A document keeps formats that its text no longer has.
            const QPair<QString, QString> pair(names.constFirst(), names.at(i));
            if (!known.contains(pair)) {
                known.insert(pair);
                others[anchorHtml(pair.first)] += anchorHtml(pair.second);
            }
        }
    }
    if (others.isEmpty()) {
        return html;
    }
    QString whole;
    int done = 0;
    for (int at = html.indexOf(QLatin1String("<a name=")); at >= 0;
         at = html.indexOf(QLatin1String("<a name="), done)) {
        const int end = html.indexOf(QLatin1String("</a>"), at) + 4;
        const QString anchor = html.mid(at, end - at);
        whole += html.midRef(done, end - done);
        whole += others.take(anchor);
        done = end;
    }
    return whole + html.midRef(done);
}

// Qt writes a tag for each stretch of text that has a link.
QString withLinkTitles(const QString &html, const QTextDocument &written)
{
    const QVector<QTextFormat> formats = written.allFormats();
    if (std::none_of(formats.begin(), formats.end(), [](const QTextFormat &format) {
            return format.hasProperty(QTextFormat::TextToolTip);
        })) {
        return html;
    }
    QStringList titles; // as attributes
    for (QTextBlock block = written.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (format.isAnchor() && !format.anchorHref().isEmpty()) {
                const QString title = format.toolTip().toHtmlEscaped();
                titles.append(title.isEmpty() ? title : QStringLiteral(" title=\"%1\"").arg(title));
            }
        }
    }
    const QLatin1String tag("<a href=");
    QString whole;
    int done = html.indexOf(QLatin1String("<body"));
    whole += html.leftRef(done);
    int link = 0;
    for (int at = html.indexOf(tag, done); at >= 0; at = html.indexOf(tag, done)) {
        const int end = html.indexOf(u'>', at);
        whole += html.midRef(done, end - done);
        whole += titles.value(link++);
        done = end;
    }
    return whole + html.midRef(done);
}

// Qt writes it as it is.
QString withTitle(QString html, const QTextDocument &written)
{
    const QString title = written.metaInformation(QTextDocument::DocumentTitle);
    const QString tags = QStringLiteral("<title>%1</title>");
    const int at = html.indexOf(tags.arg(title));
    return at < 0 ? html
                  : html.replace(at, tags.arg(title).size(), tags.arg(title.toHtmlEscaped()));
}

QString htmlOf(const QTextDocument &document, const QTextDocument &written)
{
    const QString html =
        withListTags(withTitle(written.toHtml("utf-8"), written), document, written);
    return withAllNames(withLinkTitles(html, written), document);
}

} // namespace

QString mrvDocumentHtml(const QTextDocument &source)
{
    const std::unique_ptr<QTextDocument> withNotes =
        MRVMarginNotes::copyWithParagraphs(source, MRVMarginNote::Footnote);
    const QTextDocument &document = withNotes ? *withNotes : source;
    const Faults faults(document);
    if (!faults.any()) {
        return htmlOf(document, document);
    }
    const std::unique_ptr<QTextDocument> copy = mrvDocumentCopy(document);
    MRVNestedLists::fromLevels(copy.get());
    if (faults.inBlocks) {
        mendBlocks(copy.get());
    }
    if (faults.inBorders) {
        mendBorders(*copy);
    }
    return htmlOf(document, *copy);
}
