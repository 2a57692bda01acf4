#include "manuscript/mrvsourcechanges_p.h"

#include "manuscript/mrvmanuscript.h"
#include "manuscript/mrvmanuscriptdocument_p.h"
#include "manuscript/mrvparagraphs_p.h"
#include "manuscript/mrvsourceplaces_p.h"
#include "textexport/mrvmarkdownwriter.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvmarkupcharacters.h"
#include "xhtml/mrvdocumenthtml.h"

#include <QRegularExpression>
#include <QTextBlock>

#include <algorithm>

namespace {

// How often a source is read to find out which changes cannot be made.
constexpr int MostTrials = 100;

// How often paragraphs are looked for that are read in another way, before all changes wait.
constexpr int MostRounds = 20;

QString pageOf(const QTextDocument &document, const QByteArray &encoding)
{
    const QLatin1String utf8("charset=utf-8\"");
    QString page = mrvDocumentHtml(document);
    return page.replace(page.indexOf(utf8), utf8.size(),
                        QStringLiteral("charset=%1\"").arg(QString::fromLatin1(encoding)));
}

// Where the bracket is that closes, or with a negative step opens, the one around a place; -1
// where there is none in this paragraph.
int bracketFrom(const QString &markdown, int at, int step)
{
    constexpr int Longest = 1000;
    const QChar wanted(step > 0 ? u']' : u'[');
    const QChar other(step > 0 ? u'[' : u']');
    int depth = 0;
    for (int i = at, last = at + step * Longest; i >= 0 && i < markdown.size() && i != last;
         i += step) {
        const QChar character = markdown.at(i);
        const bool isEscaped =
            i > 0 && markdown.at(i - 1) == u'\\' && (i == 1 || markdown.at(i - 2) != u'\\');
        if (character == u'\n' && i + step >= 0 && i + step < markdown.size()
            && markdown.at(i + step) == u'\n') {
            return -1;
        }
        if (character == other && !isEscaped) {
            ++depth;
        } else if (character == wanted && !isEscaped && depth-- == 0) {
            return i;
        }
    }
    return -1;
}

int countOfText(const QString &text)
{
    return text.size() - int(std::count_if(text.cbegin(), text.cend(), mrvIsMarkupBlank));
}

// How many characters of links a change adds, at least; negative where it removes some.
int linkedCharacters(const QTextDocument &document, const MRVTextChange &change)
{
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.setPosition(qMin(change.range.start() + 1, change.range.end()));
    const bool startsInLink = !cursor.charFormat().anchorHref().isEmpty();
    cursor.setPosition(change.range.end());
    const bool endsInLink = !cursor.charFormat().anchorHref().isEmpty();
    const int before = startsInLink || endsInLink ? countOfText(change.before) : 0;
    return (startsInLink && endsInLink ? countOfText(change.after) : 0) - before;
}

// How many links a change deletes with all of their text.
int deletedLinks(const QTextDocument &document, const MRVTextChange &change)
{
    int count = 0;
    int begin = 0; // of the link that was met last
    QString address;
    const auto end = [&](int position) {
        const bool isInside = begin >= change.range.start() && position <= change.range.end();
        count += !address.isEmpty() && isInside ? 1 : 0;
        address.clear();
    };
    const QTextBlock block = document.findBlock(change.range.start());
    for (auto it = block.begin(); change.after.isEmpty() && !it.atEnd(); ++it) {
        const QString next = it.fragment().charFormat().anchorHref();
        if (next != address) {
            end(it.fragment().position());
            address = next;
            begin = it.fragment().position();
        }
    }
    end(block.position() + block.length() - 1);
    return count;
}

// The names of places in a document, and the addresses within it that its links have.
struct Names
{
    explicit Names(const QTextDocument &document)
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const QTextCharFormat format = it.fragment().charFormat();
                const QString address = format.anchorHref();
                for (const QString &name : format.anchorNames()) {
                    places.insert(name);
                }
                if (address.startsWith(u'#') && !links.contains(address)) {
                    links.append(address);
                }
            }
        }
    }

    QSet<QString> places;
    QStringList links;
};

} // namespace

void MRVSourceChanges::Change::fail()
{
    const bool isLast = way + 1 == ways.size();
    way += isLast ? 0 : 1;
    state = isLast ? State::LeftOut : State::Waiting;
}

