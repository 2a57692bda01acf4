#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QStringView>
#include <QVector>

/** Which document type a page has to be valid against. */
enum class MRVHtmlDialect {
    Xhtml11,
    Html5, ///< XHTML syntax of HTML 5, as EPUB 3 has it
};

/**
 * An opening tag taken to pieces: its name and attributes in order, values escaped as they stand.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVHtmlTag
{
    /** What stands between blanks, such as align="left". */
    struct Attribute
    {
        QString name;
        QString value;
        QChar quote = u'"';
    };

    QString name;
    QVector<Attribute> attributes;
    QString ending; // ">", " />" or "/>"

    /**
     * Reads a tag that begins with "<" and ends with ">"; attributes without a value are left out.
     */
    static MRVHtmlTag parsed(QStringView tag);
    /** The tag as HTML: the inverse of parsed(), with one blank between attributes. */
    QString text() const;

    /** @return position of the attribute, or -1. */
    int indexOf(QLatin1String attribute) const;
    /** The value of the first such attribute, escaped as it stands; empty without one. */
    QString value(QLatin1String attribute) const;
    /** Removes the first such attribute; empty without one. */
    QString take(QLatin1String attribute);
    /** Moves the first such attribute before the others; nothing without one. */
    void moveToFront(QLatin1String attribute);
    /** Adds declarations before those of the style attribute, which is made when missing. */
    void addStyle(const QString &declarations);
};

/**
 * Prepares a tag that Qt wrote for the chain of fix-ups, which expects one style attribute right
 * after the alignment, an alternative text at most once, and no raw markup characters in values. @p
 * tag may be followed by other text, which is kept.
 */
MRVBASE_EXPORT QString mrvNormalisedTag(const QString &tag);

/**
 * Moves to styles, or drops, what the dialect lacks. @p tag may be followed by other text, which is
 * kept.
 *
 * @param cellStyle declarations that a table gives to each of its cells; only cells use them.
 */
MRVBASE_EXPORT QString mrvValidTag(const QString &tag, MRVHtmlDialect dialect,
                                   const QString &cellStyle = QString());

/** The declarations that the table's attributes mean for each cell where the dialect lacks them. */
MRVBASE_EXPORT QString mrvCellStyle(QStringView tableTag);
