#include "markdown/mrvmarkdown.h"

#include "markdown/mrvfrontmatter_p.h"
#include "markdown/mrvmarkdowncost_p.h"
#include "markdown/mrvmarkdownplaces_p.h"
#include "markdown/mrvmarkdownraw_p.h"
#include "markdown/mrvmarkdownsyntax_p.h"
#include "markdown/mrvmarkdowntree_p.h"
#include "markdown/mrvsmartpunctuation_p.h"

#include <QPair>
#include <QSet>

#include <cctype>
#include <cstring>
#include <memory>

namespace {

using NodePointer = std::unique_ptr<cmark_node, decltype(&cmark_node_free)>;
using ParserPointer = std::unique_ptr<cmark_parser, decltype(&cmark_parser_free)>;
using BytesPointer = std::unique_ptr<char, decltype(&free)>;

using Place = QPair<int, int>; // line and column

constexpr const char *extensions[] = {"table", "strikethrough", "autolink", "tasklist"};

// cmark's own smart punctuation pairs quotes in quadratic time.
int flagsOf(MRVMarkdown::Options options)
{
    return CMARK_OPT_UNSAFE | CMARK_OPT_SOURCEPOS | CMARK_OPT_STRIKETHROUGH_DOUBLE_TILDE
        | CMARK_OPT_FULL_INFO_STRING
        | (options.testFlag(MRVMarkdown::Footnotes) ? CMARK_OPT_FOOTNOTES : CMARK_OPT_DEFAULT);
}

MRVMarkdownSyntax::Parts partsOf(MRVMarkdown::Options options)
{
    MRVMarkdownSyntax::Parts parts;
    parts.setFlag(MRVMarkdownSyntax::DefinitionLists,
                  options.testFlag(MRVMarkdown::DefinitionLists));
    parts.setFlag(MRVMarkdownSyntax::SubAndSuperscript,
                  options.testFlag(MRVMarkdown::SubAndSuperscript));
    return parts;
}

/** Leaves the backslash at what smart punctuation would change. */
int isEscapable(char c)
{
    return (ispunct(static_cast<unsigned char>(c)) && !strchr("\"'-.", c));
}

Place placeOf(cmark_node *node)
{
    return {cmark_node_get_start_line(node), cmark_node_get_start_column(node)};
}

QSet<Place> notesOf(cmark_node *root)
{
    QSet<Place> places;
    mrvVisitMarkdownTree(root, [&places](cmark_node *node, bool left) {
        if (!left && cmark_node_get_type(node) == CMARK_NODE_FOOTNOTE_DEFINITION) {
            places.insert(placeOf(node));
        }
    });
    return places;
}

/** Makes the notes at @p places of @p text paragraphs. */
void replaceNotes(const QSet<Place> &places, const QByteArray &text, cmark_node *root)
{
    if (places.isEmpty()) {
        return;
    }
    const QByteArrayList lines = text.split('\n');
    mrvVisitMarkdownTree(root, [&](cmark_node *node, bool left) {
        const Place place = placeOf(node);
        if (!left || cmark_node_get_type(node) != CMARK_NODE_FOOTNOTE_DEFINITION
            || !places.contains(place)) {
            return;
        }
        // A note begins after its name, which cmark does not tell.
        const QByteArray before = lines.value(place.first - 1).left(place.second - 1);
        cmark_node_set_type(node, CMARK_NODE_CUSTOM_BLOCK);
        mrvSetMarkdownRole(node, MRVMarkdownRole::LostNote);
        cmark_node_set_on_enter(node, before.mid(before.lastIndexOf("[^")).constData());
    });
}

/**
 * The HTML of @p text, whose notes at @p plain are text. cmark leaves out the notes that nothing
 * refers to: these are added to @p plain, and the result is of no use.
 *
 * @param places may be null; else it gets the places of the text.
 */
QString convert(const QByteArray &text, MRVMarkdown::Options options, QSet<Place> *plain,
                MRVMarkdownPlaces *places)
{
    const int flags = flagsOf(options);
    MRVMarkdownSyntax syntax(partsOf(options));
    const ParserPointer parser(cmark_parser_new(flags), cmark_parser_free);
    syntax.attachTo(parser.get());
    for (const char *name : extensions) {
        cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension(name));
    }
    if (options.testFlag(MRVMarkdown::SmartPunctuation)) {
        cmark_parser_set_backslash_ispunct_func(parser.get(), isEscapable);
    }
    cmark_parser_feed(parser.get(), text.constData(), size_t(text.size()));
    QSet<Place> notes;
    if (syntax.root()) {
        replaceNotes(*plain, text, syntax.root());
        notes = notesOf(syntax.root());
    }
    const NodePointer root(cmark_parser_finish(parser.get()), cmark_node_free);
    plain->unite(notes.subtract(notesOf(root.get())));
    if (places) {
        places->find(root.get());
    }
    mrvCompleteMarkdownTree(root.get());
    mrvEscapeOpenTags(root.get());
    if (options.testFlag(MRVMarkdown::SmartPunctuation)) {
        mrvSmartenPunctuation(root.get());
    }
    if (places) {
        places->setMarks(root.get());
    }
    const BytesPointer html(
        cmark_render_html(root.get(), flags, cmark_parser_get_syntax_extensions(parser.get())),
        free);
    const QString page = QString::fromUtf8(html.get());
    return places ? places->takeMarks(page) : page;
}

