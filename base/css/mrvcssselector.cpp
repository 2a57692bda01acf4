#include "css/mrvcssselector_p.h"

#include "core/mrvinputlimits.h"
#include "css/mrvcssvalue.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>

namespace {

constexpr quint32 IdWeight = 1 << 20;
constexpr quint32 ClassWeight = 1 << 10;
constexpr quint32 NameWeight = 1;

struct PseudoClass
{
    enum Form : quint8 {
        Word,
        Place, // (an+b)
        Compounds, // (a list of compound selectors)
        Language, // (a language)
        Element, // one that CSS 2 wrote with a single colon
        Missing, // valid, but what it asks for is not known here
    };

    const char *name;
    Form form;
    MRVCssTest::Kind kind = MRVCssTest::Never;
    int b = 0;
    quint32 weight = ClassWeight; // 0 where the arguments have it
};

// clang-format off
constexpr PseudoClass pseudoClasses[] = {
    {"first-child",       PseudoClass::Word, MRVCssTest::NthChild, 1},
    {"last-child",        PseudoClass::Word, MRVCssTest::LastChild},
    {"only-child",        PseudoClass::Word, MRVCssTest::LastChild, 1},
    {"first-of-type",     PseudoClass::Word, MRVCssTest::NthOfType, 1},
    {"root",              PseudoClass::Word, MRVCssTest::Root},
    {"link",              PseudoClass::Word, MRVCssTest::Link},
    {"any-link",          PseudoClass::Word, MRVCssTest::Link},
    {"nth-child",         PseudoClass::Place, MRVCssTest::NthChild},
    {"nth-of-type",       PseudoClass::Place, MRVCssTest::NthOfType},
    {"not",               PseudoClass::Compounds, MRVCssTest::None, 0, 0},
    {"is",                PseudoClass::Compounds, MRVCssTest::Any, 0, 0},
    {"where",             PseudoClass::Compounds, MRVCssTest::Any, 0, 0},
    {"lang",              PseudoClass::Language, MRVCssTest::Lang},
    {"hover",             PseudoClass::Word},
    {"active",            PseudoClass::Word},
    {"focus",             PseudoClass::Word},
    {"focus-visible",     PseudoClass::Word},
    {"focus-within",      PseudoClass::Word},
    {"visited",           PseudoClass::Word},
    {"target",            PseudoClass::Word},
    {"last-of-type",      PseudoClass::Missing},
    {"only-of-type",      PseudoClass::Missing},
    {"nth-last-child",    PseudoClass::Missing},
    {"nth-last-of-type",  PseudoClass::Missing},
    {"empty",             PseudoClass::Missing},
    {"has",               PseudoClass::Missing},
    {"dir",               PseudoClass::Missing},
    {"scope",             PseudoClass::Missing},
    {"enabled",           PseudoClass::Missing},
    {"disabled",          PseudoClass::Missing},
    {"checked",           PseudoClass::Missing},
    {"default",           PseudoClass::Missing},
    {"indeterminate",     PseudoClass::Missing},
    {"valid",             PseudoClass::Missing},
    {"invalid",           PseudoClass::Missing},
    {"required",          PseudoClass::Missing},
    {"optional",          PseudoClass::Missing},
    {"read-only",         PseudoClass::Missing},
    {"read-write",        PseudoClass::Missing},
    {"placeholder-shown", PseudoClass::Missing},
    {"before",            PseudoClass::Element},
    {"after",             PseudoClass::Element},
    {"first-line",        PseudoClass::Element},
    {"first-letter",      PseudoClass::Element},
};

constexpr const char *pseudoElements[] = {
    "before", "after", "first-line", "first-letter", "marker", "placeholder", "selection",
    "backdrop", "part", "slotted", "file-selector-button",
};
// clang-format on

/// The sum of two specificities, in which no number of classes weighs as much as an id.
quint32 sum(quint32 one, quint32 other)
{
    quint32 all = 0;
    for (const int shift : {0, 10, 20}) {
        const quint32 mask = 1023;
        all |= qMin(mask, (one >> shift & mask) + (other >> shift & mask)) << shift;
    }
    return all;
}

/// Reads "odd", "even" or "an+b".
bool readPlace(const QString &text, MRVCssTest &test)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:([+-]?\\d{0,9})n(?:\\s*([+-])\\s*(\\d{1,9}))?|([+-]?\\d{1,9}))$"));
    const QString place = text == QLatin1String("odd") ? QStringLiteral("2n+1")
        : text == QLatin1String("even")                ? QStringLiteral("2n")
                                                       : text;
    const QRegularExpressionMatch match = form.match(place);
    if (!match.captured(4).isEmpty()) {
        test.b = match.captured(4).toInt();
    } else {
        const QString a = match.captured(1);
        test.a = a.isEmpty() || a == QLatin1String("+") ? 1
            : a == QLatin1String("-")                   ? -1
                                                        : a.toInt();
        test.b = (match.captured(2) + match.captured(3)).toInt();
    }
    return match.hasMatch();
}

