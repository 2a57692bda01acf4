#include "datarows.h"
#include "gui/mrvguiutil.h"
#include "images.h"

#include <QImageReader>
#include <QPixmap>

namespace {

// A stripe of every colour channel, transparency included.
QImage testCard(QImage::Format format)
{
    QImage image(8, 4, QImage::Format_ARGB32);
    for (int i = 0; i < 32; ++i) {
        image.setPixelColor(i % 8, i / 8,
                            QColor(i % 8 * 30, i / 8 * 60, 255 - i % 8 * 30, i < 24 ? 255 : 0));
    }
    return image.convertToFormat(format);
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resourceIds()
    {
        const QImage card = testCard(QImage::Format_ARGB32);
        QImage dense = testCard(QImage::Format_RGBA8888);
        dense.setDotsPerMeterX(9000);
        dense.setText("Author", "x");
        dense.setDevicePixelRatio(2);
        QImage narrow(3, 4, QImage::Format_RGB888);
        narrow.fill(QColor(77, 77, 77));
        // Rows of nine bytes are padded to twelve, with whatever lay there.
        QImage padded = narrow;
        padded.scanLine(0)[11] ^= 0xff;
        const auto id = &MRVGuiUtil::resourceId;
        QCOMPARE(id(dense), id(card));
        QCOMPARE(id(testCard(QImage::Format_RGBA64)), id(card));
        QCOMPARE(id(padded), id(narrow));
        for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32,
                                  QImage::Format_Grayscale8, QImage::Format_Indexed8}) {
            QCOMPARE(id(narrow.convertToFormat(format)), id(narrow));
        }
        QCOMPARE(id(QImage()), QString());
        // Stored in documents, so it must never change.
        QCOMPARE(MRVGuiUtil::resourceId(card),
                 QString("img-5e832c51a32ed08e819a1fd432ca2bf9db5b49b2"));

