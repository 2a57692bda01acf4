#pragma once

#include "autoreplace/mrvautoreplacelist.h"
#include "core/mrverror.h"
#include "fileformats/mrvimportexport.h"
#include "settings/mrvsettings.h"
#include "util/mrvbase_export.h"
#include "util/mrvenums.h"

#include <QByteArray>
#include <QColor>
#include <QCoreApplication>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

class MRVShortcutScheme;

/**
 * The user's preferences: the key and the default of every setting, and the few preferences that
 * are not stored as what they are (words for enumerations, separators, quotes, lists).
 *
 * All keys are "Group/key" paths below the group "Options" of the store; groupsChanged() of the
 * base class tells which groups changed. Each setting has a constant here; a number of a setting
 * that has no constant has an empty key and the empty value of its type.
 *
 * Values that cannot be decoded safely are left out; see MRVSettings.
 *
 * A default is never written to the store. Those of folders, languages and fonts are asked of the
 * system at each call.
 *
 * GUI thread only; except for fonts and text formats no QGuiApplication is needed.
 *
 * @code
 * MRVOptions *options = mrvOptions();
 * if (options->value(MRVOptions::SmartQuotes)) {
 *     const QPair<QString, QString> quotes = options->doubleQuotes();
 *     qDebug() << quotes.first << quotes.second;
 * }
 * options->setValue(MRVOptions::SaveInterval, 5);
 * QObject::connect(options, &MRVOptions::groupsChanged, window, [](const QStringList &groups) {
 *     qDebug() << "to be read again:" << groups;
 * });
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVOptions : public MRVSettings
{
    Q_OBJECT

public:
    // The numbers are the settings' own for good: code that was compiled against them relies on it.

    /// @name Flags
    /// @{
    static constexpr FlagSetting LastMorvaneNormalExit = FlagSetting(0);
    static constexpr FlagSetting CurrentMorvaneNormalExit = FlagSetting(1);
    static constexpr FlagSetting OpenRecentProjects = FlagSetting(2);
    static constexpr FlagSetting ShowStartPanel = FlagSetting(3);
    static constexpr FlagSetting ShowProjectFullPathInTitlebar = FlagSetting(4);
    static constexpr FlagSetting OvertypeModeAllowed = FlagSetting(5);
    static constexpr FlagSetting NotesWithPunctuation = FlagSetting(6);
    static constexpr FlagSetting CheckForUpdates = FlagSetting(7);
    static constexpr FlagSetting RenameUntitledOnSave = FlagSetting(8);
    static constexpr FlagSetting ConvertHtmlToText = FlagSetting(9);
    static constexpr FlagSetting ImportSupportedTypesOnly = FlagSetting(10);
    static constexpr FlagSetting RemoveInvalidRtfCharacters = FlagSetting(11);
    static constexpr FlagSetting EnableFontHinting =
        FlagSetting(12); ///< for text formats that are read from the store
    static constexpr FlagSetting FernwickImportFirstLinesAsTitlesOnly = FlagSetting(13);
    static constexpr FlagSetting ShowDocumentCounts = FlagSetting(14);
    static constexpr FlagSetting ShowDocumentNotepadLines = FlagSetting(15);
    static constexpr FlagSetting ShowProjectNotepadLines = FlagSetting(16);
    static constexpr FlagSetting AlternateOutlinerRowColor = FlagSetting(17);
    static constexpr FlagSetting EmboldenFolders = FlagSetting(18);
    static constexpr FlagSetting ItalicizeFolders = FlagSetting(19);
    static constexpr FlagSetting EmboldenCollections = FlagSetting(20);
    static constexpr FlagSetting ItalicizeCollections = FlagSetting(21);
    static constexpr FlagSetting CollectionsAsFolders = FlagSetting(22);
    static constexpr FlagSetting IncludeEnclosingGroup = FlagSetting(23);
    static constexpr FlagSetting OpenAllInEditorInSearchResults = FlagSetting(24);
    static constexpr FlagSetting CollapseAutoExpandedOutlineItems = FlagSetting(25);
    static constexpr FlagSetting ReturnEndsEditingSynopsis = FlagSetting(26);
    static constexpr FlagSetting ReturnCreatesNewItem = FlagSetting(27);
    static constexpr FlagSetting CorkboardAllowDropOn = FlagSetting(28);
    static constexpr FlagSetting CheckSpellingInNewProjects = FlagSetting(29);
    static constexpr FlagSetting CorrectSpelling = FlagSetting(30);
    static constexpr FlagSetting CapitalizeI = FlagSetting(31);
    static constexpr FlagSetting CapitalizeSentences = FlagSetting(32);
    static constexpr FlagSetting SmartQuotes = FlagSetting(33);
    static constexpr FlagSetting EmDashes = FlagSetting(34);
    static constexpr FlagSetting Ellipses = FlagSetting(35);
    static constexpr FlagSetting DisableCorrectionInScriptMode = FlagSetting(36);
    static constexpr FlagSetting SuperscriptOrdinals = FlagSetting(37);
    static constexpr FlagSetting LinkWebAddresses = FlagSetting(38);
    static constexpr FlagSetting CorrectMorvaneLinks = FlagSetting(39);
    static constexpr FlagSetting EnableSubstitution = FlagSetting(40);
    static constexpr FlagSetting TypewriterScrolling = FlagSetting(41);
    static constexpr FlagSetting FullScreenTypewriterScrolling = FlagSetting(42);
    static constexpr FlagSetting EnableAutoComplete = FlagSetting(43);
    static constexpr FlagSetting EnableAutoCompleteInScriptModeOnly = FlagSetting(44);
    static constexpr FlagSetting BackupsEnabled = FlagSetting(45);
    static constexpr FlagSetting BackUpOnOpen = FlagSetting(46);
    static constexpr FlagSetting BackUpOnClose = FlagSetting(47);
    static constexpr FlagSetting BackUpOnSave = FlagSetting(48);
    static constexpr FlagSetting CompressBackups = FlagSetting(49);
    static constexpr FlagSetting IncludeDateInBackups = FlagSetting(50);
    static constexpr FlagSetting DisableSoundEffects = FlagSetting(51);
    static constexpr FlagSetting TransparentScratchPad = FlagSetting(52);
    static constexpr FlagSetting CustomMetaDataWrapFields = FlagSetting(53);
    static constexpr FlagSetting CustomMetaDataColorFields = FlagSetting(54);
    static constexpr FlagSetting KeepOnTopWindows = FlagSetting(55);
    static constexpr FlagSetting KeepOnTopQuickReferencePanels = FlagSetting(56);
    static constexpr FlagSetting OpmlExportEntireBinder = FlagSetting(110);
    static constexpr FlagSetting OpmlCreateContainingFolder = FlagSetting(111);
    /// @}

    /// @name Whole numbers
    /// @{
    static constexpr IntSetting FullScreenPaperPosition =
        IntSetting(0); ///< left, centre, right: 0 to 2
    static constexpr IntSetting SaveInterval = IntSetting(1); ///< seconds without typing
    static constexpr IntSetting CheckForUpdatesInterval = IntSetting(2); ///< days
    static constexpr IntSetting LabelTintOpacity = IntSetting(3); ///< 0 to 255, as all opacities
    static constexpr IntSetting StatusOpacity = IntSetting(4);
    static constexpr IntSetting ShadowOpacity = IntSetting(5);
    static constexpr IntSetting FullScreenBackgroundOpacity = IntSetting(6);
    static constexpr IntSetting FullScreenPaperWidth = IntSetting(7); ///< percent of the screen's
    static constexpr IntSetting FullScreenPaperHeight = IntSetting(8); ///< percent of the screen's
    static constexpr IntSetting CursorWidth = IntSetting(9); ///< pixels; -1: the system's
    static constexpr IntSetting EditorZoomIndex = IntSetting(10); ///< into the list of zoom factors
    static constexpr IntSetting ProjectNotesZoomIndex = IntSetting(11);
    static constexpr IntSetting DocumentNotesZoomIndex = IntSetting(12);
    static constexpr IntSetting MediaBacktrackDuration = IntSetting(13); ///< seconds
    static constexpr IntSetting BackupsToRetain =
        IntSetting(14); ///< number of backups of a project
    static constexpr IntSetting RevisionLevel = IntSetting(17); ///< 0 (none) to 5
    static constexpr IntSetting AutoChangeIndentWithSpacing = IntSetting(18);
    static constexpr IntSetting OpenClickedMorvaneLinksIn = IntSetting(19); ///< MRV::OpenInTarget
    static constexpr IntSetting RecentProjectsCount = IntSetting(20); ///< 0 to 50
    static constexpr IntSetting OpmlExportLastFormat = IntSetting(51);
    static constexpr IntSetting OpmlExportType = IntSetting(52);
    static constexpr IntSetting OpmlImportType = IntSetting(53); ///< MRV::OpmlImportType
    static constexpr IntSetting OpmlImportTypeOptions = IntSetting(54);
    /// @}

    /// @name Real numbers
    /// @{
    static constexpr RealSetting DefaultVolume = RealSetting(0); ///< 0 (mute) to 1
    static constexpr RealSetting EditorMargin = RealSetting(1); ///< pixels
    /// @}

    /// @name Texts
    /// @{
    static constexpr StringSetting TemplatesPath = StringSetting(0);
    static constexpr StringSetting CorkboardPattern =
        StringSetting(1); ///< path of a picture; empty: plain colour
    static constexpr StringSetting RulerMeasure =
        StringSetting(2); ///< a unit of MRVUnit, such as "cm"
    static constexpr StringSetting RulerSnap =
        StringSetting(3); ///< a measure, such as "0.25cm"; empty: none
    static constexpr StringSetting DictionaryLocale = StringSetting(4); ///< as QLocale::name()
    static constexpr StringSetting BibliographyCitationsManager = StringSetting(5);
    static constexpr StringSetting ScratchPadDirectory = StringSetting(6);
    static constexpr StringSetting ScratchPadLastFile = StringSetting(7);
    static constexpr StringSetting ScratchPadOrientation =
        StringSetting(8); ///< "Vertical" or "Horizontal"
    static constexpr StringSetting BackupsLocation = StringSetting(9); ///< see backupPath()
    static constexpr StringSetting GuiLanguage = StringSetting(10); ///< one of guiLanguages()
    static constexpr StringSetting DoubleQuotesSubstitution =
        StringSetting(11); ///< see doubleQuotes()
    static constexpr StringSetting SingleQuotesSubstitution =
        StringSetting(12); ///< see singleQuotes()
    static constexpr StringSetting LabelIndicator =
        StringSetting(13); ///< a word of CorkLabelIndicator
    static constexpr StringSetting IndexCardCornerStyle =
        StringSetting(14); ///< a word of CorkCornerStyle
    static constexpr StringSetting SpaceDoubleClick =
        StringSetting(15); ///< a word of SpaceDoubleClickMode
    static constexpr StringSetting KindlePath =
        StringSetting(33); ///< of the converter; empty: none
    static constexpr StringSetting OpmlImportLastPath = StringSetting(47);
    /// @}

    /// @name Lists of texts
    /// @{
    static constexpr StringListSetting PersonalWords = StringListSetting(0);
    /// @}

    /// @name Dates
    /// @{
    static constexpr DateTimeSetting LastCheckForUpdates = DateTimeSetting(0);
    static constexpr DateTimeSetting MorvaneStartDateTime = DateTimeSetting(1);
    /// @}

    /// @name Fonts
    /// @{
    static constexpr FontSetting IndexCardTitleFont = FontSetting(0);
    static constexpr FontSetting IndexCardSynopsisFont = FontSetting(1);
    static constexpr FontSetting IndexCardSynopsisSmallFont = FontSetting(2);
    static constexpr FontSetting IndexCardStatusFont = FontSetting(3);
    static constexpr FontSetting MorvaneGuiFont = FontSetting(4);
    static constexpr FontSetting DocumentNotesFont = FontSetting(5);
    static constexpr FontSetting ProjectNotesFont = FontSetting(6);
    static constexpr FontSetting BinderFont = FontSetting(7);
    static constexpr FontSetting OutlinerFont = FontSetting(8);
    static constexpr FontSetting HeaderBarFont = FontSetting(9);
    static constexpr FontSetting InspectorCommentsFont = FontSetting(10);
    static constexpr FontSetting InspectorFootnotesFont = FontSetting(11);
    static constexpr FontSetting ScratchPadFont = FontSetting(15);
    /// @}

    /// @name Byte arrays
    /// @{
    static constexpr ByteArraySetting DefaultShortcutScheme =
        ByteArraySetting(0); ///< an MRVShortcutScheme
    static constexpr ByteArraySetting TextPresets = ByteArraySetting(1); ///< an MRVTextPresetScheme
    static constexpr ByteArraySetting FullScreenBackgroundImage =
        ByteArraySetting(5); ///< JPEG; empty: none
    static constexpr ByteArraySetting SubstitutionList =
        ByteArraySetting(7); ///< see autoReplaceList()
    static constexpr ByteArraySetting PdfSettings = ByteArraySetting(8); ///< see pdfSettings()
    static constexpr ByteArraySetting SpellingGeometry =
        ByteArraySetting(9); ///< of the window, as QWidget saves it
    static constexpr ByteArraySetting ImportDefaultUrlType =
        ByteArraySetting(10); ///< see defaultImportUrlType()
    static constexpr ByteArraySetting ImportDefaultCodec =
        ByteArraySetting(11); ///< see defaultTextEncoding()
    static constexpr ByteArraySetting ImportFormatConverters =
        ByteArraySetting(12); ///< the engine configuration's
    static constexpr ByteArraySetting ExportFormatConverters =
        ByteArraySetting(13); ///< the engine configuration's
    /// @}

    /// @name Colours
    /// @{
    static constexpr ColorSetting IndexCardDividerColor = ColorSetting(0);
    static constexpr ColorSetting IndexCardNotepadLinesColor = ColorSetting(1);
    static constexpr ColorSetting IndexCardStatusColor = ColorSetting(2);
    static constexpr ColorSetting IndexCardBorderColor = ColorSetting(3);
    static constexpr ColorSetting IndexCardBackgroundColor = ColorSetting(4);
    static constexpr ColorSetting CorkboardBackgroundColor = ColorSetting(5);
    static constexpr ColorSetting FullScreenBackgroundColor = ColorSetting(6);
    static constexpr ColorSetting FirstRevisionColor = ColorSetting(7);
    static constexpr ColorSetting SecondRevisionColor = ColorSetting(8);
    static constexpr ColorSetting ThirdRevisionColor = ColorSetting(9);
    static constexpr ColorSetting FourthRevisionColor = ColorSetting(10);
    static constexpr ColorSetting FifthRevisionColor = ColorSetting(11);
    static constexpr ColorSetting TextColor = ColorSetting(12);
    static constexpr ColorSetting PageColor = ColorSetting(13);
    static constexpr ColorSetting LinksColor = ColorSetting(14);
    static constexpr ColorSetting VisitedLinksColor = ColorSetting(15);
    static constexpr ColorSetting InvisiblesColor = ColorSetting(16);
    static constexpr ColorSetting HighlightTextColor = ColorSetting(17);
    static constexpr ColorSetting HighlightPageColor = ColorSetting(18);
    static constexpr ColorSetting AnnotationColor = ColorSetting(19);
    static constexpr ColorSetting CommentColor = ColorSetting(20);
    static constexpr ColorSetting FootnotesTextColor = ColorSetting(21);
    static constexpr ColorSetting FootnotesPageColor = ColorSetting(22);
    static constexpr ColorSetting PreserveFormatColor = ColorSetting(23);
    static constexpr ColorSetting SearchColor = ColorSetting(24);
    static constexpr ColorSetting SearchBorderColor = ColorSetting(25);
    static constexpr ColorSetting FindColor = ColorSetting(26);
    static constexpr ColorSetting FindAlternateColor = ColorSetting(27);
    static constexpr ColorSetting FindTextColor = ColorSetting(28);
    static constexpr ColorSetting SpellCheckerColor = ColorSetting(29);
    static constexpr ColorSetting FullScreenTextColor = ColorSetting(30);
    static constexpr ColorSetting FullScreenPageColor = ColorSetting(31);
    static constexpr ColorSetting FullScreenLinksColor = ColorSetting(32);
    static constexpr ColorSetting FullScreenVisitedLinksColor = ColorSetting(33);
    static constexpr ColorSetting FullScreenInvisiblesColor = ColorSetting(34);
    static constexpr ColorSetting FullScreenHighlightTextColor = ColorSetting(35);
    static constexpr ColorSetting FullScreenHighlightPageColor = ColorSetting(36);
    static constexpr ColorSetting FullScreenSearchColor = ColorSetting(37);
    static constexpr ColorSetting FullScreenSearchBorderColor = ColorSetting(38);
    static constexpr ColorSetting FullScreenFindColor = ColorSetting(39);
    static constexpr ColorSetting FullScreenFindAlternateColor = ColorSetting(40);
    static constexpr ColorSetting FullScreenFindTextColor = ColorSetting(41);
    static constexpr ColorSetting DocumentNotesBackgroundColor = ColorSetting(42);
    static constexpr ColorSetting ProjectNotesBackgroundColor = ColorSetting(43);
    static constexpr ColorSetting RecentSearchResultsBackgroundColor = ColorSetting(44);
    static constexpr ColorSetting BinderBackgroundColor = ColorSetting(45);
    static constexpr ColorSetting OutlinerBackgroundColor = ColorSetting(46);
    static constexpr ColorSetting OutlinerAlternateBackgroundColor = ColorSetting(47);
    static constexpr ColorSetting SnapshotTextBackgroundColor = ColorSetting(48);
    static constexpr ColorSetting ScratchPadPageColor = ColorSetting(49);
    static constexpr ColorSetting ScratchPadTextColor = ColorSetting(50);
    /// @}

    /// @name Text formats
    /// @{
    static constexpr TextCharFormat DefaultCharFormat = TextCharFormat(0);
    static constexpr TextBlockFormat DefaultBlockFormat = TextBlockFormat(0);
    /// @}

    /// @name Groups of colours, in the order in which they are shown
    /// @{
    static constexpr ColorSettingGroup EditorColors = ColorSettingGroup(0);
    static constexpr ColorSettingGroup FullScreenColors = ColorSettingGroup(1);
    static constexpr ColorSettingGroup IndexCardColors = ColorSettingGroup(2);
    static constexpr ColorSettingGroup RevisionColors = ColorSettingGroup(3);
    static constexpr ColorSettingGroup BackgroundColors = ColorSettingGroup(4);
    static constexpr ColorSettingGroup ScratchPadColors = ColorSettingGroup(5);
    /// @}

    /** The corners of index cards. */
    enum CorkCornerStyle : int {
        SquareCorners = 0,
        RoundedCorners = 1,
    };

    /** How an index card shows the colour of its label. */
    enum CorkLabelIndicator : int {
        NoLabelIndicator = 0,
        PinIndicator = 1,
        CornerIndicator = 2,
        StripeIndicator = 3,
    };

    /** What a double click on the free space of the corkboard does. */
    enum SpaceDoubleClickMode : int {
        SpaceDoubleClickDoesNothing = 0,
        SpaceDoubleClickCreatesCard = 1,
        SpaceDoubleClickOpensParent = 2,
    };

    /** Colours of index cards that go together. */
    struct IndexCardTheme
    {
        QString name; ///< translated
        QPair<QColor, QColor>
            colors; ///< those of IndexCardBackgroundColor and IndexCardBorderColor
    };

    /** The type of a setting, and so the enumeration that it belongs to. */
    enum SettingType : int {
        FlagType = 0,
        IntType = 1,
        RealType = 2,
        StringType = 3,
        StringListType = 4,
        ColorType = 5,
        DateTimeType = 6,
        FontType = 7,
        IntListType = 8,
        ByteArrayType = 9,
        CharFormatType = 10,
        BlockFormatType = 11,
    };

    /** What a text is, for those who offer an editor for it. */
    enum TextForm : int {
        Line = 0,
        Lines = 1, ///< a text whose line breaks count, also at its ends
        FolderPath = 2, ///< of a folder that need not exist
        FilePath = 3, ///< of a file; empty for none
        QuotePair = 4, ///< an opening and a closing mark, of the same length
    };

    /** A value that a setting takes, and the translated text that the user chooses it by. */
    struct Choice
    {
        QVariant value; ///< an int or a text
        QString label;
    };

    /** What a page of preferences has to know of a setting, whatever is stored. */
    struct SettingInfo
    {
        QString key; ///< below "Options"; empty for a setting that does not exist
        SettingType type = FlagType;
        int number = -1; ///< within its enumeration; -1 where it has none (the separators)
        QString group; ///< the translated title of the settings that belong together
        QString label; ///< translated, without a colon; unique among those of its type in a group
        QString description; ///< one translated sentence
        bool isPreference = true; ///< false for what the application itself keeps in a setting
        QVariant least; ///< of a number; invalid for other types
        QVariant most; ///< the largest value, which is accepted, too
        QString unit; ///< of a number: the translated symbol that follows it; empty for none
        TextForm form = Line; ///< of a StringType
        QList<Choice> choices; ///< all that is accepted, where that has names; else empty

        /** The limits, or the words, that setFromText() keeps to; empty for none. */
        QString accepts() const;
    };

    /** A stored value that is not one of its setting's. */
    struct Problem
    {
        enum Kind : int {
            UnknownKey = 0, ///< no setting has the key
            OutOfLimits = 1, ///< see value(); a text that is not one of the words reads as it is
            Unreadable = 2, ///< not a value of the type: read as the default
        };

        QString key; ///< below "Options"
        Kind kind = UnknownKey;
        QString stored; ///< the value as text; bytes as toText() gives them
        QString message; ///< a translated line that tells what is wrong, without the key

        /** "unknown", "limits" or "unreadable". Not translated. */
        QString kindName() const;
        /** For programs: "key"; "kind", its kindName(); "stored"; "message". */
        QJsonObject toJson() const;
    };

    /** Which values importFrom() takes. */
    enum class Import {
        Usable, ///< those without a Problem
        All,
    };

    /** What is known of one setting of a store. */
    struct Explanation : SettingInfo
    {
        QVariant
            value; ///< as the typed value() gives it; formats as QTextFormat, QList<int> as such
        QVariant defaultValue; ///< of the same type
        QString origin; ///< path of the file that the value is from; empty for the default
        Problem problem; ///< why the value is not the stored one; without a key where it is

        /** Of no setting. */
        Explanation() = default;
        /** Of the setting of @p info, without a value. */
        explicit Explanation(const SettingInfo &info)
            : SettingInfo(info)
        {
        }
        /** Whether the value is another than the default. */
        bool isChanged() const;
        /**
         * For programs: "key"; "type", its typeName(); "group", "label" and "description"; "value"
         * and "default" as MRVOptions::toJson() gives them; "changed"; "preference"; "origin", or
         * null. Where there are any: "accepts"; "least" and "most"; "unit"; "choices", objects of a
         * "value" and a "label"; "problem".
         */
        QJsonObject toJson() const;
    };

    /** The user's own preferences: those of companyName() and applicationName(), native format. */
    explicit MRVOptions(QObject *parent = nullptr);
    /** The preferences in the INI file @p fileName, which need not exist. */
    explicit MRVOptions(const QString &fileName, QObject *parent = nullptr);
    ~MRVOptions() override;

    /** The process's own object over the user's preferences; null while the process ends. */
    static MRVOptions *instance();

    /** "Morvane": the names under which the user's settings are kept. Not translated. */
    static QString companyName();
    /** "Morvane", too; the settings of the user are in "Morvane/Morvane.conf". */
    static QString applicationName();

    /**
     * Whether the user's own KindlePath named an existing file when this was first asked in this
     * process. Until the next start it decides whether MOBI is among the export formats, and so in
     * the default of ExportFormatConverters.
     */
    static bool hasKindleConverter();

    bool defaultValue(FlagSetting setting) const override;
    int defaultValue(IntSetting setting) const override;
    qreal defaultValue(RealSetting setting) const override;
    QString defaultValue(StringSetting setting) const override;
    QStringList defaultValue(StringListSetting setting) const override;
    QColor defaultValue(ColorSetting setting) const override;
    QDateTime defaultValue(DateTimeSetting setting) const override;
    QFont defaultValue(FontSetting setting) const override;
    QList<int> defaultValue(IntListSetting setting) const override;
    QByteArray defaultValue(ByteArraySetting setting) const override;
    QTextCharFormat defaultValue(TextCharFormat setting) const override;
    QTextBlockFormat defaultValue(TextBlockFormat setting) const override;

    QString keyText(FlagSetting setting) const override;
    QString keyText(IntSetting setting) const override;
    QString keyText(RealSetting setting) const override;
    QString keyText(StringSetting setting) const override;
    QString keyText(StringListSetting setting) const override;
    QString keyText(ColorSetting setting) const override;
    QString keyText(DateTimeSetting setting) const override;
    QString keyText(FontSetting setting) const override;
    QString keyText(TextCharFormat setting) const override;
    QString keyText(TextBlockFormat setting) const override;
    QString keyText(IntListSetting setting) const override;
    QString keyText(ByteArraySetting setting) const override;

    /** The value under @p key as it is stored; @p defaultValue where there is none. */
    using MRVSettings::value;
    /**
     * As those of the base class, but never outside of the setting's limits: a stored number beyond
     * them reads as the nearest one, and a fully transparent colour of text as the default. The
     * stored value stays; see Explanation::problem.
     */
    int value(IntSetting setting) const;
    qreal value(RealSetting setting) const;
    QColor value(ColorSetting setting) const;

    /**
     * @name Texts of settings
     *
     * For pages of preferences: what a setting is called there, without a colon, and a sentence on
     * what it does. Translated; empty for a setting that does not exist.
     */
    //@{
    static QString label(FlagSetting setting);
    static QString label(IntSetting setting);
    static QString label(RealSetting setting);
    static QString label(StringSetting setting);
    static QString label(StringListSetting setting);
    static QString label(ColorSetting setting);
    static QString label(DateTimeSetting setting);
    static QString label(FontSetting setting);
    static QString label(IntListSetting setting);
    static QString label(ByteArraySetting setting);
    static QString label(TextCharFormat setting);
    static QString label(TextBlockFormat setting);
    static QString label(const QString &key);
    static QString description(FlagSetting setting);
    static QString description(IntSetting setting);
    static QString description(RealSetting setting);
    static QString description(StringSetting setting);
    static QString description(StringListSetting setting);
    static QString description(ColorSetting setting);
    static QString description(DateTimeSetting setting);
    static QString description(FontSetting setting);
    static QString description(IntListSetting setting);
    static QString description(ByteArraySetting setting);
    static QString description(TextCharFormat setting);
    static QString description(TextBlockFormat setting);
    static QString description(const QString &key);
    //@}

    /**
     * All settings in the order in which pages of preferences show them: group by group, and in a
     * group by type and number. Those that are no preferences are among them.
     */
    static QList<SettingInfo> settings();

    /** The stored word: the enumerator's name; that of the default outside the enumeration. */
    static QString toString(CorkCornerStyle style);
    static QString toString(CorkLabelIndicator indicator);
    static QString toString(SpaceDoubleClickMode mode);
    /** The inverse of toString(); exact. Unknown text is RoundedCorners. */
    static CorkCornerStyle toCornerStyle(const QString &text);
    /** The inverse of toString(); exact. Unknown text is PinIndicator. */
    static CorkLabelIndicator toLabelIndicator(const QString &text);
    /** The inverse of toString(); exact. Unknown text is SpaceDoubleClickCreatesCard. */
    static SpaceDoubleClickMode toSpaceDoubleClickMode(const QString &text);

    /**
     * @name Stored words
     *
     * Settings that are kept as the word of toString(). What a file holds beyond the enumeration
     * reads as the default; setting a number outside the enumeration stores the word of the
     * default. A setter returns whether the store took the value.
     */
    //@{
    CorkCornerStyle cornerStyle() const;
    bool setCornerStyle(CorkCornerStyle style);
    CorkLabelIndicator labelIndicator() const;
    bool setLabelIndicator(CorkLabelIndicator indicator);
    SpaceDoubleClickMode spaceDoubleClickMode() const;
    bool setSpaceDoubleClickMode(SpaceDoubleClickMode mode);
    //@}

    /**
     * What stands between texts that are joined in @p context. Stored under "Separators/" and the
     * word of the context; an empty line unless something else was set, a single return for
     * clippings.
     */
    MRV::SeparatorType separatorType(MRV::SeparatorContext context) const;
    /**
     * @param custom the text of a custom separator, kept whatever @p type is, so that it is there
     *               when the user turns back to it; null leaves what is stored.
     * @return whether it could be stored; false for a value outside the enumerations.
     */
    bool setSeparator(MRV::SeparatorContext context, MRV::SeparatorType type,
                      const QString &custom);
    /** The text of the custom separator, in use or not. A "#" on a line by default. */
    QString customSeparator(MRV::SeparatorContext context) const;

    /**
     * The opening and the closing quote that are put in place of typed straight ones. They are
     * stored as one text: its first half opens, its second half closes. English quotes where
     * nothing is stored, or a text that has no two halves.
     */
    QPair<QString, QString> singleQuotes() const;
    /** The same for double quotes. */
    QPair<QString, QString> doubleQuotes() const;

    /**
     * Settings of PDF files by the name that the user gave them; empty for an unknown name. Each
     * name has a key of its own below "PdfSettings", so that two processes can store two names at a
     * time; the empty name is "PdfSettings" itself.
     */
    QByteArray pdfSettings(const QString &name) const;
    /**
     * Stores the settings of PDF files under a @p name, which may be empty; empty @p settings are
     * stored as such. False where the store did not take them.
     */
    bool setPdfSettings(const QString &name, const QByteArray &settings);
    /** The names that settings are stored for, sorted; without the empty one. */
    QStringList pdfSettingsNames() const;
    /**
     * Forgets those of a name. Those of the empty name cannot be removed without all the others.
     */
    void removePdfSettings(const QString &name);

    /**
     * The auto-replace list. A stored list that was saved before ordinals existed gains them,
     * disabled; the default list where none is stored, or none that can be read.
     *
     * @param error if given, receives a translated line that names the file where the stored list
     *              cannot be read whole; untouched otherwise.
     */
    MRVAutoReplaceList autoReplaceList(MRVErrorSink error = nullptr) const;
    bool setAutoReplaceList(const MRVAutoReplaceList &list);

    using MRVSettings::shortcutScheme;
    /**
     * The stored shortcut scheme, without entries for the commands that it lacks; the default one
     * where none is stored.
     *
     * @param error if given, receives a translated line that names the file where not all of the
     *              stored scheme could be read; untouched otherwise.
     * @return what could be read; a null scheme where nothing could.
     */
    MRVShortcutScheme shortcutScheme(MRVErrorSink error = nullptr) const;

    /** The keys that are to be given to commands; an empty sequence is no key. */
    using ShortcutKeys = QList<QPair<MRVShortcut::Id, QKeySequence>>;
    /** What setShortcuts() does with keys that would not work; see MRVShortcutCheck. */
    enum class Conflicts { Refuse, Accept };
    /**
     * Gives commands other keys in the stored scheme, which gets an entry for every command.
     *
     * @param keys      all are set, or none.
     * @param conflicts whether MRVShortcutCheck::conflicts() matter, with all @p keys set.
     * @param error     if given, receives one translated line on failure; untouched on success.
     * @return false also where the stored scheme is damaged, so that nothing of it is lost.
     */
    bool setShortcuts(const ShortcutKeys &keys, Conflicts conflicts, MRVErrorSink error = nullptr);

    /** The codec that texts are imported with: a name that QTextCodec knows, "UTF-8" by default. */
    QByteArray defaultTextEncoding() const;
    bool setDefaultTextEncoding(const QByteArray &codec);

    /** What a web page is imported as. */
    MRVImportExport::UrlImportType defaultImportUrlType() const;
    bool setDefaultImportUrlType(MRVImportExport::UrlImportType type);

    /**
     * The folder of automatic backups; defaultBackupPath() where none is set. It need not exist.
     */
    QString backupPath() const;
    /** "Backups" in the application's folder of the user's data. It is not created. */
    static QString defaultBackupPath();

    /**
     * Shows all warnings again that the user has turned off: those that dialogs keep in the group
     * "Warnings" of the options, and those of the application state in the same file.
     */
    void resetAllWarnings();

    /**
     * The keys of the application state's warnings, which are turned off by being false and lie at
     * the top of the file that options and state share.
     */
    static QStringList warningKeys();

    /** The themes to choose from, the default first. Dark text can be read on all of them. */
    static QList<IndexCardTheme> indexCardThemes();
    /** The index of the theme with just these colours, alpha apart; -1 if there is none. */
    static int findIndexCardTheme(const QPair<QColor, QColor> &colors);
    /** The theme whose colours are the defaults. */
    static IndexCardTheme defaultIndexCardTheme();

    /** The codes of the shipped interface languages; see MTranslator::morvaneGuiLanguages(). */
    static QStringList guiLanguages();
    /** The system's language where it is shipped, with or without its country; else "en". */
    static QString defaultGuiLanguageCode();
    /** See MTranslator::systemGuiLanguageCode(). */
    static QString systemGuiLanguageCode();

    /**
     * The colours of each group, in the order in which they are shown. Every colour is in one
     * group.
     */
    static QMap<ColorSettingGroup, QList<ColorSetting>> colorGroupMap();
    /** Translated; empty for a number outside the table. */
    static QString colorGroupName(ColorSettingGroup group);
    /** Translated; unique within its group. Empty for a number outside the table. */
    static QString colorName(ColorSetting setting);

    /**
     * The keys of all settings, sorted; names of PDF settings and of warnings are not among them.
     */
    static QStringList settingKeys();
    /**
     * The key that a mistyped one was probably meant to be, whose group may be left out; null where
     * none is near.
     */
    static QString closestKey(const QString &wrong);
    /**
     * The value of a setting, its default, and where the value comes from. A value of the system's
     * own file, which the user's overrides, counts as stored.
     *
     * @param key exact.
     * @return an explanation with an empty key where there is no such setting.
     */
    Explanation explain(const QString &key) const;
    /** The settings whose value is another than the default, by key. */
    QList<Explanation> changedSettings() const;

    /**
     * The stored values that are outside of their setting's limits, cannot be read as its type, or
     * have a key that no setting has, by key. PDF settings, and the warnings of dialogs, may have
     * any name.
     */
    QList<Problem> problems() const;
    /**
     * Puts what another store has in place of all that this one has, and emits settingsReset().
     * Nothing is changed where there is no value to be taken.
     *
     * @param which whether values with a Problem are taken, too.
     * @return the values that were left out: the problems of @p source; with Import::All, only
     * those that cannot be decoded at all.
     */
    QList<Problem> importFrom(const MRVOptions &source, Import which);

    /** "flag", "int", ..., as the tool shows it. Not translated. */
    static QString typeName(SettingType type);
    /**
     * A @p value of explain() as text that setFromText() takes back: "true" and "false"; numbers
     * with a decimal point; colours as "#rrggbb", or "#aarrggbb" where they are translucent; dates
     * as ISO 8601; fonts as QFont::toString(); the items of lists one a line, or of lists of whole
     * numbers separated by blanks; byte arrays as they are where they are text, else "base64:" and
     * their Base64 form, which is also that of text formats.
     */
    static QString toText(SettingType type, const QVariant &value);
    /**
     * A @p value of explain() for programs: flags, numbers and lists of texts as those of JSON, all
     * others as toText() gives them.
     */
    static QJsonValue toJson(SettingType type, const QVariant &value);
    /**
     * Reads @p text as the type of the setting @p key and stores it. A flag may also be given as
     * "yes", "no", "on", "off", "1" or "0", a colour by its SVG name, a font by its family and size
     * alone ("Serif,12").
     *
     * @param error if given, receives one translated line on failure; untouched on success.
     * @return false, with nothing stored, for an unknown key and for a text that is no value of the
     * type, lies outside the setting's range, or is not one of the words that the setting takes.
     */
    bool setFromText(const QString &key, const QString &text, MRVErrorSink error = nullptr);
};

/** MRVOptions::instance(). @since 1.0 */
MRVBASE_EXPORT MRVOptions *mrvOptions();
