#pragma once

#include <QString>

class QTextDocument;

/**
 * The words of a document for people: a line for each paragraph and line break, and after the text
 * the comments and notes that it carries as properties. Pictures have no place in it.
 */
QString mrvArchiveText(const QTextDocument &document);
