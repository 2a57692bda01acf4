#include "text/mrvtextformat.h"
#include "text/mrvtextutil.h"

#include <QBrush>
#include <QDataStream>
#include <QFontDatabase>
#include <QLinearGradient>
#include <QPen>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextOption>
#include <QtTest>

#include <sys/resource.h>

using Tab = QTextOption::Tab;

namespace {

struct Unstorable
{
    int value = 0;
};

QTextBlockFormat spaced(double spacing, double base)
{
    QTextBlockFormat format;
    format.setProperty(MRVTextFormat::BlockSpacing, spacing);
    format.setProperty(MRVTextFormat::BlockBaseSpacing, base);
    return format;
}

QTextCharFormat with(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return format;
}

QTextCharFormat holding(const QVariant &value)
{
    return with(MRVTextFormat::ExtraProperty4, value);
}

QImage squares()
{
    QImage image(8, 8, QImage::Format_ARGB32);
    for (int i = 0; i < 64; ++i)
        image.setPixelColor(i % 8, i / 8, QColor(i * 4, 255 - i * 3, (i * 37) % 256, 255 - i));
    return image;
}

QBrush gradientBrush(QGradient *gradient)
{
    gradient->setColorAt(0.25, Qt::red);
    gradient->setColorAt(1.0, Qt::blue);
    gradient->setSpread(QGradient::ReflectSpread);
    QBrush brush(*gradient);
    brush.setTransform(QTransform().rotate(30));
    return brush;
}

/// One format for each kind of value that formats hold.
QVector<QPair<QByteArray, QTextCharFormat>> sampleFormats()
{
    QLinearGradient linear(0, 0, 10, 20);
    QRadialGradient radial(5, 5, 3);
    QConicalGradient conical(1, 2, 45);
    QPen pen(QColor(1, 2, 3), 2.5, Qt::CustomDashLine, Qt::RoundCap, Qt::MiterJoin);
    pen.setDashPattern({1, 2, 3, 4});
    QTextCharFormat plain;
    plain.setFontWeight(75);
    plain.setFontFamily("Serif");
    plain.setFontPointSize(12.5);
    plain.setAnchorNames({"one", "two"});
    plain.setForeground(QColor(10, 20, 30));

    return {
        {"empty", QTextCharFormat()},
        {"text", plain},
        {"color", with(QTextFormat::TextUnderlineColor, QColor::fromHsvF(0.5, 0.5, 0.5))},
        {"linear", with(QTextFormat::BackgroundBrush, gradientBrush(&linear))},
        {"radial", with(QTextFormat::BackgroundBrush, gradientBrush(&radial))},
        {"conical", with(QTextFormat::BackgroundBrush, gradientBrush(&conical))},
        {"texture", with(QTextFormat::BackgroundBrush, QBrush(squares()))},
        {"pen", with(QTextFormat::TextOutline, pen)},
        {"length", holding(QVariant::fromValue(QTextLength(QTextLength::PercentageLength, 50)))},
        {"list", holding(QVariantList{1, "x", QVariantList{true, 2.5}, QByteArray("bytes")})},
        {"map", holding(QVariantMap{{"a", 1}, {"b", QVariantMap{{"c", QString()}}}})},
        {"hash", holding(QVariantHash{{"a", QChar('z')}})},
        {"url", holding(QUrl("https://morvane.example/a?b#c"))},
        {"date", holding(QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::OffsetFromUTC, 3600))},
        {"float", holding(1.5f)},
        {"long", holding(QVariant::fromValue(long(-5)))},
        {"rect", holding(QRectF(1, 2, 3, 4))},
    };
}

QTextBlockFormat sampleBlockFormat()
{
    QTextBlockFormat format = spaced(14, 12);
    format.setTabPositions(
        {Tab(36.0, QTextOption::RightTab), Tab(72.5, QTextOption::DelimiterTab, '.')});
    format.setAlignment(Qt::AlignJustify);
    return format;
}

/// Peak memory of the process in bytes.
qint64 peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qint64(usage.ru_maxrss) * 1024;
}

// What any bytes may cost to read; under the sanitizers freed memory counts, too.
constexpr qint64 AllowedMemory = 300 << 20;

QByteArray streamed(const std::function<void(QDataStream &)> &write)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    write(stream);
    return bytes;
}

/// The stored form of a char format whose one property holds what @p value writes after the null mark.
QByteArray storedValue(int type, const std::function<void(QDataStream &)> &value)
{
    return streamed([&](QDataStream &stream) {
        stream << qint32(QTextFormat::CharFormat) << quint32(1)
               << qint32(MRVTextFormat::ExtraProperty4) << quint32(type) << qint8(0);
        value(stream);
    });
}

} // namespace

Q_DECLARE_METATYPE(Unstorable)

class TestTextFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersAreFixed_data();
    void numbersAreFixed();
    void fontHinting();
    void anyProperty();

    void storedFormatsComeBack_data();
    void storedFormatsComeBack();
    void storedBlockFormatComesBack();
    void storedFormIsQtsStream();
    void unstorableValueCostsOnlyItself();
    void unreadableBytesGiveDefault_data();
    void unreadableBytesGiveDefault();
    void spareBytesAreIgnored();
    void damagedBytes_data();
    void damagedBytes();
    void randomBytes();

    void simplified_data();
    void simplified();
    void simplifiedAndSimplifySpacingRoundDifferently();
    void simplifyOfHeading();
    void spacingType_data();
    void spacingType();
    void equivalentSpacing();

    void equivalent_data();
    void equivalent();
    void formatsMatch_data();
    void formatsMatch();
    void tabStopsCompareByValue();
    void defaultProperty_data();
    void defaultProperty();

    void defaultCharFormat();
    void linkId_data();
    void linkId();
    void linkFormat();
    void marksInString_data();
    void marksInString();
    void imageProperties();

    void documentFormatPair();
    void fragmentFormat_data();
    void fragmentFormat();
    void fontWeights();
};

void TestTextFormat::numbersAreFixed_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<int>("number");
    QTest::newRow("left-indent") << int(MRVTextFormat::BlockLeftIndent) << 0x1036;
    QTest::newRow("right-indent") << int(MRVTextFormat::BlockRightIndent) << 0x1037;
    QTest::newRow("spacing") << int(MRVTextFormat::BlockSpacing) << 0x1070;
    QTest::newRow("base-spacing") << int(MRVTextFormat::BlockBaseSpacing) << 0x1071;
    QTest::newRow("list-1") << int(MRVTextFormat::ListExtraProperty1) << 0x100001;
    QTest::newRow("preserve") << int(MRVTextFormat::PreserveFormatProperty) << 0x100003;
    QTest::newRow("comment-0") << int(MRVTextFormat::CommentData0) << 0x100007;
    QTest::newRow("revision") << int(MRVTextFormat::RevisionLevelProperty) << 0x10000a;
    QTest::newRow("image-link") << int(MRVTextFormat::ImageLinkProperty) << 0x10000b;
    QTest::newRow("image-data") << int(MRVTextFormat::ImageRawDataProperty) << 0x10000c;
    QTest::newRow("image-type") << int(MRVTextFormat::ImageTypeProperty) << 0x10000d;
    QTest::newRow("image-name") << int(MRVTextFormat::ImageNameProperty) << 0x10000e;
    QTest::newRow("extra-15") << int(MRVTextFormat::ExtraProperty15) << 0x10000f;
    QTest::newRow("annotation") << int(MRVTextFormat::InlineAnnotationProperty) << 0x100064;
    QTest::newRow("footnote") << int(MRVTextFormat::InspectorFootnoteProperty) << 0x100067;
    QTest::newRow("extra-200") << int(MRVTextFormat::ExtraProperty200) << 0x1000c8;
    QTest::newRow("extra-211") << int(MRVTextFormat::ExtraProperty211) << 0x1000d3;
}

void TestTextFormat::numbersAreFixed()
{
    QFETCH(int, property);
    QFETCH(int, number);
    QCOMPARE(property, number);
}

void TestTextFormat::fontHinting()
{
    const QTextCharFormat bold = with(QTextFormat::FontWeight, 75);
    const QTextCharFormat hinted = MRVTextFormat::setFontHinting(bold, true);
    QCOMPARE(hinted.property(0x1fe6), QVariant(3));
    QCOMPARE(hinted.fontWeight(), 75);
    QCOMPARE(MRVTextFormat::setFontHinting(hinted, false).property(0x1fe6), QVariant(1));
    QVERIFY(!bold.hasProperty(0x1fe6));
}

void TestTextFormat::anyProperty()
{
    const QTextCharFormat format = with(QTextFormat::FontItalic, false);
    QVERIFY(
        MRVTextFormat::hasAnyProperty(format, {QTextFormat::FontWeight, QTextFormat::FontItalic}));
    QVERIFY(!MRVTextFormat::hasAnyProperty(format, {QTextFormat::FontWeight}));
    QVERIFY(!MRVTextFormat::hasAnyProperty(format, {}));
}

void TestTextFormat::storedFormatsComeBack_data()
{
    QTest::addColumn<QTextFormat>("format");
    for (const auto &sample : sampleFormats())
        QTest::newRow(sample.first.constData()) << QTextFormat(sample.second);
}

