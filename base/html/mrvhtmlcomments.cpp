#include "html/mrvhtmlcomments_p.h"

#include "textformat/mrvtextformat.h"

void MRVHtmlComments::begin(const MRVHtmlComment &comment)
{
    ++m_count;
    if (!isOpen() || m_isWritten) {
        m_texts.clear();
        m_numbers.clear();
        m_isWritten = false;
        m_first = comment;
        m_texts.append(comment.text);
    } else {
        m_texts.append(comment.author.isEmpty()
                           ? comment.text
                           : comment.author + QLatin1String(": ") + comment.text);
    }
    m_numbers.insert(comment.number);
}

void MRVHtmlComments::end(int number)
{
    m_numbers.remove(number);
    if (m_numbers.isEmpty() && m_isWritten) {
        m_texts.clear();
    }
}

QTextCharFormat MRVHtmlComments::added(QTextCharFormat format) const
{
    QStringList texts = m_texts;
    if (format.hasProperty(MRVTextFormat::CommentData0)) {
        texts.prepend(format.stringProperty(MRVTextFormat::CommentData0));
    }
    format.setProperty(MRVTextFormat::InspectorCommentProperty, true);
    format.setProperty(MRVTextFormat::CommentData0, texts.join(u'\n'));
    format.setProperty(MRVTextFormat::CommentData1, QString::number(m_first.number));
    format.setProperty(MRVTextFormat::CommentData2, QStringList{m_first.author, m_first.date});
    return format;
}

void MRVHtmlComments::setWritten()
{
    m_isWritten = true;
    if (m_numbers.isEmpty()) {
        m_texts.clear();
    }
}
