#include "css/mrvcssselector_p.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

/// What comparing a text costs, in short texts.
int costOf(const QString &text)
{
    return 1 + text.size() / 32;
}

/// The value of an attribute; null without it.
const QString *attributeOf(const MRVCssElement &element, QLatin1String name)
{
    for (const auto &attribute : element.attributes) {
        if (attribute.first == name) {
            return &attribute.second;
        }
    }
    return nullptr;
}

bool hasWord(const QString &text, const QString &word, Qt::CaseSensitivity caseSensitivity)
{
    static constexpr QStringView blanks = u" \t\n\r\f";
    int start = 0;
    for (int end = 0; end <= text.size(); ++end) {
        if (end == text.size() || blanks.contains(text.at(end))) {
            if (end > start
                && text.midRef(start, end - start).compare(word, caseSensitivity) == 0) {
                return true;
            }
            start = end + 1;
        }
    }
    return false;
}

/// Whether @p text is @p start, or goes on after it with a hyphen: "en" of "en-GB".
bool isOrGoesOn(const QString &text, const QString &start, Qt::CaseSensitivity caseSensitivity)
{
    return text.startsWith(start, caseSensitivity)
        && (text.size() == start.size() || text.at(start.size()) == u'-');
}

/// Whether @p place is a * n + b for an n from 0.
bool isNth(qint64 place, qint64 a, qint64 b)
{
    return a == 0 ? place == b : (place - b) % a == 0 && (place - b) / a >= 0;
}

} // namespace

quint64 MRVCssMatcher::bitOf(const QString &text)
{
    // Not qHash(), which differs between processors: what it costs to match is counted.
    quint32 hash = quint32(text.size());
    for (int i = 0; i < qMin(text.size(), 16); ++i) {
        hash = hash * 31 + text.at(i).unicode();
    }
    return quint64(1) << ((hash * 0x9e3779b9U) >> 26);
}

quint64 MRVCssMatcher::pathOf(const MRVCssElement *element)
{
    QVarLengthArray<const MRVCssElement *, 64> unknown;
    for (; element && element->memo.path == 0; element = element->parent) {
        unknown.append(element);
    }
    quint64 path = element ? element->memo.path : 0;
    while (!unknown.isEmpty()) {
        element = unknown.last();
        unknown.removeLast();
        path |= bitOf(element->name);
        path |= element->id.isEmpty() ? 0 : bitOf(element->id);
        for (const QString &name : element->classes) {
            path |= bitOf(name);
        }
        element->memo.path = path;
    }
    return path;
}

bool MRVCssMatcher::matches(const MRVCssSelector &selector, const MRVCssElement &element)
{
    return matchFrom(selector.compounds.constData(), element) == Matched;
}

MRVCssMatcher::Result MRVCssMatcher::matchFrom(const MRVCssCompound *compound,
                                               const MRVCssElement &element)
{
    if (!matchesCompound(*compound, element)) {
        return isExhausted() ? NoOther : OtherSibling;
    }
    const char combinator = compound->combinator;
    if (combinator == 0) {
        return Matched;
    }
    if (combinator == '~') {
        return matchEarlier(compound, element);
    }
    if (combinator == '+') {
        return element.previous ? matchFrom(compound + 1, *element.previous) : OtherAncestor;
    }
    for (const MRVCssElement *outer = element.parent; outer; outer = outer->parent) {
        const Result result = matchFrom(compound + 1, *outer);
        if (result == Matched || result == NoOther) {
            return result;
        }
        if (combinator == '>') {
            return OtherAncestor;
        }
    }
    return NoOther;
}

/// Looks for an earlier sibling that matches the compounds after @p compound. The memo makes a
/// thousand siblings in a row cost a thousand steps, not half a million.
MRVCssMatcher::Result MRVCssMatcher::matchEarlier(const MRVCssCompound *compound,
                                                  const MRVCssElement &element)
{
    const quint64 bit = compound->memo >= 0 ? quint64(1) << compound->memo : 0;
    Result result = OtherAncestor;
    for (const MRVCssElement *earlier = element.previous; earlier; earlier = earlier->previous) {
        if (earlier->memo.asked & bit) {
            result = earlier->memo.found & bit ? Matched : OtherAncestor;
            break;
        }
        result = matchFrom(compound + 1, *earlier);
        if (result != OtherSibling) {
            break;
        }
        result = OtherAncestor;
    }
    if (element.previous) {
        element.previous->memo.asked |= bit;
        element.previous->memo.found |= result == Matched ? bit : 0;
    }
    return result;
}

