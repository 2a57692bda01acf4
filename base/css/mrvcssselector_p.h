#pragma once

#include "css/mrvcsselement.h"
#include "css/mrvcsstokens_p.h"

#include <vector>

struct MRVCssCompound;

/// A condition of a compound selector other than its name, id and classes.
struct MRVCssTest
{
    enum Kind : quint8 {
        Attribute,
        NthChild, // the place is a * n + b, with n from 0
        NthOfType,
        LastChild, // and with b = 1 the only one
        Root,
        Link,
        Lang,
        Any, // one of the compounds matches
        None, // no compound matches
        Never, // what only changes in a window: hovered, visited
    };

    Kind kind = Never;
    char op = 0; // of an attribute: 0, '=', '~', '|', '^', '$' or '*'
    Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive;
    QString name; // of an attribute
    QString value; // of an attribute, or the language
    int a = 0;
    int b = 0;
    std::vector<MRVCssCompound> compounds;
};

/// What is written without a combinator: "p.first[title]".
struct MRVCssCompound
{
    QString name; // empty for any
    QString id;
    QStringList classes;
    QVector<MRVCssTest> tests;
    char combinator =
        0; // to the next compound in MRVCssSelector: ' ', '>', '+', '~'; 0 at the last
    qint8 memo = -1; // bit of MRVCssElement::Memo that holds whether what stands before "~" matches
};

struct MRVCssSelector
{
    QVector<MRVCssCompound> compounds; // the element's own first: from right to left
    quint32 specificity = 0;
    quint64 ancestors = 0; // bits for names, ids and classes that ancestors must have

    /// Whether the element's name, id and classes alone tell that it matches.
    bool isPlain() const { return compounds.size() == 1 && compounds.constFirst().tests.isEmpty(); }
};

/**
 * Reads a list of selectors.
 *
 * @param selectors receives those that may match something.
 * @return false where one of them is not valid, so that the rule as a whole is not.
 */
bool mrvReadCssSelectors(const QVector<MRVCssToken> &tokens, QVector<MRVCssSelector> &selectors);

/// Matches selectors, and counts what that costs in comparisons of short texts.
class MRVCssMatcher
{
public:
    /// Allows that many steps more.
    void allow(qint64 steps) { m_mostSteps += steps; }
    /// Counts steps that the caller takes itself.
    void spend(qint64 steps) { m_steps += steps; }
    /// Whether it took more steps than were allowed; nothing then matches.
    bool isExhausted() const { return m_steps > m_mostSteps; }

    /// Whether the whole selector fits; the caller has compared the bits of the ancestors.
    bool matches(const MRVCssSelector &selector, const MRVCssElement &element);
    /// Whether name, id and classes fit, without the tests.
    static bool matchesNames(const MRVCssCompound &compound, const QString &name, const QString &id,
                             const QStringList &classes);
    /// Bits for a name, an id or a class.
    static quint64 bitOf(const QString &text);
    /// The bits of an element and its ancestors; 0 for null.
    static quint64 pathOf(const MRVCssElement *element);

private:
    /// After a failure, which elements further on in the document's order are worth a try.
    enum Result { Matched, OtherSibling, OtherAncestor, NoOther };

    Result matchFrom(const MRVCssCompound *compound, const MRVCssElement &element);
    Result matchEarlier(const MRVCssCompound *compound, const MRVCssElement &element);
    bool matchesCompound(const MRVCssCompound &compound, const MRVCssElement &element);
    bool matchesTest(const MRVCssTest &test, const MRVCssElement &element);
    bool matchesAttribute(const MRVCssTest &test, const MRVCssElement &element);
    bool matchesLanguage(const QString &language, const MRVCssElement &element);
    bool matchesAny(const MRVCssTest &test, const MRVCssElement &element);

    qint64 m_steps = 0;
    qint64 m_mostSteps = 0;
};
