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

// Empty when the file can be opened.
QString MRVOptionsFile::objectionTo(const QFileInfo &info, bool isOwn, Access access)
{
    if (info.exists() && !info.isFile()) {
        return tr("it is not a regular file");
    }
    if (isOwn) {
        return QString();
    }
    if (!info.dir().exists()) {
        return tr("its folder does not exist");
    }
    if (!info.exists() && access == Create) {
        return QString();
    }
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    return beginsLikeSettings(&file) ? QString() : tr("this is no settings file");
}

bool MRVOptionsFile::open(const QString &path, Access access, QString *error)
{
    const bool isOwn = path.isEmpty();
    const QFileInfo file(isOwn ? pathOfOwn() : path);
    QString reason = objectionTo(file, isOwn, access);
    if (reason.isEmpty() && access != Read) {
        if (isOwn) {
            QDir().mkpath(file.path());
        }
        m_lock.acquire(file.filePath(), &reason);
    }
    if (reason.isEmpty()) {
        m_options = isOwn ? std::make_unique<MRVOptions>() : std::make_unique<MRVOptions>(path);
        const QSettings::Status status = m_options->status();
        if (status == QSettings::NoError || (isOwn && status == QSettings::FormatError)) {
            return true;
        }
        const QString text = m_options->errorText();
        m_options.reset();
        if (!text.isEmpty()) {
            m_lock.release();
            return MRV::fail(error, text);
        }
        reason = tr("this is no settings file");
    }
    m_lock.release();
    return MRV::fail(error, file.filePath(), reason);
}
