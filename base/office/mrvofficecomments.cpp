#include "office/mrvofficecomments_p.h"

#include "office/mrvofficexml_p.h"
#include "util/mrvescape.h"

#include <QRegularExpression>
#include <QSet>
#include <QVector>
#include <QXmlStreamReader>

namespace {

// A mark is one of these, the bytes of a comment's name, four bits a character, and MarkEnd. None
// of them is a letter, so that pandoc leaves them out of the names that it makes of headings.
constexpr ushort BeginMark = 0xfdd4;
constexpr ushort EndMark = 0xfdd5;
constexpr ushort MarkEnd = 0xfdd6;
constexpr ushort FirstDigit = 0xfde0;

bool isDigit(QChar character)
{
    return character >= QChar(FirstDigit) && character < QChar(FirstDigit + 16);
}

QString markOf(ushort kind, const QByteArray &name)
{
    QString text{QChar(kind)};
    for (const char byte : name) {
        text += QChar(FirstDigit + (uchar(byte) >> 4));
        text += QChar(FirstDigit + (uchar(byte) & 15));
    }
    return text + QChar(MarkEnd);
}

// Without the characters that have a meaning in pages of the converter.
QString plain(const QString &text)
{
    static const QRegularExpression marks(QStringLiteral("[\\x{fdd0}-\\x{fdef}]"));
    return QString(text).remove(marks).trimmed();
}

// What a tag within a comment shows.
QString shownBy(const QStringRef &name)
{
    constexpr struct
    {
        const char *name;
        const char *shown;
    } rows[] = {{"w:p", "\n"},      {"text:p", "\n"},          {"w:br", "\n"}, {"w:tab", "\t"},
                {"text:tab", "\t"}, {"text:line-break", "\n"}, {"text:s", " "}};
    for (const auto &row : rows) {
        if (name == QLatin1String(row.name)) {
            return QLatin1String(row.shown);
        }
    }
    return QString();
}

// Reads up to the end of the element that has just begun.
MRVOfficeComment readComment(QXmlStreamReader *reader)
{
    MRVOfficeComment comment;
    int texts = 0; // elements with text around this place
    for (int depth = 1; depth > 0 && !reader->atEnd();) {
        reader->readNext();
        const QStringRef name = reader->qualifiedName();
        const bool holdsText = name == QLatin1String("w:t") || name == QLatin1String("text:p");
        if (reader->isStartElement() && name == QLatin1String("dc:creator")) {
            comment.author = plain(reader->readElementText());
        } else if (reader->isStartElement() && name == QLatin1String("dc:date")) {
            comment.date = plain(reader->readElementText());
        } else if (reader->isStartElement()) {
            ++depth;
            texts += holdsText ? 1 : 0;
            comment.text += shownBy(name);
        } else if (reader->isEndElement()) {
            --depth;
            texts -= holdsText ? 1 : 0;
        } else if (reader->isCharacters() && texts > 0) {
            comment.text += reader->text();
        }
    }
    comment.text = plain(comment.text);
    return comment;
}

/** Puts marks into a text of a DOCX. */
class DocxMarker
{
public:
    explicit DocxMarker(const QByteArray &xml)
        : m_xml(xml)
    {
    }

    QByteArray marked()
    {
        MRVOfficeTag tag;
        for (MRVOfficeTags tags(m_xml); tags.next(&tag);) {
            if (tag.is("w:p") && tag.kind == MRVOfficeTag::Start) {
                ++m_paragraphs;
            } else if ((tag.is("w:r") && tag.kind == MRVOfficeTag::Start)
                       || (tag.is("w:p") && tag.kind == MRVOfficeTag::End)) {
                writePending(tag.begin);
                m_paragraphs -= tag.is("w:p") ? 1 : 0;
            } else if (tag.is("w:del") || tag.is("w:moveFrom")) {
                m_deleted += tag.kind == MRVOfficeTag::Start ? 1
                    : tag.kind == MRVOfficeTag::End          ? -1
                                                             : 0;
            } else if (tag.is("w:fldChar")) {
                readField(tag);
            } else if (tag.kind != MRVOfficeTag::End) {
                readMark(tag);
            }
        }
        return m_done > 0 ? m_marked + m_xml.mid(m_done) : m_xml;
    }

private:
    QByteArray attributeOf(const MRVOfficeTag &tag, const char *name) const
    {
        return mrvOfficeAttribute(m_xml.mid(tag.begin, tag.end - tag.begin), name);
    }

