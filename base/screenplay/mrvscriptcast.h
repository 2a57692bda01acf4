#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/**
 * Who speaks in a script, and who is meant by a cue.
 *
 * Names are compared in capitals, with one blank between their words.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptCast
{
public:
    /** The cast of @p script. Takes time linear in it. */
    explicit MRVScriptCast(const MRVFountainScript &script);

    /** The names of all cues, in the order of their first ones; joint cues as they stand. */
    QStringList names() const { return m_names; }

    /** How many cues have the name @p name and no other one. */
    int cues(const QString &name) const { return m_cues.value(MRVScriptCast::nameOf(name)); }

    /**
     * Whether a cue names @p name: as it stands, joined with others, or as whom a voice belongs to.
     */
    bool speaks(const QString &name) const;

    /**
     * Whom a cue names: "ANN AND BOB" ANN and BOB, and "ANN'S VOICE" ANN, where each of them has a
     * cue of their own; otherwise the one name that it is, as is "ANN'S MOTHER".
     */
    QStringList namesIn(const QString &cue) const;

    /** The name of a cue in capitals, without extensions. */
    static QString nameOf(const QString &cue);

private:
    QString ownName(const QString &cue, int start, int end) const;

    QStringList m_names;
    QHash<QString, int> m_cues;
    QSet<QString> m_parts; // all that speaks() answers
};
