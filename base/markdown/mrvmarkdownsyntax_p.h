#pragma once

#include <cmark-gfm-core-extensions.h>

#include <QFlags>

/** What a node is that this module adds to the tree. */
enum class MRVMarkdownRole { None, DefinitionList, Term, Definition, HeadingId, LostNote };

MRVMarkdownRole mrvMarkdownRole(cmark_node *node);

/** Makes @p node, a custom one, a node of @p role. */
void mrvSetMarkdownRole(cmark_node *node, MRVMarkdownRole role);

/**
 * The syntax that cmark does not know: ids of headings, definition lists, and what is raised or
 * lowered. To be attached to one parser, before cmark's own extensions, and to live as long as the
 * tree.
 */
class MRVMarkdownSyntax
{
public:
    enum Part { HeadingIds = 0, DefinitionLists = 1, SubAndSuperscript = 2 };
    Q_DECLARE_FLAGS(Parts, Part)

    explicit MRVMarkdownSyntax(Parts parts);
    ~MRVMarkdownSyntax();
    Q_DISABLE_COPY(MRVMarkdownSyntax)

    void attachTo(cmark_parser *parser);

    /** The document as far as it was read; null before its first block. */
    cmark_node *root() const { return m_root; }

private:
    static cmark_node *openBlock(cmark_syntax_extension *extension, int indented,
                                 cmark_parser *parser, cmark_node *container, unsigned char *line,
                                 int length);
    static int continueBlock(cmark_syntax_extension *extension, cmark_parser *parser,
                             unsigned char *line, int length, cmark_node *container);
    static cmark_node *matchInline(cmark_syntax_extension *extension, cmark_parser *parser,
                                   cmark_node *parent, unsigned char character,
                                   cmark_inline_parser *text);

    cmark_syntax_extension *m_extension;
    cmark_node *m_root = nullptr;
    Parts m_parts;
};
