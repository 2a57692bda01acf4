#include "datarows.h"

#include "markdown/mrvmarkdown.h"

namespace {

const QHash<QChar, MRVMarkdown::Option> optionsByLetter{
    {'s', MRVMarkdown::SmartPunctuation},
    {'n', MRVMarkdown::Footnotes},
    {'d', MRVMarkdown::DefinitionLists},
    {'x', MRVMarkdown::SubAndSuperscript},
};

MRVMarkdown::Options optionsOf(const QString &letters)
{
    MRVMarkdown::Options options;
    for (const QChar letter : letters) {
        options |= optionsByLetter.value(letter);
    }
    return options;
}

/** The HTML in one line, without places and what else cmark adds to notes. */
QString shortened(const QString &html)
{
    static const QRegularExpression addition(
        " (?:data-[a-z-]+|class|aria-label)(?:=\"[^\"]*\")?|\\n(?=<)|(?<=>)\\n");
    return QString(html).remove(addition).trimmed();
}

} // namespace

class TestMarkdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void html_data() { addRows("markdown.tsv", {"name", "options", "markdown", "html"}); }
    void html()
    {
        const QString html = MRVMarkdown::toHtml(cell("markdown"), optionsOf(cell("options")));
        QCOMPARE(shortened(html), cell("html"));
    }

    void head_data()
    {
        addRows("markdown-heads.tsv",
                {"markdown", "title", "authors", "description", "language", "date", "html"});
    }
    void head()
    {
        MRVMarkdownHead head;
        head.title = "of another text";
        const QString html = MRVMarkdown::toHtml(cell("markdown"), MRVMarkdown::NoOptions, &head);
        QCOMPARE(head.title, cell("title"));
        QCOMPARE(head.authors.join('|'), cell("authors"));
        QCOMPARE(head.description, cell("description"));
        QCOMPARE(head.language, cell("language"));
        QCOMPARE(head.date, cell("date"));
        QCOMPARE(shortened(html), cell("html"));
    }

    // Lines count from the first of the text, whatever ends them and is taken from them.
    void places()
    {
        const QString html = MRVMarkdown::toHtml(
            "---\r\ntitle: a\r\n---\r# b\n\n> c\r\nd\n\ne\n: f", MRVMarkdown::DefinitionLists);
        QStringList places;
        static const QRegularExpression place("<(\\w+)[^>]* data-sourcepos=\"([^\"]*)\"");
        for (auto it = place.globalMatch(html); it.hasNext();) {
            const auto match = it.next();
            places << match.captured(1) + ' ' + match.captured(2);
        }
        QCOMPARE(places.join(", "),
                 QString("h1 4:1-4:3, blockquote 6:1-7:1, p 6:3-7:1, dl 10:1-10:3, dt 9:1-9:1, "
                         "dd 10:1-10:3, p 10:3-10:3"));
    }

    void invalidCharacters()
    {
        const QString pair = QString::fromUcs4(U"\U0001f600");
        const QString text =
            QString("a") + QChar(0) + 'b' + pair.at(0) + 'c' + pair.at(1) + pair + pair.at(0);
        QCOMPARE(shortened(MRVMarkdown::toHtml(text)),
                 QString("<p>a%1b%1c%1%2%1</p>").arg(QChar(0xfffd), pair));
        QVERIFY(MRVMarkdown::toHtml(QString()).isEmpty());
    }

    // Each part is repeated so often that cmark would take minutes or gigabytes; the same a few
    // times, or in paragraphs of their own, is read.
    void costly_data()
    {
        addRows("markdown-costly.tsv", {"name", "options", "before", "part", "times", "after"});
    }
    void costly()
    {
        const auto text = [](int times) {
            return cell("before") + cell("part").repeated(times) + cell("after").repeated(times);
        };
        const MRVMarkdown::Options options = optionsOf(cell("options"));
        const int times = cell("times").toInt();
        QVERIFY(!MRVMarkdown::toHtml(text(20), options).isNull());
        // Of the process: the machine may be busy with other things.
        const std::clock_t start = std::clock();
        QVERIFY(MRVMarkdown::toHtml(text(times), options).isNull());
        const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
        QVERIFY2(seconds < 5, qPrintable(QString::number(seconds)));
        QVERIFY(!MRVMarkdown::toHtml((text(20) + "\n\n").repeated(100), options).isNull());
    }
};

QTEST_GUILESS_MAIN(TestMarkdown)

#include "tst_markdown.moc"

#include <ctime>
