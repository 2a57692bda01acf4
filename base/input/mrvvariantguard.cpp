#include "input/mrvvariantguard.h"

#include "input/mrvcborcheck_p.h"
#include "input/mrvvariantguard_p.h"

#include <QDateTime>
#include <QJsonValue>
#include <QMetaType>
#include <QRegExp>
#include <QSet>
#include <QTextLength>
#include <QTextOption>
#include <QTimeZone>

#include <algorithm>
#include <cstring>

namespace {

// The forms that a row of the tables is for.
enum : uint {
    Settings = 1u << MRVVariantGuard::SettingsValue,
    Date = 1u << MRVVariantGuard::SettingsDate,
    Format = 1u << MRVVariantGuard::CharFormat | 1u << MRVVariantGuard::BlockFormat,
    Item = 1u << MRVVariantGuard::DropItem,
    Stored = Format | Item, // what the library writes by itself
    Most = Settings | Stored,
};

// The streams of Qt 4 have other numbers for some types; for those that they do not know, whose
// names follow, they have User. None of these numbers is a type of Qt 5.
quint32 typeOfQt4(quint32 stored)
{
    constexpr quint32 User = 127;
    constexpr quint32 FirstMoved = 128;
    constexpr quint32 MovedBy = 97;
    if (stored == User) {
        return QMetaType::User;
    }
    return stored >= FirstMoved && stored < QMetaType::User ? stored - MovedBy : stored;
}

// Types of applications, by their numbers.
QSet<int> &registeredTypes()
{
    static QSet<int> types;
    return types;
}

} // namespace

