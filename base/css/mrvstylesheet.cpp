#include "css/mrvstylesheet.h"

#include "core/mrvinputlimits.h"
#include "css/mrvcssdeclarationreader_p.h"
#include "css/mrvcssselector_p.h"
#include "css/mrvcssvalue.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

/// What a declaration in a result costs its reader, in steps of the matcher.
constexpr int StepsPerDeclaration = 16;
/// Numbers and declarations that are remembered before all are forgotten.
constexpr int MostRemembered = 1 << 20;

struct Rule
{
    MRVStyleSheet::Origin origin;
    QVector<MRVCssDeclaration> normal;
    QVector<MRVCssDeclaration> important;
};

struct RuleSelector
{
    MRVCssSelector selector;
    int rule;
};

/// The name, id and classes of an element, as far as selectors ask for them.
struct Names
{
    QString name;
    QString id;
    QStringList classes;

    bool operator==(const Names &other) const
    {
        return name == other.name && id == other.id && classes == other.classes;
    }
};

uint qHash(const Names &names, uint seed)
{
    uint hash = qHash(names.name, seed) * 31 + qHash(names.id, seed);
    for (const QString &one : names.classes) {
        hash = hash * 31 + qHash(one, seed);
    }
    return hash;
}

/// The selectors that fit the names, from the weakest.
struct Candidates
{
    struct One
    {
        quint64 ancestors; // of the selector, beside those of the others for the processor's cache
        int selector;
        bool isPlain;
    };
    QVector<One> selectors;
    bool isPlain = true; // the names alone decide: the declarations are those of every such element
    QVector<MRVCssDeclaration> declarations;
};

bool fitsScreen(const QVector<MRVCssToken> &tokens, int from)
{
    QStringList words;
    bool fits = true;
    for (int i = from; i <= tokens.size(); ++i) {
        if (i == tokens.size() || tokens.at(i).is(',')) {
            if (words.value(0) == QLatin1String("only")) {
                words.removeFirst();
            }
            fits = words.isEmpty() || words == QStringList(QStringLiteral("all"))
                || words == QStringList(QStringLiteral("screen"));
            if (fits) {
                break;
            }
            words.clear();
        } else if (tokens.at(i).type != MRVCssToken::Space) {
            words.append(tokens.at(i).type == MRVCssToken::Ident ? tokens.at(i).text.toLower()
                                                                 : QStringLiteral("("));
        }
    }
    return fits;
}

bool isAtRule(const MRVCssPart &part, QLatin1String name)
{
    return !part.tokens.isEmpty() && part.tokens.constFirst().type == MRVCssToken::AtKeyword
        && part.tokens.constFirst().text.compare(name, Qt::CaseInsensitive) == 0;
}

/// The declarations of @p all that are, or are not, important.
void appendThose(bool important, const QVector<MRVCssDeclaration> &all,
                 QVector<MRVCssDeclaration> &declarations)
{
    std::copy_if(all.cbegin(), all.cend(), std::back_inserter(declarations),
                 [&](const MRVCssDeclaration &one) { return one.important == important; });
}

} // namespace

class MRVStyleSheet::Private
{
public:
    bool read(const QString &css, Origin origin);
    void index(int selector);
    const Candidates &candidates(const MRVCssElement &element);
    QVector<int> matched(const Candidates &candidates, const MRVCssElement &element);
    QVector<MRVCssDeclaration> assembled(const QVector<int> &matched,
                                         const QVector<MRVCssDeclaration> &own) const;

    QVector<Rule> rules;
    QVector<RuleSelector> selectors;
    int declarationCount = 0;
    MRVCssMatcher matcher;

private:
    bool readRule(const MRVCssPart &prelude, MRVCssTokenizer &tokens, Origin origin);
    Names namesOf(const MRVCssElement &element) const;
    Candidates find(const Names &names);
    quint64 weightOf(int selector) const;

    QHash<QString, QVector<int>> m_byId;
    QHash<QString, QVector<int>> m_byClass;
    QHash<QString, QVector<int>> m_byName;
    QVector<int> m_others;
    QSet<QString> m_names;
    QSet<QString> m_ids;
    QSet<QString> m_classes;
    QHash<Names, Candidates> m_remembered;
    int m_rememberedSize = 0;
    int m_memos = 0;
};

bool MRVStyleSheet::Private::read(const QString &css, Origin origin)
{
    MRVCssTokenizer tokens(css);
    for (int nesting = 0;;) {
        tokens.skipMarkup();
        const MRVCssPart part = tokens.readPart(nesting > 0 ? "{}" : "{");
        const bool isAt =
            !part.tokens.isEmpty() && part.tokens.constFirst().type == MRVCssToken::AtKeyword;
        if (part.end.isNull()) {
            return true;
        }
        if (part.end == u'}') {
            --nesting;
        } else if (part.end == u'{' && isAtRule(part, QLatin1String("media"))
                   && fitsScreen(part.tokens, 1)) {
            ++nesting;
        } else if (part.end == u'{' && isAt) {
            tokens.skipBlock();
        } else if (part.end == u'{' && !readRule(part, tokens, origin)) {
            return false;
        }
    }
}

