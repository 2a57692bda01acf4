#pragma once

#include <QSet>
#include <QString>
#include <QVector>

class QTextDocument;

/** What a reader of a manuscript sees of one paragraph. */
struct MRVParagraph
{
    QString text; ///< as markup can say it, or the end of a cell
    QString look; ///< heading, quotation, code, rule and list
    int block = 0; ///< its number in the document
    int links = 0;
    int linkedCharacters = 0; ///< that are not blank
};

using MRVParagraphs = QVector<MRVParagraph>;

/**
 * The paragraphs of a document.
 *
 * @param text     its raw text, with changes that leave the paragraphs what they are.
 * @param isMarkup several blanks count as one, those at a line end do not, and empty paragraphs
 *                 are nothing; else the text counts as it is, and nothing but it.
 */
MRVParagraphs mrvParagraphs(const QTextDocument &document, const QString &text, bool isMarkup);

/**
 * The numbers of the blocks of @p wanted that @p found does not have as they should be. What it
 * has in addition is told by the blocks around it. More links than wanted are no difference, as
 * Markdown makes links of addresses.
 */
QSet<int> mrvDifferingBlocks(const MRVParagraphs &wanted, const MRVParagraphs &found);
