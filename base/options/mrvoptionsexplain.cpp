#include "options/mrvoptionstables_p.h"

#include "util/mrvclosestmatch.h"

#include <QJsonArray>
#include <QMap>

#include <algorithm>

using namespace MRVOptionsTables;

namespace {

template<typename Setting>
QVariant valueOf(const MRVOptions &options, Setting setting)
{
    return QVariant::fromValue(options.value(setting));
}

// The stored format, without the font hinting that readers add, which would make it differ from a
// default of the same bytes. Bytes that cannot be read give an empty format.
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

// Explained is what the getter gives, whatever word is stored.
QVariant valueOf(const MRVOptions &options, SeparatorSetting setting)
{
    return setting.part == SeparatorSetting::Type
        ? QString::fromLatin1(MRV::toString(options.separatorType(setting.context)))
        : options.customSeparator(setting.context);
}

template<typename Entry>
QVariant defaultOf(const MRVOptions &options, const Entry &row)
{
    return variantOf(options.defaultValue(row.setting));
}

QVariant defaultOf(const MRVOptions &, const SeparatorRow &row)
{
    return QString::fromUtf8(row.value.utf8);
}

template<typename Entry>
MRVOptions::Explanation explanationOf(const MRVOptions &options, const Entry &row)
{
    const QString key = QString::fromLatin1(row.key);
    MRVOptions::Explanation explanation(infoOf(key));
    explanation.value = valueOf(options, row.setting);
    explanation.defaultValue = defaultOf(options, row);
    explanation.origin = options.originOf(key);
    if (!explanation.origin.isEmpty()) {
        explanation.problem = problemOf(key, options.value(key));
    } else if (const auto unreadable = options.unreadableValues(); unreadable.contains(key)) {
        explanation.problem = problemOfDamage(key, unreadable.value(key));
    }
    return explanation;
}

constexpr QLatin1String PdfPrefix("PdfSettings/");

MRVOptions::Explanation explanationOfPdf(const MRVOptions &options, const QString &name)
{
    MRVOptions::Explanation explanation(infoOf(options.keyText(MRVOptions::PdfSettings)));
    explanation.key = PdfPrefix + name;
    explanation.number = -1;
    explanation.value = options.pdfSettings(name);
    explanation.defaultValue = QByteArray();
    explanation.origin = options.fileName();
    return explanation;
}

QJsonArray jsonOf(const Choices &choices)
{
    QJsonArray array;
    for (const MRVOptions::Choice &choice : choices) {
        array.append(QJsonObject{{QStringLiteral("value"), QJsonValue::fromVariant(choice.value)},
                                 {QStringLiteral("label"), choice.label}});
    }
    return array;
}

// Calls visit(key, explain) for every setting; only those that are wanted need be explained.
template<typename Visitor>
void forEachSetting(const MRVOptions *options, const Visitor &visit)
{
    forEachRow([&](const auto &row) {
        visit(QLatin1String(row.key), [&] { return explanationOf(*options, row); });
    });
}

} // namespace

bool MRVOptions::Explanation::isChanged() const
{
    // Compared as texts, since QVariant cannot compare formats and lists of numbers.
    return toText(type, value) != toText(type, defaultValue);
}

QJsonObject MRVOptions::Explanation::toJson() const
{
    QJsonObject object{
        {QStringLiteral("key"), key},
        {QStringLiteral("type"), typeName(type)},
        {QStringLiteral("group"), group},
        {QStringLiteral("label"), label},
        {QStringLiteral("description"), description},
        {QStringLiteral("value"), MRVOptions::toJson(type, value)},
        {QStringLiteral("default"), MRVOptions::toJson(type, defaultValue)},
        {QStringLiteral("changed"), isChanged()},
        {QStringLiteral("preference"), isPreference},
        {QStringLiteral("origin"), origin.isEmpty() ? QJsonValue() : QJsonValue(origin)},
    };
    if (!accepts().isEmpty()) {
        object.insert(QStringLiteral("accepts"), accepts());
    }
    if (least.isValid()) {
        object.insert(QStringLiteral("least"), MRVOptions::toJson(type, least));
        object.insert(QStringLiteral("most"), MRVOptions::toJson(type, most));
    }
    if (!unit.isEmpty()) {
        object.insert(QStringLiteral("unit"), unit);
    }
    if (!choices.isEmpty()) {
        object.insert(QStringLiteral("choices"), jsonOf(choices));
    }
    if (!problem.key.isEmpty()) {
        object.insert(QStringLiteral("problem"), problem.toJson());
    }
    return object;
}

QString MRVOptions::closestKey(const QString &wrong)
{
    const QStringList keys = settingKeys();
    const QString key = MRV::closestMatch(wrong, keys);
    if (!key.isNull()) {
        return key;
    }
    QMap<QString, QString> keysByName;
    for (const QString &one : keys) {
        keysByName.insert(one.section(u'/', -1), one);
    }
    return keysByName.value(MRV::closestMatch(wrong, keysByName.keys()));
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
        if (name == key) {
            explanation = explained();
        }
    });
    const bool isPdf = key.startsWith(PdfPrefix);
    if (isPdf && pdfSettingsNames().contains(key.mid(PdfPrefix.size()))) {
        return explanationOfPdf(*this, key.mid(PdfPrefix.size()));
    }
    return explanation;
}

QList<MRVOptions::Explanation> MRVOptions::changedSettings() const
{
    QList<Explanation> changed;
    forEachSetting(this, [&](QLatin1String key, const auto &explained) {
        if (contains(key)) {
            const Explanation explanation = explained();
            if (explanation.isChanged()) {
                changed.append(explanation);
            }
        }
    });
    const QStringList names = pdfSettingsNames();
    for (const QString &name : names) {
        changed.append(explanationOfPdf(*this, name));
    }
    std::sort(changed.begin(), changed.end(),
              [](const Explanation &a, const Explanation &b) { return a.key < b.key; });
    return changed;
}
