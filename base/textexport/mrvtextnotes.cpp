#include "textexport/mrvtextnotes_p.h"

#include "document/mrvnotefinder.h"
#include "textformat/mrvtextformat.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

// As MRVTextBlockReader finds it.
bool isCode(const MRVDocumentFlow &flow, int paragraph)
{
    const MRVFlowParagraph &place = flow.paragraphs.at(paragraph);
    return place.headingLevel == 0 && !flow.hasRule(paragraph)
        && flow.formats.at(place.format).toBlockFormat().nonBreakableLines();
}

QVector<MRVTextCut>::const_iterator firstAt(const QVector<MRVTextCut> &cuts, int position)
{
    return std::lower_bound(cuts.begin(), cuts.end(), position,
                            [](const MRVTextCut &cut, int place) { return cut.end < place; });
}

} // namespace

struct MRVTextNotes::Reader
{
    Reader(const MRVDocumentFlow &document, Code code, MRVTextNotes *target)
        : flow(document)
        , codeHasMarks(code == Code::HasMarks)
        , finder(document)
        , notes(*target)
    {
    }

    void read()
    {
        for (const MRVMarkedNote &note : finder.notes()) {
            if (canMove(note)) {
                addMarked(note);
            }
        }
        for (int i = 0; i < flow.count(); ++i) {
            if (isFree(i)) {
                readParagraph(i);
            }
        }
        std::sort(notes.m_cuts.begin(), notes.m_cuts.end(),
                  [](const MRVTextCut &one, const MRVTextCut &other) {
                      return one.begin < other.begin
                          || (one.begin == other.begin && one.end > other.end);
                  });
        sortNotes();
        separateInnerCuts();
    }

private:
    bool isFree(int paragraph) const
    {
        return !flow.isInFrame(paragraph) && !notes.m_moved.at(paragraph);
    }

    bool canHaveMarks(int paragraph) const
    {
        return isFree(paragraph) && (codeHasMarks || !isCode(flow, paragraph));
    }

    bool canMove(const MRVMarkedNote &note) const
    {
        for (int i = note.begin; i < note.end; ++i) {
            if (!isFree(i)) {
                return false;
            }
        }
        return !note.marks.isEmpty()
            && std::all_of(note.marks.begin(), note.marks.end(), [&](int mark) {
                   const int paragraph = flow.paragraphAt(mark);
                   return canHaveMarks(paragraph)
                       && (paragraph < note.begin || paragraph >= note.end);
               });
    }

    void addMarked(const MRVMarkedNote &note)
    {
        MRVTextNote moved;
        moved.firstParagraph = note.begin;
        moved.endParagraph = note.end;
        const MRVFlowLink &mark = *finder.linkAt(note.marks.constFirst());
        static const QRegularExpression name(QStringLiteral("^#fn-?([A-Za-z0-9_-]+)$"));
        moved.label = name.match(mark.address).captured(1);
        for (const int begin : note.marks) {
            notes.m_cuts.append({begin, finder.linkAt(begin)->end, notes.m_notes.size()});
        }
        for (const int begin : note.backLinks) {
            cutBackLink(*finder.linkAt(begin));
        }
        cutLabel(note, QStringView(flow.text).mid(mark.begin, mark.end - mark.begin));
        std::fill(notes.m_moved.begin() + note.begin, notes.m_moved.begin() + note.end, true);
        notes.m_notes.append(moved);
    }

    // With the blanks around it, and the full stop after a number. Editors take what is typed right
    // after a link into it: words after a mark are the author's.
    void cutBackLink(const MRVFlowLink &link)
    {
        static const QRegularExpression mark(
            QStringLiteral("^[^\\pL\\s]+(?=\\s+\\S)|^[^\\w\\s\\[(]+(?=\\pL)"),
            QRegularExpression::UseUnicodePropertiesOption);
        const MRVFlowParagraph &paragraph = flow.paragraphs.at(flow.paragraphAt(link.begin));
        const int last = paragraph.position + paragraph.length;
        int begin = link.begin;
        int end = link.end;
        const auto words = mark.match(flow.text.mid(begin, end - begin));
        if (words.hasMatch()) {
            end = begin + words.capturedLength();
            notes.m_textLinks.insert(begin);
        }
        while (begin > paragraph.position && flow.text.at(begin - 1).isSpace()) {
            --begin;
        }
        const bool isLabel = begin == paragraph.position;
        while (isLabel && end < last && isAfterLabel(flow.text.at(end))) {
            ++end;
        }
        // Two links in a row, or a link after its label.
        if (!notes.m_cuts.isEmpty() && notes.m_cuts.constLast().end > begin) {
            begin = qMin(end, qMax(begin, notes.m_cuts.constLast().end));
        }
        if (begin < end) {
            notes.m_cuts.append({begin, end, -1});
        }
    }

