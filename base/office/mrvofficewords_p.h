#pragma once

#include "office/mrvofficeloss.h"

#include <QString>
#include <QVector>

/**
 * The words of a text that a page lacks, by how often each occurs, in the order of the text.
 *
 * Case, soft hyphens and what is neither letter nor digit do not count. Letters and digits are
 * words of their own, so that the number of a note after a word does not matter.
 *
 * @param text     what the page should have.
 * @param unplaced more of that, whose place is not known.
 * @param page     the text of the page.
 */
QVector<MRVOfficeLoss> mrvMissingWords(const QString &text, const QString &unplaced,
                                       const QString &page);
