#include "input/mrvvariantguard_p.h"

#include "gui/mrvpicturereader.h"

#include <QBrush>
#include <QBuffer>
#include <QColor>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QPalette>
#include <QPen>

#include <cstring>

// The walk over what is drawn: fonts, colours, brushes, pens and pictures.

namespace {

constexpr int LeastStop = 19; // the bytes that one takes

bool hasGui()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance());
}

} // namespace

bool MRVVariantWalker::font()
{
    return text() && skip(8 + 4 + 5); // size in points and pixels, style
}

// As the stream version Qt_5_15 has it.
bool MRVVariantWalker::wholeFont()
{
    return text() && text() // family, name of the style
        && skip(8 + 4 + 1 + 2) // size in points and pixels, hint, strategy
        && skip(1 + 1 + 1 + 2 + 1) // weight, style, stretch
        && skip(4 + 4 + 1 + 1) // spacing of letters and words, hinting, capitals
        && texts(); // families
}

bool MRVVariantWalker::color()
{
    qint8 spec = 0;
    return read(&spec) && spec >= QColor::Invalid && spec <= QColor::ExtendedRgb && skip(10);
}

bool MRVVariantWalker::brush()
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

bool MRVVariantWalker::gradient(quint8 style)
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

bool MRVVariantWalker::gradientStop()
{
    quint64 bits = 0;
    double position = 0.0;
    if (!read(&bits)) {
        return false;
    }
    std::memcpy(&position, &bits, sizeof bits);
    return position >= 0.0 && position <= 1.0 && color();
}

bool MRVVariantWalker::pen()
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

bool MRVVariantWalker::image()
{
    const int start = m_taken.size();
    quint32 present = 0;
    qint64 memory = 0;
    if (!read(&present) || present > 1 || (present == 1 && !png(&memory))) {
        return false;
    }
    if (isItem() && m_pictureMemory + memory > MRVInputLimits::PictureMemory) {
        m_taken.resize(start);
        m_taken.append(4, '\0');
        return true;
    }
    m_pictureMemory += memory;
    const qint64 most = isItem()
        ? MRVInputLimits::PictureMemory
        : qMax(MRVInputLimits::FormatPictureMemory,
               MRVInputLimits::FormatPictureMemoryPerByte * m_taken.size());
    return m_pictureMemory <= most && (present == 0 || decodes(start + 4));
}

// Qt stores a picture as a PNG file whose length only its chunks tell. So ever longer pieces are
// looked at, until one holds it whole.
bool MRVVariantWalker::png(qint64 *memory)
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
bool MRVVariantWalker::decodes(int start) const
{
    QByteArray picture =
        QByteArray::fromRawData(m_taken.constData() + start, m_taken.size() - start);
    QBuffer file(&picture);
    file.open(QIODevice::ReadOnly);
    return !QImageReader(&file).read().isNull() && file.pos() == picture.size();
}

// Before there is an application, Qt ends the process for a pixmap.
bool MRVVariantWalker::picture()
{
    m_isUnknown = !hasGui();
    return !m_isUnknown && image();
}

bool MRVVariantWalker::cursor()
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
bool MRVVariantWalker::icon()
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
bool MRVVariantWalker::iconPicture()
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

// Bytes that hold a command and its rectangles. Other commands take regions apart in ways that
// take memory.
bool MRVVariantWalker::region()
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

bool MRVVariantWalker::palette()
{
    bool isTaken = true;
    for (int i = 0; isTaken && i < QPalette::NColorGroups * QPalette::NColorRoles; ++i) {
        isTaken = brush();
    }
    return isTaken;
}
