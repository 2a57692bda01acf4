#include "script/mrvfountain.h"

#include "datarows.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QtTest>

using Element = MRVFountainElement;
using Run = MRVFountainRun;

namespace {

/// What a random text is made of: all that means something, and a little that does not.
QString randomText(QRandomGenerator *random, bool lines)
{
    static const QStringList parts{
        "*",   "**",  "***", "_",  "\\",     "\\\\",   "[",     "]",  "[[",   "]]",    "/", "/*",
        "*/",  "#",   "#1#", "^",  "<",      ">",      "(",     ")",  ".",    "..",    "!", "@",
        "=",   "===", "~",   ":",  " ",      "  ",     "\t",    "a",  "b",    "A",     "B", "INT. ",
        "TO:", "É",   "ß",   "語", "\u00a0", "\ufffc", "Key: ", "\n", "\n\n", "\n  \n"};
    QString text;
    for (int left = random->bounded(8); left > 0; --left)
        text += parts.at(random->bounded(parts.size() - (lines ? 0 : 3)));
    return text;
}

MRVFountainRuns randomRuns(QRandomGenerator *random)
{
    MRVFountainRuns runs;
    for (int left = random->bounded(5); left > 0; --left) {
        const int kind = random->bounded(8);
        runs.append({randomText(random, true), Run::Emphasis(random->bounded(8)),
                     kind == 0       ? Run::Note
                         : kind == 1 ? Run::Boneyard
                                     : Run::Text});
    }
    return runs;
}

MRVFountainScript randomScript(QRandomGenerator *random)
{
    MRVFountainScript script;
    for (int left = qMax(0, random->bounded(6) - 3); left > 0; --left)
        script.titles.append({randomText(random, true), randomRuns(random)});
    for (int left = random->bounded(6); left > 0; --left) {
        Element element;
        element.kind = Element::Kind(random->bounded(Element::KindCount));
        element.runs = randomRuns(random);
        element.sceneNumber = random->bounded(2) ? randomText(random, false) : QString();
        element.dual = random->bounded(2);
        element.level = 1 + random->bounded(3);
        script.elements.append(element);
    }
    return script;
}

const char *const kindNames[] = {"action",  "scene",      "cue",      "paren", "speech",
                                 "lyrics",  "transition", "centered", "note",  "bone",
                                 "section", "synopsis",   "break"};

QString dump(const MRVFountainRuns &runs)
{
    QString text;
    for (const Run &run : runs) {
        QString marks;
        for (int style = 0; style < 3; ++style)
            marks += run.emphasis & Run::Style(1 << style) ? QString("ibu"[style]) : QString();
        marks += run.kind == Run::Note ? "N" : run.kind == Run::Boneyard ? "Y" : "";
        text += marks.isEmpty() ? run.text : QString("{%1:%2}").arg(marks, run.text);
    }
    return text.replace('\n', '/');
}

QString dump(const MRVFountainScript &script)
{
    QStringList lines;
    for (const MRVFountainTitle &title : script.titles)
        lines << QString("title %1=%2").arg(title.key, dump(title.value));
    for (const Element &element : script.elements) {
        QString line = kindNames[element.kind];
        line += element.level > 1 ? QString::number(element.level) : QString();
        line += element.dual ? "^" : "";
        line += element.sceneNumber.isEmpty() ? QString() : '#' + element.sceneNumber;
        lines << line + ' ' + dump(element.runs);
    }
    return lines.join('|');
}

} // namespace

/// Scripts as Fountain texts and as documents.
class TestFountain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { addRows("fountain.tsv", {"name", "text", "dumped", "written"}); }
    void texts();
    void randomScripts();
    void randomTexts();
};

void TestFountain::texts()
{
    QFETCH(QString, text);
    QFETCH(QString, dumped);
    QFETCH(QString, written);
    const MRVFountainScript script = MRVFountainScript::fromText(text);
    QCOMPARE(dump(script), dumped);
    QCOMPARE(script.toText(), written.isEmpty() ? text : written);
}

void TestFountain::randomScripts()
{
    const int count = qEnvironmentVariableIntValue("MRV_RANDOM_SCRIPTS");
    for (int seed = 0; seed < qMax(count, 3000); ++seed) {
        QRandomGenerator random(seed);
        const MRVFountainScript script = randomScript(&random);
        const MRVFountainScript normal = script.normalized();
        const QString text = script.toText();
        const MRVFountainScript read = MRVFountainScript::fromText(text);
        if (read != normal) {
            qWarning("seed %d:\n%s", seed, qPrintable(text));
            QCOMPARE(dump(read), dump(normal));
        }
        QCOMPARE(dump(normal.normalized()), dump(normal));
    }
}

void TestFountain::randomTexts()
{
    const int count = qEnvironmentVariableIntValue("MRV_RANDOM_SCRIPTS");
    for (int seed = 0; seed < qMax(count, 3000); ++seed) {
        QRandomGenerator random(seed);
        QString text;
        for (int left = random.bounded(8); left > 0; --left)
            text += randomText(&random, true);
        const MRVFountainScript read = MRVFountainScript::fromText(text);
        QCOMPARE(dump(read.normalized()), dump(read));
        const MRVFountainScript again = MRVFountainScript::fromText(read.toText());
        if (again != read) {
            qWarning("seed %d:\n%s\n-- written:\n%s", seed, qPrintable(text),
                     qPrintable(read.toText()));
            QCOMPARE(dump(again), dump(read));
        }
    }
}

QTEST_MAIN(TestFountain)
#include "tst_fountain.moc"
