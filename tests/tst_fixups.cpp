#include "export/mrvtextxhtmlexporter.h"

#include <QtTest>

#include <ctime>
#include <limits>

using X = MRVTextXhtmlExporter;
using Fix = void (*)(QString *);

Q_DECLARE_METATYPE(Fix)

/** The textual fix-ups, each on its own, and the whole-text chains that they make. */
class tst_Fixups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixup_data();
    void fixup();
    void nullIsNothing();
    void styleSheet_data();
    void styleSheet();
    void decorations_data();
    void decorations();
    void trimEm_data();
    void trimEm();
    void classes_data();
    void classes();
    void classNumbers();
    void keptStyles();
    void styleSheetText();
    void links();
    void images();
    void chains();
    void clipboard();
    void manyMatchesAreLinear();
};

void tst_Fixups::fixup_data()
{
    QTest::addColumn<Fix>("fix");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    auto row = [](const char *name, Fix fix, const char *before, const char *after) {
        QTest::newRow(name) << fix << QString::fromUtf8(before) << QString::fromUtf8(after);
    };
    row("doctype", X::fixDoctypeTag,
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
        "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n<html>",
        "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.1//EN\" "
        "\"http://www.w3.org/TR/xhtml11/DTD/xhtml11.dtd\">\n<html>");
    row("doctype-other", X::fixDoctypeTag, "<!DOCTYPE html>", "<!DOCTYPE html>");
    row("html", X::fixHtmlTag, "<html><head>",
        "<html xmlns=\"http://www.w3.org/1999/xhtml\"><head>");
    row("br", X::fixBrTag, "a<br>b<br />c<BR>", "a<br />b<br />c<BR>");
    row("img", X::fixImgTag, "<img src=\"a\"><img alt=\"b\" src=\"c\">",
        "<img alt=\" \" src=\"a\"><img alt=\"b\" src=\"c\">");
    row("li-align", X::fixLiAlign,
        "<li align=\"center\" style=\"a\"><li style=\"\" align=\"justify\" style=\"b\"><li "
        "align=\"left\" style=\"c\">",
        "<li style=\"a\"><li style=\"b\"><li align=\"left\" style=\"c\">");
    row("double-style", X::fixDoubleStyleAttr, "<li style=\" a:b;\" style=\"c:d;\">",
        "<li style=\" a:b;c:d;\">");
    row("triple-style", X::fixDoubleStyleAttr,
        "<li style=\"a\" style=\"b\" style=\"c\"><p style=\"d\">",
        "<li style=\"abc\"><p style=\"d\">");
    row("style-apart", X::fixDoubleStyleAttr, "<li style=\"a\" x=\"\" style=\"b\">",
        "<li style=\"a\" x=\"\" style=\"b\">");
    row("pre-wrap", X::fixParPreWrap, "{\np, li { white-space: pre-wrap; }\n}", "{\n\n}");
    row("td-width", X::fixTdWidthTag, "<td width=\"50%\" x=\"1\"><td colspan=\"2\" width=\"3\">",
        "<td x=\"1\"><td colspan=\"2\" width=\"3\">");
    row("td-bgcolor", X::fixTdBgcolorTag, "<td bgcolor=\"#ff0000\">", "<td>");
    row("p-align", X::fixPTag, "<p align=\"center\" style=\" a:b;\">x</p><p align=\"top\">y</p>",
        "<p style=\"text-align:center;  a:b;\">x</p><p style=\"text-align:top\">y</p>");
    row("p-empty", X::fixPTag, "<p style=\"a:b;\"></p><p style=\"a:b;\">x</p>",
        "<p style=\"a:b;\"><br /></p><p style=\"a:b;\">x</p>");
    row("style-space", X::fixStyleSpaces, "<p style=\" a\"><p style=\"  b\">",
        "<p style=\"a\"><p style=\" b\">");
    row("scr-space", X::fixImgScrSpaces, "<img scr=\" a\" src=\" b\">",
        "<img scr=\"a\" src=\" b\">");
    row("img-spaces", X::fixImgSpaces, "<img  scr=\"a\"><img  src=\"b\">",
        "<img scr=\"a\"><img  src=\"b\">");
    row("tag-end", X::fixTagEndSpaces, "<a ><b  >", "<a><b >");
    row("tag-start", X::fixTagStartSpaces, "< a><  b>", "<a>< b>");
    row("style-end", X::fixStyleEnding, "style=\"a:b; \"", "style=\"a:b;\"");
    row("stylesheet", X::addCssStylesheet, "<head></head>",
        "<head>  <link rel=\"stylesheet\" href=\"css/stylesheet.css\" type=\"text/css\" "
        "/>\n</head>");
    row("anchor", X::addDocAnchor, "<body class=\"morvane\">x",
        "<body class=\"morvane\">\n<p><a id=\"start\"></a></p>x");
    row("anchor-bare-body", X::addDocAnchor, "<body>x", "<body>x");
    row("name-id", X::convertAnchorNameToId, "<a name=\"n1\"></a>", "<a id=\"n1\"></a>");
    row("name-www", X::convertAnchorNameToId, "<a name=\"www.example.com\"></a>",
        "<a title=\"www.example.com\"></a>");
    row("name-url", X::convertAnchorNameToId, "<a name=\"https://example.com/a?b=1&amp;c\">",
        "<a title=\"https://example.com/a?b=1&amp;c\">");
    row("name-mail", X::convertAnchorNameToId, "<a name=\"jo@example.com\">",
        "<a title=\"jo@example.com\">");
    row("font-24", X::convertFontSizeToPercent, "font-size:24pt;", "font-size:200%;");
    row("font-13-truncated", X::convertFontSizeToPercent, "font-size:13pt;", "font-size:108%;");
    row("font-fraction-kept", X::convertFontSizeToPercent, "font-size:10.5pt; font-size:12px;",
        "font-size:10.5pt; font-size:12px;");
    row("font-huge-clamped", X::convertFontSizeToPercent, "font-size:9999999999pt;",
        "font-size:2147483647%;");
    row("indent-32", X::convertIndentToEm, "text-indent:32px;", "text-indent:2em;");
    row("indent-0", X::convertIndentToEm, "text-indent:0px;", "text-indent:0em;");
    row("indent-5", X::convertIndentToEm, "text-indent:5px;", "text-indent:0.313em;");
    row("indent-negative-kept", X::convertIndentToEm, "text-indent:-16px;", "text-indent:-16px;");
    row("margins", X::convertMarginToEm,
        "margin-top:12px; margin-right:0px; margin-left:40px; margin-bottom:160px;",
        "margin-top:0.75em; margin-right:0em; margin-left:2.5em; margin-bottom:10em;");
    row("margin-blank-kept", X::convertMarginToEm, "margin-top: 12px;", "margin-top: 12px;");
    row("span", X::convertSpanToP, "<span style=\"a\">x</span>", "<p style=\"a\">x</p>");
    row("no-img", X::removeImgTag, "a<img src=\"x\" />b", "ab");
    row("no-family", X::removeFontFamily,
        "<p style=\" font-family:&quot;O'Brien&quot;; color:red;\">font-family:x;",
        "<p style=\"color:red;\">font-family:x;");
    row("no-alt", X::removeAltTag, "<img alt=\"x\" src=\"y\">", "<img src=\"y\">");
    row("no-comments", X::removeComments, "a<!-- x\n-- -->b<!--y-->c<!-- open", "abc<!-- open");
    row("no-css", X::removeAllInlineCssProperties, "<p style=\"a\" id=\"b\"><i STYLE=\"c\">",
        "<p id=\"b\"><i>");
    row("qt-css", X::removeUnsupportedQtCssProperties,
        "<p style=\"mso-x:1;FONT-SIZE: 9pt ; color:red;margin:1px;text-indent:2px\">",
        "<p style=\"FONT-SIZE: 9pt;text-indent:2px;\">");
}

