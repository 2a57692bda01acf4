#include "datarows.h"
#include "heapmeter.h"
#include "images.h"

#include "core/mcoretype.h"
#include "exchange/mrvfernwickdropitem.h"
#include "input/mrvvariantguard.h"
#include "textformat/mrvlistlevel.h"
#include "textformat/mrvtextformat.h"

#include <QPen>
#include <QTextOption>
#include <QTimeZone>

using Guard = MRVVariantGuard;

namespace {

constexpr long MostMemory = 1024 * 1024;

const QHash<QString, Guard::Form> forms{{"settings", Guard::SettingsValue},
                                        {"date", Guard::SettingsDate},
                                        {"char", Guard::CharFormat},
                                        {"block", Guard::BlockFormat},
                                        {"item", Guard::DropItem}};

int versionOf(Guard::Form form)
{
    return form == Guard::SettingsValue ? QDataStream::Qt_4_0
        : form == Guard::SettingsDate   ? QDataStream::Qt_5_6
                                        : MCoreType::StreamVersion;
}

/** A value as its form holds it. */
QByteArray stored(Guard::Form form, const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(versionOf(form));
    if (form == Guard::DropItem) {
        stream << qint32(1) << QString("label");
    } else if (form == Guard::CharFormat || form == Guard::BlockFormat) {
        stream << qint32(form == Guard::CharFormat ? 2 : 1) << quint32(1) << qint32(0x100004);
    }
    stream << value;
    return bytes;
}

QByteArray taken(Guard::Form form, const QByteArray &bytes)
{
    QDataStream stream(bytes);
    return Guard::take(stream, form);
}

/** As Qt reads what the guard let through. */
void decode(Guard::Form form, const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(versionOf(form));
    if (form == Guard::CharFormat || form == Guard::BlockFormat) {
        QTextFormat format;
        stream >> format;
    } else if (form == Guard::DropItem) {
        MRVFernwickDropItem item;
        stream >> item;
    } else {
        QVariant value;
        stream >> value;
    }
}

QVariant brushes()
{
    QRadialGradient radial(5, 5, 3);
    radial.setColorAt(0.5, Qt::red);
    QPen pen(QBrush(filledImage(3, 3, Qt::green)), 2.5, Qt::CustomDashLine, Qt::RoundCap,
             Qt::MiterJoin);
    pen.setDashPattern({1, 2, 3, 4});
    return QVariantList{QBrush(QLinearGradient(0, 0, 1, 2)),
                        QBrush(radial),
                        QBrush(QConicalGradient(1, 2, 45)),
                        QBrush(Qt::red, Qt::Dense3Pattern),
                        pen,
                        QVariant::fromValue(QTextLength(QTextLength::PercentageLength, 50)),
                        QVariant::fromValue(QTextOption::Tab(72, QTextOption::RightTab, '.')),
                        QVariant::fromValue(MRVQtListLevel{"%0.", 1, 2, 3})};
}

QVariant common()
{
    return QVariantList{QColor(1, 2, 3), "x", QVariantMap{{"k", QStringList{"y", "z"}}}, 2.5f,
                        QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3), Qt::OffsetFromUTC, 3600)};
}

/** Whatever is waiting; what will come is not known. */
class Pipe : public QIODevice
{
public:
    explicit Pipe(const QByteArray &bytes)
        : m_bytes(bytes)
    {
        open(ReadOnly);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 most) override
    {
        const int size = int(qMin(most, qint64(m_bytes.size())));
        std::copy_n(m_bytes.constData(), size, data);
        m_bytes.remove(0, size);
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_bytes;
};

template<typename T>
QString printed(const T &value)
{
    return value.isNull() ? QString("null") : QString(value);
}

} // namespace

Q_DECLARE_METATYPE(Guard::Form)

