#include "options/mrvoptionstables_p.h"

#include <QSet>

#include <algorithm>

using namespace MRVOptionsTables;

namespace {

// Groups whose keys are names that the user or the application gives.
constexpr QLatin1String NamedGroups[] = {QLatin1String("PdfSettings/"), QLatin1String("Warnings/")};

bool isInNamedGroup(const QString &key)
{
    return std::any_of(std::begin(NamedGroups), std::end(NamedGroups),
                       [&key](QLatin1String group) { return key.startsWith(group); });
}

} // namespace

QList<MRVOptions::Problem> MRVOptions::problems() const
{
    QList<Problem> problems;
    QStringList keys = allKeys();
    keys.sort();
    for (const QString &key : qAsConst(keys)) {
        const Problem problem = isInNamedGroup(key) ? Problem() : problemOf(key, value(key));
        if (!problem.key.isEmpty()) {
            problems.append(problem);
        }
    }
    return problems;
}

QList<MRVOptions::Problem> MRVOptions::importFrom(const MRVOptions &source, Import which)
{
    const QList<Problem> problems = source.problems();
    QSet<QString> left;
    for (const Problem &problem : problems) {
        if (which == Import::Usable) {
            left.insert(problem.key);
        }
    }
    // All are read first, since both may be stores on one file.
    QList<QPair<QString, QVariant>> values;
    const QStringList keys = source.allKeys();
    for (const QString &key : keys) {
        if (!left.contains(key)) {
            values.append({key, source.value(key)});
        }
    }
    if (values.isEmpty()) {
        return problems;
    }
    remove(QString());
    for (const QPair<QString, QVariant> &value : qAsConst(values)) {
        setValue(value.first, value.second);
    }
    Q_EMIT settingsReset();
    return problems;
}
