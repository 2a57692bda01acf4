#include "settings/mrvoptionstables_p.h"

#include <QSettings>

#include <algorithm>

using namespace MRVOptionsTables;

namespace {

// The file that a value comes from: the user's own, or one of those that the system brings, in the
// order in which QSettings looks them through.
QString originOf(const MRVOptions &options, const QString &key)
{
    if (!options.contains(key))
        return QString();
    if (options.QSettings::organizationName().isEmpty())
        return options.fileName();
    for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope}) {
        for (const QString &application : {MRVOptions::applicationName(), QString()}) {
            QSettings file(options.format(), scope, MRVOptions::companyName(), application);
            file.setFallbacksEnabled(false);
            file.beginGroup(options.group());
            if (file.contains(key))
                return file.fileName();
        }
    }
    return options.fileName();
}

template<typename Setting>
QVariant valueOf(const MRVOptions &options, Setting setting)
{
    return QVariant::fromValue(options.value(setting));
}

// What is stored, without the font hinting that readers get, which would make it another than a
// default of just the same bytes. Bytes that cannot be read give an empty format.
QVariant valueOf(const MRVOptions &options, MRVSettings::TextCharFormat setting)
{
    const QByteArray bytes = options.value(options.keyText(setting)).toByteArray();
    const QTextCharFormat format = MRVSettings::toTextCharFormat(bytes);
    const bool isRead = !format.isEmpty() || bytes == MRVSettings::toByteArray(format);
    return QTextFormat(isRead ? format : options.defaultValue(setting));
}

QVariant valueOf(const MRVOptions &options, MRVSettings::TextBlockFormat setting)
{
    return QTextFormat(options.value(setting));
}

template<typename Value>
QVariant variantOf(const Value &value)
{
    return QVariant::fromValue(value);
}

QVariant variantOf(const QTextCharFormat &format)
{
    return QTextFormat(format);
}

QVariant variantOf(const QTextBlockFormat &format)
{
    return QTextFormat(format);
}

template<typename Setting, typename Default>
QString acceptsOf(const Row<Setting, Default> &)
{
    return QString();
}

QString rangeOf(double least, double most)
{
    return MRVOptions::tr("%1 to %2").arg(QString::number(least), QString::number(most));
}

QString acceptsOf(const IntRow &row)
{
    return rangeOf(row.value.least, row.value.most);
}

QString acceptsOf(const RealRow &row)
{
    return rangeOf(row.value.least, row.value.most);
}

QString acceptsOf(const StringRow &row)
{
    return row.value.words ? row.value.words().join(QLatin1String(", ")) : QString();
}

template<typename Setting, typename Default>
MRVOptions::Explanation explanationOf(const MRVOptions &options, const Row<Setting, Default> &row)
{
    MRVOptions::Explanation explanation;
    explanation.key = QString::fromLatin1(row.key);
    explanation.type = typeOf(row.setting);
    explanation.number = row.setting;
    explanation.value = valueOf(options, row.setting);
    explanation.defaultValue = variantOf(options.defaultValue(row.setting));
    explanation.accepts = acceptsOf(row);
    explanation.origin = originOf(options, explanation.key);
    return explanation;
}

MRVOptions::Explanation explanationOf(const MRVOptions &options, const SeparatorRow &row,
                                      const char *key)
{
    const bool isType = key == row.typeKey;
    MRVOptions::Explanation explanation;
    explanation.key = QString::fromLatin1(key);
    explanation.type = MRVOptions::StringType;
    explanation.value = isType
        ? QString::fromLatin1(MRV::toString(options.separatorType(row.context)))
        : options.customSeparator(row.context);
    explanation.defaultValue =
        isType ? QString::fromLatin1(MRV::toString(row.type)) : defaultCustomSeparator();
    if (isType)
        explanation.accepts = separatorTypeWords().join(QLatin1String(", "));
    explanation.origin = originOf(options, explanation.key);
    return explanation;
}

// Calls visit(key, explain) for every setting; only those that are wanted need be explained.
template<typename Visitor>
void forEachSetting(const MRVOptions *options, const Visitor &visit)
{
    forEachRow([&](const auto &row) {
        visit(QLatin1String(row.key), [&] { return explanationOf(*options, row); });
    });
    for (const SeparatorRow &row : separators()) {
        for (const char *key : {row.typeKey, row.customKey})
            visit(QLatin1String(key), [&] { return explanationOf(*options, row, key); });
    }
}

} // namespace

bool MRVOptions::Explanation::isChanged() const
{
    // As texts: QVariant has no comparison for formats and lists of numbers.
    return toText(type, value) != toText(type, defaultValue);
}

QStringList MRVOptions::settingKeys()
{
    QStringList keys;
    forEachSetting(nullptr, [&](QLatin1String key, const auto &) { keys.append(key); });
    keys.sort();
    return keys;
}

MRVOptions::Explanation MRVOptions::explain(const QString &key) const
{
    Explanation explanation;
    forEachSetting(this, [&](QLatin1String name, const auto &explained) {
        if (name == key)
            explanation = explained();
    });
    return explanation;
}

QList<MRVOptions::Explanation> MRVOptions::changedSettings() const
{
    QList<Explanation> changed;
    forEachSetting(this, [&](QLatin1String key, const auto &explained) {
        if (contains(key)) {
            const Explanation explanation = explained();
            if (explanation.isChanged())
                changed.append(explanation);
        }
    });
    std::sort(changed.begin(), changed.end(),
              [](const Explanation &a, const Explanation &b) { return a.key < b.key; });
    return changed;
}
