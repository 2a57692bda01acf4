#include "html/mrvhtmlcheck_p.h"

#include "html/mrvhtmlelements_p.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>

namespace {

// What separates words in both a page and a document. Other spaces are characters of the text.
bool isSeparator(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r')
        || character == QChar::LineSeparator || character == QChar::ParagraphSeparator
        || character == QChar::ObjectReplacementCharacter
        || (character >= QChar(0xfdd0) && character <= QChar(0xfdef));
}

/** Words, put together from pieces of text. A novel has a million of them: few are copied. */
class Words
{
public:
    /** Calls @p take(word, line) for each word that ends in @p text, which begins in @p line. */
    template<typename Take>
    void add(const QString &text, int line, const Take &take)
    {
        int begin = 0;
        for (int at = 0; at <= text.size(); ++at) {
            const bool isEnd = at == text.size();
            if (!isEnd && !isSeparator(text.at(at))) {
                continue;
            }
            const QStringView piece = QStringView(text).mid(begin, at - begin);
            if (isEnd || !m_word.isEmpty()) {
                m_line = m_word.isEmpty() ? line : m_line;
                m_word.append(piece.data(), piece.size());
            } else if (!piece.isEmpty()) {
                take(piece, line);
            }
            if (!isEnd) {
                end(take);
                line += text.at(at) == u'\n' ? 1 : 0;
            }
            begin = at + 1;
        }
    }

    template<typename Take>
    void end(const Take &take)
    {
        if (!m_word.isEmpty()) {
            take(QStringView(m_word), m_line);
            m_word.resize(0);
        }
    }

private:
    QString m_word;
    int m_line = 0;
};

/** What a document holds, read paragraph by paragraph as it is asked for. */
class HeldContent
{
public:
    enum Kind { Word, Link, Picture };

    explicit HeldContent(const QTextDocument &document)
        : m_block(document.begin())
    {
    }

    /** Goes past @p item where it is the next one. */
    bool takeNext(Kind kind, QStringView item)
    {
        const bool isNext = holds(kind, 0, item);
        m_items[kind].first += isNext ? 1 : 0;
        return isNext;
    }

    /**
     * Goes to the next @p item and past it. What is held before it is passed over, a few steps at
     * most: where the page and the document go on alike.
     *
     * @param after goes past this one, too, which has to follow at once; null: anything may follow.
     */
    bool take(Kind kind, QStringView item, QStringView after = QStringView())
    {
        constexpr int Ahead = 64;
        for (int i = 0; i < Ahead; ++i) {
            if (holds(kind, i, item) && (after.isNull() || holds(kind, i + 1, after))) {
                m_items[kind].first += i + (after.isNull() ? 1 : 2);
                return true;
            }
        }
        return false;
    }

private:
    /** Texts that have not been taken, one after the other. */
    struct Items
    {
        QString text;
        QVector<QPair<int, int>> places; // begin and length in the text
        int first = 0; // that has not been taken

        QStringView at(int index) const
        {
            const QPair<int, int> &place = places.at(first + index);
            return QStringView(text).mid(place.first, place.second);
        }

        void append(QStringView item)
        {
            if (first == places.size()) {
                text.resize(0);
                places.resize(0);
                first = 0;
            }
            places.append({text.size(), int(item.size())});
            text.append(item.data(), int(item.size()));
        }
    };

    bool holds(Kind kind, int index, QStringView item)
    {
        Items &items = m_items[kind];
        while (items.first + index >= items.places.size() && m_block.isValid()) {
            readParagraph();
        }
        return items.first + index < items.places.size() && items.at(index) == item;
    }

    void readParagraph()
    {
        const auto append = [this](QStringView word, int) { m_items[Word].append(word); };
        m_words.add(m_block.text(), 0, append);
        m_words.end(append);
        for (auto it = m_block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (isPlain(fragment)) {
                m_address.clear();
                continue;
            }
            const QTextCharFormat format = fragment.charFormat();
            const QString address = format.isAnchor() ? format.anchorHref() : QString();
            if (address != m_address && !address.isEmpty()) {
                m_items[Link].append(address);
            }
            m_address = address;
            for (int i = 0; i < fragment.length() && format.isImageFormat(); ++i) {
                m_items[Picture].append(format.toImageFormat().name());
            }
        }
        m_block = m_block.next();
    }