bool MRVCssMatcher::matchesNames(const MRVCssCompound &compound, const QString &name,
                                 const QString &id, const QStringList &classes)
{
    return (compound.name.isEmpty() || compound.name == name)
        && (compound.id.isEmpty() || compound.id == id)
        && std::all_of(compound.classes.cbegin(), compound.classes.cend(),
                       [&](const QString &one) { return classes.contains(one); });
}

bool MRVCssMatcher::matchesCompound(const MRVCssCompound &compound, const MRVCssElement &element)
{
    m_steps += 1 + qint64(compound.classes.size()) * element.classes.size();
    m_steps += compound.id.isEmpty() ? 0 : costOf(compound.id);
    return !isExhausted() && matchesNames(compound, element.name, element.id, element.classes)
        && std::all_of(compound.tests.cbegin(), compound.tests.cend(),
                       [&](const MRVCssTest &test) { return matchesTest(test, element); });
}

bool MRVCssMatcher::matchesTest(const MRVCssTest &test, const MRVCssElement &element)
{
    ++m_steps;
    switch (test.kind) {
    case MRVCssTest::Attribute:
        return matchesAttribute(test, element);
    case MRVCssTest::NthChild:
        return isNth(element.index, test.a, test.b);
    case MRVCssTest::NthOfType:
        return isNth(element.typeIndex, test.a, test.b);
    case MRVCssTest::LastChild:
        return element.isLast && (test.b == 0 || element.index == test.b);
    case MRVCssTest::Root:
        return !element.parent;
    case MRVCssTest::Link:
        return (element.name == QLatin1String("a") || element.name == QLatin1String("area"))
            && attributeOf(element, QLatin1String("href"));
    case MRVCssTest::Lang:
        return matchesLanguage(test.value, element);
    case MRVCssTest::Any:
        return matchesAny(test, element);
    case MRVCssTest::None:
        return !matchesAny(test, element);
    case MRVCssTest::Never:
        return false;
    }
    return false;
}

bool MRVCssMatcher::matchesAny(const MRVCssTest &test, const MRVCssElement &element)
{
    return std::any_of(
        test.compounds.cbegin(), test.compounds.cend(),
        [&](const MRVCssCompound &compound) { return matchesCompound(compound, element); });
}

bool MRVCssMatcher::matchesAttribute(const MRVCssTest &test, const MRVCssElement &element)
{
    for (const auto &attribute : element.attributes) {
        ++m_steps;
        if (attribute.first != test.name) {
            continue;
        }
        const QString &value = attribute.second;
        m_steps += costOf(value) * qint64(test.op == '*' ? costOf(test.value) : 1);
        switch (test.op) {
        case '=':
            return value.compare(test.value, test.caseSensitivity) == 0;
        case '~':
            return hasWord(value, test.value, test.caseSensitivity);
        case '|':
            return isOrGoesOn(value, test.value, test.caseSensitivity);
        case '^':
            return !test.value.isEmpty() && value.startsWith(test.value, test.caseSensitivity);
        case '$':
            return !test.value.isEmpty() && value.endsWith(test.value, test.caseSensitivity);
        case '*':
            return !test.value.isEmpty() && value.contains(test.value, test.caseSensitivity);
        default:
            return true;
        }
    }
    return false;
}

bool MRVCssMatcher::matchesLanguage(const QString &language, const MRVCssElement &element)
{
    for (const MRVCssElement *outer = &element; outer; outer = outer->parent) {
        m_steps += 1 + outer->attributes.size();
        const QString *own = attributeOf(*outer, QLatin1String("lang"));
        if (!own) {
            own = attributeOf(*outer, QLatin1String("xml:lang"));
        }
        if (own) {
            return isOrGoesOn(*own, language, Qt::CaseInsensitive);
        }
    }
    return false;
}
