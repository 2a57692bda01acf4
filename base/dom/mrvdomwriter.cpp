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
bool readManyAttributes(const QDomElement &element, Attributes *attributes)
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

void readAttributes(const QDomElement &element, Attributes *attributes)
{
    constexpr int Few = 32;
    const QDomNamedNodeMap map = element.attributes();
    const int count = map.count();
    if (count <= Few || !readManyAttributes(element, attributes)) {
        attributes->clear();
        for (int i = 0; i < count; ++i) {
            const QDomAttr attribute = map.item(i).toAttr();
            attributes->append({attribute.name(), attribute.value()});
        }
    }
    std::sort(attributes->begin(), attributes->end());
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
        bool hasDoctype = false;
        for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (!hasDoctype && !isDeclaration(node)) {
                writeRare(document.doctype());
                hasDoctype = true;
            }
            if (!node.isDocumentType() && !writeTree(node)) {
                return false;
            }
        }
        flush();
        return true;
    }

private:
    static bool isDeclaration(const QDomNode &node)
    {
        return node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml");
    }
    // Qt counts sections as texts, too.
    static bool isText(const QDomNode &node)
    {
        return node.nodeType() == QDomNode::TextNode
            || node.nodeType() == QDomNode::CDATASectionNode;
    }

    // The node and all below it; a loop, since the depth of a tree is its author's choice.
    bool writeTree(const QDomNode &root)
    {
        QDomNode node = root;
        int depth = 0;
        for (;;) {
            const QDomNode first = begin(node, depth);
            if (!first.isNull()) {
                if (++depth >= MRVDomLimits::MaxDepth && first.isElement()) {
                    return false;
                }
                node = first;
                continue;
            }
            while (node != root && node.nextSibling().isNull()) {
                node = node.parentNode();
                end(node, --depth);
            }
            if (node == root) {
                return true;
            }
            node = node.nextSibling();
        }
    }

    // Writes what comes before a node's children and returns the first of them.
    QDomNode begin(const QDomNode &node, int depth)
    {
        switch (node.nodeType()) {
        case QDomNode::ElementNode:
            return beginElement(node.toElement(), depth);
        case QDomNode::TextNode:
            writeEscaped(node.nodeValue(), Place::Text);
            break;
        case QDomNode::CDATASectionNode:
            m_text += QLatin1String("<![CDATA[");
            mrvAppendXmlText(&m_text, node.nodeValue());
            m_text += QLatin1String("]]>");
            break;
        case QDomNode::CommentNode:
            writeComment(node, depth);
            break;
        case QDomNode::EntityReferenceNode:
            m_text += u'&' + node.nodeName() + u';';
            break;
        case QDomNode::ProcessingInstructionNode:
            m_text += QLatin1String("<?") + node.nodeName() + u' ';
            mrvAppendXmlText(&m_text, isDeclaration(node) ? declaration(node) : node.nodeValue());
            m_text += QLatin1String("?>\n");
            break;
        default:
            writeRare(node);
        }
        return QDomNode();
    }

    QDomNode beginElement(const QDomElement &element, int depth)
    {
        if (!isText(element.previousSibling())) {
            indent(depth);
        }
        m_text += u'<' + element.tagName();
        if (element.hasAttributes()) {
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
        const QDomNode first = element.firstChild();
        if (first.isNull()) {
            m_text += QLatin1String("/>");
            endLine(element);
        } else {
            m_text += u'>';
            if (!isText(first)) {
                m_text += u'\n';
            }
        }
        return first;
    }

    void end(const QDomNode &element, int depth)
    {
        if (!isText(element.lastChild())) {
            indent(depth);
        }
        m_text += QLatin1String("</") + element.nodeName() + u'>';
        endLine(element);
    }

    void endLine(const QDomNode &node)
    {
        if (!isText(node.nextSibling())) {
            m_text += u'\n';
        }
        constexpr int Chunk = 1 << 16;
        if (m_text.size() > Chunk) {
            flush();
        }
    }

    void writeComment(const QDomNode &comment, int depth)
    {
        if (!isText(comment.previousSibling())) {
            indent(depth);
        }
        m_text += QLatin1String("<!--");
        mrvAppendXmlText(&m_text, comment.nodeValue());
        if (comment.nodeValue().endsWith(u'-')) {
            m_text += u' '; // a comment must not end in "--->"
        }
        m_text += QLatin1String("-->");
        endLine(comment);
    }

    // The pseudo-attributes of the declaration, with the encoding that is written.
    static QString declaration(const QDomNode &node)
    {
        static const QRegularExpression encoding(
            QStringLiteral("encoding\\s*=\\s*(\"[^\"]*\"|'[^']*')"));
        static const QRegularExpression version(
            QStringLiteral("^\\s*version\\s*=\\s*(\"[^\"]*\"|'[^']*')"));
        QString text = node.nodeValue();
        if (encoding.match(text).hasMatch()) {
            return text.replace(encoding, QStringLiteral("encoding=\"UTF-8\""));
        }
        return text.replace(version, QStringLiteral("version=\\1 encoding=\"UTF-8\""));
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
        int done = 0;
        for (int i = 0; i < text.size(); ++i) {
            const QLatin1String entity = entityFor(text, i, place);
            if (entity.size() > 0) {
                m_text.append(text.constData() + done, i - done);
                m_text += entity;
                done = i + 1;
            }
        }
        m_text.append(text.constData() + done, text.size() - done);
    }

    static QLatin1String entityFor(const QString &text, int i, Place place)
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
