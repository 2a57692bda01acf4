#pragma once

#include "util/mrvbase_export.h"

#include <QHash>
#include <QTextFormat>

#include <optional>
#include <utility>
#include <vector>

class QTextDocument;

/**
 * Whether @p a and @p b set the same properties to values of the same types. Qt's own comparison
 * depends on the order in which the properties were set; this one does not, and distinguishes a
 * heading level 1 from a line spacing of 1.0.
 */
MRVBASE_EXPORT bool mrvIsSameFormat(const QTextFormat &a, const QTextFormat &b);

/**
 * The changes to a document's formats, collected while walking it and applied afterwards, since an
 * edit ends the walk over a block's fragments. Positions, not cursors: every living cursor is
 * adjusted at every edit.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MrvFormatChanges
{
public:
    /**
     * @name Collecting
     *
     * Notes that the paragraph at @p position, or the text of [@p start, @p end), gets a @p format,
     * in place of the one it has. Nothing changes before apply(). Positions are those of the
     * document as it is then, so nothing may edit it in between; ranges must not overlap.
     */
    //@{
    void setBlockCharFormat(int position, const QTextCharFormat &format)
    {
        m_blockChars.push_back({position, position, format});
    }
    void setBlockFormat(int position, const QTextBlockFormat &format)
    {
        m_blocks.push_back({position, position, format});
    }
    void setCharFormat(int start, int end, const QTextCharFormat &format)
    {
        m_runs.push_back({start, end, format});
    }
    //@}

    /** One undo step, or none where nothing was collected. */
    void apply(QTextDocument *document) const;

private:
    template<typename Format>
    struct Change
    {
        int start;
        int end;
        Format format;
    };

    std::vector<Change<QTextCharFormat>> m_blockChars;
    std::vector<Change<QTextBlockFormat>> m_blocks;
    std::vector<Change<QTextCharFormat>> m_runs;
};

/**
 * What takes the place of each format. A document has far fewer formats than fragments: a format's
 * replacement is computed once and found again by its index. Nothing stands for a format that stays
 * as it is.
 *
 * @since 1.0
 */
template<typename Format, typename Key>
class MrvReplacements
{
public:
    /** @p present gives the format that @p key stands for; both are asked only the first time. */
    template<typename Present, typename Compute>
    const std::optional<Format> &value(Key key, Present present, Compute compute)
    {
        auto it = m_values.find(key);
        if (it == m_values.end()) {
            const Format existing = present();
            Format replacement = compute(existing);
            std::optional<Format> changed;
            if (!mrvIsSameFormat(replacement, existing)) {
                changed = std::move(replacement);
            }
            it = m_values.insert(key, changed);
        }
        return it.value();
    }

private:
    QHash<Key, std::optional<Format>> m_values;
};
