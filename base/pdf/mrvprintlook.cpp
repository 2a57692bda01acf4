#include "pdf/mrvprintlook_p.h"

#include "pdf/mrvpdfwriter.h"
#include "pdf/mrvprintoptions.h"
#include "util/mrvpapersize.h"

namespace {

constexpr qreal Scale = MRVPdfWriter::DotsPerPoint;
constexpr qreal Inch = 72;

QFont fontOf(const char *family, QFont::StyleHint hint, qreal size)
{
    QFont font(QLatin1String(family), -1);
    font.setStyleHint(hint);
    font.setPointSizeF(size);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Qt makes one glyph of "fi" otherwise, which a search in the document would not find.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
    return font;
}

} // namespace

MrvPrintLook::MrvPrintLook(const MRVPrintOptions &options)
    : isManuscript(options.layout == MRVPrintOptions::Manuscript)
    , font(isManuscript ? fontOf("Courier New", QFont::Monospace, 12)
                        : fontOf("Serif", QFont::Serif, 10.5))
    , lineHeight(isManuscript ? 24 : 14.5)
    , indent(isManuscript ? Inch / 2 : 14)
{
    const QSizeF points = !options.paper.isEmpty() ? options.paper
        : isManuscript                             ? MRVPaperSize::Letter
                                                   : MRVPaperSize::A5;
    paper = points * Scale;
    // A book's margins are a share of the paper.
    const qreal side = isManuscript ? Inch : points.width() * 0.125;
    const qreal above = isManuscript ? Inch : points.height() * 0.11;
    text = QRectF(side * Scale, above * Scale, (points.width() - 2 * side) * Scale,
                  (points.height() - 2 * above) * Scale);
    chapterTop = text.height() / (isManuscript ? 3 : 6);
}
