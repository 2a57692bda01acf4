#include "dom/mrvdomwriter_p.h"

#include "core/mrvxmltext.h"
#include "dom/mrvdomblanks_p.h"
#include "dom/mrvdomlimits.h"
#include "util/mrvfailure.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>

#include <algorithm>

namespace {

using Attributes = QVector<QPair<QString, QString>>;

constexpr int Indentation = 3;

// What Qt's map costs for each further attribute grows with their number: the names of many are
// read from their text.
bool readManyAttributes(const QDomNode &node, Attributes *attributes)
{
    const QDomElement element = node.toElement();
    QString text;
    QTextStream stream(&text);
    element.cloneNode(false).save(stream, -1);
    int start = text.indexOf(u' ');
    while (start >= 0) {
        const int end = text.indexOf(QLatin1String("=\""), start);
        const QString name = text.mid(start, end - start).trimmed();
        // Declarations of namespaces are no attributes.
        if (element.hasAttribute(name)) {
            attributes->append({name, element.attribute(name)});
        }
        const int close = end < 0 ? -1 : text.indexOf(u'"', end + 2);
        start = close < 0 ? -1 : text.indexOf(u' ', close);
    }
    return attributes->size() == element.attributes().count();
}

void readAttributes(const QDomNode &element, Attributes *attributes)
{
    constexpr int Few = 32;
    const QDomNamedNodeMap map = element.attributes();
    const int count = map.count();
    if (count <= Few || !readManyAttributes(element, attributes)) {
        attributes->clear();
        for (int i = 0; i < count; ++i) {
            const QDomNode attribute = map.item(i);
            attributes->append({attribute.nodeName(), attribute.nodeValue()});
        }
    }
    if (count > 1) {
        std::sort(attributes->begin(), attributes->end());
    }
}

class Writer
{
    Q_DECLARE_TR_FUNCTIONS(MRVDomDoc)

public:
    explicit Writer(QByteArray *bytes)
        : m_bytes(bytes)
    {
    }

    bool write(const QDomDocument &document)
    {
        QDomNode first = document.firstChild();
        if (isDeclaration(first)) {
            writeInstruction(first.nodeName(), declaration(first.nodeValue()));
            endLine();
            first = first.nextSibling();
        }
        writeDocumentType(document.doctype());
        const bool isWritten = writeSiblings(first, 0);
        flush();
        return isWritten;
    }

    bool writeElement(const QDomNode &element, const QString *indent, const QString &prefix)
    {
        m_laysOut = indent;
        m_layout.isLaidOut = indent;
        m_indent = indent ? *indent : QString();
        m_prefix = prefix;
        const bool isWritten = writeElement(element, 0);
        flush();
        return isWritten;
    }

    void writeSome(const QDomNode &parent, const QDomNode &first, const QDomNode &end)
    {
        QDomElement around = parent.toElement();
        while (!around.isNull() && !around.hasAttribute(QStringLiteral("xml:space"))) {
            around = around.parentNode().toElement();
        }
        const bool isPreserved = mrvPreservesBlanks(around, false);
        m_laysOut = false;
        m_layout.isLaidOut = false;
        m_layout.marksBlank = !isPreserved && mrvDomContentOf(parent) == MRVDomContent::Lines;
        for (QDomNode node = first; node != end; node = node.nextSibling()) {
            writeNode(node, 0);
        }
        flush();
    }

    QString attributeValue(const QString &value)
    {
        writeEscaped(value, Place::Attribute);
        return m_text;
    }

    QString reason() const { return m_reason; }

private:
    static bool isDeclaration(const QDomNode &node)
    {
        return node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml");
    }
    bool writeSiblings(const QDomNode &first, int depth)
    {
        QDomNode next;
        for (QDomNode node = first; !node.isNull(); node = next) {
            next = node.nextSibling();
            if (!writeNode(node, depth)) {
                return false;
            }
        }
        return true;
    }