void tst_Fixups::fixup()
{
    QFETCH(Fix, fix);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QString text = before;
    fix(&text);
    QCOMPARE(text, after);
    QString untouched = QStringLiteral("no markup at all; 12pt");
    fix(&untouched);
    QCOMPARE(untouched, QStringLiteral("no markup at all; 12pt"));
}

void tst_Fixups::nullIsNothing()
{
    X::fixPTag(nullptr);
    X::convertMarginToEm(nullptr);
    X::replaceLinks(nullptr, {{"a", "b"}});
    QString html = QStringLiteral("<p style=\"a:b;\">");
    X::convertStyleToCss(&html, nullptr, true, false);
    QCOMPARE(html, QStringLiteral("<p style=\"a:b;\">"));
}

void tst_Fixups::styleSheet_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("dropFamily");
    QTest::addColumn<QString>("rules"); // "name=value" sorted by name
    QTest::newRow("plain") << " color:red; font-weight:600;" << true
                           << "color=red|font-weight=bold";
    QTest::newRow("weight-504") << "font-weight:504" << true << "font-weight=504";
    QTest::newRow("qt-only") << "-qt-block-indent:0;" << true << "";
    QTest::newRow("family-dropped") << "font-family:'A';a:b" << true << "a=b";
    QTest::newRow("family-escaped")
        << "font-family:&quot;O'Brien&quot;;a:b" << false << "a=b|font-family=\"O'Brien\"";
    QTest::newRow("later-wins") << "a:b;;a: c ;" << false << "a=c";
    QTest::newRow("no-value") << "a;:b" << false << "a=|b=";
    QTest::newRow("url-cut") << "x:url(http://e)" << false << "x=url(http";
}

