#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

/** What a copy of release notes holds beside their text. */
enum class MRVNotesPictures {
    Text, ///< the texts that stand for them
    Addresses ///< pictures on http and https, and those in "data:" addresses
};

/** How release notes are shown. */
struct MRVNotesLook
{
    QUrl page; ///< the address of the notes, from which their links count
    MRVNotesPictures pictures = MRVNotesPictures::Text;
    QFont font; ///< that of the text
    QColor linkColor;
};

/**
 * Copies release notes that anybody may have written, so that a view can show them safely.
 *
 * The copy has what is written into it here and nothing else: text, headings, lists, plain tables,
 * a few looks of text, and links to the web. Colours and sizes are the view's own, so that they fit
 * together in any palette.
 *
 * What makes an engine slow is bounded: tables nest at most five deep, and have 20 columns and, all
 * together, 2,000 cells at most; tables beyond that become the paragraphs of their cells.
 * Paragraphs are split after 2,000 characters, at line ends, and in words of more than 200; a list
 * has marks for 1,000 items, and a character carries at most 16 marks. No other text is left out.
 */
class MRVNotesCopy
{
public:
    /** @param to an empty document. */
    MRVNotesCopy(const MRVNotesLook &look, QTextDocument *to);

    void copy(const QTextDocument &from);

private:
    void copyFlow(QTextFrame::iterator it);
    bool takeTable(const QTextTable *table);
    bool copyTable(const QTextTable *table);
    void copyBlock(const QTextBlock &block);
    void copyFragment(const QTextFragment &fragment, int headingLevel);
    bool mustBreakBefore(uint c) const;
    void insertBreak();
    void copyText(const QString &text, const QTextCharFormat &format);
    void copyPicture(const QTextImageFormat &picture, const QTextCharFormat &format);
    void startBlock(const QTextBlock &block);
    void addToList(const QTextBlock &block);
    QTextCharFormat charFormat(const QTextCharFormat &from, int headingLevel) const;
    void setAnchor(const QTextCharFormat &from, QTextCharFormat *format) const;
    QString linkTo(const QString &address) const;

    const MRVNotesLook m_look;
    const QString m_fixedFamily;
    QTextCursor m_cursor;
    QHash<const QTextList *, QTextList *> m_lists;
    bool m_isBlockFree = true; // the present paragraph is still to be filled
    int m_blockLength = 0;
    int m_wordLength = 0;
    int m_marks = 0; // in a row
    int m_tableDepth = 0;
    int m_cells = 0; // of all tables
    qint64 m_laidOut = 0; // by all tables
};