    // Whether it is neither a link nor a picture; few formats are many fragments'.
    bool isPlain(const QTextFragment &fragment)
    {
        const int index = fragment.charFormatIndex();
        if (m_plain.size() <= index) {
            m_plain.resize(index + 1);
        }
        if (m_plain.at(index) == 0) {
            const QTextCharFormat format = fragment.charFormat();
            m_plain[index] = format.anchorHref().isEmpty() && !format.isImageFormat() ? 1 : 2;
        }
        return m_plain.at(index) == 1;
    }

    QTextBlock m_block;
    Words m_words;
    QString m_address;
    QVector<char> m_plain; // by format: 0 is unknown, 1 plain, 2 not
    Items m_items[3]; // by kind
};

/** Compares what a tree shows with what a document holds. */
class Comparison
{
public:
    Comparison(const MRVHtmlTree &tree, const MRVHtmlDisplays &displays,
               const QTextDocument &document, MRVHtmlReport *report)
        : m_tree(tree)
        , m_displays(displays)
        , m_held(document)
        , m_report(report)
    {
    }

    auto expectWord()
    {
        return [this](QStringView word, int line) { expectNextWord(word, line); };
    }

    void visit(const GumboNode *parent, const QString &address, bool isInvisible = false)
    {
        for (const GumboNode *child : MRVHtmlChildren(parent)) {
            if (mrvIsElement(child) && isCaption(child) && !isInvisible) {
                continue; // visited with its table
            }
            if (mrvIsElement(child)) {
                visitElement(child, address);
            } else if (isInvisible && child->type != GUMBO_NODE_COMMENT) {
                countHidden(mrvTextOf(child));
            } else if (child->type != GUMBO_NODE_COMMENT) {
                m_words.add(mrvShownText(mrvTextOf(child)), lineOf(child), expectWord());
                if (child->type != GUMBO_NODE_WHITESPACE) {
                    expectLink(address, lineOf(child));
                }
            }
        }
    }

    void endWord() { m_words.end(expectWord()); }

    /** To be called when all has been visited. */
    void finish()
    {
        endWord();
        if (!m_awaited.isEmpty()) {
            expect(HeldContent::Word, m_awaited, m_awaitedLine);
        }
    }

private:
    // A word that is not the next one has to be found together with the one that follows it, as
    // many words are frequent: one that is missing would else be found where it comes again.
    void expectNextWord(QStringView word, int line)
    {
        if (!m_awaited.isEmpty()) {
            const bool isFound = m_held.take(HeldContent::Word, m_awaited, word);
            if (!isFound) {
                addLoss(m_awaited, m_awaitedLine);
            }
            m_awaited.resize(0);
            if (isFound) {
                return;
            }
        }
        if (!m_held.takeNext(HeldContent::Word, word)) {
            m_awaited.append(word.data(), int(word.size()));
            m_awaitedLine = line;
        }
    }

    // That of the page, or of the Markdown that it was made of, by paragraphs.
    int lineOf(const GumboNode *node) const { return m_line > 0 ? m_line : mrvLineOf(node); }

    void expectLink(const QString &address, int line)
    {
        if (address != m_address && !address.isEmpty()) {
            expect(HeldContent::Link, address, line);
        }
        m_address = address;
    }

    void expect(HeldContent::Kind kind, QStringView item, int line)
    {
        if (!m_held.take(kind, item)) {
            addLoss(item, line);
        }
    }

    void addLoss(QStringView item, int line)
    {
        QVector<MRVHtmlLoss> &losses = m_report->losses;
        if (!losses.isEmpty() && losses.constLast().line == line) {
            losses.last().what += u' ' + item.toString();
        } else {
            losses.append({line, item.toString()});
        }
    }

    void countHidden(const QString &text)
    {
        const auto count = [this](QStringView, int) { ++m_report->hiddenWords; };
        Words words;
        words.add(text, 0, count);
        words.end(count);
    }

