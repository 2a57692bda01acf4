#pragma once

#include <QByteArray>
#include <QTextFormat>

/** A format of that type, a QTextFormat::FormatType, with the properties of another one. */
QTextFormat mrvFormatOfType(const QTextFormat &format, int type);

/**
 * The stored form of any format. Those that have none of their own have that of a paragraph's
 * format, so that the type belongs to it.
 */
QByteArray mrvStoredFormat(const QTextFormat &format);
