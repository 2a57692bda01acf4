#pragma once

#include <zip.h>

class MRVZipReader;

/** The archive of a reader, to copy files that stay packed. */
class MRVZipAccess
{
public:
    MRVZipAccess() = delete;

    /** Owned by the reader; null where it has none. */
    static zip_t *archive(const MRVZipReader &reader);
    /** The number in the archive of the file at that place of the reader's files. */
    static zip_uint64_t number(const MRVZipReader &reader, int index);
};
