#pragma once

#include "core/mrverror.h"

#include <QString>

class QDate;

/**
 * Writes the manual pages in mdoc(7): mrv.1, and for each command one such as mrv-export.1. A page
 * that is there is replaced.
 *
 * @param folder exists.
 * @param date   that the pages carry.
 * @return false, with a text, when one cannot be written.
 */
bool writeManuals(const QString &folder, const QDate &date, MRVErrorSink error);
