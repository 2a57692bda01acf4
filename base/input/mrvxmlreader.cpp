#include "input/mrvxmlreader.h"

#include "util/mrvfailure.h"

#include "core/mrvxmltext.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextCodec>
#include <QVector>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

// Where the comment, section or instruction ends that begins at an offset; -1 for anything else.
int verbatimEnd(const QString &xml, int offset)
{
    static constexpr struct
    {
        const char *start;
        const char *end;
    } kinds[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
    for (const auto &kind : kinds) {
        const QLatin1String start(kind.start);
        if (QStringView(xml).mid(offset).startsWith(start)) {
            const QLatin1String end(kind.end);
            const int found = xml.indexOf(end, offset + start.size());
            return found < 0 ? xml.size() : found + end.size();
        }
    }
    return -1;
}

QString tooDeep(int depth)
{
    return MRVXmlReader::tr("elements are nested more deeply than %1 levels").arg(depth);
}

/**
 * Goes from tag to tag, without parsing what lies between them, up to the first fault. Sees the
 * tags that a parser sees, as far as the text is well-formed.
 */
class TagScanner
{
    Q_DECLARE_TR_FUNCTIONS(MRVXmlReader)

public:
    TagScanner(const QString &xml, const MRVXmlLimits &limits)
        : m_xml(xml)
        , m_limits(limits)
    {
    }

    /** What is wrong with the first tag that breaks a limit; empty without one. */
    QString scan()
    {
        QString message;
        m_tag = m_xml.indexOf(u'<');
        while (m_tag >= 0 && message.isEmpty()) {
            m_end = verbatimEnd(m_xml, m_tag);
            if (m_end < 0) {
                message = readTag();
            }
            if (message.isEmpty()) {
                m_tag = m_xml.indexOf(u'<', m_end);
            }
        }
        return message;
    }

    int position() const { return m_tag; }
    /** The document type without its last character; empty without one. */
    QStringView documentType() const { return m_documentType; }
    /** What lies between the brackets of the document type; null without them. */
    QStringView declarations() const { return m_declarations; }

private:
    QString readTag()
    {
        const QChar kind = m_tag + 1 < m_xml.size() ? m_xml[m_tag + 1] : QChar();
        if (kind == u'/') {
            --m_depth;
            m_end = m_tag + 2;
            return QString();
        }
        const bool isDocumentType = kind == u'!';
        if (!findEnd(isDocumentType ? QChar(u'[') : QChar())) {
            return tr("a tag is longer than %1 characters").arg(m_limits.tagLength);
        }
        if (isDocumentType) {
            return readDocumentType();
        }
        if (m_names.size() > m_limits.attributes) {
            return tr("an element has too many attributes");
        }
        std::sort(m_names.begin(), m_names.end());
        if (std::adjacent_find(m_names.cbegin(), m_names.cend()) != m_names.cend()) {
            return tr("an element has two attributes of one name");
        }
        m_depth += m_xml[m_end - 1] != u'>' || m_xml[m_end - 2] != u'/';
        return m_depth > m_limits.depth ? tooDeep(m_limits.depth) : QString();
    }

    // Goes to after the ">" of a tag, or to where a character stands outside quotes, and collects
    // the names of attributes; stops early where they are too many. False for a tag that is too
    // long.
    bool findEnd(QChar stop)
    {
        const QChar *const text = m_xml.constData();
        const bool isLimited = m_limits.tagLength > 0 && m_limits.tagLength < m_xml.size() - m_tag;
        const int end = isLimited ? m_tag + m_limits.tagLength : m_xml.size();
        QChar quote;
        int nameStart = m_tag + 1;
        int nameEnd = nameStart;
        m_names.clear();
        for (m_end = m_tag + 1; m_end < end && m_names.size() <= m_limits.attributes; ++m_end) {
            const QChar c = text[m_end];
            if (!quote.isNull()) {
                quote = c == quote ? QChar() : quote;
            } else if (c == u'>') {
                ++m_end;
                return true;
            } else if (c == u'"' || c == u'\'') {
                quote = c;
            } else if (c == u'=') {
                m_names.append(QStringView(m_xml).mid(nameStart, nameEnd - nameStart));
            } else if (c == stop && !stop.isNull()) {
                return true;
            } else if (c > u' ') {
                nameStart = nameEnd == m_end ? nameStart : m_end;
                nameEnd = m_end + 1;
            }
        }
        return !isLimited || m_end < end;
    }

    QString readDocumentType()
    {
        const bool declares = m_end < m_xml.size() && m_xml[m_end] == u'[';
        if (m_limits.documentType == MRVXmlLimits::NoDocumentType
            || (declares && m_limits.documentType == MRVXmlLimits::NoDeclarations)) {
            return tr("a document type declaration does not belong here");
        }
        m_documentType = QStringView(m_xml).mid(m_tag, m_end - m_tag - 1);
        if (declares) {
            skipDeclarations();
        }
        return QString();
    }

    // To the "]" that ends the declarations of the document type.
    void skipDeclarations()
    {
        const int start = ++m_end;
        while (m_end < m_xml.size() && m_xml[m_end] != u']') {
            const int verbatim = verbatimEnd(m_xml, m_end);
            if (verbatim >= 0) {
                m_end = verbatim;
            } else if (m_xml[m_end] == u'<') {
                skipDeclaration();
            } else {
                ++m_end;
            }
        }
        m_declarations = QStringView(m_xml).mid(start, m_end - start);
    }

    void skipDeclaration()
    {
        QChar quote;
        for (; m_end < m_xml.size() && (m_xml[m_end] != u'>' || !quote.isNull()); ++m_end) {
            const QChar c = m_xml[m_end];
            if (quote.isNull() ? c == u'"' || c == u'\'' : c == quote) {
                quote = quote.isNull() ? c : QChar();
            }
        }
    }

    const QString &m_xml;
    const MRVXmlLimits &m_limits;
    QVector<QStringView> m_names; // of the attributes in the last tag
    QStringView m_documentType;
    QStringView m_declarations;
    int m_tag = 0; // where it begins
    int m_end = 0;
    int m_depth = 0;
};

/** Entities that are declared elsewhere: nothing is fetched. */
class NoText : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return QStringLiteral(""); }
};

