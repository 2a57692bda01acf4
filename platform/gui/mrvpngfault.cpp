#include "gui/mrvpngfault_p.h"

#include <QtEndian>

#include <cstring>

#include <png.h>

namespace {

struct Source
{
    const QByteArray &bytes;
    size_t at;
};

void readBytes(png_structp png, png_bytep to, size_t count)
{
    auto *source = static_cast<Source *>(png_get_io_ptr(png));
    if (count > size_t(source->bytes.size()) - source->at) {
        png_error(png, "");
    }
    memcpy(to, source->bytes.constData() + source->at, count);
    source->at += count;
}

[[noreturn]] void stop(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}

void ignore(png_structp, png_const_charp) { }

// The line belongs to the caller: a fault leaves this function without destroying anything.
void readLines(png_structp png, png_infop info, QByteArray *line)
{
    const int passes = png_set_interlace_handling(png);
    png_read_update_info(png, info);
    line->resize(int(png_get_rowbytes(png, info)));
    auto *const pixels = reinterpret_cast<png_bytep>(line->data());
    for (int pass = 0; pass < passes; ++pass) {
        for (png_uint_32 i = 0; i < png_get_image_height(png, info); ++i) {
            png_read_row(png, pixels, nullptr);
        }
    }
    png_read_end(png, info);
}

bool isReadable(png_structp png, png_infop info, MRVPngPart part, QByteArray *line)
{
    if (setjmp(png_jmpbuf(png))) {
        return false;
    }
    png_read_info(png, info);
    if (part == MRVPngPart::Whole) {
        readLines(png, info, line);
    }
    return true;
}

// Whether the bytes can hold each chunk up to the end, or up to the pixels. libpng takes memory for
// what a chunk claims before it reads it.
bool holdsChunks(const QByteArray &bytes, MRVPngPart part)
{
    constexpr qint64 Signature = 8;
    constexpr qint64 Frame = 12; // length, type and checksum
    const char *last = part == MRVPngPart::Whole ? "IEND" : "IDAT";
    qint64 left = bytes.size() - Signature;
    while (left >= Frame) {
        const char *chunk = bytes.constData() + bytes.size() - left;
        if (memcmp(chunk + 4, last, 4) == 0) {
            return true;
        }
        left -= Frame + qFromBigEndian<quint32>(chunk);
    }
    return false;
}

} // namespace

bool mrvIsPngReadable(const QByteArray &bytes, MRVPngPart part)
{
    if (!holdsChunks(bytes, part)) {
        return false;
    }
    Source source{bytes, 0};
    QByteArray line;
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, stop, ignore);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    bool ok = false;
    if (info) {
        png_set_read_fn(png, &source, readBytes);
        ok = isReadable(png, info, part, &line);
    }
    png_destroy_read_struct(&png, &info, nullptr);
    return ok;
}
