#pragma once

#include "util/mrvbase_export.h"
#include "xhtml/mrvtextxhtmlexporter.h"

/**
 * The classes that stand for style values: looks values up in a list of rule sets, and appends the
 * new ones.
 *
 * Each value is read once and remembered, and rule sets are found by hash, so that many distinct
 * styles cost no more than few.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVStyleClasses
{
public:
    /**
     * @param styles the list of rule sets; not owned, not null, and not to be changed by others
     * meanwhile.
     * @param dropFontFamily and @p kindleKF8: see MRVTextXhtmlExporter::convertStyleToCss().
     */
    MRVStyleClasses(MRVTextXhtmlExporter::StyleList *styles, bool dropFontFamily, bool kindleKF8);

    /**
     * Rewrites the style attributes of the text, as MRVTextXhtmlExporter::convertStyleToCss()
     * describes.
     */
    void convert(QString *html);

private:
    // What one style value of a text becomes.
    struct Use
    {
        QString attribute; // in place of the style attribute
        QString
            emptyParagraph; // in place of an empty paragraph; null for values that leave it alone
    };

    Use use(const QString &value);
    QString attribute(const QString &value);

    MRVTextXhtmlExporter::StyleList *m_styles;
    bool m_dropFontFamily;
    bool m_kindleKF8;
    QHash<QString, int> m_classes; // canonical text of a rule set to its index
    QHash<QString, Use> m_uses; // by style value, escaped as it stands in HTML
};
