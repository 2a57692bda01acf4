#include "css/mrvcssvalue.h"

#include "css/mrvcsstokens_p.h"

#include <cmath>

namespace {

constexpr double PixelsPerInch = 96;

struct UnitRow
{
    const char *name;
    MRVCssLength::Unit unit;
    double pixels; // of the units that depend on nothing; otherwise of one em, rem or hundredth
};

constexpr UnitRow units[] = {
    {"", MRVCssLength::Number, 0},
    {"%", MRVCssLength::Percent, 0.01},
    {"em", MRVCssLength::Em, 1},
    {"rem", MRVCssLength::Rem, 1},
    {"ex", MRVCssLength::Ex, 0.5},
    {"ch", MRVCssLength::Ch, 0.5},
    {"px", MRVCssLength::Pixel, 1},
    {"pt", MRVCssLength::Point, PixelsPerInch / 72},
    {"pc", MRVCssLength::Pica, PixelsPerInch / 6},
    {"in", MRVCssLength::Inch, PixelsPerInch},
    {"cm", MRVCssLength::Centimeter, PixelsPerInch / 2.54},
    {"mm", MRVCssLength::Millimeter, PixelsPerInch / 25.4},
    {"q", MRVCssLength::QuarterMillimeter, PixelsPerInch / 101.6},
};
static_assert(sizeof(units) / sizeof(units[0]) == MRVCssLength::QuarterMillimeter,
              "a row for each unit, in their order");

struct WidthRow
{
    const char *name;
    double pixels;
};
constexpr WidthRow widths[] = {
    {"thin", 1},
    {"medium", 3},
    {"thick", 5},
};

/// The only token of a value, apart from white space; an End where there are others.
MRVCssToken onlyToken(const QString &value)
{
    const MRVCssPart part = MRVCssTokenizer(value).readPart("");
    return part.isValid && part.tokens.size() == 1 ? part.tokens.constFirst() : MRVCssToken();
}

bool isNumeric(const MRVCssToken &token)
{
    return token.type == MRVCssToken::Number || token.type == MRVCssToken::Percentage
        || token.type == MRVCssToken::Dimension;
}

/// "#rgb", "#rgba", "#rrggbb" or "#rrggbbaa" without the "#".
QColor hexColor(const QString &digits)
{
    const bool isShort = digits.size() == 3 || digits.size() == 4;
    if (!isShort && digits.size() != 6 && digits.size() != 8) {
        return {};
    }
    const int width = isShort ? 1 : 2;
    int channels[4] = {0, 0, 0, 255};
    for (int i = 0; i * width < digits.size(); ++i) {
        bool ok = false;
        channels[i] = digits.midRef(i * width, width).toInt(&ok, 16) * (isShort ? 17 : 1);
        if (!ok) {
            return {};
        }
    }
    return QColor(channels[0], channels[1], channels[2], channels[3]);
}

/// A share of 1: of the @p whole for numbers, of 100 for percentages.
double channel(const MRVCssToken &token, double whole)
{
    return qBound(0.0, token.number / (token.type == MRVCssToken::Percentage ? 100 : whole), 1.0);
}

/// The share of a full turn that an angle is.
double turnOf(const MRVCssToken &angle)
{
    const double turns = angle.text.compare(QLatin1String("rad"), Qt::CaseInsensitive) == 0
        ? angle.number / 6.283185307179586
        : angle.text.compare(QLatin1String("turn"), Qt::CaseInsensitive) == 0 ? angle.number
                                                                              : angle.number / 360;
    return turns - std::floor(turns);
}

/// The three or four numbers of a colour's function; empty where there is anything else.
QVector<MRVCssToken> colorArguments(const QVector<MRVCssToken> &tokens)
{
    QVector<MRVCssToken> numbers;
    for (int i = 1; i + 1 < tokens.size(); ++i) {
        const MRVCssToken &token = tokens.at(i);
        if (isNumeric(token)) {
            numbers.append(token);
        } else if (token.type != MRVCssToken::Space && !token.is(',') && !token.is('/')) {
            return {};
        }
    }
    return numbers.size() == 3 || numbers.size() == 4 ? numbers : QVector<MRVCssToken>();
}

QColor functionColor(const QVector<MRVCssToken> &tokens)
{
    const QVector<MRVCssToken> numbers = colorArguments(tokens);
    if (numbers.isEmpty() || !tokens.constLast().is(')')) {
        return {};
    }
    const double alpha = numbers.size() == 4 ? channel(numbers.at(3), 1) : 1;
    const QString name = tokens.constFirst().text.toLower();
    if (name == QLatin1String("rgb") || name == QLatin1String("rgba")) {
        return QColor::fromRgbF(channel(numbers.at(0), 255), channel(numbers.at(1), 255),
                                channel(numbers.at(2), 255), alpha);
    }
    if (name == QLatin1String("hsl") || name == QLatin1String("hsla")) {
        return QColor::fromHslF(turnOf(numbers.at(0)), channel(numbers.at(1), 100),
                                channel(numbers.at(2), 100), alpha)
            .toRgb();
    }
    return {};
}

} // namespace

