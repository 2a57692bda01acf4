#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>

class QXmlStreamReader;

/**
 * One line for an error message: @p line, from 1, and what is wrong there, the translated @p text.
 */
MRVBASE_EXPORT QString mrvXmlLineText(qint64 line, const QString &text);

/**
 * Decodes an XML document, by the encoding that its byte-order mark or its declaration names, else
 * as UTF-8.
 *
 * @param xml   the document's bytes.
 * @param text  receives the text; not null.
 * @param error receives the line and the reason on failure; may be null.
 * @return false where the bytes are not valid in that encoding.
 */
MRVBASE_EXPORT bool mrvDecodeXml(const QByteArray &xml, QString *text, QString *error);

/**
 * Whether Qt's parser can be trusted with the text @p xml: it takes time quadratic in the
 * attributes of a tag, and carries out document types. What is not XML may pass, as the parser
 * stops there.
 *
 * @param xml   the decoded text of the document.
 * @param error if given, receives the line and the reason where the answer is false.
 */
MRVBASE_EXPORT bool mrvXmlKeepsLimits(const QString &xml, QString *error);

/**
 * As mrvDecodeXml(), for a document with few attributes a tag and without declarations: any other
 * is refused. Where its document type names another file, that name is blank in the text.
 *
 * @param xml   the document's bytes.
 * @param text  receives the text; not null.
 * @param error if given, receives the line and the reason on failure.
 */
MRVBASE_EXPORT bool mrvXmlText(const QByteArray &xml, QString *text, QString *error);

/**
 * Whether the reader @p xml has read its whole document without an error; else @p error, if given,
 * receives a line with its number.
 */
MRVBASE_EXPORT bool mrvIsXmlRead(const QXmlStreamReader &xml, QString *error);
