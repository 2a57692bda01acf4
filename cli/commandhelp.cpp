#include "commandline.h"

#include <QPair>

#include <algorithm>

namespace {

constexpr int LineWidth = 79;
constexpr int MaxLeftColumn = 30;

using Entry = QPair<QString, QString>; // what stands in the left column, and in the right one

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
            + wrappedLines(entry.second, LineWidth - indent.size()).join(u'\n' + indent) + u'\n';
    }
    return text;
}

QString paragraphs(const QString &text)
{
    QString shown;
    const QStringList all = text.split(u'\n');
    for (const QString &paragraph : all) {
        shown += wrappedLines(paragraph, LineWidth).join(u'\n') + u'\n';
    }
    return shown;
}

QString spelling(const Option &option)
{
    const QStringList spellings = option.spellings();
    const bool isLong = spellings.constFirst().startsWith(QLatin1String("--"));
    return QLatin1String(isLong ? "    " : "") + spellings.join(QLatin1String(", "))
        + (option.value ? u' ' + QLatin1String(option.value) : QString());
}

QString optionList(const Command &command, const Verb *verb)
{
    QVector<Entry> entries;
    const QVector<const Option *> options = command.optionsOf(verb);
    for (const Option *option : options) {
        const QString verbs = !verb && option->verbs
            ? words(option->verbs).join(QLatin1String(", ")) + QLatin1String(": ")
            : QString();
        entries.append({spelling(*option), verbs + option->explanation()});
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

QStringList wrappedLines(const QString &paragraph, int width)
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
        description = verb->description();
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
