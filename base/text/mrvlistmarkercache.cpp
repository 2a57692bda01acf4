#include "text/mrvlistmarkercache.h"

#include "text/mrvtextlistformat.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

MRVListMarkerCache::MRVListMarkerCache(QTextDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    if (document) {
        connect(document, &QTextDocument::contentsChange, this, &MRVListMarkerCache::followEdit);
        connect(document, &QTextDocument::contentsChanged, this,
                &MRVListMarkerCache::followAnyEdit);
    }
}

MRVListMarker MRVListMarkerCache::marker(const QTextBlock &block)
{
    MRVListMarker marker;
    if (!m_document || !block.isValid() || block.document() != m_document) {
        return marker;
    }
    // Signals of the document may have been blocked.
    if (!m_isRead || m_items.size() != m_document->blockCount()) {
        read();
    }
    if (!m_isNumbered) {
        number();
    }
    const Item &item = m_items.at(block.blockNumber());
    const QTextList *list = item.list >= 0 ? block.textList() : nullptr;
    if (list) {
        marker.level = item.level;
        marker.number = item.number;
        marker.text = mrvListMarkerText(MRVTextListFormat::shownLevel(list->format(), item.level),
                                        item.number);
    }
    return marker;
}

MRVListMarkerCache::Item MRVListMarkerCache::itemOf(const QTextBlock &block)
{
    Item item;
    if (const QTextList *list = block.textList()) {
        item.list = list->objectIndex();
        item.format = list->formatIndex();
        item.level = mrvListLevel(*list, block);
    }
    return item;
}

void MRVListMarkerCache::read()
{
    m_items.clear();
    m_items.reserve(m_document->blockCount());
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next()) {
        m_items.append(itemOf(block));
    }
    m_isRead = true;
    m_isNumbered = false;
}

void MRVListMarkerCache::number()
{
    QHash<int, QTextListFormat> formats; // by list
    MRVListCounter counter;
    for (Item &item : m_items) {
        if (item.list < 0) {
            continue;
        }
        auto format = formats.constFind(item.list);
        if (format == formats.constEnd()) {
            const QTextObject *list = m_document->object(item.list);
            format =
                formats.insert(item.list, list ? list->format().toListFormat() : QTextListFormat());
        }
        item.number = counter.next(*format, item.list, item.level);
    }
    m_isNumbered = true;
}

void MRVListMarkerCache::followEdit(int position, int removed, int added)
{
    Q_UNUSED(removed)
    m_isFollowed = true;
    if (!m_isRead || !m_document) {
        return;
    }
    // Qt also counts the separator at the document's end, which is no position of a paragraph.
    const int last = m_document->characterCount() - 1;
    QTextBlock block = m_document->findBlock(qBound(0, position, last));
    const int first = block.blockNumber();
    const int end = m_document->findBlock(qBound(0, position + added, last)).blockNumber() + 1;
    const int count = end - first - (m_document->blockCount() - m_items.size());
    if (first < 0 || count < 0 || first + count > m_items.size()) {
        m_isRead = false;
        Q_EMIT markersChanged();
        return;
    }
    QVector<Item> items;
    items.reserve(end - first);
    for (; block.isValid() && block.blockNumber() < end; block = block.next()) {
        items.append(itemOf(block));
    }
    if (replace(first, count, items)) {
        m_isNumbered = false;
        Q_EMIT markersChanged();
    }
}

// Qt does not say where a document without a layout was edited.
void MRVListMarkerCache::followAnyEdit()
{
    if (!m_isFollowed && m_isRead) {
        m_isRead = false;
        Q_EMIT markersChanged();
    }
    m_isFollowed = false;
}

// Whether a list has been touched.
bool MRVListMarkerCache::replace(int first, int count, const QVector<Item> &with)
{
    const auto isSame = [](const Item &a, const Item &b) {
        return a.list == b.list && a.format == b.format && a.level == b.level;
    };
    const auto isItem = [](const Item &item) { return item.list >= 0; };
    const auto begin = m_items.begin() + first;
    if (count == with.size() && std::equal(with.begin(), with.end(), begin, isSame)) {
        return false;
    }
    const bool touched =
        std::any_of(begin, begin + count, isItem) || std::any_of(with.begin(), with.end(), isItem);
    const int same = qMin(count, with.size());
    std::copy(with.begin(), with.begin() + same, begin);
    if (count > same) {
        m_items.erase(m_items.begin() + first + same, m_items.begin() + first + count);
    } else {
        m_items.insert(first + same, with.size() - same, Item());
        std::copy(with.begin() + same, with.end(), m_items.begin() + first + same);
    }
    return touched;
}
