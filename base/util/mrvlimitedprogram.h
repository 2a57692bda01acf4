#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/**
 * What a program may use before it is ended.
 * @since 1.0
 */
struct MRVProgramLimits
{
    int milliseconds; ///< from its start to its end
    qint64 memory; ///< bytes of address space, of each process
    qint64 output; ///< bytes of what it writes to one file
};

/**
 * How a program ended, and what it wrote.
 * @since 1.0
 */
struct MRVProgramResult
{
    /** NotStarted: it is missing or not executable; Crashed: a signal ended it. */
    enum End { Exited, NotStarted, OutOfTime, TooMuchOutput, Crashed, Cancelled };
    End end = NotStarted;
    int exitCode = -1; ///< of Exited
    QByteArray output; ///< its standard output; empty where a limit or the caller ended it
    QByteArray errors; ///< its standard error, likewise
};

/**
 * Runs a program, without a shell, to its end or to one of the limits, with all processes that it
 * starts. They end with this process, too.
 *
 * The program has none of the environment's variables, so that its result depends on its input
 * alone: its locale is C.UTF-8, and its home and working folder is @p folder. What it writes to its
 * standard streams goes to files there, which a limit of the system bounds.
 *
 * @param program   a path.
 * @param arguments as the program gets them.
 * @param input     a file that is its standard input.
 * @param folder    exists, for this run alone.
 * @param limits    each of them ends it.
 * @param mayGoOn   if given, is called every 50 ms, and ends it by returning false.
 * @since 1.0
 */
MRVBASE_EXPORT MRVProgramResult mrvRunLimited(const QString &program, const QStringList &arguments,
                                              const QString &input, const QString &folder,
                                              const MRVProgramLimits &limits,
                                              const std::function<bool()> &mayGoOn = {});
