#include "commandline.h"
#include "suggestion.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>
#include <limits>

namespace {

// Arguments that may be empty; all others name something.
constexpr const char *mayBeEmpty[] = {"VALUE", "VALUE...", "REPLACEMENT", "NEW", "PATH", "WORD..."};

QStringList verbNames(const Command &command)
{
    QStringList names;
    for (const Verb &verb : command.verbs) {
        names.append(QLatin1String(verb.name));
    }
    return names;
}

/** How many arguments a verb takes. */
struct Count
{
    int least = 0;
    int most = 0;
};

Count countOf(const Verb &verb)
{
    Count count;
    const QStringList arguments = words(verb.arguments);
    for (const QString &argument : arguments) {
        count.least += argument.startsWith(u'[') ? 0 : 1;
        count.most = argument.contains(QLatin1String("...")) ? std::numeric_limits<int>::max()
                                                             : count.most + 1;
    }
    return count;
}

// The name of the argument at a place, as usage has it; the last one may stand for many.
QString argumentName(const Verb &verb, int index)
{
    const QStringList names = words(verb.arguments);
    return QString(names.value(qMin(index, names.size() - 1))).remove(u'[').remove(u']');
}

// What is wrong with a value; empty when nothing is.
QString objectionTo(const Option &option, const QString &value)
{
    if (option.kind == Option::Flag || option.kind == Option::Text) {
        return QString();
    }
    if (value.isEmpty()) {
        return QStringLiteral("needs a value");
    }
    if (option.kind == Option::Choice) {
        const QStringList choices = words(option.choices);
        return choices.contains(value)
            ? QString()
            : QStringLiteral("'%1' is not one of %2").arg(value, choices.join(QLatin1String(", ")));
    }
    if (option.kind == Option::Name) {
        return QString();
    }
    bool isNumber = false;
    const bool isWhole = option.kind == Option::Integer;
    const double number = isWhole ? double(value.toLongLong(&isNumber)) : value.toDouble(&isNumber);
    if (isNumber && number >= option.least && number <= option.most) {
        return QString();
    }
    return QStringLiteral("'%1' is not a %2 from %3 to %4")
        .arg(value, isWhole ? QLatin1String("whole number") : QLatin1String("number"),
             QString::number(option.least, 'f', 0), QString::number(option.most, 'f', 0));
}

} // namespace

/** Fills a call from the arguments; each step leaves the text of its error. */
class CommandLine
{
public:
    CommandLine(const Command &command, Call *call)
        : m_command(command)
        , m_call(*call)
    {
        m_call.command = &command;
        m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QString()});
        const QVector<const Option *> options = command.optionsOf();
        for (const Option *option : options) {
            // The rows of one option, for several verbs, agree on whether it takes a value.
            if (!m_all.contains(option->longName())) {
                m_all.append(option->longName());
                m_parser.addOption({words(option->names), QString(), QLatin1String(option->value)});
            }
        }
    }

    QString error() const { return m_error; }
    bool wantsHelp() const { return m_parser.isSet(QStringLiteral("help")); }

    bool parse(QStringList arguments);
    bool findVerb();
    bool checkOptions();
    bool checkArguments();

private:
    bool fail(const QString &text, const QString &advice = QString());
    bool putOptionsFirst(QStringList *arguments);
    bool checkOption(const QString &name);

    const Command &m_command;
    Call &m_call;
    QCommandLineParser m_parser;
    QStringList m_all; // long names
    QString m_error;
};

bool CommandLine::fail(const QString &text, const QString &advice)
{
    const QString verb =
        m_call.verb && m_command.hasVerbs() ? u' ' + QLatin1String(m_call.verb->name) : QString();
    m_error = text
        + (advice.isEmpty()
               ? QStringLiteral("; try 'mrv %1%2 --help'").arg(QLatin1String(m_command.name), verb)
               : advice);
    return false;
}

// A text such as "-1" or "-->" is no option: the parser gets such texts after "--".
bool CommandLine::putOptionsFirst(QStringList *arguments)
{
    QStringList options = arguments->mid(0, 1); // the command's name
    QStringList others{QStringLiteral("--")};
    for (int i = 1; i < arguments->size(); ++i) {
        const QString &argument = arguments->at(i);
        if (argument == QLatin1String("--")) {
            others += arguments->mid(i + 1);
            break;
        }
        if (!looksLikeOption(argument)) {
            others.append(argument);
            continue;
        }
        options.append(argument);
        if (m_command.takesNext(argument)) {
            if (++i == arguments->size()) {
                return fail(argument + QLatin1String(": needs a value"));
            }
            options.append(arguments->at(i));
        }
    }
    *arguments = options + others;
    return true;
}

