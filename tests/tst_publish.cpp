#include "datarows.h"
#include "images.h"
#include "support.h"

#include "publish/mrvoutputfiles.h"
#include "publish/mrvpagepublisher.h"
#include "publish/mrvstagedfiles.h"
#include "util/mrvfixeddate.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>

/// A document with a picture of this colour, and with a bold word.
static std::unique_ptr<QTextDocument> documentWith(const QColor &color)
{
    auto document = std::make_unique<QTextDocument>();
    document->addResource(QTextDocument::ImageResource, QUrl("pic"), filledImage(9, 9, color));
    document->setHtml("<p>a <b>word</b> <img src=pic></p>");
    return document;
}

/// Publishing pages and files together or not at all.
class tst_Publish : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new QTemporaryDir); }
    void pages_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("html") << int(MRVTextXhtmlExporter::Html)
                              << QStringList{"a.html", "a_files/pic.png"};
        QTest::newRow("kindle") << int(MRVTextXhtmlExporter::Kindle)
                                << QStringList{"a.html", "a_files/pic.jpg", "css/stylesheet.css"};
    }
    void pages()
    {
        QFETCH(int, type);
        QFETCH(QStringList, files);
        MRVPageOptions options;
        options.type = MRVTextXhtmlExporter::ExportType(type);
        options.styleSheet = files.size() > 2;
        options.title = "A&B";
        const auto document = documentWith(Qt::red);
        for (int time = 0; time < 2; ++time) { // the second time over the old files
            MRVPagePublisher publisher(options);
            QStringList written;
            QVERIFY(publisher.add(document.get(), "de", in("out/a.html")));
            QCOMPARE(QFile::exists(in("out/a.html")), time > 0);
            QVERIFY(publisher.publish(&written));
            QCOMPARE(filesBelow("out"), files);
            for (QString &path : written) {
                path = QDir(in("out")).relativeFilePath(path);
            }
            written.sort();
            QCOMPARE(written, files);
        }
        QCOMPARE(document->metaInformation(QTextDocument::DocumentTitle), QString());
        const QString page = QString::fromUtf8(bytesOf(in("out/a.html")));
        QVERIFY2(page.contains("src=\"" + files.at(1)), qPrintable(page));
        const QString text = MRVPagePublisher::pageText(options, document.get(), "de");
        QVERIFY2(text.contains("src=\"pic"), qPrintable(text));
        QVERIFY2(type == MRVTextXhtmlExporter::Html || text.contains("<title>A&amp;B</title>"),
                 qPrintable(text));
    }

    /// Pages that are published together number their classes in one list.
    void sharedStyleSheet()
    {
        MRVPageOptions options;
        options.type = MRVTextXhtmlExporter::KindleKF8;
        options.styleSheet = true;
        MRVPagePublisher publisher(options);
        QTextDocument one;
        one.setHtml("<p><i>one</i></p>");
        QTextDocument two;
        two.setHtml("<p><b>two</b></p>");
        QVERIFY(publisher.add(&one, QString(), in("one.xhtml")));
        QVERIFY(publisher.add(&two, QString(), in("./two.xhtml")));
        QVERIFY(publisher.publish());
        const QString css = QString::fromUtf8(bytesOf(in("css/stylesheet.css")));
        const QString page = QString::fromUtf8(bytesOf(in("two.xhtml")));
        const QString last = page.section("<span class=\"", -1).section('"', 0, 0);
        QVERIFY2(css.contains('.' + last + " {\n    font-weight: bold;"), qPrintable(last + css));
        QVERIFY2(css.startsWith("/* Styles of one.xhtml / two.xhtml */\n"), qPrintable(css));
    }

    /// What is there and is no file of the pages stays; the same picture is used again.
    void sparesPictures()
    {
        const auto publish = [&](const QMap<QString, QColor> &pages) {
            MRVPagePublisher publisher;
            bool ok = true;
            for (auto page = pages.begin(); page != pages.end(); ++page) {
                ok = ok && publisher.add(documentWith(*page).get(), QString(), in(page.key()));
            }
            return ok && publisher.publish();
        };
        QVERIFY(publish({{"ch.1.html", Qt::red}, {"ch.2.html", Qt::blue}, {"ch.3.html", Qt::red}}));
        QVERIFY(publish({{"ch.2.html", Qt::blue}}));
        QCOMPARE(filesBelow(""),
                 QStringList({"ch.1.html", "ch.2.html", "ch.3.html", "ch_files/pic-1.png",
                              "ch_files/pic.png"}));
        QVERIFY(bytesOf(in("ch.1.html")).contains("src=\"ch_files/pic.png\""));
        QVERIFY(bytesOf(in("ch.2.html")).contains("src=\"ch_files/pic-1.png\""));
        QVERIFY(bytesOf(in("ch.3.html")).contains("src=\"ch_files/pic.png\""));
    }

    void refusals_data() { addRows("publish-refused.tsv"); }
    void refusals()
    {
        QFETCH(QString, there);
        const QByteArray text = cell("text").toUtf8();
        QFETCH(QString, word);
        QVERIFY(leave(there, text));
        QVERIFY(word != "b.xhtml" || leave("out/b.xhtml", "x"));
        const QStringList before = filesBelow("");
        MRVPageOptions options;
        options.type = MRVTextXhtmlExporter::Kindle;
        options.styleSheet = true;
        QString error;
        bool done = false;
        {
            MRVPagePublisher publisher(options);
            done = publisher.add(documentWith(Qt::red).get(), QString(), in("out/a.xhtml"), &error)
                && publisher.publish(nullptr, &error);
        }
        QCOMPARE(done, word.isEmpty());
        if (!done) {
            QVERIFY2(error.startsWith(in("out")), qPrintable(error));
            QVERIFY2(error.contains(word), qPrintable(error));
            QCOMPARE(filesBelow(""), before);
            QCOMPARE(bytesOf(in(there)), text);
        }
    }

    void keepsLinksAndPermissions()
    {
        QVERIFY(leave("file", "old"));
        QVERIFY(QFile::link(in("file"), in("link")));
        QVERIFY(QFile::setPermissions(in("file"), QFile::ReadOwner | QFile::WriteOwner));
        for (const char *name : {"link", "file"}) {
            MRVStagedFiles files;
            const QString staged = files.newFolder(in(name)) + "/new";
            QVERIFY(writeBytes(staged, name));
            files.add(staged, in(name));
            QVERIFY(files.publish());
            QCOMPARE(bytesOf(in("file")), QByteArray(name));
        }
        QVERIFY(QFileInfo(in("link")).isSymLink());
        QVERIFY(!(QFile::permissions(in("file")) & (QFile::ReadGroup | QFile::ReadOther)));
    }

    /// The second of the files is missing from the stage, so that the first goes back.
    void rollsBack()
    {
        QVERIFY(leave("old", "old"));
        QString error;
        {
            MRVStagedFiles files;
            const QString stage = files.newFolder(in("new/file"));
            for (const char *name : {"1", "2"}) {
                QVERIFY(writeBytes(stage + '/' + name, "new"));
            }
            files.add(stage + "/1", in("old"));
            files.add(stage + "/2", in("new/file"));
            files.add(stage + "/3", in("third"));
            QVERIFY(!files.publish(&error));
        }
        QVERIFY(!error.isEmpty());
        QCOMPARE(filesBelow(""), QStringList{"old"});
        QCOMPARE(bytesOf(in("old")), QByteArray("old"));
        QVERIFY(!QFileInfo::exists(in("new")));
    }

    void failedWriteLeavesNoFolder()
    {
        QString error;
        QVERIFY(MRVStagedFiles::write("bytes", in("a/b/file"), &error));
        QCOMPARE(bytesOf(in("a/b/file")), QByteArray("bytes"));
        QVERIFY(!MRVStagedFiles::write("bytes", in("a/b/file/c/d"), &error));
        QVERIFY2(error.contains("a/b/file/c"), qPrintable(error));
        QVERIFY(!MRVStagedFiles::write("bytes", in("x/y/"), &error));
        QVERIFY(!QFileInfo::exists(in("x")));
    }

    void outputs()
    {
        QVERIFY(leave("a", "x"));
        QVERIFY(QFile::link(in("a"), in("link")));
        QString error;
        QVERIFY(MRVOutputFiles::areDistinct({in("a"), in("b"), in("none/a")}, &error));
        QCOMPARE(error, QString());
        for (const char *same : {"a", "./a", "link"}) {
            QVERIFY(!MRVOutputFiles::areDistinct({in("a"), in(same)}, &error));
            QVERIFY(!MRVOutputFiles::spareInputs({in("b"), in(same)}, {in("a")}, &error));
            QVERIFY2(error.startsWith(in(same) + ": "), qPrintable(error));
        }
        QVERIFY(!MRVOutputFiles::areDistinct({in("none/a"), in("none/../none/a")}));
        QVERIFY(MRVOutputFiles::spareInputs({in("b")}, {in("a")}));
        QVERIFY(MRVOutputFiles::areDistinct({"-", "-"}));
        QVERIFY(MRVOutputFiles::spareInputs({"-"}, {"-", ""}));
    }

    void dates_data() { addRows("fixeddates.tsv"); }
    void dates()
    {
        QTEST(MRVFixedDate::fromIsoText(cell("text")).toUTC().toString(Qt::ISODate), "expected");
    }

    void environmentDates_data() { addRows("environmentdates.tsv"); }
    /// An expected "!" is a refusal.
    void environmentDates()
    {
        QFETCH(QString, expected);
        qputenv("SOURCE_DATE_EPOCH", cell("variable").toLatin1());
        QDateTime date;
        QString error;
        const bool done = MRVFixedDate::fromEnvironment(&date, &error);
        qunsetenv("SOURCE_DATE_EPOCH");
        QCOMPARE(done, expected != "!");
        QCOMPARE(error.isEmpty(), done);
        QCOMPARE(date.toString(Qt::ISODate), done ? expected : QString());
    }

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }
    // Hidden folders too, so that none stays behind.
    QStringList filesBelow(const QString &name) const
    {
        QStringList files;
        for (QDirIterator it(in(name),
                             QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
             it.hasNext();) {
            const QString path = it.next();
            if (it.fileInfo().isFile() || it.fileName().startsWith('.')) {
                files.append(QDir(in(name)).relativeFilePath(path));
            }
        }
        files.sort();
        return files;
    }
    bool leave(const QString &name, const QByteArray &bytes) const
    {
        return QDir().mkpath(QFileInfo(in(name)).path()) && writeBytes(in(name), bytes);
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

QTEST_MAIN(tst_Publish)
#include "tst_publish.moc"