/// The bits that the ancestors of an element must have for a selector to match.
quint64 ancestorBits(const QVector<MRVCssCompound> &compounds)
{
    quint64 bits = 0;
    for (int i = 1; i < compounds.size(); ++i) {
        const MRVCssCompound &compound = compounds.at(i);
        const char reached = compounds.at(i - 1).combinator;
        if (reached != ' ' && reached != '>') {
            continue;
        }
        for (const QString &name : QStringList{compound.name, compound.id} + compound.classes) {
            bits |= name.isEmpty() ? 0 : MRVCssMatcher::bitOf(name);
        }
    }
    return bits;
}

class SelectorReader
{
public:
    explicit SelectorReader(const QVector<MRVCssToken> &tokens)
        : m_tokens(tokens)
    {
    }

    bool readList(QVector<MRVCssSelector> &selectors);

private:
    const MRVCssToken &token(int ahead = 0) const
    {
        static const MRVCssToken end;
        return m_at + ahead < m_tokens.size() ? m_tokens.at(m_at + ahead) : end;
    }
    bool isAtEnd() const { return m_at >= m_tokens.size(); }
    bool skipSpace();
    bool take(char delim);
    /// Goes past the bracket that closes the function here.
    QString takeArguments();
    bool readSelector(MRVCssSelector &selector);
    bool readCompound(MRVCssCompound &compound);
    bool readName(MRVCssCompound &compound);
    bool readAttribute(MRVCssTest &test);
    bool readPseudo(MRVCssCompound &compound);
    bool readPseudoElement();
    bool readPseudoClass(const PseudoClass &row, MRVCssCompound &compound);
    bool readCompounds(const PseudoClass &row, MRVCssTest &test);

    const QVector<MRVCssToken> &m_tokens;
    int m_at = 0;
    int m_depth = 0;
    quint32 m_weight = 0;
    bool m_canMatch = true;
    bool m_hasElement = false; // a pseudo element, which only pseudo classes may follow
};

bool SelectorReader::skipSpace()
{
    const int start = m_at;
    while (token().type == MRVCssToken::Space) {
        ++m_at;
    }
    return m_at > start;
}

bool SelectorReader::take(char delim)
{
    if (!token().is(delim)) {
        return false;
    }
    ++m_at;
    return true;
}

QString SelectorReader::takeArguments()
{
    const int start = m_at + 1;
    int depth = 0;
    for (; !isAtEnd(); ++m_at) {
        const bool opens =
            token().type == MRVCssToken::Function || token().is('(') || token().is('[');
        depth += opens ? 1 : token().is(')') || token().is(']') ? -1 : 0;
        if (depth == 0) {
            break;
        }
    }
    return mrvCssSource(m_tokens.constData() + start, m_tokens.constData() + m_at++);
}

