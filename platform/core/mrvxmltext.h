#pragma once

#include "core/mrvcore_export.h"

#include <QString>
#include <QStringView>

/**
 * @p text without what no XML document can hold (XML 1.0, section 2.2, Char): control characters
 * but tab, line feed and carriage return, U+FFFE, U+FFFF, and halves of surrogate pairs. No copy
 * where there is nothing of these.
 *
 * @since 1.0
 */
MRVCORE_EXPORT QString mrvXmlText(const QString &text);

/** The index of the first character that mrvXmlText() drops; -1 without one. @since 1.0 */
MRVCORE_EXPORT int mrvFirstNonXml(QStringView text);

/** Appends mrvXmlText() of @p text to @p result. @since 1.0 */
MRVCORE_EXPORT void mrvAppendXmlText(QString *result, QStringView text);
