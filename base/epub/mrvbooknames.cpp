#include "epub/mrvbooknames_p.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

struct Role
{
    const char *code; // of https://id.loc.gov/vocabulary/relators
    const char *name;
};

constexpr Role roles[] = {
    {"adp", "adapter"},      {"aft", "afterword"},   {"ann", "annotator"},    {"art", "artist"},
    {"aui", "introduction"}, {"aut", "author"},      {"bkd", "designer"},     {"bkp", "producer"},
    {"clr", "colorist"},     {"cmm", "commentator"}, {"com", "compiler"},     {"cov", "cover"},
    {"cre", "creator"},      {"ctb", "contributor"}, {"ctg", "cartographer"}, {"edt", "editor"},
    {"ill", "illustrator"},  {"ive", "interviewee"}, {"ivr", "interviewer"},  {"nrt", "narrator"},
    {"pbl", "publisher"},    {"pfr", "proofreader"}, {"pht", "photographer"}, {"rev", "reviewer"},
    {"trl", "translator"},   {"wpr", "preface"},
};

// In front of a surname, or instead of a given name: the family name cannot be told.
constexpr const char *noGivenNames[] = {
    "brother", "dame",   "doctor",   "father", "king",  "lady", "lord",   "miss", "mother",
    "pope",    "prince", "princess", "queen",  "saint", "sir",  "sister", "st",   "the"};

bool isGivenName(const QString &word)
{
    return std::none_of(std::begin(noGivenNames), std::end(noGivenNames), [&](const char *title) {
        return word.compare(QLatin1String(title), Qt::CaseInsensitive) == 0;
    });
}

} // namespace

QString mrvRoleCode(const QString &role)
{
    for (const Role &row : roles) {
        if (role.compare(QLatin1String(row.code), Qt::CaseInsensitive) == 0
            || role.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return QLatin1String(row.code);
        }
    }
    return QString();
}

QString mrvFileAs(const QString &name, const QString &language)
{
    static const QRegularExpression plain(
        QStringLiteral("^(\\p{Lu}[\\p{Latin}\\x{2019}'-]*\\p{Ll})((?: \\p{Lu}\\.)*) "
                       "(\\p{Lu}[\\p{Latin}\\x{2019}'-]*\\p{Ll})$"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QStringList familyFirst{QStringLiteral("hu"), QStringLiteral("ja"), QStringLiteral("ko"),
                                  QStringLiteral("vi"), QStringLiteral("zh")};
    const QRegularExpressionMatch match = plain.match(name);
    return match.hasMatch() && isGivenName(match.captured(1))
            && !familyFirst.contains(language.section(u'-', 0, 0))
        ? match.captured(3) + QLatin1String(", ") + match.captured(1) + match.captured(2)
        : QString();
}

QString mrvIsbn(const QString &text)
{
    static const QRegularExpression prefix(QStringLiteral("^(?:urn:isbn:|isbn(?:-1[03])?:?)\\s*"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression separators(QStringLiteral("[\\s\\x{2010}-\\x{2013}-]"));
    static const QRegularExpression shape(QStringLiteral("^(?:97[89][0-9]{10}|[0-9]{9}[0-9X])$"));
    const QString isbn = QString(text).trimmed().remove(prefix).remove(separators).toUpper();
    if (!shape.match(isbn).hasMatch()) {
        return QString();
    }
    const bool isLong = isbn.size() == 13;
    int sum = 0;
    for (int i = 0; i < isbn.size(); ++i) {
        const int digit = isbn.at(i) == u'X' ? 10 : isbn.at(i).digitValue();
        sum += digit * (isLong ? (i % 2 == 0 ? 1 : 3) : 10 - i);
    }
    return sum % (isLong ? 10 : 11) == 0 ? isbn : QString();
}