MRVSourceChanges::MRVSourceChanges(const MRVManuscript &manuscript,
                                   const QVector<MRVTextChange> &changes)
    : m_manuscript(manuscript)
    , m_source(manuscript.sourceText())
    , m_text(manuscript.document->toRawText())
    , m_writer(manuscript, m_source)
{
    for (const MRVTextChange &wanted : changes) {
        Change one;
        one.change = wanted;
        QString &after = one.change.after;
        if (after.contains(u'\n') || after.contains(u'\r')) {
            after.replace(QLatin1String("\r\n"), QLatin1String("\n"));
            after.replace(u'\r', u'\n').replace(u'\n', QChar::ParagraphSeparator);
        }
        one.block = manuscript.document->findBlock(wanted.range.start()).blockNumber();
        one.linkedCharacters = linkedCharacters(*manuscript.document, one.change);
        one.deletedLinks = deletedLinks(*manuscript.document, one.change);
        m_changes.append(one);
    }
}

bool MRVSourceChanges::isValid() const
{
    int done = 0;
    return std::all_of(m_changes.cbegin(), m_changes.cend(), [&](const Change &one) {
        const int start = one.change.range.start();
        const int end = one.change.range.end();
        const bool fits = start >= done && m_text.midRef(start, end - start) == one.change.before;
        done = end;
        return fits;
    });
}

// Where text can be inserted that replaces nothing: beside the text that it gets its format from.
MRVSourcePlace MRVSourceChanges::insertionPlace(int position, bool prefersBefore) const
{
    const MRVSourcePlace before = m_places.value(position - 1);
    const MRVSourcePlace after = m_places.value(position);
    if (before.isKnown() && (prefersBefore || !after.isKnown())) {
        return {before.end(), 0, before.syntax};
    }
    return m_places.isEmpty() ? MRVSourcePlace{0, 0, MRVSourcePlace::Plain}
                              : MRVSourcePlace{after.start, 0, after.syntax};
}

// The edits of a change, without the syntax of the source. As in the document, a text of the same
// length is replaced character by character; any other takes the place of the first character that
// is replaced.
MRVSourceChanges::Edits MRVSourceChanges::editsOf(const MRVTextChange &change) const
{
    const QString &before = change.before;
    const QString &after = change.after;
    const bool keepsEnds = change.format.isEmpty(); // else these get the format, too
    const int shorter = keepsEnds ? qMin(before.size(), after.size()) : 0;
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
        return {{insertionPlace(start, head > 0), text}};
    }
    const bool isSingle = before.size() == after.size();
    Edits edits;
    for (int position = start; position < end; ++position) {
        const int i = position - start;
        const QString part = isSingle ? text.mid(i, 1) : i == 0 ? text : QString();
        // What stays the same stays in the source, as do the blanks in text that gets a format.
        if (isSingle && part.at(0) == before.at(head + i)
            && (keepsEnds || mrvIsMarkupBlank(part.at(0)))) {
            continue;
        }
        const MRVSourcePlace place = m_places.value(position);
        if (!edits.isEmpty() && edits.constLast().place.end() == place.start
            && edits.constLast().place.syntax == place.syntax) {
            edits.last().place.length += place.length;
            edits.last().text += part;
        } else {
            edits.append({place, part});
        }
    }
    return edits;
}

// A link of Markdown that has its text for its label keeps the label when the text changes. Empty
// where the edits are not in such a link.
MRVSourceChanges::Edits MRVSourceChanges::withLinkLabel(const Edits &edits) const
{
    if (edits.isEmpty() || edits.constFirst().place.syntax == MRVSourcePlace::Page) {
        return {};
    }
    const int at = edits.constFirst().place.start;
    const int open = bracketFrom(m_source, at - 1, -1);
    const int close = open < 0 ? -1 : bracketFrom(m_source, edits.constLast().place.end(), 1);
    const QStringView rest = close < 0 ? QStringView() : QStringView(m_source).mid(close + 1);
    if (close < 0 || rest.startsWith(u'(') || (rest.startsWith(u'[') && !rest.startsWith(u"[]"))) {
        return {};
    }
    const QString label = m_source.mid(open + 1, close - open - 1);
    const bool hasBrackets = rest.startsWith(u"[]");
    Edits labelled = edits;
    labelled.append({{close + (hasBrackets ? 2 : 1), 0, MRVSourcePlace::Plain},
                     hasBrackets ? label : u'[' + label + u']'});
    return labelled;
}

