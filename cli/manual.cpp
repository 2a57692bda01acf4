#include "manual.h"
#include "commandline.h"
#include "errorkinds.h"

#include "core/mrvfilewriter.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace {

constexpr int LineWidth = 79;

struct Explained
{
    const char *what;
    const char *means;
};

constexpr Explained toolOptions[] = {
    {"h , Fl -help", "List the commands."},
    {"-version", "Print the version."},
    {"-complete Ar WORD ...",
     "Print what may stand in the place of the last WORD of a call, for the completion of shells: "
     "a word a line, with its meaning after a tab, and :files or :folders where paths may stand "
     "there."},
    {"-manual Ar FOLDER",
     "Write the manual pages into FOLDER, with the date of SOURCE_DATE_EPOCH or of today."},
};

constexpr Explained exitCodes[] = {
    {"0", "Done."},
    {"1", "Nothing was found, the input was refused, or the output could not be written."},
    {"2", "The call was wrong."},
    {"3", "The update feed, or what it names, could not be read, fetched, relied upon or written."},
};

constexpr Explained variables[] = {
    {"NO_COLOR", "Where it is set and not empty, terminals get no colours."},
    {"SOURCE_DATE_EPOCH",
     "Seconds since 1970: the date in e-books, PDF documents and manual pages, instead of now."},
    {"XDG_CONFIG_HOME", "The folder of the user's settings. Default: ~/.config."},
};

constexpr Explained files[] = {
    {"~/.config/Morvane/Morvane.conf", "The user's settings, unless --settings names others."},
    {"/usr/share/doc/mrv/tool.md", "What the options promise, by commands."},
    {"/usr/share/doc/mrv/paths.md", "The paths of \"mrv xml\"."},
    {"/usr/share/doc/mrv/scripts.md", "The files of script modes."},
};

constexpr const char toolDiagnostics[] =
    "With --json, an error is an object on standard error, with the command as \"command\", the "
    "text "
    "as \"error\" and, unless the usage is wrong, one of these words as \"kind\". What does not "
    "end a "
    "command is an object with \"note\" in place of \"error\".";

constexpr const char toolDescription[] =
    "Works on manuscripts and scripts, on XML files, and on what a writing application keeps: "
    "settings, shortcuts, presets and lists of replacements. The first argument is a command; some "
    "commands take a verb as the next one. Where a verb works on a file, the file may stand before "
    "it. Options stand anywhere; what looks like one and is none goes after \"--\".\n"
    "Manuscripts are HTML, Markdown, plain text, documents of the writing program (.mrvdoc), and "
    "by pandoc, where it is installed, DOCX, ODT and RTF. The suffixes of the files tell them "
    "apart. \"-\" is standard input or output.\n"
    "A file that cannot be written whole is not written at all: the old one stays. What comes from "
    "files or servers reaches a terminal with its control characters made visible.";

// An ASCII hyphen, where it belongs to what is typed; roff makes another character of it.
QString withTypedHyphens(QString text)
{
    return text.replace(u'-', QLatin1String("\\-"));
}

QString plainText(const QString &text)
{
    static const QRegularExpression typed(QStringLiteral("(^|(?<=[\\s\"'(.]))-[^\\s\"']*"));
    QString escaped;
    int end = 0;
    const QString safe = QString(text).replace(u'\\', QLatin1String("\\e"));
    for (auto it = typed.globalMatch(safe); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        escaped += safe.mid(end, match.capturedStart() - end) + withTypedHyphens(match.captured());
        end = match.capturedEnd();
    }
    return escaped + safe.mid(end);
}

// A line of text must not begin as a request does.
QString guarded(const QString &line)
{
    return line.startsWith(u'.') || line.startsWith(u'\'') ? QLatin1String("\\&") + line : line;
}

// Each sentence begins a line, as mdoc(7) wants it.
QString paragraph(const QString &text)
{
    static const QRegularExpression sentenceEnd(QStringLiteral("(?<=[.;:?]) (?=[A-Z\"\\\\-])"));
    QString lines;
    const QStringList sentences = plainText(text).split(sentenceEnd);
    for (const QString &sentence : sentences) {
        const QStringList wrapped = wrappedLines(sentence, LineWidth);
        for (const QString &line : wrapped) {
            lines += guarded(line) + u'\n';
        }
    }
    return lines;
}

