#include "exchange/mrvfernwickdropitem.h"
#include "exchange/mrvreference.h"

#include "core/mcoretype.h"
#include "images.h"

#include <QColor>
#include <QPolygon>
#include <QTimeZone>
#include <QtTest>

namespace {

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

QByteArray bytesOf(const MRVFernwickDropItem &item)
{
    return MCoreType::toByteArray(item);
}

MRVFernwickDropItem group()
{
    return MRVFernwickDropItem({MRVFernwickDropItem("a", filledImage(2, 1, Qt::red)).toVariant(),
                                QVariantMap{{"k", QStringList{"x", "y"}}}, 7});
}

} // namespace

/// Reference lists and drop items, and the bytes that they are stored as.
class TestReferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void referenceBytes()
    {
        MRVReference web;
        web.title = "Ö";
        web.setUrl(QUrl("http://a.example/"));
        MRVReference item;
        item.title = "i";
        item.setInternalLink(258);
        const QList<MRVReference> references{MRVReference(), web, item};
        const QByteArray bytes =
            hex("00000003"
                "0001 ffffffff ffffffff ffffffff"
                "0001 00000002 00d6 00000011 687474703a2f2f612e6578616d706c652f ffffffff"
                "0001 00000002 0069 ffffffff 00000102");
        QCOMPARE(MRVReference::toByteArray(references), bytes);
        QCOMPARE(MRVReference::toReferenceList(bytes), references);
        QCOMPARE(MRVReference::toReferenceList(QByteArray()), QList<MRVReference>());
        // Other versions are read in the same way.
        QByteArray later = bytes;
        later[5] = 9;
        QCOMPARE(MRVReference::toReferenceList(later), references);
        QString text;
        QDebug(&text) << web << item;
        QCOMPARE(text.trimmed(),
                 QString("Reference[\"Ö\", http://a.example/] Reference[\"i\", 258]"));
    }

    void linksExcludeEachOther()
    {
        MRVReference reference;
        reference.setInternalLink(3);
        reference.setUrl(QUrl("x:y"));
        QCOMPARE(reference.internalLink, -1);
        QCOMPARE(reference.url, QUrl("x:y"));
        reference.setInternalLink(3);
        QVERIFY(reference.url.isEmpty());
        QCOMPARE(reference.internalLink, 3);
    }

    void dropItemBytes_data()
    {
        QTest::addColumn<MRVFernwickDropItem>("item");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("default") << MRVFernwickDropItem() << hex("00000001 ffffffff 00000000 01");
        QTest::newRow("text") << MRVFernwickDropItem("l", "t")
                              << hex("00000001 00000002 006c 0000000a 00 00000002 0074");
        QTest::newRow("no picture") << MRVFernwickDropItem("l", QImage())
                                    << hex("00000001 00000002 006c 00000046 00 00000000");
        const QByteArray type = QByteArray("MRVFernwickDropItem") + '\0';
        const MRVFernwickDropItem inner("", QString("t"));
        QTest::newRow("list") << MRVFernwickDropItem({inner.toVariant(), 5})
                              << hex("00000001 ffffffff 00000009 00 00000002"
                                     "00000400 00 00000014")
                + type
                + hex("00000001 00000000 0000000a 00 00000002 0074"
                      "00000002 00 00000005");
    }
    void dropItemBytes()
    {
        QFETCH(MRVFernwickDropItem, item);
        QFETCH(QByteArray, bytes);
        QCOMPARE(bytesOf(item), bytes);
        QCOMPARE(MCoreType::fromByteArray<MRVFernwickDropItem>(bytes), item);
    }

    // Before any other test has used an item: how the receiver of a drop begins.
    void initTestCase()
    {
        QDataStream stream(hex("00000400 00 00000014") + QByteArray("MRVFernwickDropItem") + '\0'
                           + hex("00000001 00000002 006c 0000000a 00 00000002 0074"));
        stream.setVersion(MCoreType::StreamVersion);
        QVariant variant;
        stream >> variant;
        QCOMPARE(stream.status(), QDataStream::Ok);
        QCOMPARE(MRVFernwickDropItem::fromVariant(variant), MRVFernwickDropItem("l", QString("t")));
    }

    // Items in a list, as programs of Qt 4 have written them.
    void oldGroups()
    {
        const QVariantList items{MRVFernwickDropItem("a", QString("b")).toVariant(),
                                 MRVFernwickDropItem({QVariant::fromValue(7L)}).toVariant()};
        for (const auto order : {QDataStream::BigEndian, QDataStream::LittleEndian}) {
            QByteArray bytes;
            QDataStream out(&bytes, QIODevice::WriteOnly);
            out.setVersion(QDataStream::Qt_4_8);
            out.setByteOrder(order);
            out << qint32(1) << QString() << QVariant(items);
            for (const int version : {int(QDataStream::Qt_4_8), MCoreType::StreamVersion}) {
                QDataStream in(bytes);
                in.setVersion(version);
                in.setByteOrder(order);
                MRVFernwickDropItem read;
                in >> read;
                QCOMPARE(in.status(), QDataStream::Ok);
                QCOMPARE(read, MRVFernwickDropItem(items));
            }
        }
    }

    void variants()
    {
        const MRVFernwickDropItem item("l", filledImage(2, 1, Qt::red));
        const QVariant variant = item.toVariant();
        QCOMPARE(variant.typeName(), "MRVFernwickDropItem");
        QCOMPARE(MRVFernwickDropItem::fromVariant(variant), item);
        QCOMPARE(MRVFernwickDropItem::fromVariant(QVariant("t")),
                 MRVFernwickDropItem("", QString("t")));
        const QVariantList list{variant, "t"};
        const auto items = MRVFernwickDropItem::fromVariant(list);
        QCOMPARE(items.size(), 2);
        QCOMPARE(items.at(0), item);
        QCOMPARE(MRVFernwickDropItem::fromVariant(QVariant(list)), MRVFernwickDropItem(list));
        // A picture of one colour is large, though stored in few bytes.
        const MRVFernwickDropItem wall("l", filledImage(5120, 2880, Qt::white));
        QCOMPARE(MCoreType::fromByteArray<MRVFernwickDropItem>(bytesOf(wall)), wall);
        // What could not be read again is not written.
        QVariant deep = 1;
        for (int i = 0; i < 30; ++i) {
            deep = QVariantList{deep};
        }
        const MRVFernwickDropItem deepest({deep});
        QCOMPARE(MCoreType::fromByteArray<MRVFernwickDropItem>(bytesOf(deepest)), deepest);
        const QList<QVariant> foreign{deep, QVariantHash{{"a", 1}},
                                      QVariant::fromValue(QPolygon())};
        for (const QVariant &value : foreign) {
            QCOMPARE(bytesOf(MRVFernwickDropItem({QVariantMap{{"k", value}}})), QByteArray());
        }
        // Dates that have a time zone are written in UTC.
        for (const char *zone : {"Europe/Berlin", "No/Where"}) {
            const QDateTime date(QDate(2026, 1, 2), QTime(12, 0), QTimeZone(zone));
            const MRVFernwickDropItem zoned({QVariantMap{{"k", date}}});
            QCOMPARE(MCoreType::fromByteArray<MRVFernwickDropItem>(bytesOf(zoned)),
                     MRVFernwickDropItem({QVariantMap{{"k", date.toUTC()}}}));
        }
        // What follows a picture in a stream is read from behind it.
        const QByteArray bytes = bytesOf(item) + bytesOf(group());
        QDataStream stream(bytes);
        stream.setVersion(MCoreType::StreamVersion);
        MRVFernwickDropItem first;
        MRVFernwickDropItem second;
        stream >> first >> second;
        QCOMPARE(first, item);
        QCOMPARE(second, group());
        QVERIFY(stream.atEnd());
        // A picture beyond what pictures may take is null, and what stands behind it is kept.
        const QByteArray vast =
            hex("00000001 ffffffff 00000009 00 00000002 00000046 00 00000001 89504e470d0a1a0a"
                "0000000d 49484452 00004000 00004000 01 00 00 00 00 00000000 0000c000 49444154")
            + QByteArray(0xc004, 0) + hex("00000000 49454e44 ae426082 0000000a 00 00000002 0041");
        QCOMPARE(MCoreType::fromByteArray<MRVFernwickDropItem>(vast),
                 MRVFernwickDropItem({QImage(), "A"}));
    }

    // Values whose bytes are checked before Qt reads them, in the stream's order of bytes.
    void littleEndian()
    {
        const QDateTime time(QDate(2026, 1, 2), QTime(3, 4), Qt::OffsetFromUTC, 60);
        const MRVFernwickDropItem item({time, QColor(1, 2, 3), "A"});
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << item;
        QDataStream in(bytes);
        in.setByteOrder(QDataStream::LittleEndian);
        MRVFernwickDropItem read;
        in >> read;
        QCOMPARE(read, item);
    }

    // A cut, and a count that the bytes cannot fill.
    void damagedBytes()
    {
        const QByteArray item = bytesOf(group());
        const QByteArray list = MRVReference::toByteArray({MRVReference(), MRVReference()});
        MRVFernwickDropItem read("x", QString("y"));
        QDataStream stream(item.left(item.size() - 1));
        stream >> read;
        QVERIFY(stream.status() != QDataStream::Ok);
        QCOMPARE(read, MRVFernwickDropItem());
        QVERIFY(MRVReference::toReferenceList(list.left(list.size() - 1)).isEmpty());
        QVERIFY(MRVReference::toReferenceList(hex("7ffffff0") + list.mid(4)).isEmpty());
    }
};

QTEST_MAIN(TestReferences)
#include "tst_references.moc"
