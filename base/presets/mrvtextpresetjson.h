#pragma once

#include "util/mrvbase_export.h"

#include <QJsonObject>
#include <QString>

class MRVTextPreset;
class QTextFormat;

/**
 * Text presets as JSON for readers and scripts. Nothing reads it back: presets are stored by
 * MRVTextPresetScheme.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextPresetJson
{
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
};
