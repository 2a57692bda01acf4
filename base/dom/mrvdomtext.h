#pragma once

#include "util/mrvbase_export.h"

#include <QDateTime>
#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <type_traits>

/**
 * The text forms of values in XML documents, all in one place, so that what one build writes the
 * next one reads.
 *
 * Numbers are decimal, in the C locale. Deliberate: a double has six significant digits; a float,
 * too, but six decimals where it is appended; items of a list are joined by commas that nothing
 * escapes.
 *
 * Readers store what they could make of the text, 0 where it does not convert, and return whether
 * it converts; a null
 * @p out fails.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDomText
{
public:
    MRVDomText() = delete;

    /** Which types have a text form to append, to set, and to read. */
    template<typename T, typename... Types>
    static constexpr bool isOneOf = (std::is_same_v<T, Types> || ...);
    template<typename T>
    static constexpr bool isInteger = isOneOf<T, short, unsigned short, int, unsigned int, long,
                                              unsigned long, long long, unsigned long long>;

    template<typename T>
    using IfAppended = std::enable_if_t<
        isInteger<T> || isOneOf<T, bool, float, double, QSize, QPoint, QStringList>>;
    template<typename T>
    using IfWritten = std::enable_if_t<
        isInteger<
            T> || isOneOf<T, bool, float, double, QSize, QPoint, QStringList, QSizeF, QPointF>>;
    template<typename T>
    using IfRead = std::enable_if_t<
        isInteger<
            T> || isOneOf<T, char, unsigned char, float, double, QSize, QPoint, QSizeF, QPointF>>;

    /** Decimals of a QSizeF or QPointF, where the caller does not tell. */
    static constexpr int Precision = 3;

    /** What element texts that are set, and attributes, hold. */
    template<typename T, typename = std::enable_if_t<isInteger<T>>>
    static QString written(T value)
    {
        return QString::number(value, 10);
    }
    static QString written(float value);
    static QString written(double value);
    static QString written(const QSize &value);
    static QString written(const QPoint &value);
    /**
     * @param value     two numbers, which a comma separates in the text.
     * @param precision decimals, held between 0 and 99.
     */
    static QString written(const QSizeF &value, int precision = Precision);
    static QString written(const QPointF &value, int precision = Precision);
    static QString written(const QStringList &value);
    /** The date-time @p value in @p format; in ISO 8601 where that is empty. */
    static QString written(const QDateTime &value, const QString &format);

    /** What appended elements hold: the same, except for float. */
    template<typename T>
    static QString appended(const T &value)
    {
        return written(value);
    }
    static QString appended(float value);

    /** A short cut off to a char, from the @p text. */
    static bool read(const QString &text, char *out);
    /** An unsigned short cut off to a char. */
    static bool read(const QString &text, unsigned char *out);
    static bool read(const QString &text, short *out);
    static bool read(const QString &text, unsigned short *out);
    static bool read(const QString &text, int *out);
    static bool read(const QString &text, unsigned int *out);
    static bool read(const QString &text, long *out);
    static bool read(const QString &text, unsigned long *out);
    static bool read(const QString &text, long long *out);
    static bool read(const QString &text, unsigned long long *out);
    static bool read(const QString &text, float *out);
    static bool read(const QString &text, double *out);
    static bool read(const QString &text, QSize *out);
    static bool read(const QString &text, QPoint *out);
    static bool read(const QString &text, QSizeF *out);
    static bool read(const QString &text, QPointF *out);
    /**
     * Split at each @p separator, without empty items. An empty separator does not split. Always
     * true.
     */
    static bool read(const QString &text, const QString &separator, QStringList *out);
    /** An empty @p format is ISO 8601. The result is marked as UTC. */
    static bool read(const QString &text, const QString &format, QDateTime *out);
    /**
     * Fills the @p buffer of @p size bytes with Latin-1 and NUL, and puts the digit 0 in its last
     * byte; false for a size below 1.
     */
    static bool read(const QString &text, char *buffer, int size);
};
