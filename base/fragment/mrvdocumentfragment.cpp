#include "fragment/mrvdocumentfragment.h"

#include "fragment/mrvfragmentformat_p.h"
#include "fragment/mrvlaidoutformat.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"
#include "input/mrvguardeddocument.h"
#include "textformat/mrvformatspread.h"

#include <QCryptographicHash>
#include <QPixmap>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

namespace {

constexpr QChar BeginningOfFrame(0xfdd0); // Qt names it in private headers only

// A picture of a document, encoded; without bytes where it has none that can be read.
MRVFragmentPicture pictureOf(const QTextDocument &document, const QString &name)
{
    MRVFragmentPicture picture;
    picture.name = name;
    const QVariant source = MRVGuardedDocument::pictureSource(document, QUrl(name));
    const int type = source.userType();
    if (type == QMetaType::QImage || type == QMetaType::QPixmap) {
        picture.isImage = true;
        picture.bytes =
            MRVGuiUtil::toByteArray(MRVGuardedDocument::picture(document, QUrl(name)), "PNG");
    } else if (type == QMetaType::QUrl) {
        picture.bytes = MRVPictureReader::ofFile(source.toUrl().toLocalFile()).bytes();
    } else {
        picture.bytes = source.toByteArray();
    }
    if (!MRVPictureReader(picture.bytes).isReadable()) {
        picture.bytes.clear();
    }
    return picture;
}

/** Makes a fragment of a part of a document. */
class Collector
{
public:
    Collector(const QTextCursor &cursor, MRVDocumentFragment::Pictures pictures)
        : m_cursor(cursor)
        , m_document(*cursor.document())
        , m_hasPictures(pictures == MRVDocumentFragment::WithPictures)
    {
    }

    MRVDocumentFragment collect()
    {
        if (m_cursor.hasComplexSelection()) {
            int row = 0;
            int rows = 0;
            int column = 0;
            int columns = 0;
            m_cursor.selectedTableCells(&row, &rows, &column, &columns);
            MRVFragmentParagraph around = emptyParagraph();
            m_fragment.flow.append(around);
            around.frame = addTable(m_cursor.currentTable(), row, rows, column, columns);
            m_fragment.flow.append(around);
        } else {
            collectSelection();
        }
        return m_fragment;
    }

private:
    void collectSelection()
    {
        int start = m_cursor.selectionStart();
        const int end = m_cursor.selectionEnd();
        QTextFrame *first = frameAt(start);
        const QTextFrame *last = frameAt(end);
        QSet<const QTextFrame *> around;
        for (const QTextFrame *frame = last; frame; frame = frame->parentFrame()) {
            around.insert(frame);
        }
        while (!around.contains(first)) {
            start = first->firstPosition() - 1;
            first = first->parentFrame();
        }
        m_fragment.isFromStart = start == m_document.findBlock(start).position();
        m_fragment.flow = flow(start, end, first);
    }

    MRVFragmentParagraph emptyParagraph()
    {
        MRVFragmentParagraph result;
        result.blockFormat = add(QTextBlockFormat());
        result.charFormat = add(QTextCharFormat());
        return result;
    }

    QTextFrame *frameAt(int position) const
    {
        QTextCursor cursor(m_cursor);
        cursor.setPosition(position);
        return cursor.currentFrame();
    }

    MRVFragmentFlow flow(int start, int end, const QTextFrame *frame)
    {
        MRVFragmentFlow result;
        int before = -1;
        for (QTextBlock block = m_document.findBlock(start); block.isValid();) {
            result.append(paragraph(block, start, end));
            result.last().frame = before;
            before = -1;
            int next = block.position() + block.length();
            if (next > end) {
                break;
            }
            // To find a frame takes time linear in their number, so this asks for its mark first.
            if (m_document.characterAt(next - 1) == BeginningOfFrame) {
                QTextFrame *inner = frameAt(next);
                while (inner->parentFrame() != frame) {
                    inner = inner->parentFrame();
                }
                before = addFrame(inner);
                next = inner->lastPosition() + 1;
            }
            block = m_document.findBlock(next);
        }
        return result;
    }

