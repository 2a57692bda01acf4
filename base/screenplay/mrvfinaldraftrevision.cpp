#include "screenplay/mrvfinaldraft.h"

#include "input/mrvsourceencoding.h"
#include "screenplay/mrvfinaldraftparts_p.h"
#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvrunchanges_p.h"
#include "screenplay/mrvscriptxml_p.h"
#include "util/mrvfailure.h"

#include <QMap>

#include <algorithm>
#include <iterator>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;
using Piece = MrvFinalDraftPiece;
using Paragraph = MrvFinalDraftParagraph;

/** A character of a document with its look, and where it stands; at -1 where it does not. */
struct Letter
{
    MrvRunUnit unit;
    int start = -1;
    int end = -1;
    int position = -1; // in the text as the ranges of notes count it
    Piece::Form form = Piece::Added;
};
using Letters = QVector<Letter>;

// The length of the character, reference or line end at an offset; what it stands for is added to
// the text.
int appendCharacter(const QString &xml, int at, bool isAttribute, QString *text)
{
    static constexpr struct
    {
        const char *reference;
        char character;
    } references[] = {
        {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
    const QStringView rest = QStringView(xml).mid(at);
    if (rest.startsWith(u'\r') || rest.startsWith(u'\n')) {
        *text += isAttribute ? u' ' : u'\n';
        return rest.startsWith(u"\r\n") ? 2 : 1;
    }
    for (const auto &row : references) {
        if (rest.startsWith(QLatin1String(row.reference))) {
            *text += QLatin1Char(row.character);
            return int(qstrlen(row.reference));
        }
    }
    if (rest.startsWith(u"&#")) {
        const bool isHex = rest.mid(2).startsWith(u'x');
        const int end = xml.indexOf(u';', at);
        const int digits = at + (isHex ? 3 : 2);
        const uint code = xml.midRef(digits, end - digits).toUInt(nullptr, isHex ? 16 : 10);
        *text += QString::fromUcs4(&code, 1);
        return end + 1 - at;
    }
    const bool isPair = rest.first().isHighSurrogate() && rest.size() > 1;
    *text +=
        isAttribute && rest.first() == u'\t' ? QStringLiteral(" ") : xml.mid(at, isPair ? 2 : 1);
    return isPair ? 2 : 1;
}

// As a script has it, which knows no tabs.
void appendShown(QString text, const Letter &model, Letters *letters)
{
    if (model.unit.kind == Run::Text) {
        text.replace(u'\t', QLatin1String("    "));
    }
    for (const QChar character : qAsConst(text)) {
        letters->append(model);
        letters->last().unit.character = character;
    }
}

// What the reader has seen otherwise than it stands there, or made itself, has no place.
void appendLetters(const QString &xml, const Piece &piece, Letters *letters)
{
    const auto shown = [&piece](const QString &text) {
        return piece.capitals == Piece::Shown ? text.toUpper() : text;
    };
    Letter letter;
    letter.unit = {QChar(), piece.kind, piece.emphasis};
    const int first = letters->size();
    const bool isSection = piece.form == Piece::Section;
    const int end = piece.end - (isSection ? int(qstrlen("]]>")) : 0);
    QString whole;
    for (int at = piece.start + (isSection ? int(qstrlen("<![CDATA[")) : 0);
         piece.form != Piece::Added && at < end; at = letter.end) {
        QString text;
        letter.form = piece.form;
        letter.start = at;
        letter.end = at + 1;
        if (isSection && xml.at(at) != u'\r') {
            text = xml.at(at);
        } else {
            letter.end = at + appendCharacter(xml, at, piece.form == Piece::Attribute, &text);
        }
        letter.position = piece.position < 0 ? -1 : piece.position + whole.size();
        whole += text;
        appendShown(shown(text), letter, letters);
    }
    if (piece.form == Piece::Added || !whole.endsWith(piece.text)) {
        letters->resize(first);
        letter.start = letter.end = letter.position = -1;
        appendShown(shown(piece.text), letter, letters);
    }
}

/** Finds the changes that make one script of another in the text of its document. */
class Revision
{
public:
    Revision(const QString &xml, const MRVSourceEncoding &encoding)
        : m_xml(xml)
        , m_encoding(encoding)
        , m_lineEnd(xml.contains(QLatin1String("\r\n")) ? QStringLiteral("\r\n")
                                                        : QStringLiteral("\n"))
    {
    }

    /** False where there is no place for a change. */
    bool changeText(const Paragraph &paragraph, const MRVFountainRuns &before,
                    const MRVFountainRuns &after);
    bool changeNumber(const Paragraph &paragraph, const QString &number);
    /** Moves the ranges of notes as the texts before their ends have grown. */
    void moveRanges(const QVector<MrvFinalDraftRange> &ranges);
    QString result();

private:
    struct Edit
    {
        int start;
        int end;
        QString text;
    };

    bool change(const Letters &letters, const QVector<int> &places, const MrvRunChange &change,
                const MrvRunUnits &after);
    bool insert(const Letters &letters, const QVector<int> &places, const MrvRunChange &change,
                const MrvRunUnits &text);
    QString written(const QString &text, Piece::Form form) const;
    void grow(const Letter &letter, int by)
    {
        if (letter.position >= 0) {
            m_growth[letter.position] += by;
        }
    }

    const QString &m_xml;
    const MRVSourceEncoding &m_encoding;
    const QString m_lineEnd;
    QVector<Edit> m_edits;
    QMap<int, int> m_growth; // by position in the text as the ranges of notes count it
};

// Which letter each unit of the script is, since reading leaves some out; -1 for none.
QVector<int> placesOf(const MrvRunUnits &units, const Letters &letters, bool isOneKind)
{
    QVector<int> places(units.size(), -1);
    int at = 0;
    for (int i = 0; i < units.size(); ++i) {
        const MrvRunUnit &unit = units.at(i);
        const auto isUnit = [&](const Letter &letter) {
            const QChar found = letter.unit.character;
            // As reading a script changes them: see withPlainLineEnds().
            const bool isLineEnd = found == u'\n' || found == u'\r' || found == QChar(0x85)
                || found == QChar(QChar::LineSeparator)
                || found == QChar(QChar::ParagraphSeparator);
            const bool isReplaced = unit.character == QChar(QChar::ReplacementCharacter)
                && (found == QChar(0xfdd0) || found == QChar(0xfdd1));
            return (isOneKind || letter.unit.kind == unit.kind)
                && (found == unit.character || isReplaced
                    || (isLineEnd && (unit.character == u' ' || unit.character == u'\n')));
        };
        const auto found = std::find_if(letters.cbegin() + at, letters.cend(), isUnit);
        if (found == letters.cend()) {
            break;
        }
        places[i] = int(found - letters.cbegin());
        at = places.at(i) + 1;
    }
    return places;
}

bool Revision::changeText(const Paragraph &paragraph, const MRVFountainRuns &before,
                          const MRVFountainRuns &after)
{
    Letters letters;
    for (const Piece &piece : paragraph.pieces) {
        appendLetters(m_xml, piece, &letters);
    }
    const bool isOneKind =
        paragraph.element.kind == Element::Note || paragraph.element.kind == Element::Boneyard;
    if (isOneKind) {
        for (Letter &letter : letters) {
            letter.unit.kind = Run::Text;
        }
    }
    const MrvRunUnits units = mrvRunUnits(before);
    const MrvRunUnits newUnits = mrvRunUnits(after);
    const QVector<int> places = placesOf(units, letters, isOneKind);
    const QVector<MrvRunChange> changes = mrvRunChanges(units, newUnits);
    return std::all_of(changes.cbegin(), changes.cend(), [&](const MrvRunChange &each) {
        return change(letters, places, each, newUnits);
    });
}

bool Revision::change(const Letters &letters, const QVector<int> &places,
                      const MrvRunChange &change, const MrvRunUnits &after)
{
    for (int at = change.newStart; at < change.newEnd;) {
        const auto from = after.cbegin() + at;
        const auto to =
            std::find_if_not(from, after.cbegin() + change.newEnd,
                             [from](const MrvRunUnit &unit) { return unit.hasLookOf(*from); });
        if (!insert(letters, places, change, after.mid(at, int(to - from)))) {
            return false;
        }
        at += int(to - from);
    }
    for (int at = change.start; at < change.end; ++at) {
        const Letter letter = places.at(at) < 0 ? Letter() : letters.at(places.at(at));
        if (letter.start < 0) {
            return false;
        }
        m_edits.append({letter.start, letter.end, QString()});
        grow(letter, -1);
    }
    return true;
}

// The first place among text of the same look counts: where the old text was, or else beside it.
bool Revision::insert(const Letters &letters, const QVector<int> &places,
                      const MrvRunChange &change, const MrvRunUnits &text)
{
    QString added;
    for (const MrvRunUnit &unit : text) {
        added += unit.character;
    }
    for (int i = change.start; i <= change.end + 1; ++i) {
        // At last the letters around the change: the one after it, and the one before it.
        const int at = i <= change.end ? i : change.start - 1;
        const Letter letter = at < 0 || at >= places.size() || places.at(at) < 0
            ? Letter()
            : letters.at(places.at(at));
        if (letter.start >= 0 && letter.unit.hasLookOf(text.constFirst())) {
            const int place = at < change.start ? letter.end : letter.start;
            m_edits.append({place, place, written(added, letter.form)});
            grow(letter, added.size());
            return true;
        }
    }
    return false;
}

QString Revision::written(const QString &text, Piece::Form form) const
{
    QString result = text;
    if (form == Piece::Section && !text.contains(u']') && !text.contains(u'>')
        && m_encoding.withReferences(text) == text) {
        return result.replace(u'\n', m_lineEnd);
    }
    result.replace(u'&', QLatin1String("&amp;"));
    result.replace(u'<', QLatin1String("&lt;"));
    result.replace(u'>', QLatin1String("&gt;"));
    if (form == Piece::Attribute) {
        result.replace(u'"', QLatin1String("&quot;"));
        result.replace(u'\'', QLatin1String("&apos;"));
        result.replace(u'\t', QLatin1String("&#9;"));
        result.replace(u'\n', QLatin1String("&#10;"));
    }
    result.replace(u'\n', m_lineEnd);
    result = m_encoding.withReferences(result);
    return form == Piece::Section ? QLatin1String("]]>") + result + QLatin1String("<![CDATA[")
                                  : result;
}

bool Revision::changeNumber(const Paragraph &paragraph, const QString &number)
{
    if (paragraph.tagStart < 0) {
        return false;
    }
    const QString value = written(number, Piece::Attribute);
    const MrvAttributeRange range =
        mrvAttributeRange(m_xml, paragraph.tagStart, paragraph.tagEnd, "Number");
    if (range.start >= 0) {
        m_edits.append({range.start, range.end, value});
    } else {
        const int place = paragraph.tagStart + int(qstrlen("<Paragraph"));
        m_edits.append({place, place, QStringLiteral(" Number=\"%1\"").arg(value)});
    }
    return true;
}

void Revision::moveRanges(const QVector<MrvFinalDraftRange> &ranges)
{
    QVector<QPair<int, int>> growth; // position, and the growth of all before it and at it
    for (auto it = m_growth.cbegin(); it != m_growth.cend(); ++it) {
        const int before = growth.isEmpty() ? 0 : growth.constLast().second;
        growth.append({it.key(), before + it.value()});
    }
    const auto moved = [&growth](int position) {
        const auto after =
            std::lower_bound(growth.cbegin(), growth.cend(), position,
                             [](const QPair<int, int> &each, int at) { return each.first < at; });
        return position + (after == growth.cbegin() ? 0 : std::prev(after)->second);
    };
    for (const MrvFinalDraftRange &range : ranges) {
        if (range.start >= 0) {
            m_edits.append({range.start, range.end,
                            QStringLiteral("%1,%2").arg(moved(range.from)).arg(moved(range.to))});
        }
    }
}

QString Revision::result()
{
    // What is inserted comes before what is removed at the same place.
    std::stable_sort(m_edits.begin(), m_edits.end(),
                     [](const Edit &a, const Edit &b) { return a.start < b.start; });
    QString result;
    int done = 0;
    for (const Edit &edit : qAsConst(m_edits)) {
        result += m_xml.midRef(done, qMax(0, edit.start - done));
        result += edit.text;
        done = qMax(done, edit.end);
    }
    return result + m_xml.midRef(done);
}

/** A script as it was read, each part with the paragraph that it was made of. */
struct Source
{
    MRVFountainScript script; // normalized
    QVector<const Paragraph *> titles;
    QVector<const Paragraph *> elements;
};

Source sourceOf(const MrvFinalDraftParts &parts)
{
    Source source;
    const MRVFountainScript script = parts.script();
    source.script = script.normalized();
    for (const Paragraph &title : parts.titles) {
        source.titles.append(&title);
    }
    for (size_t i = 0; i < parts.elements.size(); ++i) {
        if (MrvFountain::isKept(MrvFountain::normalizedElement(script.elements.at(int(i))))) {
            source.elements.append(&parts.elements[i]);
        }
    }
    return source;
}

bool haveSameForm(Element a, Element b)
{
    a.runs.clear();
    b.runs.clear();
    a.sceneNumber = b.sceneNumber;
    return a == b;
}

QString faultAt(const QString &xml, const Paragraph *paragraph, const QString &text)
{
    int place = paragraph ? paragraph->tagStart : -1;
    if (paragraph && place < 0 && !paragraph->pieces.isEmpty()) {
        place = paragraph->pieces.constFirst().start;
    }
    const QString message =
        MRVFinalDraft::tr("the document cannot be changed there without losing something: %1")
            .arg(text.simplified().left(60));
    return (place < 0 ? MRVTextFault{message} : MRVTextFault::at(xml, place, message)).toString();
}

// Where another structure begins, by the index of an element.
int firstOfOtherForm(const QVector<Element> &before, const QVector<Element> &after)
{
    const auto found =
        std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend(), haveSameForm);
    return int(found.first - before.cbegin());
}

// Collects all changes, or tells of the first one that has no place.
bool change(Revision *revision, const Source &source, const MRVFountainScript &wanted,
            const QString &xml, MRVErrorSink error)
{
    const MRVFountainScript &old = source.script;
    const int other = firstOfOtherForm(old.elements, wanted.elements);
    if (other < old.elements.size() || other < wanted.elements.size()) {
        const QString text = other < wanted.elements.size() ? wanted.elements.at(other).text()
                                                            : old.elements.at(other).text();
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         faultAt(xml, source.elements.value(other), text));
    }
    for (int i = 0; i < wanted.elements.size(); ++i) {
        const Element &before = old.elements.at(i);
        const Element &after = wanted.elements.at(i);
        const Paragraph *paragraph = source.elements.at(i);
        if ((before.runs != after.runs
             && !revision->changeText(*paragraph, before.runs, after.runs))
            || (before.sceneNumber != after.sceneNumber
                && !revision->changeNumber(*paragraph, after.sceneNumber))) {
            return MRV::fail(error, MRVErrorKind::Unsupported,
                             faultAt(xml, paragraph, after.text()));
        }
    }
    return true;
}

