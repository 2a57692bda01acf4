#include "pdf/mrvmanuscriptpdf.h"

#include "core/mtranslator.h"
#include "document/mrvmarginnotes.h"
#include "pdf/mrvpdfwriter.h"
#include "pdf/mrvprinteddocument_p.h"
#include "textformat/mrvtextblockformat.h"
#include "util/mrvfailure.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTranslator>
#include <QUrl>

#include <algorithm>
#include <vector>

namespace {

constexpr qreal Scale = MRVPdfWriter::DotsPerPoint;

using Range = QPair<int, int>; // indexes, the second one not included

// Those of a list, in order of their y, that stand on a page.
template<typename Place>
Range rangeOf(const QVector<Place> &places, const MrvPrintedPage &page)
{
    const auto isAbove = [](const Place &place, qreal y) { return place.y < y; };
    const auto first = std::lower_bound(places.cbegin(), places.cend(), page.top - 1, isAbove);
    const auto end = std::lower_bound(first, places.cend(), page.bottom, isAbove);
    return {int(first - places.cbegin()), int(end - places.cbegin())};
}

} // namespace

/** The parts of a MRVManuscriptPdf, and what puts them on pages. */
class MRVPrintedBook
{
public:
    explicit MRVPrintedBook(const MRVPrintOptions &printOptions)
        : options(printOptions)
        , look(printOptions)
    {
    }

    void addTitle(const QString &title) { nextTitle = title; }
    void add(const QTextDocument &document, const QString &fileName, const QString &heading);
    bool print(QByteArray *bytes, const MRVProgress &progress, MRVErrorSink error);
    QStringList deadLinks() const;
    int countOf(int (MrvPrintedDocument::*tables)() const) const;
    QString missingCharacters() const;

private:
    struct Part
    {
        const QTextDocument *original; // has the pictures
        std::unique_ptr<QTextDocument> withNotes; // from its margin; null where it has none
        QHash<QString, QSize> pictureSizes;
        std::vector<std::unique_ptr<MrvPrintedDocument>> pieces; // in order
        QString fileName;
        QString heading; // to be printed before it
        QString title; // of the part of the book that begins with it
        int firstPage = 1; // of its text

        const QTextDocument &document() const { return withNotes ? *withNotes : *original; }
    };
    struct Entry // of the contents
    {
        QString text;
        int level;
        int page;
        QString target;
    };

    int chapterLevel() const;
    bool layOutAll(MRVErrorSink error);
    bool layOut(Part *part, int level, bool isFirst);
    void beginPage(int number);
    void printTitlePage();
    void printManuscriptTitle();
    void printContents();
    bool printPart(int index);
    void printHeader(int number, bool beginsChapter);
    void printPlaces(int part, int piece, const MrvPrintedPage &page, const QPointF &origin);
    void drawLine(const QString &text, const QFont &font, qreal y, Qt::Alignment alignment);
    qreal heightOf(const QString &lines, const QFont &font) const;
    QVector<Entry> entries() const;
    QString addressOf(const QString &address, int part) const;
    QString text(const char *context, const char *source) const;
    QFont headerFont() const;
    QFont titleFont() const;
    static QString targetName(int part, const QString &name);
    static QString headingName(int part, int piece, int heading);

    MRVPrintOptions options;
    MrvPrintLook look;
    std::vector<Part> parts;
    QString nextTitle; // of a part that has no document yet
    MRVPdfWriter *writer = nullptr;
    MRVProgressMeter *meter = nullptr;
    bool hasPage = false;
};

void MRVPrintedBook::add(const QTextDocument &document, const QString &fileName,
                         const QString &heading)
{
    Part part;
    part.original = &document;
    part.withNotes = MRVMarginNotes::copyWithParagraphs(document, MRVMarginNote::Footnote);
    part.fileName =
        fileName.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(fileName).absoluteFilePath());
    if (MRVTextBlockFormat::headingLevel(document.begin().blockFormat()) == 0) {
        part.heading = heading.simplified();
    }
    part.title = nextTitle;
    nextTitle.clear();
    parts.push_back(std::move(part));
}

int MRVPrintedBook::chapterLevel() const
{
    QMap<int, int> counts;
    for (const Part &part : parts) {
        for (QTextBlock block = part.document().begin(); block.isValid(); block = block.next()) {
            const int level = MRVTextBlockFormat::headingLevel(block.blockFormat());
            if (level > 0 && !block.text().trimmed().isEmpty()) {
                ++counts[level];
            }
        }
    }
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (*it > 1) {
            return it.key();
        }
    }
    return 0;
}

