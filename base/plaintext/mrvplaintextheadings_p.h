#pragma once

#include "plaintext/mrvplaintextmarks_p.h"

/** What is made of a group: a heading with the groups that belong to it, or a break, or text. */
struct MRVPlainBlock
{
    MRVPlainMark::Kind kind = MRVPlainMark::Text;
    int level = 0; ///< of a heading, from 1; else 0
    int groups = 1; ///< with the title of a heading
};

/** The blocks of a text, in order, which hold each group once. */
QVector<MRVPlainBlock> mrvPlainBlocks(const QVector<MRVPlainGroup> &groups);
