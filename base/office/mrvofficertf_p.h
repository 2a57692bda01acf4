#pragma once

#include <QByteArray>
#include <QString>

/**
 * RTF as pandoc reads it: it takes a character too many after "\u220?", and loses notes in
 * "\*\footnote", what fields show if they are no links, most links, and the text of boxes.
 */
QByteArray mrvPreparedRtf(const QByteArray &rtf);

/** The text of an RTF that a reader of the book is to see, up to a fault. */
QString mrvRtfText(const QByteArray &rtf);
