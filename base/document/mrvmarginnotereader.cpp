#include "document/mrvmarginnotereader_p.h"

#include "textformat/mrvtextformat.h"

#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace {

constexpr int dataProperties[] = {
    MRVTextFormat::InspectorCommentProperty, MRVTextFormat::InspectorFootnoteProperty,
    MRVTextFormat::CommentData0, MRVTextFormat::CommentData1, MRVTextFormat::CommentData2};

} // namespace

MRVMarginNote::Kind MRVMarginNoteReader::kindOf(const QTextCharFormat &format)
{
    if (format.boolProperty(MRVTextFormat::InspectorFootnoteProperty)) {
        return MRVMarginNote::Footnote;
    }
    const bool isComment = format.boolProperty(MRVTextFormat::InspectorCommentProperty)
        || format.property(MRVTextFormat::CommentData0).userType() == QMetaType::QString;
    return isComment ? MRVMarginNote::Comment : MRVMarginNote::None;
}

void MRVMarginNoteReader::clear(QTextCharFormat *format)
{
    for (const int property : dataProperties) {
        format->clearProperty(property);
    }
}

bool MRVMarginNoteReader::isSameNote(const QTextCharFormat &one, const QTextCharFormat &other)
{
    return std::all_of(std::begin(dataProperties), std::end(dataProperties), [&](int property) {
        return one.property(property) == other.property(property);
    });
}

void MRVMarginNoteReader::read(const MRVTextRange &part)
{
    QTextBlock block = m_document.findBlock(part.start());
    int paragraph = block.position();
    m_plainEnd = paragraph;
    // Positions are added up, since Qt searches a tree for each that it is asked for.
    for (; block.isValid() && paragraph < part.end(); block = block.next()) {
        int begin = paragraph;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const int end = begin + fragment.length();
            const int data = dataOf(fragment);
            if (data < 0) {
                m_plainEnd = end;
            } else {
                add(data, MRVTextRange(begin, end), paragraph);
            }
            begin = end;
        }
        paragraph += block.length();
    }
}

int MRVMarginNoteReader::dataOf(const QTextFragment &fragment)
{
    const auto known = m_dataOfFormats.constFind(fragment.charFormatIndex());
    if (known != m_dataOfFormats.constEnd()) {
        return *known;
    }
    const QTextCharFormat format = fragment.charFormat();
    const int data = kindOf(format) == MRVMarginNote::None ? -1 : addData(format);
    m_dataOfFormats.insert(fragment.charFormatIndex(), data);
    return data;
}

int MRVMarginNoteReader::addData(const QTextCharFormat &format)
{
    const QString id = format.property(MRVTextFormat::CommentData1).toString();
    const QString text = format.stringProperty(MRVTextFormat::CommentData0);
    const QString key = id + u'\n' + text;
    const QList<int> alike = m_dataByText.values(key);
    for (const int data : alike) {
        if (isSameNote(m_data.at(data).format, format)) {
            return data;
        }
    }
    const QStringList origin = format.property(MRVTextFormat::CommentData2).toStringList();
    const MRVMarginNote note = {kindOf(format),  MRVTextRange(), text, id,
                                origin.value(0), origin.value(1)};
    m_dataByText.insert(key, m_data.size());
    m_data.append({note, format});
    return m_data.size() - 1;
}

void MRVMarginNoteReader::add(int index, const MRVTextRange &range, int paragraph)
{
    Data &data = m_data[index];
    const int lastEnd = data.entry < 0 ? -1 : m_entries.at(data.entry).note.range.end();
    const bool goesOn = lastEnd >= 0
        && (data.note.id.isEmpty() ? isOneRun(lastEnd, range.start())
                                   : lastEnd >= qMin(paragraph, m_plainEnd));
    if (goesOn) {
        MRVTextRange &all = m_entries[data.entry].note.range;
        all = MRVTextRange(all.start(), range.end());
    } else {
        data.entry = m_entries.size();
        m_entries.append({data.note, data.format});
        m_entries.last().note.range = range;
    }
    m_pieces.append({range, data.entry});
}

// Whether only the ends of paragraphs lie between two places.
bool MRVMarginNoteReader::isOneRun(int end, int begin) const
{
    while (end < begin && m_document.characterAt(end) == QChar::ParagraphSeparator) {
        ++end;
    }
    return end == begin;
}
