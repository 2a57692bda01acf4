#include "datarows.h"
#include "support.h"

#include "html/mrvhtmlcheck_p.h"
#include "html/mrvhtmldocument.h"
#include "textformat/mrvtextformat.h"

#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <sys/stat.h>

#include <ctime>

namespace {

/// What a fragment looks like: "b i +2 #name >address".
QString charLook(const QTextCharFormat &format)
{
    QStringList look;
    const auto add = [&look](bool is, const QString &mark) {
        look += is ? QStringList(mark) : QStringList();
    };
    add(format.fontWeight() == QFont::Bold, "b");
    add(format.fontItalic(), "i");
    add(format.fontUnderline(), "u");
    add(format.fontStrikeOut(), "s");
    add(format.fontFixedPitch(), "code");
    add(format.verticalAlignment() == QTextCharFormat::AlignSuperScript, "sup");
    add(format.fontCapitalization() == QFont::SmallCaps, "caps");
    add(format.hasProperty(QTextFormat::FontLetterSpacing),
        QString("spaced%1").arg(format.fontLetterSpacing()));
    add(format.hasProperty(QTextFormat::FontSizeAdjustment),
        QString("%1%2")
            .arg(format.intProperty(QTextFormat::FontSizeAdjustment) < 0 ? "" : "+")
            .arg(format.intProperty(QTextFormat::FontSizeAdjustment)));
    add(format.hasProperty(QTextFormat::FontPointSize),
        QString("%1pt").arg(format.fontPointSize()));
    add(format.foreground().style() != Qt::NoBrush, format.foreground().color().name());
    add(format.background().style() != Qt::NoBrush, "on " + format.background().color().name());
    add(format.hasProperty(MRVTextFormat::LanguageProperty),
        format.stringProperty(MRVTextFormat::LanguageProperty));
    add(!format.anchorNames().isEmpty(), '#' + format.anchorNames().join('#'));
    add(!format.anchorHref().isEmpty(), (format.isAnchor() ? '>' : '?') + format.anchorHref());
    add(format.hasProperty(QTextFormat::TextToolTip), '"' + format.toolTip() + '"');
    const QTextImageFormat image = format.toImageFormat();
    add(image.isValid(),
        QString("%1 %2x%3 '%4'")
            .arg(image.name())
            .arg(image.width())
            .arg(image.height())
            .arg(image.stringProperty(QTextFormat::ImageAltText)));
    return look.join(' ');
}

/// What a paragraph looks like: "h1 x24 l40 center".
QString blockLook(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    QStringList look;
    const auto add = [&look](bool is, const QString &mark) {
        look += is ? QStringList(mark) : QStringList();
    };
    add(format.hasProperty(MRVTextFormat::HeadingLevelProperty),
        QString("h%1").arg(format.headingLevel()));
    add(format.intProperty(QTextFormat::BlockQuoteLevel), "quote");
    add(format.topMargin() != 0, QString("t%1").arg(format.topMargin()));
    add(format.bottomMargin() != 0, QString("b%1").arg(format.bottomMargin()));
    add(format.leftMargin() != 0, QString("l%1").arg(format.leftMargin()));
    add(format.rightMargin() != 0, QString("r%1").arg(format.rightMargin()));
    add(format.textIndent() != 0, QString("x%1").arg(format.textIndent()));
    add(format.indent() != 0, QString("in%1").arg(format.indent()));
    add(format.lineHeightType() != 0,
        QString("line%1:%2").arg(format.lineHeight()).arg(format.lineHeightType()));
    add(format.alignment() & Qt::AlignHCenter, "center");
    add(format.alignment() & Qt::AlignRight, "right");
    add(format.alignment() & Qt::AlignJustify, "justify");
    add(format.layoutDirection() == Qt::RightToLeft, "rtl");
    add(format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore, "break");
    add(format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth), "hr");
    add(format.nonBreakableLines(), "pre" + format.stringProperty(QTextFormat::BlockCodeLanguage));
    add(format.marker() == QTextBlockFormat::MarkerType::Checked, "done");
    if (const QTextList *list = block.textList()) {
        look << QString("li%1.%2").arg(-list->format().style()).arg(list->format().indent());
        const int start = list->format().intProperty(MRVTextFormat::ListStartProperty);
        add(start != 0, QString("from%1").arg(start));
    }
    QTextCursor cursor(block);
    if (const QTextTable *table = cursor.currentTable()) {
        const QTextTableCell cell = table->cellAt(cursor);
        look << QString("cell%1.%2").arg(cell.row()).arg(cell.column());
        add(table->format().alignment() == Qt::AlignHCenter, "mid");
        add(cell.columnSpan() > 1, QString("wide%1").arg(cell.columnSpan()));
        add(cell.rowSpan() > 1, QString("high%1").arg(cell.rowSpan()));
        add(cell.format().boolProperty(MRVTextFormat::HeaderCellProperty), "th");
    }
    return look.join(' ');
}

