#pragma once

#include "core/mrverror.h"
#include "presets/mrvtextpresetscheme.h"
#include "util/mrvbase_export.h"

#include <QObject>
#include <QString>

class MRVOptions;

/**
 * The user's text presets: loaded when first asked for, saved at every change.
 *
 * They are kept in a file of their own; where that cannot be written, in the settings. When both
 * are there, the file counts, even if it is the older.
 *
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextPresetMgr : public QObject
{
    Q_OBJECT

public:
    /** The one of the process; made at the first call, gone at its end. */
    static MRVTextPresetMgr *instance();

    /**
     * With the presets that loadPresetScheme() finds. Of managers beside instance(), none hears of
     * the others.
     */
    explicit MRVTextPresetMgr(QObject *parent = nullptr);
    ~MRVTextPresetMgr() override;

    /** A copy of the presets as they are now. */
    MRVTextPresetScheme presetScheme() const { return m_scheme; }
    /**
     * Takes a scheme, saves it and emits presetsChanged(), even if it is the one that was there.
     */
    void setPresetScheme(const MRVTextPresetScheme &scheme);
    /** The same without one of the presets. Does nothing where there is none of that name. */
    void removePreset(const QString &name);

    /**
     * The file "TextPresets/TextPresets.bin" in the application's local data folder
     * (QStandardPaths::AppLocalDataLocation). Makes the folder.
     *
     * @return an empty path where the folder cannot be made or entered.
     */
    static QString presetSchemeFilePath();
    /**
     * Saves a scheme to the file or, where that fails, to the setting MRVOptions::TextPresets. A
     * file that is damaged or of a newer version is first copied to "TextPresets.bin~". A manager
     * does so, too, with a file that it could not read when it was made.
     */
    static void savePresetScheme(const MRVTextPresetScheme &scheme);
    /**
     * The presets in the file; where there is no file or it cannot be opened, those in the
     * settings; where there are none, the defaults. Of damaged ones, the presets before the damage.
     */
    static MRVTextPresetScheme loadPresetScheme();

    /**
     * @name Checked
     *
     * For who must not lose a preset: what is damaged or cannot be written is told.
     */
    //@{
    /**
     * The presets of @p options, or for null those that loadPresetScheme() finds.
     *
     * @param error receives one line that names the file when that holds something else, or is
     *              damaged; untouched on success.
     * @return what could be read.
     */
    static MRVTextPresetScheme readPresets(const MRVOptions *options, MRVErrorSink error);
    /**
     * Saves a scheme to @p options at once, or for null as savePresetScheme() does.
     *
     * @param error receives one line that names the file on failure; untouched on success.
     * @return false when @p scheme is not what will be read the next time.
     */
    static bool writePresets(const MRVTextPresetScheme &scheme, MRVOptions *options,
                             MRVErrorSink error);
    //@}

Q_SIGNALS:
    /** The presets were replaced or changed, and are saved. */
    void presetsChanged();

private:
    /** @return whether the presets went to the file. */
    static bool save(const MRVTextPresetScheme &scheme, bool isUnknown);
    static MRVTextPresetScheme load(bool *isUnknown);

    bool m_isUnknown = false; ///< the file could not be read: a save keeps a copy of it
    MRVTextPresetScheme m_scheme;
};
