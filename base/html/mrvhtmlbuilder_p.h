#pragma once

#include "html/mrvhtmlelements_p.h"
#include "html/mrvhtmlplaces_p.h"
#include "html/mrvhtmltree_p.h"
#include "html/mrvhtmlwriter_p.h"

#include <deque>

/** Builds a document from the tree of a page. */
class MRVHtmlBuilder
{
public:
    /** @p sheets may be null: the page has none. */
    MRVHtmlBuilder(const MRVHtmlTree &tree, const MRVStyleSheet *sheets, QTextDocument *document);

    /** @param runs if given, receives what is written. */
    void build(MRVHtmlRuns *runs = nullptr);

    /** How elements are shown that their styles show in another way than their kind is. */
    const MRVHtmlDisplays &displays() const { return m_displays; }
    /** How many comments in the margin the page has. */
    int commentCount() const { return m_writer.commentCount(); }

private:
    /** The elements of one parent that have been met, as selectors see them. */
    struct Siblings
    {
        std::deque<MRVCssElement> elements; // stay in place
        QHash<QString, int> counts; // by name
    };

    MRVHtmlStyle styleOf(const GumboNode *element, const MRVHtmlStyle &outside,
                         const MRVCssElement *css) const;
    void setLanguage(const GumboNode *element, const MRVHtmlStyle &outside,
                     MRVHtmlStyle *style) const;
    const MRVCssElement *cssElement(const GumboNode *element, const MRVCssElement *parent,
                                    Siblings *siblings) const;
    void prepareDocument(const MRVHtmlStyle &body);

    void writeText(const QString &text, const MRVHtmlStyle &style, const GumboNode *node = nullptr);
    void separate(const MRVHtmlStyle &style);
    void readChildren(const GumboNode *parent, const MRVHtmlStyle &style, const MRVCssElement *css);
    bool readElement(const GumboNode *element, const MRVHtmlStyle &outside,
                     const MRVCssElement *css);
    void keepDisplay(const GumboNode *element, const MRVHtmlStyle &style);
    void readShown(const GumboNode *element, const MRVHtmlStyle &style, const MRVCssElement *css);
    void readInvisible(const GumboNode *element, const MRVHtmlStyle &style,
                       const MRVCssElement *css);
    void readBlock(const GumboNode *element, const MRVHtmlStyle &style, const MRVCssElement *css);
    void readInline(const GumboNode *element, MRVHtmlStyle style, const MRVCssElement *css);
    void readInside(const GumboNode *element, const MRVHtmlStyle &style, const MRVCssElement *css);
    void readPicture(const GumboNode *element, const MRVHtmlStyle &style, const MRVCssElement *css);
    void readComment(const GumboNode *element);
    void readInput(const GumboNode *element, const MRVHtmlStyle &style);
    static int captionOf(const GumboNode *element);
    MRVHtmlBox boxOf(const GumboNode *element, const MRVHtmlStyle &style);
    std::shared_ptr<MRVHtmlList> listOf(const GumboNode *element, const MRVHtmlStyle &style) const;
    void continueList(const GumboNode *item, MRVHtmlBox *box);

    struct Table;

    void readTable(const GumboNode *element, const MRVHtmlStyle &style, const MRVCssElement *css);
    void readFrame(const GumboNode *element, const MRVHtmlStyle &style, const MRVCssElement *css);
    void collectTable(const GumboNode *parent, const MRVHtmlStyle &style, const MRVCssElement *css,
                      Table *table);
    void collectRow(const GumboNode *row, const MRVHtmlStyle &style, const MRVCssElement *css,
                    Table *table);
    void writeGrid(const Table &table, const QTextTableFormat &format);
    void writeAsParagraphs(const Table &table);
    void addNames(const QStringList &names);

    const MRVHtmlTree &m_tree;
    const MRVStyleSheet *const m_sheets;
    QTextDocument *const m_document;
    const bool m_isQtPage; // written by QTextDocument::toHtml()
    MRVHtmlWriter m_writer;
    MRVHtmlStyler m_styler;
    QString m_language; // of the page
    MRVHtmlMarks m_marks;
    MRVHtmlDisplays m_displays;
    int m_noteCount = 0; // of elements that are said to be notes
    MRVHtmlRuns *m_runs = nullptr;
};