void TestTextFormat::storedFormatsComeBack()
{
    QFETCH(QTextFormat, format);
    const QTextCharFormat original = format.toCharFormat();
    const QByteArray bytes = MRVTextFormat::toByteArray(original);
    const QTextCharFormat back = MRVTextFormat::toCharFormat(bytes);
    QCOMPARE(back.properties().keys(), original.properties().keys());
    const QVariant brush = original.property(QTextFormat::BackgroundBrush);
    if (brush.userType() == QMetaType::QBrush
        && brush.value<QBrush>().style() == Qt::TexturePattern) {
        // Qt compares textures by address.
        QCOMPARE(back.background().textureImage(), original.background().textureImage());
    } else {
        QCOMPARE(back.properties(), original.properties());
    }
    QCOMPARE(MRVTextFormat::toByteArray(back), bytes);
    QCOMPARE(MRVTextFormat::toCharFormat(QVariant(bytes)).properties().keys(),
             original.properties().keys());
    QVERIFY(MRVTextFormat::toBlockFormat(bytes).properties().isEmpty());
}

void TestTextFormat::storedBlockFormatComesBack()
{
    const QTextBlockFormat original = sampleBlockFormat();
    const QByteArray bytes = MRVTextFormat::toByteArray(original);
    const QTextBlockFormat back = MRVTextFormat::toBlockFormat(bytes);
    QCOMPARE(back.tabPositions(), original.tabPositions());
    QCOMPARE(back.properties(), original.properties());
    QCOMPARE(MRVTextFormat::toBlockFormat(QVariant(bytes)).alignment(), Qt::AlignJustify);
    const QTextCharFormat other = MRVTextFormat::toCharFormat(bytes);
    QVERIFY(other.isCharFormat());
    QVERIFY(other.properties().isEmpty());
}

void TestTextFormat::storedFormIsQtsStream()
{
    const QTextCharFormat format = with(QTextFormat::FontItalic, true);
    const QByteArray expected = streamed([&](QDataStream &stream) { stream << format; });
    QCOMPARE(MRVTextFormat::toByteArray(format), expected);
    QCOMPARE(expected.toHex(),
             QByteArray("00000002"
                        "00000001"
                        "00002004"
                        "00000001"
                        "00"
                        "01"));
}

void TestTextFormat::unstorableValueCostsOnlyItself()
{
    QTextCharFormat format = holding(QVariant::fromValue(Unstorable()));
    format.setFontItalic(true);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unable to save type 'Unstorable'"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("unable to save type 'Unstorable'"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("0x100004 of type Unstorable"));
    const QTextCharFormat back = MRVTextFormat::toCharFormat(MRVTextFormat::toByteArray(format));
    QCOMPARE(back.properties().keys(), QList<int>{QTextFormat::FontItalic});
}

void TestTextFormat::unreadableBytesGiveDefault_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("type-only") << QByteArray::fromHex("00000002");
    QTest::newRow("unknown-format-type") << QByteArray::fromHex("0000000700000000");
    QTest::newRow("huge-property-count") << QByteArray::fromHex("000000027ffffff0");
    QTest::newRow("qt-crasher")
        << QByteArray::fromHex("0000000200000001").append(QByteArray(60, '\x42'));
    const auto row = [](const char *name, int type,
                        const std::function<void(QDataStream &)> &write) {
        QTest::newRow(name) << storedValue(type, write);
    };
    row("huge-list", QMetaType::QVariantList, [](QDataStream &s) { s << quint32(0x7ffffff0); });
    row("huge-string-list", QMetaType::QStringList,
        [](QDataStream &s) { s << quint32(0x7ffffff0); });
    row("long-string", QMetaType::QString,
        [](QDataStream &s) { s << quint32(0x7ffffff0) << quint32(0); });
    row("odd-string", QMetaType::QString, [](QDataStream &s) { s << quint32(3) << quint32(0); });
    row("long-bytes", QMetaType::QByteArray, [](QDataStream &s) { s << quint32(0xfffffffe); });
    row("font", QMetaType::QFont, [](QDataStream &s) { s << QFont(); });
    row("palette", QMetaType::QPalette, [](QDataStream &s) { s << QPalette(); });
    row("user-type", QMetaType::User, [](QDataStream &s) { s << QByteArray("QPolygon"); });
    row("unknown-type-number", 5000, [](QDataStream &s) { s << qint32(1); });
    row("color-spec", QMetaType::QColor,
        [](QDataStream &s) { s << qint8(9) << qint64(0) << qint16(0); });
    row("brush-style", QMetaType::QBrush,
        [](QDataStream &s) { s << quint8(20) << QColor(Qt::red) << QTransform(); });
    const auto gradient = [&](const char *name, qint32 type, quint32 stops, double position) {
        row(name, QMetaType::QBrush, [=](QDataStream &s) {
            s << quint8(Qt::LinearGradientPattern) << QColor(Qt::red) << type << qint32(0)
              << qint32(0) << qint32(0) << stops << position << QColor(Qt::red) << QPointF()
              << QPointF() << QTransform();
        });
    };
    gradient("gradient-type", 2, 1, 0.5);
    gradient("gradient-stops", 0, 0x10000000, 0.5);
    gradient("gradient-position", 0, 1, qQNaN());
    row("pen-style", QMetaType::QPen, [](QDataStream &s) {
        s << quint16(0xffff) << true << 1.0 << QBrush() << 1.0 << quint32(0) << 0.0 << false;
    });
    row("pen-dashes", QMetaType::QPen, [](QDataStream &s) {
        s << quint16(1) << true << 1.0 << QBrush() << 1.0 << quint32(0x7fffffff) << 0.0 << false;
    });
    row("length-type", QMetaType::QTextLength, [](QDataStream &s) { s << qint32(7) << 1.0; });
    row("tab-type", QMetaType::User, [](QDataStream &s) {
        s << QByteArray("QTextOption::Tab", 17) << 1.0 << quint32(9) << QChar('.');
    });
    row("deep-list", QMetaType::QVariantList, [](QDataStream &s) {
        for (int i = 0; i < 100000; ++i)
            s << quint32(1) << quint32(QMetaType::QVariantList) << qint8(0);
        s << quint32(0);
    });
    row("huge-picture", QMetaType::QImage, [](QDataStream &s) {
        QImage bomb(8192, 8192, QImage::Format_Mono);
        bomb.fill(0);
        s << bomb;
    });
    row("picture-without-data", QMetaType::QImage, [](QDataStream &s) {
        const QByteArray png("\x89PNG\r\n\x1a\n", 8);
        s << qint32(1);
        s.writeRawData(png.constData(), png.size());
    });
}

