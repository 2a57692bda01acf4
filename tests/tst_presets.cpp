#include "settings/mrvtextpresetscheme.h"
#include "text/mrvtextformat.h"

#include <QtTest>

#include <sys/resource.h>

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

long peakKilobytes()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

/** Text presets and what is stored of them. */
class tst_Presets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedForm();
    void roundTrip();
    void otherVersions();
    void damagedBytes();
    void defaults();
};

void tst_Presets::storedForm()
{
    QCOMPARE(Scheme::toByteArray(sample()).toHex(), sampleBytes().toHex());
    QCOMPARE(Scheme::fromByteArray(sampleBytes()), sample());
    QVERIFY(Scheme::fromByteArray(QByteArray()).isEmpty());
}

void tst_Presets::roundTrip()
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
    QVERIFY(scheme.deletePreset("Body") && !scheme.deletePreset("Body"));
    QVERIFY(again != scheme && again.contains("Body"));
}

void tst_Presets::otherVersions()
{
    QByteArray bytes = sampleBytes();
    bytes[8 + 6 + 3] = 2;
    P preset({}, {}, P::ApplyBlockFormat);
    const P before = preset;
    QDataStream stream(bytes.mid(8 + 6));
    stream >> preset;
    QVERIFY(preset == before);
    QCOMPARE(stream.device()->pos(), 4);
    QString error;
    QVERIFY(Scheme::fromByteArray(bytes, &error).isEmpty());
    QVERIFY(!error.isEmpty());
    bytes = sampleBytes();
    bytes[3] = 2;
    QVERIFY(Scheme::fromByteArray(bytes).isEmpty());
}

// Each beginning of a scheme, and each change of one of its bytes.
void tst_Presets::damagedBytes()
{
    const QByteArray whole = Scheme::toByteArray(Scheme::defaultScheme());
    const QStringList names = Scheme::defaultScheme().names();
    QCOMPARE(Scheme::fromByteArray(whole).names(), names);
    const long before = peakKilobytes();
    int most = 0;
    for (int length = 1; length < whole.size(); ++length) {
        QString error;
        const Scheme scheme = Scheme::fromByteArray(whole.left(length), &error);
        QVERIFY(!error.isEmpty());
        QCOMPARE(scheme.names(), names.mid(0, scheme.count()));
        QVERIFY(scheme.count() >= most);
        most = scheme.count();
    }
    QCOMPARE(most, names.size() - 1);
    for (int at = 0; at < whole.size(); ++at) {
        for (int flipped : {1, 2, 4, 8, 16, 32, 64, 128, 255}) {
            QByteArray bytes = whole;
            bytes[at] = char(bytes.at(at) ^ flipped);
            QVERIFY(Scheme::fromByteArray(bytes).count() <= names.size());
        }
    }
#ifndef MRV_SANITIZE
    QVERIFY2(peakKilobytes() - before <= 1024, qPrintable(QString::number(peakKilobytes())));
#else
    Q_UNUSED(before)
#endif
}

void tst_Presets::defaults()
{
    const Scheme scheme = Scheme::defaultScheme();
    QCOMPARE(scheme.names().join('|'),
             QString("Block Quote|Body|Essay Block Quote (Preserved)|Heading|Sub-heading|Title"));
    for (const QString &name : scheme.names()) {
        const P preset = scheme.preset(name);
        const bool isHeading = name.contains("ead") || name == "Title";
        QCOMPARE(preset.charFormat().intProperty(QTextFormat::FontWeight), isHeading ? 75 : 0);
        QCOMPARE(preset.charFormat().boolProperty(MRVTextFormat::PreserveFormatProperty),
                 name.contains("Preserved"));
        QCOMPARE(preset.blockFormat().leftMargin() > 0, name.contains("Quote"));
        QVERIFY(preset.charFormat().fontPointSize() >= 12);
        QCOMPARE(int(preset.applyFlags()), 3);
    }
}

QTEST_MAIN(tst_Presets)
#include "tst_presets.moc"
