#include "datarows.h"
#include "support.h"

#include "shortcuts/mrvshortcutscheme.h"

#include <QSettings>
#include <QTemporaryDir>

using Scheme = MRVShortcutScheme;

/** The tool's command for keyboard shortcuts, run as a stranger would. */
class tst_MrvShortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void commands_data()
    {
        addRows("mrv-shortcuts.tsv", {"case", "arguments", "code", "output", "error"});
    }
    void commands();
    void exportedScheme();

private:
    Ran mrv(const QString &arguments) const
    {
        QStringList list = arguments.split(' ', Qt::SkipEmptyParts);
        for (QString &argument : list) {
            argument.replace('@', m_folder.path() + '/').replace(u'␣', ' ').remove(u'␠');
        }
        // From the test's folder, in which a folder has the name of a scheme.
        return run("env", QStringList{"-C", m_folder.path(), MRV_TOOL, "shortcuts"} + list);
    }

    QTemporaryDir m_folder;
};

void tst_MrvShortcuts::initTestCase()
{
    const auto in = [this](const QString &name) { return m_folder.filePath(name); };
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
    QVERIFY(a.save(in("a.scheme")) && b.save(in("b.scheme")));
    QVERIFY(QDir(m_folder.path()).mkdir("Open Office"));
    const QByteArray cut = a.toByteArray().chopped(9);
    QVERIFY(writeBytes(in("cut.scheme"), cut));
    const QString key = "Options/Shortcut/defaultShortcutScheme";
    QSettings(in("mine.conf"), QSettings::IniFormat).setValue(key, a.toByteArray());
    QSettings(in("cut.conf"), QSettings::IniFormat).setValue(key, cut);
    QSettings(in("other.conf"), QSettings::IniFormat).setValue("Options/other", 1);
}

void tst_MrvShortcuts::commands()
{
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    const Ran ran = mrv(arguments);
    QTEST(ran.output, "output");
    error.replace('@', m_folder.path() + '/');
    QVERIFY2(error.isEmpty() ? ran.errors.isEmpty()
                             : ran.errors.contains(error) && ran.errors.count('\n') == 1,
             qPrintable(ran.errors));
    QTEST(QString::number(ran.exitCode), "code");
}

void tst_MrvShortcuts::exportedScheme()
{
    QCOMPARE(mrv("export --settings @mine.conf --to scheme -o @out.scheme").exitCode, 0);
    Scheme wanted(bytesOf(m_folder.filePath("a.scheme")), true);
    QVERIFY(Scheme::load(m_folder.filePath("out.scheme")) == wanted);
    QCOMPARE(mrv("export Morvane -o @missing/out").exitCode, 1);
}

QTEST_GUILESS_MAIN(tst_MrvShortcuts)
#include "tst_mrvshortcuts.moc"
