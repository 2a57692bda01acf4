#include "scriptmode/mrvscriptmodefile_p.h"

#include "textformat/mrvtextformat.h"
#include "util/mrvcolors.h"

#include <QBrush>
#include <QLocale>
#include <QTextOption>

#include <cmath>
#include <iterator>

const ScriptWord ScriptUnitWords[3] = {{"Inches", MRVUnit::Inch},
                                       {"CM", MRVUnit::Centimeter},
                                       {"Points", MRVUnit::Point}};

namespace {

using Element = MRVScriptElement;

constexpr double SpacingBase = 12.0;
constexpr double MaxLength = 100000.0; // in points
constexpr double MaxMultiple = 100.0;
constexpr double MaxFontSize = 10000.0;

constexpr ScriptWord AlignmentWords[] = {{"Left", Qt::AlignLeft},
                                         {"Right", Qt::AlignRight},
                                         {"Center", Qt::AlignHCenter},
                                         {"Justified", Qt::AlignJustify}};
constexpr char NaturalWord[] = "Natural"; // of alignments and directions
constexpr ScriptWord DirectionWords[] = {{"LeftToRight", Qt::LeftToRight},
                                         {"RightToLeft", Qt::RightToLeft}};
enum Underline { NoLine, SingleLine, DoubleLine };
constexpr ScriptWord UnderlineWords[] = {{"None", NoLine},
                                         {"Single", SingleLine},
                                         {"Double", DoubleLine}};
constexpr ScriptWord TabWords[] = {{"NewElement", Element::TabToNewElement},
                                   {"InsertText", Element::TabInsertsText}};
constexpr ScriptWord CompleteWords[] = {{"GoToNextLine", Element::CompleteToNextLine},
                                        {"InsertTab", Element::CompleteInsertsTab},
                                        {"Default", Element::CompleteDefault}};

// Typefaces that every system has or substitutes with the same widths, and their names on other
// systems.
struct FontRow
{
    const char *name;
    const char *here;
};
constexpr FontRow FontRows[] = {{"Arial", "Arial"},
                                {"Courier", "Courier New"},
                                {"CourierNew", "Courier New"},
                                {"CourierNewPS", "Courier New"},
                                {"MS Shell Dlg", "Arial"},
                                {"Times", "Times New Roman"},
                                {"TimesNewRoman", "Times New Roman"},
                                {"TimesNewRomanPS", "Times New Roman"}};

QString localFamily(const QString &family)
{
    // In "ArialMT" the ending comes from a file name; in "Gill Sans MT" and "BemboMT" it belongs to
    // the family.
    const bool suffixed = family.endsWith(QLatin1String("MT"));
    const QString name = suffixed ? family.chopped(2) : family;
    for (const FontRow &row : FontRows) {
        if (name == QLatin1String(row.name)) {
            return QLatin1String(row.here);
        }
    }
    return family;
}

template<int count>
bool valueOf(const ScriptWord (&words)[count], const QString &text, int *value)
{
    for (const ScriptWord &row : words) {
        if (text == QLatin1String(row.word)) {
            *value = row.value;
            return true;
        }
    }
    return false;
}

template<int count>
QString wordOf(const ScriptWord (&words)[count], int value)
{
    for (const ScriptWord &row : words) {
        if (row.value == value) {
            return QLatin1String(row.word);
        }
    }
    return QLatin1String(words[0].word);
}

bool readNumber(const QString &text, double *number)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !std::isfinite(value)) {
        return false;
    }
    *number = value;
    return true;
}

// The shortest decimal number that reads back as the exact one.
template<typename Read>
QString shortest(double exact, Read read)
{
    const double wanted = read(exact);
    for (int decimals = 0; decimals < 10; ++decimals) {
        const QString text = QString::number(exact, 'f', decimals);
        const double value = text.toDouble();
        if (read(value) == wanted) {
            return value == 0.0 ? QStringLiteral("0") : text; // never "-0"
        }
    }
    return QString::number(exact, 'f', 10);
}

// Lengths

double bounded(double points)
{
    return qBound(-MaxLength, points, MaxLength);
}

QString lengthText(double points, MRVUnit::Unit units)
{
    if (!std::isfinite(points)) {
        points = 0.0;
    }
    return shortest(MRVUnit::fromPoint(units, bounded(points)),
                    [&](double length) { return scriptToPoints(units, length); });
}

