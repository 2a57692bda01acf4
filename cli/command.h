#pragma once

#include "output.h"

#include <QString>
#include <QStringList>

class QCommandLineParser;

/** A subcommand: how it is called, what it does, and what does it. */
struct OldCommand
{
    const char *name;
    const char *summary;
    int (*run)(const QStringList &arguments); // arguments[0] is the command's name
};

int runAutoReplace(const QStringList &arguments);
int runEngines(const QStringList &arguments);
int runExport(const QStringList &arguments);
int runFind(const QStringList &arguments);
int runFormats(const QStringList &arguments);
int runGet(const QStringList &arguments);
int runMeasure(const QStringList &arguments);
int runNotes(const QStringList &arguments);
int runPresets(const QStringList &arguments);
int runReplace(const QStringList &arguments);
int runScript(const QStringList &arguments);
int runSettings(const QStringList &arguments);
int runShortcuts(const QStringList &arguments);
int runUpdate(const QStringList &arguments);
int runXml(const QStringList &arguments);

/**
 * Parses a subcommand's arguments; "--help" is added to the options.
 *
 * @param usage what follows "mrv " in the help's first line.
 * @param hint what follows the text about an option that there is not.
 * @return the exit code to end with, when help was asked for (0) or the arguments are wrong (2); -1
 *        to go on.
 */
int parseArguments(QCommandLineParser *parser, const QString &usage, const QStringList &arguments,
                   const QString &hint = QString());
