#include "datarows.h"
#include "documentmeaning.h"

#include "document/mrvmarginnotes.h"
#include "document/mrvnotefinder.h"
#include "html/mrvhtmldocument.h"
#include "manuscript/mrvmanuscriptreader.h"
#include "publish/mrvtextpublisher.h"
#include "support.h"
#include "textexport/mrvdocumentlosses.h"
#include "textexport/mrvmarkdownwriter.h"
#include "textexport/mrvplaintextwriter.h"

#include <QRandomGenerator>

namespace {

std::unique_ptr<QTextDocument> fromHtml(const QString &html)
{
    auto document = std::make_unique<QTextDocument>();
    MRVHtmlDocument::read(html, QString(), document.get());
    return document;
}

QStringList meaningOf(const QString &text, MRVManuscript::Format format)
{
    MRVManuscriptReader reader;
    reader.setFormat(format);
    reader.setPurpose(MRVManuscriptReader::Editing);
    reader.setLoadsPictures(false);
    MRVManuscript manuscript;
    reader.readBytes(text.toUtf8(), "text", QString(), &manuscript);
    return documentMeaning(*manuscript.document);
}

std::unique_ptr<QTextDocument> fromMarkdown(const QString &text)
{
    MRVManuscriptReader reader;
    reader.setFormat(MRVManuscript::Markdown);
    reader.setPurpose(MRVManuscriptReader::Editing);
    reader.setLoadsPictures(false);
    MRVManuscript manuscript;
    reader.readBytes(text.toUtf8(), "text", QString(), &manuscript);
    return std::move(manuscript.document);
}

/// "C 0-3 text, F 4-7 other": notes to add to the margin.
void addNotes(QTextDocument *document, const QString &notes)
{
    for (const QString &note : notes.split(", ", Qt::SkipEmptyParts)) {
        const QString place = note.section(' ', 1, 1);
        QTextCursor cursor(document);
        cursor.setPosition(place.section('-', 0, 0).toInt());
        cursor.setPosition(place.section('-', 1).toInt(), QTextCursor::KeepAnchor);
        const auto kind = note.at(0) == 'C' ? MRVMarginNote::Comment : MRVMarginNote::Footnote;
        MRVMarginNotes::add(cursor, kind, note.section(' ', 2), "Ann");
    }
}

/// The comments in the margin, as addNotes() takes them.
QString commentsOf(const QTextDocument &document)
{
    QStringList comments;
    for (const MRVMarginNote &note : MRVMarginNotes::all(&document)) {
        comments
            << QString("C %1-%2 %3").arg(note.range.start()).arg(note.range.end()).arg(note.text);
    }
    return comments.join(", ");
}

/// Whether the plain text of a document has its words in their order.
bool hasWords(const QTextDocument &document)
{
    MRVPlainTextWriter writer(document);
    writer.setSeparation(MRVPlainTextWriter::Lines);
    const QString text = writer.text();
    int at = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QStringList words = it.fragment().text().split(
                QRegularExpression("[\\s\u2028\ufffc]+"), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                at = text.indexOf(word, at);
                if (at < 0) {
                    return false;
                }
                at += word.size();
            }
        }
    }
    return true;
}

/// Pages of what Markdown can say, with texts that look like markup.
class RandomPage
{
public:
    explicit RandomPage(quint32 seed)
        : m_random(seed)
    {
    }

    QString page()
    {
        QString html;
        for (int i = below(6) + 1; i > 0; --i) {
            html += block(0);
        }
        return html;
    }

private:
    int below(int end) { return int(m_random.bounded(end)); }
    QString oneOf(const QStringList &texts) { return texts.at(below(texts.size())); }

    QString word()
    {
        static const QString signs = "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~a1Bé–€\u00a0😀";
        static const QStringList words{
            "word",   "12.",   "www.a.org", "http://a.org/b", "---",       "a@b.org", "&amp;amp;",
            "[x](y)", "**a**", "1)",        "[^1]",           "&lt;b&gt;", "===",     "#",
            "+",      "~~a~~", "| a | b |", "[a]: b",         ":-:",       ">",       "&lt;!--",
            "``",     "\\",    "_a_b_",     "Title:"};
        if (below(3) == 0) {
            return oneOf(words);
        }
        QString text;
        for (int i = below(4) + 1; i > 0; --i) {
            const QVector<uint> all = signs.toUcs4();
            const uint c = all.at(below(all.size()));
            text += QString::fromUcs4(&c, 1);
        }
        return text.toHtmlEscaped();
    }