    bool writeNode(const QDomNode &node, int depth)
    {
        switch (node.nodeType()) {
        case QDomNode::ElementNode:
            if (depth >= MRVDomLimits::MaxDepth) {
                m_reason = tr("elements are nested more deeply than %1 levels")
                               .arg(MRVDomLimits::MaxDepth);
                return false;
            }
            indent(depth);
            if (!writeElement(node, depth)) {
                return false;
            }
            endLine();
            break;
        case QDomNode::TextNode:
            writeText(node.nodeValue());
            break;
        case QDomNode::CDATASectionNode:
            m_text += QLatin1String("<![CDATA[");
            mrvAppendXmlText(
                &m_text,
                node.nodeValue().replace(QLatin1String("]]>"), QLatin1String("]]]]><![CDATA[>")));
            m_text += QLatin1String("]]>");
            break;
        case QDomNode::CommentNode:
            indent(depth);
            writeComment(node.nodeValue());
            endLine();
            break;
        case QDomNode::EntityReferenceNode:
            m_text += u'&' + node.nodeName() + u';';
            break;
        case QDomNode::ProcessingInstructionNode:
            writeInstruction(node.nodeName(), node.nodeValue());
            endLine();
            break;
        case QDomNode::DocumentTypeNode:
            break; // stands before all else
        default:
            m_text += written(node);
        }
        return true;
    }

    bool writeElement(const QDomNode &element, int depth)
    {
        const QString name = element.nodeName();
        const int outerNamespaces = m_namespaces.size();
        const Layout outer = m_layout;
        m_text += u'<';
        m_text += name;
        declareNamespace(element);
        bool isWritten = isName(name);
        if (element.hasAttributes()) {
            isWritten = writeAttributes(element) && isWritten;
        }
        isWritten = isWritten && writeContent(element, name, depth);
        m_namespaces.resize(outerNamespaces);
        m_layout = outer;
        return isWritten;
    }

    bool writeContent(const QDomNode &element, const QString &name, int depth)
    {
        const QDomNode first = element.firstChild();
        if (first.isNull()) {
            m_text += QLatin1String("/>");
            return true;
        }
        m_text += u'>';
        const MRVDomContent content = mrvDomContentOf(element);
        m_layout.isPreserved = mrvPreservesBlanks(element, m_layout.isPreserved);
        m_layout.isLaidOut =
            m_laysOut && content == MRVDomContent::Elements && !m_layout.isPreserved;
        m_layout.marksBlank = content == MRVDomContent::Lines && !m_layout.isPreserved;
        if (m_layout.isLaidOut) {
            m_text += u'\n';
        }
        if (!writeSiblings(first, depth + 1)) {
            return false;
        }
        indent(depth);
        m_text += QLatin1String("</");
        m_text += name;
        m_text += u'>';
        return true;
    }

    // A reference makes readers take white space for text that would be layout to them.
    void writeText(QString text)
    {
        if (m_layout.marksBlank && mrvIsBlankXml(text)) {
            m_text += QStringLiteral("&#x%1;").arg(int(text[0].unicode()), 0, 16);
            text.remove(0, 1);
            m_layout.marksBlank = false;
        }
        writeEscaped(text, Place::Text);
    }

    bool writeAttributes(const QDomNode &element)
    {
        bool areNames = true;
        m_attributes.clear();
        readAttributes(element, &m_attributes);
        if (!m_namespaces.isEmpty() || element.attributes().item(0).localName().size() > 0) {
            declareAttributeNamespaces(element.attributes());
        }
        for (const QPair<QString, QString> &attribute : qAsConst(m_attributes)) {
            areNames = isName(attribute.first) && areNames;
            m_text += u' ';
            m_text += attribute.first;
            m_text += QLatin1String("=\"");
            writeEscaped(attribute.second, Place::Attribute);
            m_text += u'"';
        }
        return areNames;
    }

    // Whether XML allows a name, so that the document can be loaded again.
    bool isName(const QString &name)
    {
        if (isPlainName(name) || m_names.contains(name)) {
            return true;
        }
        if (!mrvIsXmlName(name)) {
            m_reason = tr("XML does not allow the name '%1'").arg(name);
            return false;
        }
        m_names.insert(name);
        return true;
    }

    // As most are: of letters, digits and "_", "-", ".", beginning with a letter.
    static bool isPlainName(const QString &name)
    {
        const auto isLetter = [](QChar c) {
            const ushort lower = c.unicode() | 0x20;
            return lower >= 'a' && lower <= 'z';
        };
        return !name.isEmpty() && isLetter(name[0])
            && std::all_of(name.cbegin(), name.cend(), [&](QChar c) {
                   return isLetter(c) || (c >= u'0' && c <= u'9') || c == u'_' || c == u'-'
                       || c == u'.';
               });
    }

