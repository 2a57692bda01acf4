#include "pdf/mrvscriptpdf.h"

#include "pdf/mrvpdfwriter.h"
#include "screenplay/mrvscriptcast.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfailure.h"
#include "util/mrvfixeddate.h"

#include <QMap>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

using Element = MRVFountainElement;
using Line = MRVScriptLine;
using Page = MRVScriptPage;

constexpr qreal Scale = MRVPdfWriter::DotsPerPoint;
constexpr qreal Baseline = 0.8; // of the size, from a line's top
constexpr int MarkColor = 0xfff3a0; // behind an actor's speeches
constexpr int WatermarkColor = 0xd9d9d9;
constexpr qreal WatermarkLength = 0.75; // of the paper's diagonal
constexpr qreal OutlineDistance = 24; // of what a viewer shows above an entry's line, in points

bool isAct(const Element &element)
{
    static const QRegularExpression act(QStringLiteral(
        "^(?:ACT|AKT|ACTE|ACTO|ATTO|TEASER|COLD OPEN(?:ING)?|PROLOGUE|EPILOGUE|TAG)\\b"));
    return element.kind == Element::Centered && act.match(element.text().trimmed()).hasMatch();
}

class Printer
{
public:
    Printer(const MRVFountainScript &script, const MRVScriptMode &mode,
            const MRVScriptPdf::Options &options)
        : m_script(script)
        , m_options(options)
        , m_pagination(script, mode, options.pagination)
    {
    }

    // False, with nothing to print, where nobody of the name speaks.
    bool select();
    bool isEmpty() const { return m_pages.isEmpty(); }
    bool print(const MRVPdfProperties &properties, QByteArray *bytes, MRVErrorSink error);
    QString missingCharacters() const;

private:
    bool selectScenes();
    void printPage(const Page &page);
    void printLine(const Line &line);
    void printWatermark();
    void addOutline(const Line &line);

    const MRVFountainScript &m_script;
    const MRVScriptPdf::Options &m_options;
    MRVScriptPagination m_pagination;
    QVector<Page> m_pages;
    QSet<int> m_marked; // elements
    bool m_hasActs = false;
    int m_outlined = -1; // the last element with an entry of the outline
    MRVPdfWriter *m_writer = nullptr;
};

// Leaves the pages of the scenes in which the character speaks.
bool Printer::selectScenes()
{
    const QString wanted = m_options.character.simplified().toUpper();
    const MRVScriptCast cast(m_script);
    QSet<int> scenes; // by the index of the heading
    QVector<int> sceneOf;
    int scene = -1;
    bool speaks = false;
    for (int i = 0; i < m_script.elements.size(); ++i) {
        const Element &element = m_script.elements.at(i);
        scene = element.kind == Element::SceneHeading ? i : scene;
        sceneOf.append(scene);
        if (element.kind == Element::Character) {
            speaks = MRVScriptCast::nameOf(element.text()) == wanted
                || cast.namesIn(element.text()).contains(wanted);
        } else if (element.kind < Element::Note && element.kind != Element::Dialogue
                   && element.kind != Element::Parenthetical && element.kind != Element::Lyrics) {
            speaks = false;
        }
        if (speaks) {
            scenes.insert(scene);
            m_marked.insert(i);
        }
    }
    const auto isOther = [&](const Page &page) {
        return std::none_of(page.lines.cbegin(), page.lines.cend(), [&](const Line &line) {
            return line.element >= 0 && scenes.contains(sceneOf.at(line.element));
        });
    };
    m_pages.erase(std::remove_if(m_pages.begin(), m_pages.end(), isOther), m_pages.end());
    return !scenes.isEmpty();
}

bool Printer::select()
{
    m_pages = m_pagination.pages();
    const int first = m_options.firstPage;
    const int last = m_options.lastPage;
    const auto isOutside = [first, last](const Page &page) {
        return page.number < first || (last > 0 && page.number > last);
    };
    m_pages.erase(std::remove_if(m_pages.begin(), m_pages.end(), isOutside), m_pages.end());
    if (!m_options.character.isEmpty()) {
        return selectScenes();
    }
    if (first <= 1 && last == 0) {
        m_pages = m_pagination.titlePages() + m_pages;
    }
    return true;
}