bool SelectorReader::readList(QVector<MRVCssSelector> &selectors)
{
    do {
        MRVCssSelector selector;
        skipSpace();
        if (!readSelector(selector)) {
            return false;
        }
        if (m_canMatch) {
            selectors.append(selector);
        }
    } while (take(','));
    return isAtEnd();
}

bool SelectorReader::readSelector(MRVCssSelector &selector)
{
    m_weight = 0;
    m_canMatch = true;
    m_hasElement = false;
    char combinator = 0;
    do {
        MRVCssCompound compound;
        if (m_hasElement || !readCompound(compound)) {
            return false;
        }
        compound.combinator = combinator;
        if (selector.compounds.size() < MRVInputLimits::CssCompounds) {
            selector.compounds.append(compound);
        } else {
            m_canMatch = false;
        }
        combinator = skipSpace() ? ' ' : 0;
        for (const char sign : {'>', '+', '~'}) {
            if (take(sign)) {
                combinator = sign;
                skipSpace();
            }
        }
    } while (combinator != 0 && !isAtEnd() && !token().is(','));
    if (combinator != 0 && combinator != ' ') {
        return false;
    }
    std::reverse(selector.compounds.begin(), selector.compounds.end());
    selector.specificity = m_weight;
    selector.ancestors = ancestorBits(selector.compounds);
    return true;
}

bool SelectorReader::readCompound(MRVCssCompound &compound)
{
    const int start = m_at;
    if (!readName(compound)) {
        return false;
    }
    for (;;) {
        if (m_hasElement && !token().is(':')) {
            return token().type != MRVCssToken::Hash && !token().is('.') && !token().is('[');
        }
        if (token().type == MRVCssToken::Hash) {
            if (MRVCssTokenizer(token().raw.mid(1)).next().type != MRVCssToken::Ident) {
                return false;
            }
            m_canMatch = m_canMatch && (compound.id.isEmpty() || compound.id == token().text);
            compound.id = token().text;
            m_weight = sum(m_weight, IdWeight);
            ++m_at;
        } else if (take('.')) {
            if (token().type != MRVCssToken::Ident) {
                return false;
            }
            compound.classes.append(token().text);
            m_weight = sum(m_weight, ClassWeight);
            ++m_at;
        } else if (take('[')) {
            MRVCssTest test;
            if (!readAttribute(test)) {
                return false;
            }
            compound.tests.append(test);
            m_weight = sum(m_weight, ClassWeight);
        } else if (take(':')) {
            if (!readPseudo(compound)) {
                return false;
            }
        } else {
            return m_at > start;
        }
    }
}

/// Reads a name or "*", of which a namespace before it is dropped; nothing where there is neither.
bool SelectorReader::readName(MRVCssCompound &compound)
{
    const auto isName = [](const MRVCssToken &one) {
        return one.type == MRVCssToken::Ident || one.is('*');
    };
    if (isName(token()) && token(1).is('|')) {
        ++m_at;
    }
    if (take('|') && !isName(token())) {
        return false;
    }
    if (token().type == MRVCssToken::Ident) {
        compound.name = token().text.toLower();
        m_weight = sum(m_weight, NameWeight);
    }
    m_at += isName(token()) ? 1 : 0;
    return true;
}

