#include "util/mrvlocalfile.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

bool MRV::isElsewhere(const QString &address)
{
    const QString scheme = QUrl(address).scheme();
    return address.startsWith(QLatin1String("//"))
        || (scheme.size() > 1 && scheme != QLatin1String("file"));
}

QString MRV::fileIdentity(const QString &path)
{
    const QFileInfo file(path);
    const QString real = file.canonicalFilePath();
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return !real.isEmpty()  ? real
        : !folder.isEmpty() ? QDir(folder).filePath(file.fileName())
                            : QDir::cleanPath(file.absoluteFilePath());
}

QString MRV::localFile(const QString &address, const QString &folder)
{
    const QUrl url(address);
    if (url.scheme() == QLatin1String("file")) {
        return url.toLocalFile();
    }
    const QDir from(folder);
    const QString plain = from.absoluteFilePath(address);
    if (QFileInfo::exists(plain)) {
        return plain;
    }
    const QString decoded = from.absoluteFilePath(QUrl::fromPercentEncoding(address.toUtf8()));
    if (QFileInfo::exists(decoded)) {
        return decoded;
    }
    const QString path = url.path(QUrl::FullyDecoded);
    return url.isValid() && !path.isEmpty() ? from.absoluteFilePath(path) : decoded;
}
