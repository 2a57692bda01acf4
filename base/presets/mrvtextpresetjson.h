#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

class MRVTextPreset;
class QTextFormat;

/**
 * Text presets as JSON for readers and scripts, and their properties by the names used there.
 * Presets are stored by MRVTextPresetScheme.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextPresetJson
{
    Q_DECLARE_TR_FUNCTIONS(MRVTextPresetJson)

public:
    MRVTextPresetJson() = delete;

    /**
     * The properties that a format sets, by names such as "family"; others are called by their
     * numbers, such as "0x100101". Lengths are in points and colours "#rrggbb"; of a value that
     * JSON cannot hold, it is the name of the type.
     */
    static QJsonObject toJson(const QTextFormat &format);
    /**
     * The preset called @p name: "name"; "applies", a list of "characters" and "paragraphs"; and
     * under these two names the formats.
     */
    static QJsonObject toJson(const QString &name, const MRVTextPreset &preset);

    /**
     * Sets a property of a preset, and applies the part of the preset that it belongs to.
     *
     * @param property a name that toJson() uses, or "applies".
     * @param text     as toJson() gives it: a number, with a decimal point and lengths in points;
     *                 "true" or "false", also "yes" or "no"; a colour such as "#1f1f1f"; a word; of
     *                 "applies", "characters" and "paragraphs" with a comma between. Empty: the
     *                 property is not set, nothing is applied.
     * @param error    if given, receives one translated line on failure; untouched on success.
     * @return false, with @p preset as it was, for an unknown property or a text that is no value
     * of it.
     */
    static bool setFromText(MRVTextPreset *preset, const QString &property, const QString &text,
                            MRVErrorSink error = nullptr);
};
