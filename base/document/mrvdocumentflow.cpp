#include "document/mrvdocumentflow.h"

#include "text/mrvlistmarkers.h"
#include "textformat/mrvlistlevel.h"
#include "textformat/mrvtextblockformat.h"

#include <QHash>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <algorithm>

struct MRVDocumentFlow::Reader
{
    // What one format says, by its index.
    struct OfText
    {
        bool isKnown = false;
        QString address;
        QString title;
        QStringList names;
    };
    struct OfParagraph
    {
        bool isKnown = false;
        int headingLevel = 0;
        int list = -1;
        int listLevel = 0;
    };

    explicit Reader(MRVDocumentFlow *target)
        : flow(*target)
        , texts(target->formats.size())
        , paragraphs(target->formats.size())
    {
    }

    void read()
    {
        int position = 0;
        for (QTextBlock block = flow.document.begin(); block.isValid(); block = block.next()) {
            const int length = block.length() - 1;
            const int index = block.blockFormatIndex();
            const OfParagraph &format = paragraphFormat(index);
            MRVFlowParagraph paragraph{
                position, length, index, flow.fragments.size(), format.headingLevel, format.list};
            if (format.list >= 0) {
                paragraph.listLevel = format.listLevel;
                paragraph.itemNumber = nextNumber(format.list, format.listLevel);
            }
            flow.paragraphs.append(paragraph);
            int at = position;
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextFragment fragment = it.fragment();
                flow.fragments.append({fragment.length(), fragment.charFormatIndex()});
                note(fragment.charFormatIndex(), at, fragment.length());
                at += fragment.length();
            }
            position += length + 1;
        }
        flow.paragraphs.append({position, 0, -1, flow.fragments.size(), 0});
    }

private:
    const OfParagraph &paragraphFormat(int index)
    {
        OfParagraph &format = paragraphs[index];
        if (!format.isKnown) {
            format.isKnown = true;
            const QTextBlockFormat full = flow.formats.at(index).toBlockFormat();
            format.headingLevel = MRVTextBlockFormat::headingLevel(full);
            const bool isItem = qobject_cast<QTextList *>(flow.document.object(full.objectIndex()));
            format.list = isItem ? full.objectIndex() : -1;
            format.listLevel = qMax(0, full.intProperty(MRVParagraphListLevelProperty));
        }
        return format;
    }

    int nextNumber(int list, int level)
    {
        auto format = lists.constFind(list);
        if (format == lists.constEnd()) {
            format = lists.insert(list, flow.document.object(list)->format().toListFormat());
        }
        return counter.next(*format, list, level);
    }

    void note(int index, int begin, int length)
    {
        OfText &format = texts[index];
        if (!format.isKnown) {
            const QTextCharFormat full = flow.formats.at(index).toCharFormat();
            format.isKnown = true;
            format.address = full.anchorHref();
            format.title = full.toolTip();
            format.names = full.anchorNames();
        }
        for (const QString &name : qAsConst(format.names)) {
            if (!name.isEmpty()) {
                flow.anchors.append({name, begin});
            }
        }
        if (!format.address.isEmpty()) {
            MRVFlowLink *last = flow.links.isEmpty() ? nullptr : &flow.links.last();
            if (last && last->end == begin && last->address == format.address
                && last->title == format.title) {
                last->end += length;
            } else {
                flow.links.append({format.address, begin, begin + length, format.title});
            }
        }
    }

    MRVDocumentFlow &flow;
    QVector<OfText> texts;
    QVector<OfParagraph> paragraphs;
    QHash<int, QTextListFormat> lists; // by object index
    MRVListCounter counter;
};

MRVDocumentFlow::MRVDocumentFlow(const QTextDocument &source)
    : document(source)
    , text(source.toRawText())
    , formats(source.allFormats())
{
    paragraphs.reserve(source.blockCount() + 1);
    Reader(this).read();
    readFrames();
}

void MRVDocumentFlow::readFrames()
{
    QList<QTextFrame *> open = document.rootFrame()->childFrames();
    while (!open.isEmpty()) {
        QTextFrame *frame = open.takeLast();
        if (frame->firstPosition() > frame->lastPosition()) {
            continue; // a floating picture, which is a character
        }
        open.append(frame->childFrames());
        frames.append({frame, qobject_cast<QTextTable *>(frame),
                       paragraphAt(frame->firstPosition()),
                       paragraphAt(frame->lastPosition()) + 1});
    }
    std::sort(frames.begin(), frames.end(), [](const MRVFlowFrame &one, const MRVFlowFrame &other) {
        return one.begin < other.begin;
    });
    m_isInFrame.resize(count() + 1);
    int done = 0;
    for (const MRVFlowFrame &frame : qAsConst(frames)) {
        for (done = qMax(done, frame.begin); done < frame.end; ++done) {
            m_isInFrame[done] = true;
        }
    }
}

int MRVDocumentFlow::paragraphAt(int position) const
{
    const auto after = std::upper_bound(
        paragraphs.begin(), paragraphs.end(), position,
        [](int at, const MRVFlowParagraph &paragraph) { return at < paragraph.position; });
    return int(after - paragraphs.begin()) - 1;
}

bool MRVDocumentFlow::hasRule(int paragraph) const
{
    return formats.at(paragraphs.at(paragraph).format)
        .hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

bool MRVDocumentFlow::isBlank(int paragraph) const
{
    const QStringView shown = textOf(paragraphs.at(paragraph));
    return std::all_of(shown.begin(), shown.end(), [](QChar c) { return c.isSpace(); })
        && !hasRule(paragraph);
}