/// Paragraphs separated by "|", each after its look in brackets, and each fragment before its own.
QString shown(const QTextDocument &document, bool withLooks)
{
    QStringList paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString look = withLooks ? blockLook(block) : QString();
        QString paragraph = look.isEmpty() ? QString() : '(' + look + ')';
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QString chars = withLooks ? charLook(it.fragment().charFormat()) : QString();
            paragraph += it.fragment().text() + (chars.isEmpty() ? QString() : '{' + chars + '}');
        }
        paragraphs << paragraph;
    }
    return paragraphs.join('|')
        .replace(QChar::LineSeparator, "⏎")
        .replace(QChar::ObjectReplacementCharacter, "□");
}

} // namespace

/// Pages of HTML as documents.
class tst_Html : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { addRows("html-texts.tsv", {"case", "html", "expected"}); }
    void texts() { compare(false); }
    void looks_data() { addRows("html-looks.tsv", {"case", "html", "expected"}); }
    void looks() { compare(true); }
    void pagesOfQt();
    void bodyFont_data();
    void bodyFont();
    void sheets();
    void takesLinearTime_data();
    void takesLinearTime();
    void countsHiddenWords_data() { addRows("html-hidden.tsv"); }
    void countsHiddenWords();
    void saysWhatIsMissing_data();
    void saysWhatIsMissing();

private:
    void compare(bool withLooks);
};

/// An expected "!word" is a part of the error. Nothing that is shown counts as lost.
void tst_Html::compare(bool withLooks)
{
    QTextDocument document("before");
    MRVHtmlReport report;
    QString error;
    QFETCH(QString, expected);
    if (!MRVHtmlDocument::read(cell("html"), QString(), &document, &report, &error)) {
        QVERIFY2(expected.startsWith('!') && error.contains(expected.mid(1)), qPrintable(error));
        QCOMPARE(document.toPlainText(), QString("before"));
        return;
    }
    QCOMPARE(shown(document, withLooks), expected);
    for (const MRVHtmlLoss &loss : report.losses) {
        QFAIL(qPrintable(QString("line %1: %2").arg(loss.line).arg(loss.what)));
    }
}

/// A document that Qt writes and that is read again is written as the same page.
void tst_Html::pagesOfQt()
{
    const QString html =
        "<h1>a</h1><p align=center style='text-indent:20px'>b  c<br>d</p><p><br></p>"
        "<ol><li>e<ul><li>f</ul><li>g</ol><table border=1 width=50%><tr><td colspan=2>h<tr>"
        "<td>i<td bgcolor=red>j</table><hr><pre>k\n l</pre><p style='font-weight:250'>m "
        "<a name=x></a><a href=y>z</a> <img src=a.png width=3>";
    QTextDocument first;
    first.setHtml(html);
    QTextFrameFormat frame = first.rootFrame()->frameFormat();
    frame.setMargin(7);
    first.rootFrame()->setFrameFormat(frame);
    QTextCursor cursor(&first);
    cursor.movePosition(QTextCursor::End);
    frame.setPosition(QTextFrameFormat::FloatRight);
    cursor.insertFrame(frame);
    cursor.insertText("framed");
    QTextDocument second;
    QVERIFY(MRVHtmlDocument::read(first.toHtml(), QString(), &second));
    QCOMPARE(second.toPlainText().simplified(), first.toPlainText().simplified());
    QTextDocument third;
    QVERIFY(MRVHtmlDocument::read(second.toHtml(), QString(), &third));
    QCOMPARE(third.toHtml(), second.toHtml());
    const auto isFloating = [](const QTextFrame *child) {
        return child->frameFormat().position() == QTextFrameFormat::FloatRight;
    };
    const auto frames = second.rootFrame()->childFrames();
    QCOMPARE(std::count_if(frames.begin(), frames.end(), isFloating), 1);

    QTextDocument code;
    code.setHtml("<pre>  \na\n  \n\n <b> </b>b\n </pre>");
    QVERIFY(MRVHtmlDocument::read(code.toHtml(), QString(), &second));
    QCOMPARE(second.toPlainText(), code.toPlainText());
}

