#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QTextDocument;

/** A manuscript read from a file or from standard input. */
struct DocumentInput
{
    QString path; // as given; "-" is standard input
    std::unique_ptr<QTextDocument> document;
    QStringList authors; // what HTML tells in its head
    QString description;
    QString language;
    QStringList pictures; // files that it shows
    int remotePictures = 0; // that it shows from elsewhere
    QString format; // "html", "markdown" or "text"
    QByteArray encoding; // as QTextCodec calls it
    QByteArray bytes; // as they were read

    DocumentInput();
    ~DocumentInput();
    DocumentInput(DocumentInput &&) noexcept;
    DocumentInput &operator=(DocumentInput &&) noexcept;

    /** The file's name without folder; empty for standard input. */
    QString fileName() const;
};

/** A document read from a text of a format, without its pictures. Keeps no undo history. */
std::unique_ptr<QTextDocument> newDocument(const QString &text, const QString &format);

/** How to read an input. Empty texts: find out. */
struct InputOptions
{
    QString format; // "html", "markdown" or "text"
    QString encoding;
    bool pictures = true; // false: leave them, and what names them, alone
};

/**
 * Reads a manuscript with its pictures. Names of pictures count from the input's folder.
 *
 * @return false, with a one-line text that names the file, when it is missing, of unknown format,
 *         not readable in its encoding, nested too deeply, or when one of its pictures on this
 *         machine cannot be read.
 */
bool readDocument(const QString &path, const InputOptions &options, DocumentInput *input,
                  QString *error);

/**
 * Reads the inputs one after the other and hands each to @p look, which tells whether it found
 * something. An input that cannot be read is reported, and the others are still looked at.
 *
 * @param doing shown on a terminal while an input is worked on: "Reading %1".
 * @return Done when something was found and every input could be read, else Failed.
 */
int lookThrough(const QStringList &inputs, const InputOptions &options, const QString &doing,
                const std::function<bool(const DocumentInput &)> &look);

/** All of standard input; @p reason receives a text when it cannot be read. */
QByteArray standardInput(QString *reason);
