#include "commandline.h"

#include "dom/mrvdomdoc.h"
#include "dom/mrvdomsource.h"
#include "manuscript/mrvsourcefile.h"
#include "util/mrveditlock.h"
#include "util/mrvfilekind.h"

#include "core/mrvfilewriter.h"

#include <QFile>
#include <QJsonObject>

#include <cstdio>

namespace {

QString described(const QString &file)
{
    return file == QLatin1String("-") ? QStringLiteral("standard input") : file;
}

int refuse(const Call &call, const MRVError &reason)
{
    return refuse(reason.kind,
                  described(call.arguments.constFirst()) + QLatin1String(": ") + reason.text);
}

int refuse(const Call &call, MRVErrorKind kind, const QString &reason)
{
    return refuse(call, {kind, reason});
}

int refuseText(const Call &call, const MRVDomDoc &doc)
{
    return refuse(call, MRVErrorKind::Other,
                  QStringLiteral("%1 holds elements, no text").arg(doc.workPath()));
}

int refuseAttribute(const Call &call, const QString &path)
{
    return refuse(call, MRVErrorKind::NotFound,
                  QStringLiteral("%1 has no attribute '%2'").arg(path, call.value("attribute")));
}

QString pathOf(const Call &call)
{
    return call.arguments.value(1);
}

bool moveTo(MRVDomDoc &doc, const Call &call)
{
    doc.cdRoot();
    if (!doc.cd(pathOf(call))) {
        refuse(call, MRVErrorKind::NotFound, doc.whyMissing(pathOf(call)));
        return false;
    }
    return true;
}

int get(MRVDomDoc &doc, const Call &call)
{
    const QString attribute = call.value("attribute");
    if (!moveTo(doc, call)) {
        return Failed;
    }
    QVector<QDomElement> found{doc.currentElement()};
    if (call.has("all")) {
        doc.cdRoot();
        found = doc.findAll(pathOf(call));
    }
    for (const QDomElement &element : qAsConst(found)) {
        doc.setWorkElement(element);
        QString text;
        if (!call.has("attribute")) {
            doc.get(&text);
        } else if (!doc.getAttr(attribute, &text, element)) {
            return refuseAttribute(call, doc.workPath());
        }
        if (call.json()) {
            printJson(doc.toJson());
        } else {
            printLine(text);
        }
    }
    return Done;
}

int list(MRVDomDoc &doc, const Call &call)
{
    constexpr int MaxShown = 60;
    if (!moveTo(doc, call)) {
        return Failed;
    }
    for (QDomElement child = doc.currentElement().firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        doc.setWorkElement(child);
        if (call.json()) {
            printJson(doc.toJson());
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

int set(MRVDomDoc &doc, const Call &call)
{
    const QString attribute = call.value("attribute");
    if (call.has("attribute") && !MRVDomDoc::isXmlName(attribute)) {
        return refuse(call, MRVErrorKind::Other,
                      QStringLiteral("'%1' is no name for an attribute").arg(attribute));
    }
    if (!moveTo(doc, call)) {
        return Failed;
    }
    if (call.has("attribute")) {
        doc.setAttr(attribute, call.arguments.value(2));
    } else if (!doc.set(call.arguments.value(2))) {
        return refuseText(call, doc);
    }
    if (call.json()) {
        printJson(doc.toJson());
    }
    return Done;
}

int remove(MRVDomDoc &doc, const Call &call)
{
    const QString attribute = call.value("attribute");
    if (!moveTo(doc, call)) {
        return Failed;
    }
    const bool isRoot = doc.currentElement() == doc.documentElement();
    const QString at = doc.workPath();
    doc.cdRoot();
    int count = 0;
    if (call.has("attribute")) {
        count = doc.removeAttr(attribute, pathOf(call), call.has("all"));
        if (count == 0) {
            return refuseAttribute(call, at);
        }
    } else if (isRoot) {
        return refuse(call, MRVErrorKind::Other,
                      QStringLiteral("the document element cannot be removed"));
    } else {
        count = doc.remove(pathOf(call), call.has("all"));
    }
    if (call.json()) {
        printJson({{QStringLiteral("removed"), count}});
    }
    return Done;
}

int create(MRVDomDoc &doc, const Call &call)
{
    MRVError error;
    if (!doc.createElements(pathOf(call), &error)) {
        return refuse(call, error);
    }
    if (!call.arguments.value(2).isNull() && !doc.set(call.arguments.value(2))) {
        return refuseText(call, doc);
    }
    if (call.json()) {
        printJson(doc.toJson());
    }
    return Done;
}

/** An XML file from before a verb until it is written. */
class XmlFile
{
public:
    explicit XmlFile(const Call &call)
        : m_call(call)
        , m_target(call.has("output") ? call.value("output") : call.arguments.constFirst())
    {
    }

    MRVDomDoc &document() { return m_document; }
    bool writesStandardOutput() const { return isStandard(m_target); }

    // A file that is to change is locked until it is written. All return Done or the code to end
    // with.
    int lock()
    {
        MRVError reason;
        return writesStandardOutput() || m_lock.acquire(m_target, &reason)
            ? int(Done)
            : refuse(reason.kind, m_target + QLatin1String(": ") + reason.text);
    }

    int load(bool isCreated)
    {
        const QString &path = m_call.arguments.constFirst();
        if (isCreated && !isStandard(path) && !QFile::exists(path)) {
            return Done;
        }
        QFile file(path);
        const bool isOpen = isStandard(path) ? file.open(stdin, QIODevice::ReadOnly)
                                             : file.open(QIODevice::ReadOnly);
        m_before = isOpen ? file.readAll() : QByteArray();
        if (!isOpen || file.error() != QFileDevice::NoError) {
            return refuse(m_call, MRVError::ofDevice(file));
        }
        if (m_source.read(m_before, &m_document)) {
            return Done;
        }
        const QString place = m_document.errorLine() < 0
            ? QString()
            : QStringLiteral("line %1, column %2: ")
                  .arg(QString::number(m_document.errorLine()),
                       QString::number(m_document.errorColumn()));
        return refuse(m_call, MRVErrorKind::Damaged, place + m_document.errorMessage());
    }

    int store() const
    {
        MRVError error;
        QString note;
        QByteArray bytes;
        if (!m_source.write(m_document, &bytes, &note, &error)) {
            return refuse(m_call, error);
        }
        if (!note.isEmpty()) {
            return refuse(m_call, MRVErrorKind::Other,
                          note); // what its document type declares would be lost
        }
        bool isStored = false;
        if (writesStandardOutput()) {
            isStored = writeStandardOutput(bytes, &error);
        } else if (m_target == m_call.arguments.constFirst() && !m_before.isNull()) {
            isStored = MRVSourceFile::replace(m_target, m_before, bytes, nullptr, &error);
        } else {
            isStored = MRVFileKind::mayReplace(m_target, isXml, &error)
                && MRVFileWriter::write(m_target, bytes, &error);
        }
        return isStored ? int(Done) : refuse(error);
    }

private:
    static bool isXml(const QByteArray &bytes)
    {
        MRVDomDoc document;
        return MRVDomSource().read(bytes, &document);
    }
    static bool isStandard(const QString &path) { return path == QLatin1String("-"); }

    const Call &m_call;
    const QString m_target;
    MRVEditLock m_lock;
    MRVDomSource m_source;
    MRVDomDoc m_document;
    QByteArray m_before;
};

enum Effect { Reads, Changes, Creates };

// Reads the document, runs the verb on it, and writes it when the verb has changed it.
template<Effect effect, int (*Run)(MRVDomDoc &doc, const Call &call)>
int withDocument(const Call &call)
{
    XmlFile file(call);
    if (effect != Reads && call.json() && file.writesStandardOutput()) {
        return usageError(QStringLiteral("--json needs a file to write to"));
    }
    int code = effect == Reads ? int(Done) : file.lock();
    if (code == Done) {
        code = file.load(effect == Creates);
    }
    if (code == Done) {
        code = Run(file.document(), call);
    }
    return code == Done && effect != Reads ? file.store() : code;
}

constexpr Verb verbs[] = {
    {"get", "FILE PATH", "print the text of an element, or an attribute", withDocument<Reads, get>},
    {"set", "FILE PATH VALUE", "set the text of an element, or an attribute",
     withDocument<Changes, set>},
    {"ls", "FILE [PATH]", "list the elements in an element", withDocument<Reads, list>},
    {"rm", "FILE PATH", "remove an element or an attribute, or all that the path names",
     withDocument<Changes, remove>},
    {"create", "FILE PATH [VALUE]", "create the elements of a path that are missing",
     withDocument<Creates, create>},
};

constexpr Option options[] = {
    Option::name("a attribute", "NAME",
                 "Get, set or remove this attribute, not the text or the element.", "get set rm"),
    Option::flag("all", "Get or remove all that the path names.", "get rm"),
    Option::name("o output", "FILE", "Write to this file; - is standard output.", "set rm create"),
    Option::flag("json", "Print one JSON object for each element."),
};

} // namespace

const Command xmlCommand = {
    "xml",
    "read and edit XML files by paths",
    "Reads and edits any XML file (- is standard input) by paths such as "
    "/config/engine@id=rtf/option@enabled. A path that does not begin with \"/\" begins in the "
    "document element. A changed file keeps all bytes but those of the change. FILE may also stand "
    "before the verb.",
    "xml get config.xml engine@id=rtf/option\nxml rm config.xml engine -a id",
    verbs,
    {options},
};
