#include "settings/mrvsettings.h"
#include "support.h"
#include "text/mrvtextformat.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <unistd.h>

namespace {

using S = MRVSettings;

// A key for each setting of each type: the type's name and the number.
class Store : public MRVSettings
{
public:
    explicit Store(const QString &path, const QString &group = "Options")
        : MRVSettings(path, IniFormat)
    {
        setGroup(group);
    }
    QString keyText(FlagSetting n) const override { return key("Flag", n); }
    QString keyText(IntSetting n) const override { return key("Int", n); }
    QString keyText(RealSetting n) const override { return key("Real", n); }
    QString keyText(StringSetting n) const override { return key("String", n); }
    QString keyText(StringListSetting n) const override { return key("StringList", n); }
    QString keyText(ColorSetting n) const override { return key("Color", n); }
    QString keyText(DateTimeSetting n) const override { return key("DateTime", n); }
    QString keyText(FontSetting n) const override { return key("Font", n); }
    QString keyText(TextCharFormat n) const override { return key("CharFormat", n); }
    QString keyText(TextBlockFormat n) const override { return key("BlockFormat", n); }
    QString keyText(IntListSetting n) const override { return key("IntList", n); }
    QString keyText(ByteArraySetting n) const override { return key("ByteArray", n); }

    bool defaultValue(FlagSetting n) const override { return n != 12; }
    int defaultValue(IntSetting) const override { return 7; }
    qreal defaultValue(RealSetting) const override { return 0.5; }
    QStringList defaultValue(StringListSetting) const override { return {"x", "y"}; }
    QColor defaultValue(ColorSetting) const override { return Qt::red; }
    QFont defaultValue(FontSetting) const override { return QFont("Default", 9); }
    QList<int> defaultValue(IntListSetting) const override { return {7}; }

private:
    static QString key(const char *type, int n) { return QString("%1/%2").arg(type).arg(n); }
};

QMap<QString, QString> textsOf(const QString &path)
{
    QTemporaryDir folder; // QSettings knows the file by its path
    QFile::copy(path, folder.filePath("copy"));
    const QSettings settings(folder.filePath("copy"), QSettings::IniFormat);
    QMap<QString, QString> texts;
    for (const QString &key : settings.allKeys())
        texts[key] = settings.value(key).toString();
    return texts;
}

// What the other processes of the tests do.
int work(const QStringList &arguments)
{
    const QString path = arguments.at(2);
    Store store(path);
    if (arguments.at(1) == "keys") {
        for (int i = 0; i < 200; ++i) {
            store.setValue(QString("Keys/%1-%2").arg(arguments.at(3)).arg(i), i);
            if (i % 8 == 7 && !store.saveNow())
                return 1;
        }
        return 0;
    }
    if (arguments.at(1) == "once") {
        store.remove("Old/gone");
        store.setValue("New/big", QString(100000, 'n'));
        store.setValue("New/last", 1);
        return store.saveNow() ? 0 : 1;
    }
    for (int i = 1;; ++i) { // until it is killed
        store.setValue("A/value", QString(i % 50 * 1000, 'a'));
        store.setValue("B/value", i % 50 * 1000);
        store.saveNow();
    }
}

} // namespace

/** The typed store: values, announcements, and files that stay whole. */
class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new QTemporaryDir); }
    void announcements();
    void withoutAnnouncement_data();
    void withoutAnnouncement();
    void changesOfListeners();
    void valuesFromACopy();
    void editedByHand_data();
    void editedByHand();
    void formats();
    void schemes();
    void baseDefaults();
    void resetAndGroups();
    void saveToFile();
    void saveToFileRefused();
    void loadFromFile();
    void fourProcesses();
    void killedWhileSaving();
    void faultsWhileSaving_data();
    void faultsWhileSaving();
    void triedAgain();

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }
    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_Settings::announcements()
{
    Store store(in("a"));
    QSignalSpy spy(&store, &S::groupsChanged);
    store.setValue("General/a", 1);
    store.setValue("Appearance/Colors/b", 1);
    store.setValue("General/c", 2);
    store.remove("Backups/d");
    QVERIFY(store.setValue("alone", 1));
    QVERIFY(spy.isEmpty());
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toStringList(),
             (QStringList{"General", "Appearance/Colors", "Backups"}));
    store.setValue("Appearance/x", 1);
    QTRY_COMPARE(spy.size(), 2);
    QCOMPARE(spy.at(1).at(0).toStringList(), QStringList{"Appearance"});
    QTest::qWait(1);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(store.value("alone").toInt(), 1);
}