    // Elements of documents that were read with their namespaces know these, and have no attributes
    // that declare them.
    void declareNamespace(const QDomNode &node)
    {
        const QString uri = node.namespaceURI();
        if (uri.isEmpty()) {
            return;
        }
        const QString prefix = node.prefix();
        const auto declared =
            std::find_if(m_namespaces.crbegin(), m_namespaces.crend(),
                         [&](const auto &known) { return known.first == prefix; });
        if (declared == m_namespaces.crend() || declared->second != uri) {
            m_namespaces.append({prefix, uri});
            m_text += prefix.isEmpty() ? QStringLiteral(" xmlns=\"")
                                       : QLatin1String(" xmlns:") + prefix + QLatin1String("=\"");
            writeEscaped(uri, Place::Attribute);
            m_text += u'"';
        }
    }

    void declareAttributeNamespaces(const QDomNamedNodeMap &attributes)
    {
        for (int i = 0; i < attributes.count(); ++i) {
            const QDomNode attribute = attributes.item(i);
            if (attribute.prefix() != QLatin1String("xml")) {
                declareNamespace(attribute);
            }
        }
    }

    void writeComment(QString comment)
    {
        m_text += QLatin1String("<!--");
        while (comment.contains(QLatin1String("--"))) {
            comment.replace(QLatin1String("--"), QLatin1String("- -"));
        }
        mrvAppendXmlText(&m_text, comment);
        if (comment.endsWith(u'-')) {
            m_text += u' '; // a comment must not end in "--->"
        }
        m_text += QLatin1String("-->");
    }

    void writeInstruction(const QString &target, QString data)
    {
        m_text += QLatin1String("<?") + target + u' ';
        mrvAppendXmlText(&m_text, data.replace(QLatin1String("?>"), QLatin1String("? >")));
        m_text += QLatin1String("?>");
    }

    // The pseudo-attributes of the declaration, with the encoding that is written.
    static QString declaration(QString data)
    {
        static const QRegularExpression encoding(
            QStringLiteral("encoding\\s*=\\s*(\"[^\"]*\"|'[^']*')"));
        static const QRegularExpression version(
            QStringLiteral("^\\s*version\\s*=\\s*(\"[^\"]*\"|'[^']*')"));
        if (encoding.match(data).hasMatch()) {
            return data.replace(encoding, QStringLiteral("encoding=\"UTF-8\""));
        }
        return data.replace(version, QStringLiteral("version=\\1 encoding=\"UTF-8\""));
    }

    // Qt would write the declarations in an order that changes with each process.
    void writeDocumentType(const QDomDocumentType &type)
    {
        if (type.name().isEmpty()) {
            return;
        }
        m_text += QLatin1String("<!DOCTYPE ") + type.name();
        if (!type.publicId().isNull()) {
            m_text += QLatin1String(" PUBLIC ") + quoted(type.publicId());
        } else if (!type.systemId().isNull()) {
            m_text += QLatin1String(" SYSTEM");
        }
        if (!type.systemId().isNull()) {
            m_text += u' ' + quoted(type.systemId());
        }
        QStringList declarations;
        for (const QDomNamedNodeMap &map : {type.entities(), type.notations()}) {
            for (int i = 0; i < map.count(); ++i) {
                declarations.append(written(map.item(i)));
            }
        }
        if (!declarations.isEmpty()) {
            declarations.sort();
            m_text += QLatin1String(" [\n") + declarations.join(QString()) + u']';
        }
        m_text += QLatin1String(">\n");
    }

    static QString quoted(const QString &text)
    {
        const QChar quote = text.contains(u'\'') ? u'"' : u'\'';
        return quote + mrvXmlText(text) + quote;
    }

    // As Qt writes it: for what is rare, and stands in no other node.
    static QString written(const QDomNode &node)
    {
        QString text;
        QTextStream stream(&text);
        node.save(stream, Indentation);
        stream.flush();
        return mrvXmlText(text);
    }

    enum class Place { Text, Attribute };

