#pragma once

#include <QString>
#include <QStringList>

/** What YAML says of a key, as far as metadata need it. */
struct MRVYamlValue
{
    /**
     * A text, or those of a list, in which ends of lines are where YAML keeps them. Of a map, here
     * or in a list, it is what its "name" is. An alias stands as it is: "*name". Without those that
     * are null or empty.
     */
    QStringList texts;
    /** The other keys of such maps, each once, in order. */
    QStringList otherKeys;
    bool isNull = false; ///< nothing is said of the key, or an empty list
};

/** Whether YAML takes a character in quotes only, as an escape such as "\\x07". */
bool mrvIsYamlControl(QChar character);

/**
 * Reads the value of a key.
 *
 * @param text  what stands after the colon, and the lines below with their indents.
 * @param pairs whether an item with one key and a text, which is a map for YAML, is a text:
 *              "editor: Name".
 * @return false, with @p value untouched, for what is no YAML, or nested too deeply.
 */
bool mrvReadYamlValue(const QString &text, bool pairs, MRVYamlValue *value);
