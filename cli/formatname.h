#pragma once

#include "fileformats/mrvformat.h"

/**
 * The format that a person means by its name ("MMDtoHTML"), a suffix, or the name of a file, in any
 * case; 0 for none.
 */
MRVFormat::Format formatNamed(const QString &text);
