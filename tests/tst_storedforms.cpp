#include "heapmeter.h"

#include "autoreplace/mrvautoreplacelist.h"
#include "engines/mrvimportexportconfig.h"
#include "options/mrvoptions.h"
#include "presets/mrvtextpresetscheme.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <QDataStream>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

namespace {

using Reader = std::function<bool(const QByteArray &)>; // whether it read what was stored

constexpr long MostMemory = 1024 * 1024;
constexpr int ShortForm = 700; // up to here each byte takes all other values

template<typename T>
QByteArray inStream(const T &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

template<typename T>
bool readFromStream(const QByteArray &bytes)
{
    T value;
    QDataStream stream(bytes);
    stream >> value;
    return value != T();
}

/** The options, and a list of integers, of which they have none. */
class Store : public MRVOptions
{
public:
    static constexpr IntListSetting Numbers = IntListSetting(7);

    using MRVOptions::MRVOptions;
    static QString numbersKey() { return "Lists/numbers"; }
    QString keyText(IntListSetting) const override { return numbersKey(); }
};

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

} // namespace

Q_DECLARE_METATYPE(Reader)

/**
 * What is stored in settings may come back damaged: it is read without a crash, and without much
 * memory.
 */
class TestStoredForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_store.reset(new Store(m_folder.filePath("settings.ini")));
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }
    void meter();
    void damaged_data();
    void damaged();

private:
    QTemporaryDir m_folder;
    QScopedPointer<Store> m_store;
};

// Else a meter that stands still would let everything pass.
void TestStoredForms::meter()
{
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
        [](const QByteArray &bytes) {
            MRVAutoReplaceList list;
            list.fromByteArray(bytes);
            return list.size() == 33;
        });
    row("auto-replace entry", inStream(MRVAutoReplace{true, "-->", QString(QChar(0x2192))}),
        readFromStream<MRVAutoReplace>);
    row("char format", MRVSettings::toByteArray(charFormat()), [this](const QByteArray &bytes) {
        m_store->setValue("Formats/char", bytes);
        return m_store->textCharFormat("Formats/char", QTextCharFormat()).fontItalic();
    });
    row("block format", MRVSettings::toByteArray(blockFormat()), [this](const QByteArray &bytes) {
        m_store->setValue("Formats/block", bytes);
        return m_store->textBlockFormat("Formats/block", QTextBlockFormat()).textIndent() == 18;
    });
    row("integer list", "1 20 3 -4000000", [this](const QByteArray &bytes) {
        m_store->setValue(Store::numbersKey(), QString::fromLatin1(bytes));
        return m_store->value(Store::Numbers) == QList<int>{1, 20, 3, -4000000};
    });
    row("engine map",
        MRVImportExportConfig::toByteArray(MRVImportExportConfig::defaultExportEngines()),
        [](const QByteArray &bytes) {
            return !MRVImportExportConfig::toFormatEngines(bytes).isEmpty();
        });
    const MRVTextPreset preset(charFormat(), blockFormat(), MRVTextPreset::ApplyCharFormat);
    MRVTextPresetScheme presets;
    presets.setPreset("One", preset);
    presets.setPreset("Two", MRVTextPreset());
    row("text preset", inStream(preset), readFromStream<MRVTextPreset>);
    row("text preset scheme", MRVTextPresetScheme::toByteArray(presets),
        [](const QByteArray &bytes) {
            return MRVTextPresetScheme::fromByteArray(bytes).count() == 2;
        });
    const QList<MRVShortcutInfo> commands =
        MRVShortcutScheme::morvane().sortedShortcuts().mid(0, 3);
    const MRVShortcutScheme shortcuts("Mine", MRVShortcutScheme::toHash(commands));
    row("shortcut scheme", shortcuts.toByteArray(), [](const QByteArray &bytes) {
        return MRVShortcutScheme::fromByteArray(bytes).shortcuts().size() == 3;
    });
}

void TestStoredForms::damaged()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Reader, read);
    QVERIFY(bytes.size() > 8);
    QVERIFY(read(bytes)); // also makes what is made once, such as registered types
    const auto peak = [&](const QByteArray &form) {
        HeapMeter::start();
        read(form);
        return HeapMeter::peak();
    };
    for (int size = 0; size < bytes.size(); ++size) {
        QVERIFY2(peak(bytes.left(size)) < MostMemory, qPrintable(QString::number(size)));
    }
    for (int at = 0; at < bytes.size(); ++at) {
        for (int change = 1; change < 256; ++change) {
            // Of long forms each bit, all of them, and one more or less.
            const bool chosen = (change & (change - 1)) == 0 || ((change + 1) & change) == 0;
            if (bytes.size() > ShortForm && !chosen) {
                continue;
            }
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
