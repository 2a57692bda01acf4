#include "archive/mrvdocumentarchive.h"
#include "archive/mrvrecovery.h"
#include "fulldocument.h"
#include "gui/mrvguiutil.h"
#include "input/mrvguardeddocument.h"
#include "manuscript/mrvmanuscriptreader.h"
#include "support.h"
#include "zipfiles.h"

#include <KZip>
#include <QBuffer>
#include <QPainter>
#include <QRandomGenerator>
#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QByteArray *find(Files *files, const QString &path)
{
    const auto found = std::find_if(files->begin(), files->end(),
                                    [&](const auto &file) { return file.first == path; });
    return found == files->end() ? nullptr : &found->second;
}

void remove(Files *files, const QString &path)
{
    const auto isIt = [&](const auto &file) { return file.first == path; };
    files->erase(std::remove_if(files->begin(), files->end(), isIt), files->end());
}

QByteArray saved(const QTextDocument &document, MRVDocumentArchive archive = {})
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QString error;
    if (!archive.write(document, &buffer, &error)) {
        qWarning() << error;
    }
    return buffer.data();
}

QByteArray pngOf(const QColor &color)
{
    return MRVGuiUtil::toByteArray(filledImage(20, 10, color), "PNG");
}

/// Has Qt lay out and draw all of a document, as a view does.
void show(QTextDocument *document)
{
    QImage paper(800, 1200, QImage::Format_RGB32);
    QPainter painter(&paper);
    document->setTextWidth(700);
    document->drawContents(&painter);
}

QVariant randomValue(QRandomGenerator *random)
{
    const int number = int(random->bounded(1000));
    const QVariant values[] = {
        number,
        number / 7.0,
        number % 2 == 0,
        QString("text %1").arg(number),
        QByteArray(number % 50, 'x'),
        QColor::fromRgb(number * 9973u),
        QBrush(QColor::fromRgb(number * 7919u), Qt::DiagCrossPattern),
        QPen(Qt::red, number % 9),
        QVariant::fromValue(QTextLength(QTextLength::PercentageLength, number % 100)),
        QVariantList{number, "item", 1.5},
        QVariantMap{{"key", number}},
        QStringList{"a", QString::number(number)},
        QDateTime(QDate(2020, 1, 1), QTime(1, 2, 3), Qt::UTC).addDays(number),
        QBrush(filledImage(3, 2, QColor::fromRgb(number * 31u))),
        QUrl(QString("file:///tmp/%1 ä.png").arg(number)),
        QSizeF(number, 2),
    };
    return values[random->bounded(quint32(std::size(values)))];
}

void setRandomProperties(QTextFormat *format, QRandomGenerator *random)
{
    for (int i = int(random->bounded(6)); i > 0; --i) {
        format->setProperty(QTextFormat::UserProperty + int(random->bounded(300)),
                            randomValue(random));
    }
}

QString randomText(QRandomGenerator *random)
{
    static const QString characters = QString::fromUtf8("abc äß \t…漢字אב😀\u2028\u00a0\u200f");
    QString text;
    for (int i = int(random->bounded(30)); i > 0; --i) {
        text += characters.at(int(random->bounded(quint32(characters.size()))));
    }
    return text;
}

QTextCharFormat randomChars(QRandomGenerator *random)
{
    QTextCharFormat format;
    setRandomProperties(&format, random);
    format.setFontWeight(random->bounded(2) ? QFont::Bold : QFont::Normal);
    format.setForeground(QColor::fromRgb(random->generate()));
    return format;
}

