#include "archive/mrvarchivesnapshot_p.h"

#include "archive/mrvarchivenames_p.h"
#include "archive/mrvarchivetext_p.h"
#include "util/mrvfailure.h"
#include "zip/mrvzipwriter.h"

#include "core/mrvinputlimits.h"

namespace {

// Archives hold dates from 1980 on.
QDateTime archiveDate(const QDateTime &date)
{
    const QDateTime first(QDate(1980, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime last(QDate(2107, 12, 31), QTime(0, 0), Qt::UTC);
    return date.isValid() ? qBound(first, date.toUTC(), last) : first;
}

// A file that is written over another must not turn out to be unreadable.
bool isReadable(const QByteArray &bytes)
{
    MRVArchiveContent content;
    return bytes.size() <= MRVInputLimits::TextFileBytes
        && MRVArchiveContent::fromByteArray(bytes, &content) == MRVArchiveContent::Good;
}

} // namespace

MRVArchiveSnapshot::MRVArchiveSnapshot(const QTextDocument &document,
                                       const MRVArchiveExtras &extras)
    : m_content(MRVArchiveContent::of(document))
    , m_pictures(document, &m_content.fragment)
    , m_text(mrvArchiveText(document))
    , m_extras(extras)
{
    m_content.metadata = extras.metadata;
    m_beginning = m_content.beginning();
    m_content.settings = QTextCharFormat();
    m_content.fragment = MRVDocumentFragment();
    // Without the pictures, which come later: they have nothing that could not be read.
    m_isReadable = isReadable(m_content.toByteArray(m_beginning));
}

bool MRVArchiveSnapshot::write(QIODevice *device, MRVErrorSink error, MRVProgressMeter *meter)
{
    const auto lost = [this] {
        return MRVError{
            MRVErrorKind::Changed,
            tr("the picture %1 has changed, or cannot be read any more").arg(m_pictures.failed())};
    };
    m_content.pictures.clear();
    const bool isPossible = m_isReadable && m_pictures.read(m_lost, &m_content.pictures);
    if (!m_pictures.failed().isEmpty()) {
        return MRV::fail(error, lost());
    }
    const QByteArray stored = m_content.toByteArray(m_beginning);
    if (!isPossible || stored.size() > MRVInputLimits::TextFileBytes) {
        return MRV::fail(error, MRVErrorKind::TooLarge,
                         tr("the document is too large, or too complex, for this format"));
    }
    std::vector<MRVZipEntry> files;
    const auto add = [&](const QString &path, const QByteArray &bytes,
                         MRVZipEntry::Packing packing = MRVZipEntry::Deflated) {
        const QByteArray there = bytes.isNull() ? QByteArray("") : bytes; // null is a failure
        files.push_back({path, packing, [there] { return there; }});
    };
    // The type comes first and uncompressed, for programs that read the first bytes only.
    add(MRVArchiveNames::TypeFile, MRVArchiveNames::Type.data(), MRVZipEntry::Stored);
    add(MRVArchiveNames::TextFile, m_text.toUtf8());
    add(MRVArchiveNames::DocumentFile, stored);
    for (auto it = m_extras.properties.cbegin(); it != m_extras.properties.cend(); ++it) {
        add(MRVArchiveNames::PropertyFolder + it.key(), it.value());
    }
    files.insert(files.end(), m_pictures.files().begin(), m_pictures.files().end());
    if (files.size() > std::size_t(MRVInputLimits::ZipFiles)) {
        return MRV::fail(error, MRVErrorKind::TooLarge, tr("it holds too many pictures"));
    }
    MRVError reason;
    return mrvWriteZip(files, m_level, archiveDate(m_extras.modified), device, &reason, meter)
        || MRV::fail(error, m_pictures.failed().isEmpty() ? reason : lost());
}
