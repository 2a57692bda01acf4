#include "core/mrvcheckedstream.h"
#include "core/mrvinputlimits.h"
#include "fragment/mrvdocumentfragment.h"
#include "fragment/mrvfragmentformat_p.h"
#include "fragment/mrvlaidoutformat.h"
#include "gui/mrvpicturereader.h"
#include "textformat/mrvtextformat.h"

#include <QDataStream>

namespace {

constexpr quint32 Magic = 0x4d525644;
constexpr quint32 Version = 1;
constexpr int StreamVersion = QDataStream::Qt_5_15;

constexpr int FrameDepth = 100; // tables in each other, which are inserted by recursion
constexpr qint64 MergeSteps = qint64(1) << 28; // merged cells times cells: Qt looks at each

/** Reads a fragment, and checks it as far as inserting it relies on it. */
class Reader
{
public:
    Reader(const QByteArray &bytes, MRVDocumentFragment *fragment)
        : m_stream(bytes)
        , m_in(&m_stream)
        , m_size(bytes.size())
        , m_fragment(*fragment)
    {
        m_stream.setVersion(StreamVersion);
    }

    bool read()
    {
        quint32 magic = 0;
        quint32 version = 0;
        return m_in.read(&magic) && m_in.read(&version) && magic == Magic && version == Version
            && readAll(&m_fragment.formats, &Reader::readFormat)
            && readAll(&m_fragment.lists, &Reader::readList)
            && readAll(&m_fragment.pictures, &Reader::readPicture)
            && readAll(&m_fragment.frames, &Reader::readFrame) && readFlow(&m_fragment.flow)
            && m_in.read(&m_fragment.isFromStart) && m_stream.atEnd();
    }

private:
    // One by one: a count is no reason to reserve memory.
    template<typename Item>
    bool readAll(QVector<Item> *items, bool (Reader::*readOne)(Item *))
    {
        constexpr int Least = 4; // bytes of any item
        quint32 count = 0;
        bool isGood = m_in.readCount(&count, Least);
        for (quint32 i = 0; i < count && isGood; ++i) {
            Item item{};
            isGood = (this->*readOne)(&item);
            items->append(item);
        }
        return isGood;
    }

    bool readFormat(QTextFormat *format)
    {
        qint32 type = 0;
        QByteArray bytes;
        if (!m_in.read(&type) || !m_in.read(&bytes)) {
            return false;
        }
        if (type == QTextFormat::CharFormat) {
            *format = MRVTextFormat::toCharFormat(bytes);
        } else if (type == QTextFormat::BlockFormat || type == QTextFormat::ListFormat
                   || type == QTextFormat::FrameFormat) {
            *format = mrvFormatOfType(MRVTextFormat::toBlockFormat(bytes), type);
        } else {
            return false;
        }
        // A format without properties is what damaged bytes give, too.
        const bool isGood = format->propertyCount() > 0 || bytes == mrvStoredFormat(*format);
        format->clearProperty(QTextFormat::ObjectIndex);
        return isGood && mrvLaidOutFormat(*format) == *format;
    }

    bool readIndex(int *index, int type)
    {
        qint32 number = -1;
        const bool isGood = m_in.read(&number) && number >= 0 && number < m_fragment.formats.size()
            && m_fragment.formats.at(number).type() == type;
        *index = number;
        return isGood;
    }

    bool readList(int *format) { return readIndex(format, QTextFormat::ListFormat); }

    bool readPicture(MRVFragmentPicture *picture)
    {
        if (!m_in.read(&picture->name) || !m_in.read(&picture->isImage)
            || !m_in.read(&picture->bytes)) {
            return false;
        }
        const MRVPictureReader reader(picture->bytes);
        m_pixels += picture->isImage ? reader.memory() : 0;
        return reader.isReadable() && m_pixels <= MRVInputLimits::PictureMemory
            && (!picture->isImage || !reader.read().isNull());
    }

    bool readText(MRVFragmentText *text)
    {
        return m_in.read(&text->text) && readIndex(&text->format, QTextFormat::CharFormat)
            && !text->text.contains(QLatin1Char('\n')) && !text->text.contains(QLatin1Char('\r'))
            && !MRVTextFormat::hasBlockInString(text->text);
    }

    bool readParagraph(MRVFragmentParagraph *paragraph)
    {
        qint32 frame = -1;
        qint32 list = -1;
        const bool isGood = m_in.read(&frame)
            && readIndex(&paragraph->blockFormat, QTextFormat::BlockFormat)
            && readIndex(&paragraph->charFormat, QTextFormat::CharFormat) && m_in.read(&list)
            && list >= -1 && list < m_fragment.lists.size()
            && readAll(&paragraph->texts, &Reader::readText);
        paragraph->frame = frame;
        paragraph->list = list;
        return isGood && take(frame);
    }

    // Each frame has one place, after those that it holds: so there is no circle.
    bool take(int frame)
    {
        if (frame < -1 || frame >= m_depths.size() || (frame >= 0 && m_depths.at(frame) == 0)) {
            return false;
        }
        if (frame >= 0) {
            m_depth = qMax(m_depth, m_depths.at(frame));
            m_depths[frame] = 0;
        }
        return true;
    }