// clang-format off
constexpr MRVVariantWalker::TypeRow MRVVariantWalker::Types[] = {
    {QMetaType::UnknownType,        Settings,         0,   &MRVVariantWalker::text}, // an empty one
    {QMetaType::UnknownType,        Stored | Date,    0,   nullptr},
    {QMetaType::Bool,               Most,             1,   nullptr},
    {QMetaType::Int,                Most,             4,   nullptr},
    {QMetaType::UInt,               Most,             4,   nullptr},
    {QMetaType::LongLong,           Most,             8,   nullptr},
    {QMetaType::ULongLong,          Most,             8,   nullptr},
    {QMetaType::Double,             Most,             8,   nullptr},
    {QMetaType::Long,               Most,             8,   nullptr},
    {QMetaType::Short,              Most,             2,   nullptr},
    {QMetaType::Char,               Most,             1,   nullptr},
    {QMetaType::ULong,              Most,             8,   nullptr},
    {QMetaType::UShort,             Most,             2,   nullptr},
    {QMetaType::UChar,              Most,             1,   nullptr},
    {QMetaType::SChar,              Most,             1,   nullptr},
    {QMetaType::Float,              Settings,         4,   nullptr},
    {QMetaType::Float,              Stored,           8,   nullptr}, // the stream widens it
    {QMetaType::QChar,              Most,             2,   nullptr},
    {QMetaType::QString,            Most,             0,   &MRVVariantWalker::text},
    {QMetaType::QStringList,        Most,             0,   &MRVVariantWalker::texts},
    {QMetaType::QByteArray,         Most,             0,   &MRVVariantWalker::bytes},
    {QMetaType::QByteArrayList,     Settings|Format,  0,   &MRVVariantWalker::byteArrays},
    {QMetaType::QBitArray,          Settings|Format,  0,   &MRVVariantWalker::bits},
    {QMetaType::QUrl,               Most,             0,   &MRVVariantWalker::bytes},
    {QMetaType::QUuid,              Most,             16,  nullptr},
    {QMetaType::QLocale,            Settings|Format,  0,   &MRVVariantWalker::text},
    {QMetaType::QDate,              Settings,         4,   nullptr},
    {QMetaType::QDate,              Stored,           8,   nullptr},
    {QMetaType::QTime,              Most,             4,   nullptr},
    {QMetaType::QDateTime,          Settings,         9,   nullptr},
    {QMetaType::QDateTime,          Date,             0,   &MRVVariantWalker::zonedDateTime},
    {QMetaType::QDateTime,          Stored,           0,   &MRVVariantWalker::dateTime},
    {QMetaType::QPoint,             Most,             8,   nullptr},
    {QMetaType::QPointF,            Most,             16,  nullptr},
    {QMetaType::QSize,              Most,             8,   nullptr},
    {QMetaType::QSizeF,             Most,             16,  nullptr},
    {QMetaType::QRect,              Most,             16,  nullptr},
    {QMetaType::QRectF,             Most,             32,  nullptr},
    {QMetaType::QLine,              Settings|Format,  16,  nullptr},
    {QMetaType::QLineF,             Settings|Format,  32,  nullptr},
    {QMetaType::QColor,             Most,             0,   &MRVVariantWalker::color},
    {QMetaType::QFont,              Settings,         0,   &MRVVariantWalker::font},
    {QMetaType::Nullptr,            Format,           0,   nullptr},
    {QMetaType::QFont,              Format,           0,   &MRVVariantWalker::wholeFont},
    {QMetaType::QRegExp,            Format,           0,   &MRVVariantWalker::regExp},
    {QMetaType::QRegularExpression, Format,           0,   &MRVVariantWalker::regularExpression},
    {QMetaType::QJsonValue,         Format,           0,   &MRVVariantWalker::json},
    {QMetaType::QJsonObject,        Format,           0,   &MRVVariantWalker::bytes},
    {QMetaType::QJsonArray,         Format,           0,   &MRVVariantWalker::bytes},
    {QMetaType::QJsonDocument,      Format,           0,   &MRVVariantWalker::bytes},
    {QMetaType::QCborSimpleType,    Format,           1,   nullptr},
    {QMetaType::QCborValue,         Format,           0,   &MRVVariantWalker::cbor},
    {QMetaType::QCborArray,         Format,           0,   &MRVVariantWalker::cbor},
    {QMetaType::QCborMap,           Format,           0,   &MRVVariantWalker::cbor},
    {QMetaType::QPixmap,            Format,           0,   &MRVVariantWalker::picture},
    {QMetaType::QBitmap,            Format,           0,   &MRVVariantWalker::picture},
    {QMetaType::QCursor,            Format,           0,   &MRVVariantWalker::cursor},
    {QMetaType::QIcon,              Format,           0,   &MRVVariantWalker::icon},
    {QMetaType::QPolygon,           Format,           0,   &MRVVariantWalker::rows<8>},
    {QMetaType::QPolygonF,          Format,           0,   &MRVVariantWalker::rows<16>},
    {QMetaType::QKeySequence,       Format,           0,   &MRVVariantWalker::rows<4>},
    {QMetaType::QRegion,            Format,           0,   &MRVVariantWalker::region},
    {QMetaType::QPalette,           Format,           0,   &MRVVariantWalker::palette},
    {QMetaType::QMatrix,            Format,           48,  nullptr},
    {QMetaType::QTransform,         Format,           72,  nullptr},
    {QMetaType::QMatrix4x4,         Format,           128, nullptr},
    {QMetaType::QVector2D,          Format,           16,  nullptr},
    {QMetaType::QVector3D,          Format,           24,  nullptr},
    {QMetaType::QVector4D,          Format,           32,  nullptr},
    {QMetaType::QQuaternion,        Format,           32,  nullptr},
    {QMetaType::QSizePolicy,        Format,           4,   nullptr},
    {QMetaType::QTextFormat,        Format,           0,   &MRVVariantWalker::anyFormat},
    {QMetaType::QBrush,             Format,           0,   &MRVVariantWalker::brush},
    {QMetaType::QPen,               Format,           0,   &MRVVariantWalker::pen},
    {QMetaType::QTextLength,        Format,           0,   &MRVVariantWalker::length},
    {QMetaType::QImage,             Stored,           0,   &MRVVariantWalker::image},
    {QMetaType::QVariantList,       Most,             0,   &MRVVariantWalker::list},
    {QMetaType::QVariantMap,        Most,             0,   &MRVVariantWalker::map},
    {QMetaType::QVariantHash,       Settings|Format,  0,   &MRVVariantWalker::map},
    {QMetaType::User,               Most,             0,   &MRVVariantWalker::userValue},
};

