#pragma once

#include "core/mrvinputlimits.h"

/**
 * What a document may ask of the machine. All are far above what documents need.
 *
 * @since 1.0
 */
struct MRVDomLimits
{
    /**
     * Elements may be nested this deeply, the document element counting as one, to be loaded or
     * saved.
     */
    static constexpr int MaxDepth = MRVInputLimits::XmlDepth;
    /** An element may have this many attributes. */
    static constexpr int MaxAttributes = MRVInputLimits::XmlAttributes;
    /** With its entities expanded, a document may be this many times as long as before ... */
    static constexpr int MaxExpansionFactor = MRVInputLimits::XmlExpansionFactor;
    /** ... and longer by this many characters; beyond either it is refused. */
    static constexpr int MaxExpansion = MRVInputLimits::XmlExpansion;
    /** A document type may have this many declarations of its own ... */
    static constexpr int MaxDeclarations = MRVInputLimits::XmlDeclarations;
    /** ... of this many characters together. */
    static constexpr int MaxDeclarationLength = MRVInputLimits::XmlDeclarationLength;
};
