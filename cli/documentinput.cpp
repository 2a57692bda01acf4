#include "documentinput.h"

#include "command.h"

#include "document/mtextdoc.h"
#include "input/mrvguardeddocument.h"
#include "input/mrvhtmlreader.h"
#include "input/mrvtextdecoder.h"
#include "textformat/mrvtextformat.h"

#include "core/mrvcoreutil.h"
#include "core/mrvinputlimits.h"
#include "gui/mrvpicturereader.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QTextBlock>
#include <QTextCodec>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <cerrno>

#include <unistd.h>

namespace {

constexpr struct
{
    const char *suffix;
    const char *format;
} formats[] = {
    {"html", "html"},         {"htm", "html"},      {"xhtml", "html"},     {"md", "markdown"},
    {"markdown", "markdown"}, {"mkd", "markdown"},  {"mdown", "markdown"}, {"txt", "text"},
    {"text", "text"},         {"fountain", "text"},
};

bool fail(QString *error, const QString &path, const QString &reason)
{
    *error = QStringLiteral("%1: %2").arg(path, reason);
    return false;
}

QString formatOf(const QString &path, const QByteArray &bytes)
{
    if (path == QLatin1String("-")) {
        return MRVHtmlReader::looksLikeHtml(bytes) ? QStringLiteral("html")
                                                   : QStringLiteral("text");
    }
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const auto &known : formats) {
        if (suffix == QLatin1String(known.suffix)) {
            return QLatin1String(known.format);
        }
    }
    return suffix.isEmpty() ? QStringLiteral("text") : QString();
}

bool decoded(const QByteArray &bytes, const QString &format, const QString &encoding, QString *text,
             QByteArray *used, QString *reason)
{
    const auto declaration = format == QLatin1String("html") ? MRVTextDecoder::HtmlDeclaration
                                                             : MRVTextDecoder::Undeclared;
    const QByteArray name =
        encoding.isEmpty() ? MRVTextDecoder::encodingOf(bytes, declaration) : encoding.toLatin1();
    const QTextCodec *codec = QTextCodec::codecForName(name);
    if (!codec) {
        *reason = QStringLiteral("unknown encoding '%1'; give a known one with --encoding")
                      .arg(QString::fromLatin1(name));
        return false;
    }
    *used = codec->name();
    if (!MRVTextDecoder::decode(bytes, *used, text)) {
        *reason = QStringLiteral("not readable as %1; give the right encoding with --encoding")
                      .arg(QString::fromLatin1(codec->name()));
        return false;
    }
    return true;
}

QString localFile(const QString &name, const QString &folder)
{
    const QUrl url(name);
    if (url.scheme() == QLatin1String("file")) {
        return url.toLocalFile();
    }
    const QString plain = QDir(folder).absoluteFilePath(name);
    return QFileInfo::exists(plain)
        ? plain
        : QDir(folder).absoluteFilePath(QUrl::fromPercentEncoding(name.toUtf8()));
}

bool isElsewhere(const QString &name)
{
    const QString scheme = QUrl(name).scheme();
    return scheme.size() > 1 && scheme != QLatin1String("file");
}

// An image character, or several equal ones side by side.
struct ImageRun
{
    int begin;
    int end;
    QTextImageFormat format;
};

QVector<ImageRun> imageRuns(const QTextDocument &document)
{
    QVector<ImageRun> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            QTextImageFormat image = fragment.charFormat().toImageFormat();
            if (image.name().startsWith(
                    QLatin1String("//"))) { // by the scheme of the page's server
                image.setName(QLatin1String("https:") + image.name());
            }
            if (image.isValid()) {
                runs.append({fragment.position(), fragment.position() + fragment.length(), image});
            }
        }
    }
    return runs;
}

