#pragma once

#include "datarows.h"
#include "support.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

/** Files by name; hidden folders too, so that none stays behind. */
inline QMap<QString, QByteArray> contentsBelow(const QString &folder)
{
    QMap<QString, QByteArray> contents;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString file = it.next();
        contents.insert(QDir(folder).relativeFilePath(file), bytesOf(file));
    }
    for (const QString &stage :
         QDir(folder).entryList({".*"}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        contents.insert(stage, {});
    }
    return contents;
}

/**
 * What the tests of the command-line tool share. Each test function has a temporary folder of its
 * own, in which the tool runs and keeps the user's settings and presets, so that nothing is written
 * anywhere else.
 */
class ToolTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }

protected:
    QString in(const QString &name) const { return m_folder->filePath(name); }

    /** In a row "@" stands for the test's folder, "␣" a blank, "␤" a new line and "␠" nothing. */
    QString filled(QString text) const
    {
        text.replace('@', m_folder->path() + '/').replace(u'␣', ' ').replace(u'␤', '\n');
        return text.remove(u'␠');
    }

    Ran mrv(const QStringList &arguments, const QByteArray &input = {},
            const QStringList &environment = {}) const
    {
        const QString home = in("home");
        Ran ran = run(MRV_TOOL, arguments,
                      QStringList{"XDG_CONFIG_HOME=" + home, "XDG_DATA_HOME=" + home} + environment,
                      input);
        ran.output.replace(m_folder->path() + '/', "@");
        ran.errors.replace(m_folder->path() + '/', "@");
        return ran;
    }

    /** The same with words separated by blanks, each of them filled(); NAME=value first. */
    Ran mrv(const QString &words, const QByteArray &input = {}) const
    {
        QStringList environment;
        QStringList arguments;
        for (const QString &word : words.isEmpty() ? QStringList() : words.split(' ')) {
            (arguments.isEmpty() && word.contains('=') ? environment : arguments) << filled(word);
        }
        return mrv(arguments, input, environment);
    }

    /** Compares the exit code and the error, one line that holds a text or none, with the row's. */
    static void compareEnd(const Ran &ran)
    {
        QFETCH(QString, error);
        QCOMPARE(ran.errors.isEmpty(), error.isEmpty());
        QVERIFY2(ran.errors.contains(error), qPrintable(ran.errors));
        QCOMPARE(ran.errors.count('\n'), int(!error.isEmpty()));
        QTEST(QString::number(ran.exitCode), "code");
    }

    /**
     * The rows of a table for compareRow(): a file ("" for none) and what it holds, the words of a
     * call, exit code, output, a word of the error, and what the file then holds, if it changes.
     */
    static void addCalls(const QString &table)
    {
        addRows(table, {"case", "file", "source", "arguments", "code", "output", "error", "after"});
    }

    /**
     * Calls the tool; standard input is what the file holds, and "..." any part of the output. A
     * call that fails changes no file.
     */
    void compareRow() const
    {
        QFETCH(QString, source);
        QFETCH(QString, after);
        const QString file = in(cell("file"));
        const bool hasFile = !cell("file").isEmpty();
        QVERIFY(!hasFile || writeBytes(file, source.toUtf8()));
        const QMap<QString, QByteArray> before = contentsBelow(in(""));
        const Ran ran = mrv(cell("arguments"), source.toUtf8());
        compareOutput(ran);
        compareEnd(ran);
        QVERIFY(ran.exitCode == 0 || contentsBelow(in("")) == before);
        QCOMPARE(QString::fromUtf8(bytesOf(file)), after.isEmpty() ? source : after);
    }

    static void compareOutput(const Ran &ran)
    {
        const QString output =
            QRegularExpression::escape(cell("output")).replace("\\.\\.\\.", ".*");
        const QRegularExpression wanted(QRegularExpression::anchoredPattern(output),
                                        QRegularExpression::DotMatchesEverythingOption);
        QVERIFY2(wanted.match(ran.output).hasMatch(), qPrintable(ran.output));
    }

private:
    QScopedPointer<QTemporaryDir> m_folder;
};
