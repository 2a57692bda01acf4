#include "textexport/mrvplaintextwriter.h"

#include "document/mrvmarginnotes.h"
#include "text/mrvlistmarkers.h"
#include "textexport/mrvinlinepieces_p.h"
#include "textexport/mrvtextblocks_p.h"
#include "textformat/mrvtextformat.h"

#include <QTextDocument>
#include <QTextImageFormat>

namespace {

constexpr int IndentOfLevel = 4;

/** Writes blocks as lines. */
class PlainText
{
public:
    PlainText(const QTextDocument &document, MRVPlainTextWriter::Separation separation)
        : m_flow(document)
        , m_notes(m_flow, MRVTextNotes::Code::HasMarks)
        , m_blocks(m_flow, m_notes)
        , m_pieces(m_flow, m_notes)
        , m_markers(mrvListMarkers(document))
        , m_hasBlankLines(separation == MRVPlainTextWriter::BlankLines)
    {
    }

    QString write()
    {
        if (m_flow.count() == 1 && m_flow.isBlank(0)) {
            return QString();
        }
        writeChildren(m_blocks.document(), true);
        for (const MRVTextNote &note : m_notes.all()) {
            separate();
            m_first = markOf(note);
            writeNote(note);
        }
        return m_text;
    }

private:
    static QString markOf(const MRVTextNote &note)
    {
        return QStringLiteral("[%1] ").arg(note.label);
    }

    void separate()
    {
        if (m_hasBlankLines && !m_text.isEmpty()) {
            m_text += u'\n';
        }
    }

    void line(const QString &text)
    {
        m_text += m_first + text + u'\n';
        m_first = QString(m_indent, u' ');
    }

    void lines(const QString &text)
    {
        const QStringList all = text.split(u'\n');
        for (const QString &one : all) {
            line(one);
        }
    }

    void writeChildren(const MRVTextBlock &parent, bool areApart)
    {
        for (const MRVTextBlock &block : parent.children) {
            if (areApart && &block != &parent.children.front()) {
                separate();
            }
            writeBlock(block);
        }
    }

    void writeBlock(const MRVTextBlock &block)
    {
        switch (block.kind) {
        case MRVTextBlock::Paragraph:
        case MRVTextBlock::Heading:
        case MRVTextBlock::Code:
            for (int i = block.first; i < block.end; ++i) {
                lines(textOf(m_pieces.of(i)));
            }
            break;
        case MRVTextBlock::Rule:
            line(QStringLiteral("* * *"));
            break;
        case MRVTextBlock::List:
            for (const MRVTextBlock &item : block.children) {
                writeItem(item, block.isNumbered);
            }
            break;
        case MRVTextBlock::Table:
            writeTable(block);
            break;
        default:
            writeChildren(block, block.kind == MRVTextBlock::Quote);
            break;
        }
    }

    void writeItem(const MRVTextBlock &item, bool isNumbered)
    {
        const int outside = m_indent;
        const int paragraph = item.children.empty() ? -1 : item.children.front().first;
        const QString marker =
            isNumbered && paragraph >= 0 ? m_markers.at(paragraph).text : QStringLiteral("-");
        m_first = QString(outside, u' ') + marker + u' ' + taskMark(paragraph);
        m_indent = outside + IndentOfLevel;
        writeChildren(item, false);
        m_indent = outside;
        m_first = QString(outside, u' ');
    }

    QString taskMark(int paragraph) const
    {
        if (paragraph < 0) {
            return QString();
        }
        const int format = m_flow.paragraphs.at(paragraph).format;
        const auto marker = m_flow.formats.at(format).toBlockFormat().marker();
        return marker == QTextBlockFormat::MarkerType::Checked  ? QStringLiteral("[x] ")
            : marker == QTextBlockFormat::MarkerType::Unchecked ? QStringLiteral("[ ] ")
                                                                : QString();
    }

    void writeTable(const MRVTextBlock &table)
    {
        QString row;
        for (std::size_t i = 0; i < table.children.size(); ++i) {
            const MRVTextBlock &cell = table.children[i];
            row += textIn(cell);
            if (i + 1 == table.children.size() || table.children[i + 1].row != cell.row) {
                line(row);
                row.clear();
            } else {
                row += u'\t';
            }
        }
    }

    // The text of a cell in one line.
    QString textIn(const MRVTextBlock &block)
    {
        QString text;
        for (int i = block.first; i >= 0 && i < block.end; ++i) {
            text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + textOf(m_pieces.of(i));
        }
        for (const MRVTextBlock &child : block.children) {
            const QString inner = textIn(child);
            text += (text.isEmpty() || inner.isEmpty() ? QString() : QStringLiteral(" ")) + inner;
        }
        return text.replace(u'\n', u' ').replace(u'\t', u' ');
    }

    void writeNote(const MRVTextNote &note)
    {
        if (note.firstParagraph >= 0) {
            writeChildren(m_blocks.note(note), true);
        } else {
            lines(textOf(m_pieces.of(note)));
        }
    }

    QString textOf(const QVector<MRVInlinePiece> &pieces) const
    {
        QString text;
        for (int i = 0; i < pieces.size(); ++i) {
            const MRVInlinePiece &piece = pieces.at(i);
            switch (piece.kind) {
            case MRVInlinePiece::Text:
                text += QStringView(m_flow.text).mid(piece.begin, piece.end - piece.begin);
                break;
            case MRVInlinePiece::LineEnd:
                text += u'\n';
                break;
            case MRVInlinePiece::Picture:
                text += u'[' + nameOf(m_flow.formats.at(piece.format)) + u']';
                break;
            case MRVInlinePiece::NoteMark:
                text += markOf(m_notes.all().at(piece.note)).trimmed();
                break;
            case MRVInlinePiece::NoteBegin:
            case MRVInlinePiece::NoteEnd:
                text += m_pieces.bracket(piece);
                break;
            }
            const bool isEnd = i + 1 == pieces.size() || pieces.at(i + 1).link != piece.link;
            if (piece.link >= 0 && isEnd) {
                text += addressAfter(m_flow.links.at(piece.link));
            }
        }
        return text;
    }

    static QString nameOf(const QTextFormat &format)
    {
        const QString text = format.stringProperty(QTextFormat::ImageAltText);
        return text.isEmpty() ? MRVTextFormat::imageName(format.toImageFormat()) : text;
    }

    QString addressAfter(const MRVFlowLink &link) const
    {
        const QStringView shown = QStringView(m_flow.text).mid(link.begin, link.end - link.begin);
        const bool isShown = link.address.startsWith(u'#') || shown == link.address
            || QLatin1String("mailto:") + shown.toString() == link.address;
        return isShown ? QString() : QStringLiteral(" <%1>").arg(link.address);
    }

    const MRVDocumentFlow m_flow;
    const MRVTextNotes m_notes;
    MRVTextBlockReader m_blocks;
    MRVInlinePieces m_pieces;
    const QVector<MRVListMarker> m_markers;
    const bool m_hasBlankLines;
    int m_indent = 0;
    QString m_first; // what the next line begins with
    QString m_text;
};

} // namespace

QString MRVPlainTextWriter::text() const
{
    const std::unique_ptr<QTextDocument> withNotes =
        MRVMarginNotes::copyWithParagraphs(m_document, MRVMarginNote::Footnote);
    return PlainText(withNotes ? *withNotes : m_document, m_separation).write();
}
