#include "gui/mrvpictureclaims_p.h"

#include "gui/mrvpicturebytes_p.h"
#include "gui/mrvpng.h"

#include <QList>

namespace {

// A PNG file among others; what lies outside of the bytes is cut off.
void addPng(const QByteArray &bytes, qint64 start, qint64 length, MRVPictureClaims *claims)
{
    const int size = int(qBound<qint64>(0, length, bytes.size() - start));
    const MRVPng png = MRVPng::walk(QByteArray::fromRawData(bytes.constData() + start, size));
    claims->sizes << png.size;
    claims->texts += png.texts;
}

MRVPictureClaims pngClaims(const QByteArray &bytes)
{
    MRVPictureClaims claims;
    addPng(bytes, 0, bytes.size(), &claims);
    return claims;
}

// QImageReader::size() tells what the directory of an icon file says, which the decoder does not go
// by.
MRVPictureClaims iconClaims(const QByteArray &bytes)
{
    constexpr qint64 DirectoryStart = 6;
    constexpr qint64 EntryBytes = 16;
    const MRVPictureBytes file(bytes);
    const int count = file.little<quint16>(4);
    qint64 walked = 0;
    MRVPictureClaims claims;
    for (int i = 0; i < count && file.holds(DirectoryStart + i * EntryBytes, EntryBytes); ++i) {
        const qint64 entry = DirectoryStart + i * EntryBytes;
        const qint64 length = file.little<quint32>(entry + 8);
        const qint64 start = file.little<quint32>(entry + 12);
        if (file.matches(start, "\x89PNG")) {
            addPng(bytes, start, length, &claims);
            walked += qMin(length, file.size());
        } else {
            // Twice the height, for the mask below the picture.
            claims.sizes << QSize(file.little<qint32>(start + 4),
                                  file.little<qint32>(start + 8) / 2);
        }
        // Thousands of entries for the same bytes would take as many walks.
        claims.isComplete = walked <= 2 * file.size();
        if (!claims.isComplete) {
            break;
        }
    }
    return claims;
}

// The icons of this container are files of their own, or pixels of a size that their type tells.
MRVPictureClaims appleIconClaims(const QByteArray &bytes)
{
    constexpr qint64 EntryHead = 8;
    constexpr QSize LargestIcon(1024, 1024);
    const MRVPictureBytes file(bytes);
    MRVPictureClaims claims;
    for (qint64 at = EntryHead; file.holds(at, EntryHead);) {
        const qint64 length = qMax<qint64>(file.big<quint32>(at + 4), EntryHead);
        const qint64 data = at + EntryHead;
        if (file.matches(data, "\x89PNG")) {
            addPng(bytes, data, length - EntryHead, &claims);
        } else if (file.matches(data, "\0\0\0\x0cjP  ") || file.matches(data, "\xff\x4f\xff\x51")) {
            claims.isComplete = false; // JPEG 2000, which an external plug-in may read
        } else {
            claims.sizes.append(LargestIcon); // of raw pixels, which no header describes
        }
        at += length;
    }
    return claims;
}

// The end of a sequence of blocks, each with its length before it, that a block of no length ends.
qint64 gifBlocksEnd(const MRVPictureBytes &file, qint64 at)
{
    while (file.byte(at) > 0) {
        at += 1 + file.byte(at);
    }
    return at + 1;
}

qint64 gifTableBytes(quint8 flags)
{
    return (flags & 0x80) ? qint64(3) << ((flags & 7) + 1) : 0;
}

// Qt takes memory for the screen or, where it finds the screen far too large, for one that holds
// the first frame; which of the two is not always to be foreseen. So the screen counts as its
// header has it, each frame as the frame has it, and all of them together.
MRVPictureClaims gifClaims(const QByteArray &bytes)
{
    constexpr qint64 ScreenEnd = 13;
    const MRVPictureBytes file(bytes);
    QSize screen(file.little<quint16>(6), file.little<quint16>(8));
    MRVPictureClaims claims;
    for (qint64 at = ScreenEnd + gifTableBytes(file.byte(10)); at < file.size();) {
        const quint8 kind = file.byte(at);
        if (kind == '!') {
            at = gifBlocksEnd(file, at + 2);
        } else if (kind == ',') {
            const QSize start(file.little<quint16>(at + 1), file.little<quint16>(at + 3));
            const QSize frame(file.little<quint16>(at + 5), file.little<quint16>(at + 7));
            claims.sizes << frame;
            screen = screen.expandedTo(start + frame);
            at = gifBlocksEnd(file, at + 11 + gifTableBytes(file.byte(at + 9)));
        } else {
            break;
        }
    }
    claims.sizes << screen;
    return claims;
}

// One directory of a TIFF: each of its pictures has one.
class TiffDirectory
{
public:
    TiffDirectory(const MRVPictureBytes &file, qint64 at)
        : m_file(file)
        , m_isLittle(file.byte(0) == 'I')
        , m_at(at)
        , m_count(number16(at))
    {
    }

