#pragma once

#include "input/mrvxmlreader.h"
#include "screenplay/mrvfountain.h"

#include <QString>
#include <QVector>

// What the XML forms of scripts have in common.

/** What a file may ask of a reader. */
constexpr MRVXmlLimits MrvScriptLimits{MRVXmlLimits::NoDeclarations, MRVInputLimits::ScriptDepth,
                                       MRVInputLimits::ScriptAttributes,
                                       MRVInputLimits::ScriptTagLength};

/** A part of a script: a paragraph, a speech from its cue on, or two speeches side by side. */
struct MrvSpeeches
{
    int start = 0; // index of an element
    int second = 0; // where the second speech begins; the end where the part has only one
    int end = 0;

    bool isDual() const { return second < end; }
};

/** The parts of a script, which together are all of it. */
QVector<MrvSpeeches> mrvSpeeches(const QVector<MRVFountainElement> &elements);

/** A text in parentheses. */
MRVFountainRuns mrvWithBrackets(MRVFountainRuns runs);

/** Removes the parentheses that a text begins and ends with; nothing where it does not. */
void mrvRemoveBrackets(MRVFountainRuns *runs);
