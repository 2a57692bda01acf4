#include "datarows.h"
#include "support.h"

#include "manuscript/mrvmanuscriptreader.h"
#include "manuscript/mrvsourceedit.h"
#include "office/mrvofficeconverter.h"
#include "textformat/mrvtextformat.h"

#include <KZip>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextBlock>

#include <csignal>

/// Documents of word processors, read by the program that is installed, and by faulty ones.
class tst_Office : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(QDir(m_folder->path()).mkdir("tmp"));
        qputenv("TMPDIR", m_folder->filePath("tmp").toUtf8());
    }

    void cleanup()
    {
        qputenv("PATH", m_path);
        qputenv("TMPDIR", m_temporary);
        QCOMPARE(QDir(m_folder->filePath("tmp"))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void programs_data() { addRows("converters.tsv"); }
    void programs()
    {
        QFETCH(QString, script);
        QFETCH(QString, expected);
        const QByteArray source =
            cell("source").isEmpty() ? "{\\rtf1 High water}" : cell("source").toUtf8();
        const QString program = m_folder->filePath("pandoc");
        const QString start = script.startsWith('#') ? "" : "#!/bin/sh\n";
        QVERIFY(script == "-" || writeBytes(program, (start + script).toUtf8()));
        QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", m_folder->path().toUtf8());
        MRVOfficeConverter converter;
        converter.setLimits({1000, 100 << 20, 1 << 20});
        QElapsedTimer timer;
        timer.start();
        QString error;
        const QString page = converter.toHtml(source, MRVFormat::RTF, &error);
        QVERIFY(timer.elapsed() < 20000);
        if (page.isNull()) {
            QVERIFY2(error.contains(expected), qPrintable(error));
            QVERIFY(!error.contains('\n'));
        } else {
            QCOMPARE(page + '|' + converter.warnings().join('|'), expected);
            QCOMPARE(error, QString());
        }
        const int child = bytesOf(m_folder->filePath("child")).toInt();
        QTRY_VERIFY(child == 0 || ::kill(child, 0) != 0);
    }

    void reading_data()
    {
        QTest::addColumn<QString>("format");
        for (const char *format : {"docx", "odt", "rtf"}) {
            QTest::newRow(format) << QString(format);
        }
    }
    /// A file, and its bytes without a name: words, metadata and picture; changes are refused.
    void reading()
    {
        QFETCH(QString, format);
        const QString file = m_folder->filePath("a." + format);
        const QByteArray source = "---\ntitle: The Tides\nauthor: Ann\n---\n# One\n\nx **b**\n\n"
                                  "![p](" MRV_SOURCE_DIR "/docs/images/page.png)";
        const Ran made = run("pandoc", {"-s", "-o", file}, {}, source);
        QVERIFY2(made.exitCode == 0, qPrintable(made.errors));
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY2(reader.read(file, &read), qPrintable(reader.errorString()));
        const QString text = read.document->toPlainText();
        QVERIFY2(text.startsWith("The Tides\nAnn\nOne\nx b\n"), qPrintable(text));
        QCOMPARE(text.count(QChar::ObjectReplacementCharacter), 1);
        QCOMPARE(read.readingNotes(), QStringList());
        MRVManuscript same;
        QVERIFY(reader.readBytes(read.bytes, "-", QString(), &same));
        QCOMPARE(same.format, read.format);
        QCOMPARE(MRVManuscript::formatNames().value(same.format - 1), format);
        QCOMPARE(same.document->toHtml(), read.document->toHtml());
        QByteArray bytes;
        QString error;
        QVERIFY(!MRVSourceEdit::changedBytes(read, {}, MRVSourceEdit::WriteWhole, &bytes, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!reader.readBytes(read.bytes.left(read.bytes.size() / 2), "-", QString(), &same)
                || format == "rtf");
    }

    void losses_data() { addRows("office.tsv"); }
    /// What pandoc leaves out: some of it is given to it in another way, and the rest is told.
    void losses()
    {
        const QString format = cell("format");
        const QString file = m_folder->filePath("a." + format);
        if (format == "rtf") {
            QVERIFY(writeBytes(file, "{\\rtf1 " + cell("source").toUtf8() + '}'));
        } else {
            const QByteArray source = cell("source").toUtf8();
            const bool hasComments = source.contains("w:comment");
            writeArchive(file, format, source, hasComments ? "word/comments.xml" : "",
                         comments(source));
        }
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY2(reader.read(file, &read), qPrintable(reader.errorString()));
        QCOMPARE(textWithLinks(*read.document), cell("text"));
        const QString missing = cell("missing");
        QCOMPARE(read.readingNotes().join('|'),
                 missing.isEmpty() ? missing : "not in the document: " + missing);
        QCOMPARE(read.isWhole(), missing.isEmpty());
    }

    /// What the properties say where the text does not, in an archive of either kind.
    void properties()
    {
        const QByteArray start = "<p xmlns:dc=\"a\" xmlns:meta=\"b\" xmlns:dcterms=\"c\">"
                                 "<dc:title>A &lt; $b$ @author@</dc:title><dc:creator>Ann; Ben"
                                 "</dc:creator><dc:language>de_DE</dc:language><dc:description>"
                                 "\"W\"</dc:description>";
        const QStringList names{"docProps/core.xml", "meta.xml"};
        const QByteArrayList ends{"<dcterms:created>2020-03-04T05:06:07Z</dcterms:created></p>",
                                  "<meta:initial-creator>Cy</meta:initial-creator>"
                                  "<meta:creation-date>2020-03-04T05</meta:creation-date></p>"};
        for (int i = 0; i < 2; ++i) {
            const QString file = m_folder->filePath(i == 0 ? "a.docx" : "a.odt");
            writeArchive(file, i == 0 ? "docx" : "odt", QByteArray(), names.at(i),
                         start + ends.at(i));
            MRVManuscriptReader reader;
            MRVManuscript read;
            QVERIFY2(reader.read(file, &read), qPrintable(reader.errorString()));
            QCOMPARE(read.document->metaInformation(QTextDocument::DocumentTitle),
                     "A < $b$ @author@");
            QCOMPARE(read.authors.join('|'), i == 0 ? "Ann|Ben" : "Cy");
            QCOMPARE(read.language, QString("de-DE"));
            QCOMPARE(read.description, QString("\"W\""));
            QCOMPARE(read.date, QString()); // that of the file is not that of the book
        }
    }

    void refusesWhatIsTooLarge()
    {
        const QString file = m_folder->filePath("a.docx");
        writeArchive(file, "docx", "<!--" + QByteArray(65 << 20, ' ') + "-->");
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY(!reader.read(file, &read));
        QVERIFY2(reader.errorString().contains("larger than 64 MB"),
                 qPrintable(reader.errorString()));
    }

    /// A name of another kind of file does not make text of an archive.
    void refusesOtherNames()
    {
        for (const QString name : {"a.txt", "a.md", "a.html"}) {
            writeArchive(m_folder->filePath(name), "odt", "<text:p>a</text:p>");
            MRVManuscriptReader reader;
            MRVManuscript read;
            QVERIFY(!reader.read(m_folder->filePath(name), &read));
            QCOMPARE(reader.error(), MRVManuscriptReader::UnknownFormat);
            QVERIFY2(reader.errorString().contains("ODT"), qPrintable(reader.errorString()));
        }
    }

private:
    /// Those that a text of a DOCX names, each with its number in what it says.
    static QByteArray comments(const QByteArray &content)
    {
        QByteArray xml;
        for (int i = 0; content.contains("w:id=\"" + QByteArray::number(i)); ++i) {
            xml += QString("<w:comment w:id=\"%1\" w:author=\"Ann %1\" w:date=\"2024-05-0%1\"><w:p>"
                           "<w:r><w:t>Why %1?</w:t></w:r></w:p></w:comment>")
                       .arg(i)
                       .toUtf8();
        }
        return "<w:comments>" + xml + "</w:comments>";
    }

    /// What leads to a place of the document stands after its address in brackets, and a comment
    /// after the first stretch of what it is about.
    static QString textWithLinks(const QTextDocument &document)
    {
        QStringList paragraphs;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            QString paragraph;
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                const QString address = format.anchorHref();
                paragraph += address.startsWith('#') ? '[' + address + ']' : QString();
                paragraph += it.fragment().text();
                const QStringList by = format.property(MRVTextFormat::CommentData2).toStringList();
                const QString comment = format.stringProperty(MRVTextFormat::CommentData0);
                paragraph += comment.isEmpty()
                    ? QString()
                    : QString("{%1, %2}").arg(by.join(' ').trimmed(), comment);
            }
            paragraphs << paragraph;
        }
        return paragraphs.join('\n');
    }

    /// With the text as the last file, after what is as large.
    static void writeArchive(const QString &name, const QString &format, const QByteArray &content,
                             const QString &otherFile = QString(),
                             const QByteArray &other = QByteArray())
    {
        KZip zip(name);
        QVERIFY(zip.open(QIODevice::WriteOnly));
        zip.setCompression(KZip::NoCompression);
        if (format == "odt") {
            zip.writeFile("mimetype", "application/vnd.oasis.opendocument.text");
            zip.writeFile("styles.xml",
                          "<office:document-styles xmlns:office=\"urn:oasis:names:tc:opendocument:"
                          "xmlns:office:1.0\"><office:font-face-decls/><office:styles/>"
                          "<office:automatic-styles/><office:master-styles/>"
                          "</office:document-styles>");
            if (content.contains("draw:object")) {
                zip.writeFile("Formula/content.xml",
                              "<math xmlns=\"http://www.w3.org/1998/Math/"
                              "MathML\"><mi>x</mi><mn>7</mn></math>");
            }
            zip.writeFile("content.xml",
                          "<office:document-content xmlns:office=\"urn:oasis:names:tc:"
                          "opendocument:xmlns:office:1.0\" xmlns:text=\"urn:oasis:names:tc:"
                          "opendocument:xmlns:text:1.0\" "
                          "xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\" "
                          "xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                          "xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\" "
                          "xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><"
                          "office:font-face-decls/><office:automatic-styles/>"
                          "<office:body><office:text>"
                              + content + "</office:text></office:body></office:document-content>");
        } else {
            zip.writeFile("[Content_Types].xml", "<Types/>");
            zip.writeFile("_rels/.rels",
                          "<Relationships><Relationship Target=\"word/document.xml\" "
                          "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                          "relationships/officeDocument\"/></Relationships>");
            zip.writeFile("word/document.xml",
                          "<w:document xmlns:w=\"http://schemas.openxmlformats.org/"
                          "wordprocessingml/2006/main\"><w:body><w:p>"
                              + content + "</w:p></w:body></w:document>");
        }
        QVERIFY(otherFile.isEmpty() || zip.writeFile(otherFile, other));
        QVERIFY(zip.close());
    }

    QScopedPointer<QTemporaryDir> m_folder;
    const QByteArray m_path = qgetenv("PATH");
    const QByteArray m_temporary = qgetenv("TMPDIR");
};

QTEST_MAIN(tst_Office)
#include "tst_office.moc"
