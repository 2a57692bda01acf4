#pragma once

#include <QDomDocument>
#include <QPair>
#include <QString>
#include <QVector>

class MRVSourceEncoding;

/**
 * A part of an XML text with what it stands for in the document that was read from it: an element
 * up to the end of its start tag, or all that is between the tags of elements.
 */
struct MRVDomPiece
{
    int start = 0; // offset of the first character
    int end = 0; // and after the last
    QDomElement element; // null for what is between tags
    QVector<QPair<QString, QString>> attributes; // of the element, as they were read: by name
    int next = 0; // index of the first piece after the element
    int closeStart = 0; // offset of its end tag; the end where it has none
    int closeEnd = 0;
    QVector<QPair<QDomNode, QString>> nodes; // between tags: what was read there, with its text
    bool hasLayout = false; // some of it, anywhere
    int layoutStart = 0; // offset of the layout that it ends with; the end where it has none
};
using MRVDomPieces = QVector<MRVDomPiece>;

/**
 * Takes an XML text apart. Takes time linear in it.
 *
 * @param xml      the text that @p document was read from by MRVDomDoc, with its line ends.
 * @param pieces   receives the pieces in the order of the text; a part of them on failure.
 * @return false where text and document do not go together one by one, because of entities.
 */
bool mrvDomPieces(const QString &xml, const QDomDocument &document, MRVDomPieces *pieces);

/**
 * The text @p xml with the changes that @p document has undergone since @p pieces were made of it.
 * Characters that @p encoding lacks are written by references.
 *
 * @return false for changes outside the document element, and for one that XML cannot hold. That
 *         the result reads as the document remains to be tried.
 */
bool mrvPatchXml(const QString &xml, const MRVDomPieces &pieces, const MRVSourceEncoding &encoding,
                 const QDomDocument &document, QString *patched);
