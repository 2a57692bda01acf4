#include "datarows.h"
#include "util/mrvunit.h"

#include <limits>

/** Measures. The resolution is 96 dots an inch, as the environment of the tests says. */
class tst_Unit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data() { addRows("measures.tsv"); }
    void parse()
    {
        QFETCH(QString, text);
        QFETCH(QString, pattern);
        QFETCH(QString, points);
        QFETCH(QString, unit);
        QString gotPattern = "untouched";
        int gotDecimals = -5;
        double gotValue = -5.0;
        double gotPoints = -5.0;
        MRVUnit::Unit gotUnit = MRVUnit::Pixel;
        const bool ok =
            MRVUnit::parseMeasure(text, gotPattern, gotDecimals, gotValue, gotPoints, gotUnit);
        QCOMPARE(ok, !pattern.isEmpty());
        QCOMPARE(gotPattern, ok ? pattern : "untouched");
        QCOMPARE(QString::number(gotDecimals), ok ? cell("decimals") : "-5");
        QCOMPARE(QString::number(gotValue, 'g', 12), ok ? cell("value") : "-5");
        QCOMPARE(QString::number(gotPoints, 'g', 12), ok ? points : "-5");
        QCOMPARE(int(gotUnit), ok ? unit.toInt() : int(MRVUnit::Pixel));
        QCOMPARE(QString::number(MRVUnit::toPoint(text), 'g', 12), ok ? points : "0");
        QCOMPARE(int(MRVUnit::toUnit(text)), unit.toInt());
    }

    void convert_data() { addRows("conversions.tsv"); }
    void convert()
    {
        const double value = MRVUnit::toUnit(MRVUnit::Unit(cell("to").toInt()),
                                             MRVUnit::Unit(cell("from").toInt()), 1.0);
        QTEST(QString::number(value, 'g', 8), "expected");
    }

    void texts()
    {
        const QStringList shortSuffixes{"", "in", "dm", "cm", "mm", "px", "pi", "pt"};
        const QStringList forms{"12.5dd", "12.5\"", "12.5dm", "12.5cm",
                                "12.5mm", "12.5px", "12.5pi", "12.5pt"};
        for (int i = 0; i < forms.size(); ++i) {
            const auto unit = MRVUnit::Unit(i);
            QCOMPARE(MRVUnit::shortSuffix(unit), shortSuffixes[i]);
            const QString longSuffix = i == MRVUnit::Inch ? " inch(es)" : " " + shortSuffixes[i];
            QCOMPARE(MRVUnit::suffix(unit), i == 0 ? QString() : longSuffix);
            QCOMPARE(MRVUnit::toText(unit, 12.5), forms[i]);
            // None has two factors: this goes by the first one, toUnit() by the last.
            QCOMPARE(MRVUnit::toUnitEquivalent(unit, forms[i]), 12.5);
            QCOMPARE(MRVUnit::fromPoint(unit, MRVUnit::toPoint(unit, 3.0)), 3.0);
        }
        QCOMPARE(MRVUnit::toText(MRVUnit::Point, 1234567.0), QString("1.23457e+06pt"));
        QCOMPARE(MRVUnit::toUnitEquivalent(MRVUnit::Inch, "12"), 0.0);
        QCOMPARE(MRVUnit::toText(MRVUnit::Unit(99), 1.0) + MRVUnit::suffix(MRVUnit::Unit(99))
                     + MRVUnit::shortSuffix(MRVUnit::Unit(-1)),
                 QString());
    }

    void screen()
    {
        QCOMPARE(MRVUnit::pointsToPixels(10.0), 13);
        QCOMPARE(MRVUnit::pointsToPixels(-10.0), -13);
        QCOMPARE(MRVUnit::pixelsToPoints(4), 3.0);
        QCOMPARE(MRVUnit::pixelsToTwips(1), 15);
        QCOMPARE(MRVUnit::rtfPixelsToTwips(-3), -45);
        QCOMPARE(MRVUnit::twipsToPixels(29), 1);
        QCOMPARE(MRVUnit::rtfTwipsToPixels(30), 2);
        QCOMPARE(MRVUnit::pointsToPixels(1e300), std::numeric_limits<int>::max());
        QCOMPARE(MRVUnit::pixelsToTwips(std::numeric_limits<int>::min()),
                 std::numeric_limits<int>::min());
        QCOMPARE(MRVUnit::pointsToPixels(qQNaN()), 0);
    }
};

QTEST_MAIN(tst_Unit)
#include "tst_unit.moc"
