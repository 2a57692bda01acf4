#include "epub/mrvepubsections_p.h"

#include <QStringList>

#include <algorithm>

namespace {

// Kinds with the words that headings of them begin with, all in lower case and without accents.
// Where there is a "#", a number or a name follows, or stands before; others are the whole heading.
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

// Lower case, without accents and what frames or ends a heading.
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
        } else if (!c.isMark()) {
            text += u' ';
        }
    }
    return text.simplified();
}

bool matches(const QString &heading, const QString &words)
{
    if (words.startsWith(u'#')) {
        return heading.endsWith(QStringView(words).mid(1).toString());
    }
    if (!words.endsWith(u'#')) {
        return heading == words;
    }
    return heading.startsWith(QStringView(words).chopped(1).toString());
}

bool isNumber(const QString &heading)
{
    const auto isRoman = [](QChar c) { return QLatin1String("ivxlcdm").contains(c); };
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    return !heading.isEmpty()
        && (std::all_of(heading.begin(), heading.end(), isDigit)
            || std::all_of(heading.begin(), heading.end(), isRoman));
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
