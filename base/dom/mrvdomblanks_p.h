#pragma once

#include <QString>

class QDomNode;

/*
 * White space between tags is layout or text. It is layout in an element that holds no other text,
 * when each stretch of it has a line end, as in an indented file; any other is text. What is
 * written so that this rule finds a text, survives saving and loading.
 */

enum class MRVDomContent {
    Elements, /**< No text: the elements are laid out. */
    Text, /**< Text, seen as such by the rule. */
    Lines /**< Text that the rule would take for layout: white space with line ends. */
};

/** What the children of an element are to the rule. */
MRVDomContent mrvDomContentOf(const QDomNode &element);

/** The first child; what follows it where it is white space before something else than text. */
QDomNode mrvFirstContent(const QDomNode &element);

/** Whether xml:space keeps the white space in an element as it is; else as around it. */
bool mrvPreservesBlanks(const QDomNode &element, bool outer);

/** Whether a text is not empty and white space as XML has it. */
bool mrvIsBlankXml(const QString &text);

/**
 * XML with marks in the white space that is text, which Qt's parser would drop otherwise; the same
 * text where nothing needs one. Expects what keeps to the limits of MRVDomLimits. xml:space is
 * respected. The marks make the text longer and remain in the parsed texts: see mrvRemoveMarks().
 */
QString mrvMarkBlanks(const QString &xml);

/** Removes the marks of mrvMarkBlanks() from the texts in a parsed document. */
void mrvRemoveMarks(QDomNode document);
