#pragma once

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What the selectors of a style sheet look at in an element.
 *
 * The caller owns the elements. Those that @ref parent and @ref previous lead to must be alive and
 * in place, and an element must not change from the first time that it, a later sibling or a
 * descendant was passed to MRVStyleSheet::declarations(). It is used with one style sheet.
 *
 * @since 1.0
 */
struct MRVCssElement
{
    const MRVCssElement *parent = nullptr; ///< null at the document's element
    const MRVCssElement *previous = nullptr; ///< the element before it in the same parent
    QString name; ///< in lower case
    QString id;
    QStringList classes;
    QVector<QPair<QString, QString>> attributes; ///< names in lower case, id and class included
    int index = 1; ///< from 1, among the elements of the parent
    int typeIndex = 1; ///< from 1, among those of the same name
    bool isLast = false; ///< no element of the parent follows

    /** What MRVStyleSheet remembers, so that a document is matched in linear time. */
    struct Memo
    {
        quint64 path = 0; ///< bits for the names, ids and classes of it and its ancestors
        quint64 asked = 0; ///< for the parts that stand before a "~": whether it is known ...
        quint64 found = 0; ///< ... if the element or one before it in its parent matches
    };
    mutable Memo memo;
};
