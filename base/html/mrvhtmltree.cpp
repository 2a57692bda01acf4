#include "html/mrvhtmltree_p.h"

#include "util/mrvlocalfile.h"

#include <QDir>
#include <QFileInfo>
#include <QPair>
#include <QRegularExpression>
#include <QUrl>
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

// Whether the page says that its links count from another place than its own file.
bool hasBase(const GumboNode *root)
{
    for (const GumboNode *child : MRVHtmlChildren(root)) {
        const bool isHead = mrvIsElement(child, GUMBO_TAG_HEAD);
        if (isHead
            || (mrvIsElement(child, GUMBO_TAG_BASE)
                && !mrvAttributeOf(child, "href").trimmed().isEmpty())) {
            return !isHead || hasBase(child);
        }
    }
    return false;
}

} // namespace

QString mrvWithEndTags(const QString &html)
{
    static const QRegularExpression declaration(QStringLiteral("^\\x{FEFF}?\\s*<\\?xml\\b"));
    if (!declaration.match(html).hasMatch()) {
        return html;
    }
    // Other tags end elsewhere for the parser, which would read the rest as text.
    static const QRegularExpression whole(QStringLiteral(
        "<(?!(?:area|base|br|col|embed|hr|img|input|link|meta|param|source|track|wbr)[\\s/>])"
        "([A-Za-z][^\\s\"'<>/]*+)" // its name, and attributes
        "((?:\\s++(?:[^\\s\"'<>/=]++(?:\\s*+=\\s*+(?:\"[^\"<]*+\"|'[^'<]*+'|[^\\s\"'<>/"
        "=`]++))?)?)*+)"
        "/>"));
    return QString(html).replace(whole, QStringLiteral("<\\1\\2></\\1>"));
}

MRVHtmlTree::MRVHtmlTree(const QString &html, const QString &file)
    : m_source(html.toUtf8())
{
    const GumboOptions chosen = options();
    m_output = gumbo_parse_with_options(&chosen, m_source.constData(), size_t(m_source.size()));
    if (!file.endsWith(u'/') && !hasBase(root())) {
        m_file = QDir::cleanPath(file);
    }
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

QString MRVHtmlTree::addressOf(const GumboNode *element) const
{
    if (!mrvIsElement(element, GUMBO_TAG_A)) {
        return QString();
    }
    const QString address = mrvAttributeOf(element, "href").trimmed();
    const int hash = address.indexOf(u'#');
    return hash == 0 || (hash > 0 && isOwnFile(address.left(hash)))
        ? u'#' + QUrl::fromPercentEncoding(address.mid(hash + 1).toUtf8())
        : address;
}

bool MRVHtmlTree::isOwnFile(const QString &address) const
{
    const QFileInfo own(m_file);
    const QString decoded = QUrl::fromPercentEncoding(address.toUtf8());
    if (m_file.isEmpty() || MRV::isElsewhere(address)
        || !(address.endsWith(own.fileName()) || decoded.endsWith(own.fileName()))) {
        return false;
    }
    if (address.startsWith(QLatin1String("file:"))) {
        return QUrl(address).toLocalFile() == m_file;
    }
    const auto path = [&own](const QString &name) {
        return QDir::cleanPath(QDir(own.path()).absoluteFilePath(name));
    };
    return path(address) == m_file || path(decoded) == m_file;
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
