#include "autoreplace/mrvautoreplace.h"

#include "core/mrvcheckedstream.h"

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
    MRVCheckedStream in(&stream);
    qint32 version = 0;
    in.read(&version);
    in.read(&entry.enabled);
    in.read(&entry.match);
    in.read(&entry.replacement);
    return stream;
}
