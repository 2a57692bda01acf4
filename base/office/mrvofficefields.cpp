#include "office/mrvofficefields_p.h"

#include "office/mrvofficexml_p.h"

#include <QHash>
#include <QRegularExpression>
#include <QVector>

namespace {

// As XML; a place of the document is a link there, too.
QByteArray instructionOf(const QByteArray &xml)
{
    const QString address = mrvFieldAddress(QString::fromUtf8(mrvWithoutEntities(xml)));
    return address.isEmpty()
        ? QByteArray()
        : " HYPERLINK \"" + address.toHtmlEscaped().toUtf8().replace("&quot;", "%22") + "\" ";
}

QByteArray mark(const char *type)
{
    return QByteArray("<w:r><w:fldChar w:fldCharType=\"") + type + "\"/></w:r>";
}

/** Writes the fields of a text again. */
class Writer
{
public:
    explicit Writer(const QByteArray &xml)
        : m_xml(xml)
    {
    }

    QByteArray written()
    {
        collect();
        MRVOfficeTag tag;
        for (MRVOfficeTags tags(m_xml); tags.next(&tag);) {
            const auto text = m_instructions.constFind(tag.begin);
            if (tag.is("w:fldSimple")) {
                writeSimple(tag);
            } else if (text != m_instructions.constEnd()) {
                m_written.append(m_xml.constData() + m_done, tag.end - m_done);
                m_written += *text;
                m_done = m_xml.indexOf('<', tag.end);
            }
        }
        return m_done > 0 ? m_written + m_xml.mid(m_done) : m_xml;
    }

private:
    /** One that may have its instruction in several pieces. */
    struct Field
    {
        QByteArray instruction;
        QVector<int> pieces; // where their tags begin
        bool hasInstruction = false; // all of it
    };

    void collect()
    {
        QVector<Field> open;
        MRVOfficeTag tag;
        for (MRVOfficeTags tags(m_xml); tags.next(&tag);) {
            if (tag.is("w:fldChar") && tag.kind != MRVOfficeTag::End) {
                const QByteArray type =
                    mrvOfficeAttribute(m_xml.mid(tag.begin, tag.end - tag.begin), "w:fldCharType");
                if (type == "begin") {
                    open.append(Field());
                } else if (!open.isEmpty()) {
                    finish(&open.last());
                    open.resize(open.size() - (type == "end" ? 1 : 0));
                }
            } else if (tag.is("w:instrText") && tag.kind == MRVOfficeTag::Start
                       && !open.isEmpty()) {
                open.last().pieces.append(tag.begin);
                open.last().instruction +=
                    m_xml.mid(tag.end, m_xml.indexOf('<', tag.end) - tag.end);
            }
        }
    }

    // The first piece of a link gets all of it.
    void finish(Field *field)
    {
        const QByteArray link =
            field->hasInstruction ? QByteArray() : instructionOf(field->instruction);
        field->hasInstruction = true;
        for (int i = 0; i < field->pieces.size() && !link.isEmpty(); ++i) {
            m_instructions.insert(field->pieces.at(i), i == 0 ? link : QByteArray());
        }
    }

    void writeSimple(const MRVOfficeTag &tag)
    {
        m_written.append(m_xml.constData() + m_done, tag.begin - m_done);
        m_done = tag.end;
        if (tag.kind == MRVOfficeTag::Start) {
            const QByteArray link = instructionOf(
                mrvOfficeAttribute(m_xml.mid(tag.begin, tag.end - tag.begin), "w:instr"));
            m_simple.append(!link.isEmpty());
            if (!link.isEmpty()) {
                m_written += mark("begin") + "<w:r><w:instrText>" + link + "</w:instrText></w:r>"
                    + mark("separate");
            }
        } else if (tag.kind == MRVOfficeTag::End && !m_simple.isEmpty() && m_simple.takeLast()) {
            m_written += mark("end");
        }
    }

    const QByteArray &m_xml;
    QByteArray m_written;
    int m_done = 0;
    QHash<int, QByteArray> m_instructions; // by where the tag of a piece begins
    QVector<bool> m_simple; // whether each that is open is a link
};

} // namespace

QString mrvFieldAddress(const QString &instruction)
{
    static const QRegularExpression link(
        QStringLiteral("^\\s*HYPERLINK\\s+(?:\"([^\"]*)\"|([^\\s\\\\\"]+))?"
                       "(?:.*?\\\\{1,2}l\\s+\"([^\"]*)\")?"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression reference(
        QStringLiteral("^\\s*(?:REF|NOTEREF)\\s+([^\\s\\\\\"]+)\\s.*\\\\h"),
        QRegularExpression::CaseInsensitiveOption);
    QRegularExpressionMatch match = link.match(instruction);
    const QString address = match.captured(1) + match.captured(2);
    QString place = match.captured(3);
    if (!match.hasMatch()) {
        place = reference.match(instruction).captured(1);
    }
    return place.isEmpty() ? address : address + u'#' + place;
}

QByteArray mrvWithPlainFields(const QByteArray &xml)
{
    return Writer(xml).written();
}