void TestTextFormat::unreadableBytesGiveDefault()
{
    QFETCH(QByteArray, bytes);
    const qint64 before = peakMemory();
    const QTextCharFormat charFormat = MRVTextFormat::toCharFormat(bytes);
    QVERIFY(charFormat.isCharFormat());
    QVERIFY(charFormat.properties().isEmpty());
    QVERIFY(MRVTextFormat::toBlockFormat(bytes).isBlockFormat());
    QVERIFY(MRVTextFormat::toBlockFormat(bytes).properties().isEmpty());
    QVERIFY(peakMemory() - before < (64 << 20));
}

void TestTextFormat::spareBytesAreIgnored()
{
    const QTextCharFormat format = with(QTextFormat::FontItalic, true);
    const QByteArray bytes = MRVTextFormat::toByteArray(format) + "spare";
    QVERIFY(MRVTextFormat::toCharFormat(bytes).fontItalic());
}

void TestTextFormat::damagedBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const auto &sample : sampleFormats())
        QTest::newRow(sample.first.constData()) << MRVTextFormat::toByteArray(sample.second);
    QTest::newRow("block") << MRVTextFormat::toByteArray(sampleBlockFormat());
}

// Cut off at every length, and every byte changed to several values: no crash, no hang, no more
// memory than a few pictures take, and what is cut off is a default format.
void TestTextFormat::damagedBytes()
{
    QFETCH(QByteArray, bytes);
    const qint64 before = peakMemory();
    for (int size = 0; size < bytes.size(); ++size) {
        QVERIFY(MRVTextFormat::toCharFormat(bytes.left(size)).properties().isEmpty());
        QVERIFY(MRVTextFormat::toBlockFormat(bytes.left(size)).properties().isEmpty());
    }
    for (int at = 0; at < bytes.size(); ++at) {
        const char old = bytes.at(at);
        for (const char value :
             {'\0', '\x01', '\x7f', '\x80', '\xff', char(old ^ 0x04), char(old + 1)}) {
            QByteArray damaged = bytes;
            damaged[at] = value;
            MRVTextFormat::toCharFormat(damaged);
            MRVTextFormat::toBlockFormat(damaged);
        }
    }
    QVERIFY(peakMemory() - before < AllowedMemory);
}

void TestTextFormat::randomBytes()
{
    const qint64 before = peakMemory();
    QRandomGenerator random(20251018);
    const auto samples = sampleFormats();
    for (int round = 0; round < 20000; ++round) {
        // A sound beginning, so that the noise reaches the values.
        QByteArray bytes = MRVTextFormat::toByteArray(samples.at(round % samples.size()).second);
        bytes.truncate(int(random.bounded(quint32(bytes.size() + 1))));
        const int noise = random.bounded(64);
        for (int i = 0; i < noise; ++i)
            bytes += char(random.bounded(4) ? random.bounded(16) : random.bounded(256));
        MRVTextFormat::toCharFormat(bytes);
    }
    QVERIFY(peakMemory() - before < AllowedMemory);
}