bool SelectorReader::readAttribute(MRVCssTest &test)
{
    test.kind = MRVCssTest::Attribute;
    skipSpace();
    if (token(1).is('|') && token(2).type == MRVCssToken::Ident) {
        test.name = token().text.isEmpty() ? QString() : token().text + u':';
        m_at += 2;
    } else {
        take('|');
    }
    if (token().type != MRVCssToken::Ident) {
        return false;
    }
    test.name = (test.name + token().text).toLower();
    ++m_at;
    skipSpace();
    if (take(']')) {
        return true;
    }
    test.op = token().type == MRVCssToken::Delim ? token().raw.front().toLatin1() : ' ';
    m_at += test.op == '=' ? 0 : 1;
    if (!std::strchr("=~|^$*", test.op) || !take('=')) {
        return false;
    }
    skipSpace();
    if (token().type != MRVCssToken::Ident && token().type != MRVCssToken::String) {
        return false;
    }
    test.value = token().text;
    ++m_at;
    skipSpace();
    if (token().isWord(QLatin1String("i")) || token().isWord(QLatin1String("s"))) {
        const bool ignoresCase = token().isWord(QLatin1String("i"));
        test.caseSensitivity = ignoresCase ? Qt::CaseInsensitive : Qt::CaseSensitive;
        ++m_at;
        skipSpace();
    }
    return take(']');
}

bool SelectorReader::readPseudo(MRVCssCompound &compound)
{
    if (take(':')) {
        return readPseudoElement();
    }
    for (const PseudoClass &row : pseudoClasses) {
        if (token().text.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return readPseudoClass(row, compound);
        }
    }
    return false;
}

bool SelectorReader::readPseudoElement()
{
    const QString name = token().text.toLower();
    const bool isKnown = name.startsWith(QLatin1String("-webkit-")) // as all browsers have it
        || std::any_of(std::begin(pseudoElements), std::end(pseudoElements),
                       [&](const char *one) { return name == QLatin1String(one); });
    if (token().type == MRVCssToken::Function) {
        takeArguments();
    } else {
        ++m_at;
    }
    m_canMatch = false;
    m_hasElement = true;
    return isKnown;
}

bool SelectorReader::readPseudoClass(const PseudoClass &row, MRVCssCompound &compound)
{
    const bool isFunction = token().type == MRVCssToken::Function;
    if (row.form == PseudoClass::Element) {
        return !isFunction && readPseudoElement();
    }
    if (m_hasElement && (row.form != PseudoClass::Word || row.kind != MRVCssTest::Never)) {
        return false;
    }
    const bool needsFunction = row.form != PseudoClass::Word;
    if (row.form != PseudoClass::Missing && isFunction != needsFunction) {
        return false;
    }
    MRVCssTest test;
    test.kind = row.kind;
    test.b = row.b;
    m_weight = sum(m_weight, row.weight);
    if (row.form == PseudoClass::Compounds) {
        ++m_at;
        if (!readCompounds(row, test)) {
            return false;
        }
    } else if (isFunction) {
        const QString arguments = takeArguments();
        if (row.form == PseudoClass::Language) {
            test.value = mrvCssText(arguments);
            m_canMatch = m_canMatch && !test.value.isEmpty();
        } else if (row.form == PseudoClass::Place && !readPlace(arguments.toLower(), test)) {
            return false;
        }
    } else {
        ++m_at;
    }
    m_canMatch = m_canMatch && row.form != PseudoClass::Missing;
    compound.tests.append(test);
    return true;
}

/// Reads the arguments of :not() and its kin. A combinator in them is a fault, as in Level 3.
bool SelectorReader::readCompounds(const PseudoClass &row, MRVCssTest &test)
{
    const quint32 outer = m_weight;
    quint32 most = 0;
    if (++m_depth > MRVInputLimits::CssNesting) {
        return false;
    }
    do {
        MRVCssCompound compound;
        m_weight = 0;
        skipSpace();
        if (!readCompound(compound) || m_hasElement) {
            return false;
        }
        most = qMax(most, m_weight);
        test.compounds.push_back(compound);
        skipSpace();
    } while (take(','));
    --m_depth;
    m_weight = sum(outer, qstrcmp(row.name, "where") == 0 ? 0 : most);
    return take(')');
}

} // namespace

bool mrvReadCssSelectors(const QVector<MRVCssToken> &tokens, QVector<MRVCssSelector> &selectors)
{
    return SelectorReader(tokens).readList(selectors);
}
