#include "gui/mrvsvgtext_p.h"

#include "core/mrvinputlimits.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <zlib.h>

namespace {

MRVError tooLong()
{
    return {MRVErrorKind::TooLarge,
            QCoreApplication::translate("MRVPictureReader", "it holds more than %1 MiB of text")
                .arg(MRVInputLimits::SvgBytes >> 20)};
}

QByteArray inflated(const QByteArray &bytes, MRVErrorSink reason)
{
    constexpr int GzipHeader = 16; // added to the window's bits
    z_stream stream{};
    if (inflateInit2(&stream, MAX_WBITS + GzipHeader) != Z_OK) {
        return QByteArray();
    }
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    QByteArray text;
    char slice[65536];
    int state = Z_OK;
    while (state == Z_OK && text.size() <= MRVInputLimits::SvgBytes) {
        stream.next_out = reinterpret_cast<Bytef *>(slice);
        stream.avail_out = sizeof slice;
        state = inflate(&stream, Z_NO_FLUSH);
        text.append(slice, int(sizeof slice - stream.avail_out));
    }
    inflateEnd(&stream);
    if (state != Z_STREAM_END) {
        if (state == Z_OK) {
            reason.set(tooLong());
        }
        return QByteArray();
    }
    return text;
}

// A name without its prefix.
QString localName(const QString &name)
{
    return name.mid(name.indexOf(u':') + 1);
}

bool isWithin(const QString &reference)
{
    return reference.trimmed().startsWith(u'#');
}

// Without style sheets, fonts and pictures that it would fetch.
QString guardedCss(QString css)
{
    static const QRegularExpression import(QStringLiteral("@import[^;]*;?"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression outside(QStringLiteral("url\\((?!\\s*[\"']?\\s*#)[^)]*\\)?"),
                                            QRegularExpression::CaseInsensitiveOption);
    return css.remove(import).replace(outside, QStringLiteral("none"));
}

// Elements that do things: scripts, handlers of events, and animations that set a reference.
bool isActive(const QString &name, const QXmlStreamAttributes &attributes)
{
    const QString target = attributes.value(QLatin1String("attributeName")).toString();
    return name.compare(QLatin1String("script"), Qt::CaseInsensitive) == 0
        || name == QLatin1String("handler") || name == QLatin1String("listener")
        || localName(target) == QLatin1String("href");
}

bool isOneOf(const QString &name, const char *names)
{
    return QString::fromLatin1(names).split(u' ').contains(name, Qt::CaseInsensitive);
}

// Names of attributes without a prefix; those of HTML within a drawing count, too.
bool isReference(const QString &name)
{
    return isOneOf(name, "href src srcset data base poster action formaction");
}

bool isStyle(const QString &name)
{
    return name.startsWith(QLatin1String("marker"))
        || isOneOf(name, "style fill stroke filter mask clip-path cursor color-profile");
}

// Writes what a reader finds, token by token.
class SvgCopy
{
public:
    SvgCopy(const QByteArray &text, MRVPictureMemory memoryOf)
        : m_memoryOf(memoryOf)
        , m_references(text.count('&'))
        , m_usesLinks(text.contains("xlink:"))
        , m_reader(text)
        , m_writer(&m_copy)
    {
        // Names are copied as they are; Qt's renderer takes any prefix.
        m_reader.setNamespaceProcessing(false);
    }

    QByteArray copy(MRVErrorSink reason);

private:
    bool mayExpand() const;
    void writeToken();
    void startElement();
    void startRoot(const QString &name, const QXmlStreamAttributes &attributes);
    QXmlStreamAttributes allowed(const QXmlStreamAttributes &attributes, bool isImage);
    bool isAllowed(const QString &reference);

    const MRVPictureMemory m_memoryOf;
    const qint64 m_references; // at most; in any encoding
    const bool m_usesLinks;
    bool m_hasRoot = false;
    bool m_isSvg = false;
    QXmlStreamReader m_reader;
    QByteArray m_copy;
    QXmlStreamWriter m_writer;
    qint64 m_pictureBytes = MRVInputLimits::PictureBytes; // what pictures to come may take
};

// Qt's reader makes one token of a text, whatever its references grow to.
bool SvgCopy::mayExpand() const
{
    constexpr qint64 MaxNested = 4096; // the reader's own limit for entities within one
    qint64 longest = MaxNested;
    const QXmlStreamEntityDeclarations entities = m_reader.entityDeclarations();
    for (const QXmlStreamEntityDeclaration &entity : entities) {
        longest = qMax<qint64>(longest, entity.value().size());
    }
    return entities.isEmpty() || m_references * longest <= MRVInputLimits::SvgBytes;
}

QByteArray SvgCopy::copy(MRVErrorSink reason)
{
    while (!m_reader.atEnd()) {
        m_reader.readNext();
        const bool isDtd = m_reader.tokenType() == QXmlStreamReader::DTD;
        if (m_copy.size() > MRVInputLimits::SvgBytes || (isDtd && !mayExpand())) {
            reason.set(tooLong());
            return QByteArray();
        }
        writeToken();
    }
    return m_reader.hasError() || !m_isSvg ? QByteArray() : m_copy;
}

void SvgCopy::writeToken()
{
    switch (m_reader.tokenType()) {
    case QXmlStreamReader::StartDocument:
        m_writer.writeStartDocument();
        break;
    case QXmlStreamReader::StartElement:
        startElement();
        break;
    case QXmlStreamReader::EndElement:
        m_writer.writeEndElement();
        break;
    case QXmlStreamReader::Characters:
        m_writer.writeCharacters(m_reader.text().toString());
        break;
    default:
        break;
    }
}

// Without the names of its spaces, which Qt does not ask for, other programs show no drawing.
void SvgCopy::startRoot(const QString &name, const QXmlStreamAttributes &attributes)
{
    m_hasRoot = true;
    m_isSvg = localName(name) == QLatin1String("svg");
    if (!name.contains(u':') && !attributes.hasAttribute(QLatin1String("xmlns"))) {
        m_writer.writeAttribute(QStringLiteral("xmlns"),
                                QStringLiteral("http://www.w3.org/2000/svg"));
    }
    if (m_usesLinks && !attributes.hasAttribute(QLatin1String("xmlns:xlink"))) {
        m_writer.writeAttribute(QStringLiteral("xmlns:xlink"),
                                QStringLiteral("http://www.w3.org/1999/xlink"));
    }
}

// A picture that is not allowed leaves an empty group.
void SvgCopy::startElement()
{
    const QString name = m_reader.qualifiedName().toString();
    const QString element = localName(name);
    if (isActive(element, m_reader.attributes())) {
        m_reader.skipCurrentElement();
        return;
    }
    const bool isImage = element == QLatin1String("image");
    const QXmlStreamAttributes attributes = allowed(m_reader.attributes(), isImage);
    if (isImage && !attributes.hasAttribute(QLatin1String("xlink:href"))
        && !attributes.hasAttribute(QLatin1String("href"))) {
        m_writer.writeStartElement(QStringLiteral("g"));
        return;
    }
    m_writer.writeStartElement(name);
    if (!m_hasRoot) {
        startRoot(name, attributes);
    }
    m_writer.writeAttributes(attributes);
    if (element == QLatin1String("style")) {
        m_writer.writeCharacters(
            guardedCss(m_reader.readElementText(QXmlStreamReader::SkipChildElements)));
        m_writer.writeEndElement();
    }
}

QXmlStreamAttributes SvgCopy::allowed(const QXmlStreamAttributes &attributes, bool isImage)
{
    QXmlStreamAttributes kept;
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QString name = localName(attribute.qualifiedName().toString());
        const QString value = attribute.value().toString();
        if (isReference(name)) {
            if (isImage ? isAllowed(value) : isWithin(value)) {
                kept.append(attribute);
            }
        } else if (isStyle(name)) {
            kept.append(attribute.qualifiedName().toString(), guardedCss(value));
        } else if (!name.startsWith(QLatin1String("on"), Qt::CaseInsensitive)) {
            kept.append(attribute);
        }
    }
    return kept;
}

// Qt's renderer takes what follows the last "base64,", and a file where that holds no picture.
bool SvgCopy::isAllowed(const QString &reference)
{
    const QLatin1String mark("base64,");
    const int at = reference.lastIndexOf(mark);
    if (at < 0 || !reference.trimmed().startsWith(QLatin1String("data:"))) {
        return false;
    }
    const QByteArray bytes = QByteArray::fromBase64(reference.mid(at + mark.size()).toLatin1());
    const qint64 memory = m_memoryOf(bytes);
    m_pictureBytes -= memory;
    return memory >= 0 && m_pictureBytes >= 0;
}

} // namespace

QByteArray mrvGuardedSvg(const QByteArray &bytes, MRVPictureMemory memoryOf, MRVErrorSink reason)
{
    const bool isCompressed = bytes.startsWith("\x1f\x8b");
    if (!isCompressed && bytes.size() > MRVInputLimits::SvgBytes) {
        reason.set(tooLong());
        return QByteArray();
    }
    const QByteArray text = isCompressed ? inflated(bytes, reason) : bytes;
    return text.isEmpty() ? QByteArray() : SvgCopy(text, memoryOf).copy(reason);
}