// False, too, where it is cut; "points" is untouched only where there is no number.
bool readLength(const QString &text, MRVUnit::Unit units, double *points)
{
    double length = 0.0;
    if (!readNumber(text, &length)) {
        return false;
    }
    const double exact = scriptToPoints(units, bounded(length));
    *points = bounded(exact);
    return *points == exact && bounded(length) == length;
}

template<typename Change>
void changeBlock(Element *element, Change change)
{
    QTextBlockFormat format = element->blockFormat();
    change(format);
    element->setBlockFormat(format);
}

template<typename Change>
void changeChar(Element *element, Change change)
{
    QTextCharFormat format = element->charFormat();
    change(format);
    element->setCharFormat(format);
}

template<int property>
QString length(const Element &element, MRVUnit::Unit units)
{
    return lengthText(element.blockFormat().doubleProperty(property), units);
}

template<int property>
bool takeLength(Element *element, const QString &text, MRVUnit::Unit units)
{
    double points = qQNaN();
    const bool ok = readLength(text, units, &points);
    if (!qIsNaN(points)) {
        changeBlock(element,
                    [&](QTextBlockFormat &format) { format.setProperty(property, points); });
    }
    return ok;
}

QString firstTab(const Element &element, MRVUnit::Unit units)
{
    const QList<QTextOption::Tab> tabs = element.blockFormat().tabPositions();
    return lengthText(tabs.isEmpty() ? 0.0 : tabs.constFirst().position, units);
}

bool takeFirstTab(Element *element, const QString &text, MRVUnit::Unit units)
{
    double points = 0.0;
    const bool ok = readLength(text, units, &points);
    if (points > 0.0) {
        changeBlock(element, [&](QTextBlockFormat &format) {
            format.setTabPositions({QTextOption::Tab(points, QTextOption::LeftTab)});
        });
    }
    return ok && points >= 0.0;
}

// Qt's paragraphs have no tab interval of their own; a script uses the first stop.
bool takeTabInterval(Element *element, const QString &text, MRVUnit::Unit units)
{
    double points = 0.0;
    if (!element->blockFormat().tabPositions().isEmpty()) {
        return readLength(text, units, &points);
    }
    return takeFirstTab(element, text, units);
}

// Line spacing: a multiple of the font's size, or a height that overrides it

bool hasFixedHeight(const QTextBlockFormat &format)
{
    return format.doubleProperty(MRVTextFormat::BlockBaseSpacing) == 0.0
        && format.doubleProperty(MRVTextFormat::BlockSpacing) != 0.0;
}

void setSpacing(Element *element, double spacing, double base)
{
    changeBlock(element, [&](QTextBlockFormat &format) {
        format.setProperty(MRVTextFormat::BlockSpacing, spacing);
        format.setProperty(MRVTextFormat::BlockBaseSpacing, base);
    });
}

double spacingOfMultiple(double multiple)
{
    return std::round(multiple * SpacingBase * 1000.0) / 1000.0;
}

QString spacing(const Element &element, MRVUnit::Unit)
{
    double multiple = 1.0;
    MRVTextFormat::spacingType(element.blockFormat(), &multiple);
    if (hasFixedHeight(element.blockFormat()) || !(multiple > 0.0 && multiple <= MaxMultiple)) {
        multiple = 1.0;
    }
    return shortest(multiple, spacingOfMultiple);
}

bool takeSpacing(Element *element, const QString &text, MRVUnit::Unit)
{
    double multiple = 0.0;
    if (!readNumber(text, &multiple) || multiple < 0.0 || multiple > MaxMultiple) {
        return false;
    }
    if (!hasFixedHeight(element->blockFormat())) {
        const double value = spacingOfMultiple(multiple);
        setSpacing(element, value == 0.0 ? SpacingBase : value, SpacingBase);
    }
    return true;
}

QString fixedLineHeight(const Element &element, MRVUnit::Unit units)
{
    const QTextBlockFormat format = element.blockFormat();
    return lengthText(
        hasFixedHeight(format) ? format.doubleProperty(MRVTextFormat::BlockSpacing) : 0.0, units);
}

bool takeFixedLineHeight(Element *element, const QString &text, MRVUnit::Unit units)
{
    double points = 0.0;
    const bool ok = readLength(text, units, &points);
    if (points != 0.0) {
        setSpacing(element, points, 0.0);
    }
    return ok;
}

