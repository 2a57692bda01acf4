#pragma once

#include <QString>

/**
 * Words beside each other that are in a document of a word processor and not in the page that was
 * made of it.
 *
 * @since 1.0
 */
struct MRVOfficeLoss
{
    QString words; ///< in lower case
    QString after; ///< the words before them; empty where they begin the text, or no place is known
};
