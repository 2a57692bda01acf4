#include "settings/mrvsettingsguard_p.h"

#include "input/mrvvariantguard.h"

#include <QDataStream>
#include <QMetaType>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

// A value that only ends too early does no harm: Qt sees that by itself.
bool isHarmless(const QByteArray &bytes, MRVVariantGuard::Form form)
{
    QDataStream stream(bytes);
    return !MRVVariantGuard::take(stream, form).isEmpty()
        || stream.status() == QDataStream::ReadPastEnd;
}

// The character that an escape stands for, as QSettings reads it; -1 for the end of a line that
// goes on in the next one. @p at stands after the backslash, and is moved after the escape.
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
        return isHarmless(item.mid(VariantMarkSize), MRVVariantGuard::SettingsValue);
    }
    return !item.startsWith(DateTimeMark)
        || isHarmless(item.mid(DateTimeMarkSize), MRVVariantGuard::SettingsDate);
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
    return isHarmless(bytes,
                      isDateTime ? MRVVariantGuard::SettingsDate : MRVVariantGuard::SettingsValue);
}
