#pragma once

#include "search/mrvtextmatch_p.h"

#include <QRegularExpression>
#include <QString>

#include <memory>

/**
 * An expression as QRegularExpression has it, searched for by PCRE2 itself, which also tells that a
 * search was given up, how far a search may go, and goes on after an empty match as Perl does.
 *
 * Letters, digits and case are those of Unicode. Copies share the compiled form and the last match.
 */
class MRVExpression
{
public:
    enum Result { Found, NotFound, TooCostly };

    explicit MRVExpression(const QRegularExpression &expression);

    bool isValid() const;
    /** Why it is not valid, in the words that Qt would use, and where, in characters from 0. */
    QString errorString() const;
    int errorOffset() const;

    /** How many groups it has; the whole match is not counted. */
    int groupCount() const;
    /** The number of the first group of that name; -1 if no group has it. */
    int groupNamed(const QString &name) const;
    /** Whether searching from the middle of a text may differ from going on there. */
    bool dependsOnStart() const;

    /**
     * Looks for the first match that starts at @p from or later, and at @p last at the latest.
     *
     * @param text must be valid UTF-16; @p from must not be in the middle of a surrogate pair.
     */
    Result match(const QString &text, int from, int last, MRVEmptyMatch empty) const;
    /** Of the last match, the part that a group took; group 0 is all of it. */
    MRVTextMatch captured(int group) const;

private:
    struct Compiled;
    std::shared_ptr<const Compiled> m_compiled;
};
