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

/** Words, put together from pieces of text. */
class Words
{
public:
    /** Calls @p take(word, line) for each word that ends in @p text, which begins in @p line. */
    template<typename Take>
    void add(const QString &text, int line, const Take &take)
    {
        for (const QChar character : text) {
            if (isSeparator(character)) {
                end(take);
                line += character == u'\n' ? 1 : 0;
            } else {
                m_line = m_word.isEmpty() ? line : m_line;
                m_word += character;
            }
        }
    }

    template<typename Take>
    void end(const Take &take)
    {
        if (!m_word.isEmpty()) {
            take(m_word, m_line);
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

    /**
     * Goes to the next @p item and past it. What is held before it is passed over, a few steps at
     * most: where the page and the document go on alike.
     */
    bool take(Kind kind, const QString &item)
    {
        constexpr int Ahead = 64;
        QStringList &items = m_items[kind];
        for (int i = 0; i < Ahead; ++i) {
            while (i >= items.size() && m_block.isValid()) {
                readParagraph();
            }
            if (i >= items.size()) {
                return false;
            }
            if (items.at(i) == item) {
                items.erase(items.begin(), items.begin() + i + 1);
                return true;
            }
        }
        return false;
    }

private:
    void readParagraph()
    {
        const auto take = [this](const QString &word, int) { m_items[Word].append(word); };
        for (auto it = m_block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = fragment.charFormat();
            m_words.add(fragment.text(), 0, take);
            const QString address = format.isAnchor() ? format.anchorHref() : QString();
            if (address != m_address && !address.isEmpty()) {
                m_items[Link].append(address);
            }
            m_address = address;
            for (int i = 0; i < fragment.length() && format.isImageFormat(); ++i) {
                m_items[Picture].append(format.toImageFormat().name());
            }
        }
        m_words.end(take);
        m_block = m_block.next();
    }

    QTextBlock m_block;
    Words m_words;
    QString m_address;
    QStringList m_items[3]; // not taken yet, by kind
};

/** Compares what a tree shows with what a document holds. */
class Comparison
{
public:
    Comparison(const MRVHtmlDisplays &displays, const QTextDocument &document,
               MRVHtmlReport *report)
        : m_displays(displays)
        , m_held(document)
        , m_report(report)
    {
    }

    auto expectWord()
    {
        return [this](const QString &word, int line) { expect(HeldContent::Word, word, line); };
    }

    void visit(const GumboNode *parent, const QString &address)
    {
        for (const GumboNode *child : MRVHtmlChildren(parent)) {
            if (mrvIsElement(child)) {
                visitElement(child, address);
            } else if (child->type != GUMBO_NODE_COMMENT) {
                m_words.add(mrvShownText(mrvTextOf(child)), lineOf(child), expectWord());
                if (child->type != GUMBO_NODE_WHITESPACE) {
                    expectLink(address, lineOf(child));
                }
            }
        }
    }

    void endWord() { m_words.end(expectWord()); }

private:
    // That of the page, or of the Markdown that it was made of, by paragraphs.
    int lineOf(const GumboNode *node) const { return m_line > 0 ? m_line : mrvLineOf(node); }

    void expectLink(const QString &address, int line)
    {
        if (address != m_address && !address.isEmpty()) {
            expect(HeldContent::Link, address, line);
        }
        m_address = address;
    }

    void expect(HeldContent::Kind kind, const QString &item, int line)
    {
        QVector<MRVHtmlLoss> &losses = m_report->losses;
        if (m_held.take(kind, item)) {
            return;
        }
        if (!losses.isEmpty() && losses.constLast().line == line) {
            losses.last().what += u' ' + item;
        } else {
            losses.append({line, item});
        }
    }

    void visitElement(const GumboNode *element, const QString &address)
    {
        const MRVHtmlElement &kind = mrvHtmlElement(element);
        const MRVHtmlStyle::Display display = m_displays.value(element, kind.display);
        if (kind.kind == MRVHtmlElement::Skipped) {
            return;
        }
        const QString place = mrvAttributeOf(element, "data-sourcepos");
        m_line = place.isEmpty() ? m_line : place.section(u':', 0, 0).toInt();
        if (display == MRVHtmlStyle::Hidden) {
            const auto count = [this](const QString &, int) { ++m_report->hiddenWords; };
            Words words;
            words.add(mrvTextIn(element), 0, count);
            words.end(count);
            return;
        }
        const bool isSeparate = display != MRVHtmlStyle::Inline
            || kind.kind == MRVHtmlElement::LineEnd || kind.kind == MRVHtmlElement::Picture
            || mrvIsField(element) || mrvIsDrawn(element);
        if (isSeparate) {
            endWord();
        }
        const bool isQuotation = kind.kind == MRVHtmlElement::Quotation;
        if (isQuotation) {
            m_words.add(mrvQuotationMark(true, m_quotations++), m_line, expectWord());
        }
        if (mrvIsElement(element, GUMBO_TAG_IMG)) {
            visitPicture(element, address);
        } else if (kind.kind != MRVHtmlElement::Picture) {
            const QString own = mrvAddressOf(element);
            visit(element, own.isEmpty() ? address : own);
        }
        if (isQuotation) {
            m_words.add(mrvQuotationMark(false, --m_quotations), m_line, expectWord());
        }
        if (isSeparate) {
            endWord();
        }
    }

    void visitPicture(const GumboNode *element, const QString &address)
    {
        const QString name = mrvAttributeOf(element, "src").trimmed();
        if (!name.isEmpty()) {
            expect(HeldContent::Picture, name, lineOf(element));
            expectLink(address, lineOf(element));
        }
    }

    const MRVHtmlDisplays &m_displays;
    HeldContent m_held;
    MRVHtmlReport *m_report;
    Words m_words;
    QString m_address;
    int m_line = 0; // of Markdown; 0: there is none
    int m_quotations = 0; // around this place
};

} // namespace

void mrvCheckDocument(const MRVHtmlTree &tree, const MRVHtmlDisplays &displays,
                      const QTextDocument &document, MRVHtmlReport *report)
{
    Comparison comparison(displays, document, report);
    comparison.visit(tree.root(), QString());
    comparison.endWord();
}