    qint64 next() const { return number32(m_at + 2 + m_count * EntryBytes); }
    /** The number of a tag that has one; 0 without it. */
    qint64 value(int tag) const
    {
        constexpr int Short = 3;
        for (int i = 0; i < m_count; ++i) {
            const qint64 entry = m_at + 2 + i * EntryBytes;
            if (number16(entry) == tag) {
                return number16(entry + 2) == Short ? number16(entry + 8) : number32(entry + 8);
            }
        }
        return 0;
    }

private:
    static constexpr qint64 EntryBytes = 12;

    int number16(qint64 at) const
    {
        return m_isLittle ? m_file.little<quint16>(at) : m_file.big<quint16>(at);
    }
    qint64 number32(qint64 at) const
    {
        return m_isLittle ? m_file.little<quint32>(at) : m_file.big<quint32>(at);
    }

    const MRVPictureBytes &m_file;
    bool m_isLittle;
    qint64 m_at;
    int m_count;
};

// Tiles are decoded whole, however small the picture is that they make up.
MRVPictureClaims tiffClaims(const QByteArray &bytes)
{
    enum Tag { ImageWidth = 256, ImageLength = 257, TileWidth = 322, TileLength = 323 };
    constexpr int MaxPictures = 1024; // a directory may name itself as the next one
    const MRVPictureBytes file(bytes);
    const auto size = [](qint64 width, qint64 height) {
        constexpr qint64 MaxSide = 0x7fffffff;
        return QSize(int(qMin(width, MaxSide)), int(qMin(height, MaxSide)));
    };
    const bool isLittle = file.matches(0, "II*\0");
    MRVPictureClaims claims;
    claims.isComplete = isLittle || file.matches(0, "MM\0*"); // not the form with long offsets
    qint64 at = isLittle ? file.little<quint32>(4) : file.big<quint32>(4);
    for (int i = 0; claims.isComplete && at > 0 && i < MaxPictures; ++i) {
        const TiffDirectory directory(file, at);
        claims.sizes << size(directory.value(ImageWidth), directory.value(ImageLength))
                     << size(directory.value(TileWidth), directory.value(TileLength));
        at = directory.next();
    }
    return claims;
}

// The size that an XBM text claims in its first two definitions. Qt's reader decodes the whole
// picture merely to find out whether it is one.
MRVPictureClaims bitmapTextClaims(const QByteArray &bytes)
{
    // Most files of other formats have a null byte among their first few, where a text ends.
    const int textEnd = bytes.indexOf('\0');
    const QByteArray text =
        QByteArray::fromRawData(bytes.constData(), textEnd < 0 ? bytes.size() : textEnd);
    const int at = text.startsWith("#define") ? 0 : text.indexOf("\n#define") + 1;
    if (at == 0 && !text.startsWith('#')) {
        return MRVPictureClaims();
    }
    int numbers[2] = {-1, -1};
    int lineStart = at;
    for (int &number : numbers) {
        const int lineEnd = bytes.indexOf('\n', lineStart);
        if (lineEnd < 0) {
            return MRVPictureClaims();
        }
        const QList<QByteArray> words =
            bytes.mid(lineStart, lineEnd - lineStart).simplified().split(' ');
        number = words.value(2).toInt();
        lineStart = lineEnd + 1;
    }
    MRVPictureClaims claims;
    claims.sizes << QSize(numbers[0], numbers[1]);
    return claims;
}

struct ClaimsRow
{
    const char *format;
    MRVPictureClaims (*claims)(const QByteArray &);
};

// clang-format off
constexpr ClaimsRow claimsRows[] = {
    {"png",  pngClaims},
    {"gif",  gifClaims},
    {"ico",  iconClaims},
    {"cur",  iconClaims},
    {"icns", appleIconClaims},
    {"tiff", tiffClaims},
    {"tif",  tiffClaims},
    {"xbm",  bitmapTextClaims},
};
// clang-format on

} // namespace

MRVPictureClaims mrvPictureClaims(const QByteArray &bytes, const QByteArray &format)
{
    for (const ClaimsRow &row : claimsRows) {
        if (format == row.format) {
            return row.claims(bytes);
        }
    }
    return MRVPictureClaims();
}
