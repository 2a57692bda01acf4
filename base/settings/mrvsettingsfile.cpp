#include "settings/mrvsettingsfile_p.h"

#include "core/mcoretype.h"
#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "settings/mrvsettingsguard_p.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <cerrno>
#include <csignal>

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Texts in the context of the class that shows them.
struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(MRVSettings)
};

QByteArray serialised(const QVariant &value)
{
    return MCoreType::toByteArray(value);
}

bool isText(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Bool:
    case QMetaType::Double:
    case QMetaType::QKeySequence:
        return true;
    default:
        return false;
    }
}

// A list of one item is stored as that item, and an empty list as an invalid value.
QVariantList asList(const QVariant &value)
{
    if (!value.isValid()) {
        return {};
    }
    const bool isList =
        value.userType() == QMetaType::QStringList || value.userType() == QMetaType::QVariantList;
    return isList ? value.toList() : QVariantList{value};
}

// Files left by processes that were killed while they saved.
void removeThoseOfTheDead(const QString &path)
{
    const QFileInfo file(path);
    QDir folder = file.dir();
    const QString prefix = file.fileName() + QLatin1Char('.');
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (!name.startsWith(prefix) || !name.endsWith(QLatin1String(".old"))) {
            continue;
        }
        bool isNumber = false;
        const int process = name.mid(prefix.size()).chopped(4).toInt(&isNumber);
        if (isNumber && process > 0 && ::kill(process, 0) != 0 && errno == ESRCH) {
            folder.remove(name);
        }
    }
}

// A file in memory, which has a path while it is open.
class MemoryFile
{
public:
    explicit MemoryFile(const QByteArray &bytes)
        : m_handle(::memfd_create("settings", MFD_CLOEXEC))
    {
        QFile file;
        m_isWhole = m_handle >= 0
            && file.open(m_handle, QIODevice::WriteOnly | QIODevice::Unbuffered)
            && file.write(bytes) == bytes.size() && setUniqueTime();
    }
    ~MemoryFile()
    {
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    bool isWhole() const { return m_isWhole; }
    QString path() const { return QLatin1String("/proc/self/fd/") + QString::number(m_handle); }

private:
    bool setUniqueTime() const
    {
        static time_t seconds = 0;
        ++seconds;
        const timespec times[2] = {{seconds, 0}, {seconds, 0}};
        return ::futimens(m_handle, times) == 0;
    }

    int m_handle;
    bool m_isWhole = false;
};

} // namespace

MRVSettingsMap mrvValuesOf(const QSettings &settings)
{
    MRVSettingsMap values;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        values.insert(key, settings.value(key));
    }
    return values;
}

bool mrvReadSettings(const QByteArray &bytes, QSettings::Format format, MRVSettingsMap *values)
{
    const MemoryFile file(bytes);
    if (!file.isWhole()) {
        return false;
    }
    *values = mrvValuesOf(QSettings(file.path(), format));
    return true;
}

bool mrvIsSettings(const QByteArray &bytes)
{
    const QList<QByteArray> lines =
        bytes.mid(mrvHasUtf8Mark(bytes) ? mrvUtf8MarkSize : 0).split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray text = line.trimmed();
        if (text.isEmpty() || text.startsWith(';')) {
            continue;
        }
        const MemoryFile file(mrvSafeSettings(bytes));
        const QSettings settings(file.path(), QSettings::IniFormat);
        settings.allKeys(); // reads the sections
        return text.startsWith('[') && file.isWhole() && settings.status() == QSettings::NoError;
    }
    return true;
}

QString mrvNoRoomText()
{
    return Messages::tr("No space is left for temporary files");
}

bool mrvIsStoredAs(const QVariant &wanted, const QVariant &found)
{
    const int type = wanted.userType();
    if (isText(wanted)) {
        return found.isValid() && wanted.toString() == found.toString();
    }
    if (type == QMetaType::QStringList || type == QMetaType::QVariantList) {
        const QVariantList a = asList(wanted);
        const QVariantList b = asList(found);
        return a.size() == b.size() && std::equal(a.cbegin(), a.cend(), b.cbegin(), &mrvIsStoredAs);
    }
    return wanted == found || serialised(wanted) == serialised(found);
}

