#include "completion.h"

#include <algorithm>

namespace {

// What names of arguments say of paths. Some of them may also be words, which the command knows.
struct PathArgument
{
    const char *name;
    Completion::Paths paths;
};
constexpr PathArgument pathArguments[] = {
    {"AFTER", Completion::Files}, {"BEFORE", Completion::Files}, {"DIR", Completion::Folders},
    {"FEED", Completion::Files},  {"FILE", Completion::Files},   {"FOLDER", Completion::Folders},
    {"IN", Completion::Files},    {"MODE", Completion::Files},   {"SCHEME", Completion::Files},
};

const Command *commandNamed(const QString &name)
{
    for (const Command *command : commands()) {
        if (name == QLatin1String(command->name)) {
            return command;
        }
    }
    return nullptr;
}

} // namespace

/** Reads a call as far as it goes, without judging it, and completes its last word. */
class Completer
{
public:
    explicit Completer(const Command &command)
        : m_command(command)
    {
        m_call.command = &command;
    }

    Completion complete(const QStringList &given);

private:
    void read(const QStringList &given);
    void readOption(const QString &word, const QString &value);
    void findVerb();
    const Option *optionSpelled(const QString &spelling) const;
    void addOptions();
    void addVerbs();
    void addArguments();
    void addValues(const QString &argument);

    const Command &m_command;
    Call m_call;
    Completion m_completion;
    QString m_option; // whose value the last word is
    bool m_isAfterOptions = false; // "--" was there
};

// The row that the verb takes; before it is known, any.
const Option *Completer::optionSpelled(const QString &spelling) const
{
    const QVector<const Option *> options = m_command.optionsOf(m_call.verb);
    const auto option = std::find_if(options.begin(), options.end(), [&](const Option *row) {
        return row->spellings().contains(spelling);
    });
    return option == options.end() ? nullptr : *option;
}

void Completer::readOption(const QString &word, const QString &value)
{
    if (const Option *option = optionSpelled(word.section(u'=', 0, 0))) {
        const bool isAttached = word.contains(u'=');
        m_call.m_values[option->longName()].append(isAttached ? word.section(u'=', 1) : value);
    }
}

void Completer::read(const QStringList &given)
{
    for (int i = 0; i + 1 < given.size(); ++i) {
        const QString &word = given.at(i);
        if (m_isAfterOptions || !looksLikeOption(word)) {
            m_isAfterOptions = m_isAfterOptions || word == QLatin1String("--");
            if (word != QLatin1String("--")) {
                m_call.arguments.append(word);
            }
        } else if (!m_command.takesNext(word)) {
            readOption(word, QString());
        } else if (i + 2 == given.size()) {
            m_option = word.startsWith(QLatin1String("--")) ? word : u'-' + word.right(1);
        } else {
            readOption(word, given.at(++i));
        }
    }
}

void Completer::findVerb()
{
    QStringList &arguments = m_call.arguments;
    if (!m_command.hasVerbs()) {
        m_call.verb = m_command.verbs.begin();
        return;
    }
    m_call.verb = m_command.verbNamed(arguments.value(0));
    const Verb *second = m_command.verbNamed(arguments.value(1));
    if (!m_call.verb && second && second->takesFileFirst()) {
        arguments.move(0, 1);
        m_call.verb = second;
    }
    if (m_call.verb) {
        arguments.removeFirst();
    }
}

void Completer::addOptions()
{
    const QVector<const Option *> options = m_command.optionsOf(m_call.verb);
    for (const Option *option : options) {
        const bool isGiven = m_call.m_values.contains(option->longName());
        const QString name = QLatin1String("--") + option->longName();
        const bool isThere =
            std::any_of(m_completion.words.cbegin(), m_completion.words.cend(),
                        [&](const Candidate &candidate) { return candidate.text == name; });
        if (!isThere && (!isGiven || option->repeatable)) {
            m_completion.words.append({name, option->explanation()});
        }
    }
    m_completion.words.append({QStringLiteral("--help"), QStringLiteral("Show this help.")});
}

void Completer::addVerbs()
{
    // After one file that stands first only the verbs that take it so remain.
    const bool isAfterFile = !m_call.arguments.isEmpty();
    for (const Verb &verb : m_command.verbs) {
        if (!isAfterFile || verb.takesFileFirst()) {
            m_completion.words.append({QLatin1String(verb.name), QString::fromUtf8(verb.help)});
        }
        if (!isAfterFile && verb.takesFileFirst()) {
            m_completion.paths = Completion::Files;
        }
    }
}

void Completer::addValues(const QString &argument)
{
    for (const PathArgument &row : pathArguments) {
        if (argument == QLatin1String(row.name)) {
            m_completion.paths = row.paths;
        }
    }
    for (const ArgumentValues &values : m_command.values) {
        if (words(values.arguments).contains(argument)) {
            m_completion.words += values.candidates(m_call);
        }
    }
}

// An argument that may be left out may be the next one, too.
void Completer::addArguments()
{
    const QStringList names = words(m_call.verb->arguments);
    const bool isLastRepeated = names.value(names.size() - 1).contains(QLatin1String("..."));
    int index = m_call.arguments.size();
    if (index >= names.size() && isLastRepeated) {
        index = names.size() - 1;
    }
    for (; index < names.size(); ++index) {
        QString name = names.at(index);
        const bool isOptional = name.startsWith(u'[');
        addValues(name.remove(u'[').remove(u']').remove(u'.'));
        if (!isOptional) {
            break;
        }
    }
}

Completion Completer::complete(const QStringList &given)
{
    read(given);
    findVerb();
    const QString &current = given.constLast();
    if (!m_isAfterOptions && current.startsWith(QLatin1String("--")) && current.contains(u'=')) {
        m_option = current.section(u'=', 0, 0);
    }
    if (!m_option.isEmpty()) {
        if (const Option *option = optionSpelled(m_option)) {
            m_completion.words += candidates(words(option->choices));
            addValues(QLatin1String(option->value));
        }
    } else if (!m_isAfterOptions && current.startsWith(u'-')) {
        addOptions();
    } else if (m_call.verb) {
        addArguments();
    } else {
        addVerbs();
    }
    return m_completion;
}

Completion completionOf(const QStringList &call)
{
    if (call.size() > 1) {
        const Command *command = commandNamed(call.constFirst());
        return command ? Completer(*command).complete(call.mid(1)) : Completion();
    }
    Completion completion;
    if (call.value(0).startsWith(u'-')) {
        completion.words = {{QStringLiteral("--help"), QStringLiteral("Show the help.")},
                            {QStringLiteral("--version"), QStringLiteral("Print the version.")}};
        return completion;
    }
    for (const Command *command : commands()) {
        completion.words.append(
            {QLatin1String(command->name), QString::fromUtf8(command->summary)});
    }
    return completion;
}

QString completionLines(const QStringList &call)
{
    const Completion completion = completionOf(call);
    QStringList lines;
    for (const Candidate &word : completion.words) {
        // A word that holds the end of a line cannot be typed.
        if (word.text == printable(word.text)) {
            lines.append(word.help.isEmpty() ? word.text
                                             : word.text + u'\t' + displayed(word.help));
        }
    }
    if (completion.paths != Completion::NoPaths) {
        const bool areFiles = completion.paths == Completion::Files;
        lines.append(QLatin1String(areFiles ? ":files" : ":folders"));
    }
    return lines.join(u'\n');
}
