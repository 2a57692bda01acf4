#include "manuscript/mrvmanuscriptreader.h"
#include "manuscript/mrvsourceedit.h"
#include "novel.h"
#include "search/mrvfindsession.h"
#include "search/mrvtextfinder.h"
#include "search/mrvtextreplacer.h"
#include "textformat/mrvtextformat.h"

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QRegExp>
#include <QRegularExpression>
#include <QTextBlock>

#include <cstdio>
#include <cstdlib>
#include <map>

using Finder = MRVTextFinder;

namespace {

QTextDocument *novelOf(int words)
{
    static std::map<int, std::unique_ptr<QTextDocument>> novels;
    auto &document = novels[words];
    if (!document) {
        document = novel(words);
    }
    return document.get();
}

/// All words in one paragraph; every second one is a find.
QTextDocument *hugeParagraph(int words)
{
    static std::map<int, std::unique_ptr<QTextDocument>> documents;
    auto &document = documents[words];
    if (!document) {
        document = std::make_unique<QTextDocument>(QStringLiteral("lamp of ").repeated(words / 2));
    }
    return document.get();
}

/// Both sides must find the same, or their times mean nothing.
void check(int ours, int theirs)
{
    if (ours != theirs) {
        std::fprintf(stderr, "%d finds, the peer has %d\n", ours, theirs);
        std::exit(1);
    }
}

template<typename Pattern>
int qtCount(const QTextDocument *document, const Pattern &pattern,
            QTextDocument::FindFlags flags = QTextDocument::FindFlags())
{
    int count = 0;
    for (QTextCursor c; !(c = document->find(pattern, c, flags)).isNull();) {
        ++count;
    }
    return count;
}

template<typename Pattern>
int ourCount(const QTextDocument *document, const Pattern &pattern,
             Finder::FindFlags flags = Finder::FindFlags())
{
    int count = 0;
    for (QTextCursor c; !(c = Finder::find(document, pattern, c, flags)).isNull();) {
        ++count;
    }
    return count;
}

template<typename Work, typename Peer>
void compareCounts(benchmark::State &state, Work work, Peer peer)
{
    check(work(), peer());
    compare(
        state, [&] { benchmark::DoNotOptimize(work()); },
        [&] { benchmark::DoNotOptimize(peer()); });
}

struct Literal
{
    const char *text;
    Finder::FindFlags flags;
    QTextDocument::FindFlags peerFlags;
};

const Literal &literal(int64_t index)
{
    static const Literal literals[] = {
        {"evening", Finder::FindCaseSensitively, QTextDocument::FindCaseSensitively},
        {"evening", {}, {}},
        {"evening", Finder::FindCaseSensitively | Finder::FindWholeWords,
         QTextDocument::FindCaseSensitively | QTextDocument::FindWholeWords},
        // Rarely found, so that fetching the text is most of the work.
        {"letter, window", Finder::FindCaseSensitively, QTextDocument::FindCaseSensitively},
        {"letter, window", {}, {}},
        {"rainy", Finder::FindCaseSensitively, QTextDocument::FindCaseSensitively},
    };
    return literals[index];
}

void findAllLiteral(benchmark::State &state)
{
    const QTextDocument *document = novelOf(int(state.range(0)));
    const Literal &row = literal(state.range(1));
    const QString text = QLatin1String(row.text);
    compareCounts(
        state, [&] { return Finder::findAll(document, text, row.flags).size(); },
        [&] { return qtCount(document, text, row.peerFlags); });
}

void loopOfLiteralFinds(benchmark::State &state)
{
    const QTextDocument *document = novelOf(int(state.range(0)));
    const Literal &row = literal(state.range(1));
    const QString text = QLatin1String(row.text);
    compareCounts(
        state, [&] { return ourCount(document, text, row.flags); },
        [&] { return qtCount(document, text, row.peerFlags); });
}

void findAllQRegExp(benchmark::State &state)
{
    const QTextDocument *document = novelOf(int(state.range(0)));
    const QRegExp expression(QStringLiteral("even\\w+"));
    compareCounts(
        state, [&] { return Finder::findAll(document, expression).size(); },
        [&] { return qtCount(document, expression); });
}

void findAllQRegularExpression(benchmark::State &state)
{
    const QTextDocument *document = novelOf(int(state.range(0)));
    const QString pattern = QStringLiteral("even\\w+");
    compareCounts(
        state, [&] { return Finder::findAll(document, QRegularExpression(pattern)).size(); },
        [&] { return qtCount(document, QRegExp(pattern)); });
}

void loopOfQRegularExpressionFinds(benchmark::State &state)
{
    const QTextDocument *document = novelOf(int(state.range(0)));
    const QRegularExpression expression(QStringLiteral("even\\w+"));
    compareCounts(
        state, [&] { return ourCount(document, expression); },
        [&] { return qtCount(document, expression); });
}

void findAllInHugeParagraph(benchmark::State &state)
{
    const QTextDocument *document = hugeParagraph(int(state.range(0)));
    const QString text = QStringLiteral("lamp");
    compareCounts(
        state, [&] { return Finder::findAll(document, text, Finder::FindCaseSensitively).size(); },
        [&] { return qtCount(document, text, QTextDocument::FindCaseSensitively); });
}

void loopInHugeParagraph(benchmark::State &state)
{
    const QTextDocument *document = hugeParagraph(int(state.range(0)));
    const QString text = QStringLiteral("lamp");
    compareCounts(
        state, [&] { return ourCount(document, text, Finder::FindCaseSensitively); },
        [&] { return qtCount(document, text, QTextDocument::FindCaseSensitively); });
}

QTextCharFormat commentPattern()
{
    QTextCharFormat pattern;
    pattern.setProperty(MRVTextFormat::InspectorCommentProperty, true);
    return pattern;
}

/// One fragment search as it is written down, without anything remembered.
QTextCursor plainFragment(QTextDocument *document, const QTextCharFormat &pattern, int from)
{
    for (QTextBlock block = document->findBlock(from); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.position() + fragment.length() > from
                && MRVTextFormat::formatsMatch(fragment.charFormat(), pattern, true)) {
                QTextCursor cursor(document);
                cursor.setPosition(qMax(from, fragment.position()));
                cursor.setPosition(fragment.position() + fragment.length(),
                                   QTextCursor::KeepAnchor);
                return cursor;
            }
        }
    }
    return QTextCursor();
}

