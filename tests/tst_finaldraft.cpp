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
};

QTEST_MAIN(TestFinalDraft)
#include "tst_finaldraft.moc"