/**
 * UTF-8 with one kind of line end, and without the halves of surrogate pairs, of which Qt makes
 * question marks.
 */
QByteArray toUtf8(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size()
            && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (text.at(i).isSurrogate()) {
            text[i] = QChar::ReplacementCharacter;
        }
    }
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n').toUtf8();
}

/** The offset in @p markdown of each byte of what toUtf8() made of it, metadata apart. */
QVector<int> offsetsOf(const QByteArray &text, const QString &markdown)
{
    QVector<int> offsets;
    offsets.reserve(text.size() + 1);
    int at = 0;
    for (const char byte : text) {
        if (byte == '\n') {
            while (at < markdown.size() && markdown.at(at) != u'\n' && markdown.at(at) != u'\r') {
                ++at; // of the metadata, of which the line ends are left
            }
            offsets.append(at);
            at += QStringView(markdown).mid(at).startsWith(QLatin1String("\r\n")) ? 2 : 1;
        } else if ((byte & 0xc0) == 0x80) {
            offsets.append(at);
        } else {
            offsets.append(at);
            at += uchar(byte) >= 0xf0 ? 2 : 1;
        }
    }
    offsets.append(at);
    return offsets;
}

MRVSourcePlaces placesIn(const QString &markdown, const QByteArray &text, MRVSourcePlaces places)
{
    const QVector<int> offsets = offsetsOf(text, markdown);
    for (MRVSourcePlace &place : places) {
        if (place.isKnown()) {
            const int end = offsets.at(place.end());
            place.start = offsets.at(place.start);
            place.length = end - place.start;
        }
    }
    return places;
}

} // namespace

QString MRVMarkdown::takeHead(const QString &markdown, MRVMarkdownHead *head)
{
    *head = MRVMarkdownHead();
    return mrvTakeFrontMatter(markdown, head);
}

QString MRVMarkdown::toHtml(const QString &markdown, Options options, MRVMarkdownHead *head,
                            MRVSourcePlaces *places)
{
    MRVMarkdownHead read;
    const QByteArray text = toUtf8(mrvTakeFrontMatter(markdown, &read));
    if (head) {
        *head = read;
    }
    if (mrvIsCostlyMarkdown(text)) {
        return QString();
    }
    cmark_gfm_core_extensions_ensure_registered();
    QSet<Place> plain;
    MRVMarkdownPlaces found(text);
    for (;;) {
        const int known = plain.size();
        const QString html = convert(text, options, &plain, places ? &found : nullptr);
        if (plain.size() == known) {
            if (places) {
                *places = placesIn(markdown, text, found.places());
            }
            return html;
        }
    }
}
