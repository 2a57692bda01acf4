#include "textsearch.h"

#include "command.h"

#include <QBrush>
#include <QColor>
#include <QCommandLineParser>
#include <QJsonDocument>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

namespace {

constexpr struct
{
    const char *name;
    const char *shortName; // null: has none
    MRVTextFinder::FindFlags flags;
    const char *description;
} flagRows[] = {
    {"case", "s", MRVTextFinder::FindCaseSensitively, "Tell capitals from small letters."},
    {"whole-word", "w", MRVTextFinder::FindWholeWords,
     "Only finds with no letter or digit at either side."},
    {"word-start", nullptr, MRVTextFinder::FindWordStart, "Only where a word begins."},
    {"word-end", nullptr, MRVTextFinder::FindWordEnd, "Only where a word ends."},
};

// Formats that a property with its value tells.
constexpr struct
{
    const char *name;
    int property;
    int value;
    const char *description;
} propertyRows[] = {
    {"bold", QTextFormat::FontWeight, QFont::Bold, "Only bold text; headings are bold, too."},
    {"italic", QTextFormat::FontItalic, true, "Only text in italics."},
    {"underline", QTextFormat::FontUnderline, true, "Only underlined text."},
    {"strike", QTextFormat::FontStrikeOut, true, "Only text that is struck out."},
};

// Formats with a colour.
constexpr struct
{
    const char *name;
    const char *otherName;
    MRVTextFinder::FindType type;
    const char *description;
} colorRows[] = {
    {"colour", "color", MRVTextFinder::FindTextColor,
     "Only text in this colour (a name or #rrggbb); 'any' for any colour."},
    {"highlight", nullptr, MRVTextFinder::FindHighlight, "Only text highlighted in this colour."},
};

QVariant propertyFormat(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return QVariant::fromValue<QTextFormat>(format);
}

} // namespace

void TextSearch::addOptions(QCommandLineParser *parser)
{
    parser->addOption(
        {{QStringLiteral("E"), QStringLiteral("regex")},
         QStringLiteral("TEXT is a regular expression (Perl's, letters being Unicode's).")});
    for (const auto &row : flagRows) {
        QStringList names{QLatin1String(row.name)};
        if (row.shortName) {
            names.prepend(QLatin1String(row.shortName));
        }
        parser->addOption({names, QLatin1String(row.description)});
    }
    parser->addOption(
        {{QStringLiteral("l"), QStringLiteral("loose")},
         QStringLiteral("Straight and curly quotes, hyphens and dashes short as a hyphen, blanks, "
                        "and accents made in one piece or two count as the same.")});
    parser->addOption({QStringLiteral("links"), QStringLiteral("Only text that is a link.")});
    parser->addOption({QStringLiteral("highlights"), QStringLiteral("Only highlighted text.")});
    for (const auto &row : colorRows) {
        QStringList names{QLatin1String(row.name)};
        if (row.otherName) {
            names.append(QLatin1String(row.otherName));
        }
        parser->addOption({names, QLatin1String(row.description), QStringLiteral("COLOUR")});
    }
    for (const auto &row : propertyRows) {
        parser->addOption({QLatin1String(row.name), QLatin1String(row.description)});
    }
    addInputOptions(parser);
}

bool TextSearch::readOptions(const QCommandLineParser &parser, QString *error)
{
    query.syntax = parser.isSet(QStringLiteral("regex")) ? MRVTextQuery::RegularExpression
                                                         : MRVTextQuery::PlainText;
    query.ignoreTypography = parser.isSet(QStringLiteral("loose"));
    for (const auto &row : flagRows) {
        if (parser.isSet(QLatin1String(row.name))) {
            query.flags |= row.flags;
        }
    }
    if (parser.isSet(QStringLiteral("links"))) {
        query.kinds.append(
            {MRVTextFinder::FindLink, MRVTextFinder::ExternalLinks | MRVTextFinder::InternalLinks});
    }
    if (parser.isSet(QStringLiteral("highlights"))) {
        query.kinds.append({MRVTextFinder::FindHighlight, QVariant()});
    }
    for (const auto &row : colorRows) {
        if (!parser.isSet(QLatin1String(row.name))) {
            continue;
        }
        const QString name = parser.value(QLatin1String(row.name));
        const QColor color(name);
        if (name != QLatin1String("any") && !color.isValid()) {
            *error =
                QStringLiteral("unknown colour '%1'; known are #rrggbb and names of CSS").arg(name);
            return false;
        }
        query.kinds.append({row.type, color.isValid() ? QVariant(color) : QVariant()});
    }
    for (const auto &row : propertyRows) {
        if (parser.isSet(QLatin1String(row.name))) {
            const QVariant value = row.value == true ? QVariant(true) : QVariant(row.value);
            query.kinds.append({MRVTextFinder::FindFormat, propertyFormat(row.property, value)});
        }
    }
    return query.isValid(error);
}

void addInputOptions(QCommandLineParser *parser)
{
    parser->addOption(
        {QStringLiteral("from"),
         QStringLiteral("What the inputs are: html, markdown or text. Default: by their suffixes."),
         QStringLiteral("FORMAT")});
    parser->addOption(
        {QStringLiteral("encoding"),
         QStringLiteral("The inputs' encoding. Default: what they declare, else UTF-8."),
         QStringLiteral("NAME")});
}

bool readInputOptions(const QCommandLineParser &parser, const QStringList &inputs,
                      InputOptions *options, QString *error)
{
    options->format = parser.value(QStringLiteral("from"));
    options->encoding = parser.value(QStringLiteral("encoding"));
    options->pictures = false;
    const QStringList known{QString(), QStringLiteral("html"), QStringLiteral("markdown"),
                            QStringLiteral("text")};
    if (!known.contains(options->format)) {
        *error = QStringLiteral("unknown format '%1'; known are html, markdown and text")
                     .arg(options->format);
    } else if (inputs.isEmpty()) {
        *error = QStringLiteral("an input is missing");
    } else if (inputs.count(QStringLiteral("-")) > 1) {
        *error = QStringLiteral("standard input can be read only once");
    } else {
        return true;
    }
    return false;
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
