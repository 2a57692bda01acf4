#pragma once

#include <QString>

#include <memory>

class QTextDocument;

/** A manuscript read from a file or from standard input. */
struct DocumentInput
{
    QString path; // as given; "-" is standard input
    std::unique_ptr<QTextDocument> document;
    QString author; // what HTML tells in its head
    QString language;

    DocumentInput();
    ~DocumentInput();
    DocumentInput(DocumentInput &&) noexcept;
    DocumentInput &operator=(DocumentInput &&) noexcept;

    /** The file's name without folder; empty for standard input. */
    QString fileName() const;
};

/** How to read an input. Empty texts: find out. */
struct InputOptions
{
    QString format; // "html", "markdown" or "text"
    QString encoding;
};

/**
 * Reads a manuscript with its pictures. Names of pictures count from the input's folder.
 *
 * @return false, with a one-line text that names the file, when it is missing, of unknown format, not readable in
 *         its encoding, or when one of its pictures on this machine cannot be read.
 */
bool readDocument(const QString &path, const InputOptions &options, DocumentInput *input,
                  QString *error);
