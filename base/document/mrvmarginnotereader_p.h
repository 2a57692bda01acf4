#pragma once

#include "document/mrvmarginnote.h"

#include <QHash>
#include <QTextCharFormat>
#include <QTextFragment>
#include <QVector>

class QTextDocument;

/**
 * Reads the notes in the margin of a part of a document, which must not change meanwhile. Looks
 * once at each format; linear in the part.
 */
class MRVMarginNoteReader
{
public:
    /** A note and a format with its data. */
    struct Entry
    {
        MRVMarginNote note;
        QTextCharFormat format;
    };
    /** Text of one format. */
    struct Piece
    {
        MRVTextRange range;
        int entry; ///< an index into entries()
    };

    explicit MRVMarginNoteReader(const QTextDocument &document)
        : m_document(document)
    {
    }

    /** Reads the paragraphs that begin in @p part, which is read once. */
    void read(const MRVTextRange &part);

    /** By where they begin. */
    const QVector<Entry> &entries() const { return m_entries; }
    /** In document order. */
    const QVector<Piece> &pieces() const { return m_pieces; }

    static MRVMarginNote::Kind kindOf(const QTextCharFormat &format);
    /** Removes marks and data from a format, and nothing else: an address is the text's own. */
    static void clear(QTextCharFormat *format);
    /** Whether two formats have the same marks and data. */
    static bool isSameNote(const QTextCharFormat &one, const QTextCharFormat &other);

private:
    /** What some formats say alike. */
    struct Data
    {
        MRVMarginNote note; // without a range
        QTextCharFormat format;
        int entry = -1; // the last one with this data
    };

    int dataOf(const QTextFragment &fragment);
    int addData(const QTextCharFormat &format);
    void add(int data, const MRVTextRange &range, int paragraph);
    bool isOneRun(int end, int begin) const;

    const QTextDocument &m_document;
    QVector<Entry> m_entries;
    QVector<Piece> m_pieces;
    QVector<Data> m_data;
    QHash<int, int> m_dataOfFormats; // by format index; -1: no note
    QMultiHash<QString, int> m_dataByText;
    int m_plainEnd = 0; // where the last text without a note ends
};
