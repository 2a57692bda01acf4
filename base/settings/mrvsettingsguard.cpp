#include "settings/mrvsettingsguard_p.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"

#include <QColor>
#include <QDataStream>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMetaType>
#include <QSettings>

#include <cctype>
#include <cstring>

namespace {

Q_LOGGING_CATEGORY(lcGuard, "mrv.settings.guard")

// Lists in lists; nobody nests settings deeper.
constexpr int MaxDepth = 8;

// Sizes in the stream version that QSettings writes, Qt_4_0; -1 for types that have none.
int fixedSize(quint32 type)
{
    switch (type) {
    case QMetaType::UnknownType:
        return 0;
    case QMetaType::Bool:
        return 1;
    case QMetaType::QChar:
        return 2;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::QDate:
    case QMetaType::QTime:
        return 4;
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
    bool isHarmless(int depth = 0)
    {
        quint32 type = 0;
        m_stream >> type;
        if (const int size = fixedSize(type); size >= 0)
            return m_stream.skipRawData(size) >= 0;
        switch (type) {
        case QMetaType::QColor:
            return skipColor();
        case QMetaType::QString:
        case QMetaType::QByteArray:
        case QMetaType::QUrl:
        case QMetaType::QLocale:
            return skipText();
        case QMetaType::QFont:
            return depth == 0;
        case QMetaType::QStringList:
            return skipEntries([this] { return skipText(); });
        case QMetaType::QVariantList:
            return depth < MaxDepth && skipEntries([&] { return isHarmless(depth + 1); });
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return depth < MaxDepth
                && skipEntries([&] { return skipText() && isHarmless(depth + 1); });
        default:
            return false;
        }
    }

private:
    qint64 left() const { return m_stream.device()->bytesAvailable(); }

    // The kind of colour is taken for one of the enumeration, whatever it is.
    bool skipColor()
    {
        qint8 spec = 0;
        m_stream >> spec;
        return spec >= QColor::Invalid && spec <= QColor::ExtendedRgb
            && m_stream.skipRawData(5 * int(sizeof(quint16))) >= 0;
    }

    bool skipText()
    {
        quint32 length = 0;
        m_stream >> length;
        if (length == 0xffffffff)
            return true;
        return length <= left() && m_stream.skipRawData(int(length)) >= 0;
    }

    // Each entry has a length or a type of four bytes at least.
    template<typename Skip>
    bool skipEntries(const Skip &skip)
    {
        quint32 count = 0;
        m_stream >> count;
        if (count > left() / 4)
            return false;
        for (; count > 0; --count) {
            if (!skip())
                return false;
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
            && (line.at(*at) == '\n' || line.at(*at) == '\r'))
            ++*at;
        return -1;
    }
    if (const char *letter = std::strchr(Letters, c); c != 0 && letter)
        return Meanings[letter - Letters];
    const bool isHex = c == 'x';
    if (!isHex && (c < '0' || c > '7'))
        return -1;
    if (isHex && (*at == line.size() || !std::isxdigit(uchar(line.at(*at)))))
        return -1;
    ushort code = isHex ? 0 : ushort(c - '0');
    for (; *at < line.size(); ++*at) {
        const char digit = line.at(*at);
        const bool fits = isHex ? std::isxdigit(uchar(digit)) : digit >= '0' && digit <= '7';
        if (!fits)
            break;
        const int value = digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10;
        code = ushort(code * (isHex ? 16 : 8) + value);
    }
    return code < 0x100 ? code : '?';
}

constexpr char VariantMark[] = "@Variant(";
constexpr int MarkSize = int(sizeof(VariantMark)) - 1;

bool isHarmlessItem(const QByteArray &item)
{
    return !item.startsWith(VariantMark) || Walker(item.mid(MarkSize)).isHarmless();
}

// A line with all that it goes on in. Commas outside of quotes part a value into items.
bool isHarmlessLine(const QByteArray &line)
{
    QByteArray item;
    const auto append = [&item](int c) {
        // Of other items, which may be long, the beginning is enough.
        if (c >= 0 && (item.size() < MarkSize || item.startsWith(VariantMark)))
            item += char(c);
    };
    bool isQuoted = false;
    bool isAtStart = true;
    for (int at = line.indexOf('=') + 1; at < line.size();) {
        const char c = line.at(at++);
        if (isAtStart && (c == ' ' || c == '\t'))
            continue;
        isAtStart = false;
        if (c == '\\' && at < line.size()) {
            append(unescaped(line, &at));
        } else if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == ',' && !isQuoted) {
            if (!isHarmlessItem(item))
                return false;
            item.clear();
            isAtStart = true;
        } else {
            append(uchar(c));
        }
    }
    return isHarmlessItem(item);
}

// Where the line that begins at @p begin ends: a quote or a backslash takes it over line ends.
int endOfLine(const QByteArray &bytes, int begin)
{
    bool isQuoted = false;
    while (begin < bytes.size() && (bytes.at(begin) == ' ' || bytes.at(begin) == '\t'))
        ++begin;
    const bool isComment = begin < bytes.size() && bytes.at(begin) == ';';
    for (int at = begin; at < bytes.size(); ++at) {
        const char c = bytes.at(at);
        if ((c == '\n' || c == '\r') && !isQuoted)
            return at + 1;
        if (isComment)
            continue;
        if (c == '"')
            isQuoted = !isQuoted;
        else if (c == '\\')
            at += bytes.mid(at + 1, 2) == "\r\n" ? 2 : 1;
    }
    return bytes.size();
}

} // namespace

QByteArray mrvHarmlessSettings(const QByteArray &bytes)
{
    QByteArray harmless;
    for (int begin = 0; begin < bytes.size();) {
        const int end = endOfLine(bytes, begin);
        const QByteArray line = bytes.mid(begin, end - begin);
        if (isHarmlessLine(line))
            harmless += line;
        begin = end;
    }
    return harmless;
}

QString mrvDisarmSettings(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return path;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path);
    // Few values are variants at all, and most of those are colours.
    const QByteArray harmless = mrvHarmlessSettings(bytes);
    if (harmless.size() == bytes.size())
        return path;
    QString error;
    const bool isKept = MRVFileWriter::write(path + QLatin1String(".damaged"), bytes, &error)
        && MRVFileWriter::write(path, harmless, &error);
    qCWarning(lcGuard, "%s",
              qPrintable(isKept ? path + QLatin1String(": damaged values were taken out") : error));
    return path;
}

QString mrvDisarmUserSettings(const QString &organization, const QString &application)
{
    // Where the files lie, QSettings tells only of one that it has opened; there is none of this name.
    const QSettings none(QSettings::NativeFormat, QSettings::UserScope,
                         organization + QLatin1String(" (none)"), QStringLiteral("none"));
    const QDir folder(QFileInfo(none.fileName()).path() + QLatin1String("/.."));
    const QString suffix = u'.' + QFileInfo(none.fileName()).suffix();
    mrvDisarmSettings(QDir::cleanPath(folder.filePath(organization + u'/' + application + suffix)));
    mrvDisarmSettings(QDir::cleanPath(folder.filePath(organization + suffix)));
    return organization;
}