// The deletion of the whole text of a link of Markdown takes the link with it. Empty where the
// edits are none.
MRVSourceChanges::Edits MRVSourceChanges::withoutLink(const Edits &edits) const
{
    const bool isDeletion = edits.size() == 1 && edits.constFirst().text.isEmpty()
        && edits.constFirst().place.syntax == MRVSourcePlace::Markdown;
    const int open = isDeletion ? edits.constFirst().place.start - 1 : -1;
    const int close = isDeletion ? edits.constFirst().place.end() : -1;
    if (open < 0 || m_source.at(open) != u'[' || m_source.midRef(close, 1) != QLatin1String("]")
        || (open > 0 && m_source.at(open - 1) == u'!')) {
        return {};
    }
    // The address and title, or the label. Whether the link ends there, reading the result tells.
    static const QRegularExpression target(
        QStringLiteral("\\G\\](?:\\((?:[^()\\n\"']|\"[^\"\\n]*\"|'[^'\\n]*'|\\([^()\\n]*\\))*\\)|"
                       "\\[[^\\]\\n]*\\])?"));
    const QRegularExpressionMatch match =
        target.match(m_source, close, QRegularExpression::NormalMatch,
                     QRegularExpression::DontCheckSubjectStringMatchOption);
    return {{{open, match.capturedEnd() - open, MRVSourcePlace::Markdown}, QString()}};
}

// Edits whose text was not written yet, with more backslashes than most places need.
MRVSourceChanges::Edits MRVSourceChanges::withEscapes(const Edits &raw,
                                                      const MRVTextChange &change) const
{
    Edits escaped = raw;
    for (Edit &edit : escaped) {
        const QTextCharFormat format = edit.text.isEmpty() ? QTextCharFormat() : change.format;
        if (!m_writer.writeEscaped(edit.text, edit.place, &edit.text)
            || !MRVSourceWriter::mark(format, edit.place.syntax, false, &edit.text)) {
            return {};
        }
    }
    const Edit &last = raw.constLast();
    const int place = last.place.syntax == MRVSourcePlace::Markdown
        ? m_writer.escapeAfter(last.text, last.place.start, last.place.end())
        : -1;
    if (place >= 0) {
        escaped.append({{place, 0, MRVSourcePlace::Plain}, QStringLiteral("\\")});
    }
    return escaped;
}

void MRVSourceChanges::findWays(Change *change) const
{
    const auto leaveOut = [change](const QString &reason) {
        change->state = State::LeftOut;
        change->misfit = reason;
    };
    const bool isMarkdown = m_manuscript.format == MRVManuscript::Markdown;
    const Edits raw = editsOf(change->change);
    Edits edits = raw;
    Edits others; // with elements in place of Markdown
    // A new paragraph would need markup of its own.
    const bool splits = m_manuscript.format != MRVManuscript::PlainText
        && change->change.after.contains(QChar::ParagraphSeparator);
    for (Edit &edit : edits) {
        if (splits || !edit.place.isKnown()) {
            return leaveOut(MRVSourceMisfit::tr("it does not fit into the markup"));
        }
        if (!m_writer.write(edit.text, edit.place, &edit.text)) {
            return leaveOut(MRVSourceMisfit::tr("the encoding %1 does not have all its characters")
                                .arg(QString::fromLatin1(m_manuscript.encoding)));
        }
        Edit other = edit;
        const QTextCharFormat format =
            edit.text.isEmpty() ? QTextCharFormat() : change->change.format;
        if (!MRVSourceWriter::mark(format, edit.place.syntax, false, &edit.text)
            || !MRVSourceWriter::mark(format, edit.place.syntax, true, &other.text)) {
            return leaveOut(MRVSourceMisfit::tr("there it cannot have this format"));
        }
        others.append(other);
    }
    change->misfit = MRVSourceMisfit::tr("the new text would not be read back as it is");
    if (isMarkdown) {
        change->ways.append(withoutLink(edits));
    }
    change->ways.append(edits);
    if (isMarkdown && !change->change.format.isEmpty()) {
        change->ways.append(others);
    }
    if (isMarkdown && !raw.isEmpty()) {
        change->ways.append(withLinkLabel(edits));
        change->ways.append(withEscapes(raw, change->change));
    }
    const auto isNone = [](const Edits &way) { return way.isEmpty(); };
    const bool isNothing = edits.isEmpty();
    change->ways.erase(std::remove_if(change->ways.begin(), change->ways.end(), isNone),
                       change->ways.end());
    if (isNothing) {
        change->ways = {edits};
    }
}

