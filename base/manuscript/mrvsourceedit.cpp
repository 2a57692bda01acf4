#include "manuscript/mrvsourceedit.h"

#include "manuscript/mrvmanuscript.h"
#include "manuscript/mrvmanuscriptdocument_p.h"
#include "manuscript/mrvsourceplaces_p.h"
#include "util/mrvfailure.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCodec>
#include <QTextDocument>

namespace {

/** Writes new text as the format and the encoding of a source need it. */
class Writer
{
public:
    Writer(const MRVManuscript &manuscript, const QString &source)
        : m_format(manuscript.format)
        , m_codec(QTextCodec::codecForName(manuscript.encoding))
        , m_lineEnd(source.contains(QLatin1String("\r\n")) ? QLatin1String("\r\n")
                                                           : QLatin1String("\n"))
    {
    }

    QString written(const QString &text) const
    {
        if (m_format == MRVManuscript::Markdown) {
            static const QRegularExpression marks(QStringLiteral("([\\\\`*_\\[\\]<>&])"));
            return QString(text).replace(marks, QStringLiteral("\\\\1"));
        }
        if (m_format == MRVManuscript::PlainText) {
            return QString(text)
                .replace(u'\n', m_lineEnd)
                .replace(QChar::ParagraphSeparator, m_lineEnd);
        }
        return writtenAsHtml(text);
    }

private:
    QString writtenAsHtml(const QString &text) const
    {
        QString html;
        for (const QChar character : text) {
            if (character == u'<') {
                html += QLatin1String("&lt;");
            } else if (character == u'>') {
                html += QLatin1String("&gt;");
            } else if (character == u'&') {
                html += QLatin1String("&amp;");
            } else if (!character.isSurrogate() && !m_codec->canEncode(character)) {
                html += QStringLiteral("&#%1;").arg(character.unicode());
            } else {
                html += character;
            }
        }
        return html;
    }

    const MRVManuscript::Format m_format;
    const QTextCodec *m_codec;
    const QLatin1String m_lineEnd;
};

struct Edit
{
    MRVSourcePlace place;
    QString text;
};

// Where text can be inserted that replaces nothing: beside the text that it gets its format from.
bool insertionPlace(const MRVSourcePlaces &places, int position, bool preferBefore,
                    MRVSourcePlace *place)
{
    const MRVSourcePlace before = places.value(position - 1);
    const MRVSourcePlace after = places.value(position);
    if (before.start >= 0 && (preferBefore || after.start < 0)) {
        *place = {before.end(), 0};
        return true;
    }
    *place = {places.isEmpty() ? 0 : after.start, 0};
    return place->start >= 0;
}

/**
 * What a change means in the source. As in the document, a text of the same length is replaced
 * character by character; any other takes the place of the first character that is replaced.
 */
bool appendEdits(const MRVTextChange &change, const MRVSourcePlaces &places, const Writer &writer,
                 QVector<Edit> *edits)
{
    const QString &before = change.before;
    const QString &after = change.after;
    const int shorter = qMin(before.size(), after.size());
    int head = 0;
    while (head < shorter && before.at(head) == after.at(head)) {
        ++head;
    }
    int tail = 0;
    while (tail < shorter - head
           && before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail)) {
        ++tail;
    }
    const int start = change.range.start() + head;
    const int end = change.range.end() - tail;
    const QString text = after.mid(head, after.size() - head - tail);
    if (start == end) {
        MRVSourcePlace place;
        const bool fits = insertionPlace(places, start, head > 0, &place);
        edits->append({place, writer.written(text)});
        return fits;
    }
    const bool single = before.size() == after.size();
    for (int position = start; position < end; ++position) {
        const MRVSourcePlace place = places.value(position);
        if (place.start < 0) {
            return false;
        }
        const QString part = single ? text.mid(position - start, 1)
            : position == start     ? text
                                    : QString();
        edits->append({place, writer.written(part)});
    }
    return true;
}

QString edited(const QString &source, const QVector<Edit> &edits)
{
    QString result;
    result.reserve(source.size());
    int done = 0;
    for (const Edit &edit : edits) {
        result += source.midRef(done, edit.place.start - done);
        result += edit.text;
        done = edit.place.end();
    }
    return result + source.midRef(done);
}

// In markup, several blanks count as one, and blanks at a line end do not count.
QString comparable(const QString &text, MRVManuscript::Format format)
{
    if (format == MRVManuscript::PlainText) {
        return text;
    }
    QString result;
    result.reserve(text.size());
    bool blank = false;
    for (const QChar character : text) {
        if (mrvIsBlank(character)) {
            blank = true;
            continue;
        }
        if (blank && !result.isEmpty() && !mrvIsStructure(character)
            && !mrvIsStructure(result.at(result.size() - 1))) {
            result += u' ';
        }
        result += character;
        blank = false;
    }
    return result;
}

// The text of a document after changes; null where they overlap or belong to another text.
QString changedText(const QString &text, const QVector<MRVTextChange> &changes)
{
    QString result(QLatin1String(""));
    result.reserve(text.size());
    int done = 0;
    for (const MRVTextChange &change : changes) {
        const int start = change.range.start();
        if (start < done || text.midRef(start, change.range.end() - start) != change.before) {
            return QString();
        }
        result += text.midRef(done, start - done);
        result += change.after;
        done = change.range.end();
    }
    return result + text.midRef(done);
}

