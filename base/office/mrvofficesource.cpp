#include "office/mrvofficesource_p.h"

#include "office/mrvofficeboxes_p.h"
#include "office/mrvofficertf_p.h"
#include "office/mrvofficetext_p.h"
#include "office/mrvofficewords_p.h"

#include <memory>
#include <vector>

#include <zip.h>

namespace {

using Source = std::unique_ptr<zip_source_t, decltype(&zip_source_free)>;
using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;

// Takes over the source, of which null is none.
zip_t *openArchive(zip_source_t *source, int flags)
{
    zip_t *archive = source ? zip_open_from_source(source, flags, nullptr) : nullptr;
    if (!archive) {
        zip_source_free(source);
    }
    return archive;
}

bool readFile(zip_t *archive, zip_uint64_t index, QByteArray *bytes)
{
    const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file(
        zip_fopen_index(archive, index, 0), zip_fclose);
    char buffer[65536];
    zip_int64_t size = -1;
    while (file && (size = zip_fread(file.get(), buffer, sizeof buffer)) > 0
           && bytes->size() <= MRVOfficeSource::MostUnpacked) {
        bytes->append(buffer, int(size));
    }
    return size == 0;
}

// Owns no bytes: these must last until the archive is closed.
bool addFile(zip_t *archive, const char *name, zip_source_t *source, zip_int32_t method)
{
    const zip_int64_t index = source ? zip_file_add(archive, name, source, 0) : -1;
    if (index < 0) {
        zip_source_free(source);
        return false;
    }
    return zip_set_file_compression(archive, zip_uint64_t(index), method, 0) == 0;
}

// As it is, compressed or not. Folders are left out: nothing reads them.
bool copyFile(zip_t *from, zip_uint64_t index, zip_t *to)
{
    zip_stat_t stat;
    if (zip_stat_index(from, index, 0, &stat) != 0 || (stat.valid & ZIP_STAT_NAME) == 0) {
        return false;
    }
    return QByteArray(stat.name).endsWith('/')
        || addFile(to, stat.name, zip_source_zip(to, from, index, ZIP_FL_COMPRESSED, 0, -1),
                   stat.comp_method);
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
        m_prepared = mrvPreparedRtf(bytes, &m_comments);
        m_text = mrvRtfText(bytes);
    } else {
        readArchive(bytes, format);
    }
}

// A new archive: libzip frees bytes that are not its own when it changes one in memory.
void MRVOfficeSource::readArchive(const QByteArray &bytes, MRVFormat::Format format)
{
    const Archive archive(
        openArchive(
            zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, nullptr),
            ZIP_RDONLY),
        zip_discard);
    const Source target(zip_source_buffer_create(nullptr, 0, 0, nullptr), zip_source_free);
    zip_source_keep(target.get()); // the archive frees it once
    Archive written(openArchive(target.get(), ZIP_CREATE | ZIP_TRUNCATE), zip_discard);
    if (!archive || !written) {
        return;
    }
    std::vector<QByteArray> texts; // until the archive is closed
    bool ok = true;
    for (zip_uint64_t i = 0; i < zip_uint64_t(zip_get_num_entries(archive.get(), 0)) && ok; ++i) {
        const char *name = zip_get_name(archive.get(), i, 0);
        if (!hasText(format, QString::fromUtf8(name))) {
            readFormula(archive.get(), i, name);
            readProperties(archive.get(), i, name);
            readComments(archive.get(), i, name);
            ok = copyFile(archive.get(), i, written.get());
            continue;
        }
        QByteArray text;
        ok = readFile(archive.get(), i, &text);
        if (text.size() > MRVOfficeSource::MostUnpacked) {
            m_isTooLarge = true;
        } else if (ok) {
            m_text += mrvOfficeXmlText(mrvWithPlainRuby(text)) + u' ';
            texts.push_back(preparedText(text, format));
            zip_source_t *prepared = zip_source_buffer(written.get(), texts.back().constData(),
                                                       zip_uint64_t(texts.back().size()), 0);
            ok = addFile(written.get(), name, prepared, ZIP_CM_STORE); // it is read at once
        }
    }
    if (ok && zip_close(written.get()) == 0) {
        static_cast<void>(written.release());
        const QByteArray prepared = bytesOf(target.get());
        m_prepared = prepared.isEmpty() ? bytes : prepared;
    }
}

QByteArray MRVOfficeSource::preparedText(const QByteArray &text, MRVFormat::Format format)
{
    return format == MRVFormat::ODT ? mrvPreparedOdt(mrvWithMarksOfOdtComments(text, &m_comments))
                                    : mrvPreparedDocx(mrvWithMarksOfDocxComments(text));
}

// In a DOCX, they are in a file of their own.
void MRVOfficeSource::readComments(zip_t *archive, quint64 index, const QByteArray &name)
{
    QByteArray comments;
    if (name == "word/comments.xml") {
        readFile(archive, index, &comments);
        m_isTooLarge = m_isTooLarge || comments.size() > MRVOfficeSource::MostUnpacked;
        m_comments = mrvCommentsOfDocx(comments);
    }
}

void MRVOfficeSource::readProperties(zip_t *archive, quint64 index, const QByteArray &name)
{
    QByteArray properties;
    if ((name == "docProps/core.xml" || name == "meta.xml")
        && readFile(archive, index, &properties)) {
        m_properties = mrvOfficeProperties(properties);
    }
}

// In an ODT, each is a document in a folder of its own.
void MRVOfficeSource::readFormula(zip_t *archive, quint64 index, const QByteArray &name)
{
    QByteArray content;
    if (name.endsWith("/content.xml") && readFile(archive, index, &content)) {
        const QString formula = mrvOfficeXmlText(content);
        if (!formula.isEmpty()) {
            m_formulas.append(formula);
        }
    }
}

QString MRVOfficeSource::withMarks(const QString &html)
{
    return mrvWithCharacters(mrvWithAnchors(mrvWithComments(html, &m_comments)));
}

QStringList MRVOfficeSource::missingComments() const
{
    QStringList missing;
    for (const MRVOfficeComment &comment : m_comments) {
        missing.append(comment.text.simplified());
    }
    return missing;
}

QVector<MRVOfficeLoss> MRVOfficeSource::missingFrom(const QString &html) const
{
    // Their words cannot be compared, as they may be written as TeX.
    const bool hasFormulas = html.count(QLatin1String("<span class=\"math ")) >= m_formulas.size();
    return mrvMissingWords(m_text, hasFormulas ? QString() : m_formulas.join(u' '),
                           mrvTextOfPage(html));
}
