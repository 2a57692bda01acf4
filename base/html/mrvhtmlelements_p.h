#pragma once

#include "html/mrvhtmlstyle_p.h"

#include <QHash>

#include <gumbo.h>

/** How an element is shown. */
struct MRVHtmlShown
{
    MRVHtmlStyle::Display display = MRVHtmlStyle::Inline;
    bool isInvisible = false; ///< elements inside of it may be visible, unlike those of Hidden
};

/** How elements are shown where that is not how their kind is. */
using MRVHtmlDisplays = QHash<const GumboNode *, MRVHtmlShown>;

/** What HTML says about a kind of elements. */
struct MRVHtmlElement
{
    enum Kind {
        Plain, ///< shown as its style says
        Skipped, ///< never shown: what browsers run, keep, or put elsewhere
        LineEnd,
        Picture,
        Rule,
        Table,
        List,
        Item,
        Input,
        Quotation,
        Reading, ///< how to say the characters before it
    };

    Kind kind = Plain;
    int headingLevel = 0;
    bool isQuote = false;
    MRVHtmlStyle::Display display = MRVHtmlStyle::Inline;
    /** Its looks where no sheet says anything. */
    QVector<MRVCssDeclaration> declarations;
};

const MRVHtmlElement &mrvHtmlElement(const GumboNode *element);

/** What attributes such as "align" and "bgcolor" say about an element's looks. */
QVector<MRVCssDeclaration> mrvHtmlHints(const GumboNode *element);

/**
 * A text without the characters with which documents mark their own structure, and with line ends
 * in place of ends of paragraphs.
 */
QString mrvShownText(const QString &text);

/** The marks that browsers add to quotations, and the brackets that a reading needs in a line. */
class MRVHtmlMarks
{
public:
    /** The mark before the content of @p element; elements have to be visited in order. */
    QString before(const GumboNode *element);
    /** The one after it. */
    QString after(const GumboNode *element);

private:
    int m_quotations = 0; // around this place
};

/** Whether an element is a field to fill in, which separates the words beside it. */
bool mrvIsField(const GumboNode *element);
/** The text that a field shows, in one line: its value, if it is of a type that shows that. */
QString mrvFieldText(const GumboNode *element);

/** What a link is said to be: an MRVTextFormat::NoteLink, or 0. */
int mrvNoteLinkOf(const GumboNode *element);

/** Whether an element is said to be the text of a note. */
bool mrvIsNote(const GumboNode *element);

/** Whether an element begins or ends a comment in the margin; it shows nothing itself. */
bool mrvIsComment(const GumboNode *element);

/** What a picture of any kind names; empty for none. */
QString mrvPictureName(const GumboNode *element);
/** Whether the element is for a picture: img, object and the like. */
bool mrvIsImage(const GumboNode *element);
/** Whether such an element shows one; else its texts are shown. */
bool mrvIsPicture(const GumboNode *element);
