#pragma once

#include "markdown/mrvheadingids.h"
#include "textexport/mrvinlinepieces_p.h"

#include <QHash>
#include <QString>
#include <QVector>

#include <array>

/** Writes the text of paragraphs as Markdown, or as the HTML that Markdown may hold. */
class MRVInlineWriter
{
public:
    /** Where the text stands. */
    enum Place {
        Lines, ///< in a paragraph
        Heading, ///< in one line, which is bold without being said so
        Cell, ///< of a table, between bars
        HeaderCell, ///< the same, and bold without being said so
        Html, ///< between tags
        HeaderHtml, ///< the same, and bold without being said so
        CodeHtml, ///< between tags that keep blanks
    };

    /** @param pictures the addresses to write for those of the document. */
    MRVInlineWriter(const MRVDocumentFlow &flow, const MRVTextNotes &notes,
                    const QHash<QString, QString> &pictures);

    /** One paragraph; its lines are separated by line feeds. Empty for one without text. */
    QString paragraph(int number, Place place);
    /** A note that stands in the text. */
    QString note(const MRVTextNote &note);
    /** Whether a paragraph is text and nothing else, but for what code is. */
    bool isPlain(int number);
    /** An attribute of a tag, with a blank before it, as it may stand within a table, too. */
    static QString attribute(const char *name, const QString &value);

private:
    // A mark that is open over some pieces.
    struct Span
    {
        unsigned mark;
        int link;
        bool isElement;
    };
    // A part of the result.
    struct Token
    {
        QString text;
        int span = -1; // that it opens or closes
        bool isOpening = false;
    };
    using Ends = std::array<int, 8>; // by mark: the last piece that has it from here on

    QString write(QVector<MRVInlinePiece> pieces, Place place, int nextComment);
    void settleNames(int number, const QVector<MRVInlinePiece> &pieces, QStringList *names);
    void trim(int nextComment, QVector<MRVInlinePiece> *pieces) const;
    bool keepComment(const QVector<MRVInlinePiece> &pieces, int index, int nextComment,
                     MRVInlinePiece *blank) const;
    void joinComments(int nextComment, QVector<MRVInlinePiece> *pieces) const;
    static QVector<Ends> endsOf(const QVector<MRVInlinePiece> &pieces);
    void moveTo(const MRVInlinePiece &piece, const Ends &ends);
    bool goesOn(const Span &span, const MRVInlinePiece &piece, const Ends &ends) const;
    void closeTo(int depth);
    void moveToComment(int comment);
    void writePiece(const QVector<MRVInlinePiece> &pieces, int index);
    void writeText(const QVector<MRVInlinePiece> &pieces, int index);
    bool isAutolink(const QVector<MRVInlinePiece> &pieces, int index) const;
    void writeCode(const QString &text);
    void writePicture(const MRVInlinePiece &piece);
    void writeLineEnd(const QVector<MRVInlinePiece> &pieces, int index);
    void append(const QString &text) { m_tokens.append({text, -1, false}); }

    void settleMarkup();
    bool settleRun(int begin, int end, int *depth);
    bool isRunUnderstood(int begin, int end, int depth) const;
    bool isPaired(int half) const;
    const char *markupOf(int token) const;
    bool isMarkup(int token) const;
    bool isSameMarkup(int token, int other) const;
    uint characterBefore(int token, bool skipsTildes) const;
    uint characterAfter(int token, bool skipsTildes) const;
    QString textOf(const Token &token) const;
    QString destination(const QString &address) const;
    static bool hasPortableForm(const QString &title);
    QString titleOf(const QString &title) const;
    bool isHtml() const { return m_place >= Html; }
    bool isInCell() const { return m_place == Cell || m_place == HeaderCell; }

    const MRVDocumentFlow &m_flow;
    const MRVTextNotes &m_notes;
    const QHash<QString, QString> m_pictures;
    MRVInlinePieces m_pieces;
    Place m_place = Lines;
    QVector<Span> m_spans;
    QVector<int> m_open; // spans, outermost first
    QVector<Token> m_tokens;
    bool m_atLineStart = true;
    MRVHeadingIds m_headingIds;
    int m_comment = -1; // that is open
    int m_commentCount = 0;
    QHash<int, int> m_commentNumbers; // the last one that each comment got
};
