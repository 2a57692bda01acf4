#pragma once

#include "util/mrvbase_export.h"

#include <QTextFormat>

/**
 * A format without lengths beyond 100,000 and indents beyond 1,000, with which Qt's layout computes
 * beyond the range of its numbers, and may never end. The application's own properties are left
 * alone.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QTextFormat mrvLaidOutFormat(const QTextFormat &format);
