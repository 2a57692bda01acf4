#pragma once

#include "util/mrvprogress.h"

#include <QByteArray>
#include <QString>

class QJsonObject;

/** Exit codes of the tool. */
enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2, NotRead = 3 };

/** How errors begin from here on: with the command's name, or as an object of JSON. */
void setErrorStyle(const QString &command, bool json);

/**
 * Prints one line to standard error: "mrv: COMMAND: text", or with --json an object that has the
 * text as "error" and the kind as "kind": "no-space". A text without a kind is of Other. Control
 * characters are escaped.
 */
void printError(const MRVError &error);
/** What does not end a command: "mrv: COMMAND: note: text", or an object that has it as "note". */
void printNote(const QString &text);
/** For usageError() only: an error without a kind. */
void printUsage(const QString &text);
/**
 * Prints a line to standard output, as UTF-8 whatever the locale. On a terminal the control
 * characters of the text are escaped, except tabs and line feeds.
 */
void printLine(const QString &text);

/** Prints an object as one line of JSON. */
void printJson(const QJsonObject &object);

/** Writes to standard output; false, with a text, when that cannot take it all. */
bool writeStandardOutput(const QByteArray &bytes, MRVErrorSink error);
/** Whether standard output has taken all that was printed so far; false with a text. */
bool flushStandardOutput(MRVErrorSink error);

/** Shows what is being done, on a terminal only; an empty text clears the line. */
void showProgress(const QString &text);
/** The same for a long operation, with how much of it is done. */
MRVProgress progressOf(const QString &text);

/**
 * The text with its control characters, and those that change the direction of what follows, as
 * "\x1b" or "\u202e": a file or a server must not steer the terminal.
 *
 * @param kept characters to leave as they are.
 */
QString printable(const QString &text, const QString &kept = QString());

/** The text in one line: blanks in place of ends of lines and paragraphs, and of pictures. */
QString displayed(QString text);

enum class Style { Match, Path, Removed, Added };

/** The text for printLine(): printable and set off by a colour on a terminal, else as it is. */
QString styled(Style style, const QString &text);
