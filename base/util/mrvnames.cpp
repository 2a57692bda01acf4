#include "util/mrvnames.h"

#include <QRegularExpression>

namespace {

constexpr char16_t SpecialChars[] = u"*:/\\?<>|=;[],.^%";
constexpr int SpecialCharCount = sizeof SpecialChars / sizeof *SpecialChars - 1;
static_assert(SpecialCharCount == 16, "the published set has sixteen characters");

bool isCleanedAway(QChar c)
{
    if (c == QLatin1Char('"')) {
        return true;
    }
    for (int i = 0; i < SpecialCharCount; ++i) {
        if (c == QChar(SpecialChars[i])) {
            return true;
        }
    }
    return false;
}

// Where the digits at the end of the name begin; its length where it ends in none.
int numberStart(const QString &name)
{
    int start = name.size();
    while (start > 0 && name.at(start - 1).isDigit()) {
        --start;
    }
    return start;
}

// The value of the digits from start on; -1 where it exceeds an int or they are not ASCII digits,
// as QString::toInt() sees it.
qint64 numberAt(const QString &name, int start)
{
    bool ok = false;
    const int value = name.midRef(start).toInt(&ok);
    return ok ? value : -1;
}

} // namespace

QString MRV::stripAutoNumberEnding(const QString &name, int *number)
{
    if (number) {
        *number = 0;
    }
    const int start = numberStart(name);
    if (start == name.size() || start == 0 || name.at(start - 1) != QLatin1Char('-')) {
        return name;
    }
    const qint64 value = numberAt(name, start);
    if (number && value >= 0) {
        *number = int(value);
    }
    return name.left(start - 1);
}

QString MRV::adjustName(const QString &name)
{
    const int start = numberStart(name);
    if (start == name.size()) {
        return name + QLatin1String("-1");
    }
    const qint64 value = numberAt(name, start);
    return name.left(start) + QString::number(value < 0 ? 1 : value + 1);
}

QString MRV::cleanFileName(const QString &name, const QChar &replacement)
{
    QString result;
    result.reserve(name.size());
    for (const QChar c : name) {
        const QChar next = isCleanedAway(c) ? replacement : c;
        if (next != replacement || !result.endsWith(replacement)) {
            result += next;
        }
    }
    return result.trimmed();
}

QString MRV::cleanFileName(const QString &name)
{
    return cleanFileName(name, QLatin1Char(' '));
}

QString MRV::cleanFileNameRegExp(const QString &name, const QChar &replacement)
{
    return cleanFileName(name, replacement);
}

QString MRV::cleanFileNameRegExp(const QString &name)
{
    return cleanFileName(name);
}

const QSet<QChar> &MRV::specialFileNameChars()
{
    static const QSet<QChar> chars = [] {
        QSet<QChar> set;
        for (int i = 0; i < SpecialCharCount; ++i) {
            set.insert(QChar(SpecialChars[i]));
        }
        return set;
    }();
    return chars;
}

QString MRV::languageTag(const QString &text)
{
    static const QRegularExpression tag(
        QStringLiteral("^(?:[A-Za-z]{2,8}|[iIxX](?=-))(?:-[A-Za-z0-9]{1,8})*$"));
    const QString normal = QString(text).replace(u'_', u'-');
    return tag.match(normal).hasMatch() ? normal : QString();
}
