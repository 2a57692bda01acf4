#include "scriptmode/mrvscriptelement.h"

#include "text/mrvtextcursor.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

namespace {

struct Run
{
    int start; // in the document
    QString text;
};

QVector<Run> runsOf(const QTextBlock &block)
{
    QVector<Run> runs;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        runs.append({it.fragment().position(), it.fragment().text()});
    }
    return runs;
}

bool isDoubleOrUnset(const QVariant &value)
{
    return !value.isValid() || value.userType() == QMetaType::Double;
}

// As QVariant compares two of them.
bool sameNumber(double a, double b)
{
    return a == b || qFuzzyCompare(a, b);
}

// A quick test without copying formats; false does not yet mean that the elements are equal.
bool lengthsDiffer(const QTextBlockFormat &a, const QTextBlockFormat &b)
{
    constexpr int Lengths[] = {MRVTextFormat::BlockLeftIndent, QTextFormat::BlockTopMargin,
                               MRVTextFormat::BlockRightIndent, QTextFormat::TextIndent,
                               QTextFormat::BlockBottomMargin};
    for (const int property : Lengths) {
        const QVariant valueA = a.property(property);
        const QVariant valueB = b.property(property);
        if (isDoubleOrUnset(valueA) && isDoubleOrUnset(valueB)
            && !sameNumber(valueA.toDouble(), valueB.toDouble())) {
            return true;
        }
    }
    return false;
}

bool bothCentred(const QTextBlockFormat &a, const QTextBlockFormat &b)
{
    return (a.alignment() & Qt::AlignHCenter) && (b.alignment() & Qt::AlignHCenter);
}

QTextBlockFormat withoutTabsAndSpacing(const QTextBlockFormat &format)
{
    QTextBlockFormat copy = format;
    copy.clearProperty(QTextFormat::TabPositions);
    copy.clearProperty(MRVTextFormat::BlockSpacing);
    copy.clearProperty(MRVTextFormat::BlockBaseSpacing);
    return copy;
}

bool lookTheSame(const QTextBlockFormat &a, const QTextBlockFormat &b, bool exactAlignment)
{
    if (!MRVTextFormat::equivalentSpacing(a, b)) {
        return false;
    }
    QTextBlockFormat restA = withoutTabsAndSpacing(a);
    QTextBlockFormat restB = withoutTabsAndSpacing(b);
    if (!exactAlignment && bothCentred(restA, restB)) {
        restA.clearProperty(QTextFormat::BlockAlignment);
        restB.clearProperty(QTextFormat::BlockAlignment);
    }
    return MRVTextFormat::equivalent(restA, restB) && a.tabPositions() == b.tabPositions();
}

// Qt sets one or two properties for an underline, depending on the function used.
bool lookTheSame(QTextCharFormat a, QTextCharFormat b)
{
    a.clearProperty(QTextFormat::FontUnderline);
    b.clearProperty(QTextFormat::FontUnderline);
    return MRVTextFormat::equivalent(a, b);
}

void setOrRemove(QHash<MRVScriptElement::Action, QString> *texts, MRVScriptElement::Action action,
                 const QString &text)
{
    if (text.isEmpty()) {
        texts->remove(action);
    } else {
        texts->insert(action, text);
    }
}

} // namespace

void MRVCompletionList::append(const MRVCompletion &completion)
{
    m_completions.append(completion);
    m_longestLength = qMax(m_longestLength, completion.text.size());
}

MRVCompletionList MRVCompletionList::filter(const QString &prefix) const
{
    MRVCompletionList offered;
    if (prefix.isEmpty()) {
        return offered;
    }
    // The first character rules out most of them. The first half of a surrogate pair never changes
    // with the case.
    const QChar first = prefix.at(0).toCaseFolded();
    for (const MRVCompletion &completion : m_completions) {
        const QString &text = completion.text;
        if (text.size() <= prefix.size() || text.at(0).toCaseFolded() != first) {
            continue;
        }
        if (text.startsWith(prefix, Qt::CaseInsensitive)) {
            offered.append(completion);
        }
    }
    return offered;
}

bool MRVCompletionList::newLineAfter(const QString &text) const
{
    for (const MRVCompletion &completion : m_completions) {
        if (completion.text.compare(text, Qt::CaseInsensitive) == 0) {
            return completion.newLineAfter;
        }
    }
    return false;
}

void MRVScriptElement::setActionElement(Action action, const QString &title)
{
    setOrRemove(&m_actionElements, action, title);
}

