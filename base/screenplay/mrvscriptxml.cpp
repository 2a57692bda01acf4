#include "screenplay/mrvscriptxml_p.h"

#include <algorithm>

QVector<MrvSpeeches> mrvSpeeches(const QVector<MRVFountainElement> &elements)
{
    using Element = MRVFountainElement;
    const auto endOfSpeech = [&elements](int cue) {
        int end = cue + 1;
        while (end < elements.size() && elements.at(end).isSpoken()) {
            ++end;
        }
        return end;
    };
    QVector<MrvSpeeches> parts;
    for (int at = 0; at < elements.size();) {
        MrvSpeeches part{at, at + 1, at + 1};
        if (elements.at(at).kind == Element::Character) {
            part.second = part.end = endOfSpeech(at);
            if (part.end < elements.size() && elements.at(part.end).kind == Element::Character
                && elements.at(part.end).dual && !elements.at(at).dual) {
                part.end = endOfSpeech(part.end);
            }
        }
        parts.append(part);
        at = part.end;
    }
    return parts;
}

MRVFountainRuns mrvWithBrackets(MRVFountainRuns runs)
{
    const auto isPlain = [](const MRVFountainRun &run) {
        return run.kind == MRVFountainRun::Text && !run.emphasis;
    };
    if (runs.isEmpty() || !isPlain(runs.constFirst())) {
        runs.prepend(MRVFountainRun());
    }
    runs.first().text.prepend(u'(');
    if (!isPlain(runs.constLast())) {
        runs.append(MRVFountainRun());
    }
    runs.last().text.append(u')');
    return runs;
}

void mrvRemoveBrackets(MRVFountainRuns *runs)
{
    const auto isShown = [](const MRVFountainRun &run) {
        return run.kind == MRVFountainRun::Text && !run.text.trimmed().isEmpty();
    };
    const auto first = std::find_if(runs->begin(), runs->end(), isShown);
    if (first == runs->end()) {
        return;
    }
    const auto last = std::find_if(runs->rbegin(), runs->rend(), isShown);
    const auto isNoSpace = [](QChar c) { return !c.isSpace(); };
    const QString &front = first->text;
    const QString &back = last->text;
    const auto open = std::find_if(front.begin(), front.end(), isNoSpace) - front.begin();
    const auto after = back.rend() - std::find_if(back.rbegin(), back.rend(), isNoSpace);
    if (front.at(int(open)) != u'(' || back.at(int(after) - 1) != u')') {
        return;
    }
    last->text.remove(int(after) - 1, 1);
    first->text.remove(int(open), 1);
}
