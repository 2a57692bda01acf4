#pragma once

#include "util/mrvbase_export.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>

class QMimeData;

/**
 * MIME types: those of the applications, and those of file suffixes.
 *
 * @since 1.0
 */
namespace MRV {

// The types under which the applications put their data on the clipboard and into drags.
MRVBASE_EXPORT extern const char *const ProjectNodeMimeType;
MRVBASE_EXPORT extern const char *const TitleSynopsisMimeType;
MRVBASE_EXPORT extern const char *const FernwickNotesMimeType;
MRVBASE_EXPORT extern const char *const FernwickGroupedNotesMimeType;
MRVBASE_EXPORT extern const char *const UriListMimeType;
MRVBASE_EXPORT extern const char *const KeywordsMimeType;
MRVBASE_EXPORT extern const char *const ReferencesMimeType;
MRVBASE_EXPORT extern const char *const CommentsMimeType;
MRVBASE_EXPORT extern const char *const TextCursorPosMimeType;
MRVBASE_EXPORT extern const char *const CharFormatMimeType;
MRVBASE_EXPORT extern const char *const DocumentReferenceMimeType;
MRVBASE_EXPORT extern const char *const LinksMimeType;
MRVBASE_EXPORT extern const char *const TocMimeType;
MRVBASE_EXPORT extern const char *const FontMimeType;
MRVBASE_EXPORT extern const char *const RulerMimeType;
MRVBASE_EXPORT extern const char *const FormattingMimeType;
MRVBASE_EXPORT extern const char *const MorvaneMarkupRtfMimeType;
MRVBASE_EXPORT extern const char *const OdfMimeType;

/**
 * The path of the project that the nodes in @p mime come from; empty without such data and for
 * null.
 *
 * The data under ProjectNodeMimeType are a QDataStream (version Qt_5_15) of one QString, the path,
 * and then qint32 node ids up to the end, without a count.
 */
MRVBASE_EXPORT QString parseProjectNodeMimeTypePath(const QMimeData *mime);

/**
 * The path as parseProjectNodeMimeTypePath() gives it, and the node ids in stream order. Negative
 * ids and a last one that is cut short are left out.
 */
MRVBASE_EXPORT QPair<QString, QList<int>> parseProjectNodeMimeType(const QMimeData *mime);

/** The types under which rich text is offered, the most common first. */
MRVBASE_EXPORT QStringList rtfMimeTypes();

/**
 * The MIME types of each file suffix, suffixes without a dot.
 *
 * Read from the application's resource ":/Other/Resources/mimetypes.csv": UTF-8 lines of
 * "suffix,mime/type", neither field trimmed; a suffix on several lines has several types, lines
 * that begin with "//" or "#" are comments. The file is read by the first call that finds the table
 * empty; without the resource the table is empty, and each call tries again.
 */
MRVBASE_EXPORT QHash<QString, QSet<QString>> suffixMimeTypes();

/** The types of @p suffix, compared exactly: lower case, no dot. Empty for an unknown one. */
MRVBASE_EXPORT QSet<QString> mimeTypeForSuffix(const QString &suffix);

/** All suffixes that have the type @p mimeType, compared exactly. Empty for an unknown one. */
MRVBASE_EXPORT QSet<QString> suffixForMimeType(const QString &mimeType);

} // namespace MRV