void TestTextFormat::simplified_data()
{
    QTest::addColumn<QTextFormat>("format");
    QTest::addColumn<int>("groups");
    QTest::addColumn<QTextFormat>("expected");
    QTextBlockFormat full = spaced(10, 20);
    full.setTopMargin(3);
    full.setTextIndent(5);
    full.setProperty(MRVTextFormat::BlockLeftIndent, 7.0);
    full.setProperty(MRVTextFormat::BlockRightIndent, 8.0);
    full.setAlignment(Qt::AlignRight);
    QTextBlockFormat margins;
    margins.setTopMargin(3);
    QTextBlockFormat indents;
    indents.setProperty(MRVTextFormat::BlockLeftIndent, 7.0);
    indents.setTextIndent(5);
    indents.setProperty(MRVTextFormat::BlockRightIndent, 8.0);
    QTextBlockFormat all = spaced(6, 12);
    all.merge(margins);
    all.merge(indents);

    const auto row = [](const char *name, const QTextBlockFormat &format, int groups,
                        const QTextBlockFormat &expected) {
        QTest::newRow(name) << QTextFormat(format) << groups << QTextFormat(expected);
    };
    row("nothing", full, 0, QTextBlockFormat());
    row("indents", full, MRVTextFormat::IndentGroup, indents);
    row("paragraph-spacing", full, MRVTextFormat::ParagraphSpacingGroup, margins);
    row("line-spacing", full, MRVTextFormat::LineSpacingGroup, spaced(6, 12));
    row("all", full, 7, all);
    row("no-spacing", QTextBlockFormat(), 7, spaced(12, 12));
    row("single", spaced(30, 30), MRVTextFormat::LineSpacingGroup, spaced(12, 12));
    row("fixed", spaced(14, 0), MRVTextFormat::LineSpacingGroup, spaced(14, 0));
}

void TestTextFormat::simplified()
{
    QFETCH(QTextFormat, format);
    QFETCH(int, groups);
    QFETCH(QTextFormat, expected);
    const QTextBlockFormat result = MRVTextFormat::simplified(
        format.toBlockFormat(), MRVTextFormat::FormatGroups(QFlag(groups)));
    QCOMPARE(result.properties(), expected.properties());
}

void TestTextFormat::simplifiedAndSimplifySpacingRoundDifferently()
{
    const QTextBlockFormat nearlyEqual = spaced(10.0 * (1 + 1e-14), 10.0);
    const auto spacing = [](const QTextBlockFormat &format) {
        return format.doubleProperty(MRVTextFormat::BlockSpacing);
    };
    QVERIFY(spacing(MRVTextFormat::simplified(nearlyEqual, MRVTextFormat::LineSpacingGroup))
            == 12.0);
    QVERIFY(spacing(MRVTextFormat::simplifiedSpacing(nearlyEqual)) != 12.0);
    QCOMPARE(MRVTextFormat::simplifiedSpacing(spaced(10, 20)).properties(),
             spaced(6, 12).properties());
    QCOMPARE(MRVTextFormat::simplifiedSpacing(QTextBlockFormat()).properties(),
             spaced(12, 12).properties());
    MRVTextFormat::simplifySpacing(nullptr);
}

// A heading level lies under the number of the spacing, and is none.
void TestTextFormat::simplifyOfHeading()
{
    QTextBlockFormat heading;
    heading.setHeadingLevel(3);
    double value = 0.0;
    QCOMPARE(MRVTextFormat::spacingType(heading, &value), MRVTextFormat::SingleSpacing);
    QCOMPARE(value, 1.0);
    QCOMPARE(heading.headingLevel(), 3);
    QCOMPARE(MRVTextFormat::simplified(heading, MRVTextFormat::LineSpacingGroup).properties(),
             spaced(12, 12).properties());
}

void TestTextFormat::spacingType_data()
{
    QTest::addColumn<double>("spacing");
    QTest::addColumn<double>("base");
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("value");
    QTest::newRow("unset") << 0.0 << 0.0 << 0 << 1.0;
    QTest::newRow("single") << 17.0 << 17.0 << 0 << 1.0;
    QTest::newRow("base-only") << 0.0 << 12.0 << 0 << 1.0;
    QTest::newRow("double") << 24.0 << 12.0 << 1 << 2.0;
    QTest::newRow("double-other-base") << 20.0 << 10.0 << 1 << 2.0;
    QTest::newRow("fixed") << 14.0 << 0.0 << 2 << 14.0;
    QTest::newRow("exact") << -14.0 << 0.0 << 3 << 14.0;
    QTest::newRow("multiple") << 18.0 << 12.0 << 4 << 1.5;
    QTest::newRow("less-than-single") << 10.0 << 20.0 << 4 << 0.5;
}

void TestTextFormat::spacingType()
{
    QFETCH(double, spacing);
    QFETCH(double, base);
    double value = -1.0;
    QTEST(int(MRVTextFormat::spacingType(spaced(spacing, base), &value)), "type");
    QTEST(value, "value");
    QTEST(int(MRVTextFormat::spacingType(spaced(spacing, base))), "type");
}

void TestTextFormat::equivalentSpacing()
{
    QVERIFY(MRVTextFormat::equivalentSpacing(spaced(18, 12), spaced(30, 20)));
    QVERIFY(MRVTextFormat::equivalentSpacing(spaced(12, 12), QTextBlockFormat()));
    QVERIFY(!MRVTextFormat::equivalentSpacing(spaced(18, 12), spaced(19, 12)));
    QVERIFY(!MRVTextFormat::equivalentSpacing(spaced(14, 0), spaced(-14, 0)));
}