// How long the markup of the reader's current token is at least.
int markupLength(const QXmlStreamReader &reader)
{
    constexpr int TagLength = 3;
    constexpr int AttributeLength = 4;
    if (reader.isDTD()) {
        return 0;
    }
    int length = reader.text().size();
    if (reader.isStartElement()) {
        length += reader.qualifiedName().size() + TagLength;
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            length += attribute.qualifiedName().size() + attribute.value().size() + AttributeLength;
        }
    }
    return length;
}

/** Follows a text with declarations of its own, as entities may hold markup, up to a fault. */
class EntityScanner
{
    Q_DECLARE_TR_FUNCTIONS(MRVXmlReader)

public:
    EntityScanner(const QString &xml, QStringView declarations)
        : m_xml(xml)
        , m_declarations(declarations)
    {
    }

    QString scan(const MRVXmlLimits &limits)
    {
        m_position = int(m_declarations.data() - m_xml.constData());
        if (m_declarations.size() > MRVInputLimits::XmlDeclarationLength
            || count(u"<!") > MRVInputLimits::XmlDeclarations) {
            return tr("the document type has too many declarations");
        }
        // The stream reader refuses the version 1.1, so it does not get to see the XML declaration.
        const int start = m_xml.startsWith(QLatin1String("<?xml")) ? verbatimEnd(m_xml, 0) : 0;
        QXmlStreamReader reader(m_xml.mid(start));
        NoText resolver;
        reader.setEntityResolver(&resolver);
        reader.setNamespaceProcessing(false);
        // Parameter entities are expanded all in one step, so their sum is limited from above.
        reader.setEntityExpansionLimit(MRVInputLimits::XmlExpansion / (1 + count(u"%")));
        QString message;
        while (!reader.atEnd() && message.isEmpty()) {
            message = step(&reader, limits);
            m_position = start + qMax(0, int(reader.characterOffset()) - 1);
        }
        return message;
    }

    int position() const { return m_position; }

private:
    int count(QStringView text) const { return m_declarations.toString().count(text.toString()); }

    QString step(QXmlStreamReader *reader, const MRVXmlLimits &limits)
    {
        const QXmlStreamReader::TokenType token = reader->readNext();
        m_depth += token == QXmlStreamReader::StartElement;
        m_depth -= token == QXmlStreamReader::EndElement;
        m_expanded += markupLength(*reader);
        if (reader->hasError()) {
            return reader->errorString();
        }
        const QString outer = reader->isDTD() ? outerEntity(*reader) : QString();
        if (!outer.isEmpty()) {
            return tr("the entity '%1' is in another file, and other files are not read")
                .arg(outer);
        }
        if (m_depth > limits.depth) {
            return tooDeep(limits.depth);
        }
        const bool isTooLong = m_expanded - m_xml.size() > MRVInputLimits::XmlExpansion
            || m_expanded / MRVInputLimits::XmlExpansionFactor > m_xml.size();
        return isTooLong ? tr("entities expand to too long a text") : QString();
    }

    // An entity in another file that the text refers to: QDomDocument would leave it out, and mix
    // up the text around it.
    QString outerEntity(const QXmlStreamReader &reader) const
    {
        QSet<QString> declared;
        const QXmlStreamEntityDeclarations declarations = reader.entityDeclarations();
        for (const QXmlStreamEntityDeclaration &declaration : declarations) {
            if (!declaration.systemId().isEmpty() && declaration.notationName().isEmpty()) {
                declared.insert(declaration.name().toString());
            }
        }
        static const QRegularExpression reference(QStringLiteral("&([^\\s&;<#]+);"));
        for (auto it = reference.globalMatch(m_xml); !declared.isEmpty() && it.hasNext();) {
            const QString name = it.next().captured(1);
            if (declared.contains(name)) {
                return name;
            }
        }
        return QString();
    }

    const QString &m_xml;
    QStringView m_declarations;
    int m_position = 0;
    int m_depth = 0;
    qint64 m_expanded = 0;
};

