#include "state/mrvtextpresetmgr.h"

#include "options/mrvoptions.h"
#include "util/mrvfailure.h"
#include "util/mrvkeptcopy.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>

namespace {

Q_LOGGING_CATEGORY(lcSettings, "mrv.settings")

Q_GLOBAL_STATIC(MRVTextPresetMgr, theManager)

// A file that cannot be read to its end holds presets that the next save would destroy.
bool keepDamaged(const QString &path, MRVErrorSink error, bool isUnknown = false)
{
    if (MRVCoreUtil::isMissing(path)) {
        return true;
    }
    MRVError reason;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &reason);
    if (reason) {
        return MRV::fail(error, reason);
    }
    QString damage;
    MRVTextPresetScheme::fromByteArray(bytes, &damage);
    return (damage.isEmpty() && !isUnknown) || MRV::keepCopy(path + QLatin1Char('~'), bytes, error);
}

} // namespace

MRVTextPresetMgr *MRVTextPresetMgr::instance()
{
    return theManager();
}

MRVTextPresetMgr::MRVTextPresetMgr(QObject *parent)
    : QObject(parent)
    , m_scheme(load(&m_isUnknown))
{
}

MRVTextPresetMgr::~MRVTextPresetMgr() = default;

void MRVTextPresetMgr::setPresetScheme(const MRVTextPresetScheme &scheme)
{
    m_scheme = scheme;
    m_isUnknown = !save(m_scheme, m_isUnknown) && m_isUnknown;
    Q_EMIT presetsChanged();
}

void MRVTextPresetMgr::removePreset(const QString &name)
{
    if (!m_scheme.deletePreset(name)) {
        return;
    }
    m_isUnknown = !save(m_scheme, m_isUnknown) && m_isUnknown;
    Q_EMIT presetsChanged();
}

QString MRVTextPresetMgr::presetSchemeFilePath()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
                      + QLatin1String("/TextPresets"));
    if (!folder.mkpath(QStringLiteral(".")) || !QFileInfo(folder.path()).isExecutable()) {
        return QString();
    }
    return folder.filePath(QStringLiteral("TextPresets.bin"));
}

void MRVTextPresetMgr::savePresetScheme(const MRVTextPresetScheme &scheme)
{
    save(scheme, false);
}

bool MRVTextPresetMgr::save(const MRVTextPresetScheme &scheme, bool isUnknown)
{
    const QByteArray bytes = MRVTextPresetScheme::toByteArray(scheme);
    const QString path = presetSchemeFilePath();
    QString error;
    if (!path.isEmpty() && keepDamaged(path, &error, isUnknown)
        && MRVCoreUtil::WriteBinaryFile(bytes, path, &error)) {
        return true;
    }
    qCWarning(lcSettings, "The text presets go to the settings: %s", qPrintable(error));
    mrvOptions()->setValue(MRVOptions::TextPresets, bytes);
    return false;
}

MRVTextPresetScheme MRVTextPresetMgr::loadPresetScheme()
{
    bool isUnknown = false;
    return load(&isUnknown);
}

MRVTextPresetScheme MRVTextPresetMgr::load(bool *isUnknown)
{
    const QString path = presetSchemeFilePath();
    QString error;
    if (!path.isEmpty() && !MRVCoreUtil::isMissing(path)) {
        const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &error);
        if (error.isEmpty()) {
            return MRVTextPresetScheme::fromByteArray(bytes);
        }
        qCWarning(lcSettings, "%s", qPrintable(error));
        *isUnknown = true;
    }
    return MRVTextPresetScheme::fromByteArray(mrvOptions()->value(MRVOptions::TextPresets));
}

MRVTextPresetScheme MRVTextPresetMgr::readPresets(const MRVOptions *options, MRVErrorSink error)
{
    const QString path = options ? QString() : presetSchemeFilePath();
    if (!path.isEmpty() && !MRVCoreUtil::isMissing(path)) {
        return MRVTextPresetScheme::load(path, error);
    }
    if (!options) {
        return loadPresetScheme();
    }
    MRVError reason;
    const auto scheme =
        MRVTextPresetScheme::fromByteArray(options->value(MRVOptions::TextPresets), &reason);
    if (reason) {
        MRV::fail(error, options->fileName(), reason);
    }
    return scheme;
}

bool MRVTextPresetMgr::writePresets(const MRVTextPresetScheme &scheme, MRVOptions *options,
                                    MRVErrorSink error)
{
    const QString path = options ? QString() : presetSchemeFilePath();
    if (!path.isEmpty() && !MRVCoreUtil::isMissing(path)) {
        // The settings would be hidden by this file.
        return keepDamaged(path, error)
            && MRVCoreUtil::WriteBinaryFile(MRVTextPresetScheme::toByteArray(scheme), path, error);
    }
    if (!options) {
        savePresetScheme(scheme);
        options = mrvOptions();
    } else {
        options->setValue(MRVOptions::TextPresets, MRVTextPresetScheme::toByteArray(scheme));
    }
    const bool isSaved = options->saveNow(error);
    if (!isSaved) {
        options->revert();
    }
    return isSaved;
}
