#include "epub/mrvepubsections_p.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

// Kinds with the words that headings of them begin with, all in lower case and without accents.
// A "#" stands for a number. What follows must be set off, as in "Prologue: The Storm".
// clang-format off
constexpr struct
{
    MRVEPubSection section;
    const char *words;
} rows[] = {
    {{"part", "doc-part"},                  "part #|teil #|partie #|parte #|# part|# teil|# partie|# parte|book #|buch #|livre #|libro #|volume #|band #|tome #|tomo #"},
    {{"chapter", "doc-chapter"},            "chapter #|kapitel #|chapitre #|capitulo #"},
    {{"prologue", "doc-prologue"},          "prologue|prolog|prologo"},
    {{"epilogue", "doc-epilogue"},          "epilogue|epilog|epilogo"},
    {{"foreword", "doc-foreword"},          "foreword|geleitwort|zum geleit|avant-propos|prefacio de"},
    {{"preface", "doc-preface"},            "preface|vorwort|vorrede|prefacio|author's note|note de l'auteur|nota del autor"},
    {{"introduction", "doc-introduction"},  "introduction|einleitung|einfuhrung|introduccion"},
    {{"afterword", "doc-afterword"},        "afterword|nachwort|postface|posfacio|epilogo del autor"},
    {{"epigraph", "doc-epigraph"},          "epigraph|motto|epigraphe|epigrafe"},
    {{"dedication", "doc-dedication"},      "dedication|widmung|dedicace|dedicatoria"},
    {{"copyright-page", ""},                "copyright|copyright page|impressum|mentions legales|derechos|derechos de autor|aviso legal"},
    {{"acknowledgments", "doc-acknowledgments"}, "acknowledgments|acknowledgements|danksagung|dank|remerciements|agradecimientos"},
    {{"appendix", "doc-appendix"},          "appendix|appendix #|anhang|anhang #|annexe|annexe #|appendice|apendice|apendice #|anexo|anexo #"},
    {{"bibliography", "doc-bibliography"},  "bibliography|references|works cited|literatur|literaturverzeichnis|bibliographie|bibliografia|referencias"},
    {{"glossary", "doc-glossary"},          "glossary|glossar|glossaire|glosario"},
    {{"index", "doc-index"},                "index|register|sachregister|stichwortverzeichnis|indice alfabetico"},
    {{"endnotes", "doc-endnotes"},          "notes|endnotes|footnotes|anmerkungen|fussnoten|endnoten|notes de fin|notas|notas al pie"},
    {{"toc", "doc-toc"},                    "contents|table of contents|inhalt|inhaltsverzeichnis|table des matieres|sommaire|indice|contenido|tabla de contenido"},
    {{"titlepage", ""},                     "title page|titelseite|page de titre|portada"},
};
// clang-format on

// Digits, Roman figures, a single letter, and the words of the four languages.
constexpr const char *number =
    "(?:[0-9]+(?:st|nd|rd|th|er|re|e)?|(?=[mdclxvi])m*(?:c[md]|d?c{0,3})(?:x[cl]|l?x{0,3})"
    "(?:i[xv]|v?i{0,3})|[a-z]|(?:(?:twenty|thirty|forty|fifty)-)?(?:one|two|three|four|five|six|"
    "seven|eight|nine|first|second|third|fourth|fifth|sixth|seventh|eighth|ninth)|ten|eleven|"
    "twelve|(?:thir|four|fif|six|seven|eigh|nine)teen|(?:ten|eleven|twelf|(?:thir|four|fif|six|"
    "seven|eigh|nine)teen|twentie)th|twenty|thirty|forty|fifty|eins|(?:(?:ein|zwei|drei|vier|funf|"
    "sechs|sieben|acht|neun)und)?(?:zwanzig|dreissig|vierzig|funfzig)(?:ste[rs]?)?|zwei|drei|vier|"
    "funf|sechs|sieben|acht|neun|zehn|elf|zwolf|(?:drei|vier|funf|sech|sieb|acht|neun)zehn|(?:ers|"
    "zwei|drit|vier|funf|sechs|sieb|sieben|ach|neun|zehn|elf|zwolf|(?:drei|vier|funf|sech|sieb|"
    "acht|neun)zehn)te[rs]?|(?:(?:vingt|trente|quarante|cinquante)[- ](?:et[- ])?)?(?:une?|deux|"
    "trois|quatre|cinq|six|sept|huit|neuf)|dix(?:-(?:sept|huit|neuf))?|onze|douze|treize|quatorze|"
    "quinze|seize|vingt|trente|quarante|cinquante|premiere?|seconde|(?:deux|trois|quatr|cinqu|six|"
    "sept|huit|neuv|dix|onz|douz|treiz|quatorz|quinz|seiz|vingt)ieme|(?:(?:treinta|cuarenta|"
    "cincuenta) y )?(?:un[oa]|dos|tres|cuatro|cinco|seis|siete|ocho|nueve)|diez|once|doce|trece|"
    "catorce|quince|dieci(?:seis|siete|ocho|nueve)|veinte|veinti(?:un[oa]|dos|tres|cuatro|cinco|"
    "seis|siete|ocho|nueve)|treinta|cuarenta|cincuenta|(?:primer|segund|tercer|cuart|quint|sext|"
    "septim|octav|noven|decim)[oa]?)";

