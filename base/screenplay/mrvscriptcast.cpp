#include "screenplay/mrvscriptcast.h"

#include "screenplay/mrvcueparts_p.h"

#include <algorithm>

namespace {

// What somebody says who has it: ANN'S VOICE is Ann, but ANN'S MOTHER is not.
bool isVoice(const QString &owned)
{
    static const QStringList words =
        QStringLiteral("VOICE VOICE-OVER VOICEMAIL V.O. VO O.S. THOUGHT THOUGHTS RECORDING MESSAGE "
                       "STIMME GEDANKEN VOIX VOZ")
            .split(u' ');
    return std::any_of(words.cbegin(), words.cend(), [&owned](const QString &word) {
        return owned == word || owned.endsWith(u' ' + word);
    });
}

} // namespace

MRVScriptCast::MRVScriptCast(const MRVFountainScript &script)
{
    for (const MRVFountainElement &element : script.elements) {
        if (element.kind != MRVFountainElement::Character) {
            continue;
        }
        const QString name = nameOf(element.text());
        int &cues = m_cues[name];
        if (++cues > 1 || name.isEmpty()) {
            continue;
        }
        m_names.append(name);
        m_parts.insert(name);
        const QVector<MrvCuePart> parts = mrvCueParts(name, name.size());
        for (const MrvCuePart &part : parts) {
            m_parts.insert(name.mid(part.start, part.end - part.start));
            m_parts.insert(name.mid(part.start, part.ownerEnd - part.start));
        }
    }
}

QString MRVScriptCast::nameOf(const QString &cue)
{
    return MRVFountainScript::cueName(cue).simplified().toUpper();
}

bool MRVScriptCast::speaks(const QString &name) const
{
    return m_parts.contains(name.simplified().toUpper());
}

// A part of a cue that has a cue of its own; else null.
QString MRVScriptCast::ownName(const QString &cue, int start, int end) const
{
    const QString name = cue.mid(start, end - start);
    return m_cues.contains(name) && !name.isEmpty() ? name : QString();
}

QStringList MRVScriptCast::namesIn(const QString &cue) const
{
    const QString name = nameOf(cue);
    QStringList names;
    const QVector<MrvCuePart> parts = mrvCueParts(name, name.size());
    for (const MrvCuePart &part : parts) {
        const bool isWhole = parts.size() == 1;
        const QString own = isWhole ? QString() : ownName(name, part.start, part.end);
        const bool isOwned = part.ownerEnd < part.end
            && isVoice(name.mid(part.ownerEnd, part.end - part.ownerEnd).trimmed());
        const QString owner = isOwned ? ownName(name, part.start, part.ownerEnd) : QString();
        if (own.isNull() && owner.isNull()) {
            return {name};
        }
        names.append(own.isNull() ? owner : own);
    }
    names.removeDuplicates();
    return names;
}