void TestTextFormat::equivalent_data()
{
    QTest::addColumn<QTextFormat>("a");
    QTest::addColumn<QTextFormat>("b");
    QTest::addColumn<bool>("same");
    const QTextCharFormat none;
    const auto row = [](const char *name, const QTextFormat &a, const QTextFormat &b, bool same) {
        QTest::newRow(name) << a << b << same;
    };
    row("empty", none, none, true);
    row("normal-weight", with(QTextFormat::FontWeight, 50), none, true);
    row("bold", with(QTextFormat::FontWeight, 75), none, false);
    row("underline-off", with(QTextFormat::FontUnderline, false), none, false);
    row("size-adjustment", with(QTextFormat::FontSizeAdjustment, 0), none, false);
    row("page-break", with(QTextFormat::PageBreakPolicy, 1), with(QTextFormat::PageBreakPolicy, 2),
        true);
    row("page-break-alone", with(QTextFormat::PageBreakPolicy, 1), none, true);
    row("values", with(QTextFormat::FontFamily, "A"), with(QTextFormat::FontFamily, "B"), false);
    row("no-anchor-names", with(QTextFormat::AnchorName, QStringList()), none, true);
    row("no-anchor-name", with(QTextFormat::AnchorName, QStringList()),
        with(QTextFormat::AnchorName, ""), true);
    row("anchor-name", with(QTextFormat::AnchorName, QStringList{"a"}), none, false);
    row("no-color", with(QTextFormat::TextUnderlineColor, QColor()), none, true);
    row("explicit-no-brush", with(QTextFormat::ForegroundBrush, QBrush()), none, false);
    row("no-inline-note", with(MRVTextFormat::InlineFootnoteProperty, false), none, true);
    row("unknown-property", holding(0), none, false);
    row("block-left", sampleBlockFormat(), sampleBlockFormat(), true);
    row("no-tabs", with(QTextFormat::TabPositions, QVariantList()), none, true);
}

void TestTextFormat::equivalent()
{
    QFETCH(QTextFormat, a);
    QFETCH(QTextFormat, b);
    QTEST(MRVTextFormat::equivalent(a, b), "same");
    QTEST(MRVTextFormat::equivalent(b, a), "same");
    QVERIFY(MRVTextFormat::equivalent(a, a));
}

void TestTextFormat::formatsMatch_data()
{
    QTest::addColumn<QTextFormat>("format");
    QTest::addColumn<QTextFormat>("pattern");
    QTest::addColumn<bool>("values");
    QTest::addColumn<bool>("match");
    QTextCharFormat rich = with(QTextFormat::FontWeight, 75);
    rich.setFontItalic(true);
    const auto row = [](const char *name, const QTextFormat &format, const QTextFormat &pattern,
                        bool values, bool match) {
        QTest::newRow(name) << format << pattern << values << match;
    };
    row("empty-pattern", rich, QTextCharFormat(), true, true);
    row("subset", rich, with(QTextFormat::FontItalic, true), true, true);
    row("other-value", rich, with(QTextFormat::FontWeight, 50), true, false);
    row("other-value-unchecked", rich, with(QTextFormat::FontWeight, 50), false, true);
    row("default-is-not-set", QTextCharFormat(), with(QTextFormat::FontWeight, 50), true, false);
    row("missing-unchecked", rich, with(QTextFormat::FontFamily, "A"), false, false);
    // true == "abc", but not "abc" == true.
    row("format-on-the-left", holding(true), holding("abc"), true,
        QVariant(true) == QVariant("abc"));
    row("format-on-the-left-text", holding("abc"), holding(true), true,
        QVariant("abc") == QVariant(true));
}

void TestTextFormat::formatsMatch()
{
    QFETCH(QTextFormat, format);
    QFETCH(QTextFormat, pattern);
    QFETCH(bool, values);
    QTEST(MRVTextFormat::formatsMatch(format.toCharFormat(), pattern.toCharFormat(), values),
          "match");
}

void TestTextFormat::tabStopsCompareByValue()
{
    QTextBlockFormat a;
    a.setTabPositions({Tab(10, QTextOption::LeftTab)});
    QTextBlockFormat b;
    b.setTabPositions({Tab(10, QTextOption::LeftTab)});
    QVERIFY(MRVTextFormat::equivalent(a, b));
    b.setTabPositions({Tab(11, QTextOption::LeftTab)});
    QVERIFY(!MRVTextFormat::equivalent(a, b));
}

