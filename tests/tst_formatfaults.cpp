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
};

QTEST_MAIN(TestFormatFaults)
#include "tst_formatfaults.moc"
