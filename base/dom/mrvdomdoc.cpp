#include "dom/mrvdomdoc.h"

#include "dom/mrvdomblanks_p.h"
#include "dom/mrvdomwriter_p.h"
#include "input/mrvxmlreader.h"
#include "util/mrvfailure.h"

#include "core/mrvfilewriter.h"
#include "core/mrvxmltext.h"

#include <QFile>
#include <QJsonArray>

namespace {

/*
 * The null element's memory. Qt has no constant null element, and no constructor may run when the
 * library is loaded; what its constructor makes is a null pointer.
 */
static_assert(sizeof(QDomElement) == sizeof(void *), "an element is a pointer to its data");
alignas(QDomElement) const unsigned char nullElement[sizeof(QDomElement)] = {};

bool isName(const QString &name)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..")) {
        return false;
    }
    for (const QChar c : name) {
        if (c == u'/' || c == u'@' || c == u'=') {
            return false;
        }
    }
    return true;
}

QString described(const QDomElement &element, bool withAttributes)
{
    QString text = element.nodeName();
    if (withAttributes) {
        const auto attributes = mrvSortedAttributes(element);
        for (const QPair<QString, QString> &attribute : attributes) {
            text += QLatin1String(" @") + attribute.first + QLatin1String("=\"") + attribute.second
                + u'"';
        }
    }
    return text;
}

} // namespace

const QDomElement &MRVDomDoc::EmptyElement = reinterpret_cast<const QDomElement &>(nullElement);

MRVDomDoc::MRVDomDoc()
{
    clear();
}

MRVDomDoc::MRVDomDoc(const QString &fileName)
{
    clear();
    load(fileName);
}

MRVDomDoc::MRVDomDoc(const QDomElement &e)
{
    clear();
    if (!e.isNull()) {
        m_document.appendChild(m_document.importNode(e, true));
    }
    init();
}

MRVDomDoc::~MRVDomDoc() = default;

void MRVDomDoc::clear()
{
    m_workElement = EmptyElement;
    m_workChild = EmptyElement;
    // The elements that it stands between are about to go.
    m_findPosition = EmptyElement;
    m_removed.clear();
    m_root = EmptyElement;
    m_fileName.clear();
    m_errorLine = -1;
    m_errorColumn = -1;
    m_errorMessage = QLatin1String("");
    m_errorReason = QLatin1String("");
    m_document.setContent(QString());
}

void MRVDomDoc::init()
{
    m_workElement = m_document.documentElement();
    m_workChild = mrvFirstContent(m_workElement).toElement();
}

bool MRVDomDoc::setContent(const QDomElement &e)
{
    const QDomElement source = e; // may be the work element itself
    clear();
    m_document.appendChild(m_document.importNode(source, true));
    init();
    return true;
}

bool MRVDomDoc::setContent(const QString &xml)
{
    clear();
    return parse(xml);
}

bool MRVDomDoc::setContent(QIODevice *device)
{
    if (!device) {
        return false;
    }
    const QString fileName = m_fileName;
    clear();
    m_fileName = fileName;
    const bool wasOpen = device->isOpen();
    if (!wasOpen && !device->open(QIODevice::ReadOnly)) {
        return refuse(device->errorString(), -1, -1);
    }
    const QByteArray bytes = device->readAll();
    const auto *file = qobject_cast<QFileDevice *>(device);
    const bool isWhole = !file || file->error() == QFileDevice::NoError;
    const QString reason = device->errorString();
    if (!wasOpen) {
        device->close();
    }
    if (!isWhole) {
        return refuse(reason, -1, -1);
    }
    QString xml;
    MRVTextFault fault;
    return MRVXmlReader::decode(bytes, &xml, &fault)
        ? parse(xml)
        : refuse(fault.message, fault.line, fault.column);
}

bool MRVDomDoc::parse(const QString &text)
{
    QString xml = text;
    MRVTextFault fault;
    if (!MRVXmlReader::normalize(&xml, &fault)
        || !MRVXmlReader::keepsLimits(xml, MRVXmlLimits(), &fault)) {
        return refuse(fault.message, fault.line, fault.column);
    }
    const QString marked = mrvMarkBlanks(xml);
    const auto read = [&](const QString &source) {
        return m_document.setContent(source, false, &fault.message, &fault.line, &fault.column);
    };
    if (read(marked)) {
        if (marked.size() > xml.size()) {
            mrvRemoveMarks(m_document);
        }
    } else if (marked.size() == xml.size() || !read(xml)) { // again, without marks in the columns
        return refuse(fault.message, fault.line, fault.column);
    }
    init();
    return true;
}

bool MRVDomDoc::refuse(const QString &message, int line, int column)
{
    // Qt keeps the part that it read.
    m_document.setContent(QString());
    m_errorMessage = message;
    m_errorReason = message;
    m_errorLine = line;
    m_errorColumn = column;
    init();
    return false;
}

