#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QStringView>

namespace MRV {

/**
 * @p text without what no XML document can hold (XML 1.0, section 2.2, Char): control characters but tab, line feed
 * and carriage return, U+FFFE, U+FFFF, and halves of surrogate pairs. No copy where there is nothing of these.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QString toXmlText(const QString &text);

/** Appends toXmlText() of @p text to @p result. @since 1.0 */
MRVBASE_EXPORT void appendXmlText(QString *result, QStringView text);

} // namespace MRV
