#include "epub/mrvepubwriter_p.h"

#include "document/mrvmarginnotes.h"
#include "epub/mrvepubpages_p.h"
#include "epub/mrvepubsections_p.h"
#include "util/mrvfailure.h"
#include "util/mrvlocalfile.h"
#include "util/mrvprogress.h"
#include "xhtml/mrvdocumenttitle.h"

#include <QLocale>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr int LongestTitlePage = 2000; // characters
constexpr int LongestTitleLine = 80;

// Whether the book has its title from this document, one of several, which is headed by it: that is
// then the title of a chapter.
bool isTitleOfChapter(const MRVEPubBook &book, const MRVDocumentFlow &flow)
{
    const QString own = flow.document.metaInformation(QTextDocument::DocumentTitle);
    const auto heading =
        std::find_if(flow.paragraphs.begin(), flow.paragraphs.end(),
                     [](const MRVFlowParagraph &paragraph) { return paragraph.headingLevel > 0; });
    return book.options.areChapters && own.simplified() == book.title()
        && heading != flow.paragraphs.end()
        && flow.textOf(*heading).toString().simplified() == book.title();
}

} // namespace

MRVEPubWriter::MRVEPubWriter(MRVEPubBook *book, const MRVDocumentFlow &flow,
                             const QHash<QString, QString> &pictures, const QString &title,
                             MRVProgressMeter *meter)
    : m_book(*book)
    , m_flow(flow)
    , m_pictures(pictures)
    , m_title(title)
    , m_meter(meter)
    , m_isEPub3(book->version == MRVEPubVersion::EPub3)
    , m_boxDirection(QLocale(book->language()).textDirection())
    , m_formats(flow, &book->looks, book->version, book->language())
    , m_notes(flow, &m_formats)
    , m_firstHeading(book->headings.size())
{
    for (int i = 0; i < flow.frames.size(); ++i) {
        m_frames.insert(flow.frames.at(i).begin, i);
    }
    if (book->options.commentsAsNotes) {
        readMarginComments();
    }
}

bool MRVEPubWriter::add(MRVEPubBook *book, const QTextDocument &document, const QString &fileName,
                        MRVProgressMeter *meter, MRVErrorSink error)
{
    QHash<QString, QString> pictures;
    if (!book->addAllPictures(document, &pictures, meter, error)) {
        return false;
    }
    // Otherwise the first heading gives the book a name, and may be a chapter's.
    const bool isTitleKnown = !book->metadata.title.isEmpty()
        || !document.metaInformation(QTextDocument::DocumentTitle).isEmpty();
    if (book->metadata.title.isEmpty()) {
        book->metadata.title = mrvDocumentTitle(document, QString());
    }
    const bool isFirst = book->pages.isEmpty();
    const std::unique_ptr<QTextDocument> withNotes =
        MRVMarginNotes::copyWithParagraphs(document, MRVMarginNote::Footnote);
    const MRVDocumentFlow flow(withNotes ? *withNotes : document);
    const bool isStated = isTitleKnown && !isTitleOfChapter(*book, flow);
    MRVEPubWriter writer(book, flow, pictures, isStated ? book->title() : QString(), meter);
    if (!writer.write(fileName)) {
        return MRV::fail(error, MRVProgressMeter::cancelled());
    }
    if (isFirst) {
        book->addTitlePage();
    }
    book->classes = book->looks.paragraphClasses();
    return true;
}

