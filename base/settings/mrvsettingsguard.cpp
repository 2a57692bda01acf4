#include "settings/mrvsettingsguard_p.h"

#include <QColor>
#include <QDataStream>
#include <QMetaType>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

// Lists in lists; nobody nests settings deeper.
constexpr int MaxDepth = 8;

// The types that have other numbers in the stream version Qt_4_0; those that it does not know,
// whose name follows, are User.
quint32 typeOf(quint32 stored)
{
    constexpr quint32 User = 127;
    constexpr quint32 FirstMoved = 128;
    constexpr quint32 MovedBy = 97;
    if (stored == User) {
        return QMetaType::User;
    }
    return stored >= FirstMoved && stored < QMetaType::User ? stored - MovedBy : stored;
}

// Sizes in the stream version that QSettings writes, Qt_4_0; -1 for types that have none.
int fixedSize(quint32 type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return 1;
    case QMetaType::QChar:
    case QMetaType::Short:
    case QMetaType::UShort:
        return 2;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Float:
    case QMetaType::QDate:
    case QMetaType::QTime:
        return 4;
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QSize:
    case QMetaType::QPoint:
        return 8;
    case QMetaType::QDateTime:
        return 9;
    case QMetaType::QRect:
    case QMetaType::QSizeF:
    case QMetaType::QPointF:
    case QMetaType::QLine:
    case QMetaType::QUuid:
        return 16;
    case QMetaType::QRectF:
    case QMetaType::QLineF:
        return 32;
    default:
        return -1;
    }
}

class Walker
{
public:
    explicit Walker(const QByteArray &bytes)
        : m_stream(bytes)
    {
    }

    // A simple value that ends too early does no harm: its reader sees that.
    bool isSafe(int depth = 0)
    {
        quint32 type = 0;
        m_stream >> type;
        type = typeOf(type);
        if (const int size = fixedSize(type); size >= 0) {
            return skip(size);
        }
        switch (type) {
        case QMetaType::UnknownType: // an empty text stands for the value
        case QMetaType::QString:
        case QMetaType::QByteArray:
        case QMetaType::QUrl:
        case QMetaType::QLocale:
            return skipText();
        case QMetaType::QColor:
            return skipColor();
        case QMetaType::User:
            return skipUuid();
        case QMetaType::QBitArray:
            return skipBits();
        case QMetaType::QFont:
            return depth == 0;
        case QMetaType::QStringList:
        case QMetaType::QByteArrayList:
            return skipEntries([this] { return skipText(); });
        case QMetaType::QVariantList:
            return depth < MaxDepth && skipEntries([&] { return isSafe(depth + 1); });
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return depth < MaxDepth && skipEntries([&] { return skipText() && isSafe(depth + 1); });
        default:
            return false;
        }
    }

    // Of the stream version Qt_5_6, which QSettings writes for dates with a time.
    bool isSafeDateTime()
    {
        constexpr int DateAndTime = 12;
        quint32 type = 0;
        qint8 isNull = 0;
        qint8 spec = 0;
        m_stream >> type >> isNull;
        if (type != QMetaType::QDateTime) {
            return type == QMetaType::UnknownType;
        }
        if (!skip(DateAndTime)) {
            return false;
        }
        m_stream >> spec;
        return spec != Qt::TimeZone || skipZone();
    }

private:
    qint64 left() const { return m_stream.device()->bytesAvailable(); }
    bool skip(qint64 size) { return m_stream.skipRawData(int(size)) >= 0; }

    // The kind of colour is taken for one of the enumeration, whatever it is.
    bool skipColor()
    {
        qint8 spec = 0;
        m_stream >> spec;
        return spec >= QColor::Invalid && spec <= QColor::ExtendedRgb
            && skip(5 * int(sizeof(quint16)));
    }

    bool skipText()
    {
        quint32 length = 0;
        m_stream >> length;
        if (length == 0xffffffff) {
            return true;
        }
        return length <= left() && skip(length);
    }

    bool skipBits()
    {
        quint32 count = 0;
        m_stream >> count;
        const qint64 size = (qint64(count) + 7) / 8;
        return size <= left() && skip(size);
    }

    // Of what is stored by its name only identifiers are known here.
    bool skipUuid()
    {
        static constexpr char Name[] = "QUuid";
        constexpr int Size = 16;
        quint32 length = 0;
        m_stream >> length;
        char name[sizeof(Name)] = {};
        return length == sizeof(Name) && m_stream.readRawData(name, sizeof(Name)) == sizeof(Name)
            && std::memcmp(name, Name, sizeof(Name)) == 0 && skip(Size);
    }

    // A name; of a zone that has none, its offset and texts follow a text that says so.
    bool skipZone()
    {
        constexpr int Number = 4;
        return skipText()
            && (left() < Number
                || (skipText() && skip(Number) && skipText() && skipText() && skip(Number)
                    && skipText()));
    }

    // Each entry has a length or a type of four bytes at least.
    template<typename Skip>
    bool skipEntries(const Skip &skip)
    {
        quint32 count = 0;
        m_stream >> count;
        if (count > left() / 4) {
            return false;
        }
        for (; count > 0; --count) {
            if (!skip()) {
                return false;
            }
        }
        return true;
    }

    QDataStream m_stream;
};

