#include "plaintext/mrvplaintextmarks_p.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

// A title is no longer, in characters.
constexpr int TitleLength = 80;
constexpr int SubtitleLength = 60;

// English, German, French, Spanish.
constexpr char partWords[] = "part|book|volume|teil|buch|band|partie|livre|tome|parte|libro|tomo";
constexpr char chapterWords[] = "chapter|stave|canto|kapitel|chapitre|cap[ií]tulo";
constexpr char numberWords[] =
    "\\d{1,4}|[ivxlc]{1,10}|the (?:first|second|third|fourth|fifth|last)|one|two|three|four|five|"
    "six|seven|eight|nine|ten|eleven|twelve|thirteen|fourteen|fifteen|sixteen|seventeen|eighteen|"
    "nineteen|(?:twenty|thirty|forty|fifty|sixty|seventy|eighty|ninety)(?:[- ](?:one|two|three|"
    "four|five|six|seven|eight|nine))?|first|second|third|last|eins|zwei|drei|vier|fünf|sechs|"
    "sieben|acht|neun|zehn|elf|zwölf|premi[eè]re?|deuxi[eè]me|seconde?|troisi[eè]me|derni[eè]re?|"
    "un|deux|trois|quatre|cinq|sept|huit|neuf|dix|primer[oa]?|segund[oa]|tercer[oa]?|uno|dos|tres|"
    "cuatro|cinco|seis|siete|ocho|nueve|diez";
constexpr char ordinalWords[] = "erster|zweiter|dritter|vierter|fünfter|erstes|zweites|drittes|"
                                "viertes|fünftes|premi[eè]re|deuxi[eè]me|seconde|troisi[eè]me|"
                                "primera|segunda|tercera|first|second|third|fourth|fifth";
constexpr char loneWords[] =
    "prologue|epilogue|introduction|preface|foreword|afterword|conclusion|interlude|postscript|"
    "acknowledg(?:e)?ments|dedication|prolog|epilog|einleitung|einführung|vorwort|nachwort|"
    "zwischenspiel|danksagung|épilogue|préface|avant-propos|postface|remerciements|prólogo|"
    "epílogo|introducción|prefacio|agradecimientos";

QRegularExpression wholeLine(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                              QRegularExpression::CaseInsensitiveOption
                                  | QRegularExpression::UseUnicodePropertiesOption);
}

// "Chapter 1", "CHAPTER I. Loomings", "Erster Teil"; a title follows a mark, not a blank.
QRegularExpression headingPattern(const char *words)
{
    return wholeLine(QStringLiteral("(?:(?:%1)\\s+(?:%2)|(?:%3)\\s+(?:%1))"
                                    "(?:\\s*[.:—–-]*|\\s*[.:—–-]+\\s*(\\S|\\S.*[^,;]))")
                         .arg(QString::fromUtf8(words), QString::fromUtf8(numberWords),
                              QString::fromUtf8(ordinalWords)));
}

int romanNumber(const QString &text)
{
    static const QRegularExpression valid(QRegularExpression::anchoredPattern(
        QStringLiteral("c{0,3}(?:xc|xl|l?x{0,3})(?:ix|iv|v?i{0,3})")));
    if (text.isEmpty() || !valid.match(text).hasMatch()) {
        return 0;
    }
    const auto value = [](QChar letter) {
        return letter == u'c' ? 100
            : letter == u'l'  ? 50
            : letter == u'x'  ? 10
            : letter == u'v'  ? 5
                              : 1;
    };
    int number = 0;
    for (int i = 0; i < text.size(); ++i) {
        const bool isLess = i + 1 < text.size() && value(text.at(i)) < value(text.at(i + 1));
        number += isLess ? -value(text.at(i)) : value(text.at(i));
    }
    return number;
}

MRVPlainMark breakMark(const QString &line)
{
    const QString marks = QString(line).remove(u' ');
    const QString drawn = QStringLiteral("-_=–—─");
    const QString stars = QStringLiteral("*#~•·+⁂❦✻");
    MRVPlainMark mark;
    bool isDrawn = marks.size() >= 3;
    bool isStars = marks.size() <= TitleLength;
    for (const QChar character : marks) {
        isDrawn = isDrawn && drawn.contains(character);
        isStars = isStars && stars.contains(character);
    }
    // A single bullet or plus may be a list's.
    isStars = isStars
        && (marks.size() >= 3 || marks == QLatin1String("#") || marks == QLatin1String("*")
            || marks == QLatin1String("**") || marks == QStringLiteral("⁂")
            || marks == QStringLiteral("❦"));
    mark.kind = isDrawn ? MRVPlainMark::Rule : isStars ? MRVPlainMark::Stars : MRVPlainMark::Text;
    return mark;
}

MRVPlainMark numberMark(const QString &line)
{
    static const QRegularExpression digits =
        wholeLine(QStringLiteral("[—–-]?\\s*(\\d{1,3})\\s*[.:—–-]?"));
    MRVPlainMark mark;
    const QRegularExpressionMatch match = digits.match(line);
    mark.number = match.captured(1).toInt();
    if (!match.hasMatch()) {
        QString letters = line.toLower();
        while (letters.endsWith(u'.')) {
            letters.chop(1);
        }
        mark.number = romanNumber(letters);
        mark.isRoman = true;
    }
    mark.kind = mark.number > 0 ? MRVPlainMark::Number : MRVPlainMark::Text;
    return mark;
}

