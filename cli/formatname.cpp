#include "formatname.h"

#include <QFileInfo>

MRVFormat::Format formatNamed(const QString &text)
{
    for (int row = 0; row < MRVFormat::formatsCount(); ++row) {
        const MRVFormat::Format format = MRVFormat::formatAt(row);
        if (MRVFormat::name(format).compare(text, Qt::CaseInsensitive) == 0) {
            return format;
        }
    }
    return MRVFormat::format(text.contains(u'.') ? QFileInfo(text).suffix() : text);
}
