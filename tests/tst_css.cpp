#include "css/mrvcssvalue.h"
#include "css/mrvstylesheet.h"

#include <QtTest>

#include <ctime>
#include <deque>

namespace {

QString textOf(const QVector<MRVCssDeclaration> &declarations)
{
    QStringList texts;
    for (const MRVCssDeclaration &one : declarations) {
        texts << one.property + ":" + one.value + (one.important ? "!" : "");
    }
    return texts.join("; ");
}

/// Elements that know their place. A deque keeps them where they are.
struct Tree
{
    std::deque<MRVCssElement> elements;

    /// Appends to @p parent what "p.class#id[name=value]" describes.
    MRVCssElement *add(MRVCssElement *parent, const QString &text)
    {
        static const QRegularExpression piece("([.#]?)([\\w-]+)|\\[([\\w:]+)=([^\\]]*)\\]");
        MRVCssElement element;
        element.parent = parent;
        for (auto it = piece.globalMatch(text); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            if (!match.captured(3).isEmpty()) {
                element.attributes.append({match.captured(3), match.captured(4)});
            } else if (match.captured(1) == ".") {
                element.classes << match.captured(2);
            } else {
                (match.captured(1) == "#" ? element.id : element.name) = match.captured(2);
            }
        }
        for (MRVCssElement &other : elements) {
            if (other.parent == parent) {
                other.isLast = false;
                element.previous = &other;
                element.typeIndex += other.name == element.name ? 1 : 0;
                ++element.index;
            }
        }
        element.isLast = true;
        elements.push_back(element);
        return &elements.back();
    }
};

/// The elements have an id each, by which the rows name them.
void fillPage(Tree &tree)
{
    MRVCssElement *html = tree.add(nullptr, "html#H[lang=en-GB]");
    MRVCssElement *body = tree.add(html, "body#B.book.main");
    tree.add(body, "h1#T.title");
    tree.add(body, "p#a.first");
    tree.add(body, "p#b.x.y[title=One Two][epub:type=note]");
    MRVCssElement *box = tree.add(body, "div#c.x[lang=de]");
    tree.add(box, "p#d");
    tree.add(box, "a#e[href=#T]");
    tree.add(tree.add(box, "div#f"), "p#g.x");
    tree.add(body, "p#h[align=CENTER]");
}

} // namespace

/** Style sheets: what the selectors match, how faults are passed over, which declaration wins. */
class tst_Css : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectors_data();
    void selectors();
    void sheets_data();
    void sheets();
    void shorthands_data();
    void shorthands();
    void imports();
    void lengths_data();
    void lengths();
    void colors_data();
    void colors();
    void parts();
    void limits();
    void hostile_data();
    void hostile();
    void manyElements();
};

void tst_Css::selectors_data()
{
    QTest::addColumn<QString>("expected"); // the ids of the elements, in order
    const auto row = [](const char *selector, const char *ids) { QTest::newRow(selector) << ids; };
    row("p", "abdgh");
    row("P", "abdgh");
    row("*", "HBTabcdefgh");
    row(".x", "bcg");
    row(".y.x", "b");
    row("p.x", "bg");
    row("#a, #b , h1", "Tab");
    row("p#b.x", "b");
    row("#a#b", "");
    row(".X", "");
    row("\\70.\\000078 y", "");
    row("\\70.\\000078", "bg");
    row("svg|p, *|p", "abdgh");
    row("[title]", "b");
    row("[title='One Two']", "b");
    row("[title=One]", "");
    row("[title~=One]", "b");
    row("[title~='One Two']", "");
    row("[title^=One]", "b");
    row("[title$=o]", "b");
    row("[title*='e T']", "b");
    row("[title*='']", "");
    row("[lang|=en]", "H");
    row("[ALIGN = center]", "");
    row("[align=center i]", "h");
    row("[epub|type~=note]", "b");
    row("[epub\\:type]", "b");
    row("body p", "abdgh");
    row("body > p", "abh");
    row("body>p:first-child", "");
    row("h1 + p", "a");
    row("h1 ~ p", "abh");
    row("p + p", "b");
    row("div p", "dg");
    row("div div p", "g");
    row("html > body > div p", "dg");
    row("div > p + a", "e");
    row(".x > .x", "");
    row(".x ~ .x", "c");
    row("h1 ~ div > p", "d");
    row("h1 + p + p ~ p", "h");
    row(".first ~ * .x", "g");
    row("body > div div > p", "g"); // the nearest div is not the body's
    row(".title ~ .x p", "dg");
    row(".title + .x p", "");
    row("p:first-child", "dg");
    row(":last-child", "HBfgh");
    row(":only-child", "HBg");
    row("p:nth-child(2n)", "a");
    row("p:nth-child(odd)", "bdgh");
    row("body > :nth-child( -n + 2 )", "Ta");
    row("body > :nth-child(n+4)", "ch");
    row("body > :nth-child(3)", "b");
    row("p:first-of-type", "adg");
    row("p:nth-of-type(2n+1)", "adgh");
    row(":root", "H");
    row(":link", "e");
    row(":lang(en) > p", "abh");
    row("p:lang(de)", "dg");
    row("p:not(.x)", "adh");
    row("p:not(.x, :first-child)", "ah");
    row("p:not(:hover)", "abdgh");
    row("p:not(:empty)", ""); // not known, so neither the one nor the other
    row(":is(h1, .first)", "Ta");
    row("p:hover, h1", "T");
    row("p::first-line, h1", "T");
    row("p:before", "");
    row("p:unknown, h1", "");
    row("p::unknown, h1", "");
    row("p::before.x, h1", "");
    row("p:after > a, h1", "");
    row("p:not(::before), h1", "");
    row("p::before:hover, h1", "T");
    row("p::before:root, h1", "");
    row("p,, h1", "");
    row("p,", "");
    row("p >, h1", "");
    row("> p", "");
    row("p > > a", "");
    row("p!, h1", "");
    row("p[title, h1", "");
    row("#1a, h1", "");
    row(".1a, h1", "");
    row("p:nth-child(x), h1", "");
}