bool CommandLine::parse(QStringList arguments)
{
    if (!putOptionsFirst(&arguments)) {
        return false;
    }
    if (m_parser.parse(arguments)) {
        m_call.arguments = m_parser.positionalArguments();
        return true;
    }
    const QStringList unknown = m_parser.unknownOptionNames();
    if (unknown.isEmpty()) {
        return fail(m_parser.errorText());
    }
    // A long option that is unknown is told from short ones in one argument by the hyphens.
    const QString &name = unknown.constFirst();
    const bool isLong = name.size() > 1
        || std::any_of(arguments.cbegin(), arguments.cend(), [&](const QString &argument) {
                            return argument == QLatin1String("--") + name;
                        });
    const QString near = isLong ? MRV::closestMatch(name, m_all) : QString();
    return fail(
        QStringLiteral("unknown option '%1%2'").arg(QLatin1String(isLong ? "--" : "-"), name),
        near.isEmpty() ? QStringLiteral("; what is no option but looks like one goes after '--'")
                       : QStringLiteral("; did you mean '--%1'?").arg(near));
}

bool CommandLine::findVerb()
{
    QStringList &arguments = m_call.arguments;
    if (!m_command.hasVerbs()) {
        m_call.verb = m_command.verbs.begin();
        return true;
    }
    const QStringList names = verbNames(m_command);
    if (arguments.isEmpty()) {
        return wantsHelp()
            || fail(QStringLiteral("a verb is missing: %1").arg(names.join(QLatin1String(", "))));
    }
    const Verb *first = m_command.verbNamed(arguments.constFirst());
    const Verb *second = m_command.verbNamed(arguments.value(1));
    // Of two words that could each be the verb, the file is the one that exists.
    const bool isFileFirst = !first
        || (QFileInfo(arguments.constFirst()).isFile() && !QFileInfo(arguments.value(1)).isFile());
    if (second && second->takesFileFirst() && isFileFirst) {
        arguments.move(0, 1);
        first = second;
    }
    if (!first) {
        // A file may stand before a verb that is misspelt.
        const bool isSecond = MRV::closestMatch(arguments.constFirst(), names).isNull()
            && arguments.size() > 1 && !MRV::closestMatch(arguments.at(1), names).isNull();
        const QString &wrong = arguments.at(isSecond ? 1 : 0);
        return fail(QStringLiteral("unknown verb '%1'").arg(wrong), didYouMean(wrong, names));
    }
    m_call.verb = first;
    arguments.removeFirst();
    return true;
}

bool CommandLine::checkOption(const QString &name)
{
    const QStringList values = m_parser.values(name);
    const QVector<const Option *> options = m_command.optionsOf(m_call.verb);
    const auto option = std::find_if(options.begin(), options.end(),
                                     [&](const Option *row) { return row->longName() == name; });
    if (option == options.end()) {
        return fail(QStringLiteral("%1 takes no option '--%2'")
                        .arg(QLatin1String(m_call.verb->name), name));
    }
    for (const QString &value : values) {
        const QString objection = objectionTo(**option, value);
        if (!objection.isEmpty()) {
            return fail(QStringLiteral("--%1: %2").arg(name, objection),
                        (*option)->kind == Option::Choice
                            ? didYouMean(value, words((*option)->choices))
                            : QString());
        }
    }
    m_call.m_values.insert(name, values);
    return true;
}

bool CommandLine::checkOptions()
{
    return std::all_of(m_all.cbegin(), m_all.cend(), [this](const QString &name) {
        return !m_parser.isSet(name) || checkOption(name);
    });
}

bool CommandLine::checkArguments()
{
    const Verb &verb = *m_call.verb;
    const QStringList &arguments = m_call.arguments;
    const Count count = countOf(verb);
    const QString usage = QLatin1String("; usage: ") + usageOf(m_command, verb);
    if (arguments.size() < count.least) {
        const QString name = argumentName(verb, arguments.size()).remove(QLatin1String("..."));
        return fail(name + QLatin1String(" is missing"), usage);
    }
    if (arguments.size() > count.most) {
        return fail(QStringLiteral("'%1' is one argument too many").arg(arguments.at(count.most)),
                    usage);
    }
    for (int i = 0; i < arguments.size(); ++i) {
        const QString name = argumentName(verb, i);
        const bool mayBe = std::any_of(std::begin(mayBeEmpty), std::end(mayBeEmpty),
                                       [&](const char *row) { return name == QLatin1String(row); });
        if (arguments.at(i).isEmpty() && !mayBe) {
            return fail(QStringLiteral("%1 is empty").arg(QString(name).remove(u'.')), usage);
        }
    }
    return true;
}

