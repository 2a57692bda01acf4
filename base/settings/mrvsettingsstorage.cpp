#include "settings/mrvsettingsstorage_p.h"

#include "util/mrvfailure.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGlobalStatic>
#include <QHash>

namespace {

// Texts in the context of the class that shows them.
struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(MRVSettings)
};

using Storages = QHash<QString, std::weak_ptr<MRVSettingsStorage>>;
Q_GLOBAL_STATIC(Storages, theStorages)

bool isStoredIn(const MRVSettingsMap &map, MRVSettingsMap::const_iterator value)
{
    const auto at = map.constFind(value.key());
    return at != map.cend() && mrvIsStoredAlike(at.value(), value.value());
}

} // namespace

MRVSettingsMap mrvMergedSettings(const MRVSettingsMap &mine, const MRVSettingsMap &base,
                                 const MRVSettingsMap &theirs)
{
    MRVSettingsMap merged = theirs;
    for (auto it = base.cbegin(); it != base.cend(); ++it) {
        if (!mine.contains(it.key())) {
            merged.remove(it.key());
        }
    }
    for (auto it = mine.cbegin(); it != mine.cend(); ++it) {
        if (!isStoredIn(base, it)) {
            merged.insert(it.key(), it.value());
        }
    }
    return merged;
}

QString MRVSettingsStorage::realPath(const QString &path)
{
    const QFileInfo file(path);
    const QString real = file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return !real.isEmpty() ? real
        : folder.isEmpty() ? file.absoluteFilePath()
                           : QDir(folder).filePath(file.fileName());
}

std::shared_ptr<MRVSettingsStorage> MRVSettingsStorage::of(const QString &path)
{
    const QString real = path.isEmpty() ? path : realPath(path);
    std::weak_ptr<MRVSettingsStorage> &known = (*theStorages())[real];
    std::shared_ptr<MRVSettingsStorage> storage = known.lock();
    if (!storage) {
        storage = std::make_shared<MRVSettingsStorage>(real);
        known = storage;
        storage->read(nullptr);
    }
    return storage;
}

MRVSettingsStorage::MRVSettingsStorage(const QString &path)
    : m_file(path)
    , m_memory(memoryName(path), QSettings::IniFormat)
{
}

MRVSettingsStorage::~MRVSettingsStorage()
{
    // While the process ends, the table may be destroyed before the last store.
    if (theStorages.exists()) {
        theStorages->remove(m_file.path());
    }
}

QString MRVSettingsStorage::memoryName(const QString &path)
{
    return QLatin1String(":/settings") + path;
}

MRVSettingsMap MRVSettingsStorage::values() const
{
    MRVSettingsMap values;
    const QStringList keys = m_memory.allKeys();
    for (const QString &key : keys) {
        values.insert(key, m_memory.value(key));
    }
    return values;
}

QStringList MRVSettingsStorage::set(const QString &key, const QVariant &value)
{
    if (value.isValid()) {
        m_memory.setValue(key, value);
        return {key};
    }
    const QStringList removed = keysOf(key);
    m_memory.remove(key);
    return removed;
}

bool MRVSettingsStorage::isChanged() const
{
    const MRVSettingsMap mine = values();
    bool isSame = mine.size() == m_known.size();
    for (auto it = mine.cbegin(); isSame && it != mine.cend(); ++it) {
        isSame = isStoredIn(m_known, it);
    }
    return !isSame;
}

bool MRVSettingsStorage::read(MRVErrorSink error)
{
    m_error = {};
    return exchange(false, &m_error) || MRV::fail(error, m_error);
}

bool MRVSettingsStorage::save(MRVErrorSink error)
{
    m_error = {};
    return exchange(true, &m_error) || MRV::fail(error, m_error);
}

bool MRVSettingsStorage::exchange(bool mayWrite, MRVErrorSink error)
{
    if (m_file.path().isEmpty()) {
        return MRV::fail(error, Messages::tr("The settings have no file"));
    }
    std::unique_ptr<MRVSettingsLock> lock;
    const bool hasVanished = !m_known.isEmpty() && !QFileInfo::exists(m_file.path());
    if (mayWrite && (hasVanished || isChanged())) {
        QDir().mkpath(QFileInfo(m_file.path()).path());
        lock = std::make_unique<MRVSettingsLock>(m_file.path());
        if (!lock->isHeld(error)) {
            return false;
        }
    }
    if (!m_file.read(error)) {
        return false;
    }
    // A file that has vanished has not been emptied by anybody.
    const MRVSettingsMap mine = values();
    const MRVSettingsMap merged =
        m_file.exists() ? mrvMergedSettings(mine, m_known, m_file.text().values) : mine;
    if (lock && !m_file.replace(merged, error)) {
        return false;
    }
    if (m_file.exists()) {
        m_known = m_file.text().values;
    }
    take(merged);
    return true;
}

// Removing a key takes those below it away too, so that is done first.
void MRVSettingsStorage::take(const MRVSettingsMap &wanted)
{
    const MRVSettingsMap before = values();
    QStringList changed;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (!wanted.contains(it.key())) {
            m_memory.remove(it.key());
            changed.append(it.key());
        }
    }
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        const bool isSame = isStoredIn(before, it);
        if (!isSame || !m_memory.contains(it.key())) {
            m_memory.setValue(it.key(), it.value());
        }
        if (!isSame) {
            changed.append(it.key());
        }
    }
    announce(changed, nullptr);
}

QSettings::Status MRVSettingsStorage::status() const
{
    if (m_error) {
        return QSettings::AccessError;
    }
    const MRVSettingsText &text = m_file.text();
    return text.hasOtherLines && !text.beginsWithSection ? QSettings::FormatError
                                                         : QSettings::NoError;
}

void MRVSettingsStorage::announce(const QStringList &keys, const void *by) const
{
    for (auto it = m_stores.cbegin(); it != m_stores.cend(); ++it) {
        if (it.key() != by) {
            it.value()(keys);
        }
    }
}

QStringList MRVSettingsStorage::keysOf(const QString &key) const
{
    const QStringList keys = m_memory.allKeys();
    QStringList removed;
    for (const QString &one : keys) {
        if (key.isEmpty() || one == key || one.startsWith(key + u'/')) {
            removed.append(one);
        }
    }
    return removed;
}
