#pragma once

#include "text/mrvlistmarkers.h"
#include "util/mrvbase_export.h"

#include <QObject>
#include <QPointer>
#include <QTextDocument>
#include <QVector>

class QTextBlock;

/**
 * The markers of a document that is being edited.
 *
 * It gives what mrvListMarkers() gives, paragraph by paragraph, and follows each edit: a letter
 * that is typed costs nothing, and a paragraph that comes, goes or changes its list or level a
 * count of the items. Nothing is read before the first marker is asked for. A document that no
 * view has laid out is read again after each edit. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVListMarkerCache : public QObject
{
    Q_OBJECT

public:
    /** @param document may be null and may be deleted earlier; then nothing has a marker. */
    explicit MRVListMarkerCache(QTextDocument *document, QObject *parent = nullptr);

    /** Null where the document is gone. */
    QTextDocument *document() const { return m_document; }
    /**
     * The marker of a paragraph of the document as it is now. That of a paragraph of no list for an
     * invalid block, and for one of another document.
     */
    MRVListMarker marker(const QTextBlock &block);

Q_SIGNALS:
    /**
     * Markers may have changed: items of lists came or went, or have another level or format. Any
     * number of paragraphs after those that were edited may have another number.
     */
    void markersChanged();

private:
    struct Item
    {
        int list = -1; // an object index
        int format = -1; // of the list
        int level = 0;
        int number = 0; // while m_isNumbered
    };
    static Item itemOf(const QTextBlock &block);
    void read();
    void number();
    void followEdit(int position, int removed, int added);
    void followAnyEdit();
    bool replace(int first, int count, const QVector<Item> &with);

    QPointer<QTextDocument> m_document;
    QVector<Item> m_items; // by the number of the paragraph, while m_isRead
    bool m_isRead = false;
    bool m_isNumbered = false;
    bool m_isFollowed = false; // the present edit, by its place
};