void tst_Settings::withoutAnnouncement_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("nested");
    QTest::addColumn<bool>("blocked");
    QTest::addColumn<int>("announced");
    QTest::newRow("announced") << "G/a"
                               << "" << false << 1;
    QTest::newRow("no-group") << "a"
                              << "" << false << 0;
    QTest::newRow("slash-in-front") << "/G/a"
                                    << "" << false << 0;
    QTest::newRow("nested") << "G/a"
                            << "Inner" << false << 0;
    QTest::newRow("blocked") << "G/a"
                             << "" << true << 0;
}

void tst_Settings::withoutAnnouncement()
{
    QFETCH(QString, key);
    QFETCH(QString, nested);
    QFETCH(bool, blocked);
    Store store(in("a"), "/Options/");
    QSignalSpy spy(&store, &S::groupsChanged);
    store.blockSignals(blocked);
    if (!nested.isEmpty())
        store.beginGroup(nested);
    store.setValue(key, 5);
    QCOMPARE(store.value(key).toInt(), 5);
    store.remove(key);
    if (!nested.isEmpty())
        store.endGroup();
    store.blockSignals(false);
    QTest::qWait(1);
    QTEST(spy.size(), "announced");
}

void tst_Settings::changesOfListeners()
{
    Store store(in("a"));
    QList<QStringList> heard;
    connect(&store, &S::groupsChanged, this, [&](const QStringList &groups) {
        heard << groups;
        if (heard.size() == 1)
            store.setValue("G/b", 2);
    });
    store.setValue("G/a", 1);
    QTRY_COMPARE(heard.size(), 2);
    QCOMPARE(heard.at(1), QStringList{"G"});
}

// From a file, numbers and flags come back as texts, a list of one as its item, and an empty one as nothing.
void tst_Settings::valuesFromACopy()
{
    const QDateTime time(QDate(2020, 2, 29), QTime(23, 59, 59), Qt::UTC);
    QFont font("DejaVu Serif", 11, QFont::Bold, true);
    QImage image(8, 4, QImage::Format_RGB32);
    image.fill(Qt::blue);
    {
        Store store(in("a"));
        store.setValue(S::FlagSetting(1), false);
        store.setValue(S::IntSetting(1), -3);
        store.setValue(S::RealSetting(1), 0.1);
        store.setValue(S::StringSetting(1), QString("@a, \u00e9\n"));
        store.setValue(S::StringSetting(2), QString(""));
        store.setValue(S::StringListSetting(1), QStringList{"a, b"});
        store.setValue(S::StringListSetting(2), QStringList());
        store.setValue(S::ColorSetting(1), QColor(1, 2, 3, 4));
        store.setValue(S::ColorSetting(2), QColor());
        store.setValue(S::DateTimeSetting(1), time);
        store.setValue(S::FontSetting(1), font);
        store.setValue(S::IntListSetting(1), {1, 20, 3});
        store.setValue(S::IntListSetting(2), QList<int>());
        store.setValue(S::ByteArraySetting(1), QByteArray("\0\xff", 2));
        store.setValue("Picture", S::toByteArray(image));
        QVERIFY(store.saveNow());
    }
    QVERIFY(bytesOf(in("a")).contains("IntList\\1=1 20 3\n"));
    QVERIFY(QFile::copy(in("a"), in("copy")));
    const Store store(in("copy"));
    QCOMPARE(store.value("Int/1").userType(), int(QMetaType::QString));
    QCOMPARE(store.value(S::FlagSetting(1)), false);
    QCOMPARE(store.value(S::IntSetting(1)), -3);
    QCOMPARE(store.value(S::RealSetting(1)), 0.1);
    QCOMPARE(store.value(S::StringSetting(1)), QString("@a, \u00e9\n"));
    QVERIFY(store.contains("String/2"));
    QCOMPARE(store.value(S::StringListSetting(1)), QStringList{"a, b"});
    QCOMPARE(store.value(S::StringListSetting(2)), QStringList());
    QCOMPARE(store.value(S::ColorSetting(1)), QColor(1, 2, 3, 4));
    QCOMPARE(store.value(S::ColorSetting(2)), QColor());
    QCOMPARE(store.value(S::DateTimeSetting(1)), time);
    QCOMPARE(store.value(S::FontSetting(1)), font);
    QCOMPARE(store.value(S::IntListSetting(1)), (QList<int>{1, 20, 3}));
    QCOMPARE(store.value(S::IntListSetting(2)), QList<int>());
    QCOMPARE(store.value(S::ByteArraySetting(1)), QByteArray("\0\xff", 2));
    QCOMPARE(S::toImage(store.value("Picture").toByteArray()).size(), image.size());
    QVERIFY(S::toByteArray(image).startsWith("\xff\xd8"));
}

