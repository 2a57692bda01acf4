#pragma once

#include <QString>

/**
 * One property and its value, as a rule of a style sheet or a style attribute sets it.
 *
 * @since 1.0
 */
struct MRVCssDeclaration
{
    QString property; ///< in lower case
    QString value; ///< trimmed, without comments; quotes, escapes and url() as they stand
    bool important = false;
};
