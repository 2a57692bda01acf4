#pragma once

#include "search/mrvtextquery.h"
#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QObject>
#include <QPointer>
#include <QTextCursor>
#include <QVector>

#include <memory>

class MRVQuerySearch;
class QTextDocument;

/**
 * All finds of a query in a document that is open in an editor, for a find bar: which find is
 * selected and of how many, the next and the previous one, and both while the user types.
 *
 * It looks for them in slices, so that a key is answered at once in a long novel, and begins where
 * the user is. Edits of the document are followed. GUI thread only.
 *
 * @code
 * MRVFindSession session(&document);
 * MRVTextQuery query;
 * query.text = QStringLiteral("lamp");
 * session.setQuery(query, cursor); // at each key in the find bar
 * while (!session.advance(10)) {
 *     QCoreApplication::processEvents(); // or at each tick of a QTimer
 * }
 * const QTextCursor found = session.next(cursor);
 * qDebug() << session.numberOf(found) << "of" << session.count();
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFindSession : public QObject
{
    Q_OBJECT

public:
    /** @param document may be null and may be deleted earlier; then nothing is found. */
    explicit MRVFindSession(QTextDocument *document, QObject *parent = nullptr);
    ~MRVFindSession() override;

    /**
     * Begins again with another query, in the paragraph of @p near, or at the start for a null
     * cursor. The limit of time, the callback and FindBackward of the query do not count here.
     */
    void setQuery(const MRVTextQuery &query, const QTextCursor &near);
    /**
     * What is looked for. Its range moves with the edits of the document: text that is put in right
     * before or after it does not belong to it.
     */
    const MRVTextQuery &query() const { return m_query; }

    /**
     * Goes on with the search for about that many milliseconds, at least for a paragraph; a query
     * that goes across paragraphs is searched at once, and so are the runs of its formats.
     *
     * @return whether there is no more to be done: isComplete().
     */
    bool advance(int milliseconds);
    /** Whether all finds are known, or the search was given up; then outcome() says so. */
    bool isComplete() const;
    /** Whether the search was given up, and where. */
    MRVSearchOutcome outcome() const { return m_outcome; }

    /** How many finds are known. */
    int count() const { return m_before.size() + m_after.size(); }
    /** The finds that are known, in document order. */
    QVector<MRVTextRange> finds() const { return m_before + m_after; }
    /** Which of the finds that are known is selected, from 1; 0 where it is none of them. */
    int numberOf(const QTextCursor &selection) const;

    /**
     * The first known find at the end of the selection of @p from or later; after the last one, the
     * first of the document. While the search goes on, null where that one is not known yet.
     *
     * @param wrapped if given, receives whether the search began again at the start.
     */
    QTextCursor next(const QTextCursor &from, bool *wrapped = nullptr) const;
    /**
     * The same backward: the last known find that ends at the start of the selection of @p from or
     * earlier; before the first one, the last of the document.
     *
     * @param wrapped if given, receives whether the search began again at the end.
     */
    QTextCursor previous(const QTextCursor &from, bool *wrapped = nullptr) const;

Q_SIGNALS:
    /** The document was edited, and the finds are others or in other places. */
    void changed();

private:
    void restart(int near);
    void followRange(int position, int removed, int added);
    void setRange(const MRVTextRange &range);
    bool isSearchedAtOnce() const;
    void searchPart(const MRVTextRange &part, QVector<MRVTextRange> *finds);
    void followEdit(int position, int removed, int added);
    void followAnyEdit();
    QTextCursor select(int index) const;

    QPointer<QTextDocument> m_document;
    MRVTextQuery m_query;
    QTextCursor m_range; // of the query; null for all of the document
    std::unique_ptr<MRVQuerySearch> m_search; // null until it is needed, and after edits
    // The search goes from the start to the end of the document, and then from 0 to the start.
    int m_start = 0;
    int m_position = 0;
    bool m_isPastEnd = true;
    bool m_isFollowed = false; // the edit that the document is about to tell of
    QVector<MRVTextRange> m_after; // of the start
    QVector<MRVTextRange> m_before;
    MRVSearchOutcome m_outcome;
};
