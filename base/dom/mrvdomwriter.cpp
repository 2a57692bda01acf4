#include "dom/mrvdomwriter_p.h"

#include "core/mrvxmltext.h"
#include "dom/mrvdomlimits.h"

#include <QRegularExpression>
#include <QTextStream>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

using Attributes = QVector<QPair<QString, QString>>;

constexpr int Indentation = 3;

// What Qt's map costs for each further attribute grows with their number: many are read from their text.
bool readManyAttributes(const QDomNode &element, Attributes *attributes)
{
    QString text;
    QTextStream stream(&text);
    element.cloneNode(false).save(stream, -1);
    QXmlStreamReader reader(mrvXmlText(text));
    reader.setNamespaceProcessing(false);
    reader.readNextStartElement();
    const QXmlStreamAttributes read = reader.attributes();
    for (const QXmlStreamAttribute &attribute : read) {
        attributes->append({attribute.qualifiedName().toString(), attribute.value().toString()});
    }
    return !reader.hasError() && attributes->size() == element.attributes().count();
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
            endLine(false);
            first = first.nextSibling();
        }
        writeRare(document.doctype());
        const bool isWritten = writeSiblings(first, 0);
        flush();
        return isWritten;
    }

private:
    static bool isDeclaration(const QDomNode &node)
    {
        return node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml");
    }
    // What text is made of: beside these, white space would become a part of it.
    static bool isText(const QDomNode &node)
    {
        const QDomNode::NodeType type = node.nodeType();
        return type == QDomNode::TextNode || type == QDomNode::CDATASectionNode
            || type == QDomNode::EntityReferenceNode;
    }

    bool writeSiblings(const QDomNode &first, int depth)
    {
        QDomNode next;
        bool isAfterText = false;
        for (QDomNode node = first; !node.isNull(); node = next) {
            next = node.nextSibling();
            if (!writeNode(node, depth, isAfterText, isText(next))) {
                return false;
            }
            isAfterText = isText(node);
        }
        return true;
    }

    bool writeNode(const QDomNode &node, int depth, bool isAfterText, bool isBeforeText)
    {
        switch (node.nodeType()) {
        case QDomNode::ElementNode:
            if (depth >= MRVDomLimits::MaxDepth) {
                return false;
            }
            indent(isAfterText ? 0 : depth);
            if (!writeElement(node, depth)) {
                return false;
            }
            endLine(isBeforeText);
            break;
        case QDomNode::TextNode:
            writeEscaped(node.nodeValue(), Place::Text);
            break;
        case QDomNode::CDATASectionNode:
            m_text += QLatin1String("<![CDATA[");
            mrvAppendXmlText(&m_text, node.nodeValue());
            m_text += QLatin1String("]]>");
            break;
        case QDomNode::CommentNode:
            indent(isAfterText ? 0 : depth);
            writeComment(node.nodeValue());
            endLine(isBeforeText);
            break;
        case QDomNode::EntityReferenceNode:
            m_text += u'&' + node.nodeName() + u';';
            break;
        case QDomNode::ProcessingInstructionNode:
            writeInstruction(node.nodeName(), node.nodeValue());
            endLine(isBeforeText);
            break;
        case QDomNode::DocumentTypeNode:
            break; // stands before all else
        default:
            writeRare(node);
        }
        return true;
    }

    bool writeElement(const QDomNode &element, int depth)
    {
        const QString name = element.nodeName();
        m_text += u'<';
        m_text += name;
        if (element.hasAttributes()) {
            writeAttributes(element);
        }
        const QDomNode first = element.firstChild();
        if (first.isNull()) {
            m_text += QLatin1String("/>");
            return true;
        }
        m_text += u'>';
        if (!isText(first)) {
            m_text += u'\n';
        }
        if (!writeSiblings(first, depth + 1)) {
            return false;
        }
        indent(isText(element.lastChild()) ? 0 : depth);
        m_text += QLatin1String("</");
        m_text += name;
        m_text += u'>';
        return true;
    }

    void writeAttributes(const QDomNode &element)
    {
        m_attributes.clear();
        readAttributes(element, &m_attributes);
        for (const QPair<QString, QString> &attribute : qAsConst(m_attributes)) {
            m_text += u' ';
            m_text += attribute.first;
            m_text += QLatin1String("=\"");
            writeEscaped(attribute.second, Place::Attribute);
            m_text += u'"';
        }
    }

    void writeComment(const QString &comment)
    {
        m_text += QLatin1String("<!--");
        mrvAppendXmlText(&m_text, comment);
        if (comment.endsWith(u'-')) {
            m_text += u' '; // a comment must not end in "--->"
        }
        m_text += QLatin1String("-->");
    }

    void writeInstruction(const QString &target, const QString &data)
    {
        m_text += QLatin1String("<?") + target + u' ';
        mrvAppendXmlText(&m_text, data);
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

    void writeRare(const QDomNode &node)
    {
        QString text;
        QTextStream stream(&text);
        node.save(stream, Indentation);
        mrvAppendXmlText(&m_text, text);
    }

    enum class Place { Text, Attribute };

    void writeEscaped(const QString &value, Place place)
    {
        const QString text = mrvXmlText(value);
        const QChar *const characters = text.constData();
        const int size = text.size();
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
        static const QString blanks(MRVDomLimits::MaxDepth * Indentation, u' ');
        m_text.append(blanks.constData(), depth * Indentation);
    }

    void endLine(bool isBeforeText)
    {
        constexpr int Chunk = 1 << 16;
        if (!isBeforeText) {
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

    QByteArray *m_bytes;
    QString m_text;
    Attributes m_attributes;
};

} // namespace

Attributes mrvSortedAttributes(const QDomElement &element)
{
    Attributes attributes;
    readAttributes(element, &attributes);
    return attributes;
}

bool mrvWriteXml(const QDomDocument &document, QByteArray *bytes)
{
    return Writer(bytes).write(document);
}
