#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <iterator>

/**
 * Whether QSettings took a text for a list, for its commas.
 *
 * @since 1.0
 */
inline bool mrvIsList(const QVariant &value)
{
    return value.userType() == QMetaType::QStringList
        || value.userType() == QMetaType::QVariantList;
}

/**
 * A flag as files and people write it: true, yes, on or 1, or the opposite of it, whatever the
 * case.
 *
 * @param ok receives false for anything else.
 * @param value a bool, a text, a list that a text with commas became, or nothing, which is false.
 * @since 1.0
 */
inline bool mrvToFlag(const QVariant &value, bool *ok)
{
    const int type = value.userType();
    *ok = type == QMetaType::Bool;
    if (*ok || type == QMetaType::UnknownType) {
        return value.toBool();
    }
    static constexpr const char *Words[] = {"false", "true", "no", "yes", "off", "on", "0", "1"};
    const QString text = value.toString().trimmed();
    for (int i = 0; i < int(std::size(Words)); ++i) {
        if (text.compare(QLatin1String(Words[i]), Qt::CaseInsensitive) == 0) {
            *ok = true;
            return i % 2 != 0;
        }
    }
    *ok = false;
    return false;
}

/** A text, also one with commas that was not put into quotation marks. */
inline QString mrvToText(const QVariant &value)
{
    return mrvIsList(value) ? value.toStringList().join(QLatin1String(", ")) : value.toString();
}
