#pragma once

#include <QStringList>

/**
 * The candidate that @p word was probably meant to be: the one with the fewest edits (a character
 * inserted, left out or replaced, two neighbours swapped), case set aside, the first of several.
 * Null where none is near: an edit for every third character is allowed, and one for a shorter
 * word.
 */
QString nearest(const QString &word, const QStringList &candidates);

/** "; did you mean 'x'?", or nothing where no candidate is near. */
QString didYouMean(const QString &word, const QStringList &candidates);
