#include "inputs.h"

#include "publish/mrvstagedfiles.h"
#include "util/mrvfailure.h"
#include "util/mrvnames.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace {

// Such as what a shell puts in the place of a program's output.
bool isStream(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && !file.isFile() && !file.isDir();
}

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
    case MRVManuscriptReader::PictureError:
        return QStringLiteral("; --missing-pictures=drop goes on without");
    default:
        return QString();
    }
}

// Of several pictures that cannot be read, the error counts them.
void printUnreadable(const QString &path, const QVector<MRVUnreadablePicture> &pictures)
{
    for (int i = 0; pictures.size() > 1 && i < pictures.size(); ++i) {
        printError(
            {pictures.at(i).kind, QStringLiteral("%1: %2").arg(path, pictures.at(i).text())});
    }
}

MRVManuscriptReader::MissingPictures missingPicturesOf(const Call &call)
{
    const QString what = call.value("missing-pictures");
    return what == QLatin1String("drop") ? MRVManuscriptReader::Drop
        : what == QLatin1String("keep")  ? MRVManuscriptReader::Keep
                                         : MRVManuscriptReader::Refuse;
}

} // namespace

InputOptions inputOptions(const Call &call)
{
    InputOptions options;
    options.format = call.value("from");
    options.encoding = call.value("encoding");
    options.missingPictures = missingPicturesOf(call);
    return options;
}

bool readMarkdownSyntax(const Call &call, const QStringList &inputs, MRVMarkdown::Options *options,
                        MRVErrorSink error)
{
    constexpr struct
    {
        const char *name;
        MRVMarkdown::Option option;
    } syntax[] = {
        {"smart", MRVMarkdown::SmartPunctuation},
        {"definitions", MRVMarkdown::DefinitionLists},
        {"subsup", MRVMarkdown::SubAndSuperscript},
    };
    for (const auto &row : syntax) {
        options->setFlag(row.option, call.values("markdown").contains(QLatin1String(row.name)));
    }
    const auto isMarkdown = [&call](const QString &input) {
        return MRVManuscript::Markdown
            == (call.has("from") ? MRVManuscript::formatNamed(call.value("from"))
                                 : MRVManuscript::formatOfFile(input));
    };
    return !*options || std::any_of(inputs.begin(), inputs.end(), isMarkdown)
        || MRV::fail(error, QStringLiteral("--markdown is for Markdown, which no input is"));
}

QByteArray standardInput(MRVErrorSink error)
{
    QByteArray bytes;
    char buffer[65536];
    ssize_t size;
    while ((size = ::read(STDIN_FILENO, buffer, sizeof buffer)) != 0) {
        if (size > 0) {
            bytes.append(buffer, int(size));
        } else if (errno != EINTR) {
            MRV::fail(error, QStringLiteral("standard input cannot be read"),
                      MRVError::ofSystem(errno));
            return QByteArray();
        }
    }
    return bytes;
}

bool readManuscript(const QString &path, const InputOptions &options, MRVManuscript *manuscript,
                    MRVErrorSink error)
{
    MRVManuscriptReader reader;
    reader.setFormat(MRVManuscript::formatNamed(options.format));
    reader.setEncoding(options.encoding);
    reader.setMarkdownOptions(MRVMarkdown::Footnotes | options.markdown);
    reader.setLoadsPictures(options.pictures);
    reader.setKeepsPictureNames(options.pictureNames);
    reader.setMissingPictures(options.missingPictures);
    reader.setPurpose(options.isPublished ? MRVManuscriptReader::Publishing
                                          : MRVManuscriptReader::Editing);
    bool ok = false;
    if (path == QLatin1String("-")) {
        MRVError unreadable;
        const QByteArray bytes = standardInput(&unreadable);
        if (unreadable) {
            return MRV::fail(error, unreadable);
        }
        ok = reader.readBytes(bytes, path, QDir::currentPath(), manuscript);
    } else if (isStream(path)) {
        MRVError unreadable;
        const QByteArray bytes = MRVCoreUtil::readStream(path, &unreadable);
        if (unreadable) {
            return MRV::fail(error, unreadable);
        }
        if (options.format.isEmpty()) {
            reader.setFormat(MRVManuscript::formatOfFile(path));
        }
        ok = reader.readBytes(bytes, path, QFileInfo(path).absolutePath(), manuscript);
    } else {
        ok = reader.read(path, manuscript);
    }
    if (!ok) {
        printUnreadable(path, reader.unreadablePictures());
        return MRV::fail(error, reader.errorKind(), reader.errorString() + hint(reader.error()));
    }
    if (options.pictures || !manuscript->isWhole()) {
        for (const QString &note : manuscript->readingNotes()) {
            printNote(QStringLiteral("%1: %2").arg(path, note));
        }
    }
    if (options.strict && !manuscript->isWhole()) {
        return MRV::fail(
            error, QStringLiteral("%1: something would be lost, as the notes above say").arg(path));
    }
    const int dropped = manuscript->unreadablePictures.size();
    if (dropped > 0 && options.missingPictures == MRVManuscriptReader::Drop) {
        printNote(QStringLiteral("%1: pictures with their alternative texts in their places: %2")
                      .arg(path, QString::number(dropped)));
    }
    return true;
}

bool expandFolders(const Call &call, bool changeable, QStringList *inputs, MRVErrorSink error)
{
    QStringList expanded;
    for (const QString &input : qAsConst(*inputs)) {
        if (!call.has("recursive") || !QFileInfo(input).isDir()) {
            expanded.append(input);
            continue;
        }
        QStringList found;
        QDirIterator files(input, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            const MRVManuscript::Format format = MRVManuscript::formatOfFile(file);
            const bool fits = !changeable || format < MRVManuscript::Docx;
            // A file without a suffix may be anything.
            if (format != MRVManuscript::Unknown && fits && !files.fileInfo().suffix().isEmpty()) {
                found.append(file);
            }
        }
        if (found.isEmpty()) {
            return MRV::fail(error, MRVErrorKind::NotFound,
                             QStringLiteral("%1: the folder has no manuscripts").arg(input));
        }
        found.sort();
        expanded += found;
    }
    *inputs = expanded;
    return true;
}

int lookThrough(const Call &call, const QStringList &inputs, const QString &doing,
                const std::function<bool(const MRVManuscript &, MRVErrorSink)> &look)
{
    if (readsTwice(inputs)) {
        return WrongUsage;
    }
    bool found = false;
    bool isRefused = false;
    for (const QString &path : inputs) {
        showProgress(doing.arg(path));
        MRVManuscript manuscript;
        MRVError error;
        if (readManuscript(path, inputOptions(call), &manuscript, &error)) {
            found = look(manuscript, &error) || found;
        }
        if (error) {
            refuse(error);
            isRefused = true;
        }
    }
    return found && !isRefused ? Done : Failed;
}

bool readLanguage(const Call &call, QString *tag, MRVErrorSink error)
{
    const QString given = call.value("language");
    *tag = MRV::languageTag(given);
    return !tag->isEmpty() || given.isEmpty()
        || MRV::fail(error,
                     QStringLiteral("'%1' is not the tag of a language such as en-GB").arg(given));
}

bool readsTwice(const QStringList &inputs)
{
    const bool twice = inputs.count(QStringLiteral("-")) > 1;
    if (twice) {
        usageError(QStringLiteral("standard input can be read only once"));
    }
    return twice;
}

bool writeOutput(const QByteArray &bytes, const QString &file, MRVErrorSink error)
{
    return file == QLatin1String("-") ? writeStandardOutput(bytes, error)
                                      : MRVStagedFiles::write(bytes, file, error);
}
