#include "options/mrvoptionsfile.h"

#include "options/mrvoptions.h"
#include "util/mrvfailure.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <utility>

namespace {

// QSettings takes any file for one of its own, and would write over it. What stands before the
// first section must be comments and keys; where "#" comments are all there is, it may be a text
// with headings.
bool beginsLikeSettings(QIODevice *file)
{
    static const QRegularExpression key(QStringLiteral("^[\\w%\\\\./-]+\\s*="));
    constexpr int MostLine = 10000;
    bool isSettings = true;
    bool isInLine = false;
    const QByteArray mark("\xef\xbb\xbf"); // of UTF-8, which some editors write
    if (file->peek(mark.size()) == mark) {
        file->skip(mark.size());
    }
    while (!file->atEnd()) {
        const QByteArray part = file->readLine(MostLine);
        if (std::exchange(isInLine, !part.endsWith('\n'))) {
            continue;
        }
        const QByteArray line = part.trimmed();
        if (line.startsWith('[')) {
            return line.endsWith(']');
        }
        if (line.isEmpty() || line.startsWith(';')) {
            continue;
        }
        isSettings = key.match(QString::fromLatin1(line)).hasMatch();
        if (!isSettings && (!line.startsWith('#') || line.startsWith("#!"))) {
            return false;
        }
    }
    return isSettings;
}

// Not from QSettings, which would read the file before it is locked.
QString pathOfOwn()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
        .filePath(MRVOptions::companyName() + u'/' + MRVOptions::applicationName()
                  + QLatin1String(".conf"));
}

} // namespace

MRVOptionsFile::MRVOptionsFile() = default;

MRVOptionsFile::~MRVOptionsFile() = default;

bool MRVOptionsFile::isSettings(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return beginsLikeSettings(&buffer);
}

MRVError MRVOptionsFile::noSettings()
{
    return {MRVErrorKind::Damaged, tr("this is no settings file")};
}

// No error when the file can be opened.
MRVError MRVOptionsFile::objectionTo(const QFileInfo &info, bool isOwn, Access access)
{
    if (info.exists() && !info.isFile()) {
        return {MRVErrorKind::Other, tr("it is not a regular file")};
    }
    if (isOwn) {
        return {};
    }
    if (!info.dir().exists()) {
        return {MRVErrorKind::NotFound, tr("its folder does not exist")};
    }
    if (!info.exists() && access == Create) {
        return {};
    }
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) {
        return MRVError::ofDevice(file);
    }
    return beginsLikeSettings(&file) ? MRVError() : noSettings();
}

bool MRVOptionsFile::open(const QString &path, Access access, MRVErrorSink error)
{
    const bool isOwn = path.isEmpty();
    const QFileInfo file(isOwn ? pathOfOwn() : path);
    MRVError reason = objectionTo(file, isOwn, access);
    if (!reason && access != Read) {
        if (isOwn) {
            QDir().mkpath(file.path());
        }
        m_lock.acquire(file.filePath(), &reason);
    }
    if (!reason) {
        m_options = isOwn ? std::make_unique<MRVOptions>() : std::make_unique<MRVOptions>(path);
        const QSettings::Status status = m_options->status();
        if (status == QSettings::NoError || (isOwn && status == QSettings::FormatError)) {
            return true;
        }
        const MRVError failure = m_options->lastError();
        m_options.reset();
        if (failure) {
            m_lock.release();
            return MRV::fail(error, failure);
        }
        reason = noSettings();
    }
    m_lock.release();
    return MRV::fail(error, file.filePath(), reason);
}
