#include "options/mrvoptionstables_p.h"

#include <array>

namespace MRVOptionsTables {
namespace {

// No limit except that of the 16 bits in which whole numbers are kept here.
constexpr qint16 Any = 32767;

// The symbols after numbers.
constexpr const char *Seconds = QT_TRANSLATE_NOOP("MRVOptions", "s");
constexpr const char *Percent = QT_TRANSLATE_NOOP("MRVOptions", "%");
constexpr const char *Pixels = QT_TRANSLATE_NOOP("MRVOptions", "px");

// A key for checks at compile time, and as a QString that is copied without counting references.
#define KEY(text) text, [] { return QStringLiteral(text); }

// clang-format off
constexpr FlagRow Flags[] = {
    {MRVOptions::LastMorvaneNormalExit, KEY("General/lastMorvaneNormalExit"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Last session ended normally"),
     QT_TRANSLATE_NOOP("MRVOptions", "Whether the session before this one was ended by the user and not by a failure."), Remembered},
    {MRVOptions::CurrentMorvaneNormalExit, KEY("General/currentMorvaneNormalExit"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "This session has ended normally"),
     QT_TRANSLATE_NOOP("MRVOptions", "Whether the present session was ended by the user, which is stored when the application closes."), Remembered},
    {MRVOptions::OpenRecentProjects, KEY("General/openRecentProjects"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Reopen projects at start"),
     QT_TRANSLATE_NOOP("MRVOptions", "Opens the projects again that were open when the application was closed.")},
    {MRVOptions::ShowStartPanel, KEY("General/showStartPanel"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Show the start panel"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows a panel with templates and recent projects when no project is open.")},
    {MRVOptions::ShowProjectFullPathInTitlebar, KEY("General/showProjectFullPathInTitlebar"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Show the full path in the title bar"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows the folder of a project with its name in the title bar of the window.")},
    {MRVOptions::OvertypeModeAllowed, KEY("General/overtypeModeAllowed"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Allow overtyping"),
     QT_TRANSLATE_NOOP("MRVOptions", "Lets the Insert key switch between inserting text and typing over it.")},
    {MRVOptions::NotesWithPunctuation, KEY("General/notesWithPunctuation"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Set notes after punctuation"),
     QT_TRANSLATE_NOOP("MRVOptions", "Places the mark of a footnote or comment after the punctuation that follows the selected words.")},
    {MRVOptions::CheckForUpdates, KEY("General/checkForUpdates"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Check for updates"),
     QT_TRANSLATE_NOOP("MRVOptions", "Looks for a newer version of the application from time to time.")},
    {MRVOptions::RenameUntitledOnSave, KEY("General/renameUntitledOnSave"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Name untitled documents on saving"),
     QT_TRANSLATE_NOOP("MRVOptions", "Gives a document without a title its first words as a title when it is saved.")},
    {MRVOptions::ConvertHtmlToText, KEY("Import/convertHTMLToText"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Import web pages as text"),
     QT_TRANSLATE_NOOP("MRVOptions", "Converts a web page to text that can be edited when it is imported.")},
    {MRVOptions::ImportSupportedTypesOnly, KEY("Import/importSupportedTypesOnly"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Import known file types only"),
     QT_TRANSLATE_NOOP("MRVOptions", "Leaves out files that the application cannot show when a folder is imported.")},
    {MRVOptions::RemoveInvalidRtfCharacters, KEY("Import/removeInvalidRtfCharacters"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Remove invalid characters from RTF"),
     QT_TRANSLATE_NOOP("MRVOptions", "Leaves out control characters that some programs write into RTF files.")},
    {MRVOptions::EnableFontHinting, KEY("Import/enableFontHinting"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Use font hinting"),
     QT_TRANSLATE_NOOP("MRVOptions", "Fits the shapes of letters to the pixels of the screen in text that is read from the settings.")},
    {MRVOptions::FernwickImportFirstLinesAsTitlesOnly, KEY("Import/fernwickImportFirstLinesAsTitlesOnly"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Use first lines as titles only"),
     QT_TRANSLATE_NOOP("MRVOptions", "Takes the first line of an imported Fernwick note as its title and leaves it out of the text.")},
    {MRVOptions::ShowDocumentCounts, KEY("Appearance/showDocumentCounts"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Show the number of documents"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows at each folder of the binder how many documents it contains.")},
    {MRVOptions::ShowDocumentNotepadLines, KEY("Appearance/showDocumentNotepadLines"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Show lines in document notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "Draws the lines of a notepad in the notes of a document.")},
    {MRVOptions::ShowProjectNotepadLines, KEY("Appearance/showProjectNotepadLines"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Show lines in project notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "Draws the lines of a notepad in the notes of the project.")},
    {MRVOptions::AlternateOutlinerRowColor, KEY("Appearance/alternateOutlinerRowColor"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Shade every other row"),
     QT_TRANSLATE_NOOP("MRVOptions", "Gives every other row of the outliner another background.")},
    {MRVOptions::EmboldenFolders, KEY("Appearance/emboldenFolders"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Folders in bold"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows the titles of folders in the binder in bold type.")},
    {MRVOptions::ItalicizeFolders, KEY("Appearance/italicizeFolders"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Folders in italics"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows the titles of folders in the binder in italics.")},
    {MRVOptions::EmboldenCollections, KEY("Appearance/emboldenCollections"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Collections in bold"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows the titles of collections in bold type.")},
    {MRVOptions::ItalicizeCollections, KEY("Appearance/italicizeCollections"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Collections in italics"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows the titles of collections in italics.")},
    {MRVOptions::CollectionsAsFolders, KEY("Navigation/collectionsAsFolders"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Show collections as folders"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows a collection on the corkboard and in the outliner as if it were a folder.")},
    {MRVOptions::IncludeEnclosingGroup, KEY("Navigation/includeEnclosingGroup"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Include the enclosing group"),
     QT_TRANSLATE_NOOP("MRVOptions", "Adds the folder itself when its documents are shown as one text.")},
    {MRVOptions::OpenAllInEditorInSearchResults, KEY("Navigation/openAllInEditorInSearchResults"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Open all results together"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows all documents that a project search has found in the editor at once.")},
    {MRVOptions::CollapseAutoExpandedOutlineItems, KEY("Navigation/collapseAutoExpandedOutlineItems"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Collapse items again after dragging"),
     QT_TRANSLATE_NOOP("MRVOptions", "Closes the items of the outline that opened by themselves during a drag.")},
    {MRVOptions::ReturnEndsEditingSynopsis, KEY("Navigation/returnEndsEditingSynopsis"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Return ends a synopsis"),
     QT_TRANSLATE_NOOP("MRVOptions", "Ends the editing of a synopsis with the Return key, which otherwise begins a new line.")},
    {MRVOptions::ReturnCreatesNewItem, KEY("Navigation/returnCreatesNewItem"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Return creates an item"),
     QT_TRANSLATE_NOOP("MRVOptions", "Creates a new item with the Return key in the binder, the outliner and on the corkboard.")},
    {MRVOptions::CorkboardAllowDropOn, KEY("Corkboard/allowDropOn"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Allow dropping on cards"),
     QT_TRANSLATE_NOOP("MRVOptions", "Lets an index card be dropped on another one, so that it becomes part of it.")},
    {MRVOptions::CheckSpellingInNewProjects, KEY("AutoCorrection/checkSpellingInNewProjects"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Check spelling in new projects"),
     QT_TRANSLATE_NOOP("MRVOptions", "Turns on the spelling check while typing in every new project.")},
    {MRVOptions::CorrectSpelling, KEY("AutoCorrection/correctSpelling"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Correct spelling while typing"),
     QT_TRANSLATE_NOOP("MRVOptions", "Replaces a misspelt word by the likely one as soon as it is complete.")},
    {MRVOptions::CapitalizeI, KEY("AutoCorrection/capitalizeI"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Capitalize a single i"),
     QT_TRANSLATE_NOOP("MRVOptions", "Writes the English word I as a capital letter.")},
    {MRVOptions::CapitalizeSentences, KEY("AutoCorrection/capitalizeSentences"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Capitalize sentences"),
     QT_TRANSLATE_NOOP("MRVOptions", "Begins each sentence with a capital letter.")},
    {MRVOptions::SmartQuotes, KEY("AutoCorrection/smartQuotes"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Use smart quotes"),
     QT_TRANSLATE_NOOP("MRVOptions", "Replaces straight quotation marks by opening and closing ones while typing.")},
    {MRVOptions::EmDashes, KEY("AutoCorrection/emDash"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Replace hyphens by em dashes"),
     QT_TRANSLATE_NOOP("MRVOptions", "Turns two hyphens into an em dash while typing.")},
    {MRVOptions::Ellipses, KEY("AutoCorrection/ellipses"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Replace dots by ellipses"),
     QT_TRANSLATE_NOOP("MRVOptions", "Turns three full stops into an ellipsis while typing.")},
    {MRVOptions::DisableCorrectionInScriptMode, KEY("AutoCorrection/disableInScriptMode"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "No correction in script mode"),
     QT_TRANSLATE_NOOP("MRVOptions", "Switches all corrections off while a script is written.")},
    {MRVOptions::SuperscriptOrdinals, KEY("AutoCorrection/SuperscriptOrdinals"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Raise ordinals"),
     QT_TRANSLATE_NOOP("MRVOptions", "Raises the letters of English ordinal numbers such as 1st.")},
    {MRVOptions::LinkWebAddresses, KEY("AutoCorrection/webAddress"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Link web addresses"),
     QT_TRANSLATE_NOOP("MRVOptions", "Turns a web address into a link while it is typed.")},
    {MRVOptions::CorrectMorvaneLinks, KEY("AutoCorrection/morvaneLinks"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Link titles in brackets"),
     QT_TRANSLATE_NOOP("MRVOptions", "Turns the title of a document in double square brackets into a link to it.")},
    {MRVOptions::EnableSubstitution, KEY("AutoCorrection/enableSubstitution"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Replace text while typing"),
     QT_TRANSLATE_NOOP("MRVOptions", "Replaces abbreviations by the texts in the list of replacements.")},
    {MRVOptions::TypewriterScrolling, KEY("TextEditing/typewriterScrolling"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Typewriter scrolling"),
     QT_TRANSLATE_NOOP("MRVOptions", "Keeps the line that is being written in the middle of the editor.")},
    {MRVOptions::FullScreenTypewriterScrolling, KEY("FullScreen/typewriterScrolling"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Typewriter scrolling in full screen"),
     QT_TRANSLATE_NOOP("MRVOptions", "Keeps the line that is being written in the middle of the screen.")},
    {MRVOptions::EnableAutoComplete, KEY("AutoCorrection/enableAutoComplete"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Complete words"),
     QT_TRANSLATE_NOOP("MRVOptions", "Offers words from the completion list of the project while typing.")},
    {MRVOptions::EnableAutoCompleteInScriptModeOnly, KEY("AutoCorrection/enableAutoCompleteInScriptModeOnly"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Complete words in script mode only"),
     QT_TRANSLATE_NOOP("MRVOptions", "Offers completions in scripts and not in other text.")},
    {MRVOptions::BackupsEnabled, KEY("Backups/enabled"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Make backups"),
     QT_TRANSLATE_NOOP("MRVOptions", "Makes backups of projects without being asked.")},
    {MRVOptions::BackUpOnOpen, KEY("Backups/onOpen"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Back up when a project is opened"),
     QT_TRANSLATE_NOOP("MRVOptions", "Makes a backup of a project before it is opened.")},
    {MRVOptions::BackUpOnClose, KEY("Backups/onClose"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Back up when a project is closed"),
     QT_TRANSLATE_NOOP("MRVOptions", "Makes a backup of a project when it is closed.")},
    {MRVOptions::BackUpOnSave, KEY("Backups/onSave"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Back up on each manual save"),
     QT_TRANSLATE_NOOP("MRVOptions", "Makes a backup whenever the project is saved by command.")},
    {MRVOptions::CompressBackups, KEY("Backups/compress"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Compress backups"),
     QT_TRANSLATE_NOOP("MRVOptions", "Stores each backup as one zip file.")},
    {MRVOptions::IncludeDateInBackups, KEY("Backups/includeDate"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Put the date into backup names"),
     QT_TRANSLATE_NOOP("MRVOptions", "Adds the date and the time to the name of each backup.")},
    {MRVOptions::DisableSoundEffects, KEY("General/disableSoundEffects"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "No sound effects"),
     QT_TRANSLATE_NOOP("MRVOptions", "Switches the sounds of the application off.")},
    {MRVOptions::TransparentScratchPad, KEY("General/ScratchPad/TransparentScratchPad"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Transparent scratch pad"),
     QT_TRANSLATE_NOOP("MRVOptions", "Lets the windows behind the scratch pad shine through.")},
    {MRVOptions::CustomMetaDataWrapFields, KEY("Inspector/CustomMetaDataWrapFields"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Wrap metadata fields"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows long values of custom metadata on several lines.")},
    {MRVOptions::CustomMetaDataColorFields, KEY("Inspector/CustomMetaDataColorFields"), true,
     QT_TRANSLATE_NOOP("MRVOptions", "Colour metadata fields"),
     QT_TRANSLATE_NOOP("MRVOptions", "Shows each field of custom metadata in its own colour.")},
    {MRVOptions::KeepOnTopWindows, KEY("General/KeepOnTopWindows"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Keep windows on top"),
     QT_TRANSLATE_NOOP("MRVOptions", "Keeps the tool windows of the application above all other windows.")},
    {MRVOptions::KeepOnTopQuickReferencePanels, KEY("General/KeepOnTopQuickReferencePanels"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Keep reference panels on top"),
     QT_TRANSLATE_NOOP("MRVOptions", "Keeps quick reference panels above the main window.")},
    {MRVOptions::OpmlExportEntireBinder, KEY("Opml/exportEntireBinder"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Export the entire binder"),
     QT_TRANSLATE_NOOP("MRVOptions", "Exports all of the binder to OPML, and not the selected items only.")},
    {MRVOptions::OpmlCreateContainingFolder, KEY("Opml/createContainingFolder"), false,
     QT_TRANSLATE_NOOP("MRVOptions", "Create a folder for the import"),
     QT_TRANSLATE_NOOP("MRVOptions", "Puts what is imported from OPML into a new folder.")},
};

constexpr IntRow Ints[] = {
    {MRVOptions::FullScreenPaperPosition, KEY("FullScreen/paperPosition"), {1, 0, 2, paperPositions},
     QT_TRANSLATE_NOOP("MRVOptions", "Position of the page"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines where on the screen the page stands in full screen.")},
    {MRVOptions::SaveInterval, KEY("General/saveInterval"), {2, 1, 3600, nullptr, Seconds},
     QT_TRANSLATE_NOOP("MRVOptions", "Save after"),
     QT_TRANSLATE_NOOP("MRVOptions", "Saves the project when nothing has been typed for this number of seconds.")},
    {MRVOptions::CheckForUpdatesInterval, KEY("General/checkForUpdatesInterval"), {1, 0, 3650},
     QT_TRANSLATE_NOOP("MRVOptions", "Days between checks for updates"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how many days pass before a newer version is looked for again.")},
    {MRVOptions::LabelTintOpacity, KEY("Appearance/labelTintOpacity"), {128, 0, 255},
     QT_TRANSLATE_NOOP("MRVOptions", "Strength of label tints"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how strongly the colour of a label shows, from 0 (not at all) to 255 (fully).")},
    {MRVOptions::StatusOpacity, KEY("IndexCard/statusOpacity"), {96, 0, 255},
     QT_TRANSLATE_NOOP("MRVOptions", "Strength of the status stamp"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how strongly the status is stamped on an index card, from 0 to 255.")},
    {MRVOptions::ShadowOpacity, KEY("IndexCard/shadowOpacity"), {128, 0, 255},
     QT_TRANSLATE_NOOP("MRVOptions", "Strength of card shadows"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how dark the shadows of index cards are, from 0 (none) to 255.")},
    {MRVOptions::FullScreenBackgroundOpacity, KEY("FullScreen/backgroundOpacity"), {128, 0, 255},
     QT_TRANSLATE_NOOP("MRVOptions", "Strength of the background"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how much the background of full screen hides the desktop, from 0 to 255.")},
    {MRVOptions::FullScreenPaperWidth, KEY("FullScreen/paperWidth"), {70, 1, 100, nullptr, Percent},
     QT_TRANSLATE_NOOP("MRVOptions", "Width of the page"),
     QT_TRANSLATE_NOOP("MRVOptions", "Sets the width of the page in full screen, in percent of that of the screen.")},
    {MRVOptions::FullScreenPaperHeight, KEY("FullScreen/paperHeight"), {99, 1, 100, nullptr, Percent},
     QT_TRANSLATE_NOOP("MRVOptions", "Height of the page"),
     QT_TRANSLATE_NOOP("MRVOptions", "Sets the height of the page in full screen, in percent of that of the screen.")},
    {MRVOptions::CursorWidth, KEY("TextEditing/cursorWidth"), {-1, -1, 100, nullptr, Pixels},
     QT_TRANSLATE_NOOP("MRVOptions", "Width of the text cursor"),
     QT_TRANSLATE_NOOP("MRVOptions", "Sets how wide the text cursor is; -1 is the width that the system uses.")},
    {MRVOptions::EditorZoomIndex, KEY("Appearance/editorZoomIndex"), {9, 0, 99},
     QT_TRANSLATE_NOOP("MRVOptions", "Zoom of the editor"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines which entry of the list of zoom factors the editor uses.")},
    {MRVOptions::ProjectNotesZoomIndex, KEY("Appearance/projectNotesZoomIndex"), {9, 0, 99},
     QT_TRANSLATE_NOOP("MRVOptions", "Zoom of project notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines which entry of the list of zoom factors project notes use.")},
    {MRVOptions::DocumentNotesZoomIndex, KEY("Appearance/documentNotesZoomIndex"), {9, 0, 99},
     QT_TRANSLATE_NOOP("MRVOptions", "Zoom of document notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines which entry of the list of zoom factors document notes use.")},
    {MRVOptions::MediaBacktrackDuration, KEY("Media/backtrackDuration"), {3, 0, 3600, nullptr, Seconds},
     QT_TRANSLATE_NOOP("MRVOptions", "Rewind on pause"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how many seconds a recording goes back when it is paused, so that no word is missed.")},
    {MRVOptions::BackupsToRetain, KEY("Backups/retain"), {5, 0, Any},
     QT_TRANSLATE_NOOP("MRVOptions", "Backups to keep"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how many backups of a project are kept before the oldest is removed.")},
    {MRVOptions::RevisionLevel, KEY("TextEditing/revisionLevel"), {0, 0, 5},
     QT_TRANSLATE_NOOP("MRVOptions", "Revision of new text"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines as which revision new text is marked, from 1 to 5; 0 marks nothing.")},
    {MRVOptions::AutoChangeIndentWithSpacing, KEY("General/autoChangeIndentWithSpacing"), {0, 0, Any},
     QT_TRANSLATE_NOOP("MRVOptions", "Adapt indents to line spacing"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how the first-line indent follows when the line spacing is changed.")},
    {MRVOptions::OpenClickedMorvaneLinksIn, KEY("Navigation/openClickedMorvaneLinksIn"), {0, MRV::OpenInOtherEditor, MRV::OpenInReferencePanel, linkTargets},
     QT_TRANSLATE_NOOP("MRVOptions", "Open links in"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines where the document opens that a clicked link leads to.")},
    {MRVOptions::RecentProjectsCount, KEY("General/recentProjectsCount"), {10, 0, 50},
     QT_TRANSLATE_NOOP("MRVOptions", "Recent projects to list"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how many projects the menu of recent projects shows.")},
    {MRVOptions::OpmlExportLastFormat, KEY("Opml/exportLastFormat"), {0, 0, Any},
     QT_TRANSLATE_NOOP("MRVOptions", "Last format of an OPML export"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the format that the last export to OPML used."), Remembered},
    {MRVOptions::OpmlExportType, KEY("Opml/opmlExportType"), {1, 0, Any},
     QT_TRANSLATE_NOOP("MRVOptions", "Content of OPML exports"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines which parts of the documents an export to OPML contains.")},
    {MRVOptions::OpmlImportType, KEY("Opml/opmlImportType"), {1, MRV::OpmlTitlesOnly, MRV::OpmlNotes, opmlImportTypes},
     QT_TRANSLATE_NOOP("MRVOptions", "Content of OPML imports"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines what the notes of an OPML file become when it is imported.")},
    {MRVOptions::OpmlImportTypeOptions, KEY("Opml/opmlImportTypeOptions"), {1, 0, Any},
     QT_TRANSLATE_NOOP("MRVOptions", "Last choice for an OPML import"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the choice that the import dialog showed last."), Remembered},
};

constexpr RealRow Reals[] = {
    {MRVOptions::DefaultVolume, KEY("General/defaultVolume"), {0.5, 0, 1},
     QT_TRANSLATE_NOOP("MRVOptions", "Volume"),
     QT_TRANSLATE_NOOP("MRVOptions", "Sets how loud recordings are played, from 0 (silent) to 1 (full).")},
    {MRVOptions::EditorMargin, KEY("TextEditing/margin"), {20.0, 0, 1000, Pixels},
     QT_TRANSLATE_NOOP("MRVOptions", "Margin of the editor"),
     QT_TRANSLATE_NOOP("MRVOptions", "Sets how many pixels are left free between the text and the edge of the editor.")},
};

constexpr StringRow Strings[] = {
    {MRVOptions::TemplatesPath, KEY("Templates/defaultPath"), {nullptr, defaultTemplatesPath, nullptr, MRVOptions::FolderPath},
     QT_TRANSLATE_NOOP("MRVOptions", "Folder of templates"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the folder in which project templates of your own are kept.")},
    {MRVOptions::CorkboardPattern, KEY("Corkboard/pattern"), {"", nullptr, nullptr, MRVOptions::FilePath},
     QT_TRANSLATE_NOOP("MRVOptions", "Picture of the corkboard"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the picture file that covers the corkboard; without one it has a plain colour.")},
    {MRVOptions::RulerMeasure, KEY("Ruler/measure"), {nullptr, systemMeasure, measures},
     QT_TRANSLATE_NOOP("MRVOptions", "Unit of the ruler"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the unit in which the ruler and the fields for lengths count.")},
    {MRVOptions::RulerSnap, KEY("Ruler/snap"), {nullptr, systemSnap, nullptr, MRVOptions::Line, isMeasure},
     QT_TRANSLATE_NOOP("MRVOptions", "Step of the ruler"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the distance in which tab stops and indents move on the ruler; empty lets them move freely.")},
    {MRVOptions::DictionaryLocale, KEY("AutoCorrection/dictionaryLocale"), {nullptr, systemLocaleName, nullptr, MRVOptions::Line, isLocaleName},
     QT_TRANSLATE_NOOP("MRVOptions", "Language of the dictionary"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the language in which spelling is checked, such as en_GB.")},
    {MRVOptions::BibliographyCitationsManager, KEY("General/bibliographyCitationsManager"), {"", nullptr, nullptr, MRVOptions::FilePath},
     QT_TRANSLATE_NOOP("MRVOptions", "Citation manager"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the program that opens when citations are to be inserted.")},
    {MRVOptions::ScratchPadDirectory, KEY("General/ScratchPad/Directory"), {nullptr, defaultScratchPadPath, nullptr, MRVOptions::FolderPath},
     QT_TRANSLATE_NOOP("MRVOptions", "Folder of scratch pad notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the folder in which the notes of the scratch pad are kept.")},
    {MRVOptions::ScratchPadLastFile, KEY("General/ScratchPad/LastFile"), {"", nullptr, nullptr, MRVOptions::FilePath},
     QT_TRANSLATE_NOOP("MRVOptions", "Last scratch pad note"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the note that the scratch pad showed last."), Remembered},
    {MRVOptions::ScratchPadOrientation, KEY("General/ScratchPad/Orientation"), {"Vertical", nullptr, orientations},
     QT_TRANSLATE_NOOP("MRVOptions", "Layout of the scratch pad"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines whether the list of notes stands above the text or beside it.")},
    {MRVOptions::BackupsLocation, KEY("Backups/location"), {nullptr, MRVOptions::defaultBackupPath, nullptr, MRVOptions::FolderPath},
     QT_TRANSLATE_NOOP("MRVOptions", "Folder of backups"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the folder in which automatic backups are kept.")},
    {MRVOptions::GuiLanguage, KEY("General/GuiLanguage"), {nullptr, MRVOptions::defaultGuiLanguageCode, guiLanguages},
     QT_TRANSLATE_NOOP("MRVOptions", "Language of the application"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the language of menus and dialogs; it changes at the next start.")},
    {MRVOptions::DoubleQuotesSubstitution, KEY("General/DoubleQuotesSubstitution"), {"\u201c\u201d", nullptr, nullptr, MRVOptions::QuotePair},
     QT_TRANSLATE_NOOP("MRVOptions", "Double quotes"),
     QT_TRANSLATE_NOOP("MRVOptions", "These are the opening and the closing mark that replace straight double quotes.")},
    {MRVOptions::SingleQuotesSubstitution, KEY("General/SingleQuotesSubstitution"), {"\u2018\u2019", nullptr, nullptr, MRVOptions::QuotePair},
     QT_TRANSLATE_NOOP("MRVOptions", "Single quotes"),
     QT_TRANSLATE_NOOP("MRVOptions", "These are the opening and the closing mark that replace straight single quotes.")},
    {MRVOptions::LabelIndicator, KEY("IndexCard/labelIndicator"), {"PinIndicator", nullptr, labelIndicators},
     QT_TRANSLATE_NOOP("MRVOptions", "Labels on index cards"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines how an index card shows the colour of its label.")},
    {MRVOptions::IndexCardCornerStyle, KEY("IndexCard/indexCardCornerStyle"), {"RoundedCorners", nullptr, cornerStyles},
     QT_TRANSLATE_NOOP("MRVOptions", "Corners of index cards"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines whether the corners of index cards are square or rounded.")},
    {MRVOptions::SpaceDoubleClick, KEY("IndexCard/spaceDoubleClick"), {"SpaceDoubleClickCreatesCard", nullptr, spaceDoubleClickModes},
     QT_TRANSLATE_NOOP("MRVOptions", "Double click on the corkboard"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines what a double click between the cards does.")},
    {MRVOptions::KindlePath, KEY("Compile/KindlePath"), {"", nullptr, nullptr, MRVOptions::FilePath},
     QT_TRANSLATE_NOOP("MRVOptions", "Kindle converter"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the program that makes Kindle books; without it, they are not offered.")},
    {MRVOptions::OpmlImportLastPath, KEY("Opml/importLastPath"), {"", nullptr, nullptr, MRVOptions::FolderPath},
     QT_TRANSLATE_NOOP("MRVOptions", "Last folder of an OPML import"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the folder from which an OPML file was last imported."), Remembered},
};

constexpr StringListRow StringLists[] = {
    {MRVOptions::PersonalWords, KEY("AutoCorrection/personalWords"), {},
     QT_TRANSLATE_NOOP("MRVOptions", "Personal dictionary"),
     QT_TRANSLATE_NOOP("MRVOptions", "These are the words that you have added to the dictionary.")},
};

// A light theme: text on each of these colours has a contrast of at least 4.5, as level AA of
// https://www.w3.org/TR/WCAG21/#contrast-minimum requires.
constexpr ColorRow Colors[] = {
    {MRVOptions::IndexCardDividerColor, KEY("IndexCard/Colors/Divider"), {0xffe0a3a0, MRVOptions::IndexCardColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Divider"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the line below the title of an index card.")},
    {MRVOptions::IndexCardNotepadLinesColor, KEY("IndexCard/Colors/NotepadLines"), {0xffc9d7e8, MRVOptions::IndexCardColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Notepad lines"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the lines on an index card.")},
    {MRVOptions::IndexCardStatusColor, KEY("IndexCard/Colors/Status"), {0xffb3261e, MRVOptions::IndexCardColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Status stamp"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the status that is stamped on an index card.")},
    {MRVOptions::IndexCardBorderColor, KEY("IndexCard/Colors/Border"), {0xff8a8f98, MRVOptions::IndexCardColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Border"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the edge of an index card.")},
    {MRVOptions::IndexCardBackgroundColor, KEY("IndexCard/Colors/Background"), {0xffffffff, MRVOptions::IndexCardColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Card"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of an index card without a label.")},
    {MRVOptions::CorkboardBackgroundColor, KEY("Appearance/Colors/CorkboardBackground"), {0xffdccbb0, MRVOptions::IndexCardColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Corkboard"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the corkboard where it has no picture.")},
    {MRVOptions::FullScreenBackgroundColor, KEY("FullScreen/Colors/Background"), {0xffc9ced6, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Around the page"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the screen around the page in full screen.")},
    {MRVOptions::FirstRevisionColor, KEY("Appearance/Colors/FirstRevision"), {0xffb3261e, MRVOptions::RevisionColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "First revision"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was written in the first revision.")},
    {MRVOptions::SecondRevisionColor, KEY("Appearance/Colors/SecondRevision"), {0xff0b57d0, MRVOptions::RevisionColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Second revision"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was written in the second revision.")},
    {MRVOptions::ThirdRevisionColor, KEY("Appearance/Colors/ThirdRevision"), {0xff1b6e2d, MRVOptions::RevisionColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Third revision"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was written in the third revision.")},
    {MRVOptions::FourthRevisionColor, KEY("Appearance/Colors/FourthRevision"), {0xff8e24aa, MRVOptions::RevisionColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Fourth revision"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was written in the fourth revision.")},
    {MRVOptions::FifthRevisionColor, KEY("Appearance/Colors/FifthRevision"), {0xff9a5200, MRVOptions::RevisionColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Fifth revision"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was written in the fifth revision.")},
    {MRVOptions::TextColor, KEY("TextEditing/Colors/Text"), {0xff1f1f1f, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text in the editor that has none of its own.")},
    {MRVOptions::PageColor, KEY("TextEditing/Colors/Page"), {0xffffffff, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Page"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the page in the editor.")},
    {MRVOptions::LinksColor, KEY("TextEditing/Colors/Links"), {0xff0b57d0, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Links"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of links in the editor.")},
    {MRVOptions::VisitedLinksColor, KEY("TextEditing/Colors/VisitedLinks"), {0xff6a1b9a, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Visited links"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of links in the editor that have been opened.")},
    {MRVOptions::InvisiblesColor, KEY("TextEditing/Colors/Invisibles"), {0xff5b6270, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Invisible characters"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of blanks, tabs and paragraph marks in the editor.")},
    {MRVOptions::HighlightTextColor, KEY("TextEditing/Colors/HighlightText"), {0xffffffff, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Selected text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of selected text in the editor.")},
    {MRVOptions::HighlightPageColor, KEY("TextEditing/Colors/HighlightPage"), {0xff1a62c4, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Selection"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of selected text in the editor.")},
    {MRVOptions::AnnotationColor, KEY("TextEditing/Colors/Annotation"), {0xffb3261e, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Inline annotations"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of annotations within the text.")},
    {MRVOptions::CommentColor, KEY("TextEditing/Colors/Comment"), {0xfffff0a8, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Comments"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of text that has a comment.")},
    {MRVOptions::FootnotesTextColor, KEY("TextEditing/Colors/FootnotesText"), {0xff1f1f1f, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Footnote text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the text of footnotes.")},
    {MRVOptions::FootnotesPageColor, KEY("TextEditing/Colors/FootnotesPage"), {0xfff1f3f6, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Footnotes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of text that has a footnote.")},
    {MRVOptions::PreserveFormatColor, KEY("TextEditing/Colors/PreserveFormat"), {0xffe3ecfa, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Preserved formatting"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of text that keeps its formatting when the book is compiled.")},
    {MRVOptions::SearchColor, KEY("TextEditing/Colors/Search"), {0xffffe58a, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Project search"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of what a project search has found in the editor.")},
    {MRVOptions::SearchBorderColor, KEY("TextEditing/Colors/SearchBorder"), {0xff8a6d00, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Border of project search"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the frame around what a project search has found in the editor.")},
    {MRVOptions::FindColor, KEY("TextEditing/Colors/Find"), {0xffffd54f, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Found text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of what was found in the document.")},
    {MRVOptions::FindAlternateColor, KEY("TextEditing/Colors/FindAlternate"), {0xffb7e1a1, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Found text, alternate"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of every other match in the document.")},
    {MRVOptions::FindTextColor, KEY("TextEditing/Colors/FindText"), {0xff1f1f1f, MRVOptions::EditorColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Text that was found"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was found in the document.")},
    {MRVOptions::SpellCheckerColor, KEY("TextEditing/Colors/SpellChecker"), {0xffd32f2f, MRVOptions::EditorColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Misspelt words"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the line below a misspelt word.")},
    {MRVOptions::FullScreenTextColor, KEY("TextEditing/Colors/FullScreenText"), {0xff1f1f1f, MRVOptions::FullScreenColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text in full screen that has none of its own.")},
    {MRVOptions::FullScreenPageColor, KEY("TextEditing/Colors/FullScreenPage"), {0xfffbf8f1, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Page"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the page in full screen.")},
    {MRVOptions::FullScreenLinksColor, KEY("TextEditing/Colors/FullScreenLinks"), {0xff0b57d0, MRVOptions::FullScreenColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Links"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of links in full screen.")},
    {MRVOptions::FullScreenVisitedLinksColor, KEY("TextEditing/Colors/FullScreenVisitedLinks"), {0xff6a1b9a, MRVOptions::FullScreenColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Visited links"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of links in full screen that have been opened.")},
    {MRVOptions::FullScreenInvisiblesColor, KEY("TextEditing/Colors/FullScreenInvisibles"), {0xff5e6470, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Invisible characters"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of blanks, tabs and paragraph marks in full screen.")},
    {MRVOptions::FullScreenHighlightTextColor, KEY("TextEditing/Colors/FullScreenHighlightText"), {0xffffffff, MRVOptions::FullScreenColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Selected text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of selected text in full screen.")},
    {MRVOptions::FullScreenHighlightPageColor, KEY("TextEditing/Colors/FullScreenHighlightPage"), {0xff1a62c4, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Selection"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of selected text in full screen.")},
    {MRVOptions::FullScreenSearchColor, KEY("TextEditing/Colors/FullScreenSearch"), {0xffffe58a, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Project search"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of what a project search has found, in full screen.")},
    {MRVOptions::FullScreenSearchBorderColor, KEY("TextEditing/Colors/FullScreenSearchBorder"), {0xff8a6d00, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Border of project search"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of the frame around what a project search has found, in full screen.")},
    {MRVOptions::FullScreenFindColor, KEY("TextEditing/Colors/FullScreenFind"), {0xffffd54f, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Found text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of what was found in the document, in full screen.")},
    {MRVOptions::FullScreenFindAlternateColor, KEY("TextEditing/Colors/FullScreenFindAlternate"), {0xffb7e1a1, MRVOptions::FullScreenColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Found text, alternate"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of every other match in the document, in full screen.")},
    {MRVOptions::FullScreenFindTextColor, KEY("TextEditing/Colors/FullScreenFindText"), {0xff1f1f1f, MRVOptions::FullScreenColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Text that was found"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text that was found in the document, in full screen.")},
    {MRVOptions::DocumentNotesBackgroundColor, KEY("Appearance/Colors/DocumentNotesBackground"), {0xfffffbe6, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Document notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of the notes of a document.")},
    {MRVOptions::ProjectNotesBackgroundColor, KEY("Appearance/Colors/ProjectNotesBackground"), {0xfffff7e0, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Project notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of the notes of the project.")},
    {MRVOptions::RecentSearchResultsBackgroundColor, KEY("Appearance/Colors/RecentSearchResultsBackground"), {0xffeef3fb, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Recent search results"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of the list of recent search results.")},
    {MRVOptions::BinderBackgroundColor, KEY("Appearance/Colors/BinderBackground"), {0xfff5f6f8, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Binder"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of the binder.")},
    {MRVOptions::OutlinerBackgroundColor, KEY("Appearance/Colors/OutlinerBackground"), {0xffffffff, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Outliner"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of the outliner.")},
    {MRVOptions::OutlinerAlternateBackgroundColor, KEY("Appearance/Colors/OutlinerAlternateBackground"), {0xfff2f5fa, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Outliner, every other row"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of every other row of the outliner.")},
    {MRVOptions::SnapshotTextBackgroundColor, KEY("Appearance/Colors/SnapshotTextBackground"), {0xfff7f3e8, MRVOptions::BackgroundColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Snapshots"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of earlier versions of a document.")},
    {MRVOptions::ScratchPadPageColor, KEY("Appearance/Colors/ScratchPadPage"), {0xfffffde7, MRVOptions::ScratchPadColors},
     QT_TRANSLATE_NOOP("MRVOptions", "Page"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the background of the scratch pad.")},
    {MRVOptions::ScratchPadTextColor, KEY("Appearance/Colors/ScratchPadText"), {0xff1f1f1f, MRVOptions::ScratchPadColors, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the colour of text in the scratch pad.")},
};

constexpr DateTimeRow DateTimes[] = {
    {MRVOptions::LastCheckForUpdates, KEY("General/lastCheckForUpdates"), {},
     QT_TRANSLATE_NOOP("MRVOptions", "Last check for updates"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the time at which a newer version was last looked for."), Remembered},
    {MRVOptions::MorvaneStartDateTime, KEY("General/morvaneStartDateTime"), {},
     QT_TRANSLATE_NOOP("MRVOptions", "Time of the start"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the time at which the application was started."), Remembered},
};

constexpr FontRow Fonts[] = {
    {MRVOptions::IndexCardTitleFont, KEY("IndexCard/titleFont"), {100, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of card titles"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the titles of index cards.")},
    {MRVOptions::IndexCardSynopsisFont, KEY("IndexCard/synopsisFont"), {100},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of synopses"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the synopses on index cards.")},
    {MRVOptions::IndexCardSynopsisSmallFont, KEY("IndexCard/synopsisSmallFont"), {85},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of synopses on small cards"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the synopses on small index cards.")},
    {MRVOptions::IndexCardStatusFont, KEY("IndexCard/statusFont"), {150, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of status stamps"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the status that is stamped on index cards.")},
    {MRVOptions::MorvaneGuiFont, KEY("Appearance/morvaneGuiFont"), {100},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of menus and dialogs"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of menus, buttons and dialogs.")},
    {MRVOptions::DocumentNotesFont, KEY("Appearance/documentNotesFont"), {100},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of document notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the notes of a document.")},
    {MRVOptions::ProjectNotesFont, KEY("Appearance/projectNotesFont"), {100},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of project notes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the notes of the project.")},
    {MRVOptions::BinderFont, KEY("Appearance/binderFont"), {100},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of the binder"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the binder.")},
    {MRVOptions::OutlinerFont, KEY("Appearance/outlinerFont"), {100},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of the outliner"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the outliner.")},
    {MRVOptions::HeaderBarFont, KEY("Appearance/headerBarFont"), {100, true},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of header bars"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the bar above each editor.")},
    {MRVOptions::InspectorCommentsFont, KEY("Appearance/inspectorCommentsFont"), {90},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of comments"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of comments in the inspector.")},
    {MRVOptions::InspectorFootnotesFont, KEY("Appearance/inspectorFootnotesFont"), {90},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of footnotes"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of footnotes in the inspector.")},
    {MRVOptions::ScratchPadFont, KEY("Appearance/scratchPadFont"), {110},
     QT_TRANSLATE_NOOP("MRVOptions", "Font of the scratch pad"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the font of the scratch pad.")},
};

constexpr ByteArrayRow ByteArrays[] = {
    {MRVOptions::DefaultShortcutScheme, KEY("Shortcut/defaultShortcutScheme"), {defaultShortcutScheme, isShortcutScheme},
     QT_TRANSLATE_NOOP("MRVOptions", "Keyboard shortcuts"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the set of keys that the commands of the application have.")},
    {MRVOptions::TextPresets, KEY("TextEditing/textPresets"), {defaultTextPresets, isPresetScheme},
     QT_TRANSLATE_NOOP("MRVOptions", "Text presets"),
     QT_TRANSLATE_NOOP("MRVOptions", "These are the named formats for characters and paragraphs.")},
    {MRVOptions::FullScreenBackgroundImage, KEY("FullScreen/Colors/BackgroundImage"), {noBytes, isPicture},
     QT_TRANSLATE_NOOP("MRVOptions", "Background picture"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the picture that fills the screen around the page in full screen.")},
    {MRVOptions::SubstitutionList, KEY("AutoCorrection/substitutionList"), {MRVAutoReplaceList::defaultReplacementsByteArray, isAutoReplaceList},
     QT_TRANSLATE_NOOP("MRVOptions", "Replacements"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the list of texts that are replaced while typing.")},
    {MRVOptions::PdfSettings, KEY("PdfSettings"), {noBytes},
     QT_TRANSLATE_NOOP("MRVOptions", "PDF settings"),
     QT_TRANSLATE_NOOP("MRVOptions", "These are the settings of PDF exports by their names.")},
    {MRVOptions::SpellingGeometry, KEY("Geometry/SpellingGeometry"), {noBytes},
     QT_TRANSLATE_NOOP("MRVOptions", "Place of the spelling window"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the place and the size that the spelling window had last."), Remembered},
    {MRVOptions::ImportDefaultUrlType, KEY("Import/defaultUrlType"), {defaultUrlImportType, isUrlImportType, urlImportTypes},
     QT_TRANSLATE_NOOP("MRVOptions", "Import web pages as"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines what a web page becomes when it is imported.")},
    {MRVOptions::ImportDefaultCodec, KEY("Import/defaultCodec"), {defaultCodec, isCodec},
     QT_TRANSLATE_NOOP("MRVOptions", "Encoding of plain text"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the encoding in which plain text files are read where they do not name one.")},
    {MRVOptions::ImportFormatConverters, KEY("Import/importFormatConverters"), {defaultImportEngines, isEngineMap},
     QT_TRANSLATE_NOOP("MRVOptions", "Converters for imports"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines which converter reads which file format.")},
    {MRVOptions::ExportFormatConverters, KEY("Import/exportFormatConverters"), {defaultExportEngines, isEngineMap},
     QT_TRANSLATE_NOOP("MRVOptions", "Converters for exports"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines which converter writes which file format.")},
};

constexpr CharFormatRow CharFormats[] = {
    {MRVOptions::DefaultCharFormat, KEY("TextEditing/defaultCharFormat"), defaultCharFormat,
     QT_TRANSLATE_NOOP("MRVOptions", "Characters of new documents"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the format of characters with which a new document begins.")},
};

constexpr BlockFormatRow BlockFormats[] = {
    {MRVOptions::DefaultBlockFormat, KEY("TextEditing/defaultBlockFormat"), defaultBlockFormat,
     QT_TRANSLATE_NOOP("MRVOptions", "Paragraphs of new documents"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the format of paragraphs with which a new document begins.")},
};

constexpr SeparatorRow Separators[] = {
    {{MRV::Morvanings, SeparatorSetting::Type}, KEY("Separators/Morvanings"), {"EmptyLine", nullptr, separatorTypes},
     QT_TRANSLATE_NOOP("MRVOptions", "Between documents shown together"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines what separates the texts of documents that are shown as one.")},
    {{MRV::Morvanings, SeparatorSetting::Custom}, KEY("Separators/MorvaningsCustom"), {"\n#\n", nullptr, nullptr, MRVOptions::Lines},
     QT_TRANSLATE_NOOP("MRVOptions", "Separator of your own between documents shown together"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the text that separates documents shown as one where a separator of your own is chosen.")},
    {{MRV::MergedDocuments, SeparatorSetting::Type}, KEY("Separators/MergedDocuments"), {"EmptyLine", nullptr, separatorTypes},
     QT_TRANSLATE_NOOP("MRVOptions", "Between merged documents"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines what separates the texts of documents that are merged.")},
    {{MRV::MergedDocuments, SeparatorSetting::Custom}, KEY("Separators/MergedDocumentsCustom"), {"\n#\n", nullptr, nullptr, MRVOptions::Lines},
     QT_TRANSLATE_NOOP("MRVOptions", "Separator of your own between merged documents"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the text that separates merged documents where a separator of your own is chosen.")},
    {{MRV::Clippings, SeparatorSetting::Type}, KEY("Separators/Clippings"), {"SingleReturn", nullptr, separatorTypes},
     QT_TRANSLATE_NOOP("MRVOptions", "Between clippings"),
     QT_TRANSLATE_NOOP("MRVOptions", "Determines what separates a clipping from the text to which it is added.")},
    {{MRV::Clippings, SeparatorSetting::Custom}, KEY("Separators/ClippingsCustom"), {"\n#\n", nullptr, nullptr, MRVOptions::Lines},
     QT_TRANSLATE_NOOP("MRVOptions", "Separator of your own between clippings"),
     QT_TRANSLATE_NOOP("MRVOptions", "This is the text that separates clippings where a separator of your own is chosen.")},
};

constexpr const char *WarningKeys[] = {
    "ShowBetaExpireDateWarning",
    "ShowSpellCheckerLoadErrors",
    "ShowImportWarning",
    "ShowSortWarning",
    "ShowMetaDataMoveWarning",
    "ShowClearTemplateWarning",
};
// clang-format on

constexpr bool equal(const char *a, const char *b)
{
    for (; *a != 0 && *a == *b; ++a, ++b) { }
    return *a == *b;
}

// Numbers ascend up to the last one, and each key occurs once.
template<typename Entry, std::size_t Size>
constexpr bool isSound(const Entry (&table)[Size], int last)
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (table[i].key[0] == 0 || (i > 0 && table[i - 1].setting >= table[i].setting)) {
            return false;
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (equal(table[i].key, table[j].key)) {
                return false;
            }
        }
    }
    return int(table[Size - 1].setting) == last;
}

constexpr bool holdsTwoOfEachContext()
{
    for (std::size_t i = 0; i < std::size(Separators); ++i) {
        if (Separators[i].setting.context != int(i) / 2
            || Separators[i].setting.part != int(i) % 2) {
            return false;
        }
    }
    return std::size(Separators) == 2 * (MRV::Clippings + 1);
}

template<typename Entry, std::size_t Size>
constexpr bool holdsDefaultsWithinLimits(const Entry (&table)[Size])
{
    for (const Entry &row : table) {
        if (row.value.value < row.value.least || row.value.value > row.value.most) {
            return false;
        }
    }
    return true;
}

static_assert(isSound(Flags, 111) && std::size(Flags) == 57 + 2);
static_assert(isSound(Ints, 54) && std::size(Ints) == 15 + 4 + 4);
static_assert(isSound(Reals, 1) && std::size(Reals) == 2);
static_assert(isSound(Strings, 47) && std::size(Strings) == 16 + 2);
static_assert(isSound(StringLists, 0));
static_assert(isSound(Colors, 50) && std::size(Colors) == 51);
static_assert(isSound(DateTimes, 1) && std::size(DateTimes) == 2);
static_assert(isSound(Fonts, 15) && std::size(Fonts) == 12 + 1);
static_assert(isSound(ByteArrays, 13) && std::size(ByteArrays) == 10);
static_assert(isSound(CharFormats, 0));
static_assert(isSound(BlockFormats, 0));
static_assert(holdsDefaultsWithinLimits(Ints) && holdsDefaultsWithinLimits(Reals));
static_assert(holdsTwoOfEachContext());

template<typename Entry, std::size_t Size>
constexpr int lastOf(const Entry (&table)[Size])
{
    return table[Size - 1].setting;
}

// The index of the row of each number; -1 for a number without a row.
template<int Last, typename Entry, std::size_t Size>
constexpr std::array<qint8, Last + 1> indexOf(const Entry (&table)[Size])
{
    std::array<qint8, Last + 1> index{};
    for (qint8 &place : index) {
        place = -1;
    }
    for (std::size_t i = 0; i < Size; ++i) {
        index[std::size_t(table[i].setting)] = qint8(i);
    }
    return index;
}

constexpr auto FlagIndex = indexOf<lastOf(Flags)>(Flags);
constexpr auto IntIndex = indexOf<lastOf(Ints)>(Ints);
constexpr auto RealIndex = indexOf<lastOf(Reals)>(Reals);
constexpr auto StringIndex = indexOf<lastOf(Strings)>(Strings);
constexpr auto StringListIndex = indexOf<lastOf(StringLists)>(StringLists);
constexpr auto ColorIndex = indexOf<lastOf(Colors)>(Colors);
constexpr auto DateTimeIndex = indexOf<lastOf(DateTimes)>(DateTimes);
constexpr auto FontIndex = indexOf<lastOf(Fonts)>(Fonts);
constexpr auto ByteArrayIndex = indexOf<lastOf(ByteArrays)>(ByteArrays);
constexpr auto CharFormatIndex = indexOf<lastOf(CharFormats)>(CharFormats);
constexpr auto BlockFormatIndex = indexOf<lastOf(BlockFormats)>(BlockFormats);

template<typename Entry, std::size_t Size, std::size_t Count>
const Entry *find(const Entry (&table)[Size], const std::array<qint8, Count> &index, int number)
{
    const bool isRow = uint(number) < Count && index[std::size_t(number)] >= 0;
    return isRow ? &table[index[std::size_t(number)]] : nullptr;
}

template<typename Entry, std::size_t Size>
Rows<Entry> rows(const Entry (&table)[Size])
{
    return {table, table + Size};
}

} // namespace

// clang-format off
Rows<FlagRow> tableOf(MRVSettings::FlagSetting) { return rows(Flags); }
Rows<IntRow> tableOf(MRVSettings::IntSetting) { return rows(Ints); }
Rows<RealRow> tableOf(MRVSettings::RealSetting) { return rows(Reals); }
Rows<StringRow> tableOf(MRVSettings::StringSetting) { return rows(Strings); }
Rows<StringListRow> tableOf(MRVSettings::StringListSetting) { return rows(StringLists); }
Rows<ColorRow> tableOf(MRVSettings::ColorSetting) { return rows(Colors); }
Rows<DateTimeRow> tableOf(MRVSettings::DateTimeSetting) { return rows(DateTimes); }
Rows<FontRow> tableOf(MRVSettings::FontSetting) { return rows(Fonts); }
Rows<IntListRow> tableOf(MRVSettings::IntListSetting) { return {nullptr, nullptr}; }
Rows<ByteArrayRow> tableOf(MRVSettings::ByteArraySetting) { return rows(ByteArrays); }
Rows<CharFormatRow> tableOf(MRVSettings::TextCharFormat) { return rows(CharFormats); }
Rows<BlockFormatRow> tableOf(MRVSettings::TextBlockFormat) { return rows(BlockFormats); }
Rows<SeparatorRow> tableOf(SeparatorSetting) { return rows(Separators); }
Rows<const char *> warningRows() { return rows(WarningKeys); }

const FlagRow *rowOf(MRVSettings::FlagSetting setting) { return find(Flags, FlagIndex, setting); }
const IntRow *rowOf(MRVSettings::IntSetting setting) { return find(Ints, IntIndex, setting); }
const RealRow *rowOf(MRVSettings::RealSetting setting) { return find(Reals, RealIndex, setting); }
const StringRow *rowOf(MRVSettings::StringSetting setting) { return find(Strings, StringIndex, setting); }
const StringListRow *rowOf(MRVSettings::StringListSetting setting) { return find(StringLists, StringListIndex, setting); }
const ColorRow *rowOf(MRVSettings::ColorSetting setting) { return find(Colors, ColorIndex, setting); }
const DateTimeRow *rowOf(MRVSettings::DateTimeSetting setting) { return find(DateTimes, DateTimeIndex, setting); }
const FontRow *rowOf(MRVSettings::FontSetting setting) { return find(Fonts, FontIndex, setting); }
const ByteArrayRow *rowOf(MRVSettings::ByteArraySetting setting) { return find(ByteArrays, ByteArrayIndex, setting); }
const CharFormatRow *rowOf(MRVSettings::TextCharFormat setting) { return find(CharFormats, CharFormatIndex, setting); }
const BlockFormatRow *rowOf(MRVSettings::TextBlockFormat setting) { return find(BlockFormats, BlockFormatIndex, setting); }
const IntListRow *rowOf(MRVSettings::IntListSetting) { return nullptr; }
// clang-format on

const SeparatorRow *rowOf(SeparatorSetting setting)
{
    const std::size_t index = std::size_t(setting.context) * 2 + setting.part;
    return index < std::size(Separators) ? &Separators[index] : nullptr;
}

} // namespace MRVOptionsTables
