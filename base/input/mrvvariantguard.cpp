#include "input/mrvvariantguard.h"

#include "input/mrvcborcheck_p.h"

#include "core/mrvcheckedstream.h"
#include "core/mrvinputlimits.h"
#include "gui/mrvpicturereader.h"

#include <QBrush>
#include <QBuffer>
#include <QColor>
#include <QDateTime>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QJsonValue>
#include <QMetaType>
#include <QPalette>
#include <QPen>
#include <QRegExp>
#include <QSet>
#include <QTextFormat>
#include <QTextOption>
#include <QTimeZone>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

constexpr quint32 NullLength = 0xffffffff;

// The bytes that each takes at least, with an empty value.
constexpr int LeastText = 4;
constexpr int LeastVariant = 4;
constexpr int LeastProperty = 9;
constexpr int LeastStop = 19;

// The forms that a row of the tables is for.
enum : uint {
    Settings = 1u << MRVVariantGuard::SettingsValue,
    Date = 1u << MRVVariantGuard::SettingsDate,
    Format = 1u << MRVVariantGuard::CharFormat | 1u << MRVVariantGuard::BlockFormat,
    Item = 1u << MRVVariantGuard::DropItem,
    Stored = Format | Item, // what the library writes by itself
    Most = Settings | Stored,
};

// The stream version Qt_4_0 has other numbers for some types; for those that it does not know,
// whose names follow, it has User.
quint32 typeInSettings(quint32 stored)
{
    constexpr quint32 User = 127;
    constexpr quint32 FirstMoved = 128;
    constexpr quint32 MovedBy = 97;
    if (stored == User) {
        return QMetaType::User;
    }
    return stored >= FirstMoved && stored < QMetaType::User ? stored - MovedBy : stored;
}

// Moves one value from the stream to a byte array. Each function takes one thing and returns false
// where it is not there whole, or not as Qt writes it.
class Walker
{
public:
    Walker(QDataStream *stream, MRVVariantGuard::Form form)
        : m_stream(stream)
        , m_in(stream)
        , m_form(1u << form)
    {
    }

    bool variant();
    bool format(QTextFormat::FormatType expected);
    bool item();

    const QByteArray &taken() const { return m_taken; }
    /** Whether a type that this process does not know ended the walk. */
    bool isUnknown() const { return m_isUnknown; }
    /** Of a format of which not all was taken: the whole properties, and the bytes after them. */
    QByteArray wholeProperties() const;
    MRVVariantGuard::Rest rest() const;

private:
    using Step = bool (Walker::*)();
    struct TypeRow
    {
        int type;
        uint forms;
        quint32 size; ///< of the value where that is fixed, else 0
        Step step;
    };
    struct UserTypeRow
    {
        const char *name;
        uint forms;
        quint32 size;
        Step step;
    };
    static const TypeRow Types[];
    static const UserTypeRow UserTypes[];

    bool skip(quint32 size) { return m_in.readRaw(size, &m_taken); }
    template<typename Number>
    bool read(Number *number);
    bool count(quint32 *items, int leastSize);
    template<typename Enum>
    bool enumerator(Enum last);
    template<typename TakeItem>
    bool items(int leastSize, const TakeItem &takeItem);
    template<typename TakeValue>
    bool nested(const TakeValue &takeValue);

    bool bytes();
    bool text();
    bool bits();
    bool texts();
    bool byteArrays();
    bool list();
    bool map();
    bool userValue();
    bool dateTime();
    bool zonedDateTime();
    bool font();
    bool wholeFont();
    bool regExp();
    bool regularExpression();
    bool json();
    bool cbor();
    bool picture();
    bool cursor();
    bool icon();
    bool iconPicture();
    bool region();
    bool palette();
    bool anyFormat();
    bool applicationValue(const QByteArray &name);
    template<quint32 size>
    bool rows();
    quint32 numberAt(int offset) const;
    bool property();
    bool color();
    bool brush();
    bool gradient(quint8 style);
    bool gradientStop();
    bool pen();
    bool length();
    bool tab();
    bool listLevel();
    bool image();
    bool png(qint64 *memory);
    bool decodes(int start) const;

