#include "util/mrvunit.h"

#include <QPair>
#include <QRegExp>

#include <iterator>
#include <limits>

#include <qtguiglobal.h>

QT_BEGIN_NAMESPACE
extern Q_GUI_EXPORT int
qt_defaultDpi(); // exported by Qt, and declared in none of its public headers
QT_END_NAMESPACE

namespace {

struct MeasureRow
{
    const char *suffix;
    const char *pattern;
    double points;
    MRVUnit::Unit unit;
};

// Searched in this order: "inch" stands before "in". Deliberate: a pixel counts as a point, and a
// didot as twelve ciceros.
// clang-format off
constexpr MeasureRow MeasureRows[] = {
    {"pt",   "%1pt",     1.0,        MRVUnit::Point},
    {"px",   "%1px",     1.0,        MRVUnit::Pixel},
    {"cm",   "%1cm",    28.3465058,  MRVUnit::Centimeter},
    {"mm",   "%1mm",     2.83465058, MRVUnit::Millimeter},
    {"dm",   "%1dm",   283.465058,   MRVUnit::Decimeter},
    {"inch", "%1\"",    72.0,        MRVUnit::Inch},
    {"in",   "%1\"",    72.0,        MRVUnit::Inch},
    {"\"",   "%1\"",    72.0,        MRVUnit::Inch},
    {"pi",   "%1pi",    12.0,        MRVUnit::Pica},
    {"dd",   "%1dd",   154.08124,    MRVUnit::None},
    {"cc",   "%1cc",    12.840103,   MRVUnit::None},
};

struct SuffixRow
{
    MRVUnit::Unit unit;
    const char *suffix;
    const char *shortSuffix;
};

constexpr SuffixRow SuffixRows[] = {
    {MRVUnit::None,       "",                                          ""},
    {MRVUnit::Inch,       QT_TRANSLATE_NOOP("MRVUnit", " inch(es)"),   "in"},
    {MRVUnit::Decimeter,  QT_TRANSLATE_NOOP("MRVUnit", " dm"),         "dm"},
    {MRVUnit::Centimeter, QT_TRANSLATE_NOOP("MRVUnit", " cm"),         "cm"},
    {MRVUnit::Millimeter, QT_TRANSLATE_NOOP("MRVUnit", " mm"),         "mm"},
    {MRVUnit::Pixel,      QT_TRANSLATE_NOOP("MRVUnit", " px"),         "px"},
    {MRVUnit::Pica,       QT_TRANSLATE_NOOP("MRVUnit", " pi"),         "pi"},
    {MRVUnit::Point,      QT_TRANSLATE_NOOP("MRVUnit", " pt"),         "pt"},
};
// clang-format on

constexpr bool suffixRowsAreInOrder()
{
    for (int i = 0; i < int(std::size(SuffixRows)); ++i) {
        if (SuffixRows[i].unit != i) {
            return false;
        }
    }
    return true;
}
static_assert(std::size(SuffixRows) == MRVUnit::Point + 1 && suffixRowsAreInOrder(),
              "row i belongs to unit i");

const MeasureRow *firstRow(MRVUnit::Unit unit)
{
    for (const MeasureRow &row : MeasureRows) {
        if (row.unit == unit) {
            return &row;
        }
    }
    return nullptr;
}

bool isUnit(MRVUnit::Unit unit)
{
    return unit >= 0 && unit < int(std::size(SuffixRows));
}

int toInt(double value)
{
    // Converting a double beyond the range of int is undefined, and so is converting NaN.
    if (qIsNaN(value)) {
        return 0;
    }
    return int(qBound(double(std::numeric_limits<int>::min()), value,
                      double(std::numeric_limits<int>::max())));
}

// Points and unit of a text; 0 and no unit where the text is not a measure.
QPair<double, MRVUnit::Unit> measureOf(const QString &text)
{
    QString pattern;
    int decimals = 0;
    double value = 0.0;
    double points = 0.0;
    MRVUnit::Unit unit = MRVUnit::None;
    MRVUnit::parseMeasure(text, pattern, decimals, value, points, unit);
    return {points, unit};
}

} // namespace

bool MRVUnit::parseMeasure(const QString &text, QString &pattern, int &decimals, double &value,
                           double &points, Unit &unit)
{
    QString measure = text;
    measure.remove(QRegExp(QStringLiteral("\\s")));
    for (const MeasureRow &row : MeasureRows) {
        const QLatin1String suffix(row.suffix);
        bool ok = false;
        const double number = measure.leftRef(measure.size() - suffix.size()).toDouble(&ok);
        if (!ok || !measure.endsWith(suffix)) {
            continue;
        }
        const int dot = measure.lastIndexOf(u'.');
        decimals = dot < 0 ? 0 : measure.size() - suffix.size() - dot - 1;
        pattern = QLatin1String(row.pattern);
        value = number;
        points = number * row.points;
        unit = row.unit;
        return true;
    }
    return false;
}

double MRVUnit::toPoint(const QString &text)
{
    return measureOf(text).first;
}

MRVUnit::Unit MRVUnit::toUnit(const QString &text)
{
    return measureOf(text).second;
}

double MRVUnit::toUnit(Unit to, Unit from, double value)
{
    if (to == from) {
        return value;
    }
    double target = 0.0;
    double source = 0.0;
    for (const MeasureRow &row : MeasureRows) { // of two rows for a unit, the later one counts here
        if (row.unit == to) {
            target = row.points;
        }
        if (row.unit == from) {
            source = row.points;
        }
    }
    return target == 0.0 || source == 0.0 ? value : value * source / target;
}

double MRVUnit::fromPoint(Unit unit, double points)
{
    return toUnit(unit, Point, points);
}

double MRVUnit::toPoint(Unit unit, double value)
{
    return toUnit(Point, unit, value);
}

double MRVUnit::toUnitEquivalent(Unit unit, const QString &text)
{
    const MeasureRow *row = firstRow(unit);
    return row ? toPoint(text) / row->points : 0.0;
}

QString MRVUnit::toText(Unit unit, double value)
{
    const MeasureRow *row = firstRow(unit);
    return row ? QString(QLatin1String(row->pattern)).arg(value, 0, 'g', -1, u' ') : QString();
}

QString MRVUnit::suffix(Unit unit)
{
    return isUnit(unit) && unit != None ? tr(SuffixRows[unit].suffix) : QString();
}

QString MRVUnit::shortSuffix(Unit unit)
{
    return isUnit(unit) ? QString(QLatin1String(SuffixRows[unit].shortSuffix)) : QString();
}

int MRVUnit::pointsToPixels(double points)
{
    static const double factor = qt_defaultDpi() / 72.0;
    return toInt(points * factor);
}

double MRVUnit::pixelsToPoints(int pixels)
{
    static const double factor = 72.0 / qt_defaultDpi();
    return pixels * factor;
}

int MRVUnit::pixelsToTwips(int pixels)
{
    return toInt(pixelsToPoints(pixels) * 20);
}

int MRVUnit::twipsToPixels(int twips)
{
    return pointsToPixels(twips / 20.0);
}

int MRVUnit::rtfPixelsToTwips(int pixels)
{
    return pixelsToTwips(pixels);
}

int MRVUnit::rtfTwipsToPixels(int twips)
{
    return twipsToPixels(twips);
}
