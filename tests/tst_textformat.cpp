#include "datarows.h"
#include "document/mtextdoc.h"
#include "documentdump.h"
#include "images.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QLinearGradient>
#include <QPen>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextOption>

using Tab = QTextOption::Tab;
using F = MRVTextFormat;

namespace {

QTextBlockFormat spaced(double spacing, double base)
{
    QTextBlockFormat format;
    format.setProperty(F::BlockSpacing, spacing);
    format.setProperty(F::BlockBaseSpacing, base);
    return format;
}

QTextBlockFormat tabbed(const Tab &tab)
{
    QTextBlockFormat format = spaced(14, 12);
    format.setTabPositions({Tab(36.0, QTextOption::RightTab), tab});
    return format;
}

QTextCharFormat with(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return format;
}

QTextFormat gradient(QGradient gradient)
{
    gradient.setColorAt(0.25, Qt::red);
    gradient.setColorAt(1.0, Qt::blue);
    gradient.setSpread(QGradient::ReflectSpread);
    QBrush brush(gradient);
    brush.setTransform(QTransform().rotate(30));
    return with(QTextFormat::BackgroundBrush, brush);
}

/// One format for each kind of value that formats hold.
QMap<QString, QTextFormat> samples()
{
    QPen pen(QColor(1, 2, 3), 2.5, Qt::CustomDashLine, Qt::RoundCap, Qt::MiterJoin);
    pen.setDashPattern({1, 2, 3, 4});
    QImage noise(8, 8, QImage::Format_ARGB32);
    QRandomGenerator(1).fillRange(reinterpret_cast<quint32 *>(noise.bits()), 64);
    const QVariantMap values{
        {"color", QColor::fromHsvF(0.5, 0.5, 0.5)},
        {"texture", QBrush(noise)},
        {"pen", pen},
        {"length", QVariant::fromValue(QTextLength(QTextLength::PercentageLength, 50))},
        {"list", QVariantList{1, "x", QVariantList{true, 2.5}, QByteArray("bytes")}},
        {"map", QVariantMap{{"a", 1}, {"b", QVariantMap{{"c", QString()}}}}},
        {"url", QUrl("https://morvane.example/a?b#c")},
        {"date", QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::OffsetFromUTC, 3600)},
        {"long", QVariant::fromValue(long(-5))},
        {"rect", QRectF(1, 2, 3, 4)},
    };
    QMap<QString, QTextFormat> formats{
        {"empty", QTextCharFormat()},
        {"several", chars("FontWeight=75:int FontFamily=A FontPointSize=12.5:double")},
        {"linear", gradient(QLinearGradient(0, 0, 10, 20))},
        {"radial", gradient(QRadialGradient(5, 5, 3))},
        {"conical", gradient(QConicalGradient(1, 2, 45))},
        {"block", tabbed(Tab(72.5, QTextOption::DelimiterTab, '.'))}};
    for (auto it = values.begin(); it != values.end(); ++it) {
        formats.insert(it.key(), with(F::ExtraProperty4, it.value()));
    }
    return formats;
}

QByteArray stored(const QTextFormat &format)
{
    return format.isBlockFormat() ? F::toByteArray(format.toBlockFormat())
                                  : F::toByteArray(format.toCharFormat());
}

/// What a function of MRVTextFormat says of two formats as text.
QString answer(const QString &function, const QString &a, const QString &b)
{
    const auto yes = [](bool answer) { return QString(answer ? "yes" : "no"); };
    if (function == "equivalent") {
        return yes(F::equivalent(chars(a), chars(b)))
            + (F::equivalent(chars(a), chars(b)) == F::equivalent(chars(b), chars(a)) ? "" : "?");
    }
    if (function.endsWith(" match")) {
        return yes(F::formatsMatch(chars(a), chars(b), function == "values match"));
    }
    if (function == "heading") {
        const QTextBlockFormat format = b == "spaced" ? F::simplifiedSpacing(blocks(a)) : blocks(a);
        return QString::number(MRVTextBlockFormat::headingLevel(format));
    }
    if (function == "equivalentSpacing") {
        return yes(F::equivalentSpacing(blocks(a), blocks(b)));
    }
    const F::FormatGroups groups(QFlag(function.right(1).toInt()));
    if (function.startsWith("simplified ")) {
        return yes(propertyDump(F::simplified(blocks(a), groups)) == propertyDump(blocks(b)));
    }
    double value = -1.0;
    if (function == "spacing" && F::spacingType(blocks(a)) == F::spacingType(blocks(a), &value)) {
        return QString("%1 %2").arg(F::spacingType(blocks(a))).arg(value);
    }
    const QString text = "a" + QString(QChar(a.toUShort(nullptr, 16)));
    if (function == "marks") {
        return yes(F::hasFrameInString(text)) + ' ' + yes(F::hasBlockInString(text));
    }
    return "none";
}

} // namespace

class TestTextFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Stored documents carry these numbers; the data of other tests holds more of them.
    void numbersAreFixed()
    {
        const QList<int> actual{F::ListExtraProperty1,    F::CommentData0,
                                F::RevisionLevelProperty, F::ExtraProperty15,
                                F::ExtraProperty200,      F::ExtraProperty211};
        const QList<int> expected{0x100001, 0x100007, 0x10000a, 0x10000f, 0x1000c8, 0x1000d3};
        QCOMPARE(actual, expected);
    }

    void fontHintingAndAnyProperty()
    {
        const QTextCharFormat bold = with(QTextFormat::FontWeight, 75);
        const QTextCharFormat hinted = F::setFontHinting(bold, true);
        QCOMPARE(hinted.property(0x1fe6), QVariant(3));
        QCOMPARE(F::setFontHinting(hinted, false).property(0x1fe6), QVariant(1));
        QVERIFY(F::hasAnyProperty(hinted, {QTextFormat::FontItalic, QTextFormat::FontWeight}));
        QVERIFY(!F::hasAnyProperty(bold, {QTextFormat::FontHintingPreference}));
        QVERIFY(!F::hasAnyProperty(bold, {}));
    }

    void storedFormatsComeBack_data()
    {
        QTest::addColumn<QTextFormat>("format");
        const auto formats = samples();
        for (auto it = formats.begin(); it != formats.end(); ++it) {
            QTest::newRow(qPrintable(it.key())) << it.value();
        }
    }
    void storedFormatsComeBack()
    {
        QFETCH(QTextFormat, format);
        const QByteArray bytes = stored(format);
        const QTextFormat asChars = F::toCharFormat(QVariant(bytes)),
                          asBlock = F::toBlockFormat(QVariant(bytes));
        QVERIFY(asChars.isCharFormat());
        QVERIFY(asBlock.isBlockFormat());
        const QTextFormat back = format.isBlockFormat() ? asBlock : asChars;
        QVERIFY((format.isBlockFormat() ? asChars : asBlock).properties().isEmpty());
        QCOMPARE(stored(back), bytes);
        QCOMPARE(propertyDump(back), propertyDump(format));
        const QImage texture = format.brushProperty(F::ExtraProperty4).textureImage();
        QCOMPARE(back.brushProperty(F::ExtraProperty4).textureImage(), texture);
        // Qt compares textures by address.
        QVERIFY(!texture.isNull() || back.properties() == format.properties());
    }

    void storedFormIsQtsStream()
    {
        const QByteArray bytes = F::toByteArray(with(QTextFormat::FontItalic, true));
        QCOMPARE(bytes.toHex(), QByteArray("000000020000000100002004000000010001"));
        QVERIFY(F::toCharFormat(bytes + "spare").fontItalic());
    }

    void unstorableValueCostsOnlyItself()
    {
        QTextCharFormat format = with(F::ExtraProperty4, QVariant::fromValue<QObject *>(this));
        format.setFontItalic(true);
        for (const char *text :
             {"to save type 'QObject", "to save type 'QObject", "0x100004 of type QObject"}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(text));
        }
        const QTextCharFormat back = F::toCharFormat(F::toByteArray(format));
        QCOMPARE(back.properties().keys(), QList<int>{QTextFormat::FontItalic});
    }

    void damagedBytesGiveDefault()
    {
        const QByteArray bytes = stored(with(F::ExtraProperty4, "text"));
        for (const QByteArray &damaged : {QByteArray(), bytes.left(bytes.size() - 1)}) {
            QVERIFY(F::toCharFormat(damaged).isCharFormat());
            QVERIFY(F::toCharFormat(damaged).properties().isEmpty());
            QVERIFY(F::toBlockFormat(damaged).isBlockFormat());
        }
    }

    // Deliberate: one rounds and the other does not.
    void simplifiedAndSimplifySpacingRoundDifferently()
    {
        const QTextBlockFormat nearlyEqual = spaced(10.0 * (1 + 1e-14), 10.0);
        QVERIFY(F::simplified(nearlyEqual, F::LineSpacingGroup) == spaced(12, 12));
        QVERIFY(F::simplifiedSpacing(nearlyEqual).doubleProperty(F::BlockSpacing) != 12.0);
        QVERIFY(F::simplifiedSpacing(spaced(10, 20)) == spaced(6, 12));
        QVERIFY(F::simplifiedSpacing(QTextBlockFormat()) == spaced(12, 12));
        F::simplifySpacing(nullptr);
    }

    void answers_data() { addRows("formatanswers.tsv"); }
    void answers()
    {
        QFETCH(QString, function);
        QTEST(answer(function, function == "marks" ? cell("name") : cell("a"), cell("b")),
              "expected");
    }

    void tabStopsCompareByValue()
    {
        const QTextBlockFormat format = tabbed(Tab(10, QTextOption::LeftTab));
        QVERIFY(F::equivalent(format, tabbed(Tab(10, QTextOption::LeftTab))));
        QVERIFY(!F::equivalent(format, tabbed(Tab(11, QTextOption::LeftTab))));
    }

    void defaultProperties()
    {
        for (const QStringList &row : rowsOf("defaultproperties.tsv")) {
            const int property = row.at(0).section(' ', 0, 0).toInt(nullptr, 0);
            const QVariant value = valueFrom(row.at(1));
            QCOMPARE(F::defaultProperty(property), value);
            QCOMPARE(F::defaultProperty(property).userType(), value.userType());
        }
        int count = 0;
        for (int property = -1; property < 0x100200; ++property) {
            count += F::defaultProperty(property).isValid();
        }
        QCOMPARE(count, 45);
    }

    void defaultCharFormat()
    {
        QTextDocument document;
        document.setDefaultFont(QFont("Serif", 17, 75));
        const auto read = "FontFamily=Serif FontPointSize=17:double FontWeight=75:int";
        QCOMPARE(propertyDump(F::defaultCharFormat(document)), propertyDump(chars(read)));
        const auto set =
            chars("FontPointSize=20:double FontWeight=0:int ForegroundBrush=red:QColor:QBrush");
        F::setDefaultCharFormat(document, set);
        QCOMPARE(propertyDump(F::defaultCharFormat(document)), propertyDump(set));
        QCOMPARE(document.defaultFont().pointSizeF(), 20.0);
        QCOMPARE(document.defaultFont().weight(), int(QFont::Normal));
        QVERIFY(!document.isUndoAvailable());
    }

    void linkId_data() { addRows("linkids.tsv"); }
    void linkId()
    {
        QFETCH(QString, href);
        QTextCharFormat format = with(QTextFormat::AnchorHref, href);
        QVERIFY(!F::isMorvaneLink(format));
        format.setAnchor(true);
        QTEST(QString::number(F::morvaneLinkId(href)), "id");
        QCOMPARE(F::isMorvaneLink(href), F::morvaneLinkId(href) >= 0);
        QCOMPARE(F::isMorvaneLink(format), F::morvaneLinkId(href) >= 0);
    }

    void imageProperties()
    {
        QTextImageFormat format;
        format.setName("id");
        const auto all = [&format] {
            return QStringList{F::imageResourceId(format), F::imageName(format),
                               F::imageType(format),       F::imageType(format, "gif"),
                               F::imageLink(format),       F::imageRawData(format)};
        };
        QCOMPARE(all(), (QStringList{"id", "id", "PNG", "gif", "", ""}));
        format.merge(chars("0x10000b=/map.jpg 0x10000c=raw:QByteArray 0x10000d=JPG 0x10000e=Map"));
        QCOMPARE(all(), (QStringList{"id", "Map", "JPG", "JPG", "/map.jpg", "raw"}));
    }

    void fragmentFormats()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        cursor.setBlockFormat(spaced(14, 12));
        cursor.insertText("bold", with(QTextFormat::FontWeight, 75));
        cursor.insertText("plain\n\nmore", QTextCharFormat());
        QVERIFY(mrvDocumentFormatPair(document).first == spaced(14, 12));
        QCOMPARE(mrvDocumentFormatPair(document).second.fontWeight(), 75);
        QString found;
        for (const auto &range :
             {qMakePair(0, 0), qMakePair(0, 12), qMakePair(1, 3), qMakePair(5, 7)}) {
            cursor.setPosition(range.first);
            cursor.setPosition(range.second, QTextCursor::KeepAnchor);
            QTextBlockFormat block;
            QTextCharFormat run;
            mrvFragmentFormat(cursor.selection(), &block, &run);
            found += QString("%1%2 ").arg(block == spaced(14, 12)).arg(run.fontWeight());
            QVERIFY(mrvFragmentBlockFormat(cursor.selection()) == block);
            QVERIFY(mrvFragmentCharFormat(cursor.selection()) == run);
        }
        QCOMPARE(found, QString("050 175 075 050 "));
        mrvFragmentFormat(cursor.selection(), nullptr, nullptr);
    }

    void spreadIsNeitherStoredNorCompared()
    {
        QTextCharFormat format = with(QTextFormat::AnchorHref, "a");
        const QTextCharFormat plain = format;
        MRVFormatSpread::update(&format);
        QCOMPARE(format, plain); // a single text needs no number
        format.setProperty(QTextFormat::AnchorName, "b");
        const QTextCharFormat named = format;
        MRVFormatSpread::update(&format);
        QVERIFY(format != named);
        QVERIFY(F::equivalent(format, named));
        QCOMPARE(F::toByteArray(format), F::toByteArray(named));
        MTextDoc::clearLinkProperties(&format);
        QCOMPARE(format, QTextCharFormat());
    }

    void tooManyProperties()
    {
        QTextCharFormat format;
        for (int i = 0; i < 4100; ++i) {
            format.setProperty(QTextFormat::UserProperty + i, i);
        }
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("4 of its 4100 properties"));
        QCOMPARE(F::toCharFormat(F::toByteArray(format)).propertyCount(), 4096);
    }

    void hashIsStoredAsMap()
    {
        const QVariant map = QVariantMap{{"a", 1}, {"b", 2}},
                       hash = QVariantHash{{"b", 2}, {"a", 1}};
        QCOMPARE(F::toByteArray(with(F::ExtraProperty4, QVariantList{hash})),
                 F::toByteArray(with(F::ExtraProperty4, QVariantList{map})));
    }

    void largePlainTextureAndManyStops()
    {
        QLinearGradient stops(0, 0, 1, 1);
        for (int i = 0; i <= 2000; ++i) {
            stops.setColorAt(i / 2000.0, Qt::red);
        }
        for (const QBrush &brush : {QBrush(filledImage(1400, 1400, Qt::green)), QBrush(stops)}) {
            QCOMPARE(
                F::toCharFormat(F::toByteArray(with(F::ExtraProperty4, brush))).propertyCount(), 1);
        }
    }

    // The first of the families wins on screen.
    void defaultFamilies()
    {
        QTextDocument document;
        QTextCharFormat format;
        format.setFontFamilies({"Serif", "Sans"});
        format.setProperty(QTextFormat::FontFamily, "Mono");
        F::setDefaultCharFormat(document, format);
        QCOMPARE(document.defaultFont().family(), QString("Serif"));
        QTextDocument other;
        other.setDefaultFont(document.defaultFont());
        QCOMPARE(F::defaultCharFormat(other).fontFamily(), QString("Serif"));
    }
};

QTEST_MAIN(TestTextFormat)
#include "tst_textformat.moc"
