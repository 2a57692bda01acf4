// Feeds arbitrary bytes to the reader of documents in archives: as a whole archive, or, after a
// first byte of 1, as the document in a good one. What is read must be saved and read again as the
// same; what is refused must change nothing.

#include "guiapplication.h"

#include "archive/mrvdocumentarchive.h"
#include "input/mrvguardeddocument.h"
#include "zip/mrvzipwriter.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QDateTime>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

QByteArray archiveOf(const QByteArray &document)
{
    const QByteArray type = MRVDocumentArchive::mimeType().toLatin1();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QDateTime date(QDate(1980, 1, 1), QTime(0, 0), Qt::UTC);
    mrvWriteZip({{QStringLiteral("mimetype"), MRVZipEntry::Stored, [type] { return type; }},
                 {QStringLiteral("document"), MRVZipEntry::Stored, [document] { return document; }},
                 {QStringLiteral("text.txt"), MRVZipEntry::Stored, [] { return QByteArray("a"); }}},
                1, date, &buffer, nullptr);
    return buffer.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QByteArray rest(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    MRVGuardedDocument document;
    document.setPlainText(QStringLiteral("before"));
    MRVDocumentArchive archive;
    if (!archive.read(data[0] == 1 ? archiveOf(rest) : rest, &document)) {
        require(document.toPlainText() == QLatin1String("before"));
        return 0;
    }
    document.documentLayout();
    document.setTextWidth(500);
    QBuffer saved;
    saved.open(QIODevice::WriteOnly);
    if (archive.write(document, &saved)) {
        MRVGuardedDocument again;
        require(archive.read(saved.data(), &again));
        require(again.toRawText() == document.toRawText());
        QBuffer twice;
        twice.open(QIODevice::WriteOnly);
        require(archive.write(again, &twice) && twice.data() == saved.data());
    }
    return 0;
}
