#include "scriptmode/mrvscriptelementtext.h"

#include "scriptmode/mrvscriptmode.h"
#include "textformat/mrvtextformat.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <iterator>
#include <utility>

namespace {

// What Return and Tab go to.
struct ActionName
{
    MRVScriptElement::Action action;
    const char *shown;
    const char *key;
};
constexpr ActionName actionNames[] = {
    {MRVScriptElement::ReturnAction, QT_TRANSLATE_NOOP("QObject", "Return: %1"), "return"},
    {MRVScriptElement::TabOnEmptyAction, QT_TRANSLATE_NOOP("QObject", "Tab in an empty line: %1"),
     "tabOnEmpty"},
    {MRVScriptElement::TabAfterTypingAction, QT_TRANSLATE_NOOP("QObject", "Tab: %1"),
     "tabAfterTyping"}};

struct LengthName
{
    int property;
    const char *shown;
    const char *key;
};
constexpr LengthName lengthNames[] = {
    {MRVTextFormat::BlockLeftIndent, QT_TRANSLATE_NOOP("QObject", "left indent %1"), "left"},
    {MRVTextFormat::BlockRightIndent, QT_TRANSLATE_NOOP("QObject", "right indent %1"), "right"},
    {QTextFormat::TextIndent, QT_TRANSLATE_NOOP("QObject", "first line %1"), "firstLine"},
    {QTextFormat::BlockTopMargin, QT_TRANSLATE_NOOP("QObject", "above %1"), "above"},
    {QTextFormat::BlockBottomMargin, QT_TRANSLATE_NOOP("QObject", "below %1"), "below"}};

struct FlagName
{
    MRVScriptElement::Flag flag;
    const char *shown;
    const char *key;
};
constexpr FlagName textFlags[] = {
    {MRVScriptElement::DoubleUnderline, QT_TRANSLATE_NOOP("QObject", "underlined twice"),
     "doubleUnderline"},
    {MRVScriptElement::UnderlineByWord, QT_TRANSLATE_NOOP("QObject", "blanks not underlined"),
     "underlineByWord"},
    {MRVScriptElement::AllCaps, QT_TRANSLATE_NOOP("QObject", "capitals"), "capitals"},
    {MRVScriptElement::Parenthetical, QT_TRANSLATE_NOOP("QObject", "in parentheses"),
     "parentheses"}};
constexpr FlagName behaviorFlags[] = {
    {MRVScriptElement::KeepWithNext, QT_TRANSLATE_NOOP("QObject", "stays with the next"),
     "keepWithNext"},
    {MRVScriptElement::AllowTabs, QT_TRANSLATE_NOOP("QObject", "allows tabs"), "allowTabs"},
    {MRVScriptElement::AppendProjectList,
     QT_TRANSLATE_NOOP("QObject", "offers the project’s phrases"), "offersPhrases"},
    {MRVScriptElement::AddToProjectList, QT_TRANSLATE_NOOP("QObject", "collects phrases"),
     "collectsPhrases"}};

struct DelimiterName
{
    QString (MRVScriptElement::*text)() const;
    const char *shown;
    const char *key;
};
constexpr DelimiterName delimiterNames[] = {
    {&MRVScriptElement::styleDelimiter, QT_TRANSLATE_NOOP("QObject", "capitals up to %1"),
     "styleDelimiter"},
    {&MRVScriptElement::phraseStartDelimiter,
     QT_TRANSLATE_NOOP("QObject", "phrases begin after %1"), "phraseStart"},
    {&MRVScriptElement::phraseEndDelimiter, QT_TRANSLATE_NOOP("QObject", "phrases end before %1"),
     "phraseEnd"}};

// The first that an element has counts; the last stands for all others.
struct AlignmentName
{
    int alignment;
    const char *shown;
    const char *key;
};
constexpr AlignmentName alignmentNames[] = {
    {Qt::AlignHCenter, QT_TRANSLATE_NOOP("QObject", "aligned to the centre"), "to the centre"},
    {Qt::AlignRight, QT_TRANSLATE_NOOP("QObject", "aligned right"), "right"},
    {Qt::AlignJustify, QT_TRANSLATE_NOOP("QObject", "aligned to both sides"), "to both sides"},
    {~0, QT_TRANSLATE_NOOP("QObject", "aligned left"), "left"}};

// What follows a phrase once it is accepted.
struct CompletionName
{
    MRVScriptElement::CompleteBehavior behavior;
    const char *shown;
    const char *key;
};
constexpr CompletionName completionNames[] = {
    {MRVScriptElement::CompleteToNextLine,
     QT_TRANSLATE_NOOP("QObject", "a phrase is followed by a next line"), "next line"},
    {MRVScriptElement::CompleteInsertsTab,
     QT_TRANSLATE_NOOP("QObject", "a phrase is followed by a tab"), "tab"}};

QString translated(const char *text)
{
    return QCoreApplication::translate("QObject", text);
}

bool insertsText(const MRVScriptElement &element, MRVScriptElement::Action action)
{
    return action == MRVScriptElement::TabAfterTypingAction
        && element.tabBehavior() == MRVScriptElement::TabInsertsText;
}

const AlignmentName &alignmentOf(const MRVScriptElement &element)
{
    const AlignmentName *name = alignmentNames;
    while (!(int(element.blockFormat().alignment()) & name->alignment)
           && name != std::end(alignmentNames) - 1) {
        ++name;
    }
    return *name;
}

// Null where nothing follows.
const CompletionName *completionOf(const MRVScriptElement &element)
{
    for (const CompletionName &name : completionNames) {
        if (name.behavior == element.completeBehavior()) {
            return &name;
        }
    }
    return nullptr;
}

bool hasFixedHeight(const QTextBlockFormat &format)
{
    return format.doubleProperty(MRVTextFormat::BlockBaseSpacing) == 0.0
        && format.doubleProperty(MRVTextFormat::BlockSpacing) != 0.0;
}

double lineSpacing(const QTextBlockFormat &format)
{
    double multiple = 1.0;
    MRVTextFormat::spacingType(format, &multiple);
    return multiple > 0.0 ? multiple : 1.0;
}

// With what would not be seen written as a program would.
QString quoted(QString text)
{
    text.replace(u'\t', QLatin1String("\\t")).replace(u'\n', QLatin1String("\\n"));
    return QStringLiteral("\u201c%1\u201d").arg(text);
}

QStringList flagWords(const MRVScriptElement &element, const FlagName *begin, const FlagName *end)
{
    QStringList words;
    for (const FlagName *name = begin; name != end; ++name) {
        if (element.hasFlag(name->flag)) {
            words.append(translated(name->shown));
        }
    }
    return words;
}

QStringList fontWords(const MRVScriptElement &element)
{
    const QTextCharFormat format = element.charFormat();
    QStringList words;
    if (!format.fontFamily().isEmpty()) {
        words.append(format.fontFamily());
    }
    if (format.fontPointSize() > 0.0) {
        words.append(MRVUnit::toText(MRVUnit::Point, format.fontPointSize()));
    }
    const std::pair<bool, const char *> styles[] = {
        {format.fontWeight() > QFont::Normal, QT_TRANSLATE_NOOP("QObject", "bold")},
        {format.fontItalic(), QT_TRANSLATE_NOOP("QObject", "italic")},
        {format.fontUnderline() && !element.hasFlag(MRVScriptElement::DoubleUnderline),
         QT_TRANSLATE_NOOP("QObject", "underlined")}};
    for (const auto &style : styles) {
        if (style.first) {
            words.append(translated(style.second));
        }
    }
    if (format.foreground().style() == Qt::SolidPattern) {
        words.append(format.foreground().color().name());
    }
    return words + flagWords(element, std::begin(textFlags), std::end(textFlags));
}

// In as few digits as tell it from the next twentieth of a point.
QString lengthText(const MRVScriptMode &mode, double points)
{
    const double exact = mode.fromPoints(points);
    double shown = exact;
    for (int decimals = 6; decimals >= 0; --decimals) {
        const double shorter = QString::number(exact, 'f', decimals).toDouble();
        if (mode.toPoints(shorter) == mode.toPoints(exact)) {
            shown = shorter;
        }
    }
    return MRVUnit::toText(mode.units(), shown);
}

QStringList layoutWords(const MRVScriptElement &element, const MRVScriptMode &mode)
{
    const QTextBlockFormat format = element.blockFormat();
    QStringList words{translated(alignmentOf(element).shown)};
    for (const LengthName &name : lengthNames) {
        const double points = format.doubleProperty(name.property);
        if (points != 0.0) {
            words.append(translated(name.shown).arg(lengthText(mode, points)));
        }
    }
    if (hasFixedHeight(format)) {
        const double points = format.doubleProperty(MRVTextFormat::BlockSpacing);
        words.append(translated(points < 0.0 ? QT_TRANSLATE_NOOP("QObject", "lines exactly %1")
                                             : QT_TRANSLATE_NOOP("QObject", "lines at least %1"))
                         .arg(lengthText(mode, qAbs(points))));
    } else if (lineSpacing(format) != 1.0) {
        words.append(
            translated(QT_TRANSLATE_NOOP("QObject", "line spacing %1")).arg(lineSpacing(format)));
    }
    const QList<QTextOption::Tab> tabs = format.tabPositions();
    for (const QTextOption::Tab &tab : tabs) {
        words.append(translated(QT_TRANSLATE_NOOP("QObject", "tab at %1"))
                         .arg(lengthText(mode, tab.position)));
    }
    return words;
}

QStringList behaviorWords(const MRVScriptElement &element)
{
    QStringList words = flagWords(element, std::begin(behaviorFlags), std::end(behaviorFlags));
    if (const CompletionName *completion = completionOf(element)) {
        words.append(translated(completion->shown));
    }
    for (const DelimiterName &name : delimiterNames) {
        const QString text = (element.*name.text)();
        if (!text.isEmpty()) {
            words.append(translated(name.shown).arg(quoted(text)));
        }
    }
    return words;
}

QStringList actionLines(const MRVScriptElement &element)
{
    QStringList lines;
    for (const ActionName &name : actionNames) {
        const QString text = insertsText(element, name.action)
            ? translated(QT_TRANSLATE_NOOP("QObject", "inserts %1"))
                  .arg(quoted(element.actionText(name.action)))
            : element.actionElement(name.action);
        if (!text.isEmpty()) {
            lines.append(translated(name.shown).arg(text));
        }
    }
    return lines;
}

QJsonArray tabPositions(const QTextBlockFormat &format)
{
    QJsonArray positions;
    const QList<QTextOption::Tab> tabs = format.tabPositions();
    for (const QTextOption::Tab &tab : tabs) {
        positions.append(tab.position);
    }
    return positions;
}

QJsonArray completionTexts(const MRVScriptElement &element)
{
    QJsonArray texts;
    const QList<MRVCompletion> completions = element.completions().completions();
    for (const MRVCompletion &completion : completions) {
        texts.append(completion.text);
    }
    return texts;
}

QJsonObject fontObject(const QTextCharFormat &font)
{
    const QBrush brush = font.foreground();
    return {{QStringLiteral("font"), font.fontFamily()},
            {QStringLiteral("size"), font.fontPointSize()},
            {QStringLiteral("bold"), font.fontWeight() > QFont::Normal},
            {QStringLiteral("italic"), font.fontItalic()},
            {QStringLiteral("underline"), font.fontUnderline()},
            {QStringLiteral("color"),
             brush.style() == Qt::SolidPattern ? brush.color().name() : QString()}};
}

// What the tables name.
void insertNamed(const MRVScriptElement &element, QJsonObject *object)
{
    for (const FlagName &name : textFlags) {
        object->insert(QLatin1String(name.key), element.hasFlag(name.flag));
    }
    for (const FlagName &name : behaviorFlags) {
        object->insert(QLatin1String(name.key), element.hasFlag(name.flag));
    }
    for (const LengthName &name : lengthNames) {
        object->insert(QLatin1String(name.key),
                       element.blockFormat().doubleProperty(name.property));
    }
    for (const DelimiterName &name : delimiterNames) {
        object->insert(QLatin1String(name.key), (element.*name.text)());
    }
    for (const ActionName &name : actionNames) {
        object->insert(QLatin1String(name.key),
                       insertsText(element, name.action) ? QString()
                                                         : element.actionElement(name.action));
    }
}

} // namespace

