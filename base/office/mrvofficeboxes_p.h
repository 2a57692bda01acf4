#pragma once

#include <QByteArray>

/**
 * The text with the paragraphs of text boxes after the paragraph that each box is tied to, where
 * pandoc, which leaves out boxes, reads them. In a DOCX, boxes that only repeat others for older
 * programs stay where they are.
 */
QByteArray mrvWithBoxesAfterParagraphs(const QByteArray &xml);

/**
 * The text with the readings of ruby characters in brackets after these: pandoc leaves out both.
 */
QByteArray mrvWithPlainRuby(const QByteArray &xml);