    QDataStream *m_stream;
    MRVCheckedStream m_in;
    uint m_form;
    QByteArray m_taken;
    qint64 m_pictureMemory = 0; ///< what the pictures so far take when decoded
    int m_depth = 0;
    int m_wholeEnd = 0; ///< of the format's properties that were taken whole
    quint32 m_propertyCount = 0; ///< of the format
    quint32 m_wholeCount = 0; ///< of those
    bool m_isUnknown = false;
};

// Types of applications, by their numbers.
QSet<int> &registeredTypes()
{
    static QSet<int> types;
    return types;
}

bool hasGui()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

// clang-format off
constexpr Walker::TypeRow Walker::Types[] = {
    {QMetaType::UnknownType,        Settings,         0,   &Walker::text}, // an empty one
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
    {QMetaType::QString,            Most,             0,   &Walker::text},
    {QMetaType::QStringList,        Most,             0,   &Walker::texts},
    {QMetaType::QByteArray,         Most,             0,   &Walker::bytes},
    {QMetaType::QByteArrayList,     Settings|Format,  0,   &Walker::byteArrays},
    {QMetaType::QBitArray,          Settings|Format,  0,   &Walker::bits},
    {QMetaType::QUrl,               Most,             0,   &Walker::bytes},
    {QMetaType::QUuid,              Most,             16,  nullptr},
    {QMetaType::QLocale,            Settings|Format,  0,   &Walker::text},
    {QMetaType::QDate,              Settings,         4,   nullptr},
    {QMetaType::QDate,              Stored,           8,   nullptr},
    {QMetaType::QTime,              Most,             4,   nullptr},
    {QMetaType::QDateTime,          Settings,         9,   nullptr},
    {QMetaType::QDateTime,          Date,             0,   &Walker::zonedDateTime},
    {QMetaType::QDateTime,          Stored,           0,   &Walker::dateTime},
    {QMetaType::QPoint,             Most,             8,   nullptr},
    {QMetaType::QPointF,            Most,             16,  nullptr},
    {QMetaType::QSize,              Most,             8,   nullptr},
    {QMetaType::QSizeF,             Most,             16,  nullptr},
    {QMetaType::QRect,              Most,             16,  nullptr},
    {QMetaType::QRectF,             Most,             32,  nullptr},
    {QMetaType::QLine,              Settings|Format,  16,  nullptr},
    {QMetaType::QLineF,             Settings|Format,  32,  nullptr},
    {QMetaType::QColor,             Most,             0,   &Walker::color},
    {QMetaType::QFont,              Settings,         0,   &Walker::font},
    {QMetaType::Nullptr,            Format,           0,   nullptr},
    {QMetaType::QFont,              Format,           0,   &Walker::wholeFont},
    {QMetaType::QRegExp,            Format,           0,   &Walker::regExp},
    {QMetaType::QRegularExpression, Format,           0,   &Walker::regularExpression},
    {QMetaType::QJsonValue,         Format,           0,   &Walker::json},
    {QMetaType::QJsonObject,        Format,           0,   &Walker::bytes},
    {QMetaType::QJsonArray,         Format,           0,   &Walker::bytes},
    {QMetaType::QJsonDocument,      Format,           0,   &Walker::bytes},
    {QMetaType::QCborSimpleType,    Format,           1,   nullptr},
    {QMetaType::QCborValue,         Format,           0,   &Walker::cbor},
    {QMetaType::QCborArray,         Format,           0,   &Walker::cbor},
    {QMetaType::QCborMap,           Format,           0,   &Walker::cbor},
    {QMetaType::QPixmap,            Format,           0,   &Walker::picture},
    {QMetaType::QBitmap,            Format,           0,   &Walker::picture},
    {QMetaType::QCursor,            Format,           0,   &Walker::cursor},
    {QMetaType::QIcon,              Format,           0,   &Walker::icon},
    {QMetaType::QPolygon,           Format,           0,   &Walker::rows<8>},
    {QMetaType::QPolygonF,          Format,           0,   &Walker::rows<16>},
    {QMetaType::QKeySequence,       Format,           0,   &Walker::rows<4>},
    {QMetaType::QRegion,            Format,           0,   &Walker::region},
    {QMetaType::QPalette,           Format,           0,   &Walker::palette},
    {QMetaType::QMatrix,            Format,           48,  nullptr},
    {QMetaType::QTransform,         Format,           72,  nullptr},
    {QMetaType::QMatrix4x4,         Format,           128, nullptr},
    {QMetaType::QVector2D,          Format,           16,  nullptr},
    {QMetaType::QVector3D,          Format,           24,  nullptr},
    {QMetaType::QVector4D,          Format,           32,  nullptr},
    {QMetaType::QQuaternion,        Format,           32,  nullptr},
    {QMetaType::QSizePolicy,        Format,           4,   nullptr},
    {QMetaType::QTextFormat,        Format,           0,   &Walker::anyFormat},
    {QMetaType::QBrush,             Format,           0,   &Walker::brush},
    {QMetaType::QPen,               Format,           0,   &Walker::pen},
    {QMetaType::QTextLength,        Format,           0,   &Walker::length},
    {QMetaType::QImage,             Stored,           0,   &Walker::image},
    {QMetaType::QVariantList,       Most,             0,   &Walker::list},
    {QMetaType::QVariantMap,        Most,             0,   &Walker::map},
    {QMetaType::QVariantHash,       Settings|Format,  0,   &Walker::map},
    {QMetaType::User,               Most,             0,   &Walker::userValue},
};

