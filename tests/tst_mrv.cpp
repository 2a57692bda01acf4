#include "mrvtool.h"

#include <KZip>

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QStringList filesBelow(const QString &folder)
{
    return contentsBelow(folder).keys();
}

// One line that names the tool: what a person or a script reads when something is wrong.
bool isOneError(const Ran &ran)
{
    return ran.errors.startsWith("mrv: ") && ran.errors.count('\n') == 1
        && ran.errors.endsWith('\n') && ran.output.isEmpty();
}

} // namespace

/** The command-line tool. */
class tst_Mrv : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ToolTest::init();
        QImage picture(12, 12, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        QVERIFY(picture.save(in("pic one.bmp"))); // written again for every type, so by one write
        QVERIFY(
            writeBytes(in("book.html"),
                       "<html lang='fr'><head><meta charset='utf-8'><meta name=\"author\" "
                       "content=\"M. Auteur\"><title>Livre</title></head>"
                       "<body><h1>Un</h1><p align='center'>Texte \xc3\xa9 <img src='pic%20one.bmp' "
                       "alt='x'></p><h1>Deux</h1><p>fin</p></body></html>"));
        QVERIFY(QFile::copy(in("pic one.bmp"), in("pic.bmp")));
        for (const QStringList &row : rowsOf("mrv-files.tsv")) {
            QVERIFY(QDir().mkpath(QFileInfo(in(row.at(0))).path()));
            QVERIFY(writeBytes(in(row.at(0)), row.at(1).toUtf8()));
        }
    }

    void calls_data() { addCalls("mrv-export.tsv"); }
    void calls() { compareRow(); }

    void exports_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QStringList>("files");
        const QString pictures = "manuscript_files/";
        QTest::newRow("xhtml") << "xhtml"
                               << QStringList{"manuscript.xhtml", pictures + "curve.png",
                                              pictures + "mill.png", pictures + "staff.png"};
        QTest::newRow("epub") << "epub" << QStringList{"manuscript.epub"};
        QTest::newRow("kf8") << "kf8"
                             << QStringList{"css/stylesheet.css", "manuscript.xhtml",
                                            pictures + "curve.jpg", pictures + "mill.jpg",
                                            pictures + "staff.jpg"};
        QTest::newRow("pdf") << "pdf" << QStringList{"manuscript.pdf"};
        QTest::newRow("text") << "text" << QStringList{"manuscript.txt"};
    }

    // The bytes depend on nothing else, and replace what was written before.
    void exports()
    {
        QMap<QString, QByteArray> first;
        for (const char *seed : {"0", "1", "12345", "987654321"}) {
            const Ran ran =
                mrv({"export", MRV_SOURCE_DIR "/examples/manuscript.html", "--to", cell("type"),
                     "-o", in("out/")},
                    {}, {QString("QT_HASH_SEED=") + seed, "SOURCE_DATE_EPOCH=1700000000"});
            QCOMPARE(ran.exitCode, 0);
            const QMap<QString, QByteArray> contents = contentsBelow(in("out"));
            QTEST(QStringList(contents.keys()), "files");
            QVERIFY(first.isEmpty() || contents == first);
            first = contents;
        }
        QVERIFY(!first.values().contains(QByteArray()));
    }

    void sampleIsValid()
    {
        const QString sample = MRV_SOURCE_DIR "/examples/manuscript.html";
        for (const char *version : {"2", "3"}) {
            const QString book = in(QString("sample-%1.epub").arg(version));
            const Ran ran = mrv({"export", sample, "--to", "epub", "--epub-version", version, "-o",
                                 book, "--cover", MRV_SOURCE_DIR "/examples/pictures/cover.png"});
            QCOMPARE(ran.errors, QString());
            QCOMPARE(epubErrors(book), QString());
        }
        QCOMPARE(mrv({"export", sample, "--to", "xhtml", "-o", in("sample.xhtml")}).exitCode, 0);
        QCOMPARE(dtdErrors({in("sample.xhtml")}), QString());
    }

    void allOrNothing_data()
    {
        const QString writes = "write,pwrite64,writev";
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("fault");
        for (const QString type : {"epub", "kf8"}) {
            const auto row = [&](const char *name, const QString &calls, const QString &fault) {
                QTest::newRow(qPrintable(type + ' ' + name)) << type << calls << fault;
            };
            row("full disk", writes, "error=ENOSPC:when=%1..%2"); // it is full the second time, too
            row("ended while writing", writes, "signal=TERM:when=%1");
            row("moving fails", "rename", "error=EIO:when=%1..%2");
            row("ended while moving", "rename", "signal=INT:when=%1");
        }
    }

    // Each call that concerns the output folder meets a fault in turn.
    void allOrNothing()
    {
        QFETCH(QString, calls);
        QFETCH(QString, fault);
        const auto tracedExport = [&](const QString &folder, const QStringList &options) {
            leaveOldFiles(in(folder));
            return run(
                "strace",
                QStringList{"-qq", "-y", "-o", in("trace"), "-e", "trace=" + calls} + options
                    + QStringList{MRV_TOOL, "export", in("book.html"), "--to", cell("type"), "-o",
                                  in(folder)},
                {"ASAN_OPTIONS=detect_leaks=0", // leak detection and tracing exclude each other
                 "SOURCE_DATE_EPOCH=0"});
        };
        QVERIFY(tracedExport("old/", {"--help"}).exitCode == 0);
        const QMap<QString, QByteArray> before = contentsBelow(in("old"));
        QCOMPARE(tracedExport("new/", {}).exitCode, 0);
        const QMap<QString, QByteArray> after = contentsBelow(in("new"));
        const QList<QByteArray> trace = bytesOf(in("trace")).split('\n');
        int undone = 0;
        for (int call = 1; call <= trace.size(); ++call) {
            // What is written may name the folder, too.
            if (!trace.at(call - 1).split('>').first().contains(in("new").toUtf8())) {
                continue;
            }
            QDir(in("out")).removeRecursively();
            const QString inject = "inject=" + calls + ':' + fault;
            const Ran ran = tracedExport("out/",
                                         {"-e",
                                          QString(inject)
                                              .replace("%1", QString::number(call))
                                              .replace("%2", QString::number(call + 1))});
            const QMap<QString, QByteArray> found = contentsBelow(in("out"));
            QVERIFY(found == before || found == after);
            QVERIFY(ran.exitCode < 0 || (ran.exitCode == 0) == (found == after));
            QVERIFY2(ran.exitCode != 1 || isOneError(ran) || calls.contains("write"),
                     qPrintable(ran.errors)); // writing the error may have failed as well
            QVERIFY2(!ran.errors.contains(".mrv-"), qPrintable(ran.errors));
            undone += found == before;
        }
        QVERIFY(undone > 0 || fault.startsWith("signal")); // signals may wait until all is done
    }

    void manyInputs()
    {
        QCOMPARE(mrv({"export", in("book.html"), in("two.md"), "--to", "kindle", "-o", in("pages")})
                     .exitCode,
                 0);
        QCOMPARE(filesBelow(in("pages")),
                 QStringList(
                     {"book.xhtml", "book_files/pic one.jpg", "css/stylesheet.css", "two.xhtml"}));
        QCOMPARE(
            mrv({"export", in("book.html"), in("two.md"), "--to", "epub", "-o", in("all.epub")})
                .exitCode,
            0);
        QCOMPARE(epubErrors(in("all.epub")), QString());
    }

    // Order, parts and titles of a list, and links between its files.
    void bookList()
    {
        const Ran ran = mrv("export --to epub --language en --book @list.txt --check");
        QCOMPARE(ran.output + ran.errors, QString("@list.epub\n"));
        KZip book(in("list.epub"));
        QVERIFY(book.open(QIODevice::ReadOnly));
        const auto text = [&book](const QString &name) {
            const KArchiveFile *file = book.directory()->file("OEBPS/" + name);
            return file ? QString::fromUtf8(file->data()) : QString();
        };
        QString contents = text("nav.xhtml").section("</nav>", 0, 0).section("</h1>", 1);
        contents.remove(QRegularExpression("<a[^>]*>|</a>|\n"));
        QCOMPARE(contents,
                 QString("<ol><li>Trois</li><li>Ebb<ol><li>Named</li><li>Second</li></ol></li>"
                         "<li>Un</li><li>Deux</li></ol>"));
        QVERIFY(text("page-002.xhtml").contains("epub:type=\"part\""));
        QVERIFY(text("page-002.xhtml").contains(">Named</h1>"));
        QVERIFY(text("page-002.xhtml").contains("href=\"page-001.xhtml#trois\""));
        QVERIFY(!text("page-003.xhtml").contains("Second"));
    }

    void linkedPages()
    {
        QVERIFY(writeBytes(in("a b.html"),
                           "<p><a href='sub/three.md#x'>1</a><a href='./two.md'>2</a>"
                           "<a href='a%20b.html?q'>3</a><a href='none.md'>4</a>"
                           "<a href='http://x.example/two.md'>5</a>"));
        QCOMPARE(mrv("export @a␣b.html @sub/three.md --to xhtml -o @pages").exitCode, 0);
        QStringList links;
        for (const char *page : {"pages/a b.xhtml", "pages/three.xhtml"}) {
            static const QRegularExpression href("<a href=\"([^\"]*)");
            for (auto it = href.globalMatch(bytesOf(in(page))); it.hasNext();) {
                links << it.next().captured(1);
            }
        }
        QCOMPARE(links,
                 QStringList({"three.xhtml#x", "./two.md", "a%20b.xhtml", "none.md",
                              "http://x.example/two.md", "../two.md?x#trois"}));
    }

    void brokenStreams()
    {
        const QString command = QString("cd '%1'; '%2' export ").arg(in(""), MRV_TOOL);
        for (const char *broken :
             {"book.html -o - >/dev/full", "book.html -o - >&-", "- <&-", "- <."}) {
            const Ran ran = run("sh", {"-c", command + "--to xhtml " + broken});
            QCOMPARE(ran.exitCode, 1);
            QVERIFY2(isOneError(ran), broken);
        }
    }

    void metadata_data() { addRows("mrv-metadata.tsv", {"case", "arguments", "expected", "note"}); }

    void metadata()
    {
        const Ran ran = mrv(cell("arguments") + " --to epub -o @a.epub");
        QCOMPARE(ran.errors.isEmpty(), cell("note").isEmpty());
        QVERIFY2(ran.errors.contains(cell("note")), qPrintable(ran.errors));
        KZip book(in("a.epub"));
        QVERIFY(book.open(QIODevice::ReadOnly));
        const KArchiveFile *file = book.directory()->file("OEBPS/content.opf");
        QVERIFY(file);
        const QString package = QString::fromUtf8(file->data());
        QVERIFY2(package.contains(cell("expected")), qPrintable(package));
    }

    void account()
    {
        const Ran ran = mrv({"export", in("book.html"), "--to", "xhtml", "--json"});
        const QJsonArray files =
            QJsonDocument::fromJson(ran.output.toUtf8()).object().value("files").toArray();
        QCOMPARE(files.size(), 2);
        QCOMPARE(files.last().toObject().value("path").toString(), QString("@book.xhtml"));
        QCOMPARE(files.last().toObject().value("bytes").toInt(), bytesOf(in("book.xhtml")).size());
    }

    // An e-book may not name what is not in it, so that "keep" leaves the alternative text there.
    void missingPictures()
    {
        QVERIFY(writeBytes(in("gone.html"), "<p>1<img src='a.png' alt='A'>\n<img src='b.png'>"));
        const QStringList call{"export", in("gone.html"), "-o", in("out"), "--json", "--to"};
        const Ran refused = mrv(call + QStringList("xhtml"));
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.errors.count('\n'), 3);
        QVERIFY(!QFile::exists(in("out")));
        for (const QString type : {"xhtml", "epub"}) {
            const Ran ran = mrv(call + QStringList{type, "--missing-pictures", "keep"});
            const auto report = QJsonDocument::fromJson(ran.output.toUtf8()).object();
            const QJsonArray pictures = report.value("missingPictures").toArray();
            QCOMPARE(pictures.size(), 2);
            QCOMPARE(pictures.last().toObject().value("line").toInt(), 2);
            QCOMPARE(bytesOf(in("out")).contains("src=\"a.png\""), type == "xhtml");
        }
        KZip book(in("out"));
        QVERIFY(book.open(QIODevice::ReadOnly));
        QVERIFY(book.directory()->file("OEBPS/page-001.xhtml")->data().contains(">1 A"));
    }

private:
    void leaveOldFiles(const QString &folder)
    {
        for (const char *file :
             {"book.epub", "book.xhtml", "book_files/pic one.png", "css/stylesheet.css"}) {
            QVERIFY(QDir().mkpath(QFileInfo(folder + file).path()));
            QVERIFY(writeBytes(folder + file, "/* Styles of book.xhtml */\n"));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Mrv)
#include "tst_mrv.moc"
