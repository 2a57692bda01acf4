#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

/**
 * Dates for files that are to be the same byte for byte whenever they are written.
 *
 * The years are 1 to 9999, for which ISO 8601 and the formats written here have four digits.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFixedDate
{
    Q_DECLARE_TR_FUNCTIONS(MRVFixedDate)

public:
    MRVFixedDate() = delete;

    /**
     * Reads a date of ISO 8601 such as "2026-01-31" or "2026-01-31T12:00:00+01:00". Without a time
     * it is the day's beginning; without an offset it is UTC. Invalid for any other text and for a
     * date outside the years 1 to 9999 of UTC.
     */
    static QDateTime fromIsoText(const QString &text);

    /**
     * The date of ISO 8601 that a person gives, or, for an empty @p text, that of the environment.
     *
     * @param text  as for fromIsoText().
     * @param date  untouched where neither gives one, and on failure.
     * @param error if given, receives a translated line on failure; untouched on success.
     * @return false for a text that is no such date, and as fromEnvironment().
     */
    static bool fromTextOrEnvironment(const QString &text, QDateTime *date,
                                      MRVErrorSink error = nullptr);

    /**
     * The date that the environment variable SOURCE_DATE_EPOCH gives, in seconds since 1970.
     *
     * @param date  untouched where the variable is missing or empty, and on failure.
     * @param error if given, receives a translated line on failure; untouched on success.
     * @return false where the variable is no number, or a date outside the years.
     */
    static bool fromEnvironment(QDateTime *date, MRVErrorSink error = nullptr);
};
