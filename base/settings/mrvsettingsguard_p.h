#pragma once

#include <QByteArray>
#include <QVariant>

/**
 * The bytes of an INI file without the values that QSettings cannot decode without harm.
 *
 * QSettings decodes every value when it opens a file. A value that it has no text for is the stream
 * of a QVariant, and those readers of Qt take as much memory as a damaged count asks for, or crash.
 * What is left in are the types that MRVVariantGuard knows in settings, with counts and lengths
 * that the bytes fill, and values that only end too early. Other types do not come back.
 *
 * @return just @p bytes where nothing has to be left out.
 */
QByteArray mrvSafeSettings(const QByteArray &bytes);

/** Whether a value can be stored so that mrvSafeSettings() leaves it in. */
bool mrvCanBeStored(const QVariant &value);

/**
 * With the mark, QSettings reads a file as UTF-8, but writes it without; so it is read wrongly next
 * time.
 */
constexpr int mrvUtf8MarkSize = 3;
bool mrvHasUtf8Mark(const QByteArray &bytes);