void tst_Css::selectors()
{
    Tree tree;
    fillPage(tree);
    MRVStyleSheet sheet;
    QVERIFY(sheet.add(QString(QTest::currentDataTag()) + " { a: b }"));
    for (int pass = 0; pass < 2; ++pass) { // the second time from memory
        QString ids;
        for (const MRVCssElement &element : tree.elements) {
            const int count = sheet.declarations(element).size();
            ids += count > 0 ? element.id : QString();
        }
        QTEST(ids, "expected");
    }
}

void tst_Css::sheets_data()
{
    QTest::addColumn<QString>("expected"); // what p#b gets, in order
    const auto row = [](const char *sheet, const char *got) { QTest::newRow(sheet) << got; };
    row("p { Color : RED ; }", "color:RED");
    row("p{a:b}p{c:d}", "a:b; c:d");
    row("p{a:1} body p{a:3} .x{a:2} *{a:0}", "a:0; a:1; a:3; a:2");
    row("#b{a:3} .x.y[title]{a:2} p:not(#z){a:4}", "a:2; a:3; a:4");
    row("p, .x {a:1} p{a:2}", "a:1; a:2; a:1");
    row(":is(#q, p){a:2} .x{a:1} :where(#b){a:0}", "a:0; a:1; a:2");
    row("p{a:1 !important; b:2} .x{a:2; b:3!IMPORTANT}", "b:2; a:2; a:1!; b:3!");
    row("p/**/{/* ; */a:/*}*/b/**/c/* */;}/*", "a:b c");
    row("<!-- p{a:b} -->p{c:d}", "a:b; c:d");
    row("p{a:'x;}\\'' \"y\"}p{c:d}", "a:'x;}\\'' \"y\"; c:d");
    row("p{a:'x\n;c:d}p{e:f}", "c:d; e:f"); // a string ends with its line
    row("p{a:'x\\\ny'}", "a:'x\\\ny'");
    row("p{a:url( x;y.png );b:url('q)')}", "a:url( x;y.png ); b:url('q)')");
    row("p{a:url(x'y);c:d}", "c:d");
    row("p{a:b;c;d:e;:f;g:;h:{i:j};k:l}", "a:b; d:e; k:l");
    row("p{a:hover b{c:d}e:f;@x{}g:h}", "e:f; g:h");
    row("p{a:(b;c:d);e:f}", "a:(b;c:d); e:f");
    row("p{a:b);c:d]}p{e:f}", "e:f");
    row("p{a:[b;c:d}p{e:f}", ""); // an open bracket takes what follows
    row("p{a:b", "a:b");
    row("p{a:rgb(1,2", "a:rgb(1,2)");
    row("p{a:b}}p{c:d}p{e:f}", "a:b; e:f");
    row("p{a:b !x;c:d ! important;e:f!important!important}", "c:d!");
    row("p{*a:b;_c:d;--E:f}", "_c:d; --e:f");
    row("p ! {a:b} p{c:d}", "c:d");
    row("p;p{a:b}p{c:d}", "c:d");
    row("@charset 'x';@namespace a 'b';p{a:b}", "a:b");
    row("@font-face{p{a:b}}@page :first{a:b}p{c:d}", "c:d");
    row("p{@media print{a:b}c:d;@x y;e:f}", "c:d; e:f");
    row("@media{p{a:b}}@media all{p{c:d}}@media print,only SCREEN{p{e:f}}", "a:b; c:d; e:f");
    row("@media print{@page{a:b}p{a:b}}@media speech{p{a:b}}p{c:d}", "c:d");
    row("@media (max-width:9px){p{a:b}}@media not print{p{a:b}}p{c:d}", "c:d");
    row("@media screen and (prefers-color-scheme:dark){p{a:b}}p{c:d}", "c:d");
    row("@media screen{@media all{p{a:b}}p{c:d}x{}p}p{e:f}", "a:b; c:d; e:f");
    row("@supports (a:b){p{a:b}}@unknown{{}}p{c:d}", "c:d");
}

