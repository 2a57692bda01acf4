#pragma once

#include "core/mrverror.h"

#include <QByteArray>
#include <QString>

/** What a picture within an SVG takes when decoded, in bytes; -1 where it must not be. */
using MRVPictureMemory = qint64 (*)(const QByteArray &);

/**
 * Unpacks the SVG in @p bytes where it is compressed, and writes it again without all that makes
 * Qt's renderer open files: style sheets named by processing instructions, and pictures that are
 * not part of the text. Entities are replaced, so that the text is as long as it will get.
 *
 * Pictures in the text that @p memoryOf refuses are left out, as are those that take too much
 * together.
 *
 * @param reason receives a translated text where the bytes hold more than
 *               MRVInputLimits::SvgBytes; untouched otherwise.
 * @return UTF-8; empty for too much text, and for bytes that are damaged or no XML.
 */
QByteArray mrvGuardedSvg(const QByteArray &bytes, MRVPictureMemory memoryOf, MRVErrorSink reason);