void MRVScriptElement::setActionText(Action action, const QString &text)
{
    setOrRemove(&m_actionTexts, action, text);
}

bool MRVScriptElement::match(const QTextBlock &block) const
{
    return equal(block.blockFormat(), m_blockFormat);
}

bool MRVScriptElement::equal(const QTextBlockFormat &a, const QTextBlockFormat &b)
{
    // A script has few formats and many paragraphs: nearly every answer is one of these two.
    if (a == b) {
        return true;
    }
    return !lengthsDiffer(a, b) && lookTheSame(a, b, false);
}

QTextBlockFormat MRVScriptElement::withMargins(const QTextBlockFormat &format)
{
    constexpr double PixelsPerPoint = 96.0 / 72;
    const auto indent = [&format](int property) {
        return format.doubleProperty(property) * PixelsPerPoint;
    };
    QTextBlockFormat shown = format;
    shown.setLeftMargin(indent(MRVTextFormat::BlockLeftIndent));
    shown.setRightMargin(indent(MRVTextFormat::BlockRightIndent));
    shown.setTopMargin(format.topMargin() * PixelsPerPoint);
    shown.setBottomMargin(format.bottomMargin() * PixelsPerPoint);
    shown.setTextIndent(format.textIndent() * PixelsPerPoint);
    return shown;
}

void MRVScriptElement::recapitalizeBlock(const QTextBlock &block) const
{
    if (!hasFlag(AllCaps) || !block.isValid()) {
        return;
    }
    const int delimiter = m_styleDelimiter.isEmpty() ? -1 : block.text().indexOf(m_styleDelimiter);
    const int end = block.position() + (delimiter < 0 ? block.length() - 1 : delimiter);
    QTextCursor cursor(block);
    bool editing = false;
    const QVector<Run> runs = runsOf(block);
    // From the last to the first, since upper case may be longer: positions before it stay valid.
    for (auto run = runs.crbegin(); run != runs.crend(); ++run) {
        const QString text = run->text.left(qMax(0, end - run->start));
        const QString upper = text.toUpper();
        if (upper == text) {
            continue;
        }
        if (!editing) {
            cursor.beginEditBlock();
        }
        editing = true;
        cursor.setPosition(run->start);
        cursor.setPosition(run->start + text.size(), QTextCursor::KeepAnchor);
        MRVTextCursor::replaceText(cursor, upper);
    }
    if (editing) {
        cursor.endEditBlock();
    }
}

MRVCompletionList MRVScriptElement::filteredCompletions(const QString &prefix) const
{
    return m_completions.filter(prefix);
}

bool MRVScriptElement::newLineAfter(const QString &text) const
{
    return m_completions.newLineAfter(text);
}

int MRVScriptElement::metaType()
{
    static const int type = qRegisterMetaType<MRVScriptElement>();
    return type;
}

int MRVScriptElement::listMetaType()
{
    static const int type = qRegisterMetaType<QList<MRVScriptElement>>();
    return type;
}

QVariant MRVScriptElement::toVariant(const MRVScriptElement &element)
{
    return QVariant::fromValue(element);
}

QVariant MRVScriptElement::toVariant(const QList<MRVScriptElement> &elements)
{
    return QVariant::fromValue(elements);
}

MRVScriptElement MRVScriptElement::toScriptElement(const QVariant &variant)
{
    return variant.userType() == metaType() ? variant.value<MRVScriptElement>()
                                            : MRVScriptElement();
}

QList<MRVScriptElement> MRVScriptElement::toScriptElementList(const QVariant &variant)
{
    return variant.userType() == listMetaType() ? variant.value<QList<MRVScriptElement>>()
                                                : QList<MRVScriptElement>();
}

bool MRVScriptElement::operator==(const MRVScriptElement &other) const
{
    return m_title == other.m_title && m_shortcut == other.m_shortcut && m_flags == other.m_flags
        && m_styleDelimiter == other.m_styleDelimiter && m_actionElements == other.m_actionElements
        && m_actionTexts == other.m_actionTexts && m_tabBehavior == other.m_tabBehavior
        && m_completeBehavior == other.m_completeBehavior
        && m_phraseStartDelimiter == other.m_phraseStartDelimiter
        && m_phraseEndDelimiter == other.m_phraseEndDelimiter
        && m_completions == other.m_completions && lookTheSame(m_charFormat, other.m_charFormat)
        && lookTheSame(m_blockFormat, other.m_blockFormat, true);
}