MRVCssLength MRVCssLength::parsed(const QString &value)
{
    const MRVCssToken token = onlyToken(value);
    MRVCssLength length;
    if (isNumeric(token)) {
        const QString name =
            token.type == MRVCssToken::Percentage ? QStringLiteral("%") : token.text;
        for (const UnitRow &row : units) {
            if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
                length = {token.number, row.unit};
            }
        }
    }
    for (const WidthRow &row : widths) {
        if (token.isWord(QLatin1String(row.name))) {
            length = {row.pixels, Pixel};
        }
    }
    return length;
}

double MRVCssLength::toPixels(double em, double rem, double percent, bool *ok) const
{
    const bool isLength = unit != Invalid && (unit != Number || number == 0);
    if (ok) {
        *ok = isLength;
    }
    if (!isLength || unit == Number) {
        return 0;
    }
    const bool isFont = unit == Em || unit == Ex || unit == Ch;
    const double base = unit == Percent ? percent : unit == Rem ? rem : isFont ? em : 1;
    return number * units[unit - 1].pixels * base;
}

QColor mrvCssColor(const QString &value)
{
    const MRVCssPart part = MRVCssTokenizer(value).readPart("");
    if (!part.isValid || part.tokens.isEmpty()) {
        return {};
    }
    const MRVCssToken &first = part.tokens.constFirst();
    if (first.type == MRVCssToken::Function) {
        return functionColor(part.tokens);
    }
    if (part.tokens.size() == 1 && first.type == MRVCssToken::Hash) {
        return hexColor(first.text);
    }
    if (part.tokens.size() != 1 || first.type != MRVCssToken::Ident) {
        return {};
    }
    if (first.isWord(QLatin1String("rebeccapurple"))) { // newer than Qt's list
        return QColor(0x66, 0x33, 0x99);
    }
    // Qt passes over blanks within a name, which an escape may have put there.
    return first.text.contains(u' ') || !QColor::isValidColor(first.text) ? QColor()
                                                                          : QColor(first.text);
}

QStringList mrvCssParts(const QString &value)
{
    QStringList parts;
    const QVector<MRVCssToken> tokens = MRVCssTokenizer(value).readPart("").tokens;
    int depth = 0;
    int start = 0;
    const auto take = [&](int end) {
        if (end > start) {
            parts.append(mrvCssSource(tokens.constData() + start, tokens.constData() + end));
        }
        start = end;
    };
    for (int i = 0; i < tokens.size(); ++i) {
        const MRVCssToken &token = tokens.at(i);
        const bool opens =
            token.type == MRVCssToken::Function || token.is('(') || token.is('[') || token.is('{');
        if (depth == 0 && (token.type == MRVCssToken::Space || token.followsComment)) {
            take(i);
            start = token.type == MRVCssToken::Space ? i + 1 : i;
        }
        if (depth == 0 && (token.is(',') || token.is('/'))) {
            take(i);
            take(i + 1);
        }
        depth += opens ? 1 : token.is(')') || token.is(']') || token.is('}') ? -1 : 0;
    }
    take(tokens.size());
    return parts;
}

QString mrvCssText(const QString &part)
{
    const QVector<MRVCssToken> tokens = MRVCssTokenizer(part).readPart("").tokens;
    if (tokens.isEmpty()) {
        return {};
    }
    const MRVCssToken &first = tokens.constFirst();
    if (first.type == MRVCssToken::String || first.type == MRVCssToken::Url) {
        return tokens.size() == 1 ? first.text : QString();
    }
    if (first.type == MRVCssToken::Function) {
        const bool isUrl = first.text.compare(QLatin1String("url"), Qt::CaseInsensitive) == 0;
        for (const MRVCssToken &token : tokens) {
            if (isUrl && token.type == MRVCssToken::String) {
                return token.text;
            }
        }
        return {};
    }
    QStringList words;
    for (const MRVCssToken &token : tokens) {
        if (token.type == MRVCssToken::Ident) {
            words.append(token.text);
        } else if (token.type != MRVCssToken::Space) {
            return {};
        }
    }
    return words.join(u' ');
}