    MRVFragmentParagraph paragraph(const QTextBlock &block, int start, int end)
    {
        MRVFragmentParagraph result;
        result.blockFormat = add(block.blockFormatIndex(), block.blockFormat());
        result.charFormat = add(block.charFormatIndex(), block.charFormat());
        if (QTextList *list = block.textList()) {
            if (!m_lists.contains(list)) {
                m_lists.insert(list, m_fragment.lists.size());
                m_fragment.lists.append(add(list->format()));
            }
            result.list = m_lists.value(list);
        }
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment text = it.fragment();
            const int from = qMax(start, text.position());
            const int to = qMin(end, text.position() + text.length());
            if (from < to) {
                const int format = add(text.charFormatIndex(), text.charFormat());
                result.texts.append({text.text().mid(from - text.position(), to - from), format});
            }
        }
        return result;
    }

    int addFrame(QTextFrame *frame)
    {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            return addTable(table, 0, table->rows(), 0, table->columns());
        }
        MRVFragmentCell inside;
        inside.format = add(QTextCharFormat());
        inside.flow = flow(frame->firstPosition(), frame->lastPosition(), frame);
        m_fragment.frames.append({false, add(frame->frameFormat()), 1, 1, {inside}});
        return m_fragment.frames.size() - 1;
    }

    int addTable(const QTextTable *table, int row, int rows, int column, int columns)
    {
        QTextTableFormat format = table->format();
        format.setColumns(columns);
        const QVector<QTextLength> widths = format.columnWidthConstraints();
        if (!widths.isEmpty()) {
            format.setColumnWidthConstraints(widths.mid(column, columns));
        }
        MRVFragmentFrame result{true, add(format), rows, columns, {}};
        for (int r = row; r < row + rows; ++r) {
            for (int c = column; c < column + columns; ++c) {
                const QTextTableCell cell = table->cellAt(r, c);
                // Of one that begins outside, only its places are selected, and not its text.
                if (qMax(cell.row(), row) == r && qMax(cell.column(), column) == c) {
                    const int bottom = qMin(cell.row() + cell.rowSpan(), row + rows);
                    const int right = qMin(cell.column() + cell.columnSpan(), column + columns);
                    const bool isSelected = cell.row() == r && cell.column() == c;
                    result.cells.append(
                        {r - row, c - column, bottom - r, right - c, add(cellFormat(cell)),
                         isSelected ? flow(cell.firstPosition(), cell.lastPosition(), table)
                                    : MRVFragmentFlow{emptyParagraph()}});
                }
            }
        }
        m_fragment.frames.append(result);
        return m_fragment.frames.size() - 1;
    }

    static QTextCharFormat cellFormat(const QTextTableCell &cell)
    {
        QTextCharFormat format = cell.format();
        format.clearProperty(QTextFormat::TableCellRowSpan);
        format.clearProperty(QTextFormat::TableCellColumnSpan);
        return format;
    }

    // A format of the document, by its number there.
    int add(int number, const QTextFormat &format)
    {
        auto known = m_known.constFind(number);
        if (known == m_known.constEnd()) {
            known = m_known.insert(number, add(format));
        }
        return *known;
    }

    int add(QTextFormat format)
    {
        if (format.isImageFormat()) {
            addPicture(format.toImageFormat());
            // Text flows around a picture whose place is that of a frame without text.
            if (const QTextObject *object = m_document.object(format.objectIndex())) {
                format.setProperty(QTextFormat::CssFloat,
                                   object->format().toFrameFormat().position());
            }
        }
        format.clearProperty(QTextFormat::ObjectIndex);
        format = mrvLaidOutFormat(format);
        // Formats of a document that differ in the numbers of objects only are one here.
        const QByteArray stored = QByteArray::number(format.type()) + mrvStoredFormat(format);
        const QByteArray digest = QCryptographicHash::hash(stored, QCryptographicHash::Sha256);
        const auto known = m_numbers.constFind(digest);
        if (known != m_numbers.constEnd()) {
            return *known;
        }
        m_fragment.formats.append(format);
        return *m_numbers.insert(digest, m_fragment.formats.size() - 1);
    }

    void addPicture(const QTextImageFormat &format)
    {
        if (!m_hasPictures || m_pictures.contains(format.name())) {
            return;
        }
        m_pictures.insert(format.name());
        const MRVFragmentPicture picture = pictureOf(m_document, format.name());
        if (!picture.bytes.isEmpty()) {
            m_fragment.pictures.append(picture);
        }
    }

    const QTextCursor &m_cursor;
    const QTextDocument &m_document;
    const bool m_hasPictures;
    MRVDocumentFragment m_fragment;
    QHash<int, int> m_known; // formats by their number in the document
    QHash<QByteArray, int> m_numbers; // formats by a digest of their stored form
    QHash<const QTextList *, int> m_lists;
    QSet<QString> m_pictures;
};

