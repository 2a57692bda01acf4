#include "datarows.h"
#include "support.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {

Ran mrv(const QStringList &arguments, const QStringList &environment = {},
        const QByteArray &input = {})
{
    return run(MRV_TOOL, arguments, environment, input);
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();) {
        files.append(QDir(folder).relativeFilePath(it.next()));
    }
    files.sort();
    return files;
}

// One line that names the tool: what a person or a script reads when something is wrong.
bool isOneError(const Ran &ran)
{
    return ran.errors.startsWith("mrv: ") && ran.errors.count('\n') == 1
        && ran.errors.endsWith('\n') && ran.output.isEmpty();
}

} // namespace

/** The command-line tool, run as a stranger would. */
class tst_Mrv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void usage_data() { addRows("mrv-usage.tsv", {"case", "arguments", "code", "word"}); }
    void usage();
    void refusals_data() { addRows("mrv-refusals.tsv", {"case", "arguments", "word"}); }
    void refusals();
    void exports_data();
    void exports();
    void sampleIsValid();
    void bytesDoNotDependOnHashes();
    void fullDisk_data();
    void fullDisk();
    void inputs_data()
    {
        addRows("mrv-inputs.tsv", {"case", "name", "text", "options", "expected"});
    }
    void inputs();
    void encodings_data();
    void encodings();
    void manyInputs();
    void standardStreams();
    void account();

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }

    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_Mrv::init()
{
    m_folder.reset(new QTemporaryDir);
    QImage picture(12, 12, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QVERIFY(picture.save(in("pic one.bmp"))); // written anew for every type, so by one write
    QVERIFY(writeBytes(in("book.html"),
                       "<html lang='fr'><head><meta charset='utf-8'><meta name=\"author\" "
                       "content=\"M. Auteur\"><title>Livre</title></head>"
                       "<body><h1>Un</h1><p align='center'>Texte \xc3\xa9 <img src='pic%20one.bmp' "
                       "alt='x'></p><h1>Deux</h1><p>fin</p></body></html>"));
    QVERIFY(writeBytes(in("bad-picture.html"), "<p>a<img src='none.png'></p>"));
    QVERIFY(writeBytes(in("garbage.png"), "no picture"));
    QVERIFY(writeBytes(in("garbage.html"), "<p>a<img src='garbage.png'></p>"));
    QVERIFY(writeBytes(in("book.odd"), "text"));
    QVERIFY(writeBytes(in("latin.txt"), "caf\xe9"));
    QVERIFY(writeBytes(in("deep.html"), QByteArray("<div>").repeated(5000)));
    QVERIFY(writeBytes(in("file"), "a plain file"));
}

void tst_Mrv::usage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, word);
    const Ran ran = mrv(arguments.split(' ', Qt::SkipEmptyParts));
    QTEST(QString::number(ran.exitCode), "code");
    QVERIFY2((ran.output + ran.errors).contains(word), qPrintable(ran.output + ran.errors));
    QVERIFY(ran.exitCode == 0 ? ran.errors.isEmpty() : isOneError(ran));
}

void tst_Mrv::refusals()
{
    QFETCH(QString, arguments);
    QFETCH(QString, word);
    const QStringList before = filesBelow(m_folder->path());
    const Ran ran =
        mrv(QStringList{"export"} + arguments.replace('@', m_folder->path() + '/').split(' '));
    QCOMPARE(ran.exitCode, 1);
    QVERIFY2(isOneError(ran) && ran.errors.contains(word), qPrintable(ran.errors));
    QCOMPARE(filesBelow(m_folder->path()), before);
}

void tst_Mrv::exports_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("html") << "html" << QStringList{"book.html", "book_files/pic one.png"};
    QTest::newRow("xhtml") << "xhtml" << QStringList{"book.xhtml", "book_files/pic one.png"};
    QTest::newRow("epub") << "epub" << QStringList{"book.epub"};
    QTest::newRow("kindle") << "kindle"
                            << QStringList{"book.xhtml", "book_files/pic one.jpg",
                                           "css/stylesheet.css"};
    QTest::newRow("kf8") << "kf8"
                         << QStringList{"book.xhtml", "book_files/pic one.jpg",
                                        "css/stylesheet.css"};
}