void Printer::printLine(const Line &line)
{
    constexpr int dpi = MRVPdfWriter::DotsPerInch;
    QVector<QTextLayout::FormatRange> formats;
    const QString text = line.text();
    int at = 0;
    for (const MRVFountainRun &run : line.runs) {
        QTextCharFormat format;
        format.setFont(m_pagination.font(line.style, run.emphasis, dpi));
        format.setForeground(m_pagination.color(line.style));
        formats.append({at, run.text.size(), format});
        at += run.text.size();
    }
    QTextLayout layout(text, m_pagination.font(line.style, {}, dpi));
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(line.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTabStopDistance(MRVScriptPagination::TabDistance * Scale);
    if (line.tabStop > 0) {
        option.setTabArray({line.tabStop * Scale});
    }
    layout.setTextOption(option);
    layout.setFormats(formats);
    const auto shape = [&layout] {
        layout.beginLayout();
        const QTextLine shaped = layout.createLine();
        layout.endLayout();
        return shaped;
    };
    QTextLine shaped = shape();
    const qreal space = line.width * Scale - shaped.naturalTextWidth();
    const int gaps = text.count(u' ');
    if (line.alignment == Qt::AlignJustify && space > 0 && gaps > 0) {
        for (QTextLayout::FormatRange &range : formats) {
            range.format.setFontWordSpacing(space / gaps);
        }
        layout.setFormats(formats);
        shaped = shape();
    }
    const qreal offset = line.alignment == Qt::AlignRight ? space
        : line.alignment == Qt::AlignHCenter              ? space / 2
                                                          : 0;
    const qreal size = m_pagination.font(line.style, {}, dpi).pixelSize();
    const QPointF position(line.left * Scale + offset,
                           line.top * Scale + Baseline * size - shaped.ascent());
    if (m_marked.contains(line.element)) {
        const QRectF area(line.left * Scale, line.top * Scale, line.width * Scale,
                          line.height * Scale);
        m_writer->painter()->fillRect(area, QColor(QRgb(MarkColor)));
    }
    layout.draw(m_writer->painter(), position);
}

void Printer::printWatermark()
{
    QPainter *painter = m_writer->painter();
    const QSizeF paper = m_pagination.paperSize() * Scale;
    const qreal diagonal = std::hypot(paper.width(), paper.height());
    constexpr int FirstSize = 1000;
    QFont font(QStringLiteral("Arial"));
    font.setStyleHint(QFont::SansSerif);
    font.setBold(true);
    font.setPixelSize(FirstSize);
    const qreal width = QFontMetricsF(font).horizontalAdvance(m_options.watermark);
    const qreal fitting = FirstSize * WatermarkLength * diagonal / qMax(1.0, width);
    font.setPixelSize(qBound(1, int(fitting), int(paper.width() / 5)));
    painter->save();
    painter->setFont(font);
    painter->setPen(QColor(QRgb(WatermarkColor)));
    painter->translate(paper.width() / 2, paper.height() / 2);
    constexpr qreal degrees = 180 / M_PI;
    painter->rotate(-std::atan2(paper.height(), paper.width()) * degrees);
    painter->drawText(QRectF(-diagonal / 2, -paper.width() / 4, diagonal, paper.width() / 2),
                      Qt::AlignCenter | Qt::TextSingleLine, m_options.watermark);
    painter->restore();
}

void Printer::addOutline(const Line &line)
{
    if (line.kind != Line::Text || line.element < 0 || line.element == m_outlined) {
        return;
    }
    const Element &element = m_script.elements.at(line.element);
    const bool isScene = element.kind == Element::SceneHeading;
    if (!isScene && !isAct(element)) {
        return;
    }
    m_outlined = line.element;
    const qreal y = qMax(0.0, line.top - OutlineDistance) * Scale;
    m_writer->addOutline(element.text(), isScene && m_hasActs ? 2 : 1, y);
}

void Printer::printPage(const Page &page)
{
    m_writer->setPageNumber(page.number);
    if (!m_options.watermark.isEmpty()) {
        printWatermark();
    }
    for (const Line &line : page.lines) {
        addOutline(line);
        printLine(line);
    }
}

QString Printer::missingCharacters() const
{
    QMap<int, QString> texts; // by style
    for (const Page &page : m_pages) {
        for (const Line &line : page.lines) {
            texts[line.style] += line.text();
        }
    }
    QString missing;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        const QFont font = m_pagination.font(it.key(), {}, MRVPdfWriter::DotsPerInch);
        const QString some = MRVPdfWriter::missingCharacters(it.value(), font);
        missing += missing.contains(some) ? QString() : some;
    }
    return missing;
}

bool Printer::print(const MRVPdfProperties &properties, QByteArray *bytes, MRVErrorSink error)
{
    m_hasActs = std::any_of(m_script.elements.cbegin(), m_script.elements.cend(), isAct);
    MRVPdfWriter writer(m_pagination.paperSize(), properties);
    m_writer = &writer;
    MRVProgressMeter meter(m_options.progress);
    meter.begin(900, m_pages.size());
    for (int i = 0; i < m_pages.size(); ++i) {
        if (!meter.advance()) {
            return MRV::fail(error, MRVProgressMeter::cancelled());
        }
        if (i > 0) {
            writer.newPage();
        }
        printPage(m_pages.at(i));
    }
    return writer.finish(bytes, error);
}

} // namespace

QByteArray MRVScriptPdf::toByteArray(const MRVFountainScript &script, const MRVScriptMode &mode,
                                     const Options &options, MRVErrorSink error, QString *missing)
{
    MRVPdfProperties properties;
    if (!MRVFixedDate::fromEnvironment(&properties.date, error)) {
        return {};
    }
    properties.title = script.title(QStringLiteral("Title")).simplified();
    properties.author = script.title(QStringLiteral("Author")).simplified();
    if (properties.author.isEmpty()) {
        properties.author = script.title(QStringLiteral("Authors")).simplified();
    }
    properties.language = options.language;
    Printer printer(script, mode, options);
    if (!printer.select()) {
        MRV::fail(error, MRVErrorKind::NotFound,
                  tr("Nobody called \"%1\" speaks.").arg(options.character));
        return {};
    }
    if (printer.isEmpty()) {
        MRV::fail(error, MRVErrorKind::NotFound,
                  tr("The script has no such pages, or nothing to print."));
        return {};
    }
    QByteArray bytes;
    if (missing) {
        *missing = printer.missingCharacters();
    }
    return printer.print(properties, &bytes, error) ? bytes : QByteArray();
}
