#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QTextFormat>
#include <QVector>

class QTextCursor;

/**
 * A stretch of text in one format.
 *
 * @since 1.0
 */
struct MRVFragmentText
{
    QString text; ///< without separators of paragraphs; U+FFFC is an object such as a picture
    int format = 0; ///< a place in MRVDocumentFragment::formats
};

/**
 * A paragraph, or the part of one that was selected.
 *
 * @since 1.0
 */
struct MRVFragmentParagraph
{
    /** The place in MRVDocumentFragment::frames of the table or frame before it; -1: none. */
    int frame = -1;
    int blockFormat = 0; ///< a place in formats
    int charFormat = 0; ///< of the paragraph itself: what an empty one is typed in
    int list = -1; ///< a place in MRVDocumentFragment::lists; -1: no item
    QVector<MRVFragmentText> texts;
};

/**
 * Paragraphs, with the tables and frames before them. Never empty: as in a QTextDocument, a
 * paragraph stands before and after each table and frame.
 *
 * @since 1.0
 */
using MRVFragmentFlow = QVector<MRVFragmentParagraph>;

/**
 * A cell of a table, or all of a frame.
 *
 * @since 1.0
 */
struct MRVFragmentCell
{
    int row = 0; ///< from 0, as the column
    int column = 0;
    int rowSpan = 1; ///< how many rows it covers
    int columnSpan = 1; ///< how many columns it covers
    int format = 0; ///< of a cell
    MRVFragmentFlow flow;
};

/**
 * A table, or a frame, which has one cell.
 *
 * @since 1.0
 */
struct MRVFragmentFrame
{
    bool isTable = false;
    int format = 0; ///< a place in formats
    int rows = 1;
    int columns = 1;
    QVector<MRVFragmentCell> cells; ///< each place of the table in one of them, in order
};

/**
 * The picture that image formats show by its name.
 *
 * @since 1.0
 */
struct MRVFragmentPicture
{
    QString name; ///< QTextImageFormat::name()
    bool isImage = false; ///< the document holds pixels and not these bytes
    QByteArray bytes; ///< of a file, encoded
};

/**
 * A part of a document outside of any document, or all of it: a value with a stored form.
 *
 * It has all that a document has between two places: formats with all their properties, lists,
 * tables, frames and pictures. What belongs to the document as a whole, such as its title and its
 * default font, it has not. Numbers are places in the vectors here; each frame stands after those
 * that it holds, and in one place of the text. GUI thread only.
 *
 * @code
 * QTextCursor all(&document);
 * all.select(QTextCursor::Document);
 * const QByteArray stored = MRVDocumentFragment::fromCursor(all).toByteArray();
 * MRVDocumentFragment fragment;
 * if (MRVDocumentFragment::fromByteArray(stored, &fragment)) {
 *     fragment.insert(&cursor);
 * }
 * @endcode
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVDocumentFragment
{
    /** Whether pictures are part of it. */
    enum Pictures {
        WithPictures, ///< those that are there and can be read
        WithoutPictures, ///< formats name them, and the receiver has to have them
    };

    QVector<QTextFormat> formats; ///< without object indexes
    QVector<int> lists; ///< their formats
    QVector<MRVFragmentPicture> pictures;
    QVector<MRVFragmentFrame> frames;
    MRVFragmentFlow flow;
    bool isFromStart = false; ///< the first paragraph is there from its beginning

    /**
     * What is selected; whole tables and frames where the selection ends in one of them. Lengths
     * and indents that no layout can have (mrvLaidOutFormat()) are left out.
     *
     * @param cursor of a document; where nothing is selected, the fragment has an empty paragraph.
     */
    static MRVDocumentFragment fromCursor(const QTextCursor &cursor,
                                          Pictures pictures = WithPictures);

    /**
     * Puts it in place of what @p cursor selects, as one undo step; the cursor stands after it
     * then. MRVDocumentMimeData::insert() says which formats count.
     */
    void insert(QTextCursor *cursor) const;

    /**
     * The stored form, a QDataStream of version Qt_5_15: the numbers 0x4d525644 and 1; the formats,
     * each as MRVTextFormat stores it; the lists; the pictures; tables and frames; and the
     * paragraphs with their texts. Equal fragments give equal bytes.
     */
    QByteArray toByteArray() const;
    /**
     * Reads the stored form.
     *
     * @param bytes    any: types, counts, lengths and pictures are checked, and so is that insert()
     *                 can put it into a document and a layout can show it.
     * @param fragment undefined on failure.
     * @return false for anything but such a form.
     */
    static bool fromByteArray(const QByteArray &bytes, MRVDocumentFragment *fragment);
};
