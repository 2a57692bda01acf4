#include "commandline.h"

#include <QPair>
#include <QVector>

#include <algorithm>

namespace {

constexpr int LineWidth = 79;
constexpr int MaxLeftColumn = 30;

using Entry = QPair<QString, QString>; // what stands in the left column, and in the right one

// Lines of words that fit the width; a word that does not fit gets a line of its own.
QStringList wrapped(const QString &paragraph, int width)
{
    QStringList lines{QString()};
    const QStringList words = paragraph.split(u' ');
    for (const QString &word : words) {
        QString &line = lines.last();
        if (line.isEmpty()) {
            line = word;
        } else if (line.size() + 1 + word.size() <= width) {
            line += u' ' + word;
        } else {
            lines.append(word);
        }
    }
    return lines;
}

QString columns(const QVector<Entry> &entries)
{
    int left = 0;
    for (const Entry &entry : entries) {
        if (entry.first.size() <= MaxLeftColumn) {
            left = qMax(left, entry.first.size());
        }
    }
    const QString indent(left + 4, u' ');
    QString text;
    for (const Entry &entry : entries) {
        const bool isLong = entry.first.size() > left;
        text += QLatin1String("  ") + entry.first.leftJustified(left)
            + (isLong ? u'\n' + indent : QStringLiteral("  "))
            + wrapped(entry.second, LineWidth - indent.size()).join(u'\n' + indent) + u'\n';
    }
    return text;
}

QString paragraphs(const QString &text)
{
    QString shown;
    const QStringList all = text.split(u'\n');
    for (const QString &paragraph : all) {
        shown += wrapped(paragraph, LineWidth).join(u'\n') + u'\n';
    }
    return shown;
}

QString spelling(const Option &option)
{
    QStringList spellings;
    const QStringList names = words(option.names);
    for (const QString &name : names) {
        spellings.append(QLatin1String(name.size() > 1 ? "--" : "-") + name);
    }
    const QString indent = names.constFirst().size() > 1 ? QStringLiteral("    ") : QString();
    return indent + spellings.join(QLatin1String(", "))
        + (option.value ? u' ' + QLatin1String(option.value) : QString());
}

QString explanation(const Option &option, bool namesVerbs)
{
    QString text = QString::fromUtf8(option.help);
    if (namesVerbs && option.verbs) {
        text.prepend(words(option.verbs).join(QLatin1String(", ")) + QLatin1String(": "));
    }
    return option.repeatable ? text + QLatin1String(" May be given several times.") : text;
}

QString optionList(const Command &command, const Verb *verb)
{
    QVector<Entry> entries;
    for (const Rows<Option> &group : command.options) {
        for (const Option &option : group) {
            if (!verb || !option.verbs || words(option.verbs).contains(QLatin1String(verb->name))) {
                entries.append({spelling(option), explanation(option, !verb)});
            }
        }
    }
    entries.append({QStringLiteral("-h, --help"), QStringLiteral("Show this help.")});
    return QLatin1String("\nOptions:\n") + columns(entries);
}

QString verbList(const Command &command)
{
    QVector<Entry> entries;
    for (const Verb &verb : command.verbs) {
        entries.append(
            {QString(QLatin1String(verb.name) + u' ' + QLatin1String(verb.arguments)).trimmed(),
             QString::fromUtf8(verb.help)});
    }
    return QLatin1String("\nVerbs:\n") + columns(entries);
}

QString exampleList(const Command &command, const Verb *verb)
{
    const QString call =
        QLatin1String(command.name) + (verb ? u' ' + QLatin1String(verb->name) : QString()) + u' ';
    QString text;
    const QStringList examples = QString::fromUtf8(command.examples).split(u'\n');
    for (const QString &example : examples) {
        if (QString(example + u' ').startsWith(call)) {
            text += QLatin1String("  mrv ") + example + u'\n';
        }
    }
    return text.isEmpty() ? text : QLatin1String("\nExamples:\n") + text;
}

} // namespace

QString usageOf(const Command &command, const Verb &verb)
{
    return QStringLiteral("mrv %1 %2 %3")
        .arg(QLatin1String(command.name), QLatin1String(verb.name), QLatin1String(verb.arguments))
        .simplified();
}

QString toolHelp()
{
    QVector<Entry> entries;
    for (const Command *command : commands()) {
        entries.append({QLatin1String(command->name), QString::fromUtf8(command->summary)});
    }
    return QLatin1String("Usage: mrv COMMAND [VERB] [ARGUMENTS] [OPTIONS]\n\nCommands:\n")
        + columns(entries)
        + paragraphs(QStringLiteral("\n'mrv COMMAND --help' tells more. 'mrv --version' prints the "
                                    "version."))
              .chopped(1);
}

QString helpOf(const Command &command, const Verb *verb)
{
    QString usage = usageOf(command, verb ? *verb : *command.verbs.begin());
    QString description = QString::fromUtf8(command.description);
    if (verb) {
        const QString details = QString::fromUtf8(verb->details);
        description = QString::fromUtf8(verb->help) + u'.';
        description[0] = description.at(0).toUpper();
        description += details.isEmpty() ? details : u'\n' + details;
    } else if (command.hasVerbs()) {
        usage = QStringLiteral("mrv %1 VERB [ARGUMENTS]").arg(QLatin1String(command.name));
    }
    QString text = QLatin1String("Usage: ") + usage + QLatin1String(" [OPTIONS]\n\n")
        + paragraphs(description);
    if (!verb && command.hasVerbs()) {
        text += verbList(command);
    }
    text += optionList(command, verb) + exampleList(command, verb);
    return text.trimmed();
}