/// Text, lists, tables and frames in each other, with properties of all kinds.
void addRandomText(QTextCursor cursor, QRandomGenerator *random, int depth)
{
    for (int i = 1 + int(random->bounded(8)); i > 0; --i) {
        QTextBlockFormat block;
        setRandomProperties(&block, random);
        block.setHeadingLevel(int(random->bounded(7)));
        block.setTopMargin(random->bounded(20));
        cursor.insertBlock(block, randomChars(random));
        cursor.block().setUserState(int(random->bounded(3)) - 1);
        switch (random->bounded(depth > 2 ? 2 : 6)) {
        case 0: {
            QTextListFormat list;
            setRandomProperties(&list, random);
            list.setStyle(QTextListFormat::ListUpperRoman);
            cursor.createList(list);
            cursor.insertText(randomText(random), randomChars(random));
            cursor.insertBlock();
            break;
        }
        case 2: {
            QTextTableFormat table;
            setRandomProperties(&table, random);
            QTextTable *inserted = cursor.insertTable(3, 4, table);
            inserted->mergeCells(0, 1, 2, 2);
            QTextTableCell cell = inserted->cellAt(2, 3);
            QTextCharFormat cellFormat = cell.format();
            setRandomProperties(&cellFormat, random);
            cell.setFormat(cellFormat);
            addRandomText(inserted->cellAt(0, 1).firstCursorPosition(), random, depth + 1);
            addRandomText(cell.firstCursorPosition(), random, depth + 1);
            cursor = inserted->lastCursorPosition();
            cursor.movePosition(QTextCursor::NextBlock);
            break;
        }
        case 3: {
            QTextFrameFormat frame;
            setRandomProperties(&frame, random);
            QTextFrame *inserted = cursor.insertFrame(frame);
            addRandomText(inserted->firstCursorPosition(), random, depth + 1);
            cursor = inserted->lastCursorPosition();
            cursor.movePosition(QTextCursor::NextBlock);
            break;
        }
        default:
            cursor.insertText(randomText(random), randomChars(random));
        }
    }
}

QVector<int> statesOf(const QTextDocument &document)
{
    QVector<int> states;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        states.append(block.userState());
    }
    return states;
}

} // namespace

