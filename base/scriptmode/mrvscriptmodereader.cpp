#include "scriptmode/mrvscriptmode.h"

#include "scriptmode/mrvscriptmodefile_p.h"
#include "util/mrvfailure.h"

#include <QXmlStreamReader>

#include <optional>

namespace {

constexpr int MaxRemarks = 100;

struct Attribute
{
    const char *tag;
    const char *name;
};
constexpr Attribute Attributes[] = {{MorvaneScriptFormatTag, VersionAttribute},
                                    {FontTag, NameTag},
                                    {FontTag, SizeAttribute},
                                    {CompletionItemTag, NewLineAfterAttribute}};

class ModeReader
{
public:
    // Without units, the file's units apply from the place where it names them.
    ModeReader(const QString &xml, std::optional<MRVUnit::Unit> units)
        : m_xml(xml)
        , m_unitsAreKnown(units.has_value())
    {
        m_mode.setUnits(units.value_or(m_mode.units()));
    }

    bool read();
    QString error() const;
    const MRVScriptMode &mode() const { return m_mode; }
    const QStringList &remarks() const { return m_remarks; }
    /** Whether lengths were read before the file named their units. */
    bool unitsCameLate() const { return m_unitsCameLate; }

private:
    QXmlStreamReader::TokenType next();
    bool nextChild();
    QString text();
    void skip(const char *parent);

    void readUnits();
    void readElements();
    void readElement();
    void readGroup(const QString &group, MRVScriptElement *element);
    void readField(const ScriptField &field, MRVScriptElement *element);
    void readFont(MRVScriptElement *element);
    void readCompletions(MRVScriptElement *element);
    bool attribute(const char *name, QString *value) const;
    // Names in other namespaces have prefixes and do not concern us.
    bool isAt(const char *tag) const { return m_xml.qualifiedName() == QLatin1String(tag); }
    void remark(const QString &text);
    void remarkAttributes();
    void remarkValue(const char *tag, const QString &value);

    QXmlStreamReader m_xml;
    MRVScriptMode m_mode;
    QList<MRVScriptElement> m_elements;
    QStringList m_remarks;
    int m_depth = 0;
    bool m_unitsAreKnown;
    bool m_unitsCameLate = false;
};

void ModeReader::remark(const QString &text)
{
    if (m_remarks.size() < MaxRemarks) {
        m_remarks.append(MRVTextFault{text, int(m_xml.lineNumber())}.toString());
    }
}

void ModeReader::remarkValue(const char *tag, const QString &value)
{
    remark(MRVScriptMode::tr("\"%1\" is not a value of \"%2\"")
               .arg(value.left(40).simplified(), QLatin1String(tag)));
}

// Of the element that it is in.
void ModeReader::remarkAttributes()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        bool known = false;
        for (const Attribute &row : Attributes) {
            known =
                known || (isAt(row.tag) && attribute.qualifiedName() == QLatin1String(row.name));
        }
        if (!known) {
            remark(MRVScriptMode::tr("the attribute \"%1\" is not expected in \"%2\"")
                       .arg(attribute.qualifiedName().toString().left(40),
                            m_xml.qualifiedName().toString().left(40)));
        }
    }
}

// Every token goes through here, so that m_depth counts all elements.
QXmlStreamReader::TokenType ModeReader::next()
{
    const QXmlStreamReader::TokenType token = m_xml.readNext();
    m_depth += token == QXmlStreamReader::StartElement;
    m_depth -= token == QXmlStreamReader::EndElement;
    return m_xml.hasError() ? QXmlStreamReader::Invalid : token;
}

// Moves to the next child of the current element, or to its end; false at the end and on an error.
bool ModeReader::nextChild()
{
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::Characters:
            if (!m_xml.isWhitespace()) {
                remark(MRVScriptMode::tr("text between elements is ignored"));
            }
            break;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
        }
    }
}

// The text of the element that it is in, up to its end.
QString ModeReader::text()
{
    remarkAttributes();
    const QString tag = m_xml.name().toString();
    QString text;
    for (;;) {
        switch (next()) {
        case QXmlStreamReader::Characters:
            text += m_xml.text();
            break;
        case QXmlStreamReader::StartElement:
            skip(qPrintable(tag));
            break;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
        case QXmlStreamReader::Invalid:
            return text;
        default:
            break;
        }
    }
}

// Skips the current element.
void ModeReader::skip(const char *parent)
{
    remark(MRVScriptMode::tr("\"%1\" is not expected in \"%2\" and is ignored")
               .arg(m_xml.qualifiedName().toString().left(40), QString::fromUtf8(parent)));
    const int outside = m_depth - 1;
    while (m_depth > outside && next() != QXmlStreamReader::Invalid) { }
}

