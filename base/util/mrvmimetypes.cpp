#include "util/mrvmimetypes.h"

#include "core/mcoretype.h"
#include "core/mrvcheckedstream.h"
#include "core/mrvcoreutil.h"

#include <QDataStream>
#include <QLoggingCategory>
#include <QMimeData>

const char *const MRV::ProjectNodeMimeType = "application/morvane.node";
const char *const MRV::TitleSynopsisMimeType = "application/morvane.title-synopsis";
const char *const MRV::FernwickNotesMimeType = "application/fernwick.notes";
const char *const MRV::FernwickGroupedNotesMimeType = "application/fernwick.notes.grouped";
const char *const MRV::UriListMimeType = "text/uri-list";
const char *const MRV::KeywordsMimeType = "application/morvane.keywords";
const char *const MRV::ReferencesMimeType = "application/morvane.references";
const char *const MRV::CommentsMimeType = "application/morvane.comments";
const char *const MRV::TextCursorPosMimeType = "application/x-qt-document-textcursor";
const char *const MRV::CharFormatMimeType = "application/x-qt-document-charformat";
const char *const MRV::DocumentReferenceMimeType = "application/x-qt-document-reference";
const char *const MRV::LinksMimeType = "application/morvane.qt.links";
const char *const MRV::TocMimeType = "application/morvane.qt.toc";
const char *const MRV::FontMimeType = "application/morvane.qt.font";
const char *const MRV::RulerMimeType = "application/morvane.qt.ruler";
const char *const MRV::FormattingMimeType = "application/morvane.qt.formatting";
const char *const MRV::MorvaneMarkupRtfMimeType = "application/morvane.markuprtf";
const char *const MRV::OdfMimeType = "application/vnd.oasis.opendocument.text";

namespace {

Q_LOGGING_CATEGORY(lcUtil, "mrv.util")

QHash<QString, QSet<QString>> readSuffixTable()
{
    const QString path = QStringLiteral(":/Other/Resources/mimetypes.csv");
    QString error;
    const QString text = MRVCoreUtil::ReadUnicodeTextFile(path, &error, "UTF-8");
    if (!error.isEmpty()) {
        qCWarning(lcUtil).noquote() << error;
    }

    QHash<QString, QSet<QString>> table;
    const QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'));
    for (const QStringRef &line : lines) {
        if (line.isEmpty() || line.startsWith(QLatin1String("//"))
            || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const QVector<QStringRef> fields = line.split(QLatin1Char(','));
        if (fields.size() >= 2) {
            table[fields.at(0).toString()].insert(fields.at(1).toString());
        }
    }
    return table;
}

const QHash<QString, QSet<QString>> &suffixTable()
{
    static QHash<QString, QSet<QString>> table;
    if (table.isEmpty()) {
        table = readSuffixTable();
    }
    return table;
}

} // namespace

QString MRV::parseProjectNodeMimeTypePath(const QMimeData *mime)
{
    return parseProjectNodeMimeType(mime).first;
}

QPair<QString, QList<int>> MRV::parseProjectNodeMimeType(const QMimeData *mime)
{
    QPair<QString, QList<int>> nodes;
    if (!mime) {
        return nodes;
    }
    QDataStream stream(mime->data(QString::fromLatin1(ProjectNodeMimeType)));
    stream.setVersion(MCoreType::StreamVersion);
    MRVCheckedStream in(&stream);
    in.read(&nodes.first);
    while (in.isOk() && !stream.atEnd()) {
        qint32 id = 0;
        if (in.read(&id) && id >= 0) {
            nodes.second << id;
        }
    }
    return nodes;
}

QStringList MRV::rtfMimeTypes()
{
    return {
        QStringLiteral("application/rtf"),
        QStringLiteral("application/x-qt-windows-mime;value=\"Rich Text Format\""),
        QStringLiteral("application/x-qt-richtext"),
        QStringLiteral("application/x-qrichtext"),
    };
}

QHash<QString, QSet<QString>> MRV::suffixMimeTypes()
{
    return suffixTable();
}

QSet<QString> MRV::mimeTypeForSuffix(const QString &suffix)
{
    return suffixTable().value(suffix);
}

QSet<QString> MRV::suffixForMimeType(const QString &mimeType)
{
    QSet<QString> suffixes;
    const QHash<QString, QSet<QString>> &table = suffixTable();
    for (auto it = table.cbegin(); it != table.cend(); ++it) {
        if (it.value().contains(mimeType)) {
            suffixes.insert(it.key());
        }
    }
    return suffixes;
}
