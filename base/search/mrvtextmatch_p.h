#pragma once

/** A match by its place in the text that was searched. */
struct MRVTextMatch
{
    int start = -1; ///< negative: no match
    int length = 0;

    int end() const { return start + length; }
    explicit operator bool() const { return start >= 0; }
};

/** Whether a match may be empty right where the search starts, or only further on. */
enum class MRVEmptyMatch { Allowed, NotAtStart };
