#include "screenplay/mrvtitlepage_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

struct KnownKey
{
    const char *key;
    Qt::AlignmentFlag alignment;
    bool isLabelled; // whether its place on the page does not say enough
};

// clang-format off
constexpr KnownKey knownKeys[] = {
    {"Title",      Qt::AlignHCenter, false},
    {"Credit",     Qt::AlignHCenter, false},
    {"Author",     Qt::AlignHCenter, false},
    {"Authors",    Qt::AlignHCenter, false},
    {"Source",     Qt::AlignHCenter, false},
    {"Draft date", Qt::AlignRight,   false},
    {"Contact",    Qt::AlignLeft,    false},
    {"Date",       Qt::AlignRight,   true},
    {"Revision",   Qt::AlignLeft,    true},
    {"Copyright",  Qt::AlignLeft,    true},
    {"Notes",      Qt::AlignLeft,    true},
};
// clang-format on

const KnownKey *known(const QString &key)
{
    const auto found =
        std::find_if(std::begin(knownKeys), std::end(knownKeys), [&key](const KnownKey &row) {
            return key.compare(QLatin1String(row.key), Qt::CaseInsensitive) == 0;
        });
    return found == std::end(knownKeys) ? nullptr : found;
}

} // namespace

void MrvTitleKeys::append(const QString &key)
{
    const QString folded = key.toCaseFolded();
    if (!m_first.contains(folded)) {
        m_first.insert(folded, m_count);
    }
    ++m_count;
}

int MrvTitleKeys::indexOf(const QString &key) const
{
    return m_first.value(key.toCaseFolded(), -1);
}

Qt::AlignmentFlag mrvTitleAlignment(const QString &key)
{
    if (const KnownKey *row = known(key)) {
        return row->alignment;
    }
    return key.contains(QLatin1String("date"), Qt::CaseInsensitive) ? Qt::AlignRight
                                                                    : Qt::AlignLeft;
}

bool mrvIsTitleKeyShown(const QString &key)
{
    const KnownKey *row = known(key);
    return !row || row->isLabelled;
}

bool mrvIsTitleKeyPrinted(const QString &key)
{
    return known(key);
}

QString mrvTitleLabel(const QString &key)
{
    return mrvIsTitleKeyShown(key) ? key + QLatin1String(": ") : QString();
}

int mrvShownTitleKeyLength(Qt::AlignmentFlag alignment, const QString &line)
{
    const int length = line.indexOf(QLatin1String(": "));
    if (length <= 0 || line.lastIndexOf(u'\n', length) >= 0) {
        return 0;
    }
    const QString key = line.left(length);
    const bool counts = alignment == Qt::AlignHCenter
        ? known(key) && known(key)->alignment == Qt::AlignHCenter
        : !key.contains(u':');
    return counts ? length : 0;
}

QString mrvGuessedTitleKey(Qt::AlignmentFlag alignment, const QString &line,
                           const MrvTitleKeys &before)
{
    static const QRegularExpression credit(QStringLiteral("\\bby\\b"),
                                           QRegularExpression::CaseInsensitiveOption);
    const auto has = [&before](const char *key) { return before.indexOf(QLatin1String(key)) >= 0; };
    if (alignment == Qt::AlignRight) {
        return QStringLiteral("Draft date");
    }
    if (alignment == Qt::AlignLeft) {
        return QStringLiteral("Contact");
    }
    if (!has("Title")) {
        return QStringLiteral("Title");
    }
    if (!has("Credit") && line.contains(credit)) {
        return QStringLiteral("Credit");
    }
    return has("Author") ? QStringLiteral("Source") : QStringLiteral("Author");
}
