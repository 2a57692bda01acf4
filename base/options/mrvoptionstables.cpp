#include "options/mrvoptionstables_p.h"

#include <array>

namespace MRVOptionsTables {
namespace {

// No limit except that of the 16 bits in which whole numbers are kept here.
constexpr qint16 Any = 32767;

// A key for checks at compile time, and as a QString that is copied without counting references.
#define KEY(text) text, [] { return QStringLiteral(text); }

// clang-format off
constexpr FlagRow Flags[] = {
    {MRVOptions::LastMorvaneNormalExit, KEY("General/lastMorvaneNormalExit"), true},
    {MRVOptions::CurrentMorvaneNormalExit, KEY("General/currentMorvaneNormalExit"), true},
    {MRVOptions::OpenRecentProjects, KEY("General/openRecentProjects"), true},
    {MRVOptions::ShowStartPanel, KEY("General/showStartPanel"), false},
    {MRVOptions::ShowProjectFullPathInTitlebar, KEY("General/showProjectFullPathInTitlebar"), false},
    {MRVOptions::OvertypeModeAllowed, KEY("General/overtypeModeAllowed"), false},
    {MRVOptions::NotesWithPunctuation, KEY("General/notesWithPunctuation"), true},
    {MRVOptions::CheckForUpdates, KEY("General/checkForUpdates"), true},
    {MRVOptions::RenameUntitledOnSave, KEY("General/renameUntitledOnSave"), true},
    {MRVOptions::ConvertHtmlToText, KEY("Import/convertHTMLToText"), false},
    {MRVOptions::ImportSupportedTypesOnly, KEY("Import/importSupportedTypesOnly"), false},
    {MRVOptions::RemoveInvalidRtfCharacters, KEY("Import/removeInvalidRtfCharacters"), false},
    {MRVOptions::EnableFontHinting, KEY("Import/enableFontHinting"), false},
    {MRVOptions::FernwickImportFirstLinesAsTitlesOnly, KEY("Import/fernwickImportFirstLinesAsTitlesOnly"), false},
    {MRVOptions::ShowDocumentCounts, KEY("Appearance/showDocumentCounts"), false},
    {MRVOptions::ShowDocumentNotepadLines, KEY("Appearance/showDocumentNotepadLines"), true},
    {MRVOptions::ShowProjectNotepadLines, KEY("Appearance/showProjectNotepadLines"), true},
    {MRVOptions::AlternateOutlinerRowColor, KEY("Appearance/alternateOutlinerRowColor"), true},
    {MRVOptions::EmboldenFolders, KEY("Appearance/emboldenFolders"), false},
    {MRVOptions::ItalicizeFolders, KEY("Appearance/italicizeFolders"), false},
    {MRVOptions::EmboldenCollections, KEY("Appearance/emboldenCollections"), false},
    {MRVOptions::ItalicizeCollections, KEY("Appearance/italicizeCollections"), false},
    {MRVOptions::CollectionsAsFolders, KEY("Navigation/collectionsAsFolders"), false},
    {MRVOptions::IncludeEnclosingGroup, KEY("Navigation/includeEnclosingGroup"), true},
    {MRVOptions::OpenAllInEditorInSearchResults, KEY("Navigation/openAllInEditorInSearchResults"), true},
    {MRVOptions::CollapseAutoExpandedOutlineItems, KEY("Navigation/collapseAutoExpandedOutlineItems"), false},
    {MRVOptions::ReturnEndsEditingSynopsis, KEY("Navigation/returnEndsEditingSynopsis"), false},
    {MRVOptions::ReturnCreatesNewItem, KEY("Navigation/returnCreatesNewItem"), true},
    {MRVOptions::CorkboardAllowDropOn, KEY("Corkboard/allowDropOn"), false},
    {MRVOptions::CheckSpellingInNewProjects, KEY("AutoCorrection/checkSpellingInNewProjects"), true},
    {MRVOptions::CorrectSpelling, KEY("AutoCorrection/correctSpelling"), false},
    {MRVOptions::CapitalizeI, KEY("AutoCorrection/capitalizeI"), true},
    {MRVOptions::CapitalizeSentences, KEY("AutoCorrection/capitalizeSentences"), true},
    {MRVOptions::SmartQuotes, KEY("AutoCorrection/smartQuotes"), true},
    {MRVOptions::EmDashes, KEY("AutoCorrection/emDash"), true},
    {MRVOptions::Ellipses, KEY("AutoCorrection/ellipses"), true},
    {MRVOptions::DisableCorrectionInScriptMode, KEY("AutoCorrection/disableInScriptMode"), true},
    {MRVOptions::SuperscriptOrdinals, KEY("AutoCorrection/SuperscriptOrdinals"), true},
    {MRVOptions::LinkWebAddresses, KEY("AutoCorrection/webAddress"), true},
    {MRVOptions::CorrectMorvaneLinks, KEY("AutoCorrection/morvaneLinks"), false},
    {MRVOptions::EnableSubstitution, KEY("AutoCorrection/enableSubstitution"), false},
    {MRVOptions::TypewriterScrolling, KEY("TextEditing/typewriterScrolling"), false},
    {MRVOptions::FullScreenTypewriterScrolling, KEY("FullScreen/typewriterScrolling"), true},
    {MRVOptions::EnableAutoComplete, KEY("AutoCorrection/enableAutoComplete"), true},
    {MRVOptions::EnableAutoCompleteInScriptModeOnly, KEY("AutoCorrection/enableAutoCompleteInScriptModeOnly"), true},
    {MRVOptions::BackupsEnabled, KEY("Backups/enabled"), true},
    {MRVOptions::BackUpOnOpen, KEY("Backups/onOpen"), false},
    {MRVOptions::BackUpOnClose, KEY("Backups/onClose"), true},
    {MRVOptions::BackUpOnSave, KEY("Backups/onSave"), false},
    {MRVOptions::CompressBackups, KEY("Backups/compress"), true},
    {MRVOptions::IncludeDateInBackups, KEY("Backups/includeDate"), false},
    {MRVOptions::DisableSoundEffects, KEY("General/disableSoundEffects"), false},
    {MRVOptions::TransparentScratchPad, KEY("General/ScratchPad/TransparentScratchPad"), false},
    {MRVOptions::CustomMetaDataWrapFields, KEY("Inspector/CustomMetaDataWrapFields"), false},
    {MRVOptions::CustomMetaDataColorFields, KEY("Inspector/CustomMetaDataColorFields"), true},
    {MRVOptions::KeepOnTopWindows, KEY("General/KeepOnTopWindows"), false},
    {MRVOptions::KeepOnTopQuickReferencePanels, KEY("General/KeepOnTopQuickReferencePanels"), false},
    {MRVOptions::OpmlExportEntireBinder, KEY("Opml/exportEntireBinder"), false},
    {MRVOptions::OpmlCreateContainingFolder, KEY("Opml/createContainingFolder"), false},
};

constexpr IntRow Ints[] = {
    {MRVOptions::FullScreenPaperPosition, KEY("FullScreen/paperPosition"), {1, 0, 2}},
    {MRVOptions::SaveInterval, KEY("General/saveInterval"), {2, 1, 3600}},
    {MRVOptions::CheckForUpdatesInterval, KEY("General/checkForUpdatesInterval"), {1, 0, 3650}},
    {MRVOptions::LabelTintOpacity, KEY("Appearance/labelTintOpacity"), {128, 0, 255}},
    {MRVOptions::StatusOpacity, KEY("IndexCard/statusOpacity"), {96, 0, 255}},
    {MRVOptions::ShadowOpacity, KEY("IndexCard/shadowOpacity"), {128, 0, 255}},
    {MRVOptions::FullScreenBackgroundOpacity, KEY("FullScreen/backgroundOpacity"), {128, 0, 255}},
    {MRVOptions::FullScreenPaperWidth, KEY("FullScreen/paperWidth"), {70, 1, 100}},
    {MRVOptions::FullScreenPaperHeight, KEY("FullScreen/paperHeight"), {99, 1, 100}},
    {MRVOptions::CursorWidth, KEY("TextEditing/cursorWidth"), {-1, -1, 100}},
    {MRVOptions::EditorZoomIndex, KEY("Appearance/editorZoomIndex"), {9, 0, 99}},
    {MRVOptions::ProjectNotesZoomIndex, KEY("Appearance/projectNotesZoomIndex"), {9, 0, 99}},
    {MRVOptions::DocumentNotesZoomIndex, KEY("Appearance/documentNotesZoomIndex"), {9, 0, 99}},
    {MRVOptions::MediaBacktrackDuration, KEY("Media/backtrackDuration"), {3, 0, 3600}},
    {MRVOptions::BackupsToRetain, KEY("Backups/retain"), {5, 0, Any}},
    {MRVOptions::RevisionLevel, KEY("TextEditing/revisionLevel"), {0, 0, 5}},
    {MRVOptions::AutoChangeIndentWithSpacing, KEY("General/autoChangeIndentWithSpacing"), {0, 0, Any}},
    {MRVOptions::OpenClickedMorvaneLinksIn, KEY("Navigation/openClickedMorvaneLinksIn"), {0, MRV::OpenInOtherEditor, MRV::OpenInReferencePanel}},
    {MRVOptions::RecentProjectsCount, KEY("General/recentProjectsCount"), {10, 0, 50}},
    {MRVOptions::OpmlExportLastFormat, KEY("Opml/exportLastFormat"), {0, 0, Any}},
    {MRVOptions::OpmlExportType, KEY("Opml/opmlExportType"), {1, 0, Any}},
    {MRVOptions::OpmlImportType, KEY("Opml/opmlImportType"), {1, MRV::OpmlTitlesOnly, MRV::OpmlNotes}},
    {MRVOptions::OpmlImportTypeOptions, KEY("Opml/opmlImportTypeOptions"), {1, 0, Any}},
};

constexpr RealRow Reals[] = {
    {MRVOptions::DefaultVolume, KEY("General/defaultVolume"), {0.5, 0, 1}},
    {MRVOptions::EditorMargin, KEY("TextEditing/margin"), {20.0, 0, 1000}},
};

constexpr StringRow Strings[] = {
    {MRVOptions::TemplatesPath, KEY("Templates/defaultPath"), {nullptr, defaultTemplatesPath}},
    {MRVOptions::CorkboardPattern, KEY("Corkboard/pattern"), {""}},
    {MRVOptions::RulerMeasure, KEY("Ruler/measure"), {nullptr, systemMeasure, measureWords}},
    {MRVOptions::RulerSnap, KEY("Ruler/snap"), {nullptr, systemSnap, nullptr, false, isMeasure}},
    {MRVOptions::DictionaryLocale, KEY("AutoCorrection/dictionaryLocale"), {nullptr, systemLocaleName, nullptr, false, isLocaleName}},
    {MRVOptions::BibliographyCitationsManager, KEY("General/bibliographyCitationsManager"), {""}},
    {MRVOptions::ScratchPadDirectory, KEY("General/ScratchPad/Directory"), {nullptr, defaultScratchPadPath}},
    {MRVOptions::ScratchPadLastFile, KEY("General/ScratchPad/LastFile"), {""}},
    {MRVOptions::ScratchPadOrientation, KEY("General/ScratchPad/Orientation"), {"Vertical", nullptr, orientationWords}},
    {MRVOptions::BackupsLocation, KEY("Backups/location"), {nullptr, MRVOptions::defaultBackupPath}},
    {MRVOptions::GuiLanguage, KEY("General/GuiLanguage"), {nullptr, MRVOptions::defaultGuiLanguageCode, MRVOptions::guiLanguages}},
    {MRVOptions::DoubleQuotesSubstitution, KEY("General/DoubleQuotesSubstitution"), {"\u201c\u201d", nullptr, nullptr, true}},
    {MRVOptions::SingleQuotesSubstitution, KEY("General/SingleQuotesSubstitution"), {"\u2018\u2019", nullptr, nullptr, true}},
    {MRVOptions::LabelIndicator, KEY("IndexCard/labelIndicator"), {"PinIndicator", nullptr, labelIndicatorWords}},
    {MRVOptions::IndexCardCornerStyle, KEY("IndexCard/indexCardCornerStyle"), {"RoundedCorners", nullptr, cornerStyleWords}},
    {MRVOptions::SpaceDoubleClick, KEY("IndexCard/spaceDoubleClick"), {"SpaceDoubleClickCreatesCard", nullptr, spaceDoubleClickWords}},
    {MRVOptions::KindlePath, KEY("Compile/KindlePath"), {""}},
    {MRVOptions::OpmlImportLastPath, KEY("Opml/importLastPath"), {""}},
};

constexpr StringListRow StringLists[] = {
    {MRVOptions::PersonalWords, KEY("AutoCorrection/personalWords"), {}},
};

// A light theme: text on each of these colours has a contrast of at least 4.5, as level AA of
// https://www.w3.org/TR/WCAG21/#contrast-minimum requires.
constexpr ColorRow Colors[] = {
    {MRVOptions::IndexCardDividerColor, KEY("IndexCard/Colors/Divider"), {0xffe0a3a0, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Divider")}},
    {MRVOptions::IndexCardNotepadLinesColor, KEY("IndexCard/Colors/NotepadLines"), {0xffc9d7e8, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Notepad lines")}},
    {MRVOptions::IndexCardStatusColor, KEY("IndexCard/Colors/Status"), {0xffb3261e, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Status stamp")}},
    {MRVOptions::IndexCardBorderColor, KEY("IndexCard/Colors/Border"), {0xff8a8f98, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Border")}},
    {MRVOptions::IndexCardBackgroundColor, KEY("IndexCard/Colors/Background"), {0xffffffff, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Card")}},
    {MRVOptions::CorkboardBackgroundColor, KEY("Appearance/Colors/CorkboardBackground"), {0xffdccbb0, MRVOptions::IndexCardColors, QT_TRANSLATE_NOOP("MRVOptions", "Corkboard")}},
    {MRVOptions::FullScreenBackgroundColor, KEY("FullScreen/Colors/Background"), {0xffc9ced6, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Around the page")}},
    {MRVOptions::FirstRevisionColor, KEY("Appearance/Colors/FirstRevision"), {0xffb3261e, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "First revision")}},
    {MRVOptions::SecondRevisionColor, KEY("Appearance/Colors/SecondRevision"), {0xff0b57d0, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Second revision")}},
    {MRVOptions::ThirdRevisionColor, KEY("Appearance/Colors/ThirdRevision"), {0xff1b6e2d, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Third revision")}},
    {MRVOptions::FourthRevisionColor, KEY("Appearance/Colors/FourthRevision"), {0xff8e24aa, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Fourth revision")}},
    {MRVOptions::FifthRevisionColor, KEY("Appearance/Colors/FifthRevision"), {0xff9a5200, MRVOptions::RevisionColors, QT_TRANSLATE_NOOP("MRVOptions", "Fifth revision")}},
    {MRVOptions::TextColor, KEY("TextEditing/Colors/Text"), {0xff1f1f1f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Text")}},
    {MRVOptions::PageColor, KEY("TextEditing/Colors/Page"), {0xffffffff, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Page")}},
    {MRVOptions::LinksColor, KEY("TextEditing/Colors/Links"), {0xff0b57d0, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Links")}},
    {MRVOptions::VisitedLinksColor, KEY("TextEditing/Colors/VisitedLinks"), {0xff6a1b9a, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Visited links")}},
    {MRVOptions::InvisiblesColor, KEY("TextEditing/Colors/Invisibles"), {0xff5b6270, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Invisible characters")}},
    {MRVOptions::HighlightTextColor, KEY("TextEditing/Colors/HighlightText"), {0xffffffff, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Selected text")}},
    {MRVOptions::HighlightPageColor, KEY("TextEditing/Colors/HighlightPage"), {0xff1a62c4, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Selection")}},
    {MRVOptions::AnnotationColor, KEY("TextEditing/Colors/Annotation"), {0xffb3261e, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Inline annotations")}},
    {MRVOptions::CommentColor, KEY("TextEditing/Colors/Comment"), {0xfffff0a8, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Comments")}},
    {MRVOptions::FootnotesTextColor, KEY("TextEditing/Colors/FootnotesText"), {0xff1f1f1f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Footnote text")}},
    {MRVOptions::FootnotesPageColor, KEY("TextEditing/Colors/FootnotesPage"), {0xfff1f3f6, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Footnotes")}},
    {MRVOptions::PreserveFormatColor, KEY("TextEditing/Colors/PreserveFormat"), {0xffe3ecfa, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Preserved formatting")}},
    {MRVOptions::SearchColor, KEY("TextEditing/Colors/Search"), {0xffffe58a, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Project search")}},
    {MRVOptions::SearchBorderColor, KEY("TextEditing/Colors/SearchBorder"), {0xff8a6d00, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Border of project search")}},
    {MRVOptions::FindColor, KEY("TextEditing/Colors/Find"), {0xffffd54f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text")}},
    {MRVOptions::FindAlternateColor, KEY("TextEditing/Colors/FindAlternate"), {0xffb7e1a1, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text, alternate")}},
    {MRVOptions::FindTextColor, KEY("TextEditing/Colors/FindText"), {0xff1f1f1f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Text that was found")}},
    {MRVOptions::SpellCheckerColor, KEY("TextEditing/Colors/SpellChecker"), {0xffd32f2f, MRVOptions::EditorColors, QT_TRANSLATE_NOOP("MRVOptions", "Misspelt words")}},
    {MRVOptions::FullScreenTextColor, KEY("TextEditing/Colors/FullScreenText"), {0xff1f1f1f, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Text")}},
    {MRVOptions::FullScreenPageColor, KEY("TextEditing/Colors/FullScreenPage"), {0xfffbf8f1, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Page")}},
    {MRVOptions::FullScreenLinksColor, KEY("TextEditing/Colors/FullScreenLinks"), {0xff0b57d0, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Links")}},
    {MRVOptions::FullScreenVisitedLinksColor, KEY("TextEditing/Colors/FullScreenVisitedLinks"), {0xff6a1b9a, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Visited links")}},
    {MRVOptions::FullScreenInvisiblesColor, KEY("TextEditing/Colors/FullScreenInvisibles"), {0xff5e6470, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Invisible characters")}},
    {MRVOptions::FullScreenHighlightTextColor, KEY("TextEditing/Colors/FullScreenHighlightText"), {0xffffffff, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Selected text")}},
    {MRVOptions::FullScreenHighlightPageColor, KEY("TextEditing/Colors/FullScreenHighlightPage"), {0xff1a62c4, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Selection")}},
    {MRVOptions::FullScreenSearchColor, KEY("TextEditing/Colors/FullScreenSearch"), {0xffffe58a, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Project search")}},
    {MRVOptions::FullScreenSearchBorderColor, KEY("TextEditing/Colors/FullScreenSearchBorder"), {0xff8a6d00, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Border of project search")}},
    {MRVOptions::FullScreenFindColor, KEY("TextEditing/Colors/FullScreenFind"), {0xffffd54f, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text")}},
    {MRVOptions::FullScreenFindAlternateColor, KEY("TextEditing/Colors/FullScreenFindAlternate"), {0xffb7e1a1, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Found text, alternate")}},
    {MRVOptions::FullScreenFindTextColor, KEY("TextEditing/Colors/FullScreenFindText"), {0xff1f1f1f, MRVOptions::FullScreenColors, QT_TRANSLATE_NOOP("MRVOptions", "Text that was found")}},
    {MRVOptions::DocumentNotesBackgroundColor, KEY("Appearance/Colors/DocumentNotesBackground"), {0xfffffbe6, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Document notes")}},
    {MRVOptions::ProjectNotesBackgroundColor, KEY("Appearance/Colors/ProjectNotesBackground"), {0xfffff7e0, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Project notes")}},
    {MRVOptions::RecentSearchResultsBackgroundColor, KEY("Appearance/Colors/RecentSearchResultsBackground"), {0xffeef3fb, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Recent search results")}},
    {MRVOptions::BinderBackgroundColor, KEY("Appearance/Colors/BinderBackground"), {0xfff5f6f8, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Binder")}},
    {MRVOptions::OutlinerBackgroundColor, KEY("Appearance/Colors/OutlinerBackground"), {0xffffffff, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Outliner")}},
    {MRVOptions::OutlinerAlternateBackgroundColor, KEY("Appearance/Colors/OutlinerAlternateBackground"), {0xfff2f5fa, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Outliner, every other row")}},
    {MRVOptions::SnapshotTextBackgroundColor, KEY("Appearance/Colors/SnapshotTextBackground"), {0xfff7f3e8, MRVOptions::BackgroundColors, QT_TRANSLATE_NOOP("MRVOptions", "Snapshots")}},
    {MRVOptions::ScratchPadPageColor, KEY("Appearance/Colors/ScratchPadPage"), {0xfffffde7, MRVOptions::ScratchPadColors, QT_TRANSLATE_NOOP("MRVOptions", "Page")}},
    {MRVOptions::ScratchPadTextColor, KEY("Appearance/Colors/ScratchPadText"), {0xff1f1f1f, MRVOptions::ScratchPadColors, QT_TRANSLATE_NOOP("MRVOptions", "Text")}},
};

constexpr DateTimeRow DateTimes[] = {
    {MRVOptions::LastCheckForUpdates, KEY("General/lastCheckForUpdates"), {}},
    {MRVOptions::MorvaneStartDateTime, KEY("General/morvaneStartDateTime"), {}},
};

constexpr FontRow Fonts[] = {
    {MRVOptions::IndexCardTitleFont, KEY("IndexCard/titleFont"), {100, true}},
    {MRVOptions::IndexCardSynopsisFont, KEY("IndexCard/synopsisFont"), {100}},
    {MRVOptions::IndexCardSynopsisSmallFont, KEY("IndexCard/synopsisSmallFont"), {85}},
    {MRVOptions::IndexCardStatusFont, KEY("IndexCard/statusFont"), {150, true}},
    {MRVOptions::MorvaneGuiFont, KEY("Appearance/morvaneGuiFont"), {100}},
    {MRVOptions::DocumentNotesFont, KEY("Appearance/documentNotesFont"), {100}},
    {MRVOptions::ProjectNotesFont, KEY("Appearance/projectNotesFont"), {100}},
    {MRVOptions::BinderFont, KEY("Appearance/binderFont"), {100}},
    {MRVOptions::OutlinerFont, KEY("Appearance/outlinerFont"), {100}},
    {MRVOptions::HeaderBarFont, KEY("Appearance/headerBarFont"), {100, true}},
    {MRVOptions::InspectorCommentsFont, KEY("Appearance/inspectorCommentsFont"), {90}},
    {MRVOptions::InspectorFootnotesFont, KEY("Appearance/inspectorFootnotesFont"), {90}},
    {MRVOptions::ScratchPadFont, KEY("Appearance/scratchPadFont"), {110}},
};

constexpr ByteArrayRow ByteArrays[] = {
    {MRVOptions::DefaultShortcutScheme, KEY("Shortcut/defaultShortcutScheme"), {defaultShortcutScheme, isShortcutScheme}},
    {MRVOptions::TextPresets, KEY("TextEditing/textPresets"), {defaultTextPresets, isPresetScheme}},
    {MRVOptions::FullScreenBackgroundImage, KEY("FullScreen/Colors/BackgroundImage"), {noBytes, isPicture}},
    {MRVOptions::SubstitutionList, KEY("AutoCorrection/substitutionList"), {MRVAutoReplaceList::defaultReplacementsByteArray, isAutoReplaceList}},
    {MRVOptions::PdfSettings, KEY("PdfSettings"), {noBytes}},
    {MRVOptions::SpellingGeometry, KEY("Geometry/SpellingGeometry"), {noBytes}},
    {MRVOptions::ImportDefaultUrlType, KEY("Import/defaultUrlType"), {defaultUrlImportType, isUrlImportType}},
    {MRVOptions::ImportDefaultCodec, KEY("Import/defaultCodec"), {defaultCodec, isCodec}},
    {MRVOptions::ImportFormatConverters, KEY("Import/importFormatConverters"), {defaultImportEngines, isEngineMap}},
    {MRVOptions::ExportFormatConverters, KEY("Import/exportFormatConverters"), {defaultExportEngines, isEngineMap}},
};

constexpr CharFormatRow CharFormats[] = {
    {MRVOptions::DefaultCharFormat, KEY("TextEditing/defaultCharFormat"), defaultCharFormat},
};

constexpr BlockFormatRow BlockFormats[] = {
    {MRVOptions::DefaultBlockFormat, KEY("TextEditing/defaultBlockFormat"), defaultBlockFormat},
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
static_assert(std::size(Separators) == MRV::Clippings + 1
              && Separators[MRV::MergedDocuments].context == MRV::MergedDocuments
              && Separators[MRV::Clippings].context == MRV::Clippings);

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
Rows<SeparatorRow> separators() { return rows(Separators); }
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

} // namespace MRVOptionsTables