void tst_Fixups::styleSheet()
{
    QFETCH(QString, style);
    QFETCH(bool, dropFamily);
    QFETCH(QString, rules);
    const QHash<QString, QString> sheet = X::toStyleSheet(style, dropFamily);
    QStringList lines;
    for (auto it = sheet.begin(); it != sheet.end(); ++it) {
        lines.append(it.key() + '=' + it.value());
    }
    lines.sort();
    QCOMPARE(lines.join('|'), rules);
}

void tst_Fixups::decorations_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("result");
    QTest::newRow("underline") << "a:b; text-decoration: underline; c:d;"
                               << "a:b; c:d;";
    QTest::newRow("both") << "text-decoration: underline line-through;"
                          << "";
    QTest::newRow("overline-stays") << "text-decoration: underline overline;"
                                    << "text-decoration:overline;";
    QTest::newRow("none-stays") << "text-decoration:none;"
                                << "text-decoration:none;";
    QTest::newRow("other-property") << "x-text-decoration: underline;"
                                    << "x-text-decoration: underline;";
}

void tst_Fixups::decorations()
{
    QFETCH(QString, style);
    QFETCH(QString, result);
    QCOMPARE(X::removeTextDecorations(style).simplified(), result);
}

void tst_Fixups::trimEm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("whole") << "text-indent:2.000em;"
                           << "text-indent:2em;";
    QTest::newRow("part") << "1.250em; 0.500em;"
                          << "1.25em; 0.5em;";
    QTest::newRow("full") << "0.312em;"
                          << "0.312em;";
    QTest::newRow("no-point") << "10em;"
                              << "10em;";
    QTest::newRow("other-unit") << "1.50px;"
                                << "1.50px;";
}

void tst_Fixups::trimEm()
{
    QFETCH(QString, text);
    QTEST(X::trimEm(text), "result");
}

