#include "dom/mrvdominput_p.h"

#include "core/mrvcoreutil.h"
#include "dom/mrvdomlimits.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

namespace {

void setPlace(MRVDomProblem *problem, const QString &text, int position)
{
    const QStringView before = QStringView(text).left(position);
    problem->line = 1;
    int lineStart = 0;
    for (int i = 0; i < before.size(); ++i) {
        if (before[i] == u'\n') {
            ++problem->line;
            lineStart = i + 1;
        }
    }
    problem->column = position - lineStart + 1;
}

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(MRVDomDoc)
};

QString tooDeep()
{
    return Messages::tr("elements are nested more deeply than %1 levels")
        .arg(MRVDomLimits::MaxDepth);
}

QString tooLong()
{
    return Messages::tr("entities expand to too much text");
}

// The encoding that the XML declaration names, as XML 1.0 (section 4.3.3) spells it; empty without one.
QByteArray declaredEncoding(const QByteArray &bytes)
{
    constexpr int MaxDeclaration = 256;
    static const QRegularExpression encoding(
        QStringLiteral("^<\\?xml\\s[^>]*?\\sencoding\\s*=\\s*[\"']([A-Za-z][A-Za-z0-9._-]*)[\"']"));
    return encoding.match(QString::fromLatin1(bytes.left(MaxDeclaration))).captured(1).toLatin1();
}

QByteArray encodingOf(const QByteArray &bytes)
{
    // Without a byte-order mark, the first characters tell of UTF-16 (XML 1.0, appendix F).
    if (bytes.startsWith(QByteArray::fromRawData("<\0?\0", 4))) {
        return QByteArrayLiteral("UTF-16LE");
    }
    if (bytes.startsWith(QByteArray::fromRawData("\0<\0?", 4))) {
        return QByteArrayLiteral("UTF-16BE");
    }
    const QByteArray declared = declaredEncoding(bytes);
    const QTextCodec *codec = QTextCodec::codecForName(declared);
    // A declaration that can be read byte by byte is not in the wide encoding that it may name.
    if (!codec || codec->name().startsWith("UTF-16") || codec->name().startsWith("UTF-32")) {
        return QByteArrayLiteral("UTF-8");
    }
    return declared;
}

/**
 * Follows the nesting of elements through markup without entities of its own. It looks at nothing but where tags,
 * comments, sections and instructions begin and end, as the parser does up to the first fault.
 */
class Nesting
{
public:
    enum Outcome { Keeps, TooDeep, HasOwnDeclarations };

    explicit Nesting(const QString &xml)
        : m_xml(xml)
    {
    }

    Outcome follow()
    {
        while ((m_position = m_xml.indexOf(u'<', m_position)) >= 0) {
            const QStringView markup = QStringView(m_xml).mid(m_position);
            const QChar kind = markup.size() > 1 ? markup[1] : QChar();
            if (kind == u'/') {
                --m_depth;
                m_position += 2;
            } else if (kind == u'?') {
                skip(2, QLatin1String("?>"));
            } else if (markup.startsWith(QLatin1String("<!--"))) {
                skip(4, QLatin1String("-->"));
            } else if (markup.startsWith(QLatin1String("<![CDATA["))) {
                skip(9, QLatin1String("]]>"));
            } else if (kind == u'!') {
                if (tagEnd(u'[') < 0) {
                    return HasOwnDeclarations;
                }
            } else {
                const int start = m_position;
                const int end = tagEnd(QChar());
                if (m_xml[end - 1] != u'/' && ++m_depth > MRVDomLimits::MaxDepth) {
                    m_position = start;
                    return TooDeep;
                }
            }
        }
        return Keeps;
    }
    int position() const { return m_position; }

private:
    void skip(int length, QLatin1String end)
    {
        const int found = m_xml.indexOf(end, m_position + length);
        m_position = found < 0 ? m_xml.size() : found + end.size();
    }
    // Goes behind the tag and returns where its ">" is, or -1 when a character stands in it outside quotes.
    int tagEnd(QChar forbidden)
    {
        const QChar *const text = m_xml.constData();
        const int size = m_xml.size();
        QChar quote;
        int i = m_position + 1;
        for (; i < size; ++i) {
            const QChar c = text[i];
            if (!quote.isNull()) {
                if (c == quote) {
                    quote = QChar();
                }
            } else if (c == u'>') {
                break;
            } else if (c == u'"' || c == u'\'') {
                quote = c;
            } else if (c == forbidden && !forbidden.isNull()) {
                return -1;
            }
        }
        m_position = qMin(i + 1, size);
        return i;
    }

