#include "util/mrvescape.h"

namespace {

constexpr int MaxTooltipLength = 100;

// The entity for a character that needs one, else an empty text.
QLatin1String entity(QChar c)
{
    switch (c.unicode()) {
    case '<':
        return QLatin1String("&lt;");
    case '>':
        return QLatin1String("&gt;");
    case '&':
        return QLatin1String("&amp;");
    case '\'':
        return QLatin1String("&apos;");
    case '"':
        return QLatin1String("&quot;");
    default:
        return QLatin1String();
    }
}

enum class EncodedAmpersand { Keep, EncodeAgain };

QString encode(const QString &text, EncodedAmpersand encodedAmpersand)
{
    static constexpr QLatin1String Ampersand("&amp;");
    if (text.isEmpty()) {
        return text;
    }
    QString result;
    result.reserve(int(text.size() * 1.1));
    for (int i = 0; i < text.size(); ++i) {
        const QLatin1String replacement = entity(text.at(i));
        const bool isKept = encodedAmpersand == EncodedAmpersand::Keep
            && text.at(i) == QLatin1Char('&')
            && QStringView(text).mid(i, Ampersand.size()) == Ampersand;
        if (replacement.size() == 0 || isKept) {
            result += text.at(i);
        } else {
            result += replacement;
        }
    }
    return result;
}

} // namespace

QString MRV::toHtmlEncoded(const QString &text)
{
    return encode(text, EncodedAmpersand::Keep);
}

QString MRV::escape(const QString &text)
{
    return encode(text, EncodedAmpersand::EncodeAgain);
}

QString MRV::toHtmlTooltipFormat(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return trimmed;
    }
    const QString html = QLatin1String("<p>") + toHtmlEncoded(trimmed) + QLatin1String("</p>");
    if (html.size() > MaxTooltipLength) {
        return html.left(MaxTooltipLength) + QLatin1String("...");
    }
    return html;
}
