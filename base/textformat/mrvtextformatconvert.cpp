#include "textformat/mrvtextformat.h"

#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextcharformat.h"
#include "textformat/mrvtextformat_p.h"
#include "textformat/mrvtextformatchanges.h"
#include "textformat/mrvtextutil.h"

#include <QFont>
#include <QPair>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

#include <optional>

namespace {

// The arguments of convertToFormat().
struct Style
{
    const QTextCharFormat *charFormat;
    const QTextBlockFormat *blockFormat;
    bool keepSize;
    bool keepColors;
    bool keepEmphasis;
    bool keepIndents;
    bool keepSpacing;
    bool keepAlignment;
    bool keepFamily;
    const QList<int> &keep;
    bool overridePreserved;
    bool combineEmphasis;

    QTextCharFormat merged(const QTextCharFormat &existing) const
    {
        return MRVTextCharFormat::merge(existing, *charFormat, keepSize, keepColors, keepEmphasis,
                                        keepFamily, keep, overridePreserved, combineEmphasis);
    }
    QTextBlockFormat merged(const QTextBlock &block) const
    {
        return MRVTextFormat::mergeBlockFormat(block, *blockFormat, keepIndents, keepSpacing,
                                               keepAlignment, keep);
    }
};

// Restyles the blocks from first to last, and those parts of their fragments that lie in
// [start, end).
class Restyler
{
public:
    explicit Restyler(const Style &style)
        : m_style(style)
    {
    }

    void restyle(const QTextBlock &first, const QTextBlock &last, int start, int end)
    {
        for (QTextBlock block = first; block.isValid(); block = block.next()) {
            if (m_style.charFormat) {
                collectBlockCharFormat(block);
            }
            if (m_style.blockFormat) {
                collectBlockFormat(block);
            }
            if (m_style.charFormat) {
                collectRuns(block, start, end);
            }
            if (block == last) {
                break;
            }
        }
    }

    void apply(QTextDocument *document) const { m_changes.apply(document); }

private:
    // Of a block or of a fragment; both know the index of their character format.
    template<typename Part>
    const std::optional<QTextCharFormat> &replacement(const Part &part)
    {
        return m_chars.value(
            part.charFormatIndex(), [&] { return part.charFormat(); },
            [this](const QTextCharFormat &format) { return m_style.merged(format); });
    }

    void collectBlockCharFormat(const QTextBlock &block)
    {
        const auto &changed = replacement(block);
        if (changed) {
            m_changes.setBlockCharFormat(block.position(), *changed);
        }
    }

    void collectBlockFormat(const QTextBlock &block)
    {
        // The block format names the list, and the mark of preserved paragraphs lies in the
        // first character's, so these two decide.
        const QTextBlock::iterator run = block.begin();
        const int firstChar =
            run.atEnd() ? block.charFormatIndex() : run.fragment().charFormatIndex();
        const auto &changed = m_blocks.value(
            qMakePair(block.blockFormatIndex(), firstChar), [&] { return block.blockFormat(); },
            [&](const QTextBlockFormat &) { return m_style.merged(block); });
        if (changed) {
            m_changes.setBlockFormat(block.position(), *changed);
        }
    }

    void collectRuns(const QTextBlock &block, int start, int end)
    {
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            if (!run.isValid() || run.position() + run.length() <= start) {
                continue;
            }
            if (run.position() >= end) {
                break;
            }
            const auto &changed = replacement(run);
            if (changed) {
                m_changes.setCharFormat(qMax(run.position(), start),
                                        qMin(run.position() + run.length(), end), *changed);
            }
        }
    }

    const Style &m_style;
    MrvFormatChanges m_changes;
    MrvReplacements<QTextCharFormat, int> m_chars;
    MrvReplacements<QTextBlockFormat, QPair<int, int>> m_blocks;
};

// Qt keeps a family in two properties; HTML import sets both.
QString familyOf(const QTextCharFormat &format)
{
    const QString family = format.stringProperty(QTextFormat::FontFamily);
    return family.isEmpty() ? format.property(QTextFormat::FontFamilies).toStringList().value(0)
                            : family;
}

QTextCharFormat withAvailableWeight(const QTextCharFormat &existing)
{
    const int stored = existing.intProperty(QTextFormat::FontWeight);
    const int weight = stored == 0 ? int(QFont::Normal) : stored;
    const QString family = familyOf(existing);
    if (MRVTextUtil::hasWeight(family, weight)) {
        return existing;
    }
    QTextCharFormat format = existing;
    const int closest = MRVTextUtil::closestFontWeight(family, weight);
    // Deliberate: normal weight is unset, so that it keeps inheriting from the document's default.
    if (closest == QFont::Normal) {
        format.clearProperty(QTextFormat::FontWeight);
    } else {
        format.setProperty(QTextFormat::FontWeight, closest);
    }
    return format;
}

} // namespace

