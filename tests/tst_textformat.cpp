#include "datarows.h"
#include "document/mtextdoc.h"
#include "documentdump.h"
#include "images.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QBitmap>
#include <QCborMap>
#include <QLinearGradient>
#include <QMatrix4x4>
#include <QPen>
#include <QQuaternion>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QTextOption>
#include <QTextTable>

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

/// A value of each of the other types that Qt stores.
QVariantMap qtValues()
{
    QFont font("A", 12);
    font.setStyleName("B");
    font.setFamilies({"C", "D"});
    font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    QPixmap pixmap(3, 2);
    pixmap.fill(Qt::red);
    QBitmap bitmap(8, 2);
    bitmap.fill(Qt::color1);
    QRegion region(0, 0, 9, 9);
    region -= QRegion(1, 1, 3, 3);
    const QJsonObject object{{"a", QJsonArray{1, "b", QJsonValue()}}};
    const QCborMap cbor{{1, QCborArray{-5, 1.5, "x", QByteArray("y")}}, {"z", QCborMap()}};
    return {
        {"byteArrays", QVariant::fromValue(QByteArrayList{"a", "", "b"})},
        {"bits", QBitArray(9, true)},
        {"locale", QLocale("de_AT")},
        {"line", QLine(1, 2, 3, 4)},
        {"lineF", QLineF(1, 2, 3, 4.5)},
        {"font", font},
        {"regExp", QRegExp("a(b|c)*", Qt::CaseInsensitive, QRegExp::RegExp2)},
        {"regularExpression", QRegularExpression("a{2,3}", QRegularExpression::MultilineOption)},
        {"json", QJsonValue("s")},
        {"jsonNumber", QJsonValue(1.5)},
        {"jsonInside", QJsonValue(object)},
        {"jsonObject", object},
        {"jsonArray", object["a"].toArray()},
        {"jsonDocument", QVariant::fromValue(QJsonDocument(object))},
        {"cborSimple", QVariant::fromValue(QCborSimpleType::Null)},
        {"cbor", QVariant::fromValue(QCborValue(QDateTime(QDate(2020, 1, 2), QTime(), Qt::UTC)))},
        {"cborArray", QVariant::fromValue(cbor.value(1).toArray())},
        {"cborMap", QVariant::fromValue(cbor)},
        {"pixmap", pixmap},
        {"noPixmap", QPixmap()},
        {"bitmap", bitmap},
        {"cursor", QCursor(Qt::WaitCursor)},
        {"pictureCursor", QCursor(pixmap, 1, 2)},
        {"bitmapCursor", QCursor(bitmap, bitmap, 0, 1)},
        {"icon", QIcon(pixmap)},
        {"noIcon", QIcon()},
        {"polygon", QPolygon(QRect(1, 2, 3, 4))},
        {"polygonF", QVariant::fromValue(QPolygonF({QPointF(1, 2.5)}))},
        {"keys", QKeySequence("Ctrl+K, Ctrl+L")},
        {"region", region},
        {"noRegion", QRegion()},
        {"palette", QPalette(Qt::red)},
        {"matrix", QMatrix(1, 2, 3, 4, 5, 6)},
        {"transform", QTransform(1, 2, 3, 4, 5, 6, 7, 8, 9)},
        {"matrix4x4", QMatrix4x4(QTransform(1, 2, 3, 4, 5, 6))},
        {"vector2", QVector2D(1, 2.5)},
        {"vector3", QVector3D(1, 2, 3)},
        {"vector4", QVector4D(1, 2, 3, 4)},
        {"quaternion", QQuaternion(1, 2, 3, 4)},
        {"sizePolicy", QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum)},
        {"format", QVariant(with(QTextFormat::FontItalic, true))},
        {"nothing", QVariant::fromValue(nullptr)},
        {"inside", QVariantList{QVariantMap{{"a", QLocale("fr_FR")}}}},
    };
}

struct Mood
{
    QString name;
    int level = 0;
};

QDataStream &operator<<(QDataStream &stream, const Mood &mood)
{
    return stream << mood.name << mood.level;
}

