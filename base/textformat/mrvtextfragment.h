#pragma once

#include "util/mrvbase_export.h"

#include <QTextFormat>

class QTextDocumentFragment;

/**
 * The leading formats of a fragment: the block format of its first paragraph and the character
 * format of its first character, or of the paragraph itself where that is empty.
 *
 * The block format is there only when the fragment was cut from the beginning of a paragraph that
 * is not empty: Qt copies none otherwise. Object indexes are left out, since they mean nothing
 * outside the document that the fragment came from. Where a table or frame comes first, the first
 * paragraph in it counts. An empty fragment has default-constructed
 * formats.
 *
 * Takes time linear in the fragment. GUI thread only.
 *
 * @param blockFormat receives the block format; null where it is not wanted.
 * @param charFormat  receives the character format; null where it is not wanted.
 * @since 1.0
 */
MRVBASE_EXPORT void mrvFragmentFormat(const QTextDocumentFragment &fragment,
                                      QTextBlockFormat *blockFormat, QTextCharFormat *charFormat);

/** The block format alone; see mrvFragmentFormat(). */
MRVBASE_EXPORT QTextBlockFormat mrvFragmentBlockFormat(const QTextDocumentFragment &fragment);

/** The character format alone; see mrvFragmentFormat(). */
MRVBASE_EXPORT QTextCharFormat mrvFragmentCharFormat(const QTextDocumentFragment &fragment);