    QString text(int depth)
    {
        QString html;
        for (int i = below(5) + 1; i > 0; --i) {
            html += oneOf({"", " ", " "}) + (depth < 3 && below(3) == 0 ? marked(depth) : word());
        }
        return html;
    }

    QString marked(int depth)
    {
        static const QStringList elements{"b", "i", "s", "u", "sup", "sub", "code", "b", "i"};
        const int kind = below(12);
        if (kind == 0) {
            return "<br>";
        } else if (kind == 1) {
            return QString("<img src=\"%1.png\" alt=\"%2\" title=\"%3\">")
                .arg(below(9))
                .arg(word(), oneOf({"", word()}));
        } else if (kind == 2) {
            const QString address =
                oneOf({"http://a.org", "a b(c", "x|y`", "#z", "mailto:a@b.org"});
            const QString title = oneOf({"", word(), word() + " " + word()});
            return "<a href=\"" + address + "\" title=\"" + title + "\">" + text(3) + "</a>";
        }
        const QString element = oneOf(elements);
        return QString("<%1>%2</%1>").arg(element, text(depth + 1));
    }

    QString block(int depth)
    {
        const int kind = below(depth < 3 ? 12 : 5);
        if (kind == 0) {
            return QString("<h%1>%2</h%1>").arg(below(6) + 1).arg(text(0));
        } else if (kind == 1) {
            const QString code = word() + "\n  " + word() + "\n\n" + word();
            return "<pre><code class=\"" + oneOf({"a", "language-" + word()}) + "\" data-meta=\""
                + word() + "\">" + code + "</code></pre>";
        } else if (kind == 5) {
            return "<blockquote>" + block(depth + 1) + block(depth + 1) + "</blockquote>";
        } else if (kind == 6) {
            return "<hr>";
        } else if (kind == 7 || kind == 8) {
            return list(depth);
        } else if (kind == 9 && depth == 0) {
            return table();
        }
        return "<p>" + text(0) + "</p>";
    }

    QString list(int depth)
    {
        const bool isNumbered = below(2) == 0;
        const bool isLoose = below(2) == 0;
        QString html = isNumbered ? QString("<ol start=\"%1\">").arg(below(3)) : QString("<ul>");
        for (int i = below(3) + 1; i > 0; --i) {
            html += "<li>" + (isLoose ? "<p>" + text(0) + "</p>" : text(0));
            html += isLoose ? block(depth + 1) : below(3) == 0 && depth < 3 ? list(depth + 1) : "";
            html += "</li>";
        }
        return html + (isNumbered ? "</ol>" : "</ul>");
    }

    QString table()
    {
        const bool hasBlocks = below(3) == 0;
        QString html = "<table>";
        const int columns = below(3) + 1;
        for (int row = 0; row < below(3) + 2; ++row) {
            html += row == 0 ? "<thead><tr>" : "<tr>";
            for (int column = 0; column < columns; ++column) {
                const QString cell = row > 0 && hasBlocks ? block(1) : text(1);
                html += (row == 0 ? "<th>" : "<td>") + cell + (row == 0 ? "</th>" : "</td>");
            }
            html += row == 0 ? "</tr></thead>" : "</tr>";
        }
        return html + "</table>";
    }

    QRandomGenerator m_random;
};

} // namespace

class TestTextExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { addRows("textexport.tsv", {"name", "html", "markdown", "text"}); }
    void texts()
    {
        const auto document = fromHtml(cell("html"));
        QCOMPARE(MRVPlainTextWriter(*document).text().chopped(1), cell("text"));
        const QString markdown = MRVMarkdownWriter(*document).text();
        QCOMPARE(markdown.chopped(1), cell("markdown"));
        QCOMPARE(meaningOf(markdown, MRVManuscript::Markdown), documentMeaning(*document));
    }

    void randomMarkdown()
    {
        for (quint32 seed = 0; seed < 2000; ++seed) {
            const QString page = RandomPage(seed).page();
            const auto document = fromHtml(page);
            const QString markdown = MRVMarkdownWriter(*document).text();
            QVERIFY2(hasWords(*document), qPrintable(page));
            if (meaningOf(markdown, MRVManuscript::Markdown) != documentMeaning(*document)) {
                qInfo() << "seed" << seed << page << '\n' << qPrintable(markdown);
                QCOMPARE(meaningOf(markdown, MRVManuscript::Markdown), documentMeaning(*document));
            }
        }
    }

    void paragraphs()
    {
        const auto document = fromHtml("<h1>One</h1><p>a  b</p><p><br></p><p>c</p>");
        MRVPlainTextWriter writer(*document);
        writer.setSeparation(MRVPlainTextWriter::Lines);
        QCOMPARE(writer.text(), "One\na b\n\nc\n");
    }

    void margin()
    {
        const auto document = fromHtml("<p>one two</p><p>three</p>");
        QTextCursor cursor(document->begin());
        cursor.movePosition(QTextCursor::NextWord, QTextCursor::KeepAnchor);
        MRVMarginNotes::add(cursor, MRVMarginNote::Footnote, "first\n[second]");
        QCOMPARE(MRVMarkdownWriter(*document).text(),
                 "one[^1] two\n\nthree\n\n[^1]: first\n\n    \\[second\\]\n");
        QCOMPARE(MRVPlainTextWriter(*document).text(),
                 "one[1] two\n\nthree\n\n[1] first\n\n[second]\n");
    }

    // Comments of Markdown that is read again, with a bar at the end of each paragraph.
    void comments_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("notes");
        QTest::addColumn<QString>("readText");
        QTest::addColumn<QString>("readNotes");
        const auto row = [](const char *name, const char *text, const char *notes,
                            const char *readText, const char *readNotes) {
            QTest::newRow(name) << text << notes << readText << readNotes;
        };
        row("last blank", "one two ", "C 7-8 a", "one two", "C 6-7 a");
        row("last blanks of two comments", "one  ", "C 3-4 a, C 4-5 b", "one \u00a0",
            "C 2-3 a, C 4-5 b");
        row("last blank of a line", "one \u2028two", "C 3-4 a", "one\u2028two", "C 2-3 a");
        row("after another comment", "one ", "C 0-3 a, C 3-4 b", "one\u00a0", "C 0-3 a, C 3-4 b");
        row("only a blank", "one| |two", "C 4-5 a", "one|\u00a0|two", "C 4-5 a");
        row("last blank and more", "one |two", "C 3-8 a", "one|two", "C 4-7 a");
        row("more and last blank", "one |two", "C 2-4 a", "one|two", "C 2-3 a");
        row("paragraphs", "one|two", "C 0-7 a", "one|two", "C 0-7 a");
        row("empty paragraphs", "one|||two", "C 0-9 a", "one|||two", "C 0-9 a");
        row("empty and blank paragraphs", "one|| |two", "C 0-9 a", "one|||two", "C 0-8 a");
        row("around a footnote", "one two three", "C 0-13 a, F 4-7 b", "one two1 three|b ↩",
            "C 0-14 a");
        row("up to a footnote", "one two", "C 0-4 a, F 4-7 b", "one two1|b ↩", "C 0-4 a");
        row("the same twice", "one|two|three", "C 0-3 a, C 8-13 a", "one|two|three",
            "C 0-3 a, C 8-13 a");
        row("around another", "one two three", "C 0-13 a, C 4-6 b", "one two three",
            "C 0-13 a, C 4-6 b");
        row("after a blank", "one two three", "C 4-7 a", "one two three", "C 4-7 a");
        row("after a blank of another", "one two three", "C 0-4 a, C 4-7 b", "one two three",
            "C 0-4 a, C 4-7 b");
        row("with a blank before", "one two three", "C 3-7 a", "one two three", "C 3-7 a");
        row("with a blank behind", "one two three", "C 4-8 a", "one two three", "C 4-8 a");
        row("after the end of a line", "one\u2028two|three", "C 4-11 a", "one\u2028two|three",
            "C 4-11 a");
        row("between ends of lines", "one\u2028\u2028two|three", "C 4-8 a",
            "one\u2028\u2028two|three", "C 4-8 a");
        row("up to between ends of lines", "one\u2028\u2028two|three", "C 0-4 a",
            "one\u2028\u2028two|three", "C 0-4 a");
    }
    void comments()
    {
        QFETCH(QString, text);
        QFETCH(QString, notes);
        QTextDocument document;
        QTextCursor(&document).insertText(text.replace('|', '\n'));
        addNotes(&document, notes);
        const QString markdown = MRVMarkdownWriter(document).text();
        const auto read = fromMarkdown(markdown);
        MRVMarginNotes::toParagraphs(read.get(), MRVMarginNote::Footnote);
        QTEST(read->toRawText().replace(QChar::ParagraphSeparator, '|'), "readText");
        QTEST(commentsOf(*read), "readNotes");
    }

    void notesWithinText_data()
    {
        QTest::addColumn<QString>("html"); // with braces around notes
        QTest::addColumn<QString>("margin");
        QTest::addColumn<QString>("markdown");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("losses"); // of Markdown
        const auto row = [](const char *name, const char *html, const char *margin,
                            const char *markdown, const char *text, const char *losses) {
            QTest::newRow(name) << html << margin << markdown << text << losses;
        };
        const char *moved = "Footnotes within the text, which become others: 1";
        const char *inBrackets = "Footnotes within the text, which become text in brackets: 1";
        row("paragraph", "<p>a {<i>b</i>} c</p>", "", "a [^1] c\n\n[^1]: *b*", "a [1] c\n\n[1] b",
            moved);
        row("cell", "<table><thead><tr><th>a{<i>b</i> c}d</th></tr></thead></table>", "",
            "| a \\[*b* c\\] d |\n| :-- |", "\n\na [b c] d\n\n", inBrackets);
        row("cell alone", "<table><tr><td><p>{b}</p><p>c {d}.</p></td></tr></table>", "",
            "<table>\n<tr><td><p>[b]</p><p>c [d].</p></td></tr>\n</table>", "\n\n[b] c [d].\n\n",
            "Footnotes within the text, which become text in brackets: 2");
        row("code", "<pre>a{b}</pre>", "", "<pre>a [b]</pre>", "a[1]\n\n[1] b", inBrackets);
        row("note",
            "<p>a<sup><a href='#fn-x' id='fnref-x'>1</a></sup></p><ol><li id='fn-x'><p>d{e} "
            "<a href='#fnref-x'>↩</a></p></li></ol>",
            "", "a[^x]\n\n[^x]: d \\[e\\]", "a[x]\n\n[x] d [e]", inBrackets);
        row("with a note", "<p>a {b c} d {e}</p>", "F 2-3 f",
            "a [^1] d [^3]\n\n[^1]: b[^2] c\n\n[^2]: f\n\n[^3]: e",
            "a [1] d [3]\n\n[1] b[2] c\n\n[2] f\n\n[3] e",
            "Footnotes within the text, which become others: 2; "
            "Footnotes in the margin, which go to the end: 1");
        row("within a comment", "<p>a {b} c</p>", "C 0-5 f",
            "<mrv-comment begin=\"1\" author=\"Ann\" text=\"f\"></mrv-comment>a [^1] "
            "c<mrv-comment end=\"1\"></mrv-comment>\n\n[^1]: b",
            "a [1] c\n\n[1] b", moved);
    }
    void notesWithinText()
    {
        QFETCH(QString, margin);
        QFETCH(QString, html);
        const auto document = fromHtml(html);
        QTextCharFormat note;
        note.setProperty(MRVTextFormat::InlineFootnoteProperty, true);
        for (auto begin = document->find("{"); !begin.isNull(); begin = document->find("{")) {
            begin.removeSelectedText();
            QTextCursor end = document->find("}", begin);
            end.removeSelectedText();
            begin.setPosition(end.position(), QTextCursor::KeepAnchor);
            begin.mergeCharFormat(note);
        }
        addNotes(document.get(), margin);
        const auto losses = MRVDocumentLosses::of(*document, MRVDocumentLosses::Markdown);
        QTEST(MRVMarkdownWriter(*document).text().chopped(1), "markdown");
        QTEST(MRVPlainTextWriter(*document).text().chopped(1), "text");
        QTEST(losses.join("; "), "losses");
    }

    // Marks of Markdown are text there.
    void notesOfCode()
    {
        const auto document = fromHtml("<pre>aa bb</pre><p>cc</p>");
        addNotes(document.get(), "F 0-2 one, F 6-8 two");
        const QString markdown = MRVMarkdownWriter(*document).text();
        QVERIFY2(markdown.contains("cc[^1]\n"), qPrintable(markdown));
        const auto read = fromMarkdown(markdown);
        const MRVDocumentFlow flow(*read);
        const QVector<MRVMarkedNote> notes = MRVNoteFinder(flow).notes();
        QCOMPARE(notes.size(), 2);
        QCOMPARE(flow.text.mid(notes.at(0).marks.value(0) - 2, 3), "aa1");
        QVERIFY(flow.textOf(flow.paragraphs.at(notes.at(0).begin)).endsWith(QString("one")));
        QCOMPARE(MRVPlainTextWriter(*document).text(), "aa[1] bb\n\ncc[2]\n\n[1] one\n\n[2] two\n");
    }

    // Minutes, unless the time is linear in the notes of a paragraph.
    void manyNotesWithinText()
    {
        QTextDocument document;
        document.setUndoRedoEnabled(false);
        QTextCursor cursor(&document);
        cursor.beginEditBlock();
        QTextCharFormat note;
        note.setProperty(MRVTextFormat::InlineFootnoteProperty, true);
        for (int i = 0; i < 40000; ++i) {
            cursor.insertText("a ", QTextCharFormat());
            cursor.insertText("b", note);
        }
        cursor.endEditBlock();
        QElapsedTimer timer;
        timer.start();
        QVERIFY(MRVMarkdownWriter(document).text().endsWith("[^40000]: b\n"));
        QVERIFY(MRVPlainTextWriter(document).text().endsWith("[40000] b\n"));
        QVERIFY2(timer.elapsed() < 5000 * SanitizerTime,
                 qPrintable(QString::number(timer.elapsed())));
    }

    // Editors take what is typed right after a link into it.
    void wordsAfterBackLinks()
    {
        QTextDocument document;
        document.setHtml(
            "<p>a<sup><a href='#fn-x' id='fnref-x'>1</a></sup></p><ol><li id='fn-x'><p>e "
            "<a href='#fnref-x'>↩ f g</a></p></li></ol>");
        QVERIFY(MRVMarkdownWriter(document).text().endsWith("[^x]: e f g\n"));
        QVERIFY(MRVPlainTextWriter(document).text().endsWith("e f g\n"));
    }

    void losses_data()
    {
        addRows("textexport-losses.tsv", {"name", "html", "page", "markdown", "text", "script"});
    }
    void losses()
    {
        const auto document = fromHtml(cell("html"));
        const auto lossesOf = [&](MRVDocumentLosses::Format format) {
            return MRVDocumentLosses::of(*document, format).join("; ");
        };
        QCOMPARE(lossesOf(MRVDocumentLosses::Html), cell("page"));
        QCOMPARE(lossesOf(MRVDocumentLosses::Markdown), cell("markdown"));
        QCOMPARE(lossesOf(MRVDocumentLosses::PlainText), cell("text"));
        QCOMPARE(lossesOf(MRVDocumentLosses::Script), cell("script"));
    }

    void files()
    {
        QTemporaryDir folder;
        QImage image(2, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        QTextDocument document;
        document.addResource(QTextDocument::ImageResource, QUrl("mem"), image);
        QTextCursor(&document).insertImage("mem");
        const QString file = folder.filePath("sub/a.md");
        QStringList written;
        QString error;
        QVERIFY2(MRVTextPublisher::writeMarkdown(document, {}, file, &written, &error),
                 qPrintable(error));
        QCOMPARE(written.size(), 2);
        MRVManuscriptReader reader;
        MRVManuscript manuscript;
        QVERIFY2(reader.read(file, &manuscript), qPrintable(reader.errorString()));
        QCOMPARE(manuscript.pictures, QStringList(QFileInfo(written.first()).absoluteFilePath()));
    }

    // The picture is written before the file, which cannot be.
    void failedFiles()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("b.md"));
        QVERIFY(QDir(folder.path()).mkpath("b_files"));
        QTextDocument document;
        QImage image(2, 2, QImage::Format_RGB32);
        document.addResource(QTextDocument::ImageResource, QUrl("mem"), image);
        QTextCursor(&document).insertImage("mem");
        for (const QString &file : {QString("b.md"), "sub/sub/c." + QString(255, 'c') + ".md"}) {
            QStringList written;
            QString error;
            QVERIFY(!MRVTextPublisher::writeMarkdown(document, {}, folder.filePath(file), &written,
                                                     &error));
            QVERIFY2(error.contains(QFileInfo(file).fileName()), qPrintable(error));
            QCOMPARE(written, QStringList());
            QCOMPARE(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                     QStringList({"b.md", "b_files"}));
        }
    }
};

QTEST_MAIN(TestTextExport)
#include "tst_textexport.moc"
