#include "options/mrvoptionstables_p.h"

#include "settings/mrvsettingsvalue.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <optional>

using namespace MRVOptionsTables;

namespace {

constexpr const char *TypeNames[] = {
    "flag", "int",  "real",     "string", "string list",      "color",
    "date", "font", "int list", "bytes",  "character format", "paragraph format"};
static_assert(std::size(TypeNames) == MRVOptions::BlockFormatType + 1);

constexpr QLatin1String Base64("base64:");

QString textOf(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    bool readable = text.toUtf8() == bytes && !text.startsWith(Base64);
    for (const QChar c : text) {
        readable = readable && (c.isPrint() || c == u'\n' || c == u'\t' || c.isSurrogate());
    }
    return readable ? text : Base64 + QString::fromLatin1(bytes.toBase64());
}

QString textOf(const QFont &font)
{
    return font.toString();
}

QString textOf(const QColor &color)
{
    if (!color.isValid()) {
        return QString();
    }
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
}

QString textOf(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers) {
        texts.append(QString::number(number));
    }
    return texts.join(u' ');
}

// The value to store for a text; nothing, with an error, where it is not a value of the row's type.
using Stored = std::optional<QVariant>;

Stored refuse(MRVErrorSink error, const QString &text)
{
    MRV::fail(error, text);
    return std::nullopt;
}

template<typename Number>
Stored within(bool isNumber, Number number, Number least, Number most, const QString &text,
              MRVErrorSink error)
{
    if (isNumber && number >= least && number <= most) {
        return QVariant(number);
    }
    const QString sentence = std::is_same_v<Number, int>
        ? MRVOptions::tr("'%1' is not a whole number from %2 to %3")
        : MRVOptions::tr("'%1' is not a number from %2 to %3");
    return refuse(error, sentence.arg(text, QString::number(least), QString::number(most)));
}

Stored oneOf(const QStringList &words, const QString &text, MRVErrorSink error)
{
    if (words.contains(text)) {
        return QVariant(text);
    }
    return refuse(
        error, MRVOptions::tr("'%1' is not one of: %2").arg(text, words.join(QLatin1String(", "))));
}

std::optional<QByteArray> bytesOf(const QString &text)
{
    if (!text.startsWith(Base64)) {
        return text.toUtf8();
    }
    const auto decoded = QByteArray::fromBase64Encoding(text.mid(Base64.size()).toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::make_optional(decoded.decoded) : std::nullopt;
}

Stored parse(const FlagRow &, const QString &text, MRVErrorSink error)
{
    bool ok = false;
    if (const bool flag = mrvToFlag(text, &ok); ok) {
        return QVariant(flag);
    }
    return refuse(error, MRVOptions::tr("'%1' is neither true nor false").arg(text));
}

Stored parse(const IntRow &row, const QString &text, MRVErrorSink error)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return within<int>(ok, number, row.value.least, row.value.most, text, error);
}

Stored parse(const RealRow &row, const QString &text, MRVErrorSink error)
{
    bool ok = false;
    const double number = text.toDouble(&ok); // NaN lies within no limits
    return within<double>(ok, number, row.value.least, row.value.most, text, error);
}

template<typename Setting>
Stored parse(const Row<Setting, TextDefault> &row, const QString &text, MRVErrorSink error)
{
    if (row.value.choices) {
        return oneOf(wordsOf(row.value.choices()), text, error);
    }
    if (row.value.form == MRVOptions::QuotePair && !isQuotePair(text)) {
        return refuse(
            error,
            MRVOptions::tr("'%1' is not a pair of an opening and a closing quote").arg(text));
    }
    if (row.value.accepts && !row.value.accepts(text)) {
        return refuse(
            error, MRVOptions::tr("'%1' is not a value such as '%2'").arg(text, row.value.ask()));
    }
    return QVariant(text);
}

Stored parse(const StringListRow &, const QString &text, MRVErrorSink)
{
    return QVariant(text.split(u'\n', Qt::SkipEmptyParts));
}

Stored parse(const ColorRow &row, const QString &text, MRVErrorSink error)
{
    const QColor color(text);
    if (color.isValid() && color.alpha() == 0 && row.value.isRead) {
        return refuse(error, MRVOptions::tr("'%1' is fully transparent").arg(text));
    }
    if (color.isValid()) {
        return QVariant(color);
    }
    return refuse(error, MRVOptions::tr("'%1' is not a colour such as #1f1f1f or navy").arg(text));
}

