#include "screenplay/mrvscriptcheck.h"

#include "screenplay/mrvcueparts_p.h"
#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvscriptcast.h"
#include "screenplay/mrvscriptscenes.h"
#include "screenplay/mrvsimilarnames_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>

namespace {

using Element = MRVFountainElement;
using Fault = MRVScriptFault;

// Names with the lines on which they are used first.
class PlacedNames
{
public:
    void add(const QString &name, int line)
    {
        if (m_names.add(name) == m_lines.size()) {
            m_lines.append(line);
        }
    }

    /** Adds each of the names that a cue joins. */
    void addParts(const QString &cue, int line)
    {
        const QVector<MrvCuePart> parts = mrvCueParts(cue, cue.size());
        for (const MrvCuePart &part : parts) {
            add(cue.mid(part.start, part.end - part.start), line);
        }
    }

    /** @p apart and @p spelled have the rare name as %1 and the usual one as %2. */
    void addFaults(Fault::Kind kind, const QString &apart, const QString &spelled,
                   QVector<Fault> *faults) const
    {
        const QVector<MrvSimilarNames::Pair> pairs = m_names.pairs();
        for (const MrvSimilarNames::Pair &pair : pairs) {
            const QString text = pair.isSpelling ? spelled : apart;
            faults->append({kind, m_lines.at(pair.rare), m_lines.at(pair.usual),
                            text.arg(m_names.name(pair.rare), m_names.name(pair.usual))});
        }
    }

private:
    MrvSimilarNames m_names;
    QVector<int> m_lines; // by index of the name
};

// Whether something is said after a cue; what interrupts a speech is skipped.
bool isFollowedBySpeech(const QVector<Element> &elements, int cue)
{
    for (int i = cue + 1; i < elements.size(); ++i) {
        const Element &element = elements.at(i);
        switch (element.kind) {
        case Element::Dialogue:
            return true;
        case Element::Lyrics:
            return !element.apart;
        case Element::Parenthetical:
        case Element::Section:
        case Element::Synopsis:
            break;
        default:
            return false;
        }
    }
    return false;
}

// The faults of a script's elements, each on the line that is given for it.
QVector<Fault> faultsOf(const MRVFountainScript &script, const QVector<int> &lines)
{
    static const QRegularExpression dash(QStringLiteral(" +-+ +|--+|\\s*[\u2013\u2014/]\\s*"));
    const MRVScriptCast cast(script);
    QVector<Fault> faults;
    PlacedNames names;
    PlacedNames places;
    for (int i = 0; i < script.elements.size(); ++i) {
        const Element &element = script.elements.at(i);
        const QString text = element.text().simplified();
        const int line = lines.at(i);
        if (element.kind == Element::Character) {
            names.addParts(MRVScriptCast::nameOf(text), line);
            if (!isFollowedBySpeech(script.elements, i)) {
                faults.append(
                    {Fault::SilentCue, line, 0, MRVScriptCheck::tr("'%1' says nothing").arg(text)});
            }
        } else if (element.kind == Element::SceneHeading) {
            const QString place = MRVSceneHeading::of(text).place.toUpper();
            const QStringList parts = place.split(dash, Qt::SkipEmptyParts);
            for (const QString &part : parts) {
                places.add(part, line);
            }
        } else if (element.kind == Element::Action && !text.isEmpty() && text == text.toUpper()
                   && cast.cues(text) > 0) {
            faults.append({Fault::SilentCue, line, 0,
                           MRVScriptCheck::tr("'%1' looks like a cue, but is action").arg(text)});
        }
    }
    names.addFaults(Fault::SimilarNames,
                    MRVScriptCheck::tr("the cue '%1' is one letter apart from '%2'"),
                    MRVScriptCheck::tr("the cue '%1' is spelled '%2'"), &faults);
    places.addFaults(Fault::SimilarPlaces,
                     MRVScriptCheck::tr("the place '%1' is one letter apart from '%2'"),
                     MRVScriptCheck::tr("the place '%1' is spelled '%2'"), &faults);
    return faults;
}

// In the order of lines, and of kinds on one line.
QVector<Fault> sorted(QVector<Fault> faults)
{
    std::stable_sort(faults.begin(), faults.end(),
                     [](const Fault &one, const Fault &other) { return one.line < other.line; });
    return faults;
}

} // namespace

QVector<MRVScriptFault> MRVScriptCheck::ofText(const QString &text)
{
    QVector<int> lines;
    const MRVFountainScript script = MRVFountainScript::fromText(text, &lines);
    QVector<Fault> faults = faultsOf(script, lines);
    const QString plain = MrvFountain::plainText(text);
    const QVector<int> marks = MrvFountain::unmatchedMarks(plain);
    int line = 1;
    int at = 0;
    for (const int mark : marks) {
        for (; at < mark; ++at) {
            line += plain.at(at) == u'\n' ? 1 : 0;
        }
        const QString sign = plain.mid(mark, 2);
        const bool isNote = sign.at(0) == u'[' || sign.at(0) == u']';
        const bool isEnd = sign.at(0) == u']' || sign.at(0) == u'*';
        faults.append({isNote ? Fault::OpenNote : Fault::OpenCut, line, 0,
                       (isEnd        ? tr("'%1' ends nothing")
                            : isNote ? tr("'%1' begins a note that does not end in its paragraph")
                                     : tr("'%1' begins cut text that does not end"))
                           .arg(sign)});
    }
    return sorted(faults);
}

QVector<MRVScriptFault> MRVScriptCheck::of(const MRVFountainScript &script)
{
    QVector<int> paragraphs(script.elements.size());
    std::iota(paragraphs.begin(), paragraphs.end(), 1);
    return sorted(faultsOf(script, paragraphs));
}
