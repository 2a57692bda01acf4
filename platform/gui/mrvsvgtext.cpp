#include "gui/mrvsvgtext_p.h"

#include "core/mrvinputlimits.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <zlib.h>

namespace {

QString tooLong()
{
    return QCoreApplication::translate("MRVPictureReader", "it holds more than %1 MiB of text")
        .arg(MRVInputLimits::SvgBytes >> 20);
}

QByteArray inflated(const QByteArray &bytes, QString *reason)
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
            *reason = tooLong();
        }
        return QByteArray();
    }
    return text;
}

// Writes what a reader finds, token by token.
class SvgCopy
{
public:
    SvgCopy(const QByteArray &text, MRVPictureMemory memoryOf)
        : m_memoryOf(memoryOf)
        , m_references(text.count('&'))
        , m_reader(text)
        , m_writer(&m_copy)
    {
        // Names are copied as they are; Qt's renderer takes any prefix.
        m_reader.setNamespaceProcessing(false);
    }

    QByteArray copy(QString *reason);

private:
    bool mayExpand() const;
    void writeToken();
    void startElement();
    bool isAllowed(const QString &reference);

    const MRVPictureMemory m_memoryOf;
    const qint64 m_references; // at most; in any encoding
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

QByteArray SvgCopy::copy(QString *reason)
{
    while (!m_reader.atEnd()) {
        m_reader.readNext();
        const bool isDtd = m_reader.tokenType() == QXmlStreamReader::DTD;
        if (m_copy.size() > MRVInputLimits::SvgBytes || (isDtd && !mayExpand())) {
            *reason = tooLong();
            return QByteArray();
        }
        writeToken();
    }
    return m_reader.hasError() ? QByteArray() : m_copy;
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

// A picture that is not allowed leaves an empty group.
void SvgCopy::startElement()
{
    const QString name = m_reader.qualifiedName().toString();
    const QXmlStreamAttributes attributes = m_reader.attributes();
    const bool isImage = name.mid(name.indexOf(QLatin1Char(':')) + 1) == QLatin1String("image");
    if (isImage && !isAllowed(attributes.value(QLatin1String("xlink:href")).toString())) {
        m_writer.writeStartElement(QStringLiteral("g"));
        return;
    }
    m_writer.writeStartElement(name);
    for (const QXmlStreamAttribute &attribute : attributes) {
        m_writer.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    }
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

QByteArray mrvGuardedSvg(const QByteArray &bytes, MRVPictureMemory memoryOf, QString *reason)
{
    const bool isCompressed = bytes.startsWith("\x1f\x8b");
    if (!isCompressed && bytes.size() > MRVInputLimits::SvgBytes) {
        *reason = tooLong();
        return QByteArray();
    }
    const QByteArray text = isCompressed ? inflated(bytes, reason) : bytes;
    return text.isEmpty() ? QByteArray() : SvgCopy(text, memoryOf).copy(reason);
}
