#include "document/mrvnotefinder.h"

#include "textformat/mrvnoteproperty.h"
#include "textformat/mrvtextformat.h"

#include <QTextCharFormat>

#include <algorithm>

namespace {

constexpr int LongestMark = 8;

// What stands for a note instead of a number.
bool isStar(QChar c)
{
    return QStringView(u"*\u2020\u2021\u00a7\u00b6").contains(c);
}

// What may stand around a label.
bool isFrame(QChar c)
{
    return !c.isLetterOrNumber() && !isStar(c);
}

} // namespace

/** Reads the marks of a document, which are looked at in their order. */
struct MRVNoteFinder::Reader
{
    explicit Reader(MRVNoteFinder *target)
        : finder(*target)
        , flow(target->m_flow)
        , formats(flow.formats.size())
    {
    }

    void read()
    {
        for (const MRVFlowLink &link : flow.links) {
            const int paragraph = noteParagraph(link);
            if (paragraph >= 0) {
                finder.m_candidates[paragraph].append(link.begin);
            }
        }
    }

    // The paragraph that a mark leads to the beginning of; -1 where it does not.
    int noteParagraph(const MRVFlowLink &link)
    {
        const int position = finder.targetOf(link);
        if (position < link.end) {
            return -1;
        }
        const int paragraph = flow.paragraphAt(position);
        const MRVFlowParagraph &place = flow.paragraphs.at(paragraph);
        const QStringView before =
            QStringView(flow.text).mid(place.position, position - place.position);
        const bool leads = place.headingLevel == 0 && before.trimmed().isEmpty()
            && paragraph != flow.paragraphAt(link.begin) && isMark(link);
        return leads ? paragraph : -1;
    }

    bool isMark(const MRVFlowLink &link)
    {
        const QStringView text = finder.textOf(link);
        const Format &format = formatAt(link.begin);
        if (format.isSaidToBeMark) {
            return true;
        }
        if (text.isEmpty() || text.size() > LongestMark) {
            return false;
        }
        const auto isSign = [](QChar c) { return c.isDigit() || isStar(c); };
        const bool isBracketed = text.front() == u'[' || text.front() == u'(';
        return (isBracketed || format.isRaised || std::all_of(text.begin(), text.end(), isSign))
            && isInText(link);
    }

    // Whether there is more in the paragraph than links, as there is not in a table of contents.
    bool isInText(const MRVFlowLink &link)
    {
        const int index = flow.paragraphAt(link.begin);
        if (index == textParagraph) {
            return isText;
        }
        textParagraph = index;
        isText = false;
        int at = flow.paragraphs.at(index).position;
        const int end = flow.paragraphs.at(index + 1).firstFragment;
        for (int i = flow.paragraphs.at(index).firstFragment; i < end && !isText; ++i) {
            const MRVFlowFragment &part = flow.fragments.at(i);
            const QStringView text = QStringView(flow.text).mid(at, part.length);
            isText = !formatOf(part.format).isLink
                && std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
            at += part.length;
        }
        return isText;
    }

    // Goes on from the last one of the paragraph, since links are looked at in their order.
    const Format &formatAt(int position)
    {
        const MRVFlowParagraph &paragraph = flow.paragraphs.at(flow.paragraphAt(position));
        if (lastPosition < paragraph.position || lastPosition > position) {
            lastPosition = paragraph.position;
            lastFragment = paragraph.firstFragment;
        }
        while (lastPosition + flow.fragments.at(lastFragment).length <= position) {
            lastPosition += flow.fragments.at(lastFragment++).length;
        }
        return formatOf(flow.fragments.at(lastFragment).format);
    }

    const Format &formatOf(int index)
    {
        Format &format = formats[index];
        if (!format.isKnown) {
            const QTextCharFormat full = flow.formats.at(index).toCharFormat();
            format.isKnown = true;
            format.isRaised = full.verticalAlignment() == QTextCharFormat::AlignSuperScript;
            format.isLink = !full.anchorHref().isEmpty();
            format.isSaidToBeMark =
                full.intProperty(MRVTextFormat::NoteLinkProperty) == MRVTextFormat::NoteMark;
        }
        return format;
    }

    MRVNoteFinder &finder;
    const MRVDocumentFlow &flow;
    QVector<Format> formats; // by index
    int lastFragment = 0; // that was looked at
    int lastPosition = -1; // where it begins
    int textParagraph = -1; // the last one that was looked at for text
    bool isText = false;
};

MRVNoteFinder::MRVNoteFinder(const MRVDocumentFlow &flow)
    : m_flow(flow)
{
    for (const MRVFlowAnchor &anchor : flow.anchors) {
        if (!m_places.contains(anchor.name)) {
            m_places.insert(anchor.name, anchor.position);
        }
    }
    if (!m_places.isEmpty()) {
        Reader(this).read();
    }
}

