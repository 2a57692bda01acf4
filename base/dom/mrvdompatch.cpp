#include "dom/mrvdompatch_p.h"

#include "dom/mrvdomblanks_p.h"
#include "dom/mrvdomwriter_p.h"
#include "dom/mrvxmltokens_p.h"
#include "input/mrvsourceencoding.h"

#include <QHash>

#include <algorithm>

namespace {

using Attributes = QVector<QPair<QString, QString>>;

QDomNode::NodeType typeOf(MRVXmlTokens::Kind kind)
{
    switch (kind) {
    case MRVXmlTokens::Comment:
        return QDomNode::CommentNode;
    case MRVXmlTokens::Section:
        return QDomNode::CDATASectionNode;
    case MRVXmlTokens::Instruction:
        return QDomNode::ProcessingInstructionNode;
    default:
        return QDomNode::TextNode;
    }
}

// A document type is a node wherever it stands, and also where the text has none.
QDomNode withoutType(QDomNode node)
{
    while (node.nodeType() == QDomNode::DocumentTypeNode) {
        node = node.nextSibling();
    }
    return node;
}

/** Goes through a text and the document that was read from it side by side. */
class Aligner
{
public:
    Aligner(const QString &xml, const QDomDocument &document, MRVDomPieces *pieces)
        : m_tokens(xml)
        , m_next(withoutType(document.firstChild()))
        , m_pieces(pieces)
    {
    }

    bool align()
    {
        bool isAligned = true;
        while (isAligned && m_tokens.next()) {
            isAligned = addToken();
        }
        return isAligned && m_next.isNull() && m_open.isEmpty();
    }

private:
    bool addToken()
    {
        switch (m_tokens.kind()) {
        case MRVXmlTokens::StartTag:
        case MRVXmlTokens::EmptyTag:
            return addElement();
        case MRVXmlTokens::EndTag:
            return close();
        case MRVXmlTokens::DocumentType:
            extendRun();
            return !m_tokens.text().contains(QLatin1String("<!ENTITY"));
        default:
            return addToRun();
        }
    }

    bool addElement()
    {
        const QDomElement element = m_next.toElement();
        MRVDomPiece piece;
        piece.start = m_tokens.start();
        piece.end = piece.closeStart = piece.closeEnd = m_tokens.end();
        piece.element = element;
        if (element.hasAttributes()) {
            piece.attributes = mrvSortedAttributes(element);
        }
        piece.next = m_pieces->size() + 1;
        m_pieces->append(piece);
        m_isRun = false;
        if (m_tokens.kind() == MRVXmlTokens::StartTag) {
            m_open.append(m_pieces->size() - 1);
            m_next = element.firstChild();
        } else {
            m_next = element.nextSibling();
        }
        return !element.isNull();
    }

    bool close()
    {
        if (m_open.isEmpty() || !m_next.isNull()) {
            return false;
        }
        MRVDomPiece &piece = (*m_pieces)[m_open.takeLast()];
        piece.closeStart = m_tokens.start();
        piece.closeEnd = m_tokens.end();
        piece.next = m_pieces->size();
        m_next = withoutType(piece.element.nextSibling());
        m_isRun = false;
        return true;
    }

    // The piece between tags, up to the end of the token.
    MRVDomPiece &extendRun()
    {
        if (!m_isRun) {
            MRVDomPiece piece;
            piece.start = m_tokens.start();
            piece.next = m_pieces->size() + 1;
            m_pieces->append(piece);
            m_isRun = true;
        }
        m_pieces->last().end = m_tokens.end();
        m_pieces->last().layoutStart = m_tokens.end();
        return m_pieces->last();
    }

