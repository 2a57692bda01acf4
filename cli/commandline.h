#pragma once

#include "output.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <cstddef>

class Call;
class QJsonObject;
struct Verb;

/** The rows of a constexpr table. */
template<typename Row>
class Rows
{
public:
    constexpr Rows() = default;
    template<std::size_t Size>
    constexpr Rows(const Row (&rows)[Size])
        : m_begin(rows)
        , m_end(rows + Size)
    {
    }

    constexpr const Row *begin() const { return m_begin; }
    constexpr const Row *end() const { return m_end; }

private:
    const Row *m_begin = nullptr;
    const Row *m_end = nullptr;
};

/** An option of a command. Lists within a text are separated by blanks. */
struct Option
{
    enum Kind {
        Flag, ///< takes no value
        Text, ///< any text
        Name, ///< any text but the empty one, which a variable that is not set leaves
        Integer, ///< from least to most
        Number, ///< from least to most
        Choice, ///< one of the words in choices
    };

    const char *names; // a short one if any, the long one, other spellings of it
    Kind kind;
    const char *value; // as help calls it; null for a flag
    const char *help;
    const char *verbs; // that take it; null: all
    const char *choices = nullptr;
    double least = 0;
    double most = 0;
    bool repeatable = false;

    static constexpr Option flag(const char *names, const char *help, const char *verbs = nullptr)
    {
        return {names, Flag, nullptr, help, verbs};
    }
    static constexpr Option text(const char *names, const char *value, const char *help,
                                 const char *verbs = nullptr)
    {
        return {names, Text, value, help, verbs};
    }
    static constexpr Option name(const char *names, const char *value, const char *help,
                                 const char *verbs = nullptr)
    {
        return {names, Name, value, help, verbs};
    }
    static constexpr Option integer(const char *names, const char *value, double least, double most,
                                    const char *help)
    {
        return {names, Integer, value, help, nullptr, nullptr, least, most};
    }
    static constexpr Option number(const char *names, const char *value, double least, double most,
                                   const char *help)
    {
        return {names, Number, value, help, nullptr, nullptr, least, most};
    }
    static constexpr Option choice(const char *names, const char *value, const char *choices,
                                   const char *help, const char *verbs = nullptr)
    {
        return {names, Choice, value, help, verbs, choices};
    }
    /** The option, to be given as often as the user likes. */
    constexpr Option repeated() const
    {
        return {names, kind, value, help, verbs, choices, least, most, true};
    }

    QString longName() const;
    /** All ways to write it, with their hyphens: "-o", "--output". */
    QStringList spellings() const;
    /** Its help, and whether it may be given several times. */
    QString explanation() const;
    bool isTakenBy(const Verb &verb) const;
};

/** What a command does with its arguments; a command without verbs has one row without a name. */
struct Verb
{
    const char *name; // "" for none
    const char *arguments; // such as "KEY VALUE..." or "[FILE]"
    const char *help; // one line
    int (*run)(const Call &call); // returns an ExitCode
    const char *details = nullptr; // for the help of the verb itself

    /** The help as a sentence, and the details. */
    QString description() const;
    /** Whether the file may stand before the verb. */
    bool takesFileFirst() const;
};

/** A word that may stand for an argument, and what it means if that is known. */
struct Candidate
{
    QString text;
    QString help;
};
using Candidates = QVector<Candidate>;

/** Words that a command knows for some of its arguments and values of options. */
struct ArgumentValues
{
    const char *arguments; // as usage and help call them
    Candidates (*candidates)(const Call &call); // of which only what stands before is there
};

/**
 * A command: all that parsing, refusals, help, completion and manual pages are made from.
 *
 * An option may have several rows, for different verbs. Paragraphs of a description and examples
 * are separated by line feeds; an example leaves the tool's own name out.
 */
struct Command
{
    const char *name;
    const char *summary; // one line
    const char *description;
    const char *examples;
    Rows<Verb> verbs;
    Rows<Option> options[3];
    Rows<ArgumentValues> values = {}; // for completion

    bool hasVerbs() const { return verbs.begin()->name[0] != '\0'; }
    /** The verb of that name; null for a name that no verb has. */
    const Verb *verbNamed(const QString &name) const;
    /** All options, or those that the verb takes. */
    QVector<const Option *> optionsOf(const Verb *verb = nullptr) const;
    /** Whether an argument is an option whose value is the next argument. */
    bool takesNext(const QString &argument) const;
};

extern const Command autoReplaceCommand;
extern const Command enginesCommand;
extern const Command exportCommand;
extern const Command findCommand;
extern const Command formatsCommand;
extern const Command getCommand;
extern const Command measureCommand;
extern const Command notesCommand;
extern const Command presetsCommand;
extern const Command replaceCommand;
extern const Command scriptCommand;
extern const Command settingsCommand;
extern const Command shortcutsCommand;
extern const Command updateCommand;
extern const Command xmlCommand;

/** All commands, by name. */
Rows<const Command *> commands();

/** A call of a command whose options and arguments have been checked against its table. */
class Call
{
public:
    const Command *command = nullptr;
    const Verb *verb = nullptr;
    QStringList arguments; // what follows the verb; as many as it takes

    /** The long names of the options that were given. */
    QStringList options() const { return m_values.keys(); }
    bool has(const char *option) const { return m_values.contains(QLatin1String(option)); }
    /** The value of the option, by its long name; null when it was not given. */
    QString value(const char *option) const;
    QStringList values(const char *option) const { return m_values[QLatin1String(option)]; }
    double number(const char *option, double otherwise) const;
    bool json() const { return has("json"); }

private:
    friend class CommandLine;
    friend class Completer;
    QMap<QString, QStringList> m_values; // by the long name; those that were given
};

/**
 * Reads the arguments of a command, its name being the first. The verb may stand after a file, its
 * first argument; where both words are names of verbs, that holds if only the first is a file that
 * exists. What begins with a hyphen and no letter after it, such as "-1" or "-->", is no option.
 *
 * Prints the help when it is asked for, and in one line what is wrong: an unknown verb or option,
 * an option that the verb does not take, a value that the option does not take, too few arguments
 * or too many, an empty one where a name belongs.
 *
 * @return the exit code to end with, Done after help; -1 to go on with @p call.
 */
int readCall(const Command &command, const QStringList &arguments, Call *call);

/** Whether an argument is an option; "-1" and "-->" are none. */
bool looksLikeOption(const QString &argument);

/** Prints an error with its kind. @return Failed. */
int refuse(const MRVError &error);
int refuse(MRVErrorKind kind, const QString &text);
/** Prints an error. @return WrongUsage. */
int usageError(const QString &text);

/** Prints the object as a line of JSON where the call asks for that, else the line. */
void printAnswer(const Call &call, const QJsonObject &object, const QString &line);

/** The words of a list in one of the tables. */
QStringList words(const char *list);

/** The texts, of which nothing more is known. */
Candidates candidates(const QStringList &texts);

/** Lines of words that fit the width; a word that does not fit gets a line of its own. */
QStringList wrappedLines(const QString &paragraph, int width);

/** How a verb is called: "mrv settings set KEY VALUE...". */
QString usageOf(const Command &command, const Verb &verb);

/** The help of the tool, of a command, or (if not null) of one of its verbs; at most 79 columns. */
QString toolHelp();
QString helpOf(const Command &command, const Verb *verb);
