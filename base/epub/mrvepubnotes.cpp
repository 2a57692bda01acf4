#include "epub/mrvepubnotes_p.h"

#include "document/mrvnotefinder.h"
#include "epub/mrvepubformats_p.h"

#include <QMap>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

struct MRVEPubNotes::Finder
{
    using Look = QPair<int, int>; // a left margin and a size of text

    Finder(MRVEPubNotes *target, MRVEPubFormats *allFormats)
        : notes(*target)
        , flow(target->m_flow)
        , marked(flow)
        , formats(*allFormats)
        , candidates(marked.candidates())
    {
    }

    void find()
    {
        if (candidates.isEmpty()) {
            return;
        }
        readLooks();
        QVector<MRVMarkedNote> group;
        int end = 0; // of the section that the group stands in
        for (auto it = candidates.constBegin(); it != candidates.constEnd(); ++it) {
            if (it.key() >= end || flow.isInFrame(it.key())) {
                addGroup(group, end);
                group.clear();
                end = sectionEnd(it.key());
            }
            const auto next = std::next(it);
            const int limit = next == candidates.constEnd() ? end : qMin(end, next.key());
            const bool isItem = flow.paragraphs.at(it.key()).list >= 0;
            const int after = isItem ? qMax(it.key() + 1, itemEnd(it.key(), limit)) : limit;
            MRVMarkedNote note;
            if (marked.isNote(it.key(), after, &note)) {
                group.append(note);
            }
        }
        addGroup(group, end);
    }

    // Up to a rule, or a heading that is none of a note's; in a table, each note stands alone.
    int sectionEnd(int begin) const
    {
        int end = begin + 1;
        while (end < flow.count() && !flow.isInFrame(begin)
               && (flow.isInFrame(end) || !(flow.hasRule(end) || endsNotes(end, begin)))) {
            ++end;
        }
        return end;
    }

    // A heading stands in a note when it is in the list item, or above text that looks like the
    // note and unlike the body's.
    bool endsNotes(int heading, int note) const
    {
        const MRVFlowParagraph &place = flow.paragraphs.at(heading);
        const MRVFlowParagraph &first = flow.paragraphs.at(note);
        if (place.headingLevel == 0) {
            return false;
        }
        if (first.list >= 0) {
            return place.list < 0 && formats.paragraph(place.format).indent < depthOf(first);
        }
        int next = heading + 1;
        while (next < flow.count() && flow.isBlank(next)) {
            ++next;
        }
        return next == flow.count() || flow.isInFrame(next) || candidates.contains(next)
            || flow.paragraphs.at(next).headingLevel > 0 || looks.at(next) == body
            || looks.at(next) != looks.at(note);
    }

    // A note that cannot be told from the text stays: one that is torn apart is worse than one that
    // stands where it was written. Where that is true of half of a section's notes, all stay.
    void addGroup(QVector<MRVMarkedNote> group, int sectionEnd)
    {
        QVector<MRVMarkedNote> certain;
        for (int i = 0; i < group.size(); ++i) {
            const bool isLast = i + 1 == group.size();
            MRVMarkedNote &entry = group[i];
            entry.end = entry.isSaid ? entry.end
                : flow.paragraphs.at(entry.begin).list >= 0
                ? itemEnd(entry.begin, isLast ? sectionEnd : group.at(i + 1).begin)
                : isLast ? noteEnd(entry, sectionEnd, true)
                         : noteEnd(entry, group.at(i + 1).begin, false);
            if (entry.end >= 0) {
                certain.append(entry);
            }
        }
        if (2 * certain.size() <= group.size()) {
            return;
        }
        for (const MRVMarkedNote &entry : qAsConst(certain)) {
            addNote(entry);
        }
    }

    void addNote(const MRVMarkedNote &entry)
    {
        for (const int link : entry.marks) {
            notes.m_marks.insert(link, notes.m_notes.size());
        }
        for (const int link : entry.backLinks) {
            notes.m_backLinks.insert(link, true);
        }
        notes.m_begins.insert(entry.begin, notes.m_notes.size());
        notes.m_notes.append(
            {entry.begin, entry.end, entry.marks, nameOf(entry.marks.constFirst())});
    }

