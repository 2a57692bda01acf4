#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QTextFormat>
#include <QVector>

class QTextCursor;

/** A stretch of one format. */
struct MRVFragmentText
{
    QString text;
    int format;
};

/** A paragraph, or the part of one that was selected. */
struct MRVFragmentParagraph
{
    int frame = -1; ///< the table or frame that ends before it; -1: a paragraph does
    int blockFormat = 0;
    int charFormat = 0; ///< of the paragraph itself
    int list = -1;
    QVector<MRVFragmentText> texts;
};

using MRVFragmentFlow = QVector<MRVFragmentParagraph>; // never empty

/** A cell of a table, or all of a frame. */
struct MRVFragmentCell
{
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    int format = 0; ///< of a cell
    MRVFragmentFlow flow;
};

/** A table, or a frame, which has one cell. */
struct MRVFragmentFrame
{
    bool isTable = false;
    int format = 0;
    int rows = 1;
    int columns = 1;
    QVector<MRVFragmentCell> cells;
};

/** A picture by which formats go. */
struct MRVFragmentPicture
{
    QString name;
    bool isImage = false; ///< the document holds pixels and not these bytes
    QByteArray bytes;
};

/**
 * A part of a document outside of any document. Numbers are indexes into the vectors here; each
 * frame stands after those that it holds, and in one place.
 */
struct MRVDocumentFragment
{
    QVector<QTextFormat> formats; ///< without object indexes
    QVector<int> lists; ///< their formats
    QVector<MRVFragmentPicture> pictures;
    QVector<MRVFragmentFrame> frames;
    MRVFragmentFlow flow;
    bool isFromStart = false; ///< the first paragraph is there from its beginning

    /** What is selected; whole tables and frames where the selection ends in one of them. */
    static MRVDocumentFragment fromCursor(const QTextCursor &cursor);

    /** Puts it in place of what is selected, as one undo step. */
    void insert(QTextCursor *cursor) const;

    /** The stored form; MRVDocumentMimeData::createMimeData() says what it is. */
    QByteArray toByteArray() const;
    /** @return false, with an undefined fragment, for anything but such a form. */
    static bool fromByteArray(const QByteArray &bytes, MRVDocumentFragment *fragment);
};
