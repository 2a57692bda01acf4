#include "settingsfile.h"

#include "settings/mrvoptions.h"

#include <QFile>

namespace {

// QSettings takes any file for one of its own, and would write over it.
bool beginsLikeSettings(QFile *file)
{
    constexpr int MostLine = 10000;
    const QByteArray mark("\xef\xbb\xbf"); // of UTF-8, which some editors write
    if (file->peek(mark.size()) == mark)
        file->skip(mark.size());
    while (!file->atEnd()) {
        const QByteArray line = file->readLine(MostLine).trimmed();
        if (!line.isEmpty() && !line.startsWith(';'))
            return line.startsWith('[');
    }
    return true;
}

} // namespace

std::unique_ptr<MRVOptions> openOptions(const QString &path, IfMissing ifMissing, QString *error)
{
    if (path.isEmpty())
        return std::make_unique<MRVOptions>();
    QFile file(path);
    if (!file.exists() && ifMissing == IfMissing::Create)
        return std::make_unique<MRVOptions>(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return nullptr;
    }
    std::unique_ptr<MRVOptions> options;
    if (beginsLikeSettings(&file))
        options = std::make_unique<MRVOptions>(path);
    if (!options || options->status() != QSettings::NoError) {
        *error = QStringLiteral("%1: this is no settings file").arg(path);
        return nullptr;
    }
    return options;
}
