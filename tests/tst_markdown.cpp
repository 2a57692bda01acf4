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
};

QTEST_GUILESS_MAIN(TestMarkdown)

#include "tst_markdown.moc"
