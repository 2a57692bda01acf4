#include "datarows.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <ctime>
#include <functional>
#include <limits>

using X = MRVTextXhtmlExporter;

namespace {

QString sheetText(const QString &style, bool dropFamilies)
{
    const QHash<QString, QString> sheet = X::toStyleSheet(style, dropFamilies);
    QStringList lines;
    for (auto it = sheet.begin(); it != sheet.end(); ++it) {
        lines.append(it.key() + '=' + it.value());
    }
    lines.sort();
    return lines.join('|');
}

QString classText(QString html, bool kindleKF8)
{
    X::StyleList styles;
    X::convertStyleToCss(&html, &styles, true, kindleKF8);
    return html + ' ' + QString::number(styles.size());
}

std::function<QString(const QString &)> functionNamed(const QString &name)
{
#define FIXUP(function)                                                                            \
    {                                                                                              \
#function, [](QString text) { X::function(&text); return text; }                                   \
    }
    static const QHash<QString, std::function<QString(const QString &)>> functions{
        FIXUP(fixDoctypeTag),
        FIXUP(fixHtmlTag),
        FIXUP(fixBrTag),
        FIXUP(fixImgTag),
        FIXUP(fixPTag),
        FIXUP(fixLiAlign),
        FIXUP(fixDoubleStyleAttr),
        FIXUP(fixParPreWrap),
        FIXUP(fixTdWidthTag),
        FIXUP(fixTdBgcolorTag),
        FIXUP(fixStyleSpaces),
        FIXUP(fixImgScrSpaces),
        FIXUP(fixImgSpaces),
        FIXUP(fixTagEndSpaces),
        FIXUP(fixTagStartSpaces),
        FIXUP(fixStyleEnding),
        FIXUP(addCssStylesheet),
        FIXUP(addDocAnchor),
        FIXUP(convertAnchorNameToId),
        FIXUP(convertFontSizeToPercent),
        FIXUP(convertMarginToEm),
        FIXUP(convertIndentToEm),
        FIXUP(convertSpanToP),
        FIXUP(removeImgTag),
        FIXUP(removeFontFamily),
        FIXUP(removeAltTag),
        FIXUP(removeComments),
        FIXUP(removeAllInlineCssProperties),
        FIXUP(removeUnsupportedQtCssProperties),
        {"trimEm", X::trimEm},
        {"removeTextDecorations",
         [](const QString &text) { return X::removeTextDecorations(text).simplified(); }},
        {"toStyleSheet", [](const QString &text) { return sheetText(text, true); }},
        {"toStyleSheet with families", [](const QString &text) { return sheetText(text, false); }},
        {"convertStyleToCss", [](const QString &text) { return classText(text, false); }},
        {"convertStyleToCss for KF8", [](const QString &text) { return classText(text, true); }},
        {"mimeHtmlToCleanHtml", X::mimeHtmlToCleanHtml},
    };
#undef FIXUP
    return functions.value(name);
}

} // namespace

/** The textual fix-ups, each on its own, and the whole-text chains that they make. */
class tst_Fixups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void function_data() { addRows("fixups.tsv"); }
    void function()
    {
        QFETCH(QString, function);
        const auto convert = functionNamed(function);
        QVERIFY2(convert, qPrintable(function));
        QTEST(convert(cell("before")), "after");
    }

    void nullIsNothing()
    {
        X::fixPTag(nullptr);
        X::convertMarginToEm(nullptr);
        X::replaceLinks(nullptr, {{"a", "b"}});
        QString html = "<p style=\"a:b;\">";
        X::convertStyleToCss(&html, nullptr, true, false);
        QCOMPARE(html, QString("<p style=\"a:b;\">"));
    }

    // A list that is passed on from page to page keeps its classes and grows.
    void classNumbers()
    {
        X::StyleList styles{{{"a", "b"}}, {{"c", "d"}}};
        QString html = "<p style=\"e:f\"><p style=\"c:d\"><p style=\"a:b\">";
        X::convertStyleToCss(&html, &styles, true, false);
        QCOMPARE(html,
                 QString("<p class=\"morvane2\"><p class=\"morvane1\"><p class=\"morvane\">"));
        QCOMPARE(styles.mid(2), (X::StyleList{{{"e", "f"}}}));
    }

    void styleSheetText()
    {
        const X::StyleList styles{{{"b", "2"}, {"a", "1"}},
                                  {{"x", "1}body{y:2"}, {"z", "ok"}, {"u", "url('http"}},
                                  {{"vertical-align", "sub"}}};
        QCOMPARE(X::styleSheetText(styles),
                 QString(".morvane {\n    a: 1;\n    b: 2;\n}\n.morvane1 {\n    z: ok;\n}\n"
                         ".morvane2 {\n    font-size: 70%;\n    line-height: 0;\n"
                         "    vertical-align: sub;\n}\n"));
    }

    void links()
    {
        QString html = "<a href=\"x?a=1&amp;b=2\">1</a><a href=\"keep\">2</a><a href=\"17\">3</a>";
        X::replaceLinks(&html, {{"x?a=1&b=2", "ch1.xhtml?q=\"&"}, {"17", "ch2.xhtml#start"}});
        QCOMPARE(html,
                 QString("<a href=\"ch1.xhtml?q=&quot;&amp;\">1</a><a href=\"keep\">2</a>"
                         "<a href=\"ch2.xhtml#start\">3</a>"));
    }

    void images()
    {
        const QStringList tags{"<img src=\"a&amp;b.png\" />", "<IMG alt=\"x>y\" src='c.png'>",
                               "<img width=\"1\">"};
        QCOMPARE(X::imgTags("<p>" + tags.join("</p><image>") + "<p>"), tags);
        QCOMPARE(X::imgUrls(tags.join(' ')), QStringList({"a&b.png", "c.png"}));
        QCOMPARE(X::imgTags("<img src='" + QString(1000000, 'x') + "'><img>").size(), 2);
        QCOMPARE(X::calcImageDir("/tmp/my.book.html"), QString("/tmp/my_files"));
    }

    void chains()
    {
        const QStringList row = rowsOf("chain.tsv").value(0);
        const QString qt = row.value(0);
        X::StyleList styles;
        QCOMPARE(X::htmlToEpub(qt, &styles), row.value(1));
        QCOMPARE(styles,
                 (X::StyleList{
                     {{"font-size", "100%"}},
                     {{"text-align", "center"}, {"margin-top", "1em"}, {"text-indent", "0em"}}}));
        X::StyleList kindle;
        QCOMPARE(X::htmlToKindle(qt, &kindle), row.value(1));
        QCOMPARE(X::htmlToEpub(qt, nullptr), X::htmlToEBook(qt));
        QVERIFY(X::htmlToXhtml(qt).contains(
            "<p align=\"center\" style=\" margin-top:16px;")); // pages keep it
    }

    // Replacing in place would move the rest of the text at every match: 64 times as long here.
    void manyMatchesAreLinear()
    {
        auto clocks = [](int size) {
            const QString row =
                "<td width=\"1\"><p align=\"center\" style=\" margin-top:8px;\"><br></p>";
            const QString html = row.repeated(size);
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
};

QTEST_APPLESS_MAIN(tst_Fixups)
#include "tst_fixups.moc"
