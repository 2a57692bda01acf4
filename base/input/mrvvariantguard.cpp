#include "input/mrvvariantguard.h"

#include "core/mrvcheckedstream.h"
#include "core/mrvinputlimits.h"
#include "gui/mrvpicturereader.h"

#include <QBrush>
#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QImageReader>
#include <QMetaType>
#include <QPen>
#include <QTextFormat>
#include <QTextOption>
#include <QtEndian>

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
};

// clang-format off
constexpr Walker::TypeRow Walker::Types[] = {
    {QMetaType::UnknownType,    Settings,        0,  &Walker::text}, // an empty one
    {QMetaType::UnknownType,    Stored | Date,   0,  nullptr},
    {QMetaType::Bool,           Most,            1,  nullptr},
    {QMetaType::Int,            Most,            4,  nullptr},
    {QMetaType::UInt,           Most,            4,  nullptr},
    {QMetaType::LongLong,       Most,            8,  nullptr},
    {QMetaType::ULongLong,      Most,            8,  nullptr},
    {QMetaType::Double,         Most,            8,  nullptr},
    {QMetaType::Long,           Most,            8,  nullptr},
    {QMetaType::Short,          Most,            2,  nullptr},
    {QMetaType::Char,           Most,            1,  nullptr},
    {QMetaType::ULong,          Most,            8,  nullptr},
    {QMetaType::UShort,         Most,            2,  nullptr},
    {QMetaType::UChar,          Most,            1,  nullptr},
    {QMetaType::SChar,          Most,            1,  nullptr},
    {QMetaType::Float,          Settings,        4,  nullptr},
    {QMetaType::Float,          Stored,          8,  nullptr}, // the stream widens it
    {QMetaType::QChar,          Most,            2,  nullptr},
    {QMetaType::QString,        Most,            0,  &Walker::text},
    {QMetaType::QStringList,    Most,            0,  &Walker::texts},
    {QMetaType::QByteArray,     Most,            0,  &Walker::bytes},
    {QMetaType::QByteArrayList, Settings,        0,  &Walker::byteArrays},
    {QMetaType::QBitArray,      Settings,        0,  &Walker::bits},
    {QMetaType::QUrl,           Most,            0,  &Walker::bytes},
    {QMetaType::QUuid,          Most,            16, nullptr},
    {QMetaType::QLocale,        Settings,        0,  &Walker::text},
    {QMetaType::QDate,          Settings,        4,  nullptr},
    {QMetaType::QDate,          Stored,          8,  nullptr},
    {QMetaType::QTime,          Most,            4,  nullptr},
    {QMetaType::QDateTime,      Settings,        9,  nullptr},
    {QMetaType::QDateTime,      Date,            0,  &Walker::zonedDateTime},
    {QMetaType::QDateTime,      Stored,          0,  &Walker::dateTime},
    {QMetaType::QPoint,         Most,            8,  nullptr},
    {QMetaType::QPointF,        Most,            16, nullptr},
    {QMetaType::QSize,          Most,            8,  nullptr},
    {QMetaType::QSizeF,         Most,            16, nullptr},
    {QMetaType::QRect,          Most,            16, nullptr},
    {QMetaType::QRectF,         Most,            32, nullptr},
    {QMetaType::QLine,          Settings,        16, nullptr},
    {QMetaType::QLineF,         Settings,        32, nullptr},
    {QMetaType::QColor,         Most,            0,  &Walker::color},
    {QMetaType::QFont,          Settings,        0,  &Walker::font},
    {QMetaType::QBrush,         Format,          0,  &Walker::brush},
    {QMetaType::QPen,           Format,          0,  &Walker::pen},
    {QMetaType::QTextLength,    Format,          0,  &Walker::length},
    {QMetaType::QImage,         Stored,          0,  &Walker::image},
    {QMetaType::QVariantList,   Most,            0,  &Walker::list},
    {QMetaType::QVariantMap,    Most,            0,  &Walker::map},
    {QMetaType::QVariantHash,   Settings|Format, 0,  &Walker::map},
    {QMetaType::User,           Most,            0,  &Walker::userValue},
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
    return false;
}

bool Walker::format(QTextFormat::FormatType expected)
{
    qint32 type = 0;
    quint32 properties = 0;
    if (!read(&type) || type != expected || !count(&properties, LeastProperty)
        || properties > MRVInputLimits::FormatProperties) {
        return false;
    }
    for (; properties > 0; --properties) {
        qint32 property = 0;
        if (!read(&property) || property < 0 || !variant()) {
            return false;
        }
    }
    return true;
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
        return m_in.isOk();
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
