#pragma once

#include "document/mrvmarginnote.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QVector>

#include <memory>

class QTextCursor;
class QTextDocument;

/**
 * The comments and footnotes in the margin of a document.
 *
 * They are properties of the text that they are about: InspectorFootnoteProperty of a footnote,
 * InspectorCommentProperty of a comment, true; CommentData0, the text of the note; CommentData1,
 * the id, a text; CommentData2, a QStringList of author and date. Text whose CommentData0 is a
 * QString and that has neither mark has a comment. A character has one note at most.
 *
 * A note is one stretch of text, which may go on over the ends of paragraphs. Pieces with the same
 * id and data that lie in one paragraph, or have only text with other notes between them, are one
 * note, too.
 *
 * Text that is typed right after a note gets its format, and so belongs to it, unless the editor
 * calls leave() before each key. Null documents and cursors have no notes.
 * Each change is one undo step. GUI thread only.
 *
 * @code
 * const QString text = QStringLiteral("See the appendix.");
 * const QString id = MRVMarginNotes::add(cursor, MRVMarginNote::Footnote, text);
 * const QVector<MRVMarginNote> notes = MRVMarginNotes::all(&document);
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVMarginNotes
{
public:
    MRVMarginNotes() = delete;

    /** All notes, by where they begin. Linear in the document; looks once at each format. */
    static QVector<MRVMarginNote> all(const QTextDocument *document);
    /**
     * The note on the character after the start of the selection of @p cursor, else on the one
     * before it in the same paragraph; of kind None where there is none. Looks at the paragraphs of
     * the note only.
     */
    static MRVMarginNote around(const QTextCursor &cursor);

    /**
     * Adds a note to the selected text or, without a selection, to the word at the cursor or the
     * character before it. After blanks, these are the ones before the blanks, if the paragraph has
     * any.
     *
     * Other notes give way as long as they keep some of their text. One that would lose all of it
     * stays, and the new note is about what else is selected.
     *
     * @param cursor where the note belongs; not changed.
     * @param kind   Comment or Footnote.
     * @param text   the note, with a line feed between two paragraphs; may be empty.
     * @param author whoever wrote it, as it is to be shown.
     * @param date   as it is to be shown, or as the application reads it again.
     * @return the id of the note, which no other in the document has; empty where there was no text
     *         that could have it, and nothing changed.
     */
    static QString add(const QTextCursor &cursor, MRVMarginNote::Kind kind, const QString &text,
                       const QString &author = QString(), const QString &date = QString());

    /**
     * Sets the text of the note that around() finds, on all of its text. Changes in a row of the
     * same note are one undo step, as long as nothing else in the document changes in between.
     *
     * @param cursor not changed.
     * @param text   may be empty; the note stays.
     * @return false where there is no note.
     */
    static bool setText(const QTextCursor &cursor, const QString &text);

    /**
     * Removes the note that around() finds. The text that it is about stays, with all else that its
     * format says.
     *
     * @param cursor not changed.
     * @return false where there is no note.
     */
    static bool remove(const QTextCursor &cursor);

    /**
     * Lets what is typed next, a paragraph's end too, be text without a note where the cursor is at
     * an edge of one. Within a note, and where the selection begins with text of the note, typing
     * changes the text of the note. The document is not changed.
     *
     * @param cursor that of an editor, which sets it again (QTextEdit::setTextCursor()). Without a
     *               selection its format loses the note; a selection may change its direction.
     * @return false where nothing had to be done.
     */
    static bool leave(QTextCursor *cursor);

    /**
     * Puts notes from the margin into the text, where all that writes, prints or reads documents
     * sees them: as marks that link to paragraphs at the end of the document, after a rule, and
     * these back to the marks. MRVNoteFinder finds them as it does those of manuscripts that were
     * read.
     *
     * A footnote has a raised number as its mark, a comment one in brackets, and its author before
     * its text. Numbers go on from the highest that a note in the text has. The mark follows the
     * text that the note is about, before its blanks. A note without text stays in the margin. One
     * undo step, and none where there is no such note; linear.
     *
     * @param document null does nothing.
     * @param kinds    of the notes that are put into the text.
     * @return how many there were.
     */
    static int toParagraphs(QTextDocument *document,
                            MRVMarginNote::Kinds kinds = MRVMarginNote::Kinds(
                                MRVMarginNote::Comment | MRVMarginNote::Footnote));

    /**
     * A copy of a document, by mrvDocumentCopy(), on which toParagraphs() was called; null where
     * that would change nothing. MRVEPubPackage, MRVManuscriptPdf and MRVTextXhtmlExporter call it
     * for the footnotes of what they write.
     *
     * @param document is not changed. Fetch pictures from it, and not from the copy.
     * @param kinds    see toParagraphs().
     */
    static std::unique_ptr<QTextDocument> copyWithParagraphs(const QTextDocument &document,
                                                             MRVMarginNote::Kinds kinds);
};