void TestTextFormat::defaultProperty_data()
{
    QTest::addColumn<QVector<int>>("properties");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("int-0") << QVector<int>{0x800,  0x801,  0x810,  0x820,  0x821,  0x1060, 0x1fe0,
                                           0x1fe3, 0x1fe4, 0x2009, 0x2021, 0x2022, 0x2023, 0x7000}
                           << QVariant(0);
    QTest::newRow("alignment") << QVector<int>{0x1010} << QVariant(1);
    QTest::newRow("weight") << QVector<int>{0x2003} << QVariant(50);
    QTest::newRow("double") << QVector<int>{0x1030, 0x1031, 0x1032, 0x1033, 0x1034, 0x1036,
                                            0x1037, 0x1070, 0x1071, 0x1fe1, 0x1fe2, 0x2001}
                            << QVariant(0.0);
    QTest::newRow("bool") << QVector<int>{0x1fe5, 0x2004,   0x2006,   0x2007,   0x2008,
                                          0x2030, 0x100064, 0x100065, 0x100066, 0x100067}
                          << QVariant(false);
    QTest::newRow("text") << QVector<int>{0x823, 0x2000, 0x2024, 0x2031, 0x2032}
                          << QVariant(QString(""));
    QTest::newRow("tabs") << QVector<int>{0x1035} << QVariant(QVariantList());
    QTest::newRow("color") << QVector<int>{0x2010} << QVariant(QColor());
    QTest::newRow("none") << QVector<int>{0x2005, 0x2002, 0x1fe6, 0x1fe7, 0x1040, 0x100003, 0, -1}
                          << QVariant();
}

void TestTextFormat::defaultProperty()
{
    QFETCH(QVector<int>, properties);
    QFETCH(QVariant, value);
    for (int property : properties) {
        const QVariant actual = MRVTextFormat::defaultProperty(property);
        QVERIFY2(actual == value && actual.userType() == value.userType(),
                 qPrintable(QString::number(property, 16)));
    }
}

void TestTextFormat::defaultCharFormat()
{
    QTextDocument document;
    QFont font("DejaVu Serif", 17);
    font.setBold(true);
    document.setDefaultFont(font);
    QTextCharFormat expected;
    expected.setProperty(QTextFormat::FontFamily, "DejaVu Serif");
    expected.setProperty(QTextFormat::FontPointSize, 17.0);
    expected.setProperty(QTextFormat::FontWeight, 75);
    QCOMPARE(MRVTextFormat::defaultCharFormat(document).properties(), expected.properties());

    QTextCharFormat set = with(QTextFormat::FontPointSize, 20.0);
    set.setFontWeight(0);
    set.setForeground(Qt::red);
    MRVTextFormat::setDefaultCharFormat(document, set);
    QCOMPARE(MRVTextFormat::defaultCharFormat(document).properties(), set.properties());
    QCOMPARE(document.defaultFont().pointSizeF(), 20.0);
    QCOMPARE(document.defaultFont().weight(), int(QFont::Normal));
    QVERIFY(!document.isUndoAvailable());
}

void TestTextFormat::linkId_data()
{
    QTest::addColumn<QString>("href");
    QTest::addColumn<int>("id");
    QTest::newRow("number") << "42" << 42;
    QTest::newRow("zero") << "0" << 0;
    QTest::newRow("leading-zero") << "007" << 7;
    QTest::newRow("largest") << "2147483647" << 2147483647;
    QTest::newRow("overflow") << "2147483648" << -1;
    QTest::newRow("long-overflow") << "99999999999" << -1;
    QTest::newRow("letter") << "42x" << -1;
    QTest::newRow("blank") << " 12" << -1;
    QTest::newRow("newline") << "12\n" << -1;
    QTest::newRow("negative") << "-3" << -1;
    QTest::newRow("arabic-digits") << QString::fromUtf8("\u0664\u0662") << -1;
    QTest::newRow("empty") << "" << -1;
    QTest::newRow("web") << "https://morvane.example/42" << -1;
}

void TestTextFormat::linkId()
{
    QFETCH(QString, href);
    QFETCH(int, id);
    QCOMPARE(MRVTextFormat::morvaneLinkId(href), id);
    QCOMPARE(MRVTextFormat::isMorvaneLink(href), id >= 0);
}

void TestTextFormat::linkFormat()
{
    QTextCharFormat format;
    format.setAnchorHref("12");
    QVERIFY(!MRVTextFormat::isMorvaneLink(format));
    format.setAnchor(true);
    QVERIFY(MRVTextFormat::isMorvaneLink(format));
    format.setAnchorHref("12a");
    QVERIFY(!MRVTextFormat::isMorvaneLink(format));
}

void TestTextFormat::marksInString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("frame");
    QTest::addColumn<bool>("block");
    QTest::newRow("plain") << "a\nb" << false << false;
    QTest::newRow("begin") << QString("a") + QChar(0xfdd0) << true << true;
    QTest::newRow("end") << QString(QChar(0xfdd1)) << true << true;
    QTest::newRow("paragraph") << QString(QChar(0x2029)) << false << true;
    QTest::newRow("line") << QString(QChar(0x2028)) << false << false;
}

void TestTextFormat::marksInString()
{
    QFETCH(QString, text);
    QTEST(MRVTextFormat::hasFrameInString(text), "frame");
    QTEST(MRVTextFormat::hasBlockInString(text), "block");
}

