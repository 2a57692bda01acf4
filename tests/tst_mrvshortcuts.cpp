#include "mrvtool.h"

#include "shortcuts/mrvshortcutscheme.h"

#include <QSettings>

using Scheme = MRVShortcutScheme;

/** The tool's command for keyboard shortcuts. */
class tst_MrvShortcuts : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void commands_data() { addCalls("mrv-shortcuts.tsv"); }
    void commands() { compareRow(); }
    void exportedScheme();
};

void tst_MrvShortcuts::init()
{
    ToolTest::init();
    const auto entry = [](MRVShortcut::Id id, const char *keys, const char *text) {
        return MRVShortcutInfo{id, QKeySequence(keys), text};
    };
    const auto save = entry(MRVShortcut::Save, "Ctrl+S", "Keep");
    const Scheme a(
        "A",
        Scheme::toHash({save, entry(MRVShortcut::ZoomIn, "", "Bigger"),
                        entry(MRVShortcut::NewProject, "Ctrl+G,Ctrl+N", "New Project")}));
    const Scheme b("B",
                   Scheme::toHash({save, entry(MRVShortcut::ZoomIn, "Ctrl++", "Big"),
                                   entry(MRVShortcut::OpenProject, "Ctrl+S,F2", "Open")}));
    QVERIFY(a.save(in("a.scheme")));
    QVERIFY(b.save(in("b.scheme")));
    QVERIFY(QDir().mkdir("Open Office")); // the name of a scheme, too
    const QByteArray cut = a.toByteArray().chopped(9);
    QVERIFY(writeBytes(in("cut.scheme"), cut));
    const QString key = "Options/Shortcut/defaultShortcutScheme";
    QSettings(in("mine.conf"), QSettings::IniFormat).setValue(key, a.toByteArray());
    QSettings(in("cut.conf"), QSettings::IniFormat).setValue(key, cut);
    QSettings(in("other.conf"), QSettings::IniFormat).setValue("Options/other", 1);
}

void tst_MrvShortcuts::exportedScheme()
{
    QCOMPARE(mrv("shortcuts export --settings @mine.conf --to scheme -o @out.scheme").exitCode, 0);
    Scheme wanted(bytesOf(in("a.scheme")), true);
    QVERIFY(Scheme::load(in("out.scheme")) == wanted);
    QCOMPARE(mrv("shortcuts export Morvane -o @missing/out").exitCode, 1);
}

QTEST_GUILESS_MAIN(tst_MrvShortcuts)
#include "tst_mrvshortcuts.moc"
