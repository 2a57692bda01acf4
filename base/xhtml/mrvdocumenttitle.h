#pragma once

#include "util/mrvbase_export.h"

#include <QString>

class QTextDocument;

/**
 * A title for a document: its own, else the text of a heading near its beginning, else @p fallback.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QString mrvDocumentTitle(const QTextDocument &document, const QString &fallback);
