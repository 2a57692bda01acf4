#pragma once

#include "util/mrvmetadataentry.h"

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What the metadata at the beginning of a Markdown text say about it; empty where they say nothing.
 *
 * @since 1.0
 */
struct MRVMarkdownHead
{
    QString title;
    /** Each once, in order. */
    QStringList authors;
    QString description;
    /** A well-formed tag, as MRV::languageTag() gives it. */
    QString language;
    /** As it is written; no format is demanded. */
    QString date;
    /** All that they say, in order, also what the members above do. */
    QVector<MRVMetadataEntry> entries;
};
