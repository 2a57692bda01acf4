#include "epub/mrvepubnavigation_p.h"

#include "epub/mrvepubbook_p.h"

#include <QXmlStreamWriter>

#include <algorithm>

namespace {

struct PageRole
{
    const char *epubType;
    const char *guideType;
    const char *title; // where the page has none
    bool isFirst = false; // stands before the table of contents
};

// Of the types of pages, those that readers look for by name.
constexpr PageRole roles[] = {
    {"titlepage", "title-page", QT_TRANSLATE_NOOP("MRVEPubBook", "Title page"), true},
    {"copyright-page", "copyright-page", QT_TRANSLATE_NOOP("MRVEPubBook", "Copyright"), true},
    {"dedication", "dedication", QT_TRANSLATE_NOOP("MRVEPubBook", "Dedication"), true},
    {"epigraph", "epigraph", QT_TRANSLATE_NOOP("MRVEPubBook", "Epigraph"), true},
    {"foreword", "foreword", QT_TRANSLATE_NOOP("MRVEPubBook", "Foreword")},
    {"preface", "preface", QT_TRANSLATE_NOOP("MRVEPubBook", "Preface")},
    {"acknowledgments", "acknowledgements", QT_TRANSLATE_NOOP("MRVEPubBook", "Acknowledgments")},
    {"appendix", nullptr, QT_TRANSLATE_NOOP("MRVEPubBook", "Appendix")},
    {"glossary", "glossary", QT_TRANSLATE_NOOP("MRVEPubBook", "Glossary")},
    {"bibliography", "bibliography", QT_TRANSLATE_NOOP("MRVEPubBook", "Bibliography")},
    {"index", "index", QT_TRANSLATE_NOOP("MRVEPubBook", "Index")},
    {"endnotes", "notes", QT_TRANSLATE_NOOP("MRVEPubBook", "Notes")},
    {"colophon", "colophon", QT_TRANSLATE_NOOP("MRVEPubBook", "Colophon")},
};

// Null for pages of the body.
const PageRole *roleOf(const MRVEPubPage &page)
{
    const auto role = std::find_if(std::begin(roles), std::end(roles), [&](const PageRole &row) {
        return page.type == QLatin1String(row.epubType);
    });
    return role == std::end(roles) ? nullptr : role;
}

// Calls @p open for each entry, and @p close for it once all entries below it are done.
template<typename Open, typename Close>
void walkContents(const QVector<MRVEPubEntry> &entries, Open open, Close close)
{
    int depth = -1;
    for (const MRVEPubEntry &entry : entries) {
        for (; depth >= entry.depth; --depth) {
            close(depth);
        }
        open(entry);
        depth = entry.depth;
    }
    for (; depth >= 0; --depth) {
        close(depth);
    }
}

QString navigationList(const QVector<MRVEPubEntry> &entries)
{
    QString list;
    int lists = 0; // opened so far
    walkContents(
        entries,
        [&](const MRVEPubEntry &entry) {
            if (lists <= entry.depth) {
                list += QLatin1String("<ol>\n");
                ++lists;
            }
            list += QLatin1String("<li><a href=\"") + entry.target.toHtmlEscaped()
                + QLatin1String("\">") + entry.text.toHtmlEscaped() + QLatin1String("</a>");
        },
        [&](int depth) {
            for (; lists > depth + 1; --lists) {
                list += QLatin1String("</ol>");
            }
            list += QLatin1String("</li>\n");
        });
    return list + (lists > 0 ? QLatin1String("</ol>\n") : QLatin1String());
}

QVector<MRVEPubEntry> entriesOf(const MRVEPubBook &book)
{
    const QVector<MRVEPubEntry> entries = book.contents();
    return entries.isEmpty()
        ? QVector<MRVEPubEntry>{{book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Cover")),
                                 QStringLiteral("cover.xhtml"), 0}}
        : entries;
}

QString link(const QString &target, const QString &text, const QString &attributes = QString())
{
    return QLatin1String("<li><a") + attributes + QLatin1String(" href=\"") + target.toHtmlEscaped()
        + QLatin1String("\">") + text.toHtmlEscaped() + QLatin1String("</a></li>\n");
}

QString hiddenList(const char *type, const char *role, const QString &items)
{
    return QStringLiteral("<nav epub:type=\"%1\" id=\"%1\"%2 hidden=\"hidden\">\n<ol>\n")
               .arg(QLatin1String(type), QLatin1String(role))
        + items + QLatin1String("</ol>\n</nav>\n");
}

// The kinds of ANSI/NISO Z39.86-2005, section 8.2.
const char *pageKind(const QString &label)
{
    const bool isRoman = std::all_of(label.begin(), label.end(), [](QChar c) {
        return QStringView(u"ivxlcdmIVXLCDM").contains(c);
    });
    bool isNumber = false;
    label.toUInt(&isNumber);
    return isNumber ? "normal" : isRoman ? "front" : "special";
}

/** Writes the NCX. */
class NcxWriter
{
public:
    NcxWriter(const MRVEPubBook &book, QByteArray *bytes)
        : m_book(book)
        , m_xml(bytes)
        , m_entries(entriesOf(book))
    {
        m_xml.setAutoFormatting(true);
    }