    // A comment without a range has a reference alone, after the text that it is about.
    void readMark(const MRVOfficeTag &tag)
    {
        const bool begins = tag.is("w:commentRangeStart");
        const bool refers = tag.is("w:commentReference");
        if (!begins && !refers && !tag.is("w:commentRangeEnd")) {
            return;
        }
        const QByteArray name = attributeOf(tag, "w:id");
        const bool isNew = begins || (refers && !m_begun.contains(name));
        if (isNew) {
            m_begun.insert(name);
            m_pending += mrvCommentBegin(name).toUtf8();
        }
        if (!begins && (isNew || !refers)) {
            m_pending += mrvCommentEnd(name).toUtf8();
        }
    }

    // A mark in the instruction of a field would be a part of it.
    void readField(const MRVOfficeTag &tag)
    {
        const QByteArray type = attributeOf(tag, "w:fldCharType");
        if (type == "begin") {
            m_instructions.append(true);
        } else if (!m_instructions.isEmpty() && type == "separate") {
            m_instructions.last() = false;
        } else if (!m_instructions.isEmpty() && type == "end") {
            m_instructions.removeLast();
        }
    }

    // Where text may be: marks may also stand between paragraphs, or in what is left out.
    void writePending(int at)
    {
        if (m_pending.isEmpty() || m_paragraphs == 0 || m_deleted > 0
            || m_instructions.contains(true)) {
            return;
        }
        m_marked.append(m_xml.constData() + m_done, at - m_done);
        m_marked += "<w:r><w:t>" + m_pending + "</w:t></w:r>";
        m_pending.clear();
        m_done = at;
    }

    const QByteArray &m_xml;
    QByteArray m_marked;
    int m_done = 0;
    QByteArray m_pending; // marks
    QSet<QByteArray> m_begun;
    int m_paragraphs = 0; // around this place
    int m_deleted = 0;
    QVector<bool> m_instructions; // whether each field around this place is in its own
};

// The names of the comments that have an end of their own.
QSet<QByteArray> endedInOdt(const QByteArray &xml)
{
    QSet<QByteArray> names;
    MRVOfficeTag tag;
    for (MRVOfficeTags tags(xml); tags.next(&tag);) {
        if (tag.is("office:annotation-end")) {
            names.insert(
                mrvOfficeAttribute(xml.mid(tag.begin, tag.end - tag.begin), "office:name"));
        }
    }
    return names;
}

QString attribute(const char *name, const QString &value)
{
    return value.isEmpty()
        ? QString()
        : QStringLiteral(" %1=\"%2\"").arg(QLatin1String(name), MRV::escape(value));
}

/** Puts elements in the place of marks. */
class ElementWriter
{
public:
    ElementWriter(const QString &html, MRVOfficeComments *comments)
        : m_html(html)
        , m_comments(*comments)
    {
    }

    // Marks in tags and in the head repeat those of the text.
    QString written()
    {
        const int body = m_html.indexOf(QLatin1String("<body"));
        bool isInTag = false;
        for (int at = 0; at < m_html.size(); ++at) {
            const QChar character = m_html.at(at);
            isInTag = character == u'<' || (isInTag && character != u'>');
            if (character == QChar(BeginMark) || character == QChar(EndMark)) {
                at = writeMark(at, !isInTag && at > body) - 1;
            }
        }
        return m_done > 0 ? m_written + m_html.midRef(m_done) : m_html;
    }

private:
    // Returns where the mark ends.
    int writeMark(int begin, bool isShown)
    {
        QByteArray name;
        int end = begin + 1;
        for (; end + 1 < m_html.size() && isDigit(m_html.at(end)) && isDigit(m_html.at(end + 1));
             end += 2) {
            name +=
                char((m_html.at(end).unicode() & 15) << 4 | (m_html.at(end + 1).unicode() & 15));
        }
        m_written += m_html.midRef(m_done, begin - m_done);
        m_done = end + 1;
        if (isShown) {
            writeElement(m_html.at(begin).unicode(), name);
        }
        return m_done;
    }