int plainCount(QTextDocument *document, const QTextCharFormat &pattern)
{
    int count = 0;
    for (QTextCursor c(document);
         !(c = plainFragment(document, pattern, c.selectionEnd())).isNull();) {
        ++count;
    }
    return count;
}

void collectRuns(benchmark::State &state)
{
    QTextDocument *document = novelOf(int(state.range(0)));
    const QTextCharFormat pattern = commentPattern();
    compareCounts(
        state, [&] { return Finder::findAllFragments(document, pattern, true).size(); },
        [&] { return plainCount(document, pattern); });
}

void loopOfFragmentFinds(benchmark::State &state)
{
    QTextDocument *document = novelOf(int(state.range(0)));
    const QTextCharFormat pattern = commentPattern();
    compareCounts(
        state,
        [&] {
            int count = 0;
            for (QTextCursor c(document); !(c = Finder::findFragment(pattern, c, true)).isNull();) {
                ++count;
            }
            return count;
        },
        [&] { return plainCount(document, pattern); });
}

/// Every find replaced there and back, so that each round begins with the same document. The peer
/// is the usual loop in one edit block.
void replaceAll(benchmark::State &state)
{
    const auto ours = novel(int(state.range(0)));
    const auto theirs = novel(int(state.range(0)));
    if (state.range(1)) {
        for (QTextDocument *document : {ours.get(), theirs.get()}) {
            document->setPageSize(QSizeF(600, 800));
            document->documentLayout()->documentSize();
        }
    }
    MRVTextQuery there;
    there.text = QStringLiteral("evening");
    there.flags = Finder::FindCaseSensitively;
    MRVTextQuery back = there;
    back.text = QStringLiteral("afternoon");
    compareCounts(
        state,
        [&] {
            const int count = MRVTextReplacer::replaceAll(ours.get(), there, back.text);
            return count + MRVTextReplacer::replaceAll(ours.get(), back, there.text);
        },
        [&] {
            int count = 0;
            for (const auto &[from, to] :
                 {std::pair(there.text, back.text), std::pair(back.text, there.text)}) {
                QTextCursor c(theirs.get());
                c.beginEditBlock();
                for (QTextCursor find = c;
                     !(find = theirs->find(from, find, QTextDocument::FindCaseSensitively))
                          .isNull();) {
                    find.insertText(to);
                    ++count;
                }
                c.endEditBlock();
            }
            return count;
        });
}