bool MRVStyleSheet::Private::readRule(const MRVCssPart &prelude, MRVCssTokenizer &tokens,
                                      Origin origin)
{
    QVector<MRVCssSelector> list;
    if (!prelude.isValid || !mrvReadCssSelectors(prelude.tokens, list) || list.isEmpty()) {
        tokens.skipBlock();
        return true;
    }
    QVector<MRVCssDeclaration> declarations;
    const int most = MRVInputLimits::CssDeclarations - declarationCount;
    if (!mrvReadCssDeclarations(tokens, ";}", most, declarations)
        || selectors.size() + list.size() > MRVInputLimits::CssSelectors) {
        return false;
    }
    if (!declarations.isEmpty()) {
        for (const MRVCssSelector &selector : qAsConst(list)) {
            selectors.append({selector, rules.size()});
        }
        Rule rule{origin, {}, {}};
        appendThose(false, declarations, rule.normal);
        appendThose(true, declarations, rule.important);
        rules.append(rule);
        declarationCount += declarations.size();
    }
    return true;
}

void MRVStyleSheet::Private::index(int selector)
{
    constexpr int MostMemos = 64;
    QVector<MRVCssCompound> &compounds = selectors[selector].selector.compounds;
    for (MRVCssCompound &compound : compounds) {
        if (compound.combinator == '~' && m_memos < MostMemos) {
            compound.memo = qint8(m_memos++);
        }
    }
    const MRVCssCompound &own = compounds.constFirst();
    for (const QString &name : own.classes) {
        m_classes.insert(name);
    }
    if (!own.name.isEmpty()) {
        m_names.insert(own.name);
    }
    if (!own.id.isEmpty()) {
        m_ids.insert(own.id);
        m_byId[own.id].append(selector);
    } else if (!own.classes.isEmpty()) {
        m_byClass[own.classes.constFirst()].append(selector);
    } else if (!own.name.isEmpty()) {
        m_byName[own.name].append(selector);
    } else {
        m_others.append(selector);
    }
    m_remembered.clear();
    m_rememberedSize = 0;
}

Names MRVStyleSheet::Private::namesOf(const MRVCssElement &element) const
{
    Names names;
    if (m_names.contains(element.name)) {
        names.name = element.name;
    }
    if (!element.id.isEmpty() && m_ids.contains(element.id)) {
        names.id = element.id;
    }
    for (const QString &one : element.classes) {
        if (m_classes.contains(one)) {
            names.classes.append(one);
        }
    }
    return names;
}

/// The place of a selector in the cascade, importance aside.
quint64 MRVStyleSheet::Private::weightOf(int selector) const
{
    const RuleSelector &one = selectors.at(selector);
    const bool isAuthor = rules.at(one.rule).origin == Origin::Author;
    return quint64(isAuthor) << 63 | quint64(one.selector.specificity) << 32 | quint32(one.rule);
}

Candidates MRVStyleSheet::Private::find(const Names &names)
{
    QVector<int> all = m_others + m_byName.value(names.name) + m_byId.value(names.id);
    for (const QString &one : names.classes) {
        all += m_byClass.value(one);
    }
    QVector<QPair<quint64, int>> weighed;
    for (const int selector : qAsConst(all)) {
        const MRVCssCompound &own = selectors.at(selector).selector.compounds.constFirst();
        matcher.spend(1 + qint64(own.classes.size()) * names.classes.size());
        if (matcher.isExhausted()) {
            return {};
        }
        if (MRVCssMatcher::matchesNames(own, names.name, names.id, names.classes)) {
            weighed.append({weightOf(selector), selector});
        }
    }
    std::sort(weighed.begin(), weighed.end());
    Candidates found;
    QVector<int> matched;
    for (const auto &one : qAsConst(weighed)) {
        const MRVCssSelector &selector = selectors.at(one.second).selector;
        found.selectors.append({selector.ancestors, one.second, selector.isPlain()});
        found.isPlain = found.isPlain && selector.isPlain();
        matched.append(one.second);
    }
    if (found.isPlain) {
        found.declarations = assembled(matched, {});
    }
    return found;
}

const Candidates &MRVStyleSheet::Private::candidates(const MRVCssElement &element)
{
    const Names names = namesOf(element);
    const auto known = m_remembered.constFind(names);
    if (known != m_remembered.constEnd()) {
        return *known;
    }
    const Candidates found = find(names);
    const int size = 1 + found.selectors.size() + found.declarations.size();
    matcher.spend(qint64(size) * StepsPerDeclaration);
    if (m_rememberedSize + size > MostRemembered) {
        m_remembered.clear();
        m_rememberedSize = 0;
    }
    m_rememberedSize += size;
    return *m_remembered.insert(names, found);
}

