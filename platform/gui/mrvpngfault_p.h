#pragma once

#include <QByteArray>

enum class MRVPngPart { Head, Whole };

/**
 * Whether libpng reads that part of a PNG file without a fault. Qt leaves it to libpng to tell of
 * faults, which prints them to standard error, so that it only gets files in which there is none.
 * Takes the time of decoding and the memory of a line; @p bytes must have passed the checks of
 * what it claims.
 */
bool mrvIsPngReadable(const QByteArray &bytes, MRVPngPart part);
