#pragma once

#include "screenplay/mrvprintedparagraph_p.h"

#include <QVector>

class MrvScriptTypesetter;

/** What is placed together: a paragraph, a speech from its cue on, or two of them side by side. */
struct MrvScriptUnit
{
    enum Kind { Plain, Speech, Beside };

    Kind kind = Plain;
    int first = 0; ///< index of a paragraph
    int second = 0; ///< of Beside, where the second speech begins
    int end = 0;
};

/** The paragraphs of a script, and which of them are placed together. */
class MrvScriptUnits
{
public:
    /** Both have to outlive it. */
    MrvScriptUnits(const MRVFountainScript &script, MrvScriptTypesetter *setter);

    /** Fills both lists; once. */
    void collect();

    QVector<MrvPrintedParagraph> &paragraphs() { return m_paragraphs; }
    const QVector<MrvScriptUnit> &units() const { return m_units; }

private:
    int collectSpeech(int cue);
    void collectPlain(int element);
    bool isBesideTheLast(int cue) const;
    void addUnit(MrvScriptUnit::Kind kind, int first);

    const MRVFountainScript &m_script;
    MrvScriptTypesetter &m_setter;
    QVector<MrvPrintedParagraph> m_paragraphs;
    QVector<MrvScriptUnit> m_units;
};
