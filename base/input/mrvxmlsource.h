#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>

class QXmlStreamReader;

/** A line of a document, from 1, and what is the matter there, translated. */
MRVBASE_EXPORT QString mrvXmlLineText(qint64 line, const QString &text);

/**
 * The text of an XML document, in the encoding that its byte-order mark or its declaration names,
 * else UTF-8; false, with the line and the reason, where the bytes are not of that.
 */
MRVBASE_EXPORT bool mrvDecodeXml(const QByteArray &xml, QString *text, QString *error);

/**
 * Whether Qt's parser can be trusted with a text, which takes time quadratic in the attributes of a
 * tag and carries out document types; false, with the line and the reason, where not. What is no
 * XML may pass, as the parser stops there.
 */
MRVBASE_EXPORT bool mrvXmlKeepsLimits(const QString &xml, QString *error);

/**
 * The text of any XML document with few attributes a tag and without declarations, likewise; @p
 * error may be null. Where its document type names another file, that name is blank.
 */
MRVBASE_EXPORT bool mrvXmlText(const QByteArray &xml, QString *text, QString *error);

/** Whether all of a document was read; else @p error, if given, receives a line with its number. */
MRVBASE_EXPORT bool mrvIsXmlRead(const QXmlStreamReader &xml, QString *error);