    bool addToRun()
    {
        MRVDomPiece &run = extendRun();
        const QDomNode::NodeType type = typeOf(m_tokens.kind());
        if (type != QDomNode::TextNode) {
            return m_next.nodeType() == type && takeNode(&run);
        }
        bool hasNode = false;
        while (m_next.nodeType() == type || m_next.isEntityReference()) {
            takeNode(&run);
            hasNode = true;
        }
        if (!hasNode) {
            run.layoutStart = m_tokens.start();
            run.hasLayout = true;
        }
        return hasNode || mrvIsBlankXml(m_tokens.text().toString());
    }

    bool takeNode(MRVDomPiece *run)
    {
        run->nodes.append({m_next, m_next.nodeValue()});
        m_next = withoutType(m_next.nextSibling());
        return true;
    }

    MRVXmlTokens m_tokens;
    QDomNode m_next; // what the next token stands for
    MRVDomPieces *m_pieces;
    QVector<int> m_open; // indexes of the elements around
    bool m_isRun = false; // the last piece, to which more may belong
};

// CR LF, LF, or the CR of old systems.
QString lineEndOf(const QString &xml)
{
    for (const char *end : {"\r\n", "\n", "\r"}) {
        if (xml.contains(QLatin1String(end))) {
            return QLatin1String(end);
        }
    }
    return QStringLiteral("\n");
}

/** Writes a text again, with the changes in its document. */
class Patcher
{
public:
    Patcher(const QString &xml, const MRVDomPieces &pieces, const MRVSourceEncoding &encoding)
        : m_xml(xml)
        , m_pieces(pieces)
        , m_encoding(encoding)
        , m_lineEnd(lineEndOf(xml))
    {
        findIndent();
        m_out.reserve(xml.size());
    }

    bool patch(const QDomDocument &document)
    {
        return writeChildren(document, 0, m_pieces.size(), QString());
    }
    const QString &result() const { return m_out; }

private:
    // The first element in the document element shows how far one level is indented.
    void findIndent()
    {
        bool isInside = false;
        for (int i = 0; i + 1 < m_pieces.size(); ++i) {
            const MRVDomPiece &run = m_pieces[i];
            const QString before = isInside && run.element.isNull() ? separator(run) : QString();
            if (!before.isEmpty() && m_pieces[i + 1].start == run.end) {
                m_indent = before.mid(m_lineEnd.size());
                return;
            }
            isInside = isInside || !run.element.isNull();
        }
    }

    void copy(int start, int end) { m_out.append(m_xml.constData() + start, end - start); }

    // The last line end in the layout of a piece and the blanks after it; empty without a line end.
    QString separator(const MRVDomPiece &run) const
    {
        const QString layout = m_xml.mid(run.layoutStart, run.end - run.layoutStart);
        const int line = layout.lastIndexOf(m_lineEnd.back());
        return line < 0 ? QString() : m_lineEnd + layout.mid(line + 1);
    }

    /** The children of an element, or of the document, while they are written. */
    struct Level
    {
        QDomNode parent;
        MRVDomContent content;
        int to; // index after the last piece in it
        QString outer; // what stands before the tag of the parent on a line of its own
        QString separator; // the same for its elements; empty where they stand side by side
    };

    QString separatorIn(const Level &level, int from) const
    {
        if (level.parent.isDocument()) {
            return m_lineEnd;
        }
        if (level.content == MRVDomContent::Text) {
            return QString();
        }
        const MRVDomPiece *before = nullptr;
        for (int i = from; i < level.to; i = m_pieces[i].next) {
            if (!m_pieces[i].element.isNull()) {
                return before ? separator(*before) : QString();
            }
            before = &m_pieces[i];
        }
        return level.outer.isEmpty() ? QString() : level.outer + m_indent;
    }

