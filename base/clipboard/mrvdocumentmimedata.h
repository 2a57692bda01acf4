#pragma once

#include "util/mrvbase_export.h"

#include <QString>

class QMimeData;
class QTextCursor;

/**
 * Text for the clipboard, and for dragging, that loses nothing between documents of the
 * application.
 *
 * A QTextEdit copies HTML, which has no place for the levels of lists, comments, footnotes or any
 * other property of the application. This adds a form with all formats, lists, tables, frames and
 * pictures. An application calls it in its editor:
 *
 * @code
 * class Editor : public QTextEdit
 * {
 * protected:
 *     QMimeData *createMimeDataFromSelection() const override
 *     {
 *         return MRVDocumentMimeData::createMimeData(textCursor());
 *     }
 *     bool canInsertFromMimeData(const QMimeData *source) const override
 *     {
 *         return MRVDocumentMimeData::hasFragment(source)
 *             || QTextEdit::canInsertFromMimeData(source);
 *     }
 *     void insertFromMimeData(const QMimeData *source) override
 *     {
 *         QTextCursor cursor = textCursor();
 *         if (!MRVDocumentMimeData::insert(&cursor, source)) {
 *             QTextEdit::insertFromMimeData(source);
 *         }
 *     }
 * };
 * @endcode
 *
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentMimeData
{
public:
    MRVDocumentMimeData() = delete;

    /** The MIME type of the form: "application/x-morvane-document". */
    static QString mimeType();

    /**
     * What is selected, in that form, as HTML with lists within lists, and as plain text. Of a
     * table in which cells are selected, only these; of one, or of a frame, that the selection only
     * begins or ends in, all.
     *
     * The form is a QDataStream of version Qt_5_15: the numbers 0x4d525644 and 1; the formats, each
     * as MRVTextFormat stores it; the lists; the pictures, encoded; tables and frames; and the
     * paragraphs with their texts.
     *
     * @return owned by the caller; null where nothing is selected.
     */
    static QMimeData *createMimeData(const QTextCursor &cursor);

    /** Whether there is such a form, valid or not; false for null. */
    static bool hasFragment(const QMimeData *source);

    /**
     * Puts the text that the form in @p source holds in place of what is selected: one undo step.
     * The cursor stands after it then.
     *
     * The first paragraph takes its format along into an empty paragraph, and where it is whole and
     * inserted at the beginning of one. What follows the cursor in its paragraph gets the format of
     * the last paragraph inserted, unless that is empty. Paragraphs join the list at the cursor
     * where it looks as theirs does. A picture whose name the document has for another one gets a
     * name of its own; pictures stay in the document when the step is undone.
     *
     * Any bytes may be there: types, counts, lengths and pictures are checked before anything is
     * inserted. Pictures that the form names and does not hold are loaded by the document, so
     * that it should be an MRVGuardedDocument.
     *
     * @return false, with nothing changed, where the form is missing or damaged, for a null
     *         cursor, and where either is null.
     */
    static bool insert(QTextCursor *cursor, const QMimeData *source);
};
