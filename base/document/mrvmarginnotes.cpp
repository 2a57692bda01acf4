#include "document/mrvmarginnotes.h"

#include "document/mrvmarginnotereader_p.h"
#include "document/mtextdocsweep_p.h"
#include "text/mrvtextcursor.h"
#include "textformat/mrvtextformat.h"

#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVariant>

namespace {

using Reader = MRVMarginNoteReader;

// Of documents, as a dynamic property: the revision after the last change of a note's text, and
// which note that was.
constexpr char LastChange[] = "_mrv_lastMarginNoteChange";

bool hasNote(const QTextBlock::iterator &fragment)
{
    return Reader::kindOf(fragment.fragment().charFormat()) != MRVMarginNote::None;
}

// The paragraphs that the notes of a paragraph may reach. Text without a note at the edge of a
// paragraph ends them all.
MRVTextRange reachOf(const QTextBlock &block)
{
    const auto isEmpty = [](const QTextBlock &other) { return other.begin() == other.end(); };
    QTextBlock first = block;
    while (first.previous().isValid() && (isEmpty(first) || hasNote(first.begin()))) {
        first = first.previous();
    }
    QTextBlock last = block;
    while (last.next().isValid() && (isEmpty(last) || hasNote(--last.end()))) {
        last = last.next();
    }
    return MRVTextRange(first.position(), last.position() + last.length());
}

Reader::Entry entryAround(const QTextCursor &cursor)
{
    if (cursor.isNull()) {
        return Reader::Entry();
    }
    const int position = cursor.selectionStart();
    const QTextBlock block = cursor.document()->findBlock(position);
    Reader reader(*cursor.document());
    reader.read(reachOf(block));
    int found = -1;
    for (const Reader::Piece &piece : reader.pieces()) {
        const bool isBefore = piece.range.end() == position && position > block.position();
        if (isBefore || (piece.range.start() <= position && position < piece.range.end())) {
            found = piece.entry;
        }
    }
    return found < 0 ? Reader::Entry() : reader.entries().at(found);
}

// Changes the formats of a note's text. Other notes may lie between its pieces.
void changeNote(QTextDocument *document, const Reader::Entry &entry, const MrvSweep::Change &change)
{
    MrvSweep::changeRanges(document, {entry.note.range}, [&](const QTextCharFormat &format) {
        return Reader::isSameNote(format, entry.format) ? change(format) : format;
    });
}

QString normalised(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const QChar end :
         {QChar(u'\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)}) {
        text.replace(end, u'\n');
    }
    return text;
}

// Also unlike those of text that an undo may bring back. Numbers go on from the highest id, unless
// that is close to the end of what can be counted.
QString freshId(const QTextDocument &document)
{
    constexpr qint64 Highest = 1000000000000000000;
    qint64 last = 0;
    QSet<QString> known;
    const QVector<QTextFormat> formats = document.allFormats();
    for (const QTextFormat &format : formats) {
        const QString id = format.property(MRVTextFormat::CommentData1).toString();
        const qint64 number = id.toLongLong();
        last = number < Highest ? qMax(last, number) : last;
        known.insert(id);
    }
    QString id;
    do {
        id = QString::number(++last);
    } while (known.contains(id));
    return id;
}

// Selects the word that the cursor is in or beside, else the character before it.
void selectText(QTextCursor *cursor)
{
    cursor->select(QTextCursor::WordUnderCursor);
    if (!cursor->hasSelection() && !cursor->atBlockStart()) {
        cursor->movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    }
}

// What a note is to be about. Blanks at the cursor give way to the text before them.
QVector<MRVTextRange> textFor(QTextCursor cursor)
{
    if (cursor.hasSelection()) {
        return MRVTextCursor::selectedRanges(cursor);
    }
    QTextCursor text = cursor;
    selectText(&text);
    if (text.selectedText().trimmed().isEmpty()) {
        const QTextDocument &document = *cursor.document();
        const int begin = cursor.block().position();
        int position = cursor.position();
        while (position > begin && document.characterAt(position - 1).isSpace()) {
            --position;
        }
        if (position > begin) {
            text.setPosition(position);
            selectText(&text);
        }
    }
    return MRVTextCursor::selectedRanges(text);
}

// The parts of ranges outside of pieces, both in document order.
QVector<MRVTextRange> without(const QVector<MRVTextRange> &ranges,
                              const QVector<MRVTextRange> &pieces)
{
    QVector<MRVTextRange> rest;
    auto piece = pieces.begin();
    for (const MRVTextRange &range : ranges) {
        int begin = range.start();
        for (; piece != pieces.end() && piece->start() < range.end(); ++piece) {
            if (begin < piece->start()) {
                rest.append(MRVTextRange(begin, piece->start()));
            }
            begin = qMax(begin, piece->end());
        }
        if (begin < range.end()) {
            rest.append(MRVTextRange(begin, range.end()));
        }
    }
    return rest;
}

// The text of the notes that lie in ranges as a whole.
QVector<MRVTextRange> wholeNotes(const QTextDocument &document, const QVector<MRVTextRange> &ranges)
{
    Reader reader(document);
    reader.read(MRVTextRange(0, document.characterCount()));
    QVector<bool> isWhole(reader.entries().size(), true);
    QVector<MRVTextRange> pieces;
    auto range = ranges.begin();
    for (const Reader::Piece &piece : reader.pieces()) {
        while (range != ranges.end() && range->end() <= piece.range.start()) {
            ++range;
        }
        isWhole[piece.entry] = isWhole.at(piece.entry) && range != ranges.end()
            && range->start() <= piece.range.start() && piece.range.end() <= range->end();
    }
    for (const Reader::Piece &piece : reader.pieces()) {
        if (isWhole.at(piece.entry)) {
            pieces.append(piece.range);
        }
    }
    return pieces;
}

// The format of the text that begins at a position or, where paragraphs end there, after them.
QTextCharFormat formatAfter(QTextCursor cursor, int position)
{
    const QTextDocument *document = cursor.document();
    const int last = document->characterCount() - 1;
    while (position < last && document->characterAt(position) == QChar(QChar::ParagraphSeparator)) {
        ++position;
    }
    if (position >= last) {
        return QTextCharFormat();
    }
    cursor.setPosition(position + 1);
    return cursor.charFormat();
}

QTextCharFormat formatBefore(QTextCursor cursor, int position)
{
    const QTextDocument *document = cursor.document();
    while (position > 0
           && document->characterAt(position - 1) == QChar(QChar::ParagraphSeparator)) {
        --position;
    }
    cursor.setPosition(position);
    return position > 0 ? cursor.charFormat() : QTextCharFormat();
}

bool hasText(const QTextDocument &document, const QVector<MRVTextRange> &ranges)
{
    for (const MRVTextRange &range : ranges) {
        for (int i = range.start(); i < range.end(); ++i) {
            if (!MRVTextFormat::hasBlockInString(document.characterAt(i))) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

QVector<MRVMarginNote> MRVMarginNotes::all(const QTextDocument *document)
{
    QVector<MRVMarginNote> notes;
    if (document) {
        Reader reader(*document);
        reader.read(MRVTextRange(0, document->characterCount()));
        notes.reserve(reader.entries().size());
        for (const Reader::Entry &entry : reader.entries()) {
            notes.append(entry.note);
        }
    }
    return notes;
}

MRVMarginNote MRVMarginNotes::around(const QTextCursor &cursor)
{
    return entryAround(cursor).note;
}

QString MRVMarginNotes::add(const QTextCursor &cursor, MRVMarginNote::Kind kind,
                            const QString &text, const QString &author, const QString &date)
{
    if (cursor.isNull() || kind == MRVMarginNote::None) {
        return QString();
    }
    QTextDocument *document = cursor.document();
    const QVector<MRVTextRange> wanted = textFor(cursor);
    const QVector<MRVTextRange> ranges = without(wanted, wholeNotes(*document, wanted));
    if (!hasText(*document, ranges)) {
        return QString();
    }
    const QString id = freshId(*document);
    const QString note = normalised(text);
    MrvSweep::changeRanges(document, ranges, [&](QTextCharFormat format) {
        Reader::clear(&format);
        format.setProperty(kind == MRVMarginNote::Footnote
                               ? MRVTextFormat::InspectorFootnoteProperty
                               : MRVTextFormat::InspectorCommentProperty,
                           true);
        format.setProperty(MRVTextFormat::CommentData0, note);
        format.setProperty(MRVTextFormat::CommentData1, id);
        format.setProperty(MRVTextFormat::CommentData2, QStringList{author, date});
        return format;
    });
    return id;
}

bool MRVMarginNotes::setText(const QTextCursor &cursor, const QString &text)
{
    const Reader::Entry entry = entryAround(cursor);
    if (entry.note.kind == MRVMarginNote::None) {
        return false;
    }
    const QString wanted = normalised(text);
    if (wanted == entry.note.text) {
        return true;
    }
    QTextDocument *document = cursor.document();
    const auto state = [&] { return QVariantList{document->revision(), entry.note.range.start()}; };
    QTextCursor edit(document);
    if (document->property(LastChange) == state()) {
        edit.joinPreviousEditBlock();
    } else {
        edit.beginEditBlock();
    }
    changeNote(document, entry, [&](QTextCharFormat format) {
        format.setProperty(MRVTextFormat::CommentData0, wanted);
        return format;
    });
    edit.endEditBlock();
    document->setProperty(LastChange, state());
    return true;
}

bool MRVMarginNotes::remove(const QTextCursor &cursor)
{
    const Reader::Entry entry = entryAround(cursor);
    if (entry.note.kind == MRVMarginNote::None) {
        return false;
    }
    changeNote(cursor.document(), entry, [](QTextCharFormat format) {
        Reader::clear(&format);
        return format;
    });
    return true;
}

bool MRVMarginNotes::leave(QTextCursor *cursor)
{
    if (!cursor || cursor->isNull()) {
        return false;
    }
    QTextCharFormat format = cursor->charFormat();
    if (Reader::kindOf(format) == MRVMarginNote::None) {
        return false;
    }
    const int begin = cursor->selectionStart();
    const bool isWithin = Reader::isSameNote(formatAfter(*cursor, begin), format)
        && (cursor->hasSelection() || Reader::isSameNote(formatBefore(*cursor, begin), format));
    if (isWithin) {
        return false;
    }
    if (cursor->hasSelection()) {
        // What replaces a selection gets the format before the cursor: here that of the selection.
        const int end = cursor->selectionEnd();
        cursor->setPosition(begin);
        cursor->setPosition(end, QTextCursor::KeepAnchor);
    } else {
        Reader::clear(&format);
        cursor->setCharFormat(format);
    }
    return true;
}