// The changes with the ends of lines that inserting text into a document makes of theirs.
QVector<MRVTextChange> asInserted(QVector<MRVTextChange> changes)
{
    for (MRVTextChange &change : changes) {
        if (change.after.contains(u'\n') || change.after.contains(u'\r')) {
            change.after.replace(QLatin1String("\r\n"), QLatin1String("\n"));
            change.after.replace(u'\r', u'\n').replace(u'\n', QChar::ParagraphSeparator);
        }
    }
    return changes;
}

QString writtenAnew(const MRVManuscript &manuscript, const QVector<MRVTextChange> &changes)
{
    const auto document =
        mrvNewDocument(manuscript.sourceText(), manuscript.format, manuscript.options);
    MRVTextReplacer::apply(document.get(), changes);
    switch (manuscript.format) {
    case MRVManuscript::Html:
        return document->toHtml(manuscript.encoding);
    case MRVManuscript::Markdown:
        return document->toMarkdown();
    default:
        return document->toRawText().replace(QChar::ParagraphSeparator, u'\n');
    }
}

// The source after changes. On failure it is null, and @p failed is the change that does not fit.
QString changedSource(const MRVManuscript &manuscript, const QString &source, const QString &text,
                      const QVector<MRVTextChange> &changes, const MRVTextChange **failed)
{
    const MRVSourcePlaces places = mrvSourcePlaces(source, text, manuscript.format);
    const Writer writer(manuscript, source);
    QVector<Edit> edits;
    for (const MRVTextChange &change : changes) {
        // A new paragraph would need markup of its own.
        const bool splits = manuscript.format != MRVManuscript::PlainText
            && change.after.contains(QChar::ParagraphSeparator);
        if (splits || !appendEdits(change, places, writer, &edits)) {
            *failed = &change;
            return QString();
        }
    }
    return edited(source, edits);
}

enum class Encoding { Done, LacksCharacters, CannotRestore };

// A byte-order mark is written if there was one, which writing the old text first tells.
Encoding encode(const QString &text, const QString &source, const MRVManuscript &manuscript,
                QByteArray *bytes)
{
    const QTextCodec *codec = QTextCodec::codecForName(manuscript.encoding);
    for (const auto flag : {QTextCodec::IgnoreHeader, QTextCodec::DefaultConversion}) {
        QTextCodec::ConverterState before(flag);
        if (codec->fromUnicode(source.constData(), source.size(), &before) != manuscript.bytes) {
            continue;
        }
        QTextCodec::ConverterState state(flag);
        const QByteArray result = codec->fromUnicode(text.constData(), text.size(), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0) {
            return Encoding::LacksCharacters;
        }
        *bytes = result;
        return Encoding::Done;
    }
    return Encoding::CannotRestore;
}

} // namespace

bool MRVSourceEdit::changedBytes(const MRVManuscript &manuscript,
                                 const QVector<MRVTextChange> &wanted, Mode mode, QByteArray *bytes,
                                 QString *error)
{
    if (manuscript.isConverted()) {
        return MRV::fail(error, tr("a file of a word processor is read, but not changed"));
    }
    const auto setsFormat = [](const MRVTextChange &change) {
        return change.format.propertyCount() > 0;
    };
    if ((mode == KeepMarkup || manuscript.format != MRVManuscript::Html)
        && std::any_of(wanted.cbegin(), wanted.cend(), setsFormat)) {
        return MRV::fail(error, tr("formats can be set only in HTML that is written as a whole"));
    }
    const QVector<MRVTextChange> changes = asInserted(wanted);
    const QString before = manuscript.document->toRawText();
    const QString after = changedText(before, changes);
    if (after.isNull()) {
        return MRV::fail(error, tr("the changes overlap or belong to another text"));
    }
    const QString source = manuscript.sourceText();
    const MRVTextChange *failed = nullptr;
    const QString text = mode == WriteAnew
        ? writtenAnew(manuscript, changes)
        : changedSource(manuscript, source, before, changes, &failed);
    if (failed) {
        const QTextBlock block = manuscript.document->findBlock(failed->range.start());
        return MRV::fail(error,
                         tr("the change in paragraph %1 does not fit into the markup there")
                             .arg(block.blockNumber() + 1));
    }
    const auto document = mrvNewDocument(text, manuscript.format, manuscript.options);
    const QString read = document ? document->toRawText() : QString();
    if (comparable(read, manuscript.format) != comparable(after, manuscript.format)) {
        return MRV::fail(error, tr("the new text would not be read back as it is"));
    }
    const QString encoding = QString::fromLatin1(manuscript.encoding);
    switch (encode(text, source, manuscript, bytes)) {
    case Encoding::LacksCharacters:
        return MRV::fail(
            error,
            tr("the encoding %1 does not have all characters of the new text").arg(encoding));
    case Encoding::CannotRestore:
        return MRV::fail(error,
                         tr("the encoding %1 cannot be written back as it was").arg(encoding));
    case Encoding::Done:
        break;
    }
    return true;
}
