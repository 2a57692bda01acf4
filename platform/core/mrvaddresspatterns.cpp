#include "core/mrvcoreutil.h"

// The patterns use only what QRegExp and QRegularExpression share: no look-behind, no lazy or
// possessive quantifiers, no \x escapes beyond two digits, case spelled out. What stands in for
// possessive quantifiers is that no text can be divided between neighbouring groups in two ways. No
// group repeats without a limit: after some ten thousand rounds QRegularExpression gives up, which
// looks like no match.
//
// Letters, digits and the marks that belong to them are those of Unicode, as addresses have them
// (RFC 3987, 2.2). Punctuation beyond ASCII is not, or the quotation marks, dashes and full stops
// that surround an address in typeset text would be part of it. "\w" stands for all three in
// QRegExp, and for letters and digits in QRegularExpression. There "\pM" adds the marks; QRegExp
// takes that for two letters, which it knows anyway, but fails at it in a look-ahead.

namespace {

// Underscores are not for the names of hosts, but some have them.
QString hostLabel()
{
    return QStringLiteral("\\w(?:[\\w\\pM-]{0,61}[\\w\\pM])?");
}

// Labels before the registered ones, each with its full stop. No name in use has fifty; a name of
// 253 characters could have 127 (RFC 1035, 2.3.4), but compiled, a repetition is so many copies,
// and a caller may join the three patterns and ignore the case, where QRegularExpression takes 64
// KiB at most.
QString subdomains()
{
    return QStringLiteral("(?:[\\w\\pM-]{1,63}\\.){0,48}");
}

// Two labels or more, the last of them letters only (or the ASCII form of an international one).
QString domainName()
{
    return subdomains() + hostLabel()
        + QStringLiteral("\\.(?:[Xx][Nn]--[A-Za-z0-9-]{2,59}"
                         "|(?:[^\\W\\d_]|\\pM){2,63})"
                         "(?!\\w)");
}

// A port, then a path, query or fragment, with up to 16 bracketed parts. Punctuation belongs to it
// only when something follows that may stand at the end, a bracketed part included. So do the
// apostrophe of typeset text, the middle dots of Catalan and Japanese, and the joiners of Persian
// and the languages of India.
QString portAndPath()
{
    const QString sign = QStringLiteral("\\w/~%&=+$@#*");
    const QString any = QStringLiteral("[%1\\pM.,:;!?'\u2019\u00b7\u30fb\u200c\u200d-]").arg(sign);
    return QStringLiteral("(?::[0-9]{1,5})?"
                          "(?:(?:[/#]|\\?(?=[%1-]))(?:%2*\\(%2*\\)){0,16}(?:%2*[%1\\pM-])?)?")
        .arg(sign, any);
}

} // namespace

QString MRVCoreUtil::wwwPattern()
{
    return QStringLiteral("\\b[Ww][Ww][Ww]\\.") + domainName() + portAndPath();
}

QString MRVCoreUtil::emailPattern()
{
    // 64 is the longest local part that RFC 5321 (4.5.3.1.1) allows.
    return QStringLiteral("\\b\\w[\\w\\pM.+%'-]{0,63}@") + domainName();
}

QString MRVCoreUtil::webUrlPattern()
{
    const QString host = QStringLiteral("(?:\\[[0-9A-Fa-f:.]{2,45}\\]|(?:%1%2\\.)?%2)")
                             .arg(subdomains(), hostLabel());
    return QStringLiteral("\\b(?:[Hh][Tt][Tt][Pp][Ss]?|[Ff][Tt][Pp])://"
                          "(?:[A-Za-z0-9._~%!$&*+=:-]+@)?")
        + host + portAndPath();
}
