#include "settings/mrvoptionstables_p.h"

namespace MRVOptionsTables {
namespace {

// No limit but that of the 16 bits in which the whole numbers are kept here.
constexpr qint16 Any = 32767;

// clang-format off
constexpr FlagRow Flags[] = {
    {MRVOptions::LastMorvaneNormalExit, "General/lastMorvaneNormalExit", true},
    {MRVOptions::CurrentMorvaneNormalExit, "General/currentMorvaneNormalExit", true},
    {MRVOptions::OpenRecentProjects, "General/openRecentProjects", true},
    {MRVOptions::ShowStartPanel, "General/showStartPanel", false},
    {MRVOptions::ShowProjectFullPathInTitlebar, "General/showProjectFullPathInTitlebar", false},
    {MRVOptions::OvertypeModeAllowed, "General/overtypeModeAllowed", false},
    {MRVOptions::NotesWithPunctuation, "General/notesWithPunctuation", true},
    {MRVOptions::CheckForUpdates, "General/checkForUpdates", true},
    {MRVOptions::RenameUntitledOnSave, "General/renameUntitledOnSave", true},
    {MRVOptions::ConvertHtmlToText, "Import/convertHTMLToText", false},
    {MRVOptions::ImportSupportedTypesOnly, "Import/importSupportedTypesOnly", false},
    {MRVOptions::RemoveInvalidRtfCharacters, "Import/removeInvalidRtfCharacters", false},
    {MRVOptions::EnableFontHinting, "Import/enableFontHinting", false},
    {MRVOptions::FernwickImportFirstLinesAsTitlesOnly, "Import/fernwickImportFirstLinesAsTitlesOnly", false},
    {MRVOptions::ShowDocumentCounts, "Appearance/showDocumentCounts", false},
    {MRVOptions::ShowDocumentNotepadLines, "Appearance/showDocumentNotepadLines", true},
    {MRVOptions::ShowProjectNotepadLines, "Appearance/showProjectNotepadLines", true},
    {MRVOptions::AlternateOutlinerRowColor, "Appearance/alternateOutlinerRowColor", true},
    {MRVOptions::EmboldenFolders, "Appearance/emboldenFolders", false},
    {MRVOptions::ItalicizeFolders, "Appearance/italicizeFolders", false},
    {MRVOptions::EmboldenCollections, "Appearance/emboldenCollections", false},
    {MRVOptions::ItalicizeCollections, "Appearance/italicizeCollections", false},
    {MRVOptions::CollectionsAsFolders, "Navigation/collectionsAsFolders", false},
    {MRVOptions::IncludeEnclosingGroup, "Navigation/includeEnclosingGroup", true},
    {MRVOptions::OpenAllInEditorInSearchResults, "Navigation/openAllInEditorInSearchResults", true},
    {MRVOptions::CollapseAutoExpandedOutlineItems, "Navigation/collapseAutoExpandedOutlineItems", false},
    {MRVOptions::ReturnEndsEditingSynopsis, "Navigation/returnEndsEditingSynopsis", false},
    {MRVOptions::ReturnCreatesNewItem, "Navigation/returnCreatesNewItem", true},
    {MRVOptions::CorkboardAllowDropOn, "Corkboard/allowDropOn", false},
    {MRVOptions::CheckSpellingInNewProjects, "AutoCorrection/checkSpellingInNewProjects", true},
    {MRVOptions::CorrectSpelling, "AutoCorrection/correctSpelling", false},
    {MRVOptions::CapitalizeI, "AutoCorrection/capitalizeI", true},
    {MRVOptions::CapitalizeSentences, "AutoCorrection/capitalizeSentences", true},
    {MRVOptions::SmartQuotes, "AutoCorrection/smartQuotes", true},
    {MRVOptions::EmDashes, "AutoCorrection/emDash", true},
    {MRVOptions::Ellipses, "AutoCorrection/ellipses", true},
    {MRVOptions::DisableCorrectionInScriptMode, "AutoCorrection/disableInScriptMode", true},
    {MRVOptions::SuperscriptOrdinals, "AutoCorrection/SuperscriptOrdinals", true},
    {MRVOptions::LinkWebAddresses, "AutoCorrection/webAddress", true},
    {MRVOptions::CorrectMorvaneLinks, "AutoCorrection/morvaneLinks", false},
    {MRVOptions::EnableSubstitution, "AutoCorrection/enableSubstitution", false},
    {MRVOptions::TypewriterScrolling, "TextEditing/typewriterScrolling", false},
    {MRVOptions::FullScreenTypewriterScrolling, "FullScreen/typewriterScrolling", true},
    {MRVOptions::EnableAutoComplete, "AutoCorrection/enableAutoComplete", true},
    {MRVOptions::EnableAutoCompleteInScriptModeOnly, "AutoCorrection/enableAutoCompleteInScriptModeOnly", true},
    {MRVOptions::BackupsEnabled, "Backups/enabled", true},
    {MRVOptions::BackUpOnOpen, "Backups/onOpen", false},
    {MRVOptions::BackUpOnClose, "Backups/onClose", true},
    {MRVOptions::BackUpOnSave, "Backups/onSave", false},
    {MRVOptions::CompressBackups, "Backups/compress", true},
    {MRVOptions::IncludeDateInBackups, "Backups/includeDate", false},
    {MRVOptions::DisableSoundEffects, "General/disableSoundEffects", false},
    {MRVOptions::TransparentScratchPad, "General/ScratchPad/TransparentScratchPad", false},
    {MRVOptions::CustomMetaDataWrapFields, "Inspector/CustomMetaDataWrapFields", false},
    {MRVOptions::CustomMetaDataColorFields, "Inspector/CustomMetaDataColorFields", true},
    {MRVOptions::KeepOnTopWindows, "General/KeepOnTopWindows", false},
    {MRVOptions::KeepOnTopQuickReferencePanels, "General/KeepOnTopQuickReferencePanels", false},
    {MRVOptions::OpmlExportEntireBinder, "Opml/exportEntireBinder", false},
    {MRVOptions::OpmlCreateContainingFolder, "Opml/createContainingFolder", false},
};

constexpr IntRow Ints[] = {
    {MRVOptions::FullScreenPaperPosition, "FullScreen/paperPosition", {1, 0, 2}},
    {MRVOptions::SaveInterval, "General/saveInterval", {2, 1, 3600}},
    {MRVOptions::CheckForUpdatesInterval, "General/checkForUpdatesInterval", {1, 0, 3650}},
    {MRVOptions::LabelTintOpacity, "Appearance/labelTintOpacity", {128, 0, 255}},
    {MRVOptions::StatusOpacity, "IndexCard/statusOpacity", {96, 0, 255}},
    {MRVOptions::ShadowOpacity, "IndexCard/shadowOpacity", {128, 0, 255}},
    {MRVOptions::FullScreenBackgroundOpacity, "FullScreen/backgroundOpacity", {128, 0, 255}},
    {MRVOptions::FullScreenPaperWidth, "FullScreen/paperWidth", {70, 1, 100}},
    {MRVOptions::FullScreenPaperHeight, "FullScreen/paperHeight", {99, 1, 100}},
    {MRVOptions::CursorWidth, "TextEditing/cursorWidth", {-1, -1, 100}},
    {MRVOptions::EditorZoomIndex, "Appearance/editorZoomIndex", {9, 0, 99}},
    {MRVOptions::ProjectNotesZoomIndex, "Appearance/projectNotesZoomIndex", {9, 0, 99}},
    {MRVOptions::DocumentNotesZoomIndex, "Appearance/documentNotesZoomIndex", {9, 0, 99}},
    {MRVOptions::MediaBacktrackDuration, "Media/backtrackDuration", {3, 0, 3600}},
    {MRVOptions::BackupsToRetain, "Backups/retain", {5, 0, Any}},
    {MRVOptions::RevisionLevel, "TextEditing/revisionLevel", {0, 0, 5}},
    {MRVOptions::AutoChangeIndentWithSpacing, "General/autoChangeIndentWithSpacing", {0, 0, Any}},
    {MRVOptions::OpenClickedMorvaneLinksIn, "Navigation/openClickedMorvaneLinksIn", {0, MRV::OpenInOtherEditor, MRV::OpenInReferencePanel}},
    {MRVOptions::RecentProjectsCount, "General/recentProjectsCount", {10, 0, 50}},
    {MRVOptions::OpmlExportLastFormat, "Opml/exportLastFormat", {0, 0, Any}},
    {MRVOptions::OpmlExportType, "Opml/opmlExportType", {1, 0, Any}},
    {MRVOptions::OpmlImportType, "Opml/opmlImportType", {1, MRV::OpmlTitlesOnly, MRV::OpmlNotes}},
    {MRVOptions::OpmlImportTypeOptions, "Opml/opmlImportTypeOptions", {1, 0, Any}},
};

constexpr RealRow Reals[] = {
    {MRVOptions::DefaultVolume, "General/defaultVolume", {0.5, 0, 1}},
    {MRVOptions::EditorMargin, "TextEditing/margin", {20.0, 0, 1000}},
};

constexpr StringRow Strings[] = {
    {MRVOptions::TemplatesPath, "Templates/defaultPath", {nullptr, defaultTemplatesPath}},
    {MRVOptions::CorkboardPattern, "Corkboard/pattern", {""}},
    {MRVOptions::RulerMeasure, "Ruler/measure", {nullptr, systemMeasure, measureWords}},
    {MRVOptions::RulerSnap, "Ruler/snap", {nullptr, systemSnap}},
    {MRVOptions::DictionaryLocale, "AutoCorrection/dictionaryLocale", {nullptr, systemLocaleName}},
    {MRVOptions::BibliographyCitationsManager, "General/bibliographyCitationsManager", {""}},
    {MRVOptions::ScratchPadDirectory, "General/ScratchPad/Directory", {nullptr, defaultScratchPadPath}},
    {MRVOptions::ScratchPadLastFile, "General/ScratchPad/LastFile", {""}},
    {MRVOptions::ScratchPadOrientation, "General/ScratchPad/Orientation", {"Vertical", nullptr, orientationWords}},
    {MRVOptions::BackupsLocation, "Backups/location", {nullptr, MRVOptions::defaultBackupPath}},
    {MRVOptions::GuiLanguage, "General/GuiLanguage", {nullptr, MRVOptions::defaultGuiLanguageCode, MRVOptions::guiLanguages}},
    {MRVOptions::DoubleQuotesSubstitution, "General/DoubleQuotesSubstitution", {"\u201c\u201d", nullptr, nullptr, true}},
    {MRVOptions::SingleQuotesSubstitution, "General/SingleQuotesSubstitution", {"\u2018\u2019", nullptr, nullptr, true}},
    {MRVOptions::LabelIndicator, "IndexCard/labelIndicator", {"PinIndicator", nullptr, labelIndicatorWords}},
    {MRVOptions::IndexCardCornerStyle, "IndexCard/indexCardCornerStyle", {"RoundedCorners", nullptr, cornerStyleWords}},
    {MRVOptions::SpaceDoubleClick, "IndexCard/spaceDoubleClick", {"SpaceDoubleClickCreatesCard", nullptr, spaceDoubleClickWords}},
    {MRVOptions::KindlePath, "Compile/KindlePath", {""}},
    {MRVOptions::OpmlImportLastPath, "Opml/importLastPath", {""}},
};

constexpr StringListRow StringLists[] = {
    {MRVOptions::PersonalWords, "AutoCorrection/personalWords", {}},
};

// A light theme: whatever text stands on a colour here has a contrast of 4.5 at least, as AA of
// https://www.w3.org/TR/WCAG21/#contrast-minimum asks.
constexpr ColorRow Colors[] = {
    {MRVOptions::IndexCardDividerColor, "IndexCard/Colors/Divider", {0xffe0a3a0, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Divider")}},
    {MRVOptions::IndexCardNotepadLinesColor, "IndexCard/Colors/NotepadLines", {0xffc9d7e8, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Notepad lines")}},
    {MRVOptions::IndexCardStatusColor, "IndexCard/Colors/Status", {0xffb3261e, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Status stamp")}},
    {MRVOptions::IndexCardBorderColor, "IndexCard/Colors/Border", {0xff8a8f98, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Border")}},
    {MRVOptions::IndexCardBackgroundColor, "IndexCard/Colors/Background", {0xffffffff, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Card")}},
    {MRVOptions::CorkboardBackgroundColor, "Appearance/Colors/CorkboardBackground", {0xffdccbb0, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Corkboard")}},
    {MRVOptions::FullScreenBackgroundColor, "FullScreen/Colors/Background", {0xffc9ced6, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Around the page")}},
    {MRVOptions::FirstRevisionColor, "Appearance/Colors/FirstRevision", {0xffb3261e, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "First revision")}},
    {MRVOptions::SecondRevisionColor, "Appearance/Colors/SecondRevision", {0xff0b57d0, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Second revision")}},
    {MRVOptions::ThirdRevisionColor, "Appearance/Colors/ThirdRevision", {0xff1b6e2d, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Third revision")}},
    {MRVOptions::FourthRevisionColor, "Appearance/Colors/FourthRevision", {0xff8e24aa, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Fourth revision")}},
    {MRVOptions::FifthRevisionColor, "Appearance/Colors/FifthRevision", {0xff9a5200, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Fifth revision")}},
    {MRVOptions::TextColor, "TextEditing/Colors/Text", {0xff1f1f1f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Text")}},
    {MRVOptions::PageColor, "TextEditing/Colors/Page", {0xffffffff, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Page")}},
    {MRVOptions::LinksColor, "TextEditing/Colors/Links", {0xff0b57d0, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Links")}},
    {MRVOptions::VisitedLinksColor, "TextEditing/Colors/VisitedLinks", {0xff6a1b9a, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Visited links")}},
    {MRVOptions::InvisiblesColor, "TextEditing/Colors/Invisibles", {0xff6b7280, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Invisible characters")}},
    {MRVOptions::HighlightTextColor, "TextEditing/Colors/HighlightText", {0xffffffff, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Selected text")}},
    {MRVOptions::HighlightPageColor, "TextEditing/Colors/HighlightPage", {0xff1a62c4, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Selection")}},
    {MRVOptions::AnnotationColor, "TextEditing/Colors/Annotation", {0xffb3261e, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Inline annotations")}},
    {MRVOptions::CommentColor, "TextEditing/Colors/Comment", {0xfffff0a8, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Comments")}},
    {MRVOptions::FootnotesTextColor, "TextEditing/Colors/FootnotesText", {0xff1f1f1f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Footnote text")}},
    {MRVOptions::FootnotesPageColor, "TextEditing/Colors/FootnotesPage", {0xfff1f3f6, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Footnotes")}},
    {MRVOptions::PreserveFormatColor, "TextEditing/Colors/PreserveFormat", {0xffe3ecfa, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Preserved formatting")}},
    {MRVOptions::SearchColor, "TextEditing/Colors/Search", {0xffffe58a, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Project search")}},
    {MRVOptions::SearchBorderColor, "TextEditing/Colors/SearchBorder", {0xff8a6d00, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Border of project search")}},
    {MRVOptions::FindColor, "TextEditing/Colors/Find", {0xffffd54f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text")}},
    {MRVOptions::FindAlternateColor, "TextEditing/Colors/FindAlternate", {0xffb7e1a1, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text, alternate")}},
    {MRVOptions::FindTextColor, "TextEditing/Colors/FindText", {0xff1f1f1f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Text that was found")}},
    {MRVOptions::SpellCheckerColor, "TextEditing/Colors/SpellChecker", {0xffd32f2f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Misspelt words")}},
    {MRVOptions::FullScreenTextColor, "TextEditing/Colors/FullScreenText", {0xff1f1f1f, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Text")}},
    {MRVOptions::FullScreenPageColor, "TextEditing/Colors/FullScreenPage", {0xfffbf8f1, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Page")}},
    {MRVOptions::FullScreenLinksColor, "TextEditing/Colors/FullScreenLinks", {0xff0b57d0, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Links")}},
    {MRVOptions::FullScreenVisitedLinksColor, "TextEditing/Colors/FullScreenVisitedLinks", {0xff6a1b9a, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Visited links")}},
    {MRVOptions::FullScreenInvisiblesColor, "TextEditing/Colors/FullScreenInvisibles", {0xff656b78, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Invisible characters")}},
    {MRVOptions::FullScreenHighlightTextColor, "TextEditing/Colors/FullScreenHighlightText", {0xffffffff, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Selected text")}},
    {MRVOptions::FullScreenHighlightPageColor, "TextEditing/Colors/FullScreenHighlightPage", {0xff1a62c4, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Selection")}},
    {MRVOptions::FullScreenSearchColor, "TextEditing/Colors/FullScreenSearch", {0xffffe58a, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Project search")}},
    {MRVOptions::FullScreenSearchBorderColor, "TextEditing/Colors/FullScreenSearchBorder", {0xff8a6d00, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Border of project search")}},
    {MRVOptions::FullScreenFindColor, "TextEditing/Colors/FullScreenFind", {0xffffd54f, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text")}},
    {MRVOptions::FullScreenFindAlternateColor, "TextEditing/Colors/FullScreenFindAlternate", {0xffb7e1a1, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text, alternate")}},
    {MRVOptions::FullScreenFindTextColor, "TextEditing/Colors/FullScreenFindText", {0xff1f1f1f, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Text that was found")}},
    {MRVOptions::DocumentNotesBackgroundColor, "Appearance/Colors/DocumentNotesBackground", {0xfffffbe6, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Document notes")}},
    {MRVOptions::ProjectNotesBackgroundColor, "Appearance/Colors/ProjectNotesBackground", {0xfffff7e0, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Project notes")}},
    {MRVOptions::RecentSearchResultsBackgroundColor, "Appearance/Colors/RecentSearchResultsBackground", {0xffeef3fb, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Recent search results")}},
    {MRVOptions::BinderBackgroundColor, "Appearance/Colors/BinderBackground", {0xfff5f6f8, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Binder")}},
    {MRVOptions::OutlinerBackgroundColor, "Appearance/Colors/OutlinerBackground", {0xffffffff, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Outliner")}},
    {MRVOptions::OutlinerAlternateBackgroundColor, "Appearance/Colors/OutlinerAlternateBackground", {0xfff2f5fa, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Outliner, every other row")}},
    {MRVOptions::SnapshotTextBackgroundColor, "Appearance/Colors/SnapshotTextBackground", {0xfff7f3e8, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Snapshots")}},
    {MRVOptions::ScratchPadPageColor, "Appearance/Colors/ScratchPadPage", {0xfffffde7, MRVOptions::ScratchPadColors, QT_TRANSLATE_NOOP("MRVOptions", "Page")}},
    {MRVOptions::ScratchPadTextColor, "Appearance/Colors/ScratchPadText", {0xff1f1f1f, MRVOptions::ScratchPadColors, QT_TRANSLATE_NOOP("MRVOptions", "Text")}},
};

constexpr DateTimeRow DateTimes[] = {
    {MRVOptions::LastCheckForUpdates, "General/lastCheckForUpdates", {}},
    {MRVOptions::MorvaneStartDateTime, "General/morvaneStartDateTime", {}},
};

constexpr FontRow Fonts[] = {
    {MRVOptions::IndexCardTitleFont, "IndexCard/titleFont", {100, true}},
    {MRVOptions::IndexCardSynopsisFont, "IndexCard/synopsisFont", {100}},
    {MRVOptions::IndexCardSynopsisSmallFont, "IndexCard/synopsisSmallFont", {85}},
    {MRVOptions::IndexCardStatusFont, "IndexCard/statusFont", {150, true}},
    {MRVOptions::MorvaneGuiFont, "Appearance/morvaneGuiFont", {100}},
    {MRVOptions::DocumentNotesFont, "Appearance/documentNotesFont", {100}},
    {MRVOptions::ProjectNotesFont, "Appearance/projectNotesFont", {100}},
    {MRVOptions::BinderFont, "Appearance/binderFont", {100}},
    {MRVOptions::OutlinerFont, "Appearance/outlinerFont", {100}},
    {MRVOptions::HeaderBarFont, "Appearance/headerBarFont", {100, true}},
    {MRVOptions::InspectorCommentsFont, "Appearance/inspectorCommentsFont", {90}},
    {MRVOptions::InspectorFootnotesFont, "Appearance/inspectorFootnotesFont", {90}},
    {MRVOptions::ScratchPadFont, "Appearance/scratchPadFont", {110}},
};

constexpr ByteArrayRow ByteArrays[] = {
    {MRVOptions::DefaultShortcutScheme, "Shortcut/defaultShortcutScheme", {defaultShortcutScheme, isShortcutScheme}},
    {MRVOptions::TextPresets, "TextEditing/textPresets", {defaultTextPresets, isPresetScheme}},
    {MRVOptions::FullScreenBackgroundImage, "FullScreen/Colors/BackgroundImage", {noBytes, isPicture}},
    {MRVOptions::SubstitutionList, "AutoCorrection/substitutionList", {MRVAutoReplaceList::defaultReplacementsByteArray, isAutoReplaceList}},
    {MRVOptions::PdfSettings, "PdfSettings", {noBytes}},
    {MRVOptions::SpellingGeometry, "Geometry/SpellingGeometry", {noBytes}},
    {MRVOptions::ImportDefaultUrlType, "Import/defaultUrlType", {defaultUrlImportType, isUrlImportType}},
    {MRVOptions::ImportDefaultCodec, "Import/defaultCodec", {defaultCodec, isCodec}},
    {MRVOptions::ImportFormatConverters, "Import/importFormatConverters", {defaultImportEngines, isEngineMap}},
    {MRVOptions::ExportFormatConverters, "Import/exportFormatConverters", {defaultExportEngines, isEngineMap}},
};

constexpr CharFormatRow CharFormats[] = {
    {MRVOptions::DefaultCharFormat, "TextEditing/defaultCharFormat", defaultCharFormat},
};

constexpr BlockFormatRow BlockFormats[] = {
    {MRVOptions::DefaultBlockFormat, "TextEditing/defaultBlockFormat", defaultBlockFormat},
};

constexpr SeparatorRow Separators[] = {
    {MRV::Morvanings, "Separators/Morvanings", "Separators/MorvaningsCustom", MRV::EmptyLine},
    {MRV::MergedDocuments, "Separators/MergedDocuments", "Separators/MergedDocumentsCustom", MRV::EmptyLine},
    {MRV::Clippings, "Separators/Clippings", "Separators/ClippingsCustom", MRV::SingleReturn},
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

// Numbers ascend up to the last one, and each key is there once, with a group before it but for the
// one setting that has none.
template<typename Entry, std::size_t Size>
constexpr bool isSound(const Entry (&table)[Size], int last)
{
    for (std::size_t i = 0; i < Size; ++i) {
        if (table[i].key[0] == 0 || (i > 0 && table[i - 1].setting >= table[i].setting))
            return false;
        for (std::size_t j = 0; j < i; ++j) {
            if (equal(table[i].key, table[j].key))
                return false;
        }
    }
    return int(table[Size - 1].setting) == last;
}

template<typename Entry, std::size_t Size>
constexpr bool holdsDefaultsWithinLimits(const Entry (&table)[Size])
{
    for (const Entry &row : table) {
        if (row.value.value < row.value.least || row.value.value > row.value.most)
            return false;
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
static_assert(std::size(Separators) == MRV::Clippings + 1
              && Separators[MRV::MergedDocuments].context == MRV::MergedDocuments
              && Separators[MRV::Clippings].context == MRV::Clippings);

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
Rows<SeparatorRow> separators() { return rows(Separators); }
Rows<const char *> warningKeys() { return rows(WarningKeys); }
// clang-format on

} // namespace MRVOptionsTables