// False when it was cancelled.
bool MRVEPubWriter::write(const QString &fileName)
{
    const MRVEPubPages plan(m_flow, &m_formats, m_title, m_book.options);
    QVector<int> starts = plan.starts();
    m_notes.place(starts);
    starts.append(m_flow.count());
    m_targets.path = fileName.isEmpty() ? QString() : MRV::fileIdentity(fileName);
    if (!fileName.isEmpty() && !m_book.documents.contains(m_targets.path)) {
        m_book.documents.insert(m_targets.path, m_book.anchors.size());
    }
    m_meter->begin(1000, m_flow.count());
    for (int i = 0; i + 1 < starts.size(); ++i) {
        writePage(starts.at(i), starts.at(i + 1), plan);
        if (m_meter->isCancelled()) {
            return false;
        }
    }
    // Those whose marks stand on no page, such as in a heading of notes, must not be lost.
    for (int note = 0; note < m_notes.all().size(); ++note) {
        if (m_notes.all().at(note).isMoved && !m_isNoteWritten.value(note)) {
            m_isNoteWritten.insert(note, true);
            m_pageNotes.append(note);
        }
    }
    writeNotesPage(plan, nullptr);
    addPlates();
    m_book.notes += m_notes.all().size();
    const QStringList languages = m_formats.languages();
    for (const QString &language : languages) {
        if (!m_book.languages.contains(language)) {
            m_book.languages.append(language);
        }
    }
    m_book.anchors.append(m_targets);
    return true;
}

void MRVEPubWriter::writePage(int begin, int end, const MRVEPubPages &plan)
{
    bool isEmpty = begin > 0;
    for (int i = begin; i < end && isEmpty; ++i) {
        isEmpty = m_notes.isMoved(i) || m_flow.isBlank(i);
    }
    if (isEmpty) {
        return;
    }
    m_page = m_book.beginPage();
    m_out.append(m_page.body);
    if (!m_page.end.isEmpty()) {
        m_sections.append(std::exchange(m_page.end, QByteArray()));
    }
    if (m_targets.firstPage.isEmpty()) {
        m_targets.firstPage = m_page.fileName;
    }
    MRVEPubPage notes; // of other chapters, which go to the end of this page
    const int written = openSections(begin, end, plan, &notes);
    writeFlow(written, shownEnd(written, end));
    if (m_book.options.notes == MRVEPubOptions::ChapterNotes) {
        writeNotes();
    }
    if (m_out.size() == 0) { // a body must not be empty
        m_out.append(QLatin1String("<p class=\"blank\"><br /></p>\n"));
    }
    while (!m_sections.isEmpty()) {
        m_page.end += m_sections.takeLast();
    }
    m_page.body = m_out.take();
    m_book.addPage(m_page);
    if (!notes.body.isEmpty()) {
        m_book.addNotes(notes);
    }
    writeNotesPage(plan, chapterOf(plan));
}

// Where a page ends without blank paragraphs, which may take a page of their own.
int MRVEPubWriter::shownEnd(int begin, int end)
{
    const auto isShown = [this](int paragraph) {
        const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
        const int last = m_flow.paragraphs.at(paragraph + 1).firstFragment;
        bool isTarget = false;
        for (int i = place.firstFragment; i < last; ++i) {
            isTarget = isTarget || m_formats.text(m_flow.fragments.at(i).format).hasNames;
        }
        return isTarget || place.list >= 0 || m_flow.isInFrame(paragraph)
            || !m_flow.isBlank(paragraph);
    };
    while (end > begin && !isShown(end - 1)) {
        --end;
    }
    return end;
}

// The heading of the chapter that was written last; null where the document has none.
const MRVEPubEntry *MRVEPubWriter::chapterOf(const MRVEPubPages &plan) const
{
    for (int i = m_book.headings.size() - 1; i >= m_firstHeading; --i) {
        if (m_book.headings.at(i).depth < qMax(1, plan.lastLevel())) {
            return &m_book.headings.at(i);
        }
    }
    return nullptr;
}

// Opens the sections that the headings of a page announce; returns the first paragraph that is not
// written yet.
int MRVEPubWriter::openSections(int begin, int end, const MRVEPubPages &plan, MRVEPubPage *notes)
{
    int first = begin;
    while (first < end && m_flow.isBlank(first) && !m_frames.contains(first)) {
        ++first;
    }
    const bool isHeading =
        first < end && !m_frames.contains(first) && m_flow.paragraphs.at(first).headingLevel > 0;
    const MRVEPubSection *section = nullptr;
    if (isHeading) {
        section = sectionOf(first, end, plan);
    } else if (isTitlePage(begin, end)) {
        section = mrvEPubSection(QStringLiteral("titlepage"));
    }
    if (section) {
        m_page.type = QString::fromLatin1(section->type);
        if (isHeading && m_sections.isEmpty()) {
            *notes = m_book.adoptNotes(&m_page, m_flow.paragraphs.at(first).headingLevel);
        }
        openSection(*section);
    }
    return section && isHeading ? openChapter(begin, first, end, plan) : begin;
}