// A type that is stored by its name gets its row here; without one, what holds it cannot be read.
constexpr MRVVariantWalker::UserTypeRow MRVVariantWalker::UserTypes[] = {
    {"QUuid",                  Settings, 16, nullptr},
    {"QTextOption::Tab",       Format,   0,  &MRVVariantWalker::tab},
    {"QTextListFormat::Level", Format,   0,  &MRVVariantWalker::listLevel},
    {"MRVFernwickDropItem",    Item,     0,  &MRVVariantWalker::item},
};
// clang-format on

bool MRVVariantWalker::count(quint32 *items, int leastSize)
{
    return read(items) && m_in.checkCount(*items, leastSize);
}

bool MRVVariantWalker::variant()
{
    quint32 type = 0;
    const int start = m_taken.size();
    if (!read(&type)) {
        return false;
    }
    if (m_form == Settings) {
        type = typeOfQt4(type);
    } else if (m_form == Item) {
        type = typeOfQt4(type);
        setNumberAt(start, type); // it will be read as a stream of the form's own version
    }
    if (m_form != Settings && !skip(1)) { // whether it is null
        return false;
    }
    for (const TypeRow &row : Types) {
        if (quint32(row.type) == type && (row.forms & m_form) != 0) {
            return row.step ? (this->*row.step)() : skip(row.size);
        }
    }
    return false;
}

bool MRVVariantWalker::userValue()
{
    const int start = m_taken.size() + LeastText;
    if (!bytes()) {
        return false;
    }
    const QByteArray name = m_taken.mid(start);
    for (const UserTypeRow &row : UserTypes) {
        // The name is stored with the zero that ends it.
        if ((row.forms & m_form) != 0
            && name == QByteArray(row.name, int(std::strlen(row.name)) + 1)) {
            return row.step ? (this->*row.step)() : skip(row.size);
        }
    }
    return (m_form & Format) != 0 && applicationValue(name);
}

// What the type's own operators read is what they write again.
bool MRVVariantWalker::applicationValue(const QByteArray &name)
{
    const auto isPrintable = [](char c) { return c > ' ' && c <= '~'; };
    if (name.size() < 2 || !name.endsWith('\0')
        || !std::all_of(name.cbegin(), name.cend() - 1, isPrintable)) {
        return false;
    }
    const int type = QMetaType::type(name.constData());
    if (!registeredTypes().contains(type)) {
        m_isUnknown = true;
        return false;
    }
    const int version = m_stream->version();
    m_stream->setVersion(QDataStream::Qt_5_15);
    QVariant value(type, nullptr);
    const bool isRead = QMetaType::load(*m_stream, type, value.data()) && m_in.isOk();
    m_stream->setVersion(version);
    QDataStream out(&m_taken, QIODevice::Append);
    out.setVersion(QDataStream::Qt_5_15);
    out.setByteOrder(m_stream->byteOrder());
    return isRead && QMetaType::save(out, type, value.constData());
}

bool MRVVariantWalker::format(QTextFormat::FormatType expected)
{
    qint32 type = 0;
    if (!read(&type) || type != expected || !count(&m_propertyCount, LeastProperty)
        || m_propertyCount > MRVInputLimits::FormatProperties) {
        return false;
    }
    m_wholeEnd = m_taken.size();
    while (m_wholeCount < m_propertyCount && property()) {
        ++m_wholeCount;
        m_wholeEnd = m_taken.size();
    }
    return m_wholeCount == m_propertyCount;
}