Stored parse(const DateTimeRow &, const QString &text, MRVErrorSink error)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    if (time.isValid()) {
        return QVariant(time);
    }
    return refuse(error,
                  MRVOptions::tr("'%1' is not a date such as 2026-01-31T18:30:00").arg(text));
}

Stored parse(const FontRow &, const QString &text, MRVErrorSink error)
{
    // QFont takes any text as a family, and leaves out what it does not understand.
    const int fields = text.count(u',') + 1;
    const QString size = text.section(u',', 1, 1);
    bool isSize = false;
    const double points = size.toDouble(&isSize);
    const bool inPixels = fields > 2 && text.section(u',', 2, 2).toInt() > 0;
    QFont font;
    if (!text.section(u',', 0, 0).trimmed().isEmpty() && fields != 1 && isSize
        && ((points > 0 && points <= 1000) || inPixels) && font.fromString(text)) {
        return QVariant(font.toString());
    }
    return refuse(error, MRVOptions::tr("'%1' is not a font such as Serif,12").arg(text));
}

Stored parse(const IntListRow &, const QString &text, MRVErrorSink error)
{
    const QStringList parts =
        text.split(QRegularExpression(QStringLiteral("\\s")), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        bool ok = false;
        part.toInt(&ok);
        if (!ok) {
            return refuse(error, MRVOptions::tr("'%1' is not a whole number").arg(part));
        }
    }
    return QVariant(parts.join(u' '));
}

Stored parse(const ByteArrayRow &row, const QString &text, MRVErrorSink error)
{
    const auto bytes = bytesOf(text);
    if (!bytes) {
        return refuse(error, MRVOptions::tr("what follows 'base64:' is not Base64"));
    }
    if (bytes->isEmpty() && !row.value.make().isEmpty()) {
        return refuse(error,
                      MRVOptions::tr("an empty text is not a value; reset the setting instead"));
    }
    if (!bytes->isEmpty() && row.value.accepts && !row.value.accepts(*bytes)) {
        return refuse(error, MRVOptions::tr("the bytes do not have the form of this setting"));
    }
    return QVariant(*bytes);
}

template<typename Format>
Stored formatOf(const QString &text, Format (*read)(const QByteArray &), MRVErrorSink error)
{
    const auto bytes = bytesOf(text);
    // Bytes that cannot be read give an empty format.
    if (bytes && !bytes->isEmpty()) {
        const Format format = read(*bytes);
        if (!format.isEmpty() || MRVSettings::toByteArray(format) == *bytes) {
            return QVariant(MRVSettings::toByteArray(format));
        }
    }
    return refuse(error,
                  MRVOptions::tr("the text is not 'base64:' followed by the bytes of a format"));
}

Stored parse(const CharFormatRow &, const QString &text, MRVErrorSink error)
{
    return formatOf<QTextCharFormat>(text, &MRVSettings::toTextCharFormat, error);
}

Stored parse(const BlockFormatRow &, const QString &text, MRVErrorSink error)
{
    return formatOf<QTextBlockFormat>(text, &MRVSettings::toTextBlockFormat, error);
}

// A stored value as the text that setFromText() takes; null where any value of its type will do.
QString textToParse(MRVOptions::SettingType type, const QVariant &stored)
{
    switch (type) {
    case MRVOptions::StringListType:
    case MRVOptions::IntListType:
        return QString();
    case MRVOptions::ColorType:
        return stored.userType() == QMetaType::QColor ? textOf(stored.value<QColor>())
                                                      : mrvToText(stored);
    case MRVOptions::DateTimeType:
        return stored.userType() == QMetaType::QDateTime ? QString() : mrvToText(stored);
    case MRVOptions::FontType:
        return stored.userType() == QMetaType::QFont ? QString() : stored.toStringList().join(u',');
    case MRVOptions::ByteArrayType:
    case MRVOptions::CharFormatType:
    case MRVOptions::BlockFormatType: {
        const QByteArray bytes = stored.toByteArray(); // empty ones read as the default
        return bytes.isEmpty() ? QString() : Base64 + QString::fromLatin1(bytes.toBase64());
    }
    default:
        return mrvToText(stored);
    }
}

// Whether a text that is refused is of the type at least.
bool isOfType(MRVOptions::SettingType type, const QString &text)
{
    bool ok =
        type == MRVOptions::StringType || (type == MRVOptions::ColorType && QColor(text).isValid());
    if (type == MRVOptions::IntType) {
        text.toLongLong(&ok);
    } else if (type == MRVOptions::RealType) {
        text.toDouble(&ok);
    }
    return ok;
}

