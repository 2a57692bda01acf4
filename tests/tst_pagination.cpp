#include "datarows.h"
#include "support.h"

#include "pdf/mrvmanuscriptpdf.h"
#include "pdf/mrvpdfwriter.h"
#include "pdf/mrvscriptpdf.h"
#include "screenplay/mrvscriptpagination.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvpapersize.h"

#include <QImage>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QtTest>

#include <algorithm>
#include <ctime>

using Element = MRVFountainElement;
using Line = MRVScriptLine;
using Page = MRVScriptPage;

namespace {

MRVScriptMode builtIn()
{
    MRVScriptMode mode;
    mode.loadFactoryDefaults();
    return mode;
}

QString joined(const QVector<Line> &lines)
{
    QStringList texts;
    for (const Line &line : lines) {
        if (line.kind != Line::PageNumber) {
            texts += line.text();
        }
    }
    return texts.join('|');
}

QStringList wordsOf(const QString &text)
{
    return text.toUpper().split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
}

/// A text of up to @p most words.
QString sentences(QRandomGenerator *random, int most)
{
    QString text;
    const int count = random->bounded(1, most);
    for (int i = 0; i < count; ++i) {
        const int ends = random->bounded(9);
        text += QString("ivy%1").arg(random->bounded(1000)) + QString(random->bounded(12), 'x');
        text += ends == 0 ? ". " : ends == 1 ? "\n" : " ";
    }
    return text.trimmed();
}

MRVFountainScript randomScript(QRandomGenerator *random, int size)
{
    constexpr Element::Kind kinds[] = {
        Element::Action,   Element::Action,     Element::SceneHeading, Element::Character,
        Element::Dialogue, Element::Dialogue,   Element::Dialogue,     Element::Parenthetical,
        Element::Lyrics,   Element::Transition, Element::Centered,     Element::Note,
        Element::Synopsis, Element::PageBreak};
    MRVFountainScript script;
    script.titles.append({"Title", {{"Title of it", {}, MRVFountainRun::Text}}});
    for (int i = 0; i < size; ++i) {
        int most = random->bounded(20) == 0 ? 400 : 30;
        Element element;
        element.kind = kinds[random->bounded(int(std::size(kinds)))];
        if (element.kind == Element::PageBreak && random->bounded(5) > 0) {
            continue;
        }
        most =
            element.kind == Element::SceneHeading || element.kind == Element::Character ? 4 : most;
        if (element.kind != Element::PageBreak) {
            element.runs = {{sentences(random, most), {}, MRVFountainRun::Text}};
        }
        element.dual = element.kind == Element::Character && random->bounded(4) == 0;
        script.elements.append(element);
    }
    return script.normalized();
}

/// The lines of a page as they are read: those of one height from left to right.
QStringList rowsOf(const Page &page)
{
    QVector<Line> lines = page.lines;
    std::stable_sort(lines.begin(), lines.end(), [](const Line &a, const Line &b) {
        return a.top != b.top ? a.top < b.top : a.left < b.left;
    });
    QStringList rows;
    qreal top = -1;
    for (const Line &line : qAsConst(lines)) {
        if (line.top == top) {
            rows.last() += ' ' + line.text();
        } else {
            rows += line.text();
        }
        top = line.top;
    }
    for (QString &row : rows) {
        row = row.simplified();
    }
    rows.removeAll(QString());
    return rows;
}

} // namespace

class tst_Pagination : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString pdfText(const QByteArray &bytes, const QStringList &options = {"-layout"})
    {
        const QString file = m_folder.filePath("script.pdf");
        QFile output(file);
        if (!output.open(QIODevice::WriteOnly) || output.write(bytes) != bytes.size()) {
            qFatal("no space for %s", qPrintable(file));
        }
        output.close();
        return run(programPath("pdftotext"), options + QStringList{file, "-"}).output;
    }