void tst_Settings::editedByHand_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("value"); // of setting 1 of the type
    QTest::newRow("nothing") << QByteArray() << "true 7 0.5 x,y #ff0000 Default,9 7";
    QTest::newRow("empty") << QByteArray("Flag\\1=\nInt\\1=\nReal\\1=\nColor\\1=\nFont\\1=\n")
                           << "true 7 0.5 x,y #ff0000 Default,9 7";
    QTest::newRow("no-number") << QByteArray("Int\\1=many\nReal\\1=1,5\nColor\\1=@Invalid()\n")
                               << "true 7 0.5 x,y #ff0000 Default,9 7";
    QTest::newRow("no-value") << QByteArray("Color\\1=reddish\nFont\\1=a,b,c\nInt\\1=99999999999\n")
                              << "true 7 0.5 x,y #ff0000 Default,9 7";
    QTest::newRow("plain") << QByteArray("Flag\\1=false\nColor\\1=blue\nStringList\\1=z\n"
                                         "Font\\1=Serif,12,-1,5,50,0,0,0,0,0\n")
                           << "false 7 0.5 z #0000ff Serif,12 7";
    QTest::newRow("blanks") << QByteArray("IntList\\1=\" 1   20\\t3 \"\nFlag\\1=0\nReal\\1=2\n")
                            << "false 7 2 x,y #ff0000 Default,9 1,20,3";
}

void tst_Settings::editedByHand()
{
    QFETCH(QByteArray, line);
    QVERIFY(writeBytes(in("a"), "[Options]\n" + line));
    const Store store(in("a"));
    QStringList numbers;
    for (int number : store.value(S::IntListSetting(1)))
        numbers << QString::number(number);
    QTEST((QStringList{QVariant(store.value(S::FlagSetting(1))).toString(),
                       QString::number(store.value(S::IntSetting(1))),
                       QString::number(store.value(S::RealSetting(1))),
                       store.value(S::StringListSetting(1)).join(','),
                       store.value(S::ColorSetting(1)).name(),
                       store.value(S::FontSetting(1)).toString().section(',', 0, 1),
                       numbers.join(',')}
               .join(' ')),
          "value");
}

void tst_Settings::formats()
{
    Store store(in("a"));
    QTextCharFormat def;
    def.setFontItalic(true);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QTextBlockFormat block;
    block.setTopMargin(3);
    const S::TextCharFormat one = S::TextCharFormat(1);
    QCOMPARE(store.value(one), QTextCharFormat());
    QCOMPARE(store.textCharFormat("CharFormat/1", def), def);
    store.setValue(one, bold);
    QCOMPARE(store.value("CharFormat/1").toByteArray(), MRVTextFormat::toByteArray(bold));
    QCOMPARE(store.value(one), MRVTextFormat::setFontHinting(bold, false));
    store.setValue(S::FlagSetting(12), true);
    QCOMPARE(store.textCharFormat("CharFormat/1", def), MRVTextFormat::setFontHinting(bold, true));
    QVERIFY(MRVTextFormat::setFontHinting(bold, true) != store.applyFontHinting({}));
    store.setValue(S::TextBlockFormat(1), block);
    QCOMPARE(store.value(S::TextBlockFormat(1)), block);
    for (const QByteArray &bytes : {QByteArray(), QByteArray("damaged"), S::toByteArray(block)}) {
        store.setValue("CharFormat/1", bytes);
        QCOMPARE(store.textCharFormat("CharFormat/1", def), def);
        QCOMPARE(S::toTextCharFormat(bytes), QTextCharFormat());
    }
    store.setValue("BlockFormat/1", S::toByteArray(bold));
    QCOMPARE(store.textBlockFormat("BlockFormat/1", block), block);
}

void tst_Settings::schemes()
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

void tst_Settings::baseDefaults()
{
    MRVSettings store(in("a"), QSettings::IniFormat);
    QVERIFY(store.keyText(S::FlagSetting(0)).isEmpty() && !store.value(S::FlagSetting(0)));
    QCOMPARE(store.value(S::IntSetting(60)), 0);
    QVERIFY(!store.value(S::ColorSetting(0)).isValid()
            && store.value(S::DateTimeSetting(0)).isNull());
    QCOMPARE(store.value(S::FontSetting(0)), QFont());
    QCOMPARE(store.value(S::TextBlockFormat(0)), QTextBlockFormat());
}

void tst_Settings::resetAndGroups()
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
}

void tst_Settings::saveToFile()
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
    QVERIFY(store.saveToFile(in("self")) && store.saveToFile(in("a")));
    QCOMPARE(textsOf(in("a")).size(), 2);
    QCOMPARE(store.value("G/a").toInt(), 1);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
             (QStringList{"a", "link", "real", "self"}));
}

void tst_Settings::saveToFileRefused()
{
    Store store(in("a"));
    store.setValue("G/a", 1);
    QString error;
    QVERIFY(!store.saveToFile(in("missing/file"), &error));
    QVERIFY2(error.contains("missing/file"), qPrintable(error));
    QVERIFY(!store.saveToFile(m_folder->path()));
}

