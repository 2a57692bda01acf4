#pragma once

#include "util/mrvbase_export.h"

#include <QDebug>
#include <QFlags>
#include <QMap>
#include <QString>
#include <QStringList>

/**
 * Enumerations that the applications store, and their texts.
 *
 * @since 1.0
 */
namespace MRV {

/** Where a document that a link leads to is opened. */
enum OpenInTarget : int {
    OpenInOtherEditor = 0,
    OpenInCurrentEditor = 1,
    OpenInReferencePanel = 2,
};

/** Never fails: a value outside the enumeration is "OpenInOtherEditor". */
MRVBASE_EXPORT const char *toString(OpenInTarget target);
/** The inverse of toString(); exact. Unknown text is OpenInOtherEditor. */
MRVBASE_EXPORT OpenInTarget toOpenInTarget(const QString &text);

/** What is being joined where a separator stands. */
enum SeparatorContext : int {
    Morvanings = 0,
    MergedDocuments = 1,
    Clippings = 2,
};

/** "UnknownContext" for a value outside the enumeration. */
MRVBASE_EXPORT const char *toString(SeparatorContext context);

/** What stands between two joined texts. */
enum SeparatorType : int {
    SingleReturn = 0,
    EmptyLine = 1,
    CustomSeparator = 2,
};

/** "UnknownSeparatorType" for a value outside the enumeration. */
MRVBASE_EXPORT const char *toString(SeparatorType type);
/** The inverse of toString(); exact. Unknown text is CustomSeparator. */
MRVBASE_EXPORT SeparatorType toSeparatorType(const QString &text);

/** What a node of the project's binder holds. Kinds of folder come first and have no text form. */
enum NodeType : int {
    RootFolderNode = 0,
    FolderNode = 1,
    ResearchFolderNode = 2,
    TrashFolderNode = 3,
    TextNode = 4,
    ImageNode = 5,
    PdfNode = 6,
    MediaNode = 7,
    WebNode = 8,
    CustomNode = 9,
};

/** "Text" to "Custom"; "Unknown" for folders and for values outside the enumeration. */
MRVBASE_EXPORT QString toString(NodeType type);
/** The same as toString(): the text is not translated, in spite of the name. */
MRVBASE_EXPORT QString toStringTr(NodeType type);

/** Which texts are taken over from the notes of an OPML file. */
enum OpmlImportType : int {
    OpmlTitlesOnly = 0,
    OpmlSynopsis = 1,
    OpmlMainText = 2,
    OpmlNotes = 3,
};

/** The translated descriptions of all import types. */
MRVBASE_EXPORT QMap<OpmlImportType, QString> opmlImportTypesDescr();
/** The translated descriptions in ascending order of their characters' codes. */
MRVBASE_EXPORT QStringList opmlImportTypesDescrSorted();

/** What a compilation does with footnotes, annotations and comments. Bit 0x80 is unused. */
enum CompileNoteFlag : int {
    IncludeFootnotes = 0x1,
    FootnotesToComments = 0x2,
    FootnotesToFootnotes = 0x4,
    FootnotesToEndnotes = 0x8,
    FootnotesToEndOfDocument = 0x10,
    FootnotesToEndnoteMarker = 0x20,
    FootnotesOverrideFont = 0x40,
    IncludeAnnotations = 0x100,
    AnnotationsToMarginComments = 0x200,
    AnnotationsToInlineComments = 0x400,
    AnnotationsToFootnotes = 0x800,
    AnnotationsToEndnotes = 0x1000,
    AnnotationsToHtml = 0x2000,
    IncludeComments = 0x4000,
};
Q_DECLARE_FLAGS(CompileNoteFlags, CompileNoteFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(CompileNoteFlags)

/**
 * Prints every flag with "true" or "false", one a line; leaves the stream in spacing mode.
 *
 * @param flags any combination.
 */
MRVBASE_EXPORT QDebug operator<<(QDebug debug, QFlags<CompileNoteFlag> flags);

/** How an editor shows its documents, as the project stores it. */
enum ViewMode : int {
    DocumentMode = 0,
    CompositeMode = 1,
    CorkboardMode = 2,
    OutlinerMode = 3,
};

/** The application's own numbers of its views. */
enum AppView : int {
    NoView = 0,
    CorkboardView = 2,
    OutlinerView = 3,
    CompositeView = 4,
    DocumentView = 5,
};

/** The AppView that shows @p mode; NoView for a value outside the enumeration. */
MRVBASE_EXPORT int viewModeToAppView(ViewMode mode);

/** The first columns of the outliner. */
enum Columns : int {
    TitleColumn = 0,
    SynopsisColumn = 1,
    LabelColumn = 2,
    StatusColumn = 3,
};

/** Whether the column's cells hold prose of any length rather than a title or a choice. */
MRVBASE_EXPORT bool isFreeTextColumn(Columns column);

} // namespace MRV