/** Readers of bytes that other programs or a damaged disk may have made. */
class TestInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        MRVTextFormat::toByteArray(QTextCharFormat()); // registers types
        MRVFernwickDropItem().toVariant();
    }

    // Otherwise a meter that stands still would let everything pass.
    void meter()
    {
#ifdef MRV_SANITIZE
        QSKIP("The sanitizer's own memory functions are not counted");
#endif
        HeapMeter::start();
        QByteArray grown("x");
        grown.reserve(700000);
        QVERIFY(HeapMeter::peak() >= 700000);
        QVERIFY(HeapMeter::peak() < 701000);
    }

    void checkedStream_data()
    {
        addRows("input-texts.tsv");
    }
    void checkedStream()
    {
        QFETCH(QString, what);
        const QByteArray bytes = QByteArray::fromHex(cell("hex").toLatin1());
        for (const bool isPipe : {false, true}) {
            QBuffer buffer;
            buffer.setData(bytes);
            buffer.open(QIODevice::ReadOnly);
            Pipe pipe(bytes);
            QDataStream stream(isPipe ? static_cast<QIODevice *>(&pipe) : &buffer);
            MRVCheckedStream in(&stream);
            QString text;
            QByteArray array;
            qint32 number = 0;
            quint32 count = 0;
            HeapMeter::start();
            const bool isRead = what == "text" ? in.read(&text)
                : what == "bytes"              ? in.read(&array)
                : what == "number"             ? in.read(&number)
                                               : in.readCount(&count, 2);
            QVERIFY(HeapMeter::peak() < MostMemory);
            if (what == "count" && isPipe) {
                QVERIFY(isRead);
                continue;
            }
            const QString result = stream.status() == QDataStream::ReadCorruptData ? "corrupt"
                : stream.status() == QDataStream::ReadPastEnd                      ? "short"
                : what == "text"                                                   ? printed(text)
                : what == "bytes"                                                  ? printed(array)
                                  : QString::number(number + count);
            QTEST(result, "result");
            QCOMPARE(isRead, in.isOk());
            QVERIFY(isRead || (text.isNull() && array.isNull() && !in.read(&number)));
        }
    }

    void longAndLittle()
    {
        const QString text(100000, QChar(0x2190));
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out << text;
        QDataStream stream(bytes);
        stream.setByteOrder(QDataStream::LittleEndian);
        QString read;
        QVERIFY(MRVCheckedStream(&stream).read(&read));
        QCOMPARE(read, text);
    }

    // Every type that Qt knows, in every form.
    void types()
    {
        QMap<QString, QString> letters;
        for (const QStringList &row : rowsOf("input-types.tsv")) {
            for (const QString &name : row.at(1).split(',')) {
                letters[name] = row.at(0);
            }
        }
        const QByteArrayList names{"settings", "date", "char", "block", "item"};
        for (int type = QMetaType::Bool; type < QMetaType::User; ++type) {
            const bool isPointer = type == QMetaType::Nullptr || type == QMetaType::VoidStar;
            if (!QMetaType::isRegistered(type) || type == QMetaType::Void || isPointer) {
                continue;
            }
            const QString name = QMetaType::typeName(type);
            QString found;
            for (const QByteArray &form : names) {
                const QByteArray bytes = stored(forms[form], QVariant(type, nullptr));
                const QByteArray read = taken(forms[form], bytes);
                QVERIFY2(read.isEmpty() || read == bytes, qPrintable(name));
                found += read.isEmpty() ? "" : form.left(1);
            }
            QVERIFY2(found == letters.value(name), qPrintable(name + ' ' + found));
        }
    }

    void refused_data()
    {
        addRows("input-refused.tsv");
    }
    void refused()
    {
        const QByteArray bytes = QByteArray::fromHex(cell("hex").toLatin1());
        HeapMeter::start();
        QCOMPARE(taken(forms[cell("form")], bytes), QByteArray());
        QVERIFY(HeapMeter::peak() < MostMemory);
    }

    void damaged_data()
    {
        QTest::addColumn<Guard::Form>("form");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("settings") << Guard::SettingsValue << common();
        QTest::newRow("font") << Guard::SettingsValue << QVariant(QFont("Serif", 12));
        QTest::newRow("date") << Guard::SettingsDate
                              << QVariant(QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3),
                                                    QTimeZone(3600)));
        QTest::newRow("brushes") << Guard::CharFormat << brushes();
        QTest::newRow("format") << Guard::BlockFormat << common();
        QTest::newRow("items")
            << Guard::DropItem
            << QVariant(QVariantList{
                   MRVFernwickDropItem("a", filledImage(2, 2, Qt::green)).toVariant(), common()});
    }
    // A cut is never taken for a whole value, and no changed byte makes Qt crash or take much
    // memory.
    void damaged()
    {
        QFETCH(Guard::Form, form);
        QFETCH(QVariant, value);
        const QByteArray bytes = stored(form, value);
        QCOMPARE(taken(form, bytes + "more"), bytes);
        for (int at = 0; at < bytes.size(); ++at) {
            QCOMPARE(taken(form, bytes.left(at)), QByteArray());
            for (int change : {0x01, 0x02, 0x04, 0x10, 0x80, 0xff}) {
                QByteArray changed = bytes;
                changed[at] = char(changed.at(at) ^ change);
                HeapMeter::start();
                const QByteArray read = taken(form, changed);
                if (!read.isEmpty()) {
                    decode(form, read);
                }
                QVERIFY2(HeapMeter::peak() < MostMemory, qPrintable(QString::number(at)));
            }
        }
    }

    // Qt gives the picture up early, and would then read a count of dashes from within it.
    void damagedTextureOfPen()
    {
        const QByteArray whole =
            stored(Guard::CharFormat, QPen(QBrush(filledImage(3, 3, Qt::green)), 2));
        const int checksum = whole.indexOf("IHDR") + 4 + 13;
        QByteArray bytes = whole;
        bytes[checksum] = char(bytes.at(checksum) ^ 1);
        bytes.insert(checksum + 4,
                     QByteArray::fromHex("00000640") + "tEXt"
                         + QByteArray::fromHex("7ffffff0").repeated(400) + QByteArray(4, 0));
        QCOMPARE(taken(Guard::CharFormat, whole), whole);
        QVERIFY(taken(Guard::CharFormat, bytes).isEmpty());
    }

    // Each picture is small enough, but all of them together are not.
    void picturesTogether()
    {
        const QVariant picture = filledImage(1400, 1400, Qt::green);
        const QByteArray one = stored(Guard::CharFormat, QVariantList{picture});
        const QByteArray two = stored(Guard::CharFormat, QVariantList{picture, picture});
        QCOMPARE(taken(Guard::CharFormat, one), one);
        QVERIFY(taken(Guard::CharFormat, two).isEmpty());
        const QByteArray notes = stored(Guard::DropItem, QVariantList{picture, picture});
        QCOMPARE(taken(Guard::DropItem, notes), notes);
    }

    void nesting()
    {
        const auto nested = [](int levels) {
            QVariant value = 1;
            for (; levels > 0; --levels) {
                value = levels % 2 ? QVariant(QVariantList{value})
                                   : QVariant(QVariantMap{{"k", value}});
            }
            return value;
        };
        for (const Guard::Form form : {Guard::SettingsValue, Guard::CharFormat}) {
            QVERIFY(!taken(form, stored(form, nested(32))).isEmpty());
            QVERIFY(taken(form, stored(form, nested(33))).isEmpty());
        }
        const QByteArray list = QByteArray::fromHex("00000009 00000001");
        QVERIFY(taken(Guard::SettingsValue, list.repeated(1000000)).isEmpty());
    }
};

QTEST_MAIN(TestInput)
#include "tst_input.moc"