/// Sheets beside the page count, in order and with what they import; nothing else is opened.
void tst_Html::bodyFont_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<qreal>("points");
    QTest::newRow("pixels") << "font-size:20px" << 15.0;
    QTest::newRow("points") << "font-size:9.99pt" << 9.99;
    QTest::newRow("usual") << "font-size:16px" << 12.0;
}
void tst_Html::bodyFont()
{
    QTextDocument document;
    QFETCH(QString, style);
    QVERIFY(MRVHtmlDocument::read("<body style='" + style + "'><p>a", QString(), &document));
    QTEST(document.defaultFont().pointSizeF(), "points");
}

void tst_Html::sheets()
{
    const QTemporaryDir folder;
    QVERIFY(writeBytes(folder.filePath("a.css"), "@import 'sub/b.css'; p { text-indent: 10px }"));
    QVERIFY(QDir(folder.path()).mkdir("sub"));
    QVERIFY(writeBytes(folder.filePath("sub/b.css"),
                       "@import '../a.css'; p { text-indent: 5px; text-align: right }"));
    QCOMPARE(mkfifo(qPrintable(folder.filePath("pipe")), 0600), 0);
    QTextDocument document;
    MRVHtmlReport report;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(MRVHtmlDocument::read(
        "<link rel=stylesheet href=a.css><link rel=stylesheet href=pipe>"
        "<link rel=stylesheet href=/dev/zero><link rel=stylesheet href=/proc/kmsg><link "
        "rel='alternate stylesheet' href=c.css>"
        "<link rel=stylesheet href=//x.example/d.css><link rel=stylesheet href=gone.css>"
        "<style>p { background: url(/dev/zero) url(pipe) } @import 'no.css';</style><p>a",
        folder.filePath("a.html"), &document, &report));
    QVERIFY2(timer.elapsed() < 1000 * SanitizerTime, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(shown(document, true), QString("(t12 b12 x10 right)a"));
    QCOMPARE(report.missingSheets, QStringList({"pipe", "/dev/zero", "gone.css"}));
    QCOMPARE(report.remoteSheets, QStringList({"//x.example/d.css"}));
}

void tst_Html::takesLinearTime_data()
{
    addRows("html-linear.tsv", {"case", "html"});
}

void tst_Html::takesLinearTime()
{
    // Of the process: the machine may be busy with other things.
    const std::clock_t start = std::clock();
    QTextDocument document;
    MRVHtmlReport report;
    MRVHtmlDocument::read(cell("html"), QString(), &document, &report);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 8 * SanitizerTime, qPrintable(QString::number(seconds)));
}

void tst_Html::saysWhatIsMissing_data()
{
    QTest::addColumn<QString>("page"); // what a document would have been read from
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole") << "<p>a b\n<p><a href=x>c</a>d<img src=y>"
                           << "";
    QTest::newRow("words") << "<p>a new b\n<p>and more <a href=x>c</a>d<img src=y>"
                           << "1 new|2 and more";
    QTest::newRow("joined") << "<p>a b\n<p><a href=x>c</a><br>d<img src=y>"
                            << "2 c d";
    QTest::newRow("order") << "<p>b\n<p>a<p><a href=x>c</a>d<img src=y>"
                           << "1 b";
    QTest::newRow("again") << "<p>a b\n<p>b<p><a href=x>c</a>d<img src=y>"
                           << "2 b";
    QTest::newRow("link") << "<p>a b\n<p><a href=x2>c</a>d<img src=y>"
                          << "2 x2";
    QTest::newRow("picture") << "<p>a b\n<p><a href=x>c</a>d<img src=y><img src=z>"
                             << "2 z";
    QTest::newRow("markdown") << "<p data-sourcepos='7:1-8:2'>a b c</p>"
                              << "7 c";
}

/// What the page shows and the document does not hold is named with its line.
void tst_Html::saysWhatIsMissing()
{
    QTextDocument document;
    QVERIFY(MRVHtmlDocument::read("<p>a b<p><a href=x>c</a>d<img src=y>", QString(), &document));
    QFETCH(QString, page);
    const MRVHtmlTree tree(page);
    MRVHtmlReport report;
    mrvCheckDocument(tree, {}, document, &report);
    QStringList losses;
    for (const MRVHtmlLoss &loss : report.losses) {
        losses << QString("%1 %2").arg(loss.line).arg(loss.what);
    }
    QTEST(losses.join('|'), "expected");
}

/// Words that styles hide are not in the document, but those that other styles show again are.
void tst_Html::countsHiddenWords()
{
    QFETCH(QString, html);
    QTextDocument document;
    MRVHtmlReport report;
    QVERIFY(MRVHtmlDocument::read(html, QString(), &document, &report));
    QTEST(document.toPlainText().replace('\n', '|'), "expected");
    QTEST(QString::number(report.hiddenWords), "words");
    QVERIFY(report.losses.isEmpty());
}

QTEST_MAIN(tst_Html)
#include "tst_html.moc"