    bool writeChildren(const QDomNode &parent, int from, int to, const QString &outer)
    {
        Level level{parent, mrvDomContentOf(parent), to, outer, QString()};
        level.separator = separatorIn(level, from);
        QDomNode node = withoutType(parent.firstChild());
        int i = from;
        bool isWritten = true;
        m_layout = 0;
        while (isWritten && (i < to || !node.isNull())) {
            isWritten = writeRun(level, &node, &i);
            const QDomElement element = node.toElement();
            if (!isWritten || (node.isNull() && i >= to)) {
                break;
            }
            if (i < to && m_pieces[i].element == element) {
                isWritten = writeElement(i, level.separator);
                m_layout = 0;
                i = m_pieces[i].next;
            } else {
                isWritten = !element.isNull() && !parent.isDocument()
                    && insertElement(element, level, i >= to);
            }
            node = withoutType(node.nextSibling());
        }
        return isWritten;
    }

    // Writes all up to the next element that is left, or that is new.
    bool writeRun(const Level &level, QDomNode *node, int *i)
    {
        QVector<QPair<QDomNode, QString>> left;
        const QDomNode start = *node;
        for (; !node->isNull() && !node->isElement(); *node = withoutType(node->nextSibling())) {
            left.append({*node, node->nodeValue()});
        }
        const int first = *i;
        bool isKept = true;
        QVector<QPair<QDomNode, QString>> read;
        for (; *i < level.to; *i = m_pieces[*i].next) {
            const MRVDomPiece &piece = m_pieces[*i];
            if (!piece.element.isNull() && piece.element.parentNode() == level.parent) {
                break;
            }
            read += piece.nodes;
            isKept = isKept && readsAsBefore(level, piece);
        }
        if (left == read && isKept) {
            copyRuns(first, *i);
            return true;
        }
        m_layout = 0;
        if (!left.isEmpty()) {
            m_out += fitted(mrvXmlContent(level.parent, start, *node));
        }
        return !level.parent.isDocument();
    }

    // Text that comes or goes in an element may make text of its layout, and layout of its white
    // space.
    bool readsAsBefore(const Level &level, const MRVDomPiece &piece) const
    {
        if (!piece.element.isNull() || level.parent.isDocument()) {
            return true;
        }
        const QStringView text = QStringView(m_xml).mid(piece.start, piece.end - piece.start);
        return level.content == MRVDomContent::Elements
            || (!piece.hasLayout
                && (level.content == MRVDomContent::Text || piece.nodes.isEmpty()
                    || text.contains(u'&')));
    }

    // Without the elements between them, which were removed, and the layout before each of these.
    void copyRuns(int from, int to)
    {
        for (int i = from; i < to; i = m_pieces[i].next) {
            const MRVDomPiece &piece = m_pieces[i];
            if (!piece.element.isNull()) {
                m_out.chop(m_layout);
                m_layout = 0;
            } else {
                copy(piece.start, piece.end);
                m_layout = piece.end - piece.layoutStart;
            }
        }
    }

    bool writeElement(int index, const QString &separator)
    {
        const MRVDomPiece &piece = m_pieces[index];
        const QDomElement &element = piece.element;
        const int start = m_out.size();
        const Attributes now =
            element.hasAttributes() ? mrvSortedAttributes(element) : Attributes();
        if (now == piece.attributes) {
            copy(piece.start, piece.end);
        } else {
            writeTag(m_xml.mid(piece.start, piece.end - piece.start), piece.attributes, now);
        }
        const bool isEmptyTag = piece.closeStart == piece.closeEnd;
        if (!isEmptyTag) {
            const bool isWritten = writeChildren(element, index + 1, piece.next, separator);
            copy(piece.closeStart, piece.closeEnd);
            return isWritten;
        }
        if (!element.hasChildNodes()) {
            return true;
        }
        m_out.chop(2); // "/>"
        while (m_out.size() > start && m_out.back().isSpace()) {
            m_out.chop(1);
        }
        m_out += u'>';
        const bool isWritten = writeChildren(element, 0, 0, separator);
        m_out += QLatin1String("</") + element.tagName() + u'>';
        return isWritten;
    }

