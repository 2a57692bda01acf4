#pragma once

#include <QTextFormat>

class QTextDocument;

/**
 * What a document has as a whole, as properties of a format, which have a guarded stored form: its
 * fonts, page, text options, URLs and title, and the format of its root frame.
 */
QTextCharFormat mrvDocumentSettings(const QTextDocument &document);

/**
 * Gives them to a document that was cleared. What is missing, or no layout can have, stays as it is
 * there.
 */
void mrvApplyDocumentSettings(const QTextCharFormat &settings, QTextDocument *document);
