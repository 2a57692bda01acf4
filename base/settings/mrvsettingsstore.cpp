#include "settings/mrvsettings.h"

#include "settings/mrvsettingslocations_p.h"
#include "settings/mrvsettingsstorage_p.h"
#include "settings/mrvsettingswatcher_p.h"
#include "util/mrvfailure.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>

namespace {

// A group itself, with a slash after it, so that it begins its keys.
QString prefixOf(const QString &group)
{
    return group.isEmpty() ? QString() : group + u'/';
}

// The values that lie below a prefix, by keys relative to it.
MRVSettingsMap valuesBelow(const MRVSettingsMap &values, const QString &prefix)
{
    MRVSettingsMap below;
    for (auto it = values.lowerBound(prefix); it != values.cend() && it.key().startsWith(prefix);
         ++it) {
        below.insert(it.key().mid(prefix.size()), it.value());
    }
    return below;
}

QString absolute(const QString &path)
{
    return path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

} // namespace

MRVSettings::MRVSettings(const QString &fileName,
                         const std::shared_ptr<MRVSettingsStorage> &storage, Format format,
                         QObject *parent)
    : QSettings(storage->memoryName(), format, parent)
    , m_fileName(fileName)
    , m_storage(storage)
{
    m_storage->addStore(this, [this](const QStringList &keys) { recordForeignChanges(keys); });
}

MRVSettings::MRVSettings(const QString &fileName, Format format, QObject *parent)
    : MRVSettings(absolute(fileName), MRVSettingsStorage::of(absolute(fileName)), format, parent)
{
}

MRVSettings::MRVSettings(Format format, Scope scope, const QString &organization,
                         const QString &application, QObject *parent)
    : MRVSettings(mrvSettingsPaths(format, scope, organization, application).value(0), format,
                  parent)
{
    m_organization = organization;
    m_application = application;
    m_scope = scope;
    const QStringList paths = mrvSettingsPaths(format, scope, organization, application);
    for (const QString &path : paths.mid(1)) {
        MRVSettingsFile file(path);
        if (file.read(nullptr) && !file.text().values.isEmpty()) {
            m_fallbacks.append({path, file.text().values});
        }
    }
}

MRVSettings::~MRVSettings()
{
    m_storage->removeStore(this);
    if ((m_isDirty || !m_storage->hasStores()) && m_storage->isChanged()) {
        m_storage->save(nullptr);
    }
}

bool MRVSettings::isWritable() const
{
    QFileInfo folder(QFileInfo(m_fileName).path());
    while (!folder.exists() && !folder.isRoot()) {
        folder.setFile(folder.path());
    }
    const QFileInfo file(m_fileName);
    return !m_fileName.isEmpty() && folder.isDir() && folder.isWritable()
        && (!file.exists() || (file.isFile() && file.isWritable()));
}

MRVSettings::Status MRVSettings::status() const
{
    return m_storage->status();
}

MRVError MRVSettings::lastError() const
{
    return m_storage->error();
}

QString MRVSettings::errorText() const
{
    return lastError().text;
}

QString MRVSettings::inFile(const QString &key) const
{
    return prefixOf(group()) + key;
}

const MRVSettings::Fallback *MRVSettings::fallbackOf(const QString &key) const
{
    if (m_fallbacks.isEmpty() || !fallbacksEnabled()) {
        return nullptr;
    }
    const QString whole = inFile(key);
    for (const Fallback &fallback : m_fallbacks) {
        if (fallback.values.contains(whole)) {
            return &fallback;
        }
    }
    return nullptr;
}

QVariant MRVSettings::value(const QString &key, const QVariant &defaultValue) const
{
    if (m_fallbacks.isEmpty() || QSettings::contains(key)) {
        return QSettings::value(key, defaultValue);
    }
    const Fallback *fallback = fallbackOf(key);
    return fallback ? fallback->values.value(inFile(key)) : defaultValue;
}

bool MRVSettings::contains(const QString &key) const
{
    return QSettings::contains(key) || fallbackOf(key);
}

QString MRVSettings::originOf(const QString &key) const
{
    if (QSettings::contains(key)) {
        return m_fileName;
    }
    const Fallback *fallback = fallbackOf(key);
    return fallback ? fallback->path : QString();
}

// The keys with those of the fallbacks, of which @p part gives what is wanted, or an empty text.
QStringList MRVSettings::withFallbacks(QStringList keys,
                                       const std::function<QString(QString)> &part) const
{
    if (!fallbacksEnabled() || m_fallbacks.isEmpty()) {
        return keys;
    }
    for (const Fallback &fallback : m_fallbacks) {
        const QStringList below = valuesBelow(fallback.values, prefixOf(group())).keys();
        for (const QString &key : below) {
            keys.append(part(key));
        }
    }
    keys.removeAll(QString());
    keys.removeDuplicates();
    keys.sort();
    return keys;
}

QStringList MRVSettings::allKeys() const
{
    return withFallbacks(QSettings::allKeys(), [](const QString &key) { return key; });
}

QStringList MRVSettings::childKeys() const
{
    return withFallbacks(QSettings::childKeys(),
                         [](const QString &key) { return key.contains(u'/') ? QString() : key; });
}

QStringList MRVSettings::childGroups() const
{
    return withFallbacks(QSettings::childGroups(),
                         [](const QString &key) { return key.left(qMax(key.indexOf(u'/'), 0)); });
}

QMap<QString, QString> MRVSettings::unreadableValues() const
{
    const QString prefix = prefixOf(group());
    const QMap<QString, QString> &all = m_storage->unreadable();
    QMap<QString, QString> below;
    for (auto it = all.lowerBound(prefix); it != all.end() && it.key().startsWith(prefix); ++it) {
        below.insert(it.key().mid(prefix.size()), it.value());
    }
    return below;
}

bool MRVSettings::saveNow(MRVErrorSink error)
{
    if (!m_storage->save(error)) {
        return false;
    }
    m_isDirty = false;
    QCoreApplication::removePostedEvents(this, QEvent::UpdateRequest);
    QSettings::sync();
    return true;
}

void MRVSettings::sync()
{
    QString error;
    if (!saveNow(&error)) {
        Q_EMIT saveFailed(error);
    }
}

void MRVSettings::revert()
{
    m_storage->revert();
}

void MRVSettings::setInFile(const QString &key, const QVariant &value)
{
    m_isDirty = true;
    m_storage->announce(m_storage->set(key, value), nullptr);
    QCoreApplication::postEvent(this, new QEvent(QEvent::UpdateRequest));
}

// The base class asks for its turn once until it gets one; it has no file to write.
bool MRVSettings::event(QEvent *event)
{
    const bool isHandled = QSettings::event(event);
    if (event->type() == QEvent::UpdateRequest) {
        sync();
    }
    return isHandled;
}

void MRVSettings::setWatched(bool isWatched)
{
    m_watcher.reset();
    if (isWatched) {
        m_watcher =
            std::make_unique<MRVSettingsWatcher>(m_fileName, [this] { m_storage->read(nullptr); });
    }
}

bool MRVSettings::saveToFile(const QString &fileName, MRVErrorSink error)
{
    const QString path = MRVSettingsStorage::realPath(fileName);
    if (path == m_storage->path()) {
        return saveNow(error);
    }
    const MRVSettingsLock lock(path);
    MRVSettingsFile file(path);
    if (!lock.isHeld(error) || !file.read(error)) {
        return false;
    }
    if (file.text().hasOtherLines || !file.text().beginsWithSection) {
        return MRV::fail(error, MRVErrorKind::Damaged,
                         tr("The file \"%1\" does not hold settings").arg(path));
    }
    const QString prefix = prefixOf(group());
    MRVSettingsMap values = file.text().values;
    const QStringList old = valuesBelow(values, prefix).keys();
    for (const QString &key : old) {
        values.remove(prefix + key);
    }
    const QStringList keys = allKeys();
    for (const QString &key : keys) {
        values.insert(prefix + key, value(key));
    }
    return file.replace(values, error);
}

void MRVSettings::loadFromFile(const QString &fileName)
{
    // The file may be this store's own, or one that is open and has been read before.
    const auto storage = MRVSettingsStorage::of(QFileInfo(fileName).absoluteFilePath());
    storage == m_storage ? saveNow() : storage->read(nullptr);
    const MRVSettingsMap values = valuesBelow(storage->values(), prefixOf(group()));
    remove(QString());
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        setValue(it.key(), it.value());
    }
    Q_EMIT settingsReset();
}
