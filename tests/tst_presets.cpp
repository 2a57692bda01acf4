#include "mrvtool.h"
#include "options/mrvoptions.h"
#include "state/mrvtextpresetmgr.h"
#include "textformat/mrvtextformat.h"

using P = MRVTextPreset;
using Scheme = MRVTextPresetScheme;

namespace {

// Two presets, added against their order.
Scheme sample()
{
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QTextBlockFormat indented;
    indented.setTextIndent(36);
    Scheme scheme;
    scheme.setPreset("B", P(bold, indented, P::ApplyCharFormat | P::ApplyBlockFormat));
    scheme.setPreset("A", P({}, {}, P::ApplyCharFormat));
    return scheme;
}

// Written out from the stated layout.
const char sampleHex[] = "00000001 00000002"
                         "00000002 0041 00000001 00000001 00000002 00000000 00000001 00000000"
                         "00000002 0042 00000001 00000003"
                         "00000002 00000001 00002003 00000002 00 0000004b"
                         "00000001 00000001 00001034 00000006 00 4042000000000000";

QByteArray sampleBytes()
{
    return QByteArray::fromHex(sampleHex);
}

} // namespace

/** Text presets and what is stored of them. */
class tst_Presets : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ToolTest::init();
        qputenv("XDG_DATA_HOME", QFile::encodeName(in("home")));
        QVERIFY(QDir().mkdir("home"));
        QCoreApplication::setOrganizationName("Morvane");
        QCoreApplication::setApplicationName("Morvane");
        mrvOptions()->remove("TextEditing");
    }
    void storedForm()
    {
        QCOMPARE(Scheme::toByteArray(sample()).toHex(), sampleBytes().toHex());
        QCOMPARE(Scheme::fromByteArray(sampleBytes()), sample());
        QVERIFY(Scheme::fromByteArray(QByteArray()).isEmpty());
    }
    void roundTrip()
    {
        Scheme scheme = Scheme::defaultScheme();
        QTextBlockFormat tabs;
        tabs.setTabPositions({QTextOption::Tab(72, QTextOption::RightTab)});
        // Flags of a newer version stay.
        scheme.setPreset(QString(), P({}, tabs, P::ApplyFlags(QFlag(0x40000002))));
        scheme.setPreset(u8"\u00e9 \U0001f58b", P({}, tabs, {}));
        QString error;
        const Scheme again = Scheme::fromByteArray(Scheme::toByteArray(scheme) + "more", &error);
        QCOMPARE(error, QString());
        QCOMPARE(again.names(), scheme.names());
        QVERIFY(again == scheme);
        QCOMPARE(again.preset(QString()).blockFormat().tabPositions(), tabs.tabPositions());
        QVERIFY(scheme.deletePreset("Body"));
        QVERIFY(!scheme.deletePreset("Body"));
        QVERIFY(again != scheme);
        QVERIFY(again.contains("Body"));
    }
    void otherVersions()
    {
        QByteArray bytes = sampleBytes();
        bytes[8 + 6 + 3] = 2;
        P preset({}, {}, P::ApplyBlockFormat);
        QDataStream stream(bytes.mid(8 + 6));
        stream >> preset;
        QVERIFY(preset == P({}, {}, P::ApplyBlockFormat));
        QCOMPARE(stream.device()->pos(), 4);
        QString error;
        QVERIFY(Scheme::fromByteArray(bytes, &error).isEmpty());
        QVERIFY(!error.isEmpty());
        bytes = sampleBytes();
        bytes[3] = 2;
        QVERIFY(Scheme::fromByteArray(bytes).isEmpty());
    }
    // What stands before the damage stays.
    void cutOff()
    {
        const QByteArray bytes = sampleBytes();
        QString error;
        QCOMPARE(Scheme::fromByteArray(bytes.left(bytes.size() - 1), &error).names(),
                 QStringList{"A"});
        QVERIFY(!error.isEmpty());
    }
    void defaults()
    {
        const Scheme scheme = Scheme::defaultScheme();
        QCOMPARE(
            scheme.names().join('|'),
            QString("Block Quote|Body|Essay Block Quote (Preserved)|Heading|Sub-heading|Title"));
        for (const QString &name : scheme.names()) {
            const P preset = scheme.preset(name);
            const bool isHeading = name.contains("ead") || name == "Title";
            QCOMPARE(preset.charFormat().intProperty(QTextFormat::FontWeight), isHeading ? 75 : 0);
            QCOMPARE(int(preset.applyFlags()), 3);
        }
    }
    void manager()
    {
        const QString path = in("home/Morvane/Morvane/TextPresets/TextPresets.bin");
        QVERIFY(MRVTextPresetMgr::loadPresetScheme() == Scheme::defaultScheme());
        mrvOptions()->setValue(MRVOptions::TextPresets, Scheme::toByteArray(sample()));
        MRVTextPresetMgr *manager = MRVTextPresetMgr::instance();
        QVERIFY(manager == MRVTextPresetMgr::instance());
        QVERIFY(manager->presetScheme() == sample());
        QSignalSpy spy(manager, &MRVTextPresetMgr::presetsChanged);
        manager->removePreset("C");
        QVERIFY(spy.isEmpty());
        QVERIFY(!QFile::exists(path));
        manager->removePreset("B");
        QCOMPARE(spy.size(), 1);
        QCOMPARE(Scheme::fromByteArray(bytesOf(path)).names(), QStringList{"A"});
        manager->setPresetScheme(sample());
        QCOMPARE(spy.size(), 2);
        QCOMPARE(bytesOf(path), sampleBytes());
        // The file counts, though the settings are newer.
        mrvOptions()->setValue(MRVOptions::TextPresets, Scheme::toByteArray({}));
        QVERIFY(MRVTextPresetMgr().presetScheme() == sample());
        QVERIFY(!QFile::exists(path + '~'));
    }
    void managerWithoutFolder()
    {
        QVERIFY(writeBytes(in("home/Morvane"), "in the way"));
        QCOMPARE(MRVTextPresetMgr::presetSchemeFilePath(), QString());
        MRVTextPresetMgr manager;
        QVERIFY(manager.presetScheme() == Scheme::defaultScheme());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("go to the settings"));
        manager.setPresetScheme(sample());
        QCOMPARE(mrvOptions()->value("TextEditing/textPresets").toByteArray(), sampleBytes());
        QVERIFY(MRVTextPresetMgr::loadPresetScheme() == sample());
    }
    void damagedFileIsKept()
    {
        const QString path = MRVTextPresetMgr::presetSchemeFilePath();
        const QByteArray damaged = sampleBytes().left(50);
        QVERIFY(writeBytes(path, damaged));
        MRVTextPresetMgr manager;
        QCOMPARE(manager.presetScheme().names(), QStringList{"A"});
        manager.removePreset("A");
        QCOMPARE(bytesOf(path + '~'), damaged);
        QCOMPARE(bytesOf(path).toHex(), QByteArray("0000000100000000"));
        // What was kept earlier stays beside what is kept now.
        QVERIFY(writeBytes(path, damaged.left(40)));
        MRVTextPresetMgr again;
        again.setPresetScheme(Scheme::defaultScheme());
        QCOMPARE(bytesOf(path + '~'), damaged);
        QByteArrayList kept;
        const QDir folder = QFileInfo(path).dir();
        for (const QString &name : folder.entryList({"*~*"}, QDir::Files)) {
            kept << bytesOf(folder.filePath(name));
        }
        QVERIFY(kept.contains(damaged.left(40)));
    }
    // Presets that could not be read when the manager was made are not lost when it saves.
    void unreadFileIsKept()
    {
        const QString path = MRVTextPresetMgr::presetSchemeFilePath();
        QVERIFY(QDir().mkpath(path));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("it is a folder"));
        MRVTextPresetMgr manager;
        QVERIFY(QDir().rmdir(path));
        QVERIFY(writeBytes(path, sampleBytes()));
        manager.setPresetScheme(Scheme::defaultScheme());
        QCOMPARE(bytesOf(path + '~'), sampleBytes());
        QVERIFY(MRVTextPresetMgr::loadPresetScheme() == Scheme::defaultScheme());
    }
    void tool()
    {
        QVERIFY(writeBytes(in("two"), sampleBytes()));
        QVERIFY(writeBytes(in("damaged"), sampleBytes().left(50)));
        for (QStringList row : rowsOf("mrv-presets.tsv")) {
            const QString line = row.at(0);
            const Ran ran = mrv("presets " + line);
            QCOMPARE(line + ": " + QString::number(ran.exitCode), line + ": " + row.at(1));
            QCOMPARE(ran.output, row.value(2));
            QCOMPARE(ran.errors.count('\n'), ran.exitCode == 0 ? 0 : 1);
            QVERIFY2(ran.errors.contains(row.value(3)), qPrintable(ran.errors));
        }
        QCOMPARE(bytesOf(in("out")), sampleBytes());
        QCOMPARE(bytesOf(MRVTextPresetMgr::presetSchemeFilePath()),
                 QByteArray::fromHex("0000000100000001") + sampleBytes().mid(38));
    }
};

QTEST_MAIN(tst_Presets)
#include "tst_presets.moc"
