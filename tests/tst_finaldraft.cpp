#include "screenplay/mrvfinaldraft.h"
#include "screenplay/mrvscriptfile.h"

#include "datarows.h"
#include "support.h"

#include <QTextCodec>
#include <QtTest>

namespace {

/// The bytes of a text; "<BOM>" before the name of the encoding is a byte-order mark.
QByteArray encoded(const QString &text, QString encoding)
{
    const bool hasMark = encoding.startsWith("<BOM>");
    QTextCodec *codec = QTextCodec::codecForName(encoding.remove("<BOM>").toLatin1());
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString whole = hasMark ? QChar(QChar::ByteOrderMark) + text : text;
    return codec->fromUnicode(whole.constData(), whole.size(), &state);
}

/// A document before or after the renaming: "{DA|<!-- -->|VE}" is a name with something within.
QString document(const QString &marked, bool isRenamed)
{
    static const QRegularExpression name("\\{([^|}]*)(?:\\|([^}]*)\\|([^|}]*))?\\}");
    QString text;
    int done = 0;
    for (auto it = name.globalMatch(marked); it.hasNext();) {
        const auto match = it.next();
        const QString old = match.captured(1).section('=', 0, 0) + match.captured(3);
        const bool hasCase = old != old.toUpper() && old != old.toLower();
        const QString renamed = match.captured(1).contains('=') ? match.captured(1).section('=', 1)
            : hasCase                                           ? "David"
                                                                : "DAVID";
        text += marked.midRef(done, match.capturedStart() - done);
        text += isRenamed
            ? renamed + match.captured(2)
            : old.chopped(match.capturedLength(3)) + match.captured(2) + match.captured(3);
        done = match.capturedEnd();
    }
    return text + marked.midRef(done);
}

} // namespace

/// Final Draft documents that are changed in place.
class TestFinalDraft : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void renames_data() { addRows("finaldraft-renames.tsv"); }
    void renames()
    {
        const QByteArray before = encoded(document(cell("document"), false), cell("encoding"));
        const QByteArray after = encoded(document(cell("document"), true), cell("encoding"));
        MRVScriptFile file;
        QString error;
        QVERIFY2(file.read(before, MRVScriptFile::FinalDraft, &error), qPrintable(error));
        QCOMPARE(file.revised(), before);
        QCOMPARE(file.renameCharacter("DAVE", "DAVID",
                                      MRVScriptDocument::InDialogue | MRVScriptDocument::InAction),
                 cell("count").toInt());
        const QByteArray revised = file.revised(&error);
        QCOMPARE(error, QString());
        QCOMPARE(QString(revised), QString(after)); // which shows where they differ
        QCOMPARE(revised, after);
    }

    void changes_data() { addRows("finaldraft-changes.tsv"); }
    // A text, a scene's number or an entry of the title page becomes another.
    void changes()
    {
        const QByteArray before = encoded(cell("document"), cell("encoding"));
        MRVFountainScript script;
        QVERIFY(MRVFinalDraft::fromXml(before, &script));
        const QString to = cell("to");
        const QRegularExpression from(cell("from").isEmpty() ? "(?!)" : cell("from"));
        for (MRVFountainElement &element : script.elements) {
            if (element.sceneNumber == cell("from")) {
                element.sceneNumber = to;
            }
            for (MRVFountainRun &run : element.runs) {
                run.text.replace(from, to);
                run.emphasis = cell("from") == "bold" ? MRVFountainRun::Bold : run.emphasis;
            }
        }
        for (MRVFountainTitle &title : script.titles) {
            title.value[0].text.replace(from, to);
        }
        script.elements.resize(script.elements.size() - (cell("from") == "last"));
        QByteArray revised = "old";
        QString error;
        const QString after = cell("after");
        QCOMPARE(MRVFinalDraft::revise(before, script, &revised, &error),
                 !after.startsWith("line "));
        QCOMPARE(error, after.startsWith("line ") ? after : QString());
        QCOMPARE(QString(revised),
                 QString(error.isEmpty() ? encoded(after, cell("encoding")) : "old"));
    }

    // Time linear in a document, and in a paragraph, of which each word changes.
    void longDocuments()
    {
        constexpr int Names = 1 << 17;
        for (const char *text : {"<Paragraph><Text>A b</Text></Paragraph>", "A "}) {
            const QByteArray many = QByteArray(text).repeated(Names);
            const QByteArray before = "<FinalDraft><Content><Paragraph><Text>A " + many
                + "</Text></Paragraph></Content></FinalDraft>";
            MRVFountainScript script;
            QVERIFY(MRVFinalDraft::fromXml(before, &script));
            for (MRVFountainElement &element : script.elements) {
                element.runs[0].text.replace('A', "CD");
            }
            QByteArray revised;
            QVERIFY(MRVFinalDraft::revise(before, script, &revised));
            QCOMPARE(revised.size(), before.size() + Names + 1);
        }
    }
};

QTEST_MAIN(TestFinalDraft)
#include "tst_finaldraft.moc"