// What a reference to a character stands for, or nothing for one that XML forbids.
QString referenced(const QString &number)
{
    const bool isHex = number.startsWith(u'x');
    bool ok = false;
    const uint code = number.midRef(isHex ? 1 : 0).toUInt(&ok, isHex ? 16 : 10);
    return ok && code <= QChar::LastValidCodePoint ? mrvXmlText(QString::fromUcs4(&code, 1))
                                                   : QString();
}

QString notAllowed(const QString &character)
{
    return MRVXmlReader::tr("XML does not allow the character %1").arg(character);
}

// Puts the references that QDomDocument gets wrong right: of characters beyond U+FFFF it takes the
// lower half. False, with the place, for the first reference to what XML forbids.
bool replaceReferences(QString *text, MRVTextFault *fault)
{
    static const QRegularExpression mark(QStringLiteral("&#(x[0-9A-Fa-f]+|[0-9]+);|<[!?]"));
    const QString xml = *text;
    QString result;
    int done = 0;
    int verbatim = 0; // where the last comment, section or instruction ends
    for (auto it = mark.globalMatch(xml); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const int at = match.capturedStart();
        if (at < verbatim) {
            continue;
        }
        if (match.capturedLength(1) == 0) {
            verbatim = verbatimEnd(xml, at);
            continue;
        }
        const QString character = referenced(match.captured(1));
        if (character.isEmpty()) {
            *fault = MRVTextFault::at(xml, at, notAllowed(match.captured()));
            return false;
        }
        if (character.size() > 1) {
            result += xml.midRef(done, at - done) + character;
            done = match.capturedEnd();
        }
    }
    *text = done == 0 ? xml : result + xml.midRef(done);
    return true;
}

// A document type that names another file makes a stream reader pass over all entities that it does
// not know, since that file might declare them. Nobody reads that file, so their text would be
// missing. Line feeds stay, for the numbers of lines.
void blankOuterType(QString *xml, int start, int length)
{
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    const auto from = xml->begin() + start;
    const auto end = from + length;
    const auto name = std::find_if_not(std::find_if(from, end, isSpace), end, isSpace);
    std::replace_if(
        std::find_if(name, end, isSpace), end, [](QChar c) { return c != u'\n'; }, QChar(u' '));
}

bool isClean(TagScanner *tags, const QString &xml, const MRVXmlLimits &limits, MRVTextFault *fault)
{
    QString message = tags->scan();
    int position = tags->position();
    if (message.isEmpty() && !tags->declarations().isNull()) {
        EntityScanner entities(xml, tags->declarations());
        message = entities.scan(limits);
        position = entities.position();
    }
    if (!message.isEmpty()) {
        *fault = MRVTextFault::at(xml, position, message);
    }
    return message.isEmpty();
}

} // namespace

bool MRVXmlReader::decode(const QByteArray &bytes, QString *text, MRVTextFault *fault)
{
    const QByteArray name = MRVTextDecoder::encodingOf(bytes, MRVTextDecoder::XmlDeclaration);
    return MRVTextDecoder::decode(
        bytes, QTextCodec::codecForName(name) ? name : QByteArrayLiteral("UTF-8"), text, fault);
}

bool MRVXmlReader::normalize(QString *xml, MRVTextFault *fault)
{
    QString text = *xml;
    if (text.startsWith(QChar::ByteOrderMark)) {
        text.remove(0, 1);
    }
    if (text.contains(u'\r')) {
        text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        text.replace(u'\r', u'\n');
    }
    const int forbidden = mrvFirstNonXml(text);
    if (forbidden >= 0) {
        const QString code = QString::number(text[forbidden].unicode(), 16).toUpper();
        *fault = MRVTextFault::at(text, forbidden,
                                  notAllowed(QLatin1String("U+") + code.rightJustified(4, u'0')));
        return false;
    }
    if (text.contains(QLatin1String("&#")) && !replaceReferences(&text, fault)) {
        return false;
    }
    *xml = text;
    return true;
}

bool MRVXmlReader::keepsLimits(const QString &xml, const MRVXmlLimits &limits, MRVTextFault *fault)
{
    TagScanner tags(xml, limits);
    return isClean(&tags, xml, limits, fault);
}

bool MRVXmlReader::read(const QByteArray &bytes, const MRVXmlLimits &limits, QString *text,
                        MRVErrorSink error)
{
    QString xml;
    MRVTextFault fault;
    TagScanner tags(xml, limits);
    if (!decode(bytes, &xml, &fault) || !isClean(&tags, xml, limits, &fault)) {
        return MRV::fail(error, MRVErrorKind::Damaged, fault.toString());
    }
    *text = xml;
    const QStringView type = tags.documentType();
    if (limits.documentType == MRVXmlLimits::NoDeclarations && !type.isEmpty()) {
        blankOuterType(text, int(type.data() - xml.constData()), int(type.size()));
    }
    return true;
}

bool MRVXmlReader::isRead(const QXmlStreamReader &xml, MRVErrorSink error)
{
    return !xml.hasError()
        || MRV::fail(error, MRVErrorKind::Damaged,
                     MRVTextFault{xml.errorString(), int(xml.lineNumber())}.toString());
}
