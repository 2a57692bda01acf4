#include "dom/mrvdomtext.h"

#include "core/mcoretype.h"

#include <cstring>

namespace {

constexpr int MaxPrecision = 99;

QString joined(int first, int second)
{
    return QString::number(first) + u',' + QString::number(second);
}

QString joined(double first, double second, int precision)
{
    const int decimals = qBound(0, precision, MaxPrecision);
    return QString::number(first, 'f', decimals) + u',' + QString::number(second, 'f', decimals);
}

// The three shapes of a conversion's outcome: whole numbers, reals, pairs.
template<typename Value, typename Number>
bool convert(const QString &text, Number (QString::*toNumber)(bool *, int) const, Value *out)
{
    bool ok = false;
    const Number number = (text.*toNumber)(&ok, 10);
    if (out) {
        *out = static_cast<Value>(number);
    }
    return ok && out;
}

template<typename Number>
bool convert(const QString &text, Number (QString::*toNumber)(bool *) const, Number *out)
{
    bool ok = false;
    const Number number = (text.*toNumber)(&ok);
    if (out) {
        *out = ok ? number : Number(); // Qt gives infinity for what is too large
    }
    return ok && out;
}

template<typename Value, typename Number>
bool convert(const QString &text, QPair<Number, Number> (*toPair)(const QString &, bool *),
             Value *out)
{
    bool ok = false;
    const QPair<Number, Number> pair = toPair(text, &ok);
    if (out) {
        *out = ok ? Value(pair.first, pair.second) : Value(Number(), Number());
    }
    return ok && out;
}

} // namespace

QString MRVDomText::written(float value)
{
    return QString::number(double(value), 'g', 6);
}

QString MRVDomText::written(double value)
{
    return QString::number(value, 'g', 6);
}

QString MRVDomText::written(const QSize &value)
{
    return joined(value.width(), value.height());
}

QString MRVDomText::written(const QPoint &value)
{
    return joined(value.x(), value.y());
}

QString MRVDomText::written(const QSizeF &value, int precision)
{
    return joined(value.width(), value.height(), precision);
}

QString MRVDomText::written(const QPointF &value, int precision)
{
    return joined(value.x(), value.y(), precision);
}

QString MRVDomText::written(const QStringList &value)
{
    return value.join(u',');
}

QString MRVDomText::written(const QDateTime &value, const QString &format)
{
    return format.isEmpty() ? value.toString(Qt::ISODate) : value.toString(format);
}

QString MRVDomText::appended(float value)
{
    return QString::number(double(value), 'f', 6);
}

bool MRVDomText::read(const QString &text, char *out)
{
    return convert(text, &QString::toShort, out);
}

bool MRVDomText::read(const QString &text, unsigned char *out)
{
    return convert(text, &QString::toUShort, out);
}

bool MRVDomText::read(const QString &text, short *out)
{
    return convert(text, &QString::toShort, out);
}

bool MRVDomText::read(const QString &text, unsigned short *out)
{
    return convert(text, &QString::toUShort, out);
}

bool MRVDomText::read(const QString &text, int *out)
{
    return convert(text, &QString::toInt, out);
}

bool MRVDomText::read(const QString &text, unsigned int *out)
{
    return convert(text, &QString::toUInt, out);
}

bool MRVDomText::read(const QString &text, long *out)
{
    return convert(text, &QString::toLong, out);
}

bool MRVDomText::read(const QString &text, unsigned long *out)
{
    return convert(text, &QString::toULong, out);
}

bool MRVDomText::read(const QString &text, long long *out)
{
    return convert(text, &QString::toLongLong, out);
}

bool MRVDomText::read(const QString &text, unsigned long long *out)
{
    return convert(text, &QString::toULongLong, out);
}

bool MRVDomText::read(const QString &text, float *out)
{
    return convert(text, &QString::toFloat, out);
}

bool MRVDomText::read(const QString &text, double *out)
{
    return convert(text, &QString::toDouble, out);
}

bool MRVDomText::read(const QString &text, QSize *out)
{
    return convert(text, &MCoreType::toIntPair, out);
}

bool MRVDomText::read(const QString &text, QPoint *out)
{
    return convert(text, &MCoreType::toIntPair, out);
}

bool MRVDomText::read(const QString &text, QSizeF *out)
{
    return convert(text, &MCoreType::toDoublePair, out);
}

bool MRVDomText::read(const QString &text, QPointF *out)
{
    return convert(text, &MCoreType::toDoublePair, out);
}

bool MRVDomText::read(const QString &text, const QString &separator, QStringList *out)
{
    if (!out) {
        return false;
    }
    if (separator.isEmpty()) {
        *out = text.isEmpty() ? QStringList() : QStringList(text);
    } else {
        *out = text.split(separator, Qt::SkipEmptyParts);
    }
    return true;
}

bool MRVDomText::read(const QString &text, const QString &format, QDateTime *out)
{
    if (!out) {
        return false;
    }
    if (format.isEmpty()) {
        *out = QDateTime::fromString(text, Qt::ISODate);
    } else {
        // Read as UTC: local time may lack the hour.
        *out = QDateTime::fromString(text + QLatin1String(" UTC"), format + QLatin1String(" t"));
        if (!out->isValid()) {
            *out = QDateTime::fromString(text, format);
        }
    }
    // Only then can it be told whether an ISO date is valid.
    out->setTimeSpec(Qt::UTC);
    return out->isValid();
}

bool MRVDomText::read(const QString &text, char *buffer, int size)
{
    if (!buffer || size < 1) {
        return false;
    }
    std::strncpy(buffer, text.toLatin1().constData(), std::size_t(size));
    // Deliberate: the digit, not NUL.
    buffer[size - 1] = '0';
    return true;
}