    // A start tag with its attributes as they are now.
    void writeTag(const QString &tag, const Attributes &before, const Attributes &now)
    {
        const auto isSpace = [&](int i) { return i < tag.size() && tag[i].isSpace(); };
        const auto isNameEnd = [&](int i) {
            return isSpace(i) || tag[i] == u'=' || tag[i] == u'/' || tag[i] == u'>';
        };
        QHash<QString, QString> values;
        for (const QPair<QString, QString> &attribute : now) {
            values.insert(attribute.first, attribute.second);
        }
        int i = 1;
        while (!isNameEnd(i)) {
            ++i;
        }
        m_out += tag.leftRef(i);
        for (int blank = i;; blank = i) {
            while (isSpace(i)) {
                ++i;
            }
            if (tag[i] == u'/' || tag[i] == u'>') {
                writeNewAttributes(before, now);
                m_out += tag.midRef(blank);
                return;
            }
            const int nameStart = i;
            while (!isNameEnd(i)) {
                ++i;
            }
            const QString name = tag.mid(nameStart, i - nameStart);
            while (isSpace(i) || tag[i] == u'=') {
                ++i;
            }
            const QChar quote = tag[i];
            const int valueStart = i + 1;
            i = tag.indexOf(quote, valueStart) + 1;
            if (!values.contains(name)) {
                continue;
            }
            const QPair<QString, QString> attribute(name, values.value(name));
            m_out += tag.midRef(blank, valueStart - blank);
            if (std::binary_search(before.cbegin(), before.cend(), attribute)) {
                m_out += tag.midRef(valueStart, i - valueStart);
            } else {
                m_out += fitted(mrvXmlAttributeValue(attribute.second, quote)) + quote;
            }
        }
    }

    void writeNewAttributes(const Attributes &before, const Attributes &now)
    {
        for (const QPair<QString, QString> &attribute : now) {
            const auto known = std::lower_bound(
                before.cbegin(), before.cend(), attribute.first,
                [](const auto &left, const QString &name) { return left.first < name; });
            if (known == before.cend() || known->first != attribute.first) {
                m_out += u' ' + attribute.first + QLatin1String("=\"")
                    + fitted(mrvXmlAttributeValue(attribute.second, u'"')) + u'"';
            }
        }
    }

    // Writes a new element before the layout that was written last. Where there is none and it is
    // the last one, the end tag gets a line of its own.
    bool insertElement(const QDomElement &element, const Level &level, bool isAfterAll)
    {
        const QString layout = m_out.right(m_layout);
        const bool hasLines = !level.separator.isEmpty();
        m_out.chop(m_layout);
        QString text;
        const bool isWritten = hasLines
            ? mrvXmlElement(element, &m_indent, level.separator.mid(m_lineEnd.size()), &text)
            : mrvXmlElement(element, nullptr, QString(), &text);
        m_out += level.separator + fitted(text) + layout;
        if (layout.isEmpty() && hasLines && isAfterAll && element.nextSibling().isNull()) {
            m_out += level.outer;
        }
        return isWritten;
    }

    // With references for what the encoding lacks, and the line ends of the text.
    QString fitted(QString text) const
    {
        if (m_lineEnd != u'\n') {
            text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
            text.replace(QLatin1String("\n"), m_lineEnd);
        }
        return m_encoding.withReferences(text);
    }

    const QString &m_xml;
    const MRVDomPieces &m_pieces;
    const MRVSourceEncoding &m_encoding;
    QString m_lineEnd;
    QString m_indent = QStringLiteral("   ");
    QString m_out;
    int m_layout = 0; // characters of layout at the end of what is written
};

} // namespace

bool mrvDomPieces(const QString &xml, const QDomDocument &document, MRVDomPieces *pieces)
{
    return Aligner(xml, document, pieces).align();
}

bool mrvPatchXml(const QString &xml, const MRVDomPieces &pieces, const MRVSourceEncoding &encoding,
                 const QDomDocument &document, QString *patched)
{
    Patcher patcher(xml, pieces, encoding);
    if (!patcher.patch(document)) {
        return false;
    }
    *patched = patcher.result();
    return true;
}
