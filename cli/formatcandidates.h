#pragma once

#include "commandline.h"

#include "fileformats/mrvformat.h"

/** The suffixes of all formats, for completion. */
inline Candidates formatCandidates(const Call &)
{
    Candidates all;
    const QList<MRVFormat::Format> formats = MRVFormat::formats();
    for (const MRVFormat::Format format : formats) {
        if (!MRVFormat::extension(format).isEmpty()) {
            all.append({MRVFormat::extension(format), MRVFormat::name(format)});
        }
    }
    return all;
}
