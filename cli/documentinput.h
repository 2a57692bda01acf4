#pragma once

#include "manuscript/mrvmanuscript.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/** How to read an input. Empty texts: find out. */
struct InputOptions
{
    QString format; // "html", "markdown" or "text"
    QString encoding;
    bool pictures = true; // false: leave them, and what names them, alone
};

/**
 * Reads a manuscript; "-" is standard input.
 *
 * @param error receives one line that names the file and, where there is one, an option that helps.
 */
bool readManuscript(const QString &path, const InputOptions &options, MRVManuscript *manuscript,
                    QString *error);

/**
 * Reads the inputs one after the other and hands each to @p look, which tells whether it found
 * something. An input that cannot be read is reported, and the others are still looked at.
 *
 * @param doing shown on a terminal while an input is worked on: "Reading %1".
 * @return Done when something was found and every input could be read, else Failed.
 */
int lookThrough(const QStringList &inputs, const InputOptions &options, const QString &doing,
                const std::function<bool(const MRVManuscript &)> &look);

/** All of standard input; @p reason receives a text when it cannot be read. */
QByteArray standardInput(QString *reason);