/** Documents in files that lose nothing. */
class tst_Archive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeDocument()
    {
        QTextDocument document;
        fillDocument(&document);
        document.lastBlock().setUserState(7);
        const QTemporaryDir folder;
        const QString path = folder.filePath("full.mrvdoc");
        MRVDocumentArchive archive;
        QString error;
        QVERIFY2(archive.write(document, path, &error), qPrintable(error));
        QVERIFY(MRVDocumentArchive::isArchive(bytesOf(path)));

        MRVGuardedDocument read;
        read.setPlainText("before");
        QVERIFY2(archive.read(path, &read, &error), qPrintable(error));
        QCOMPARE(fullDump(read), fullDump(document));
        QCOMPARE(statesOf(read), statesOf(document));
        QCOMPARE(archive.notes(), QStringList());
        QVERIFY(!read.isModified());
        QVERIFY(!read.isUndoAvailable());
        QVERIFY(read.isUndoRedoEnabled());
        for (const QString name : {"picture-1", "picture-2"}) {
            QCOMPARE(MRVGuardedDocument::picture(read, name), filledImage(4, 3, Qt::red));
        }
        // The same bytes, over the file that the pictures still come from.
        const QByteArray before = bytesOf(path);
        show(&read);
        QVERIFY(archive.write(read, path));
        QCOMPARE(bytesOf(path), before);
        QVERIFY(!MRVGuardedDocument::picture(read, QUrl("picture-1")).isNull());
    }

    void randomDocuments()
    {
        for (quint32 seed = 1; seed <= 60; ++seed) {
            QRandomGenerator random(seed);
            QTextDocument document;
            addRandomText(QTextCursor(&document), &random, 0);
            MRVGuardedDocument read;
            const QByteArray bytes = saved(document);
            QVERIFY(MRVDocumentArchive().read(bytes, &read));
            QCOMPARE(fullDump(read), fullDump(document));
            QCOMPARE(statesOf(read), statesOf(document));
            QCOMPARE(saved(read), bytes);
        }
    }

    void emptyDocument()
    {
        const QTextDocument document;
        MRVGuardedDocument read;
        read.setPlainText("before");
        QVERIFY(MRVDocumentArchive().read(saved(document), &read));
        QVERIFY(read.isEmpty());
    }

    // What no layout can have is left out; else it would be refused when it is read.
    void impossibleLayout()
    {
        QTextDocument document("text");
        QTextCursor cursor(&document);
        cursor.setBlockFormat(blocks("BlockTopMargin=1e9:double BlockAlignment=2:int"));
        QTextFrameFormat root = document.rootFrame()->frameFormat();
        root.setLeftMargin(1e9);
        document.rootFrame()->setFrameFormat(root);
        MRVTextFormat::setDefaultCharFormat(document, chars("FontPointSize=1e9:double"));
        document.setDefaultFont(QFont("DejaVu Sans", 12));
        MRVGuardedDocument read;
        QVERIFY(MRVDocumentArchive().read(saved(document), &read));
        QCOMPARE(read.toPlainText(), QString("text"));
        QCOMPARE(propertyDump(read.begin().blockFormat()),
                 propertyDump(blocks("BlockAlignment=2:int")));
        QVERIFY(!read.rootFrame()->frameFormat().hasProperty(QTextFormat::FrameLeftMargin));
        QCOMPARE(read.defaultFont().pointSizeF(), 12.0);
    }

    void settings()
    {
        QTextDocument document("text");
        QTextCharFormat look = chars("FontPointSize=13.5:double 0x100003=true:bool");
        MRVTextFormat::setDefaultCharFormat(document, look);
        QFont font("DejaVu Serif", 14, QFont::DemiBold, true);
        font.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
        document.setDefaultFont(font);
        document.setPageSize(QSizeF(595, 842));
        document.setDocumentMargin(17);
        QTextFrameFormat frame = document.rootFrame()->frameFormat();
        frame.setLeftMargin(31);
        frame.setBackground(QColor(1, 2, 3));
        document.rootFrame()->setFrameFormat(frame);
        document.setIndentWidth(33);
        document.setUseDesignMetrics(true);
        document.setDefaultCursorMoveStyle(Qt::VisualMoveStyle);
        document.setBaseUrl(QUrl("file:///books/"));
        document.setMetaInformation(QTextDocument::DocumentTitle, "Tide");
        document.setMetaInformation(QTextDocument::DocumentUrl, "file:///books/tide.html");
        QTextOption option = document.defaultTextOption();
        option.setTextDirection(Qt::RightToLeft);
        option.setAlignment(Qt::AlignJustify);
        option.setWrapMode(QTextOption::WrapAnywhere);
        option.setFlags(QTextOption::ShowTabsAndSpaces);
        option.setTabStopDistance(55);
        option.setTabs({{100, QTextOption::DelimiterTab, '.'}, {200, QTextOption::RightTab}});
        document.setDefaultTextOption(option);

        MRVGuardedDocument read;
        QVERIFY(MRVDocumentArchive().read(saved(document), &read));
        QCOMPARE(MRVTextFormat::defaultCharFormat(read), look);
        QCOMPARE(read.defaultFont(), font);
        QCOMPARE(read.pageSize(), document.pageSize());
        QCOMPARE(read.documentMargin(), 17.0);
        QCOMPARE(propertyDump(read.rootFrame()->frameFormat()), propertyDump(frame));
        QCOMPARE(read.indentWidth(), 33.0);
        QVERIFY(read.useDesignMetrics());
        QCOMPARE(read.defaultCursorMoveStyle(), Qt::VisualMoveStyle);
        QCOMPARE(read.baseUrl(), document.baseUrl());
        QCOMPARE(read.metaInformation(QTextDocument::DocumentTitle), QString("Tide"));
        QCOMPARE(read.metaInformation(QTextDocument::DocumentUrl),
                 QString("file:///books/tide.html"));
        const QTextOption found = read.defaultTextOption();
        QCOMPARE(found.textDirection(), Qt::RightToLeft);
        QCOMPARE(found.alignment(), Qt::AlignJustify);
        QCOMPARE(found.wrapMode(), QTextOption::WrapAnywhere);
        QCOMPARE(found.flags(), QTextOption::Flags(QTextOption::ShowTabsAndSpaces));
        QCOMPARE(found.tabStopDistance(), 55.0);
        QCOMPARE(found.tabs(), option.tabs());
    }

    void metadataAndProperties()
    {
        const QTextDocument document("text");
        MRVDocumentArchive archive;
        archive.setMetadata({{"author", {"Ann", "Ben"}, 3}, {"empty", {}, 0}});
        archive.setModified(QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6), Qt::UTC));
        QVERIFY(archive.setProperty("caret", "12"));
        QVERIFY(archive.setProperty("notes.json", ""));
        for (const QString name : {"", "a/b", "../a", ".a", "ä", "a\n"}) {
            QVERIFY2(!archive.setProperty(name, "1"), qPrintable(name));
        }
        const QByteArray bytes = saved(document, archive);
        MRVDocumentArchive found;
        MRVGuardedDocument read;
        QVERIFY(found.read(bytes, &read));
        QCOMPARE(found.propertyNames(), QStringList({"caret", "notes.json"}));
        QCOMPARE(found.property("caret"), QByteArray("12"));
        QVERIFY(!found.property("notes.json").isNull());
        QCOMPARE(found.metadata().size(), 2);
        QCOMPARE(found.metadata().at(0).values, QStringList({"Ann", "Ben"}));
        QCOMPARE(found.metadata().at(0).line, 3);
        found.setModified(archive.modified());
        QCOMPARE(saved(read, found), bytes);
        QVERIFY(found.setProperty("caret", QByteArray()));
        QCOMPARE(found.propertyNames(), QStringList("notes.json"));
    }

    // All that can be kept together can be read, and no more.
    void propertyBytes()
    {
        constexpr int Most = 64 << 20;
        const QTextDocument document;
        MRVDocumentArchive archive;
        QVERIFY(!archive.setProperty("a", QByteArray(Most + 1, 'a')));
        QVERIFY(archive.setProperty("a", QByteArray(Most, 'a')));
        QVERIFY(!archive.setProperty("b", "1"));
        QVERIFY(archive.setProperty("a", QByteArray(Most - 1, 'a')));
        QVERIFY(archive.setProperty("b", "1"));
        Files files = filesOf(saved(document));
        files.push_back({"properties/a", archive.property("a")});
        files.push_back({"properties/b", "1"});
        MRVGuardedDocument read;
        QVERIFY(archive.read(zipOf(files, MRVZipEntry::Deflated), &read));
        QCOMPARE(archive.notes(), QStringList());
        find(&files, "properties/b")->append('2');
        QVERIFY(archive.read(zipOf(files, MRVZipEntry::Deflated), &read));
        QCOMPARE(archive.propertyNames(), QStringList("a"));
        QCOMPARE(archive.notes(), QStringList("what the program keeps as b is damaged"));
    }

    // Files, bytes, pixels and raw data keep their bytes, also when they have been shown.
    void pictures()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("tide & ebb.png");
        QVERIFY(writeBytes(file, pngOf(Qt::green)));
        const QByteArray damaged("no picture, and yet what was inserted");
        MRVGuardedDocument document;
        document.addResource(QTextDocument::ImageResource, QUrl("bytes"), pngOf(Qt::red));
        document.addResource(QTextDocument::ImageResource, QUrl("again"), pngOf(Qt::red));
        document.addResource(QTextDocument::ImageResource, QUrl("damaged"), damaged);
        QTextCursor cursor(&document);
        const QString url = QUrl::fromLocalFile(file).toString();
        for (const QString &name : {url, QString("bytes"), QString("again"), QString("damaged"),
                                    QString("nowhere.png"), QString("http://127.0.0.1/a.png")}) {
            QTextImageFormat image;
            image.setName(name);
            image.setProperty(MRVTextFormat::ImageLinkProperty, file);
            if (name == "bytes") {
                image.setProperty(MRVTextFormat::ImageRawDataProperty, pngOf(Qt::blue));
            }
            cursor.insertImage(image);
        }
        MRVDocumentArchive archive;
        const QString path = folder.filePath("a.mrvdoc");
        QVERIFY(archive.write(document, path));
        QCOMPARE(archive.missingPictures(), QStringList("nowhere.png"));
        QCOMPARE(archive.notes().size(), 1);

        Files files = filesOf(bytesOf(path));
        QStringList names;
        for (const auto &entry : files) {
            names << entry.first;
        }
        QCOMPARE(names.mid(3),
                 QStringList({"pictures/1-tide___ebb.png", "pictures/2-bytes.png",
                              "pictures/3-bytes.png", "pictures/4-damaged"}));
        QCOMPARE(*find(&files, "pictures/2-bytes.png"), pngOf(Qt::red));
        QCOMPARE(*find(&files, "pictures/4-damaged"), damaged);

        QVERIFY(QFile::remove(file));
        MRVGuardedDocument read;
        QVERIFY(archive.read(path, &read));
        QCOMPARE(archive.missingPictures(), QStringList("nowhere.png"));
        QCOMPARE(fullDump(read), fullDump(document));
        show(&read);
        for (const QString &name : {url, QString("bytes"), QString("again")}) {
            QVERIFY(!MRVGuardedDocument::picture(read, QUrl(name)).isNull());
        }
        const QByteArray before = bytesOf(path);
        QCOMPARE(saved(read), before);
    }

    void rawData()
    {
        const QString name = "http://127.0.0.1/a"; // only the raw data is part of the file
        const QByteArray raw(100000, 'r');
        QTextDocument document;
        for (int width = 1; width <= 2; ++width) {
            QTextImageFormat image;
            image.setName(name);
            image.setWidth(width);
            image.setProperty(MRVTextFormat::ImageRawDataProperty, raw);
            QTextCursor(&document).insertImage(image);
        }
        Files files = filesOf(saved(document));
        QCOMPARE(files.size(), std::size_t(4));
        MRVGuardedDocument read;
        MRVDocumentArchive archive;
        QVERIFY(archive.read(zipOf(files), &read));
        QVector<QByteArray> found;
        for (const QTextFormat &format : read.allFormats()) {
            if (format.hasProperty(MRVTextFormat::ImageRawDataProperty)) {
                found << format.property(MRVTextFormat::ImageRawDataProperty).toByteArray();
            }
        }
        QCOMPARE(found, QVector<QByteArray>(2, raw));
        QCOMPARE(found.at(0).constData(), found.at(1).constData()); // in memory once

        // Both of one format.
        QByteArray &stored = *find(&files, "document");
        QByteArray nameBytes;
        QDataStream stream(&nameBytes, QIODevice::WriteOnly);
        stream << name;
        const int second = stored.lastIndexOf(nameBytes);
        const int first = stored.lastIndexOf(nameBytes, second - 1);
        stored.replace(second, nameBytes.size() + 4, stored.mid(first, nameBytes.size() + 4));
        QVERIFY(archive.read(zipOf(files), &read));
        QVERIFY(archive.isTextOnly());
    }

    // A picture that was there at reading is not left out where its file can be read no more.
    void lostPictures()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("a.mrvdoc");
        QTextDocument document;
        document.addResource(QTextDocument::ImageResource, QUrl("tide"), QByteArray(100000, 'a'));
        QTextCursor(&document).insertImage("tide");
        MRVDocumentArchive archive;
        QVERIFY(archive.write(document, path));
        MRVGuardedDocument read;
        QVERIFY(archive.read(path, &read));
        QVERIFY(QFile::resize(path, 10)); // as a medium that is gone
        const QByteArray before = bytesOf(path);
        MRVError error;
        QVERIFY(!archive.write(read, path, &error));
        QCOMPARE(error.kind, MRVErrorKind::Changed);
        QVERIFY2(error.text.contains("the picture tide has changed"), qPrintable(error.text));
        QCOMPARE(bytesOf(path), before);
    }

    // What an outside program finds in the file.
    void forOthers()
    {
        QTextDocument document;
        fillDocument(&document);
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        cursor.insertHtml("<p><a href=\"https://example.org/ä\">a link</a></p>");
        QByteArray bytes = saved(document);
        QBuffer buffer(&bytes);
        KZip zip(&buffer);
        QVERIFY(zip.open(QIODevice::ReadOnly));
        QCOMPARE(zip.directory()->file("mimetype")->data(),
                 MRVDocumentArchive::mimeType().toLatin1());
        const QString text = QString::fromUtf8(zip.directory()->file("text.txt")->data());
        QVERIFY(text.startsWith("Heading\nitem with comment\n"));
        for (const QString word : {"A note", "merged", "framed", "last", "a link", "Comment 1"}) {
            QVERIFY2(text.contains(word), qPrintable(word));
        }
        const QByteArray stored = zip.directory()->file("document")->data();
        const QString link = "https://example.org/ä";
        QByteArray wide;
        for (const QChar character : link) {
            wide += char(character.row());
            wide += char(character.cell());
        }
        QVERIFY(stored.contains(wide));
        QCOMPARE(zip.directory()->file("pictures/1-picture-1.png")->data(),
                 MRVGuiUtil::toByteArray(filledImage(4, 3, Qt::red), "PNG"));
    }

    // Cut anywhere or with any byte changed, it is refused, read whole, or said not to be whole.
    void damage()
    {
        QTextDocument document;
        fillDocument(&document);
        const QByteArray bytes = saved(document);
        const QStringList whole = fullDump(document);
        const QString words = document.toPlainText();
        int wholes = 0;
        int texts = 0;
        const auto tryOut = [&](const QByteArray &changed) {
            MRVGuardedDocument read;
            read.setPlainText("before");
            MRVDocumentArchive archive;
            QString error;
            if (!archive.read(changed, &read, &error)) {
                QVERIFY(!error.isEmpty());
                QCOMPARE(read.toPlainText(), QString("before"));
            } else if (archive.isTextOnly()) {
                ++texts;
                QVERIFY(read.toPlainText().startsWith("Heading\nitem with comment\n"));
                QVERIFY(read.toPlainText().contains("last"));
            } else {
                ++wholes;
                QCOMPARE(read.toPlainText(), words);
                QCOMPARE(fullDump(read), whole);
                QVERIFY(!archive.notes().isEmpty()
                        || !MRVGuardedDocument::picture(read, QUrl("picture-2")).isNull());
            }
        };
        for (int i = 0; i < bytes.size(); ++i) {
            tryOut(bytes.left(i));
        }
        const int wordsEnd = bytes.indexOf("PK\3\4", bytes.indexOf("text.txt"));
        const int documentEnd = bytes.indexOf("PK\3\4", wordsEnd + 1);
        QCOMPARE(texts, documentEnd - wordsEnd);
        QCOMPARE(wholes, bytes.size() - documentEnd);
        texts = 0;
        wholes = 0;
        for (int i = 0; i < bytes.size(); ++i) {
            QByteArray changed = bytes;
            changed[i] = char(changed.at(i) ^ (i % 2 ? 0x81 : 0x03));
            tryOut(changed);
        }
        QVERIFY(wholes > 50);
        QVERIFY(texts > 500);
        // The directory, and all that is after the words.
        const int directory = bytes.indexOf("PK\1\2");
        for (const int begin : {directory, wordsEnd}) {
            const QTemporaryDir folder;
            const QString path = folder.filePath("a.mrvdoc");
            QVERIFY(writeBytes(path, bytes.left(begin) + QByteArray(bytes.size() - begin, '\0')));
            MRVGuardedDocument read;
            MRVDocumentArchive archive;
            QString error;
            QVERIFY2(archive.read(path, &read, &error), qPrintable(error));
            QCOMPARE(archive.isTextOnly(), begin == wordsEnd);
            QCOMPARE(archive.notes().size(), begin == wordsEnd ? 2 : 1);
            QVERIFY(archive.notes().last().contains("may be missing"));
            QCOMPARE(read.toPlainText().left(7), QString("Heading"));
            const QStringList notes = archive.notes();
            QVERIFY(!archive.read(bytes.left(20), &read));
            QCOMPARE(archive.notes(), notes); // of the last one that was read
        }
    }

    void missingParts_data()
    {
        QTest::addColumn<QString>("part");
        QTest::addColumn<QByteArray>("bytes"); // null: it is missing
        QTest::addColumn<QString>("outcome"); // the error, or the first note, or nothing
        const QByteArray newer = QByteArray::fromHex("4d525641000000020000");
        QTest::newRow("none") << "" << QByteArray() << "";
        QTest::newRow("type") << "mimetype" << QByteArray() << "";
        QTest::newRow("text") << "text.txt" << QByteArray() << "";
        QTest::newRow("document") << "document" << QByteArray() << "its words were read";
        QTest::newRow("empty-document") << "document" << QByteArray("") << "its words were read";
        QTest::newRow("newer-document") << "document" << newer << "by a newer version";
        QTest::newRow("picture") << "pictures/1-picture-1.png" << QByteArray()
                                 << "the picture picture-1 is missing";
        QTest::newRow("type-and-document")
            << "mimetype document" << QByteArray() << "it holds no document";
        QTest::newRow("text-and-document")
            << "text.txt document" << QByteArray() << "it is damaged";
    }
    void missingParts()
    {
        QFETCH(QString, part);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, outcome);
        QTextDocument document;
        fillDocument(&document);
        Files files = filesOf(saved(document));
        for (const QString &name : part.split(' ', Qt::SkipEmptyParts)) {
            QVERIFY(find(&files, name));
            if (bytes.isNull()) {
                remove(&files, name);
            } else {
                *find(&files, name) = bytes;
            }
        }
        MRVGuardedDocument read;
        MRVDocumentArchive archive;
        QString error;
        const QString found =
            archive.read(zipOf(files), &read, &error) ? archive.notes().value(0) : error;
        QVERIFY2(found.contains(outcome), qPrintable(found));
        QCOMPARE(found.isEmpty(), outcome.isEmpty());
    }

    void asManuscript()
    {
        const QTemporaryDir folder;
        QTextDocument document;
        fillDocument(&document);
        MRVDocumentArchive archive;
        archive.setMetadata({{"author", {"Ann", "Ben"}, 0}, {"language", {"en-gb"}, 0}});
        const QString path = folder.filePath("novel.mrvdoc");
        QVERIFY(archive.write(document, path));
        MRVManuscriptReader reader;
        MRVManuscript manuscript;
        QVERIFY2(reader.read(path, &manuscript), qPrintable(reader.errorString()));
        QCOMPARE(fullDump(*manuscript.document), fullDump(document));
        QCOMPARE(manuscript.authors, QStringList({"Ann", "Ben"}));
        QCOMPARE(manuscript.language, QString("en-gb"));
        QVERIFY(manuscript.isWhole());
        QVERIFY(manuscript.sourceText().isEmpty());

        Files files = filesOf(bytesOf(path));
        remove(&files, "pictures/1-picture-1.png");
        QVERIFY(!reader.readBytes(zipOf(files), "stdin", QString(), &manuscript));
        QCOMPARE(reader.error(), MRVManuscriptReader::PictureError);
        QCOMPARE(reader.errorKind(), MRVErrorKind::Damaged);
        reader.setMissingPictures(MRVManuscriptReader::Keep);
        *find(&files, "document") = "damaged";
        QVERIFY(reader.readBytes(zipOf(files), "stdin", QString(), &manuscript));
        QVERIFY(!manuscript.isWhole());
        QVERIFY(manuscript.document->toPlainText().startsWith("Heading\n"));
    }

    void files()
    {
        const QTemporaryDir folder;
        const QTextDocument document("text");
        MRVDocumentArchive archive;
        MRVGuardedDocument read;
        QString error;
        QVERIFY(!archive.read(folder.filePath("none.mrvdoc"), &read, &error));
        QVERIFY2(error.endsWith("none.mrvdoc: it does not exist"), qPrintable(error));
        QVERIFY(!archive.read(folder.path(), &read, &error));
        QVERIFY2(error.endsWith(": it is not a regular file"), qPrintable(error));
        QVERIFY(!archive.read(folder.filePath("none.mrvdoc"), nullptr, &error));
        MRVError reason;
        QVERIFY(!archive.read(saved(document), nullptr, &reason));
        QCOMPARE(reason.kind, MRVErrorKind::NotFound);
        QVERIFY(!reason.text.isEmpty());
        QVERIFY(!archive.write(document, folder.filePath("no/folder.mrvdoc"), &error));
        QVERIFY2(error.contains("no/folder"), qPrintable(error));
    }

    // What a program leaves behind that is killed, and what it does not while it runs.
    void recovery()
    {
        QTemporaryDir home;
        const QString folder = home.filePath("copies");
        QVERIFY(MRVRecovery::leftBehind(folder).isEmpty());
        const pid_t child = fork();
        if (child == 0) {
            auto *document = new QTextDocument;
            auto *copies = new MRVRecovery(folder);
            QDir::setCurrent(home.path());
            copies->follow(document, "b\u00fcch.html");
            QTextCursor(document).insertText("Call me Ishmael.");
            copies->keep();
            raise(SIGKILL);
        }
        QVERIFY(child > 0);
        waitpid(child, nullptr, 0);

        QTextDocument document;
        MRVRecovery own(folder);
        own.follow(&document, QString());
        QTextCursor(&document).insertText("Mine");
        QVERIFY(own.keep());
        const QVector<MRVRecoveredFile> left = MRVRecovery::leftBehind(folder);
        QCOMPARE(left.size(), 1);
        QCOMPARE(left.first().path, home.filePath("b\u00fcch.html"));
        MRVGuardedDocument read;
        QVERIFY(MRVDocumentArchive().read(left.first().copy, &read));
        QCOMPARE(read.toPlainText(), QString("Call me Ishmael."));
        MRVRecovery::discard(left.first());
        QVERIFY(MRVRecovery::leftBehind(folder).isEmpty());
    }
    // A picture that takes long to read keeps nobody waiting, and one that is lost costs no words.
    void recoveryInAThread()
    {
        QTemporaryDir home;
        const auto copies = [&home] { return QDir(home.path()).entryInfoList({"*.mrvdoc"}); };
        QSemaphore reads;
        QSemaphore mayGoOn;
        MRVGuardedDocument document;
        document.setPictureLoader({[](const QUrl &) { return true; },
                                   [&](const QUrl &) {
                                       reads.release();
                                       mayGoOn.tryAcquire(1, 5000);
                                       return QByteArray();
                                   }});
        {
            MRVRecovery recovery(home.path());
            recovery.setInterval(0);
            recovery.follow(&document, QString());
            QTextCursor cursor(&document);
            cursor.insertImage("tide");
            cursor.insertText("one");
            QTRY_COMPARE(reads.available(), 1);
            cursor.insertText("two");
            QCoreApplication::processEvents(); // due, and yet one at a time
            QCOMPARE(reads.available(), 1);
            mayGoOn.release();
            QTRY_COMPARE(reads.available(), 2); // for the second one
            QCOMPARE(copies().size(), 1);
            MRVGuardedDocument read;
            MRVDocumentArchive archive;
            QVERIFY(archive.read(copies().first().filePath(), &read));
            QCOMPARE(read.toPlainText().mid(1), QString("one"));
            QCOMPARE(archive.missingPictures(), QStringList("tide"));
            mayGoOn.release();
            QVERIFY(recovery.keep()); // waits
            QVERIFY(archive.read(copies().first().filePath(), &read));
            QCOMPARE(read.toPlainText().mid(1), QString("onetwo"));

            cursor.insertText("three");
            QTRY_COMPARE(reads.available(), 3);
            mayGoOn.release();
            recovery.saved("one.html");
            QCOMPARE(copies().size(), 0);
            cursor.insertText("four");
            QTRY_COMPARE(reads.available(), 4);
            mayGoOn.release();
        }
        QVERIFY(QDir(home.path()).isEmpty(QDir::Files));
    }
    // Two pictures that another program writes all the time.
    void recoveryOfChangingPictures()
    {
        QTemporaryDir home;
        MRVGuardedDocument document;
        std::atomic<int> reads{0};
        document.setPictureLoader(
            {[](const QUrl &) { return true; },
             [&](const QUrl &) { return QByteArray::number(1000 + ++reads); }});
        QTextCursor cursor(&document);
        cursor.insertImage("tide");
        cursor.insertText("words");
        cursor.insertImage("moon");
        MRVRecovery recovery(home.path());
        recovery.follow(&document, QString());
        QVERIFY(recovery.keep());
        MRVGuardedDocument read;
        MRVDocumentArchive archive;
        const QFileInfo copy = QDir(home.path()).entryInfoList({"*.mrvdoc"}).value(0);
        QVERIFY(archive.read(copy.filePath(), &read));
        QCOMPARE(read.toPlainText().mid(1, 5), QString("words"));
        QCOMPARE(archive.notes(), QStringList());
    }
    void recoveryFollowsTheDocument()
    {
        QTemporaryDir home;
        const auto copies = [&home] { return QDir(home.path()).entryList({"*.mrvdoc"}); };
        QTextDocument document;
        {
            MRVRecovery recovery(home.path());
            recovery.setInterval(0);
            recovery.follow(&document, QString());
            QTextCursor(&document).insertText("one");
            QTRY_COMPARE(copies().size(), 1);
            document.setModified(false);
            recovery.saved("one.html");
            QCOMPARE(copies().size(), 0);
            QTextCursor(&document).insertText("two");
            QTRY_COMPARE(copies().size(), 1);
            document.undo(); // back to what is saved
            QCOMPARE(copies().size(), 0);
            document.redo();
            QTRY_COMPARE(copies().size(), 1);
        }
        QVERIFY(QDir(home.path()).isEmpty(QDir::Files));
        // Somebody cleans up meanwhile: all, or what is old, such as the lock.
        const QString folder = home.filePath("copies");
        MRVRecovery recovery(folder);
        recovery.follow(&document, QString());
        for (const bool isAll : {true, false}) {
            QTextCursor(&document).insertText("more");
            QVERIFY(recovery.keep());
            const QString lock = QDir(folder).entryList({"*.lock"}).value(0);
            QVERIFY(isAll ? QDir(folder).removeRecursively() : QDir(folder).remove(lock));
            QTextCursor(&document).insertText("more");
            QVERIFY(recovery.keep());
            QCOMPARE(QDir(folder).entryList({"*.mrvdoc", "*.lock"}).size(), 2);
            QVERIFY(MRVRecovery::leftBehind(folder).isEmpty());
        }

        MRVRecovery nowhere("/dev/null/copies");
        MRVError failure;
        connect(&nowhere, &MRVRecovery::failed, this, [&](const MRVError &e) { failure = e; });
        nowhere.follow(&document, QString());
        QTextCursor(&document).insertText("three");
        QVERIFY(!nowhere.keep());
        QCOMPARE(failure.kind, MRVErrorKind::NoPermission);
    }
};

QTEST_MAIN(tst_Archive)
#include "tst_archive.moc"