bool ModeReader::read()
{
    if (nextChild() && !isAt(MorvaneScriptFormatTag)) {
        m_xml.raiseError(MRVScriptMode::tr("the root element is \"%1\" and not \"%2\"")
                             .arg(m_xml.qualifiedName().toString().left(40),
                                  QLatin1String(MorvaneScriptFormatTag)));
    } else if (!m_xml.namespaceUri().isEmpty()) {
        m_xml.raiseError(MRVScriptMode::tr("the root element is in the namespace \"%1\"")
                             .arg(m_xml.namespaceUri().toString().left(40)));
    }
    remarkAttributes();
    QString version;
    if (!m_xml.hasError()
        && (!attribute(VersionAttribute, &version) || version != QLatin1String(FileVersion))) {
        remark(MRVScriptMode::tr("the version is \"%1\" and not \"%2\"")
                   .arg(version.left(40), QLatin1String(FileVersion)));
    }
    while (!m_xml.hasError() && nextChild()) {
        if (isAt(NameTag)) {
            m_mode.setName(text());
        } else if (isAt(UnitsTag)) {
            readUnits();
        } else if (isAt(ScriptElementsTag)) {
            readElements();
        } else {
            skip(MorvaneScriptFormatTag);
        }
    }
    // The text after the root may be malformed, too.
    while (!m_xml.atEnd()) {
        next();
    }
    m_mode.setElements(m_elements);
    return !m_xml.hasError();
}

void ModeReader::readUnits()
{
    const QString word = text();
    if (m_xml.hasError()) {
        return;
    }
    for (const ScriptWord &row : ScriptUnitWords) {
        if (word != QLatin1String(row.word)) {
            continue;
        }
        const auto units = MRVUnit::Unit(row.value);
        if (m_unitsAreKnown) {
            return;
        }
        m_unitsCameLate = m_unitsCameLate || (units != m_mode.units() && !m_elements.isEmpty());
        m_mode.setUnits(units);
        return;
    }
    remarkValue(UnitsTag, word);
}

void ModeReader::readElements()
{
    remarkAttributes();
    while (nextChild()) {
        if (!isAt(ElementItemTag)) {
            skip(ScriptElementsTag);
        } else if (m_elements.size() < MRVScriptMode::MaxElements) {
            readElement();
        } else {
            m_xml.raiseError(MRVScriptMode::tr("the mode has more than %1 script elements")
                                 .arg(MRVScriptMode::MaxElements));
        }
    }
}

void ModeReader::readElement()
{
    MRVScriptElement element;
    readGroup(QString(), &element);
    m_elements.append(element);
}

// The children of the element (an empty group) or of one of its groups.
void ModeReader::readGroup(const QString &group, MRVScriptElement *element)
{
    remarkAttributes();
    while (nextChild()) {
        bool isGroup = false;
        const ScriptField *found = nullptr;
        for (const ScriptField &field : ScriptFields()) {
            if (QLatin1String(field.group) == group && isAt(field.tag)) {
                found = &field;
            }
            isGroup = isGroup || (group.isEmpty() && field.group && isAt(field.group));
        }
        if (found) {
            readField(*found, element);
        } else if (isGroup) {
            readGroup(m_xml.name().toString(), element);
        } else {
            skip(group.isEmpty() ? ElementItemTag : qPrintable(group));
        }
    }
}

void ModeReader::readField(const ScriptField &field, MRVScriptElement *element)
{
    if (field.kind == ScriptFieldKind::Font) {
        readFont(element);
    } else if (field.kind == ScriptFieldKind::Completions) {
        readCompletions(element);
    } else {
        const QString value = text();
        if (!m_xml.hasError() && !field.read(element, value, m_mode.units())) {
            remarkValue(field.tag, value);
        }
    }
}

bool ModeReader::attribute(const char *name, QString *value) const
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    *value = attributes.value(QLatin1String(name)).toString();
    return attributes.hasAttribute(QLatin1String(name));
}

void ModeReader::readFont(MRVScriptElement *element)
{
    QString family;
    QString size;
    attribute(NameTag, &family);
    const bool hasSize = attribute(SizeAttribute, &size);
    if (!readScriptFont(element, family, size) && hasSize) {
        remarkValue(SizeAttribute, size);
    }
    text();
}

void ModeReader::readCompletions(MRVScriptElement *element)
{
    remarkAttributes();
    MRVCompletionList completions = element->completions();
    element->setCompletions(MRVCompletionList()); // else the first append() would copy all
    while (nextChild()) {
        if (!isAt(CompletionItemTag)) {
            skip(CompletionListTag);
            continue;
        }
        QString newLine;
        if (attribute(NewLineAfterAttribute, &newLine) && newLine != QLatin1String(YesWord)
            && newLine != QLatin1String(NoWord)) {
            remarkValue(NewLineAfterAttribute, newLine);
        }
        completions.append({text(), newLine == QLatin1String(YesWord)});
    }
    element->setCompletions(completions);
}

QString ModeReader::error() const
{
    QString error;
    MRVXmlReader::isRead(m_xml, &error);
    return error;
}

} // namespace

bool MRVScriptMode::fromXml(const QByteArray &xml, MRVErrorSink error, QStringList *remarks)
{
    const auto refuse = [&](const QString &reason) {
        return MRV::fail(error, MRVErrorKind::Damaged, reason);
    };
    if (xml.size() > MaxFileSize) {
        return MRV::fail(error, MRVErrorKind::TooLarge,
                         tr("it is larger than %1 bytes").arg(MaxFileSize));
    }
    QString text;
    if (!MRVXmlReader::read(xml, ScriptModeLimits, &text, error)) {
        return false;
    }
    std::optional<MRVUnit::Unit> units;
    for (;;) {
        ModeReader reader(text, units);
        if (!reader.read()) {
            return refuse(reader.error());
        }
        // A second time, now that the units are known from the start.
        if (reader.unitsCameLate()) {
            units = reader.mode().units();
            continue;
        }
        *this = reader.mode();
        if (remarks) {
            *remarks = reader.remarks();
        }
        return true;
    }
}