// Words

QString alignment(const Element &element, MRVUnit::Unit)
{
    const int bits =
        int(element.blockFormat().alignment() & Qt::AlignHorizontal_Mask) & ~int(Qt::AlignAbsolute);
    return wordOf(AlignmentWords, bits & Qt::AlignHCenter ? int(Qt::AlignHCenter) : bits);
}

bool takeAlignment(Element *element, const QString &text, MRVUnit::Unit)
{
    int bits = 0;
    if (text == QLatin1String(NaturalWord)) {
        changeBlock(element, [](QTextBlockFormat &format) {
            format.clearProperty(QTextFormat::BlockAlignment);
        });
        return true;
    }
    const bool ok = valueOf(AlignmentWords, text, &bits);
    if (ok) {
        changeBlock(element,
                    [&](QTextBlockFormat &format) { format.setAlignment(Qt::Alignment(bits)); });
    }
    return ok;
}

bool takeDirection(Element *element, const QString &text, MRVUnit::Unit)
{
    int direction = 0;
    const bool natural = text == QLatin1String(NaturalWord);
    if (!natural && !valueOf(DirectionWords, text, &direction)) {
        return false;
    }
    changeBlock(element, [&](QTextBlockFormat &format) {
        if (natural) {
            format.clearProperty(QTextFormat::LayoutDirection);
        } else {
            format.setLayoutDirection(Qt::LayoutDirection(direction));
        }
    });
    return true;
}

QString underline(const Element &element, MRVUnit::Unit)
{
    if (element.charFormat().underlineStyle() == QTextCharFormat::NoUnderline) {
        return wordOf(UnderlineWords, NoLine);
    }
    return wordOf(UnderlineWords,
                  element.hasFlag(Element::DoubleUnderline) ? DoubleLine : SingleLine);
}

bool takeUnderline(Element *element, const QString &text, MRVUnit::Unit)
{
    int line = NoLine;
    if (!valueOf(UnderlineWords, text, &line)) {
        return false;
    }
    element->setFlag(Element::DoubleUnderline, line == DoubleLine);
    changeChar(element, [&](QTextCharFormat &format) {
        if (line == NoLine) {
            format.clearProperty(QTextFormat::TextUnderlineStyle);
        } else {
            format.setFontUnderline(true);
        }
    });
    return true;
}

QString tabBehavior(const Element &element, MRVUnit::Unit)
{
    return wordOf(TabWords, element.tabBehavior());
}

bool takeTabBehavior(Element *element, const QString &text, MRVUnit::Unit)
{
    int behavior = 0;
    const bool ok = valueOf(TabWords, text, &behavior);
    if (ok) {
        element->setTabBehavior(Element::TabBehavior(behavior));
    }
    return ok;
}

QString completeBehavior(const Element &element, MRVUnit::Unit)
{
    return element.completeBehavior() == Element::CompleteDefault
        ? QString()
        : wordOf(CompleteWords, element.completeBehavior());
}

bool takeCompleteBehavior(Element *element, const QString &text, MRVUnit::Unit)
{
    int behavior = 0;
    const bool ok = valueOf(CompleteWords, text, &behavior);
    if (ok) {
        element->setCompleteBehavior(Element::CompleteBehavior(behavior));
    }
    return ok;
}

// "Yes" and "No"

bool isYesOrNo(const QString &text)
{
    return text == QLatin1String(YesWord) || text == QLatin1String(NoWord);
}

template<Element::Flag flag>
QString yes(const Element &element, MRVUnit::Unit)
{
    return element.hasFlag(flag) ? QString(QLatin1String(YesWord)) : QString();
}

template<Element::Flag flag>
QString yesOrNo(const Element &element, MRVUnit::Unit)
{
    return QLatin1String(element.hasFlag(flag) ? YesWord : NoWord);
}

template<Element::Flag flag>
bool takeYes(Element *element, const QString &text, MRVUnit::Unit)
{
    element->setFlag(flag, text == QLatin1String(YesWord));
    return isYesOrNo(text);
}

QString bold(const Element &element, MRVUnit::Unit)
{
    // 0 is how older documents store a normal weight; unset reads as 0, too.
    return element.charFormat().intProperty(QTextFormat::FontWeight) > QFont::Normal
        ? QString(QLatin1String(YesWord))
        : QString();
}