// Lower case, without accents and what frames or ends a heading; " |" is what sets off a title.
QString plain(const QString &heading)
{
    QString text;
    const QString apart = heading.toLower().normalized(QString::NormalizationForm_D);
    for (const QChar c : apart) {
        if (c == QChar(0xdf)) {
            text += QLatin1String("ss");
        } else if (c == QChar(0x2019)) {
            text += u'\'';
        } else if (c.isLetterOrNumber() || c == u'\'' || c == u'-') {
            text += c;
        } else if (QStringView(u":.\u2013\u2014").contains(c)) {
            text += QLatin1String(" | ");
        } else if (!c.isMark()) {
            text += u' ';
        }
    }
    text = text.simplified().replace(QLatin1String(" - "), QLatin1String(" | "));
    while (text.endsWith(QLatin1String(" |"))) {
        text.chop(2);
    }
    return text;
}

// Whether a heading ends at a position, or goes on with a title that is set off.
bool endsAt(const QString &heading, int position)
{
    return position == heading.size() || heading.midRef(position).startsWith(QLatin1String(" |"));
}

bool matches(const QString &heading, const QString &words)
{
    static const QRegularExpression numbers(QStringLiteral("(?:(?:the|la|le|el|der|das) )?")
                                            + QLatin1String(number) + QLatin1String("(?![^ ])"));
    const int place = words.indexOf(u'#');
    if (!heading.startsWith(words.left(place))) {
        return false;
    }
    if (place < 0) {
        return endsAt(heading, words.size());
    }
    const QRegularExpressionMatch match = numbers.match(
        heading, place, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    if (!match.hasMatch()) {
        return false;
    }
    int end = match.capturedEnd();
    const QString after = words.mid(place + 1);
    if (!after.isEmpty() && heading.midRef(end).startsWith(QLatin1String(" |"))) {
        end += 2; // "2. Teil"
    }
    return heading.midRef(end).startsWith(after) && endsAt(heading, end + after.size());
}

bool isNumber(const QString &heading)
{
    static const QRegularExpression figures(
        QStringLiteral("^(?:[0-9]+|(?=[mdclxvi])m*(?:c[md]|d?c{0,3})(?:x[cl]|l?x{0,3})"
                       "(?:i[xv]|v?i{0,3}))$"));
    return figures.match(heading).hasMatch();
}

} // namespace

const MRVEPubSection *mrvEPubSectionOf(const QString &heading)
{
    const QString text = plain(heading);
    for (const auto &row : rows) {
        const QStringList words = QString::fromLatin1(row.words).split(u'|');
        if (std::any_of(words.begin(), words.end(),
                        [&text](const QString &word) { return matches(text, word); })) {
            return &row.section;
        }
    }
    return isNumber(text) ? mrvEPubSection(QStringLiteral("chapter")) : nullptr;
}

const MRVEPubSection *mrvEPubSection(const QString &type)
{
    for (const auto &row : rows) {
        if (type == QLatin1String(row.section.type)) {
            return &row.section;
        }
    }
    return nullptr;
}
