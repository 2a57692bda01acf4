#include "settings/mrvsettingstext_p.h"

#include "input/mrvvariantguard.h"

#include <QDataStream>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

void appendHex(QByteArray *bytes, uint code)
{
    bytes->append("\\x");
    bytes->append(QByteArray::number(code, 16));
}

// The letter after the backslash; 0 for a character that needs none.
char escapeOf(uint code)
{
    static constexpr char Codes[] = "\a\b\f\n\r\t\v\"\\";
    static constexpr char Letters[] = "abfnrtv\"\\";
    const void *found = code < 0x80 ? std::memchr(Codes, int(code), sizeof Codes) : nullptr;
    return found ? (code == 0 ? '0' : Letters[static_cast<const char *>(found) - Codes]) : 0;
}

bool isPlain(uint code)
{
    return code > 0x1f && code < 0x7f && code != '"' && code != '\\';
}

// A number of hexadecimal digits ends only where something else comes.
template<typename Char>
void appendEscaped(QByteArray *bytes, const Char *text, int size)
{
    const int start = bytes->size();
    bytes->reserve(start + size + size / 2);
    bool isQuoted = false;
    bool isAfterNumber = false;
    for (int i = 0; i < size; ++i) {
        const uint code = text[i];
        isQuoted = isQuoted || code == ';' || code == ',' || code == '=';
        if (isAfterNumber && code < 0x80 && std::isxdigit(int(code))) {
            appendHex(bytes, code);
            continue;
        }
        isAfterNumber = false;
        if (isPlain(code)) {
            bytes->append(char(code));
        } else if (const char letter = escapeOf(code)) {
            bytes->append('\\').append(letter);
            isAfterNumber = code == 0;
        } else {
            appendHex(bytes, code);
            isAfterNumber = true;
        }
    }
    if (isQuoted || (bytes->size() > start && (bytes->at(start) == ' ' || bytes->endsWith(' ')))) {
        bytes->insert(start, '"').append('"');
    }
}

void appendText(QByteArray *bytes, const QString &text)
{
    appendEscaped(bytes, text.utf16(), text.size());
}

void appendMarked(QByteArray *bytes, const char *mark, const QByteArray &data)
{
    const QByteArray text = mark + data + ')';
    appendEscaped(bytes, reinterpret_cast<const uchar *>(text.constData()), text.size());
}

QByteArray streamed(const QVariant &value, QDataStream::Version version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << MRVVariantGuard::storable(value, MRVVariantGuard::SettingsDate);
    return bytes;
}

QByteArray joined(std::initializer_list<int> numbers)
{
    QByteArray text;
    for (const int number : numbers) {
        text += (text.isEmpty() ? QByteArray() : QByteArray(" ")) + QByteArray::number(number);
    }
    return text;
}

void appendString(QByteArray *bytes, const QString &text)
{
    if (text.contains(QChar(QChar::Null))) {
        appendText(bytes, QLatin1String("@String(") + text + u')');
    } else {
        appendText(bytes, text.startsWith(u'@') ? u'@' + text : text);
    }
}

void appendItem(QByteArray *bytes, const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        bytes->append("@Invalid()");
        break;
    case QMetaType::QByteArray:
        appendMarked(bytes, "@ByteArray(", value.toByteArray());
        break;
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Bool:
    case QMetaType::Double:
    case QMetaType::QKeySequence:
        appendString(bytes, value.toString());
        break;
    case QMetaType::QRect: {
        const QRect r = value.toRect();
        appendMarked(bytes, "@Rect(", joined({r.x(), r.y(), r.width(), r.height()}));
        break;
    }
    case QMetaType::QSize:
        appendMarked(bytes, "@Size(", joined({value.toSize().width(), value.toSize().height()}));
        break;
    case QMetaType::QPoint:
        appendMarked(bytes, "@Point(", joined({value.toPoint().x(), value.toPoint().y()}));
        break;
    case QMetaType::QDateTime:
        appendMarked(bytes, "@DateTime(", streamed(value, QDataStream::Qt_5_6));
        break;
    default:
        appendMarked(bytes, "@Variant(", streamed(value, QDataStream::Qt_4_0));
    }
}

// A list of one value is not written as that value, unless it is a list of texts.
void appendValue(QByteArray *bytes, const QVariant &value)
{
    const bool isTexts = value.userType() == QMetaType::QStringList;
    const bool isList = value.userType() == QMetaType::QVariantList;
    if (!isTexts && !(isList && value.toList().size() != 1)) {
        appendItem(bytes, value);
        return;
    }
    const QVariantList items = value.toList();
    if (items.isEmpty()) {
        bytes->append("@Invalid()");
    }
    for (int i = 0; i < items.size(); ++i) {
        bytes->append(i == 0 ? "" : ", ");
        appendItem(bytes, items.at(i));
    }
}

QByteArray escapedKey(const QString &key)
{
    QByteArray bytes;
    for (const QChar c : key) {
        const ushort code = c.unicode();
        if (code == '/') {
            bytes += '\\';
        } else if (code < 0x80 && (std::isalnum(code) || std::strchr("_-.", code)) && code != 0) {
            bytes += char(code);
        } else if (code <= 0xff) {
            bytes += '%' + QByteArray::number(code, 16).toUpper().rightJustified(2, '0');
        } else {
            bytes += "%U" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0');
        }
    }
    return bytes;
}

// Keys without a group lie in "General", so a group of that name needs another one.
QByteArray sectionOf(const QString &group)
{
    const QByteArray name = escapedKey(group);
    if (name.isEmpty()) {
        return "General";
    }
    return name.compare("general", Qt::CaseInsensitive) == 0 ? QByteArray("%General") : name;
}

} // namespace

QByteArray mrvWriteSettings(const MRVSettingsMap &values)
{
    QMap<QString, QByteArray> sections;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const int slash = it.key().indexOf(u'/');
        QByteArray &lines = sections[it.key().left(qMax(slash, 0))];
        lines += escapedKey(it.key().mid(slash + 1)) + '=';
        appendValue(&lines, it.value());
        lines += '\n';
    }
    QByteArray bytes;
    for (auto it = sections.cbegin(); it != sections.cend(); ++it) {
        bytes += (bytes.isEmpty() ? "[" : "\n[") + sectionOf(it.key()) + "]\n" + it.value();
    }
    return bytes;
}

bool mrvIsStoredAlike(const QVariant &a, const QVariant &b)
{
    const int type = a.userType();
    if (type == b.userType() && (type == QMetaType::QString || type == QMetaType::QByteArray)) {
        return a == b;
    }
    QByteArray texts[2];
    appendValue(&texts[0], a);
    appendValue(&texts[1], b);
    return texts[0] == texts[1];
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
    const QByteArray bytes =
        streamed(value, isDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
    QDataStream stream(bytes);
    return !MRVVariantGuard::take(
                stream, isDateTime ? MRVVariantGuard::SettingsDate : MRVVariantGuard::SettingsValue)
                .isEmpty();
}