bool changeTitles(Revision *revision, const Source &source, const MRVFountainScript &wanted,
                  const QString &xml, MRVErrorSink error)
{
    const QVector<MRVFountainTitle> &old = source.script.titles;
    for (int i = 0; i < qMax(old.size(), wanted.titles.size()); ++i) {
        const MRVFountainTitle before = old.value(i);
        const MRVFountainTitle after = wanted.titles.value(i);
        const Paragraph *paragraph = source.titles.value(i);
        if (before == after) {
            continue;
        }
        if (before.key != after.key || old.size() != source.titles.size() || !paragraph
            || !revision->changeText(*paragraph, before.value, after.value)) {
            return MRV::fail(error, MRVErrorKind::Unsupported,
                             faultAt(xml, paragraph, after.text()));
        }
    }
    return true;
}

// Whether the bytes are read as the script; if not, what is read otherwise is told.
bool isReadBack(const QByteArray &bytes, const MRVFountainScript &wanted, const Source &source,
                const QString &xml, MRVErrorSink error)
{
    QString text;
    MrvFinalDraftParts parts;
    if (!mrvReadFinalDraft(bytes, &text, &parts, error)) {
        return false;
    }
    const MRVFountainScript read = parts.script().normalized();
    if (read == wanted) {
        return true;
    }
    const auto found = std::mismatch(read.elements.cbegin(), read.elements.cend(),
                                     wanted.elements.cbegin(), wanted.elements.cend());
    const int index = int(found.second - wanted.elements.cbegin());
    return MRV::fail(
        error, MRVErrorKind::Unsupported,
        faultAt(xml, source.elements.value(index),
                index < wanted.elements.size() ? wanted.elements.at(index).text() : QString()));
}

} // namespace

