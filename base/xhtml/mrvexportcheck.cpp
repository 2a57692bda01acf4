#include "xhtml/mrvexportcheck.h"

#include "textformat/mrvtextformat.h"
#include "util/mrvlocalfile.h"
#include "xhtml/mrvhtmltag.h"
#include "xhtml/mrvhtmltext.h"

#include "core/mrvxmltext.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QUrl>

#include <algorithm>

namespace {

const QLatin1String LocalLinks("#"); // stands for their addresses

// What separates words, on either side. A writer may turn a blank into one that does not break.
bool isSeparator(ushort character)
{
    if (character > ' ' && character < 0xA0) {
        return false;
    }
    return character == ' ' || (character >= '\t' && character <= '\r') || character == 0xA0
        || character == QChar::LineSeparator || character == QChar::ParagraphSeparator
        || character == QChar::ObjectReplacementCharacter
        || (character >= 0xFDD0 && character <= 0xFDEF);
}

/** Calls @p take(word) for each word of a text. */
template<typename Take>
void forEachWord(const QString &text, const Take &take)
{
    const ushort *const begin = text.utf16();
    const ushort *const end = begin + text.size();
    for (const ushort *at = begin; at != end;) {
        const ushort *const wordBegin = at;
        while (at != end && !isSeparator(*at)) {
            ++at;
        }
        if (at != wordBegin) {
            take(QStringView(wordBegin, at));
        }
        at += at != end ? 1 : 0;
    }
}

// Of the words of a text, whatever is between them; 0 for a text without any (FNV-1a, 64 bits).
quint64 hashOf(const QString &text)
{
    constexpr quint64 Prime = 0x100000001b3;
    quint64 hash = 0;
    forEachWord(text, [&hash](QStringView word) {
        hash = hash == 0 ? 0xcbf29ce484222325 : hash;
        for (const QChar character : word) {
            hash = (hash ^ character.unicode()) * Prime;
        }
        hash = (hash ^ ' ') * Prime;
    });
    return hash;
}

QString wordsOf(const QString &text)
{
    QStringList words;
    forEachWord(text, [&words](QStringView word) { words.append(word.toString()); });
    return words.join(u' ');
}

// What is the whole text of a link to a note, or back from it: "12", "[12]", "12.".
bool isMark(const QString &text)
{
    static const QRegularExpression mark(QStringLiteral("^\\s*(?:\\d+\\.?|\\[\\d+\\])\\s*$"));
    return mark.match(text).hasMatch();
}

// Elements that stand within a paragraph and within a word.
bool isInline(const QString &element)
{
    static const QSet<QString> names = [] {
        const QStringList list =
            QStringLiteral("a abbr b bdi bdo big cite code del dfn em font i ins kbd mark q s samp "
                           "small span strike strong sub sup tt u var wbr")
                .split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return names.contains(element);
}

// An address in one form, whichever of its characters are encoded. Empty for what a book does not
// link to.
QString plainAddress(const QString &address, bool isBook)
{
    const bool hasScheme = !isBook || !address.startsWith(QLatin1String("//"));
    const QUrl url(mrvXmlText(hasScheme ? address : QLatin1String("https:") + address),
                   QUrl::TolerantMode);
    const QString scheme = url.scheme();
    const bool isWeb = (scheme.startsWith(QLatin1String("http")) || scheme == QLatin1String("ftp"))
        && !url.host().isEmpty();
    const bool isLinked =
        isWeb || scheme == QLatin1String("mailto") || scheme == QLatin1String("tel");
    return isBook && !isLinked ? QString() : QString::fromLatin1(url.toEncoded());
}

QString decoded(const QString &name)
{
    return QUrl::fromPercentEncoding(name.toUtf8());
}

} // namespace

/** Reads a page tag by tag. */
class MRVExportCheck::PageReader
{
public:
    PageReader(const QString &page, const QString &name, Content *content)
        : m_page(page)
        , m_name(name)
        , m_content(content)
    {
    }

    void read()
    {
        int at = qMax(0, m_page.indexOf(QLatin1String("<body")));
        while (at < m_page.size()) {
            const int tag = m_page.indexOf(u'<', at);
            const int textEnd = tag < 0 ? m_page.size() : tag;
            if (textEnd > at) {
                addText(QStringView(m_page).mid(at, textEnd - at));
            }
            at = tag < 0 ? textEnd : readTag(tag);
        }
        endParagraph();
    }

private:
    void addText(QStringView text)
    {
        if (text.indexOf(u'&') < 0) {
            m_text.append(text.data(), int(text.size()));
        } else {
            m_text += MRVHtmlText::unescaped(text);
        }
    }

    // Reads the tag or comment at @p begin and gives its end.
    int readTag(int begin)
    {
        if (m_page.midRef(begin, 4) == QLatin1String("<!--")) {
            const int end = m_page.indexOf(QLatin1String("-->"), begin);
            return end < 0 ? m_page.size() : end + 3;
        }
        const int end = tagEnd(begin);
        const bool isEnd = m_page.midRef(begin, 2) == QLatin1String("</");
        const QString name = nameAt(isEnd ? begin + 2 : begin + 1);
        if (name == QLatin1String("a")) {
            readLinkEdge(isEnd);
        }
        if (name == QLatin1String("br") || name == QLatin1String("img")) {
            m_text += u' ';
        } else if (!isInline(name)) {
            endParagraph();
        }
        // Few tags have what matters besides.
        if (!isEnd && end - begin > name.size() + 2) {
            readAttributes(name, QStringView(m_page).mid(begin, end - begin));
        }
        return end;
    }

