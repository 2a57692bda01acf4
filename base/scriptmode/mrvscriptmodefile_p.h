#pragma once

#include "input/mrvxmlreader.h"
#include "scriptmode/mrvscriptelement.h"
#include "util/mrvunit.h"

#include <QByteArray>
#include <QString>

// The words of a mode's file stand here and in the rows of mrvscriptmodefile.cpp, once each: reader
// and writer use the same rows.

constexpr char MorvaneScriptFormatTag[] = "MorvaneScriptFormat";
constexpr char VersionAttribute[] = "Version";
constexpr char FileVersion[] = "1.0";
constexpr char NameTag[] = "Name"; // also an attribute of FontTag
constexpr char UnitsTag[] = "Units";
constexpr char ScriptElementsTag[] = "ScriptElements";
constexpr char ElementItemTag[] = "Element";
constexpr char TitleTag[] = "Title";
constexpr char ShortcutTag[] = "KeyEquivalent";
constexpr char CharacterFormatTag[] = "CharacterFormat";
constexpr char FontTag[] = "Font";
constexpr char SizeAttribute[] = "Size";
constexpr char UnderlineStyleTag[] = "UnderlineStyle";
constexpr char ByWordTag[] = "ByWord";
constexpr char BoldTag[] = "Bold";
constexpr char ItalicTag[] = "Italic";
constexpr char AllCapsTag[] = "AllCaps";
constexpr char StyleDelimiterTag[] = "StyleDelimiter";
constexpr char TextColorTag[] = "TextColor";
constexpr char ParagraphFormatTag[] = "ParagraphFormat";
constexpr char ParentheticalTag[] = "Parenthetical";
constexpr char KeepWithNextTag[] = "KeepWithNext";
constexpr char AlignmentTag[] = "Alignment";
constexpr char SpacingTag[] = "Spacing";
constexpr char SpaceBeforeTag[] = "SpaceBefore";
constexpr char SpaceAfterTag[] = "SpaceAfter";
constexpr char TextIndentTag[] = "FirstLineIndent";
constexpr char LeftIndentTag[] = "Indent";
constexpr char RightIndentTag[] = "TailIndent";
constexpr char FirstTabTag[] = "FirstTab";
constexpr char FixedLineHeightTag[] = "FixedLineHeight";
constexpr char DefaultTabIntervalTag[] = "DefaultTabInterval";
constexpr char WritingDirectionTag[] = "WritingDirection";
constexpr char ReturnElementTag[] = "NextElement";
constexpr char AllowTabsTag[] = "AllowTabs";
constexpr char TabOnEmptyElementTag[] = "NextElementOnEmptyLineTab";
constexpr char TabAfterTypingTag[] = "TabbingAfterTypingBehavior";
constexpr char TabAfterTypingElementTag[] = "NextElementOnTabAfterTyping";
constexpr char TabAfterTypingTextTag[] = "TextToInsertOnTab";
constexpr char AutoCompleteListTag[] = "AutoCompleteList";
constexpr char CompletionListTag[] = "Completions";
constexpr char CompletionItemTag[] = "Completion";
constexpr char NewLineAfterAttribute[] = "NewLineAfter";
constexpr char AppendProjectListTag[] = "AppendProjectAutoCompleteList";
constexpr char CompleteBehaviorTag[] = "ProjectListAutoCompleteBehavior";
constexpr char AddToProjectListTag[] = "AutomaticallyAddPhrasesToProjectList";
constexpr char PhraseStartDelimiterTag[] = "PhraseStartDelimiter";
constexpr char PhraseEndDelimiterTag[] = "PhraseEndDelimiter";

constexpr char YesWord[] = "Yes";
constexpr char NoWord[] = "No";

/** What a file may ask of the reader. */
constexpr MRVXmlLimits ScriptModeLimits{
    MRVXmlLimits::NoDocumentType, MRVInputLimits::ScriptModeDepth, MRVInputLimits::ScriptAttributes,
    MRVInputLimits::ScriptModeTagLength};

/** A word of the file and the enumerator that it stands for. */
struct ScriptWord
{
    const char *word;
    int value;
};

extern const ScriptWord ScriptUnitWords[3];

/** What a child of an element's file form is. */
enum class ScriptFieldKind {
    Text, ///< has text() and read()
    Font, ///< has attributes
    Completions, ///< has children
};

/** A child of an element's file form. Lengths are written and read in @p units. */
struct ScriptField
{
    const char
        *group; // the tag of what holds it within the element; null where that is the element
    const char *tag;
    ScriptFieldKind kind;
    /** What is written; a null string is not. Null for what is only read. */
    QString (*text)(const MRVScriptElement &element, MRVUnit::Unit units);
    /**
     * False where the text cannot be read as it stands. The element then is as it was, or has the
     * nearest value that it can have.
     */
    bool (*read)(MRVScriptElement *element, const QString &text, MRVUnit::Unit units);
};

/** The children of an element, in the order of the file. */
struct ScriptFields
{
    static const ScriptField *begin();
    static const ScriptField *end();
};

QString scriptFontFamily(const MRVScriptElement &element);
QString scriptFontSize(const MRVScriptElement &element);
/** False where the size cannot be read as it stands; the family is taken nevertheless. */
bool readScriptFont(MRVScriptElement *element, const QString &family, const QString &size);

/** See MRVScriptMode::toPoints(). */
double scriptToPoints(MRVUnit::Unit units, double length);

/** The mode file that is compiled in. UTF-8, ends with a null byte. */
extern const char MrvDefaultScriptMode[];