/// Replacing in the source of a page, beside finding the same in it.
void replaceInSource(benchmark::State &state)
{
    const QByteArray html = novelOf(int(state.range(0)))->toHtml().toUtf8();
    MRVTextQuery query;
    query.text = QStringLiteral("lamp");
    MRVManuscriptReader reader;
    reader.setPurpose(MRVManuscriptReader::Editing);
    MRVManuscript manuscript;
    const auto changes = [&] {
        if (!reader.readBytes(html, QStringLiteral("novel"), QString(), &manuscript)) {
            std::fprintf(stderr, "%s\n", qPrintable(reader.errorString()));
            std::exit(1);
        }
        return MRVTextReplacer::preview(manuscript.document.get(), query,
                                        QStringLiteral("lantern"));
    };
    compare(
        state,
        [&] {
            QByteArray changed;
            if (!MRVSourceEdit::changedBytes(manuscript, changes(), MRVSourceEdit::KeepMarkup,
                                             &changed)) {
                std::exit(1);
            }
        },
        [&] { changes(); });
}

/// The longest time that a find bar takes at once while somebody types into it, beside all of it.
void typeInFindBar(benchmark::State &state)
{
    QTextDocument *document = novelOf(int(state.range(0)));
    const QString text = QStringLiteral("letter, window");
    qint64 longest = 0;
    for (auto _ : state) {
        for (int length = 1; length <= text.size(); ++length) {
            QElapsedTimer clock;
            clock.start();
            MRVFindSession session(document);
            MRVTextQuery query;
            query.text = text.left(length);
            session.setQuery(query, QTextCursor());
            for (bool isComplete = false; !isComplete; clock.start()) {
                isComplete = session.advance(8);
                longest = qMax(longest, clock.nsecsElapsed());
            }
        }
    }
    state.counters["longest_ms"] = double(longest) / 1e6;
}

const std::vector<int64_t> sizes{10000, 100000, 1000000};

} // namespace

#define MRV_SEARCH_BENCHMARK(name) BENCHMARK(name)->Iterations(1)->Unit(benchmark::kMillisecond)

MRV_SEARCH_BENCHMARK(findAllLiteral)->ArgsProduct({sizes, {0, 1, 2, 3, 4, 5}});
MRV_SEARCH_BENCHMARK(loopOfLiteralFinds)->ArgsProduct({sizes, {0, 1, 2, 3, 4, 5}});
MRV_SEARCH_BENCHMARK(findAllQRegExp)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(findAllQRegularExpression)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(loopOfQRegularExpressionFinds)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(findAllInHugeParagraph)->Arg(1000)->Arg(10000);
MRV_SEARCH_BENCHMARK(loopInHugeParagraph)->Arg(1000)->Arg(10000);
MRV_SEARCH_BENCHMARK(collectRuns)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(loopOfFragmentFinds)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(typeInFindBar)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(replaceInSource)->ArgsProduct({sizes});
MRV_SEARCH_BENCHMARK(replaceAll)->ArgsProduct({sizes, {0}})->Args({100000, 1});
