#pragma once

#include "util/mrvbase_export.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

class MRVScriptElement;
class MRVScriptMode;

/**
 * Says what a script element looks like and does: in words, for those who choose or write a mode,
 * and as JSON, for their scripts.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptElementText
{
public:
    MRVScriptElementText() = delete;

    /**
     * An element in translated lines: its font, its layout, how it behaves, what Return and Tab
     * lead to, what it offers. Lines without anything to say are left out. Title and shortcut are
     * not in it.
     *
     * @param element is described.
     * @param mode    lengths are in its units.
     */
    static QStringList description(const MRVScriptElement &element, const MRVScriptMode &mode);

    /**
     * All of an element, under keys such as "tabOnEmpty". Lengths are in points, colours "#rrggbb";
     * "lineHeight" is negative for an exact one, positive for the least, 0 where "lineSpacing"
     * counts.
     */
    static QJsonObject toJson(const MRVScriptElement &element);
};
