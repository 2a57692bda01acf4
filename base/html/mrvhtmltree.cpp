#include "html/mrvhtmltree_p.h"

#include <QPair>
#include <QRegularExpression>
#include <QVector>

namespace {

GumboOptions options()
{
    GumboOptions options = kGumboDefaultOptions;
    options.max_errors = 0; // nobody reads them
    return options;
}

const GumboAttribute *attribute(const GumboNode *element, const char *name)
{
    return gumbo_get_attribute(&element->v.element.attributes, name);
}

} // namespace

QString mrvWithEndTags(const QString &html)
{
    static const QRegularExpression declaration(QStringLiteral("^\\x{FEFF}?\\s*<\\?xml\\b"));
    if (!declaration.match(html).hasMatch()) {
        return html;
    }
    // No tag of XML has a "<" in it, so that a search for the end of one stops at the next one.
    static const QRegularExpression whole(QStringLiteral(
        "<(?!(?:area|base|br|col|embed|hr|img|input|link|meta|param|source|track|wbr)"
        "[\\s/>])([A-Za-z][A-Za-z0-9]*+)((?:[^'\"<>/]++|\"[^\"<]*+\"|'[^'<]*+'|/(?!>))*+)"
        "/>"));
    return QString(html).replace(whole, QStringLiteral("<\\1\\2></\\1>"));
}

MRVHtmlTree::MRVHtmlTree(const QString &html)
    : m_source(html.toUtf8())
{
    const GumboOptions chosen = options();
    m_output = gumbo_parse_with_options(&chosen, m_source.constData(), size_t(m_source.size()));
}

MRVHtmlTree::~MRVHtmlTree()
{
    const GumboOptions chosen = options();
    gumbo_destroy_output(&chosen, m_output);
}

// Without recursion: callers ask whether the tree can be read by it.
int MRVHtmlTree::depth() const
{
    int most = 0;
    QVector<QPair<const GumboNode *, int>> open{{root(), 1}};
    while (!open.isEmpty()) {
        const auto node = open.takeLast();
        most = qMax(most, node.second);
        for (const GumboNode *child : MRVHtmlChildren(node.first)) {
            if (mrvIsElement(child)) {
                open.append({child, node.second + 1});
            }
        }
    }
    return most;
}

bool mrvIsElement(const GumboNode *node)
{
    return node->type == GUMBO_NODE_ELEMENT || node->type == GUMBO_NODE_TEMPLATE;
}

const GumboNode *mrvElementBefore(const GumboNode *node)
{
    const GumboVector &siblings = node->parent->v.element.children;
    for (size_t at = node->index_within_parent; at > 0; --at) {
        const auto *before = static_cast<const GumboNode *>(siblings.data[at - 1]);
        if (mrvIsElement(before)) {
            return before;
        }
    }
    return nullptr;
}

bool mrvIsElement(const GumboNode *node, GumboTag tag)
{
    return mrvIsElement(node) && node->v.element.tag == tag
        && node->v.element.tag_namespace == GUMBO_NAMESPACE_HTML;
}

QString mrvTextOf(const GumboNode *node)
{
    return QString::fromUtf8(node->v.text.text);
}

QString mrvTextIn(const GumboNode *element)
{
    QString text;
    for (const GumboNode *child : MRVHtmlChildren(element)) {
        if (mrvIsElement(child)) {
            text += mrvTextIn(child);
        } else if (child->type != GUMBO_NODE_COMMENT) {
            text += mrvTextOf(child);
        }
    }
    return text;
}

QString mrvNameOf(const GumboNode *element)
{
    if (element->v.element.tag != GUMBO_TAG_UNKNOWN) {
        return QString::fromLatin1(gumbo_normalized_tagname(element->v.element.tag));
    }
    GumboStringPiece name = element->v.element.original_tag;
    gumbo_tag_from_original_text(&name);
    return QString::fromUtf8(name.data, int(name.length)).toLower();
}

QString mrvAttributeOf(const GumboNode *element, const char *name)
{
    const GumboAttribute *found = attribute(element, name);
    return found ? QString::fromUtf8(found->value) : QString();
}

bool mrvHasAttribute(const GumboNode *element, const char *name)
{
    return attribute(element, name);
}

int mrvLineOf(const GumboNode *node)
{
    return int(mrvIsElement(node) ? node->v.element.start_pos.line : node->v.text.start_pos.line);
}

MRVHtmlChildren::MRVHtmlChildren(const GumboNode *element)
{
    const GumboVector &children = element->type == GUMBO_NODE_DOCUMENT
        ? element->v.document.children
        : element->v.element.children;
    m_begin = reinterpret_cast<const GumboNode *const *>(children.data);
    m_count = children.length;
}
