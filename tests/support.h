#pragma once

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

/** What a program that was run to its end has left. */
struct Ran
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/** Runs a program to its end; "-1" as exit code when it cannot be started or crashes. */
inline Ran run(const QString &program, const QStringList &arguments,
               const QStringList &environment = {}, const QByteArray &input = {})
{
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &assignment : environment) {
        variables.insert(assignment.section('=', 0, 0), assignment.section('=', 1));
    }
    process.setProcessEnvironment(variables);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    Ran ran;
    if (process.waitForFinished(300000) && process.exitStatus() == QProcess::NormalExit) {
        ran.exitCode = process.exitCode();
    }
    ran.output = QString::fromUtf8(process.readAllStandardOutput());
    ran.errors = QString::fromUtf8(process.readAllStandardError());
    return ran;
}

/** What xmllint has to say against pages; a missing tool or DTD is such a word, too. */
inline QString dtdErrors(const QStringList &pages)
{
    const Ran ran = run("xmllint", QStringList{"--nonet", "--noout", "--valid"} + pages);
    const bool silent = ran.exitCode == 0 && ran.errors.isEmpty();
    return silent ? QString()
                  : QString("xmllint ended with %1:\n%2").arg(ran.exitCode).arg(ran.errors);
}

/** What epubcheck has to say against an e-book, warnings included. */
inline QString epubErrors(const QString &book)
{
    const QString jar = "/usr/share/java/epubcheck.jar";
    if (!QFile::exists(jar)) {
        return jar + " is not installed";
    }
    const Ran ran = run("java", {"-jar", jar, "--failonwarnings", book});
    const bool clean = ran.exitCode == 0 && ran.output.contains("0 fatals / 0 errors / 0 warnings");
    return clean
        ? QString()
        : QString("epubcheck ended with %1:\n%2%3").arg(ran.exitCode).arg(ran.output, ran.errors);
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
