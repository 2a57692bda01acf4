#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/** A comment in the margin of a document. */
struct MRVOfficeComment
{
    QString author;
    QString date; ///< as it is written
    QString text; ///< a line a paragraph
};

/** The comments of a document, by their names in it. */
using MRVOfficeComments = QMap<QByteArray, MRVOfficeComment>;

/** Reads word/comments.xml of a DOCX, up to a fault. */
MRVOfficeComments mrvCommentsOfDocx(const QByteArray &xml);
/** The text that marks where the comment with that name begins, or ends. */
QString mrvCommentBegin(const QByteArray &name);
QString mrvCommentEnd(const QByteArray &name);

/**
 * A text of a DOCX with marks in it where comments begin and end, as text that pandoc, which leaves
 * out comments, carries over.
 */
QByteArray mrvWithMarksOfDocxComments(const QByteArray &xml);
/** The same for the content of an ODT, whose comments are added to @p comments. */
QByteArray mrvWithMarksOfOdtComments(const QByteArray &xml, MRVOfficeComments *comments);

/**
 * A page with an element "mrv-comment" in the place of each mark. One with the attributes begin,
 * author, date and text begins a comment, and one with the same number as its attribute end ends
 * it. Those that the page has are taken out of @p comments.
 */
QString mrvWithComments(const QString &html, MRVOfficeComments *comments);
