#pragma once

#include "screenplay/mrvscriptpage.h"

#include <QVector>

class MrvScriptTypesetter;
struct MrvScriptPaper;

/**
 * The pages of a script's title page: the title in the middle, dates at the lower right, contact
 * and all else at the lower left.
 */
QVector<MRVScriptPage> mrvScriptTitlePages(const MRVFountainScript &script,
                                           const MrvScriptPaper &paper,
                                           MrvScriptTypesetter *setter);
