#pragma once

#include "zip/mrvzipreader.h"
#include "zip/mrvzipwriter.h"

#include <QBuffer>
#include <QDateTime>

using Files = std::vector<std::pair<QString, QByteArray>>;

/// A zip archive of files, also of names that no good one has.
inline QByteArray zipOf(const Files &files, MRVZipEntry::Packing packing = MRVZipEntry::Stored)
{
    std::vector<MRVZipEntry> entries;
    for (const auto &file : files) {
        entries.push_back({file.first, packing, [bytes = file.second] { return bytes; }});
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QDateTime date(QDate(2026, 1, 31), QTime(12, 0), Qt::UTC);
    return mrvWriteZip(entries, 5, date, &buffer, nullptr) ? buffer.data() : QByteArray();
}

inline Files filesOf(const QByteArray &bytes)
{
    Files files;
    const MRVZipReader zip(bytes);
    for (int i = 0; i < zip.files().size(); ++i) {
        files.push_back({zip.files().at(i).path, zip.read(i, 1 << 24)});
    }
    return files;
}
