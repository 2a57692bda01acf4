#pragma once

#include <QtGlobal>

class QByteArray;

/**
 * Whether @p bytes begin with a stored format of type @p formatType (QTextFormat::FormatType) that
 * Qt can decode safely.
 *
 * Qt's stream operators trust every type, count and length they read: a few wrong bytes make them
 * crash, or reserve gigabytes. So the bytes are walked first. Accepted are the types that occur in
 * formats, each with a payload that fits into the bytes that are left. Pictures are decoded for it,
 * one at a time, since a damaged one would leave Qt in the middle of its data.
 */
bool mrvIsReadableFormat(const QByteArray &bytes, int formatType);
/** The length of that format in bytes, or -1 where there is none. */
qint64 mrvReadableFormatLength(const QByteArray &bytes, int formatType);
