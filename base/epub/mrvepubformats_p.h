#pragma once

#include "document/mrvdocumentflow.h"
#include "epub/mrvepublooks_p.h"
#include "epub/mrvepubmetadata.h"

#include <QByteArray>
#include <QHash>
#include <QPair>
#include <QString>
#include <QVector>

/** Elements of text, innermost last. */
enum class MRVEPubInline {
    Direction,
    Link,
    Span,
    Strong,
    Emphasis,
    Code,
    Mark,
    Strike,
    Raised,
    Lowered
};

/** An element that sets the direction of the text in it. */
struct MRVEPubDirection
{
    const char *name; // in MRVTextFormat::DirectionProperty
    const char *begin; // tags
    const char *end;
    bool isInEPub2;
};

/** What a character format means, wherever it stands. */
struct MRVEPubTextFormat
{
    bool isKnown = false;
    bool isPicture = false;
    bool isComment = false; // an annotation or a note in the text
    bool isBold = false;
    bool hasNames = false;
    uint elements = 0; // bits by MRVEPubInline, the directions, the weight and the link left out
    QVector<const MRVEPubDirection *> directions; // outermost first
    MRVEPubTextLook look; // with the size of the body's text as 100
    QString address;
    QString linkTitle;
    QString language; // empty: the book's
};

/** What a paragraph format means. */
struct MRVEPubParagraphFormat
{
    bool isKnown = false;
    bool isPreformatted = false;
    bool isItem = false;
    bool breaksBefore = false; // the page
    bool breaksAfter = false;
    int quoteLevel = 0;
    int indent = 0; // levels, which lists use up
    Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;
    QTextBlockFormat::MarkerType marker = QTextBlockFormat::MarkerType::NoMarker;
    MRVEPubParagraphLook look;
};

/** The paragraph around text, as far as the text's look counts from it. */
struct MRVEPubContext
{
    int size = 100;
    bool isBold = false;
    bool isCode = false;
    QString language;
};

/**
 * What the formats of a document mean as elements and classes; each is looked at once.
 *
 * Sizes count from that of most of the text; its font and its colour are the reader's business.
 */
class MRVEPubFormats
{
public:
    MRVEPubFormats(const MRVDocumentFlow &flow, MRVEPubLooks *looks, MRVEPubVersion version,
                   const QString &language);

    const MRVEPubTextFormat &text(int index);
    const MRVEPubParagraphFormat &paragraph(int index);
    /** The look of a paragraph, with what its text has in common. */
    MRVEPubParagraphLook look(int paragraph, MRVEPubKind kind, int usedIndent,
                              MRVEPubContext *context);
    /** The direction of a paragraph, where it says none that of its text. */
    bool isRightToLeft(int paragraph);
    /** Attributes of the span that a text needs beside its elements; empty: none. */
    QByteArray span(int index, const MRVEPubContext &context);
    /** Languages of text that was looked at, beside the book's own, in order of appearance. */
    QStringList languages() const { return m_languages; }
    double bodyPixels() const { return m_bodyPixels; }

private:
    void findBody();
    MRVEPubTextFormat readText(const QTextCharFormat &format) const;
    void readDirections(const QTextCharFormat &format, MRVEPubTextFormat *text) const;
    void readLook(const QTextCharFormat &format, MRVEPubTextFormat *text) const;
    MRVEPubParagraphFormat readParagraph(const QTextBlockFormat &format) const;
    int lineHeight(const QTextBlockFormat &format) const;
    double pixels(const QTextCharFormat &format) const;

    const MRVDocumentFlow &m_flow;
    MRVEPubLooks *const m_looks;
    const MRVEPubVersion m_version;
    const QString m_language;
    double m_bodyPixels = 16;
    QRgb m_ink = 0xff000000;
    QStringList m_families; // of the body
    QStringList m_languages;
    QVector<MRVEPubTextFormat> m_texts;
    QVector<MRVEPubParagraphFormat> m_paragraphs;
    QHash<QPair<int, QString>, QByteArray> m_spans; // by format and context
};