    void write(const QString &identifier);

private:
    void writeHead(const QString &identifier);
    void writeLabel(const QString &text, const QString &target);
    void writeContents();
    void writePages();

    const MRVEPubBook &m_book;
    QXmlStreamWriter m_xml;
    const QVector<MRVEPubEntry> m_entries;
};

void NcxWriter::writeHead(const QString &identifier)
{
    int deepest = 0;
    for (const MRVEPubEntry &entry : m_entries) {
        deepest = qMax(deepest, entry.depth);
    }
    uint last = 0;
    for (const MRVEPubPageBreak &page : m_book.pageBreaks) {
        last = qMax(last, page.label.toUInt());
    }
    const QPair<const char *, QString> metas[] = {
        {"dtb:uid", identifier},
        {"dtb:depth", QString::number(deepest + 1)},
        {"dtb:totalPageCount", QString::number(m_book.pageBreaks.size())},
        {"dtb:maxPageNumber", QString::number(last)},
    };
    m_xml.writeStartElement(QStringLiteral("head"));
    for (const auto &meta : metas) {
        m_xml.writeEmptyElement(QStringLiteral("meta"));
        m_xml.writeAttribute(QStringLiteral("name"), QLatin1String(meta.first));
        m_xml.writeAttribute(QStringLiteral("content"), meta.second);
    }
    m_xml.writeEndElement();
    m_xml.writeStartElement(QStringLiteral("docTitle"));
    m_xml.writeTextElement(QStringLiteral("text"), m_book.title());
    m_xml.writeEndElement();
}

void NcxWriter::writeLabel(const QString &text, const QString &target)
{
    m_xml.writeStartElement(QStringLiteral("navLabel"));
    m_xml.writeTextElement(QStringLiteral("text"), text);
    m_xml.writeEndElement();
    m_xml.writeEmptyElement(QStringLiteral("content"));
    m_xml.writeAttribute(QStringLiteral("src"), target);
}

void NcxWriter::writeContents()
{
    int number = 0;
    m_xml.writeStartElement(QStringLiteral("navMap"));
    walkContents(
        m_entries,
        [&](const MRVEPubEntry &entry) {
            ++number;
            m_xml.writeStartElement(QStringLiteral("navPoint"));
            m_xml.writeAttribute(QStringLiteral("id"), QStringLiteral("nav-%1").arg(number));
            // With a second list, it would count the places of both in reading order.
            if (m_book.pageBreaks.isEmpty()) {
                m_xml.writeAttribute(QStringLiteral("playOrder"), QString::number(number));
            }
            writeLabel(entry.text, entry.target);
        },
        [&](int) { m_xml.writeEndElement(); });
    m_xml.writeEndElement();
}

void NcxWriter::writePages()
{
    int number = 0;
    m_xml.writeStartElement(QStringLiteral("pageList"));
    for (const MRVEPubPageBreak &page : m_book.pageBreaks) {
        const QString kind = QLatin1String(pageKind(page.label));
        m_xml.writeStartElement(QStringLiteral("pageTarget"));
        m_xml.writeAttribute(QStringLiteral("id"), QStringLiteral("page-%1").arg(++number));
        m_xml.writeAttribute(QStringLiteral("type"), kind);
        if (kind == QLatin1String("normal")) {
            m_xml.writeAttribute(QStringLiteral("value"), QString::number(page.label.toUInt()));
        }
        writeLabel(page.label, page.target);
        m_xml.writeEndElement();
    }
    m_xml.writeEndElement();
}

void NcxWriter::write(const QString &identifier)
{
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QStringLiteral("ncx"));
    m_xml.writeDefaultNamespace(QStringLiteral("http://www.daisy.org/z3986/2005/ncx/"));
    m_xml.writeAttribute(QStringLiteral("version"), QStringLiteral("2005-1"));
    writeHead(identifier);
    writeContents();
    if (!m_book.pageBreaks.isEmpty()) {
        writePages();
    }
    m_xml.writeEndDocument();
}

} // namespace

