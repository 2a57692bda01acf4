#include "heapmeter.h"

#include "autoreplace/mrvautoreplacelist.h"
#include "importexport/mrvimportexportconfig.h"
#include "settings/mrvshortcutscheme.h"
#include "text/mrvtextformat.h"

#include <QDataStream>
#include <QtTest>

#include <functional>

namespace {

using Reader = std::function<void(const QByteArray &)>;

constexpr long MostMemory = 1024 * 1024;
constexpr int ShortForm = 2000; // up to here each byte takes all other values

QByteArray autoReplaceEntry()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << MRVAutoReplace{true, "-->", QString(QChar(0x2192))};
    return bytes;
}

MRVShortcutScheme shortcutScheme()
{
    const MRVShortcutScheme all = MRVShortcutScheme::morvane();
    return {"Tools", MRVShortcutScheme::toHash(all.groupShortcuts("Tools"))};
}

QTextCharFormat charFormat()
{
    QTextCharFormat format;
    format.setFontFamily("DejaVu Serif");
    format.setFontPointSize(11.5);
    format.setFontItalic(true);
    format.setForeground(QColor(10, 20, 30));
    format.setBackground(QBrush(Qt::yellow, Qt::Dense4Pattern));
    format.setTextOutline(QPen(Qt::red, 2.5, Qt::DashLine));
    format.setAnchorNames({"one", "two"});
    format.setProperty(QTextFormat::UserProperty + 7,
                       QVariantMap{{"a", 1}, {"b", QVariantList{2, "x"}}});
    return format;
}

QTextBlockFormat blockFormat()
{
    QTextBlockFormat format;
    format.setAlignment(Qt::AlignJustify);
    format.setTextIndent(18);
    format.setTabPositions({QTextOption::Tab(72, QTextOption::DelimiterTab, ','),
                            QTextOption::Tab(144, QTextOption::RightTab)});
    format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                       QTextLength(QTextLength::PercentageLength, 50));
    return format;
}

MRVShortcutScheme shortcutScheme()
{
    const QList<MRVShortcutInfo> commands =
        MRVShortcutScheme::morvane().sortedShortcuts().mid(0, 3);
    return MRVShortcutScheme("Mine", MRVShortcutScheme::toHash(commands));
}

} // namespace

Q_DECLARE_METATYPE(Reader)

/** What is stored in settings may come back damaged: it is read without a crash, and without much memory. */
class TestStoredForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }
    void meter();
    void damaged_data();
    void damaged();
};

// Else a meter that stands still would let everything pass.
void TestStoredForms::meter()
{
#ifdef MRV_SANITIZE
    QSKIP("The sanitizer's own memory functions are not counted");
#endif
    HeapMeter::start();
    QByteArray(500000, 'x').clear();
    QByteArray grown("x");
    grown.reserve(700000);
    QVERIFY(HeapMeter::peak() >= 700000 && HeapMeter::peak() < 701000);
}

void TestStoredForms::damaged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Reader>("read");
    const auto row = [](const char *name, const QByteArray &bytes, const Reader &read) {
        QTest::newRow(name) << bytes << read;
    };
    row("auto-replace list", MRVAutoReplaceList::defaultReplacementsByteArray(),
        [](const QByteArray &bytes) { MRVAutoReplaceList().fromByteArray(bytes); });
    row("auto-replace entry", autoReplaceEntry(), [](const QByteArray &bytes) {
        MRVAutoReplace entry;
        QDataStream stream(bytes);
        stream >> entry;
    });
    row("char format", MRVTextFormat::toByteArray(charFormat()),
        [](const QByteArray &bytes) { MRVTextFormat::toCharFormat(bytes); });
    row("block format", MRVTextFormat::toByteArray(blockFormat()),
        [](const QByteArray &bytes) { MRVTextFormat::toBlockFormat(bytes); });
    row("engine map",
        MRVImportExportConfig::toByteArray(MRVImportExportConfig::defaultImportEngines()),
        [](const QByteArray &bytes) { MRVImportExportConfig::toFormatEngines(bytes); });
    row("shortcut scheme", shortcutScheme().toByteArray(),
        [](const QByteArray &bytes) { MRVShortcutScheme::fromByteArray(bytes); });
    row("shortcut scheme with defaults", shortcutScheme().toByteArray(),
        [](const QByteArray &bytes) { MRVShortcutScheme(bytes, true); });
    row("shortcut scheme in a stream", shortcutScheme().toByteArray(), [](const QByteArray &bytes) {
        MRVShortcutScheme scheme;
        QDataStream stream(bytes);
        stream >> scheme;
    });
}

void TestStoredForms::damaged()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Reader, read);
    QVERIFY(bytes.size() > 8);
    read(bytes); // what is made once, such as registered types, is no matter of the bytes
    const auto peak = [&](const QByteArray &form) {
        HeapMeter::start();
        read(form);
        return HeapMeter::peak();
    };
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY2(peak(bytes.left(size)) < MostMemory, qPrintable(QString::number(size)));
    for (int at = 0; at < bytes.size(); ++at) {
        for (int change = 1; change < 256; ++change) {
            // Of long forms each bit, all of them, and one more or less.
            const bool chosen = (change & (change - 1)) == 0 || ((change + 1) & change) == 0;
            if (bytes.size() > ShortForm && !chosen)
                continue;
            QByteArray changed = bytes;
            changed[at] = char(changed.at(at) ^ change);
            const long most = peak(changed);
            QVERIFY2(most < MostMemory,
                     qPrintable(QString("byte %1 ^ %2: %3").arg(at).arg(change).arg(most)));
        }
    }
}

QTEST_MAIN(TestStoredForms)

#include "tst_storedforms.moc"
