#include "text/mrvreplacetext.h"

#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QVector>

namespace {

// A part of a text by offsets, and its format.
struct Piece
{
    int from;
    int to;
    QTextCharFormat format;
};

constexpr ushort BeginningOfFrame = 0xfdd0;
constexpr ushort EndOfFrame = 0xfdd1;

// As Qt does when it inserts text, so that lengths can be compared beforehand.
QString withParagraphSeparators(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &character : text) {
        if (character == QLatin1Char('\n') || character == QLatin1Char('\r')
            || character == QChar(BeginningOfFrame) || character == QChar(EndOfFrame)) {
            character = QChar::ParagraphSeparator;
        }
    }
    return text;
}

// Without the properties that make a character an object of the document.
QTextCharFormat textFormat(QTextCharFormat format)
{
    if (format.isImageFormat()) {
        for (int property :
             {int(QTextFormat::ImageName), int(QTextFormat::ImageTitle),
              int(QTextFormat::ImageAltText), int(QTextFormat::ImageWidth),
              int(QTextFormat::ImageHeight), int(QTextFormat::ImageQuality),
              int(MRVTextFormat::ImageLinkProperty), int(MRVTextFormat::ImageRawDataProperty),
              int(MRVTextFormat::ImageTypeProperty), int(MRVTextFormat::ImageNameProperty)}) {
            format.clearProperty(property);
        }
    }
    for (int property : {QTextFormat::ObjectType, QTextFormat::ObjectIndex}) {
        if (format.hasProperty(property)) {
            format.clearProperty(property);
        }
    }
    return format;
}

// The format for text that replaces the character at a position.
QTextCharFormat formatAt(QTextDocument *document, int position)
{
    const QChar character = document->characterAt(position);
    // Qt reports the format of a paragraph end as that of the paragraph after it.
    if (character == QChar::ParagraphSeparator) {
        return textFormat(document->findBlock(position + 1).charFormat());
    }
    QTextCursor cursor(document);
    cursor.setPosition(MRVTextFormat::hasFrameInString(character) ? position : position + 1);
    return textFormat(cursor.charFormat());
}

// The formats of the characters of a selection, asked for in ascending order.
class Formats
{
public:
    Formats(QTextDocument *document, int start, int length)
        : m_document(document)
        , m_start(start)
    {
        const int end = start + length;
        const QTextBlock last = document->findBlock(end);
        const int spanned = last.position() + last.length() - document->findBlock(start).position();
        // Walking the fragments of all its paragraphs would cost too much for a word in a huge one.
        if (length >= spanned / 8) {
            collect(end);
        }
    }

    QTextCharFormat at(int offset)
    {
        while (m_current < m_runs.size() && m_runs.at(m_current).to <= offset) {
            ++m_current;
        }
        return m_current < m_runs.size() ? m_runs.at(m_current).format
                                         : formatAt(m_document, m_start + offset);
    }

private:
    void collect(int end)
    {
        for (QTextBlock block = m_document->findBlock(m_start);
             block.isValid() && block.position() < end; block = block.next()) {
            for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment run = it.fragment();
                append(run.position() + run.length(), textFormat(run.charFormat()));
            }
            append(block.position() + block.length(), textFormat(block.next().charFormat()));
        }
    }

    void append(int end, const QTextCharFormat &format)
    {
        const int from = m_runs.isEmpty() ? 0 : m_runs.last().to;
        m_runs.append({from, end - m_start, format});
    }

    QTextDocument *m_document;
    int m_start;
    QVector<Piece> m_runs; ///< none where they were not collected
    int m_current = 0;
};

// The parts of two texts of the same length that differ, in order. Each ends where the format does.
QVector<Piece> differences(Formats *formats, const QString &old, const QString &text)
{
    const auto differs = [&](int i) { return old.at(i) != text.at(i); };
    const auto isSecondHalf = [&](int i) {
        return i > 0 && i < text.size()
            && (old.at(i).isLowSurrogate() || text.at(i).isLowSurrogate());
    };
    QVector<Piece> pieces;
    for (int i = 0; i < text.size(); ++i) {
        if (!differs(i) && !(isSecondHalf(i) && differs(i - 1))
            && !(isSecondHalf(i + 1) && differs(i + 1))) {
            continue;
        }
        const bool adjoins = !pieces.isEmpty() && pieces.last().to == i;
        if (adjoins && text.at(i).isLowSurrogate()) {
            pieces.last().to = i + 1;
            continue;
        }
        const QTextCharFormat format = formats->at(i);
        if (adjoins && pieces.last().format == format) {
            pieces.last().to = i + 1;
        } else {
            pieces.append({i, i + 1, format});
        }
    }
    return pieces;
}

void replaceInPlace(QTextCursor &cursor, int start, const QString &old, const QString &text)
{
    Formats formats(cursor.document(), start, old.size());
    const QVector<Piece> pieces = differences(&formats, old, text);
    // From the last to the first, so that the positions of the others stay valid.
    for (auto piece = pieces.crbegin(); piece != pieces.crend(); ++piece) {
        cursor.setPosition(start + piece->from);
        cursor.setPosition(start + piece->to, QTextCursor::KeepAnchor);
        cursor.insertText(text.mid(piece->from, piece->to - piece->from), piece->format);
    }
}

void replaceMiddle(QTextCursor &cursor, int start, const QString &old, const QString &text)
{
    const int shorter = qMin(old.size(), text.size());
    int head = 0;
    while (head < shorter && old.at(head) == text.at(head)) {
        ++head;
    }
    if (head > 0 && old.at(head - 1).isHighSurrogate()) {
        --head;
    }
    int tail = 0;
    while (tail < shorter - head
           && old.at(old.size() - 1 - tail) == text.at(text.size() - 1 - tail)) {
        ++tail;
    }
    if (tail > 0 && old.at(old.size() - tail).isLowSurrogate()) {
        --tail;
    }
    const int oldLength = old.size() - head - tail;
    const int source = oldLength == 0 && head > 0 ? head - 1 : head;
    const QTextCharFormat format = formatAt(cursor.document(), start + source);
    cursor.setPosition(start + head);
    cursor.setPosition(start + head + oldLength, QTextCursor::KeepAnchor);
    cursor.insertText(text.mid(head, text.size() - head - tail), format);
}

} // namespace

void mrvReplaceText(QTextCursor &cursor, const QString &newText)
{
    if (cursor.isNull()) {
        return;
    }
    const QString text = withParagraphSeparators(newText);
    if (!cursor.hasSelection()) {
        cursor.insertText(text, textFormat(cursor.charFormat()));
        return;
    }
    const int start = cursor.selectionStart();
    const QString old = cursor.selectedText();
    // For selected cells Qt returns the texts without what separates them, so lengths mean nothing
    // there.
    const bool isWhole = cursor.hasComplexSelection() || old.size() != cursor.selectionEnd() - start
        || MRVTextFormat::hasFrameInString(old);
    if (isWhole) {
        const QTextCharFormat format = formatAt(cursor.document(), start);
        cursor.insertText(text, format);
        return;
    }
    if (old != text) {
        cursor.beginEditBlock();
        if (old.size() == text.size()) {
            replaceInPlace(cursor, start, old, text);
        } else {
            replaceMiddle(cursor, start, old, text);
        }
        cursor.endEditBlock();
    }
    cursor.setPosition(start + text.size());
}