void tst_Mrv::exports()
{
    QFETCH(QString, type);
    QFETCH(QStringList, files);
    const QStringList arguments{"export", in("book.html"), "--to",   type,
                                "-o",     in("out/"),      "--date", "2026-01-01T00:00:00Z"};
    const Ran ran = mrv(arguments);
    QCOMPARE(ran.errors, QString());
    QCOMPARE(ran.exitCode, 0);
    QCOMPARE(filesBelow(in("out")), files);
    QMap<QString, QByteArray> first;
    for (const QString &file : files) {
        first.insert(file, bytesOf(in("out/" + file)));
        QVERIFY(!first[file].isEmpty());
    }
    QCOMPARE(mrv(arguments).exitCode, 0); // once more, over the old files
    QCOMPARE(filesBelow(in("out")), files);
    for (const QString &file : files) {
        QCOMPARE(bytesOf(in("out/" + file)), first[file]);
    }
    if (type == "xhtml") {
        QCOMPARE(dtdErrors({in("out/book.xhtml")}), QString());
    }
}

void tst_Mrv::sampleIsValid()
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

void tst_Mrv::bytesDoNotDependOnHashes()
{
    for (const char *type : {"xhtml", "epub", "kf8"}) {
        QList<QByteArray> results;
        for (const char *seed : {"0", "1", "12345", "987654321"}) {
            const QString folder = in(QString("%1-%2").arg(type, seed));
            QCOMPARE(mrv({"export", MRV_SOURCE_DIR "/examples/manuscript.html", "--to", type, "-o",
                          folder + '/'},
                         {QString("QT_HASH_SEED=") + seed, "SOURCE_DATE_EPOCH=1700000000"})
                         .exitCode,
                     0);
            QByteArray all;
            for (const QString &file : filesBelow(folder)) {
                all += file.toUtf8() + bytesOf(folder + '/' + file);
            }
            results.append(all);
        }
        QVERIFY(results.first().size() > 1000);
        QCOMPARE(results.count(results.first()), results.size());
    }
}

void tst_Mrv::fullDisk_data()
{
    exports_data();
}

// Each write to the output folder in turn finds the disk full.
void tst_Mrv::fullDisk()
{
    QFETCH(QString, type);
    QFETCH(QStringList, files);
    for (const QString &file : files) {
        QVERIFY(QDir().mkpath(QFileInfo(in("out/" + file)).path())
                && writeBytes(in("out/" + file), "old"));
    }
    const QString writes = "write,pwrite64,writev";
    const QStringList export_{MRV_TOOL, "export", in("book.html"), "--to", type, "-o"};
    const QStringList environment{
        "ASAN_OPTIONS=detect_leaks=0"}; // leak detection and tracing exclude each other
    QVERIFY(run("strace",
                QStringList{"-qq", "-y", "-o", in("trace"), "-e", "trace=" + writes} + export_
                    + QStringList{in("probe/")},
                environment)
                .exitCode
            == 0);
    const QList<QByteArray> calls = bytesOf(in("trace")).split('\n');
    int failures = 0;
    for (int call = 0; call < calls.size(); ++call) {
        const int fileEnd = calls.at(call).indexOf('>'); // what is written may name the folder, too
        if (!calls.at(call).left(fileEnd).contains(in("probe").toUtf8())) {
            continue;
        }
        ++failures;
        const QString inject = QString("inject=%1:error=ENOSPC:when=%2").arg(writes).arg(call + 1);
        const Ran ran =
            run("strace",
                QStringList{"-qq", "-o", in("trace"), "-e", "trace=" + writes, "-e", inject}
                    + export_ + QStringList{in("out/")},
                environment);
        QCOMPARE(ran.exitCode, 1);
        QVERIFY2(isOneError(ran), qPrintable(ran.errors));
        QCOMPARE(filesBelow(in("out")), files);
        for (const QString &file : files) {
            QCOMPARE(bytesOf(in("out/" + file)), QByteArray("old"));
        }
    }
    QVERIFY(failures >= files.size());
}

