#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** What an HTML page tells of itself in its head. Empty: nothing. */
struct HtmlHead
{
    QStringList authors;
    QString description;
    QString language; // a well-formed tag
};

/** Reads the attributes of the element html and the meta elements of the head. */
HtmlHead readHtmlHead(const QString &html);

/** Is the text a page or a fragment of HTML, after comments and an XML declaration? */
bool looksLikeHtml(const QString &start);

/** The encoding that an XML declaration at the begin names; empty without one. */
QByteArray xmlEncoding(const QByteArray &bytes);

/** Do elements, after the usual rules for end tags left out, lie more than @p levels deep? */
bool isHtmlNestedDeeper(const QString &html, int levels);

/**
 * The tag of a language as BCP 47 writes it ("fr_FR" becomes "fr-FR"); empty for a malformed one.
 */
QString languageTag(const QString &text);
