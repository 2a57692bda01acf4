#include "novel.h"

#include "autoreplace/mrvautoreplacelist.h"

namespace {

constexpr int Lookups = 10000;

QString generatedMatch(std::mt19937 &random)
{
    QString match;
    for (int length = 3 + int(random() % 6); length > 0; --length) {
        match += QChar(u'a' + int(random() % 26));
    }
    return match;
}

/// The default list, with generated entries behind it, all of them enabled.
MRVAutoReplaceList listOf(int entries)
{
    std::mt19937 random(1);
    MRVAutoReplaceList list;
    for (MRVAutoReplace entry : MRVAutoReplaceList::defaultReplacements()) {
        entry.enabled = true;
        list.append(entry);
    }
    while (list.size() < entries) {
        list.append({true, generatedMatch(random), QStringLiteral("x")});
    }
    return list;
}

/// Lines as they stand before the caret after each character; every hundredth ends in a match.
QStringList typedTexts(const MRVAutoReplaceList &list)
{
    const QString prose = novel(3000)->toPlainText();
    QStringList texts;
    for (int i = 0; i < Lookups; ++i) {
        QString text = prose.mid(i % (prose.size() - 60), 40);
        if (i % 100 == 0) {
            text += list.at(i % list.size()).match;
        }
        texts.append(text);
    }
    return texts;
}

void lookUp(const MRVAutoReplaceList &list, const QStringList &texts)
{
    for (const QString &text : texts) {
        benchmark::DoNotOptimize(list.bestMatch(text));
    }
}

} // namespace

/// Ten thousand lookups in a long list, against as many in one of the default list's length.
static void bestMatchOfLongList(benchmark::State &state)
{
    const MRVAutoReplaceList list = listOf(int(state.range(0)));
    const MRVAutoReplaceList usual = listOf(0);
    const QStringList texts = typedTexts(list);
    const QStringList usualTexts = typedTexts(usual);
    list.bestMatch(texts.constFirst()); // an edited list makes its index once
    compare(
        state, [&] { lookUp(list, texts); }, [&] { lookUp(usual, usualTexts); });
}
BENCHMARK(bestMatchOfLongList)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

/// The first lookup after a change, which makes the index, against storing the list, which a change
/// costs as well.
static void firstBestMatch(benchmark::State &state)
{
    MRVAutoReplaceList list = listOf(int(state.range(0)));
    const QString text = QStringLiteral("nothing ends like this:");
    compare(
        state, [&] { benchmark::DoNotOptimize(list.bestMatch(text)); },
        [&] { benchmark::DoNotOptimize(list.toByteArray()); },
        [&] { list.replace(0, list.at(1)); });
}
BENCHMARK(firstBestMatch)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
