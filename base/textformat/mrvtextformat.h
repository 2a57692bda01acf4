#pragma once

#include "core/mrverror.h"
#include "textformat/mrvtextfragment.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFlags>
#include <QImage>
#include <QList>
#include <QPair>
#include <QSet>
#include <QString>
#include <QTextFormat>
#include <QVariant>

class QDataStream;
class QTextBlock;
class QTextCursor;
class QTextDocument;

/**
 * The formats of rich text: the application's own properties, and what can be done with a format.
 *
 * It fixes the property numbers that documents are saved with, the stored form of a format, what a
 * property is worth where a format does not set it, how two formats compare, the links between the
 * application's own documents, the properties of images, and the re-styling of whole documents. It
 * holds no state. What a re-styling keeps of each property is MRVTextCharFormat's and
 * MRVTextBlockFormat's business.
 *
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextFormat
{
    Q_DECLARE_TR_FUNCTIONS(MRVTextFormat)

public:
    MRVTextFormat() = delete;

    /** Property numbers. Saved documents carry them, so a number never changes its meaning. */
    enum Property {
        // Of paragraphs, beside Qt's own; all double, in points.
        BlockLeftIndent = 0x1036,
        BlockRightIndent = 0x1037,
        /**
         * Line spacing, measured against BlockBaseSpacing. Qt uses the number too, for the level of
         * a heading: that is an int, so only a double is a spacing. A spacing ends Qt's level,
         * which HeadingLevelProperty then holds.
         */
        BlockSpacing = 0x1070,
        /** The font size of BlockSpacing; 0 makes that an absolute line height. */
        BlockBaseSpacing = 0x1071,

        // The application's own.
        ListExtraProperty1 = 0x100001,
        ListExtraProperty2 = 0x100002,
        /** bool: re-styling leaves the text and its paragraph alone. */
        PreserveFormatProperty = 0x100003,
        ExtraProperty4 = 0x100004,
        ExtraProperty5 = 0x100005,
        ExtraProperty6 = 0x100006,
        CommentData0 = 0x100007,
        CommentData1 = 0x100008,
        CommentData2 = 0x100009,
        /** int */
        RevisionLevelProperty = 0x10000a,
        /** QString: path of the file that an image was inserted from. */
        ImageLinkProperty = 0x10000b,
        /** QByteArray: the encoded bytes of an image as they were inserted. */
        ImageRawDataProperty = 0x10000c,
        /** QString: the format of an image as QImageWriter names it, in upper case: "PNG". */
        ImageTypeProperty = 0x10000d,
        /** QString: the display name of an image. */
        ImageNameProperty = 0x10000e,
        ExtraProperty15 = 0x10000f,
        InlineAnnotationProperty = 0x100064, // bool
        InlineFootnoteProperty = 0x100065, // bool
        InspectorCommentProperty = 0x100066, // bool
        InspectorFootnoteProperty = 0x100067, // bool
        ExtraProperty200 = 0x1000c8,
        ExtraProperty201 = 0x1000c9,
        ExtraProperty202 = 0x1000ca,
        ExtraProperty203 = 0x1000cb,
        ExtraProperty204 = 0x1000cc,
        ExtraProperty205 = 0x1000cd,
        ExtraProperty206 = 0x1000ce,
        ExtraProperty207 = 0x1000cf,
        ExtraProperty208 = 0x1000d0,
        ExtraProperty209 = 0x1000d1,
        ExtraProperty210 = 0x1000d2,
        ExtraProperty211 = 0x1000d3,

        // What pages say and Qt has no property for.
        /** int, 1 to 6, of a paragraph: the level of a heading. Line spacing does not end it. */
        HeadingLevelProperty = 0x100100,
        /** QString, of text: a well-formed BCP 47 tag, where it is not the document's language. */
        LanguageProperty = 0x100101,
        /** int, of a list: the number of its first item, where that is not 1. */
        ListStartProperty = 0x100102,
        /** bool, of a table cell: it heads a row or a column. */
        HeaderCellProperty = 0x100103,
        /** Caption, of a paragraph: it is the caption of the picture, table or code beside it. */
        CaptionProperty = 0x100104,
        /**
         * QString, of text: the directions that elements around it set, outermost first, separated
         * by blanks. "ltr", "rtl" and "auto" keep the order of what is inside apart from that of
         * what is outside; "ltr-override" and "rtl-override" also set that of each character.
         */
        DirectionProperty = 0x100105,
        /** NoteLink, of a link: what a page says that it is. */
        NoteLinkProperty = 0x100106,
    };

    /** Values of CaptionProperty. */
    enum Caption {
        CaptionOfNext = 1, ///< of what follows the paragraph
        CaptionOfPrevious = 2, ///< of what precedes it
    };

    /** Values of NoteLinkProperty. */
    enum NoteLink {
        NoteMark = 1, ///< the mark of a note in the text
        NoteBackLink = 2, ///< from a note to its mark
    };

    // Not stored under its number, but as what it holds.
    enum {
        /**
         * QByteArray: what toCharFormat() could not read, for toByteArray() to write it again. It
         * means nothing to anybody else, and is carried along as the application's data is.
         */
        UnreadProperty = 0x1fff01,
    };

    /** What simplified() keeps of a paragraph's format. */
    enum FormatGroup {
        IndentGroup = 1, ///< left, first-line and right indent
        ParagraphSpacingGroup = 2, ///< space above and below
        LineSpacingGroup = 4, ///< line spacing, normalised
    };
    Q_DECLARE_FLAGS(FormatGroups, FormatGroup)

    enum SpacingType {
        SingleSpacing = 0,
        DoubleSpacing = 1,
        FixedSpacing = 2, ///< at least that many points
        ExactSpacing = 3, ///< that many points and no more
        MultipleSpacing = 4, ///< any other multiple of the font size
    };

    /** A copy of @p format with full font hinting, or, where @p hinting is false, with none. */
    static QTextCharFormat setFontHinting(const QTextCharFormat &format, bool hinting);
    /** Whether @p format sets at least one of @p properties; false for an empty set. */
    static bool hasAnyProperty(const QTextCharFormat &format, const QSet<int> &properties);

    /**
     * The stored form of a format: Qt's stream of it (format type as qint32, then the map from
     * qint32 property to QVariant) in QDataStream version Qt_5_15, with nothing before or after.
     * Equal formats give equal bytes; for that, a QVariantHash is stored as a QVariantMap.
     *
     * Stored are values of all types that Qt can write, lists and maps of them, and values of an
     * application's types that have stream operators. These come last in the map, as a process that
     * does not know the type can read only what stands before. Of a format of more than 4096
     * properties, or with pictures beyond 8 MB and 32 times its stored length, the first that fit
     * are stored.
     *
     * Left out, with a warning in the log, are values that would make the whole format unreadable:
     * of types without stream operators; easing curves, which Qt stores with an address in its
     * memory; expressions of QRegExp with "{"; icons of plug-ins or with files that are not there;
     * regions of more than 4096 rectangles.
     */
    static QByteArray toByteArray(const QTextCharFormat &format);
    static QByteArray toByteArray(const QTextBlockFormat &format);

    /**
     * The inverse of toByteArray(). Bytes after the format are ignored.
     *
     * Any bytes may be given: types, counts and lengths are checked against what is there before Qt
     * decodes it, so the memory taken is bounded by the length of @p bytes.
     *
     * Where a property is of an application's type that is not registered in this process, the
     * properties before it are read, and all bytes from it on are kept in UnreadProperty. Pictures
     * on screen (QPixmap, QCursor and their like) count as such while there is no QGuiApplication.
     *
     * @return a default-constructed format where @p bytes is empty, damaged, of another kind of
     * format, or holds a type that formats do not hold.
     */
    static QTextCharFormat toCharFormat(const QByteArray &bytes);
    /** As toCharFormat(), for paragraph formats. */
    static QTextBlockFormat toBlockFormat(const QByteArray &bytes);
    /** The same for the byte array that @p value converts to. */
    static QTextCharFormat toCharFormat(const QVariant &value);
    static QTextBlockFormat toBlockFormat(const QVariant &value);

    /**
     * Makes toCharFormat() and toBlockFormat() read values of an application's type. Its stream
     * operators get bytes from outside: they have to check counts and lengths against what is
     * there, and to set the stream's status where something is wrong. To be called before formats
     * that hold such values are read.
     *
     * @param type from qRegisterMetaType(), with operators from
     *             qRegisterMetaTypeStreamOperators().
     */
    static void registerStoredType(int type);

    /**
     * Takes one stored format off a stream that goes on after it, with the checks of
     * toCharFormat(). The bytes must all be there: it does not wait for a socket.
     *
     * @return false, with a bad status and @p format untouched, where no whole format stands there,
     * or the status was bad before.
     */
    static bool read(QDataStream &stream, QTextCharFormat *format);
    static bool read(QDataStream &stream, QTextBlockFormat *format);

    /**
     * A format with only the properties of @p groups. Margins and indents are copied where
     * @p format sets them; line spacing is always written, as simplifySpacing() would leave it,
     * except for taking spacing and base as equal, or base as 0, already when they are so except
     * for rounding.
     */
    static QTextBlockFormat simplified(const QTextBlockFormat &format, FormatGroups groups);

    /**
     * Brings the pair of spacing and base (see Property) to base 12, or leaves it at base 0.
     *
     * Equal values become 12 and 12, which is also what a format without spacing gets. The
     * comparisons are exact. Writes the spacing even where the format has none, which ends the
     * level of a heading that Qt holds. Null does nothing.
     */
    static void simplifySpacing(QTextBlockFormat *format);
    /** A copy of @p format after simplifySpacing(). */
    static QTextBlockFormat simplifiedSpacing(const QTextBlockFormat &format);

    /**
     * The kind of line spacing of a paragraph; single where the format has none.
     *
     * @param value if given, receives the multiple of the font size (1.0 for single spacing, 2.0
     *              for double), or the line height in points for fixed and exact spacing.
     */
    static SpacingType spacingType(const QTextBlockFormat &format, double *value = nullptr);
    /** Whether spacingType() and its value are the same for @p a and @p b. */
    static bool equivalentSpacing(const QTextBlockFormat &a, const QTextBlockFormat &b);

    /**
     * Whether @p a and @p b look the same: a property that only one of them sets must have its
     * defaultProperty() there. Page breaks do not count. An empty list of anchor names and a font
     * weight of 0 count as the default.
     */
    static bool equivalent(const QTextFormat &a, const QTextFormat &b);

    /**
     * Whether @p format sets every property of @p pattern, and, where @p compareValues is true, to
     * an equal value. A pattern without properties matches everything.
     * Property by property: Qt's two font families do not stand for each other here.
     */
    static bool formatsMatch(const QTextCharFormat &format, const QTextCharFormat &pattern,
                             bool compareValues);

    /**
     * What @p property is worth where a format does not set it; invalid for a number without a
     * default. FontUnderline and FontSizeAdjustment have none on purpose: setting them to "off" is
     * not the same as leaving them unset.
     */
    static QVariant defaultProperty(int property);

    /**
     * What was set with setDefaultCharFormat(), else a format with the attributes of the document's
     * default font: family and size, and whatever else differs from a plain font.
     */
    static QTextCharFormat defaultCharFormat(const QTextDocument &document);
    /**
     * Keeps @p format as the document's default and makes its font the default font. Not undoable.
     * A Qt document has a default font and nothing more, so the rest of the format is kept beside
     * it and is not drawn.
     */
    static void setDefaultCharFormat(QTextDocument &document, const QTextCharFormat &format);

    /** The id in a link to another document of the project ("42"), or -1 for any other link. */
    static int morvaneLinkId(const QString &href);
    static bool isMorvaneLink(const QString &href);
    /**
     * Whether @p format is an anchor whose address is a link to another document of the project.
     */
    static bool isMorvaneLink(const QTextCharFormat &format);

    /** The display name of an image, or its resource id where it has none. */
    static QString imageName(const QTextImageFormat &format);
    /** The file format of an image; where unknown, @p defaultType (Latin-1), and "PNG" for null. */
    static QString imageType(const QTextImageFormat &format, const char *defaultType = nullptr);
    /** The path of the file that an image was inserted from, or empty. */
    static QString imageLink(const QTextImageFormat &format);
    /** The encoded bytes of an image as they were inserted, or empty. */
    static QByteArray imageRawData(const QTextImageFormat &format);
    /** The name of an image's resource in its document. */
    static QString imageResourceId(const QTextImageFormat &format);
    /** The resource name that a picture gets: MRVGuiUtil::resourceId(). */
    static QString imageResourceId(const QImage &image);
    /** The picture of an image, from the resources of its document; null where there is none. */
    static QImage image(const QTextDocument &document, const QTextImageFormat &format);

    /**
     * What to write to the file @p fileName for one image of a document.
     *
     * The first that there is of: the linked file, where it has the suffix of @p fileName; the
     * bytes as they were inserted, for a JPEG file; @p image encoded in the format that the suffix
     * names (JPEG at quality 100, transparency on white); the bytes as they were inserted, where
     * they are in that format. Empty without any of them.
     */
    static QByteArray imageFileBytes(const QString &fileName, const QTextImageFormat &format,
                                     const QImage &image);

    /**
     * Writes imageFileBytes() of one image to the file @p fileName. Where that is the linked file
     * itself, nothing is done.
     *
     * An existing file is removed first, so that a failed export leaves no stale file behind.
     *
     * @param error if given, receives one line with file and reason on failure; untouched on
     *        success.
     * @return false for an empty name, and where @p image is needed but cannot be encoded or
     *        written.
     */
    static bool exportImageFormat(const QString &fileName, const QTextImageFormat &format,
                                  const QImage &image, MRVErrorSink error = nullptr);

    /** Whether @p text holds the begin or end mark of a frame (U+FDD0, U+FDD1). */
    static bool hasFrameInString(const QString &text);
    /** Whether @p text holds a paragraph separator (U+2029) or hasFrameInString(). */
    static bool hasBlockInString(const QString &text);

    /**
     * The format of @p block re-styled by @p with: MRVTextBlockFormat::merge(), which explains
     * @p keepIndents, @p keepSpacing, @p keepAlignment and @p keep, with the indents of a list item
     * always kept. A paragraph whose first character is marked PreserveFormatProperty keeps its
     * format as it is.
     */
    static QTextBlockFormat mergeBlockFormat(const QTextBlock &block, const QTextBlockFormat &with,
                                             bool keepIndents, bool keepSpacing, bool keepAlignment,
                                             const QList<int> &keep);

    /**
     * Re-styles a document while keeping what the application stores in its text: every paragraph
     * gets the merge of its format with @p blockFormat, every fragment the merge with
     * @p charFormat.
     *
     * One undo step; none when nothing changes. Qt leaves one thing out of undo: the format that
     * the first paragraph itself gives to text typed into it. Takes time linear in the document.
     *
     * What the flags keep and override is explained with the merges: @p keepSize, @p keepColors,
     * @p keepEmphasis, @p keepFamily, @p overridePreserved and @p combineEmphasis with
     * MRVTextCharFormat::merge(), @p keepIndents, @p keepSpacing and @p keepAlignment with
     * mergeBlockFormat(). A paragraph that is marked to be preserved stays so whatever
     * @p overridePreserved says.
     *
     * @param document    null does nothing.
     * @param charFormat  null leaves the character formats alone.
     * @param blockFormat null leaves the block formats alone.
     * @param keep        properties that are taken from the existing formats, or removed where
     *                    those lack them.
     */
    static void convertToFormat(QTextDocument *document, const QTextCharFormat *charFormat,
                                const QTextBlockFormat *blockFormat, bool keepSize, bool keepColors,
                                bool keepEmphasis, bool keepIndents, bool keepSpacing,
                                bool keepAlignment, bool keepFamily, const QList<int> &keep,
                                bool overridePreserved, bool combineEmphasis);
    /**
     * The same for a range: the paragraphs from the one that holds @p start to the one that holds
     * @p end, and of their fragments only what lies in [start, end). Nothing happens where either
     * position is outside the document or @p end lies before @p start.
     */
    static void convertToFormat(QTextDocument *document, int start, int end,
                                const QTextCharFormat *charFormat,
                                const QTextBlockFormat *blockFormat, bool keepSize, bool keepColors,
                                bool keepEmphasis, bool keepIndents, bool keepSpacing,
                                bool keepAlignment, bool keepFamily, const QList<int> &keep,
                                bool overridePreserved, bool combineEmphasis);
    /** The same for the selection of @p cursor. A null cursor does nothing. */
    static void convertToFormat(const QTextCursor &cursor, const QTextCharFormat *charFormat,
                                const QTextBlockFormat *blockFormat, bool keepSize, bool keepColors,
                                bool keepEmphasis, bool keepIndents, bool keepSpacing,
                                bool keepAlignment, bool keepFamily, const QList<int> &keep,
                                bool overridePreserved, bool combineEmphasis);

    /**
     * Replaces font weights that a family does not have by the nearest one that it has.
     *
     * Concerns the paragraph formats from the paragraph that holds the start of the selection to
     * the end of the document, and the whole fragments that begin within the selection. Normal
     * weight is stored as unset. One undo step; none when nothing changes. A null cursor does
     * nothing.
     */
    static void adjustFontWeight(const QTextCursor &cursor);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVTextFormat::FormatGroups)

/** The block format and the character format at the very start of a document. */
MRVBASE_EXPORT QPair<QTextBlockFormat, QTextCharFormat> mrvDocumentFormatPair(
    const QTextDocument &document);
