#include "dom/mrvdominput_p.h"

#include "core/mrvcoreutil.h"
#include "core/mrvxmltext.h"
#include "dom/mrvdomlimits.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTextCodec>
#include <QXmlStreamEntityResolver>
#include <QXmlStreamReader>

#include <algorithm>

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

// The encoding that the XML declaration names, as XML 1.0 (section 4.3.3) spells it; empty without
// one.
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
    if (bytes.startsWith(QByteArray::fromRawData("<\0", 2))) {
        return QByteArrayLiteral("UTF-16LE");
    }
    if (bytes.startsWith(QByteArray::fromRawData("\0<", 2))) {
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
 * Follows the nesting of elements through markup without entities of its own. It looks at nothing
 * but where tags, comments, sections and instructions begin and end, as the parser does up to the
 * first fault.
 */
class Nesting
{
public:
    enum Outcome { Keeps, TooDeep, TooManyAttributes, RepeatedAttribute, HasOwnDeclarations };
    enum Declarations { Report, Skip };

    explicit Nesting(const QString &xml, Declarations declarations = Report)
        : m_xml(xml)
        , m_declarations(declarations)
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
                    if (m_declarations == Report) {
                        return HasOwnDeclarations;
                    }
                    skipDeclarations();
                }
            } else {
                const int start = m_position;
                const int end = tagEnd(QChar());
                if (m_names.size() > MRVDomLimits::MaxAttributes || hasRepeatedName()) {
                    m_position = start;
                    return m_names.size() > MRVDomLimits::MaxAttributes ? TooManyAttributes
                                                                        : RepeatedAttribute;
                }
                if (m_xml[end - 1] != u'/') {
                    m_deepest = qMax(m_deepest, ++m_depth);
                }
                if (m_depth > MRVDomLimits::MaxDepth) {
                    m_position = start;
                    return TooDeep;
                }
            }
        }
        return Keeps;
    }
    int position() const { return m_position; }
    int deepest() const { return m_deepest; }
    /** The document type's own declarations. */
    QStringView declarations() const { return m_ownDeclarations; }

private:
    // From the "<" of the document type to behind the "]" that ends its declarations.
    void skipDeclarations()
    {
        const int start = m_xml.indexOf(u'[', m_position) + 1;
        m_position = start;
        while (m_position < m_xml.size() && m_xml[m_position] != u']') {
            const QStringView markup = QStringView(m_xml).mid(m_position);
            if (markup.startsWith(QLatin1String("<!--"))) {
                skip(4, QLatin1String("-->"));
            } else if (markup.startsWith(QLatin1String("<?"))) {
                skip(2, QLatin1String("?>"));
            } else if (markup.startsWith(u'<')) {
                tagEnd(QChar());
            } else {
                ++m_position;
            }
        }
        m_ownDeclarations = QStringView(m_xml).mid(start, m_position - start);
    }
    void skip(int length, QLatin1String end)
    {
        const int found = m_xml.indexOf(end, m_position + length);
        m_position = found < 0 ? m_xml.size() : found + end.size();
    }
    // Goes behind the tag and returns where its ">" is, or -1 when a character stands in it outside
    // quotes.
    int tagEnd(QChar forbidden)
    {
        const QChar *const text = m_xml.constData();
        const int size = m_xml.size();
        QChar quote;
        int i = m_position + 1;
        m_names.clear();
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
            } else if (c == u'=') {
                m_names.append(nameBefore(i));
            } else if (c == forbidden && !forbidden.isNull()) {
                return -1;
            }
        }
        m_position = qMin(i + 1, size);
        return i;
    }

    QStringView nameBefore(int equals) const
    {
        int end = equals;
        while (m_xml[end - 1].isSpace()) {
            --end;
        }
        int start = end;
        while (start > m_position && !m_xml[start - 1].isSpace() && m_xml[start - 1] != u'"'
               && m_xml[start - 1] != u'\'') {
            --start;
        }
        return QStringView(m_xml).mid(start, end - start);
    }
    // Qt's parser would keep one of two attributes with a name.
    bool hasRepeatedName()
    {
        if (m_names.size() < 2) {
            return false;
        }
        std::sort(m_names.begin(), m_names.end());
        return std::adjacent_find(m_names.cbegin(), m_names.cend()) != m_names.cend();
    }

    const QString &m_xml;
    QVector<QStringView> m_names; // of the attributes in the last tag
    Declarations m_declarations;
    QStringView m_ownDeclarations;
    int m_position = 0;
    int m_depth = 0;
    int m_deepest = 0;
};

