#include "datarows.h"
#include "epub/mrvepubpackage.h"
#include "epub/mrvscriptbook.h"
#include "gui/mrvguiutil.h"
#include "html/mrvhtmldocument.h"
#include "images.h"
#include "screenplay/mrvfountain.h"
#include "scriptmode/mrvscriptmode.h"
#include "support.h"
#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextformat.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QUrl>
#include <QXmlStreamReader>

#include <KZip>

#include <sched.h>

namespace {

QDateTime someDay()
{
    return QDateTime(QDate(2026, 1, 31), QTime(12, 0), Qt::UTC);
}

QByteArray png(const QColor &color)
{
    return MRVGuiUtil::toByteArray(filledImage(20, 30, color), "PNG");
}

void fill(QTextDocument *document, const QString &html)
{
    document->addResource(QTextDocument::ImageResource, QUrl("pic.png"),
                          filledImage(20, 30, Qt::blue));
    document->setHtml(html);
}

// Files of the archive by name, as text.
QMap<QString, QString> unpacked(const QByteArray &book)
{
    QByteArray bytes = book;
    QBuffer buffer(&bytes);
    KZip zip(&buffer);
    QMap<QString, QString> files;
    std::function<void(const KArchiveDirectory *, const QString &)> walk =
        [&](const KArchiveDirectory *folder, const QString &path) {
            for (const QString &name : folder->entries()) {
                const KArchiveEntry *entry = folder->entry(name);
                if (entry->isDirectory()) {
                    walk(static_cast<const KArchiveDirectory *>(entry), path + name + '/');
                } else {
                    files.insert(
                        path + name,
                        QString::fromUtf8(static_cast<const KArchiveFile *>(entry)->data()));
                }
            }
        };
    if (zip.open(QIODevice::ReadOnly)) {
        walk(zip.directory(), QString());
    }
    return files;
}

const char *novel =
    "<html><head><title>The Novel</title></head><body><h1>The Novel</h1><p>Front</p>"
    "<h2>One</h2><p>Text <a href='#two'>to two</a> <img src='pic.png' "
    "alt='Blue'></p><h3>Scene</h3><p>x</p>"
    "<h2><a name='two'></a>Two &amp; <i>more</i></h2><p><a href='other.html#there'>there</a>, <a "
    "href='#nowhere'>nowhere</a>, "
    "<a href='file:///etc/passwd'>file</a>, <a href=\"https://example.com/a b?c=d&amp;e\">web</a>, "
    "<a href='17'>node</a></p>"
    "<p style='page-break-before:always'>New page</p></body></html>";

} // namespace

