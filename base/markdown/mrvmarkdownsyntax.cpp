#include "markdown/mrvmarkdownsyntax_p.h"

#include <QByteArray>

#include <cstring>

namespace {

constexpr int DefinitionIndent = 4;
constexpr int LeastDefinitionIndent = 2;

cmark_node *addBlock(cmark_parser *parser, cmark_node *parent, MRVMarkdownRole role,
                     cmark_syntax_extension *extension)
{
    cmark_node *const block = cmark_parser_add_child(parser, parent, CMARK_NODE_CUSTOM_BLOCK,
                                                     cmark_parser_get_first_nonspace(parser) + 1);
    mrvSetMarkdownRole(block, role);
    cmark_node_set_syntax_extension(block, extension);
    return block;
}

/** Whether a definition in the next line is one of this paragraph. */
bool isTerm(cmark_node *paragraph, bool open, int line)
{
    if (!paragraph || cmark_node_get_type(paragraph) != CMARK_NODE_PARAGRAPH) {
        return false;
    }
    const int start = cmark_node_get_start_line(paragraph);
    if (open) {
        // A definition of a link vanishes when its paragraph ends.
        return start == line - 1 && !strstr(cmark_node_get_string_content(paragraph), "]:");
    }
    return start == line - 2 && cmark_node_get_end_line(paragraph) == start;
}

/** A list whose term is @p container, or else the last block in it. */
cmark_node *listAfterTerm(cmark_node *container, cmark_parser *parser,
                          cmark_syntax_extension *extension)
{
    cmark_node *const list =
        addBlock(parser, container, MRVMarkdownRole::DefinitionList, extension);
    cmark_node *const term = cmark_node_previous(list);
    cmark_node_set_type(term, CMARK_NODE_CUSTOM_BLOCK);
    mrvSetMarkdownRole(term, MRVMarkdownRole::Term);
    cmark_node_set_syntax_extension(term, extension);
    cmark_node_append_child(list, term);
    return list;
}

int canContain(cmark_syntax_extension *, cmark_node *node, cmark_node_type child)
{
    switch (mrvMarkdownRole(node)) {
    case MRVMarkdownRole::DefinitionList:
        return child == CMARK_NODE_CUSTOM_BLOCK;
    case MRVMarkdownRole::Term:
        return (child & CMARK_NODE_TYPE_MASK) == CMARK_NODE_TYPE_INLINE;
    default:
        return (child & CMARK_NODE_TYPE_MASK) == CMARK_NODE_TYPE_BLOCK && child != CMARK_NODE_ITEM;
    }
}

int containsInlines(cmark_syntax_extension *, cmark_node *node)
{
    return mrvMarkdownRole(node) == MRVMarkdownRole::Term;
}

bool isOneOf(unsigned char c, const char *characters)
{
    return c == '\0' || strchr(characters, c);
}

cmark_node *customInline(const QByteArray &enter, const QByteArray &text, const QByteArray &exit)
{
    cmark_node *const node = cmark_node_new(CMARK_NODE_CUSTOM_INLINE);
    cmark_node_set_on_enter(node, enter.constData());
    cmark_node_set_on_exit(node, exit.constData());
    if (!text.isEmpty()) {
        cmark_node *const child = cmark_node_new(CMARK_NODE_TEXT);
        cmark_node_set_literal(child, text.constData());
        cmark_node_append_child(node, child);
    }
    return node;
}

/** The bytes from @p start up to one of @p ends or the end of the text. */
QByteArray textUntil(const char *ends, int start, cmark_inline_parser *text)
{
    QByteArray bytes;
    for (unsigned char c; !isOneOf(c = cmark_inline_parser_peek_at(text, start), ends); ++start) {
        bytes += char(c);
    }
    return bytes;
}

/** "{#id}" or "{#id .class}" at the end of a heading. */
cmark_node *headingId(cmark_inline_parser *text)
{
    const int start = cmark_inline_parser_get_offset(text) + 1;
    if (cmark_inline_parser_peek_at(text, start) != '#') {
        return nullptr;
    }
    const QByteArray id = textUntil("{}\"'<>& \t\n", start + 1, text);
    int end = start + 1 + id.size();
    end += textUntil("{}\n", end, text).size();
    if (id.isEmpty() || cmark_inline_parser_peek_at(text, end) != '}') {
        return nullptr;
    }
    for (++end; cmark_inline_parser_peek_at(text, end) != '\0'; ++end) {
        if (!isOneOf(cmark_inline_parser_peek_at(text, end), " \t\n")) {
            return nullptr;
        }
    }
    cmark_inline_parser_set_offset(text, end);
    cmark_node *const node = customInline(id, QByteArray(), QByteArray());
    mrvSetMarkdownRole(node, MRVMarkdownRole::HeadingId);
    return node;
}

// A cell of a table holds no nodes of ours: cmark would lose them without a word.
cmark_node *rawInline(const QByteArray &html)
{
    cmark_node *const node = cmark_node_new(CMARK_NODE_HTML_INLINE);
    cmark_node_set_literal(node, html.constData());
    return node;
}

cmark_node *subOrSuperscript(unsigned char mark, bool isInCell, cmark_inline_parser *text)
{
    const int start = cmark_inline_parser_get_offset(text) + 1;
    const QByteArray content = textUntil(" \t\n\\`*_[]<>&~^", start, text);
    const int end = start + content.size();
    const unsigned char next = cmark_inline_parser_peek_at(text, end) == mark
        ? cmark_inline_parser_peek_at(text, end + 1)
        : mark;
    if (content.isEmpty() || next == mark) {
        return nullptr;
    }
    cmark_inline_parser_set_offset(text, end + 1);
    const QByteArray name = mark == '~' ? "sub" : "sup";
    const QByteArray enter = '<' + name + '>';
    const QByteArray exit = "</" + name + '>';
    return isInCell ? rawInline(enter + content + exit) : customInline(enter, content, exit);
}

bool isCell(cmark_node *node)
{
    return QByteArray(cmark_node_get_type_string(node)) == "table_cell";
}

} // namespace