/** Puts a fragment into a document. */
class Inserter
{
public:
    Inserter(const MRVDocumentFragment &fragment, QTextCursor *cursor)
        : m_fragment(fragment)
        , m_formats(fragment.formats)
        , m_lists(fragment.lists.size())
        , m_cursor(*cursor)
    {
        for (QTextFormat &format : m_formats) {
            if (format.isCharFormat()) {
                MRVFormatSpread::update(&format);
            }
        }
    }

    void insert()
    {
        m_cursor.beginEditBlock();
        m_cursor.removeSelectedText();
        addPictures();
        joinList();
        const bool isEmpty = m_cursor.block().length() == 1;
        const bool isWhole = m_fragment.isFromStart && m_fragment.flow.size() > 1;
        insertFlow(&m_cursor, m_fragment.flow, isEmpty || (isWhole && m_cursor.atBlockStart()));
        m_cursor.endEditBlock();
    }

private:
    void addPictures()
    {
        QTextDocument *document = m_cursor.document();
        QHash<QString, QString> names;
        for (const MRVFragmentPicture &picture : m_fragment.pictures) {
            QString name = picture.name;
            MRVFragmentPicture present = pictureOf(*document, name);
            for (int i = 2; !present.bytes.isEmpty() && present.bytes != picture.bytes; ++i) {
                name = picture.name + QLatin1Char('-') + QString::number(i);
                present = pictureOf(*document, name);
            }
            if (present.bytes.isEmpty()) {
                const MRVPictureReader reader(picture.bytes);
                document->addResource(QTextDocument::ImageResource, QUrl(name),
                                      picture.isImage ? QVariant(reader.read())
                                                      : QVariant(reader.bytes()));
            }
            names.insert(picture.name, name);
        }
        for (QTextFormat &format : m_formats) {
            const QString name = format.stringProperty(QTextFormat::ImageName);
            if (format.isImageFormat() && names.value(name, name) != name) {
                format.setProperty(QTextFormat::ImageName, names.value(name));
            }
        }
    }

    // A list that looks like the one at the cursor is that one.
    void joinList()
    {
        QTextList *list = m_cursor.currentList();
        for (int i = 0; list && i < m_lists.size(); ++i) {
            if (m_formats.at(m_fragment.lists.at(i)).toListFormat() == list->format()) {
                m_lists[i] = list;
                return;
            }
        }
    }

    void insertFlow(QTextCursor *cursor, const MRVFragmentFlow &flow, bool isFirstApplied)
    {
        const QTextBlockFormat block = cursor->blockFormat();
        const QTextCharFormat character = withSpansOf(QTextCharFormat(), cursor->blockCharFormat());
        for (int i = 0; i < flow.size(); ++i) {
            const MRVFragmentParagraph &paragraph = flow.at(i);
            if (paragraph.frame >= 0) {
                insertFrame(cursor, m_fragment.frames.at(paragraph.frame));
            } else if (i > 0) {
                cursor->insertBlock(block, character);
            }
            // After the last one stands what followed the cursor.
            const bool isRest =
                i > 0 && i + 1 == flow.size() && paragraph.texts.isEmpty() && !cursor->atBlockEnd();
            if (!isRest && (i > 0 || isFirstApplied)) {
                format(cursor, paragraph);
            }
            for (const MRVFragmentText &text : paragraph.texts) {
                insertText(cursor, text);
            }
        }
    }

