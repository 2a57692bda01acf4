#include "options/mrvoptionstables_p.h"

#include "util/mrvclosestmatch.h"

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
    explanation.origin = options.originOf(explanation.key);
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
    if (isType) {
        explanation.accepts = separatorTypeWords().join(QLatin1String(", "));
    }
    explanation.origin = options.originOf(explanation.key);
    return explanation;
}

constexpr QLatin1String PdfPrefix("PdfSettings/");

MRVOptions::Explanation explanationOfPdf(const MRVOptions &options, const QString &name)
{
    MRVOptions::Explanation explanation;
    explanation.key = PdfPrefix + name;
    explanation.type = MRVOptions::ByteArrayType;
    explanation.value = options.pdfSettings(name);
    explanation.defaultValue = QByteArray();
    explanation.origin = options.fileName();
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
        for (const char *key : {row.typeKey, row.customKey}) {
            visit(QLatin1String(key), [&] { return explanationOf(*options, row, key); });
        }
    }
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
        {QStringLiteral("value"), MRVOptions::toJson(type, value)},
        {QStringLiteral("default"), MRVOptions::toJson(type, defaultValue)},
        {QStringLiteral("changed"), isChanged()},
        {QStringLiteral("origin"), origin.isEmpty() ? QJsonValue() : QJsonValue(origin)},
    };
    if (!accepts.isEmpty()) {
        object.insert(QStringLiteral("accepts"), accepts);
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