// A type that is stored by its name gets its row here; without one, what holds it cannot be read.
constexpr Walker::UserTypeRow Walker::UserTypes[] = {
    {"QUuid",                  Settings, 16, nullptr},
    {"QTextOption::Tab",       Format,   0,  &Walker::tab},
    {"QTextListFormat::Level", Format,   0,  &Walker::listLevel},
    {"MRVFernwickDropItem",    Item,     0,  &Walker::item},
};
// clang-format on

template<typename Number>
bool Walker::read(Number *number)
{
    const int at = m_taken.size();
    if (!skip(sizeof(Number))) {
        return false;
    }
    const char *stored = m_taken.constData() + at;
    *number = m_stream->byteOrder() == QDataStream::BigEndian ? qFromBigEndian<Number>(stored)
                                                              : qFromLittleEndian<Number>(stored);
    return true;
}

bool Walker::count(quint32 *items, int leastSize)
{
    return read(items) && m_in.checkCount(*items, leastSize);
}

// An enumerator from 0 to last, stored as an int.
template<typename Enum>
bool Walker::enumerator(Enum last)
{
    quint32 value = 0;
    return read(&value) && value <= quint32(last);
}

template<typename TakeItem>
bool Walker::items(int leastSize, const TakeItem &takeItem)
{
    quint32 left = 0;
    if (!count(&left, leastSize)) {
        return false;
    }
    while (left > 0 && takeItem()) {
        --left;
    }
    return left == 0;
}

template<typename TakeValue>
bool Walker::nested(const TakeValue &takeValue)
{
    if (m_depth == MRVInputLimits::VariantDepth) {
        return false;
    }
    ++m_depth;
    const bool isTaken = takeValue();
    --m_depth;
    return isTaken;
}

bool Walker::variant()
{
    quint32 type = 0;
    if (!read(&type)) {
        return false;
    }
    if (m_form == Settings) {
        type = typeInSettings(type);
    } else if (!skip(1)) { // whether it is null
        return false;
    }
    for (const TypeRow &row : Types) {
        if (quint32(row.type) == type && (row.forms & m_form) != 0) {
            return row.step ? (this->*row.step)() : skip(row.size);
        }
    }
    return false;
}

