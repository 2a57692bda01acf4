#pragma once

#include "document/mrvdocumentflow.h"
#include "epub/mrvepuboptions.h"

#include <QVector>

class MRVEPubFormats;

/**
 * Where the pages of an e-book begin in a document.
 *
 * A page begins at a page break, at each heading of the outermost level that occurs more than once,
 * and, where those are parts, at the headings of their chapters; the first chapter of a part stands
 * on the part's page unless there is text between them. Readers take their time with a large page:
 * one that the options call so is cut at lesser headings, one above a million characters at any
 * paragraph. A piece that shows nothing is joined to the one after it.
 */
class MRVEPubPages
{
public:
    /**
     * @param title of the book; the one heading that says it is not a chapter.
     */
    MRVEPubPages(const MRVDocumentFlow &flow, MRVEPubFormats *formats, const QString &title,
                 const MRVEPubOptions &options);

    /** The first paragraph of each page; the first one is 0. */
    QVector<int> starts() const { return m_bounds.mid(0, m_bounds.size() - 1); }
    /** The outermost level of headings that pages begin at; 0: none. */
    int firstLevel() const { return m_firstLevel; }
    /** The innermost one; 0: none. */
    int lastLevel() const { return m_lastLevel; }

private:
    // A paragraph, a table or a frame at the top level.
    struct Block
    {
        int first; // paragraph
        int level; // of a heading, or 0
        bool startsPage;
        bool isBlank;
    };

    void readBlocks(MRVEPubFormats *formats);
    void findLevels(int depth);
    void keepChapter(const QString &title);
    bool isNamed(const Block &heading, bool isPart) const;
    void cutAtHeadings();
    int lengthOf(int begin, int end) const;
    template<typename IsStart>
    void cutPagesAbove(int size, IsStart isStart);

    const MRVDocumentFlow &m_flow;
    QVector<Block> m_blocks;
    QVector<int> m_bounds; // the starts and the end
    int m_firstLevel = 0;
    int m_lastLevel = 0;
};
