#include "document/mtextdoc.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"
#include "heapmeter.h"
#include "images.h"
#include "input/mrvguardeddocument.h"
#include "support.h"

#include <QImageReader>
#include <QTextDocument>
#include <QtEndian>
#include <QtTest>

#include <cstdio>
#include <ctime>
#include <memory>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace {

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, 0);
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray pngChunk(const char *type, const QByteArray &data)
{
    return bigEndian(data.size()) + type + data + QByteArray(4, 0);
}

// A PNG as far as a walk over its chunks can tell: the checksums are missing.
QByteArray pngClaiming(quint32 width, quint32 height, char depth, char type,
                       const QByteArray &chunks)
{
    return "\x89PNG\r\n\x1a\n"
        + pngChunk("IHDR", bigEndian(width) + bigEndian(height) + depth + type + QByteArray(3, 0))
        + chunks + pngChunk("IEND", {});
}

// An icon file of 16 x 16 pixels, as its directory says, around a picture that may say otherwise.
QByteArray iconHolding(const QByteArray &picture)
{
    QByteArray length(4, 0);
    qToLittleEndian(picture.size(), length.data());
    return QByteArray::fromHex("000001000100 1010000001002000") + length
        + QByteArray::fromHex("16000000") + picture;
}

// The header of a square bitmap, which is all that it has.
QByteArray bitmapClaiming(const QByteArray &size)
{
    return QByteArray::fromHex("424d3a0000000000000036000000 28000000" + size + size + "01001800")
        + QByteArray(28, 0);
}

// A bitmap of 4 x 4 pixels whose first row is the upper one, which a negative height says.
QByteArray bitmapOfRowsFromTop()
{
    return QByteArray::fromHex("424d6600000000000000360000002800000004000000fcffffff01001800")
        + QByteArray(24 + 48, 0);
}

// A small GIF with a frame of 64266 x 4106 pixels, which is put back before the next one.
QByteArray gifOfLargeFrame()
{
    return "GIF89a"
        + QByteArray::fromHex("ffff0a00 800000 000000ffffff 21f9040c00000000"
                              "2cfa040000 0afb 0a10 00 02024401 00 2c00000000 01000100 00"
                              "02024401 00 3b");
}

// A little-endian TIFF of 8 x 8 pixels in one tile of 40000 x 40000.
QByteArray tiffOfLargeTile()
{
    return QByteArray::fromHex("49492a00 08000000 0400"
                               "0001 0300 01000000 08000000 0101 0300 01000000 08000000"
                               "4201 0400 01000000 409c0000 4301 0400 01000000 409c0000 00000000");
}

QByteArray svg(const QByteArray &attributes, const QByteArray &content)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + attributes + ">" + content + "</svg>";
}

// The start of an SVG with 1.5 GB of blanks, as gzip packs it.
QByteArray packedBlanks()
{
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
    const auto packed = [&stream](QByteArray text) {
        QByteArray bytes(4096, 0);
        stream.next_in = reinterpret_cast<Bytef *>(text.data());
        stream.avail_in = uInt(text.size());
        stream.next_out = reinterpret_cast<Bytef *>(bytes.data());
        stream.avail_out = uInt(bytes.size());
        deflate(&stream, Z_FULL_FLUSH); // which does not go back to what came before
        return bytes.left(bytes.size() - int(stream.avail_out));
    };
    const QByteArray start = packed("<svg xmlns='http://www.w3.org/2000/svg'>");
    const QByteArray bytes = start + packed(QByteArray(1 << 20, ' ')).repeated(1500);
    deflateEnd(&stream);
    return bytes;
}

QByteArray pictureText(const QByteArray &size)
{
    return "/* x */\n#define x_width " + size + "\n#define x_height " + size
        + "\nstatic char x_bits[] = {\n0x01};\n";
}

bool isReadable(const char *format)
{
    return QImageReader::supportedImageFormats().contains(format);
}

QString write(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    const QString path = folder.filePath(name);
    return writeBytes(path, bytes) ? path : QString();
}

QTextImageFormat imageNamed(const QString &name)
{
    QTextImageFormat format;
    format.setName(name);
    return format;
}

} // namespace

class Loader : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariant loadResource(int type, const QUrl &)
    {
        return type == QTextDocument::ImageResource ? loaded : QVariant();
    }

    QVariant loaded;
};

class TestPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pngChunks_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("length");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<qint64>("memory");
        const QImage image = filledImage(8, 4, Qt::red, QImage::Format_RGB32);
        const QByteArray real = MRVGuiUtil::toByteArray(image, "PNG");
        const QByteArray pixels = pngChunk("IDAT", QByteArray(2000, 'x'));
        const auto row = [](const char *name, const QByteArray &bytes, bool isWhole,
                            const QSize &size, qint64 memory) {
            QTest::newRow(name) << bytes << (isWhole ? bytes.size() : -1) << size << memory;
        };
        QTest::newRow("more-follows") << real + real << real.size() << QSize(8, 4) << qint64(128);
        row("whole", real, true, {8, 4}, 128);
        row("deep", pngClaiming(100, 50, 16, 6, pixels), true, {100, 50}, 40000);
        row("bits", pngClaiming(2000, 8000, 1, 0, pixels), true, {2000, 8000}, 64000000);
        row("texts", pngClaiming(1, 1, 8, 2, pixels + pngChunk("iTXt", QByteArray(100, 'x'))), true,
            {1, 1}, 4 + 103200);
        row("profile-and-text",
            pngClaiming(1, 1, 8, 2,
                        pixels + pngChunk("iCCP", QByteArray(9000, 'x'))
                            + pngChunk("zTXt", QByteArray(9000, 'x'))),
            true, {1, 1}, 4 + 16000000);
        row("nothing", {}, false, {}, 0);
        row("other-signature", "\x8aPNG" + real.mid(4), false, {}, 0);
        row("cut", real.left(real.size() - 1), false, {8, 4}, 128);
        row("length-past-the-end", QByteArray(real).replace(33, 4, "\xff\xff\xff\xff"), false,
            {8, 4}, 128);
        row("second-header", pngClaiming(8, 4, 8, 2, pngChunk("IHDR", real.mid(16, 13)) + pixels),
            false, {8, 4}, 128);
        row("more-than-deflate-can-hold", pngClaiming(2000, 2000, 8, 0, pixels), false,
            {2000, 2000}, 16000000);
        row("empty", pngClaiming(0, 4, 8, 2, pixels), false, {}, 0);
        row("overflows", pngClaiming(0x7fffffff, 0x7fffffff, 16, 6, pixels), false, {}, 0);
        row("unknown-depth", pngClaiming(8, 4, 17, 2, pixels), false, {}, 0);
        row("unknown-type", pngClaiming(8, 4, 8, 5, pixels), false, {}, 0);
    }

    void pngChunks()
    {
        QFETCH(QByteArray, bytes);
        const MRVPictureReader::Png png = MRVPictureReader::png(bytes);
        QTEST(int(png.length), "length");
        QTEST(png.size, "size");
        QTEST(png.memory, "memory");
    }

    void refusesPictures_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("plugin");
        QTest::addColumn<QString>("reason");
        const QString tooMany = "are more than can be read";
        const QString tooShort = "which a file of its length does not hold";
        const auto row = [](const char *name, const QByteArray &bytes, const char *plugin,
                            const QString &reason) {
            QTest::newRow(name) << bytes << QByteArray(plugin) << reason;
        };
        const QByteArray hugePng = pngClaiming(20000, 20000, 8, 6, pngChunk("IDAT", "x"));
        row("nothing", {}, "png", "no known picture format");
        row("text", "once upon a time", "png", "no known picture format");
        row("png", hugePng, "png", tooMany);
        row("png-of-small-file", pngClaiming(9000, 9000, 8, 2, pngChunk("IDAT", "x")), "png",
            tooShort);
        row("png-texts",
            pngClaiming(8, 4, 8, 2, pngChunk("zTXt", QByteArray(8000, 'x')).repeated(8)), "png",
            "too much compressed text");
        row("bitmap", bitmapClaiming("a0860100"), "bmp", "does not tell its size");
        row("bitmap-of-small-file", bitmapClaiming("10270000"), "bmp", tooShort);
        row("icon-of-png", iconHolding(hugePng), "ico", tooMany);
        row("icon-of-bitmap", iconHolding(bitmapClaiming("204e0000").mid(14) + QByteArray(40, 0)),
            "ico", tooMany);
        row("apple-icon-of-png",
            "icns" + bigEndian(16 + hugePng.size()) + "ic10" + bigEndian(8 + hugePng.size())
                + hugePng,
            "icns", tooMany);
        row("bitmap-text", pictureText("30000"), "xbm", tooMany);
        row("gif-frame", gifOfLargeFrame(), "gif", tooMany);
        row("gif-screen",
            QByteArray::fromBase64("R0lGODlh//8KCgoAACwAAAEAAQCAACEAAAAAAP8AJwQAAAAAAAE7AAABAA=="),
            "gif", tooMany);
        row("tiff-tile", tiffOfLargeTile(), "tiff", tooMany);
        row("webp", "RIFF\x1e\0\0\0WEBPVP8X\x0a\0\0\0\0\0\0\0\x2f\x75\0\x2f\x75\0\0\0\0\0", "webp",
            "");
        row("svg", svg("width='30000' height='30000'", "<rect width='1' height='1'/>"), "svg",
            tooMany);
        row("svg-of-large-content", svg("", "<rect width='30000' height='30000'/>"), "svg",
            tooMany);
        row("svg-blanks", packedBlanks(), "svg", "more than 64 MiB of text");
        row("svg-entities",
            "<!DOCTYPE svg [<!ENTITY a '" + QByteArray(4000, 'x') + "'>]>"
                + svg("width='8' height='4'", "<title>" + QByteArray("&a;").repeated(1 << 20)),
            "svg", "more than 64 MiB of text");
        row("svg-damaged", "<?xml version='1.0'?><svg><g></svg>", "svg", "it is damaged");
    }

    void refusesPictures()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, plugin);
        QFETCH(QString, reason);
        const QTemporaryDir folder;
        const QString path = write(folder, "pic.png", bytes);
        const std::clock_t start = std::clock();
        HeapMeter::start();

        QString error;
        QVERIFY(MRVPictureReader(bytes).read(&error).isNull());
        QVERIFY2(!isReadable(plugin) || error.contains(reason), qPrintable(error));
        QVERIFY(MRVGuiUtil::toImage(bytes).isNull());
        for (const QString &name :
             {path, QUrl::fromLocalFile(path).toString(),
              QString("data:image/png;base64," + bytes.left(1 << 20).toBase64())}) {
            const auto asks = [&](QTextDocument *document) {
                QTextCursor(document).insertImage(imageNamed(name));
                QVERIFY(MTextDoc::image(*document, imageNamed(name)).isNull());
                MTextDoc::fixHtmlImageFormatsAndResourceIds(document);
                MTextDoc::convertUniqueImageResources(document);
                QCOMPARE(MTextDoc::imageResourceIds(*document), QSet<QString>{name});
            };
            QTextDocument plain;
            asks(&plain);
            MRVGuardedDocument guarded;
            asks(&guarded);
            QVERIFY(guarded.resource(QTextDocument::ImageResource, name).value<QImage>().isNull());
        }
        QVERIFY2(HeapMeter::peak() < 300 << 20, qPrintable(QString::number(HeapMeter::peak())));
        // Seconds of the processor's time, for more than a dozen looks at the picture.
        QVERIFY((std::clock() - start) / CLOCKS_PER_SEC < 15);
    }

    // Damage is told by the reader alone: libpng would print a line of its own, and take the memory
    // that a chunk claims.
    void damagedPngPrintsNothing()
    {
        const QByteArray whole = bytesOf(MRV_SOURCE_DIR "/docs/images/page.png");
        QVERIFY(!MRVPictureReader(whole).read().isNull());
        std::unique_ptr<FILE, decltype(&std::fclose)> printed(std::tmpfile(), std::fclose);
        const int before = ::dup(STDERR_FILENO);
        ::dup2(::fileno(printed.get()), STDERR_FILENO);
        QStringList readable;
        QByteArrayList damaged{whole.left(500), whole, whole, whole};
        for (const int at : {20, 2000, int(whole.size()) - 30}) {
            QByteArray &bytes = damaged[at == 20 ? 1 : at == 2000 ? 2 : 3];
            bytes[at] = char(~bytes.at(at));
        }
        damaged << whole.left(whole.size() - 12) + "boolzTXt" + whole.right(12);
        HeapMeter::start();
        for (const QByteArray &bytes : qAsConst(damaged)) {
            QString error;
            if (!MRVPictureReader(bytes).read(&error).isNull() || error.isEmpty()) {
                readable << QString::number(damaged.indexOf(bytes));
            }
        }
        ::dup2(before, STDERR_FILENO);
        ::close(before);
        QCOMPARE(readable, QStringList());
        QVERIFY2(HeapMeter::peak() < 100 << 20, qPrintable(QString::number(HeapMeter::peak())));
        QCOMPARE(::lseek(::fileno(printed.get()), 0, SEEK_END), off_t(0));
    }

    // Headers that Qt does not tell the size of, or tells as a negative one.
    void readsUnusualHeaders()
    {
        const MRVPictureReader bitmap(bitmapOfRowsFromTop(), "bmp");
        QCOMPARE(bitmap.size(), QSize(4, 4));
        QCOMPARE(bitmap.read().size(), QSize(4, 4));
        const QByteArray pixels = QByteArray::fromHex("ff00ff00ff0004").repeated(6);
        QByteArray icon = "is32" + bigEndian(8 + pixels.size()) + pixels;
        icon = "icns" + bigEndian(8 + icon.size()) + icon;
        QCOMPARE(MRVPictureReader(icon, "icns").error(), QString());
    }

    // Qt would read such a picture of 16-bit colours past the end of its lines.
    void makesOneColorTransparent()
    {
        const QByteArray red = QByteArray::fromHex("ff0000000001");
        const QByteArray near = QByteArray::fromHex("ff0000000002");
        const auto chunk = [](const char *type, const QByteArray &data) {
            const QByteArray all = type + data;
            return bigEndian(data.size()) + all
                + bigEndian(crc32(0, reinterpret_cast<const Bytef *>(all.data()), all.size()));
        };
        const QByteArray line = '\0' + (red + near).repeated(40);
        const QByteArray png = "\x89PNG\r\n\x1a\n"
            + chunk("IHDR", bigEndian(80) + bigEndian(9) + QByteArray::fromHex("1002000000"))
            + chunk("tRNS", red) + chunk("IDAT", qCompress(line.repeated(9)).mid(4))
            + chunk("IEND", "");
        const QImage image = MRVPictureReader(png).read();
        QImage expected(80, 9, QImage::Format_RGBA64);
        for (int i = 0; i < 80 * 9; ++i) {
            const QRgba64 color = QRgba64::fromRgba64(0xff00, 0, 1 + i % 2, i % 2 ? 0xffff : 0);
            expected.setPixelColor(i % 80, i / 80, QColor::fromRgba64(color));
        }
        QCOMPARE(image, expected);
    }

    void refusesInExport_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("svg-blanks") << packedBlanks();
        QTest::newRow("png") << pngClaiming(20000, 20000, 8, 6, pngChunk("IDAT", "x"));
        QTest::newRow("gif-frame") << gifOfLargeFrame();
    }

    void refusesInExport()
    {
        QFETCH(QByteArray, bytes);
        const QTemporaryDir folder;
        write(folder, "pic.png", bytes);
        const QString page = write(folder, "page.html", "<p>text <img src='pic.png'></p>");
        const Ran ran =
            run(MRV_TOOL, {"export", page, "--to", "xhtml", "-o", folder.filePath("out.xhtml")});
        QCOMPARE(ran.exitCode, 1);
        QVERIFY2(ran.errors.contains("the picture pic.png cannot be read: "),
                 qPrintable(ran.errors));
        QCOMPARE(ran.errors.count('\n'), 1);
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        QVERIFY2(usage.ru_maxrss < SanitizerMemory * (300 << 10),
                 qPrintable(QString::number(usage.ru_maxrss)));
    }

    // A drawing needs no pixels where it stays one, and few where it is drawn.
    void exportsLargeDrawings()
    {
        const QTemporaryDir folder;
        write(folder, "pic.svg", svg("width='30000' height='10000'", ""));
        const QString page =
            write(folder, "page.html", "<html lang='en'><p>text <img src='pic.svg'>");
        for (const QString type : {"html", "xhtml", "epub", "kindle"}) {
            const QString file = folder.filePath("out." + type);
            QCOMPARE(run(MRV_TOOL, {"export", page, "--to", type, "-o", file}).errors, QString());
        }
        QCOMPARE(QImage(folder.filePath("out_files/pic.jpg")).size(), QSize(4096, 1365));
        QVERIFY(QFile::exists(folder.filePath("out_files/pic.svg")));
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        QVERIFY(usage.ru_maxrss < SanitizerMemory * (300 << 10));
    }

    // Decoded together, these would take half a gigabyte.
    void exportsPhotosAsTheyAre()
    {
        const QTemporaryDir folder;
        QByteArray text = "<html lang='en'>";
        for (int i = 0; i < 10; ++i) {
            const QString name = QString("%1.jpg").arg(i);
            QVERIFY(filledImage(4000, 3000, QColor(20 * i, 0, 0)).save(folder.filePath(name)));
            text += "<img src='" + name.toUtf8() + "'>";
        }
        const QString page = write(folder, "page.html", text);
        for (const QString type : {"xhtml", "epub", "kf8"}) {
            const QString file = folder.filePath("out." + type);
            QCOMPARE(run(MRV_TOOL, {"export", page, "--to", type, "-o", file}).errors, QString());
            QVERIFY(bytesOf(folder.filePath("out_files/7.jpg"))
                    == bytesOf(folder.filePath("7.jpg")));
        }
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        QVERIFY(usage.ru_maxrss < SanitizerMemory * (300 << 10));
    }

    // Opening a pipe that nobody writes to never ends.
    void opensRegularFilesOnly()
    {
        const QTemporaryDir folder;
        const QString pipe = folder.filePath("pipe");
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        const QByteArray name = pipe.toUtf8();
        QTextDocument plain;
        QVERIFY(MTextDoc::image(plain, imageNamed(pipe)).isNull());
        MRVGuardedDocument guarded;
        guarded.setHtml("<link rel='stylesheet' href='" + name + "'><body background='" + name
                        + "'><img src='" + name + "'>");
        QVERIFY(MTextDoc::image(guarded, imageNamed(pipe)).isNull());
        QCOMPARE(MRVPictureReader::ofFile(pipe).error(), "it is not a regular file");

        const QByteArray drawing = "<?xml version='1.0'?><?xml-stylesheet type=\"text/css\" href=\""
            + name + "\"?>"
            + svg("width='8' height='4'",
                  "<rect width='8' height='4' fill='#f00'/><image width='8' height='4' "
                  "xlink:href='"
                      + name + "'/>");
        const QImage image = MRVGuiUtil::toImage(drawing);
        QCOMPARE(image.size(), isReadable("svg") ? QSize(8, 4) : QSize(0, 0));
        QVERIFY(image.isNull() || image.pixelColor(4, 2) == QColor(Qt::red));
    }

    void loadsPictures()
    {
        const QImage image = filledImage(8, 4, Qt::red, QImage::Format_RGB32);
        const QByteArray png = MRVGuiUtil::toByteArray(image, "PNG");
        const QTemporaryDir folder;
        const QString path = write(folder, "pic.png", png);
        MRVGuardedDocument guarded;
        guarded.setBaseUrl(QUrl::fromLocalFile(folder.path() + '/'));
        QTextDocument plain;
        plain.setBaseUrl(guarded.baseUrl());
        plain.addResource(QTextDocument::ImageResource, plain.baseUrl().resolved(QUrl("img-1")),
                          image);
        const QString data = "data:image/png;base64," + png.toBase64();
        for (const QString &name : {path, QString("pic.png"), data}) {
            QCOMPARE(MTextDoc::image(plain, imageNamed(name)), image);
            QCOMPARE(MTextDoc::image(guarded, imageNamed(name)), image);
            QCOMPARE(guarded.resource(QTextDocument::ImageResource, name).value<QImage>(), image);
        }
        QCOMPARE(MTextDoc::image(plain, imageNamed("img-1")), image);
        // What the document has comes before what lies in the file.
        plain.addResource(QTextDocument::ImageResource, QUrl::fromLocalFile(path),
                          image.scaled(2, 2));
        QCOMPARE(MTextDoc::image(plain, imageNamed("pic.png")).size(), QSize(2, 2));
    }

    // A loader that knows pictures only, and one that gives bytes.
    void asksLoaders()
    {
        const QImage image = filledImage(8, 4, Qt::red, QImage::Format_RGB32);
        Loader parent;
        parent.loaded = MRVGuiUtil::toByteArray(image, "PNG");
        QTextDocument plain(&parent);
        QCOMPARE(MTextDoc::image(plain, imageNamed("img-1")), image);
        MRVGuardedDocument guarded(&parent);
        QCOMPARE(MTextDoc::image(guarded, imageNamed("img-1")), image);
        parent.loaded = svg("width='30000' height='30000'", "");
        HeapMeter::start();
        QVERIFY(MTextDoc::image(plain, imageNamed("img-2")).isNull());
        QVERIFY(MTextDoc::image(guarded, imageNamed("img-2")).isNull());
        QVERIFY(HeapMeter::peak() < 300 << 20);
    }
};

QTEST_MAIN(TestPictures)

#include "tst_pictures.moc"
