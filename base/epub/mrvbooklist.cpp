#include "epub/mrvbooklist.h"

#include "util/mrvfailure.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

MRVBookListEntry entryOf(const QString &line, const QDir &folder)
{
    if (line.startsWith(u'[') && line.endsWith(u']')) {
        return {true, QString(), line.mid(1, line.size() - 2).simplified()};
    }
    const QLatin1String separator(" | ");
    const QString titled = line + u' '; // the title after the bar may be missing
    const int at = titled.indexOf(separator);
    if (at < 0 || QFileInfo::exists(folder.filePath(line))) {
        return {false, QDir::cleanPath(folder.filePath(line)), QString()};
    }
    return {false, QDir::cleanPath(folder.filePath(line.left(at).trimmed())),
            titled.mid(at + separator.size()).simplified()};
}

} // namespace

bool MRVBookList::read(const QString &file, QVector<MRVBookListEntry> *entries, MRVErrorSink error)
{
    MRVError unreadable;
    const QString text = MRVCoreUtil::ReadUnicodeTextFile(file, &unreadable);
    if (unreadable) {
        return MRV::fail(error, unreadable); // names the file
    }
    const QDir folder = QFileInfo(file).dir();
    QVector<MRVBookListEntry> read;
    int number = 0;
    for (const QString &whole : text.split(u'\n')) {
        const QString line = whole.trimmed();
        ++number;
        if (line.isEmpty() || line.startsWith(u'#')) {
            continue;
        }
        const MRVBookListEntry entry = entryOf(line, folder);
        if (!entry.isPart && !QFileInfo(entry.path).isFile()) {
            return MRV::fail(error, file,
                             {MRVErrorKind::NotFound,
                              tr("line %1: there is no file %2").arg(number).arg(entry.path)});
        }
        read.append(entry);
    }
    if (std::all_of(read.begin(), read.end(),
                    [](const MRVBookListEntry &entry) { return entry.isPart; })) {
        return MRV::fail(error, file, {MRVErrorKind::Damaged, tr("the list names no manuscript")});
    }
    *entries = read;
    return true;
}