    static bool isAfterLabel(QChar c) { return c.isSpace() || QStringView(u".:)]").contains(c); }

    // The label is said by the mark before the note, which every form of text writes in its way.
    void cutLabel(const MRVMarkedNote &note, QStringView mark)
    {
        static const QRegularExpression around(QStringLiteral("[^\\w*†‡§¶]"));
        const QString label = mark.toString().remove(around);
        const MRVFlowParagraph &first = flow.paragraphs.at(note.begin);
        const QRegularExpression start(QStringLiteral("^\\s*[\\[(]?%1(?:[\\])]?[.:]?\\s+|[\\])])")
                                           .arg(QRegularExpression::escape(label)));
        const int length = start.match(flow.textOf(first).toString()).capturedLength();
        const int end = first.position + length;
        const bool isCut = std::any_of(note.backLinks.begin(), note.backLinks.end(), [&](int link) {
            return link < end || finder.linkAt(link)->begin == first.position;
        });
        if (length > 0 && !label.isEmpty() && !isCut && first.list < 0) {
            notes.m_cuts.append({first.position, end, -1});
        }
    }

    bool isInText(int index)
    {
        auto known = formats.constFind(index);
        if (known == formats.constEnd()) {
            known = formats.insert(
                index, flow.formats.at(index).boolProperty(MRVTextFormat::InlineFootnoteProperty));
        }
        return *known;
    }

    void readParagraph(int paragraph)
    {
        const int endFragment = flow.paragraphs.at(paragraph + 1).firstFragment;
        int at = flow.paragraphs.at(paragraph).position;
        bool wasInText = false;
        for (int i = flow.paragraphs.at(paragraph).firstFragment; i < endFragment; ++i) {
            const MRVFlowFragment &fragment = flow.fragments.at(i);
            const bool isNote = isInText(fragment.format);
            const int end = at + fragment.length;
            if (isNote && wasInText) {
                notes.m_notes.last().end = end;
                notes.m_notes.last().endFragment = i + 1;
                notes.m_cuts.last().end = end;
            } else if (isNote && !canHaveMarks(paragraph)) {
                return;
            } else if (isNote) {
                MRVTextNote note;
                note.begin = at;
                note.end = end;
                note.firstFragment = i;
                note.endFragment = i + 1;
                notes.m_cuts.append({at, end, notes.m_notes.size()});
                notes.m_notes.append(note);
            }
            wasInText = isNote;
            at = end;
        }
    }

    // Numbers are those of the marks in their order.
    void sortNotes()
    {
        QVector<MRVTextNote> sorted;
        QVector<int> places(notes.m_notes.size(), -1);
        for (MRVTextCut &cut : notes.m_cuts) {
            if (cut.note >= 0 && places.at(cut.note) < 0) {
                places[cut.note] = sorted.size();
                sorted.append(notes.m_notes.at(cut.note));
            }
            cut.note = cut.note < 0 ? -1 : places.at(cut.note);
        }
        notes.m_notes = sorted;
        setLabels();
    }

    // A note within the text takes its part of the paragraph along, and the marks in it.
    void separateInnerCuts()
    {
        QVector<MRVTextCut> outer;
        int end = 0;
        for (const MRVTextCut &cut : qAsConst(notes.m_cuts)) {
            const bool isInner = cut.begin < end;
            (isInner ? notes.m_innerCuts : outer).append(cut);
            end =
                !isInner && cut.note >= 0 && notes.m_notes.at(cut.note).begin >= 0 ? cut.end : end;
        }
        notes.m_cuts = outer;
    }

    void setLabels()
    {
        QSet<QString> used;
        for (MRVTextNote &note : notes.m_notes) {
            if (used.contains(note.label.toLower())) {
                note.label.clear();
            }
            used.insert(note.label.toLower());
        }
        int number = 0;
        for (MRVTextNote &note : notes.m_notes) {
            ++number;
            for (int i = number; note.label.isEmpty(); ++i) {
                const QString label = QString::number(i);
                if (!used.contains(label)) {
                    note.label = label;
                    used.insert(label);
                }
            }
        }
    }

    const MRVDocumentFlow &flow;
    const bool codeHasMarks;
    const MRVNoteFinder finder;
    MRVTextNotes &notes;
    QHash<int, bool> formats; // whether text of it is a note
};

MRVTextNotes::MRVTextNotes(const MRVDocumentFlow &flow, Code code)
    : m_moved(flow.count() + 1)
{
    Reader(flow, code, this).read();
}

QVector<MRVTextCut>::const_iterator MRVTextNotes::cutAt(int position) const
{
    return firstAt(m_cuts, position);
}

QVector<MRVTextCut>::const_iterator MRVTextNotes::innerCutAt(int position) const
{
    return firstAt(m_innerCuts, position);
}
