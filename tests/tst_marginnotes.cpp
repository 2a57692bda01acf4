#include "document/mrvmarginnotes.h"
#include "document/mrvnotefinder.h"
#include "documentdump.h"
#include "epub/mrvepubpackage.h"
#include "manuscript/mrvdocumentnotes.h"
#include "pdf/mrvmanuscriptpdf.h"
#include "support.h"
#include "textformat/mrvtextformat.h"
#include "xhtml/mrvexportcheck.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <QTextCursor>
#include <QTextDocumentFragment>
#include <QXmlStreamReader>
#include <QtTest>

#include <KZip>

#include <random>

namespace {

using Notes = MRVMarginNotes;

/// A document from text with "|" at paragraph ends, and "[a|b]" for a table of one row.
void build(QTextDocument *document, const QString &text)
{
    QTextCursor cursor(document);
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == '[') {
            cursor.insertTable(1, text.mid(i).section(']', 0, 0).count('|') + 1);
        } else if (c == ']' || (c == '|' && cursor.currentTable())) {
            cursor.movePosition(QTextCursor::NextBlock);
        } else if (c == '|') {
            cursor.insertBlock();
        } else {
            cursor.insertText(c);
        }
    }
    document->clearUndoRedoStacks();
}

QTextCursor cursorAt(QTextDocument *document, int anchor, int position)
{
    QTextCursor cursor(document);
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    return cursor;
}

QString shown(const MRVMarginNote &note)
{
    const QChar kind = "-CF"[int(note.kind)];
    return QString("%1%2 %3-%4 %5")
        .arg(kind, note.id, QString::number(note.range.start()), QString::number(note.range.end()),
             note.text);
}

QString shown(const QTextDocument &document)
{
    QStringList list;
    for (const MRVMarginNote &note : Notes::all(&document)) {
        list << shown(note);
    }
    return list.join("; ");
}

/// "add 2-5 text", "set 3 text", "remove 3", "type 3 text", "paste 2-5 9", "undo", "write", which
/// gives the document's text with "|" at paragraph ends: what it gives.
QString step(QTextDocument *document, const QString &text)
{
    const QString verb = text.section(' ', 0, 0);
    const QString place = text.section(' ', 1, 1);
    const QString rest = text.section(' ', 2);
    const int start = place.section('-', 0, 0).toInt();
    const QTextCursor cursor = cursorAt(document, start, place.section('-', -1).toInt());
    if (verb == "add" || verb == "comment") {
        const auto kind = verb == "add" ? MRVMarginNote::Footnote : MRVMarginNote::Comment;
        return Notes::add(cursor, kind, rest, "Ann", "2026");
    }
    if (verb == "set") {
        return Notes::setText(cursor, rest) ? "yes" : "no";
    }
    if (verb == "remove") {
        return Notes::remove(cursor) ? "yes" : "no";
    }
    if (verb == "around") {
        return shown(Notes::around(cursor));
    }
    if (verb == "type") {
        QTextCursor(cursor).insertText(rest, QTextCharFormat());
    } else if (verb == "paste") {
        cursorAt(document, rest.toInt(), rest.toInt()).insertFragment(cursor.selection());
    } else if (verb == "undo") {
        document->undo();
    } else if (verb == "write") {
        Notes::toParagraphs(document, MRVMarginNote::Kinds(start));
        return document->toPlainText().replace('\n', '|');
    }
    return QString();
}

/// Words in order of the alphabet, of the text of pages without the marks of notes.
QStringList wordsOf(const QStringList &pages)
{
    QString text;
    for (const QString &page : pages) {
        QXmlStreamReader xml(page.mid(page.indexOf("<body")).section("</html>", 0, 0));
        xml.setNamespaceProcessing(false);
        bool isMark = false;
        while (!xml.atEnd()) {
            xml.readNext();
            if (xml.isStartElement()) {
                isMark = isMark || xml.attributes().value("href").contains("#footnote-");
            } else if (xml.isCharacters() && !isMark) {
                text += xml.text();
            } else if (xml.isEndElement()) {
                isMark = isMark && xml.name() != "a";
                text +=
                    QStringList{"a", "span", "sup", "strong", "em"}.contains(xml.name()) ? "" : " ";
            }
        }
        if (xml.hasError()) {
            return {xml.errorString()};
        }
    }
    QStringList words = text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
    words.sort();
    return words;
}