bool MRVDomDoc::load(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_errorMessage = QLatin1String("File not found: ") + fileName;
        m_errorReason = file.errorString();
        m_errorLine = -1;
        m_errorColumn = -1;
        return false;
    }
    if (!setContent(&file)) {
        m_errorMessage = QStringLiteral("MRVDomDoc::load() failed ");
        return false;
    }
    m_errorMessage = QStringLiteral("MRVDomDoc::load() ok ");
    m_fileName = fileName;
    return true;
}

bool MRVDomDoc::save(QIODevice &device) const
{
    QByteArray bytes;
    if (!mrvWriteXml(m_document, &bytes, nullptr) || device.write(bytes) != bytes.size()) {
        return false;
    }
    auto *file = qobject_cast<QFileDevice *>(&device);
    return !file || file->flush();
}

bool MRVDomDoc::save(const QString &fileName, MRVErrorSink error) const
{
    QByteArray bytes;
    MRVError reason;
    return mrvWriteXml(m_document, &bytes, &reason) ? MRVFileWriter::write(fileName, bytes, error)
                                                    : MRV::fail(error, fileName, reason);
}

bool MRVDomDoc::setRoot(const QString &spec, const QString &text)
{
    clear();
    const QDomElement root = createElement(spec, text);
    m_document.appendChild(root);
    m_workElement = root;
    return true;
}

void MRVDomDoc::moveTo(const QDomElement &e)
{
    m_workElement = e;
    m_workChild = e.firstChildElement();
}

bool MRVDomDoc::setWorkElement(const QDomElement &e)
{
    if (e.isNull()) {
        return false;
    }
    moveTo(e);
    return true;
}

QString MRVDomDoc::workElement(bool withAttributes) const
{
    return described(m_workElement, withAttributes);
}

QString MRVDomDoc::workChild(bool withAttributes) const
{
    return described(m_workChild, withAttributes);
}

QString MRVDomDoc::workPath(bool withAttributes) const
{
    QStringList names;
    for (QDomElement e = m_workElement; !e.isNull(); e = e.parentNode().toElement()) {
        names.prepend(u'/' + described(e, withAttributes));
    }
    return names.join(QString());
}

bool MRVDomDoc::cd(const QString &path)
{
    const QDomElement target = path.isEmpty() ? m_workElement : find(path);
    if (target.isNull()) {
        return false;
    }
    m_currentName = path.isEmpty() || steps().isEmpty() ? QString() : m_pathSteps.constLast().text;
    moveTo(target);
    return true;
}

bool MRVDomDoc::cdUp(int levels)
{
    for (int i = 0; i < levels; ++i) {
        if (!cd(QStringLiteral(".."))) {
            return false;
        }
    }
    return true;
}

bool MRVDomDoc::cdRoot()
{
    return cd(QStringLiteral("/"));
}

bool MRVDomDoc::cdNext(const QString &step)
{
    if (step.isEmpty()) {
        return false;
    }
    m_currentName = step.mid(step.lastIndexOf(u'/') + 1);
    if (m_workElement.isNull() || m_currentName.isEmpty()) {
        return false;
    }
    const Step wanted = stepOf(m_currentName.split(u'@'));
    QDomElement sibling = m_workElement.nextSiblingElement();
    while (!sibling.isNull() && !holds(wanted, sibling)) {
        sibling = sibling.nextSiblingElement();
    }
    if (sibling.isNull()) {
        cdUp(1);
        return false;
    }
    moveTo(sibling);
    return true;
}

bool MRVDomDoc::setChild(const QString &path)
{
    const QString step = path.split(u'/', Qt::SkipEmptyParts).value(0);
    if (step.trimmed().isEmpty() || step.startsWith(u'.')) {
        return false;
    }
    const QDomElement child = find(step);
    if (child.isNull()) {
        return false;
    }
    m_workChild = child;
    return true;
}

QDomText MRVDomDoc::newText(const QString &text)
{
    return m_document.createTextNode(mrvXmlText(text));
}

QDomElement MRVDomDoc::createElement(const QString &spec, const QString &text)
{
    const QStringList parts = spec.split(u'@');
    QDomElement element = m_document.createElement(mrvXmlText(parts.constFirst()));
    if (!text.isEmpty()) {
        element.appendChild(newText(text));
    }
    // Deliberate: each attribute receives the text, whatever value is written after its name.
    const QString value = mrvXmlText(text).trimmed();
    for (int i = 1; i < parts.size(); ++i) {
        const int equals = parts[i].indexOf(u'=');
        const QString name = (equals > 0 ? parts[i].left(equals) : parts[i]).trimmed();
        if (!name.isEmpty()) {
            element.setAttribute(mrvXmlText(name), value);
        }
    }
    return element;
}

