// Loads arbitrary bytes as an XML document, saves it, and loads what was saved.

#include "dom/mrvdomdoc.h"

#include <QBuffer>

#include <cstdlib>

namespace {

QByteArray saved(const MRVDomDoc &doc)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!doc.save(buffer)) {
        std::abort();
    }
    return buffer.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QBuffer buffer(&bytes);
    MRVDomDoc doc;
    if (!doc.setContent(&buffer)) {
        if (doc.errorMessage().isEmpty() || !doc.documentElement().isNull()) {
            std::abort();
        }
        return 0;
    }
    const QByteArray first = saved(doc);
    // Qt reads some texts that are no XML, of which not all can be read again. What can be settles.
    MRVDomDoc again;
    if (again.setContent(QString::fromUtf8(first))) {
        const QByteArray second = saved(again);
        MRVDomDoc third;
        if (!third.setContent(QString::fromUtf8(second)) || saved(third) != second) {
            std::abort();
        }
    }
    return 0;
}