    void writeElement(ushort kind, const QByteArray &name)
    {
        if (kind == BeginMark && m_comments.contains(name)) {
            m_numbers.insert(name, m_numbers.size() + 1);
            const MRVOfficeComment comment = m_comments.take(name);
            m_written += QLatin1String("<mrv-comment")
                + attribute("begin", QString::number(m_numbers.value(name)))
                + attribute("author", comment.author) + attribute("date", comment.date)
                + attribute("text", comment.text) + QLatin1String("></mrv-comment>");
        } else if (kind == EndMark && m_numbers.contains(name)) {
            m_written += QLatin1String("<mrv-comment")
                + attribute("end", QString::number(m_numbers.value(name)))
                + QLatin1String("></mrv-comment>");
        }
    }

    const QString &m_html;
    MRVOfficeComments &m_comments;
    QString m_written;
    int m_done = 0;
    QMap<QByteArray, int> m_numbers; // of those that have begun
};

} // namespace

QString mrvCommentBegin(const QByteArray &name)
{
    return markOf(BeginMark, name);
}

QString mrvCommentEnd(const QByteArray &name)
{
    return markOf(EndMark, name);
}

MRVOfficeComments mrvCommentsOfDocx(const QByteArray &xml)
{
    MRVOfficeComments comments;
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.qualifiedName() == QLatin1String("w:comment")) {
            const QXmlStreamAttributes attributes = reader.attributes();
            const auto value = [&attributes](const char *name) {
                return plain(attributes.value(QLatin1String(name)).toString());
            };
            MRVOfficeComment comment = readComment(&reader);
            comment.author = value("w:author");
            comment.date = value("w:date");
            comments.insert(value("w:id").toUtf8(), comment);
        }
    }
    return comments;
}

QByteArray mrvWithMarksOfDocxComments(const QByteArray &xml)
{
    return DocxMarker(xml).marked();
}

QByteArray mrvWithMarksOfOdtComments(const QByteArray &xml, MRVOfficeComments *comments)
{
    const QSet<QByteArray> ended = endedInOdt(xml);
    QByteArray marked;
    int done = 0;
    int begin = -1; // of the comment around this place
    QByteArray name;
    MRVOfficeTag tag;
    for (MRVOfficeTags tags(xml); tags.next(&tag);) {
        const bool isEnd = tag.is("office:annotation-end");
        if (!isEnd && !tag.is("office:annotation")) {
            continue;
        }
        if (tag.kind != MRVOfficeTag::End) {
            name = mrvOfficeAttribute(xml.mid(tag.begin, tag.end - tag.begin), "office:name");
            marked.append(xml.constData() + done, tag.begin - done);
            done = isEnd ? tag.end : tag.begin;
            marked += isEnd ? mrvCommentEnd(name).toUtf8() : QByteArray();
            begin = isEnd ? -1 : tag.begin;
        } else if (!isEnd && begin >= 0) {
            QXmlStreamReader reader(xml.mid(begin, tag.end - begin));
            reader.setNamespaceProcessing(false);
            reader.readNextStartElement();
            const bool isPoint = !ended.contains(name);
            name = isPoint ? '#' + QByteArray::number(comments->size()) : name;
            comments->insert(name, readComment(&reader));
            marked += mrvCommentBegin(name).toUtf8()
                + (isPoint ? mrvCommentEnd(name).toUtf8() : QByteArray());
            done = tag.end;
            begin = -1;
        }
    }
    return done > 0 ? marked + xml.mid(done) : xml;
}

QString mrvWithComments(const QString &html, MRVOfficeComments *comments)
{
    static const QRegularExpression alone(
        QStringLiteral("<p>((?:<mrv-comment[^>]*></mrv-comment>)+)</p>"));
    // A blank paragraph stays one.
    return ElementWriter(html, comments)
        .written()
        .replace(alone, QStringLiteral("<p>\\1<br /></p>"));
}