    void visitElement(const GumboNode *element, const QString &address)
    {
        const MRVHtmlElement &kind = mrvHtmlElement(element);
        const MRVHtmlShown shown = m_displays.value(element, {kind.display, false});
        const MRVHtmlStyle::Display display = shown.display;
        if (kind.kind == MRVHtmlElement::Skipped) {
            return;
        }
        const QString place = mrvAttributeOf(element, "data-sourcepos");
        m_line = place.isEmpty() ? m_line : place.section(u':', 0, 0).toInt();
        if (display == MRVHtmlStyle::Hidden) {
            countHidden(mrvTextIn(element));
            return;
        }
        if (shown.isInvisible) {
            visitInvisible(element, display, address);
            return;
        }
        const bool isSeparate = display != MRVHtmlStyle::Inline
            || kind.kind == MRVHtmlElement::LineEnd || kind.kind == MRVHtmlElement::Rule
            || kind.kind == MRVHtmlElement::Table || mrvIsPicture(element) || mrvIsField(element);
        if (isSeparate) {
            endWord();
        }
        if (kind.kind == MRVHtmlElement::Picture
            && !m_report->pictureLines.contains(mrvPictureName(element))) {
            m_report->pictureLines.insert(mrvPictureName(element), lineOf(element));
        }
        m_words.add(m_marks.before(element), lineOf(element), expectWord());
        visitInside(element, address);
        m_words.add(m_marks.after(element), lineOf(element), expectWord());
        if (isSeparate) {
            endWord();
        }
    }

    void visitInside(const GumboNode *element, const QString &address)
    {
        if (mrvIsPicture(element)) {
            expect(HeldContent::Picture, mrvPictureName(element), lineOf(element));
            expectLink(address, lineOf(element));
            return;
        }
        // A drawing shows nothing in the place of a picture.
        if (mrvIsImage(element) && element->v.element.tag_namespace == GUMBO_NAMESPACE_HTML) {
            m_words.add(mrvShownText(mrvAttributeOf(element, "alt")), lineOf(element),
                        expectWord());
        }
        if (mrvIsElement(element, GUMBO_TAG_TABLE)) {
            visitCaptions(element, address);
        }
        m_words.add(mrvFieldText(element), lineOf(element), expectWord());
        const QString own = m_tree.addressOf(element);
        visit(element, own.isEmpty() ? address : own);
    }

    // As the document is built: what is visible inside of it counts, and its box does not.
    void visitInvisible(const GumboNode *element, MRVHtmlStyle::Display display,
                        const QString &address)
    {
        if (mrvHtmlElement(element).kind == MRVHtmlElement::Picture) {
            countHidden(mrvTextIn(element));
            return;
        }
        if (display != MRVHtmlStyle::Inline) {
            endWord();
        }
        const QString own = m_tree.addressOf(element);
        visit(element, own.isEmpty() ? address : own, true);
        if (display != MRVHtmlStyle::Inline) {
            endWord();
        }
    }

    static bool isCaption(const GumboNode *node)
    {
        return mrvIsElement(node, GUMBO_TAG_CAPTION) && mrvIsElement(node->parent, GUMBO_TAG_TABLE);
    }

    // They are shown before the rows, wherever they stand among them.
    void visitCaptions(const GumboNode *table, const QString &address)
    {
        for (const GumboNode *child : MRVHtmlChildren(table)) {
            if (isCaption(child)) {
                visitElement(child, address);
            }
        }
    }

    const MRVHtmlTree &m_tree;
    const MRVHtmlDisplays &m_displays;
    HeldContent m_held;
    MRVHtmlReport *m_report;
    Words m_words;
    QString m_awaited; // a word that was not the next one; empty for none
    int m_awaitedLine = 0;
    QString m_address;
    int m_line = 0; // of Markdown; 0: there is none
    MRVHtmlMarks m_marks;
};

} // namespace

void mrvCheckDocument(const MRVHtmlTree &tree, const MRVHtmlDisplays &displays,
                      const QTextDocument &document, MRVHtmlReport *report)
{
    Comparison comparison(tree, displays, document, report);
    comparison.visit(tree.root(), QString());
    comparison.finish();
}
