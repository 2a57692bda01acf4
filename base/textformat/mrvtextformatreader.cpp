#include "textformat/mrvtextformatreader_p.h"

#include <QBrush>
#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QImageReader>
#include <QMetaType>
#include <QPen>
#include <QTextFormat>
#include <QTextOption>
#include <QVariant>
#include <QtEndian>

#include <cstring>

namespace {

// Limits, all far above what a format holds in practice. Qt appends properties and gradient stops
// in quadratic time, and reads nested lists by recursion.
constexpr quint32 MaxProperties = 4096;
constexpr quint32 MaxGradientStops = 4096;
constexpr int MaxDepth = 32;
// What all pictures of a format may take together when decoded: this much in any case, which holds
// a plain texture of 4000 by 4000 pixels, and more in proportion to the length of the format.
constexpr qint64 MinPictureBytes = 8 << 20;
constexpr qint64 PictureBytesPerByte = 32;
// The best that deflate can do, for the compressed texts and colour profile of a picture.
constexpr qint64 MaxInflation = 1032;

constexpr quint32 NullLength = 0xffffffff;

// Walks over one stored format in QDataStream version Qt_5_15. Each function steps over one thing
// and returns false where it is not there whole, or not as Qt writes it.
class FormatWalker
{
public:
    explicit FormatWalker(const QByteArray &bytes)
        : m_begin(bytes.constData())
        , m_at(bytes.constData())
        , m_end(bytes.constData() + bytes.size())
        , m_pictureBytes(qMax(MinPictureBytes, PictureBytesPerByte * bytes.size()))
    {
    }

    bool format(int formatType);
    qint64 walked() const { return m_at - m_begin; }

private:
    using Step = bool (FormatWalker::*)();
    struct TypeRow
    {
        int type;
        int size; ///< of the payload where that is fixed, else 0
        Step step;
    };
    struct UserTypeRow
    {
        const char *name;
        Step step;
    };
    static const TypeRow Types[];
    static const UserTypeRow UserTypes[];

    qint64 left() const { return m_end - m_at; }
    bool skip(qint64 size);
    template<typename T>
    bool read(T *value);
    bool readDouble(double *value);
    template<typename T>
    bool enumeration(T last);
    bool count(quint32 *items, int itemSize);

    bool variant();
    bool userValue();
    bool bytes();
    bool string();
    bool stringList();
    bool list();
    bool map();
    bool dateTime();
    bool color();
    bool brush();
    bool gradient(quint8 style);
    bool pen();
    bool length();
    bool tab();
    bool listLevel();
    bool image();
    bool png();
    bool decodes(const char *start) const;

