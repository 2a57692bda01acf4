#pragma once

#include <QString>
#include <QTextFormat>
#include <QVector>

class QTextDocument;
class QTextFrame;
class QTextTable;

/** A stretch of one format in a paragraph. */
struct MRVEPubFragment
{
    int length;
    int format;
};

/** An anchor's place: names are those of the character that stands there. */
struct MRVEPubAnchor
{
    QString name;
    int position;
};

/** Text with an address; adjacent fragments with the same address are one. */
struct MRVEPubLink
{
    QString address;
    int begin;
    int end;
};

/** A paragraph. */
struct MRVEPubParagraph
{
    int position;
    int length; // without the separator
    int format;
    int firstFragment; // its fragments end where those of the next paragraph begin
    int headingLevel; // 1 to 6, or 0
    int list = -1; // by object index
    int itemNumber = 0; // counted from 1 in the list, or from where that starts
};

/** A table or a frame; it holds the paragraphs from begin up to, not including, end. */
struct MRVEPubFrame
{
    QTextFrame *frame;
    QTextTable *table; // null for other frames
    int begin;
    int end;
};

/**
 * A document as arrays, read in one pass, for all that follows to look at.
 *
 * Formats are known by their index, so that what a format means is found out once. The document
 * must not change, and must live as long.
 */
class MRVEPubFlow
{
public:
    explicit MRVEPubFlow(const QTextDocument &document);

    const QTextDocument &document;
    const QString text; // whole, with separators
    const QVector<QTextFormat> formats;
    QVector<MRVEPubParagraph> paragraphs; // and one that stands for the end
    QVector<MRVEPubFragment> fragments;
    QVector<MRVEPubFrame> frames; // by their first paragraph
    QVector<MRVEPubAnchor> anchors;
    QVector<MRVEPubLink> links;

    int count() const { return paragraphs.size() - 1; }
    /** The paragraph that a position lies in. */
    int paragraphAt(int position) const;
    QStringView textOf(const MRVEPubParagraph &paragraph) const
    {
        return QStringView(text).mid(paragraph.position, paragraph.length);
    }
    /** Whether a paragraph shows nothing: no text but blanks, no picture, no rule. */
    bool isBlank(int paragraph) const;
    bool hasRule(int paragraph) const;
    /** Whether a paragraph stands in a table or a frame. */
    bool isInFrame(int paragraph) const { return m_isInFrame.at(paragraph); }

private:
    struct Reader;
    void readFrames();

    QVector<bool> m_isInFrame;
};