QStringList pagesOf(QByteArray book)
{
    QBuffer buffer(&book);
    KZip zip(&buffer);
    zip.open(QIODevice::ReadOnly);
    const auto *folder = static_cast<const KArchiveDirectory *>(zip.directory()->entry("OEBPS"));
    QStringList pages;
    for (const QString &name : folder->entries().filter("page-")) {
        pages << static_cast<const KArchiveFile *>(folder->entry(name))->data();
    }
    return pages;
}

/// Paragraphs of all kinds, and notes on any stretches of them; each word is another one.
void fill(QTextDocument *document, unsigned seed)
{
    static const char *blocks[] = {
        "<p>№a №b№c <i>№d №e</i></p>",
        "<h2>№a №b</h2>",
        "<p><a href='x'>№a №b</a> №c</p>",
        "<ul><li>№a №b</li><li>№c</li></ul>",
        "<p></p>",
        "<table><tr><td>№a №b</td><td><p>№c</p><p>№d</p></td></tr></table>"};
    std::mt19937 random(seed);
    QString html;
    for (unsigned i = 0, end = random() % 12 + 1; i < end; ++i) {
        html += QString(blocks[random() % std::size(blocks)]).replace("№", QString("w%1").arg(i));
    }
    document->setHtml(html + "<p>end</p>");
    for (unsigned i = 0, end = random() % 8 + 1; i < end; ++i) {
        const int start = int(random() % unsigned(document->characterCount()));
        const int last = qMin(start + 1 + int(random() % 9), document->characterCount() - 1);
        Notes::add(cursorAt(document, start, last), MRVMarginNote::Footnote,
                   QString("first%1 of%1\n\nsecond%1 <&%1").arg(i));
    }
    document->clearUndoRedoStacks();
}

} // namespace

class TestMarginNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notesAreEdited_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("notes");
        const auto row = [](const char *name, const char *text, const char *steps,
                            const char *answer, const char *notes) {
            QTest::newRow(name) << text << QString(steps).split("; ") << answer << notes;
        };
        row("selection", "one two three", "add 4-7 a", "1", "F1 4-7 a");
        row("backward", "one two three", "add 7-4 a", "1", "F1 4-7 a");
        row("comment", "one two three", "comment 4-7 a", "1", "C1 4-7 a");
        row("word", "one two three", "add 5 a", "1", "F1 4-7 a");
        row("end-of-word", "one two", "add 7 a", "1", "F1 4-7 a");
        row("after-blanks", "one two \t", "add 9 a", "1", "F1 4-7 a");
        row("after-full-stop-and-blank", "one two. ", "add 9 a", "1", "F1 7-8 a");
        row("between-blanks", "one  two", "add 4 a", "1", "F1 0-3 a");
        row("only-blanks", "one|  ", "add 6 a", "1", "F1 5-6 a");
        row("no-text", "one||two", "add 4 a", "", "");
        row("only-paragraph-ends", "one||two", "add 3-5 a", "", "");
        row("beyond-paragraph", "one|two", "add 2-6 a", "1", "F1 2-6 a");
        row("cells", "[one|two]", "add 1-8 a", "1", "F1 1-8 a");
        row("numbers-go-on", "one two", "add 0-3 a; add 4-7 b", "2", "F1 0-3 a; F2 4-7 b");
        row("adjacent", "one two", "add 0-4 a; add 4-7 a", "2", "F1 0-4 a; F2 4-7 a");
        row("undone-id", "one two", "add 0-3 a; undo; add 4-7 b", "2", "F2 4-7 b");
        row("within-another", "one two three", "add 0-13 a; add 4-7 b", "2", "F1 0-13 a; F2 4-7 b");
        row("over-a-part", "one two three", "add 0-7 a; add 4-13 b", "2", "F1 0-4 a; F2 4-13 b");
        row("over-all-of-it", "one two three", "add 4-7 a; add 0-13 b", "2", "F2 0-13 b; F1 4-7 a");
        row("over-a-paragraph", "one|two|three", "add 4-7 a; add 0-13 b", "2",
            "F2 0-13 b; F1 4-7 a");
        row("on-the-same", "one two three", "add 4-7 a; comment 4-7 b", "", "F1 4-7 a");
        row("typed-within", "one two three", "add 4-13 a; type 7 xyz", "", "F1 4-16 a");
        row("copied", "one two|three", "add 4-7 a; paste 4-7 11", "", "F1 4-7 a; F1 11-14 a");
        row("set", "one two three", "add 4-13 a; set 5 b\r\nc", "yes", "F1 4-13 b\nc");
        row("set-all", "one|two three", "add 0-13 a; add 4-7 b; set 1 c", "yes",
            "F1 0-13 c; F2 4-7 b");
        row("set-after", "one two three", "add 0-3 a; set 3 b", "yes", "F1 0-3 b");
        row("set-empty", "one two three", "add 4-7 a; set 5 ", "yes", "F1 4-7 ");
        row("set-elsewhere", "one two three", "add 0-3 a; set 8 b", "no", "F1 0-3 a");
        row("set-next-paragraph", "one|two", "add 0-3 a; set 4 b", "no", "F1 0-3 a");
        row("sets-are-one-step", "one two", "add 0-3 a; set 1 b; set 1 c; undo", "", "F1 0-3 a");
        row("sets-of-two", "one two", "add 0-3 a; add 4-7 b; set 1 c; set 5 d; undo", "",
            "F1 0-3 c; F2 4-7 b");
        row("set-after-typing", "one two", "add 0-3 a; set 1 b; type 7 x; set 1 c; undo", "",
            "F1 0-3 b");
        row("set-after-undo", "one two", "add 0-3 a; set 1 b; undo; set 1 c; undo", "", "F1 0-3 a");
        row("remove", "one two three", "add 0-13 a; add 4-7 b; remove 1", "yes", "F2 4-7 b");
        row("remove-none", "one two three", "add 4-7 a; remove 1", "no", "F1 4-7 a");
        row("write", "one two three", "add 4-7 a\nb; write 2", "one two1 three||1. a|b", "");
        row("write-at-end", "one two", "add 4-7 a; write 2", "one two1||1. a", "");
        row("write-adjacent", "one two", "add 0-3 a; add 3-7 b; write 2", "one1 two2||1. a|2. b",
            "");
        row("write-in-order", "one two", "add 4-7 b; add 0-3 a; write 2", "one1 two2||1. a|2. b",
            "");
        row("write-nested", "one two three", "add 0-13 a; add 4-7 b; write 2",
            "one two1 three2||1. b|2. a", "");
        row("write-before-blanks", "one two three", "add 4-8 a; write 2", "one two1 three||1. a",
            "");
        row("write-blanks", "one|  |two", "add 4-6 a; write 2", "one| 1 |two||1. a", "");
        row("write-copies", "one two|three", "add 4-7 a; paste 4-7 11; write 2",
            "one two1|thrtwo2ee||1. a|2. a", "");
        row("write-cell", "[one|two]", "add 5-8 a; write 2", "|one|two1|||1. a", "");
        row("write-footnotes", "one two", "comment 0-3 a; add 4-7 b; write 2", "one two1||1. b",
            "C1 0-3 a");
        row("write-comments", "one two", "comment 0-3 a; add 4-7 b; write 3",
            "one[1] two1||[1] Ann: a|1. b", "");
        row("write-empty", "one two", "add 0-3  ; write 2", "one two", "F1 0-3  ");
        row("write-object", "one two", "add 0-3 a\ufffc\ufdd0; write 2", "one1 two||1. a|", "");
        row("write-undone", "one two", "add 4-7 a; write 2; undo", "", "F1 4-7 a");
        row("around-two", "one two", "add 0-4 a; add 4-7 b; around 4", "F2 4-7 b",
            "F1 0-4 a; F2 4-7 b");
        row("around-none", "one two", "add 0-3 a; around 5", "- 0-0 ", "F1 0-3 a");
        row("around-paragraphs", "one|||two|x", "add 0-9 a; around 7", "F1 0-9 a", "F1 0-9 a");
    }

    void notesAreEdited()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, steps);
        QTextDocument document;
        build(&document, text);
        QString answer;
        for (const QString &one : steps) {
            answer = step(&document, one);
        }
        QTEST(answer, "answer");
        QTEST(shown(document), "notes");
    }

    // Typing goes on without the note that ends, or begins, at the cursor.
    void notesAreLeft_data()
    {
        QTest::addColumn<int>("anchor");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("noted"); // of "|ab [cd|ef] gh|", the text that has the note
        QTest::newRow("after") << 9 << 9 << "cd|ef";
        QTest::newRow("before") << 4 << 4 << "cd|ef";
        QTest::newRow("within") << 5 << 5 << "cX|d|ef";
        QTest::newRow("at a paragraph's end within") << 6 << 6 << "cdX||ef";
        QTest::newRow("over the end, backward") << 11 << 9 << "cd|ef";
        QTest::newRow("the end") << 8 << 9 << "cd|eX";
    }
    void notesAreLeft()
    {
        QFETCH(int, anchor);
        QFETCH(int, position);
        QTextDocument document;
        build(&document, "|ab cd|ef gh|");
        Notes::add(cursorAt(&document, 4, 9), MRVMarginNote::Footnote, "f");
        QTextCursor cursor = cursorAt(&document, anchor, position);
        Notes::leave(&cursor);
        cursor.insertText("X");
        cursor.insertBlock();
        const QVector<MRVMarginNote> notes = Notes::all(&document);
        QCOMPARE(notes.size(), 1);
        const QString all = document.toPlainText().replace('\n', '|');
        const MRVTextRange range = notes.first().range;
        QTEST(all.mid(range.start(), range.end() - range.start()), "noted");
    }

    void idsAreNew_data()
    {
        QTest::addColumn<QString>("id"); // of a note that is there
        QTest::newRow("number") << "7";
        QTest::newRow("32 bits") << "2147483647";
        QTest::newRow("64 bits") << "9223372036854775807";
        QTest::newRow("more") << "9223372036854775808";
        QTest::newRow("text") << "a7";
    }
    void idsAreNew()
    {
        QFETCH(QString, id);
        QTextDocument document("one two three");
        QTextCharFormat format;
        format.setProperty(MRVTextFormat::CommentData0, "a");
        format.setProperty(MRVTextFormat::CommentData1, id);
        cursorAt(&document, 0, 3).mergeCharFormat(format);
        QSet<QString> ids{id};
        for (const int place : {5, 9}) {
            ids << Notes::add(cursorAt(&document, place, place), MRVMarginNote::Comment, "a");
        }
        QCOMPARE(ids.size(), 3);
        QCOMPARE(Notes::all(&document).size(), 3);
    }

    void whatIsNoNoteStays()
    {
        QTextDocument document;
        document.setHtml("<p>one <a href=\"x\">two</a> <b>three</b></p>");
        const QStringList before = documentDump(document);
        const QTextCursor cursor = cursorAt(&document, 0, 9);
        QCOMPARE(Notes::add(cursor, MRVMarginNote::Footnote, "a", "Ann", "2026"), "1");
        const MRVMarginNote note = Notes::around(cursor);
        QCOMPARE(note.author, "Ann");
        QCOMPARE(note.date, "2026");
        QVERIFY(Notes::remove(cursor));
        QCOMPARE(documentDump(document), before);
        QVERIFY(!Notes::copyWithParagraphs(document, MRVMarginNote::Footnote));
    }

    // Those that are in the text already keep their numbers and names.
    void notesOfTheTextStay()
    {
        QTextDocument document;
        document.setHtml("<p>one<a name=r href='#footnote-1'>7</a> two</p>"
                         "<p><a name='footnote-1' href='#r'>7.</a> old</p>");
        Notes::add(cursorAt(&document, 5, 8), MRVMarginNote::Footnote, "new");
        const auto found = MRVDocumentNotes::findAll(&document);
        const auto isNew = [](const MRVDocumentNote &note) { return note.target == "new"; };
        const auto note = std::find_if(found.begin(), found.end(), isNew);
        QVERIFY(note != found.end());
        QCOMPARE(note->kind, MRVDocumentNote::Footnote);
        QCOMPARE(note->text, "two");
        QCOMPARE(Notes::toParagraphs(&document, MRVMarginNote::Footnote), 1);
        QCOMPARE(document.toPlainText(), "one7 two8\n7. old\n\n8. new");
        const MRVDocumentFlow flow(document);
        const QVector<MRVMarkedNote> notes = MRVNoteFinder(flow).notes();
        QCOMPARE(notes.size(), 2);
        QCOMPARE(notes.at(0).marks, QVector<int>{3});
        QCOMPARE(notes.at(1).marks, QVector<int>{8});
    }

    void anyDocumentIsWritten()
    {
        for (unsigned seed = 0; seed < 60; ++seed) {
            QTextDocument document;
            fill(&document, seed);
            const QStringList before = documentDump(document);
            const QVector<MRVMarginNote> notes = Notes::all(&document);
            QString text = document.toPlainText();
            for (const MRVMarginNote &note : notes) {
                text += '\n' + note.text;
            }
            QStringList words = text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
            words.sort();
            const QString page =
                MRVTextXhtmlExporter(&document).toText(MRVTextXhtmlExporter::Xhtml);
            QCOMPARE(wordsOf({page}), words);
            MRVExportCheck check;
            check.addDocument(document);
            check.addPage(page);
            QCOMPARE(check.losses(), QStringList());
            MRVEPubPackage book;
            QVERIFY(book.addDocument(document));
            QCOMPARE(wordsOf(pagesOf(book.toByteArray())), words);
            QCOMPARE(book.losses({&document}), QStringList());
            QCOMPARE(documentDump(document), before);

            QCOMPARE(Notes::toParagraphs(&document), notes.size());
            const MRVDocumentFlow flow(document);
            const QVector<MRVMarkedNote> found = MRVNoteFinder(flow).notes();
            QCOMPARE(found.size(), notes.size());
            for (const MRVMarkedNote &note : found) {
                QVERIFY(note.isSaid);
                QCOMPARE(note.marks.size(), 1);
                QCOMPARE(note.backLinks.size(), 1);
            }
            document.undo();
            QCOMPARE(documentDump(document), before);
            QVERIFY(!document.isUndoAvailable());
        }
    }

    void printedNotes()
    {
        QTextDocument document;
        document.setHtml("<h1>One</h1><p>two</p><h1>Three</h1>");
        Notes::add(cursorAt(&document, 0, 3), MRVMarginNote::Footnote, "headed\nbelow");
        MRVManuscriptPdf pdf{MRVPrintOptions()};
        pdf.addDocument(document);
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        QCOMPARE(pdf.deadLinks(), QStringList());
        const Ran ran = run("pdftotext", {"-", "-"}, {}, bytes);
        const QStringList words = ran.output.split(QRegularExpression("\\s+"));
        for (const char *word : {"One", "One1", "two", "headed", "below"}) { // one in the contents
            QVERIFY2(words.contains(word), qPrintable(ran.output));
        }
    }

    // A footnote within its text does not make two of a comment.
    void commentsOfBooks()
    {
        QTextDocument document("one two three");
        Notes::add(cursorAt(&document, 0, 13), MRVMarginNote::Comment, "why", "Ann");
        Notes::add(cursorAt(&document, 4, 7), MRVMarginNote::Footnote, "so");
        MRVEPubOptions options;
        options.commentsAsNotes = true;
        MRVEPubPackage book(MRVEPubVersion::EPub3, MRVEPubMetadata(), options);
        QVERIFY(book.addDocument(document));
        QCOMPARE(wordsOf(pagesOf(book.toByteArray())).join(' '),
                 "Ann: [1] one so three[1] two why");
    }

    void lossesAreTold()
    {
        QTextDocument document("one two");
        Notes::add(cursorAt(&document, 4, 7), MRVMarginNote::Footnote, "lost note");
        for (const char *page : {"<p>one two</p>", "<p>one two<a href='#n'>1</a></p><p>note</p>",
                                 "<p>one <a href='#n'>1</a></p><p>lost note</p>"}) {
            MRVExportCheck check;
            check.addDocument(document);
            check.addPage(QString("<body>%1</body>").arg(page));
            QCOMPARE(check.losses().size(), 1);
        }
    }
};

QTEST_MAIN(TestMarginNotes)
#include "tst_marginnotes.moc"
