#pragma once

#include "util/mrvbase_export.h"

#include <QFlags>
#include <QTextBlockFormat>
#include <QTextCharFormat>

class QDataStream;

/**
 * A style that a writer gives to selected text: a character format, a paragraph format, and which
 * of the two count. What it is called is the business of MRVTextPresetScheme.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextPreset
{
public:
    /** Which parts of a preset are applied. Stored, so a number never changes its meaning. */
    enum ApplyFlag {
        ApplyCharFormat = 1, ///< the character format, to the selected text
        ApplyBlockFormat =
            2, ///< the paragraph format, to the paragraphs that the selection touches
    };
    Q_DECLARE_FLAGS(ApplyFlags, ApplyFlag)

    /** Empty formats, of which none is applied. */
    MRVTextPreset() = default;
    /**
     * Flags that this version does not know are kept and stored. A block format taken from a
     * paragraph may name the list or table of its document: clear property ObjectIndex before it is
     * applied elsewhere.
     */
    MRVTextPreset(const QTextCharFormat &charFormat, const QTextBlockFormat &blockFormat,
                  ApplyFlags applyFlags);

    /**
     * @name Parts
     *
     * The formats are kept whatever the flags are: these only say which of them are applied.
     */
    //@{
    QTextCharFormat charFormat() const { return m_charFormat; }
    QTextBlockFormat blockFormat() const { return m_blockFormat; }
    ApplyFlags applyFlags() const { return m_applyFlags; }

    void setCharFormat(const QTextCharFormat &format) { m_charFormat = format; }
    void setBlockFormat(const QTextBlockFormat &format) { m_blockFormat = format; }
    void setApplyFlags(ApplyFlags flags) { m_applyFlags = flags; }
    //@}

    /** Presets are equal when they are stored alike. */
    MRVBASE_EXPORT friend bool operator==(const MRVTextPreset &a, const MRVTextPreset &b);
    friend bool operator!=(const MRVTextPreset &a, const MRVTextPreset &b) { return !(a == b); }

private:
    QTextCharFormat m_charFormat;
    QTextBlockFormat m_blockFormat;
    ApplyFlags m_applyFlags;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVTextPreset::ApplyFlags)
Q_DECLARE_TYPEINFO(MRVTextPreset, Q_MOVABLE_TYPE);

/**
 * The stored form: version 1 and the flags as qint32, then the two formats as
 * MRVTextFormat::toByteArray() gives them, which leaves out what cannot be read back.
 */
MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream, const MRVTextPreset &preset);
/**
 * Reads the stored form from any bytes, taking memory only in proportion to them. Another version
 * (of which nothing but the version is read) and damaged data leave @p preset as it is; the status
 * is then not Ok.
 */
MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVTextPreset &preset);
