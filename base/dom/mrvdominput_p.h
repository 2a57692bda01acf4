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
 * The XML text in some bytes: a byte-order mark or the declaration names the encoding, else it is
 * UTF-8.
 *
 * @return false, with the place of the first fault, when the bytes are not of that encoding.
 */
bool mrvDecodeXml(const QByteArray &bytes, QString *text, MRVDomProblem *problem);

/**
 * The text as XML reads it (XML 1.0, sections 2.2 and 2.11), for a parser that does not: line ends
 * are line feeds, what XML forbids is dropped, and references to characters beyond U+FFFF are the
 * characters.
 */
QString mrvSoundXml(const QString &xml);

/**
 * Whether a text keeps to the limits of MRVDomLimits, so that Qt's parser, which knows none, can be
 * trusted with it, and has no two attributes of one name in an element, of which the parser would
 * keep one. Beyond some depth it would run out of stack, and entities that are repeated would fill
 * the memory.
 *
 * A text that is no XML may pass: the parser stops where this does.
 */
bool mrvKeepsXmlLimits(const QString &xml, MRVDomProblem *problem);