MRVMarkdownRole mrvMarkdownRole(cmark_node *node)
{
    return MRVMarkdownRole(quintptr(cmark_node_get_user_data(node)));
}

void mrvSetMarkdownRole(cmark_node *node, MRVMarkdownRole role)
{
    cmark_node_set_user_data(node, reinterpret_cast<void *>(quintptr(role)));
}

MRVMarkdownSyntax::MRVMarkdownSyntax(Parts parts)
    : m_extension(cmark_syntax_extension_new("morvane"))
    , m_parts(parts)
{
    cmark_mem *const memory = cmark_get_default_mem_allocator();
    // Not '~': cmark would look here, and not at the strikethrough, for what it marks.
    cmark_llist *characters = nullptr;
    for (const char c : {'{', '^'}) {
        characters = cmark_llist_append(memory, characters, reinterpret_cast<void *>(quintptr(c)));
    }
    cmark_syntax_extension_set_private(m_extension, this, nullptr);
    cmark_syntax_extension_set_open_block_func(m_extension, openBlock);
    cmark_syntax_extension_set_match_block_func(m_extension, continueBlock);
    cmark_syntax_extension_set_can_contain_func(m_extension, canContain);
    cmark_syntax_extension_set_contains_inlines_func(m_extension, containsInlines);
    cmark_syntax_extension_set_special_inline_chars(m_extension, characters);
    cmark_syntax_extension_set_match_inline_func(m_extension, matchInline);
}

MRVMarkdownSyntax::~MRVMarkdownSyntax()
{
    cmark_syntax_extension_free(cmark_get_default_mem_allocator(), m_extension);
}

void MRVMarkdownSyntax::attachTo(cmark_parser *parser)
{
    cmark_parser_attach_syntax_extension(parser, m_extension);
}

// cmark asks for a block at each place where none of its own begins. Blocks of the list that is
// being read are @p container; what is in the list before them is closed.
cmark_node *MRVMarkdownSyntax::openBlock(cmark_syntax_extension *extension, int indented,
                                         cmark_parser *parser, cmark_node *container,
                                         unsigned char *line, int length)
{
    auto *const self =
        static_cast<MRVMarkdownSyntax *>(cmark_syntax_extension_get_private(extension));
    if (!self->m_root) {
        self->m_root = container;
        while (cmark_node_parent(self->m_root)) {
            self->m_root = cmark_node_parent(self->m_root);
        }
    }
    const int start = cmark_parser_get_first_nonspace(parser);
    if (indented || !self->m_parts.testFlag(DefinitionLists) || start + 2 >= length
        || line[start] != ':' || !isOneOf(line[start + 1], " \t")) {
        return nullptr;
    }
    const bool open = cmark_node_get_type(container) == CMARK_NODE_PARAGRAPH;
    cmark_node *list = container;
    if (mrvMarkdownRole(container) != MRVMarkdownRole::DefinitionList) {
        cmark_node *const term = open ? container : cmark_node_last_child(container);
        if (!isTerm(term, open, cmark_parser_get_line_number(parser))) {
            return nullptr;
        }
        list = listAfterTerm(container, parser, extension);
    }
    cmark_node *const definition = addBlock(parser, list, MRVMarkdownRole::Definition, extension);
    const int blanks = int(strspn(reinterpret_cast<char *>(line) + start + 1, " \t"));
    const int text = start + 1 + (blanks <= DefinitionIndent ? blanks : 1);
    cmark_parser_advance_offset(parser, reinterpret_cast<char *>(line),
                                text - cmark_parser_get_offset(parser), false);
    return definition;
}

int MRVMarkdownSyntax::continueBlock(cmark_syntax_extension *, cmark_parser *parser,
                                     unsigned char *line, int, cmark_node *container)
{
    if (mrvMarkdownRole(container) != MRVMarkdownRole::Definition
        || cmark_parser_is_blank(parser)) {
        return mrvMarkdownRole(container) != MRVMarkdownRole::Term;
    }
    const int indent = cmark_parser_get_indent(parser);
    if (indent < LeastDefinitionIndent) {
        return false;
    }
    cmark_parser_advance_offset(parser, reinterpret_cast<char *>(line),
                                qMin(indent, DefinitionIndent), true);
    return true;
}

// cmark asks here for the special characters of all extensions.
cmark_node *MRVMarkdownSyntax::matchInline(cmark_syntax_extension *extension, cmark_parser *,
                                           cmark_node *parent, unsigned char character,
                                           cmark_inline_parser *text)
{
    const auto *const self =
        static_cast<MRVMarkdownSyntax *>(cmark_syntax_extension_get_private(extension));
    if (character == '{' && cmark_node_get_type(parent) == CMARK_NODE_HEADING) {
        return headingId(text);
    }
    return (character == '~' || character == '^') && self->m_parts.testFlag(SubAndSuperscript)
        ? subOrSuperscript(character, isCell(parent), text)
        : nullptr;
}
