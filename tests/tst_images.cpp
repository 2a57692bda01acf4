#include "gui/mrvguiutil.h"

#include <QBuffer>
#include <QDataStream>
#include <QImageReader>
#include <QPixmap>
#include <QSet>
#include <QtTest>

namespace {

// A stripe of every colour channel, transparency included.
QImage testCard(QImage::Format format)
{
    QImage image(8, 4, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 30, y * 60, 255 - x * 30, y == 3 ? 0 : 255));
    }
    return image.convertToFormat(format);
}

QByteArray bitmapClaiming(qint32 width, qint32 height)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("BM", 2);
    stream << quint32(58) << quint32(0) << quint32(54) << quint32(40) << width << height
           << quint16(1) << quint16(24) << quint32(0) << quint32(0) << quint32(0) << quint32(0)
           << quint32(0) << quint32(0) << quint32(0);
    return bytes;
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resourceIdIgnoresFormat_data();
    void resourceIdIgnoresFormat();
    void resourceIdTellsApart();
    void decodesImages_data();
    void decodesImages();
    void decodesVariants();
    void turnsPhotosUpright();
    void encodesImages_data();
    void encodesImages();
    void opaqueFormatsPaintOnWhite_data();
    void opaqueFormatsPaintOnWhite();
    void imageFormats();
    void imageFileFilters();
    void formatFilter_data();
    void formatFilter();
    void textColor_data();
    void textColor();
};

void TestImages::resourceIdIgnoresFormat_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<QImage>("other");
    const QImage card = testCard(QImage::Format_ARGB32);
    QTest::newRow("rgba8888") << card << testCard(QImage::Format_RGBA8888);
    QTest::newRow("rgba64") << card << testCard(QImage::Format_RGBA64);
    const QImage opaque = testCard(QImage::Format_RGB32);
    QTest::newRow("rgb32-argb32") << opaque << opaque.convertToFormat(QImage::Format_ARGB32);
    QTest::newRow("rgb888") << opaque << opaque.convertToFormat(QImage::Format_RGB888);
    QImage grey(5, 3, QImage::Format_Grayscale8);
    grey.fill(77);
    QTest::newRow("grey") << grey << grey.convertToFormat(QImage::Format_RGB32);
    QTest::newRow("indexed") << grey << grey.convertToFormat(QImage::Format_Indexed8);
    QImage dense = card;
    dense.setDotsPerMeterX(9000);
    dense.setText("Author", "x");
    dense.setDevicePixelRatio(2);
    QTest::newRow("resolution-and-texts") << card << dense;
    QImage narrow(3, 4, QImage::Format_RGB888);
    narrow.fill(Qt::red);
    // Rows of nine bytes are padded to twelve, with whatever lay there.
    QImage padded = narrow;
    padded.scanLine(0)[11] ^= 0xff;
    QTest::newRow("padding") << narrow << padded;
}

void TestImages::resourceIdIgnoresFormat()
{
    QFETCH(QImage, image);
    QFETCH(QImage, other);
    QCOMPARE(MRVGuiUtil::resourceId(other), MRVGuiUtil::resourceId(image));
}

void TestImages::resourceIdTellsApart()
{
    QCOMPARE(MRVGuiUtil::resourceId(QImage()), QString());
    const QImage card = testCard(QImage::Format_ARGB32);
    // Stored in documents, so it must never change.
    QCOMPARE(MRVGuiUtil::resourceId(card), QString("img-63f2ad481e1193a7246c9fa177494039f6b3b260"));

    QImage pixel = card;
    pixel.setPixelColor(7, 2, QColor(1, 2, 3));
    QImage alpha = card;
    alpha.setPixelColor(0, 0, QColor(0, 0, 255, 254));
    QImage flat(32, 1, QImage::Format_ARGB32);
    memcpy(flat.bits(), card.constBits(), 32 * 4);
    QImage deep = card.convertToFormat(QImage::Format_RGBA64);
    deep.setPixelColor(0, 0, QColor::fromRgba64(1, 0, 0xffff));
    QImage deeper = deep;
    deeper.setPixelColor(0, 0, QColor::fromRgba64(2, 0, 0xffff));
    QSet<QString> ids;
    const QList<QImage> images{card, card.mirrored(), pixel, alpha, flat, deep, deeper};
    for (const QImage &image : images)
        ids.insert(MRVGuiUtil::resourceId(image));
    QCOMPARE(ids.size(), images.size());
}

