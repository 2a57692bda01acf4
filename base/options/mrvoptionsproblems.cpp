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

// Values that the store could not decode, so that it has no value for them.
QList<MRVOptions::Problem> undecodedOf(const MRVOptions &options)
{
    QList<MRVOptions::Problem> problems;
    const QMap<QString, QString> unreadable = options.unreadableValues();
    for (auto it = unreadable.begin(); it != unreadable.end(); ++it) {
        problems.append(problemOfDamage(it.key(), it.value()));
    }
    return problems;
}

} // namespace

QList<MRVOptions::Problem> MRVOptions::problems() const
{
    QList<Problem> problems;
    const QStringList keys = allKeys();
    for (const QString &key : keys) {
        const Problem problem = isInNamedGroup(key) ? Problem() : problemOf(key, value(key));
        if (!problem.key.isEmpty()) {
            problems.append(problem);
        }
    }
    problems += undecodedOf(*this);
    std::sort(problems.begin(), problems.end(),
              [](const Problem &a, const Problem &b) { return a.key < b.key; });
    return problems;
}

QList<MRVOptions::Problem> MRVOptions::importFrom(const MRVOptions &source, Import which)
{
    const QList<Problem> left = which == Import::Usable ? source.problems() : undecodedOf(source);
    QSet<QString> leftKeys;
    for (const Problem &problem : left) {
        leftKeys.insert(problem.key);
    }
    // All are read first, since both may be stores on one file.
    QList<QPair<QString, QVariant>> values;
    const QStringList keys = source.allKeys();
    for (const QString &key : keys) {
        if (!leftKeys.contains(key)) {
            values.append({key, source.value(key)});
        }
    }
    if (values.isEmpty()) {
        return left;
    }
    remove(QString());
    for (const QPair<QString, QVariant> &value : qAsConst(values)) {
        setValue(value.first, value.second);
    }
    Q_EMIT settingsReset();
    return left;
}
