#pragma once

class QDataStream;
class QString;

/**
 * Reads a text as QDataStream does (length in bytes as quint32, then UTF-16 units; length
 * 0xFFFFFFFF for a null text), but without reserving what a damaged length asks for: memory grows
 * with what was read.
 *
 * The text is null on failure, and also when the stream had failed before: after damage nobody
 * knows where the next text begins.
 */
void mrvReadText(QDataStream &stream, QString *text);
