#pragma once

#include "util/mrvbase_export.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTextDocument>
#include <QVector>

/**
 * How long a text is.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextCounts
{
    /**
     * Segments between word boundaries (Unicode UAX #29) that hold a letter or digit: "don't" is
     * one word, "well-known" two, and so is each ideograph.
     */
    int words = 0;
    int characters = 0; ///< as a reader counts them: surrogate pairs are one; no paragraph ends
    int charactersWithoutSpaces = 0; ///< less white space

    /** The counts of a text, of which objects such as pictures are no part. */
    static MRVTextCounts of(const QString &text);

    /** Adds each count of @p other to that of this one. */
    MRVTextCounts &operator+=(const MRVTextCounts &other);
    /** Subtracts each count of @p other from that of this one. */
    MRVTextCounts &operator-=(const MRVTextCounts &other);
    bool operator==(const MRVTextCounts &other) const
    {
        return words == other.words && characters == other.characters
            && charactersWithoutSpaces == other.charactersWithoutSpaces;
    }
    bool operator!=(const MRVTextCounts &other) const { return !(*this == other); }
};

/**
 * The counts of a document that is open in an editor.
 *
 * It counts in slices, so that a long novel holds nobody up, and follows each edit at the cost of
 * the paragraphs that were edited. GUI thread only.
 *
 * @code
 * MRVDocumentCounts counts(&document);
 * while (!counts.advance(10)) {
 *     QCoreApplication::processEvents(); // or at each tick of a QTimer
 * }
 * qDebug() << counts.counts().words << "words";
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentCounts : public QObject
{
    Q_OBJECT

public:
    /** @param document may be null and may be deleted earlier; then all counts are 0. */
    explicit MRVDocumentCounts(QTextDocument *document, QObject *parent = nullptr);

    /**
     * Goes on counting for about that many milliseconds, at least for a paragraph.
     *
     * @return whether there is no more to be done: isComplete().
     */
    bool advance(int milliseconds);
    /** Whether counts() are those of the whole document. */
    bool isComplete() const;
    /** Those of the paragraphs that are counted so far. */
    MRVTextCounts counts() const { return m_total; }

Q_SIGNALS:
    /** The document was edited, and there is something to count. */
    void changed();

private:
    void restart();
    void followEdit(int position, int removed, int added);
    void followAnyEdit();

    QPointer<QTextDocument> m_document;
    QVector<MRVTextCounts> m_paragraphs; // by number; those from m_counted on are not known
    int m_counted = 0;
    MRVTextCounts m_total; // of the paragraphs before m_counted
    bool m_isFollowed = false; // the present edit, by its place
};
