#include "documentinput.h"

#include "text/mrvtextformat.h"
#include "text/mtextdoc.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvguiutil.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCodec>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <cstdio>

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

// Qt reads nested blocks in time that grows with the square of their depth.
constexpr int DeepestNesting = 2000;

bool fail(QString *error, const QString &path, const QString &reason)
{
    *error = QStringLiteral("%1: %2").arg(path, reason);
    return false;
}

QString formatOf(const QString &path, const QByteArray &bytes)
{
    if (path == QLatin1String("-")) {
        const QByteArray start = bytes.left(1000).trimmed().toLower();
        return start.startsWith("<!doctype html") || start.startsWith("<html")
            ? QStringLiteral("html")
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
             QString *reason)
{
    QTextCodec *utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec *codec = utf8;
    if (!encoding.isEmpty()) {
        codec = QTextCodec::codecForName(encoding.toLatin1());
        if (!codec) {
            *reason = QStringLiteral("unknown encoding '%1'").arg(encoding);
            return false;
        }
    } else if (format == QLatin1String("html")) {
        codec = QTextCodec::codecForHtml(bytes, utf8);
    } else {
        codec = QTextCodec::codecForUtfText(bytes, utf8);
    }
    QTextCodec::ConverterState state;
    *text = codec->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0) {
        *reason = QStringLiteral("not readable as %1; give the right encoding with --encoding")
                      .arg(QString::fromLatin1(codec->name()));
        return false;
    }
    return true;
}

bool isNestedTooDeeply(const QString &html)
{
    static const QRegularExpression tag(
        QStringLiteral(
            "<(/?)(?:div|blockquote|ul|ol|dl|table|center|span|font|section|article)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    int depth = 0;
    for (auto it = tag.globalMatch(html); it.hasNext();) {
        depth += it.next().capturedLength(1) ? -1 : 1;
        depth = qMax(depth, 0);
        if (depth > DeepestNesting) {
            return true;
        }
    }
    return false;
}

// The value of the first match of a pattern with one group, in the head of the page.
QString headValue(const QString &html, const char *pattern)
{
    constexpr int HeadSize = 20000;
    const QRegularExpression expression(QLatin1String(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    const QString value = expression.match(html.left(HeadSize)).captured(1);
    QTextDocument plain;
    plain.setHtml(value);
    return plain.toPlainText().simplified();
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

// Gives each picture on this machine its full path and remembers where it came from.
bool locatePictures(QTextDocument *document, const QString &folder, QString *reason)
{
    struct Run
    {
        int begin;
        int end;
        QTextCharFormat format;
    };
    QVector<Run> runs;
    QHash<QString, QString> known; // an ornament may be shown a thousand times: path by name
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextImageFormat image = fragment.charFormat().toImageFormat();
            if (!image.isValid() || isElsewhere(image.name())) {
                continue;
            }
            QString &path = known[image.name()];
            if (path.isEmpty()) {
                path = localFile(image.name(), folder);
                // A pipe or a device in a picture's place would never end.
                const bool file = QFileInfo(path).isFile();
                if (!file || MRVGuiUtil::toImage(MRVCoreUtil::ReadBinaryFile(path)).isNull()) {
                    *reason = QStringLiteral("the picture %1 cannot be read").arg(image.name());
                    return false;
                }
            }
            QTextCharFormat format = image;
            format.setProperty(QTextFormat::ImageName, path);
            format.setProperty(MRVTextFormat::ImageLinkProperty, path);
            runs.append({fragment.position(), fragment.position() + fragment.length(), format});
        }
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (const Run &run : qAsConst(runs)) {
        cursor.setPosition(run.begin);
        cursor.setPosition(run.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(run.format);
    }
    cursor.endEditBlock();
    return true;
}

QByteArray standardInput()
{
    QFile file;
    return file.open(stdin, QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

bool readDocument(const QString &path, const InputOptions &options, DocumentInput *input,
                  QString *error)
{
    const bool standard = path == QLatin1String("-");
    QString reason;
    const QByteArray bytes =
        standard ? standardInput() : MRVCoreUtil::ReadBinaryFile(path, &reason);
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
    if (!decoded(bytes, format, options.encoding, &text, &reason)) {
        return fail(error, path, reason);
    }
    input->path = path;
    input->document = std::make_unique<QTextDocument>();
    input->document->setUndoRedoEnabled(false);
    if (format == QLatin1String("html")) {
        if (isNestedTooDeeply(text)) {
            return fail(
                error, path,
                QStringLiteral("elements are nested more than %1 levels deep").arg(DeepestNesting));
        }
        input->document->setHtml(text);
        input->author = headValue(text, "<meta\\s+name=[\"']author[\"']\\s+content=\"([^\"]*)\"");
        input->language = headValue(text, "<html\\b[^>]*\\blang=[\"']([A-Za-z0-9-]+)[\"']");
    } else if (format == QLatin1String("markdown")) {
        input->document->setMarkdown(text);
    } else {
        input->document->setPlainText(text);
    }
    const QString folder = standard ? QDir::currentPath() : QFileInfo(path).absolutePath();
    if (!locatePictures(input->document.get(), folder, &reason)) {
        return fail(error, path, reason);
    }
    MTextDoc::fixHtmlImageFormatsAndResourceIds(input->document.get());
    MTextDoc::convertUniqueImageResources(input->document.get());
    return true;
}