// Makes the pieces of a document, and their pages.
bool MRVPrintedBook::layOut(Part *part, int level, bool isFirst)
{
    part->pictureSizes = MrvPrintedDocument::pictureSizesOf(*part->original);
    const QVector<QTextBlock> starts = MrvPrintedDocument::piecesOf(part->document(), level);
    for (int i = 0; i < starts.size(); ++i) {
        const QTextBlock last =
            i + 1 < starts.size() ? starts.at(i + 1).previous() : part->document().lastBlock();
        auto piece = std::make_unique<MrvPrintedDocument>(starts.at(i), last, look, *part->original,
                                                          part->pictureSizes);
        if (i == 0 && isFirst) {
            piece->removeHeading(options.title);
        }
        if (i == 0 && !part->heading.isEmpty()) {
            piece->insertHeading(part->heading, qMax(1, level));
        }
        if (!piece->layOut(writer->painter()->device(), level, meter)) {
            return false;
        }
        part->pieces.push_back(std::move(piece));
    }
    return true;
}

void MRVPrintedBook::beginPage(int number)
{
    if (hasPage) {
        writer->newPage();
    }
    hasPage = true;
    writer->setPageNumber(number);
}

// In the language of the document.
QString MRVPrintedBook::text(const char *context, const char *source) const
{
    if (QLocale(options.language).language() == QLocale::English) {
        return QString::fromUtf8(source);
    }
    const std::unique_ptr<QTranslator> translator = MTranslator::translator(options.language);
    const QString own = translator ? translator->translate(context, source) : QString();
    return own.isEmpty() ? QCoreApplication::translate(context, source) : own;
}

QFont MRVPrintedBook::titleFont() const
{
    QFont font = look.font;
    font.setPointSizeF(look.isManuscript ? font.pointSizeF() : font.pointSizeF() * 2);
    return font;
}

QFont MRVPrintedBook::headerFont() const
{
    QFont font = look.font;
    font.setPointSizeF(look.isManuscript ? font.pointSizeF() : font.pointSizeF() * 0.85);
    return font;
}

QString MRVPrintedBook::targetName(int part, const QString &name)
{
    return QString::number(part) + u':' + name;
}

QString MRVPrintedBook::headingName(int part, int piece, int heading)
{
    return QStringLiteral("heading%1:%2:%3").arg(part).arg(piece).arg(heading);
}

void MRVPrintedBook::drawLine(const QString &line, const QFont &font, qreal y,
                              Qt::Alignment alignment)
{
    QPainter *painter = writer->painter();
    painter->setFont(font);
    painter->setPen(Qt::black);
    const QRectF area(look.text.left(), y, look.text.width(), look.text.height());
    painter->drawText(area, int(alignment | Qt::AlignTop) | Qt::TextWordWrap, line);
}

qreal MRVPrintedBook::heightOf(const QString &lines, const QFont &font) const
{
    QPainter *painter = writer->painter();
    painter->setFont(font);
    const QRectF area(0, 0, look.text.width(), look.text.height());
    return painter->boundingRect(area, Qt::AlignHCenter | Qt::TextWordWrap, lines).height();
}

// As publishers want it: who writes and how much above, the title half way down.
void MRVPrintedBook::printManuscriptTitle()
{
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    int words = 0;
    for (const Part &part : parts) {
        words += part.document().toPlainText().split(blanks, Qt::SkipEmptyParts).size();
    }
    const int roundedTo = words >= 1000 ? 100 : words >= 100 ? 10 : 1;
    const QString count =
        QLocale(options.language).toString((words + roundedTo / 2) / roundedTo * roundedTo);
    const QFont font = look.font;
    const qreal line = look.lineHeight * Scale;
    drawLine(options.authors.join(u'\n'), font, look.text.top(), Qt::AlignLeft);
    drawLine(text("MRVManuscriptPdf", QT_TRANSLATE_NOOP("MRVManuscriptPdf", "About %1 words"))
                 .arg(count),
             font, look.text.top(), Qt::AlignRight);
    const qreal middle = look.text.center().y() - line;
    const QString title = options.title.toUpper();
    drawLine(title, font, middle, Qt::AlignHCenter);
    drawLine(options.authors.join(QLatin1String(", ")), font, middle + heightOf(title, font) + line,
             Qt::AlignHCenter);
}