void TestTextFormat::imageProperties()
{
    QTextImageFormat format;
    QCOMPARE(MRVTextFormat::imageType(format), QString("PNG"));
    QCOMPARE(MRVTextFormat::imageType(format, "gif"), QString("gif"));
    QVERIFY(MRVTextFormat::imageLink(format).isEmpty());
    QVERIFY(MRVTextFormat::imageRawData(format).isEmpty());
    format.setName("id");
    QCOMPARE(MRVTextFormat::imageName(format), QString("id"));
    format.setProperty(MRVTextFormat::ImageNameProperty, "Map");
    format.setProperty(MRVTextFormat::ImageTypeProperty, "JPG");
    format.setProperty(MRVTextFormat::ImageLinkProperty, "/tmp/map.jpg");
    format.setProperty(MRVTextFormat::ImageRawDataProperty, QByteArray("raw"));
    QCOMPARE(MRVTextFormat::imageName(format), QString("Map"));
    QCOMPARE(MRVTextFormat::imageResourceId(format), QString("id"));
    QCOMPARE(MRVTextFormat::imageType(format, "gif"), QString("JPG"));
    QCOMPARE(MRVTextFormat::imageLink(format), QString("/tmp/map.jpg"));
    QCOMPARE(MRVTextFormat::imageRawData(format), QByteArray("raw"));

    QTextDocument document;
    QVERIFY(MRVTextFormat::image(document, format).isNull());
    document.addResource(QTextDocument::ImageResource, QUrl("id"), squares());
    QCOMPARE(MRVTextFormat::image(document, format), squares());
    QVERIFY(MRVTextFormat::imageResourceId(squares()).startsWith("img-"));
}

void TestTextFormat::documentFormatPair()
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.setBlockFormat(spaced(14, 12));
    cursor.insertText("bold", with(QTextFormat::FontWeight, 75));
    cursor.insertText("plain", QTextCharFormat());
    const auto pair = mrvDocumentFormatPair(document);
    QCOMPARE(pair.first.properties(), spaced(14, 12).properties());
    QCOMPARE(pair.second.fontWeight(), 75);
}

void TestTextFormat::fragmentFormat_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<bool>("spacing");
    QTest::addColumn<bool>("bold");
    QTest::newRow("empty") << 0 << 0 << false << false;
    QTest::newRow("paragraphs") << 0 << 12 << true << true;
    QTest::newRow("inside-run") << 1 << 3 << false << true;
    QTest::newRow("plain-run") << 5 << 7 << false << false;
    QTest::newRow("empty-paragraph-first") << 10 << 13 << false << false;
}

void TestTextFormat::fragmentFormat()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(bool, spacing);
    QFETCH(bool, bold);
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.setBlockFormat(spaced(14, 12));
    cursor.insertText("bold", with(QTextFormat::FontWeight, 75));
    cursor.insertText("plain", QTextCharFormat());
    cursor.insertBlock(spaced(14, 12), QTextCharFormat());
    cursor.insertBlock(spaced(14, 12), QTextCharFormat());
    cursor.insertText("more");
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    const QTextDocumentFragment fragment(cursor);

    QTextBlockFormat blockFormat;
    QTextCharFormat charFormat;
    mrvFragmentFormat(fragment, &blockFormat, &charFormat);
    QCOMPARE(blockFormat.hasProperty(MRVTextFormat::BlockSpacing), spacing);
    QCOMPARE(charFormat.fontWeight() == 75, bold);
    QCOMPARE(mrvFragmentBlockFormat(fragment).properties(), blockFormat.properties());
    QCOMPARE(mrvFragmentCharFormat(fragment).properties(), charFormat.properties());
    mrvFragmentFormat(fragment, nullptr, nullptr);
}

// DejaVu is what Debian's font packages depend on; its mono family has normal and bold only.
void TestTextFormat::fontWeights()
{
    const QString family("DejaVu Sans Mono");
    QVERIFY(QFontDatabase().families().contains(family));
    QVERIFY(MRVTextUtil::hasWeight(family, 50));
    QVERIFY(MRVTextUtil::hasWeight(family, 75));
    QVERIFY(!MRVTextUtil::hasWeight(family, 63));
    QCOMPARE(MRVTextUtil::closestFontWeight(family, 0), 50);
    QCOMPARE(MRVTextUtil::closestFontWeight(family, 57), 50);
    QCOMPARE(MRVTextUtil::closestFontWeight(family, 75), 75);
    QCOMPARE(MRVTextUtil::closestFontWeight(family, 99), 75);
    for (const QString &unknown : {QString(), QString("No Such Family")}) {
        QVERIFY(MRVTextUtil::hasWeight(unknown, 63));
        QCOMPARE(MRVTextUtil::closestFontWeight(unknown, 63), 63);
    }
}

QTEST_MAIN(TestTextFormat)
#include "tst_textformat.moc"