    const QString &m_xml;
    int m_position = 0;
    int m_depth = 0;
};

/** Entities that are declared elsewhere: nothing is fetched. */
class NoText : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return QStringLiteral(""); }
};

bool isTooLong(qint64 expanded, const QString &xml)
{
    return expanded - xml.size() > MRVDomLimits::MaxExpansion
        || expanded > qint64(xml.size()) * MRVDomLimits::MaxExpansionFactor;
}

/**
 * An upper bound of what the references to parameter entities expand to. The parser expands them within one step, which
 * cannot be stopped half-way.
 */
qint64 parameterExpansion(const QString &xml)
{
    // Beyond this length the parser refuses what a single reference expands to through others.
    constexpr int MaxNested = 4096;
    static const QRegularExpression declaration(
        QStringLiteral("<!ENTITY\\s+%\\s+([^\\s\"'%;]+)\\s+(?:\"([^\"]*)\"|'([^']*)')"));
    static const QRegularExpression reference(QStringLiteral("%([^\\s\"'%;]+);"));
    QHash<QStringView, int> lengths;
    for (auto it = declaration.globalMatch(xml); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QStringView name =
            QStringView(xml).mid(match.capturedStart(1), match.capturedLength(1));
        int &length = lengths[name];
        length = qMax(length, qMax(match.capturedLength(2), match.capturedLength(3)));
    }
    if (lengths.isEmpty()) {
        return 0;
    }
    qint64 expanded = 0;
    for (auto it = reference.globalMatch(xml); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QStringView name =
            QStringView(xml).mid(match.capturedStart(1), match.capturedLength(1));
        if (lengths.contains(name)) {
            expanded += lengths.value(name) + MaxNested;
        }
    }
    return expanded;
}

// How long the markup of the reader's current token is at least.
int markupLength(const QXmlStreamReader &reader)
{
    constexpr int TagLength = 3;
    constexpr int AttributeLength = 4;
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

// The slow way, for texts with declarations of their own, whose entities may hold markup.
bool keepsLimitsExpanded(const QString &xml, MRVDomProblem *problem)
{
    if (isTooLong(parameterExpansion(xml), xml)) {
        problem->message = tooLong();
        setPlace(problem, xml, qMax(0, xml.indexOf(QLatin1String("<!ENTITY"))));
        return false;
    }
    NoText resolver;
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    reader.setEntityResolver(&resolver);
    int depth = 0;
    qint64 expanded = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement;
        depth -= token == QXmlStreamReader::EndElement;
        if (token != QXmlStreamReader::DTD) {
            expanded += markupLength(reader);
        }
        if (depth > MRVDomLimits::MaxDepth) {
            problem->message = tooDeep();
            break;
        }
        if (isTooLong(expanded, xml)) {
            problem->message = tooLong();
            break;
        }
    }
    if (problem->message.isEmpty() && reader.hasError()) {
        problem->message = reader.errorString();
    }
    problem->line = int(reader.lineNumber());
    problem->column = int(reader.columnNumber()) + 1;
    return problem->message.isEmpty();
}

} // namespace

bool mrvDecodeXml(const QByteArray &bytes, QString *text, MRVDomProblem *problem)
{
    const QByteArray encoding = encodingOf(bytes);
    if (MRVCoreUtil::decodeText(bytes, encoding.constData(), text, &problem->message)) {
        return true;
    }
    const QTextCodec *codec =
        QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName(encoding));
    const QString decoded = codec->toUnicode(bytes);
    setPlace(problem, decoded, qMax(0, decoded.indexOf(QChar::ReplacementCharacter)));
    return false;
}

bool mrvKeepsXmlLimits(const QString &xml, MRVDomProblem *problem)
{
    Nesting nesting(xml);
    switch (nesting.follow()) {
    case Nesting::Keeps:
        return true;
    case Nesting::HasOwnDeclarations:
        return keepsLimitsExpanded(xml, problem);
    case Nesting::TooDeep:
        problem->message = tooDeep();
        setPlace(problem, xml, nesting.position());
        return false;
    }
    return false;
}