QTextBlockFormat MRVTextFormat::mergeBlockFormat(const QTextBlock &block,
                                                 const QTextBlockFormat &with, bool keepIndents,
                                                 bool keepSpacing, bool keepAlignment,
                                                 const QList<int> &keep)
{
    // A cursor of an invalid block crashes.
    if (!block.isValid()) {
        return MRVTextBlockFormat::merge(QTextBlockFormat(), with, keepIndents, keepSpacing,
                                         keepAlignment, keep);
    }
    if (mrvIsPreserved(QTextCursor(block).charFormat())) {
        return block.blockFormat();
    }
    return MRVTextBlockFormat::merge(block.blockFormat(), with, keepIndents || block.textList(),
                                     keepSpacing, keepAlignment, keep);
}

void MRVTextFormat::convertToFormat(QTextDocument *document, const QTextCharFormat *charFormat,
                                    const QTextBlockFormat *blockFormat, bool keepSize,
                                    bool keepColors, bool keepEmphasis, bool keepIndents,
                                    bool keepSpacing, bool keepAlignment, bool keepFamily,
                                    const QList<int> &keep, bool overridePreserved,
                                    bool combineEmphasis)
{
    if (!document) {
        return;
    }
    convertToFormat(document, 0, document->characterCount() - 1, charFormat, blockFormat, keepSize,
                    keepColors, keepEmphasis, keepIndents, keepSpacing, keepAlignment, keepFamily,
                    keep, overridePreserved, combineEmphasis);
}

void MRVTextFormat::convertToFormat(QTextDocument *document, int start, int end,
                                    const QTextCharFormat *charFormat,
                                    const QTextBlockFormat *blockFormat, bool keepSize,
                                    bool keepColors, bool keepEmphasis, bool keepIndents,
                                    bool keepSpacing, bool keepAlignment, bool keepFamily,
                                    const QList<int> &keep, bool overridePreserved,
                                    bool combineEmphasis)
{
    if (!document || end < start) {
        return;
    }
    const QTextBlock first = document->findBlock(start);
    const QTextBlock last = document->findBlock(end);
    if (!first.isValid() || !last.isValid()) {
        return;
    }
    const Style style{charFormat,   blockFormat, keepSize,          keepColors,
                      keepEmphasis, keepIndents, keepSpacing,       keepAlignment,
                      keepFamily,   keep,        overridePreserved, combineEmphasis};
    Restyler restyler(style);
    restyler.restyle(first, last, start, end);
    restyler.apply(document);
}

void MRVTextFormat::convertToFormat(const QTextCursor &cursor, const QTextCharFormat *charFormat,
                                    const QTextBlockFormat *blockFormat, bool keepSize,
                                    bool keepColors, bool keepEmphasis, bool keepIndents,
                                    bool keepSpacing, bool keepAlignment, bool keepFamily,
                                    const QList<int> &keep, bool overridePreserved,
                                    bool combineEmphasis)
{
    if (cursor.isNull()) {
        return;
    }
    convertToFormat(cursor.document(), cursor.selectionStart(), cursor.selectionEnd(), charFormat,
                    blockFormat, keepSize, keepColors, keepEmphasis, keepIndents, keepSpacing,
                    keepAlignment, keepFamily, keep, overridePreserved, combineEmphasis);
}

void MRVTextFormat::adjustFontWeight(const QTextCursor &cursor)
{
    if (cursor.isNull()) {
        return;
    }
    const int start = cursor.selectionStart();
    const int end = cursor.selectionEnd();
    MrvFormatChanges changes;
    MrvReplacements<QTextCharFormat, int> replacements;
    QTextBlock block = cursor.document()->findBlock(start);
    for (; block.isValid(); block = block.next()) {
        const auto &blockChar = replacements.value(
            block.charFormatIndex(), [&] { return block.charFormat(); }, withAvailableWeight);
        if (blockChar) {
            changes.setBlockCharFormat(block.position(), *blockChar);
        }
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            if (!run.isValid() || run.position() < start) {
                continue;
            }
            if (run.position() > end) {
                break;
            }
            const auto &changed = replacements.value(
                run.charFormatIndex(), [&] { return run.charFormat(); }, withAvailableWeight);
            if (changed) {
                changes.setCharFormat(run.position(), run.position() + run.length(), *changed);
            }
        }
    }
    changes.apply(cursor.document());
}