bool Walker::userValue()
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
bool Walker::applicationValue(const QByteArray &name)
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

bool Walker::format(QTextFormat::FormatType expected)
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

bool Walker::property()
{
    qint32 property = 0;
    return read(&property) && property >= 0 && variant();
}

QByteArray Walker::wholeProperties() const
{
    QByteArray bytes = m_taken.left(m_wholeEnd);
    QDataStream count(&bytes, QIODevice::ReadWrite);
    count.setByteOrder(m_stream->byteOrder());
    count.skipRawData(sizeof(qint32));
    count << m_wholeCount;
    return bytes;
}

MRVVariantGuard::Rest Walker::rest() const
{
    MRVVariantGuard::Rest rest;
    rest.properties = m_propertyCount - m_wholeCount;
    rest.bytes = m_taken.mid(m_wholeEnd) + m_stream->device()->readAll();
    return rest;
}

// A format as a value, of any type.
bool Walker::anyFormat()
{
    return nested(
        [this] { return skip(4) && items(LeastProperty, [this] { return property(); }); });
}

// Its version, label and payload.
bool Walker::item()
{
    return nested([this] { return skip(4) && text() && variant(); });
}

bool Walker::bytes()
{
    quint32 size = 0;
    return read(&size) && (size == NullLength || skip(size));
}

bool Walker::text()
{
    quint32 size = 0;
    return read(&size) && (size == NullLength || (size % 2 == 0 && skip(size)));
}

bool Walker::bits()
{
    quint32 size = 0;
    return read(&size) && skip(quint32((quint64(size) + 7) / 8));
}

bool Walker::texts()
{
    return items(LeastText, [this] { return text(); });
}

bool Walker::byteArrays()
{
    return items(LeastText, [this] { return bytes(); });
}

bool Walker::list()
{
    return nested([this] { return items(LeastVariant, [this] { return variant(); }); });
}

bool Walker::map()
{
    return nested(
        [this] { return items(LeastText + LeastVariant, [this] { return text() && variant(); }); });
}

// A named time zone would make Qt look it up in the system; what we store has no use for one.
bool Walker::dateTime()
{
    qint8 spec = 0;
    return skip(12) && read(&spec)
        && (spec == Qt::LocalTime || spec == Qt::UTC || (spec == Qt::OffsetFromUTC && skip(4)));
}

// Of a zone that has only an offset, that and its texts follow a name that says so.
bool Walker::zonedDateTime()
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

bool Walker::font()
{
    return text() && skip(8 + 4 + 5); // size in points and pixels, style
}

// As the stream version Qt_5_15 has it.
bool Walker::wholeFont()
{
    return text() && text() // family, name of the style
        && skip(8 + 4 + 1 + 2) // size in points and pixels, hint, strategy
        && skip(1 + 1 + 1 + 2 + 1) // weight, style, stretch
        && skip(4 + 4 + 1 + 1) // spacing of letters and words, hinting, capitals
        && texts(); // families
}

// Qt compiles it at once, and repeats in repeats would take all memory.
bool Walker::regExp()
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

bool Walker::regularExpression()
{
    return text() && skip(4);
}

bool Walker::json()
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
bool Walker::cbor()
{
    const int start = m_taken.size() + LeastText;
    if (!bytes()) {
        return false;
    }
    const QByteArray value = m_taken.mid(start);
    return value.isEmpty() || MRVCborCheck(value).isWhole();
}

// Before there is an application, Qt ends the process for a pixmap.
bool Walker::picture()
{
    m_isUnknown = !hasGui();
    return !m_isUnknown && image();
}

