#pragma once

#include <QByteArray>
#include <QString>

/**
 * The content of an ODT as pandoc reads it: it leaves out text boxes, readings of characters, rows
 * of headings, headings in cells, and formulas whose folder is named with a slash, and gives names
 * of places others. Instead, U+FDD0, the name in hexadecimal digits and U+FDD1 mark a place.
 */
QByteArray mrvPreparedOdt(QByteArray xml);
/** The anchors of the places that mrvPreparedOdt() has marked; nothing else of that is left. */
QString mrvWithAnchors(const QString &html);

/**
 * A text of a DOCX as pandoc reads it: it leaves out text boxes, readings of characters, names
 * before paragraphs, links by fields, and simple fields and moved text with their content.
 */
QByteArray mrvPreparedDocx(QByteArray xml);

/**
 * The text of an ODT, of a formula in it, or of a part of a DOCX that a reader of the book is to
 * see, up to a fault.
 */
QString mrvOfficeXmlText(const QByteArray &xml);
/** The text of a page that pandoc has written. */
QString mrvTextOfPage(const QString &html);