QStringList MRVScriptElementText::description(const MRVScriptElement &element,
                                              const MRVScriptMode &mode)
{
    QStringList lines;
    for (const QStringList &words :
         {fontWords(element), layoutWords(element, mode), behaviorWords(element)}) {
        if (!words.isEmpty()) {
            lines.append(words.join(QLatin1String(", ")));
        }
    }
    lines += actionLines(element);
    QStringList offered;
    const QList<MRVCompletion> completions = element.completions().completions();
    for (const MRVCompletion &completion : completions) {
        offered.append(completion.text.simplified());
    }
    if (!offered.isEmpty()) {
        lines.append(translated(QT_TRANSLATE_NOOP("QObject", "offers %1"))
                         .arg(offered.join(QLatin1String(", "))));
    }
    return lines;
}

QJsonObject MRVScriptElementText::toJson(const MRVScriptElement &element)
{
    const auto tab = MRVScriptElement::TabAfterTypingAction;
    const QTextBlockFormat format = element.blockFormat();
    const bool isFixed = hasFixedHeight(format);
    const CompletionName *completion = completionOf(element);
    QJsonObject object = fontObject(element.charFormat());
    object.insert(QStringLiteral("title"), element.title());
    object.insert(QStringLiteral("shortcut"), element.shortcut());
    object.insert(QStringLiteral("alignment"), QLatin1String(alignmentOf(element).key));
    object.insert(QStringLiteral("lineSpacing"), isFixed ? 1.0 : lineSpacing(format));
    object.insert(QStringLiteral("lineHeight"),
                  isFixed ? format.doubleProperty(MRVTextFormat::BlockSpacing) : 0.0);
    object.insert(QStringLiteral("afterPhrase"), QLatin1String(completion ? completion->key : ""));
    object.insert(QStringLiteral("tabInserts"),
                  insertsText(element, tab) ? element.actionText(tab) : QString());
    object.insert(QStringLiteral("tabs"), tabPositions(format));
    object.insert(QStringLiteral("completions"), completionTexts(element));
    insertNamed(element, &object);
    return object;
}