    QString nameOf(int mark) const { return marked.linkAt(mark)->address.mid(1); }

    // Where a list item ends; -1 where what follows cannot be told from it, or where it is an item
    // of the same list that is no note.
    int itemEnd(int begin, int limit) const
    {
        const MRVFlowParagraph &first = flow.paragraphs.at(begin);
        const int indent = formats.paragraph(first.format).indent;
        int end = begin + 1;
        bool isOpen = false; // since a table
        for (int i = end; i < limit; ++i) {
            const MRVFlowParagraph &next = flow.paragraphs.at(i);
            if (flow.isInFrame(i) || flow.isBlank(i)) {
                isOpen = isOpen || flow.isInFrame(i);
                continue;
            }
            const int other = formats.paragraph(next.format).indent;
            const bool isInside = next.list >= 0
                ? next.list != first.list && other >= indent && depthOf(next) > depthOf(first)
                : other >= depthOf(first);
            if (!isInside) {
                return isOpen || next.list == first.list ? -1 : end;
            }
            end = i + 1;
            isOpen = false;
        }
        const bool hasNext = limit < flow.count() && flow.paragraphs.at(limit).list == first.list;
        return !isOpen ? end : hasNext ? limit : -1;
    }

    // Where a note ends: all up to the next note is its own, but for text that looks like the
    // body's where the note does not. The last one has only what looks as it does. -1 where it
    // cannot be told.
    int noteEnd(const MRVMarkedNote &note, int limit, bool isLast) const
    {
        const Look &own = looks.at(note.begin);
        const Look &around = looks.at(flow.paragraphAt(note.marks.constFirst()));
        const bool isApart = own != body && own != around;
        int end = note.end;
        int last = end; // what is not blank ends
        for (int i = end; i < limit; ++i) {
            if (flow.isInFrame(i) || flow.paragraphs.at(i).headingLevel > 0) {
                last = i + 1;
                continue;
            }
            if (flow.isBlank(i)) {
                continue;
            }
            const Look &look = looks.at(i);
            if (isApart && (look == body || look == around)) {
                return last > end ? -1 : end;
            }
            if (candidates.contains(i) || (look != own && holdsMark(i))
                || (!isApart && (isLast || holdsMark(i)))) {
                return -1;
            }
            last = i + 1;
            end = isApart && look == own && flow.paragraphs.at(i).list < 0 ? last : end;
        }
        return isLast && last > end ? -1 : last;
    }

    bool holdsMark(int paragraph) const
    {
        const MRVFlowParagraph &place = flow.paragraphs.at(paragraph);
        for (auto link = marked.linkAt(place.position);
             link != flow.links.end() && link->begin < place.position + place.length; ++link) {
            if (marked.targetOf(*link) >= 0
                && candidates.value(flow.paragraphAt(marked.targetOf(*link)))
                       .contains(link->begin)) {
                return true;
            }
        }
        return false;
    }

    // What sets paragraphs apart; that of most of the text before notes is the body's.
    void readLooks()
    {
        QMap<Look, int> lengths;
        looks.reserve(flow.count());
        bool isBody = true;
        for (int i = 0; i < flow.count(); ++i) {
            looks.append({leftOf(i), sizeOf(i)});
            const MRVFlowParagraph &paragraph = flow.paragraphs.at(i);
            if (flow.isInFrame(i)) {
                continue;
            }
            isBody = !candidates.contains(i)
                && (isBody || paragraph.headingLevel > 0 || flow.hasRule(i));
            if (isBody && paragraph.headingLevel == 0 && paragraph.list < 0) {
                lengths[looks.constLast()] += paragraph.length;
            }
        }
        int longest = 0;
        for (auto it = lengths.constBegin(); it != lengths.constEnd(); ++it) {
            body = it.value() > longest ? it.key() : body;
            longest = qMax(longest, it.value());
        }
    }

