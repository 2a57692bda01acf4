#include "zip/mrvziprepair.h"

#include "core/mrvinputlimits.h"

#include <QSet>
#include <QtEndian>

namespace {

// As APPNOTE.TXT has them, sections 4.3.7, 4.3.12 and 4.3.16.
constexpr int HeadSize = 30;
constexpr int PackedSizeAt = 18;
constexpr int NameSizeAt = 26;
constexpr int ExtraSizeAt = 28;
constexpr int FlagsAt = 6;
constexpr quint16 SizeComesLater = 8; // a flag

quint16 number16(const QByteArray &bytes, int place)
{
    return qFromLittleEndian<quint16>(bytes.constData() + place);
}

void append16(QByteArray *bytes, int number)
{
    const quint16 stored = qToLittleEndian(quint16(number));
    bytes->append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

void append32(QByteArray *bytes, int number)
{
    const quint32 stored = qToLittleEndian(quint32(number));
    bytes->append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

// Of a file whose head is at @p place.
QByteArray entryOf(const QByteArray &bytes, int place, const QByteArray &name)
{
    constexpr int VersionAt = 4;
    constexpr int CommonSize = 22; // version, flags, method, date, checksum and sizes
    constexpr int Unused = 12; // lengths of extra fields and a comment, a disk, and attributes
    QByteArray entry("PK\1\2");
    entry += bytes.mid(VersionAt, 2); // that made it, as that which it needs
    entry += bytes.mid(place + VersionAt, CommonSize);
    append16(&entry, name.size());
    entry += QByteArray(Unused, '\0');
    append32(&entry, place);
    return entry + name;
}

} // namespace

QByteArray mrvRepairZip(const QByteArray &bytes)
{
    QByteArray directory;
    QSet<QByteArray> names;
    int count = 0;
    int place = 0;
    while (bytes.size() - place >= HeadSize && bytes.mid(place, 4) == "PK\3\4"
           && count < MRVInputLimits::ZipFiles) {
        const qint64 packed = qFromLittleEndian<quint32>(bytes.constData() + place + PackedSizeAt);
        const int nameSize = number16(bytes, place + NameSizeAt);
        const qint64 end =
            place + HeadSize + nameSize + number16(bytes, place + ExtraSizeAt) + packed;
        if (end > bytes.size() || (number16(bytes, place + FlagsAt) & SizeComesLater)) {
            break;
        }
        const QByteArray name = bytes.mid(place + HeadSize, nameSize);
        if (!names.contains(name)) {
            names.insert(name);
            directory += entryOf(bytes, place, name);
            ++count;
        }
        place = int(end);
    }
    if (count == 0) {
        return QByteArray();
    }
    QByteArray repaired = bytes.left(place) + directory + "PK\5\6";
    append32(&repaired, 0); // disks
    append16(&repaired, count);
    append16(&repaired, count);
    append32(&repaired, directory.size());
    append32(&repaired, place);
    append16(&repaired, 0); // a comment
    return repaired;
}