bool MRVSourceChanges::settle()
{
    m_places = mrvSourcePlaces(m_manuscript, m_source);
    for (Change &change : m_changes) {
        findWays(&change);
    }
    // Without the changes in paragraphs that would be read in another way, the rest is read back.
    if (!suspendDiffering()) {
        return false;
    }
    const bool isTried = !m_groups.isEmpty();
    for (int trials = 0; trials < MostTrials && !m_groups.isEmpty(); ++trials) {
        tryGroups();
    }
    // Without trials, reading all of it again would tell the same.
    const bool isReadBack = !isTried || suspendDiffering();
    for (Change &change : m_changes) {
        if (change.state == State::Waiting) {
            change.state = State::LeftOut;
            change.misfit = MRVSourceMisfit::tr("too many others near it cannot be made");
        }
    }
    return isReadBack;
}

bool MRVSourceChanges::suspendDiffering()
{
    for (int round = 0;; ++round) {
        const QSet<int> blocks = differingBlocks(edited());
        if (blocks.isEmpty()) {
            return true;
        }
        if (!suspendIn(round < MostRounds ? blocks : QSet<int>())) {
            return false;
        }
    }
}

// Leaves out for now what is in some paragraphs, or all changes where none is in them.
bool MRVSourceChanges::suspendIn(const QSet<int> &blocks)
{
    const bool isAll = std::none_of(m_changes.cbegin(), m_changes.cend(), [&](const Change &one) {
        return one.isIn() && blocks.contains(one.block);
    });
    bool isFound = false;
    for (int i = 0; i < m_changes.size(); ++i) {
        if (m_changes[i].isIn() && (isAll || blocks.contains(m_changes[i].block))) {
            suspend(i);
            isFound = true;
        }
    }
    return isFound;
}

void MRVSourceChanges::suspend(int index)
{
    Change &change = m_changes[index];
    change.state = State::Waiting;
    QVector<QVector<int>> &groups = m_groups[change.block];
    if (groups.isEmpty()) {
        groups.append(QVector<int>());
    }
    groups.last().append(index);
}

// Tries a group of changes of each paragraph, or of one where they cannot be told apart. A group
// with which the source is not read back is halved.
void MRVSourceChanges::tryGroups()
{
    QMap<int, QVector<int>> tried;
    for (auto it = m_groups.begin(); it != m_groups.end() && (tried.isEmpty() || !m_isSerial);) {
        const QVector<int> group = it->takeLast();
        for (const int index : group) {
            m_changes[index].state = State::OnTrial;
        }
        tried.insert(it.key(), group);
        it = it->isEmpty() ? m_groups.erase(it) : it + 1;
    }
    const QSet<int> blocks = differingBlocks(edited());
    const bool isElsewhere = std::any_of(blocks.cbegin(), blocks.cend(),
                                         [&](int block) { return !tried.contains(block); });
    const bool isUndecided = isElsewhere && tried.size() > 1;
    m_isSerial = m_isSerial || isUndecided;
    for (auto it = tried.cbegin(); it != tried.cend(); ++it) {
        judge(it.key(), it.value(), isUndecided, isElsewhere || blocks.contains(it.key()));
    }
}

void MRVSourceChanges::judge(int block, const QVector<int> &group, bool isUndecided, bool isWrong)
{
    const bool isSingle = group.size() == 1;
    for (const int index : group) {
        Change &change = m_changes[index];
        change.state = isUndecided || isWrong ? State::Waiting : State::Made;
        if (isWrong && isSingle && !isUndecided) {
            change.fail();
        }
    }
    if (isUndecided) {
        m_groups[block].append(group);
    } else if (isWrong && !isSingle) {
        m_groups[block].append(group.mid(group.size() / 2));
        m_groups[block].append(group.mid(0, group.size() / 2));
    } else if (isWrong && m_changes[group.first()].state == State::Waiting) {
        m_groups[block].append(group);
    }
}

QString MRVSourceChanges::edited() const
{
    Edits edits;
    for (const Change &change : m_changes) {
        if (change.isIn()) {
            edits += change.ways.at(change.way);
        }
    }
    std::stable_sort(edits.begin(), edits.end(), [](const Edit &left, const Edit &right) {
        return left.place.start < right.place.start;
    });
    QString result;
    result.reserve(m_source.size());
    int done = 0;
    for (const Edit &edit : qAsConst(edits)) {
        result += m_source.midRef(done, qMax(0, edit.place.start - done));
        result += edit.text;
        done = qMax(done, edit.place.end());
    }
    return result + m_source.midRef(done);
}

