#pragma once

class QByteArray;

/**
 * Whether @p bytes begin with a stored format of type @p formatType (QTextFormat::FormatType) that
 * Qt can decode safely.
 *
 * Qt's stream operators trust every type, count and length they read: a few wrong bytes make them
 * crash, or reserve gigabytes. So the bytes are walked first, without decoding anything. Accepted
 * are the types that occur in formats, each with a payload that fits into the bytes that are left.
 * True says that decoding is safe, not that it succeeds: the data of a picture is not looked into.
 */
bool mrvIsReadableFormat(const QByteArray &bytes, int formatType);
