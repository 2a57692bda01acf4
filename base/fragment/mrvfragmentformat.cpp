#include "fragment/mrvfragmentformat_p.h"

#include "textformat/mrvtextformat.h"

QTextFormat mrvFormatOfType(const QTextFormat &format, int type)
{
    QTextFormat result(type);
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        result.setProperty(it.key(), it.value());
    }
    return result;
}

QByteArray mrvStoredFormat(const QTextFormat &format)
{
    return format.isCharFormat()
        ? MRVTextFormat::toByteArray(format.toCharFormat())
        : MRVTextFormat::toByteArray(
            mrvFormatOfType(format, QTextFormat::BlockFormat).toBlockFormat());
}