bool MRVDomDoc::append(const QString &name, const QString &text)
{
    return add(name, text, Place::Last);
}

bool MRVDomDoc::insert(const QString &name, const QString &text, bool before)
{
    return add(name, text, before ? Place::BeforeChild : Place::AfterChild);
}

bool MRVDomDoc::prepend(const QString &name, const QString &text)
{
    return add(name, text, Place::First);
}

bool MRVDomDoc::add(const QString &name, const QString &text, Place place)
{
    if (!isName(name)) {
        return false;
    }
    if (m_workElement.isNull()) {
        // A second document element would make a document that cannot be loaded again.
        if (!m_document.documentElement().isNull()) {
            return false;
        }
        m_workElement = createElement(name, text);
        return !m_document.appendChild(m_workElement).isNull();
    }
    const bool isFirst = !m_workElement.hasChildNodes();
    const QDomElement element = createElement(name, text);
    QDomNode added;
    if (isFirst || place == Place::Last) {
        added = m_workElement.appendChild(element);
    } else if (place == Place::First) {
        added = m_workElement.insertBefore(element, m_workElement.firstChild());
    } else if (place == Place::BeforeChild) {
        added = m_workElement.insertBefore(element, m_workChild);
    } else {
        added = m_workElement.insertAfter(element, m_workChild);
    }
    if (added.isNull()) {
        return false; // the work child is none of the work element's
    }
    if (isFirst || place == Place::BeforeChild || place == Place::AfterChild) {
        m_workChild = element;
    }
    return true;
}

bool MRVDomDoc::create(const QString &name)
{
    const QDomElement parent = m_workElement;
    int depth = 1;
    for (QDomNode e = parent; e.isElement(); e = e.parentNode()) {
        ++depth;
    }
    // What could not be saved is not built.
    if (depth > MRVDomLimits::MaxDepth || !add(name, QString(), Place::Last)) {
        return false;
    }
    if (!parent.isNull()) {
        m_workElement = parent.lastChildElement();
    }
    m_workChild = EmptyElement;
    m_findPosition = EmptyElement;
    return true;
}

bool MRVDomDoc::append(const QDomNode &node)
{
    const QDomNode copy = m_document.importNode(node, true);
    if (m_workElement.isNull()) {
        if (!copy.isElement() || !m_document.documentElement().isNull()) {
            return false;
        }
        m_workElement = m_document.appendChild(copy).toElement();
    } else {
        m_workElement.appendChild(copy);
    }
    m_workChild = m_workElement.lastChild().toElement();
    return true;
}

int MRVDomDoc::createPath(const QString &path)
{
    if (path.isEmpty() || path.contains(u'@') || path.contains(u'=')) {
        return 0;
    }
    const QStringList texts = path.split(u'/', Qt::SkipEmptyParts);
    if (cd(path)) {
        return texts.size();
    }
    int count = 0;
    for (const QString &text : texts) {
        if (!cd(text) && !create(text.trimmed())) {
            break;
        }
        ++count;
    }
    return count;
}

bool MRVDomDoc::isXmlName(const QString &name)
{
    return mrvIsXmlName(name);
}

bool MRVDomDoc::createElements(const QString &path, MRVErrorSink error)
{
    QStringList steps = path.split(u'/', Qt::SkipEmptyParts);
    for (QString &step : steps) {
        step = step.trimmed();
        if (step != QLatin1String("..") && step != QLatin1String(".") && !isXmlName(step)) {
            return MRV::fail(error, tr("'%1' is no name for an element").arg(step));
        }
    }
    if (path.startsWith(u'/') && !steps.isEmpty()) {
        const QString root = steps.takeFirst();
        if (documentElement().isNull()) {
            setRoot(root);
        } else if (documentElement().tagName() != root) {
            return MRV::fail(error, whyMissing(u'/' + root));
        }
    }
    if (!cdRoot()) {
        return MRV::fail(error, tr("a new document needs a path that begins with '/'"));
    }
    const int depth = createPath(steps.join(u'/'));
    return depth == steps.size()
        || MRV::fail(error, tr("'%1' cannot be created").arg(steps.value(depth)));
}

QJsonObject MRVDomDoc::toJson() const
{
    QJsonObject attributes;
    const auto sorted = mrvSortedAttributes(m_workElement);
    for (const QPair<QString, QString> &attribute : sorted) {
        attributes.insert(attribute.first, attribute.second);
    }
    QString text;
    get(&text);
    return {{QStringLiteral("path"), workPath()},
            {QStringLiteral("text"), text},
            {QStringLiteral("attributes"), attributes},
            {QStringLiteral("elements"), QJsonArray::fromStringList(childNames(m_workElement))}};
}
