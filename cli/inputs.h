#pragma once

#include "commandline.h"
#include "documentinput.h"

#include <functional>

/** Options that tell how manuscripts are to be read. */
constexpr Option manuscriptFormat(const char *verbs = nullptr)
{
    return Option::choice("from", "FORMAT", "html markdown text",
                          "The format of the input: html, markdown or text. Default: by its "
                          "suffix.",
                          verbs);
}
constexpr Option manuscriptEncoding(const char *verbs = nullptr)
{
    return Option::name("encoding", "NAME",
                        "The encoding of the input. Default: what it declares, else UTF-8.", verbs);
}

/** How these options say that manuscripts are to be read; pictures are left alone. */
InputOptions inputOptions(const Call &call);

/**
 * Reads the arguments of the call one after the other as manuscripts, and hands each to @p look,
 * which returns whether it found something. One that cannot be read is reported, and the others
 * are still read.
 *
 * @param doing shown on a terminal while an input is worked on: "Reading %1".
 * @return Done when something was found and every input could be read, else Failed; WrongUsage
 *         when standard input is given twice.
 */
int lookThrough(const Call &call, const QString &doing,
                const std::function<bool(const MRVManuscript &)> &look);

/** Whether standard input ("-") is given twice among the inputs; an error is printed then. */
bool readsTwice(const QStringList &inputs);