QString Call::value(const char *option) const
{
    const QStringList values = m_values.value(QLatin1String(option));
    return values.isEmpty() ? QString() : values.constLast();
}

double Call::number(const char *option, double otherwise) const
{
    return has(option) ? value(option).toDouble() : otherwise;
}

int readCall(const Command &command, const QStringList &arguments, Call *call)
{
    CommandLine line(command, call);
    if (line.parse(arguments) && line.findVerb()) {
        if (line.wantsHelp()) {
            printLine(helpOf(command, command.hasVerbs() ? call->verb : nullptr));
            return Done;
        }
        if (line.checkOptions() && line.checkArguments()) {
            return -1;
        }
    }
    return usageError(line.error());
}

int refuse(const MRVError &error)
{
    printError(error);
    return Failed;
}

int refuse(MRVErrorKind kind, const QString &text)
{
    return refuse({kind, text});
}

int usageError(const QString &text)
{
    printUsage(text);
    return WrongUsage;
}

void printAnswer(const Call &call, const QJsonObject &object, const QString &line)
{
    if (call.json()) {
        printJson(object);
    } else {
        printLine(line);
    }
}

QString Option::longName() const
{
    const QStringList all = words(names);
    return all.constFirst().size() > 1 || all.size() == 1 ? all.constFirst() : all.at(1);
}

QStringList Option::spellings() const
{
    QStringList all = words(names);
    for (QString &name : all) {
        name.prepend(QLatin1String(name.size() > 1 ? "--" : "-"));
    }
    return all;
}

QString Option::explanation() const
{
    return QString::fromUtf8(help)
        + QLatin1String(repeatable ? " May be given several times." : "");
}

bool Option::isTakenBy(const Verb &verb) const
{
    return !verbs || words(verbs).contains(QLatin1String(verb.name));
}

QString Verb::description() const
{
    QString text = QString::fromUtf8(help) + u'.';
    text[0] = text.at(0).toUpper();
    return details ? text + u'\n' + QString::fromUtf8(details) : text;
}

bool Verb::takesFileFirst() const
{
    const QString names = QLatin1String(arguments);
    return names.startsWith(QLatin1String("FILE")) || names.startsWith(QLatin1String("IN"));
}

const Verb *Command::verbNamed(const QString &wanted) const
{
    const auto verb = std::find_if(verbs.begin(), verbs.end(), [&](const Verb &row) {
        return wanted == QLatin1String(row.name);
    });
    return verb == verbs.end() ? nullptr : verb;
}

QVector<const Option *> Command::optionsOf(const Verb *verb) const
{
    QVector<const Option *> rows;
    for (const Rows<Option> &group : options) {
        for (const Option &option : group) {
            if (!verb || option.isTakenBy(*verb)) {
                rows.append(&option);
            }
        }
    }
    return rows;
}

bool Command::takesNext(const QString &argument) const
{
    const QVector<const Option *> rows = optionsOf();
    const auto takesValue = [&rows](const QString &wanted) {
        return std::any_of(rows.begin(), rows.end(), [&](const Option *option) {
            return option->kind != Option::Flag && words(option->names).contains(wanted);
        });
    };
    if (argument.startsWith(QLatin1String("--"))) {
        return takesValue(argument.mid(2));
    }
    // Of short options in one argument, the first that takes a value takes the rest as such.
    for (int i = 1; i < argument.size(); ++i) {
        if (takesValue(argument.mid(i, 1))) {
            return i + 1 == argument.size();
        }
    }
    return false;
}

bool looksLikeOption(const QString &argument)
{
    const int letter = argument.startsWith(QLatin1String("--")) ? 2 : 1;
    return argument.startsWith(u'-') && argument.size() > letter && argument.at(letter).isLetter();
}

QStringList words(const char *list)
{
    return QString::fromUtf8(list).split(u' ', Qt::SkipEmptyParts);
}

Candidates candidates(const QStringList &texts)
{
    Candidates all;
    for (const QString &text : texts) {
        all.append({text, QString()});
    }
    return all;
}
