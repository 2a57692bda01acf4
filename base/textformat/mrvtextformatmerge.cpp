#include "textformat/mrvtextformatmerge_p.h"

#include <QMap>
#include <QVariant>

namespace {

void takeProperty(QTextFormat *result, const QTextFormat &existing, int property)
{
    if (existing.hasProperty(property)) {
        result->setProperty(property, existing.property(property));
    } else {
        result->clearProperty(property);
    }
}

} // namespace

unsigned MrvFormatMerge::groupOf(const Table &table, int property)
{
    for (const Row &row : table) {
        if (property < row.first) {
            break;
        }
        if (property <= row.last) {
            return row.group;
        }
    }
    return Restyled;
}

void MrvFormatMerge::takeGroups(QTextFormat *result, const QTextFormat &existing,
                                const Table &table, unsigned groups)
{
    const QMap<int, QVariant> restyled = result->properties();
    for (auto it = restyled.cbegin(); it != restyled.cend(); ++it) {
        if (groupOf(table, it.key()) & groups) {
            result->clearProperty(it.key());
        }
    }
    const QMap<int, QVariant> old = existing.properties();
    for (auto it = old.cbegin(); it != old.cend(); ++it) {
        if (groupOf(table, it.key()) & groups) {
            result->setProperty(it.key(), it.value());
        }
    }
}

void MrvFormatMerge::takeProperties(QTextFormat *result, const QTextFormat &existing,
                                    const QList<int> &properties)
{
    for (int property : properties) {
        if (property == QTextFormat::FontFamily || property == QTextFormat::FontFamilies) {
            takeProperty(result, existing, QTextFormat::FontFamily);
            takeProperty(result, existing, QTextFormat::FontFamilies);
        } else {
            takeProperty(result, existing, property);
        }
    }
}
