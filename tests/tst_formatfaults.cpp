#include "document/mtextdoc.h"
#include "textformat/mrvtextformat.h"

#include <QPen>
#include <QTextCursor>
#include <QTextDocument>
#include <QtTest>

using F = MRVTextFormat;

namespace {

QTextCharFormat with(const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(F::ExtraProperty4, value);
    return format;
}

QImage square(int size)
{
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::green);
    return image;
}

} // namespace

/// Stored formats made to harm the reader, and values that are hard to store.
class TestFormatFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Qt gives the picture up early, and would then read a count of dashes from within it.
    void damagedTextureOfPen()
    {
        const QByteArray sound = F::toByteArray(with(QPen(QBrush(square(3)), 2)));
        QCOMPARE(F::toCharFormat(sound).propertyCount(), 1);
        const int checksum = sound.indexOf("IHDR") + 4 + 13;
        for (int flipped : {0, 1}) {
            QByteArray bytes = sound;
            bytes[checksum] = char(bytes.at(checksum) ^ flipped);
            bytes.insert(checksum + 4,
                         QByteArray::fromHex("00000640") + "tEXt"
                             + QByteArray::fromHex("7ffffff0").repeated(400) + QByteArray(4, 0));
            F::toCharFormat(bytes);
            QVERIFY(!flipped || F::toCharFormat(bytes).properties().isEmpty());
        }
    }

    // The file that the second image links to has the name of the first.
    void linkedFileIsNotReplaced()
    {
        QTemporaryDir folder;
        const QString original = folder.filePath("b.png");
        QVERIFY(square(9).save(original));
        QTextDocument document;
        QTextImageFormat format;
        format.setName("b");
        document.addResource(QTextDocument::ImageResource, QUrl("b"), square(4));
        QTextCursor(&document).insertImage(format);
        format.setProperty(F::ImageLinkProperty, original);
        QTextCursor end(&document);
        end.movePosition(QTextCursor::End);
        end.insertImage(format);
        QList<int> widths;
        for (const QString &path : MTextDoc::exportImages(document, folder.path(), false)) {
            widths << QImage(path).width();
        }
        QCOMPARE(widths.size(), 2);
        std::sort(widths.begin(), widths.end());
        QCOMPARE(widths, (QList<int>{4, 9}));
        QCOMPARE(QImage(original).width(), 9);
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
        QCOMPARE(F::toByteArray(with(QVariantList{hash})), F::toByteArray(with(QVariantList{map})));
    }

    void largePlainTextureAndManyStops()
    {
        QLinearGradient stops(0, 0, 1, 1);
        for (int i = 0; i <= 2000; ++i) {
            stops.setColorAt(i / 2000.0, Qt::red);
        }
        for (const QBrush &brush : {QBrush(square(1400)), QBrush(stops)}) {
            QCOMPARE(F::toCharFormat(F::toByteArray(with(brush))).propertyCount(), 1);
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

    // Each picture is small enough, but all of them together are not.
    void manyPictures()
    {
        const QByteArray one = F::toByteArray(with(square(1400)));
        const QByteArray value = one.mid(8);
        QByteArray bytes = one.left(4) + QByteArray::fromHex("00000032");
        for (int i = 0; i < 50; ++i) {
            bytes += value;
        }
        QCOMPARE(F::toCharFormat(one).propertyCount(), 1);
        QCOMPARE(F::toCharFormat(bytes).propertyCount(), 0);
    }
};

QTEST_MAIN(TestFormatFaults)
#include "tst_formatfaults.moc"
