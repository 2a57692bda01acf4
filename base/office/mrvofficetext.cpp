#include "office/mrvofficetext_p.h"

#include "office/mrvofficeboxes_p.h"
#include "office/mrvofficefields_p.h"
#include "office/mrvofficexml_p.h"
#include "util/mrvescape.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <cctype>

namespace {

constexpr QChar MarkBegin(0xfdd0);
constexpr QChar MarkEnd(0xfdd1);

// The start of a tag with that name and the end of the tag; false without another one.
bool findTag(const QByteArray &xml, const QByteArray &start, int from, int *begin, int *end)
{
    for (*begin = xml.indexOf(start, from); *begin >= 0; *begin = xml.indexOf(start, *begin + 1)) {
        const QByteArray next = xml.mid(*begin + start.size(), 1);
        *end = xml.indexOf('>', *begin) + 1;
        if (*end > 0 && (next == ">" || next == "/" || next == " ")) {
            return true;
        }
    }
    return false;
}

// Formulas are in folders, whose names may end with a slash.
QByteArray withPlainFolders(const QByteArray &xml)
{
    QByteArray plain;
    int done = 0;
    int begin = 0;
    int end = 0;
    while (findTag(xml, "<draw:object", done, &begin, &end)) {
        QByteArray tag = xml.mid(begin, end - begin);
        const QByteArray folder = mrvOfficeAttribute(tag, "xlink:href");
        if (folder.endsWith('/')) {
            tag.replace('"' + folder + '"', '"' + folder.chopped(1) + '"');
        }
        plain += xml.mid(done, begin - done) + tag;
        done = end;
    }
    return plain + xml.mid(done);
}

// Headings in cells become paragraphs: pandoc leaves them out.
QByteArray withoutHeadingsInCells(const QByteArray &xml)
{
    QByteArray plain;
    int done = 0;
    int cells = 0; // around this place
    MRVOfficeTag tag;
    for (MRVOfficeTags tags(xml); tags.next(&tag);) {
        if (tag.is("table:table-cell") && tag.kind != MRVOfficeTag::Empty) {
            cells += tag.kind == MRVOfficeTag::Start ? 1 : -1;
        } else if (cells > 0 && tag.is("text:h")) {
            const int letter = tag.begin + (tag.kind == MRVOfficeTag::End ? 7 : 6);
            plain += xml.mid(done, letter - done) + 'p';
            done = letter + 1;
        }
    }
    return done > 0 ? plain + xml.mid(done) : xml;
}

bool isSkipped(const QStringRef &name)
{
    static const QStringList names{QStringLiteral("office:annotation"),
                                   QStringLiteral("text:tracked-changes"),
                                   QStringLiteral("text:note-citation"),
                                   QStringLiteral("text:table-of-content"),
                                   QStringLiteral("text:alphabetical-index"),
                                   QStringLiteral("text:bibliography-mark"),
                                   QStringLiteral("svg:title"),
                                   QStringLiteral("svg:desc"),
                                   QStringLiteral("office:forms"),
                                   QStringLiteral("annotation"),
                                   QStringLiteral("math:annotation"),
                                   QStringLiteral("w:moveFrom"),
                                   QStringLiteral("w:del"),
                                   QStringLiteral("mc:Fallback"),
                                   QStringLiteral("w:instrText")};
    return names.contains(name);
}

bool isSeparator(const QStringRef &name)
{
    static const QStringList names{QStringLiteral("w:p"),
                                   QStringLiteral("w:br"),
                                   QStringLiteral("w:tab"),
                                   QStringLiteral("w:cr"),
                                   QStringLiteral("w:noBreakHyphen"),
                                   QStringLiteral("text:p"),
                                   QStringLiteral("text:h"),
                                   QStringLiteral("text:s"),
                                   QStringLiteral("text:tab"),
                                   QStringLiteral("text:line-break")};
    return names.contains(name);
}

// Where the content begins of the paragraph that begins at @p at; @p at where none does.
int startOfParagraph(const QByteArray &xml, int at)
{
    const QByteArray tag = xml.mid(at, 5);
    int inside = tag == "<w:p>" || tag == "<w:p " ? xml.indexOf('>', at) + 1 : 0;
    if (inside > 0 && xml.mid(inside, 7) == "<w:pPr>") {
        inside = xml.indexOf("</w:pPr>", inside) + 8;
    }
    return inside > at ? inside : at;
}

} // namespace

