#pragma once

#include <QTextFormat>
#include <QTextFrame>
#include <QVector>

#include <functional>

struct MrvPrintLook;
class QTextBlock;
class QTextCursor;
class QTextDocument;
class QTextTable;

/** Gives a copy of a document the formats that it has on paper. */
class MrvPrintStyler
{
public:
    /** Of a picture's format, in a table: the part of the width that it may have. */
    static constexpr int ShareProperty = QTextFormat::UserProperty + 1;
    /** Of a picture's format: whether a heading stands before it. */
    static constexpr int BelowHeadingProperty = QTextFormat::UserProperty + 2;

    /** Both have to outlive it; @p document is changed. */
    MrvPrintStyler(QTextDocument *document, const MrvPrintLook &look);

    /** Changes all formats; once. */
    void restyle();
    /** Takes smaller type for all text of a table. */
    void shrink(const QTextTable &table);
    /** All frames and tables within a frame, the outer ones first. */
    static QVector<QTextFrame *> framesOf(QTextFrame *frame);

private:
    using CharFormatChange = std::function<void(QTextCharFormat *)>;

    void restyleFrame(QTextFrame *frame);
    void restyleBlock(const QTextBlock &block, bool isFirst);
    void restyleText(const QTextBlock &block);
    void restyle(const QTextBlock &block, const CharFormatChange &change);
    void limitPictures(const QTextBlock &block, bool isBelowHeading);
    static void clearLook(QTextCharFormat *format);
    void makeSmaller(QTextCharFormat *format) const;
    void setSmallCapitals(QTextCursor *cursor, const QTextCharFormat &format) const;
    void divideLongWords(const QTextBlock &block);

    QTextDocument *m_copy;
    const MrvPrintLook &m_look;
};