void TestImages::decodesImages_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("size");
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(testCard(QImage::Format_ARGB32).save(&buffer, "PNG"));
    // A large picture of one colour is small as a file, and honest.
    QImage large(7000, 6000, QImage::Format_Mono);
    large.fill(0);
    QByteArray largePng;
    QBuffer largeBuffer(&largePng);
    QVERIFY(large.save(&largeBuffer, "PNG"));

    QTest::newRow("no-hint") << png << QByteArray() << QSize(8, 4);
    QTest::newRow("right-hint") << png << QByteArray("PNG") << QSize(8, 4);
    QTest::newRow("wrong-hint") << png << QByteArray("JPG") << QSize(8, 4);
    QTest::newRow("unknown-hint") << png << QByteArray("XYZ") << QSize(8, 4);
    QTest::newRow("large-but-honest") << largePng << QByteArray() << QSize(7000, 6000);
    QTest::newRow("empty") << QByteArray() << QByteArray() << QSize(0, 0);
    QTest::newRow("text") << QByteArray("once upon a time") << QByteArray("PNG") << QSize(0, 0);
    QTest::newRow("header-only") << png.left(8) << QByteArray() << QSize(0, 0);
    QTest::newRow("claims-gigapixels")
        << bitmapClaiming(100000, 100000) << QByteArray() << QSize(0, 0);
    QTest::newRow("claims-100-megapixels")
        << bitmapClaiming(10000, 10000) << QByteArray() << QSize(0, 0);
}

void TestImages::decodesImages()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, format);
    QFETCH(QSize, size);
    const char *hint = format.isNull() ? nullptr : format.constData();
    const QImage image = MRVGuiUtil::toImage(bytes, hint);
    QCOMPARE(image.size(), size);
    if (size == QSize(8, 4))
        QCOMPARE(image, testCard(image.format()));
}

void TestImages::decodesVariants()
{
    const QImage card = testCard(QImage::Format_ARGB32);
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(card.save(&buffer, "PNG"));
    QCOMPARE(MRVGuiUtil::toImage(QVariant(card)), card);
    QCOMPARE(MRVGuiUtil::toImage(QVariant(png)), card);
    QCOMPARE(MRVGuiUtil::toImage(QVariant(png), "PNG"), card);
    const QImage fromPixmap = MRVGuiUtil::toImage(QVariant(QPixmap::fromImage(card)));
    QCOMPARE(fromPixmap.convertToFormat(QImage::Format_ARGB32).pixel(3, 2), card.pixel(3, 2));
    QVERIFY(MRVGuiUtil::toImage(QVariant()).isNull());
    QVERIFY(MRVGuiUtil::toImage(QVariant(QString("card.png"))).isNull());
}

void TestImages::turnsPhotosUpright()
{
    QImage photo(64, 32, QImage::Format_RGB32);
    photo.fill(Qt::white);
    QByteArray jpeg = MRVGuiUtil::toByteArray(photo, "JPG", 90);
    const QByteArray exif("\xff\xe1\x00\x22"
                          "Exif\0\0"
                          "MM\0*\0\0\0\x08"
                          "\0\x01"
                          "\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
                          "\0\0\0\0",
                          36);
    jpeg.insert(2, exif);
    QCOMPARE(MRVGuiUtil::toImage(jpeg).size(), QSize(32, 64));
}

void TestImages::encodesImages_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("detected");
    QTest::newRow("png") << QByteArray("PNG") << QByteArray("png");
    QTest::newRow("lower-case") << QByteArray("png") << QByteArray("png");
    QTest::newRow("jpg") << QByteArray("JPG") << QByteArray("jpeg");
    QTest::newRow("jpeg") << QByteArray("JPEG") << QByteArray("jpeg");
    QTest::newRow("bmp") << QByteArray("BMP") << QByteArray("bmp");
    QTest::newRow("unknown") << QByteArray("XYZ") << QByteArray();
    QTest::newRow("read-only-format") << QByteArray("GIF") << QByteArray();
    QTest::newRow("empty") << QByteArray("") << QByteArray();
    QTest::newRow("null") << QByteArray() << QByteArray();
}

void TestImages::encodesImages()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, detected);
    const char *name = format.isNull() ? nullptr : format.constData();
    const QImage card = testCard(QImage::Format_RGB32);
    QByteArray bytes = MRVGuiUtil::toByteArray(card, name);
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QCOMPARE(QImageReader::imageFormat(&buffer), detected);
    QCOMPARE(bytes.isEmpty(), detected.isEmpty());
    QCOMPARE(MRVGuiUtil::toByteArray(card, name), bytes);
    QVERIFY(MRVGuiUtil::toByteArray(QImage(), name).isEmpty());
    if (detected == "jpeg")
        QVERIFY(MRVGuiUtil::toByteArray(card, name, 10).size() < bytes.size());
}

void TestImages::opaqueFormatsPaintOnWhite_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QColor>("expected");
    for (const char *format : {"JPG", "jpeg", "BMP", "PPM"})
        QTest::newRow(format) << QByteArray(format) << QColor(Qt::white);
    QTest::newRow("PNG") << QByteArray("PNG") << QColor(0, 0, 0, 0);
}

