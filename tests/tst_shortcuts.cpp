#include "datarows.h"
#include "support.h"

#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <QTemporaryDir>

using Id = MRVShortcut::Id;
using Scheme = MRVShortcutScheme;

namespace {

// The parts of the stored form, by hand: lengths in bytes, big-endian; texts are UTF-16.
QByteArray number(quint32 value)
{
    return QByteArray::fromHex(QByteArray::number(value, 16).rightJustified(8, '0'));
}

QByteArray text(const QByteArray &ascii)
{
    QByteArray wide;
    for (const char c : ascii) {
        wide += QByteArray(1, '\0') + c;
    }
    return number(quint32(wide.size())) + wide;
}

QByteArray entry(const QByteArray &id, const QByteArray &key, const QByteArray &shown)
{
    return number(quint32(id.size())) + id + text(key) + text(shown);
}

QByteArray sample()
{
    return text("1.0") + text("Mine") + number(3)
        + entry("NewProject", "Ctrl+G, Ctrl+N", "New Project") + entry("Save", "Ctrl+S", "Keep")
        + entry("ZoomIn", "", "Bigger");
}

Scheme sampleScheme()
{
    Scheme scheme("Mine");
    scheme.setShortcut(MRVShortcut::ZoomIn, {MRVShortcut::NoId, {}, "Bigger"});
    scheme.setShortcut(MRVShortcut::Save, {MRVShortcut::Save, QKeySequence("Ctrl+S"), "Keep"});
    scheme.setShortcut(MRVShortcut::NewProject,
                       {MRVShortcut::NewProject, QKeySequence("Ctrl+G,Ctrl+N"), "New Project"});
    return scheme;
}

QString idsOf(const QList<MRVShortcutInfo> &infos)
{
    QStringList ids;
    for (const MRVShortcutInfo &info : infos) {
        ids << MRVShortcut::valueToKey(info.id);
    }
    return ids.join(' ');
}

} // namespace