MRVPlainMark wordMark(const QString &line)
{
    static const QRegularExpression part = headingPattern(partWords);
    static const QRegularExpression chapter = headingPattern(chapterWords);
    static const QRegularExpression lone =
        wholeLine(QStringLiteral("(?:the )?(?:%1)\\s*[.:]?").arg(QString::fromUtf8(loneWords)));
    MRVPlainMark mark;
    QRegularExpressionMatch match = part.match(line);
    if (match.hasMatch()) {
        mark.kind = MRVPlainMark::Part;
    } else {
        match = chapter.match(line);
        mark.kind = match.hasMatch() || lone.match(line).hasMatch() ? MRVPlainMark::Chapter
                                                                    : MRVPlainMark::Text;
    }
    mark.isComplete = !match.hasMatch() || !match.captured(1).isEmpty();
    return mark;
}

MRVPlainMark::Kind wordKind(const MRVPlainGroup &group, int i)
{
    const bool isLine = i >= 0 && i < group.size() && group.at(i).text.size() <= TitleLength;
    return isLine ? wordMark(group.at(i).text).kind : MRVPlainMark::Text;
}

bool endsSentence(const MRVPlainLine &line)
{
    return QStringLiteral(".!?:\"'”’»…)*").contains(line.text.at(line.text.size() - 1));
}

bool isTitleOf(const MRVPlainGroup &lines)
{
    return mrvIsPlainSubtitle(lines, QStringLiteral(".,;:!?-\"'”’»…"));
}

// Where each line is a paragraph, a short one before a long one may be a title.
bool isTitleLine(const MRVPlainGroup &group, int i)
{
    return i + 1 < group.size() && group.at(i + 1).text.size() > TitleLength
        && isTitleOf({group.at(i)});
}

// Whether all lines before are those of a title page: the title, the author and the like.
bool followsTitles(const MRVPlainGroup &group, int i)
{
    constexpr int MostTitles = 4;
    return i <= MostTitles && (i == 0 || isTitleOf({group.at(0)}))
        && std::all_of(group.cbegin(), group.cbegin() + i, [](const MRVPlainLine &line) {
               return line.text.size() <= SubtitleLength && !endsSentence(line);
           });
}

// There, a number alone heads the long line after it, or the title before that.
bool isNumberApart(const MRVPlainGroup &group, int i)
{
    const bool isBegin = followsTitles(group, i) || endsSentence(group.at(i - 1));
    return isBegin && i + 1 < group.size()
        && numberMark(group.at(i).text).kind == MRVPlainMark::Number
        && (group.at(i + 1).text.size() > TitleLength || isTitleLine(group, i + 1));
}

// Marks of one kind in lines after each other are a table of contents.
bool isHeadingApart(const MRVPlainGroup &group, int i)
{
    const MRVPlainMark::Kind kind = wordKind(group, i);
    const MRVPlainMark::Kind before = wordKind(group, i - 1);
    if (kind == MRVPlainMark::Text || kind == before || kind == wordKind(group, i + 1)) {
        return false;
    }
    const bool isBegin = i == 0 || before != MRVPlainMark::Text || endsSentence(group.at(i - 1));
    const bool isEnd = i + 1 == group.size() || group.at(i + 1).hasCapital();
    return isBegin && isEnd;
}

} // namespace

QVector<MRVPlainGroup> mrvWithHeadingsApart(const QVector<MRVPlainGroup> &groups, bool isByLine)
{
    QVector<MRVPlainGroup> apart;
    for (const MRVPlainGroup &group : groups) {
        if (group.size() == 1 || mrvPlainMark(group).kind != MRVPlainMark::Text) {
            apart.append(group);
            continue;
        }
        bool begins = true;
        bool isAfterHeading = false;
        for (int i = 0; i < group.size(); ++i) {
            const bool isHeading =
                isHeadingApart(group, i) || (isByLine && isNumberApart(group, i));
            const bool isTitle = isByLine && isAfterHeading && isTitleLine(group, i);
            if (begins || isHeading) {
                apart.append(MRVPlainGroup());
            }
            apart.last().append(group.at(i));
            isAfterHeading = isHeading;
            begins = isHeading || isTitle;
        }
    }
    return apart;
}

MRVPlainMark mrvPlainMark(const MRVPlainGroup &group)
{
    const QString &line = group.constFirst().text;
    MRVPlainMark mark;
    if (group.size() == 1) {
        mark = breakMark(line);
        if (mark.kind != MRVPlainMark::Text || line.size() > TitleLength) {
            return mark;
        }
    }
    if (group.size() > 3 || line.size() > TitleLength) {
        return mark;
    }
    const MRVPlainGroup rest = group.mid(1);
    if (wordKind(group, 1) != MRVPlainMark::Text) {
        return mark; // a table of contents
    }
    if (!rest.isEmpty() && !mrvIsPlainSubtitle(rest, QStringLiteral(",;:-\"”»"))) {
        return mark;
    }
    mark = wordMark(line);
    if (mark.kind == MRVPlainMark::Text) {
        mark = numberMark(line);
    }
    mark.isComplete = mark.isComplete || !rest.isEmpty();
    return mark;
}

bool mrvIsPlainSubtitle(const MRVPlainGroup &group, const QString &ends)
{
    for (const MRVPlainLine &line : group) {
        const QChar first = line.text.at(0);
        if (line.text.size() > SubtitleLength || ends.contains(line.text.at(line.text.size() - 1))
            || !first.isUpper()) {
            return false;
        }
    }
    return group.size() <= 2;
}
