#pragma once

#include <QString>
#include <QtGlobal>

#include <gumbo.h>

/**
 * A page in which each element of XHTML has its end tag: there any may be written as one tag, which
 * HTML takes for a start tag. Other pages are returned as they are.
 */
QString mrvWithEndTags(const QString &html);

/**
 * The tree that an HTML5 parser makes of a page, as a browser would.
 *
 * The page has to be one that MRVHtmlReader::whyTooComplex() does not refuse. Offsets and lines of
 * nodes are those of source().
 */
class MRVHtmlTree
{
    Q_DISABLE_COPY(MRVHtmlTree)

public:
    /** @p file is the absolute path of the page's file, if it has one; it is not opened. */
    explicit MRVHtmlTree(const QString &html, const QString &file = QString());
    ~MRVHtmlTree();

    /** The document node. */
    const GumboNode *document() const { return m_output->document; }
    /** The element html; a page without one gets one. */
    const GumboNode *root() const { return m_output->root; }
    /** How many elements are in each other at most. */
    int depth() const;
    /** The page in UTF-8, as it was parsed. */
    const QByteArray &source() const { return m_source; }
    /**
     * The address of a link; empty for other elements. One within the page, by its file's name or
     * without, is "#" and a name, which is decoded, as names of elements are not encoded.
     */
    QString addressOf(const GumboNode *element) const;

private:
    bool isOwnFile(const QString &address) const;

    QByteArray m_source; // the tree points into it
    GumboOutput *m_output;
    QString m_file; // empty: links that name a file lead elsewhere
};

/** Whether @p node is an element, templates included. */
bool mrvIsElement(const GumboNode *node);
/** Whether @p node is an element of HTML with this tag. */
bool mrvIsElement(const GumboNode *node, GumboTag tag);
/** The element before @p node among its siblings, with no other one between; null without one. */
const GumboNode *mrvElementBefore(const GumboNode *node);
/** The text of a text node. */
QString mrvTextOf(const GumboNode *node);
/** All text in an element, scripts and comments apart. */
QString mrvTextIn(const GumboNode *element);
/** The name of an element in lower case, "w:sdt" for one that HTML does not know. */
QString mrvNameOf(const GumboNode *element);
/** The value of an attribute; null where it is missing. */
QString mrvAttributeOf(const GumboNode *element, const char *name);
bool mrvHasAttribute(const GumboNode *element, const char *name);
/** The line of the source that a node begins in, from 1. */
int mrvLineOf(const GumboNode *node);

/** The children of an element, in order, for range-based loops. */
class MRVHtmlChildren
{
public:
    explicit MRVHtmlChildren(const GumboNode *element);

    const GumboNode *const *begin() const { return m_begin; }
    const GumboNode *const *end() const { return m_begin + m_count; }

private:
    const GumboNode *const *m_begin = nullptr;
    unsigned m_count = 0;
};
