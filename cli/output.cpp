#include "output.h"

#include "errorkinds.h"

#include "util/mrvfailure.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <cstdio>
#include <iterator>

#include <unistd.h>

namespace {

// Stand for the codes of the terminal until the data around them has been escaped. They are
// noncharacters: one that stands in the data can change a colour and nothing else.
constexpr ushort FirstStyle = 0xfdd0;
constexpr ushort EndOfStyle = 0xfddf;

constexpr const char *styleCodes[] = {"\033[1;31m", "\033[35m", "\033[31m", "\033[32m"}; // by Style

struct ErrorStyle
{
    QString command;
    bool json = false;
};

ErrorStyle &errorStyle()
{
    static ErrorStyle style;
    return style;
}

// The system's number of the first failure to write to standard output; the stream itself only
// keeps that there was one.
int &outputFailure()
{
    static int number = 0;
    return number;
}

void writeTo(FILE *stream, const QByteArray &bytes)
{
    const std::size_t size = std::size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stream) != size && stream == stdout
        && outputFailure() == 0) {
        outputFailure() = errno;
    }
}

void printTo(FILE *stream, const QString &text)
{
    writeTo(stream, text.toUtf8() + '\n');
}

bool isOnTerminal()
{
    static const bool terminal = isatty(STDOUT_FILENO);
    return terminal;
}

bool steersTerminal(QChar c)
{
    const ushort code = c.unicode();
    return c.category() == QChar::Other_Control || (code >= 0x202a && code <= 0x202e)
        || (code >= 0x2066 && code <= 0x2069);
}

bool isTerminal()
{
    static const bool is = isatty(STDERR_FILENO);
    return is;
}

// @param key under which an object has the text, and @p mark what a line has before it.
void printMessage(const QString &key, const char *mark, const QString &text, const char *kind)
{
    const ErrorStyle &style = errorStyle();
    const QString line = text.simplified();
    showProgress(QString());
    if (style.json) {
        QJsonObject object{{QStringLiteral("command"), style.command}, {key, line}};
        if (kind) {
            object.insert(QStringLiteral("kind"), QLatin1String(kind));
        }
        printTo(stderr, QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
        return;
    }
    const QString command =
        style.command.isEmpty() ? QString() : style.command + QLatin1String(": ");
    printTo(stderr, printable(QLatin1String("mrv: ") + command + QLatin1String(mark) + line));
}

} // namespace

void setErrorStyle(const QString &command, bool json)
{
    errorStyle() = {command, json};
}

void printError(const MRVError &error)
{
    const MRVErrorKind kind = error ? error.kind : MRVErrorKind::Other;
    printMessage(QStringLiteral("error"), "", error.text, errorKinds[int(kind) - 1].name);
}

void printNote(const QString &text)
{
    printMessage(QStringLiteral("note"), "note: ", text, nullptr);
}

void printUsage(const QString &text)
{
    printMessage(QStringLiteral("error"), "", text, nullptr);
}

void printLine(const QString &text)
{
    if (!isOnTerminal()) {
        printTo(stdout, text);
        return;
    }
    QString shown = printable(text, QStringLiteral("\t\n"));
    for (int i = 0; i < int(std::size(styleCodes)); ++i) {
        shown.replace(QChar(FirstStyle + i), QLatin1String(styleCodes[i]));
    }
    printTo(stdout, shown.replace(QChar(EndOfStyle), QLatin1String("\033[m")));
}

void printJson(const QJsonObject &object)
{
    printLine(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

bool writeStandardOutput(const QByteArray &bytes, MRVErrorSink error)
{
    writeTo(stdout, bytes);
    return flushStandardOutput(error);
}

bool flushStandardOutput(MRVErrorSink error)
{
    if (std::fflush(stdout) != 0 && outputFailure() == 0) {
        outputFailure() = errno;
    }
    if (outputFailure() == 0) {
        return true;
    }
    const MRVError reason = MRVError::ofSystem(outputFailure());
    return MRV::fail(error, reason.kind,
                     QLatin1String("standard output cannot be written: ") + reason.text);
}

void showProgress(const QString &text)
{
    if (isTerminal()) {
        const QByteArray bytes = printable(text).toUtf8();
        std::fprintf(stderr, "\r\033[K%s", bytes.constData());
        std::fflush(stderr);
    }
}

MRVProgress progressOf(const QString &text)
{
    showProgress(text);
    if (!isTerminal()) {
        return {};
    }
    return [text](int thousandths) {
        showProgress(QStringLiteral("%1: %2%").arg(text, QString::number(thousandths / 10)));
        return true;
    };
}

QString printable(const QString &text, const QString &kept)
{
    QString shown;
    shown.reserve(text.size());
    for (const QChar c : text) {
        if (!steersTerminal(c) || kept.contains(c)) {
            shown += c;
        } else if (c.unicode() < 0x100) {
            shown += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        } else {
            shown += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return shown;
}

QString displayed(QString text)
{
    for (QChar &c : text) {
        if (c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator
            || c == QChar::ObjectReplacementCharacter) { // a picture's place
            c = u' ';
        }
    }
    return text;
}

QString styled(Style style, const QString &text)
{
    static const bool hasColours = qEnvironmentVariableIsEmpty("NO_COLOR");
    if (!isOnTerminal()) {
        return text;
    }
    const QString shown = printable(text, QStringLiteral("\t"));
    return hasColours ? QChar(FirstStyle + int(style)) + shown + QChar(EndOfStyle) : shown;
}