// Opens the section of a chapter that follows the heading of its part, which is written.
int MRVEPubWriter::openChapter(int begin, int first, int end, const MRVEPubPages &plan)
{
    const int level = m_flow.paragraphs.at(first).headingLevel;
    for (int i = first + 1; i < end; ++i) {
        const int inner = m_flow.paragraphs.at(i).headingLevel;
        if (inner > level && inner <= plan.lastLevel() && !m_frames.contains(i)) {
            const MRVEPubSection *chapter = sectionOf(i, end, plan);
            writeFlow(begin, i);
            if (chapter) {
                openSection(*chapter);
                m_page.type = QString::fromLatin1(chapter->type);
            }
            return i;
        }
        if (!m_flow.isBlank(i) && inner == 0) {
            break;
        }
    }
    return begin;
}

// Whether the first page says the title of the book in its text.
bool MRVEPubWriter::isTitlePage(int begin, int end) const
{
    if (!m_book.pages.isEmpty() || m_flow.paragraphs.at(end).position >= LongestTitlePage) {
        return false;
    }
    const QString title = m_book.title();
    for (int i = begin; i < end; ++i) {
        if (m_flow.paragraphs.at(i).headingLevel == 0
            && headingText(i).compare(title, Qt::CaseInsensitive) == 0) {
            return true;
        }
    }
    return false;
}

const MRVEPubSection *MRVEPubWriter::sectionOf(int heading, int end, const MRVEPubPages &plan) const
{
    const int level = m_flow.paragraphs.at(heading).headingLevel;
    if (const MRVEPubSection *section = mrvEPubSectionOf(headingText(heading))) {
        return section;
    }
    if (isTitle(heading, end, plan)) {
        return mrvEPubSection(QStringLiteral("titlepage"));
    }
    const bool isChapter = level >= plan.firstLevel() && level <= plan.lastLevel();
    return isChapter ? mrvEPubSection(QStringLiteral("chapter")) : nullptr;
}

// Whether the first page is the title's, with chapters after it: its heading says the title, or
// stands above those of the chapters with nothing but short lines below.
bool MRVEPubWriter::isTitle(int heading, int end, const MRVEPubPages &plan) const
{
    if (!m_book.pages.isEmpty() || end == m_flow.count()
        || m_flow.paragraphs.at(end).position >= LongestTitlePage) {
        return false;
    }
    if (!m_title.isEmpty() && headingText(heading).compare(m_title, Qt::CaseInsensitive) == 0) {
        return true;
    }
    return m_flow.paragraphs.at(heading).headingLevel < plan.firstLevel()
        && std::all_of(m_flow.paragraphs.begin() + heading + 1, m_flow.paragraphs.begin() + end,
                       [](const MRVFlowParagraph &paragraph) {
                           return paragraph.length <= LongestTitleLine;
                       });
}

void MRVEPubWriter::openSection(const MRVEPubSection &section)
{
    if (!m_isEPub3) {
        return;
    }
    QByteArray tag = QByteArray("<section epub:type=\"") + section.type + '"';
    if (*section.role) {
        tag += QByteArray(" role=\"") + section.role + '"';
    }
    m_out.append(tag + ">\n");
    m_sections.append("</section>\n");
}

// What a heading says, pictures by their texts, without the marks of notes.
QString MRVEPubWriter::headingText(int paragraph) const
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(paragraph);
    return plainText(place.position, place.position + place.length);
}