QString faultOf(Nesting::Outcome outcome)
{
    switch (outcome) {
    case Nesting::TooManyAttributes:
        return Messages::tr("an element has too many attributes");
    case Nesting::RepeatedAttribute:
        return Messages::tr("an element has two attributes of one name");
    default:
        return tooDeep();
    }
}

/** Entities that are declared elsewhere: nothing is fetched. */
class NoText : public QXmlStreamEntityResolver
{
public:
    QString resolveUndeclaredEntity(const QString &) override { return QStringLiteral(""); }
};

// Qt's parser refuses entities that expand to more than this through others.
constexpr int MaxNestedExpansion = 4096;

bool isTooLong(qint64 expanded, const QString &xml)
{
    return expanded - xml.size() > MRVDomLimits::MaxExpansion
        || expanded > qint64(xml.size()) * MRVDomLimits::MaxExpansionFactor;
}

/**
 * An upper bound of what the references to parameter entities expand to. The parser expands them
 * within one step, which cannot be stopped half-way.
 */
qint64 parameterExpansion(const QString &xml)
{
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
    static const QRegularExpression nesting(
        QStringLiteral("<!ENTITY\\s+%\\s+[^\\s\"'%;]+\\s+(?:\"[^\"]*(?:%|&#)|'[^']*(?:%|&#))"));
    const int nested = xml.contains(nesting) ? MaxNestedExpansion : 0;
    qint64 expanded = 0;
    for (auto it = reference.globalMatch(xml); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QStringView name =
            QStringView(xml).mid(match.capturedStart(1), match.capturedLength(1));
        if (lengths.contains(name)) {
            expanded += lengths.value(name) + nested;
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

// The first reference to an entity in another file: the parser would leave it out, and mix up the
// text around it.
QRegularExpressionMatch externalReference(const QXmlStreamEntityDeclarations &declarations,
                                          const QString &xml)
{
    QSet<QStringRef> external;
    for (const QXmlStreamEntityDeclaration &declaration : declarations) {
        if (!declaration.systemId().isEmpty() && declaration.notationName().isEmpty()) {
            external.insert(declaration.name());
        }
    }
    static const QRegularExpression reference(QStringLiteral("&([^\\s&;<#]+);"));
    for (auto it = reference.globalMatch(xml); !external.isEmpty() && it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (external.contains(match.capturedRef(1))) {
            return match;
        }
    }
    return QRegularExpressionMatch();
}

/**
 * Whether a text keeps the limits whatever its entities hold, judged from above. For texts that
 * Qt's parser takes and its stream reader does not: XML 1.1, some declarations.
 */
bool surelyKeepsLimits(const Nesting &nesting, const QString &xml)
{
    static const QRegularExpression needsReader(
        QStringLiteral("%|<!ENTITY\\s+[^\\s%]+\\s+(SYSTEM|PUBLIC)\\s"));
    const QString declarations = nesting.declarations().toString();
    if (declarations.contains(needsReader)) {
        return false;
    }
    // Each reference may expand to all declarations and what the parser allows of nested entities
    // beyond.
    const qint64 longest = declarations.size() + MaxNestedExpansion;
    const int tags = declarations.count(u'<') + declarations.count(QLatin1String("&#"));
    return nesting.deepest() + tags <= MRVDomLimits::MaxDepth
        && !isTooLong(xml.count(u'&') * longest + xml.size(), xml);
}

// The slow way, for texts with declarations of their own, whose entities may hold markup.
bool keepsLimitsExpanded(const QString &xml, MRVDomProblem *problem)
{
    const auto refuse = [&](const QString &message, int position) {
        problem->message = message;
        setPlace(problem, xml, qBound(0, position, xml.size()));
        return false;
    };
    Nesting nesting(xml, Nesting::Skip);
    const Nesting::Outcome outcome = nesting.follow();
    if (outcome != Nesting::Keeps) {
        return refuse(faultOf(outcome), nesting.position());
    }
    const int start = qMax(0, xml.indexOf(QLatin1String("<!DOCTYPE")));
    const QString declarations = nesting.declarations().toString();
    // The parser's time grows with the square of their number.
    if (declarations.count(QLatin1String("<!")) > MRVDomLimits::MaxDeclarations
        || declarations.size() > MRVDomLimits::MaxDeclarationLength) {
        return refuse(Messages::tr("the document type has too many declarations"), start);
    }
    if (isTooLong(parameterExpansion(xml), xml)) {
        return refuse(tooLong(), start);
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
        if (token == QXmlStreamReader::DTD) {
            const QRegularExpressionMatch external =
                externalReference(reader.entityDeclarations(), xml);
            if (external.hasMatch()) {
                return refuse(
                    Messages::tr(
                        "the entity '%1' stands in another file, and other files are not read")
                        .arg(external.captured(1)),
                    external.capturedStart());
            }
        } else {
            expanded += markupLength(reader);
        }
        const int position = int(reader.characterOffset());
        if (depth > MRVDomLimits::MaxDepth) {
            return refuse(tooDeep(), position - 1);
        }
        if (isTooLong(expanded, xml)) {
            return refuse(tooLong(), position - 1);
        }
    }
    if (reader.hasError() && !surelyKeepsLimits(nesting, xml)) {
        problem->message = reader.errorString();
        problem->line = int(reader.lineNumber());
        problem->column = int(reader.columnNumber()) + 1;
        return false;
    }
    return true;
}

// What a reference to a character stands for, or nothing for one that XML forbids.
QString referenced(QStringView number)
{
    const bool isHex = number.startsWith(u'x');
    bool ok = false;
    const uint code = number.mid(isHex ? 1 : 0).toString().toUInt(&ok, isHex ? 16 : 10);
    return ok && code <= QChar::LastValidCodePoint ? mrvXmlText(QString::fromUcs4(&code, 1))
                                                   : QString();
}

/**
 * The text with the references to characters that Qt's parser gets wrong put right: those beyond
 * U+FFFF, of which it takes the lower half, and those that XML forbids, which go.
 */
QString withSoundReferences(const QString &xml)
{
    static constexpr struct
    {
        const char *start;
        const char *end;
    } verbatim[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
    QString result;
    int done = 0;
    for (int i = 0; i < xml.size(); ++i) {
        const QStringView rest = QStringView(xml).mid(i);
        if (rest[0] == u'<') {
            for (const auto &section : verbatim) {
                if (rest.startsWith(QLatin1String(section.start))) {
                    const int end = xml.indexOf(QLatin1String(section.end), i);
                    i = end < 0 ? xml.size() : end;
                }
            }
        } else if (rest.startsWith(QLatin1String("&#"))) {
            constexpr int MaxReference = 16;
            const int length = int(rest.left(MaxReference).indexOf(u';'));
            const QString character = length < 0 ? QString() : referenced(rest.mid(2, length - 2));
            if (length > 0 && (character.isEmpty() || character.size() > 1)) {
                result += xml.midRef(done, i - done) + character;
                done = i + length + 1;
            }
        }
    }
    return done == 0 ? xml : result + xml.midRef(done);
}

} // namespace

bool mrvDecodeXml(const QByteArray &bytes, QString *text, MRVDomProblem *problem)
{
    const QByteArray encoding = encodingOf(bytes);
    if (MRVCoreUtil::decodeText(bytes, encoding.constData(), text, &problem->message)) {
        return true;
    }
    // The longest beginning that can be read ends where the fault is.
    const QTextCodec *codec =
        QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName(encoding));
    const auto decoded = [&](int length) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString beginning = codec->toUnicode(bytes.constData(), length, &state);
        return state.invalidChars == 0 ? beginning : QString();
    };
    int sound = 0;
    for (int step = bytes.size(); step > 0; step /= 2) {
        while (sound + step <= bytes.size() && !decoded(sound + step).isNull()) {
            sound += step;
        }
    }
    const QString beginning = decoded(sound);
    setPlace(problem, beginning, beginning.size());
    return false;
}

QString mrvSoundXml(const QString &xml)
{
    QString sound = mrvXmlText(xml);
    if (sound.startsWith(QChar::ByteOrderMark)) {
        sound.remove(0, 1);
    }
    if (sound.contains(u'\r')) {
        sound.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        sound.replace(u'\r', u'\n');
    }
    return sound.contains(QLatin1String("&#")) ? withSoundReferences(sound) : sound;
}

bool mrvKeepsXmlLimits(const QString &xml, MRVDomProblem *problem)
{
    Nesting nesting(xml);
    const Nesting::Outcome outcome = nesting.follow();
    if (outcome == Nesting::HasOwnDeclarations) {
        return keepsLimitsExpanded(xml, problem);
    }
    if (outcome == Nesting::Keeps) {
        return true;
    }
    problem->message = faultOf(outcome);
    setPlace(problem, xml, nesting.position());
    return false;
}
