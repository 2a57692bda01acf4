#include "office/mrvofficesource_p.h"

#include "office/mrvofficetext_p.h"

#include <memory>
#include <vector>

#include <zip.h>

namespace {

// What a text of an archive may unpack to, some ten novels; a larger one is not looked into.
constexpr int MostUnpacked = 1 << 26;

using Source = std::unique_ptr<zip_source_t, decltype(&zip_source_free)>;

bool readFile(zip_t *archive, zip_uint64_t index, QByteArray *bytes)
{
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(
        zip_fopen_index(archive, index, 0), zip_fclose);
    char buffer[65536];
    zip_int64_t size = -1;
    while (file && (size = zip_fread(file.get(), buffer, sizeof buffer)) > 0
           && bytes->size() < MostUnpacked) {
        bytes->append(buffer, int(size));
    }
    return size == 0;
}

// Uncompressed: it is read at once.
bool replaceFile(zip_t *archive, zip_uint64_t index, const QByteArray &bytes)
{
    zip_source_t *source =
        zip_source_buffer(archive, bytes.constData(), zip_uint64_t(bytes.size()), 0);
    if (zip_file_replace(archive, index, source, 0) < 0) {
        zip_source_free(source);
        return false;
    }
    return zip_set_file_compression(archive, index, ZIP_CM_STORE, 0) == 0;
}

QByteArray bytesOf(zip_source_t *source)
{
    QByteArray bytes;
    zip_stat_t stat;
    if (zip_source_stat(source, &stat) == 0 && zip_source_open(source) == 0) {
        bytes.resize(int(stat.size)); // of what has just been written
        if (zip_source_read(source, bytes.data(), stat.size) != bytes.size()) {
            bytes.clear();
        }
        zip_source_close(source);
    }
    return bytes;
}

bool hasText(MRVFormat::Format format, const QString &name)
{
    if (format == MRVFormat::ODT) {
        return name == QLatin1String("content.xml");
    }
    return name == QLatin1String("word/document.xml") || name == QLatin1String("word/footnotes.xml")
        || name == QLatin1String("word/endnotes.xml");
}

} // namespace

MRVOfficeSource::MRVOfficeSource(const QByteArray &bytes, MRVFormat::Format format)
    : m_prepared(bytes)
{
    if (format == MRVFormat::RTF) {
        m_prepared = mrvPreparedRtf(bytes);
    } else {
        readArchive(bytes, format);
    }
}

void MRVOfficeSource::readArchive(const QByteArray &bytes, MRVFormat::Format format)
{
    const Source source(
        zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, nullptr),
        zip_source_free);
    zip_source_keep(source.get()); // the archive frees it once
    zip_t *archive = zip_open_from_source(source.get(), 0, nullptr);
    if (!archive) {
        zip_source_free(source.get());
        return;
    }
    std::vector<QByteArray> texts; // until the archive is closed
    bool ok = true;
    for (zip_uint64_t i = 0; i < zip_uint64_t(zip_get_num_entries(archive, 0)) && ok; ++i) {
        if (hasText(format, QString::fromUtf8(zip_get_name(archive, i, 0)))) {
            QByteArray text;
            ok = readFile(archive, i, &text);
            if (!ok) {
                break;
            }
            mrvCountWords(mrvOfficeXmlText(text), &m_words);
            texts.push_back(format == MRVFormat::ODT ? mrvPreparedOdt(text)
                                                     : mrvPreparedDocx(text));
            ok = replaceFile(archive, i, texts.back());
        }
    }
    if (!ok || zip_close(archive) != 0) {
        zip_discard(archive);
        return;
    }
    const QByteArray prepared = bytesOf(source.get());
    m_prepared = prepared.isEmpty() ? bytes : prepared;
}

QString MRVOfficeSource::withAnchors(QString html)
{
    return mrvWithAnchors(html);
}

QStringList MRVOfficeSource::missingFrom(const QString &html) const
{
    QHash<QString, int> found;
    mrvCountWords(mrvTextOfPage(html), &found);
    QStringList missing;
    for (auto it = m_words.constBegin(); it != m_words.constEnd(); ++it) {
        for (int i = found.value(it.key()); i < it.value(); ++i) {
            missing.append(it.key());
        }
    }
    missing.sort();
    return missing;
}
