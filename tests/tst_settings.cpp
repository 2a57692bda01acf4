#include "datarows.h"
#include "options/mrvoptions.h"
#include "support.h"
#include "textformat/mrvtextformat.h"

#include <QBitArray>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimeZone>
#include <QUuid>

#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using S = MRVSettings;

// The options, with a list of ints, which they have none of.
class Store : public MRVOptions
{
public:
    using MRVOptions::defaultValue;
    using MRVOptions::keyText;
    using MRVOptions::MRVOptions;
    QString keyText(IntListSetting) const override { return "List/ints"; }
    QList<int> defaultValue(IntListSetting) const override { return {7}; }
};

constexpr auto Ints = S::IntListSetting(0);

QMap<QString, QString> textsOf(const QString &path)
{
    QTemporaryDir folder; // QSettings knows the file by its path
    QFile::copy(path, folder.filePath("copy"));
    const QSettings settings(folder.filePath("copy"), QSettings::IniFormat);
    QMap<QString, QString> texts;
    for (const QString &key : settings.allKeys()) {
        texts[key] = settings.value(key).toString();
    }
    return texts;
}

// What the other processes of the tests do.
int work(const QStringList &arguments)
{
    const QString path = arguments.at(2);
    Store store(path);
    if (arguments.at(1) == "keys") {
        bool isSaved = true;
        for (int i = 0; i < 200; ++i) {
            store.setValue(QString("Keys/%1-%2").arg(arguments.at(3)).arg(i), i);
            isSaved = isSaved && (i % 8 != 7 || store.saveNow());
        }
        return isSaved ? 0 : 1;
    }
    if (arguments.at(1) == "once") {
        store.remove("Old/gone");
        store.setValue("New/big", QString(arguments.at(3).toInt(), 'n'));
        store.beginGroup("Mine"); // saving leaves it for a while
        store.setValue("last", 1);
        QString error;
        const bool isSaved = store.saveNow(&error);
        fputs(qPrintable(error), stderr);
        return isSaved ? 0 : 1;
    }
    for (int i = arguments.at(3).toInt();; ++i) { // until it is killed
        store.setValue("A/value", QString(i % 50 * 1000, 'a'));
        store.setValue("B/value", i % 50 * 1000);
        store.saveNow();
        puts("saved");
        fflush(stdout);
    }
}

} // namespace