    void writeEscaped(const QString &value, Place place)
    {
        const QString text = mrvXmlText(value);
        const QChar *const characters = text.constData();
        const int size = text.size();
        if (text.startsWith(u'>') || text.startsWith(QLatin1String("]>"))) {
            closeBrackets();
        }
        int done = 0;
        for (int i = 0; i < size; ++i) {
            const ushort c = characters[i].unicode();
            if (c > '>') {
                continue; // as most are
            }
            const QLatin1String entity = entityFor(characters, i, place);
            if (entity.size() > 0) {
                m_text.append(characters + done, i - done);
                m_text += entity;
                done = i + 1;
            }
        }
        m_text.append(characters + done, size - done);
    }

    // Two texts side by side must not make the end of a section, either.
    void closeBrackets()
    {
        if (m_text.endsWith(u']')) {
            m_text.chop(1);
            m_text += QLatin1String("&#x5d;");
        }
    }

    static QLatin1String entityFor(const QChar *text, int i, Place place)
    {
        switch (text[i].unicode()) {
        case '<':
            return QLatin1String("&lt;");
        case '&':
            return QLatin1String("&amp;");
        case '>':
            return i >= 2 && text[i - 1] == u']' && text[i - 2] == u']' ? QLatin1String("&gt;")
                                                                        : QLatin1String();
        case '"':
            return place == Place::Attribute ? QLatin1String("&quot;") : QLatin1String();
        case '\t':
            return place == Place::Attribute ? QLatin1String("&#x9;") : QLatin1String();
        case '\n':
            return place == Place::Attribute ? QLatin1String("&#xa;") : QLatin1String();
        case '\r':
            return QLatin1String("&#xd;");
        default:
            return QLatin1String();
        }
    }

    void indent(int depth)
    {
        if (m_layout.isLaidOut) {
            m_text += m_prefix;
            for (int i = 0; i < depth; ++i) {
                m_text += m_indent;
            }
        }
    }

    void endLine()
    {
        constexpr int Chunk = 1 << 16;
        if (m_layout.isLaidOut) {
            m_text += u'\n';
        }
        if (m_text.size() > Chunk) {
            flush();
        }
    }

    void flush()
    {
        *m_bytes += m_text.toUtf8();
        m_text.resize(0);
    }

    /** Of what is in an element. */
    struct Layout
    {
        bool isLaidOut = true;
        bool isPreserved = false; // by xml:space
        bool marksBlank = false; // in the next text that is white space
    };

    QByteArray *m_bytes;
    QString m_text;
    bool m_laysOut = true; // at all
    Layout m_layout;
    QString m_indent = QString(Indentation, u' '); // of a level
    QString m_prefix; // of each line
    Attributes m_attributes;
    QString m_reason;
    QSet<QString> m_names; // that XML allows, of those that are not plain
    Attributes m_namespaces; // declared around, the innermost last: prefix and name
};

} // namespace

Attributes mrvSortedAttributes(const QDomElement &element)
{
    Attributes attributes;
    readAttributes(element, &attributes);
    return attributes;
}

bool mrvIsXmlName(const QString &name)
{
    // The parser that loads decides, so that what is saved can be loaded.
    QDomDocument document;
    return document.setContent(u'<' + name + QLatin1String("/>"), false)
        && document.documentElement().tagName() == name;
}

bool mrvWriteXml(const QDomDocument &document, QByteArray *bytes, MRVErrorSink reason)
{
    Writer writer(bytes);
    return writer.write(document) || MRV::fail(reason, MRVErrorKind::Unsupported, writer.reason());
}

bool mrvXmlElement(const QDomElement &element, const QString *indent, const QString &prefix,
                   QString *text)
{
    QByteArray bytes;
    const bool isWritten = Writer(&bytes).writeElement(element, indent, prefix);
    *text = QString::fromUtf8(bytes);
    return isWritten;
}

QString mrvXmlContent(const QDomNode &parent, const QDomNode &first, const QDomNode &end)
{
    QByteArray bytes;
    Writer(&bytes).writeSome(parent, first, end);
    return QString::fromUtf8(bytes);
}

QString mrvXmlAttributeValue(const QString &value, QChar quote)
{
    QByteArray bytes;
    const QString text = Writer(&bytes).attributeValue(value);
    return quote == u'\'' ? QString(text).replace(u'\'', QLatin1String("&apos;")) : text;
}
