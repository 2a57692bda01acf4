#include "editor/mrvtypingcorrection.h"

#include "options/mrvoptions.h"
#include "text/mrvtextcursor.h"

#include <QTextBlock>
#include <QTextCursor>

namespace {

/** What takes the place of the last characters of a text. */
struct Correction
{
    int length = 0; ///< of the text that goes; 0 for no correction
    QString text;
};

// A quote opens at the start of a paragraph and after a blank, a bracket, a dash or a quote.
bool opensQuote(const QString &before)
{
    static const QString openers = QStringLiteral("([{\u2013\u2014\u2018\u201c\u00ab\u201e\"'");
    return before.isEmpty() || before.back().isSpace() || openers.contains(before.back());
}

Correction quote(const QString &text, const QPair<QString, QString> &quotes)
{
    return {1, opensQuote(text.chopped(1)) ? quotes.first : quotes.second};
}

// The first letter of a sentence, once the word is complete; an apostrophe is within it.
Correction capital(const QString &text)
{
    const auto isOfWord = [](QChar c) {
        return c.isLetterOrNumber() || c == u'\'' || c == u'\u2019';
    };
    int start = text.size() - 1;
    while (start > 0 && isOfWord(text.at(start - 1))) {
        --start;
    }
    const bool isComplete = !isOfWord(text.back()) && start < text.size() - 1;
    const bool isApart = start == 0 || text.at(start - 1).isSpace();
    const QString before = text.left(start).trimmed();
    const bool begins = before.isEmpty() || QStringLiteral(".!?").contains(before.back());
    if (!isComplete || !isApart || !begins || !text.at(start).isLower()) {
        return {};
    }
    return {text.size() - start, text.at(start).toUpper() + text.mid(start + 1)};
}

Correction correctionOf(const QString &text, const MRVTypingOptions &options)
{
    const MRVAutoReplace entry = options.replacements.bestMatch(text);
    if (!entry.match.isEmpty()) {
        return {entry.match.size(), entry.replacement};
    }
    if (text.endsWith(u'"') && !options.doubleQuotes.first.isNull()) {
        return quote(text, options.doubleQuotes);
    }
    if (text.endsWith(u'\'') && !options.singleQuotes.first.isNull()) {
        return quote(text, options.singleQuotes);
    }
    if (options.emDashes && text.endsWith(QLatin1String("--"))) {
        return {2, QStringLiteral("\u2014")};
    }
    if (options.ellipses && text.endsWith(QLatin1String("..."))) {
        return {3, QStringLiteral("\u2026")};
    }
    return options.capitalizeSentences ? capital(text) : Correction();
}

} // namespace

MRVTypingOptions::MRVTypingOptions(const MRVOptions &options)
    : emDashes(options.value(MRVOptions::EmDashes))
    , ellipses(options.value(MRVOptions::Ellipses))
    , capitalizeSentences(options.value(MRVOptions::CapitalizeSentences))
{
    if (options.value(MRVOptions::EnableSubstitution)) {
        replacements = options.autoReplaceList();
    }
    if (options.value(MRVOptions::SmartQuotes)) {
        singleQuotes = options.singleQuotes();
        doubleQuotes = options.doubleQuotes();
    }
}

bool mrvCorrectTyping(const QTextCursor &cursor, const MRVTypingOptions &options)
{
    constexpr int LongestText = 200; // no match is longer, and a paragraph may be
    const int end = cursor.positionInBlock();
    const QString text =
        cursor.block().text().mid(qMax(0, end - LongestText), qMin(end, LongestText));
    if (cursor.isNull() || text.isEmpty()) {
        return false;
    }
    const Correction correction = correctionOf(text, options);
    if (correction.length == 0 || text.right(correction.length) == correction.text) {
        return false;
    }
    QTextCursor typed = cursor;
    typed.setPosition(cursor.position() - correction.length);
    typed.setPosition(cursor.position(), QTextCursor::KeepAnchor);
    MRVTextCursor::replaceText(typed, correction.text);
    return true;
}