    const char *m_begin;
    const char *m_at;
    const char *m_end;
    qint64 m_pictureBytes; ///< what the pictures to come may take when decoded
    int m_depth = 0;
};

// clang-format off
constexpr FormatWalker::TypeRow FormatWalker::Types[] = {
    {QMetaType::UnknownType,  0,  nullptr},
    {QMetaType::Bool,         1,  nullptr},
    {QMetaType::Int,          4,  nullptr},
    {QMetaType::UInt,         4,  nullptr},
    {QMetaType::LongLong,     8,  nullptr},
    {QMetaType::ULongLong,    8,  nullptr},
    {QMetaType::Double,       8,  nullptr},
    {QMetaType::QChar,        2,  nullptr},
    {QMetaType::QVariantMap,  0,  &FormatWalker::map},
    {QMetaType::QVariantList, 0,  &FormatWalker::list},
    {QMetaType::QString,      0,  &FormatWalker::string},
    {QMetaType::QStringList,  0,  &FormatWalker::stringList},
    {QMetaType::QByteArray,   0,  &FormatWalker::bytes},
    {QMetaType::QDate,        8,  nullptr},
    {QMetaType::QTime,        4,  nullptr},
    {QMetaType::QDateTime,    0,  &FormatWalker::dateTime},
    {QMetaType::QUrl,         0,  &FormatWalker::bytes},
    {QMetaType::QRect,        16, nullptr},
    {QMetaType::QRectF,       32, nullptr},
    {QMetaType::QSize,        8,  nullptr},
    {QMetaType::QSizeF,       16, nullptr},
    {QMetaType::QPoint,       8,  nullptr},
    {QMetaType::QPointF,      16, nullptr},
    {QMetaType::QVariantHash, 0,  &FormatWalker::map},
    {QMetaType::QUuid,        16, nullptr},
    {QMetaType::Long,         8,  nullptr},
    {QMetaType::Short,        2,  nullptr},
    {QMetaType::Char,         1,  nullptr},
    {QMetaType::ULong,        8,  nullptr},
    {QMetaType::UShort,       2,  nullptr},
    {QMetaType::UChar,        1,  nullptr},
    {QMetaType::Float,        8,  nullptr}, // the stream widens it
    {QMetaType::SChar,        1,  nullptr},
    {QMetaType::QBrush,       0,  &FormatWalker::brush},
    {QMetaType::QColor,       0,  &FormatWalker::color},
    {QMetaType::QImage,       0,  &FormatWalker::image},
    {QMetaType::QPen,         0,  &FormatWalker::pen},
    {QMetaType::QTextLength,  0,  &FormatWalker::length},
};

// A type that is registered by name and stored in formats gets its row here; without one, formats
// that hold it cannot be stored.
constexpr FormatWalker::UserTypeRow FormatWalker::UserTypes[] = {
    {"QTextOption::Tab",       &FormatWalker::tab},
    {"QTextListFormat::Level", &FormatWalker::listLevel},
};
// clang-format on

bool FormatWalker::skip(qint64 size)
{
    if (size > left()) {
        return false;
    }
    m_at += size;
    return true;
}

template<typename T>
bool FormatWalker::read(T *value)
{
    const char *at = m_at;
    if (!skip(sizeof(T))) {
        return false;
    }
    *value = qFromBigEndian<T>(at);
    return true;
}

bool FormatWalker::readDouble(double *value)
{
    quint64 bits = 0;
    if (!read(&bits)) {
        return false;
    }
    std::memcpy(value, &bits, sizeof bits);
    return true;
}

// An enumerator from 0 to last, stored as an int.
template<typename T>
bool FormatWalker::enumeration(T last)
{
    quint32 value = 0;
    return read(&value) && value <= quint32(last);
}

// A count of items that take at least itemSize bytes each.
bool FormatWalker::count(quint32 *items, int itemSize)
{
    return read(items) && qint64(*items) * itemSize <= left();
}

bool FormatWalker::format(int formatType)
{
    qint32 type = 0;
    quint32 properties = 0;
    if (!read(&type) || type != formatType || !read(&properties) || properties > MaxProperties) {
        return false;
    }
    for (quint32 i = 0; i < properties; ++i) {
        qint32 property = 0;
        if (!read(&property) || property < 0 || !variant()) {
            return false;
        }
    }
    return true;
}

bool FormatWalker::variant()
{
    quint32 type = 0;
    quint8 isNull = 0;
    if (!read(&type) || !read(&isNull)) {
        return false;
    }
    if (type == quint32(QMetaType::User)) {
        return userValue();
    }
    for (const TypeRow &row : Types) {
        if (quint32(row.type) == type) {
            return row.step ? (this->*row.step)() : skip(row.size);
        }
    }
    return false;
}

bool FormatWalker::userValue()
{
    quint32 length = 0;
    const char *name = nullptr;
    if (!read(&length) || (name = m_at, !skip(length))) {
        return false;
    }
    for (const UserTypeRow &row : UserTypes) {
        // The name is stored with the zero that ends it.
        if (length == std::strlen(row.name) + 1 && std::memcmp(name, row.name, length) == 0) {
            return (this->*row.step)();
        }
    }
    return false;
}

bool FormatWalker::bytes()
{
    quint32 length = 0;
    return read(&length) && (length == NullLength || skip(length));
}

bool FormatWalker::string()
{
    quint32 length = 0;
    return read(&length) && (length == NullLength || (length % 2 == 0 && skip(length)));
}

bool FormatWalker::stringList()
{
    quint32 items = 0;
    if (!count(&items, 4)) {
        return false;
    }
    for (quint32 i = 0; i < items; ++i) {
        if (!string()) {
            return false;
        }
    }
    return true;
}

bool FormatWalker::list()
{
    quint32 items = 0;
    if (m_depth == MaxDepth || !count(&items, 5)) {
        return false;
    }
    ++m_depth;
    for (quint32 i = 0; i < items; ++i) {
        if (!variant()) {
            return false;
        }
    }
    --m_depth;
    return true;
}

bool FormatWalker::map()
{
    quint32 items = 0;
    if (m_depth == MaxDepth || !count(&items, 9)) {
        return false;
    }
    ++m_depth;
    for (quint32 i = 0; i < items; ++i) {
        if (!string() || !variant()) {
            return false;
        }
    }
    --m_depth;
    return true;
}

// A named time zone would make Qt look it up in the system; formats have no use for one.
bool FormatWalker::dateTime()
{
    qint8 spec = 0;
    if (!skip(12) || !read(&spec)) {
        return false;
    }
    return spec == Qt::LocalTime || spec == Qt::UTC || (spec == Qt::OffsetFromUTC && skip(4));
}

bool FormatWalker::color()
{
    qint8 spec = 0;
    return read(&spec) && spec >= QColor::Invalid && spec <= QColor::ExtendedRgb && skip(10);
}

bool FormatWalker::brush()
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

bool FormatWalker::gradient(quint8 style)
{
    // The three gradient patterns and the three gradient types come in the same order.
    quint32 type = 0;
    quint32 stops = 0;
    if (!read(&type) || type != quint32(style - Qt::LinearGradientPattern)
        || !enumeration(QGradient::RepeatSpread) || !enumeration(QGradient::ObjectMode)
        || !enumeration(QGradient::ComponentInterpolation) || !count(&stops, 19)
        || stops > MaxGradientStops) {
        return false;
    }
    for (quint32 i = 0; i < stops; ++i) {
        double position = -1.0;
        if (!readDouble(&position) || !(position >= 0.0 && position <= 1.0) || !color()) {
            return false;
        }
    }
    switch (style) {
    case Qt::LinearGradientPattern:
        return skip(2 * 16);
    case Qt::RadialGradientPattern:
        return skip(2 * 16 + 8);
    default:
        return skip(16 + 8);
    }
}

bool FormatWalker::pen()
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
        && count(&dashes, 8) && skip(qint64(dashes) * 8) && skip(8 + 1); // offset, default width
}

