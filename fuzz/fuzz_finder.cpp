// Compares what MRVTextFinder finds with a slow second reading of the rules of the search, in
// arbitrary documents, for texts, expressions and formats.

#include "guiapplication.h"
#include "search/mrvtextfinder.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

using Finder = MRVTextFinder;

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// The rules of the search, read as slowly as they are written.

bool naiveInBlock(const QTextBlock &block, QRegExp expression, int offset, int flags,
                  MRVTextRange *found)
{
    QString text = block.text();
    text.replace(QChar(0xfffc), ' ').replace(QChar(0xa0), ' ');
    while (offset >= 0 && offset <= text.size()) {
        const int at =
            flags & 1 ? expression.lastIndexIn(text, offset) : expression.indexIn(text, offset);
        if (at < 0) {
            return false;
        }
        const int end = at + expression.matchedLength();
        const bool before = at > 0 && text.at(at - 1).isLetterOrNumber();
        const bool after = end < text.size() && text.at(end).isLetterOrNumber();
        if (!((flags & 4) && before) && !((flags & 8) && after)) {
            *found = MRVTextRange(block.position() + at, block.position() + end);
            return true;
        }
        offset = flags & 1 ? at - 1 : end + 1;
    }
    return false;
}

MRVTextRange naiveFind(const QTextDocument &document, const QRegExp &expression, int from,
                       int flags)
{
    MRVTextRange found(-1, -1);
    const int start = flags & 1 ? from - 1 : from;
    QTextBlock block = document.findBlock(start);
    if (start < 0 || expression.isEmpty() || !block.isValid()) {
        return found;
    }
    int offset = start - block.position();
    while (block.isValid() && !naiveInBlock(block, expression, offset, flags, &found)) {
        block = flags & 1 ? block.previous() : block.next();
        offset = flags & 1 ? block.length() - 1 : 0;
    }
    return found;
}

/// What one find after the other gives; behind an empty one a character further.
QVector<MRVTextRange> naiveFindAll(const QTextDocument &document, const QRegExp &expression,
                                   int flags)
{
    QVector<MRVTextRange> all;
    for (int from = 0;;) {
        const MRVTextRange found = naiveFind(document, expression, from, flags & ~1);
        if (found.start() < 0) {
            return all;
        }
        all << found;
        from = found.end() > found.start() ? found.end() : found.end() + 1;
    }
}

MRVTextRange rangeOf(const QTextCursor &cursor)
{
    return cursor.isNull() ? MRVTextRange(-1, -1) : MRVTextRange(cursor);
}

/// Texts of few different characters, so that patterns of the same ones often match.
QString someText(FuzzedDataProvider *bytes, int length)
{
    static const QString alphabet = QString::fromUtf8(
        "aaabbAB12  .,-\u00e9\u00c9\u03c3\u03c2\u03a3\u0130i\u017fsK\u212a\u00a0\ufffc\U00010400");
    QString text;
    while (length-- > 0) {
        text += alphabet.at(bytes->ConsumeIntegralInRange(0, alphabet.size() - 1));
    }
    return text;
}

void fill(QTextDocument *document, FuzzedDataProvider *bytes)
{
    QTextCursor cursor(document);
    for (int left = bytes->ConsumeIntegralInRange(0, 25); left > 0; --left) {
        QTextCharFormat format;
        const int kind = bytes->ConsumeIntegralInRange(0, 7);
        if (kind % 4 > 1) {
            format.setBackground(kind % 4 == 2 ? Qt::red : Qt::green);
        }
        format.setFontItalic(kind > 3);
        cursor.insertText(someText(bytes, bytes->ConsumeIntegralInRange(0, 7)), format);
        const int next = bytes->ConsumeIntegralInRange(0, 15);
        if (next < 4) {
            cursor.insertBlock();
        } else if (next == 4) { // long paragraphs are read in pieces
            cursor.insertText(QString(5000, u'x'));
        }
    }
}

void checkTexts(const QTextDocument &document, FuzzedDataProvider *bytes)
{
    static const char *const expressions[] = {"a+",    "\\w+",   "[ab]\\b", "^a",
                                              "b$",    "a*",     "(a|b)1",  "\\s\\S",
                                              "[^a]a", "\\d\\d", "x*y",     "a.b"};
    const int flags = bytes->ConsumeIntegralInRange(0, 15);
    const auto options = Finder::FindFlags(flags);
    const int from = bytes->ConsumeIntegralInRange(-1, document.characterCount() + 1);
    const QString text = someText(bytes, bytes->ConsumeIntegralInRange(1, 3));
    const QRegExp literal(text, flags & 2 ? Qt::CaseSensitive : Qt::CaseInsensitive,
                          QRegExp::FixedString);
    require(rangeOf(Finder::find(&document, text, from, options))
            == naiveFind(document, literal, from, flags));
    require(Finder::findAll(&document, text, options) == naiveFindAll(document, literal, flags));

    const QString pattern = bytes->PickValueInArray(expressions);
    const QRegExp expression(pattern, literal.caseSensitivity());
    const MRVTextRange expected = naiveFind(document, expression, from, flags);
    const QVector<MRVTextRange> all = naiveFindAll(document, expression, flags);
    require(rangeOf(Finder::find(&document, expression, from, options)) == expected);
    require(Finder::findAll(&document, expression, options) == all);
    // Half a character is a whole one for the other kind.
    if (!document.toPlainText().contains(QChar(0xd801))) {
        const QRegularExpression other(pattern,
                                       QRegularExpression::PatternOptions(flags & 2 ? 0 : 1));
        require(rangeOf(Finder::find(&document, other, from, options)) == expected);
        require(Finder::findAll(&document, other, options) == all);
    }
}

void checkFormats(const QTextDocument &document, bool values)
{
    const QBrush red(Qt::red);
    QTextCharFormat pattern;
    pattern.setBackground(red);
    QVector<MRVTextRange> fragments;
    QVector<MRVTextRange> runs;
    bool isInRun = false;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const int start = it.fragment().position();
            const int end = start + it.fragment().length();
            const QTextCharFormat format = it.fragment().charFormat();
            const bool wasInRun = isInRun;
            isInRun = values ? format.background() == red
                             : format.hasProperty(QTextFormat::BackgroundBrush);
            if (isInRun) {
                fragments << MRVTextRange(start, end);
                runs << MRVTextRange(wasInRun ? runs.takeLast().start() : start, end);
            }
        }
    }
    require(Finder::findAllFragments(&document, pattern, values) == fragments);
    const QVariant value = values ? QVariant(QColor(Qt::red)) : QVariant();
    require(Finder::findAllRuns(&document, Finder::FindHighlight, value) == runs);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider bytes(data, size);
    QTextDocument document;
    fill(&document, &bytes);
    checkTexts(document, &bytes);
    checkFormats(document, true);
    checkFormats(document, false);
    return 0;
}