bool MRVVariantWalker::property()
{
    qint32 property = 0;
    return read(&property) && property >= 0 && variant();
}

QByteArray MRVVariantWalker::wholeProperties() const
{
    QByteArray bytes = m_taken.left(m_wholeEnd);
    QDataStream count(&bytes, QIODevice::ReadWrite);
    count.setByteOrder(m_stream->byteOrder());
    count.skipRawData(sizeof(qint32));
    count << m_wholeCount;
    return bytes;
}

MRVVariantGuard::Rest MRVVariantWalker::rest() const
{
    MRVVariantGuard::Rest rest;
    rest.properties = m_propertyCount - m_wholeCount;
    rest.bytes = m_taken.mid(m_wholeEnd) + m_stream->device()->readAll();
    return rest;
}

// A format as a value, of any type.
bool MRVVariantWalker::anyFormat()
{
    return nested(
        [this] { return skip(4) && items(LeastProperty, [this] { return property(); }); });
}

// Its version, label and payload.
bool MRVVariantWalker::item()
{
    return nested([this] { return skip(4) && text() && variant(); });
}

bool MRVVariantWalker::bytes()
{
    quint32 size = 0;
    return read(&size) && (size == NullLength || skip(size));
}

bool MRVVariantWalker::text()
{
    quint32 size = 0;
    return read(&size) && (size == NullLength || (size % 2 == 0 && skip(size)));
}

bool MRVVariantWalker::bits()
{
    quint32 size = 0;
    return read(&size) && skip(quint32((quint64(size) + 7) / 8));
}

bool MRVVariantWalker::texts()
{
    return items(LeastText, [this] { return text(); });
}

bool MRVVariantWalker::byteArrays()
{
    return items(LeastText, [this] { return bytes(); });
}

bool MRVVariantWalker::list()
{
    return nested([this] { return items(LeastVariant, [this] { return variant(); }); });
}

bool MRVVariantWalker::map()
{
    return nested(
        [this] { return items(LeastText + LeastVariant, [this] { return text() && variant(); }); });
}

// A named time zone would make Qt look it up in the system; what we store has no use for one.
bool MRVVariantWalker::dateTime()
{
    qint8 spec = 0;
    return skip(12) && read(&spec)
        && (spec == Qt::LocalTime || spec == Qt::UTC || (spec == Qt::OffsetFromUTC && skip(4)));
}

// Of a zone that has only an offset, that and its texts follow a name that says so.
bool MRVVariantWalker::zonedDateTime()
{
    static constexpr char OffsetOnly[] = "\0O\0f\0f\0s\0e\0t\0F\0r\0o\0m\0U\0t\0c";
    qint8 spec = 0;
    if (!skip(12) || !read(&spec) || spec != Qt::TimeZone) {
        return m_in.isOk() && (spec != Qt::OffsetFromUTC || skip(4));
    }
    const int name = m_taken.size() + LeastText;
    if (!text()) {
        return false;
    }
    return m_taken.mid(name) != QByteArray::fromRawData(OffsetOnly, sizeof OffsetOnly - 1)
        || (text() && skip(4) && text() && text() && skip(4) && text());
}

// Qt compiles it at once, and repeats in repeats would take all memory.
bool MRVVariantWalker::regExp()
{
    const int start = m_taken.size() + LeastText;
    if (!text()) {
        return false;
    }
    const QByteArray pattern = m_taken.mid(start);
    quint8 syntax = 0;
    return !pattern.contains('{') && skip(1) && read(&syntax) && syntax <= QRegExp::W3CXmlSchema11
        && skip(1);
}

bool MRVVariantWalker::regularExpression()
{
    return text() && skip(4);
}

