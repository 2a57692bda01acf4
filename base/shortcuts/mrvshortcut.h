#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QHash>
#include <QMetaEnum>
#include <QObject>
#include <QString>

/**
 * The commands that can carry a keyboard shortcut: their identifiers, menu groups and labels.
 *
 * Files and settings hold an identifier's name, never its number. The list may therefore grow at
 * its end, but no name may change.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVShortcut : public QObject
{
    Q_OBJECT

public:
    // clang-format off
    enum Id : int {
        NoId = 0,
        NewProject = 1,
        OpenProject = 2,
        ToggleScratchPad = 3,
        ShowSpelling = 4,
        LearnSpelling = 5,
        IgnoreSpelling = 6,
        ShowCitations = 7,
        Preferences = 8,
        MorvaneManual = 9,
        DuplicateItemWithSubDocuments = 10,
        DuplicateItemWithoutSubDocuments = 11,
        ToggleMainBar = 12,
        ToggleCollections = 13,
        ToggleHeaderBar = 14,
        ToggleFooterBar = 15,
        ProjectSearch = 16,
        OpenInFirstPane = 17,
        OpenInSecondPane = 18,
        OpenInExternalEditor = 19,
        GroupSelection = 20,
        UnGroupSelection = 21,
        MergeDocuments = 22,
        CurrentEditorBack = 23,
        CurrentEditorForward = 24,
        AlternateEditorBack = 25,
        AlternateEditorForward = 26,
        ShowBinderTint = 27,
        ShowIconTint = 28,
        ShowIndexCardTint = 29,
        ShowOutlinerTint = 30,
        FocusNextMajorElement = 31,
        EditMetaData = 32,
        RevealInBinder = 33,
        ShowAutoCompleteList = 34,
        ShowProjectNotes = 35,
        ShowIndexCardLabel = 36,
        ShowIndexCardStatus = 37,
        ShowIndexCardKeywords = 38,
        AddNewText = 39,
        AddNewFolder = 40,
        AddNewFromFirstTemplate = 41,
        MoveToTrash = 42,
        ConvertToDefaultFormatting = 43,
        ToggleBinder = 44,
        ToggleInspector = 45,
        ToggleKeywordsHUD = 46,
        ToggleFullScreen = 47,
        ToggleRuler = 48,
        ToggleFormatBar = 49,
        ToggleTypewriterScrolling = 50,
        NoEditorSplit = 51,
        HorizontalEditorSplit = 52,
        VerticalEditorSplit = 53,
        ShowText = 54,
        ShowCorkboard = 55,
        ShowOutliner = 56,
        ToggleEditorLock = 57,
        PageSetup = 58,
        PrintPreview = 59,
        Print = 60,
        CloseProject = 61,
        Save = 62,
        SaveAs = 63,
        Compile = 64,
        ImportFiles = 65,
        ImportWebPage = 66,
        ExportFiles = 67,
        FindDialog = 68,
        FindNext = 69,
        FindPrevious = 70,
        UseSelectionForFind = 71,
        JumpToSelection = 72,
        ReplaceAndFindNext = 73,
        FindSynopsisDialog = 74,
        FindByFormatDialog = 75,
        FindNextByFormat = 76,
        FindPreviousByFormat = 77,
        FindPdfDialog = 78,
        FindNextByPdf = 79,
        FindPreviousByPdf = 80,
        ExpandAll = 81,
        CollapseAll = 82,
        CollapseToCurrentDepth = 83,
        PrevContainer = 84,
        NextContainer = 85,
        NextCollection = 86,
        PrevCollection = 87,
        MoveItemUp = 88,
        MoveItemDown = 89,
        MoveItemLeft = 90,
        MoveItemRight = 91,
        PDFCopySelectedText = 92,
        PDFZoomPageSize = 93,
        PDFZoomPageWidth = 94,
        PDFSinglePage = 95,
        PDFSinglePageContinuous = 96,
        PlayPauseAction = 97,
        FastForwardAction = 98,
        RewindAction = 99,
        TakeSnapshot = 100,
        TakeSnapshotWithTitle = 101,
        ProjectStatistics = 102,
        TextStatistics = 103,
        ProjectTargets = 104,
        Outlined = 105,
        StrikeThrough = 106,
        SmallCaps = 107,
        EnlargeFont = 108,
        ShrinkFont = 109,
        SuperScript = 110,
        SubScript = 111,
        ToTitleCase = 112,
        ToSmartQuotes = 113,
        ToStraightQuotes = 114,
        ToSingleSpaces = 115,
        AlignLeft = 116,
        AlignCenter = 117,
        AlignJustified = 118,
        AlignRight = 119,
        IncreaseLeftIndent = 120,
        DecreaseLeftIndent = 121,
        IncreaseTextIndent = 122,
        DecreaseTextIndent = 123,
        SingleLineSpacing = 124,
        DoubleLineSpacing = 125,
        SingleHalfLineSpacing = 126,
        CompleteCurrentWord = 127,
        CompleteCurrentTitle = 128,
        AddCurrentToCompletions = 129,
        ToggleInvisibles = 130,
        ToggleGhostNotes = 131,
        SplitAtSelection = 132,
        SplitWithSelectionAsTitle = 133,
        SetSelectionAsTitle = 134,
        SelectFont = 135,
        InsertImage = 136,
        InsertMorvaneLink = 137,
        InsertCurrentDateTime = 138,
        ZoomIn = 139,
        ZoomOut = 140,
        InlineAnnotation = 141,
        InlineFootnote = 142,
        Comment = 143,
        Footnote = 144,
        ScriptWriting = 145,
        ScriptElementsPopup = 146,
        Bold = 147,
        Italic = 148,
        Underlined = 149,
        Undo = 150,
        Redo = 151,
        Cut = 152,
        Copy = 153,
        Paste = 154,
        SelectAll = 155,
        CopyFont = 156,
        PasteFont = 157,
        CopyRuler = 158,
        PasteRuler = 159,
        CopyFormatting = 160,
        PasteFormatting = 161,
        PreserveFormatting = 162,
        PasteAndMatchStyle = 163,
        InsertNbsp = 164,
        InsertParagraphBreak = 165,
        InsertLineBreak = 166,
        InsertPageBreak = 167,
        HighlighterColor = 168,
        PenColor = 169,
        EditLink = 170,
        PreviousDocument = 171,
        NextDocument = 172,
        EnclosingGroup = 173,
        EditorSelection = 174,
        FullScreenGoTo = 175,
    };
    // clang-format on
    Q_ENUM(Id)

    MRVShortcut() = delete;

    /** The enumeration Id as the meta-object system knows it. */
    static QMetaEnum metaEnumId();

    /** The identifier called @p key; Id(-1) for null, an empty and an unknown name. */
    static Id keyToValue(const char *key);

    /**
     * The command that a user names.
     *
     * @param name  the enumerator's name, in the same case.
     * @param error if given, receives a translated line that tells a similar name when there is no
     *              such command; untouched otherwise.
     * @return NoId for an unknown name.
     */
    static Id idNamed(const QString &name, MRVErrorSink error = nullptr);

    /** The name of @p id, also of NoId; null outside the enumeration. */
    static const char *valueToKey(Id id);

    /** Whether @p id is a command: in the enumeration, and not NoId. */
    static bool isValid(Id id);

    /**
     * The translated menu group of @p id; empty where it is no command.
     *
     * Deliberate: the commands for indents are in "Other", and ShowCitations is in "Format".
     */
    static QString group(Id id);

    /**
     * What lists call @p id: its custom label, else its name ("ZoomIn"). Empty outside the
     * enumeration.
     */
    static QString label(Id id);

    /**
     * Gives @p id a custom label for the rest of the run; nothing is stored.
     *
     * @param text in the user's language; an empty one hides the name.
     */
    static void setLabel(Id id, const QString &text);

    /** All custom labels: the few that every run starts with, and those of setLabel(). */
    static QHash<Id, QString> customLabels();

private:
    friend class MRVShortcutScheme;

    // A command in the table of all commands; its texts are translated in this class's context.
    struct Row
    {
        Id id;
        const char *group;
        const char *text;
        const char *key; // the default; null for none
    };

    static const Row *row(Id id); // null where the id is no command
    static QHash<Id, QString> &labels();
};