private Q_SLOTS:
    void breaks_data() { addRows("scriptpages.tsv"); }
    void breaks()
    {
        const auto script = MRVFountainScript::fromText(cell("text"));
        const MRVScriptPagination pagination(script, builtIn());
        const QVector<Page> pages = pagination.pages();
        QCOMPARE(QString::number(pages.size()), cell("pages"));
        if (pages.size() > 1) {
            const QStringList foot = cell("foot").split('|');
            QCOMPARE(joined(pages.at(0).lines.mid(pages.at(0).lines.size() - foot.size())),
                     cell("foot"));
            QVERIFY(joined(pages.at(1).lines.mid(0, 3)).startsWith(cell("head")));
        }
        QCOMPARE((pagination.eighths() + 7) / 8, pages.size());
    }

    /// Each word is on the pages once and in its order, within the margins, and by the rules.
    void rules()
    {
        const MRVScriptMode mode = builtIn();
        for (int seed = 0; seed < 300; ++seed) {
            QRandomGenerator random(seed);
            const MRVFountainScript script = randomScript(&random, 60);
            const MRVScriptPagination pagination(script, mode);
            QStringList expected;
            for (const Element &element : script.printed().elements) {
                expected +=
                    wordsOf(element.kind == Element::Parenthetical ? '(' + element.text() + ')'
                                                                   : element.text());
            }
            QStringList printed;
            for (const Page &page : pagination.pages()) {
                for (int i = 0; i < page.lines.size(); ++i) {
                    const Line &line = page.lines.at(i);
                    if (line.kind == Line::Text) {
                        printed += wordsOf(line.text());
                    }
                    QVERIFY(line.kind == Line::PageNumber || line.top >= 72);
                    QVERIFY2(line.top + line.height <= 792 - 72 + 0.1, qPrintable(line.text()));
                    QVERIFY(line.text().size() <= 62);
                }
                const Line &last = page.lines.constLast();
                const bool isLastPage = page.number == pagination.pages().size();
                const auto next = std::find_if(script.elements.cbegin() + last.element + 1,
                                               script.elements.cend(), [](const Element &element) {
                                                   return element.kind < Element::Note
                                                       || element.kind == Element::PageBreak;
                                               });
                if (!isLastPage && next != script.elements.cend()
                    && next->kind != Element::PageBreak && last.kind == Line::Text) {
                    const QByteArray place =
                        QString("seed %1 page %2").arg(seed).arg(page.number).toUtf8();
                    const Element::Kind kind = script.elements.at(last.element).kind;
                    QVERIFY2(kind != Element::SceneHeading, place);
                    QVERIFY2(kind != Element::Character || next->kind != Element::Dialogue, place);
                }
            }
            printed.sort();
            expected.sort(); // speeches side by side are divided together
            QCOMPARE(printed.join(' '), expected.join(' '));
        }
    }

    void margins()
    {
        const auto script = MRVFountainScript::fromText(
            withRepeats("INT. A #7#\n\n⟨60×a\n⟩\nINT. B\n\nOne\n\nEXT. C #9A#\n\nTwo"));
        MRVScriptPagination::Options options;
        options.sceneNumbers = true;
        options.sceneContinuations = true;
        options.paper = MRVScriptPagination::A4;
        const MRVScriptPagination pagination(script, builtIn(), options);
        QCOMPARE(pagination.paperSize(), MRVPaperSize::A4);
        const QVector<Page> pages = pagination.pages();
        QCOMPARE(pages.size(), 2);
        QCOMPARE(rowsOf(pages.at(0)).constFirst(), QString("7 INT. A 7"));
        QCOMPARE(rowsOf(pages.at(0)).constLast(), QString("(CONTINUED)"));
        QCOMPARE(rowsOf(pages.at(0)).size(), 1 + 56 + 1); // 58 lines, of which one is empty
        QCOMPARE(rowsOf(pages.at(1)),
                 (QStringList{"2.", "CONTINUED:", "a", "a", "a", "a", "INT. B", "One",
                              "9A EXT. C 9A", "Two"}));
        QCOMPARE(pagination.pageOf(3), 2);
        QCOMPARE(pagination.eighths(0, 2), 9); // 1 + 1 + 60 lines of 58
        QCOMPARE(pagination.eighths(2, 4), 1);
    }

    /// Each column says that its speech goes on, and who speaks.
    void longBeside()
    {
        const auto script = MRVFountainScript::fromText(
            withRepeats("INT. A\n\nANN\n⟨70×a№\n⟩\nBOB ^\n⟨130×b№\n⟩\nEXT. B"));
        const MRVScriptPagination pagination(script, builtIn());
        const QVector<Page> pages = pagination.pages();
        QCOMPARE(pages.size(), 3);
        QStringList rows = rowsOf(pages.at(0));
        QCOMPARE(rows.mid(0, 3), (QStringList{"INT. A", "ANN BOB", "a0 b0"}));
        QCOMPARE(rows.constLast(), QString("(MORE) (MORE)"));
        rows = rowsOf(pages.at(1));
        QCOMPARE(rows.mid(0, 3), (QStringList{"2.", "ANN (CONT'D) BOB (CONT'D)", "a50 b50"}));
        QCOMPARE(rows.constLast(), QString("(MORE)"));
        rows = rowsOf(pages.at(2));
        QCOMPARE(rows.mid(0, 3), (QStringList{"3.", "BOB (CONT'D)", "b102"}));
        QCOMPARE(rows.constLast(), QString("EXT. B"));
        QCOMPARE(pagination.eighths(0, 5), 20); // 1 + 1 + 1 + 130 lines of 54
    }

    void titlePage()
    {
        const auto script =
            MRVFountainScript::fromText("Title: The Gauge\nCredit: by\nAuthor: Ann\nContact:\n    "
                                        "Street 1\n    Town\nDraft date: "
                                        "today\n\nText");
        const QVector<Page> pages = MRVScriptPagination(script, builtIn()).titlePages();
        QCOMPARE(pages.size(), 1);
        QCOMPARE(rowsOf(pages.constFirst()),
                 (QStringList{"The Gauge", "by", "Ann", "Street 1", "Town today"}));
        QVERIFY(pages.constFirst().lines.constLast().top > 700);
    }

    /// What another program reads is what the pages say, in each mode.
    void pdf()
    {
        const QMap<QString, MRVScriptMode> modes = MRVScriptMode::systemModes();
        QCOMPARE(modes.size(), 10);
        for (const MRVScriptMode &mode : modes) {
            QRandomGenerator random(mode.elements().size());
            const MRVFountainScript script = randomScript(&random, 60);
            MRVScriptPdf::Options options;
            options.pagination.sceneNumbers = true;
            QString error;
            const QByteArray bytes = MRVScriptPdf::toByteArray(script, mode, options, &error);
            QVERIFY2(!bytes.isEmpty(), qPrintable(error));
            const MRVScriptPagination pagination(script, mode, options.pagination);
            const QStringList read = pdfText(bytes).split('\f');
            const QVector<Page> pages = pagination.titlePages() + pagination.pages();
            QCOMPARE(read.size(), pages.size() + 1);
            for (int i = 0; i < pages.size(); ++i) {
                // Rows may be apart by less than a line where line heights differ.
                QStringList expected = wordsOf(rowsOf(pages.at(i)).join(' '));
                QStringList found = wordsOf(read.at(i));
                expected.sort();
                found.sort();
                QCOMPARE(found.join(' '), expected.join(' '));
            }
            if (mode.name() == QLatin1String("US Screenplay")) {
                QStringList rows = read.at(2).split('\n');
                for (QString &row : rows) {
                    row = row.simplified();
                }
                rows.removeAll(QString());
                QCOMPARE(rows, rowsOf(pages.at(2)));
            }
        }
    }

    void pdfEmphasis()
    {
        const auto script = MRVFountainScript::fromText("Then **one** and *two*, **no** more.\n");
        const QString file = m_folder.filePath("emphasis.pdf");
        QVERIFY(writeBytes(file, MRVScriptPdf::toByteArray(script, builtIn(), {})));
        const QString page = run(programPath("pdftohtml"), {"-xml", "-stdout", "-i", file}).output;
        QString text = page.mid(page.indexOf("<text"));
        // Not each font that is there has italics of its own.
        text.remove(QRegularExpression("</?(?:text|page|pdf2xml|i)\\b[^>]*>|\n"));
        QCOMPARE(text.simplified(), QString("Then <b>one</b> and two, <b>no</b> more."));
    }

    void pdfPages()
    {
        const auto script = MRVFountainScript::fromText(withRepeats(
            "Title: T\n\nINT. A\n\nANN\nMine.\n\n===\n\nINT. B\n\nBOB\nHis.\n\n===\n\n> ACT TWO "
            "<\n\nINT. C\n\nBOB\nAgain.\n\nANN\nLast. [[private]]\n\n= secret"));
        MRVScriptPdf::Options options;
        QString error;
        const auto text = [&] {
            return pdfText(MRVScriptPdf::toByteArray(script, builtIn(), options, &error), {"-raw"})
                .simplified();
        };
        QCOMPARE(text(),
                 QString("T INT. A ANN Mine. 2. INT. B BOB His. 3. ACT TWO INT. C BOB "
                         "Again. ANN Last."));
        options.firstPage = options.lastPage = 2;
        QCOMPARE(text(), QString("2. INT. B BOB His."));
        options.firstPage = options.lastPage = 0;
        options.character = "ann";
        QCOMPARE(text(), QString("INT. A ANN Mine. 3. ACT TWO INT. C BOB Again. ANN Last."));
        options.watermark = "Copy";
        QVERIFY(text().contains("C o p y"));
        options.character = "Eve";
        QVERIFY(MRVScriptPdf::toByteArray(script, builtIn(), options, &error).isEmpty());
        QVERIFY(error.contains("Eve"));
        options.character.clear();
        options.firstPage = 4;
        QVERIFY(MRVScriptPdf::toByteArray(script, builtIn(), options, &error).isEmpty());
    }

    /// All words, in each layout, and nothing wider than the paper.
    void manuscript_data()
    {
        QTest::addColumn<QString>("layout");
        QTest::newRow("book") << "book";
        QTest::newRow("manuscript") << "manuscript";
    }
    void manuscript()
    {
        QString html = "<h1>The Book</h1>";
        for (int i = 0; i < 4; ++i) {
            html += QString("<h2>Chapter %1</h2>").arg(i) + withRepeats("<p>⟨90×mid№ ⟩</p>")
                + withRepeats("<ol>⟨20×<li>item№<ul><li>inner№</li></ul></li>⟩</ol>")
                + withRepeats("<table width='2000'><tr>⟨9×<th>Heading№</th>⟩</tr>⟨30×<tr>"
                              "⟨9×<td>wide cell№</td>⟩</tr>⟩</table>")
                + withRepeats("<pre>⟨40×longline№ ⟩</pre><p>⟨200×x⟩</p>")
                + "<p style='font-variant:small-caps'>Small Capitals</p><p "
                  "style='font-size:40pt'>Large text of several lines which needs them</p>"
                  "<p style='margin-left:900px'>far away</p><hr>end";
        }
        QTextDocument document;
        document.setHtml(html);
        MRVPrintOptions options;
        QVERIFY(MRVPrintOptions::layoutNamed(cell("layout"), &options.layout));
        options.title = "the book";
        options.hasContents = false;
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(document);
        QByteArray bytes;
        QString error;
        QVERIFY2(pdf.toByteArray(&bytes, &error), qPrintable(error));
        QCOMPARE(pdf.wideTables(), 0);
        // Without headers; a word that is wider than its cell continues on another line.
        const QString read = pdfText(bytes, {"-raw"});
        QHash<QString, int> counts;
        for (const QString &word : wordsOf(read)) {
            ++counts[word];
        }
        QStringList missing;
        for (const QString &word : wordsOf(document.toPlainText())) {
            if (word.size() < 30 && --counts[word] < 0) {
                missing.append(word);
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(' ')));
        QCOMPARE(read.count('x'), document.toPlainText().count('x'));
    }

    /// At least two lines of a paragraph on either side, and a heading with its text.
    void orphans()
    {
        QString html;
        QRandomGenerator random(1);
        for (int i = 0; i < 400; ++i) {
            html += i % 9 == 0 ? QString("<h3>Heading%1</h3>").arg(i) : QString("<p>");
            const int words = random.bounded(1, 80);
            for (int k = 0; k < words && i % 9 != 0; ++k) {
                html += QString("p%1w%2 ").arg(i).arg(k);
            }
        }
        QTextDocument document;
        document.setHtml("<h2>a</h2><p>p0w0</p>" + html + "<h2>b</h2><p>p400w0</p>");
        MRVPrintOptions options;
        options.hasContents = false;
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(document);
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        const auto paragraph = [](const QString &line) {
            return line.section('w', 0, 0).trimmed();
        };
        QStringList before;
        int pages = 0;
        for (const QString &page : pdfText(bytes).split('\f', Qt::SkipEmptyParts)) {
            QStringList lines;
            for (const QString &line : page.split('\n')) {
                const QString text = line.simplified();
                if (text.startsWith('p') || text.startsWith("Head")) {
                    lines.append(text);
                }
            }
            QVERIFY(!lines.isEmpty());
            QVERIFY(!lines.constLast().startsWith("Head"));
            if (!before.isEmpty() && paragraph(before.constLast()) == paragraph(lines.at(0))) {
                QCOMPARE(paragraph(before.at(before.size() - 2)), paragraph(lines.at(0)));
                QCOMPARE(paragraph(lines.at(1)), paragraph(lines.at(0)));
            }
            before = lines;
            ++pages;
        }
        QVERIFY(pages > 20);
    }

    /// Qt paints nothing beyond some 800 pages of one document.
    void longManuscript()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        for (int i = 0; i < 9000; ++i) {
            cursor.insertText(QString("para%1x ").arg(i) + QString("word ").repeated(50));
            cursor.insertBlock();
        }
        MRVPrintOptions options;
        options.layout = MRVPrintOptions::Manuscript;
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(document);
        QByteArray bytes;
        QString error;
        QVERIFY2(pdf.toByteArray(&bytes, &error), qPrintable(error));
        const QString read = pdfText(bytes, {"-raw"});
        int at = 0;
        for (int i = 0; i < 9000; ++i) {
            at = read.indexOf(QString("para%1x").arg(i), at);
            QVERIFY2(at >= 0, qPrintable(QString::number(i)));
        }
    }

    /// Qt's layout takes twice the time for each level of tables.
    void nestedTables()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        QStringList words;
        for (int level = 0; level < 40; ++level) {
            words.append(QString("level%1").arg(level));
            cursor.insertText(words.constLast() + '\n');
            QTextTable *table = cursor.insertTable(2, 2);
            words.append(QString("below%1").arg(level));
            table->cellAt(1, 0).firstCursorPosition().insertText(words.constLast());
            cursor = table->cellAt(0, 1).firstCursorPosition();
        }
        MRVManuscriptPdf pdf({});
        pdf.addDocument(document);
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        QCOMPARE(pdf.flattenedTables(), 36);
        QCOMPARE(pdf.notes(),
                 QStringList("tables within four others, of which the rows are lines of text: 36"));
        QStringList read = wordsOf(pdfText(bytes, {"-raw"})).filter("E"); // no page numbers
        read.sort();
        words.sort();
        QCOMPARE(read.join(' '), words.join(' ').toUpper());
    }

    void manuscriptDetails()
    {
        QTextDocument document;
        document.setHtml("<p>Plain</p><blockquote>Quoted</blockquote><p>\uE123</p>");
        MRVPrintOptions options;
        options.hasContents = false;
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(document, QString(), "Heading");
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        QCOMPARE(pdf.missingCharacters(), QString(QChar(0xe123)));
        QCOMPARE(pdf.notes(), QStringList(MRVPdfWriter::missingCharactersNote(QChar(0xe123))));
        const QString read = pdfText(bytes, {"-bbox"});
        const auto left = [&read](const QString &word) {
            const QRegularExpression place("xMin=\"([0-9.]+)\"[^>]*>" + word);
            return place.match(read).captured(1).toDouble();
        };
        QCOMPARE(left("Heading"), left("Plain"));
        QVERIFY(left("Quoted") - left("Plain") > 25); // 40 pixels are 30 points
    }

    void largePictures_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("wide") << QSize(3000, 30);
        QTest::newRow("high") << QSize(30, 3000);
    }
    /// As a whole, within the margins.
    void largePictures()
    {
        QFETCH(QSize, size);
        QTextDocument document;
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QTextCursor(&document).insertImage(picture);
        MRVPrintOptions options;
        options.hasContents = false;
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(document);
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        const QString file = m_folder.filePath("large.pdf");
        QVERIFY(writeBytes(file, bytes));
        run(programPath("pdftoppm"), {"-r", "72", "-png", "-singlefile", file, file});
        const QImage page(file + ".png");
        QVERIFY(!page.isNull());
        QRect red;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                const QColor color(page.pixel(x, y));
                red |= color.red() > 200 && color.green() < 50 ? QRect(x, y, 1, 1) : QRect();
            }
        }
        const int inch = 72 / 2;
        QVERIFY(page.rect().adjusted(inch, inch, -inch, -inch).contains(red));
        QVERIFY(red.width() > page.width() / 2 || red.height() > page.height() / 2);
    }

    /// Qt's layout would never return.
    void endlessParts_data()
    {
        QTest::addColumn<QString>("html");
        QTest::newRow("paragraph") << "<p>⟨2500000×x⟩</p>";
        QTest::newRow("cell") << "<table><tr><td>⟨40000×<p>x</p>⟩</td></tr></table>";
    }
    void endlessParts()
    {
        QTextDocument document;
        document.setHtml(withRepeats(cell("html")));
        MRVManuscriptPdf pdf({});
        pdf.addDocument(document);
        QByteArray bytes;
        QString error;
        QVERIFY(!pdf.toByteArray(&bytes, &error));
        QVERIFY2(error.contains("too long"), qPrintable(error));
    }

    /// Pages and paragraphs of any length take time in proportion.
    void longParagraph()
    {
        const auto clocks = [](int letters) {
            QTextDocument document(QString(letters, 'x'));
            MRVManuscriptPdf pdf({});
            pdf.addDocument(document);
            QByteArray bytes;
            const std::clock_t start = std::clock(); // of this process alone
            const bool isDone = pdf.toByteArray(&bytes);
            return isDone ? double(std::clock() - start) : 0;
        };
        clocks(1000); // loads fonts
        const double growth = clocks(400000) / clocks(50000);
        QVERIFY2(growth > 0 && growth < 20, qPrintable(QString::number(growth)));
    }

    /// A rule is as wide as the text, however far in the first lines of paragraphs are.
    void horizontalRules()
    {
        QTextDocument document;
        document.setHtml("<p>before</p><hr><p>after</p>");
        MRVPrintOptions options;
        options.layout = MRVPrintOptions::Manuscript;
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(document);
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        pdfText(bytes);
        const QString page = m_folder.filePath("page");
        run(programPath("pdftoppm"),
            {"-r", "72", "-gray", "-singlefile", m_folder.filePath("script.pdf"), page});
        const QImage image(page + ".pgm");
        int widest = 0;
        for (int y = 0; y < image.height(); ++y) {
            int dots = 0;
            for (int x = 0; x < image.width(); ++x) {
                dots += qGray(image.pixel(x, y)) < 250;
            }
            widest = qMax(widest, dots);
        }
        QVERIFY2(qAbs(widest - (612 - 2 * 72)) <= 2, qPrintable(QString::number(widest)));
    }

    void rightToLeft()
    {
        const auto script = MRVFountainScript::fromText(
            withRepeats(QString::fromUtf8("⟨30×שלום ⟩Hollywood ⟨30×שלום ⟩\n\nPlain text.")));
        const QVector<Line> lines = MRVScriptPagination(script, builtIn()).pages().at(0).lines;
        for (const Line &line : lines) {
            QCOMPARE(line.isRightToLeft, line.element == 0);
            QCOMPARE(line.alignment, line.element == 0 ? Qt::AlignRight : Qt::AlignLeft);
        }
    }

    void manuscriptLinks()
    {
        QTextDocument one;
        one.setHtml("<h1><a name='top'>Both</a></h1><h1>Alpha</h1><p><a href='#top'>Up</a>. See <a "
                    "href='two.html#x'>there</a>, <a "
                    "href='http://example.org'>out</a>, <a href='#nowhere'>nothing</a> and <a "
                    "href='three.html'>none</a>.</p>");
        QTextDocument two;
        two.setHtml("<h1>Beta</h1><p><a name='x' href='file:///etc/passwd'>X</a></p><p><img "
                    "src='data:,'></p>");
        MRVPrintOptions options;
        options.title = "Both";
        options.authors = QStringList{"Ann Lee", "Bob"};
        options.language = "de";
        MRVManuscriptPdf pdf(options);
        pdf.addDocument(one, "/folder/one.html");
        pdf.addPart("Teil Zwei");
        pdf.addDocument(two, "/folder/two.html");
        QByteArray bytes;
        QVERIFY(pdf.toByteArray(&bytes));
        QCOMPARE(pdf.deadLinks(), (QStringList{"#nowhere", "three.html", "file:///etc/passwd"}));
        const QStringList pages = pdfText(bytes).split('\f');
        QCOMPARE(pages.size(), 6);
        QCOMPARE(pages.at(0).simplified(), QString("Both Ann Lee Bob"));
        QCOMPARE(pages.at(1).simplified(), QString("Inhalt Alpha 1 Teil Zwei 2 Beta 3"));
        QCOMPARE(pages.at(4).simplified(), QString("Beta X 3"));
        const QString file = m_folder.filePath("script.pdf");
        const QString urls = run(programPath("pdfinfo"), {"-url", file}).output;
        QCOMPARE(urls.count("Annotation"), 1);
        QVERIFY(urls.contains("example.org"));
        const QString shown = run(programPath("pdftohtml"), {"-xml", "-stdout", "-i", file}).output;
        QVERIFY2(shown.contains("script.html#5\">there</a>"), qPrintable(shown));
    }

    void structure()
    {
        QByteArray bytes;
        QString error;
        MRVPdfWriter writer(MRVPaperSize::A4, {"Größe", "Ann", "de", {}});
        writer.setPageNumber(0);
        writer.addLink({0, 0, 100, 100}, "#late");
        writer.addLink({0, 100, 100, 100}, "https://example.org/ü");
        writer.addLink({0, 200, 100, 100}, "file:///etc/passwd");
        writer.addLink({0, 200, 100, 100}, "#nowhere");
        writer.newPage();
        writer.setPageNumber(7);
        writer.addOutline("Act", 1, 0);
        writer.addOutline("Scene (1)", 2, 600);
        writer.addOutline("Deeper", 5, 600);
        writer.addOutline("Act 2", 1, 1200);
        writer.addTarget("late", 2400);
        QVERIFY2(writer.finish(&bytes, &error), qPrintable(error));
        const QString file = m_folder.filePath("structure.pdf");
        QFile output(file);
        QVERIFY(output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size());
        output.close();
        const QString info = run(programPath("pdfinfo"), {"-url", file}).output;
        QVERIFY2(info.contains("https://example.org/%C3%BC"), qPrintable(info));
        QVERIFY(!info.contains("passwd"));
        const QString about = run(programPath("pdfinfo"), {file}).output;
        QVERIFY(about.contains("Größe") && about.contains(QRegularExpression("Pages: +2\n")));
        QVERIFY(!about.contains("Date"));
        const QString shown = run(programPath("pdftohtml"), {"-xml", "-stdout", "-i", file}).output;
        const QString outline = shown.mid(shown.indexOf("<outline>")).simplified();
        QVERIFY2(outline.startsWith(
                     "<outline> <item page=\"2\">Act</item> <outline> <item page=\"2\">Scene "
                     "(1)</item> <outline> <item page=\"2\">Deeper</item> </outline> </outline> "
                     "<item page=\"2\">Act 2</item> </outline>"),
                 qPrintable(shown));
    }
};

QTEST_MAIN(tst_Pagination)
#include "tst_pagination.moc"
