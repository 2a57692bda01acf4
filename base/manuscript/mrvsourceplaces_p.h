#pragma once

#include "util/mrvsourceplace.h"

struct MRVManuscript;

/**
 * Where each character of the raw text of a manuscript's document is in its source, which is
 * @p source. Empty where the source cannot be read.
 */
MRVSourcePlaces mrvSourcePlaces(const MRVManuscript &manuscript, const QString &source);