// Gives each picture on this machine its full path and remembers where it came from.
bool locatePictures(const QString &folder, DocumentInput *input, QString *reason)
{
    QHash<QString, QString> known; // an ornament may be shown a thousand times: path by name
    QSet<QString> remote;
    QTextCursor cursor(input->document.get());
    cursor.beginEditBlock();
    const QVector<ImageRun> runs = imageRuns(*input->document);
    for (const ImageRun &run : runs) {
        const QString name = run.format.name();
        QTextCharFormat format = run.format;
        if (isElsewhere(name)) {
            if (QUrl(name).scheme() != QLatin1String("data")) {
                remote.insert(name);
            }
        } else {
            QString &path = known[name];
            if (path.isEmpty()) {
                path = localFile(name, folder);
                QString why;
                if (MRVPictureReader::ofFile(path).read(&why).isNull()) {
                    *reason = QStringLiteral("the picture %1 cannot be read: %2").arg(name, why);
                    return false;
                }
                input->pictures.append(path);
            }
            format.setProperty(QTextFormat::ImageName, path);
            format.setProperty(MRVTextFormat::ImageLinkProperty, path);
        }
        cursor.setPosition(run.begin);
        cursor.setPosition(run.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
    cursor.endEditBlock();
    input->remotePictures = remote.size();
    MTextDoc::fixHtmlImageFormatsAndResourceIds(input->document.get());
    MTextDoc::convertUniqueImageResources(input->document.get());
    return true;
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

namespace {

bool readText(const QString &text, const QString &format, DocumentInput *input, QString *reason)
{
    const bool html = format == QLatin1String("html");
    if (html && MRVHtmlReader::isNestedTooDeeply(text)) {
        *reason = QStringLiteral("elements are nested more than %1 levels deep")
                      .arg(MRVInputLimits::HtmlDepth);
        return false;
    }
    input->document = newDocument(text, format);
    if (html) {
        const MRVHtmlHead head = MRVHtmlReader::head(text);
        input->authors = head.authors;
        input->description = head.description;
        input->language = head.language;
    }
    return true;
}

} // namespace

DocumentInput::DocumentInput() = default;
DocumentInput::~DocumentInput() = default;
DocumentInput::DocumentInput(DocumentInput &&) noexcept = default;
DocumentInput &DocumentInput::operator=(DocumentInput &&) noexcept = default;

QString DocumentInput::fileName() const
{
    return path == QLatin1String("-") ? QString() : QFileInfo(path).fileName();
}

std::unique_ptr<QTextDocument> newDocument(const QString &text, const QString &format)
{
    auto document = std::make_unique<MRVGuardedDocument>();
    document->setUndoRedoEnabled(false);
    if (format == QLatin1String("html")) {
        document->setHtml(text);
    } else if (format == QLatin1String("markdown")) {
        document->setMarkdown(text);
    } else {
        document->setPlainText(text);
    }
    return document;
}

bool readDocument(const QString &path, const InputOptions &options, DocumentInput *input,
                  QString *error)
{
    const bool standard = path == QLatin1String("-");
    QString reason;
    const QByteArray bytes =
        standard ? standardInput(&reason) : MRVCoreUtil::ReadBinaryFile(path, &reason);
    if (!reason.isEmpty()) {
        *error = reason;
        return false;
    }
    const QString format = options.format.isEmpty() ? formatOf(path, bytes) : options.format;
    if (format.isEmpty()) {
        return fail(error, path,
                    QStringLiteral("unknown type of file; say with --from what it is"));
    }
    QString text;
    if (!decoded(bytes, format, options.encoding, &text, &input->encoding, &reason)) {
        return fail(error, path, reason);
    }
    input->path = path;
    input->format = format;
    input->bytes = bytes;
    if (!readText(text, format, input, &reason)) {
        return fail(error, path, reason);
    }
    const QString folder = standard ? QDir::currentPath() : QFileInfo(path).absolutePath();
    return !options.pictures || locatePictures(folder, input, &reason) || fail(error, path, reason);
}

int lookThrough(const QStringList &inputs, const InputOptions &options, const QString &doing,
                const std::function<bool(const DocumentInput &)> &look)
{
    bool found = false;
    bool refused = false;
    for (const QString &path : inputs) {
        showProgress(doing.arg(path));
        DocumentInput input;
        QString error;
        if (readDocument(path, options, &input, &error)) {
            found = look(input) || found;
        } else {
            printError(error);
            refused = true;
        }
    }
    return found && !refused ? Done : Failed;
}
