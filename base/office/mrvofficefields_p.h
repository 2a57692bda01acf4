#pragma once

#include <QByteArray>
#include <QString>

/**
 * Where the instruction of a field leads: "a.html", "#place" or "a.html#place"; empty for other
 * fields than links and references. A backslash may be written twice, as in RTF.
 */
QString mrvFieldAddress(const QString &instruction);

/**
 * A text of a DOCX with its links and references in the only form that pandoc reads, and without
 * other fields that have their instruction in an attribute; what they show stays.
 */
QByteArray mrvWithPlainFields(const QByteArray &xml);
