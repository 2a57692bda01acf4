#include "archive/mrvrecovery.h"
#include "document/mrvmarginnotes.h"
#include "document/mtextdoc.h"
#include "fulldocument.h"
#include "input/mrvguardeddocument.h"
#include "manuscript/mrvmanuscriptreader.h"
#include "manuscriptfile.h"
#include "options/mrvoptions.h"
#include "preferencesdialog.h"
#include "settingeditor.h"
#include "support.h"
#include "update/mrvupdatemanager.h"
#include "updates.h"
#include "valueeditors.h"
#include "writerfixture.h"
#include "zip/mrvzipreader.h"

#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QToolButton>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using Id = MRVShortcut::Id;

// Not in a namespace, as Qt's macro wants it.
static void removeKey()
{
    Q_CLEANUP_RESOURCE(writer);
}

namespace {

constexpr char SaveArgument[] = "--save"; // a path: types into the file, saves it and ends
constexpr char KeepArgument[] = "--keep"; // a path: types into the file, and waits to be killed
constexpr char RecoverArgument[] = "--recover"; // opens what was left behind, and waits as well
constexpr char UpdatesArgument[] = "--updates"; // "key" or another word: says what checks there are

/// Files cannot grow beyond a few bytes, as on a full disk.
class FullDisk
{
public:
    FullDisk()
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = 40;
        std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_before;
};

/// The administrator, who may write everywhere, is somebody else for a while.
class Nobody
{
public:
    Nobody()
    {
        if (::geteuid() == 0) {
            m_isOn = ::setresuid(Number, Number, 0) == 0;
        }
    }
    ~Nobody()
    {
        if (m_isOn && ::setresuid(0, 0, 0) != 0) {
            qFatal("the test cannot go on as the administrator");
        }
    }
    Nobody(const Nobody &) = delete;
    Nobody &operator=(const Nobody &) = delete;

    static constexpr uid_t Number = 65534;

private:
    bool m_isOn = false;
};

/// A manuscript of one paragraph in a native file.
QString savedManuscript(const QTemporaryDir &folder, const QString &text)
{
    const QString path = folder.filePath("novel.mrvdoc");
    return MRVDocumentArchive().write(QTextDocument(text), path) ? path : QString();
}

QString textIn(const QString &path)
{
    MRVGuardedDocument document;
    MRVDocumentArchive archive;
    const bool isWhole = archive.read(path, &document) && archive.notes().isEmpty();
    return isWhole ? document.toPlainText() : "unreadable";
}

/// Starts the program with or without its maker's key; says where checks for updates come from.
int tellUpdates(bool hasKey)
{
    if (!hasKey) {
        removeKey();
    }
    Updates::checkAtStart();
    if (qApp->findChild<MRVUpdateManager *>()) {
        ::puts("start");
    }
    if (WriterWindow().findChild<QAction *>("CheckForUpdates")) {
        ::puts("menu");
    }
    const QString setting = mrvOptions()->keyText(MRVOptions::CheckForUpdates);
    const PreferencesDialog preferences;
    for (const SettingEditor *editor : preferences.findChildren<SettingEditor *>()) {
        if (editor->matches(setting)) {
            ::puts("preference");
            break;
        }
    }
    return 0;
}

/// The program as another process, which the test may kill.
int runAsChild(const QString &what, const QString &path)
{
    if (what == UpdatesArgument) {
        return tellUpdates(path == "key");
    }
    auto *window = new WriterWindow;
    window->show();
    const auto tell = [](const char *state) {
        ::puts(state);
        ::fflush(stdout);
    };
    if (what == RecoverArgument) {
        Answers answers;
        answers.add(QDialogButtonBox::Open);
        window->offerRecovery();
        tell("recovered");
        return QApplication::exec();
    }
    if (!window->openFile(path)) {
        return 1;
    }
    window->editor()->moveCursor(QTextCursor::End);
    QTest::keyClicks(window->editor(), " and more");
    if (what == SaveArgument) {
        return window->save() ? 0 : 1;
    }
    QTimer watch;
    const QString folder = MRVRecovery::defaultFolder();
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!QDir(folder).entryList({"*.mrvdoc"}).isEmpty()) {
            watch.stop();
            tell("kept");
        }
    });
    watch.start(10);
    return QApplication::exec();
}

} // namespace