QByteArray mrvPreparedOdt(QByteArray xml)
{
    xml = withPlainFolders(mrvWithPlainRuby(mrvWithBoxesAfterParagraphs(xml)));
    xml = withoutHeadingsInCells(mrvWithoutTags(xml, "table:table-header-rows"));
    for (const char *start : {"<text:bookmark-start", "<text:bookmark"}) {
        QByteArray marked;
        int done = 0;
        int begin = 0;
        int end = 0;
        while (findTag(xml, start, done, &begin, &end)) {
            const QByteArray name = mrvOfficeAttribute(xml.mid(begin, end - begin), "text:name");
            marked += xml.mid(done, begin - done) + QString(MarkBegin).toUtf8() + name.toHex()
                + QString(MarkEnd).toUtf8();
            done = end;
        }
        xml = done > 0 ? marked + xml.mid(done) : xml;
    }
    return xml;
}

QString mrvWithAnchors(const QString &html)
{
    QString anchored;
    int done = 0;
    bool isInTag = false;
    for (int at = 0; at < html.size(); ++at) {
        const QChar character = html.at(at);
        isInTag = character == u'<' || (isInTag && character != u'>');
        if (character != MarkBegin) {
            continue;
        }
        int end = at + 1;
        while (end < html.size() && isxdigit(html.at(end).toLatin1())) {
            ++end;
        }
        if (html.midRef(end, 1) != QString(MarkEnd)) {
            continue; // not one of ours
        }
        anchored += html.midRef(done, at - done);
        done = end + 1;
        // pandoc also makes names of headings of their texts; these are not needed. The name of a
        // place is as it was in XML, with entities.
        if (!isInTag) {
            const QByteArray name = QByteArray::fromHex(html.mid(at + 1, end - at - 1).toLatin1());
            anchored += QStringLiteral("<a id=\"%1\"></a>").arg(QString::fromUtf8(name));
        }
        at = end;
    }
    return anchored + html.midRef(done);
}

QByteArray mrvPreparedDocx(QByteArray xml)
{
    xml = mrvWithPlainRuby(mrvWithBoxesAfterParagraphs(mrvWithPlainFields(xml)));
    // What describes a table is no text, which pandoc would make it.
    for (const char *name : {"w:moveTo", "w:tblCaption", "w:tblDescription"}) {
        xml = mrvWithoutTags(xml, name);
    }
    const QByteArray start("<w:bookmarkStart");
    QByteArray prepared;
    int done = 0;
    int begin = 0;
    int end = 0;
    bool isFound = findTag(xml, start, 0, &begin, &end);
    while (isFound) {
        prepared += xml.mid(done, begin - done);
        QByteArray names;
        do { // one or more
            names += xml.mid(begin, end - begin);
            done = end;
            isFound = findTag(xml, start, done, &begin, &end);
        } while (isFound && begin == done);
        const int inside = startOfParagraph(xml, done);
        prepared += xml.mid(done, inside - done) + names;
        done = inside;
    }
    return prepared + xml.mid(done);
}

QString mrvOfficeXmlText(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    QString text;
    bool isText = false; // of DOCX, where it is in elements of its own
    bool isOdt = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            isOdt = isOdt || reader.qualifiedName() == QLatin1String("office:text")
                || reader.qualifiedName() == QLatin1String("math")
                || reader.qualifiedName() == QLatin1String("math:math");
            isText = reader.qualifiedName() == QLatin1String("w:t");
            if (isSkipped(reader.qualifiedName())) {
                reader.skipCurrentElement();
            } else if (isSeparator(reader.qualifiedName())) {
                text += u' ';
            }
        } else if (token == QXmlStreamReader::EndElement) {
            isText = false;
            text += isSeparator(reader.qualifiedName()) ? QStringLiteral(" ") : QString();
        } else if (token == QXmlStreamReader::Characters && (isText || isOdt)) {
            text += reader.text();
        }
    }
    return text;
}

QString mrvTextOfPage(const QString &html)
{
    static const QRegularExpression inlineTag(QStringLiteral(
        "</?(?:span|a|em|strong|u|del|sup|sub|code|mark|small|mrv-comment)\\b[^>]*>"));
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    QString text = html.mid(html.indexOf(QLatin1String("<body>")));
    text.remove(inlineTag).replace(tag, QStringLiteral(" "));
    text.replace(QLatin1String("&lt;"), QLatin1String("<"))
        .replace(QLatin1String("&gt;"), QLatin1String(">"))
        .replace(QLatin1String("&quot;"), QLatin1String("\""))
        .replace(QLatin1String("&amp;"), QLatin1String("&"));
    return text;
}
