// Feeds arbitrary bytes to the reader of script modes.

#include "guiapplication.h"
#include "scriptmode/mrvscriptmode.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MRVScriptMode mode;
    QString error;
    QStringList remarks;
    if (!mode.fromXml(bytes, &error, &remarks)) {
        // A refusal has a reason and changes nothing.
        if (error.isEmpty() || mode != MRVScriptMode()) {
            std::abort();
        }
        return 0;
    }
    // What was read is written so that it is read again without a remark, and then is written as
    // the same bytes.
    const QByteArray written = mode.toXml();
    MRVScriptMode again;
    remarks.clear();
    if (!again.fromXml(written, &error, &remarks) || !remarks.isEmpty()
        || again.toXml() != written) {
        std::abort();
    }
    again.makeElementsUnique();
    return 0;
}