bool isBytes(MRVOptions::SettingType type)
{
    return type >= MRVOptions::ByteArrayType;
}

template<typename Entry>
MRVOptions::Problem problemOf(const Entry &row, const QVariant &stored)
{
    using Problem = MRVOptions::Problem;
    const MRVOptions::SettingType type = typeOf(row.setting);
    const QString key = QString::fromLatin1(row.key);
    if (isBytes(type) && mrvIsList(stored)) {
        return {key, Problem::Unreadable, mrvToText(stored),
                MRVOptions::tr(
                    "the commas make a list of the bytes; they belong into quotation marks")};
    }
    const QString text = textToParse(type, stored);
    QString message;
    if (text.isNull() || parse(row, text, &message)) {
        return {};
    }
    return {key, isOfType(type, text) ? Problem::OutOfLimits : Problem::Unreadable,
            isBytes(type) ? textOf(stored.toByteArray()) : text, message};
}

constexpr const char *ProblemNames[] = {"unknown", "limits", "unreadable"};
static_assert(std::size(ProblemNames) == MRVOptions::Problem::Unreadable + 1);

} // namespace

MRVOptions::Problem MRVOptionsTables::problemOf(const QString &key, const QVariant &stored)
{
    MRVOptions::Problem problem;
    bool isKnown = false;
    forEachRow([&](const auto &row) {
        if (!isKnown && key == QLatin1String(row.key)) {
            isKnown = true;
            // An invalid value was set so that the default holds.
            problem = stored.isValid() ? ::problemOf(row, stored) : MRVOptions::Problem();
        }
    });
    if (isKnown) {
        return problem;
    }
    return {key, MRVOptions::Problem::UnknownKey, mrvToText(stored),
            MRVOptions::tr("no setting is called '%1'").arg(key)};
}

MRVOptions::Problem MRVOptionsTables::problemOfDamage(const QString &key, const QString &text)
{
    return {key, MRVOptions::Problem::Unreadable, text, MRVOptions::tr("the value is damaged")};
}

QString MRVOptions::Problem::kindName() const
{
    return QString::fromLatin1(ProblemNames[kind]);
}

QJsonObject MRVOptions::Problem::toJson() const
{
    return {{QStringLiteral("key"), key},
            {QStringLiteral("kind"), kindName()},
            {QStringLiteral("stored"), stored},
            {QStringLiteral("message"), message}};
}

QString MRVOptions::typeName(SettingType type)
{
    return uint(type) < std::size(TypeNames) ? QString::fromLatin1(TypeNames[type]) : QString();
}

QString MRVOptions::toText(SettingType type, const QVariant &value)
{
    switch (type) {
    case FlagType:
    case IntType:
    case StringType:
        break;
    case RealType:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case StringListType:
        return value.toStringList().join(u'\n');
    case ColorType:
        return textOf(value.value<QColor>());
    case DateTimeType:
        return value.toDateTime().toString(Qt::ISODateWithMs);
    case FontType:
        return textOf(value.value<QFont>());
    case IntListType:
        return textOf(value.value<QList<int>>());
    case ByteArrayType:
        return textOf(value.toByteArray());
    case CharFormatType:
        return Base64
            + QString::fromLatin1(
                   toByteArray(value.value<QTextFormat>().toCharFormat()).toBase64());
    case BlockFormatType:
        return Base64
            + QString::fromLatin1(
                   toByteArray(value.value<QTextFormat>().toBlockFormat()).toBase64());
    }
    return value.toString();
}

QJsonValue MRVOptions::toJson(SettingType type, const QVariant &value)
{
    switch (type) {
    case FlagType:
        return value.toBool();
    case IntType:
        return value.toInt();
    case RealType:
        return value.toDouble();
    case StringListType:
        return QJsonArray::fromStringList(value.toStringList());
    default:
        return toText(type, value);
    }
}

bool MRVOptions::setFromText(const QString &key, const QString &text, MRVErrorSink error)
{
    bool known = false;
    Stored stored;
    forEachRow([&](const auto &row) {
        if (!known && key == QLatin1String(row.key)) {
            known = true;
            stored = parse(row, text, error);
        }
    });
    if (!known) {
        return MRV::fail(error, MRVErrorKind::NotFound, tr("no setting is called '%1'").arg(key));
    }
    if (!stored) {
        return false;
    }
    return setValue(key, *stored)
        || MRV::fail(error, MRVErrorKind::NoPermission, tr("%1 cannot be written").arg(fileName()));
}
