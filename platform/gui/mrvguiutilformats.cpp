#include "gui/mrvguiutil.h"

#include <QImageReader>
#include <QImageWriter>

namespace {

// Plug-ins list a format under each of its names; a user knows it as one.
constexpr struct
{
    const char *alias;
    const char *name;
} Aliases[] = {
    {"JPEG", "JPG"}, {"JPE", "JPG"}, {"JFIF", "JPG"}, {"TIFF", "TIF"}, {"SVGZ", "SVG"},
};

QString formatName(const QByteArray &pluginName)
{
    const QByteArray upper = pluginName.toUpper();
    for (const auto &row : Aliases) {
        if (upper == row.alias) {
            return QString::fromLatin1(row.name);
        }
    }
    return QString::fromLatin1(upper);
}

QStringList formatNames(const QList<QByteArray> &pluginNames)
{
    QStringList names;
    for (const QByteArray &pluginName : pluginNames) {
        names << formatName(pluginName);
    }
    names.sort();
    names.removeDuplicates();
    return names;
}

QStringList suffixes(const QString &format)
{
    QStringList list{format.toLower()};
    for (const auto &row : Aliases) {
        if (format == QLatin1String(row.name)) {
            list << QString::fromLatin1(row.alias).toLower();
        }
    }
    return list;
}

QStringList filters(const QStringList &formats)
{
    QStringList list;
    for (const QString &format : formats) {
        list << MRVGuiUtil::createFormatFilter(format, suffixes(format));
    }
    return list;
}

} // namespace

QStringList MRVGuiUtil::readImageFormats()
{
    QList<QByteArray> formats = QImageReader::supportedImageFormats();
    formats.removeAll("mng"); // MRVPictureReader refuses it
    return formatNames(formats);
}

QStringList MRVGuiUtil::writeImageFormats()
{
    return formatNames(QImageWriter::supportedImageFormats());
}

QStringList MRVGuiUtil::readWriteImageFormats()
{
    const QStringList writable = writeImageFormats();
    QStringList both;
    for (const QString &format : readImageFormats()) {
        if (writable.contains(format)) {
            both << format;
        }
    }
    return both;
}

QStringList MRVGuiUtil::readImageFileFilters()
{
    const QStringList formats = readImageFormats();
    QStringList all;
    for (const QString &format : formats) {
        all << suffixes(format);
    }
    return QStringList{createFormatFilter(tr("All Images"), all)} + filters(formats);
}

QStringList MRVGuiUtil::writeImageFileFilters()
{
    return filters(writeImageFormats());
}

QString MRVGuiUtil::createFormatFilter(const QString &description, const QStringList &suffixes)
{
    QStringList patterns;
    for (QString suffix : suffixes) {
        suffix = suffix.trimmed();
        if (suffix.startsWith(QLatin1Char('*'))) {
            suffix.remove(0, 1);
        }
        if (suffix.startsWith(QLatin1Char('.'))) {
            suffix.remove(0, 1);
        }
        if (!suffix.isEmpty()) {
            patterns << QLatin1String("*.") + suffix;
        }
    }
    patterns.removeDuplicates();
    if (patterns.isEmpty()) {
        patterns << QStringLiteral("*");
    }
    return QStringLiteral("%1 (%2)").arg(description, patterns.join(QLatin1Char(' ')));
}