/** E-book files: their parts, and what a validator says to them. */
class tst_EPub : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Front matter, two chapters, a page break, and another document: all files as they are
    // written, with MRV_REWRITE_GOLDEN to write them again.
    void files()
    {
        QTextDocument document;
        fill(&document, novel);
        QTextDocument other;
        other.setHtml(
            "<p>Before</p><p><a name='there'></a>There <a href='novel.html'>back</a></p>");
        MRVEPubMetadata metadata;
        metadata.authors = QStringList{"A. <Writer>", "B"};
        metadata.language = "de-CH";
        metadata.identifier = "urn:isbn:9780000000002";
        metadata.modified = someDay();
        MRVEPubPackage package(MRVEPubVersion::EPub3, metadata);
        QVERIFY(package.addDocument(document, "novel.html"));
        QVERIFY(package.addDocument(other, "other.html"));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        QString text;
        for (auto it = files.begin(); it != files.end(); ++it) {
            text += "==== " + it.key() + '\n' + (it.key().endsWith(".png") ? "\n" : it.value());
        }
        const QString golden = MRV_SOURCE_DIR "/tests/data/novel.txt";
        if (qEnvironmentVariableIsSet("MRV_REWRITE_GOLDEN")) {
            QVERIFY(writeBytes(golden, text.toUtf8()));
        }
        QCOMPARE(text.split('\n'), QString::fromUtf8(bytesOf(golden)).split('\n'));
    }

    void pages_data() { addRows("epub-pages.tsv", {"case", "options", "html", "pages", "rules"}); }

    // Elements of pages as they are read, and the rules for what their classes look like.
    void pages()
    {
        QTextDocument document;
        QVERIFY(MRVHtmlDocument::read(cell("html"), QString(), &document));
        document.addResource(QTextDocument::ImageResource, QUrl("p"), filledImage(2, 2, Qt::blue));
        MRVEPubMetadata metadata;
        const bool hasEndnotes = cell("options").startsWith("book");
        metadata.language = hasEndnotes ? "de" : "en";
        MRVEPubOptions options;
        options.notes = hasEndnotes ? MRVEPubOptions::BookNotes : MRVEPubOptions::ChapterNotes;
        options.areChapters = cell("options") == "chapters";
        const bool isOld = cell("options").endsWith("epub2");
        MRVEPubPackage package(isOld ? MRVEPubVersion::EPub2 : MRVEPubVersion::EPub3, metadata,
                               options);
        QVERIFY(package.addDocument(document));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        QStringList bodies;
        for (const QString &name :
             QStringList(files.keys()).filter(QRegularExpression("page-|notes"))) {
            const QString body = files[name].section("<body>", 1).section("</body>", 0, 0);
            bodies << (body.contains("<pre") ? body.trimmed() : QString(body).remove('\n'));
        }
        QCOMPARE(bodies.join(" || "), cell("pages"));
        const QString rules = files["OEBPS/css/stylesheet.css"].section("this book */", 1);
        QCOMPARE(rules.simplified(), cell("rules"));
        QCOMPARE(files["OEBPS/toc.ncx"].contains("Anmerkungen"),
                 bodies.first().contains("Anmerkungen"));
    }

    // Lists with levels become lists in lists, each with the numbers of its level. Markers that
    // no type of list has are text.
    void listLevels()
    {
        QTextDocument document("a\nb\nc\nd\ne\n");
        QTextCursor cursor(&document);
        cursor.select(QTextCursor::Document);
        QTextListFormat format;
        format.setIndent(1);
        MRVTextListFormat::setLevels(format,
                                     {{"%0.", 1, 36, 18},
                                      {"(%0)", 2, 72, 18},
                                      {QString(QChar(0x25cf)), 0, 108, 18},
                                      {"<", 0, 144, 18}});
        QTextList *list = cursor.createList(format);
        const int levels[] = {0, 1, 1, 2, 3, 1};
        for (int i = 0; i < 6; ++i) {
            MRVTextListFormat::setBlockLevel(*list, list->item(i), levels[i]);
        }
        MRVEPubPackage package(MRVEPubVersion::EPub3, MRVEPubMetadata());
        QVERIFY(package.addDocument(document));
        const QString page = unpacked(package.toByteArray())["OEBPS/page-001.xhtml"].remove('\n');
        QCOMPARE(page.section("<body>", 1).section("</body>", 0, 0),
                 QString("<ol><li>a<ol COUNTED><li>MARK(a)</span> b</li><li>MARK(b)</span> c"
                         "<ul class=\"disc\"><li>d<ul COUNTED><li>MARK&lt;</span> e</li></ul></li>"
                         "</ul></li><li>MARK(c)</span> </li></ol></li></ol>")
                     .replace("COUNTED", "class=\"counted\"")
                     .replace("MARK", "<span class=\"marker\">"));
    }

    // By choice, an annotation leaves the text for a note, and a comment becomes one.
    void annotations()
    {
        QTextDocument document("Before annotated after");
        QTextCursor cursor(&document);
        cursor.setPosition(7);
        cursor.setPosition(16, QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setProperty(MRVTextFormat::InlineAnnotationProperty, true);
        cursor.mergeCharFormat(format);
        QTextCharFormat comment;
        comment.setProperty(MRVTextFormat::CommentData0, "Why?\nSo.");
        comment.setProperty(MRVTextFormat::CommentData2, QStringList{"Ann"});
        cursor.setPosition(19); // two stretches of it
        cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(comment);
        comment.setFontItalic(true);
        cursor.setPosition(20);
        cursor.setPosition(21, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(comment);
        for (const bool areNotes : {false, true}) {
            MRVEPubOptions options;
            options.commentsAsNotes = areNotes;
            MRVEPubPackage package(MRVEPubVersion::EPub3, MRVEPubMetadata(), options);
            QVERIFY(package.addDocument(document));
            const QString page = unpacked(package.toByteArray())["OEBPS/page-001.xhtml"];
            QCOMPARE(page.contains("Before annotated aft"), !areNotes);
            QCOMPARE(page.contains("href=\"#comment-mark-1\">[1]</a> annotated</p></aside>"),
                     areNotes);
            QCOMPARE(page.contains("</em>r<a id=\"comment-mark-2\""), areNotes);
            QCOMPARE(page.contains("href=\"#comment-mark-2\">[2]</a> Ann: Why?<br />So.</p>"),
                     areNotes);
            QCOMPARE(page.count("Why"), areNotes ? 1 : 0);
            QCOMPARE(package.losses({&document}), QStringList());
        }
    }

    // The base, or the sheet that takes its place after all other rules.
    void sheets()
    {
        QTextDocument document("x");
        const auto sheet = [&document](const MRVEPubOptions &options) {
            MRVEPubPackage package(MRVEPubVersion::EPub3, MRVEPubMetadata(), options);
            package.addDocument(document);
            return unpacked(package.toByteArray())["OEBPS/css/stylesheet.css"];
        };
        MRVEPubOptions options;
        QVERIFY(sheet(options).startsWith("/* Classic"));
        options.styleBase = MRVEPubOptions::Modern;
        QVERIFY(sheet(options).startsWith("/* Modern"));
        options.styleSheet = "p { color: red }\xff";
        QVERIFY(!sheet(options).contains("Modern"));
        QVERIFY(sheet(options).endsWith(QString("p { color: red }") + QChar(0xfffd)));
    }

    // A line spacing takes the number of Qt's own heading level.
    void spacedHeadings()
    {
        QTextDocument document;
        fill(&document, novel);
        const auto contents = [&document] {
            MRVEPubPackage package;
            package.addDocument(document, "novel.html");
            const QMap<QString, QString> files = unpacked(package.toByteArray());
            return QStringList(files.keys()) << files["OEBPS/nav.xhtml"];
        };
        const QStringList before = contents();
        const QTextBlockFormat spaced = MRVTextFormat::simplifiedSpacing(QTextBlockFormat());
        MRVTextFormat::convertToFormat(&document, nullptr, &spaced, true, true, true, true, false,
                                       true, true, {}, false, false);
        QCOMPARE(contents(), before);
        QCOMPARE(QTextCursor(&document).blockFormat().headingLevel(), 0); // that is in the copy
    }

    void metadata_data() { addRows("epub-metadata.tsv", {"key", "value", "epub3", "epub2"}); }

    // What is set, and says in the package document; a malformed value sets nothing.
    void metadata()
    {
        const QStringList setting = cell("key").split('|');
        for (const char *column : {"epub3", "epub2"}) {
            const bool isNew = qstrcmp(column, "epub3") == 0;
            MRVEPubMetadata metadata;
            metadata.series = "Tides";
            metadata.language = setting.value(1);
            QString error;
            QCOMPARE(metadata.set(setting.first(), cell("value"), &error),
                     !cell("epub3").isEmpty());
            QCOMPARE(error.isEmpty(), !cell("epub3").isEmpty());
            MRVEPubPackage package(isNew ? MRVEPubVersion::EPub3 : MRVEPubVersion::EPub2, metadata);
            const QString opf = unpacked(package.toByteArray())["OEBPS/content.opf"];
            QVERIFY2(opf.contains(cell(column)), qPrintable(opf));
        }
    }

    void links_data()
    {
        QTest::addColumn<QString>("href");
        QTest::addColumn<QString>("target");
        const QString there = "page-002.xhtml";
        for (const QString href :
             {"../b%20c/two.html", "./../b%20c/two.html?x=1", "../b c/two.html",
              "../a/../b%20c/./two.html", "/b%20c/two.html"}) {
            const QString address = href.startsWith('/') ? "/nowhere" + href : href;
            QTest::newRow(qPrintable(href)) << address << there;
            QTest::newRow(qPrintable(href + '#')) << address + "#z" << there + "#z";
        }
        QTest::newRow("own-name") << "one.html"
                                  << "page-001.xhtml";
        QTest::newRow("same-name") << "../two.html"
                                   << "";
        QTest::newRow("no-anchor") << "../b%20c/two.html#y"
                                   << "";
    }
    // Pages by paths as the documents write them: the folder counts, not the name alone.
    void links()
    {
        QFETCH(QString, target);
        QTextDocument one;
        one.setHtml("<p><a href='" + *static_cast<QString *>(QTest::qData("href", QVariant::String))
                    + "'>x</a></p>");
        QTextDocument two;
        two.setHtml("<p><a name='z'></a>y</p>");
        MRVEPubPackage package;
        QVERIFY(package.addDocument(one, "/nowhere/a/one.html"));
        QVERIFY(package.addDocument(two, "/nowhere/b c/two.html"));
        const QString page = unpacked(package.toByteArray())["OEBPS/page-001.xhtml"];
        QCOMPARE(page.section("href=\"", 2).section('"', 0, 0), target);
    }

    void nothingGiven()
    {
        MRVEPubMetadata metadata;
        metadata.language = "not a tag!";
        MRVEPubPackage package(MRVEPubVersion::EPub2, metadata);
        QVERIFY(package.addDocument(QTextDocument("no headings")));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        const QString opf = files["OEBPS/content.opf"];
        QVERIFY(opf.contains("<dc:language>und</dc:language>"));
        QVERIFY(opf.contains("version=\"2.0\""));
        QVERIFY(!opf.contains("nav.xhtml"));
        QVERIFY(files["OEBPS/toc.ncx"].contains("<text>Untitled</text>"));
    }

    // Two headings on a title page must not leave the rest in one piece.
    void largePages()
    {
        const QString paragraph = "<p>" + QString("word ").repeated(100) + "</p>";
        QTextDocument document;
        document.setHtml("<h1>Title</h1><h1>Author</h1>"
                         + ("<h3>Part</h3>" + paragraph.repeated(300)).repeated(4));
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document));
        QTextDocument plain;
        plain.setHtml(paragraph.repeated(4500));
        QVERIFY(package.addDocument(plain));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        int largest = 0;
        for (const QString &file : files) {
            largest = qMax(largest, file.size());
        }
        QVERIFY2(largest < 1100000, qPrintable(QString::number(largest)));
        QVERIFY(files["OEBPS/page-004.xhtml"].size() < 400000);
        QCOMPARE(files["OEBPS/nav.xhtml"].count("Part"), 4);
    }

    // Acts begin pages; scenes do where a page would grow large, and are listed all the same.
    void scriptPages()
    {
        MRVScriptMode mode;
        mode.loadFactoryDefaults();
        const QString scenes = QString("INT. A [[private]]\n\nB\n\nANN\n(c)\n%1\n\n").repeated(3);
        const QString text = "Title: T\nHidden: private\nCopyright: R [[private]]\n\n# private\n\n"
                             ">ACT ONE<\n\n"
            + scenes.arg("d") + "= private\n\n>Act II: E<\n\n" + scenes.arg(QString(40000, 'f'));
        const auto script = MRVFountainScript::fromText(text);
        QString error;
        const QByteArray book =
            MRVScriptBook::toByteArray(script, mode, "en", MRVScriptBook::FixedPitch, &error);
        QVERIFY2(!book.isEmpty(), qPrintable(error));
        const QMap<QString, QString> files = unpacked(book);
        QCOMPARE(files.keys().filter("page-").size(), 5);
        QCOMPARE(files.value("OEBPS/nav.xhtml").count("INT. A"), 6);
        const QString sheet = files.value("OEBPS/css/stylesheet.css");
        QVERIFY(sheet.contains("monospace"));
        QCOMPARE(sheet.count(QRegularExpression("(margin-(left|right)|text-indent): [-0-9.]*em")),
                 0);
        QVERIFY2(sheet.contains("margin-left: 36.667%"), qPrintable(sheet));
        QVERIFY(!QStringList(files.values()).join(' ').contains("private"));
    }

    void deepNesting_data()
    {
        QTest::addColumn<QString>("element");
        for (const QString element :
             {"ul><li", "blockquote", "table><tr><td", "div style='border:1px solid'",
              "ul><li><table><caption>c<tr><td"}) {
            QTest::newRow(qPrintable(element)) << element;
        }
    }
    // Parsers of XML take 256 elements within each other; no word goes with those above it.
    void deepNesting()
    {
        QFETCH(QString, element);
        QTextDocument document;
        QVERIFY(MRVHtmlDocument::read(QString("<%1>a b").arg(element).repeated(300), QString(),
                                      &document));
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document));
        QCOMPARE(package.losses({&document}), QStringList());
        QXmlStreamReader page(unpacked(package.toByteArray())["OEBPS/page-001.xhtml"]);
        int depth = 0;
        int deepest = 0;
        while (!page.atEnd()) {
            page.readNext();
            depth += page.isStartElement() ? 1 : page.isEndElement() ? -1 : 0;
            deepest = qMax(deepest, depth);
        }
        QVERIFY(!page.hasError());
        QVERIFY2(deepest < 256, qPrintable(QString::number(deepest)));
    }

    // A part stands with its first chapter, and the title of that one is not the book's.
    void parts()
    {
        MRVEPubOptions options;
        options.areChapters = true;
        MRVEPubPackage package(MRVEPubVersion::EPub3, MRVEPubMetadata(), options);
        package.addPart("I");
        for (const QString name : {"one", "two"}) {
            QTextDocument document;
            QVERIFY(MRVHtmlDocument::read("<title>" + name + "</title><h1>" + name + "</h1>x",
                                          QString(), &document));
            QVERIFY(package.addDocument(document));
        }
        package.addPart("II");
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        QStringList bodies;
        for (const QString &name : QStringList(files.keys()).filter("page-")) {
            bodies
                << QString(files[name].section("<body>", 1).section("</body>", 0, 0)).remove('\n');
        }
        const QStringList expected{
            "<section epub:type=\"part\" role=\"doc-part\"><h1 id=\"part\">I</h1><section "
            "epub:type=\"chapter\" role=\"doc-chapter\"><h1 id=\"heading-2\">one</h1><p>x</p>"
            "</section></section>",
            "<section epub:type=\"chapter\" role=\"doc-chapter\"><h1 id=\"heading-3\">two</h1>"
            "<p>x</p></section>",
            "<section epub:type=\"part\" role=\"doc-part\"><h1 "
            "id=\"part-1\">II</h1></section>"};
        QCOMPARE(bodies, expected);
    }

    // No id stands twice on a page, whatever the document calls its anchors.
    void headingIds()
    {
        QTextDocument document;
        document.setHtml("<h1>One</h1><p><a name='heading-1'></a>a<a name='_heading-2'></a>b</p>"
                         "<table><tr><td><h2><img src='x' alt='Mill'></h2></td></tr></table>");
        document.addResource(QTextDocument::ImageResource, QUrl("x"),
                             filledImage(20, 30, Qt::blue));
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        QVERIFY(files["OEBPS/page-001.xhtml"].contains("<h1 id=\"heading-1\">One"));
        QCOMPARE(files["OEBPS/page-001.xhtml"].count("\"heading-1\""), 1);
        QVERIFY(files["OEBPS/nav.xhtml"].contains("#heading-2\">Mill</a>"));
    }

    void covers_data()
    {
        QTest::addColumn<QByteArray>("cover");
        QTest::addColumn<bool>("shown");
        QTest::newRow("none") << QByteArray() << false;
        QTest::newRow("png") << png(Qt::red) << true;
        QTest::newRow("garbage") << QByteArray("no picture") << false;
    }
    void covers()
    {
        QFETCH(QByteArray, cover);
        QFETCH(bool, shown);
        MRVEPubMetadata metadata;
        metadata.cover = cover;
        metadata.title = "T & U";
        metadata.authors = QStringList{"Writer"};
        metadata.subtitle = "S";
        const QMap<QString, QString> files =
            unpacked(MRVEPubPackage(MRVEPubVersion::EPub3, metadata).toByteArray());
        QCOMPARE(files["OEBPS/cover.xhtml"].contains(
                     "<img src=\"images/cover-1.png\" alt=\"T &amp; U\" />"),
                 shown);
        QCOMPARE(files["OEBPS/cover.xhtml"].contains(">Writer</p>"), !shown);
        QCOMPARE(files["OEBPS/cover.xhtml"].contains(">S</p>"), !shown);
        QCOMPARE(files["OEBPS/content.opf"].contains("properties=\"cover-image\""), shown);
    }

    void pictures()
    {
        QTextDocument document;
        fill(&document,
             "<p><img src='pic.png'><img src='http://example.com/x.png' alt='remote one'></p>");
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document));
        QVERIFY(package.addDocument(document)); // the same picture is stored once
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        QCOMPARE(QStringList(files.keys()).filter("images/"),
                 QStringList{"OEBPS/images/pic-1.png"});
        QVERIFY(files["OEBPS/page-001.xhtml"].contains(" src=\"images/pic-1.png\""));
        QVERIFY(files["OEBPS/page-001.xhtml"].contains("remote one"));

        QTextDocument broken;
        broken.setHtml("<img src='missing.png'>");
        QString error;
        QVERIFY(!package.addDocument(broken, QString(), &error));
        QVERIFY(error.contains("missing.png"));
        QVERIFY(!unpacked(package.toByteArray()).contains("OEBPS/page-003.xhtml"));
    }

    void archive()
    {
        QTextDocument document;
        fill(&document, novel);
        MRVEPubMetadata metadata;
        metadata.modified = someDay();
        MRVEPubOptions options;
        auto made = [&] {
            MRVEPubPackage package(MRVEPubVersion::EPub3, metadata, options);
            package.addDocument(document, "novel.html");
            return package.toByteArray();
        };
        const QByteArray book = made();
        QCOMPARE(book, made());
        cpu_set_t cores;
        cpu_set_t one;
        CPU_ZERO(&one);
        QCOMPARE(sched_getaffinity(0, sizeof cores, &cores), 0);
        CPU_SET(sched_getcpu(), &one);
        QCOMPARE(sched_setaffinity(0, sizeof one, &one), 0);
        const QByteArray onOneCore = made();
        QCOMPARE(sched_setaffinity(0, sizeof cores, &cores), 0);
        QCOMPARE(onOneCore, book);
        options.packing = MRVEPubOptions::Small;
        QVERIFY(made().size() < book.size());
        QCOMPARE(unpacked(made()), unpacked(book));
        QCOMPARE(book.mid(30, 28),
                 QByteArray("mimetypeapplication/epub+zip")); // first, stored, no extra field
        metadata.modified = someDay().addSecs(3600);
        QVERIFY(book != made());
        const QString identifier =
            unpacked(book)["OEBPS/content.opf"].section("urn:uuid:", 1).section('<', 0, 0);
        QVERIFY(unpacked(made())["OEBPS/content.opf"].contains(identifier)); // it is the same book

        // Pictures are compressed already.
        QByteArray bytes = book;
        QBuffer buffer(&bytes);
        KZip zip(&buffer);
        QVERIFY(zip.open(QIODevice::ReadOnly));
        const QMap<QString, int> methods{{"page-001.xhtml", 8}, {"images/pic-1.png", 0}};
        for (const QString &name : methods.keys()) {
            const auto *file =
                static_cast<const KZipFileEntry *>(zip.directory()->entry("OEBPS/" + name));
            QVERIFY(file);
            QCOMPARE(file->encoding(), methods[name]);
        }

        QTemporaryDir folder;
        MRVEPubPackage package(MRVEPubVersion::EPub3, metadata);
        QString error;
        QVERIFY(package.write(folder.filePath("book.epub"), &error));
        QVERIFY(!package.write(folder.filePath("no/book.epub"), &error));
        QVERIFY(!error.isEmpty());
    }

    // Where pages of a printed edition begin, all that lists things says so, and of which edition.
    void printedPages()
    {
        QTextDocument document;
        QVERIFY(MRVHtmlDocument::read("<title>Ebb</title><h1>I</h1><p><a name=Page_7></a>a"
                                      "<h1>II</h1><p><a name=Page_8></a>b",
                                      QString(), &document));
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        const QString pages =
            files["OEBPS/nav.xhtml"].section("page-list", 1).section("</nav>", 0, 0);
        QVERIFY(pages.contains("<a href=\"page-001.xhtml#Page_7\">7</a>"));
        QVERIFY(pages.contains("<a href=\"page-002.xhtml#Page_8\">8</a>"));
        QCOMPARE(files["OEBPS/toc.ncx"].count("<pageTarget "), 2);
        const QString metadata = files["OEBPS/content.opf"];
        QVERIFY(metadata.contains(">printPageNumbers<"));
        QVERIFY(metadata.contains("<dc:source id=\"source\">Printed edition of Ebb<"));
        QVERIFY(metadata.contains("refines=\"#source\" property=\"source-of\">pagination<"));
    }

    // Links to files and to nowhere are no loss, for a book cannot have them.
    void losses()
    {
        QTextDocument document;
        fill(&document, novel);
        QTextDocument remote;
        fill(&remote, "<p>(see<img src='http://x.example/a.png' alt='R'>this)</p>");
        QTextDocument missing;
        fill(&missing, "<p>Text <a href='https://a.org/'>unwritten</a> <img src='pic.png'></p>");
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document, "novel.html"));
        QVERIFY(package.addDocument(remote));
        QCOMPARE(package.losses({&document, &remote}), QStringList());
        QCOMPARE(package.deadLinks(),
                 QStringList({"other.html#there", "#nowhere", "file:///etc/passwd", "17"}));
        QCOMPARE(package.losses({&missing, &document}),
                 QStringList({"not in what was written, of the paragraph \"Text unwritten\": "
                              "Text unwritten",
                              "a link that was not written: https://a.org/",
                              "pictures that were not written: 1"}));
    }

    // A picture that a link leads to has a page, if it lies in the folder of the document.
    void plates()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("book/sub"));
        QVERIFY(writeBytes(folder.filePath("book/sub/a b.png"), png(Qt::red)));
        QVERIFY(writeBytes(folder.filePath("book/c.txt"), "c"));
        QVERIFY(writeBytes(folder.filePath("book2.png"), png(Qt::blue)));
        QTextDocument document;
        document.setHtml("<a href='sub/a%20b.png'>Plate <b>1</b></a> <a href='sub/a%20b.png#x'>2"
                         "</a> <a href='c.txt'>3</a> <a href='../book2.png'>4</a>");
        MRVEPubPackage package;
        QVERIFY(package.addDocument(document, folder.filePath("book/d.html")));
        const QMap<QString, QString> files = unpacked(package.toByteArray());
        QVERIFY(files["OEBPS/page-001.xhtml"].contains(
            "<a href=\"plate-001.xhtml\">Plate <strong>1</strong></a> "
            "<a href=\"plate-001.xhtml\">2</a> 3 4"));
        QVERIFY(files["OEBPS/plate-001.xhtml"].contains(
            "<img src=\"images/a-b-1.png\" alt=\"Plate 1\" />"));
        QVERIFY(files["OEBPS/content.opf"].contains("idref=\"plate-1\" linear=\"no\""));
        QCOMPARE(QStringList(files.keys()).filter("plate-").size(), 1);
        QCOMPARE(package.deadLinks(), QStringList({"c.txt", "../book2.png"}));
    }

    void isValid_data()
    {
        QTest::addColumn<int>("version");
        QTest::newRow("epub-2") << 2;
        QTest::newRow("epub-3") << 3;
    }
    void isValid()
    {
        QFETCH(int, version);
        QTextDocument document;
        fill(&document, novel);
        QTextDocument hard;
        fill(&hard,
             "<body bgcolor='#eeeeee' background='x.png'><h3>Deep first</h3><h1>Then "
             "high</h1><p "
             "dir=rtl align=center>&#1513;</p><ul type=square><li><b>x</b><ol type=i><li>y"
             "</ol><li><blockquote>z</blockquote></ul><hr width='50%'><table border=2 "
             "cellpadding=3 cellspacing=1 width='70%' "
             "bgcolor=yellow><thead><tr><th>h<tbody><tr><td bgcolor=red colspan=2 width=30>"
             "<a name='1 bad'></a><img src='pic.png' width='7.5' height='-20'><img "
             "src='pic.png' "
             "width='50%'></table><pre>a\n<img "
             "src='pic.png'></pre><a href='#1 bad'>x</a><a href='http://'>y</a>");
        MRVEPubMetadata metadata;
        metadata.cover = png(Qt::green);
        metadata.authors = QStringList{"Writer"};
        metadata.language = "en";
        metadata.publisher = "P";
        metadata.description = "D & <d>";
        metadata.rights = "R";
        MRVEPubPackage package(MRVEPubVersion(version), metadata);
        QVERIFY(package.addDocument(document, "novel.html"));
        QVERIFY(package.addDocument(hard, "hard.html"));
        QVERIFY(package.addDocument(QTextDocument(), "empty.txt"));
        QTemporaryDir folder;
        QVERIFY(writeBytes(folder.filePath("plate.png"), png(Qt::red)));
        QTextDocument linking;
        linking.setHtml("<a href='plate.png'>Plate</a>");
        QVERIFY(package.addDocument(linking, folder.filePath("linking.html")));
        QVERIFY(package.write(folder.filePath("book.epub")));
        QCOMPARE(epubErrors(folder.filePath("book.epub")), QString());
    }

    void hostileTexts()
    {
        MRVEPubMetadata metadata;
        metadata.title = QString("a") + QChar(1) + "]]>" + QChar(0xD800) + "b";
        metadata.authors = QStringList{QString(QChar(2)), "<x>"};
        metadata.identifier = QString("urn:x:") + QChar(0xFFFF) + "y";
        MRVEPubPackage package(MRVEPubVersion::EPub3, metadata);
        QTextDocument document("x");
        QVERIFY(package.addDocument(document));
        QTemporaryDir folder;
        QVERIFY(package.write(folder.filePath("book.epub")));
        QCOMPARE(epubErrors(folder.filePath("book.epub")), QString());
    }
};

QTEST_MAIN(tst_EPub)
#include "tst_epub.moc"
