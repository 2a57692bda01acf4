#include "novel.h"
#include "scriptmode/mrvscriptmode.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>

namespace {

// A script whose paragraphs take the elements of the built-in mode in turn.
std::unique_ptr<QTextDocument> script(const MRVScriptMode &mode, int paragraphs)
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    QTextCursor cursor(document.get());
    std::mt19937 random(1);
    cursor.beginEditBlock();
    for (int i = 0; i < paragraphs; ++i) {
        const int element = int(random() % unsigned(mode.elements().size()));
        if (i > 0) {
            cursor.insertBlock();
        }
        cursor.setBlockFormat(mode.elements().at(element).blockFormat());
        cursor.insertText(QStringLiteral("A line of the script"));
    }
    cursor.endEditBlock();
    return document;
}

// The rule for equal formats with nothing left out.
bool plainlyEqual(QTextBlockFormat a, QTextBlockFormat b)
{
    const QList<QTextOption::Tab> tabsA = a.tabPositions();
    const QList<QTextOption::Tab> tabsB = b.tabPositions();
    const bool spacing = MRVTextFormat::equivalentSpacing(a, b);
    for (QTextBlockFormat *format : {&a, &b}) {
        format->clearProperty(QTextFormat::TabPositions);
        format->clearProperty(MRVTextFormat::BlockSpacing);
        format->clearProperty(MRVTextFormat::BlockBaseSpacing);
    }
    return spacing && MRVTextFormat::equivalent(a, b) && tabsA == tabsB;
}

// Every paragraph is asked for by every element: none is spared by an earlier match.
template<typename Match>
int matches(const QTextDocument &document, const QList<MRVScriptElement> &elements, Match match)
{
    int count = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (const MRVScriptElement &element : elements) {
            count += match(element, block);
        }
    }
    return count;
}

void recognise(benchmark::State &state)
{
    MRVScriptMode mode;
    mode.loadFactoryDefaults();
    const QList<MRVScriptElement> elements = mode.elements();
    const auto document = script(mode, int(state.range(0)));
    int ours = 0;
    int theirs = 0;
    compare(
        state,
        [&] {
            ours = matches(*document, elements,
                           [](const MRVScriptElement &element, const QTextBlock &block) {
                               return element.match(block);
                           });
        },
        [&] {
            theirs = matches(*document, elements,
                             [](const MRVScriptElement &element, const QTextBlock &block) {
                                 return plainlyEqual(block.blockFormat(), element.blockFormat());
                             });
        });
    if (ours != theirs || ours != state.range(0)) {
        state.SkipWithError("the two sides find different elements");
    }
}

void complete(benchmark::State &state)
{
    MRVCompletionList list;
    std::mt19937 random(1);
    for (int i = 0; i < state.range(0); ++i) {
        QString name;
        for (int letter = 0; letter < 12; ++letter) {
            name += QChar('A' + int(random() % 26));
        }
        list.append({name, false});
    }
    const QString prefix = list.completions().at(7).text.left(2).toLower();
    int ours = 0;
    int theirs = 0;
    compare(
        state, [&] { ours = list.filter(prefix).completions().size(); },
        [&] {
            QList<MRVCompletion> found;
            for (const MRVCompletion &completion : list.completions()) {
                if (completion.text.size() > prefix.size()
                    && completion.text.startsWith(prefix, Qt::CaseInsensitive)) {
                    found.append(completion);
                }
            }
            theirs = found.size();
        });
    if (ours != theirs || ours == 0) {
        state.SkipWithError("the two sides find different completions");
    }
}

} // namespace

BENCHMARK(recognise)->Arg(500)->Arg(5000)->Arg(50000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(complete)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(1)->Unit(
    benchmark::kMillisecond);
