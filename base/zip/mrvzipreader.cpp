#include "zip/mrvzipreader.h"

#include "util/mrvfailure.h"
#include "zip/mrvzipaccess_p.h"

#include "core/mrvinputlimits.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <mutex>

struct MRVZipReader::Archive
{
    std::mutex mutex; // the library reads in one thread at a time
    QByteArray bytes; // that the library reads
    zip_t *zip = nullptr;

    ~Archive()
    {
        if (zip) {
            zip_discard(zip);
        }
    }
};

namespace {

constexpr zip_uint64_t Claims = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD;

// A path that leads to a place below the folder where the archive is unpacked, on every system.
bool isInside(const QString &path)
{
    if (path.isEmpty() || path.contains(u'\\') || path.contains(QChar::Null)) {
        return false;
    }
    const QVector<QStringRef> parts = path.splitRef(u'/');
    for (const QStringRef &part : parts) {
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String("..")) {
            return false;
        }
    }
    return true;
}

// Whether the packed bytes can hold as many as the archive says.
bool isPossible(const zip_stat_t &stat)
{
    switch (stat.comp_method) {
    case ZIP_CM_STORE:
        return stat.size == stat.comp_size;
    case ZIP_CM_DEFLATE:
        return stat.size / MRVInputLimits::Inflation <= stat.comp_size;
    default:
        return true; // is not read
    }
}

} // namespace

zip_t *MRVZipAccess::archive(const MRVZipReader &reader)
{
    return reader.m_archive->zip;
}

zip_uint64_t MRVZipAccess::number(const MRVZipReader &reader, int index)
{
    return reader.m_numbers.at(index);
}

MRVZipReader::MRVZipReader(const QByteArray &bytes)
    : m_archive(std::make_unique<Archive>())
{
    m_archive->bytes = bytes;
    open(zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, nullptr));
    m_error = isOpen() ? listFiles(bytes.size()) : m_error;
}

MRVZipReader::MRVZipReader(const QString &path)
    : m_archive(std::make_unique<Archive>())
{
    const QFileInfo file(path);
    FILE *stream = file.isFile() ? std::fopen(QFile::encodeName(path).constData(), "rbe") : nullptr;
    if (!stream) {
        m_error = !file.exists() ? MRVError{MRVErrorKind::NotFound, tr("it does not exist")}
            : !file.isFile()     ? MRVError{MRVErrorKind::Other, tr("it is not a regular file")}
                                 : MRVError::ofSystem(errno);
        return;
    }
    zip_source_t *source = zip_source_filep_create(stream, 0, -1, nullptr);
    if (!source) {
        std::fclose(stream);
    }
    open(source);
    m_error = isOpen() ? listFiles(file.size()) : m_error;
}

MRVZipReader::~MRVZipReader() = default;

void MRVZipReader::open(void *source)
{
    auto *bytes = static_cast<zip_source_t *>(source);
    m_archive->zip = bytes ? zip_open_from_source(bytes, ZIP_RDONLY, nullptr) : nullptr;
    if (!m_archive->zip) {
        zip_source_free(bytes); // which may be null
        m_error = damaged();
    }
}

MRVError MRVZipReader::damaged()
{
    return {MRVErrorKind::Damaged, tr("it is damaged, or no ZIP archive")};
}

// Returns what is wrong with them.
MRVError MRVZipReader::listFiles(qint64 bytes)
{
    zip_t *zip = m_archive->zip;
    const zip_int64_t count = zip_get_num_entries(zip, 0);
    MRVError fault = count > MRVInputLimits::ZipFiles
        ? MRVError{MRVErrorKind::TooLarge, tr("it holds too many files")}
        : bytes == 0 ? damaged() // which libzip takes for an archive that begins
                     : MRVError();
    zip_uint64_t rest = zip_uint64_t(bytes);
    for (zip_uint64_t i = 0; i < zip_uint64_t(count) && !fault; ++i) {
        zip_stat_t stat;
        const bool hasClaims =
            zip_stat_index(zip, i, 0, &stat) == 0 && (stat.valid & Claims) == Claims;
        if (!hasClaims || stat.comp_size > rest || !isPossible(stat)) {
            fault = {MRVErrorKind::Damaged, tr("it is damaged: its files are larger than it is")};
            continue;
        }
        rest -= stat.comp_size;
        const QString path = QString::fromUtf8(zip_get_name(zip, i, 0));
        if (path.endsWith(u'/') && isInside(path.chopped(1))) {
            continue;
        }
        if (!isInside(path)) {
            fault = {MRVErrorKind::Damaged,
                     tr("the name of a file in it leads out of it: %1").arg(path)};
        } else if (m_places.contains(path)) {
            fault = {MRVErrorKind::Damaged, tr("it holds two files of one name: %1").arg(path)};
        }
        m_places.insert(path, m_files.size());
        m_files.append({path, qint64(stat.size)});
        m_numbers.append(i);
    }
    if (fault) {
        m_files.clear();
        m_numbers.clear();
        m_places.clear();
    }
    return fault;
}

bool MRVZipReader::readAll(int index, qint64 most, QByteArray *bytes, MRVErrorSink error) const
{
    if (index < 0 || index >= m_files.size()) {
        return MRV::fail(error, MRVErrorKind::NotFound, tr("it is missing"));
    }
    const std::lock_guard<std::mutex> guard(m_archive->mutex);
    zip_t *zip = m_archive->zip;
    zip_stat_t stat;
    const qint64 size = m_files.at(index).size;
    if (size > most) {
        return MRV::fail(error, MRVErrorKind::TooLarge, tr("it is too large"));
    }
    if (zip_stat_index(zip, m_numbers.at(index), 0, &stat) != 0
        || (stat.comp_method != ZIP_CM_STORE && stat.comp_method != ZIP_CM_DEFLATE)
        || ((stat.valid & ZIP_STAT_ENCRYPTION_METHOD) && stat.encryption_method != ZIP_EM_NONE)) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("it is encrypted, or packed in an unknown way"));
    }
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(
        zip_fopen_index(zip, m_numbers.at(index), 0), zip_fclose);
    char buffer[65536];
    zip_int64_t count = -1;
    qint64 total = 0;
    while (file && (count = zip_fread(file.get(), buffer, sizeof buffer)) > 0) {
        total += count;
        if (total > size) {
            break;
        }
        if (bytes) {
            bytes->append(buffer, int(count));
        }
    }
    // The library compares the checksum when all is read.
    return (count == 0 && total == size)
        || MRV::fail(error, MRVErrorKind::Damaged, tr("it is damaged"));
}

QByteArray MRVZipReader::read(int index, qint64 most, MRVErrorSink error) const
{
    QByteArray bytes("");
    return readAll(index, qMin(most, MRVInputLimits::FileBytes), &bytes, error) ? bytes
                                                                                : QByteArray();
}

bool MRVZipReader::check(int index, qint64 most, MRVErrorSink error) const
{
    return readAll(index, most, nullptr, error);
}
