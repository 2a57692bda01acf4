// Decodes arbitrary bytes as a picture of each format.

#include "core/mrvinputlimits.h"
#include "gui/mrvpicturereader.h"
#include "guiapplication.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const MRVPictureReader::Png png = MRVPictureReader::png(bytes);
    if (png.length > bytes.size() || (png.length >= 0 && png.size.isEmpty())) {
        std::abort();
    }
    for (const char *format : {static_cast<const char *>(nullptr), "svg", "tga", "xbm"}) {
        const MRVPictureReader reader(bytes, format);
        QString error;
        const QImage image = reader.read(&error);
        if (image.isNull() == error.isEmpty() || (!reader.isReadable() && !image.isNull())
            || image.sizeInBytes() > MRVInputLimits::PictureBytes) {
            std::abort();
        }
    }
    return 0;
}
