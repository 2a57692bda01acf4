#include "command.h"
#include "suggestion.h"

#include "dom/mrvdomdoc.h"

#include <QBuffer>
#include <QCommandLineParser>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <cstdio>

namespace {

struct Options
{
    QString file;
    QString path;
    QString value;
    QString attribute;
    QString output;
    bool all = false;
    bool json = false;
};

struct Verb
{
    const char *name;
    const char *arguments;
    const char *summary;
    int minArguments; // behind the verb
    int maxArguments;
    bool changes;
    int (*run)(MRVDomDoc &doc, const Options &options);
};

int runGet(MRVDomDoc &doc, const Options &options);
int runSet(MRVDomDoc &doc, const Options &options);
int runList(MRVDomDoc &doc, const Options &options);
int runRemove(MRVDomDoc &doc, const Options &options);
int runCreate(MRVDomDoc &doc, const Options &options);

constexpr Verb verbs[] = {
    {"get", "PATH", "print the text of an element, or an attribute", 1, 1, false, runGet},
    {"set", "PATH VALUE", "set the text of an element, or an attribute", 2, 2, true, runSet},
    {"ls", "[PATH]", "list the elements in an element", 0, 1, false, runList},
    {"rm", "PATH", "remove an element, or all that the path names", 1, 1, true, runRemove},
    {"create", "PATH [VALUE]", "create the elements of a path that are missing", 1, 2, true,
     runCreate},
};

int usageError(const QString &text)
{
    printError(QLatin1String("xml: ") + text);
    return WrongUsage;
}

QString described(const QString &file)
{
    return file == QLatin1String("-") ? QStringLiteral("standard input") : file;
}

int refused(const Options &options, const QString &reason)
{
    printError(described(options.file) + QLatin1String(": ") + reason);
    return Failed;
}

bool isXmlName(const QString &name)
{
    QXmlStreamReader reader(u'<' + name + QLatin1String("/>"));
    reader.setNamespaceProcessing(false);
    return reader.readNextStartElement() && reader.qualifiedName() == name;
}

QStringList childNames(const QDomElement &element)
{
    QStringList names;
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        names.append(child.tagName());
    }
    names.removeDuplicates();
    return names;
}

bool moveTo(MRVDomDoc &doc, const Options &options)
{
    doc.cdRoot();
    if (!doc.cd(options.path)) {
        refused(options, doc.whyMissing(options.path));
        return false;
    }
    return true;
}

QJsonObject toJson(MRVDomDoc &doc)
{
    QJsonObject attributes;
    const QDomElement element = doc.currentElement();
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i) {
        attributes.insert(map.item(i).nodeName(), map.item(i).nodeValue());
    }
    QString text;
    doc.get(&text);
    return {{QStringLiteral("path"), doc.workPath()},
            {QStringLiteral("text"), text},
            {QStringLiteral("attributes"), attributes},
            {QStringLiteral("elements"), QJsonArray::fromStringList(childNames(element))}};
}

int runGet(MRVDomDoc &doc, const Options &options)
{
    if (!moveTo(doc, options)) {
        return Failed;
    }
    QVector<QDomElement> found{doc.currentElement()};
    if (options.all) {
        doc.cdRoot();
        doc.find(options.path);
        for (QDomElement e = doc.findNext(); !e.isNull(); e = doc.findNext()) {
            found.append(e);
        }
    }
    for (const QDomElement &element : qAsConst(found)) {
        doc.setWorkElement(element);
        QString text;
        if (options.attribute.isEmpty()) {
            doc.get(&text);
        } else if (!doc.getAttr(options.attribute, &text, element)) {
            return refused(
                options,
                QStringLiteral("%1 has no attribute '%2'").arg(doc.workPath(), options.attribute));
        }
        if (options.json) {
            printJson(toJson(doc));
        } else {
            printLine(text);
        }
    }
    return Done;
}

