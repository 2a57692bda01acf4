#include "xhtml/mrvhtmltext.h"

#include <QStringMatcher>

namespace {

int entityValue(QStringView entity)
{
    struct Entity
    {
        const char *name;
        int value;
    };
    static constexpr Entity entities[] = {
        {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}, {"nbsp", 0xA0},
    };
    for (const Entity &known : entities) {
        if (entity == QLatin1String(known.name)) {
            return known.value;
        }
    }
    if (entity.startsWith(u'#')) {
        const bool hex = entity.mid(1).startsWith(u'x');
        bool ok = false;
        const uint value = entity.mid(hex ? 2 : 1).toString().toUInt(&ok, hex ? 16 : 10);
        if (ok && value > 0 && value <= QChar::LastValidCodePoint && !QChar::isSurrogate(value)) {
            return int(value);
        }
    }
    return -1;
}

} // namespace

void MRVHtmlText::replaceAll(QString *text, QLatin1String before, QLatin1String after)
{
    int at = text->indexOf(before); // most texts have none, and the rest costs more
    if (at < 0) {
        return;
    }
    const QStringMatcher matcher{QString(before)};
    QString result;
    result.reserve(text->size());
    int done = 0;
    for (; at >= 0; at = matcher.indexIn(*text, done)) {
        result.append(text->constData() + done, at - done);
        result.append(after);
        done = at + before.size();
    }
    result.append(text->constData() + done, text->size() - done);
    *text = result;
}

QString MRVHtmlText::unescaped(QStringView text)
{
    QString result;
    result.reserve(int(text.size()));
    int done = 0;
    constexpr int LongestEntity = 10;
    for (int at = int(text.indexOf(u'&')); at >= 0; at = int(text.indexOf(u'&', at + 1))) {
        const int end = int(text.mid(at, LongestEntity + 2).indexOf(u';'));
        const int value = end > 0 ? entityValue(text.mid(at + 1, end - 1)) : -1;
        if (value < 0) {
            continue;
        }
        result.append(text.data() + done, at - done);
        if (QChar::requiresSurrogates(uint(value))) {
            result.append(QChar(QChar::highSurrogate(uint(value))));
            result.append(QChar(QChar::lowSurrogate(uint(value))));
        } else {
            result.append(QChar(ushort(value)));
        }
        done = at + end + 1;
        at = done - 1;
    }
    result.append(text.data() + done, int(text.size()) - done);
    return result;
}

QVector<QStringView> MRVHtmlText::declarations(QStringView style)
{
    QVector<QStringView> result;
    int begin = 0;
    int entity = -1; // where an entity may have begun
    for (int i = 0; i <= style.size(); ++i) {
        if (i < style.size() && style[i] == u'&') {
            entity = i;
        } else if (i == style.size() || style[i] == u';') {
            if (i < style.size() && entity >= 0
                && entityValue(style.mid(entity + 1, i - entity - 1)) >= 0) {
                entity = -1;
                continue;
            }
            const QStringView declaration = style.mid(begin, i - begin);
            if (!declaration.trimmed().isEmpty()) {
                result.append(declaration);
            }
            begin = i + 1;
        }
    }
    return result;
}

void MRVHtmlText::replaceImageSources(QString *html, const QHash<QString, QString> &references)
{
    if (references.isEmpty()) {
        return;
    }
    const QLatin1String opening(" src=\"");
    rewriteBetween(html, opening, QLatin1String("\""), Qt::CaseSensitive, [&](QStringView source) {
        const auto reference = references.constFind(unescaped(source));
        if (reference != references.constEnd() && reference->isNull()) {
            return QString();
        }
        const QString value =
            reference == references.constEnd() ? source.toString() : reference->toHtmlEscaped();
        return QString(opening + value + u'"');
    });
}

bool MRVHtmlText::hasWideSpace(QStringView text)
{
    // Without a branch the compiler vectorizes the loop, as above.
    const char16_t *const characters = text.utf16();
    unsigned short wide = !text.isEmpty() && text.back() == u'\t';
    for (int i = 0, last = int(text.size()) - 1; i < last; ++i) {
        const unsigned short blanks = (characters[i] == u' ') & (characters[i + 1] == u' ');
        const unsigned short tab = characters[i] == u'\t';
        wide |= blanks | tab;
    }
    return wide;
}
