#include "util/mrvfixeddate.h"

#include "util/mrvfailure.h"

#include <QRegularExpression>

namespace {

bool isWritable(const QDateTime &date)
{
    const int year = date.toUTC().date().year();
    return date.isValid() && year >= 1 && year <= 9999;
}

} // namespace

QDateTime MRVFixedDate::fromIsoText(const QString &text)
{
    static const QRegularExpression offset(QStringLiteral("T.*(?:Z|[+-]\\d\\d(?::?\\d\\d)?)$"));
    const QString time = text.contains(u'T') ? text : text + QLatin1String("T00:00:00");
    const QDateTime date =
        QDateTime::fromString(offset.match(time).hasMatch() ? time : time + u'Z', Qt::ISODate);
    return isWritable(date) ? date : QDateTime();
}

bool MRVFixedDate::fromEnvironment(QDateTime *date, MRVErrorSink error)
{
    const QByteArray epoch = qgetenv("SOURCE_DATE_EPOCH");
    if (epoch.isEmpty()) {
        return true;
    }
    bool ok = false;
    const qint64 seconds = epoch.toLongLong(&ok);
    // Beyond, the date's own arithmetic overflows.
    constexpr qint64 FarOff = 1000000000000;
    ok = ok && qAbs(seconds / 2) < FarOff / 2;
    const QDateTime given = QDateTime::fromSecsSinceEpoch(ok ? seconds : 0, Qt::UTC);
    if (!ok || !isWritable(given)) {
        return MRV::fail(error,
                         tr("SOURCE_DATE_EPOCH is not a number of seconds since 1970 that lies in "
                            "the years 1 to 9999"));
    }
    *date = given;
    return true;
}

bool MRVFixedDate::fromTextOrEnvironment(const QString &text, QDateTime *date, MRVErrorSink error)
{
    if (text.isEmpty()) {
        return fromEnvironment(date, error);
    }
    const QDateTime given = fromIsoText(text);
    if (!given.isValid()) {
        return MRV::fail(error,
                         tr("the date is not one of ISO 8601 such as 2026-01-31T12:00:00Z, in the "
                            "years 1 to 9999"));
    }
    *date = given;
    return true;
}