/** The writing program, as its users work with it. */
class tst_Writer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAll(); }

    void writersDay()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("novel.mrvdoc");
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window);
        ManuscriptEditor *editor = window->editor();
        QTextDocument *document = editor->document();
        Answers answers;

        // Types, with what is corrected meanwhile.
        QTest::keyClicks(editor, "the tide came in. it was \"early\".");
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::keyClicks(editor, "the tide turned.");
        const QString typed = document->toPlainText();
        QCOMPARE(typed, QString::fromUtf8("The tide came in. It was “early”.\nThe tide turned."));
        QVERIFY(window->isWindowModified());
        QTRY_VERIFY(part<QLabel>(window, "Counts")->text().startsWith("10 word"));

        // Presets change formats, and one undo takes that back.
        const QStringList plain = documentDump(*document);
        auto *presets = part<QMenu>(window, "Presets");
        Q_EMIT presets->aboutToShow();
        int changed = 0;
        for (QAction *preset : presets->actions()) {
            preset->trigger();
            QCOMPARE(document->toPlainText(), typed);
            if (documentDump(*document) != plain) {
                ++changed;
                window->action(Id::Undo)->trigger();
                QCOMPARE(documentDump(*document), plain);
            }
        }
        QVERIFY(changed > 0);

        // Finds, replaces after a look at the changes, and undoes it in one step.
        editor->moveCursor(QTextCursor::Start);
        window->action(Id::FindDialog)->trigger();
        auto *text = part<QLineEdit>(window, "FindText");
        auto *state = part<QLabel>(window, "FindState");
        QTRY_VERIFY(text->hasFocus());
        QTest::keyClicks(text, "TIDE");
        QTRY_VERIFY2(state->text().startsWith("2 find"), qPrintable(state->text()));
        QTest::keyClick(text, Qt::Key_Return);
        QTRY_COMPARE(state->text(), QString("1 of 2"));
        QCOMPARE(editor->textCursor().selectedText(), QString("tide"));
        QTest::keyClicks(part<QLineEdit>(window, "ReplaceText"), "water");
        answers.add([](QWidget *dialog) {
            auto *changes = part<QListWidget>(dialog, "Changes");
            QCOMPARE(changes->count(), 2);
            changes->item(0)->setCheckState(Qt::Unchecked);
            Answers::click(dialog, QDialogButtonBox::Ok);
        });
        part<QToolButton>(window, "ReplaceAllButton")->click();
        QVERIFY(answers.isDone());
        QCOMPARE(document->toPlainText().count("tide"), 1);
        QCOMPARE(document->toPlainText().count("water"), 1);
        window->action(Id::Undo)->trigger();
        QCOMPARE(document->toPlainText(), typed);
        window->action(Id::Redo)->trigger();
        QApplication::setActiveWindow(
            window); // without a window manager, nobody does after a dialog
        QTest::keyClick(text, Qt::Key_Escape);
        QTRY_VERIFY(editor->hasFocus());

        // Comments.
        QVERIFY(selectText(editor, "early"));
        window->action(Id::Comment)->trigger();
        auto *note = part<QPlainTextEdit>(window, "NoteText");
        QTRY_VERIFY(note->hasFocus());
        QTest::keyClicks(note, "How early?");
        QTRY_VERIFY(!part<QListWidget>(window, "Notes")
                         ->findItems("How early?", Qt::MatchContains)
                         .isEmpty());
        window->action(Id::SelectAll)->trigger();
        window->action(Id::Italic)->trigger();

        // Saves, closes and opens: everything is there.
        answers.add(path);
        window->action(Id::Save)->trigger();
        QVERIFY(answers.isDone());
        QVERIFY(!window->isWindowModified());
        QVERIFY(window->windowTitle().startsWith("novel.mrvdoc"));

        // An e-book for the first readers, which changes nothing here.
        const QString book = folder.filePath("novel.epub");
        answers.add([&book](QWidget *dialog) {
            auto *format = part<ChoiceBox>(dialog, "format");
            format->setCurrentIndex(format->findText("EPUB", Qt::MatchContains));
            part<PathEdit>(dialog, "file")->setPath(book);
            part<QPushButton>(dialog, "export")->click();
        });
        answers.add(QDialogButtonBox::Ok);
        window->action(Id::ExportFiles)->trigger();
        QVERIFY(answers.isDone());
        QVERIFY2(answers.said().contains("exported to " + book), qPrintable(answers.said()));
        const MRVZipReader pages(book);
        QCOMPARE(pages.read(pages.indexOf("mimetype"), 100), QByteArray("application/epub+zip"));
        QVERIFY(!window->isWindowModified());

        const QStringList saved = fullDump(*document);
        window->close();
        QTRY_VERIFY(!window);
        window = newWindow();
        QVERIFY(window->openFile(path));
        QCOMPARE(fullDump(*window->editor()->document()), saved);
        QVERIFY(saved.join(' ').contains("How early?"));
        QCOMPARE(answers.unexpected(), QString());
    }

    // A pause is enough; nobody has to leave the note.
    void notesAreTakenInPauses()
    {
        const QPointer<WriterWindow> window = newWindow();
        QTest::keyClicks(window->editor(), "tide");
        window->action(Id::Comment)->trigger();
        auto *note = part<QPlainTextEdit>(window, "NoteText");
        const auto *list = part<QListWidget>(window, "Notes");
        QTRY_VERIFY(note->hasFocus());
        QTest::keyClicks(note, "one");
        QTRY_COMPARE(list->item(0)->text(), QString("Comment: one"));
        QTest::keyClicks(note, " two");
        QTRY_COMPARE(list->item(0)->text(), QString("Comment: one two"));
        closeAll();
    }

    void typedAfterLinks_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("saved");
        QTest::newRow("link") << "a.html"
                              << "<p>a <a href='b'>c</a></p>"
                              << "(?s)<a href=\"b\">[^\n]*c</span></a> more</p>.*>next</p>";
        QTest::newRow("note") << "a.md"
                              << "a[^1]\n\n[^1]: The note.\n"
                              << "(?s)a\\[\\^1\\]\n.*next.*: The note\\. more\n";
    }
    // It is no part of them, and neither is the next paragraph.
    void typedAfterLinks()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QString, saved);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        QVERIFY(writeBytes(path, text.toUtf8()));
        const QPointer<WriterWindow> window = newWindow();
        QVERIFY(window->openFile(path));
        window->editor()->moveCursor(QTextCursor::End);
        QTest::keyClicks(window->editor(), " more");
        QTest::keyClick(window->editor(), Qt::Key_Return);
        QTest::keyClicks(window->editor(), "next");
        Answers answers;
        answers.add(QDialogButtonBox::Save); // a page by another program loses its structure
        QVERIFY(window->save());
        const QString found = bytesOf(path);
        QVERIFY2(found.contains(QRegularExpression(saved)), qPrintable(found));
    }

    // A copy for the case of a crash holds the manuscript, and not what else its file does.
    void recoveredFinalDraft()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.fdx");
        QVERIFY(QFile::copy(MRV_SOURCE_DIR "/tests/data/script.fdx", path));
        const QByteArray before = bytesOf(path);
        ManuscriptFile file;
        MRVScriptMode mode;
        QStringList notes;
        MRVError error;
        auto document = file.read(path, &mode, &notes, &error);
        QVERIFY2(document, qPrintable(error.text));
        const QString copy = folder.filePath("copy.mrvdoc");
        QVERIFY(file.archive(mode).write(*document, copy));
        document = file.read(copy, &mode, &notes, &error);
        QVERIFY2(document, qPrintable(error.text));
        file.setOrigin(path, QDateTime::currentDateTime());
        QVERIFY(file.write(document.get(), path, mode, &error));
        QCOMPARE(bytesOf(path), before);
    }

    // What a Final Draft document holds besides the script stays, as long as that can be.
    void finalDraftIsChangedInPlace()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.fdx");
        QVERIFY(QFile::copy(MRV_SOURCE_DIR "/tests/data/script.fdx", path));
        const QString before = bytesOf(path);
        const QPointer<WriterWindow> window = newWindow();
        QVERIFY(window->openFile(path));
        QVERIFY(selectText(window->editor(), "wheels"));
        QTest::keyClicks(window->editor(), "sails");
        QVERIFY(window->save());
        QCOMPARE(QString(bytesOf(path)), QString(before).replace("wheels", "sails"));
        Answers answers;
        answers.add(QDialogButtonBox::Cancel);
        window->editor()->moveCursor(QTextCursor::End);
        QTest::keyClick(window->editor(), Qt::Key_Return);
        QTest::keyClicks(window->editor(), "MORE");
        QVERIFY(!window->save());
        QVERIFY2(answers.said().contains("besides the script"), qPrintable(answers.said()));
    }

    void savedOverAnotherWindow()
    {
        const QTemporaryDir folder;
        const QString path = savedManuscript(folder, "Old");
        const QPointer<WriterWindow> first = newWindow();
        QVERIFY(first->openFile(path));
        const QPointer<WriterWindow> second = newWindow();
        QTest::keyClicks(second->editor(), "New");
        Answers answers;
        answers.add(path);
        answers.add(QDialogButtonBox::Yes);
        answers.add(QDialogButtonBox::Ok);
        QVERIFY(!second->save());
        QVERIFY2(answers.said().contains("open in another window"), qPrintable(answers.said()));
        QCOMPARE(textIn(path), QString("Old"));
    }

    // The question about what a format cannot hold comes once.
    void lossesAreToldOnce()
    {
        const QTemporaryDir folder;
        const QPointer<WriterWindow> window = newWindow();
        QTest::keyClicks(window->editor(), "a");
        QTextBlockFormat right;
        right.setAlignment(Qt::AlignRight);
        window->editor()->textCursor().mergeBlockFormat(right);
        Answers answers;
        answers.add(folder.filePath("a.md"));
        answers.add(QDialogButtonBox::Save);
        QVERIFY(window->save());
        QVERIFY(answers.isDone());
        QTest::keyClicks(window->editor(), "b");
        QVERIFY(window->save());
        QCOMPARE(answers.unexpected(), QString());
    }

    // Whatever the answer, no word is lost that the user did not give up.
    void closing_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("isClosed");
        QTest::addColumn<QString>("text");
        QTest::newRow("save") << int(QDialogButtonBox::Save) << true << "Old and new";
        QTest::newRow("discard") << int(QDialogButtonBox::Discard) << true << "Old";
        QTest::newRow("cancel") << int(QDialogButtonBox::Cancel) << false << "Old";
    }
    void closing()
    {
        QFETCH(int, button);
        const QTemporaryDir folder;
        const QString path = savedManuscript(folder, "Old");
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window->openFile(path));
        window->editor()->moveCursor(QTextCursor::End);
        QTest::keyClicks(window->editor(), " and new");
        Answers answers;
        answers.add(QDialogButtonBox::StandardButton(button));
        QTEST(window->close(), "isClosed");
        QVERIFY(answers.isDone());
        QTEST(textIn(path), "text");
        QCOMPARE(answers.unexpected(), QString());
    }

    // Each format of the program keeps what it can hold: the words at least.
    void formats_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString name : {"a.mrvdoc", "a.html", "a.md", "a.txt"}) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
    void formats()
    {
        QFETCH(QString, name);
        const QTemporaryDir folder;
        const QString path = folder.filePath(name);
        QPointer<WriterWindow> window = newWindow();
        QTest::keyClicks(window->editor(), "High water at three.");
        Answers answers;
        answers.add(path);
        QVERIFY(window->save());
        window->close();
        QTRY_VERIFY(!window);
        window = newWindow();
        QVERIFY(window->openFile(path));
        QCOMPARE(window->editor()->toPlainText().trimmed(), QString("High water at three."));
        QCOMPARE(answers.unexpected(), QString());
    }

    void metadataStay_data()
    {
        const char *page =
            "<html lang='fr'><head><title>Tides</title><meta name='author' content='Ann Lee'>"
            "<meta name='viewport' content='width=1'></head><body><p>Text</p></body></html>";
        const char *markdown = "---\nauthor: [Ann Lee, Bo]\nlang: fr\ndate: 1851\npublisher: Owl\n"
                               "mood: calm\n---\n\nText\n";
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("files"); // saved one after the other
        QTest::addColumn<QString>("losses"); // of the last
        QTest::addColumn<QString>("head"); // of the last

        const QString all = "Ann Lee|Bo;fr;1851;Owl;calm";
        QTest::newRow("markdown") << markdown << QStringList{"a.md", "b.md"} << "" << all;
        QTest::newRow("native") << markdown << QStringList{"a.md", "b.mrvdoc", "c.md"} << "" << all;
        QTest::newRow("html") << markdown << QStringList{"a.md", "b.html"}
                              << "Metadata: author, lang, date, publisher, mood"
                              << ";;;;";
        QTest::newRow("text") << markdown << QStringList{"a.md", "b.txt"}
                              << "Metadata: author, lang, date, publisher, mood"
                              << ";;;;";
        QTest::newRow("from html") << page << QStringList{"a.html", "b.mrvdoc", "c.md"} << ""
                                   << "Ann Lee;fr;;;";
        QTest::newRow("maps")
            << "---\ntitle: T\nauthor:\n- name: A\n  at: B\n- at: C\n  name: D\nisbn:\nlang: ~\n"
               "params:\n  a: b\ntags: {a: b}\n---\n\nText\n"
            << QStringList{"a.md", "b.md"} << "Metadata: author.at, params, tags"
            << "A|D;;;;";
        QTest::newRow("keys")
            << "<head><title>T</title><meta name=keywords content=a><meta name=keywords "
               "content=b></head>c"
            << QStringList{"a.html", "b.md"} << ""
            << ";;;;";
        QTest::newRow("own page") << page << QStringList{"a.html", "b.html", "c.html"} << ""
                                  << ";;;;";
        QTest::newRow("page")
            << page << QStringList{"a.html", "b.html"}
            << "The page's own structure, classes and style sheets\nMetadata: author, "
               "language"
            << ";;;;";
    }
    // What a manuscript says of itself is no part of the text. It stays, or its loss is told.
    void metadataStay()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, files);
        const QTemporaryDir folder;
        const auto path = [&](int i) { return folder.filePath(files.at(i)); };
        QVERIFY(writeBytes(path(0), text.toUtf8()));
        QString losses;
        for (int i = 1; i < files.size(); ++i) {
            ManuscriptFile file;
            MRVScriptMode mode;
            QStringList notes;
            MRVError error;
            const auto document = file.read(path(i - 1), &mode, &notes, &error);
            QVERIFY2(document, qPrintable(error.text));
            losses = file.losses(*document, path(i), mode).join('\n');
            QVERIFY2(file.write(document.get(), path(i), mode, &error), qPrintable(error.text));
        }
        QTEST(losses, "losses");

        MRVManuscript last;
        MRVManuscriptReader reader;
        QVERIFY2(reader.read(path(files.size() - 1), &last), qPrintable(reader.errorString()));
        QStringList head{last.authors.join('|'), last.language, last.date};
        for (const char *key : {"publisher", "mood"}) {
            const auto entry =
                std::find_if(last.metadata.cbegin(), last.metadata.cend(),
                             [&](const auto &e) { return e.key == QLatin1String(key); });
            head << (entry == last.metadata.cend() ? QString() : entry->values.join('|'));
        }
        const QString found = head.join(';');
        QTEST(found, "head");
    }

    void failedSaves_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("advice");
        QTest::newRow("full-disk") << "full-disk"
                                   << "Free some space";
        QTest::newRow("read-only") << "read-only"
                                   << "another folder";
    }
    // The old file stands, the text stays in the window, and saving it later works.
    void failedSaves()
    {
        QFETCH(QString, fault);
        QFETCH(QString, advice);
        const QTemporaryDir folder("/tmp/tst_writer-XXXXXX"); // where Nobody can get to
        const QString path = savedManuscript(folder, "Old");
        const QByteArray before = bytesOf(path);
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window->openFile(path));
        window->editor()->moveCursor(QTextCursor::End);
        QTest::keyClicks(window->editor(), " and new");
        Answers answers;
        answers.add(QDialogButtonBox::Ok);
        if (fault == "full-disk") {
            const FullDisk full;
            QVERIFY(!window->save());
        } else {
            QVERIFY(::chmod(qPrintable(folder.path()), 0755) == 0);
            QVERIFY(::chmod(qPrintable(path), 0444) == 0);
            const Nobody nobody;
            QVERIFY(!window->save());
        }
        QVERIFY(answers.isDone());
        QVERIFY2(answers.said().contains(advice), qPrintable(answers.said()));
        QCOMPARE(bytesOf(path), before);
        QVERIFY(window->isWindowModified());
        QCOMPARE(window->editor()->toPlainText(), QString("Old and new"));
        QVERIFY(::chmod(qPrintable(path), 0644) == 0);
        QVERIFY(window->save());
        QCOMPARE(textIn(path), QString("Old and new"));
        QCOMPARE(answers.unexpected(), QString());
    }

    // Somebody else's change of the file is not replaced without a question.
    void changedOutside()
    {
        const QTemporaryDir folder;
        const QString path = savedManuscript(folder, "Old");
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window->openFile(path));
        QTest::keyClicks(window->editor(), "New ");
        savedManuscript(folder, "Theirs");
        Answers answers;
        answers.add(QDialogButtonBox::Cancel);
        QVERIFY(!window->save());
        QCOMPARE(textIn(path), QString("Theirs"));
        answers.add(QDialogButtonBox::Save);
        QVERIFY(window->save());
        QCOMPARE(textIn(path), QString("New Old"));
        QCOMPARE(answers.unexpected(), QString());
    }

    // A picture stays in the manuscript when its file goes.
    void pictures_data()
    {
        QTest::addColumn<QString>("from");
        for (const char *from : {"menu", "files", "pixels", "damaged"}) {
            QTest::newRow(from) << from;
        }
    }
    void pictures()
    {
        QFETCH(QString, from);
        const QTemporaryDir folder;
        const QString path = folder.filePath("sea.png");
        QImage sea(3000, 20, QImage::Format_RGB32);
        sea.fill(Qt::blue);
        QVERIFY(from == "damaged" ? writeBytes(path, "no picture") : sea.save(path));
        QPointer<WriterWindow> window = newWindow();
        Answers answers;
        auto *clip = new QMimeData;
        if (from == "pixels") {
            clip->setImageData(sea);
        } else {
            clip->setUrls({QUrl::fromLocalFile(path)});
        }
        QApplication::clipboard()->setMimeData(clip);
        if (from == "menu") {
            answers.add(path);
            window->insertPicture();
        } else if (from == "damaged") {
            answers.add(QDialogButtonBox::Ok);
            window->editor()->paste();
            QVERIFY2(answers.said().contains("sea"), qPrintable(answers.said()));
            QVERIFY(window->editor()->document()->isEmpty());
            return;
        } else {
            window->editor()->paste();
        }
        QVERIFY(QFile::remove(path));
        answers.add(folder.filePath("a.mrvdoc"));
        QVERIFY(window->save());
        window->close();
        QTRY_VERIFY(!window);
        window = newWindow();
        QVERIFY(window->openFile(folder.filePath("a.mrvdoc")));
        const QTextDocument &document = *window->editor()->document();
        QCOMPARE(MTextDoc::imagesWithResourceIds(document).values().value(0).size(), sea.size());
        const QTextImageFormat shown = MTextDoc::imageFormats(document).value(0);
        QVERIFY(shown.width() > 0 && shown.width() < window->editor()->viewport()->width());
        QVERIFY(!document.toHtml().contains("<table"));
        QCOMPARE(answers.unexpected(), QString());
    }

    void droppedManuscript()
    {
        const QTemporaryDir folder;
        auto *clip = new QMimeData;
        clip->setUrls({QUrl::fromLocalFile(savedManuscript(folder, "Old"))});
        QApplication::clipboard()->setMimeData(clip);
        QPointer<WriterWindow> window = newWindow();
        window->editor()->paste();
        QTRY_COMPARE(window->editor()->toPlainText(), QString("Old"));
    }

    // What follows a footnote is text.
    void typingAfterNotes()
    {
        QPointer<WriterWindow> window = newWindow();
        ManuscriptEditor *editor = window->editor();
        QTest::keyClicks(editor, "The tide");
        window->action(Id::Footnote)->trigger();
        QTest::keyClicks(part<QPlainTextEdit>(window, "NoteText"), "High.");
        QTest::keyClicks(editor, ". It turned.");
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::keyClicks(editor, "Next");
        const QVector<MRVMarginNote> notes = MRVMarginNotes::all(editor->document());
        QCOMPARE(notes.size(), 1);
        QCOMPARE(notes.first().range.end(), 8);
    }

    // A key that the user gave away does what it is for now, and nothing else.
    void keysGivenAway()
    {
        QPointer<WriterWindow> window = newWindow();
        ManuscriptEditor *editor = window->editor();
        QTest::keyClicks(editor, "Word");
        window->action(Id::Undo)->setShortcut(QKeySequence("Ctrl+U"));
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(editor->toPlainText(), QString("Word"));
        window->action(Id::Bold)->setShortcut(QKeySequence("Ctrl+Z"));
        QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(editor->toPlainText(), QString("Word"));
        QVERIFY(window->action(Id::Bold)->isChecked());
    }

    // Without a key of its maker the program checks only when it is asked to; one that a package
    // has installed never does.
    void updates_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("isPackaged");
        QTest::addColumn<QString>("checks");
        QTest::newRow("with a key") << "key" << false << "start\nmenu\npreference\n";
        QTest::newRow("without") << "none" << false << "menu\n";
        QTest::newRow("of a package") << "key" << true << QString();
    }
    void updates()
    {
        QFETCH(QString, key);
        QFETCH(bool, isPackaged);
        const QTemporaryDir folder;
        const QString program = folder.filePath("bin/program");
        QVERIFY(QDir(folder.path()).mkpath("bin") && QDir(folder.path()).mkpath("share/morvane"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QVERIFY(!isPackaged || writeBytes(folder.filePath("share/morvane/packaged"), "by a test"));
        const Ran ran = run(program, {UpdatesArgument, key});
        QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
        QTEST(ran.output, "checks");
    }

    void damagedFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("novel.mrvdoc");
        QVERIFY(writeBytes(path, "no archive"));
        QPointer<WriterWindow> window = newWindow();
        Answers answers;
        answers.add(QDialogButtonBox::Ok);
        QVERIFY(!window->openFile(path));
        QVERIFY2(answers.said().contains("damaged"), qPrintable(answers.said()));
        QVERIFY(window);
        QCOMPARE(window->editor()->toPlainText(), QString());
        QCOMPARE(bytesOf(path), QByteArray("no archive"));
    }

    // Killed at any of the calls that a save makes, it leaves the old file or the new one.
    void killedWhileSaving_data()
    {
        QTest::addColumn<QString>("call");
        for (const char *call : {"fsync", "rename"}) {
            QTest::newRow(call) << call;
        }
    }
    void killedWhileSaving()
    {
        QFETCH(QString, call);
        const QTemporaryDir folder;
        const QString path = savedManuscript(folder, "Old");
        const QByteArray before = bytesOf(path);
        constexpr int Most = 4;
        for (int i = 1; i <= Most; ++i) {
            QVERIFY(writeBytes(path, before));
            const Ran ran = run("strace",
                                {"-f", "-qq", "-o", "/dev/null", "-e", "trace=" + call, "-e",
                                 QString("inject=%1:signal=KILL:when=%2").arg(call).arg(i),
                                 QCoreApplication::applicationFilePath(), SaveArgument, path});
            const QString text = textIn(path);
            QVERIFY2(text == "Old" || text == "Old and more", qPrintable(text));
            if (ran.exitCode == 0) { // there is no such call any more
                QCOMPARE(text, QString("Old and more"));
                break;
            }
        }
    }

    // What was typed before kill -9 is offered at the next start, and again if that ends so, too.
    void killedWhileEditing()
    {
        QVERIFY(MRVRecovery::leftBehind(MRVRecovery::defaultFolder()).isEmpty());
        const QTemporaryDir folder;
        const QString path = savedManuscript(folder, "Old");
        const std::pair<const char *, const char *> lives[] = {{KeepArgument, "kept"},
                                                               {RecoverArgument, "recovered"}};
        for (const auto &[argument, state] : lives) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(), {argument, path});
            QTRY_VERIFY2_WITH_TIMEOUT(child.canReadLine(), argument, 60000);
            QCOMPARE(child.readLine().trimmed(), QByteArray(state));
            child.kill();
            QVERIFY(child.waitForFinished(60000));
            QCOMPARE(textIn(path), QString("Old"));
        }
        QPointer<WriterWindow> window = newWindow();
        Answers answers;
        answers.add(QDialogButtonBox::Open);
        window->offerRecovery();
        QVERIFY(answers.isDone());
        QVERIFY2(answers.said().contains(path), qPrintable(answers.said()));
        QCOMPARE(window->editor()->toPlainText(), QString("Old and more"));
        QVERIFY(window->isWindowModified());
        QVERIFY(window->save());
        QCOMPARE(textIn(path), QString("Old and more"));
        window->close();
        QTRY_VERIFY(!window);
        QVERIFY(MRVRecovery::leftBehind(MRVRecovery::defaultFolder()).isEmpty());
        QCOMPARE(answers.unexpected(), QString());
    }
};

int main(int argc, char *argv[])
{
    const bool isChild = argc == 3 && QByteArray(argv[1]).startsWith("--");
    std::unique_ptr<OwnFolders> folders;
    if (!isChild) {
        folders = std::make_unique<OwnFolders>();
    }
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Morvane");
    QApplication::setApplicationName("Writer");
    if (isChild) {
        return runAsChild(argv[1], argv[2]);
    }
    tst_Writer test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_writer.moc"
