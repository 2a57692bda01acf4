#include "search/mrvfindsession.h"

#include "search/mrvquerysearch_p.h"
#include "search/mrvtextreplacer.h"

#include <QElapsedTimer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <limits>

namespace {

/// Removes the finds that touch a part that was edited, and moves those after it.
void adjust(QVector<MRVTextRange> *finds, const MRVTextRange &part, int delta)
{
    const auto touches = [&](const MRVTextRange &find) {
        return find.end() >= part.start() && find.start() <= part.end();
    };
    finds->erase(std::remove_if(finds->begin(), finds->end(), touches), finds->end());
    for (MRVTextRange &find : *finds) {
        if (find.start() > part.end()) {
            find = MRVTextRange(find.start() + delta, find.end() + delta);
        }
    }
}

} // namespace

MRVFindSession::MRVFindSession(QTextDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
{
    if (document) {
        connect(document, &QTextDocument::contentsChange, this, &MRVFindSession::followEdit);
        connect(document, &QTextDocument::contentsChanged, this, &MRVFindSession::followAnyEdit);
    }
}

MRVFindSession::~MRVFindSession() = default;

void MRVFindSession::setQuery(const MRVTextQuery &query, const QTextCursor &near)
{
    m_search.reset();
    m_query = query;
    m_query.timeLimit = 0;
    m_query.isCancelled = nullptr;
    m_query.flags &= ~MRVTextFinder::FindBackward;
    setRange(query.range);
    restart(near.isNull() ? 0 : near.selectionStart());
}

void MRVFindSession::setRange(const MRVTextRange &range)
{
    m_query.range = range;
    m_range = QTextCursor();
    if (range != MRVTextQuery().range) {
        m_range = range.toTextCursor(m_document);
        m_range.setKeepPositionOnInsert(true); // so that text after it does not belong to it
    }
}

// The cursor knows best about an edit of many places, which the document tells of as one. It cannot
// tell text that takes the place of the first or last of the range from text beside the range.
void MRVFindSession::followRange(int position, int removed, int added)
{
    constexpr int Open = std::numeric_limits<int>::max();
    if (m_range.isNull()) {
        return;
    }
    const MRVTextRange range = m_query.range;
    const int end = position + removed;
    const int delta = added - removed;
    const int movedEnd = range.end() == Open ? Open : range.end() + delta;
    if (end <= range.start()) {
        setRange(MRVTextRange(range.start() + delta, movedEnd));
    } else if (position >= range.start() && end <= range.end() && position < range.end()) {
        setRange(MRVTextRange(range.start(), movedEnd));
    } else if (position < range.end()) {
        setRange(MRVTextRange(m_range.selectionStart(),
                              range.end() == Open ? Open : m_range.selectionEnd()));
    }
}

void MRVFindSession::restart(int near)
{
    m_search.reset();
    m_before.clear();
    m_after.clear();
    m_outcome = MRVSearchOutcome();
    m_start = m_document ? m_document->findBlock(near).position() : 0;
    m_start = isSearchedAtOnce() ? 0 : m_start;
    m_position = m_start;
    m_isPastEnd = false;
}

bool MRVFindSession::isComplete() const
{
    return !m_document || !m_outcome.isComplete() || (m_isPastEnd && m_position >= m_start);
}

bool MRVFindSession::advance(int milliseconds)
{
    constexpr int ChunkLength = 16384;
    QElapsedTimer clock;
    clock.start();
    if (!isComplete() && isSearchedAtOnce()) {
        m_after = MRVTextReplacer::findAll(m_document, m_query, &m_outcome);
        m_isPastEnd = true;
    }
    while (!isComplete()) {
        const int end = m_isPastEnd ? m_start : m_document->characterCount();
        const QTextBlock last = m_document->findBlock(qMin(m_position + ChunkLength, end - 1));
        const int next = last.position() + last.length();
        searchPart(MRVTextRange(m_position, next - 1), m_isPastEnd ? &m_before : &m_after);
        m_position = next;
        if (m_position >= end && !m_isPastEnd) {
            m_isPastEnd = true;
            m_position = 0;
        }
        if (clock.elapsed() >= milliseconds) {
            break;
        }
    }
    return isComplete();
}

bool MRVFindSession::isSearchedAtOnce() const
{
    return m_query.acrossParagraphs || m_query.isForRuns();
}

void MRVFindSession::searchPart(const MRVTextRange &part, QVector<MRVTextRange> *finds)
{
    if (!m_search) {
        m_search = std::make_unique<MRVQuerySearch>(m_document, m_query);
    }
    const MRVTextRange range = m_search->range();
    if (part.end() < range.start() || part.start() > range.end()) {
        return;
    }
    m_search->eachFind(mrvClipped(range, part.start(), part.end()), [&](const MRVQueryFind &find) {
        finds->append(find.range);
        return true;
    });
    m_search->report(&m_outcome);
}

// The paragraphs that an edit has changed are searched again. Where more than their own text
// decides about finds, all of the document is.
void MRVFindSession::followEdit(int position, int removed, int added)
{
    m_isFollowed = true;
    m_search.reset();
    followRange(position, removed, added);
    const bool isLocal = !m_query.acrossParagraphs && m_query.kinds.isEmpty() && !m_query.accepts;
    if (!isLocal || !isComplete() || !m_outcome.isComplete()) {
        restart(position);
    } else {
        const int start = m_document->findBlock(position).position();
        const QTextBlock last =
            m_document->findBlock(qMin(position + added, m_document->characterCount() - 1));
        const int end = last.position() + last.length() - 1;
        m_before += m_after;
        m_after.clear();
        m_start = m_position = m_document->characterCount();
        m_isPastEnd = true;
        adjust(&m_before, MRVTextRange(start, qMax(start, end - added + removed)), added - removed);
        QVector<MRVTextRange> finds;
        searchPart(MRVTextRange(start, end), &finds);
        const auto place =
            std::lower_bound(m_before.begin(), m_before.end(), MRVTextRange(start, start));
        const int index = int(place - m_before.begin());
        m_before = m_before.mid(0, index) + finds + m_before.mid(index);
    }
    Q_EMIT changed();
}

// A document without a layout, which no editor shows, does not tell where it was edited.
void MRVFindSession::followAnyEdit()
{
    if (!m_isFollowed) {
        followRange(0, m_document->characterCount(), m_document->characterCount()); // anywhere
        restart(m_start);
        Q_EMIT changed();
    }
    m_isFollowed = false;
}

int MRVFindSession::numberOf(const QTextCursor &selection) const
{
    if (selection.isNull()) {
        return 0;
    }
    const MRVTextRange range(selection);
    int before = 0;
    for (const QVector<MRVTextRange> *finds : {&m_before, &m_after}) {
        const auto place = std::lower_bound(finds->cbegin(), finds->cend(), range);
        if (place != finds->cend() && *place == range) {
            return before + int(place - finds->cbegin()) + 1;
        }
        before += finds->size();
    }
    return 0;
}

QTextCursor MRVFindSession::select(int index) const
{
    const bool isBefore = index < m_before.size();
    return mrvSelect(m_document,
                     isBefore ? m_before.at(index) : m_after.at(index - m_before.size()));
}

QTextCursor MRVFindSession::next(const QTextCursor &from, bool *wrapped) const
{
    const QVector<MRVTextRange> known = finds();
    const int end = from.isNull() ? 0 : from.selectionEnd();
    const auto isEarlier = [](const MRVTextRange &find, int place) { return find.start() < place; };
    int index =
        int(std::lower_bound(known.cbegin(), known.cend(), end, isEarlier) - known.cbegin());
    const bool again = index < known.size() && !from.isNull() && !from.hasSelection()
        && known.at(index) == MRVTextRange(end, end);
    index += again ? 1 : 0;
    if (wrapped) {
        *wrapped = index >= known.size();
    }
    // Before the search has come round, the first find that is known need not be the next one.
    const bool isFirstKnown = m_isPastEnd && !m_before.isEmpty();
    const bool isKnown = isComplete() || (end >= m_start && (index < known.size() || isFirstKnown));
    if (!m_document || known.isEmpty() || !isKnown) {
        return QTextCursor();
    }
    return select(index % known.size());
}

QTextCursor MRVFindSession::previous(const QTextCursor &from, bool *wrapped) const
{
    const QVector<MRVTextRange> known = finds();
    const int start = from.isNull() ? 0 : from.selectionStart();
    const auto isEarlier = [](int place, const MRVTextRange &find) { return place < find.end(); };
    int index =
        int(std::upper_bound(known.cbegin(), known.cend(), start, isEarlier) - known.cbegin()) - 1;
    const bool again = index >= 0 && !from.isNull() && !from.hasSelection()
        && known.at(index) == MRVTextRange(start, start);
    index -= again ? 1 : 0;
    if (wrapped) {
        *wrapped = index < 0;
    }
    const bool isKnown =
        isComplete() || (index >= m_before.size() && (m_isPastEnd || start <= m_position));
    if (!m_document || known.isEmpty() || !isKnown) {
        return QTextCursor();
    }
    return select(index < 0 ? known.size() - 1 : index);
}