/** The commands, and the schemes of their keys. */
class tst_Shortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void table()
    {
        const Scheme defaults = Scheme::morvane();
        const QStringList groups = defaults.shortcutGroups();
        QCOMPARE(MRVShortcut::metaEnumId().keyCount(), 176);
        QCOMPARE(defaults.shortcuts().size(), 175);
        QByteArrayList names;
        QSet<QString> texts;
        for (int i = 0; i < 176; ++i) {
            const char *name = MRVShortcut::valueToKey(Id(i));
            names << name;
            QCOMPARE(MRVShortcut::keyToValue(name), Id(i));
            QCOMPARE(MRVShortcut::idNamed(name), i > 0 ? Id(i) : MRVShortcut::NoId);
            QCOMPARE(MRVShortcut::isValid(Id(i)), i > 0);
            QCOMPARE(groups.contains(MRVShortcut::group(Id(i))), i > 0);
            QCOMPARE(defaults.shortcutInfo(Id(i)).id, Id(i));
            texts.insert(defaults.shortcutInfo(Id(i)).text.trimmed());
        }
        QCOMPARE(texts.size(), 176); // with an empty one of no command
        // Schemes that were stored hold the names; one may be added, none may change.
        QCOMPARE(QCryptographicHash::hash(names.join('\n'), QCryptographicHash::Md5).toHex(),
                 QByteArray("2fc84b3bee33e6e4d4be26a1197acc2c"));
        for (const QStringList &row : rowsOf("shortcuts.tsv")) {
            const Id id = Id(row.at(0).toInt());
            QCOMPARE(QString(MRVShortcut::valueToKey(id)), row.at(1));
            QCOMPARE(MRVShortcut::group(id), row.value(2));
            if (row.size() > 3) {
                QCOMPARE(defaults.shortcutInfo(id).text, row.at(3));
                QCOMPARE(defaults.shortcut(id), QKeySequence(row.at(4)));
            }
        }
    }

    void lookUps()
    {
        for (const char *unknown :
             {"", "NoSuchCommand", "save", static_cast<const char *>(nullptr)}) {
            QCOMPARE(int(MRVShortcut::keyToValue(unknown)), -1);
        }
        QCOMPARE(MRVShortcut::idNamed(QString()), MRVShortcut::NoId);
        for (const int outside : {-1, 176, 1 << 30}) {
            QVERIFY(!MRVShortcut::valueToKey(Id(outside)));
            QVERIFY(!MRVShortcut::isValid(Id(outside)));
            QVERIFY(MRVShortcut::group(Id(outside)).isEmpty());
            QVERIFY(MRVShortcut::label(Id(outside)).isEmpty());
        }
        QCOMPARE(MRVShortcut::customLabels().size(), 5);
        QCOMPARE(MRVShortcut::label(MRVShortcut::PreviousDocument), QString("Previous Document"));
        QCOMPARE(MRVShortcut::label(MRVShortcut::FullScreenGoTo), QString("Go To"));
        QCOMPARE(MRVShortcut::label(MRVShortcut::ZoomIn), QString("ZoomIn"));
        MRVShortcut::setLabel(MRVShortcut::Outlined, "Hollow");
        QCOMPARE(MRVShortcut::label(MRVShortcut::Outlined), QString("Hollow"));
        QCOMPARE(MRVShortcut::customLabels().size(), 6);
    }

    void storedForm()
    {
        QCOMPARE(sampleScheme().toByteArray(), sample());
        QVERIFY(Scheme::fromByteArray(sample()) == sampleScheme());
        QCOMPARE(Scheme().toByteArray(), text("1.0") + number(0xffffffff) + number(0));
        QVERIFY(Scheme::fromByteArray(Scheme().toByteArray()).isNull());
        QVERIFY(Scheme("").isValid());
        // Entries that no reader would take are not written.
        const Scheme odd("", {{MRVShortcut::NoId, {}}, {Id(-1), {}}, {Id(176), {}}});
        QCOMPARE(odd.toByteArray(), text("1.0") + text("") + number(0));
        QVERIFY(odd.shortcuts().isEmpty());
        QVERIFY(odd.shortcutGroups().isEmpty());
        const Scheme all = Scheme::morvane();
        QString error;
        QVERIFY(Scheme::fromByteArray(all.toByteArray(), &error) == all);
        QCOMPARE(error, QString());
    }

    void reading_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("found"); // name and entries; "null" for a null scheme
        QTest::addColumn<bool>("whole");
        const QByteArray head = text("1.0") + text("Mine");
        const QByteArray save = entry("Save", "Ctrl+S", "Keep");
        const auto row = [](const char *name, const QByteArray &bytes, const char *found,
                            bool whole) {
            QTest::newRow(name) << bytes << QString(found) << whole;
        };
        row("empty", "", "null", false);
        row("other-version", text("1.1") + sample().mid(10), "null", false);
        row("no-count", head, "Mine:", false);
        row("negative-count", head + number(0xfffffff0) + save, "Mine:", false);
        row("count-too-large", head + number(0x7ffffff0) + save, "Mine: Save=Ctrl+S", false);
        row("count-too-small", head + number(1) + save + save, "Mine: Save=Ctrl+S", true);
        row("cut-in-second", head + number(2) + save + save.left(19), "Mine: Save=Ctrl+S", false);
        row("any-order", head + number(2) + entry("ZoomIn", "F9", "") + save,
            "Mine: Save=Ctrl+S ZoomIn=F9", true);
        row("later-counts", head + number(2) + save + entry("Save", "F2", ""), "Mine: Save=F2",
            true);
        for (const char *name : {"NoSuchCommand", "NoId", "", "save", "MRVShortcut::Copy"}) {
            const QByteArray title = "skipped " + QByteArray(name);
            row(title, head + number(2) + entry(name, "F9", "") + save, "Mine: Save=Ctrl+S", true);
        }
        row("null-character", head + number(1) + entry(QByteArray("Save\0x", 6), "F2", ""),
            "Mine:", true);
        row("unknown-key", head + number(1) + entry("Save", "Ctrl+S, Nonsense", ""),
            "Mine: Save=", true);
        row("very-long-key", head + number(1) + entry("Save", QByteArray(5000, '+') + "A", ""),
            "Mine: Save=", true);
    }
    void reading()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, whole);
        QString error;
        const Scheme scheme = Scheme::fromByteArray(bytes, &error);
        QString found = scheme.isNull() ? "null" : scheme.name() + ':';
        for (const MRVShortcutInfo &info : scheme.sortedShortcuts()) {
            QVERIFY(info.sequence.isEmpty() || !info.sequence.toString().isEmpty());
            found +=
                QString(" %1=%2").arg(MRVShortcut::valueToKey(info.id), info.sequence.toString());
        }
        QTEST(found, "found");
        QCOMPARE(error.isEmpty(), whole);
        const Scheme merged(bytes, true);
        QCOMPARE(merged.name(), scheme.name());
        QCOMPARE(merged.shortcuts().size(), 175);
        QCOMPARE(merged.shortcut(MRVShortcut::Italic), QKeySequence("Ctrl+I"));
        for (const MRVShortcutInfo &info : scheme.sortedShortcuts()) {
            QVERIFY(merged.shortcutInfo(info.id) == info);
        }
        QVERIFY(Scheme(bytes, false) == scheme);
        // Read over a scheme that is there, an unreadable form changes nothing.
        Scheme there = sampleScheme();
        QDataStream stream(bytes);
        stream >> there;
        QVERIFY(!scheme.isNull() || there == sampleScheme());
    }

    void filters_data() { addRows("shortcutfilters.tsv"); }
    void filters()
    {
        QFETCH(QString, filter);
        const Scheme scheme = sampleScheme();
        QTEST(idsOf(scheme.findShortcuts(filter)), "found");
        QTEST(idsOf(Scheme::findShortcuts(filter, scheme.shortcuts())), "found");
        QCOMPARE(idsOf(scheme.groupShortcuts("File")), QString("NewProject Save"));
        QCOMPARE(idsOf(Scheme::groupShortcuts("View", scheme.shortcuts())), QString("ZoomIn"));
        QCOMPARE(Scheme::toHash(scheme.sortedShortcuts()), scheme.shortcuts());
        QVERIFY(scheme.contains(QKeySequence("Ctrl+G, Ctrl+N")));
        QVERIFY(!scheme.contains(QKeySequence("Ctrl+G")));
    }

    void changing()
    {
        const QKeySequence key("Ctrl++");
        Scheme scheme("New", {{MRVShortcut::Save, {MRVShortcut::Save, {}, "Save"}}});
        QVERIFY(!scheme.setShortcut(MRVShortcut::ZoomIn, key));
        QVERIFY(!scheme.setShortcut(MRVShortcut::NoId, MRVShortcutInfo()));
        QVERIFY(scheme.setShortcut(MRVShortcut::Save, key));
        QCOMPARE(scheme.shortcutInfo(MRVShortcut::Save),
                 (MRVShortcutInfo{MRVShortcut::Save, key, "Save"}));
        QCOMPARE(scheme.shortcutInfo(MRVShortcut::ZoomIn), MRVShortcutInfo());
        scheme.mergeMissingShortcuts(sampleScheme().shortcuts());
        QCOMPARE(scheme.shortcut(MRVShortcut::Save), key);
        QCOMPARE(scheme.shortcutInfo(MRVShortcut::ZoomIn).text, QString("Bigger"));
        // The key of a hash counts, and what is no command is not taken.
        scheme.mergeShortcuts(
            {{MRVShortcut::Cut, {MRVShortcut::Paste, key, "Cut"}}, {Id(176), {}}});
        scheme.mergeMissingShortcuts({{MRVShortcut::NoId, {}}, {MRVShortcut::Copy, {}}});
        scheme.mergeCopy(sampleScheme());
        QCOMPARE(idsOf(scheme.sortedShortcuts()), QString("NewProject Save ZoomIn Cut Copy"));
        QCOMPARE(scheme.shortcut(MRVShortcut::Save), QKeySequence("Ctrl+S"));
        QCOMPARE(scheme.name(), QString("Mine"));
    }

    void files()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("keys.scheme");
        QString error;
        Scheme scheme = sampleScheme();
        QVERIFY(scheme.save(path, &error));
        QVERIFY(bytesOf(path) == sample());
        QVERIFY(Scheme::load(path, &error) == scheme);
        QVERIFY(error.isEmpty());
        scheme.setShortcut(MRVShortcut::Save,
                           {MRVShortcut::Save, QKeySequence("Ctrl+S"), u8"Keep\n \u201cit\u201d"});
        QVERIFY(scheme.saveAsText(path, &error));
        QCOMPARE(QString::fromUtf8(bytesOf(path)),
                 QString(u8"FILE\n  New Project: Ctrl+G, Ctrl+N\n  Keep \u201cit\u201d: Ctrl+S\n"
                         "\nVIEW\n  Bigger: \n"));
        QVERIFY(Scheme::load(path, &error).isNull());
        QCOMPARE(error, path + ": it is not a shortcut scheme");
        error.clear();
        QVERIFY(Scheme::load(path + "-missing", &error).isNull());
        QVERIFY(error.contains(path));
        error.clear();
        QVERIFY(!scheme.save(path + "/below", &error));
        QVERIFY(error.contains("below"));
        QVERIFY(!scheme.saveAsText(path + "/below"));
    }

    void predefined()
    {
        QStringList names;
        for (const Scheme &scheme : Scheme::predefinedSchemes()) {
            names << scheme.name();
            QCOMPARE(scheme.shortcuts(), Scheme::morvane().shortcuts());
            QVERIFY(Scheme::predefinedScheme(scheme.name()) == scheme);
        }
        QCOMPARE(names.join(", "), QString("Morvane, Microsoft Word, Open Office, Mac Morvane"));
        QCOMPARE(Scheme::predefinedScheme("other").name(), QString("Morvane"));
        QCOMPARE(
            Scheme::morvane().shortcutGroups().join(", "),
            QString("Documents, Edit, File, Format, Fullscreen Only, Help, Other, PDF, Project, "
                    "Tools, View"));
    }

    void conflicts_data() { addRows("shortcutconflicts.tsv"); }
    // Each key in turn is that of Undo, Redo and Cut.
    void conflicts()
    {
        QFETCH(QString, sentence);
        Scheme scheme("Keys");
        const QStringList sequences = cell("keys").split(';');
        for (int i = 0; i < sequences.size(); ++i) {
            const Id id = Id(MRVShortcut::Undo + i);
            scheme.setShortcut(id,
                               {id, QKeySequence(sequences.at(i)), MRVShortcut::valueToKey(id)});
        }
        QStringList found;
        const auto conflicts = MRVShortcutCheck::conflicts(scheme);
        for (const auto &conflict : conflicts) {
            found << QStringList{MRVShortcutCheck::toString(conflict.kind),
                                 MRVShortcut::valueToKey(conflict.id),
                                 MRVShortcut::valueToKey(conflict.other)}
                         .join(' ')
                         .remove(" NoId");
        }
        QTEST(found.join("; "), "found");
        if (!sentence.isEmpty()) {
            QCOMPARE(MRVShortcutCheck::describe(conflicts.value(0), scheme), sentence);
        }
        // Before the last key is given, it is known what it will lead to.
        const Id last = Id(MRVShortcut::Undo + sequences.size() - 1);
        Scheme without = scheme;
        without.setShortcut(last, QKeySequence());
        QCOMPARE(MRVShortcutCheck::conflicts(without, last, scheme.shortcut(last)).size()
                     + MRVShortcutCheck::conflicts(without).size(),
                 conflicts.size());
    }

    void differences()
    {
        using Check = MRVShortcutCheck;
        Scheme scheme = Scheme::morvane();
        QCOMPARE(Check::conflicts(scheme).size(), 0);
        QCOMPARE(Check::owners(scheme, QKeySequence("Ctrl+G,Ctrl+N")),
                 QList<Id>{MRVShortcut::NewProject});
        QCOMPARE(Check::owners(scheme, QKeySequence("Ctrl+G")), QList<Id>());
        QCOMPARE(Check::owners(scheme, QKeySequence()), QList<Id>());
        QVERIFY(Check::differences(scheme, Scheme::msWord()).isEmpty());
        Scheme::Shortcuts shortcuts = scheme.shortcuts();
        shortcuts.remove(MRVShortcut::Save);
        shortcuts[MRVShortcut::OpenProject].sequence = QKeySequence("Ctrl+S");
        shortcuts[MRVShortcut::Bold].text = "Heavy";
        const auto found = Check::differences(scheme, Scheme("Mine", shortcuts));
        QCOMPARE(found.size(), 3);
        QCOMPARE(found.at(0).id, MRVShortcut::OpenProject);
        QCOMPARE(found.at(0).after.sequence, QKeySequence("Ctrl+S"));
        QCOMPARE(found.at(1).before, scheme.shortcutInfo(MRVShortcut::Save));
        QCOMPARE(found.at(1).after, MRVShortcutInfo());
        QCOMPARE(found.at(2).after.text, QString("Heavy"));
    }
};

QTEST_MAIN(tst_Shortcuts)
#include "tst_shortcuts.moc"
