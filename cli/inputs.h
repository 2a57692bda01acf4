#pragma once

#include "commandline.h"

#include "manuscript/mrvmanuscript.h"
#include "manuscript/mrvmanuscriptreader.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/** Options that tell how manuscripts are to be read. */
constexpr Option manuscriptFormat(const char *verbs = nullptr)
{
    return Option::choice(
        "from", "FORMAT", "html markdown text docx odt rtf mrvdoc",
        "The format of the input: html, markdown, text, docx, odt, rtf, or mrvdoc, "
        "that of the writing program. Default: by its suffix.",
        verbs);
}
constexpr Option manuscriptEncoding(const char *verbs = nullptr)
{
    return Option::name("encoding", "NAME",
                        "The encoding of the input. Default: what it declares, else UTF-8.", verbs);
}

constexpr Option markdownSyntax(const char *verbs = nullptr)
{
    return Option::choice("markdown", "SYNTAX", "smart definitions subsup",
                          "Syntax that Markdown has besides: smart (\"--\" is a dash, quotes are "
                          "curled), definitions (lines of \": text\" after a term) or subsup "
                          "(H~2~O, x^2^).",
                          verbs)
        .repeated();
}

constexpr Option missingPictures(const char *verbs = nullptr)
{
    return Option::choice("missing-pictures", "WHAT", "refuse drop keep",
                          "What to do where pictures on this machine cannot be read: refuse the "
                          "manuscript (default), drop them, so that their alternative texts take "
                          "their places, or keep what names them, which drops them from e-books.",
                          verbs);
}

/** How to read an input. Empty texts: find out. */
struct InputOptions
{
    QString format; // of MRVManuscript::formatNames()
    QString encoding;
    MRVMarkdown::Options markdown; // besides what is always read; for publishing
    bool isPublished = false; // false: the text is looked for, and changed in its source
    bool pictures = false; // false: leave them, and what names them, alone
    bool pictureNames = false; // leave what names them, even so
    MRVManuscriptReader::MissingPictures missingPictures = MRVManuscriptReader::Refuse;
    bool strict = false; // refuse a manuscript of which the document lacks something
};

constexpr Option strictReading(const char *verbs = nullptr)
{
    return Option::flag("strict", "Write nothing where a word, a link or a picture would be lost.",
                        verbs);
}

/**
 * The syntax that --markdown asks for. @return false, with a text, when it is given and none of the
 * inputs is Markdown.
 */
bool readMarkdownSyntax(const Call &call, const QStringList &inputs, MRVMarkdown::Options *options,
                        MRVErrorSink error);

/** What the options of the call say; pictures are left alone. */
InputOptions inputOptions(const Call &call);

/**
 * Reads a manuscript; "-" is standard input.
 *
 * @param error receives one line that names the file and, where there is one, an option that helps.
 */
bool readManuscript(const QString &path, const InputOptions &options, MRVManuscript *manuscript,
                    MRVErrorSink error);

constexpr Option foldersOption(const char *verbs = nullptr)
{
    return Option::flag("r recursive",
                        "Take folders for the manuscripts in them and in their folders: files with "
                        "the suffix of a format. Hidden ones and links are left out.",
                        verbs);
}

/**
 * Puts the manuscripts in the place of folders where --recursive asks for it, by name. @return
 * false, with a text, when a folder has none.
 *
 * @param changeable whether those that can be read but not changed are left out.
 */
bool expandFolders(const Call &call, bool changeable, QStringList *inputs, MRVErrorSink error);

/**
 * Reads the inputs one after the other and hands each to @p look, which returns whether it found
 * something, and may set an error. An input that has one is reported, and the others are still
 * read.
 *
 * @param doing shown on a terminal while an input is worked on: "Reading %1".
 * @return Done when something was found and no input has an error, else Failed; WrongUsage
 *         when standard input is given twice.
 */
int lookThrough(const Call &call, const QStringList &inputs, const QString &doing,
                const std::function<bool(const MRVManuscript &, MRVErrorSink)> &look);

/**
 * The tag that --language gives; empty without the option. @return false, with a text, when it is
 * malformed.
 */
bool readLanguage(const Call &call, QString *tag, MRVErrorSink error);

/** Whether standard input ("-") is given twice among the inputs; an error is printed then. */
bool readsTwice(const QStringList &inputs);

/** All of standard input; @p error receives a text when it cannot be read. */
QByteArray standardInput(MRVErrorSink error);

/** Writes a file with MRVStagedFiles; "-" is standard output. */
bool writeOutput(const QByteArray &bytes, const QString &file, MRVErrorSink error);