void MRVPrintedBook::printTitlePage()
{
    if (options.title.isEmpty()) {
        return;
    }
    beginPage(0);
    if (look.isManuscript) {
        printManuscriptTitle();
        return;
    }
    const QFont large = titleFont();
    const qreal top = look.text.top() + look.text.height() / 4;
    drawLine(options.title, large, top, Qt::AlignHCenter);
    drawLine(options.authors.join(u'\n'), look.font,
             top + heightOf(options.title, large) + 3 * look.lineHeight * Scale, Qt::AlignHCenter);
}

QVector<MRVPrintedBook::Entry> MRVPrintedBook::entries() const
{
    QVector<Entry> result;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Part &part = parts[i];
        if (!part.title.isEmpty()) {
            result.append({part.title, 1, part.firstPage - 1,
                           QStringLiteral("part") + targetName(int(i), QString())});
        }
        int firstPage = part.firstPage;
        for (std::size_t piece = 0; piece < part.pieces.size(); ++piece) {
            const QVector<MrvPrintedPage> &pages = part.pieces[piece]->pages();
            const QVector<MrvPrintedHeading> &headings = part.pieces[piece]->headings();
            int page = 0;
            for (int k = 0; k < headings.size(); ++k) {
                const MrvPrintedHeading &heading = headings.at(k);
                while (page + 1 < pages.size() && heading.y >= pages.at(page + 1).top - 1) {
                    ++page;
                }
                result.append({heading.text, heading.level, firstPage + page,
                               headingName(int(i), int(piece), k)});
            }
            firstPage += pages.size();
        }
    }
    return result;
}

void MRVPrintedBook::printContents()
{
    const QVector<Entry> all = entries();
    if (!options.hasContents || all.size() < 2) {
        return;
    }
    const auto least = std::min_element(
        all.cbegin(), all.cend(), [](const Entry &a, const Entry &b) { return a.level < b.level; });
    const qreal line = (look.isManuscript ? 12 : look.lineHeight) * Scale;
    const qreal numberWidth = 3 * line;
    QFont title = look.font;
    title.setPointSizeF(look.isManuscript ? 12 : look.font.pointSizeF() * 1.4);
    beginPage(0);
    const QString heading = text("MRVEPubBook", "Contents");
    writer->addOutline(heading, 1, look.text.top());
    drawLine(heading, title, look.text.top(), Qt::AlignHCenter);
    qreal y = look.text.top() + 3 * line;
    for (const Entry &entry : all) {
        const qreal indent = (entry.level - least->level) * line;
        QTextLayout layout(entry.text, look.font, writer->painter()->device());
        qreal height = 0;
        layout.beginLayout();
        for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
            row.setLineWidth(qMax(line, look.text.width() - indent - numberWidth));
            row.setPosition(QPointF(0, height));
            height += line;
        }
        layout.endLayout();
        if (y + height > look.text.bottom()) {
            beginPage(0);
            y = look.text.top();
        }
        layout.draw(writer->painter(), QPointF(look.text.left() + indent, y));
        drawLine(QString::number(entry.page), look.font, y + height - line, Qt::AlignRight);
        writer->addLink(QRectF(look.text.left(), y, look.text.width(), height),
                        u'#' + entry.target);
        y += height;
    }
}

void MRVPrintedBook::printHeader(int number, bool beginsChapter)
{
    const QFont font = headerFont();
    const qreal line = font.pointSizeF() * 1.5 * Scale;
    const QString page = QString::number(number);
    if (look.isManuscript) {
        static const QRegularExpression subtitle(QStringLiteral("\\s*[:;\u2014].*$"));
        const QString author = options.surname.isEmpty()
            ? options.authors.value(0).section(u' ', -1)
            : options.surname;
        const QFontMetricsF metrics(font, writer->painter()->device());
        const QString title = metrics.elidedText(QString(options.title).remove(subtitle).toUpper(),
                                                 Qt::ElideRight, look.text.width() / 2);
        QStringList words{author, title, page};
        words.removeAll(QString());
        drawLine(words.join(QLatin1String(" / ")), font, look.text.top() / 2, Qt::AlignRight);
        return;
    }
    if (beginsChapter) {
        drawLine(page, font, look.text.bottom() + line, Qt::AlignHCenter);
        return;
    }
    const bool isLeft = number % 2 == 0;
    const qreal y = look.text.top() - 2 * line;
    drawLine(page, font, y, isLeft ? Qt::AlignLeft : Qt::AlignRight);
    const QString title = isLeft ? options.authors.join(QLatin1String(", ")) : options.title;
    const QFontMetricsF metrics(font, writer->painter()->device());
    const qreal besideNumber = look.text.width() - 2 * metrics.horizontalAdvance(page + u' ');
    drawLine(metrics.elidedText(title, Qt::ElideRight, besideNumber), font, y, Qt::AlignHCenter);
}

