#include "documentinput.h"

#include "command.h"

#include "manuscript/mrvmanuscriptreader.h"

#include <QDir>

#include <cerrno>

#include <unistd.h>

namespace {

// The option that helps where an input cannot be read.
QString hint(MRVManuscriptReader::Error error)
{
    switch (error) {
    case MRVManuscriptReader::UnknownFormat:
        return QStringLiteral("; say with --from what it is");
    case MRVManuscriptReader::UnknownEncoding:
        return QStringLiteral("; give a known one with --encoding");
    case MRVManuscriptReader::DecodingError:
        return QStringLiteral("; give the right encoding with --encoding");
    default:
        return QString();
    }
}

} // namespace

QByteArray standardInput(QString *reason)
{
    QByteArray bytes;
    char buffer[65536];
    ssize_t size;
    while ((size = ::read(STDIN_FILENO, buffer, sizeof buffer)) != 0) {
        if (size > 0) {
            bytes.append(buffer, int(size));
        } else if (errno != EINTR) {
            *reason =
                QStringLiteral("standard input cannot be read: %1").arg(qt_error_string(errno));
            return QByteArray();
        }
    }
    return bytes;
}

bool readManuscript(const QString &path, const InputOptions &options, MRVManuscript *manuscript,
                    QString *error)
{
    MRVManuscriptReader reader;
    reader.setFormat(MRVManuscript::formatNamed(options.format));
    reader.setEncoding(options.encoding);
    reader.setLoadsPictures(options.pictures);
    bool ok = false;
    if (path == QLatin1String("-")) {
        QString unreadable;
        const QByteArray bytes = standardInput(&unreadable);
        if (!unreadable.isEmpty()) {
            *error = unreadable;
            return false;
        }
        ok = reader.readBytes(bytes, path, QDir::currentPath(), manuscript);
    } else {
        ok = reader.read(path, manuscript);
    }
    if (!ok) {
        *error = reader.errorString() + hint(reader.error());
    }
    return ok;
}

int lookThrough(const QStringList &inputs, const InputOptions &options, const QString &doing,
                const std::function<bool(const MRVManuscript &)> &look)
{
    bool found = false;
    bool refused = false;
    for (const QString &path : inputs) {
        showProgress(doing.arg(path));
        MRVManuscript manuscript;
        QString error;
        if (readManuscript(path, options, &manuscript, &error)) {
            found = look(manuscript) || found;
        } else {
            printError(error);
            refused = true;
        }
    }
    return found && !refused ? Done : Failed;
}