bool takeBold(Element *element, const QString &text, MRVUnit::Unit)
{
    changeChar(element, [&](QTextCharFormat &format) {
        if (text == QLatin1String(YesWord)) {
            format.setFontWeight(QFont::Bold);
        } else {
            format.clearProperty(QTextFormat::FontWeight);
        }
    });
    return isYesOrNo(text);
}

QString italic(const Element &element, MRVUnit::Unit)
{
    return element.charFormat().fontItalic() ? QString(QLatin1String(YesWord)) : QString();
}

bool takeItalic(Element *element, const QString &text, MRVUnit::Unit)
{
    changeChar(element, [&](QTextCharFormat &format) {
        if (text == QLatin1String(YesWord)) {
            format.setFontItalic(true);
        } else {
            format.clearProperty(QTextFormat::FontItalic);
        }
    });
    return isYesOrNo(text);
}

// Texts

// Not null, since a null text is not written.
QString written(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

template<QString (Element::*get)() const>
QString text(const Element &element, MRVUnit::Unit)
{
    return written((element.*get)());
}

template<void (Element::*set)(const QString &)>
bool takeText(Element *element, const QString &value, MRVUnit::Unit)
{
    (element->*set)(value);
    return true;
}

template<Element::Action action>
QString nextElement(const Element &element, MRVUnit::Unit)
{
    return written(element.actionElement(action));
}

template<Element::Action action>
bool takeNextElement(Element *element, const QString &value, MRVUnit::Unit)
{
    element->setActionElement(action, value);
    return true;
}

QString tabText(const Element &element, MRVUnit::Unit)
{
    return written(element.actionText(Element::TabAfterTypingAction));
}

bool takeTabText(Element *element, const QString &value, MRVUnit::Unit)
{
    element->setActionText(Element::TabAfterTypingAction, value);
    return true;
}

QString textColor(const Element &element, MRVUnit::Unit)
{
    const QBrush brush = element.charFormat().foreground();
    return brush.style() == Qt::SolidPattern ? MRV::colorToFloatString(brush.color()) : QString();
}

bool takeTextColor(Element *element, const QString &value, MRVUnit::Unit)
{
    const QStringList parts = value.simplified().split(u' ');
    bool exact = parts.size() == 3;
    for (const QString &part : parts) {
        double component = 0.0;
        if (!readNumber(part, &component)) {
            return false;
        }
        exact = exact && component >= 0.0 && component <= 1.0;
    }
    const QColor color = MRV::floatStringToColor(value);
    if (color.isValid()) {
        changeChar(element, [&](QTextCharFormat &format) { format.setForeground(color); });
    }
    return exact;
}

constexpr ScriptFieldKind Text = ScriptFieldKind::Text;

// clang-format off
constexpr ScriptField Fields[] = {
    {nullptr, TitleTag,                 Text, text<&Element::title>,    takeText<&Element::setTitle>},
    {nullptr, ShortcutTag,              Text, text<&Element::shortcut>, takeText<&Element::setShortcut>},

    {CharacterFormatTag, FontTag,           ScriptFieldKind::Font, nullptr, nullptr},
    {CharacterFormatTag, UnderlineStyleTag, Text, underline, takeUnderline},
    {CharacterFormatTag, ByWordTag,         Text, nullptr,   takeYes<Element::UnderlineByWord>},
    {CharacterFormatTag, BoldTag,           Text, bold,      takeBold},
    {CharacterFormatTag, ItalicTag,         Text, italic,    takeItalic},
    {CharacterFormatTag, AllCapsTag,        Text, yes<Element::AllCaps>, takeYes<Element::AllCaps>},
    {CharacterFormatTag, StyleDelimiterTag, Text, text<&Element::styleDelimiter>, takeText<&Element::setStyleDelimiter>},
    {CharacterFormatTag, TextColorTag,      Text, textColor, takeTextColor},

    {ParagraphFormatTag, ParentheticalTag,   Text, yes<Element::Parenthetical>, takeYes<Element::Parenthetical>},
    {ParagraphFormatTag, KeepWithNextTag,    Text, yes<Element::KeepWithNext>,  takeYes<Element::KeepWithNext>},
    {ParagraphFormatTag, AlignmentTag,       Text, alignment, takeAlignment},
    {ParagraphFormatTag, SpacingTag,         Text, spacing,   takeSpacing},
    {ParagraphFormatTag, SpaceBeforeTag,     Text, length<QTextFormat::BlockTopMargin>,       takeLength<QTextFormat::BlockTopMargin>},
    {ParagraphFormatTag, SpaceAfterTag,      Text, length<QTextFormat::BlockBottomMargin>,    takeLength<QTextFormat::BlockBottomMargin>},
    {ParagraphFormatTag, TextIndentTag,      Text, length<QTextFormat::TextIndent>,           takeLength<QTextFormat::TextIndent>},
    {ParagraphFormatTag, LeftIndentTag,      Text, length<MRVTextFormat::BlockLeftIndent>,    takeLength<MRVTextFormat::BlockLeftIndent>},
    {ParagraphFormatTag, RightIndentTag,     Text, length<MRVTextFormat::BlockRightIndent>,   takeLength<MRVTextFormat::BlockRightIndent>},
    {ParagraphFormatTag, FirstTabTag,        Text, firstTab,  takeFirstTab},
    {ParagraphFormatTag, FixedLineHeightTag, Text, fixedLineHeight, takeFixedLineHeight},
    {ParagraphFormatTag, DefaultTabIntervalTag, Text, nullptr, takeTabInterval},
    {ParagraphFormatTag, WritingDirectionTag,   Text, nullptr, takeDirection},

    {nullptr, ReturnElementTag,         Text, nextElement<Element::ReturnAction>,         takeNextElement<Element::ReturnAction>},
    {nullptr, AllowTabsTag,             Text, yesOrNo<Element::AllowTabs>,                takeYes<Element::AllowTabs>},
    {nullptr, TabOnEmptyElementTag,     Text, nextElement<Element::TabOnEmptyAction>,     takeNextElement<Element::TabOnEmptyAction>},
    {nullptr, TabAfterTypingTag,        Text, tabBehavior,                                takeTabBehavior},
    {nullptr, TabAfterTypingElementTag, Text, nextElement<Element::TabAfterTypingAction>, takeNextElement<Element::TabAfterTypingAction>},
    {nullptr, TabAfterTypingTextTag,    Text, tabText,                                    takeTabText},

    {AutoCompleteListTag, CompletionListTag, ScriptFieldKind::Completions, nullptr, nullptr},

    {nullptr, AppendProjectListTag,     Text, yes<Element::AppendProjectList>, takeYes<Element::AppendProjectList>},
    {nullptr, CompleteBehaviorTag,      Text, completeBehavior,                takeCompleteBehavior},
    {nullptr, AddToProjectListTag,      Text, yes<Element::AddToProjectList>,  takeYes<Element::AddToProjectList>},
    {nullptr, PhraseStartDelimiterTag,  Text, text<&Element::phraseStartDelimiter>, takeText<&Element::setPhraseStartDelimiter>},
    {nullptr, PhraseEndDelimiterTag,    Text, text<&Element::phraseEndDelimiter>,   takeText<&Element::setPhraseEndDelimiter>},
};
// clang-format on

} // namespace

