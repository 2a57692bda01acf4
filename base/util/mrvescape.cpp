#include "util/mrvescape.h"

namespace {

constexpr int MaxTooltipLength = 100;

} // namespace

QString MRV::toHtmlEncoded(const QString &text)
{
    static constexpr QLatin1String Encoded("amp;");
    if (text.isEmpty())
        return text;
    QString result;
    result.reserve(int(text.size() * 1.1));
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        switch (c.unicode()) {
        case '&':
            result += c;
            if (QStringView(text).mid(i + 1, Encoded.size()) != Encoded)
                result += Encoded;
            break;
        case '"':
            result += QLatin1String("&quot;");
            break;
        case '<':
            result += QLatin1String("&lt;");
            break;
        case '>':
            result += QLatin1String("&gt;");
            break;
        case '\'':
            result += QLatin1String("&apos;");
            break;
        default:
            result += c;
        }
    }
    return result;
}

QString MRV::escape(const QString &text)
{
    if (text.isEmpty())
        return text;
    QString result;
    result.reserve(int(text.size() * 1.1));
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '<':
            result += QLatin1String("&lt;");
            break;
        case '>':
            result += QLatin1String("&gt;");
            break;
        case '&':
            result += QLatin1String("&amp;");
            break;
        case '\'':
            result += QLatin1String("&apos;");
            break;
        case '"':
            result += QLatin1String("&quot;");
            break;
        default:
            result += c;
        }
    }
    return result;
}

QString MRV::toHtmlTooltipFormat(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return trimmed;
    const QString html = QLatin1String("<p>") + toHtmlEncoded(trimmed) + QLatin1String("</p>");
    if (html.size() > MaxTooltipLength)
        return html.left(MaxTooltipLength) + QLatin1String("...");
    return html;
}
