#include "zipfiles.h"

#include <QtTest>

/** Zip archives: what is written can be read, and what is not as it should be is refused. */
class tst_Zip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files()
    {
        const Files packed{{"a.txt", QByteArray(100000, 'a')}, {"b/ä.txt", "b"}, {"empty", ""}};
        const QByteArray bytes = zipOf(packed, MRVZipEntry::Deflated);
        const MRVZipReader zip(bytes);
        QCOMPARE(zip.error().text, QString());
        QCOMPARE(filesOf(bytes), packed);
        QCOMPARE(zip.files().at(0).size, 100000LL);
        QCOMPARE(zip.indexOf("B/ä.txt"), -1);
        QString error;
        QVERIFY(zip.read(0, 99999, &error).isNull());
        QCOMPARE(error, QString("it is too large"));
        QVERIFY(zip.read(3, 1, &error).isNull());
        QCOMPARE(error, QString("it is missing"));
        QVERIFY(zip.check(2, 0, &error));
        // A copy stays as it is packed.
        QBuffer copy;
        copy.open(QIODevice::WriteOnly);
        const MRVZipEntry entry{"copy.txt", MRVZipEntry::Stored, {}, -1, &zip, 0};
        QVERIFY(mrvWriteZip({entry}, 1, QDateTime(QDate(2000, 1, 1), QTime(0, 0)), &copy, nullptr));
        QVERIFY(copy.size() < 1000);
        QCOMPARE(MRVZipReader(copy.data()).read(0, 1 << 20), packed.at(0).second);
    }

    void refusals_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        const auto replaced = [](QByteArray bytes, const QByteArray &from, const QByteArray &to) {
            return bytes.replace(from, to);
        };
        const QByteArray two = zipOf({{"a1", "one"}, {"a2", "two"}});
        QTest::newRow("empty") << QByteArray() << "no ZIP archive";
        QTest::newRow("text") << QByteArray("text") << "no ZIP archive";
        QTest::newRow("duplicate") << replaced(two, "a2", "a1") << "two files of one name: a1";
        for (const QString name : {"../a", "a/../b", "/a", "a//b", "./a", "a\\b"}) {
            QTest::newRow(qPrintable(name)) << zipOf({{name, "1"}}) << "leads out of it";
        }
        // Their sizes, in the directory at the end: "larger" has one byte, which is stored.
        QByteArray claims = zipOf({{"larger", "1"}});
        const int place = claims.lastIndexOf("PK\1\2");
        QTest::newRow("larger-than-stored")
            << claims.replace(place + 24, 4, QByteArray::fromHex("ffffff7f"))
            << "larger than it is";
        QTest::newRow("larger-than-archive")
            << claims.replace(place + 20, 4, QByteArray::fromHex("ffffff7f"))
            << "larger than it is";
        QByteArray packed = zipOf({{"packed", QByteArray(1000, 'a')}}, MRVZipEntry::Deflated);
        QTest::newRow("more-than-deflate-gives")
            << packed.replace(packed.lastIndexOf("PK\1\2") + 24, 4, QByteArray::fromHex("ffffff7f"))
            << "larger than it is";
    }
    void refusals()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        const MRVZipReader zip(bytes);
        QVERIFY2(zip.error().text.contains(error), qPrintable(zip.error().text));
        QVERIFY(!zip.isOpen());
        QVERIFY(zip.files().isEmpty());
    }
};

QTEST_MAIN(tst_Zip)
#include "tst_zip.moc"