bool mrvHolds(const MRVSettingsMap &found, const MRVSettingsMap &wanted)
{
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        const auto at = found.constFind(it.key());
        if (at == found.cend() || !mrvIsStoredAs(it.value(), at.value())) {
            return false;
        }
    }
    return true;
}

QByteArray mrvEditedSettings(const QByteArray &before, const std::function<void(QSettings *)> &edit,
                             QString *error)
{
    const QByteArray safe = mrvWithoutUtf8Mark(mrvSafeSettings(before), error);
    if (!error->isEmpty()) {
        return QByteArray();
    }
    const QTemporaryDir folder; // a name that QSettings has not seen yet
    const QString path = folder.filePath(QStringLiteral("settings"));
    if (!folder.isValid()) {
        *error = folder.errorString();
        return QByteArray();
    }
    if (!safe.isEmpty() && !MRVFileWriter::write(path, safe, error)) {
        return QByteArray();
    }
    QSettings settings(path, QSettings::IniFormat);
    edit(&settings);
    settings.sync();
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, error);
    MRVSettingsMap found;
    if (!error->isEmpty()) {
        return QByteArray();
    }
    if (!mrvReadSettings(bytes, QSettings::IniFormat, &found)
        || !mrvHolds(found, mrvValuesOf(settings))) {
        *error = mrvNoRoomText();
        return QByteArray();
    }
    return bytes;
}

QByteArray mrvWithoutUtf8Mark(const QByteArray &bytes, QString *error)
{
    if (!mrvHasUtf8Mark(bytes)) {
        return bytes;
    }
    MRVSettingsMap values;
    if (!mrvReadSettings(bytes, QSettings::IniFormat, &values)) {
        *error = mrvNoRoomText();
        return QByteArray();
    }
    return mrvEditedSettings(
        QByteArray(),
        [&values](QSettings *file) {
            for (auto it = values.cbegin(); it != values.cend(); ++it) {
                file->setValue(it.key(), it.value());
            }
        },
        error);
}

MRVSettingsLock::MRVSettingsLock(const QString &path)
    : m_lock(path + QLatin1String(".lock"))
{
    // The time that another process may reasonably need to write.
    constexpr int Milliseconds = 10000;
    removeDead(path);
    m_isHeldByOther = !m_lock.tryLock(Milliseconds) && m_lock.error() == QLockFile::LockFailedError;
}

void MRVSettingsLock::removeDead(const QString &path)
{
    constexpr int Alive = 1000;
    constexpr int Step = 50;
    QFileInfo lock(path + QLatin1String(".lock"));
    while (lock.exists() && lock.size() == 0) {
        if (lock.lastModified().msecsTo(QDateTime::currentDateTime()) > Alive) {
            QFile::remove(lock.filePath());
            return;
        }
        QThread::msleep(Step);
        lock.refresh();
    }
}

QString mrvLockedText(const QString &path)
{
    return Messages::tr("Cannot write the file \"%1\": it is locked").arg(path);
}

QString mrvDamagedText(const QString &path)
{
    return Messages::tr("Cannot write the file \"%1\": it is damaged").arg(path);
}

// A second name for the file costs no space. It holds the number of the process, so that a killed
// process leaves at most one.
MRVOldSettingsFile::MRVOldSettingsFile(const QString &path, const QByteArray &bytes)
    : m_bytes(bytes)
    , m_path(QFileInfo(path).canonicalFilePath())
{
    if (m_path.isEmpty()) {
        return;
    }
    removeThoseOfTheDead(m_path);
    m_kept = QStringLiteral("%1.%2.old").arg(m_path).arg(::getpid());
    const QByteArray kept = QFile::encodeName(m_kept);
    ::unlink(kept.constData());
    if (::link(QFile::encodeName(m_path).constData(), kept.constData()) != 0) {
        m_kept.clear();
    }
}

MRVOldSettingsFile::~MRVOldSettingsFile()
{
    if (!m_kept.isEmpty()) {
        ::unlink(QFile::encodeName(m_kept).constData());
    }
}

bool MRVOldSettingsFile::putBack() const
{
    if (m_path.isEmpty() || m_bytes.isEmpty()) {
        return false;
    }
    return (!m_kept.isEmpty()
            && ::rename(QFile::encodeName(m_kept).constData(),
                        QFile::encodeName(m_path).constData())
                == 0)
        || MRVFileWriter::write(m_path, m_bytes);
}