int runList(MRVDomDoc &doc, const Options &options)
{
    constexpr int MaxShown = 60;
    if (!moveTo(doc, options)) {
        return Failed;
    }
    for (QDomElement child = doc.currentElement().firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        doc.setWorkElement(child);
        if (options.json) {
            printJson(toJson(doc));
            continue;
        }
        QString text;
        doc.get(&text);
        text = text.simplified();
        if (text.size() > MaxShown) {
            text = text.left(MaxShown - 1) + u'\u2026';
        }
        printLine((doc.workElement(true).simplified() + QLatin1String("  ") + text).trimmed());
    }
    return Done;
}

int runSet(MRVDomDoc &doc, const Options &options)
{
    if (!options.attribute.isEmpty() && !isXmlName(options.attribute)) {
        return refused(options,
                       QStringLiteral("'%1' is no name for an attribute").arg(options.attribute));
    }
    if (!moveTo(doc, options)) {
        return Failed;
    }
    if (!options.attribute.isEmpty()) {
        doc.setAttr(options.attribute, options.value);
    } else if (!doc.set(options.value)) {
        return refused(options, QStringLiteral("%1 holds elements, no text").arg(doc.workPath()));
    }
    if (options.json) {
        printJson(toJson(doc));
    }
    return Done;
}

int runRemove(MRVDomDoc &doc, const Options &options)
{
    if (!moveTo(doc, options)) {
        return Failed;
    }
    const bool isRoot = doc.currentElement() == doc.documentElement();
    const QString at = doc.workPath();
    doc.cdRoot();
    int count = 0;
    if (!options.attribute.isEmpty()) {
        count = doc.removeAttr(options.attribute, options.path, options.all);
        if (count == 0) {
            return refused(options,
                           QStringLiteral("%1 has no attribute '%2'").arg(at, options.attribute));
        }
    } else if (isRoot) {
        return refused(options, QStringLiteral("the document element cannot be removed"));
    } else {
        count = doc.remove(options.path, options.all);
    }
    if (options.json) {
        printJson({{QStringLiteral("removed"), count}});
    }
    return Done;
}

int runCreate(MRVDomDoc &doc, const Options &options)
{
    QStringList steps = options.path.split(u'/', Qt::SkipEmptyParts);
    for (QString &step : steps) {
        step = step.trimmed();
        if (step != QLatin1String("..") && step != QLatin1String(".") && !isXmlName(step)) {
            return refused(options, QStringLiteral("'%1' is no name for an element").arg(step));
        }
    }
    if (options.path.startsWith(u'/') && !steps.isEmpty()) {
        const QString root = steps.takeFirst();
        if (doc.documentElement().isNull()) {
            doc.setRoot(root);
        } else if (doc.documentElement().tagName() != root) {
            return refused(options, doc.whyMissing(u'/' + root));
        }
    }
    if (!doc.cdRoot()) {
        return refused(options, QStringLiteral("a new document needs a path that begins with '/'"));
    }
    const int depth = doc.createPath(steps.join(u'/'));
    if (depth < steps.size()) {
        return refused(options, QStringLiteral("'%1' cannot be created").arg(steps[depth]));
    }
    if (!options.value.isNull() && !doc.set(options.value)) {
        return refused(options, QStringLiteral("%1 holds elements, no text").arg(doc.workPath()));
    }
    if (options.json) {
        printJson(toJson(doc));
    }
    return Done;
}

bool readFile(const Options &options, QByteArray *bytes, QString *error)
{
    QFile file(options.file);
    const bool isOpen = options.file == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                           : file.open(QIODevice::ReadOnly);
    *bytes = isOpen ? file.readAll() : QByteArray();
    *error = file.errorString();
    return isOpen && file.error() == QFileDevice::NoError;
}