        QImage pixel = card;
        pixel.setPixelColor(7, 2, QColor(1, 2, 3));
        QImage alpha = card;
        alpha.setPixelColor(0, 0, QColor(0, 0, 255, 254));
        const QImage flat(card.constBits(), 32, 1, QImage::Format_ARGB32);
        QImage deep = card.convertToFormat(QImage::Format_RGBA64);
        deep.setPixelColor(1, 1, QColor::fromRgba64(0x1234, 0x5678, 0x9abc, 0x7fff));
        QSet<QString> ids;
        for (const QImage &image : {card, card.mirrored(), pixel, alpha, flat, deep}) {
            ids << id(image);
            QCOMPARE(id(QPixmap::fromImage(image).toImage()), id(image));
        }
        QCOMPARE(ids.size(), 6);
    }

    void decodesImages_data()
    {
        QTest::addColumn<QVariant>("data");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QSize>("size");
        const QImage card = testCard(QImage::Format_ARGB32);
        const QByteArray png = MRVGuiUtil::toByteArray(card, "PNG");
        // A large picture of one colour is small as a file, and honest.
        QImage large(7000, 6000, QImage::Format_Mono);
        large.fill(0);
        const auto row = [](const char *name, const QVariant &data, const QByteArray &format,
                            const QSize &size) { QTest::newRow(name) << data << format << size; };
        row("no-hint", png, {}, {8, 4});
        row("wrong-hint", png, "JPG", {8, 4});
        row("image", card, {}, {8, 4});
        row("pixmap", QPixmap::fromImage(card), {}, {8, 4});
        row("large-but-honest", MRVGuiUtil::toByteArray(large, "PNG"), {}, {7000, 6000});
        row("turned-photo", turnedPhoto(), {}, {32, 64});
        row("nothing", {}, {}, {0, 0});
        row("file-name", "card.png", {}, {0, 0});
        row("text", QByteArray("once upon a time"), "PNG", {0, 0});
        row("header-only", png.left(8), {}, {0, 0});
        const QByteArray text = "/* x */\n#define x_width N\n#define x_height N\n"
                                "static char x_bits[] = {\n0x01};\n";
        row("bitmap-text", QByteArray(text).replace('N', "8"), {}, {8, 8});
    }

    void decodesImages()
    {
        QFETCH(QVariant, data);
        QFETCH(QByteArray, format);
        QFETCH(QSize, size);
        const char *hint = format.isNull() ? nullptr : format.constData();
        const QImage image = MRVGuiUtil::toImage(data, hint);
        QCOMPARE(image.size(), size);
        if (data.type() == QVariant::ByteArray) {
            QCOMPARE(MRVGuiUtil::toImage(data.toByteArray(), hint), image);
        }
        if (size == QSize(8, 4)) {
            QCOMPARE(image, testCard(image.format()));
        }
    }

    void encodesImages_data() { addRows("imageformats.tsv"); }

    void encodesImages()
    {
        QFETCH(QString, format);
        QFETCH(QString, detected);
        const QByteArray name = format.toLatin1();
        const char *hint = format == "(null)" ? nullptr : name.constData();
        QImage glass(16, 16, QImage::Format_ARGB32);
        glass.fill(Qt::transparent);
        glass.setDevicePixelRatio(2);
        glass.setDotsPerMeterX(11811);
        QByteArray bytes = MRVGuiUtil::toByteArray(glass, hint, 100);
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QCOMPARE(QString(QImageReader::imageFormat(&buffer)), detected);
        QCOMPARE(bytes.isEmpty(), detected.isEmpty());
        QCOMPARE(MRVGuiUtil::toByteArray(glass, hint, 100), bytes);
        QVERIFY(MRVGuiUtil::toByteArray(QImage(), hint).isEmpty());
        const QByteArray wide = MRVGuiUtil::toByteArray(glass.scaled(257, 16), hint);
        QVERIFY(wide.isEmpty() || MRVGuiUtil::toImage(wide).width() == 257);
        if (detected.isEmpty()) {
            return;
        }
        // What has no transparency shows white in its place.
        const QImage read = MRVGuiUtil::toImage(bytes);
        const QColor background =
            detected == "png" || detected == "ico" ? QColor(0, 0, 0, 0) : QColor(Qt::white);
        QCOMPARE(read.size(), glass.size());
        QCOMPARE(read.pixelColor(1, 1), background);
        QCOMPARE(read.pixelColor(14, 14), background);
        if (detected == "jpeg") {
            QCOMPARE(read.dotsPerMeterX(), 11811);
            const QImage card = testCard(QImage::Format_RGB32);
            QVERIFY(MRVGuiUtil::toByteArray(card, hint, 10).size()
                    < MRVGuiUtil::toByteArray(card, hint).size());
        }
    }

    void imageFormats()
    {
        const QStringList readable = MRVGuiUtil::readImageFormats();
        const QStringList writable = MRVGuiUtil::writeImageFormats();
        QStringList both;
        for (const QStringList &formats : {readable, writable}) {
            QStringList sorted = formats.join(' ').toUpper().split(' ');
            sorted.sort();
            sorted.removeDuplicates();
            QCOMPARE(formats, sorted);
            for (const char *format : {"BMP", "JPG", "PNG", "JPEG", "TIFF", "SVGZ"}) {
                QVERIFY2(formats.contains(format) == (strlen(format) == 3), format);
            }
        }
        QVERIFY(readable.contains("GIF"));
        QVERIFY(!writable.contains("GIF"));
        for (const QString &format : writable) {
            const QImage card = testCard(QImage::Format_RGB32);
            QVERIFY2(!MRVGuiUtil::toByteArray(card, format.toLatin1()).isEmpty(),
                     qPrintable(format));
            if (readable.contains(format)) {
                both << format;
            }
        }
        QCOMPARE(MRVGuiUtil::readWriteImageFormats(), both);

        const QStringList filters = MRVGuiUtil::readImageFileFilters();
        QCOMPARE(filters.size(), readable.size() + 1);
        for (const char *pattern : {"*.png", "*.jpg", "*.jpeg", "*.gif"}) {
            QVERIFY2(filters.first().contains(pattern), pattern);
        }
        QVERIFY2(QRegExp("All Images \\(\\*\\..*\\)").exactMatch(filters[0]),
                 qPrintable(filters[0]));
        QVERIFY(filters.contains("JPG (*.jpg *.jpeg *.jpe *.jfif)"));
        const QStringList writableFilters = MRVGuiUtil::writeImageFileFilters();
        QCOMPARE(writableFilters.size(), writable.size());
        QVERIFY(writableFilters.contains("PNG (*.png)"));
    }
};

QTEST_MAIN(TestImages)

#include "tst_images.moc"