void tst_Settings::loadFromFile()
{
    Store store(in("a"));
    store.setValue("G/a", 1);
    store.setValue("H/b", 2);
    QVERIFY(store.saveNow());
    store.loadFromFile(in("a"));
    QCOMPARE(store.allKeys(), (QStringList{"G/a", "H/b"}));
    QTest::qWait(1);
    QVERIFY(writeBytes(in("b"), "[Options]\nInt\\1=5\nNew\\c=6\n[Other]\nz=1\n"));
    QSignalSpy reset(&store, &S::settingsReset), changed(&store, &S::groupsChanged);
    store.loadFromFile(in("b"));
    QCOMPARE(reset.size(), 1);
    QCOMPARE(store.allKeys(), (QStringList{"Int/1", "New/c"}));
    QCOMPARE(store.value(S::IntSetting(1)), 5);
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toStringList(), (QStringList{"Int", "New"}));
    store.loadFromFile(in("missing"));
    QCOMPARE(reset.size(), 2);
    QVERIFY(store.allKeys().isEmpty());
}

void tst_Settings::fourProcesses()
{
    QVERIFY(writeBytes(in("a"), "[Other]\nkept=1\n"));
    std::array<QProcess, 4> processes;
    for (QProcess &process : processes)
        process.start(QCoreApplication::applicationFilePath(),
                      {"keys", in("a"), QString(QChar('a' + int(&process - &processes[0])))});
    for (QProcess &process : processes) {
        QVERIFY(process.waitForFinished(120000));
        QCOMPARE(process.exitCode(), 0);
    }
    const QMap<QString, QString> texts = textsOf(in("a"));
    QCOMPARE(texts.size(), 801);
    QCOMPARE(texts.value("Options/Keys/d-199"), QString("199"));
}

// MRV_KILLS says how often, where the few of every day are not enough.
void tst_Settings::killedWhileSaving()
{
    const int kills = qMax(12, qEnvironmentVariableIntValue("MRV_KILLS"));
    QSet<QString> sizes;
    for (int i = 0; i < kills; ++i) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"forever", in("a")});
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY(QFile::exists(in("a")));
        QTest::qSleep(40 + i * 7 % 31);
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

void tst_Settings::faultsWhileSaving_data()
{
    QTest::addColumn<QString>("calls");
    QTest::addColumn<QString>("fault");
    QTest::newRow("short-write") << "write"
                                 << "retval=4096";
    QTest::newRow("full") << "write"
                          << "error=ENOSPC";
    QTest::newRow("stays-full") << "write"
                                << "error=ENOSPC+";
    QTest::newRow("rename") << "rename"
                            << "error=EIO";
    QTest::newRow("no-more-files") << "rename,linkat,memfd_create"
                                   << "error=EMFILE";
}

// Each call in turn meets a fault. A write of which only the count comes back is what a full disk gives.
void tst_Settings::faultsWhileSaving()
{
    QFETCH(QString, calls);
    QFETCH(QString, fault);
    const auto save = [&](const QStringList &options) {
        QFile::remove(in("a"));
        if (!writeBytes(in("a"), "[Options]\nOld\\gone=1\nOld\\kept=2\n[Other]\nx=3\n"))
            return -1;
        return run("strace",
                   QStringList{"-f", "-qq", "-o", in("trace"), "-e", "trace=" + calls} + options
                       + QStringList{QCoreApplication::applicationFilePath(), "once", in("a")},
                   {"ASAN_OPTIONS=detect_leaks=0"})
            .exitCode;
    };
    QCOMPARE(save({}), 0);
    const QMap<QString, QString> after = textsOf(in("a"));
    QCOMPARE(after.size(), 4);
    const int count = bytesOf(in("trace")).count('\n');
    QVERIFY(count > 0);
    const QStringList names{"Options/Old/gone", "Options/Old/kept", "Other/x"};
    for (int call = 1; call <= count; ++call) {
        const QString when = QString(fault).remove('+') + QString(":when=%1").arg(call)
            + (fault.endsWith('+') ? "+" : "");
        const int code = save({"-e", "inject=" + calls + ':' + when});
        const QMap<QString, QString> found = textsOf(in("a"));
        QVERIFY2(found == after || found.keys() == names, qPrintable(when));
        QVERIFY2((code == 0) == (found == after) || code < 0, qPrintable(when));
    }
}

// What could not be saved is saved with the next change.
void tst_Settings::triedAgain()
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
        QVERIFY(!store.saveNow(&error));
        QVERIFY2(error.contains("place/a"), qPrintable(error));
        QVERIFY(QFile::remove(in("place")) && QFile::rename(in("away"), in("place")));
        store.setValue("G/third", 3);
        QTRY_COMPARE(textsOf(in("place/a")).size(), 3);
        store.setValue("G/fourth", 4);
    }
    QCOMPARE(textsOf(in("place/a")).size(), 4);
}

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