/** The typed store: values, announcements, and files that stay whole. */
class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new QTemporaryDir); }
    void announcements_data() { addRows("settings-changes.tsv"); }
    void announcements()
    {
        Store store(in("a"));
        store.setGroup("/Options/"); // means the same
        QStringList heard;
        connect(&store, &S::groupsChanged, this, [&](const QStringList &groups) {
            heard << groups.join(',');
            if (groups.contains("Listener")) {
                store.setValue("Heard/a", 1);
            }
        });
        for (const QString &step : cell("steps").split(", ")) {
            const QString what = step.section(' ', 0, 0);
            const QString key = step.section(' ', 1);
            if (what == "set") {
                QVERIFY(store.setValue(key, 1));
                QVERIFY(store.contains(key));
            } else if (what == "remove") {
                store.remove(key);
            } else if (what == "open") {
                store.beginGroup(key);
            } else if (what == "end") {
                store.endGroup();
            } else if (what == "run") {
                QTest::qWait(1);
            } else {
                store.blockSignals(what == "block");
            }
        }
        QTest::qWait(1);
        QTEST(heard.join('|'), "signals");
    }
    // From a file, numbers and flags come back as texts, a list of one as its item, and an empty
    // one as nothing.
    void valuesFromACopy()
    {
        const auto values = std::make_tuple(
            std::pair(MRVOptions::CheckForUpdates, false), std::pair(MRVOptions::SaveInterval, 300),
            std::pair(S::RealSetting(0), 0.1),
            std::pair(S::StringSetting(1), QString("@a, \u00e9\n")),
            std::pair(S::StringSetting(2), QString("")),
            std::pair(S::StringListSetting(0), QStringList{"a, b"}),
            std::pair(S::ColorSetting(1), QColor(1, 2, 3, 4)),
            std::pair(S::ColorSetting(2), QColor()),
            std::pair(S::DateTimeSetting(0),
                      QDateTime(QDate(2020, 2, 29), QTime(23, 59, 59), Qt::UTC)),
            std::pair(S::FontSetting(1), QFont("DejaVu Serif", 11, QFont::Bold, true)),
            std::pair(Ints, QList<int>{1, 20, 3}),
            std::pair(S::ByteArraySetting(7), QByteArray("\0\xff", 2)));
        Store store(in("a"));
        std::apply([&](auto &...all) { (store.setValue(all.first, all.second), ...); }, values);
        QVERIFY(store.saveNow());
        QVERIFY(bytesOf(in("a")).contains("List\\ints=1 20 3\n"));
        QVERIFY(QFile::copy(in("a"), in("copy")));
        Store copy(in("copy"));
        QCOMPARE(copy.value("General/saveInterval").userType(), int(QMetaType::QString));
        const auto compare = [&](auto &...all) {
            return ((copy.value(all.first) == all.second) && ...);
        };
        QVERIFY(std::apply(compare, values));

        copy.setValue(S::StringListSetting(0), QStringList());
        copy.setValue("List/ints", " 1   20\t3 ");
        QCOMPARE(copy.value(Ints), (QList<int>{1, 20, 3}));
        copy.setValue(Ints, QList<int>());
        QVERIFY(copy.saveNow());
        QVERIFY(QFile::copy(in("copy"), in("third")));
        const Store third(in("third"));
        QVERIFY(third.contains("AutoCorrection/personalWords"));
        QVERIFY(third.value(Ints).isEmpty());
        QCOMPARE(third.value(S::StringListSetting(0)), QStringList());
    }
    void anyType()
    {
        const QVariantMap values{
            {"float", 1.5f},
            {"char", QChar('x')},
            {"uuid", QUuid("{67C8770B-44F1-410A-AB9A-F9B5446F13EE}")},
            {"short", QVariant::fromValue(short(-3))},
            {"long", QVariant::fromValue(3L)},
            {"bits", QBitArray(5, true)},
            {"\u007f~ %\u00ff\u0100", 1},
            {"byte", QVariant::fromValue(uchar(7))},
            {"font", QFont("Serif", 12)},
            {"url", QUrl("http://a.b/c")},
            {"map", QVariantMap{{"a", QVariantList{QVariant(), 1.5f}}}},
            {"locale", QLocale("de_DE")},
            {"size", QSizeF(1, 2)},
            {"list", QVariantList{QDate(2026, 1, 1), QRect(1, 2, 3, 4)}},
            {"key", QKeySequence("Ctrl+K")},
            {"time", QDateTime::currentDateTimeUtc()},
            {"zone", QDateTime(QDate(2026, 1, 1), QTime(1, 1), QTimeZone("Europe/Berlin"))},
            {"offset", QDateTime(QDate(2026, 1, 1), QTime(1, 1), Qt::OffsetFromUTC, 3600)}};
        {
            Store store(in("a"));
            for (auto it = values.begin(); it != values.end(); ++it) {
                QVERIFY2(store.setValue("Any/" + it.key(), it.value()), qPrintable(it.key()));
            }
            QVERIFY(!store.setValue("Any/no", QImage(2, 2, QImage::Format_RGB32)));
            QVERIFY(!store.setValue("Any/no", QVariantList{QRegularExpression("a")}));
        }
        QVERIFY(QFile::rename(in("a"), in("b")));
        {
            QSettings plain(in("plain"), QSettings::IniFormat);
            plain.beginGroup("Options");
            for (auto it = values.begin(); it != values.end(); ++it) {
                plain.setValue("Any/" + it.key(), it.value());
            }
        }
        QCOMPARE(bytesOf(in("b")), bytesOf(in("plain")));
        const Store store(in("b"));
        QCOMPARE(store.allKeys().size(), values.size());
        for (auto it = values.begin(); it != values.end(); ++it) {
            const QVariant found = store.value("Any/" + it.key());
            QVERIFY2(found == it.value() || (it.key() == "key" && found == "Ctrl+K"),
                     qPrintable(it.key()));
        }
    }
    // Qt crashes when it writes one.
    void unknownTimeZones()
    {
        const QDateTime utc(QDate(2026, 7, 1), QTime(12, 0), Qt::UTC);
        const QDateTime nowhere(utc.date(), utc.time(), QTimeZone("No/Where"));
        Store store(in("a"));
        QVERIFY(store.setValue(S::DateTimeSetting(0), nowhere));
        QVERIFY(store.setValue("Any/list", QVariantList{nowhere, 1}));
        QCOMPARE(store.value(S::DateTimeSetting(0)), utc);
        store.setValue("Any/zone", QDateTime(utc.date(), utc.time(), QTimeZone("Europe/Berlin")));
        QVERIFY(store.saveNow());
        QByteArray stored = bytesOf(in("a"));
        QVERIFY(writeBytes(in("b"), stored.replace("\\x65\\0r\\0l", "\\x65\\0r\\0m")));
        Store damaged(in("b"));
        QCOMPARE(damaged.value("Any/zone").toDateTime(), utc);
        damaged.setValue("Any/other", 1);
        QVERIFY(damaged.saveNow());
    }
    // As an editor writes it that marks its files; the next one to open it reads the same.
    void utf8Mark()
    {
        QVERIFY(writeBytes(in("a"), "\xef\xbb\xbf[Options]\nG\\k=\xc3\xa4, \\xe4\n"));
        for (int i = 0; i < 2; ++i) {
            Store store(in("a"));
            QCOMPARE(store.value("G/k").toStringList(), (QStringList{"ä", "ä"}));
            store.setValue("G/i", i);
            QVERIFY(store.saveNow());
            QVERIFY(QFile::remove(in("b")) == (i > 0));
            QVERIFY(store.saveToFile(in("b")));
            QVERIFY(QFile::copy(in("b"), in("c" + QString::number(i))));
        }
        QCOMPARE(Store(in("c1")).value("G/k").toStringList(), (QStringList{"ä", "ä"}));
    }
    void editedByHand_data() { addRows("settings-edited.tsv"); }
    void editedByHand()
    {
        QFETCH(QString, text);
        QVERIFY(writeBytes(in("a"), "[Options]\n" + cell("line").toUtf8()));
        const auto read = Store(in("a")).explain(cell("key"));
        QCOMPARE(MRVOptions::toText(read.type, read.value),
                 text.isEmpty() ? MRVOptions::toText(read.type, read.defaultValue) : text);
    }
    void formats()
    {
        Store store(in("a"));
        QTextCharFormat def;
        def.setFontItalic(true);
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        QTextBlockFormat block;
        block.setTopMargin(3);
        QCOMPARE(store.textCharFormat("a", def), def);
        for (bool hinting : {false, true}) {
            store.setValue(S::FlagSetting(12), hinting);
            store.setValue(S::TextCharFormat(0), bold);
            QCOMPARE(store.value(S::TextCharFormat(0)),
                     MRVTextFormat::setFontHinting(bold, hinting));
        }
        const QByteArray stored = store.value(store.keyText(S::TextCharFormat(0))).toByteArray();
        QCOMPARE(stored, MRVTextFormat::toByteArray(bold));
        store.setValue(S::TextBlockFormat(0), block);
        QCOMPARE(store.value(S::TextBlockFormat(0)), block);
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray("damaged"), S::toByteArray(block)}) {
            store.setValue("a", bytes);
            QCOMPARE(store.textCharFormat("a", def), def);
            QCOMPARE(S::toTextCharFormat(bytes), QTextCharFormat());
        }
        store.setValue("a", stored);
        QCOMPARE(store.textBlockFormat("a", block), block);
        const QImage image(8, 4, QImage::Format_RGB32);
        QCOMPARE(S::toImage(S::toByteArray(image)).size(), image.size());
    }
    void schemes()
    {
        Store store(in("a"));
        const MRVShortcutScheme def = MRVShortcutScheme::msWord();
        const QString key = "Shortcut/s";
        QCOMPARE(store.shortcutScheme(key, def), def);
        store.setValue(key, QByteArray());
        QCOMPARE(store.shortcutScheme(key, def), def);
        QCOMPARE(store.shortcutScheme(key, {}), MRVShortcutScheme::morvane());
        store.setShortcutScheme(key, MRVShortcutScheme("Mine"));
        QCOMPARE(store.shortcutScheme(key, def).name(), QString("Mine"));

        const MRVTextPresetScheme presets = MRVTextPresetScheme::defaultScheme();
        QCOMPARE(store.textPresets("P/p", presets), presets);
        store.setTextPresets("P/p", {});
        QVERIFY(store.textPresets("P/p", presets).isEmpty());
        const QByteArray bytes = MRVTextPresetScheme::toByteArray(presets);
        store.setValue("P/p", bytes.left(bytes.size() / 2));
        QCOMPARE(store.textPresets("P/p", {}).names().value(0), QString("Block Quote"));
        store.setValue("P/p", bytes.left(9));
        QCOMPARE(store.textPresets("P/p", presets), presets);
    }
    void resetAndGroups()
    {
        Store store(in("a"));
        QSignalSpy reset(&store, &S::settingsReset);
        store.setValue("G/a", 1);
        store.beginGroup("Inner");
        store.setGroup("Other");
        store.setValue("G/b", 2);
        store.setGroup("Options");
        QCOMPARE(store.allKeys(), QStringList{"G/a"});
        store.resetToDefaults();
        QCOMPARE(reset.size(), 1);
        QVERIFY(store.allKeys().isEmpty());
        store.setGroup(QString());
        QCOMPARE(store.allKeys(), QStringList{"Other/G/b"});
        const MRVSettings base(in("a"), QSettings::IniFormat);
        QVERIFY(!base.value(S::FlagSetting(2)));
        QVERIFY(base.value(S::IntSetting(1)) == 0);
        QVERIFY(!base.value(S::ColorSetting(0)).isValid());
        QVERIFY(base.keyText(Ints).isEmpty());
    }
    void saveToFile()
    {
        Store store(in("a"));
        store.setValue("G/a", 1);
        store.setValue("alone", QColor(Qt::blue));
        QVERIFY(writeBytes(in("real"), "[Other]\nx=1\n[Options]\nG\\old=1\n"));
        QVERIFY(QFile::link(in("real"), in("link")));
        QVERIFY(store.saveToFile(in("link")));
        QVERIFY(QFileInfo(in("link")).isSymLink());
        const QMap<QString, QString> texts = textsOf(in("real"));
        QCOMPARE(texts.keys(), (QStringList{"Options/G/a", "Options/alone", "Other/x"}));
        QCOMPARE(texts.value("Options/G/a"), QString("1"));
        // Onto itself, also by another name.
        QVERIFY(store.saveNow());
        QVERIFY(QFile::link(in("a"), in("self")));
        QVERIFY(store.saveToFile(in("self")));
        QVERIFY(store.saveToFile(in("a")));
        QCOMPARE(textsOf(in("a")).size(), 2);
        QCOMPARE(store.value("G/a").toInt(), 1);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{"a", "link", "real", "self"}));
        QString error;
        for (const char *other : {"Dear a=b\n", "[Options]\nwithout an equals sign\n"}) {
            QVERIFY(writeBytes(in("other"), other));
            QVERIFY(!store.saveToFile(in("other"), &error));
            QCOMPARE(bytesOf(in("other")), QByteArray(other));
        }
        QVERIFY(!store.saveToFile(in("missing/file"), &error));
        QVERIFY(!store.saveToFile(m_folder->path()));
        QVERIFY2(error.contains("missing/file"), qPrintable(error));
    }
    void loadFromFile()
    {
        Store store(in("a"));
        store.setValue("G/a", 1);
        store.setValue("H/b", 2);
        QVERIFY(store.saveNow());
        store.loadFromFile(in("a"));
        QCOMPARE(store.allKeys(), (QStringList{"G/a", "H/b"}));
        QVERIFY(
            writeBytes(in("b"), "[Options]\nGeneral\\saveInterval=5\nNew\\c=6\n[Other]\nz=1\n"));
        QSignalSpy reset(&store, &S::settingsReset), changed(&store, &S::groupsChanged);
        store.loadFromFile(in("b"));
        QCOMPARE(reset.size(), 1);
        QCOMPARE(store.allKeys(), (QStringList{"General/saveInterval", "New/c"}));
        QCOMPARE(store.value(MRVOptions::SaveInterval), 5);
        QTRY_VERIFY(changed.value(0).value(0).toStringList().contains("New"));
        store.loadFromFile(in("missing"));
        QCOMPARE(reset.size(), 2);
        QVERIFY(store.allKeys().isEmpty());
    }
    // A group that is open inside of the store's own is copied as that group.
    void nestedGroups()
    {
        Store store(in("a")), other(in("c"));
        store.setValue("General/saveInterval", 5);
        store.setValue("G/a", 1);
        store.beginGroup("General");
        QVERIFY(writeBytes(in("b"), "[Options]\nG\\kept=1\nGeneral\\old=1\n"));
        QVERIFY(store.saveToFile(in("b")));
        QCOMPARE(textsOf(in("b")).keys(),
                 (QStringList{"Options/G/kept", "Options/General/saveInterval"}));
        other.setValue("General/gone", 1);
        other.setValue("G/kept", 1);
        other.beginGroup("General");
        other.loadFromFile(in("b"));
        other.endGroup();
        QCOMPARE(other.allKeys(), (QStringList{"G/kept", "General/saveInterval"}));
        QVERIFY(!other.setValue(S::FlagSetting(60), true));
    }
    // Of another store, of another program, and of one that the store is not asked to look for.
    void othersChanges()
    {
        Store store(in("a"));
        MRVSettings state(in("a"), QSettings::IniFormat);
        QStringList heard;
        connect(&store, &S::groupsChanged, this,
                [&](const QStringList &groups) { heard << groups.join(','); });
        state.setValue("Options/Second/a", 1);
        state.setValue("Second/b", 1);
        QCOMPARE(store.value("Second/a").toInt(), 1);
        QTRY_COMPARE(heard, QStringList{"Second"});
        state.remove("Options");
        QTRY_COMPARE(heard.join('|'), QString("Second|Second"));
        heard.clear();
        store.setValue("Own/kept", 1);
        QVERIFY(store.saveNow());
        const auto write = [&](const QString &key, int value) {
            QSettings plain(in("a"), QSettings::IniFormat);
            plain.setValue(key, value);
        };
        write("Options/Third/a", 1);
        store.sync();
        QTRY_COMPARE(heard.join('|'), QString("Own,Third"));
        QCOMPARE(store.value("Third/a").toInt(), 1);
        heard.clear();
        store.setWatched(true);
        write("Options/Fourth/a", 1);
        QTRY_COMPARE(heard, QStringList{"Fourth"});
        write("Options/Fourth/a", 2); // the file is another one now
        QTRY_COMPARE(store.value("Fourth/a").toInt(), 2);
        QCOMPARE(textsOf(in("a")).size(), 4);
    }
    void fourProcesses()
    {
        QVERIFY(writeBytes(in("a"), "[Other]\nkept=1\n"));
        std::array<QProcess, 4> processes;
        for (QProcess &process : processes) {
            process.start(QCoreApplication::applicationFilePath(),
                          {"keys", in("a"), QString(QChar('a' + int(&process - &processes[0])))});
        }
        for (QProcess &process : processes) {
            QVERIFY(process.waitForFinished(120000));
            QCOMPARE(process.exitCode(), 0);
        }
        QCOMPARE(textsOf(in("a")).size(), 801);
    }
    // MRV_KILLS says how often, where the few of every day are not enough.
    void killedWhileSaving()
    {
        const int kills = qMax(12, qEnvironmentVariableIntValue("MRV_KILLS"));
        QSet<QString> sizes;
        for (int i = 0; i < kills; ++i) {
            QProcess process;
            process.start(QCoreApplication::applicationFilePath(),
                          {"forever", in("a"), QString::number(i)});
            QVERIFY(process.waitForReadyRead());
            QTest::qSleep(1 + i * 7 % 31);
            process.kill();
            QVERIFY(process.waitForFinished());
            const QMap<QString, QString> texts = textsOf(in("a"));
            QCOMPARE(texts.size(), 2);
            QCOMPARE(QString::number(texts.value("Options/A/value").size()),
                     texts.value("Options/B/value"));
            sizes << texts.value("Options/B/value");
        }
        QVERIFY(sizes.size() > 1);
    }
    void faultsWhileSaving_data() { addRows("settings-faults.tsv"); }
    // Each call in turn meets a fault. A write of which only the count comes back is what a full
    // disk gives.
    void faultsWhileSaving()
    {
        QFETCH(QString, calls);
        QFETCH(QString, following);
        const auto save = [&](const QStringList &options) {
            QFile::remove(in("a"));
            if (!writeBytes(in("a"), "[Options]\nOld\\gone=1\nOld\\kept=2\n[Other]\nx=3\n")) {
                return Ran();
            }
            return run("strace",
                       QStringList{"-f", "-qq", "-o", in("trace"), "-e", "trace=" + calls} + options
                           + QStringList{QCoreApplication::applicationFilePath(), "once", in("a"),
                                         cell("size")},
                       {"ASAN_OPTIONS=detect_leaks=0:exitcode=9"});
        };
        QCOMPARE(save({}).exitCode, 0);
        const QMap<QString, QString> after = textsOf(in("a"));
        QCOMPARE(after.size(), 4);
        const int count = bytesOf(in("trace")).count('\n');
        QVERIFY(count > 0);
        const QStringList names{"Options/Old/gone", "Options/Old/kept", "Other/x"};
        for (int call = 1; call <= count; ++call) {
            const QString when =
                QString("%1:when=%2%3").arg(cell("fault")).arg(call).arg(following);
            const Ran ran = save({"-e", "inject=" + calls + ':' + when});
            const int code = ran.exitCode;
            const QMap<QString, QString> found = textsOf(in("a"));
            QVERIFY2(found == after || found.keys() == names, qPrintable(when));
            // What saveNow() could not save is saved at the end, perhaps.
            QVERIFY2(code != 0 || found == after, qPrintable(when));
            QVERIFY2(code != 1 || following == "+" || ran.errors.contains(in("a")),
                     qPrintable(ran.errors));
        }
    }
    // A file may grow so far only, which cuts it as a full disk does.
    void cutWhileSaving()
    {
        for (int size : {30, 5000}) {
            const QByteArray old =
                "[Options]\nOld\\gone=1\nOld\\kept=" + QByteArray(size, 'k') + '\n';
            for (int space = 0; space < 40; ++space) {
                QFile::remove(in("a"));
                QVERIFY(writeBytes(in("a"), old));
                const QMap<QString, QString> before = textsOf(in("a"));
                const int code =
                    run("sh",
                        {"-c", QString("trap '' XFSZ; ulimit -f %1; exec \"$@\"").arg(space), "sh",
                         QCoreApplication::applicationFilePath(), "once", in("a"), "9000"})
                        .exitCode;
                const QMap<QString, QString> found = textsOf(in("a"));
                const bool isNew =
                    found.keys().join(' ') == "Options/Mine/last Options/New/big Options/Old/kept"
                    && found.value("Options/New/big").size() == 9000
                    && found.value("Options/Old/kept").size() == size;
                QVERIFY2(isNew || (code != 0 && found == before),
                         qPrintable(QString::number(space)));
            }
        }
    }
    // A pipe stays one, and nobody waits for it to end.
    void savedToPipe()
    {
        const QByteArray pipe = QFile::encodeName(in("pipe"));
        QCOMPARE(::mkfifo(pipe, 0600), 0);
        const int end = ::open(pipe, O_RDWR); // so that it can be opened for reading
        {
            Store store(in("pipe")), other(in("b"));
            store.setValue("G/a", 1);
            QString error;
            QVERIFY(!store.saveNow(&error));
            QVERIFY(error.contains("pipe"));
            QVERIFY(!other.saveToFile(in("pipe")));
        }
        struct stat now;
        QVERIFY(::stat(pipe, &now) == 0);
        QVERIFY(S_ISFIFO(now.st_mode));
        ::close(end);
    }
    // What could not be saved is saved with the next change.
    void triedAgain()
    {
        QVERIFY(QDir().mkdir(in("place")));
        {
            Store store(in("place/a"));
            store.setValue("G/first", 1);
            QVERIFY(store.saveNow());
            QVERIFY(QFile::rename(in("place"), in("away")));
            QVERIFY(writeBytes(in("place"), "in the way"));
            QSignalSpy failed(&store, &S::saveFailed);
            store.setValue("G/second", 2);
            QTRY_COMPARE(failed.size(), 1);
            QTest::qWait(20);
            QCOMPARE(failed.size(), 1);
            QString error;
            store.beginGroup("Mine");
            QVERIFY(!store.saveNow(&error));
            store.endGroup();
            QVERIFY2(error.contains("place/a"), qPrintable(error));
            QVERIFY(QFile::remove(in("place")));
            QVERIFY(QFile::rename(in("away"), in("place")));
            store.setValue("G/third", 3);
            QTRY_COMPARE(textsOf(in("place/a")).size(), 3);
            store.setValue("G/fourth", 4);
        }
        QCOMPARE(textsOf(in("place/a")).size(), 4);
    }

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }
    QScopedPointer<QTemporaryDir> m_folder;
};

int main(int argc, char **argv)
{
    if (argc > 2 && QFileInfo(argv[2]).isAbsolute()) {
        QCoreApplication application(argc, argv);
        return work(application.arguments());
    }
    QGuiApplication application(argc, argv);
    tst_Settings test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_settings.moc"