void tst_Css::sheets()
{
    Tree tree;
    fillPage(tree);
    MRVStyleSheet sheet;
    QVERIFY(sheet.add(QTest::currentDataTag()));
    QTEST(textOf(sheet.declarations(tree.elements[4])), "expected");
}

void tst_Css::shorthands_data()
{
    QTest::addColumn<QString>("expected"); // compared with the beginning where it ends in "..."
    const auto row = [](const char *text, const char *got) { QTest::newRow(text) << got; };
    row("margin:1px", "margin-top:1px; margin-right:1px; margin-bottom:1px; margin-left:1px");
    row("margin:1px auto",
        "margin-top:1px; margin-right:auto; margin-bottom:1px; margin-left:auto");
    row("padding:1px 2px 3px!important",
        "padding-top:1px!; padding-right:2px!; padding-bottom:3px!; padding-left:2px!");
    row("margin:1 2 3 4", "margin-top:1; margin-right:2; margin-bottom:3; margin-left:4");
    row("margin:1 2 3 4 5;margin:1/2", "");
    row("margin:inherit", "margin-top:inherit; margin-right:inherit; ...");
    row("border-style:solid none",
        "border-top-style:solid; border-right-style:none; border-bottom-style:solid; "
        "border-left-style:none");
    row("border-left:solid",
        "border-left-width:medium; border-left-style:solid; border-left-color:currentcolor");
    row("border:rgb(1, 2, 3) dotted .5em",
        "border-top-width:.5em; border-top-style:dotted; border-top-color:rgb(1, 2, 3); "
        "border-right-width:.5em; ...");
    row("border:0", "border-top-width:0; border-top-style:none; ...");
    row("border:solid dotted;border:1px bogus", "");
    row("font:italic small-caps bold 12pt/1.5 'A, B', serif",
        "font-style:italic; font-variant:small-caps; font-weight:bold; font-size:12pt; "
        "line-height:1.5; font-family:'A, B', serif");
    row("font:700 large Times New Roman",
        "font-style:normal; font-variant:normal; font-weight:700; font-size:large; "
        "line-height:normal; font-family:Times New Roman");
    row("font:12px;font:serif;font:12px/ x;font:bogus 12px x;font:menu", "");
    row("background:url(a b.png) red;background:#FFF url(\"a b\") no-repeat 0 0 / 50%",
        "background-color:#FFF; background-image:url(\"a b\")");
    row("background:none", "background-color:transparent; background-image:none");
    row("background:red blue", "");
    row("list-style:square inside",
        "list-style-type:square; list-style-position:inside; list-style-image:none");
    row("list-style:none", "list-style-type:none; list-style-position:outside; ...");
    row("text-decoration:underline overline wavy red",
        "text-decoration-line:underline overline; text-decoration-style:wavy; "
        "text-decoration-color:red");
    row("text-decoration:none", "text-decoration-line:none; ...");
    row("text-decoration:bogus", "");
}

void tst_Css::shorthands()
{
    QFETCH(QString, expected);
    QString got = textOf(MRVStyleSheet::parseDeclarations(QTest::currentDataTag()));
    if (expected.endsWith("...")) {
        expected.chop(3);
        got.truncate(expected.size());
    }
    QCOMPARE(got, expected);
}