const ScriptField *ScriptFields::begin()
{
    return std::begin(Fields);
}

const ScriptField *ScriptFields::end()
{
    return std::end(Fields);
}

double scriptToPoints(MRVUnit::Unit units, double length)
{
    return std::round(MRVUnit::toPoint(units, length) * 20.0) / 20.0;
}

QString scriptFontFamily(const MRVScriptElement &element)
{
    const QTextCharFormat format = element.charFormat();
    // Imported formats may have a list instead.
    return format.hasProperty(QTextFormat::FontFamily)
        ? format.fontFamily()
        : format.fontFamilies().toStringList().value(0);
}

QString scriptFontSize(const MRVScriptElement &element)
{
    return QString::number(element.charFormat().fontPointSize(), 'g',
                           QLocale::FloatingPointShortest);
}

bool readScriptFont(MRVScriptElement *element, const QString &family, const QString &size)
{
    double points = 0.0;
    const bool ok = readNumber(size, &points) && points >= 0.0;
    changeChar(element, [&](QTextCharFormat &format) {
        if (!family.isEmpty()) {
            format.setFontFamily(localFamily(family));
        }
        if (ok && points > 0.0) {
            format.setFontPointSize(qMin(points, MaxFontSize));
        }
    });
    return ok && points <= MaxFontSize;
}
