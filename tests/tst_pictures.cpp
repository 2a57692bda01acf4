#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"

#include <QtEndian>
#include <QtTest>

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

} // namespace

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
        QImage image(8, 4, QImage::Format_RGB32);
        image.fill(Qt::red);
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
};

QTEST_GUILESS_MAIN(TestPictures)

#include "tst_pictures.moc"