    void readLinkEdge(bool isEnd)
    {
        if (!isEnd) {
            m_linkBegin = m_text.size();
        } else if (isMark(m_text.mid(m_linkBegin))) {
            m_plainText += m_text.midRef(m_plainEnd, m_linkBegin - m_plainEnd);
            m_plainEnd = m_text.size();
        }
    }

    int tagEnd(int begin) const
    {
        QChar quote;
        for (int at = begin; at < m_page.size(); ++at) {
            const QChar character = m_page.at(at);
            if (!quote.isNull()) {
                quote = character == quote ? QChar() : quote;
            } else if (character == u'"' || character == u'\'') {
                quote = character;
            } else if (character == u'>') {
                return at + 1;
            }
        }
        return m_page.size();
    }

    // A view, which lasts as long as the page.
    QString nameAt(int begin) const
    {
        int end = begin;
        while (end < m_page.size() && m_page.at(end).isLetterOrNumber()) {
            ++end;
        }
        return QString::fromRawData(m_page.constData() + begin, end - begin);
    }

    void readAttributes(const QString &name, QStringView tag)
    {
        const bool isLink = name == QLatin1String("a");
        const bool isPicture = name == QLatin1String("img") || name == QLatin1String("image");
        m_content->pictures += isPicture ? 1 : 0;
        if (!isLink && tag.indexOf(QLatin1String("id=")) < 0) {
            return;
        }
        const MRVHtmlTag parts = MRVHtmlTag::parsed(tag);
        for (const char *attribute : {"id", "name"}) {
            const QString value = MRVHtmlText::unescaped(parts.value(QLatin1String(attribute)));
            if (!value.isEmpty()) {
                m_content->names.insert(m_name + u'#' + decoded(value));
            }
        }
        const QString address = MRVHtmlText::unescaped(parts.value(QLatin1String("href")));
        if (isLink && !address.isEmpty()) {
            m_content->links.append({m_name, address});
        }
    }

    void endParagraph()
    {
        const bool hasMarks = m_plainEnd > 0;
        m_content->add(m_text, hasMarks ? m_plainText + m_text.midRef(m_plainEnd) : QString());
        m_text.resize(0);
        m_plainText.resize(0);
        m_plainEnd = 0;
        m_linkBegin = 0;
    }

    const QString &m_page;
    const QString m_name;
    Content *m_content;
    QString m_text; // of the paragraph so far
    QString m_plainText; // without the marks of notes, up to m_plainEnd of the text
    int m_plainEnd = 0;
    int m_linkBegin = 0; // of the last link
};

void MRVExportCheck::Content::add(const QString &paragraph, const QString &plainText)
{
    const QString text = mrvXmlText(paragraph);
    const quint64 hash = hashOf(text);
    if (hash != 0) {
        const QString plain = mrvXmlText(plainText);
        // A copy of its own, no longer than the text.
        paragraphs.append({QString(text.constData(), text.size()), hash, plain, hashOf(plain)});
    }
}

// How often each address on other machines is linked to. All other links count together, since the
// pages have other names than the documents.
QHash<QString, int> MRVExportCheck::Content::countedLinks(bool isBook) const
{
    QHash<QString, int> counts;
    QHash<QString, QString> plain; // of addresses that were met
    for (const Link &link : links) {
        const int hash = link.address.indexOf(u'#');
        const QString page = hash == 0 ? link.page : link.address.left(hash);
        if (MRV::isElsewhere(link.address)) {
            if (!plain.contains(link.address)) {
                plain.insert(link.address, plainAddress(link.address, isBook));
            }
            const QString address = plain.value(link.address);
            counts[address] += address.isEmpty() ? 0 : 1;
        } else if ((hash >= 0 && names.contains(page + u'#' + decoded(link.address.mid(hash + 1))))
                   || (hash != 0 && !isBook)) {
            ++counts[LocalLinks];
        }
    }
    return counts;
}

// The text of a paragraph. What a book shows of a picture on another machine is its alternative
// text.
QString MRVExportCheck::textOf(const QTextBlock &block) const
{
    QString text = block.text();
    if (m_target == Pages || !text.contains(QChar::ObjectReplacementCharacter)) {
        return text;
    }
    text.clear();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextImageFormat image = fragment.charFormat().toImageFormat();
        text += image.isValid() && MRV::isElsewhere(image.name())
            ? image.stringProperty(QTextFormat::ImageAltText).repeated(fragment.length())
            : fragment.text();
    }
    return text;
}

