#include "zip/mrvzipwriter.h"

#include "util/mrvfailure.h"
#include "util/mrvprogress.h"
#include "zip/mrvzipaccess_p.h"

#include <QIODevice>

#include <libdeflate.h>
#include <zip.h>

#include <atomic>
#include <csignal>
#include <cstring>
#include <memory>
#include <system_error>
#include <thread>
#include <utility>

namespace {

/** A file as it goes into the archive. */
struct Packed
{
    QByteArray bytes;
    zip_uint64_t size = 0; // before it was compressed
    quint32 crc = 0;
    bool isDeflated = false;
    bool isFailed = false;
    zip_uint64_t position = 0; // up to which the archive has read it
    const MRVZipEntry *late = nullptr; // makes the bytes when the archive reads them
};

bool isLate(const MRVZipEntry &entry)
{
    return entry.packing == MRVZipEntry::Stored && entry.size >= 0;
}

/** Compresses one file after the other, with the same tables. */
class Deflater
{
public:
    explicit Deflater(int level)
        : m_compressor(libdeflate_alloc_compressor(level))
    {
    }

    Packed packed(const MRVZipEntry &entry)
    {
        if (entry.source) {
            return Packed();
        }
        if (isLate(entry)) {
            return Packed{QByteArray(), zip_uint64_t(entry.size), 0, false, false, 0, &entry};
        }
        const QByteArray bytes = entry.content();
        Packed file{bytes, zip_uint64_t(bytes.size()), 0, false, bytes.isNull(), 0, nullptr};
        file.crc = libdeflate_crc32(0, bytes.constData(), std::size_t(bytes.size()));
        if (entry.packing == MRVZipEntry::Deflated && m_compressor && bytes.size() > 1) {
            // A result that is not shorter than the text does not fit, and is none.
            QByteArray deflated(bytes.size() - 1, Qt::Uninitialized);
            const std::size_t size = libdeflate_deflate_compress(
                m_compressor.get(), bytes.constData(), std::size_t(bytes.size()), deflated.data(),
                std::size_t(deflated.size()));
            if (size > 0) {
                file.bytes = QByteArray(deflated.constData(), int(size));
                file.isDeflated = true;
            }
        }
        return file;
    }

private:
    struct Free
    {
        void operator()(libdeflate_compressor *compressor) const
        {
            libdeflate_free_compressor(compressor);
        }
    };

