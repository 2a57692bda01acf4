#pragma once

#include <QString>

/** Why, and where (both from 1), an XML text is not to be parsed. */
struct MRVDomProblem
{
    QString message;
    int line = -1;
    int column = -1;
};

/**
 * The XML text in some bytes: a byte-order mark or the declaration names the encoding, else it is UTF-8.
 *
 * @return false, with the place of the first fault, when the bytes are not of that encoding.
 */
bool mrvDecodeXml(const QByteArray &bytes, QString *text, MRVDomProblem *problem);

/**
 * Whether a text keeps to the limits of MRVDomLimits, so that Qt's parser, which knows none, can be trusted with it. Beyond
 * some depth it would run out of stack, and entities that are repeated would fill the memory.
 *
 * A text that is no XML may pass: the parser stops where this does.
 */
bool mrvKeepsXmlLimits(const QString &xml, MRVDomProblem *problem);
