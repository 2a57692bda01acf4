#include "epub/mrvepubnotes_p.h"

#include "epub/mrvepubformats_p.h"

#include <QMap>
#include <QTextDocument>
#include <QTextList>

#include <algorithm>

namespace {

constexpr int LongestMark = 8;

} // namespace

struct MRVEPubNotes::Finder
{
    Finder(MRVEPubNotes *target, MRVEPubFormats *allFormats)
        : notes(*target)
        , flow(target->m_flow)
        , formats(*allFormats)
    {
        for (const MRVEPubAnchor &anchor : flow.anchors) {
            if (!places.contains(anchor.name)) {
                places.insert(anchor.name, anchor.position);
            }
        }
        for (const MRVEPubFrame &frame : flow.frames) {
            bounds.append(frame.begin);
            bounds.append(frame.end);
        }
        std::sort(bounds.begin(), bounds.end());
    }

    // Where a link within the document leads; -1 elsewhere.
    int targetOf(const MRVEPubLink &link) const
    {
        return link.address.startsWith(u'#') ? places.value(link.address.mid(1), -1) : -1;
    }

    bool isMark(const MRVEPubLink &link) const
    {
        const QStringView text =
            QStringView(flow.text).mid(link.begin, link.end - link.begin).trimmed();
        if (text.isEmpty() || text.size() > LongestMark) {
            return false;
        }
        const bool isBracketed = text.front() == u'[' || text.front() == u'(';
        return isBracketed || isRaised(link.begin)
            || std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    }

    bool isRaised(int position) const
    {
        const MRVEPubParagraph &paragraph = flow.paragraphs.at(flow.paragraphAt(position));
        int at = paragraph.position;
        int fragment = paragraph.firstFragment;
        while (at + flow.fragments.at(fragment).length <= position) {
            at += flow.fragments.at(fragment++).length;
        }
        return formats.text(flow.fragments.at(fragment).format).elements
            & (1U << int(MRVEPubInline::Raised));
    }

    // The paragraph that a mark leads to the beginning of; -1 where it does not.
    int noteParagraph(const MRVEPubLink &link) const
    {
        const int position = targetOf(link);
        if (position < link.end) {
            return -1;
        }
        const int paragraph = flow.paragraphAt(position);
        const MRVEPubParagraph &place = flow.paragraphs.at(paragraph);
        const QStringView before =
            QStringView(flow.text).mid(place.position, position - place.position);
        const bool leads = place.headingLevel == 0 && before.trimmed().isEmpty()
            && paragraph != flow.paragraphAt(link.begin) && isMark(link);
        return leads ? paragraph : -1;
    }

    void find()
    {
        QMap<int, QVector<int>> candidates; // marks by paragraph
        for (const MRVEPubLink &link : flow.links) {
            const int paragraph = noteParagraph(link);
            if (paragraph >= 0) {
                candidates[paragraph].append(link.begin);
            }
        }
        for (auto it = candidates.begin(); it != candidates.end(); ++it) {
            const auto next = std::next(it);
            const int most = next == candidates.end() ? flow.count() : next.key();
            addNote(it.key(), limit(it.key(), most), it.value());
        }
    }

    // No note goes on beyond a heading, a rule or a table.
    int limit(int begin, int most) const
    {
        const auto bound = std::upper_bound(bounds.begin(), bounds.end(), begin);
        int end = bound == bounds.end() ? most : qMin(most, *bound);
        if (flow.isInFrame(begin)) {
            return begin + 1;
        }
        int last = begin + 1;
        while (last < end && flow.paragraphs.at(last).headingLevel == 0 && !flow.hasRule(last)) {
            ++last;
        }
        return last;
    }

    void addNote(int begin, int limit, const QVector<int> &marks)
    {
        const int firstLink =
            int(std::lower_bound(flow.links.begin(), flow.links.end(),
                                 flow.paragraphs.at(begin).position,
                                 [](const MRVEPubLink &link, int at) { return link.begin < at; })
                - flow.links.begin());
        int end = 0;
        QVector<int> backLinks;
        for (int i = firstLink; i < flow.links.size(); ++i) {
            const int paragraph = flow.paragraphAt(flow.links.at(i).begin);
            if (paragraph >= limit) {
                break;
            }
            if (leadsBack(flow.links.at(i), marks)) {
                backLinks.append(flow.links.at(i).begin);
                end = paragraph + 1;
            }
        }
        if (backLinks.isEmpty()) {
            return;
        }
        const int mark = flow.paragraphAt(marks.constFirst());
        MRVEPubNote note{begin, goesOnTo(begin, end, limit, mark), marks,
                         nameOf(marks.constFirst())};
        for (const int link : marks) {
            notes.m_marks.insert(link, notes.m_notes.size());
        }
        for (const int link : qAsConst(backLinks)) {
            notes.m_backLinks.insert(link, true);
        }
        notes.m_begins.insert(begin, notes.m_notes.size());
        notes.m_notes.append(note);
    }

    QString nameOf(int mark) const
    {
        const auto link = std::lower_bound(
            flow.links.begin(), flow.links.end(), mark,
            [](const MRVEPubLink &one, int position) { return one.begin < position; });
        return link->address.mid(1);
    }

    bool leadsBack(const MRVEPubLink &link, const QVector<int> &marks) const
    {
        const int target = targetOf(link);
        if (target < 0) {
            return false;
        }
        const int paragraph = flow.paragraphAt(target);
        return std::any_of(marks.begin(), marks.end(),
                           [&](int mark) { return flow.paragraphAt(mark) == paragraph; });
    }

    // Further paragraphs of the list item, or those that are set apart from the text as the first.
    int goesOnTo(int begin, int end, int limit, int mark) const
    {
        const MRVEPubParagraph &first = flow.paragraphs.at(begin);
        const MRVEPubParagraphFormat &format = formats.paragraph(first.format);
        int last = end;
        for (; last < limit; ++last) {
            const MRVEPubParagraph &next = flow.paragraphs.at(last);
            const MRVEPubParagraphFormat &other = formats.paragraph(next.format);
            if (first.list >= 0) {
                const bool isInside = next.list >= 0 ? next.list != first.list
                        && other.indent >= format.indent && depthOf(next) > depthOf(first)
                                                     : other.indent >= depthOf(first);
                if (!isInside || flow.isBlank(last)) {
                    break;
                }
            } else if (next.list >= 0 || flow.isBlank(last) || leftOf(begin) == leftOf(mark)
                       || leftOf(begin) != leftOf(last)) {
                break;
            }
        }
        return last;
    }

    int depthOf(const MRVEPubParagraph &item) const
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
    const MRVEPubFlow &flow;
    MRVEPubFormats &formats;
    QHash<QString, int> places;
    QVector<int> bounds; // of tables and frames
};

MRVEPubNotes::MRVEPubNotes(const MRVEPubFlow &flow, MRVEPubFormats *formats)
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
        if (i == m_flow.count() || m_flow.paragraphs.at(i).headingLevel > 0 || m_flow.hasRule(i)) {
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
    const MRVEPubParagraph &first = m_flow.paragraphs.at(begin);
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
