#include "textsearch.h"

#include "util/mrvfailure.h"

#include <QBrush>
#include <QColor>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr struct
{
    const char *option;
    MRVTextFinder::FindFlags flags;
} flagRows[] = {
    {"case", MRVTextFinder::FindCaseSensitively},
    {"whole-word", MRVTextFinder::FindWholeWords},
    {"word-start", MRVTextFinder::FindWordStart},
    {"word-end", MRVTextFinder::FindWordEnd},
};

// Formats that consist of a property that is true.
constexpr struct
{
    const char *option;
    int property;
} propertyRows[] = {
    {"italic", QTextFormat::FontItalic},
    {"underline", QTextFormat::FontUnderline},
    {"strike", QTextFormat::FontStrikeOut},
};

// Formats with a colour.
constexpr struct
{
    const char *option;
    MRVTextFinder::FindType type;
} colorRows[] = {
    {"colour", MRVTextFinder::FindTextColor},
    {"highlight", MRVTextFinder::FindHighlight},
};

QVariant propertyFormat(int property)
{
    QTextCharFormat format;
    format.setProperty(property, true);
    return QVariant::fromValue<QTextFormat>(format);
}

} // namespace

QString unknownColor(const QString &name)
{
    return QStringLiteral("unknown colour '%1'; known are #rrggbb and names of CSS").arg(name);
}

MRVError givenUp(const MRVSearchOutcome &outcome)
{
    return {outcome.reason == MRVSearchOutcome::Cancelled ? MRVErrorKind::Cancelled
                                                          : MRVErrorKind::TooLarge,
            outcome.text()};
}

bool readSearchOptions(const Call &call, MRVTextQuery *query, MRVErrorSink error)
{
    query->syntax = call.has("regex") ? MRVTextQuery::RegularExpression : MRVTextQuery::PlainText;
    query->ignoreTypography = call.has("loose");
    query->ignoreAccents = call.has("ignore-accents");
    query->acrossParagraphs = call.has("across");
    query->timeLimit = int(call.number("time-limit", 0)) * 1000;
    for (const auto &row : flagRows) {
        if (call.has(row.option)) {
            query->flags |= row.flags;
        }
    }
    if (call.has("links")) {
        query->kinds.append(
            {MRVTextFinder::FindLink, MRVTextFinder::ExternalLinks | MRVTextFinder::InternalLinks});
    }
    if (call.has("highlights")) {
        query->kinds.append({MRVTextFinder::FindHighlight, QVariant()});
    }
    for (const auto &row : colorRows) {
        if (!call.has(row.option)) {
            continue;
        }
        const QString name = call.value(row.option);
        const QColor color(name);
        if (name != QLatin1String("any") && !color.isValid()) {
            return MRV::fail(error, unknownColor(name));
        }
        query->kinds.append({row.type, color.isValid() ? QVariant(color) : QVariant()});
    }
    for (const auto &row : propertyRows) {
        if (call.has(row.option)) {
            query->kinds.append({MRVTextFinder::FindFormat, propertyFormat(row.property)});
        }
    }
    if (call.has("bold")) {
        query->accepts = [](const QTextCharFormat &format) {
            return format.fontWeight() > QFont::Medium;
        };
    }
    return query->isValid(error);
}

QJsonObject toJson(const QString &path, QTextDocument *document, const MRVTextRange &range)
{
    const QTextBlock block = document->findBlock(range.start());
    QString text = range.toTextCursor(document).selectedText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return {{QStringLiteral("path"), path},
            {QStringLiteral("paragraph"), block.blockNumber() + 1},
            {QStringLiteral("column"), range.start() - block.position() + 1},
            {QStringLiteral("start"), range.start()},
            {QStringLiteral("end"), range.end()},
            {QStringLiteral("text"), text}};
}
