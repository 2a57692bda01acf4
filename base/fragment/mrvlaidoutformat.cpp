#include "fragment/mrvlaidoutformat.h"

#include <QTextLength>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

constexpr double LongestLength = 1e5; // pixels or points
constexpr int DeepestIndent = 1000;

bool isLength(double length)
{
    return std::abs(length) <= LongestLength; // false for what is no number, too
}

// Whether a value of a property of Qt's can be laid out.
bool isLaidOut(int property, const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return isLength(value.toDouble());
    case QMetaType::QTextLength:
        return isLength(value.value<QTextLength>().rawValue());
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return std::all_of(list.begin(), list.end(),
                           [property](const QVariant &item) { return isLaidOut(property, item); });
    }
    case QMetaType::Int:
        return (property != QTextFormat::BlockIndent && property != QTextFormat::ListIndent)
            || std::abs(qint64(value.toInt())) <= DeepestIndent;
    default:
        return true;
    }
}

} // namespace

QTextFormat mrvLaidOutFormat(const QTextFormat &format)
{
    QTextFormat result = format;
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        if (it.key() < QTextFormat::UserProperty && !isLaidOut(it.key(), it.value())) {
            result.clearProperty(it.key());
        }
    }
    return result;
}
