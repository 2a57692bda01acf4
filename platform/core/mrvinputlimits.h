#pragma once

#include <QtGlobal>

/**
 * What the library accepts of bytes that it did not write itself. Each limit is far above normal
 * use; input beyond one is refused with an error, never cut.
 *
 * @since 1.0
 */
struct MRVInputLimits
{
    // Files.
    /** Qt 5 counts bytes in an int, and its arrays double as they grow. */
    static constexpr qint64 FileBytes = qint64(1) << 30;
    /** A codec makes up to three characters of a byte, and QString holds fewer than 2^30. */
    static constexpr qint64 TextFileBytes = qint64(1) << 28;

    // Archives.
    /** Files of a zip archive: as many as the form counts without its extension. */
    static constexpr int ZipFiles = 65535;
    /** Of an archived document, the raw data of all pictures, each file once: it is in memory. */
    static constexpr qint64 RawPictureBytes = qint64(1) << 30;
    /** What an application keeps in the archive of a document, all of it together. */
    static constexpr qint64 PropertyBytes = 64 << 20;

    // Streams and variants.
    /** QByteArray holds 2^31 bytes less its header; a longer one never was written. */
    static constexpr quint32 StreamBytes = 0x7fffff00;
    /** Lists and maps in each other: Qt reads them by recursion. */
    static constexpr int VariantDepth = 32;
    /** Qt appends the properties of a format in quadratic time. */
    static constexpr quint32 FormatProperties = 4096;
    /** Qt inserts the stops of a gradient in quadratic time. */
    static constexpr quint32 GradientStops = 4096;
    /** Four keys with all modifiers need far fewer characters; Qt reads longer ones slowly. */
    static constexpr int KeyText = 1024;

    // Pictures.
    /** What the pictures of one dropped note may take when decoded; a wall poster takes 200 MB. */
    static constexpr qint64 PictureMemory = 512 << 20;
    /** The same of a text format, which holds small textures: this much in any case ... */
    static constexpr qint64 FormatPictureMemory = 8 << 20;
    /** ... and more in proportion to its stored length. */
    static constexpr qint64 FormatPictureMemoryPerByte = 32;
    /** Deflate makes at most this many bytes of one; a file that claims more is damaged. */
    static constexpr qint64 Inflation = 1032;
    /** A file with the pixels of the largest picture uncompressed. */
    static constexpr qint64 PictureFileBytes = qint64(1) << 29;
    /** What a picture takes when it is decoded: 134 megapixels of 4 bytes. */
    static constexpr qint64 PictureBytes = qint64(1) << 29;
    /** A picture of up to this many pixels is decoded whatever its file's length. */
    static constexpr qint64 PicturePixels = qint64(1) << 25;
    /** Beyond that a byte holds at most this many: one-bit pixels of one colour, deflated. */
    static constexpr qint64 PixelsPerByte = 8 * Inflation;
    /** The compressed texts of a picture, inflated: libpng and Qt take five times as much. */
    static constexpr qint64 PictureTextBytes = qint64(1) << 25;
    /** The text of an SVG, unpacked and with its entities replaced. */
    static constexpr qint64 SvgBytes = qint64(1) << 26;

    // XML and HTML.
    /** Elements in each other, the document element counted: Qt parses them by recursion. */
    static constexpr int XmlDepth = 1000;
    /** Attributes of an element. */
    static constexpr int XmlAttributes = 10000;
    /** Declarations of a document type, which Qt looks up in quadratic time, ... */
    static constexpr int XmlDeclarations = 2000;
    /** ... and their characters together. */
    static constexpr int XmlDeclarationLength = 256 * 1024;
    /** With its entities expanded, a document may be longer by this many characters, ... */
    static constexpr int XmlExpansion = 8 * 1024 * 1024;
    /** ... and this many times as long. */
    static constexpr int XmlExpansionFactor = 100;
    /** Qt's stream reader compares each attribute of a tag with every other one. */
    static constexpr int ScriptAttributes = 64;
    static constexpr int ScriptDepth = 256;
    /** Characters of a tag; keys and scene numbers are attributes, too. */
    static constexpr int ScriptTagLength = 16 * 1024 * 1024;
    static constexpr int ScriptModeDepth = 32;
    static constexpr int ScriptModeTagLength = 16 * 1024;
    /** An HTML parser looks through the open elements for each tag, and recursion reads them. */
    static constexpr int HtmlDepth = 2000;
    /** A parser of HTML compares each attribute of a tag with every other one. */
    static constexpr int HtmlAttributes = 256;
    /** Elements such as "font" that a page leaves open: a parser repeats them in each paragraph. */
    static constexpr int HtmlRepeats = 1000000;

    // Style sheets. A rule or declaration beyond one of these three is dropped, as a faulty one is.
    /** Tokens of a list of selectors, or of a declaration. */
    static constexpr int CssTokens = 65536;
    /** Elements that a selector names: "a b > c" names three. */
    static constexpr int CssCompounds = 32;
    /** Selectors in the brackets of each other: they are read by recursion. */
    static constexpr int CssNesting = 8;
    /** Selectors of all sheets together; large web pages have a fifth of it. */
    static constexpr int CssSelectors = 100000;
    /** Declarations of all sheets together, with shorthands split. */
    static constexpr int CssDeclarations = 500000;
    /** Comparisons that matching may take, about a second, for a document in any case ... */
    static constexpr qint64 CssSteps = 100000000;
    /** ... and more for each element; books take some fifty. */
    static constexpr qint64 CssStepsPerElement = 2000;
    /** A style sheet in a file, ... */
    static constexpr qint64 StyleSheetBytes = 4 << 20;
    /** ... how many a page may have, and how deeply they may import each other. */
    static constexpr int StyleSheets = 64;
    static constexpr int StyleSheetDepth = 8;

    // Markdown. cmark passes all open blocks for each line, and repeats what links and tables do.
    /** Quotes, lists and items in each other. */
    static constexpr int MarkdownDepth = 100;
    /** Columns of a table, whose cells are found in quadratic time. */
    static constexpr int MarkdownColumns = 1000;
    /** Cells that tables have beyond those that are written. */
    static constexpr int MarkdownTableCells = 1 << 18;
    /** Bytes that are passed again in search of what does not come. */
    static constexpr qint64 MarkdownSteps = qint64(1) << 29;
    /** Bytes that the addresses of all links take where each repeats the longest. */
    static constexpr qint64 MarkdownExpansion = qint64(1) << 28;
};
