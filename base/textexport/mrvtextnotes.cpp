#include "textexport/mrvtextnotes_p.h"

#include "document/mrvnotefinder.h"
#include "textformat/mrvtextformat.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

struct MRVTextNotes::Reader
{
    Reader(const MRVDocumentFlow &document, MRVTextNotes *target)
        : flow(document)
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
            if (!flow.isInFrame(i) && !notes.m_moved.at(i)) {
                readParagraph(flow.paragraphs.at(i), flow.paragraphs.at(i + 1).firstFragment);
            }
        }
        std::sort(
            notes.m_cuts.begin(), notes.m_cuts.end(),
            [](const MRVTextCut &one, const MRVTextCut &other) { return one.begin < other.begin; });
        sortNotes();
    }

private:
    bool isFree(int paragraph) const
    {
        return !flow.isInFrame(paragraph) && !notes.m_moved.at(paragraph);
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
                   return isFree(paragraph) && (paragraph < note.begin || paragraph >= note.end);
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
        end = words.hasMatch() ? begin + words.capturedLength() : end;
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
        notes.m_cuts.append({begin, end, -1});
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

    void readParagraph(const MRVFlowParagraph &paragraph, int endFragment)
    {
        int at = paragraph.position;
        bool wasInText = false;
        for (int i = paragraph.firstFragment; i < endFragment; ++i) {
            const MRVFlowFragment &fragment = flow.fragments.at(i);
            const bool isNote = isInText(fragment.format);
            const int end = at + fragment.length;
            if (isNote && wasInText) {
                notes.m_notes.last().end = end;
                notes.m_cuts.last().end = end;
            } else if (isNote) {
                MRVTextNote note;
                note.begin = at;
                note.end = end;
                note.firstFragment = i;
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
    const MRVNoteFinder finder;
    MRVTextNotes &notes;
    QHash<int, bool> formats; // whether text of it is a note
};

MRVTextNotes::MRVTextNotes(const MRVDocumentFlow &flow)
    : m_moved(flow.count() + 1)
{
    Reader(flow, this).read();
}

QVector<MRVTextCut>::const_iterator MRVTextNotes::cutAt(int position) const
{
    return std::lower_bound(m_cuts.begin(), m_cuts.end(), position,
                            [](const MRVTextCut &cut, int place) { return cut.end < place; });
}