    bool readFlow(MRVFragmentFlow *flow)
    {
        return readAll(flow, &Reader::readParagraph) && !flow->isEmpty()
            && flow->constFirst().frame < 0;
    }

    bool readCell(MRVFragmentCell *cell)
    {
        qint32 numbers[4] = {};
        for (qint32 &number : numbers) {
            if (!m_in.read(&number)) {
                return false;
            }
        }
        cell->row = numbers[0];
        cell->column = numbers[1];
        cell->rowSpan = numbers[2];
        cell->columnSpan = numbers[3];
        return readIndex(&cell->format, QTextFormat::CharFormat) && readFlow(&cell->flow);
    }

    bool readFrame(MRVFragmentFrame *frame)
    {
        m_depth = 0;
        qint32 rows = 0;
        qint32 columns = 0;
        const bool isGood = m_in.read(&frame->isTable)
            && readIndex(&frame->format, QTextFormat::FrameFormat) && m_in.read(&rows)
            && m_in.read(&columns) && readAll(&frame->cells, &Reader::readCell);
        frame->rows = rows;
        frame->columns = columns;
        m_depths.append(m_depth + 1);
        // Of a format of the other kind, Qt makes the other object.
        return isGood && m_depth < FrameDepth
            && m_fragment.formats.at(frame->format).isTableFormat() == frame->isTable
            && isFilled(*frame);
    }

    // Whether the cells cover the table, each place once, in order.
    bool isFilled(const MRVFragmentFrame &frame) const
    {
        const qint64 area = qint64(frame.rows) * frame.columns;
        if (frame.rows < 1 || frame.columns < 1 || area > m_size
            || (!frame.isTable && (area != 1 || frame.cells.size() != 1))) {
            return false;
        }
        QVector<bool> isTaken(int(area), false);
        qint64 covered = 0;
        qint64 merged = 0;
        for (const MRVFragmentCell &cell : frame.cells) {
            if (cell.row < 0 || cell.column < 0 || cell.rowSpan < 1 || cell.columnSpan < 1
                || cell.row >= frame.rows || cell.column >= frame.columns
                || cell.rowSpan > frame.rows - cell.row
                || cell.columnSpan > frame.columns - cell.column) {
                return false;
            }
            for (int i = 0; i < cell.rowSpan * cell.columnSpan; ++i) {
                const int row = cell.row + i / cell.columnSpan;
                bool &taken = isTaken[row * frame.columns + cell.column + i % cell.columnSpan];
                if (taken) {
                    return false;
                }
                taken = true;
                ++covered;
            }
            merged += cell.rowSpan > 1 || cell.columnSpan > 1 ? 1 : 0;
        }
        return covered == area && merged * area <= MergeSteps;
    }

    QDataStream m_stream;
    MRVCheckedStream m_in;
    const int m_size;
    MRVDocumentFragment &m_fragment;
    QVector<int> m_depths; // of frames; 0 once they have their place
    int m_depth = 0; // of the frames in the one that is being read
    qint64 m_pixels = 0; // bytes of decoded pictures
};

void write(QDataStream &stream, const MRVFragmentFlow &flow)
{
    stream << quint32(flow.size());
    for (const MRVFragmentParagraph &paragraph : flow) {
        stream << qint32(paragraph.frame) << qint32(paragraph.blockFormat)
               << qint32(paragraph.charFormat) << qint32(paragraph.list)
               << quint32(paragraph.texts.size());
        for (const MRVFragmentText &text : paragraph.texts) {
            stream << text.text << qint32(text.format);
        }
    }
}

void write(QDataStream &stream, const MRVFragmentFrame &frame)
{
    stream << frame.isTable << qint32(frame.format) << qint32(frame.rows) << qint32(frame.columns)
           << quint32(frame.cells.size());
    for (const MRVFragmentCell &cell : frame.cells) {
        stream << qint32(cell.row) << qint32(cell.column) << qint32(cell.rowSpan)
               << qint32(cell.columnSpan) << qint32(cell.format);
        write(stream, cell.flow);
    }
}

} // namespace

QByteArray MRVDocumentFragment::toByteArray() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << Magic << Version << quint32(formats.size());
    for (const QTextFormat &format : formats) {
        stream << qint32(format.type()) << mrvStoredFormat(format);
    }
    stream << quint32(lists.size());
    for (const int format : lists) {
        stream << qint32(format);
    }
    stream << quint32(pictures.size());
    for (const MRVFragmentPicture &picture : pictures) {
        stream << picture.name << picture.isImage << picture.bytes;
    }
    stream << quint32(frames.size());
    for (const MRVFragmentFrame &frame : frames) {
        write(stream, frame);
    }
    write(stream, flow);
    stream << isFromStart;
    return bytes;
}

bool MRVDocumentFragment::fromByteArray(const QByteArray &bytes, MRVDocumentFragment *fragment)
{
    *fragment = MRVDocumentFragment();
    return Reader(bytes, fragment).read();
}