QStringList MRVSourceChanges::brokenLinks(const QString &source) const
{
    const bool mayBreak =
        std::any_of(m_changes.cbegin(), m_changes.cend(), [this](const Change &one) {
            const QTextBlock block = m_manuscript.document->findBlockByNumber(one.block);
            return one.isIn()
                && block.blockFormat().hasProperty(MRVTextFormat::HeadingLevelProperty);
        });
    if (!mayBreak) {
        return QStringList();
    }
    const Names old(*m_manuscript.document);
    const QSet<QString> &before = old.places;
    const bool hasLinks =
        std::any_of(old.links.cbegin(), old.links.cend(),
                    [&before](const QString &address) { return before.contains(address.mid(1)); });
    const auto document = hasLinks ? read(source) : nullptr;
    if (!document) {
        return QStringList();
    }
    const Names names(*document);
    QStringList broken;
    for (const QString &address : names.links) {
        const QString name = address.mid(1);
        if (before.contains(name) && !names.places.contains(name)) {
            broken.append(address);
        }
    }
    return broken;
}

bool MRVSourceChanges::writeWhole(QString *text) const
{
    QVector<MRVTextChange> changes;
    for (const Change &one : m_changes) {
        changes.append(one.change);
    }
    // Qt writes the font of the document, which is that of this machine where the page has none.
    const QString noFont = QStringLiteral("mrv-no-font");
    const auto document = read(m_source, QFont(noFont));
    MRVTextReplacer::apply(document.get(), changes);
    MRVSourcePlace::Syntax syntax = MRVSourcePlace::Plain;
    switch (m_manuscript.format) {
    case MRVManuscript::Html:
        syntax = MRVSourcePlace::Page;
        *text = pageOf(*document, m_manuscript.encoding);
        text->remove(QStringLiteral(" font-family:'%1';").arg(noFont));
        break;
    case MRVManuscript::Markdown: {
        syntax = MRVSourcePlace::Markdown;
        MRVMarkdownWriter writer(*document);
        writer.setHead(m_manuscript.head());
        *text = writer.text();
        break;
    }
    default:
        *text = document->toRawText().replace(QChar::ParagraphSeparator, u'\n');
    }
    text->replace(u'\n', m_writer.lineEnd());
    return m_writer.encode(syntax, text);
}

QVector<MRVSourceMisfit> MRVSourceChanges::misfits() const
{
    QVector<MRVSourceMisfit> misfits;
    int line = 1;
    int done = 0; // in the source
    int position = 0;
    for (const Change &one : m_changes) {
        int start = done;
        for (; position < m_places.size() && position <= one.change.range.start(); ++position) {
            start = qMax(start, m_places.at(position).start);
        }
        line += m_source.midRef(done, start - done).count(u'\n');
        done = start;
        if (!one.isIn()) {
            misfits.append({one.change, m_places.isEmpty() ? 0 : line, one.misfit});
        }
    }
    return misfits;
}

std::unique_ptr<QTextDocument> MRVSourceChanges::read(const QString &source,
                                                      const QFont &font) const
{
    return mrvNewDocument(source, m_manuscript.format, m_manuscript.options, m_manuscript.location,
                          nullptr, nullptr, font);
}

// The paragraphs that a source does not have as the document has them with the changes.
QSet<int> MRVSourceChanges::differingBlocks(const QString &source) const
{
    const bool isMarkup = m_manuscript.format != MRVManuscript::PlainText;
    QString text;
    text.reserve(m_text.size());
    QHash<int, int> linked; // characters more or less, by block
    QHash<int, int> deleted; // links
    int done = 0;
    for (const Change &one : m_changes) {
        if (one.isIn()) {
            text += m_text.midRef(done, one.change.range.start() - done);
            text += one.change.after;
            done = one.change.range.end();
            linked[one.block] += one.linkedCharacters;
            deleted[one.block] += one.deletedLinks;
        }
    }
    text += m_text.midRef(done);
    MRVParagraphs wanted = mrvParagraphs(*m_manuscript.document, text, isMarkup);
    for (MRVParagraph &paragraph : wanted) {
        paragraph.linkedCharacters += linked.value(paragraph.block);
        paragraph.links -= deleted.value(paragraph.block);
    }
    const auto document = read(source);
    return mrvDifferingBlocks(wanted,
                              document ? mrvParagraphs(*document, document->toRawText(), isMarkup)
                                       : MRVParagraphs());
}