void tst_Fixups::classes_data()
{
    QTest::addColumn<bool>("kf8");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("count");
    QTest::newRow("numbers") << false << "<p style=\"a:b;\"><p style=\"c:d;\"><p style=\"a:b;\">"
                             << "<p class=\"morvane\"><p class=\"morvane1\"><p class=\"morvane\">"
                             << 2;
    QTest::newRow("equal-rules-share") << false << "<p style=\"a:b; c:d;\"><p style=\"c:d;a:b\">"
                                       << "<p class=\"morvane\"><p class=\"morvane\">" << 1;
    QTest::newRow("empty-rules") << false << "<p style=\"-qt-block-indent:0;\">"
                                 << "<p>" << 0;
    QTest::newRow("upper-case") << false << "<p STYLE=\"a:b\">"
                                << "<p class=\"morvane\">" << 1;
    QTest::newRow("unterminated") << false << "<p style=\"a:b"
                                  << "<p style=\"a:b" << 0;
    QTest::newRow("empty-paragraph")
        << false << "<p style=\"-qt-paragraph-type:empty; a:b;\"><br /></p>"
        << "<p class=\"morvane\">&nbsp;</p>" << 1;
    QTest::newRow("empty-undecorated")
        << false
        << "<p style=\"-qt-paragraph-type:empty; a:b; text-decoration: underline;\"><br /></p>"
        << "<p class=\"morvane1\">&nbsp;</p>" << 2;
    QTest::newRow("empty-with-break")
        << false << "<p style=\"-qt-paragraph-type:empty; page-break-before:always;\"><br /></p>"
        << "<p class=\"morvane\"><br /></p>" << 1;
    QTest::newRow("kf8-break")
        << true << "<p style=\"-qt-paragraph-type:empty; page-break-before:always;\"><br /></p>"
        << "<mbp:pagebreak/>" << 1;
    QTest::newRow("kf8-text-after-break") << true << "<p style=\"page-break-before:always;\">x</p>"
                                          << "<p class=\"morvane\">x</p>" << 1;
}

void tst_Fixups::classes()
{
    QFETCH(bool, kf8);
    QFETCH(QString, before);
    QFETCH(int, count);
    X::StyleList styles;
    X::convertStyleToCss(&before, &styles, true, kf8);
    QTEST(before, "after");
    QCOMPARE(styles.size(), count);
}

// A list that is passed on from page to page keeps its classes and grows.
void tst_Fixups::classNumbers()
{
    X::StyleList styles{{{"a", "b"}}, {{"c", "d"}}};
    QString html = QStringLiteral("<p style=\"e:f\"><p style=\"c:d\"><p style=\"a:b\">");
    X::convertStyleToCss(&html, &styles, true, false);
    QCOMPARE(html,
             QStringLiteral("<p class=\"morvane2\"><p class=\"morvane1\"><p class=\"morvane\">"));
    QCOMPARE(styles.size(), 3);
    QCOMPARE(styles.at(2), (QHash<QString, QString>{{"e", "f"}}));
}

void tst_Fixups::keptStyles()
{
    const QString html = QStringLiteral("<html><head></head><p style=\" text-indent:16px;\">");
    X::StyleList styles;
    QCOMPARE(X::htmlToEpub(html, nullptr), X::htmlToEBook(html));
    QVERIFY(X::htmlToEpub(html, &styles).contains("<p class=\"morvane\">"));
    QCOMPARE(styles, (X::StyleList{{{"text-indent", "1em"}}}));
}

void tst_Fixups::styleSheetText()
{
    const X::StyleList styles{{{"b", "2"}, {"a", "1"}},
                              {{"x", "1}body{y:2"}, {"z", "ok"}, {"u", "url('http"}}};
    QCOMPARE(X::styleSheetText(styles),
             QStringLiteral(".morvane {\n    a: 1;\n    b: 2;\n}\n.morvane1 {\n    z: ok;\n}\n"));
}