// Once, however many pieces of text it is about.
void MRVExportCheck::addFootnote(const QTextCharFormat &format, QSet<QString> *known)
{
    const QString text = format.stringProperty(MRVTextFormat::CommentData0);
    const QString note = format.property(MRVTextFormat::CommentData1).toString() + u'\n' + text;
    if (!known->contains(note)) {
        known->insert(note);
        for (const QString &paragraph : text.split(u'\n')) {
            m_expected.add(paragraph);
        }
    }
}

void MRVExportCheck::addDocument(const QTextDocument &document)
{
    const QString name = QString::number(++m_documents); // so that links do not mix
    QString address;
    QSet<QString> footnotes;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        m_expected.add(textOf(block));
        address.clear();
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = fragment.charFormat();
            const QTextImageFormat image = format.toImageFormat();
            if (format.boolProperty(MRVTextFormat::InspectorFootnoteProperty)) {
                addFootnote(format, &footnotes);
            }
            if (image.isValid() && !image.name().isEmpty()
                && (m_target == Pages || !MRV::isElsewhere(image.name()))) {
                m_expected.pictures += fragment.length();
            }
            const QString before = address;
            address = format.isAnchor() ? format.anchorHref() : QString();
            if (!address.isEmpty() && address != before) {
                m_expected.links.append({name, address});
            }
            for (const QString &anchor : format.anchorNames()) {
                m_expected.names.insert(name + u'#' + decoded(anchor));
            }
        }
    }
}

void MRVExportCheck::addPage(const QString &html, const QString &name)
{
    PageReader(html, name, &m_held).read();
}

// Words with and without a mark count as one of either.
void MRVExportCheck::addWords(const Paragraph &paragraph, QHash<QString, int> *counts)
{
    QHash<QString, int> own;
    forEachWord(paragraph.text, [&](QStringView word) {
        ++own[word.toString()];
        ++(*counts)[word.toString()];
    });
    QHash<QString, int> plain;
    forEachWord(paragraph.plainText, [&](QStringView view) {
        const QString word = view.toString();
        if (++plain[word] > own.value(word)) {
            ++(*counts)[word];
        }
    });
}

// Takes out of both what they have in common, by a hash of what the pages hold.
void MRVExportCheck::removeCommon(QVector<Paragraph> *expected, quint64 Paragraph::*heldHash,
                                  QVector<Paragraph> *held)
{
    QHash<quint64, int> counts; // of those in the pages
    for (const Paragraph &paragraph : qAsConst(*held)) {
        ++counts[paragraph.*heldHash];
    }
    QHash<quint64, int> common;
    const auto isMet = [&](const Paragraph &paragraph) {
        if (counts.value(paragraph.hash) == 0) {
            return false;
        }
        --counts[paragraph.hash];
        ++common[paragraph.hash];
        return true;
    };
    expected->erase(std::remove_if(expected->begin(), expected->end(), isMet), expected->end());
    const auto wasMet = [&](const Paragraph &paragraph) {
        return common[paragraph.*heldHash]-- > 0;
    };
    held->erase(std::remove_if(held->begin(), held->end(), wasMet), held->end());
}

QStringList MRVExportCheck::lostWords() const
{
    QVector<Paragraph> changed = m_expected.paragraphs;
    QVector<Paragraph> besides = m_held.paragraphs;
    removeCommon(&changed, &Paragraph::hash, &besides);
    removeCommon(&changed, &Paragraph::plainHash, &besides);
    QHash<QString, int> spare; // words of the pages that are in no paragraph that was met
    if (!changed.isEmpty()) {
        for (const Paragraph &paragraph : qAsConst(besides)) {
            addWords(paragraph, &spare);
        }
    }
    QStringList losses;
    for (const Paragraph &paragraph : qAsConst(changed)) {
        QStringList lost;
        forEachWord(paragraph.text, [&](QStringView word) {
            int &count = spare[word.toString()];
            if (count > 0) {
                --count;
            } else {
                lost.append(word.toString());
            }
        });
        if (!lost.isEmpty()) {
            constexpr int Shown = 40; // characters
            const QString beginning = wordsOf(paragraph.text).left(Shown).trimmed();
            losses.append(tr("not in what was written, of the paragraph \"%1\": %2")
                              .arg(beginning, lost.join(u' ')));
        }
    }
    return losses;
}

QStringList MRVExportCheck::lostLinks() const
{
    const QHash<QString, int> expected = m_expected.countedLinks(m_target == Book);
    const QHash<QString, int> held = m_held.countedLinks(m_target == Book);
    QStringList losses;
    for (auto it = expected.constBegin(); it != expected.constEnd(); ++it) {
        const int lost = it.value() - held.value(it.key());
        if (lost > 0 && it.key() == LocalLinks) {
            losses.append(
                tr("links within the text or to files that were not written: %1").arg(lost));
        } else if (lost > 0) {
            losses.append(tr("a link that was not written: %1").arg(it.key()));
        }
    }
    losses.sort(); // a hash has no order
    return losses;
}

QStringList MRVExportCheck::losses() const
{
    QStringList losses = lostWords() + lostLinks();
    if (m_held.pictures < m_expected.pictures) {
        losses.append(
            tr("pictures that were not written: %1").arg(m_expected.pictures - m_held.pictures));
    }
    return losses;
}
