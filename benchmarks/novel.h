#pragma once

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <chrono>
#include <limits>
#include <memory>
#include <random>

/**
 * A generated novel: about 75 words a paragraph, five runs a paragraph, a comment every 250 words.
 * The same number of words gives the same novel.
 *
 * @param styles how many different styles the emphasised runs take in turn.
 */
inline std::unique_ptr<QTextDocument> novel(int words, int styles = 3)
{
    constexpr int WordsInParagraph = 75;
    constexpr int WordsInRun = 15;
    constexpr int WordsToComment = 250;
    constexpr int InspectorComment = 0x100066;
    static const char *vocabulary[] = {
        "harbour", "of",    "the",   "evening", "and",    "walked", "she", "lamp", "in",   "window",
        "nobody",  "spoke", "again", "a",       "letter", "under",  "his", "coat", "rain", "until"};
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setMetaInformation(QTextDocument::DocumentTitle, QStringLiteral("A novel"));
    QTextCursor cursor(document.get());
    std::mt19937 random(1); // not a distribution: those differ between libraries
    cursor.beginEditBlock();
    for (int word = 0; word < words;) {
        if (word > 0 && word % WordsInParagraph == 0) {
            cursor.insertBlock();
        }
        QString text;
        const int end = qMin(words, word + WordsInRun);
        const bool emphasised = (word / WordsInRun) % 2 == 1;
        const bool comment = word / WordsToComment != end / WordsToComment;
        for (; word < end; ++word) {
            text += QLatin1String(vocabulary[random() % std::size(vocabulary)])
                + (random() % 9 ? QLatin1String(" ") : QLatin1String(", "));
        }
        QTextCharFormat format;
        if (comment) {
            format.setProperty(InspectorComment, true);
            format.setBackground(Qt::yellow);
        } else if (emphasised) {
            const int style = int(random() % unsigned(styles));
            format.setFontItalic(true);
            format.setForeground(QColor(style % 256, style / 256, 0));
        }
        cursor.insertText(text, format);
    }
    cursor.endEditBlock();
    return document;
}

/**
 * Times two functions in turn, seven times each, and reports the smallest time of each side in
 * milliseconds and their ratio: the machine may be noisy, the comparison must not be. Before each
 * of them, @p prepare is called, which is not timed.
 */
template<typename Work, typename Peer, typename Prepare>
void compare(benchmark::State &state, Work work, Peer peer, Prepare prepare)
{
    constexpr int Repetitions = 7;
    auto milliseconds = [&](auto function) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        function();
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
            .count();
    };
    double ours = std::numeric_limits<double>::max();
    double theirs = ours;
    for (auto _ : state) {
        for (int i = 0; i < Repetitions; ++i) {
            theirs = std::min(theirs, milliseconds(peer));
            ours = std::min(ours, milliseconds(work));
        }
    }
    state.counters["ours_ms"] = ours;
    state.counters["peer_ms"] = theirs;
    state.counters["ratio"] = ours / theirs;
}

template<typename Work, typename Peer>
void compare(benchmark::State &state, Work work, Peer peer)
{
    compare(state, work, peer, [] {});
}
