#include "datarows.h"
#include "document/mtextdoc.h"
#include "images.h"
#include "support.h"

#include "manuscript/mrvdocumentnotes.h"
#include "manuscript/mrvmanuscriptreader.h"
#include "manuscript/mrvsourceedit.h"
#include "manuscript/mrvsourcefile.h"

#include <QImage>
#include <QTemporaryDir>

/// Reading manuscripts, listing their notes, and changing their sources.
class tst_Manuscript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(filledImage(12, 12, Qt::darkCyan).save(in("pic one.bmp")));
        QVERIFY(writeBytes(in("garbage.png"), "no picture"));
    }

    void reading_data() { addRows("manuscripts.tsv"); }
    /// "%div*5000" in a text stands for so many elements; a name of "-" for bytes without a file.
    /// What is expected is the format with the text, or the number of the error with a part of its
    /// text.
    void reading()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QString, encoding);
        QFETCH(QString, expected);
        if (text.startsWith('%')) {
            text =
                ('<' + text.mid(1).section('*', 0, 0) + '>').repeated(text.section('*', 1).toInt());
        }
        const QByteArray bytes = encoding == "latin1" ? text.toLatin1() : text.toUtf8();
        QVERIFY(name == "-" || name.startsWith("none") || name.isEmpty()
                || writeBytes(in(name), bytes));
        MRVManuscriptReader reader;
        reader.setFormat(MRVManuscript::formatNamed(cell("format")));
        reader.setEncoding(encoding);
        MRVManuscript read;
        read.path = "before";
        if (name == "-" ? reader.readBytes(bytes, name, m_folder->path(), &read)
                        : reader.read(in(name), &read)) {
            QCOMPARE(MRVManuscript::formatNames().value(read.format - 1) + ": "
                         + read.document->toPlainText(),
                     expected);
            QCOMPARE(read.fileName, name == "-" ? QString() : name);
            QCOMPARE(read.bytes, bytes);
            QCOMPARE(reader.errorString(), QString());
            return;
        }
        QCOMPARE(QString::number(reader.error()), expected.section(' ', 0, 0));
        QVERIFY2(reader.errorString().contains(expected.section(' ', 1)),
                 qPrintable(reader.errorString()));
        QVERIFY(reader.errorString().contains(name));
        QCOMPARE(read.path, QString("before"));
    }

    void pictures()
    {
        const QByteArray page = "<p>a<img src='pic%20one.bmp'>b<img src='pic%20one.bmp'>"
                                "<img src='http://x.example/1.png'><img src='//x.example/1.png'>";
        QVERIFY(writeBytes(in("a.html"), page));
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY(reader.read(in("a.html"), &read));
        QCOMPARE(read.pictures, QStringList{in("pic one.bmp")});
        QCOMPARE(read.remotePictures, 2);
        QTextCursor cursor(read.document.get());
        cursor.setPosition(2);
        const QString id = cursor.charFormat().toImageFormat().name();
        QVERIFY(!read.document->resource(QTextDocument::ImageResource, id).isNull());
    }

    void linksToTheFileItself_data()
    {
        const auto row = [](const char *title, const char *name, const char *text,
                            const char *address) {
            QTest::newRow(title) << QString(name) << QString(text) << QString(address);
        };
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("address");
        row("name", "n2.html", "<a href='n2.html#f2'>x</a>", "#f2");
        row("encoded", "n 2.html", "<a href='./n%202.html#%C3%BC'>x</a>", "#ü");
        row("percent-in-name", "n%202.html", "<a href='n%202.html#f'>x</a>", "#f");
        row("folders", "n2.html", "<a href='a/../n2.html#f'>x</a>", "#f");
        row("file-url", "n2.html", "<a href='file://FOLDER/n2.html#f'>x</a>", "#f");
        row("markdown", "b.md", "[x](b.md#head)", "#head");
        row("whole-page", "n2.html", "<a href='n2.html'>x</a>", "n2.html");
        row("other-folder", "n2.html", "<a href='a/n2.html#f'>x</a>", "a/n2.html#f");
        row("longer-name", "2.html", "<a href='n2.html#f'>x</a>", "n2.html#f");
        row("other-machine", "n2.html", "<a href='//n2.html#f'>x</a>", "//n2.html#f");
        row("base", "n2.html", "<base href='a/'><a href='n2.html#f'>x</a>", "n2.html#f");
    }
    void linksToTheFileItself()
    {
        const QString text = cell("text").replace("FOLDER", m_folder->path());
        QVERIFY(writeBytes(in(cell("name")), text.toUtf8()));
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY(reader.read(in(cell("name")), &read));
        QTextCursor cursor(read.document.get());
        cursor.setPosition(1);
        QTEST(cursor.charFormat().anchorHref(), "address");
        QCOMPARE(read.readingNotes(), QStringList());
    }

    void missingPictures()
    {
        const QByteArray page = "<p>1<img src='gone.png' alt='A'>\n<img src='/dev/zero'>"
                                "<p id='x'><img src='data:image/png;base64,AAAA' alt='B'>"
                                "<img src='gone.png' alt='A'><img src='pic%20one.bmp'>"
                                "<img src='cut.png'>";
        const QByteArray png = MRVGuiUtil::toByteArray(filledImage(40, 40, Qt::red), "PNG");
        QVERIFY(writeBytes(in("cut.png"), png.left(png.size() - 20)));
        QVERIFY(writeBytes(in("a.html"), page));
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY(!reader.read(in("a.html"), &read));
        QCOMPARE(reader.error(), MRVManuscriptReader::PictureError);
        QStringList texts;
        for (const MRVUnreadablePicture &picture : reader.unreadablePictures()) {
            texts << picture.text();
        }
        const QString format = "line %1: the picture %2 cannot be read: it is %3";
        QCOMPARE(texts,
                 (QStringList{"line 1: the picture gone.png cannot be read: it does not exist",
                              format.arg("2", "/dev/zero", "not a regular file"),
                              format.arg("2", QString("data:image/png;base64,AAAA") + QChar(0x2026),
                                         "in no known picture format"),
                              format.arg("2", "cut.png", "damaged")}));
        reader.setMissingPictures(MRVManuscriptReader::Drop);
        QVERIFY(reader.read(in("a.html"), &read));
        QCOMPARE(read.document->toRawText(), QString("1 A \u2029B A\ufffc"));
        QCOMPARE(read.readingNotes(), texts);
        QVERIFY(!read.isWhole());
        QTextCursor cursor(read.document.get());
        cursor.setPosition(5);
        QCOMPARE(cursor.charFormat().anchorNames(), QStringList{"x"});
        reader.setMissingPictures(MRVManuscriptReader::Keep);
        QVERIFY(reader.read(in("a.html"), &read));
        QCOMPARE(MTextDoc::imageFormats(*read.document).at(0).name(), QString("gone.png"));
    }

    void notes_data() { addRows("manuscript-notes.tsv"); }
    void notes()
    {
        const MRVManuscript read = manuscript(cell("name"), cell("text").toUtf8());
        QString found;
        const auto notes = MRVDocumentNotes::findAll(read.document.get());
        for (const MRVDocumentNote &note : notes) {
            found += QString("%1 %2-%3 %4 (%5)\n")
                         .arg(MRVDocumentNotes::kindName(note.kind))
                         .arg(note.range.start())
                         .arg(note.range.end())
                         .arg(note.text, note.target);
        }
        const auto comments = MRVDocumentNotes::sourceComments(read);
        for (const MRVSourceComment &comment : comments) {
            found += QString("line %1 %2\n").arg(comment.line).arg(comment.text);
        }
        QTEST(found, "expected");
    }

    void edits_data() { addRows("source-edits.tsv"); }
    /// Replaces all finds of a regular expression. An expected "!word" is a part of the error.
    void edits()
    {
        QFETCH(QString, name);
        QFETCH(QString, mode);
        QFETCH(QString, expected);
        const MRVManuscript read = manuscript(name, cell("text").toUtf8());
        MRVTextQuery query;
        query.syntax = MRVTextQuery::RegularExpression;
        query.text = cell("what");
        MRVTextReplacement replacement = cell("by");
        if (mode.startsWith("bold")) {
            replacement.format.setFontWeight(QFont::Bold);
        }
        const auto changes = MRVTextReplacer::preview(read.document.get(), query, replacement);
        const QString before = read.document->toRawText();
        QByteArray bytes = "before";
        QString error;
        QVector<MRVSourceMisfit> misfits;
        const bool done = MRVSourceEdit::changedBytes(
            read, changes,
            mode.endsWith("anew") ? MRVSourceEdit::WriteWhole : MRVSourceEdit::KeepMarkup, &bytes,
            &error, mode == "skip" ? &misfits : nullptr);
        QCOMPARE(misfits.isEmpty(), mode != "skip");
        QCOMPARE(done, !expected.startsWith('!'));
        QCOMPARE(read.document->toRawText(), before);
        if (!done) {
            QVERIFY2(error.contains(expected.mid(1)), qPrintable(error));
            QCOMPARE(bytes, QByteArray("before"));
        } else if (mode != "anew") {
            QCOMPARE(QString::fromUtf8(bytes), expected);
        } else {
            QCOMPARE(manuscript(name, bytes).document->toPlainText(), expected);
            QCOMPARE(bytes.count('\n'), bytes.count("\r\n"));
            QVERIFY2(!bytes.contains("font-family"), bytes);
        }
    }

    void encodings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after"); // null: refused
        const auto row = [](const char *title, const char *name, const char *encoding,
                            const QByteArray &before, const QByteArray &after) {
            QTest::newRow(title) << name << encoding << before << after;
        };
        row("mark", "a.txt", "", "\xef\xbb\xbfxb\r\n", "\xef\xbb\xbf\xc5\x93\x62\r\n");
        row("utf-16", "a.txt", "", {"\xff\xfex\0b\0", 6}, {"\xff\xfe\x53\x01\x62\0", 6});
        row("utf-16-be", "a.txt", "", {"\xfe\xff\0x", 4}, {"\xfe\xff\x01\x53", 4});
        row("latin1-lacks", "a.txt", "latin1", "x\xe9", {});
        row("latin1-html", "a.html", "latin1", "<p>x\xe9</p>", "<p>&#339;\xe9</p>");
        row("windows-1252", "a.txt", "windows-1252", "x\x92", "\x9c\x92");
    }
    void encodings()
    {
        QFETCH(QByteArray, before);
        const MRVManuscript read = manuscript(cell("name"), before, cell("encoding"));
        MRVTextQuery query;
        query.text = "x";
        const auto changes = MRVTextReplacer::preview(read.document.get(), query, "œ");
        QByteArray after;
        MRVSourceEdit::changedBytes(read, changes, MRVSourceEdit::KeepMarkup, &after);
        QTEST(after, "after");
    }

    /// There and back again, a manuscript is what it was, byte for byte, and on the way differs in
    /// the word only.
    void onlyTheWordChanges()
    {
        const QByteArray before = bytesOf(MRV_SOURCE_DIR "/examples/manuscript.html");
        const auto replaced = [&](const QByteArray &bytes, const QString &what, const QString &by) {
            const MRVManuscript read = manuscript("a.html", bytes);
            MRVTextQuery query;
            query.text = what;
            query.flags = MRVTextFinder::FindCaseSensitively | MRVTextFinder::FindWholeWords;
            const auto changes = MRVTextReplacer::preview(read.document.get(), query, by);
            QByteArray after;
            MRVSourceEdit::changedBytes(read, changes, MRVSourceEdit::KeepMarkup, &after);
            return after;
        };
        const int body = before.indexOf("<body>");
        QString text = QString::fromUtf8(before.mid(body));
        text.replace(QRegularExpression("\\bAske\\b"), "Σ");
        const QByteArray after = replaced(before, "Aske", "Σ");
        QCOMPARE(after, before.left(body) + text.toUtf8());
        QCOMPARE(replaced(after, "Σ", "Aske"), before);
    }

    void changesOfAnotherText()
    {
        const MRVManuscript read = manuscript("a.txt", "abc");
        const MRVTextChange first{MRVTextRange(0, 2), "ab", "x"};
        const MRVTextChange overlapping{MRVTextRange(1, 3), "bc", "y"};
        const MRVTextChange other{MRVTextRange(2, 3), "d", "y"};
        for (const auto &changes : {QVector<MRVTextChange>{first, overlapping}, {first, other}}) {
            QByteArray bytes;
            QString error;
            QVERIFY(!MRVSourceEdit::changedBytes(read, changes, MRVSourceEdit::KeepMarkup, &bytes,
                                                 &error));
            QVERIFY2(error.contains("overlap"), qPrintable(error));
        }
    }

    void replacesFiles()
    {
        const QString file = in("a.txt");
        QVERIFY(writeBytes(file, "1"));
        const auto secret =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QVERIFY(QFile::setPermissions(file, secret));
        QString backup;
        QVERIFY(MRVSourceFile::replace(file, "1", "2", &backup));
        QCOMPARE(backup, file + '~');
        QVERIFY(MRVSourceFile::replace(file, "2", "3", &backup));
        QCOMPARE(backup, file + "~1");
        QVERIFY(MRVSourceFile::replace(file, "3", "4"));
        QString error;
        QVERIFY(!MRVSourceFile::replace(file, "3", "5", &backup, &error));
        QVERIFY2(error.startsWith(file + ": "), qPrintable(error));
        QCOMPARE(bytesOf(file), QByteArray("4"));
        QCOMPARE(bytesOf(file + '~') + bytesOf(file + "~1"), QByteArray("12"));
        QVERIFY(!QFile::exists(file + "~2"));
        QCOMPARE(QFile::permissions(file + "~1"), secret);
    }

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }
    /// Reads bytes as those of a file of this name, to be changed, with pictures left alone.
    MRVManuscript manuscript(const QString &name, const QByteArray &bytes,
                             const QString &encoding = QString()) const
    {
        MRVManuscript read;
        MRVManuscriptReader reader;
        reader.setFormat(MRVManuscript::formatOfFile(name));
        reader.setEncoding(encoding);
        reader.setLoadsPictures(false);
        reader.setPurpose(MRVManuscriptReader::Editing);
        if (!reader.readBytes(bytes, name, m_folder->path(), &read)) {
            qFatal("%s", qPrintable(reader.errorString()));
        }
        return read;
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

QTEST_MAIN(tst_Manuscript)
#include "tst_manuscript.moc"