// @return Done, or the code to end with.
int load(MRVDomDoc &doc, const Options &options, const Verb &verb)
{
    QByteArray bytes;
    QString error;
    const bool isNew =
        verb.run == runCreate && options.file != QLatin1String("-") && !QFile::exists(options.file);
    if (isNew) {
        return Done;
    }
    if (!readFile(options, &bytes, &error)) {
        return refused(options, error);
    }
    QBuffer buffer(&bytes);
    if (!doc.setContent(&buffer)) {
        const QString place = doc.errorLine() < 0
            ? QString()
            : QStringLiteral("line %1, column %2: ")
                  .arg(QString::number(doc.errorLine()), QString::number(doc.errorColumn()));
        return refused(options, place + doc.errorMessage());
    }
    return Done;
}

int store(const MRVDomDoc &doc, const Options &options)
{
    QString error;
    const QString target = options.output.isEmpty() ? options.file : options.output;
    if (target != QLatin1String("-")) {
        if (doc.save(target, &error)) {
            return Done;
        }
    } else {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        if (!doc.save(buffer)) {
            error = QStringLiteral("the document is nested too deeply");
        } else if (writeStandardOutput(buffer.data(), &error)) {
            return Done;
        }
    }
    printError(error);
    return Failed;
}

int readOptions(const QStringList &arguments, Options *options, const Verb **verb)
{
    QCommandLineParser parser;
    QString description =
        QStringLiteral("Reads and edits any XML file (- is standard input) by paths such as\n"
                       "/config/engine@id=rtf/option@enabled. A path that does not begin with "
                       "\"/\" begins in the\n"
                       "document element. A file that is changed is laid out anew.\n\n");
    for (const Verb &known : verbs) {
        const QString call = QLatin1String(known.name) + u' ' + QLatin1String(known.arguments);
        description +=
            QStringLiteral("  %1  %2\n").arg(call, -21).arg(QLatin1String(known.summary));
    }
    parser.setApplicationDescription(description.trimmed());
    const QCommandLineOption attribute(
        {QStringLiteral("a"), QStringLiteral("attribute")},
        QStringLiteral("Get, set or remove this attribute, not the text or the element."),
        QStringLiteral("NAME"));
    const QCommandLineOption all(QStringLiteral("all"),
                                 QStringLiteral("Get or remove all that the path names."));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("Write there; - is standard output."),
                                    QStringLiteral("FILE"));
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Print one JSON object an element."));
    parser.addOptions({attribute, all, output, json});
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    const int code = parseArguments(
        &parser, QStringLiteral("xml FILE get|set|ls|rm|create PATH ..."), arguments);
    if (code >= 0) {
        return code;
    }
    const QStringList given = parser.positionalArguments();
    if (given.size() < 2) {
        return usageError(QStringLiteral("a file and a verb are needed; try 'mrv xml --help'"));
    }
    QStringList names;
    for (const Verb &known : verbs) {
        names.append(QLatin1String(known.name));
        if (given[1] == names.constLast()) {
            *verb = &known;
        }
    }
    if (!*verb) {
        return usageError(QStringLiteral("there is no verb '%1'").arg(given[1])
                          + didYouMean(given[1], names));
    }
    if (given.size() - 2 < (*verb)->minArguments || given.size() - 2 > (*verb)->maxArguments) {
        return usageError(
            QStringLiteral("it is 'mrv xml FILE %1 %2'")
                .arg(QLatin1String((*verb)->name), QLatin1String((*verb)->arguments)));
    }
    const QString target = parser.isSet(output) ? parser.value(output) : given[0];
    if ((*verb)->changes && parser.isSet(json) && target == QLatin1String("-")) {
        return usageError(QStringLiteral("--json needs a file to write to"));
    }
    *options = {given[0],
                given.value(2),
                given.value(3),
                parser.value(attribute),
                parser.value(output),
                parser.isSet(all),
                parser.isSet(json)};
    return -1;
}

} // namespace

int runXml(const QStringList &arguments)
{
    Options options;
    const Verb *verb = nullptr;
    const int wrong = readOptions(arguments, &options, &verb);
    if (wrong >= 0) {
        return wrong;
    }
    MRVDomDoc doc;
    int code = load(doc, options, *verb);
    if (code == Done) {
        code = verb->run(doc, options);
    }
    return code == Done && verb->changes ? store(doc, options) : code;
}