// The character that an escape stands for, as QSettings reads it; -1 for the end of a line that
// goes on in the next one. @p at stands after the backslash, and is moved behind the escape.
int unescaped(const QByteArray &line, int *at)
{
    static constexpr char Letters[] = "abfnrtv\"?'\\";
    static constexpr char Meanings[] = "\a\b\f\n\r\t\v\"?'\\";
    const char c = line.at((*at)++);
    if (c == '\n' || c == '\r') {
        if (*at < line.size() && line.at(*at) != c
            && (line.at(*at) == '\n' || line.at(*at) == '\r')) {
            ++*at;
        }
        return -1;
    }
    if (const char *letter = std::strchr(Letters, c); c != 0 && letter) {
        return Meanings[letter - Letters];
    }
    const bool isHex = c == 'x';
    if (!isHex && (c < '0' || c > '7')) {
        return -1;
    }
    if (isHex && (*at == line.size() || !std::isxdigit(uchar(line.at(*at))))) {
        return -1;
    }
    ushort code = isHex ? 0 : ushort(c - '0');
    for (; *at < line.size(); ++*at) {
        const char digit = line.at(*at);
        const bool fits = isHex ? std::isxdigit(uchar(digit)) : digit >= '0' && digit <= '7';
        if (!fits) {
            break;
        }
        const int value = digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10;
        code = ushort(code * (isHex ? 16 : 8) + value);
    }
    return code < 0x100 ? code : '?';
}

constexpr char VariantMark[] = "@Variant(";
constexpr char DateTimeMark[] = "@DateTime(";
constexpr int VariantMarkSize = int(sizeof(VariantMark)) - 1;
constexpr int DateTimeMarkSize = int(sizeof(DateTimeMark)) - 1;

bool isMarked(const QByteArray &item)
{
    return item.startsWith(VariantMark) || item.startsWith(DateTimeMark);
}

bool isSafeItem(const QByteArray &item)
{
    if (item.startsWith(VariantMark)) {
        return Walker(item.mid(VariantMarkSize)).isSafe();
    }
    return !item.startsWith(DateTimeMark) || Walker(item.mid(DateTimeMarkSize)).isSafeDateTime();
}

// A value with all lines that it goes on in. Commas outside of quotes part it into items.
bool isSafeValue(const QByteArray &value, bool isUtf8)
{
    QByteArray item;
    const auto append = [&item](int c) {
        // Of other items, which may be long, the beginning is enough.
        if (c >= 0 && (item.size() < DateTimeMarkSize || isMarked(item))) {
            item += char(c);
        }
    };
    bool isQuoted = false;
    bool isAtStart = true;
    for (int at = 0; at < value.size();) {
        const char c = value.at(at++);
        if (isAtStart && (c == ' ' || c == '\t')) {
            continue;
        }
        isAtStart = false;
        if (c == '\\' && at < value.size()) {
            append(unescaped(value, &at));
        } else if (c == '"') {
            isQuoted = !isQuoted;
            isAtStart = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            if (!isSafeItem(item)) {
                return false;
            }
            item.clear();
            isAtStart = true;
        } else if (isUtf8 && uchar(c) >= 0x80 && isMarked(item)) {
            return false; // nobody writes that, and it would be other bytes
        } else {
            append(uchar(c));
        }
    }
    return isSafeItem(item);
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

struct Line
{
    int begin;
    int equals; // -1 where there is none
    int end; // a comment after it does not belong to it
};

int afterBlanksAndComments(const QByteArray &bytes, int at)
{
    while (at < bytes.size() && std::strchr(" \t\n\r;", bytes.at(at)) && bytes.at(at) != 0) {
        if (bytes.at(at++) != ';') {
            continue;
        }
        while (at < bytes.size() && !isLineEnd(bytes.at(at))) {
            ++at;
        }
    }
    return at;
}

// As QSettings finds them: a quote or a backslash takes a line over line ends.
Line lineAfter(const QByteArray &bytes, int at)
{
    Line line{afterBlanksAndComments(bytes, at), -1, bytes.size()};
    bool isQuoted = false;
    for (at = line.begin; at < bytes.size(); ++at) {
        const char c = bytes.at(at);
        if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == '\\') {
            const QByteArray next = bytes.mid(at + 1, 2);
            at += next == "\r\n" || next == "\n\r" ? 2 : 1;
        } else if (isQuoted) {
            continue;
        } else if (c == '=' && line.equals < 0) {
            line.equals = at;
        } else if (isLineEnd(c) || c == ';') {
            line.end = at;
            break;
        }
    }
    return line;
}

} // namespace

bool mrvHasUtf8Mark(const QByteArray &bytes)
{
    return bytes.startsWith("\xef\xbb\xbf");
}

QByteArray mrvSafeSettings(const QByteArray &bytes)
{
    const bool isUtf8 = mrvHasUtf8Mark(bytes);
    QByteArray safe;
    int copied = 0;
    for (int at = isUtf8 ? mrvUtf8MarkSize : 0; at < bytes.size();) {
        const Line line = lineAfter(bytes, at);
        at = line.end;
        if (line.equals < 0 || bytes.at(line.begin) == '[') {
            continue;
        }
        const int value = line.equals + 1;
        if (isSafeValue(bytes.mid(value, line.end - value), isUtf8)) {
            continue;
        }
        safe += bytes.mid(copied, line.begin - copied);
        copied = line.end < bytes.size() && bytes.at(line.end) == '\n' ? line.end + 1 : line.end;
    }
    return copied == 0 ? bytes : safe + bytes.mid(copied);
}

bool mrvCanBeStored(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QByteArray:
    case QMetaType::QColor:
    case QMetaType::QKeySequence: // as a text
        return true;
    case QMetaType::QVariantList: {
        const QVariantList items = value.toList();
        return std::all_of(items.cbegin(), items.cend(), mrvCanBeStored);
    }
    default:
        break;
    }
    const bool isDateTime = value.userType() == QMetaType::QDateTime;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(isDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
    stream << value;
    Walker walker(bytes);
    return isDateTime ? walker.isSafeDateTime() : walker.isSafe();
}