bool MRVFinalDraft::revise(const QByteArray &xml, const MRVFountainScript &script,
                           QByteArray *revised, MRVErrorSink error)
{
    QString text;
    MrvFinalDraftParts parts;
    if (!mrvReadFinalDraft(xml, &text, &parts, error)) {
        return false;
    }
    const Source source = sourceOf(parts);
    const MRVFountainScript wanted = script.normalized();
    if (wanted == source.script) {
        *revised = xml;
        return true;
    }
    // As it is, with a document type that readers do not see.
    MRVTextFault fault;
    MRVXmlReader::decode(xml, &text, &fault);
    MRVSourceEncoding encoding;
    if (!encoding.find(xml, MRVTextDecoder::XmlDeclaration, text)) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("its encoding writes some characters in several ways"));
    }
    Revision revision(text, encoding);
    if (!changeTitles(&revision, source, wanted, text, error)
        || !change(&revision, source, wanted, text, error)) {
        return false;
    }
    QByteArray bytes = encoding.encode(revision.result());
    const bool mayMove = !parts.ranges.isEmpty();
    bool isDone = isReadBack(bytes, wanted, source, text, mayMove ? nullptr : error);
    if (!isDone && mayMove) {
        revision.moveRanges(parts.ranges);
        bytes = encoding.encode(revision.result());
        isDone = isReadBack(bytes, wanted, source, text, error);
    }
    if (isDone) {
        *revised = bytes;
    }
    return isDone;
}