    // The first paragraph of a cell has the cell's format. Spans that do not fit the table would
    // have Qt's layout write beyond its memory.
    static QTextCharFormat withSpansOf(const QTextCharFormat &cell, QTextCharFormat format)
    {
        for (int span : {QTextFormat::TableCellRowSpan, QTextFormat::TableCellColumnSpan}) {
            format.setProperty(span, cell.property(span)); // clears it where the cell has none
        }
        return format;
    }

    void format(QTextCursor *cursor, const MRVFragmentParagraph &paragraph)
    {
        cursor->setBlockFormat(m_formats.at(paragraph.blockFormat).toBlockFormat());
        cursor->setBlockCharFormat(withSpansOf(cursor->blockCharFormat(),
                                               m_formats.at(paragraph.charFormat).toCharFormat()));
        if (paragraph.list >= 0) {
            QTextList *&list = m_lists[paragraph.list];
            if (list) {
                list->add(cursor->block());
            } else {
                list = cursor->createList(
                    m_formats.at(m_fragment.lists.at(paragraph.list)).toListFormat());
            }
        }
    }

    void insertText(QTextCursor *cursor, const MRVFragmentText &text)
    {
        QTextCharFormat format = m_formats.at(text.format).toCharFormat();
        const int position = format.intProperty(QTextFormat::CssFloat);
        const bool isFloat =
            position == QTextFrameFormat::FloatLeft || position == QTextFrameFormat::FloatRight;
        if (format.isImageFormat() && isFloat) {
            format.clearProperty(QTextFormat::CssFloat); // its frame has it
            cursor->insertImage(format.toImageFormat(), QTextFrameFormat::Position(position));
        } else {
            cursor->insertText(text.text, format);
        }
    }

    void insertFrame(QTextCursor *cursor, const MRVFragmentFrame &frame)
    {
        const QTextFrameFormat format = m_formats.at(frame.format).toFrameFormat();
        if (!frame.isTable) {
            const QTextFrame *inserted = cursor->insertFrame(format);
            insertFlow(cursor, frame.cells.constFirst().flow, true);
            cursor->setPosition(inserted->lastPosition() + 1);
            return;
        }
        QTextTable *table = cursor->insertTable(frame.rows, frame.columns, format.toTableFormat());
        for (const MRVFragmentCell &cell : frame.cells) {
            if (cell.rowSpan > 1 || cell.columnSpan > 1) {
                table->mergeCells(cell.row, cell.column, cell.rowSpan, cell.columnSpan);
            }
            QTextTableCell inserted = table->cellAt(cell.row, cell.column);
            QTextCharFormat own = m_formats.at(cell.format).toCharFormat();
            own.setTableCellRowSpan(inserted.rowSpan());
            own.setTableCellColumnSpan(inserted.columnSpan());
            inserted.setFormat(own);
            QTextCursor inside = inserted.firstCursorPosition();
            insertFlow(&inside, cell.flow, true);
        }
        cursor->setPosition(table->lastPosition() + 1);
    }

    const MRVDocumentFragment &m_fragment;
    QVector<QTextFormat> m_formats;
    QVector<QTextList *> m_lists; // once they are in the document
    QTextCursor &m_cursor;
};

} // namespace

MRVDocumentFragment MRVDocumentFragment::fromCursor(const QTextCursor &cursor, Pictures pictures)
{
    return Collector(cursor, pictures).collect();
}

void MRVDocumentFragment::insert(QTextCursor *cursor) const
{
    Inserter(*this, cursor).insert();
}