QString paragraphs(const QString &text)
{
    QString all;
    const QStringList parts = text.split(u'\n');
    for (const QString &part : parts) {
        all += (all.isEmpty() ? QString() : QStringLiteral(".Pp\n")) + paragraph(part);
    }
    return all;
}

QString section(const char *title)
{
    return QStringLiteral(".Sh %1\n").arg(QLatin1String(title));
}

QString item(const QString &head, const QString &text)
{
    return QLatin1String(".It ") + head + u'\n' + paragraphs(text);
}

QString list(const QString &items)
{
    return QLatin1String(".Bl -tag -width Ds\n") + items + QLatin1String(".El\n");
}

QString explainedList(const Explained *begin, const Explained *end, const char *macro)
{
    QString items;
    for (const Explained *row = begin; row != end; ++row) {
        items += item(QLatin1String(macro) + u' ' + QLatin1String(row->what),
                      QString::fromUtf8(row->means));
    }
    return list(items);
}

// "[TEXT] IN..." as "Op Ar TEXT" and "Ar IN ...", each for a line or a place of its own.
QStringList argumentMacros(const Verb &verb)
{
    QStringList macros;
    const QStringList names = words(verb.arguments);
    for (QString name : names) {
        const bool isOptional = name.startsWith(u'[');
        name.remove(u'[').remove(u']').replace(QLatin1String("..."), QLatin1String(" ..."));
        macros.append(QLatin1String(isOptional ? "Op Ar " : "Ar ") + name);
    }
    return macros;
}

// The limits of a number, where they are more than those of the type.
QString limitsOf(const Option &option)
{
    if (option.kind != Option::Integer && option.kind != Option::Number) {
        return QString();
    }
    const QString least = QString::number(option.least, 'f', 0);
    return option.most >= std::numeric_limits<int>::max()
        ? QStringLiteral(" At least %1.").arg(least)
        : QStringLiteral(" From %1 to %2.").arg(least, QString::number(option.most, 'f', 0));
}

QString optionItem(const Option &option)
{
    QStringList flags;
    const QStringList spellings = option.spellings();
    for (const QString &spelling : spellings) {
        flags.append(QLatin1String("Fl ") + withTypedHyphens(spelling.mid(1)));
    }
    QString head = flags.join(QLatin1String(" , "));
    if (option.value) {
        head += QLatin1String(" Ar ") + QLatin1String(option.value);
    }
    QString text = option.explanation() + limitsOf(option);
    if (option.verbs) {
        text.prepend(QStringLiteral("(%1) ").arg(words(option.verbs).join(QLatin1String(", "))));
    }
    return item(head, text);
}

QString diagnostics()
{
    QString items;
    for (const ErrorKindRow &row : errorKinds) {
        items += item(QLatin1String("Li ") + withTypedHyphens(QLatin1String(row.name)),
                      QLatin1String(row.means));
    }
    return section("DIAGNOSTICS") + paragraphs(QLatin1String(toolDiagnostics)) + list(items);
}

QString head(const QString &name, const char *summary, const QDate &date)
{
    return QStringLiteral(".Dd %1\n.Dt %2 1\n.Os %3\n.Sh NAME\n.Nm %4\n.Nd %5\n")
        .arg(QLocale::c().toString(date, QStringLiteral("MMMM d, yyyy")), name.toUpper(),
             QLatin1String("mrv ") + QCoreApplication::applicationVersion(), name,
             plainText(QString::fromUtf8(summary)));
}

QString synopsis(const Command &command)
{
    QString text = section("SYNOPSIS");
    for (const Verb &verb : command.verbs) {
        text += QStringLiteral(".Nm mrv %1\n").arg(QLatin1String(command.name));
        if (command.hasVerbs()) {
            text += QStringLiteral(".Ic %1\n").arg(QLatin1String(verb.name));
        }
        const QStringList macros = argumentMacros(verb);
        for (const QString &macro : macros) {
            text += u'.' + macro + u'\n';
        }
        text += QLatin1String(".Op Ar OPTIONS\n");
    }
    return text;
}

