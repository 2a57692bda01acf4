#pragma once

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
    static constexpr int MaxDepth = 1000;
    /** An element may have so many attributes. */
    static constexpr int MaxAttributes = 10000;
    /** With its entities expanded, a document may be this many times as long as before ... */
    static constexpr int MaxExpansionFactor = 100;
    /** ... and longer by so many characters; beyond either it is refused. */
    static constexpr int MaxExpansion = 8 * 1024 * 1024;
    /** A document type may have so many declarations of its own ... */
    static constexpr int MaxDeclarations = 2000;
    /** ... of so many characters together. */
    static constexpr int MaxDeclarationLength = 256 * 1024;
};