    // Of the longest stretch of text.
    int sizeOf(int paragraph) const
    {
        const int end = flow.paragraphs.at(paragraph + 1).firstFragment;
        int size = 0;
        int longest = 0;
        for (int i = flow.paragraphs.at(paragraph).firstFragment; i < end; ++i) {
            const MRVFlowFragment &fragment = flow.fragments.at(i);
            const int other = formats.text(fragment.format).look[MRVEPubTextLook::Size];
            size = fragment.length > longest ? other : size;
            longest = qMax(longest, fragment.length);
        }
        return size;
    }

    int depthOf(const MRVFlowParagraph &item) const
    {
        return flow.document.object(item.list)->format().toListFormat().indent();
    }

    int leftOf(int paragraph) const
    {
        const MRVEPubParagraphFormat &format =
            formats.paragraph(flow.paragraphs.at(paragraph).format);
        return format.look[MRVEPubParagraphLook::Left] + format.quoteLevel * 2500;
    }

    MRVEPubNotes &notes;
    const MRVDocumentFlow &flow;
    const MRVNoteFinder marked;
    MRVEPubFormats &formats;
    const QMap<int, QVector<int>> &candidates; // marks by the paragraph that they lead to
    QVector<Look> looks; // of paragraphs
    Look body;
};

MRVEPubNotes::MRVEPubNotes(const MRVDocumentFlow &flow, MRVEPubFormats *formats)
    : m_flow(flow)
{
    if (!flow.links.isEmpty() && !flow.anchors.isEmpty()) {
        Finder(this, formats).find();
    }
}

void MRVEPubNotes::place(const QVector<int> &pages)
{
    if (m_notes.isEmpty()) {
        return;
    }
    m_isMoved.resize(m_flow.count() + 1);
    const auto pageOf = [&pages](int paragraph) {
        return int(std::upper_bound(pages.begin(), pages.end(), paragraph) - pages.begin()) - 1;
    };
    QHash<int, bool> ownPages;
    for (MRVEPubNote &note : m_notes) {
        const int page = pageOf(note.begin);
        if (!ownPages.contains(page)) {
            const int end = page + 1 < pages.size() ? pages.at(page + 1) : m_flow.count();
            ownPages.insert(page, isOnlyNotes(pages.at(page), end));
        }
        const bool isElsewhere = pageOf(m_flow.paragraphAt(note.marks.constFirst())) != page;
        note.isMoved = !m_flow.isInFrame(note.begin) && !(ownPages.value(page) && isElsewhere);
        for (int i = note.begin; note.isMoved && i < note.end; ++i) {
            m_isMoved[i] = true;
        }
    }
    int begin = 0;
    for (int i = 1; i <= m_flow.count(); ++i) {
        const bool isDivided = i == m_flow.count()
            || (!isMoved(i) && (m_flow.paragraphs.at(i).headingLevel > 0 || m_flow.hasRule(i)));
        if (isDivided) {
            moveHeadings(begin, i);
            begin = i;
        }
    }
}

bool MRVEPubNotes::isOnlyNotes(int begin, int end) const
{
    for (int i = begin; i < end; ++i) {
        const int note = beginningAt(i);
        if (note >= 0) {
            i = m_notes.at(note).end - 1;
        } else if (m_flow.paragraphs.at(i).headingLevel == 0 && !m_flow.isBlank(i)
                   && !(m_flow.hasRule(i) && m_flow.paragraphs.at(i).length == 0)) {
            return false;
        }
    }
    return true;
}

// What heads notes that have all left says nothing where it stands: a heading goes with them, a
// rule goes altogether.
void MRVEPubNotes::moveHeadings(int begin, int end)
{
    const MRVFlowParagraph &first = m_flow.paragraphs.at(begin);
    const bool isRule = m_flow.hasRule(begin) && first.length == 0;
    if ((first.headingLevel == 0 && !isRule) || begin + 1 >= end) {
        return;
    }
    int firstNote = -1;
    for (int i = begin + 1; i < end; ++i) {
        if (!m_isMoved.at(i) && !m_flow.isBlank(i)) {
            return;
        }
        firstNote = firstNote < 0 ? beginningAt(i) : firstNote;
    }
    if (firstNote >= 0) {
        m_isMoved[begin] = true;
        m_notes[firstNote].heading = isRule ? -1 : begin;
    }
}
