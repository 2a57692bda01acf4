#include "settingsfile.h"

#include "options/mrvoptions.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QThread>

#include <utility>

namespace {

// Longer than QLockFile takes to see that a lock belongs to nobody.
constexpr int MostWaiting = 40000;
constexpr int Step = 10;

// QSettings takes any file for one of its own, and would write over it. What stands before the
// first section must be comments and keys; where "#" comments are all there is, it may be a text
// with headings.
bool beginsLikeSettings(QFile *file)
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
            return line.contains(']');
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

// All names of a file lead to one lock. Null when it stays taken.
std::unique_ptr<QLockFile> lockFor(const QFileInfo &file)
{
    const QString real = file.exists()
        ? file.canonicalFilePath()
        : QDir(QFileInfo(file.path()).canonicalFilePath()).filePath(file.fileName());
    auto lock = std::make_unique<QLockFile>(real + QLatin1String(".edit"));
    const QDeadlineTimer deadline(MostWaiting);
    // Its own waiting becomes longer and longer. A folder that takes no lock is for saving to tell.
    while (!lock->tryLock(0) && lock->error() == QLockFile::LockFailedError) {
        if (deadline.hasExpired()) {
            return nullptr;
        }
        QThread::msleep(Step);
    }
    return lock;
}

// Empty where there is none. QSettings would wait at a pipe, put a file in place of a device, and
// make folders.
QString objectionTo(const QFileInfo &info, bool isOwn, Access access)
{
    if (info.exists() && !info.isFile()) {
        return QStringLiteral("it is not a regular file");
    }
    if (isOwn) {
        return QString();
    }
    if (!info.dir().exists()) {
        return QStringLiteral("its folder does not exist");
    }
    if (!info.exists() && access == Access::Create) {
        return QString();
    }
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    return beginsLikeSettings(&file) ? QString() : QStringLiteral("this is no settings file");
}

} // namespace

OpenedOptions::OpenedOptions() = default;

OpenedOptions::OpenedOptions(OpenedOptions &&other) noexcept = default;

OpenedOptions &OpenedOptions::operator=(OpenedOptions &&other) noexcept = default;

OpenedOptions::~OpenedOptions() = default;

OpenedOptions openOptions(const QString &path, Access access, QString *error)
{
    const bool isOwn = path.isEmpty();
    const QFileInfo file(isOwn ? pathOfOwn() : path);
    OpenedOptions opened;
    QString reason = objectionTo(file, isOwn, access);
    if (reason.isEmpty() && access != Access::Read) {
        if (isOwn) {
            QDir().mkpath(file.path());
        }
        opened.lock = lockFor(file);
        if (!opened.lock) {
            reason = QStringLiteral("another command is changing it");
        }
    }
    if (reason.isEmpty()) {
        opened.options =
            isOwn ? std::make_unique<MRVOptions>() : std::make_unique<MRVOptions>(path);
        if (isOwn || opened.options->status() == QSettings::NoError) {
            return opened;
        }
        opened.options.reset();
        reason = QStringLiteral("this is no settings file");
    }
    *error = QStringLiteral("%1: %2").arg(file.filePath(), reason);
    return opened;
}

int save(MRVOptions *options)
{
    QString error;
    return options->saveNow(&error) ? Done : refuse(error);
}