void TestImages::opaqueFormatsPaintOnWhite()
{
    QFETCH(QByteArray, format);
    QFETCH(QColor, expected);
    QImage glass(16, 16, QImage::Format_ARGB32);
    glass.fill(Qt::transparent);
    glass.setDevicePixelRatio(2);
    glass.setDotsPerMeterX(11811);
    const QImage read = MRVGuiUtil::toImage(MRVGuiUtil::toByteArray(glass, format, 100));
    QCOMPARE(read.size(), QSize(16, 16));
    QCOMPARE(read.pixelColor(1, 1), expected);
    QCOMPARE(read.pixelColor(14, 14), expected);
    if (format == "JPG")
        QCOMPARE(read.dotsPerMeterX(), 11811);
}

void TestImages::imageFormats()
{
    const QStringList readable = MRVGuiUtil::readImageFormats();
    const QStringList writable = MRVGuiUtil::writeImageFormats();
    for (const QStringList &formats : {readable, writable}) {
        QStringList sorted = formats;
        sorted.sort();
        QCOMPARE(formats, sorted);
        QCOMPARE(sorted.removeDuplicates(), 0);
        QCOMPARE(formats.join(' ').toUpper(), formats.join(' '));
        for (const char *format : {"BMP", "JPG", "PNG"})
            QVERIFY2(formats.contains(format), format);
        for (const char *alias : {"JPEG", "TIFF", "SVGZ"})
            QVERIFY2(!formats.contains(alias), alias);
    }
    QVERIFY(readable.contains("GIF"));
    QVERIFY(!writable.contains("GIF"));
    const QImage card = testCard(QImage::Format_RGB32);
    for (const QString &format : writable)
        QVERIFY2(!MRVGuiUtil::toByteArray(card, format.toLatin1()).isEmpty(), qPrintable(format));

    const QStringList both = MRVGuiUtil::readWriteImageFormats();
    for (const QString &format : readable + writable)
        QCOMPARE(both.contains(format), readable.contains(format) && writable.contains(format));
}

void TestImages::imageFileFilters()
{
    const QStringList readable = MRVGuiUtil::readImageFileFilters();
    const QString all = readable.value(0);
    QVERIFY2(all.startsWith("All Images (*.") && all.endsWith(')'), qPrintable(all));
    for (const char *pattern : {"*.png", "*.jpg", "*.jpeg", "*.gif"})
        QVERIFY2(all.contains(pattern), pattern);
    QCOMPARE(readable.size(), MRVGuiUtil::readImageFormats().size() + 1);
    QVERIFY(readable.contains("PNG (*.png)"));
    QVERIFY(readable.contains("JPG (*.jpg *.jpeg *.jpe *.jfif)"));

    const QStringList writable = MRVGuiUtil::writeImageFileFilters();
    QCOMPARE(writable.size(), MRVGuiUtil::writeImageFormats().size());
    QVERIFY(writable.contains("PNG (*.png)"));
    QVERIFY(!writable.contains("GIF (*.gif)"));
}

void TestImages::formatFilter_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QStringList>("suffixes");
    QTest::addColumn<QString>("filter");
    QTest::newRow("one") << "PNG" << QStringList{"png"} << "PNG (*.png)";
    QTest::newRow("two") << "Text" << QStringList{"txt", "text"} << "Text (*.txt *.text)";
    QTest::newRow("dotted") << "Text" << QStringList{".txt", "*.text", " md "}
                            << "Text (*.txt *.text *.md)";
    QTest::newRow("repeated") << "Text" << QStringList{"txt", "", ".txt"} << "Text (*.txt)";
    QTest::newRow("none") << "All" << QStringList() << "All (*)";
    QTest::newRow("any") << "All" << QStringList{"*"} << "All (*)";
    QTest::newRow("percent") << "100%2" << QStringList{"a%1"} << "100%2 (*.a%1)";
}

void TestImages::formatFilter()
{
    QFETCH(QString, description);
    QFETCH(QStringList, suffixes);
    QFETCH(QString, filter);
    QCOMPARE(MRVGuiUtil::createFormatFilter(description, suffixes), filter);
}

void TestImages::textColor_data()
{
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    QTest::newRow("white") << white << black;
    QTest::newRow("black") << black << white;
    // #757575 has contrast 4.61 to white and 4.56 to black; one step lighter it is the reverse.
    QTest::newRow("grey-just-dark") << QColor(0x75, 0x75, 0x75) << white;
    QTest::newRow("grey-just-light") << QColor(0x76, 0x76, 0x76) << black;
    QTest::newRow("red") << QColor(255, 0, 0) << black;
    QTest::newRow("blue") << QColor(0, 0, 255) << white;
    QTest::newRow("green") << QColor(0, 255, 0) << black;
    QTest::newRow("hsv") << QColor::fromHsv(240, 255, 255) << white;
    QTest::newRow("translucent-black") << QColor(0, 0, 0, 20) << black;
    QTest::newRow("invalid") << QColor() << black;
}

void TestImages::textColor()
{
    QFETCH(QColor, background);
    QFETCH(QColor, text);
    QCOMPARE(MRVGuiUtil::textColorForBackground(background), text);
}

QTEST_MAIN(TestImages)

#include "tst_images.moc"