bool Walker::cursor()
{
    quint16 shape = 0;
    m_isUnknown = !hasGui();
    if (m_isUnknown || !read(&shape)) {
        return false;
    }
    quint8 isPixmap = 0;
    return shape <= Qt::LastCursor
        || (shape == Qt::BitmapCursor && read(&isPixmap) && isPixmap <= 1 && image()
            && (isPixmap == 1 || image()) && skip(8));
}

// Of pictures only: engines are plug-ins.
bool Walker::icon()
{
    constexpr int LeastPicture = 4 + LeastText + 8 + 4 + 4;
    static const QByteArray Engine("\0Q\0P\0i\0x\0m\0a\0p\0I\0c\0o\0n\0E\0n\0g\0i\0n\0e", 34);
    m_isUnknown = !hasGui();
    const int start = m_taken.size() + LeastText;
    if (m_isUnknown || !text()) {
        return false;
    }
    const QByteArray engine = m_taken.mid(start);
    return engine.isEmpty()
        || (engine == Engine && items(LeastPicture, [this] { return iconPicture(); }));
}

// A file that is named in place of a picture would be read when the icon is shown.
bool Walker::iconPicture()
{
    const int start = m_taken.size();
    if (!image()) {
        return false;
    }
    const bool hasPicture = numberAt(start) == 1;
    const int file = m_taken.size() + LeastText;
    return text() && (hasPicture || m_taken.size() == file) && skip(8) // its size
        && enumerator(QIcon::Selected) && enumerator(QIcon::Off);
}

template<quint32 size>
bool Walker::rows()
{
    return items(size, [this] { return skip(size); });
}

quint32 Walker::numberAt(int offset) const
{
    const char *stored = m_taken.constData() + offset;
    return m_stream->byteOrder() == QDataStream::BigEndian ? qFromBigEndian<quint32>(stored)
                                                           : qFromLittleEndian<quint32>(stored);
}

// Bytes that hold a command and its rectangles. Other commands take regions apart in ways that
// take memory.
bool Walker::region()
{
    constexpr quint32 Rectangles = 10;
    constexpr int Header = 8;
    constexpr int Rectangle = 16;
    constexpr int MostRectangles = 4096; // each is united with those before
    const int start = m_taken.size() + LeastText;
    if (!bytes()) {
        return false;
    }
    const int size = m_taken.size() - start;
    return size == 0
        || (size >= Header && numberAt(start) == Rectangles
            && size <= Header + Rectangle * MostRectangles && (size - Header) % Rectangle == 0
            && numberAt(start + 4) == quint32((size - Header) / Rectangle));
}

bool Walker::palette()
{
    bool isTaken = true;
    for (int i = 0; isTaken && i < QPalette::NColorGroups * QPalette::NColorRoles; ++i) {
        isTaken = brush();
    }
    return isTaken;
}

bool Walker::color()
{
    qint8 spec = 0;
    return read(&spec) && spec >= QColor::Invalid && spec <= QColor::ExtendedRgb && skip(10);
}

bool Walker::brush()
{
    quint8 style = 0;
    if (!read(&style) || !color()) {
        return false;
    }
    if (style >= Qt::LinearGradientPattern && style <= Qt::ConicalGradientPattern) {
        if (!gradient(style)) {
            return false;
        }
    } else if (style == Qt::TexturePattern) {
        if (!image()) {
            return false;
        }
    } else if (style > Qt::DiagCrossPattern) {
        return false;
    }
    return skip(9 * 8); // the transformation
}

bool Walker::gradient(quint8 style)
{
    // The three gradient patterns and the three gradient types come in the same order.
    quint32 type = 0;
    quint32 stops = 0;
    if (!read(&type) || type != quint32(style - Qt::LinearGradientPattern)
        || !enumerator(QGradient::RepeatSpread) || !enumerator(QGradient::ObjectMode)
        || !enumerator(QGradient::ComponentInterpolation) || !count(&stops, LeastStop)
        || stops > MRVInputLimits::GradientStops) {
        return false;
    }
    for (; stops > 0; --stops) {
        if (!gradientStop()) {
            return false;
        }
    }
    switch (style) {
    case Qt::LinearGradientPattern:
        return skip(2 * 16); // two points
    case Qt::RadialGradientPattern:
        return skip(2 * 16 + 8); // two points and a radius
    default:
        return skip(16 + 8); // a point and an angle
    }
}

