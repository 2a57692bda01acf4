#pragma once

#include "office/mrvofficecomments_p.h"

#include <QByteArray>
#include <QString>

/**
 * RTF as pandoc reads it: it takes a character too many after "\u220?", takes all bytes for
 * Windows-1252, and loses notes in "\*\footnote", what fields show if they are no links, most
 * links, and the text of boxes. Instead of a character above U+FFFF, which it cannot read, are
 * U+FDD2, its number in hexadecimal digits and U+FDD3. Comments are marked and added to
 * @p comments.
 */
QByteArray mrvPreparedRtf(const QByteArray &rtf, MRVOfficeComments *comments);
/** A page with the characters whose numbers mrvPreparedRtf() has written. */
QString mrvWithCharacters(const QString &html);

/** The text of an RTF that a reader of the book is to see, up to a fault. */
QString mrvRtfText(const QByteArray &rtf);
