#pragma once

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

/// How much longer, and with how much more memory, code runs when the sanitizers watch it.
#ifdef MRV_SANITIZE
constexpr int SanitizerTime = 6;
constexpr int SanitizerMemory = 2;
#else
constexpr int SanitizerTime = 1;
constexpr int SanitizerMemory = 1;
#endif

/** What a program that was run to its end has left. */
struct Ran
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/** The programs that tests start by name, each with the Debian package that has it. */
struct OutsideProgram
{
    const char *name;
    const char *package;
};
constexpr OutsideProgram outsidePrograms[] = {
    {"bash", "bash"},
    {"dpkg-query", "dpkg"},
    {"ip", "iproute2"},
    {"java", "default-jre-headless"},
    {"lighttpd", "lighttpd"},
    {"mandoc", "mandoc"},
    {"nginx", "nginx-light"},
    {"openssl", "openssl"},
    {"pandoc", "pandoc"},
    {"pdfinfo", "poppler-utils"},
    {"pdftohtml", "poppler-utils"},
    {"pdftoppm", "poppler-utils"},
    {"pdftotext", "poppler-utils"},
    {"pkg-config", "pkg-config"},
    {"readelf", "binutils"},
    {"script", "bsdutils"},
    {"setpriv", "util-linux"},
    {"sh", "dash"},
    {"strace", "strace"},
    {"unshare", "util-linux"},
    {"xdotool", "xdotool"},
    {"xmllint", "libxml2-utils"},
    {"zsh", "zsh"},
};

inline QString missingText(const QString &program, const QString &package)
{
    return QString("%1 is missing; Debian package %2 (packages.txt)").arg(program, package);
}

/**
 * Where a program is, which is given by its path or by a name of the table above. The running test
 * fails where it is missing.
 */
inline QString programPath(const QString &program)
{
    if (program.contains('/')) {
        return program;
    }
    QString package = "unknown: the table in tests/support.h lacks this program";
    for (const OutsideProgram &outside : outsidePrograms) {
        if (program == outside.name) {
            package = outside.package;
        }
    }
    QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty()) {
        path = QStandardPaths::findExecutable(program, {"/usr/sbin", "/sbin"});
    }
    if (path.isEmpty() || package.startsWith("unknown")) {
        QTest::qFail(qPrintable(missingText(program, package)), __FILE__, __LINE__);
    }
    return path;
}

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
    process.start(programPath(program), arguments);
    process.write(input);
    process.closeWriteChannel();
    Ran ran;
    if (process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit) {
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
        return missingText(jar, "epubcheck");
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