QString MRVPrintedBook::missingCharacters() const
{
    QString all;
    for (const Part &part : parts) {
        all += part.document().toPlainText();
    }
    return MRVPdfWriter::missingCharacters(all, look.font);
}

int MRVPrintedBook::countOf(int (MrvPrintedDocument::*tables)() const) const
{
    int count = 0;
    for (const Part &part : parts) {
        for (const auto &piece : part.pieces) {
            count += (*piece.*tables)();
        }
    }
    return count;
}

// Links whose text alone is printed: to other files, and to places that do not exist.
QStringList MRVPrintedBook::deadLinks() const
{
    QSet<QString> names;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        names.insert(u'#' + targetName(int(i), QString()));
        for (const auto &piece : parts[i].pieces) {
            for (const MrvPrintedTarget &target : piece->targets()) {
                names.insert(u'#' + targetName(int(i), target.name));
            }
        }
    }
    QStringList dead;
    QSet<QString> known;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        for (const auto &piece : parts[i].pieces) {
            for (const MrvPrintedLink &link : piece->links()) {
                const QString address = addressOf(link.address, int(i));
                const bool leadsOut = !address.isEmpty() && !address.startsWith(u'#');
                if (!leadsOut && !names.contains(address) && !known.contains(link.address)) {
                    known.insert(link.address);
                    dead.append(link.address);
                }
            }
        }
    }
    return dead;
}

QString MRVPrintedBook::addressOf(const QString &address, int part) const
{
    if (address.startsWith(u'#')) {
        return u'#' + targetName(part, QUrl::fromPercentEncoding(address.mid(1).toUtf8()));
    }
    const QUrl url(address);
    if (!url.isRelative() && !url.isLocalFile()) {
        return address;
    }
    const QString folder = QFileInfo(parts[std::size_t(part)].fileName).path();
    const QString file = QDir::cleanPath(QDir(folder).absoluteFilePath(
        url.isLocalFile() ? url.toLocalFile() : url.path(QUrl::FullyDecoded)));
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!parts[i].fileName.isEmpty() && parts[i].fileName == file) {
            return u'#' + targetName(int(i), url.fragment(QUrl::FullyDecoded));
        }
    }
    return QString();
}

// Headings, places and links of what stands on a page.
void MRVPrintedBook::printPlaces(int index, int piece, const MrvPrintedPage &page,
                                 const QPointF &origin)
{
    const MrvPrintedDocument &document = *parts[std::size_t(index)].pieces[std::size_t(piece)];
    const auto shown = [&](qreal y) { return y - page.top + origin.y(); };
    const QVector<MrvPrintedHeading> &headings = document.headings();
    const Range here = rangeOf(headings, page);
    for (int k = here.first; k < here.second; ++k) {
        const QString name = headingName(index, piece, k);
        writer->addOutline(headings.at(k).text, headings.at(k).level, shown(headings.at(k).y));
        writer->addTarget(name, shown(headings.at(k).y));
    }
    const Range targets = rangeOf(document.targets(), page);
    for (int i = targets.first; i < targets.second; ++i) {
        const MrvPrintedTarget &target = document.targets().at(i);
        writer->addTarget(targetName(index, target.name), shown(target.y));
    }
    const Range links = rangeOf(document.links(), page);
    for (int i = links.first; i < links.second; ++i) {
        const MrvPrintedLink &link = document.links().at(i);
        writer->addLink(link.area.translated(origin - QPointF(0, page.top)),
                        addressOf(link.address, index));
    }
}