bool MRVVariantWalker::json()
{
    quint8 type = 0;
    if (!read(&type)) {
        return false;
    }
    switch (type) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        return true;
    case QJsonValue::Bool:
        return skip(1);
    case QJsonValue::Double:
        return skip(8);
    case QJsonValue::String:
        return text();
    default:
        return type <= QJsonValue::Object && bytes();
    }
}

// Qt reserves memory on the word of the lengths in it (RFC 8949, section 3).
bool MRVVariantWalker::cbor()
{
    const int start = m_taken.size() + LeastText;
    if (!bytes()) {
        return false;
    }
    const QByteArray value = m_taken.mid(start);
    return value.isEmpty() || MRVCborCheck(value).isWhole();
}

quint32 MRVVariantWalker::numberAt(int offset) const
{
    const char *stored = m_taken.constData() + offset;
    return m_stream->byteOrder() == QDataStream::BigEndian ? qFromBigEndian<quint32>(stored)
                                                           : qFromLittleEndian<quint32>(stored);
}

void MRVVariantWalker::setNumberAt(int offset, quint32 number)
{
    char *stored = m_taken.data() + offset;
    if (m_stream->byteOrder() == QDataStream::BigEndian) {
        qToBigEndian(number, stored);
    } else {
        qToLittleEndian(number, stored);
    }
}

bool MRVVariantWalker::length()
{
    return enumerator(QTextLength::PercentageLength) && skip(8);
}

bool MRVVariantWalker::tab()
{
    return skip(8) && enumerator(QTextOption::DelimiterTab) && skip(2);
}

bool MRVVariantWalker::listLevel()
{
    return text() && skip(4 + 8 + 8); // number style, two indents
}

void MRVVariantWalker::registerType(int type)
{
    registeredTypes().insert(type);
}

QByteArray MRVVariantGuard::take(QDataStream &stream, Form form)
{
    MRVVariantWalker walker(&stream, form);
    bool isTaken = false;
    switch (form) {
    case SettingsValue:
    case SettingsDate:
        isTaken = walker.variant();
        break;
    case CharFormat:
        isTaken = walker.format(QTextFormat::CharFormat);
        break;
    case BlockFormat:
        isTaken = walker.format(QTextFormat::BlockFormat);
        break;
    case DropItem:
        isTaken = walker.item();
        break;
    }
    if (!isTaken) {
        MRVCheckedStream(&stream).fail();
    }
    return isTaken ? walker.taken() : QByteArray();
}

QByteArray MRVVariantGuard::takeFormat(QDataStream &stream, Form form, Rest *rest)
{
    MRVVariantWalker walker(&stream, form);
    *rest = Rest();
    if (walker.format(form == CharFormat ? QTextFormat::CharFormat : QTextFormat::BlockFormat)) {
        return walker.taken();
    }
    if (walker.isUnknown() && stream.status() == QDataStream::Ok) {
        *rest = walker.rest();
        return walker.wholeProperties();
    }
    MRVCheckedStream(&stream).fail();
    return QByteArray();
}

void MRVVariantGuard::registerType(int type)
{
    MRVVariantWalker::registerType(type);
}

QVariant MRVVariantGuard::storable(const QVariant &value, Form form)
{
    const auto convert = [form](auto items) {
        for (auto it = items.begin(); it != items.end(); ++it) {
            *it = storable(*it, form);
        }
        return items;
    };
    switch (value.userType()) {
    case QMetaType::QVariantList:
        return convert(value.toList());
    case QMetaType::QVariantMap:
        return convert(value.toMap());
    case QMetaType::QVariantHash:
        return convert(value.toHash());
    case QMetaType::QDateTime: {
        const QDateTime date = value.toDateTime();
        const bool mayHaveZone = form == SettingsValue || form == SettingsDate;
        const bool isKept =
            date.timeSpec() != Qt::TimeZone || (mayHaveZone && date.timeZone().isValid());
        return isKept ? value : date.toUTC();
    }
    default:
        return value;
    }
}
