#pragma once

#include "core/mrverror.h"

#include <QByteArray>
#include <QDomDocument>
#include <QPair>
#include <QString>
#include <QVector>

/** The attributes of an element, by name in ascending order, whatever order Qt keeps them in. */
QVector<QPair<QString, QString>> mrvSortedAttributes(const QDomElement &element);

/** Whether Qt's parser takes a name for an element or attribute. */
bool mrvIsXmlName(const QString &name);

/**
 * Writes a document as UTF-8, laid out as QDomNode::save() does with an indentation of three
 * blanks. Other than there, attributes are sorted, what XML cannot hold is left out, an encoding in
 * the declaration becomes UTF-8, and elements that hold text are not laid out, where line ends
 * would become part of the text.
 *
 * @param reason receives, translated, why the document could not be loaded again: elements that are
 *               nested more deeply than MRVDomLimits::MaxDepth, or a name that XML does not allow;
 *               untouched on success.
 * @return false with a reason; @p bytes hold a part then.
 */
bool mrvWriteXml(const QDomDocument &document, QByteArray *bytes, MRVErrorSink reason);

/**
 * An element that is written into a text, without blanks before it and line end after it.
 *
 * @param indent by which its content is laid out, level by level; null for no layout.
 * @param prefix what stands before each of its lines.
 * @param text   receives the element, with line feeds.
 * @return false for one that could not be loaded again.
 */
bool mrvXmlElement(const QDomElement &element, const QString *indent, const QString &prefix,
                   QString *text);

/** What is in @p parent from the child @p first on up to @p end, which may be null. */
QString mrvXmlContent(const QDomNode &parent, const QDomNode &first, const QDomNode &end);

/** A value as it stands between two @p quote characters. */
QString mrvXmlAttributeValue(const QString &value, QChar quote);
