#include "markdown/mrvmarkdownraw_p.h"

#include "markdown/mrvmarkdowntree_p.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSet>
#include <QVector>

#include <algorithm>

namespace {

// In these, text is no text, or tags have another meaning, up to their end tag.
constexpr const char *swallowers[] = {
    "iframe", "math", "noembed",  "noframes", "plaintext", "script", "select",
    "style",  "svg",  "template", "textarea", "title",     "xmp",
};

struct Tag
{
    int begin;
    QByteArray name; // "--" for a comment
    bool isEnd;
};

bool isSwallower(const QByteArray &name)
{
    return std::any_of(std::begin(swallowers), std::end(swallowers),
                       [&name](const char *known) { return name == known; });
}

QByteArray nameAt(const QByteArray &html, int begin)
{
    const auto first = html.begin() + begin;
    const auto last = std::find_if_not(first, html.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
    });
    return html.mid(begin, int(last - first)).toLower();
}

// A drawing or a formula that is empty ends at once.
bool isEmptyElement(const QByteArray &html, int begin, const QByteArray &name)
{
    const int end = html.indexOf('>', begin);
    return (name == "svg" || name == "math") && end > 0 && html.at(end - 1) == '/';
}

// The tags of the elements above, and where comments begin and end.
QVector<Tag> tagsIn(const QByteArray &html)
{
    QVector<Tag> tags;
    for (int at = 0; at < html.size(); ++at) {
        if (html.at(at) == '-' && html.mid(at, 3) == "-->") {
            tags.append({at, "--", true});
        } else if (html.at(at) == '<' && html.mid(at, 4) == "<!--") {
            tags.append({at, "--", false});
        } else if (html.at(at) == '<') {
            const bool isEnd = html.mid(at + 1, 1) == "/";
            const QByteArray name = nameAt(html, at + (isEnd ? 2 : 1));
            if (isSwallower(name) && (isEnd || !isEmptyElement(html, at, name))) {
                tags.append({at, name, isEnd});
            }
        }
    }
    return tags;
}

// Escapes what nothing ends; @p ended has what ends after this node, beside it.
void escape(cmark_node *node, QSet<QByteArray> *ended)
{
    QByteArray html = cmark_node_get_literal(node);
    const QVector<Tag> tags = tagsIn(html);
    bool isChanged = false;
    for (int i = tags.size() - 1; i >= 0; --i) {
        const Tag &tag = tags.at(i);
        if (tag.isEnd) {
            ended->insert(tag.name);
        } else if (!ended->contains(tag.name) || tag.name == "plaintext") {
            html.replace(tag.begin, 1, "&lt;");
            isChanged = true;
        }
    }
    if (isChanged) {
        cmark_node_set_literal(node, html.constData());
    }
}

} // namespace

void mrvEscapeOpenTags(cmark_node *root)
{
    QVector<cmark_node *> raw;
    mrvVisitMarkdownTree(root, [&raw](cmark_node *node, bool) {
        const cmark_node_type type = cmark_node_get_type(node);
        if ((type == CMARK_NODE_HTML_BLOCK || type == CMARK_NODE_HTML_INLINE)
            && (raw.isEmpty() || raw.constLast() != node)) {
            raw.append(node);
        }
    });
    QHash<cmark_node *, QSet<QByteArray>> ended; // by parent
    for (int i = raw.size() - 1; i >= 0; --i) {
        escape(raw.at(i), &ended[cmark_node_parent(raw.at(i))]);
    }
}