bool Walker::gradientStop()
{
    quint64 bits = 0;
    double position = 0.0;
    if (!read(&bits)) {
        return false;
    }
    std::memcpy(&position, &bits, sizeof bits);
    return position >= 0.0 && position <= 1.0 && color();
}

bool Walker::pen()
{
    quint16 styles = 0;
    quint32 dashes = 0;
    if (!read(&styles) || !skip(1 + 8)) { // cosmetic, width
        return false;
    }
    const int cap = styles & Qt::MPenCapStyle;
    const int join = styles & Qt::MPenJoinStyle;
    if ((styles & ~(Qt::MPenStyle | Qt::MPenCapStyle | Qt::MPenJoinStyle)) != 0
        || (styles & Qt::MPenStyle) > Qt::CustomDashLine || cap > Qt::RoundCap
        || (join != Qt::MiterJoin && join != Qt::BevelJoin && join != Qt::RoundJoin
            && join != Qt::SvgMiterJoin)) {
        return false;
    }
    return brush() && skip(8) // miter limit
        && count(&dashes, 8) && skip(dashes * 8) && skip(8 + 1); // offset, default width
}

bool Walker::length()
{
    return enumerator(QTextLength::PercentageLength) && skip(8);
}

bool Walker::tab()
{
    return skip(8) && enumerator(QTextOption::DelimiterTab) && skip(2);
}

bool Walker::listLevel()
{
    return text() && skip(4 + 8 + 8); // number style, two indents
}

bool Walker::image()
{
    const int start = m_taken.size();
    quint32 present = 0;
    qint64 memory = 0;
    if (!read(&present) || present > 1 || (present == 1 && !png(&memory))) {
        return false;
    }
    if (m_form == Item && m_pictureMemory + memory > MRVInputLimits::PictureMemory) {
        m_taken.resize(start);
        m_taken.append(4, '\0');
        return true;
    }
    m_pictureMemory += memory;
    const qint64 most = m_form == Item
        ? MRVInputLimits::PictureMemory
        : qMax(MRVInputLimits::FormatPictureMemory,
               MRVInputLimits::FormatPictureMemoryPerByte * m_taken.size());
    return m_pictureMemory <= most && (present == 0 || decodes(start + 4));
}

// Qt stores a picture as a PNG file whose length only its chunks tell. So ever longer pieces are
// looked at, until one holds it whole.
bool Walker::png(qint64 *memory)
{
    constexpr qint64 FirstPiece = 1024;
    QIODevice *device = m_stream->device();
    const qint64 available = device->bytesAvailable();
    for (qint64 size = FirstPiece;; size *= 4) {
        const auto png = MRVPictureReader::png(device->peek(qMin(size, available)));
        if (png.length >= 0) {
            *memory = png.memory;
            return skip(quint32(png.length));
        }
        if (size >= available) {
            return false;
        }
    }
}

// Where decoding a picture ends early, Qt goes on reading in the middle of it: what follows would
// be taken from bytes that nobody checked. So it is decoded here once, and must end where its
// chunks end.
bool Walker::decodes(int start) const
{
    QByteArray picture =
        QByteArray::fromRawData(m_taken.constData() + start, m_taken.size() - start);
    QBuffer file(&picture);
    file.open(QIODevice::ReadOnly);
    return !QImageReader(&file).read().isNull() && file.pos() == picture.size();
}

} // namespace

QByteArray MRVVariantGuard::take(QDataStream &stream, Form form)
{
    Walker walker(&stream, form);
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
    Walker walker(&stream, form);
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
    registeredTypes().insert(type);
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