bool FormatWalker::length()
{
    return enumeration(QTextLength::PercentageLength) && skip(8);
}

bool FormatWalker::tab()
{
    return skip(8) && enumeration(QTextOption::DelimiterTab) && skip(2);
}

bool FormatWalker::listLevel()
{
    return string() && skip(4 + 8 + 8); // number style, two indents
}

bool FormatWalker::image()
{
    quint32 present = 0;
    return read(&present) && (present == 0 || (present == 1 && png()));
}

// A picture lies in the stream as a PNG file, of a length that only its chunks tell. Where decoding
// it ends early, Qt goes on reading in the middle of it: what follows would be taken from bytes
// that nobody checked. So it is decoded here once, and must end where its chunks end.
bool FormatWalker::decodes(const char *start) const
{
    const int length = int(m_at - start);
    QByteArray bytes = QByteArray::fromRawData(start, length);
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    return !QImageReader(&file).read().isNull() && file.pos() == length;
}

bool FormatWalker::png()
{
    static constexpr char Signature[] = "\x89PNG\r\n\x1a\n";
    const char *start = m_at;
    if (!skip(8) || std::memcmp(start, Signature, 8) != 0) {
        return false;
    }
    bool first = true;
    for (;;) {
        quint32 length = 0;
        if (!read(&length) || left() < 4) {
            return false;
        }
        const QByteArray type = QByteArray::fromRawData(m_at, 4);
        if (first != (type == "IHDR") || !skip(4)) {
            return false;
        }
        if (first) {
            quint32 width = 0;
            quint32 height = 0;
            quint8 depth = 0;
            if (length != 13 || !read(&width) || !read(&height) || !read(&depth) || !skip(8)) {
                return false;
            }
            if (width == 0 || height == 0 || width > 0x7fff || height > 0x7fff) {
                return false;
            }
            m_pictureBytes -= qint64(width) * height * (depth > 8 ? 8 : 4);
            first = false;
        } else {
            if (!skip(qint64(length) + 4)) { // and its checksum
                return false;
            }
            if (type == "iCCP" || type == "zTXt" || type == "iTXt") {
                m_pictureBytes -= length * MaxInflation;
            }
        }
        if (type == "IEND") {
            return m_pictureBytes >= 0 && decodes(start);
        }
    }
}

} // namespace

bool mrvIsReadableFormat(const QByteArray &bytes, int formatType)
{
    return FormatWalker(bytes).format(formatType);
}

qint64 mrvReadableFormatLength(const QByteArray &bytes, int formatType)
{
    FormatWalker walker(bytes);
    return walker.format(formatType) ? walker.walked() : -1;
}