QDataStream &operator>>(QDataStream &stream, Mood &mood)
{
    return stream >> mood.name >> mood.level;
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

Q_DECLARE_METATYPE(Mood)

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

    void typesOfQtComeBack()
    {
        const QVariantMap values = qtValues();
        QRandomGenerator random(1);
        for (auto it = values.begin(); it != values.end(); ++it) {
            QTextCharFormat format = with(F::ExtraProperty4, it.value());
            format.setProperty(F::ExtraProperty5, "after");
            const QByteArray bytes = stored(format);
            const QTextCharFormat back = F::toCharFormat(bytes);
            QVERIFY2(back.property(F::ExtraProperty4).userType() == it.value().userType(),
                     qPrintable(it.key()));
            QVERIFY2(stored(back) == bytes, qPrintable(it.key()));
            QCOMPARE(back.property(F::ExtraProperty5), QVariant("after"));
            // Damage gives another value or none. Damaged pictures have tests of their own.
            for (int i = 0; i < 200 && !bytes.contains("PNG"); ++i) {
                QByteArray damaged = bytes;
                damaged[random.bounded(bytes.size())] = char(random.generate());
                F::toCharFormat(i % 2 ? damaged : damaged.left(random.bounded(bytes.size())));
            }
        }
        const QTextCharFormat font =
            F::toCharFormat(stored(with(F::ExtraProperty4, values["font"])));
        QCOMPARE(font.property(F::ExtraProperty4).value<QFont>(), values["font"].value<QFont>());
    }

    // A value without a length hides what stands after it, which is not lost.
    void typesOfApplicationsComeBack()
    {
        const int type = qRegisterMetaType<Mood>("Mood");
        qRegisterMetaTypeStreamOperators<Mood>("Mood");
        const auto mood = [](const QTextFormat &format, int property) {
            return format.property(property).value<Mood>().name;
        };
        QTextCharFormat format = with(F::ExtraProperty4, QVariant::fromValue(Mood{"calm", 3}));
        format.setProperty(F::ExtraProperty6, QVariantList{QVariant::fromValue(Mood{"wild", 9})});
        format.setProperty(F::ExtraProperty15, "after");
        const QByteArray bytes = stored(format);
        QTextCharFormat elsewhere = F::toCharFormat(bytes);
        QCOMPARE(elsewhere.property(F::ExtraProperty15), QVariant("after"));
        QVERIFY(!elsewhere.hasProperty(F::ExtraProperty4));
        QVERIFY(F::toByteArray(elsewhere) == bytes);
        elsewhere.setFontItalic(true);
        elsewhere = F::toCharFormat(F::toByteArray(elsewhere));
        const QByteArray changed = F::toByteArray(elsewhere);

        F::registerStoredType(type);
        for (const QByteArray &one : {bytes, changed}) {
            const QTextCharFormat back = F::toCharFormat(one);
            QCOMPARE(mood(back, F::ExtraProperty4), QString("calm"));
            const QVariantList list = back.property(F::ExtraProperty6).toList();
            QCOMPARE(list.value(0).value<Mood>().name, QString("wild"));
            QCOMPARE(back.property(F::ExtraProperty15), QVariant("after"));
            QCOMPARE(back.fontItalic(), one == changed);
            QVERIFY(!back.hasProperty(F::UnreadProperty));
        }
        QVERIFY(F::toCharFormat(bytes.chopped(1)).properties().isEmpty());
    }

    // Easing curves hold an address, and files of icons would be read from anywhere.
    void dangerousValuesStayOut()
    {
        const QTextCharFormat italic = with(QTextFormat::FontItalic, true);
        for (const QVariant &value :
             {QVariant(QEasingCurve(QEasingCurve::InBack)), QVariant(QRegExp("(a{9}){9}"))}) {
            QTextCharFormat format = italic;
            format.setProperty(F::ExtraProperty4, value);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("0x100004 of type Q"));
            QVERIFY2(F::toCharFormat(F::toByteArray(format)) == italic, value.typeName());
            QByteArray bytes;
            QDataStream stream(&bytes, QIODevice::WriteOnly);
            stream << static_cast<const QTextFormat &>(format);
            QVERIFY(F::toCharFormat(bytes).properties().isEmpty());
        }
        for (const QString &file : {QString(), QString("/etc/logo.png")}) {
            QByteArray bytes;
            QDataStream stream(&bytes, QIODevice::WriteOnly);
            stream << qint32(QTextFormat::CharFormat) << 1 << qint32(F::ExtraProperty4)
                   << qint32(QMetaType::QIcon) << qint8(0) << QString("QPixmapIconEngine") << 1
                   << QPixmap() << file << QSize(8, 8) << 0 << 1;
            QCOMPARE(F::toCharFormat(bytes).propertyCount(), int(file.isEmpty()));
        }
    }

    void damagedCborStaysOut_data()
    {
        QTest::addColumn<QByteArray>("cbor");
        QTest::addColumn<bool>("isRead");
        QTest::newRow("number of two bytes") << QByteArray::fromHex("190100") << true;
        QTest::newRow("number cut short") << QByteArray::fromHex("1901") << false;
        QTest::newRow("reserved length")
            << QByteArray::fromHex("1c") + QByteArray(16, '\1') << false;
        QTest::newRow("text without length") << QByteArray::fromHex("7f6161ff") << false;
        QTest::newRow("text beyond the end") << QByteArray::fromHex("6361") << false;
        QTest::newRow("array beyond the end") << QByteArray::fromHex("9bffffffffffffffff") << false;
        QTest::newRow("map without value") << QByteArray::fromHex("a101") << false;
    }
    void damagedCborStaysOut()
    {
        QFETCH(QByteArray, cbor);
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << qint32(QTextFormat::CharFormat) << 1 << qint32(F::ExtraProperty4)
               << qint32(QMetaType::QCborValue) << qint8(0) << cbor;
        QTEST(F::toCharFormat(bytes).hasProperty(F::ExtraProperty4), "isRead");
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

    void fragmentFormatsOfTablesAndFrames()
    {
        const QTextCharFormat bold = with(QTextFormat::FontWeight, 75);
        for (const bool isTable : {true, false}) {
            QTextDocument document;
            QTextCursor cursor(&document);
            cursor.setBlockFormat(spaced(20, 12));
            QTextFrame *frame =
                isTable ? cursor.insertTable(2, 2) : cursor.insertFrame(QTextFrameFormat());
            QTextCursor inside = frame->firstCursorPosition();
            inside.setBlockFormat(spaced(14, 12));
            inside.insertText("a", bold);
            QTextCursor selection(&document);
            if (isTable) {
                selection.setPosition(frame->firstPosition());
                selection.setPosition(frame->lastPosition(), QTextCursor::KeepAnchor);
            } else {
                selection.select(QTextCursor::Document);
            }
            QCOMPARE(mrvFragmentCharFormat(selection.selection()), bold);
            QCOMPARE(mrvFragmentBlockFormat(selection.selection()), spaced(14, 12));
        }
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