// False when it was cancelled.
bool MRVPrintedBook::printPart(int index)
{
    const Part &part = parts[std::size_t(index)];
    int number = part.firstPage;
    if (!part.title.isEmpty()) {
        beginPage(number - 1);
        const qreal top = look.text.top() + look.text.height() / 3;
        writer->addOutline(part.title, 1, 0);
        writer->addTarget(QStringLiteral("part") + targetName(index, QString()), 0);
        drawLine(part.title, titleFont(), top, Qt::AlignHCenter);
    }
    for (std::size_t i = 0; i < part.pieces.size(); ++i) {
        const MrvPrintedDocument &piece = *part.pieces[i];
        for (const MrvPrintedPage &page : piece.pages()) {
            if (!meter->advance()) {
                return false;
            }
            beginPage(number);
            if (number == part.firstPage) {
                writer->addTarget(targetName(index, QString()), 0);
            }
            printHeader(number, page.beginsChapter);
            const qreal down = page.beginsChapter ? look.chapterTop : 0;
            const QPointF origin(look.text.left(), look.text.top() + down);
            writer->painter()->translate(origin);
            piece.paint(writer->painter(), page);
            writer->painter()->translate(-origin);
            printPlaces(index, int(i), page, origin);
            ++number;
        }
    }
    return true;
}

// Lays out all documents, and numbers their pages.
bool MRVPrintedBook::layOutAll(MRVErrorSink error)
{
    qint64 length = 0;
    for (const Part &part : parts) {
        length += part.original->characterCount();
    }
    meter->begin(600, length);
    const int level = chapterLevel();
    int page = 1;
    for (Part &part : parts) {
        if (!layOut(&part, level, page == 1)) {
            return MRV::fail(error,
                             meter->isCancelled()
                                 ? MRVProgressMeter::cancelled()
                                 : MRVError{MRVErrorKind::TooLarge,
                                            MRVManuscriptPdf::tr("A paragraph, list or table is "
                                                                 "too long to be printed.")});
        }
        page += part.title.isEmpty() ? 0 : 1;
        part.firstPage = page;
        for (const auto &piece : part.pieces) {
            page += piece->pages().size();
        }
    }
    meter->begin(900, page);
    return true;
}

bool MRVPrintedBook::print(QByteArray *bytes, const MRVProgress &progress, MRVErrorSink error)
{
    MRVPdfWriter pdf(
        look.paper / Scale,
        {options.title, options.authors.join(QLatin1String(", ")), options.language, options.date});
    MRVProgressMeter ownMeter(progress);
    writer = &pdf;
    meter = &ownMeter;
    if (!layOutAll(error)) {
        return false;
    }
    printTitlePage();
    printContents();
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!printPart(int(i))) {
            return MRV::fail(error, MRVProgressMeter::cancelled());
        }
    }
    meter->begin(1000, 1);
    return pdf.finish(bytes, error);
}

MRVManuscriptPdf::MRVManuscriptPdf(const MRVPrintOptions &options)
    : m_book(std::make_unique<MRVPrintedBook>(options))
{
}

MRVManuscriptPdf::~MRVManuscriptPdf() = default;

void MRVManuscriptPdf::addDocument(const QTextDocument &document, const QString &fileName,
                                   const QString &heading)
{
    m_book->add(document, fileName, heading);
}

QString MRVManuscriptPdf::missingCharacters() const
{
    return m_book->missingCharacters();
}

void MRVManuscriptPdf::addPart(const QString &title)
{
    m_book->addTitle(title);
}

QStringList MRVManuscriptPdf::deadLinks() const
{
    return m_book->deadLinks();
}

int MRVManuscriptPdf::wideTables() const
{
    return m_book->countOf(&MrvPrintedDocument::wideTables);
}

int MRVManuscriptPdf::flattenedTables() const
{
    return m_book->countOf(&MrvPrintedDocument::flattenedTables);
}

QStringList MRVManuscriptPdf::notes() const
{
    QStringList notes;
    const QStringList dead = deadLinks();
    if (!dead.isEmpty()) {
        notes.append(tr("links that lead nowhere in the document, and are text there: %1 (%2)")
                         .arg(QString::number(dead.size()), dead.constFirst()));
    }
    const QString missing = missingCharacters();
    if (!missing.isEmpty()) {
        notes.append(MRVPdfWriter::missingCharactersNote(missing));
    }
    if (wideTables() > 0) {
        notes.append(tr("tables that are wider than the paper, and cut off: %1").arg(wideTables()));
    }
    if (flattenedTables() > 0) {
        notes.append(tr("tables within four others, of which the rows are lines of text: %1")
                         .arg(flattenedTables()));
    }
    return notes;
}

bool MRVManuscriptPdf::toByteArray(QByteArray *bytes, MRVErrorSink error)
{
    return m_book->print(bytes, m_progress, error);
}