QString verbSection(const Command &command)
{
    if (!command.hasVerbs()) {
        return QString();
    }
    QString items;
    for (const Verb &verb : command.verbs) {
        const QStringList macros = argumentMacros(verb);
        items += item(
            QStringLiteral("Ic %1 %2").arg(QLatin1String(verb.name), macros.join(u' ')).trimmed(),
            verb.description());
    }
    return section("VERBS") + list(items);
}

QString optionSection(const Command &command)
{
    QString items;
    const QVector<const Option *> options = command.optionsOf();
    for (const Option *option : options) {
        items += optionItem(*option);
    }
    return section("OPTIONS")
        + list(items
               + item(QStringLiteral("Fl h , Fl -help"), QStringLiteral("Show a short help.")));
}

QString exampleSection(const Command &command)
{
    QString text = section("EXAMPLES") + QLatin1String(".Bd -literal -offset indent\n");
    const QStringList examples = QString::fromUtf8(command.examples).split(u'\n');
    for (const QString &example : examples) {
        const QString safe = QString(example).replace(u'\\', QLatin1String("\\e"));
        text += QLatin1String("mrv ") + withTypedHyphens(safe) + u'\n';
    }
    return text + QLatin1String(".Ed\n");
}

QString references(const QStringList &names)
{
    QString text = section("SEE ALSO");
    for (const QString &name : names) {
        text += QStringLiteral(".Xr %1 1%2\n")
                    .arg(name, QLatin1String(name == names.constLast() ? "" : " ,"));
    }
    return text;
}

QString pageName(const Command &command)
{
    return QLatin1String("mrv-") + QLatin1String(command.name);
}

// What the exit codes of this command mean is the last paragraph of its description.
QString commandPage(const Command &command, const QDate &date)
{
    QStringList description = QString::fromUtf8(command.description).split(u'\n');
    QString codes = QStringLiteral("The codes of mrv(1).");
    if (description.constLast().startsWith(QLatin1String("Exit code"))) {
        codes += u' ' + description.takeLast();
    }
    return head(pageName(command), command.summary, date) + synopsis(command)
        + section("DESCRIPTION") + paragraphs(description.join(u'\n')) + verbSection(command)
        + optionSection(command) + section("EXIT STATUS") + paragraph(codes)
        + exampleSection(command) + references({QStringLiteral("mrv")});
}

QString toolPage(const QDate &date)
{
    QString items;
    QStringList pages;
    for (const Command *command : commands()) {
        items += item(QLatin1String("Ic ") + QLatin1String(command->name),
                      QString::fromUtf8(command->summary));
        pages.append(pageName(*command));
    }
    return head(QStringLiteral("mrv"), "work on manuscripts and scripts", date)
        + section("SYNOPSIS")
        + QLatin1String(".Nm\n.Ar COMMAND\n.Op Ar VERB\n.Op Ar ARGUMENTS\n.Op Ar OPTIONS\n.Nm\n"
                        ".Fl -help | -version\n")
        + section("DESCRIPTION") + paragraphs(QString::fromUtf8(toolDescription))
        + section("COMMANDS") + list(items) + section("OPTIONS")
        + explainedList(std::begin(toolOptions), std::end(toolOptions), "Fl")
        + section("ENVIRONMENT") + explainedList(std::begin(variables), std::end(variables), "Ev")
        + section("FILES") + explainedList(std::begin(files), std::end(files), "Pa")
        + section("EXIT STATUS") + explainedList(std::begin(exitCodes), std::end(exitCodes), "")
        + diagnostics() + references(pages);
}

bool writePage(const QString &folder, const QString &name, const QString &text, MRVErrorSink error)
{
    return MRVFileWriter::write(QDir(folder).filePath(name + QLatin1String(".1")), text.toUtf8(),
                                error);
}

} // namespace

bool writeManuals(const QString &folder, const QDate &date, MRVErrorSink error)
{
    if (!writePage(folder, QStringLiteral("mrv"), toolPage(date), error)) {
        return false;
    }
    return std::all_of(commands().begin(), commands().end(), [&](const Command *command) {
        return writePage(folder, pageName(*command), commandPage(*command, date), error);
    });
}
