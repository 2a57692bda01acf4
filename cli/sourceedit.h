#pragma once

#include "search/mrvtextreplacer.h"

#include <QByteArray>
#include <QString>
#include <QVector>

struct DocumentInput;

/** The text of a manuscript with its markup, as it was read. */
QString sourceText(const DocumentInput &input);

/**
 * The bytes of a manuscript, in its format and encoding, after changes to its text.
 *
 * The changes are made in the source, so that all markup, also what a document does not hold, stays
 * as it is byte for byte. The result is read once more, and refused when its text is not that of
 * the document with these changes.
 *
 * @param input   its document has the changes afterwards.
 * @param changes those of a preview of the document as it was read.
 * @param anew    write the document anew instead: what it does not hold, such as style sheets, is
 *        lost then.
 * @param bytes   untouched on failure.
 * @return false, with a one-line text, when a change does not fit into the markup, or into the
 *        encoding.
 */
bool changedBytes(const DocumentInput &input, const QVector<MRVTextChange> &changes, bool anew,
                  QByteArray *bytes, QString *error);