void tst_Css::imports()
{
    QCOMPARE(MRVStyleSheet::imports("/**/ @charset 'u';<!-- @IMPORT 'a.css'; @import url( b.css );"
                                    "@import url('c d') screen, tv;@import 'no' print;@import;"
                                    "@import 'no' supports(x);@layer x;@import \"\\65\";"
                                    "p{} @import 'late';"),
             (QStringList{"a.css", "b.css", "c d", "e"}));
    QVERIFY(MRVStyleSheet::fitsMedia(""));
    QVERIFY(!MRVStyleSheet::fitsMedia("print"));
}

void tst_Css::lengths_data()
{
    QTest::addColumn<QString>("expected"); // pixels with em 20, rem 10 and 100% = 50; else invalid
    const auto row = [](const char *text, const char *pixels) { QTest::newRow(text) << pixels; };
    row("0", "0");
    row(" 1.5EM ", "30");
    row("-.5em", "-10");
    row("+1e1px", "10");
    row("1e-1em", "2");
    row("2rem", "20");
    row("1ex", "10");
    row("3ch", "30");
    row("10%", "5");
    row("72pt", "96");
    row("6pc", "96");
    row("1in", "96");
    row("2.54cm", "96");
    row("25.4mm", "96");
    row("101.6q", "96");
    row("thin", "1");
    row("Medium", "3");
    row("thick", "5");
    row("9e999px", "1e+09");
    row("1.5", "number");
    row("", "invalid");
    row("1 px", "invalid");
    row("1.px", "invalid");
    row("1vw", "invalid");
    row("calc(1px)", "invalid");
    row("auto", "invalid");
    row("1px;", "invalid");
}

void tst_Css::lengths()
{
    const MRVCssLength length = MRVCssLength::parsed(QTest::currentDataTag());
    bool ok = false;
    const double pixels = length.toPixels(20, 10, 50, &ok);
    const QString other = length.isValid() ? "number" : "invalid";
    QTEST(ok ? QString::number(pixels) : other, "expected");
}

void tst_Css::colors_data()
{
    QTest::addColumn<QString>("expected"); // #aarrggbb; empty for an invalid colour
    const auto row = [](const char *text, const char *argb) { QTest::newRow(text) << argb; };
    row("Red", "#ffff0000");
    row("rebeccapurple", "#ff663399");
    row("transparent", "#00000000");
    row("#f80", "#ffff8800");
    row("#F808", "#88ff8800");
    row("#123456", "#ff123456");
    row("#12345678", "#78123456");
    row("rgb(255, 0,128)", "#ffff0080");
    row("rgb(100% 0% 0% / 50%)", "#80ff0000");
    row("RGBA(0,0,0,.2)", "#33000000");
    row("rgb(999,-5,0)", "#ffff0000");
    row("hsl(120, 100%, 25%)", "#ff008000");
    row("hsla(-0.5turn 100% 50% / 1)", "#ff00ffff");
    row("currentcolor", "");
    row("light blue", "");
    row("light\\ blue", "");
    row("'red'", "");
    row("#12", "");
    row("#ggg", "");
    row("rgb(1,2)", "");
    row("rgb(1,2,x)", "");
    row("cmyk(1,2,3)", "");
}

void tst_Css::colors()
{
    const QColor color = mrvCssColor(QTest::currentDataTag());
    QTEST(color.isValid() ? color.name(QColor::HexArgb) : "", "expected");
}

void tst_Css::parts()
{
    QCOMPARE(mrvCssParts(" 1em/2 'a b',url( x ) f(1, 2)/**/g "),
             (QStringList{"1em", "/", "2", "'a b'", ",", "url( x )", "f(1, 2)", "g"}));
    QCOMPARE(mrvCssText("'a\\20 b'"), "a b");
    QCOMPARE(mrvCssText("url( a.png )"), "a.png");
    QCOMPARE(mrvCssText("URL('a b')"), "a b");
    QCOMPARE(mrvCssText("Times  New/**/Roman"), "Times New Roman");
    QCOMPARE(mrvCssText("attr(x)"), "");
}