void tst_Fixups::links()
{
    QString html =
        QStringLiteral("<a href=\"x?a=1&amp;b=2\">1</a><a href=\"keep\">2</a><a href=\"17\">3</a>");
    X::replaceLinks(&html, {{"x?a=1&b=2", "ch1.xhtml?q=\"&"}, {"17", "ch2.xhtml#start"}});
    QCOMPARE(html,
             QStringLiteral("<a href=\"ch1.xhtml?q=&quot;&amp;\">1</a><a href=\"keep\">2</a><a "
                            "href=\"ch2.xhtml#start\">3</a>"));
}

void tst_Fixups::images()
{
    const QString html = QStringLiteral(
        "<p><img src=\"a&amp;b.png\" /><IMG alt=\"x>y\" src='c.png'><img width=\"1\"></p>");
    QCOMPARE(X::imgUrls(html), QStringList({"a&b.png", "c.png"}));
    QCOMPARE(X::imgTags(html),
             QStringList({"<img src=\"a&amp;b.png\" />", "<IMG alt=\"x>y\" src='c.png'>",
                          "<img width=\"1\">"}));
    QCOMPARE(X::calcImageDir("/tmp/my.book.html"), QStringLiteral("/tmp/my_files"));
}

void tst_Fixups::chains()
{
    const QString qt =
        QStringLiteral("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
                       "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
                       "<html><head><style type=\"text/css\">\np, li { white-space: pre-wrap; "
                       "}\n</style></head><body style=\" font-size:12pt;\">\n"
                       "<p align=\"center\" style=\" margin-top:16px; text-indent:0px;\"><a "
                       "name=\"n\"></a><img src=\"i\" /></p></body></html>");
    X::StyleList styles;
    QCOMPARE(
        X::htmlToEpub(qt, &styles),
        QStringLiteral(
            "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.1//EN\" "
            "\"http://www.w3.org/TR/xhtml11/DTD/xhtml11.dtd\">\n"
            "<html xmlns=\"http://www.w3.org/1999/xhtml\"><head><style "
            "type=\"text/css\">\n\n</style>"
            "  <link rel=\"stylesheet\" href=\"css/stylesheet.css\" type=\"text/css\" />\n</head>"
            "<body class=\"morvane\">\n<p class=\"morvane1\"><a id=\"n\"></a><img alt=\" \" "
            "src=\"i\" /></p></body></html>"));
    QCOMPARE(
        styles,
        (X::StyleList{{{"font-size", "100%"}},
                      {{"text-align", "center"}, {"margin-top", "1em"}, {"text-indent", "0em"}}}));
    X::StyleList kindle;
    QCOMPARE(X::htmlToKindle(qt, &kindle), X::htmlToEpub(qt, &styles));
    QVERIFY(X::htmlToXhtml(qt).contains(
        "<p align=\"center\" style=\" margin-top:16px;")); // pages keep it
}

void tst_Fixups::clipboard()
{
    QCOMPARE(X::mimeHtmlToCleanHtml("< p ><br><img alt=\"q\" src=\"x\"><td width=\"9\"><p "
                                    "style=\"mso-a:b; font-size:9pt; \">"),
             QStringLiteral("<p><br /><img alt=\" \" src=\"x\"><td><p style=\"font-size:9pt;\">"));
}

// Replacing in place would move the rest of the text at every match: 64 times as long here.
void tst_Fixups::manyMatchesAreLinear()
{
    auto clocks = [](int size) {
        const QString html =
            QStringLiteral(
                "<td width=\"1\"><p align=\"center\" style=\" margin-top:8px;\"><br></p>")
                .repeated(size);
        std::clock_t best = std::numeric_limits<std::clock_t>::max();
        for (int run = 0; run < 3; ++run) {
            X::StyleList styles;
            const std::clock_t start = std::clock(); // of this process alone
            X::htmlToEpub(html, &styles);
            best = std::min(best, std::clock() - start);
        }
        return double(best);
    };
    const double growth = clocks(80000) / clocks(10000);
    QVERIFY2(growth < 24, qPrintable(QString::number(growth)));
}

QTEST_APPLESS_MAIN(tst_Fixups)
#include "tst_fixups.moc"