QString MRVEPubWriter::plainText(int begin, int end) const
{
    const MRVFlowParagraph &place = m_flow.paragraphs.at(m_flow.paragraphAt(begin));
    QString text;
    int position = place.position;
    for (int i = place.firstFragment; position < end; ++i) {
        const MRVFlowFragment &fragment = m_flow.fragments.at(i);
        const QTextFormat &format = m_flow.formats.at(fragment.format);
        if (position < begin) {
            position += fragment.length;
            continue;
        }
        if (format.isImageFormat()) {
            text += format.stringProperty(QTextFormat::ImageAltText);
        } else if (m_notes.ofMark(position) < 0) {
            text += QStringView(m_flow.text).mid(position, fragment.length);
        }
        position += fragment.length;
    }
    return text.simplified();
}

// Pictures that links lead to, as documents have them where a page shows a small one, or none.
void MRVEPubWriter::addPlates()
{
    QSet<QString> known;
    for (const MRVFlowLink &link : m_flow.links) {
        if (!known.contains(link.address)) {
            known.insert(link.address);
            m_book.addPlate(link.address, plainText(link.begin, link.end), m_targets.path);
        }
    }
}

// The notes whose marks stand on the page; those that a note has marks of follow.
void MRVEPubWriter::writeNotes()
{
    if (m_pageNotes.isEmpty() && m_comments.isEmpty()) {
        return;
    }
    const bool isSection = m_isEPub3 && m_book.options.notes == MRVEPubOptions::ChapterNotes;
    m_out.append(QLatin1String(isSection ? "<section class=\"notes\" epub:type=\"footnotes\">\n"
                                         : "<div class=\"notes\">\n"));
    int comment = 0;
    for (int i = 0; i < m_pageNotes.size() || comment < m_comments.size();) {
        if (i == m_pageNotes.size()) {
            writeComment(Comment(m_comments.at(comment++))); // it may have marks of notes
            continue;
        }
        const int note = m_pageNotes.at(i++);
        const int heading = m_notes.all().at(note).heading;
        if (heading >= 0) {
            m_openNote = note;
            writeFlow(heading, heading + 1);
            m_openNote = -1;
        }
        writeNote(note, m_flow.count());
    }
    m_out.append(QLatin1String(isSection ? "</section>\n" : "</div>\n"));
    m_pageNotes.clear();
    m_comments.clear();
}

// Writes a note, or what there is of it up to the end of a page.
void MRVEPubWriter::writeNote(int note, int end)
{
    const MRVEPubNote &place = m_notes.all().at(note);
    const MRVFlowParagraph &first = m_flow.paragraphs.at(place.begin);
    const QByteArray id = first.length > 0
        ? takeId(m_flow.fragments.at(first.firstFragment).format, place.name)
        : QByteArray();
    m_out.append(
        element("<aside epub:type=\"footnote\" role=\"doc-footnote\"", "<div class=\"note\""));
    if (!id.isEmpty()) {
        m_out.append(" id=\"" + id + '"');
    }
    m_out.append(QLatin1String(">\n"));
    const int outer = std::exchange(m_openNote, note);
    writeFlow(place.begin, qMin(place.end, end));
    m_openNote = outer;
    m_out.append(element("</aside>\n", "</div>\n"));
}

// Adds the notes that are left to those of the whole book, under the heading of their chapter.
void MRVEPubWriter::writeNotesPage(const MRVEPubPages &plan, const MRVEPubEntry *chapter)
{
    if (m_pageNotes.isEmpty() && m_comments.isEmpty()) {
        return;
    }
    m_page = m_book.beginNotes(plan.firstLevel());
    if (chapter && chapter->target != m_notesChapter) {
        m_notesChapter = chapter->target;
        const QByteArray tag = 'h' + QByteArray::number(m_book.notesLevel + 1) + '>';
        m_out.append('<' + tag + mrvEPubValue(chapter->text) + "</" + tag + '\n');
    }
    writeNotes();
    m_page.body = m_out.take();
    m_book.addNotes(m_page);
}
