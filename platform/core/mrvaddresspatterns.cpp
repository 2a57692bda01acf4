#include "core/mrvcoreutil.h"

// The patterns use only what QRegExp and QRegularExpression share: no look-behind, no lazy or
// possessive quantifiers, no \x escapes beyond two digits, case spelled out. What stands in for
// possessive quantifiers is that no text can be divided between neighbouring groups in two ways. No
// group repeats without a limit: after some ten thousand rounds QRegularExpression gives up, which
// looks like no match.

namespace {

// Letters beyond ASCII that host names and paths are written with: Latin, Greek, Cyrillic, kana,
// Han and Hangul. Not simply "everything above U+00A0", which holds the quotation marks, dashes and
// full stops that surround an address in typeset text.
QString foreignLetters()
{
    static constexpr struct
    {
        ushort first;
        ushort last;
    } Ranges[] = {
        {0x00C0, 0x02AF}, {0x0388, 0x052F}, {0x3041, 0x30FF}, {0x4E00, 0x9FFF}, {0xAC00, 0xD7A3},
    };
    QString letters;
    for (const auto &range : Ranges) {
        letters += QChar(range.first) + QLatin1Char('-') + QChar(range.last);
    }
    return letters;
}

QString hostLabel()
{
    return QStringLiteral("[A-Za-z0-9%1](?:[A-Za-z0-9%1-]{0,61}[A-Za-z0-9%1])?")
        .arg(foreignLetters());
}

// Labels before the registered ones, each with its full stop. They may hold underscores. No name in
// use has fifty; a name of 253 characters could have 127 (RFC 1035, 2.3.4), but compiled, a
// repetition is so many copies, and a caller may join the three patterns and ignore the case, where
// QRegularExpression takes 64 KiB at most.
QString subdomains()
{
    return QStringLiteral("(?:[A-Za-z0-9_%1-]{1,63}\\.){0,48}").arg(foreignLetters());
}

// Two labels or more, the last of them letters only (or the ASCII form of an international one).
QString domainName()
{
    return subdomains()
        + QStringLiteral("%1\\.(?:[Xx][Nn]--[A-Za-z0-9-]{2,59}|[A-Za-z%2]{2,63})"
                         "(?![A-Za-z0-9%2])")
              .arg(hostLabel(), foreignLetters());
}

// A port, then a path, query or fragment, with up to 16 bracketed parts. Punctuation belongs to it
// only when something follows that may stand at the end, a bracketed part included.
QString portAndPath()
{
    const QString last = QStringLiteral("[A-Za-z0-9/_~%&=+$@#*%1-]").arg(foreignLetters());
    const QString any = QStringLiteral("[A-Za-z0-9/_~%&=+$@#*.,:;!?'%1-]").arg(foreignLetters());
    return QStringLiteral("(?::[0-9]{1,5})?"
                          "(?:(?:[/#]|\\?(?=%1))(?:%2*\\(%2*\\)){0,16}(?:%2*%1)?)?")
        .arg(last, any);
}

} // namespace

QString MRVCoreUtil::wwwPattern()
{
    return QStringLiteral("\\b[Ww][Ww][Ww]\\.") + domainName() + portAndPath();
}

QString MRVCoreUtil::emailPattern()
{
    // 64 is the longest local part that RFC 5321 (4.5.3.1.1) allows.
    return QStringLiteral("\\b[A-Za-z0-9_%1][A-Za-z0-9_.+%'%1-]{0,63}@").arg(foreignLetters())
        + domainName();
}

QString MRVCoreUtil::webUrlPattern()
{
    const QString host = QStringLiteral("(?:\\[[0-9A-Fa-f:.]{2,45}\\]|(?:%1%2\\.)?%2)")
                             .arg(subdomains(), hostLabel());
    return QStringLiteral("\\b(?:[Hh][Tt][Tt][Pp][Ss]?|[Ff][Tt][Pp])://"
                          "(?:[A-Za-z0-9._~%!$&*+=:-]+@)?")
        + host + portAndPath();
}