    std::unique_ptr<libdeflate_compressor, Free> m_compressor;
};

/** Threads that take no signals, whose handlers are written for the main thread. */
class Workers
{
public:
    template<typename Work>
    Workers(std::size_t count, const Work &work)
    {
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        try {
            while (m_threads.size() < count) {
                m_threads.emplace_back(work);
            }
        } catch (const std::system_error &) {
            // The system gives no more threads; those that are there do the work.
        }
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
    ~Workers()
    {
        for (std::thread &thread : m_threads) {
            thread.join();
        }
    }
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;

private:
    std::vector<std::thread> m_threads;
};

// Each thread takes the next file that none has taken, and puts it in its place.
std::vector<Packed> packAll(const std::vector<MRVZipEntry> &entries, int level,
                            MRVProgressMeter *meter)
{
    std::vector<Packed> files(entries.size());
    std::atomic<std::size_t> next{0};
    const auto work = [&](MRVProgressMeter *own) {
        Deflater deflater(level);
        std::size_t last = 0;
        for (std::size_t i = next++; i < entries.size(); i = next++) {
            if (own && !own->advance(qint64(i - std::exchange(last, i)))) {
                next = entries.size(); // for all
                return;
            }
            files[i] = deflater.packed(entries[i]);
        }
    };
    const std::size_t cores = qMax(1u, std::thread::hardware_concurrency());
    const Workers others(qMin(cores, entries.size()) - (entries.empty() ? 0 : 1),
                         [&work] { work(nullptr); });
    work(meter);
    return files; // after the others have ended
}

qint64 packedSize(const std::vector<Packed> &files)
{
    qint64 size = 0;
    for (const Packed &file : files) {
        size += file.late ? qint64(file.size) : file.bytes.size();
    }
    return size;
}

// Hands a file to the archive. A source that says that it is deflated is copied as it is.
zip_int64_t readPacked(void *user, void *data, zip_uint64_t length, zip_source_cmd_t command)
{
    Packed &file = *static_cast<Packed *>(user);
    switch (command) {
    case ZIP_SOURCE_OPEN:
        file.position = 0;
        if (file.late) {
            file.bytes = file.late->content();
        }
        return file.late && zip_uint64_t(file.bytes.size()) != file.size ? -1 : 0;
    case ZIP_SOURCE_CLOSE:
        if (file.late) {
            file.bytes.clear();
        }
        return 0;
    case ZIP_SOURCE_READ: {
        const zip_uint64_t size = qMin(length, zip_uint64_t(file.bytes.size()) - file.position);
        std::memcpy(data, file.bytes.constData() + file.position, size);
        file.position += size;
        return zip_int64_t(size);
    }
    case ZIP_SOURCE_STAT: {
        zip_stat_t *const stat = static_cast<zip_stat_t *>(data);
        zip_stat_init(stat);
        stat->size = file.size;
        stat->comp_size = file.late ? file.size : zip_uint64_t(file.bytes.size());
        stat->crc = file.crc;
        stat->comp_method = file.isDeflated ? ZIP_CM_DEFLATE : ZIP_CM_STORE;
        stat->encryption_method = ZIP_EM_NONE;
        // Of stored files, the library computes the checksum.
        stat->valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_SIZE | ZIP_STAT_COMP_METHOD
            | ZIP_STAT_ENCRYPTION_METHOD | (file.isDeflated ? ZIP_STAT_CRC : 0);
        return sizeof *stat;
    }
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_READABLE;
    default: // to close, to free: nothing to do
        return 0;
    }
}

/** What the library writes to. */
struct Target
{
    QIODevice *device;
    MRVProgressMeter *meter; // may be null
    zip_error_t error;
};

bool writeAll(QIODevice *device, const char *data, qint64 size)
{
    while (size > 0) {
        const qint64 count = device->write(data, size);
        if (count <= 0) {
            return false;
        }
        data += count;
        size -= count;
    }
    return true;
}

bool seekTo(const Target &target, void *data, zip_uint64_t length)
{
    zip_error_t error;
    zip_error_init(&error);
    const zip_int64_t place =
        zip_source_seek_compute_offset(zip_uint64_t(target.device->pos()),
                                       zip_uint64_t(target.device->size()), data, length, &error);
    zip_error_fini(&error);
    return place >= 0 && target.device->seek(place);
}

// Passes on what the library writes. To it this is a file that is empty at first.
zip_int64_t writeToDevice(void *user, void *data, zip_uint64_t length, zip_source_cmd_t command)
{
    Target &target = *static_cast<Target *>(user);
    bool ok = true;
    switch (command) {
    case ZIP_SOURCE_WRITE:
        ok = (!target.meter || target.meter->advance(qint64(length)))
            && writeAll(target.device, static_cast<const char *>(data), qint64(length));
        if (ok) {
            return zip_int64_t(length);
        }
        break;
    case ZIP_SOURCE_SEEK_WRITE:
        ok = seekTo(target, data, length);
        break;
    case ZIP_SOURCE_TELL_WRITE:
        return target.device->pos();
    case ZIP_SOURCE_STAT:
        zip_stat_init(static_cast<zip_stat_t *>(data));
        static_cast<zip_stat_t *>(data)->valid = ZIP_STAT_SIZE;
        return sizeof(zip_stat_t);
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&target.error, data, length);
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_WRITABLE;
    default: // to open, to commit, to free: nothing to do
        return 0;
    }
    if (!ok) {
        zip_error_set(&target.error, ZIP_ER_WRITE, 0);
    }
    return ok ? 0 : -1;
}

/** An archive that is written to a device. */
class Archive
{
public:
    Archive(QIODevice *device, MRVProgressMeter *meter)
        : m_target{device, meter, {}}
    {
        zip_error_init(&m_error);
        zip_error_init(&m_target.error);
        zip_source_t *const source = zip_source_function_create(writeToDevice, &m_target, &m_error);
        m_zip =
            source ? zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, &m_error) : nullptr;
        if (source && !m_zip) {
            zip_source_free(source);
        }
    }
    ~Archive()
    {
        if (m_zip) {
            zip_discard(m_zip);
        }
        zip_error_fini(&m_target.error);
        zip_error_fini(&m_error);
    }
    Archive(const Archive &) = delete;
    Archive &operator=(const Archive &) = delete;

