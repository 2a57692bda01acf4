#include "markdown/mrvmarkdowntree_p.h"

#include "markdown/mrvheadingids.h"
#include "markdown/mrvmarkdownsyntax_p.h"
#include "util/mrvescape.h"

#include <QVector>

namespace {

QString literal(cmark_node *node)
{
    return QString::fromUtf8(cmark_node_get_literal(node));
}

/** A start tag with the place of @p node in the source, as cmark writes it. */
QByteArray startTag(const char *name, cmark_node *node, const QString &id)
{
    const QByteArray attribute =
        id.isEmpty() ? QByteArray() : " id=\"" + MRV::escape(id).toUtf8() + '"';
    return QByteArray("<") + name + attribute + " data-sourcepos=\""
        + QByteArray::number(cmark_node_get_start_line(node)) + ':'
        + QByteArray::number(cmark_node_get_start_column(node)) + '-'
        + QByteArray::number(cmark_node_get_end_line(node)) + ':'
        + QByteArray::number(cmark_node_get_end_column(node)) + "\">";
}

QByteArray endTag(const char *name)
{
    return QByteArray("</") + name + '>';
}

void setTags(cmark_node *custom, const char *name, cmark_node *source,
             const QString &id = QString())
{
    cmark_node_set_on_enter(custom, startTag(name, source, id).constData());
    cmark_node_set_on_exit(custom, endTag(name).constData());
}

void moveChildren(cmark_node *from, cmark_node *to)
{
    while (cmark_node *child = cmark_node_first_child(from)) {
        cmark_node_append_child(to, child);
    }
}

class Headings
{
public:
    void add(cmark_node *heading)
    {
        cmark_node *const last = cmark_node_last_child(heading);
        QString id;
        if (last && mrvMarkdownRole(last) == MRVMarkdownRole::HeadingId) {
            id = QString::fromUtf8(cmark_node_get_on_enter(last));
            cmark_node_free(last);
            m_ids.take(id);
            trim(cmark_node_last_child(heading));
        }
        m_headings.append({heading, id});
    }

    void replace()
    {
        for (const Heading &heading : qAsConst(m_headings)) {
            cmark_node *const custom = cmark_node_new(CMARK_NODE_CUSTOM_BLOCK);
            const char name[] = {'h', char('0' + cmark_node_get_heading_level(heading.node)), '\0'};
            setTags(custom, name, heading.node,
                    heading.id.isEmpty() ? m_ids.next(textOf(heading.node)) : heading.id);
            cmark_node_insert_before(heading.node, custom);
            cmark_node_own(heading.node); // the texts below it are parts of its own
            moveChildren(heading.node, custom);
            cmark_node_free(heading.node);
        }
    }

private:
    struct Heading
    {
        cmark_node *node;
        QString id;
    };

    static void trim(cmark_node *text)
    {
        if (text && cmark_node_get_type(text) == CMARK_NODE_TEXT) {
            QByteArray bytes = cmark_node_get_literal(text);
            while (bytes.endsWith(' ') || bytes.endsWith('\t')) {
                bytes.chop(1);
            }
            cmark_node_set_literal(text, bytes.constData());
        }
    }

    static QString textOf(cmark_node *heading)
    {
        QString text;
        mrvVisitMarkdownTree(heading, [&text](cmark_node *node, bool left) {
            const cmark_node_type type = cmark_node_get_type(node);
            if (type == CMARK_NODE_SOFTBREAK || type == CMARK_NODE_LINEBREAK) {
                text += u'-';
            }
            if (!left && (type == CMARK_NODE_TEXT || type == CMARK_NODE_CODE)) {
                text += literal(node);
            }
        });
        return text;
    }

    QVector<Heading> m_headings;
    MRVHeadingIds m_ids;
};

/** The lines of a term are terms; lists that follow each other are one. */
void completeDefinitions(cmark_node *list)
{
    for (cmark_node *child = cmark_node_first_child(list); child; child = cmark_node_next(child)) {
        setTags(child, mrvMarkdownRole(child) == MRVMarkdownRole::Term ? "dt" : "dd", child);
    }
    setTags(list, "dl", list);
    cmark_node *const previous = cmark_node_previous(list);
    if (previous && mrvMarkdownRole(previous) == MRVMarkdownRole::DefinitionList) {
        cmark_node_set_on_exit(previous, "");
        cmark_node_set_on_enter(list, "");
    }
}

// The name of a note, which is text, was kept where the start tag stands.
void completeLostNote(cmark_node *note)
{
    cmark_node *const text = cmark_node_new(CMARK_NODE_TEXT);
    cmark_node_set_literal(text, cmark_node_get_on_enter(note));
    cmark_node *paragraph = cmark_node_first_child(note);
    if (!paragraph || cmark_node_get_type(paragraph) != CMARK_NODE_PARAGRAPH) {
        paragraph = cmark_node_new(CMARK_NODE_CUSTOM_BLOCK);
        setTags(paragraph, "p", note);
        cmark_node_prepend_child(note, paragraph);
    }
    cmark_node_prepend_child(paragraph, text);
    cmark_node_set_on_enter(note, "");
}

} // namespace

void mrvCompleteMarkdownTree(cmark_node *root)
{
    Headings headings;
    mrvVisitMarkdownTree(root, [&headings](cmark_node *node, bool left) {
        if (!left) {
            return;
        }
        const MRVMarkdownRole role = mrvMarkdownRole(node);
        if (cmark_node_get_type(node) == CMARK_NODE_HEADING) {
            headings.add(node);
        } else if (role == MRVMarkdownRole::DefinitionList) {
            completeDefinitions(node);
        } else if (role == MRVMarkdownRole::LostNote) {
            completeLostNote(node);
        }
    });
    headings.replace();
}
