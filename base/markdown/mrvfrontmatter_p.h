#pragma once

#include <QString>

struct MRVMarkdownHead;

/**
 * @p markdown with empty lines in the place of the metadata that it begins with, if any; all that
 * is understood of them goes to @p head.
 */
QString mrvTakeFrontMatter(const QString &markdown, MRVMarkdownHead *head);