int mrvEPubContentsPlace(const MRVEPubBook &book)
{
    const auto page =
        std::find_if(book.pages.begin(), book.pages.end(), [](const MRVEPubPage &candidate) {
            const PageRole *const role = roleOf(candidate);
            return !role || !role->isFirst;
        });
    return int(page - book.pages.begin());
}

QVector<MRVEPubLandmark> mrvEPubLandmarks(const MRVEPubBook &book)
{
    QVector<MRVEPubLandmark> marks;
    if (book.hasCoverPage()) {
        marks.append({"cover", "cover", book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Cover")),
                      QStringLiteral("cover.xhtml")});
    }
    const int contents = mrvEPubContentsPlace(book);
    int before = marks.size(); // those before the table of contents
    QStringList types;
    for (int i = 0; i < book.pages.size(); ++i) {
        const MRVEPubPage &page = book.pages.at(i);
        const PageRole *const role = roleOf(page);
        const QString type = role ? page.type : QString();
        if (types.contains(type)) {
            continue;
        }
        types.append(type);
        if (!role) {
            marks.append({"bodymatter", "text",
                          book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Beginning")), page.fileName});
        } else {
            const bool isNamed = !role->isFirst && !page.title.isEmpty();
            marks.append({role->epubType, role->guideType,
                          isNamed ? page.title : book.text(role->title), page.fileName});
        }
        before = i < contents ? marks.size() : before;
    }
    if (book.version == MRVEPubVersion::EPub3) {
        marks.insert(before,
                     {"toc", "toc", book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Contents")),
                      QStringLiteral("nav.xhtml#toc")});
    }
    return marks;
}

QByteArray mrvEPubNavigation(const MRVEPubBook &book)
{
    const QString title = book.text(QT_TRANSLATE_NOOP("MRVEPubBook", "Contents"));
    QString body = QLatin1String("\n<nav epub:type=\"toc\" id=\"toc\" role=\"doc-toc\">\n<h1>")
        + title.toHtmlEscaped() + QLatin1String("</h1>\n") + navigationList(entriesOf(book))
        + QLatin1String("</nav>\n");
    QString places;
    const QVector<MRVEPubLandmark> marks = mrvEPubLandmarks(book);
    for (const MRVEPubLandmark &mark : marks) {
        places += link(mark.target, mark.title,
                       QStringLiteral(" epub:type=\"%1\"").arg(QLatin1String(mark.epubType)));
    }
    body += hiddenList("landmarks", "", places);
    QString pages;
    for (const MRVEPubPageBreak &page : book.pageBreaks) {
        pages += link(page.target, page.label);
    }
    if (!pages.isEmpty()) {
        body += hiddenList("page-list", " role=\"doc-pagelist\"", pages);
    }
    return book.framed(title, QStringLiteral("<body>"), body).toUtf8();
}

QByteArray mrvEPubNcx(const MRVEPubBook &book, const QString &identifier)
{
    QByteArray bytes;
    NcxWriter(book, &bytes).write(identifier);
    return bytes;
}
