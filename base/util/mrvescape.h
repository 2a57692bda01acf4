#pragma once

#include "util/mrvbase_export.h"

#include <QString>

/**
 * Free functions, constants and enumerations that every module of the library uses.
 *
 * @since 1.0
 */
namespace MRV {

/**
 * @p text with the characters that HTML reserves written as entities, for attributes and element
 * text.
 *
 * An "&amp;" in the text is taken to be encoded already and stays as it is; any other entity is
 * encoded again ("&lt;" becomes "&amp;lt;"). Deliberate: text that went through here twice keeps
 * its ampersands, but no markup can be smuggled in. For a faithful encoding of any text use
 * escape().
 */
MRVBASE_EXPORT QString toHtmlEncoded(const QString &text);

/** @p text with the five characters that XML reserves written as entities; every "&" is encoded. */
MRVBASE_EXPORT QString escape(const QString &text);

/**
 * @p text trimmed, encoded by toHtmlEncoded() and wrapped in a paragraph, so that a tooltip shows
 * it as rich text and breaks its lines.
 *
 * When the whole is longer than 100 QChars, it is its first 100 and "...". Deliberate: a long
 * tooltip so loses its closing tag, which tooltips tolerate. Empty for blank text.
 */
MRVBASE_EXPORT QString toHtmlTooltipFormat(const QString &text);

} // namespace MRV