QVector<MRVMarkedNote> MRVNoteFinder::notes() const
{
    QVector<MRVMarkedNote> notes;
    for (auto it = m_candidates.constBegin(); it != m_candidates.constEnd(); ++it) {
        const auto next = std::next(it);
        const int limit = next == m_candidates.constEnd() ? m_flow.count() : next.key();
        int end = it.key() + 1;
        while (end < limit && m_flow.paragraphs.at(end).headingLevel == 0 && !m_flow.hasRule(end)) {
            ++end;
        }
        MRVMarkedNote note;
        if (isNote(it.key(), end, &note)) {
            notes.append(note);
        }
    }
    return notes;
}

int MRVNoteFinder::targetOf(const MRVFlowLink &link) const
{
    return link.address.startsWith(u'#') ? m_places.value(link.address.mid(1), -1) : -1;
}

QStringView MRVNoteFinder::textOf(const MRVFlowLink &link) const
{
    return QStringView(m_flow.text).mid(link.begin, link.end - link.begin).trimmed();
}

QVector<MRVFlowLink>::const_iterator MRVNoteFinder::linkAt(int position) const
{
    return std::lower_bound(m_flow.links.begin(), m_flow.links.end(), position,
                            [](const MRVFlowLink &one, int at) { return one.begin < at; });
}

bool MRVNoteFinder::isNote(int paragraph, int end, MRVMarkedNote *note) const
{
    *note = {paragraph, paragraph + 1, false, m_candidates.value(paragraph), {}};
    if (note->marks.isEmpty()) {
        return false;
    }
    const bool isItem = m_flow.paragraphs.at(paragraph).list >= 0;
    const int position = m_flow.paragraphs.at(paragraph).position;
    bool is = beginsWithLabel(paragraph, note->marks.constFirst());
    for (auto link = linkAt(position); link != m_flow.links.end(); ++link) {
        const int place = m_flow.paragraphAt(link->begin);
        if (place >= end) {
            break;
        }
        const bool isArrow = isArrowAtEnd(*link, place);
        if ((place == paragraph || isItem || isArrow) && leadsBack(*link, note->marks)) {
            note->backLinks.append(link->begin);
            note->end = place + 1;
            const QStringView before =
                QStringView(m_flow.text).mid(position, link->begin - position);
            is = is || isArrow || std::all_of(before.begin(), before.end(), isFrame);
        }
    }
    const int last = saidEnd(paragraph, end);
    note->isSaid = last >= note->end;
    note->end = qMax(note->end, last);
    return note->isSaid || (is && !note->backLinks.isEmpty());
}

// The end of the note that is said to begin with a paragraph; -1 where none is.
int MRVNoteFinder::saidEnd(int paragraph, int limit) const
{
    const auto noteOf = [this](int index) {
        return m_flow.formats.at(m_flow.paragraphs.at(index).format)
            .intProperty(MRVParagraphNoteProperty);
    };
    const int note = noteOf(paragraph);
    if (note < 1 || (paragraph > 0 && noteOf(paragraph - 1) == note)) {
        return -1;
    }
    int end = paragraph + 1;
    while (end < limit && noteOf(end) == note) {
        ++end;
    }
    return end;
}

bool MRVNoteFinder::beginsWithLabel(int paragraph, int mark) const
{
    QStringView label = textOf(*linkAt(mark));
    while (!label.isEmpty() && isFrame(label.front())) {
        label = label.mid(1);
    }
    while (!label.isEmpty() && isFrame(label.back())) {
        label.chop(1);
    }
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    QStringView text = m_flow.textOf(place);
    while (!text.isEmpty() && isFrame(text.front())) {
        text = text.mid(1);
    }
    const bool begins = text.startsWith(label)
        && (text.size() == label.size() || !text.at(label.size()).isLetterOrNumber());
    const bool isNumber = place.list >= 0 && label.toInt() == place.itemNumber;
    return !label.isEmpty() && (begins || isNumber);
}

bool MRVNoteFinder::isArrowAtEnd(const MRVFlowLink &link, int paragraph) const
{
    const QStringView text = textOf(link);
    const auto isSymbol = [](QChar c) {
        return (c.category() >= QChar::Symbol_Math && c.category() <= QChar::Symbol_Other)
            || c.isSurrogate();
    };
    const auto isWord = [](QChar c) { return c.isLetterOrNumber(); };
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    const QStringView after =
        QStringView(m_flow.text).mid(link.end, place.position + place.length - link.end);
    return std::any_of(text.begin(), text.end(), isSymbol)
        && std::none_of(text.begin(), text.end(), isWord)
        && std::none_of(after.begin(), after.end(), isWord);
}

bool MRVNoteFinder::leadsBack(const MRVFlowLink &link, const QVector<int> &marks) const
{
    const int target = targetOf(link);
    if (target < 0) {
        return false;
    }
    const int paragraph = m_flow.paragraphAt(target);
    return std::any_of(marks.begin(), marks.end(),
                       [&](int mark) { return m_flow.paragraphAt(mark) == paragraph; });
}