QVector<int> MRVStyleSheet::Private::matched(const Candidates &candidates,
                                             const MRVCssElement &element)
{
    const quint64 path = MRVCssMatcher::pathOf(element.parent);
    QVector<int> matched;
    matcher.spend(candidates.selectors.size());
    for (const Candidates::One &one : candidates.selectors) {
        if ((path & one.ancestors) == one.ancestors
            && (one.isPlain || matcher.matches(selectors.at(one.selector).selector, element))) {
            matched.append(one.selector);
        }
    }
    return matched;
}

QVector<MRVCssDeclaration> MRVStyleSheet::Private::assembled(
    const QVector<int> &matched, const QVector<MRVCssDeclaration> &own) const
{
    QVector<MRVCssDeclaration> declarations;
    const auto append = [&](Origin origin, bool important) {
        for (const int selector : matched) {
            const Rule &rule = rules.at(selectors.at(selector).rule);
            if (rule.origin == origin) {
                declarations += important ? rule.important : rule.normal;
            }
        }
    };
    append(Origin::Program, false);
    append(Origin::Author, false);
    appendThose(false, own, declarations);
    append(Origin::Author, true);
    appendThose(true, own, declarations);
    append(Origin::Program, true);
    return declarations;
}

MRVStyleSheet::MRVStyleSheet()
    : d(new Private)
{
    d->matcher.allow(MRVInputLimits::CssSteps);
}

MRVStyleSheet::~MRVStyleSheet() = default;

bool MRVStyleSheet::add(const QString &css, Origin origin)
{
    const int oldSelectors = d->selectors.size();
    const int oldRules = d->rules.size();
    const int oldDeclarations = d->declarationCount;
    if (!d->read(css, origin)) {
        d->selectors.resize(oldSelectors);
        d->rules.resize(oldRules);
        d->declarationCount = oldDeclarations;
        return false;
    }
    for (int i = oldSelectors; i < d->selectors.size(); ++i) {
        d->index(i);
    }
    return true;
}

QStringList MRVStyleSheet::imports(const QString &css)
{
    QStringList urls;
    MRVCssTokenizer tokens(css);
    for (;;) {
        tokens.skipMarkup();
        const MRVCssPart part = tokens.readPart("{");
        const bool isImport = isAtRule(part, QLatin1String("import"));
        const bool mayComeBefore =
            isAtRule(part, QLatin1String("charset")) || isAtRule(part, QLatin1String("layer"));
        if ((!isImport && !mayComeBefore) || part.end == u'{') {
            return urls;
        }
        int at = 1;
        while (at < part.tokens.size() && part.tokens.at(at).type == MRVCssToken::Space) {
            ++at;
        }
        if (isImport && part.isValid && at < part.tokens.size()) {
            const bool isFunction = part.tokens.at(at).type == MRVCssToken::Function;
            const int end = qMin(part.tokens.size(), at + (isFunction ? 3 : 1));
            const QString url = mrvCssText(
                mrvCssSource(part.tokens.constData() + at, part.tokens.constData() + end));
            if (!url.isEmpty() && fitsScreen(part.tokens, end)) {
                urls.append(url);
            }
        }
    }
}

bool MRVStyleSheet::fitsMedia(const QString &media)
{
    return fitsScreen(MRVCssTokenizer(media).readPart("").tokens, 0);
}

QVector<MRVCssDeclaration> MRVStyleSheet::declarations(const MRVCssElement &element,
                                                       const QVector<MRVCssDeclaration> &own) const
{
    if (isExhausted()) {
        return d->assembled({}, own);
    }
    d->matcher.allow(MRVInputLimits::CssStepsPerElement);
    const Candidates &candidates = d->candidates(element);
    QVector<MRVCssDeclaration> declarations = candidates.declarations;
    if (!candidates.isPlain || !own.isEmpty()) {
        declarations = d->assembled(d->matched(candidates, element), own);
    }
    d->matcher.spend(qint64(declarations.size()) * StepsPerDeclaration);
    return isExhausted() ? d->assembled({}, own) : declarations;
}

bool MRVStyleSheet::isExhausted() const
{
    return d->matcher.isExhausted();
}

QVector<MRVCssDeclaration> MRVStyleSheet::parseDeclarations(const QString &text)
{
    QVector<MRVCssDeclaration> declarations;
    MRVCssTokenizer tokens(text);
    if (!mrvReadCssDeclarations(tokens, ";", MRVInputLimits::CssDeclarations, declarations)) {
        declarations.clear();
    }
    return declarations;
}
