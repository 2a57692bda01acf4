#pragma once

#include "css/mrvcssdeclaration.h"
#include "css/mrvcsselement.h"
#include "util/mrvbase_export.h"

#include <QScopedPointer>
#include <QStringList>
#include <QVector>

/**
 * The rules of one or more CSS style sheets, and which declarations they give to an element.
 *
 * Read by the rules of CSS Syntax Level 3, so that a fault costs the declaration or the rule in
 * which it stands and no more. Rules for the screen count, with no further condition; those in
 * `@supports` and all other at-rules are passed over. Selectors are those of Level 3, :is() and
 * :where(), but without what a still page cannot tell: pseudo elements and :hover never match.
 *
 * Shorthands are split: margin, padding, border and its parts, font, background, list-style and
 * text-decoration become declarations of their single properties, those that the shorthand resets
 * included. No value is judged, and unknown properties are kept, so a caller who finds a value
 * that is invalid takes the one before.
 *
 * What a sheet from elsewhere may cost is limited by MRVInputLimits. What the names, the id and the
 * classes of an element lead to is remembered for the next one with the same. GUI thread only.
 *
 * @code
 * MRVStyleSheet sheet;
 * sheet.add(QStringLiteral("p + p { text-indent: 1.5em; margin: 0 }"));
 * MRVCssElement paragraph;
 * paragraph.name = QStringLiteral("p");
 * const auto own = MRVStyleSheet::parseDeclarations(QStringLiteral("color: red"));
 * const QVector<MRVCssDeclaration> declarations = sheet.declarations(paragraph, own);
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVStyleSheet
{
public:
    /** Who wrote a sheet; the author's rules win over the program's whatever their selectors. */
    enum class Origin : quint8 {
        Program,
        Author,
    };

    MRVStyleSheet();
    ~MRVStyleSheet();

    /**
     * Adds the rules of another sheet after those that are there. Sheets that it imports are the
     * caller's to add before it; see imports().
     *
     * @param css    the sheet as a whole, decoded.
     * @param origin who wrote it.
     * @return false where the sheet exceeds MRVInputLimits; nothing of it is then added.
     */
    bool add(const QString &css, Origin origin = Origin::Author);

    /**
     * The addresses of the imports at the beginning of a sheet, in order and as they are written,
     * without those for media that do not fit.
     */
    static QStringList imports(const QString &css);

    /** Whether a list of media ("screen, print") means the screen; true for an empty one. */
    static bool fitsMedia(const QString &media);

    /**
     * The declarations for an element, the weakest first, so that the last of a property wins.
     *
     * @param own those of the element's style attribute.
     */
    QVector<MRVCssDeclaration> declarations(const MRVCssElement &element,
                                            const QVector<MRVCssDeclaration> &own = {}) const;

    /**
     * Whether matching came to cost more than MRVInputLimits allows for the elements so far. The
     * rules then stopped to count, and elements get their own declarations only.
     */
    bool isExhausted() const;

    /**
     * Reads the declarations of a style attribute, in order.
     *
     * @return empty where there are more than MRVInputLimits allows.
     */
    static QVector<MRVCssDeclaration> parseDeclarations(const QString &text);

private:
    Q_DISABLE_COPY(MRVStyleSheet)
    class Private;
    QScopedPointer<Private> d;
};