void tst_Css::limits()
{
    Tree tree;
    const MRVCssElement *p = tree.add(nullptr, "p");
    MRVStyleSheet sheet;
    QVERIFY(sheet.add("p{a:b}"));
    QVERIFY(!sheet.add("p{c:d}" + QString("p{e:f}").repeated(100000)));
    QVERIFY(!sheet.add("p{" + QString("c:d;").repeated(500000) + "}"));
    QCOMPARE(textOf(sheet.declarations(*p)), "a:b");
    QVERIFY(MRVStyleSheet::parseDeclarations(QString("c:d;").repeated(500001)).isEmpty());
    QVERIFY(sheet.add(QString("* ").repeated(40) + ", p {g:h}"));
    QCOMPARE(textOf(sheet.declarations(*p)), "a:b; g:h");

    // Origins: the program's own sheet is weaker, whatever its selectors; its "important" is not.
    MRVStyleSheet both;
    QVERIFY(both.add("p{a:1!important} :root{a:2}", MRVStyleSheet::Origin::Program));
    QVERIFY(both.add("p{a:3;b:4!important}"));
    QCOMPARE(textOf(both.declarations(*p, MRVStyleSheet::parseDeclarations("a:5;a:6!important"))),
             "a:2; a:3; a:5; b:4!; a:6!; a:1!");
}

void tst_Css::hostile_data()
{
    QTest::addColumn<QString>("sheet");
    const auto numbered = [](const QString &rule) {
        QString sheet;
        for (int i = 0; i < 90000; ++i) {
            sheet += QString(rule).replace('%', QString::number(i));
        }
        return sheet;
    };
    const int many = 1000000;
    QTest::newRow("combinators") << QString("a>").repeated(many) + "a{b:c}";
    QTest::newRow("descendants") << numbered("q div div div div div div p{a:%}");
    QTest::newRow("children") << numbered("q>div div>div div>div div>div p{a:%}");
    QTest::newRow("siblings") << numbered("q ~ div ~ div+div ~ div p{a:%}");
    QTest::newRow("universal") << numbered("*{a:%}");
    QTest::newRow("classes") << QString(".x").repeated(many) + "{b:c}";
    QTest::newRow("one-list") << QString("p,").repeated(many) + "p{b:c}";
    QTest::newRow("nots") << QString(":not(").repeated(many);
    QTest::newRow("brackets") << QString("([{").repeated(many);
    QTest::newRow("blocks") << QString("p{").repeated(many);
    QTest::newRow("media") << QString("@media all{").repeated(many) + "p{a:b}";
    QTest::newRow("comments") << QString("/*").repeated(many);
    QTest::newRow("quotes") << QString("\"\n").repeated(many);
    QTest::newRow("escapes") << QString("\\").repeated(many);
    QTest::newRow("substring") << numbered("[title*=" + QString("x").repeated(500) + "y]{a:%}");
}

void tst_Css::hostile()
{
    QFETCH(QString, sheet);
    Tree tree;
    MRVCssElement *outer = tree.add(nullptr, "html");
    for (int i = 0; i < 1000; ++i) {
        outer = tree.add(outer, "div.x");
        outer->attributes.append({"title", QString("x").repeated(1000)});
    }
    for (int i = 0; i < 1000; ++i) {
        tree.add(outer, "p.x[title=x]");
    }
    // Of the process: the machine may be busy with other things.
    const std::clock_t start = std::clock();
    MRVStyleSheet rules;
    rules.add(sheet);
    for (const MRVCssElement &element : tree.elements) {
        rules.declarations(element);
    }
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 20, qPrintable(QString::number(seconds)));
}

void tst_Css::manyElements()
{
    QString text = "h1 ~ p {a:b} p + p {c:d} hr ~ .x {e:f}";
    for (int i = 0; i < 2000; ++i) {
        text += QString(".c%1{a:b} .d%1 p{c:d} #e%1 > .f{g:h}").arg(i);
    }
    MRVStyleSheet sheet;
    QVERIFY(sheet.add(text));
    const int count = 100000;
    QVector<MRVCssElement> elements(count + 1);
    for (int i = 1; i <= count; ++i) {
        elements[i].parent = &elements[0];
        elements[i].previous = i > 1 ? &elements[i - 1] : nullptr;
        elements[i].name = "p";
        elements[i].id = QString::number(i);
        elements[i].classes << "c" + QString::number(i % 9) << "x";
    }
    int declarations = 0;
    for (int i = 1; i <= count; ++i) {
        declarations += sheet.declarations(elements[i]).size();
    }
    QCOMPARE(declarations, 2 * count - 1); // each its class, all but one a neighbour
    QVERIFY(!sheet.isExhausted()); // as it would be if each looked at all before it
}

QTEST_GUILESS_MAIN(tst_Css)
#include "tst_css.moc"