void tst_Mrv::inputs()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, options);
    QFETCH(QString, expected);
    QVERIFY(writeBytes(in(name), text.toUtf8()));
    const QStringList arguments{"export", in(name), "--to", "xhtml", "-o", in("a.xhtml")};
    const Ran ran = mrv(arguments + options.split(' ', Qt::SkipEmptyParts));
    QCOMPARE(ran.errors, QString());
    const QString page = QString::fromUtf8(bytesOf(in("a.xhtml")));
    QVERIFY2(page.contains(expected), qPrintable(page));
}

void tst_Mrv::encodings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("options");
    const QByteArray declared =
        "<meta http-equiv=content-type content='text/html; charset=iso-8859-1'>caf\xe9";
    QTest::newRow("utf-16") << "a.txt"
                            << QByteArray("\xff\xfe"
                                          "c\0a\0f\0\xe9\0",
                                          10)
                            << QStringList{};
    QTest::newRow("declared") << "a.html" << declared << QStringList{};
    QTest::newRow("given") << "a.txt" << QByteArray("caf\xe9")
                           << QStringList{"--encoding", "latin1"};
}

void tst_Mrv::encodings()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, options);
    QVERIFY(writeBytes(in(name), bytes));
    QCOMPARE(
        mrv(QStringList{"export", in(name), "--to", "xhtml", "-o", in("a.xhtml")} + options).errors,
        QString());
    QVERIFY(bytesOf(in("a.xhtml")).contains("caf\xc3\xa9"));
}

void tst_Mrv::manyInputs()
{
    QVERIFY(writeBytes(in("two.md"), "# Trois\n\n**fort**"));
    QCOMPARE(mrv({"export", in("book.html"), in("two.md"), "--to", "kindle", "-o", in("pages")})
                 .exitCode,
             0);
    QCOMPARE(
        filesBelow(in("pages")),
        QStringList({"book.xhtml", "book_files/pic one.jpg", "css/stylesheet.css", "two.xhtml"}));
    const QString css = QString::fromUtf8(bytesOf(in("pages/css/stylesheet.css")));
    const QString two = QString::fromUtf8(bytesOf(in("pages/two.xhtml")));
    const QString last = two.section("<span class=\"", -1).section('"', 0, 0);
    QVERIFY2(css.contains('.' + last + " {\n    font-weight: bold;"), qPrintable(last + css));
    QCOMPARE(mrv({"export", in("book.html"), in("two.md"), "--to", "epub", "-o", in("all.epub")})
                 .exitCode,
             0);
    QCOMPARE(epubErrors(in("all.epub")), QString());
}

void tst_Mrv::standardStreams()
{
    const Ran page =
        mrv({"export", "-", "--to", "xhtml"}, {}, "<!DOCTYPE html><p>from <b>a pipe</b></p>");
    QCOMPARE(page.exitCode, 0);
    QVERIFY(page.output.contains("a pipe</span>") && page.output.endsWith("</html>"));
    const Ran full = run(
        "sh",
        {"-c",
         QString("'%1' export '%2' --to xhtml -o - > /dev/full").arg(MRV_TOOL, in("book.html"))});
    QCOMPARE(full.exitCode, 1);
    QVERIFY(isOneError(full));
}

void tst_Mrv::account()
{
    const Ran ran = mrv({"export", in("book.html"), "--to", "xhtml", "--json"});
    const QJsonArray files =
        QJsonDocument::fromJson(ran.output.toUtf8()).object().value("files").toArray();
    QCOMPARE(files.size(), 2);
    QCOMPARE(files.last().toObject().value("path").toString(), in("book.xhtml"));
    QCOMPARE(files.last().toObject().value("bytes").toInt(), bytesOf(in("book.xhtml")).size());
}

QTEST_GUILESS_MAIN(tst_Mrv)
#include "tst_mrv.moc"