    bool add(const MRVZipEntry &entry, Packed *file, const QDateTime &date)
    {
        const QDate day = date.toUTC().date();
        const QTime time = date.toUTC().time();
        zip_int32_t method = file->isDeflated ? ZIP_CM_DEFLATE : ZIP_CM_STORE;
        zip_source_t *const source = sourceOf(entry, file, &method);
        const zip_int64_t index = source
            ? zip_file_add(m_zip, entry.path.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8)
            : -1;
        if (source && index < 0) {
            zip_source_free(source);
        }
        return index >= 0
            && zip_set_file_compression(m_zip, zip_uint64_t(index), method, 0) == 0
            // The format of MS-DOS (APPNOTE.TXT, section 4.4.6): seconds count by two.
            && zip_file_set_dostime(
                   m_zip, zip_uint64_t(index),
                   zip_uint16_t(time.hour() << 11 | time.minute() << 5 | time.second() / 2),
                   zip_uint16_t((day.year() - 1980) << 9 | day.month() << 5 | day.day()), 0)
            == 0;
    }

    bool close()
    {
        const bool ok = m_zip && zip_close(m_zip) == 0;
        m_zip = ok ? nullptr : m_zip;
        return ok;
    }

    MRVError error()
    {
        if (zip_error_code_zip(&m_target.error) != ZIP_ER_OK) {
            return MRVError::ofDevice(*m_target.device); // such as that the disk is full
        }
        return {MRVErrorKind::Other,
                QString::fromUtf8(zip_error_strerror(m_zip ? zip_get_error(m_zip) : &m_error))};
    }

private:
    // Gives the method of what is copied.
    zip_source_t *sourceOf(const MRVZipEntry &entry, Packed *file, zip_int32_t *method)
    {
        if (!m_zip || !entry.source) {
            return m_zip ? zip_source_function(m_zip, readPacked, file) : nullptr;
        }
        zip_t *from = MRVZipAccess::archive(*entry.source);
        const zip_uint64_t number = MRVZipAccess::number(*entry.source, entry.index);
        zip_stat_t stat;
        if (zip_stat_index(from, number, 0, &stat) != 0) {
            return nullptr;
        }
        *method = stat.comp_method;
        return zip_source_zip(m_zip, from, number, ZIP_FL_COMPRESSED, 0, -1);
    }

    zip_error_t m_error;
    Target m_target;
    zip_t *m_zip = nullptr;
};

} // namespace

bool mrvWriteZip(const std::vector<MRVZipEntry> &entries, int level, const QDateTime &date,
                 QIODevice *device, MRVErrorSink error, MRVProgressMeter *meter)
{
    if (meter) {
        meter->begin(800, qint64(entries.size()));
    }
    // Outlives the archive, which reads it.
    std::vector<Packed> files = packAll(entries, level, meter);
    if (meter && meter->isCancelled()) {
        return MRV::fail(error, MRVProgressMeter::cancelled());
    }
    Archive archive(device, meter);
    bool ok = true;
    for (std::size_t i = 0; ok && i < files.size(); ++i) {
        if (files[i].isFailed) {
            return MRV::fail(error, entries[i].path);
        }
        ok = archive.add(entries[i], &files[i], date);
    }
    if (meter) {
        meter->begin(1000, packedSize(files));
    }
    ok = ok && archive.close();
    return ok
        || MRV::fail(error,
                     meter && meter->isCancelled() ? MRVProgressMeter::cancelled()
                                                   : archive.error());
}
