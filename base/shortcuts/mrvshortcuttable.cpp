#include "shortcuts/mrvshortcut.h"

#include <iterator>

namespace {

// Row i belongs to identifier i + 1: the table begins after NoId.
template<typename Row, std::size_t Size>
constexpr bool holdsEachIdInOrder(const Row (&rows)[Size])
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (rows[i].id != int(i) + 1 || !*rows[i].group || !*rows[i].text) {
            return false;
        }
    }
    return rows[Size - 1].id == MRVShortcut::FullScreenGoTo;
}

} // namespace

// Where word processors agree on a key, the table uses it. Commands on the binder, the project or a
// whole document begin with Ctrl+G. Commands that are used once in a project have no key. Keys that
// desktops or input methods take, single letters, and the editor's own keys for moving and deleting
// are not used; the line break's is the editor's own. MRVShortcutCheck finds no conflict here.
const MRVShortcut::Row *MRVShortcut::row(Id id)
{
    constexpr const char *file = QT_TR_NOOP("File");
    constexpr const char *edit = QT_TR_NOOP("Edit");
    constexpr const char *view = QT_TR_NOOP("View");
    constexpr const char *project = QT_TR_NOOP("Project");
    constexpr const char *documents = QT_TR_NOOP("Documents");
    constexpr const char *format = QT_TR_NOOP("Format");
    constexpr const char *tools = QT_TR_NOOP("Tools");
    constexpr const char *pdf = QT_TR_NOOP("PDF");
    constexpr const char *fullScreen = QT_TR_NOOP("Fullscreen Only");
    constexpr const char *other = QT_TR_NOOP("Other");
    constexpr const char *help = QT_TR_NOOP("Help");
    // clang-format off
    static constexpr Row rows[] = {
        {NewProject, file, QT_TR_NOOP("New Project"), QT_TR_NOOP("Ctrl+G,Ctrl+N")},
        {OpenProject, file, QT_TR_NOOP("Open Project"), QT_TR_NOOP("Ctrl+O")},
        {ToggleScratchPad, tools, QT_TR_NOOP("Toggle Scratch Pad"), QT_TR_NOOP("Ctrl+Shift+0")},
        {ShowSpelling, edit, QT_TR_NOOP("Show Spelling"), QT_TR_NOOP("Ctrl+G,Ctrl+Q")},
        {LearnSpelling, edit, QT_TR_NOOP("Learn Spelling"), QT_TR_NOOP("Ctrl+G,Ctrl+L")},
        {IgnoreSpelling, edit, QT_TR_NOOP("Ignore Spelling"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+L")},
        {ShowCitations, format, QT_TR_NOOP("Show Citations"), QT_TR_NOOP("Ctrl+G,Ctrl+O")},
        {Preferences, tools, QT_TR_NOOP("Preferences"), QT_TR_NOOP("F12")},
        {MorvaneManual, help, QT_TR_NOOP("Morvane Manual"), QT_TR_NOOP("F1")},
        {DuplicateItemWithSubDocuments, documents, QT_TR_NOOP("Duplicate Item With SubDocuments"), QT_TR_NOOP("Ctrl+D")},
        {DuplicateItemWithoutSubDocuments, documents, QT_TR_NOOP("Duplicate Item Without SubDocuments"), QT_TR_NOOP("Ctrl+Shift+D")},
        {ToggleMainBar, view, QT_TR_NOOP("Toggle Main Toolbar"), QT_TR_NOOP("Ctrl+Shift+6")},
        {ToggleCollections, view, QT_TR_NOOP("Toggle Collections"), QT_TR_NOOP("Ctrl+Shift+9")},
        {ToggleHeaderBar, view, QT_TR_NOOP("Toggle Header Bar"), QT_TR_NOOP("Ctrl+Shift+4")},
        {ToggleFooterBar, view, QT_TR_NOOP("Toggle Footer Bar"), QT_TR_NOOP("Ctrl+Shift+5")},
        {ProjectSearch, edit, QT_TR_NOOP("Search in Project"), QT_TR_NOOP("Ctrl+Shift+F")},
        {OpenInFirstPane, documents, QT_TR_NOOP("Open in Editor"), QT_TR_NOOP("Ctrl+Shift+Return")},
        {OpenInSecondPane, documents, QT_TR_NOOP("Open in Other Editor"), QT_TR_NOOP("Ctrl+Alt+Return")},
        {OpenInExternalEditor, documents, QT_TR_NOOP("Open in External Editor"), QT_TR_NOOP("Ctrl+Shift+O")},
        {GroupSelection, documents, QT_TR_NOOP("Group Selection"), QT_TR_NOOP("Ctrl+G,Ctrl+U")},
        {UnGroupSelection, documents, QT_TR_NOOP("Ungroup Selection"), QT_TR_NOOP("Ctrl+G,Ctrl+B")},
        {MergeDocuments, documents, QT_TR_NOOP("Merge Documents"), QT_TR_NOOP("Ctrl+Shift+M")},
        {CurrentEditorBack, view, QT_TR_NOOP("Back in Editor"), QT_TR_NOOP("Alt+Left")},
        {CurrentEditorForward, view, QT_TR_NOOP("Forward in Editor"), QT_TR_NOOP("Alt+Right")},
        {AlternateEditorBack, view, QT_TR_NOOP("Back in Other Editor"), QT_TR_NOOP("Ctrl+G,Alt+Left")},
        {AlternateEditorForward, view, QT_TR_NOOP("Forward in Other Editor"), QT_TR_NOOP("Ctrl+G,Alt+Right")},
        {ShowBinderTint, view, QT_TR_NOOP("Use Label Color in Binder"), nullptr},
        {ShowIconTint, view, QT_TR_NOOP("Use Label Color in Icons"), nullptr},
        {ShowIndexCardTint, view, QT_TR_NOOP("Use Label Color in Index Cards"), nullptr},
        {ShowOutlinerTint, view, QT_TR_NOOP("Use Label Color in Outliner Rows"), nullptr},
        {FocusNextMajorElement, view, QT_TR_NOOP("Move Focus to Next Area"), QT_TR_NOOP("F6")},
        {EditMetaData, project, QT_TR_NOOP("Edit Metadata"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+M")},
        {RevealInBinder, view, QT_TR_NOOP("Reveal in Binder"), QT_TR_NOOP("Ctrl+Alt+B")},
        {ShowAutoCompleteList, project, QT_TR_NOOP("Show Auto-Complete List"), QT_TR_NOOP("Ctrl+G,Shift+Space")},
        {ShowProjectNotes, project, QT_TR_NOOP("Show Project Notes"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+P")},
        {ShowIndexCardLabel, view, QT_TR_NOOP("Show Labels on Index Cards"), nullptr},
        {ShowIndexCardStatus, view, QT_TR_NOOP("Show Status on Index Cards"), nullptr},
        {ShowIndexCardKeywords, view, QT_TR_NOOP("Show Keywords on Index Cards"), nullptr},
        {AddNewText, project, QT_TR_NOOP("New Text"), QT_TR_NOOP("Ctrl+N")},
        {AddNewFolder, project, QT_TR_NOOP("New Folder"), QT_TR_NOOP("Ctrl+Shift+N")},
        {AddNewFromFirstTemplate, project, QT_TR_NOOP("New From First Template"), QT_TR_NOOP("Ctrl+Alt+N")},
        {MoveToTrash, documents, QT_TR_NOOP("Move to Trash"), QT_TR_NOOP("Ctrl+Shift+Del")},
        {ConvertToDefaultFormatting, documents, QT_TR_NOOP("Convert to Default Formatting"), QT_TR_NOOP("Ctrl+G,Ctrl+0")},
        {ToggleBinder, view, QT_TR_NOOP("Toggle Binder"), QT_TR_NOOP("Ctrl+Shift+B")},
        {ToggleInspector, view, QT_TR_NOOP("Toggle Inspector"), QT_TR_NOOP("Ctrl+Shift+I")},
        {ToggleKeywordsHUD, project, QT_TR_NOOP("Toggle Keywords Panel"), QT_TR_NOOP("Ctrl+G,Ctrl+W")},
        {ToggleFullScreen, view, QT_TR_NOOP("Toggle Full Screen"), QT_TR_NOOP("F11")},
        {ToggleRuler, format, QT_TR_NOOP("Toggle Ruler"), QT_TR_NOOP("Ctrl+Shift+R")},
        {ToggleFormatBar, format, QT_TR_NOOP("Toggle Format Bar"), QT_TR_NOOP("Ctrl+Shift+7")},
        {ToggleTypewriterScrolling, format, QT_TR_NOOP("Toggle Typewriter Scrolling"), QT_TR_NOOP("Ctrl+Shift+T")},
        {NoEditorSplit, view, QT_TR_NOOP("No Split"), QT_TR_NOOP("Ctrl+4")},
        {HorizontalEditorSplit, view, QT_TR_NOOP("Split Horizontally"), QT_TR_NOOP("Ctrl+5")},
        {VerticalEditorSplit, view, QT_TR_NOOP("Split Vertically"), QT_TR_NOOP("Ctrl+6")},
        {ShowText, view, QT_TR_NOOP("Show Text"), QT_TR_NOOP("Ctrl+1")},
        {ShowCorkboard, view, QT_TR_NOOP("Show Corkboard"), QT_TR_NOOP("Ctrl+2")},
        {ShowOutliner, view, QT_TR_NOOP("Show Outliner"), QT_TR_NOOP("Ctrl+3")},
        {ToggleEditorLock, view, QT_TR_NOOP("Lock Editor"), QT_TR_NOOP("Ctrl+G,Ctrl+K")},
        {PageSetup, file, QT_TR_NOOP("Page Setup"), QT_TR_NOOP("Ctrl+Shift+P")},
        {PrintPreview, file, QT_TR_NOOP("Print Preview"), QT_TR_NOOP("Ctrl+Alt+P")},
        {Print, file, QT_TR_NOOP("Print"), QT_TR_NOOP("Ctrl+P")},
        {CloseProject, file, QT_TR_NOOP("Close Project"), QT_TR_NOOP("Ctrl+W")},
        {Save, file, QT_TR_NOOP("Save"), QT_TR_NOOP("Ctrl+S")},
        {SaveAs, file, QT_TR_NOOP("Save As"), QT_TR_NOOP("Ctrl+Shift+S")},
        {Compile, file, QT_TR_NOOP("Compile"), QT_TR_NOOP("F5")},
        {ImportFiles, file, QT_TR_NOOP("Import Files"), QT_TR_NOOP("Ctrl+G,Ctrl+I")},
        {ImportWebPage, file, QT_TR_NOOP("Import Web Page"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+I")},
        {ExportFiles, file, QT_TR_NOOP("Export Files"), QT_TR_NOOP("Ctrl+G,Ctrl+E")},
        {FindDialog, edit, QT_TR_NOOP("Find"), QT_TR_NOOP("Ctrl+F")},
        {FindNext, edit, QT_TR_NOOP("Find Next"), QT_TR_NOOP("F3")},
        {FindPrevious, edit, QT_TR_NOOP("Find Previous"), QT_TR_NOOP("Shift+F3")},
        {UseSelectionForFind, edit, QT_TR_NOOP("Use Selection for Find"), QT_TR_NOOP("Ctrl+Shift+G")},
        {JumpToSelection, edit, QT_TR_NOOP("Jump to Selection"), QT_TR_NOOP("Ctrl+Alt+J")},
        {ReplaceAndFindNext, edit, QT_TR_NOOP("Replace and Find Next"), QT_TR_NOOP("Ctrl+H")},
        {FindSynopsisDialog, edit, QT_TR_NOOP("Find in Synopsis"), QT_TR_NOOP("Ctrl+G,Ctrl+Y")},
        {FindByFormatDialog, edit, QT_TR_NOOP("Find by Format"), QT_TR_NOOP("Ctrl+G,Ctrl+F")},
        {FindNextByFormat, edit, QT_TR_NOOP("Find Next by Format"), QT_TR_NOOP("F4")},
        {FindPreviousByFormat, edit, QT_TR_NOOP("Find Previous by Format"), QT_TR_NOOP("Shift+F4")},
        {FindPdfDialog, view, QT_TR_NOOP("Find in PDF"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+F")},
        {FindNextByPdf, view, QT_TR_NOOP("Find Next in PDF"), QT_TR_NOOP("Ctrl+G,F3")},
        {FindPreviousByPdf, view, QT_TR_NOOP("Find Previous in PDF"), QT_TR_NOOP("Ctrl+G,Shift+F3")},
        {ExpandAll, view, QT_TR_NOOP("Expand All"), QT_TR_NOOP("Ctrl+G,Ctrl++")},
        {CollapseAll, view, QT_TR_NOOP("Collapse All"), QT_TR_NOOP("Ctrl+G,Ctrl+-")},
        {CollapseToCurrentDepth, view, QT_TR_NOOP("Collapse to Current Level"), nullptr},
        {PrevContainer, view, QT_TR_NOOP("Previous Container"), QT_TR_NOOP("Ctrl+PgUp")},
        {NextContainer, view, QT_TR_NOOP("Next Container"), QT_TR_NOOP("Ctrl+PgDown")},
        {NextCollection, view, QT_TR_NOOP("Next Collection"), QT_TR_NOOP("Ctrl+Shift+PgDown")},
        {PrevCollection, view, QT_TR_NOOP("Previous Collection"), QT_TR_NOOP("Ctrl+Shift+PgUp")},
        {MoveItemUp, documents, QT_TR_NOOP("Move Item Up"), QT_TR_NOOP("Alt+Shift+Up")},
        {MoveItemDown, documents, QT_TR_NOOP("Move Item Down"), QT_TR_NOOP("Alt+Shift+Down")},
        {MoveItemLeft, documents, QT_TR_NOOP("Move Item Left"), QT_TR_NOOP("Alt+Shift+Left")},
        {MoveItemRight, documents, QT_TR_NOOP("Move Item Right"), QT_TR_NOOP("Alt+Shift+Right")},
        {PDFCopySelectedText, pdf, QT_TR_NOOP("Copy Selected PDF Text"), QT_TR_NOOP("Ctrl+Alt+C")},
        {PDFZoomPageSize, pdf, QT_TR_NOOP("Zoom to Page Size"), QT_TR_NOOP("Ctrl+0")},
        {PDFZoomPageWidth, pdf, QT_TR_NOOP("Zoom to Page Width"), QT_TR_NOOP("Ctrl+Alt+0")},
        {PDFSinglePage, pdf, QT_TR_NOOP("Single Page"), nullptr},
        {PDFSinglePageContinuous, pdf, QT_TR_NOOP("Single Page Continuous"), nullptr},
        {PlayPauseAction, view, QT_TR_NOOP("Play or Pause"), QT_TR_NOOP("F8")},
        {FastForwardAction, view, QT_TR_NOOP("Fast Forward"), QT_TR_NOOP("F9")},
        {RewindAction, view, QT_TR_NOOP("Rewind"), QT_TR_NOOP("F7")},
        {TakeSnapshot, documents, QT_TR_NOOP("Take Snapshot"), QT_TR_NOOP("Ctrl+Alt+S")},
        {TakeSnapshotWithTitle, documents, QT_TR_NOOP("Take Snapshot With Title"), QT_TR_NOOP("Ctrl+Alt+Shift+S")},
        {ProjectStatistics, project, QT_TR_NOOP("Project Statistics"), QT_TR_NOOP("Ctrl+9")},
        {TextStatistics, project, QT_TR_NOOP("Text Statistics"), QT_TR_NOOP("Ctrl+8")},
        {ProjectTargets, project, QT_TR_NOOP("Project Targets"), QT_TR_NOOP("Ctrl+7")},
        {Outlined, format, QT_TR_NOOP("Outline"), nullptr},
        {StrikeThrough, format, QT_TR_NOOP("Strikethrough"), QT_TR_NOOP("Ctrl+Shift+X")},
        {SmallCaps, format, QT_TR_NOOP("Small Caps"), QT_TR_NOOP("Ctrl+G,Ctrl+M")},
        {EnlargeFont, format, QT_TR_NOOP("Bigger Font"), QT_TR_NOOP("Ctrl+>")},
        {ShrinkFont, format, QT_TR_NOOP("Smaller Font"), QT_TR_NOOP("Ctrl+<")},
        {SuperScript, format, QT_TR_NOOP("Superscript"), QT_TR_NOOP("Ctrl+G,Up")},
        {SubScript, format, QT_TR_NOOP("Subscript"), QT_TR_NOOP("Ctrl+G,Down")},
        {ToTitleCase, format, QT_TR_NOOP("Convert to Title Case"), QT_TR_NOOP("Ctrl+G,Ctrl+T")},
        {ToSmartQuotes, format, QT_TR_NOOP("Convert to Smart Quotes"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+Q")},
        {ToStraightQuotes, format, QT_TR_NOOP("Convert to Straight Quotes"), nullptr},
        {ToSingleSpaces, format, QT_TR_NOOP("Convert Multiple Spaces to Single"), nullptr},
        {AlignLeft, format, QT_TR_NOOP("Align Left"), QT_TR_NOOP("Ctrl+L")},
        {AlignCenter, format, QT_TR_NOOP("Align Center"), QT_TR_NOOP("Ctrl+E")},
        {AlignJustified, format, QT_TR_NOOP("Justify"), QT_TR_NOOP("Ctrl+J")},
        {AlignRight, format, QT_TR_NOOP("Align Right"), QT_TR_NOOP("Ctrl+R")},
        {IncreaseLeftIndent, other, QT_TR_NOOP("Increase Left Indent"), QT_TR_NOOP("Ctrl+G,Right")},
        {DecreaseLeftIndent, other, QT_TR_NOOP("Decrease Left Indent"), QT_TR_NOOP("Ctrl+G,Left")},
        {IncreaseTextIndent, other, QT_TR_NOOP("Increase First-Line Indent"), QT_TR_NOOP("Ctrl+G,Shift+Right")},
        {DecreaseTextIndent, other, QT_TR_NOOP("Decrease First-Line Indent"), QT_TR_NOOP("Ctrl+G,Shift+Left")},
        {SingleLineSpacing, format, QT_TR_NOOP("Single Line Spacing"), QT_TR_NOOP("Ctrl+G,Ctrl+1")},
        {DoubleLineSpacing, format, QT_TR_NOOP("Double Line Spacing"), QT_TR_NOOP("Ctrl+G,Ctrl+2")},
        {SingleHalfLineSpacing, format, QT_TR_NOOP("One and a Half Line Spacing"), QT_TR_NOOP("Ctrl+G,Ctrl+5")},
        {CompleteCurrentWord, edit, QT_TR_NOOP("Complete Word"), QT_TR_NOOP("Ctrl+Alt+Space")},
        {CompleteCurrentTitle, edit, QT_TR_NOOP("Complete Document Title"), QT_TR_NOOP("Ctrl+G,Space")},
        {AddCurrentToCompletions, edit, QT_TR_NOOP("Add Selection to Auto-Complete List"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+A")},
        {ToggleInvisibles, format, QT_TR_NOOP("Show Invisible Characters"), QT_TR_NOOP("Ctrl+Shift+8")},
        {ToggleGhostNotes, format, QT_TR_NOOP("Ghost Notes"), QT_TR_NOOP("Ctrl+G,Ctrl+H")},
        {SplitAtSelection, documents, QT_TR_NOOP("Split at Selection"), QT_TR_NOOP("Ctrl+Shift+Y")},
        {SplitWithSelectionAsTitle, documents, QT_TR_NOOP("Split With Selection as Title"), QT_TR_NOOP("Ctrl+Alt+Shift+Y")},
        {SetSelectionAsTitle, documents, QT_TR_NOOP("Set Selection as Title"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+T")},
        {SelectFont, format, QT_TR_NOOP("Font"), QT_TR_NOOP("Ctrl+T")},
        {InsertImage, edit, QT_TR_NOOP("Insert Image"), QT_TR_NOOP("Ctrl+G,Ctrl+P")},
        {InsertMorvaneLink, edit, QT_TR_NOOP("Insert Morvane Link"), QT_TR_NOOP("Ctrl+Shift+K")},
        {InsertCurrentDateTime, edit, QT_TR_NOOP("Insert Current Date and Time"), QT_TR_NOOP("Ctrl+G,Ctrl+D")},
        {ZoomIn, view, QT_TR_NOOP("Zoom In"), QT_TR_NOOP("Ctrl++")},
        {ZoomOut, view, QT_TR_NOOP("Zoom Out"), QT_TR_NOOP("Ctrl+-")},
        {InlineAnnotation, format, QT_TR_NOOP("Inline Annotation"), QT_TR_NOOP("Ctrl+Alt+Shift+M")},
        {InlineFootnote, format, QT_TR_NOOP("Inline Footnote"), QT_TR_NOOP("Ctrl+Alt+Shift+O")},
        {Comment, format, QT_TR_NOOP("Comment"), QT_TR_NOOP("Ctrl+Alt+M")},
        {Footnote, format, QT_TR_NOOP("Footnote"), QT_TR_NOOP("Ctrl+Alt+O")},
        {ScriptWriting, format, QT_TR_NOOP("Script Mode"), QT_TR_NOOP("Ctrl+G,Ctrl+R")},
        {ScriptElementsPopup, format, QT_TR_NOOP("Script Elements"), QT_TR_NOOP("Ctrl+M")},
        {Bold, format, QT_TR_NOOP("Bold"), QT_TR_NOOP("Ctrl+B")},
        {Italic, format, QT_TR_NOOP("Italic"), QT_TR_NOOP("Ctrl+I")},
        {Underlined, format, QT_TR_NOOP("Underline"), QT_TR_NOOP("Ctrl+U")},
        {Undo, edit, QT_TR_NOOP("Undo"), QT_TR_NOOP("Ctrl+Z")},
        {Redo, edit, QT_TR_NOOP("Redo"), QT_TR_NOOP("Ctrl+Shift+Z")},
        {Cut, edit, QT_TR_NOOP("Cut"), QT_TR_NOOP("Ctrl+X")},
        {Copy, edit, QT_TR_NOOP("Copy"), QT_TR_NOOP("Ctrl+C")},
        {Paste, edit, QT_TR_NOOP("Paste"), QT_TR_NOOP("Ctrl+V")},
        {SelectAll, edit, QT_TR_NOOP("Select All"), QT_TR_NOOP("Ctrl+A")},
        {CopyFont, format, QT_TR_NOOP("Copy Font"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+C")},
        {PasteFont, format, QT_TR_NOOP("Paste Font"), QT_TR_NOOP("Ctrl+G,Ctrl+Shift+V")},
        {CopyRuler, format, QT_TR_NOOP("Copy Ruler"), nullptr},
        {PasteRuler, format, QT_TR_NOOP("Paste Ruler"), nullptr},
        {CopyFormatting, format, QT_TR_NOOP("Copy Formatting"), QT_TR_NOOP("Ctrl+Alt+Shift+C")},
        {PasteFormatting, format, QT_TR_NOOP("Paste Formatting"), QT_TR_NOOP("Ctrl+Alt+Shift+V")},
        {PreserveFormatting, format, QT_TR_NOOP("Preserve Formatting"), nullptr},
        {PasteAndMatchStyle, edit, QT_TR_NOOP("Paste and Match Style"), QT_TR_NOOP("Ctrl+Shift+V")},
        {InsertNbsp, edit, QT_TR_NOOP("Insert Non-Breaking Space"), QT_TR_NOOP("Ctrl+Shift+Space")},
        {InsertParagraphBreak, edit, QT_TR_NOOP("Insert Paragraph Break"), nullptr},
        {InsertLineBreak, edit, QT_TR_NOOP("Insert Line Break"), QT_TR_NOOP("Shift+Return")},
        {InsertPageBreak, edit, QT_TR_NOOP("Insert Page Break"), QT_TR_NOOP("Ctrl+Return")},
        {HighlighterColor, edit, QT_TR_NOOP("Highlight"), QT_TR_NOOP("Ctrl+Shift+H")},
        {PenColor, edit, QT_TR_NOOP("Text Color"), QT_TR_NOOP("Ctrl+G,Ctrl+C")},
        {EditLink, edit, QT_TR_NOOP("Edit Link"), QT_TR_NOOP("Ctrl+K")},
        {PreviousDocument, view, QT_TR_NOOP("Previous Document"), QT_TR_NOOP("Alt+Up")},
        {NextDocument, view, QT_TR_NOOP("Next Document"), QT_TR_NOOP("Alt+Down")},
        {EnclosingGroup, view, QT_TR_NOOP("Enclosing Group"), QT_TR_NOOP("Alt+Home")},
        {EditorSelection, view, QT_TR_NOOP("Editor Selection"), QT_TR_NOOP("Ctrl+G,Ctrl+J")},
        {FullScreenGoTo, fullScreen, QT_TR_NOOP("Go To"), QT_TR_NOOP("Ctrl+G,Ctrl+G")},
    };
    // clang-format on
    static_assert(holdsEachIdInOrder(rows));
    const int index = id - rows[0].id;
    return index >= 0 && index < int(std::size(rows)) ? &rows[index] : nullptr;
}
