#include "autoreplace/mrvautoreplace.h"

#include "autoreplace/mrvautoreplacetext_p.h"

#include <QDataStream>

namespace {

constexpr qint32 EntryVersion = 1;

} // namespace

QDataStream &operator<<(QDataStream &stream, const MRVAutoReplace &entry)
{
    return stream << EntryVersion << entry.enabled << entry.match << entry.replacement;
}

QDataStream &operator>>(QDataStream &stream, MRVAutoReplace &entry)
{
    qint32 version = 0;
    stream >> version >> entry.enabled;
    mrvReadText(stream, &entry.match);
    mrvReadText(stream, &entry.replacement);
    return stream;
}
