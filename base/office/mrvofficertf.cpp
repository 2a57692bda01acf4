#include "office/mrvofficertf_p.h"

#include "office/mrvofficefields_p.h"
#include "office/mrvofficertfcodecs_p.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <algorithm>
#include <cctype>

namespace {

// Around the number of a character.
constexpr QChar MarkBegin(0xfdd2);
constexpr QChar MarkEnd(0xfdd3);

// The end of the group that has begun before @p at, without its brace; -1 if it has none.
int groupEnd(const QByteArray &rtf, int at)
{
    for (int depth = 0; at < rtf.size();) {
        const char character = rtf.at(at);
        depth += character == '{' ? 1 : character == '}' ? -1 : 0;
        if (depth < 0) {
            return at;
        }
        at = character == '\\' ? MRVRtfControl(rtf, at).end : at + 1;
    }
    return -1;
}

// Without formats and hidden groups; characters stay as they are written.
QByteArray instructionIn(const QByteArray &rtf)
{
    QByteArray text;
    for (int at = 0; at < rtf.size();) {
        const char character = rtf.at(at);
        if (character == '{' && rtf.mid(at + 1, 2) == "\\*") {
            const int end = groupEnd(rtf, at + 1);
            at = end < 0 ? rtf.size() : end + 1;
        } else if (character == '\\') {
            const MRVRtfControl control(rtf, at);
            if (control.word.isEmpty() || control.isCharacter()) {
                text += rtf.mid(at, control.end - at);
            }
            at = control.end;
            at += !control.word.isEmpty() && rtf.mid(at, 1) == " " ? 1 : 0;
        } else {
            text += strchr("{}\r\n", character) ? QByteArray() : QByteArray(1, character);
            ++at;
        }
    }
    return text;
}

// The instruction of a link in the only form that pandoc reads; empty for other fields.
QByteArray linkOf(const QByteArray &instruction)
{
    const QString address = mrvFieldAddress(QString::fromLatin1(instruction));
    const QString link = address.startsWith(u'#')
        ? QStringLiteral("\\\\l \"%1\"").arg(address.mid(1))
        : QStringLiteral("\"%1\"").arg(address);
    return address.isEmpty() ? QByteArray() : "HYPERLINK " + link.toLatin1();
}

/** Writes RTF so that pandoc reads it. */
class Preparer
{
public:
    Preparer(const QByteArray &rtf, MRVOfficeComments *comments)
        : m_rtf(rtf)
        , m_comments(*comments)
    {
        m_prepared.reserve(rtf.size() + rtf.size() / 8);
    }

    QByteArray prepared()
    {
        while (m_at < m_rtf.size()) {
            const char character = m_rtf.at(m_at);
            if (character == '\\') {
                copyControl();
            } else if (character == '{' || character == '}') {
                copyBrace(character);
            } else {
                addByte(character);
                ++m_at;
            }
        }
        flush();
        return m_prepared;
    }

private:
    bool startsWith(const QByteArray &group) const
    {
        const int end = m_at + group.size();
        return m_rtf.mid(m_at, group.size()) == group
            && (end >= m_rtf.size() || !isalpha(uchar(m_rtf.at(end))));
    }

    void copyControl()
    {
        const MRVRtfControl control(m_rtf, m_at);
        const QByteArray written = m_rtf.mid(m_at, control.end - m_at);
        m_at = control.end;
        if (written.startsWith("\\'")) {
            addByte(char(written.mid(2).toInt(nullptr, 16)), true);
            return;
        }
        flush();
        m_codecs.read(control);
        const bool hasBlank = !control.word.isEmpty() && m_rtf.mid(m_at, 1) == " ";
        m_at += hasBlank ? 1 : 0;
        if (control.isCharacter()) {
            addCharacter(QChar(ushort(control.number)));
            m_substitutes = m_codecs.substitutes();
        } else if (control.word != "uc") { // all that are written have one substitute
            m_prepared += written;
            m_prepared += hasBlank ? " " : "";
        }
        m_hasShapeText = m_hasShapeText || control.word == "shptxt";
    }

    void copyBrace(char brace)
    {
        flush();
        m_substitutes = 0;
        if (brace == '}') {
            m_codecs.close();
        } else {
            m_codecs.open();
        }
        if (brace == '}' || !(isField() || isComment() || isOtherGroup())) {
            m_prepared += brace;
            ++m_at;
        }
    }

    void addByte(char byte, bool isEscaped = false)
    {
        const bool isText = isEscaped || uchar(byte) >= 0x80 || !m_bytes.isEmpty();
        if (byte == '\r' || byte == '\n') {
            m_prepared += isEscaped ? ' ' : byte;
        } else if (m_substitutes > 0) {
            --m_substitutes;
        } else if (isText) {
            m_bytes += byte;
            if (!m_codecs.isIncomplete(m_bytes)) {
                flush();
            }
        } else {
            m_prepared += byte;
        }
    }

    void flush()
    {
        if (!m_bytes.isEmpty() && !m_codecs.codec()) {
            for (const char byte : qAsConst(m_bytes)) {
                m_prepared += "\\'" + QByteArray(1, byte).toHex();
            }
        } else if (!m_bytes.isEmpty()) {
            addText(m_codecs.decoded(m_bytes));
        }
        m_bytes.clear();
    }

    // pandoc knows no characters of two halves; they are put together in its page.
    void addCharacter(QChar character)
    {
        const auto add = [this](QChar one) {
            m_prepared += "\\u" + QByteArray::number(one.unicode()) + " ?";
        };
        if (character.isHighSurrogate()) {
            m_high = character;
        } else if (character.isLowSurrogate()) {
            const uint whole = QChar::surrogateToUcs4(m_high, character);
            add(MarkBegin);
            m_prepared += QByteArray::number(whole, 16);
            add(MarkEnd);
        } else {
            add(character);
        }
    }

    // Only links stay fields.
    bool isField()
    {
        const QByteArray start("\\fldinst");
        if (m_hasOpenField || !startsWith("{\\field")) {
            return false;
        }
        const int begin = m_rtf.mid(m_at, 80).indexOf(start);
        const int inside = m_at + begin + start.size();
        const int end = begin < 0 ? -1 : groupEnd(m_rtf, inside);
        if (end < 0) {
            m_hasOpenField = begin >= 0; // so that damage is looked through once
            return false;
        }
        const QByteArray link = linkOf(instructionIn(m_rtf.mid(inside, end - inside)));
        m_prepared += link.isEmpty() ? "{" : "{\\field{\\*\\fldinst{" + link + "}}";
        m_at = end + 1;
        while (m_at < m_rtf.size() && isspace(uchar(m_rtf.at(m_at)))) {
            ++m_at;
        }
        return true;
    }

    // What is about comments gives way to marks. The author's name comes before the comment.
    bool isComment()
    {
        constexpr const char *groups[] = {"{\\*\\atrfstart", "{\\*\\atrfend", "{\\*\\atnauthor",
                                          "{\\*\\annotation"};
        const auto group = std::find_if(std::begin(groups), std::end(groups),
                                        [this](const char *start) { return startsWith(start); });
        const int kind = int(group - std::begin(groups));
        const int inside = group == std::end(groups) ? -1 : m_at + int(qstrlen(*group));
        const int end = inside < 0 || m_hasOpenComment ? -1 : groupEnd(m_rtf, inside);
        if (end < 0) {
            m_hasOpenComment = m_hasOpenComment || inside >= 0; // damage is looked through once
            return false;
        }
        const QByteArray content = m_rtf.mid(inside, end - inside);
        const QByteArray name = content.trimmed();
        if (kind == 0) {
            // Some programs give one name to several comments.
            const QByteArray unique = 'r' + QByteArray::number(m_ranges++);
            m_begun.insert(name, unique);
            addText(mrvCommentBegin(unique));
        } else if (kind == 1) {
            addText(mrvCommentEnd(m_begun.value(name, name)));
        } else if (kind == 2) {
            m_author = mrvRtfText(content).trimmed();
        } else {
            addComment(content);
        }
        m_prepared += "{}"; // a blank after the group does not belong to what is before it
        m_codecs.close(); // the group that has been opened
        m_at = end + 1;
        return true;
    }

    void addComment(const QByteArray &content)
    {
        const QByteArray reference("{\\*\\atnref");
        const int begin = content.indexOf(reference) + reference.size();
        const int end = content.indexOf('}', begin);
        QByteArray name =
            content.contains(reference) ? content.mid(begin, end - begin).trimmed() : QByteArray();
        if (m_begun.contains(name)) {
            name = m_begun.take(name);
        } else { // it has no range
            name = '#' + QByteArray::number(m_comments.size());
            addText(mrvCommentBegin(name) + mrvCommentEnd(name));
        }
        m_comments.insert(name, {m_author, QString(), mrvRtfText(content).trimmed()});
        m_author.clear();
    }

    void addText(const QString &text)
    {
        for (const QChar character : text) {
            addCharacter(character);
        }
    }

    // Text that is hidden from pandoc, and properties and repetitions that are not.
    bool isOtherGroup()
    {
        constexpr const char *groups[][2] = {
            {"{\\*\\footnote", "{\\footnote"},
            {"{\\*\\shpinst", "{\\shpinst"},
            {"{\\sp", "{\\*\\sp"},
            {"{\\shprslt", "{\\*\\shprslt"},
        };
        m_hasShapeText = m_hasShapeText && !startsWith("{\\shp");
        for (const auto &[from, to] : groups) {
            if (startsWith(from) && (m_hasShapeText || qstrcmp(from, "{\\shprslt") != 0)) {
                m_prepared += to;
                m_at += int(qstrlen(from));
                return true;
            }
        }
        return false;
    }

    const QByteArray &m_rtf;
    MRVOfficeComments &m_comments;
    QByteArray m_prepared;
    int m_at = 0;
    MRVRtfCodecs m_codecs;
    QByteArray m_bytes; // of a character that is not complete
    int m_substitutes = 0; // still to come
    QChar m_high; // the first half of a character
    bool m_hasOpenField = false;
    bool m_hasOpenComment = false;
    QHash<QByteArray, QByteArray> m_begun; // ranges whose comment has not come, with unique names
    int m_ranges = 0;
    QString m_author; // of the next comment
    bool m_hasShapeText = false; // which its repetition for older programs also holds
};

bool isSkippedGroup(const QByteArray &word)
{
    static const QSet<QByteArray> words{
        "fonttbl", "colortbl", "stylesheet", "info",    "pict",    "header",  "headerl",
        "headerr", "headerf",  "footer",     "footerl", "footerr", "footerf", "listtext",
        "pntext",  "fldinst",  "sp",         "shprslt", "xe",      "tc",      "nonshppict",
        "ftnsep",  "ftnsepc",  "ftncn",      "aftnsep", "aftncn",  "filetbl", "revtbl"};
    return words.contains(word);
}

/** Collects the text of RTF. */
class Text
{
public:
    explicit Text(const QByteArray &rtf)
        : m_rtf(rtf)
    {
    }

    QString text()
    {
        for (int at = 0; at < m_rtf.size();) {
            const char character = m_rtf.at(at);
            if (character == '\\') {
                const MRVRtfControl control(m_rtf, at);
                control.word.isEmpty() ? readSymbol(at) : readWord(control);
                at = control.end;
                at += !control.word.isEmpty() && m_rtf.mid(at, 1) == " " ? 1 : 0;
                continue;
            }
            if (character == '{') {
                flush();
                m_codecs.open();
                m_groups.append(m_group);
                m_group.isApart = false;
            } else if (character == '}') {
                m_bytes += m_group.isApart ? " " : "";
                flush();
                m_codecs.close();
                m_group = m_groups.isEmpty() ? Group() : m_groups.takeLast();
            } else if (character != '\r' && character != '\n') {
                addByte(character);
            }
            ++at;
        }
        flush();
        return m_text;
    }

private:
    struct Group
    {
        bool isSkipped = false; // with all in it
        bool isHidden = false; // by its format
        bool isApart = false; // from the text around it, as notes are
    };

    void flush()
    {
        m_text += m_codecs.decoded(m_bytes);
        m_bytes.resize(0);
        m_substitutes = 0;
    }

    void addByte(char byte)
    {
        if (m_substitutes > 0) {
            --m_substitutes;
        } else if (!m_group.isSkipped && !m_group.isHidden) {
            m_bytes += byte;
        }
    }

    void readSymbol(int at)
    {
        const QByteArray symbol = m_rtf.mid(at + 1, 1);
        if (symbol == "*") {
            const QByteArray word = MRVRtfControl(m_rtf, at + 2).word;
            m_group.isSkipped =
                m_group.isSkipped || (word != "footnote" && word != "shpinst" && word != "do");
        } else if (symbol == "'") {
            addByte(char(m_rtf.mid(at + 2, 2).toInt(nullptr, 16)));
        } else if (symbol != "-") {
            addByte(' ');
        }
    }

    void readWord(const MRVRtfControl &control)
    {
        if (control.isCharacter() || MRVRtfCodecs::isRead(control)) {
            flush();
        }
        m_codecs.read(control);
        if (control.isCharacter()) {
            if (!m_group.isSkipped && !m_group.isHidden) {
                m_text += QChar(ushort(control.number));
            }
            m_substitutes = m_codecs.substitutes();
        } else if (control.word == "v" || control.word == "plain") {
            flush();
            m_group.isHidden = control.word == "v" && (!control.hasNumber || control.number != 0);
        } else if (isSkippedGroup(control.word)) {
            m_group.isSkipped = true;
        } else if (control.word == "footnote" || control.word == "shptxt"
                   || control.word == "dptxbxtext") {
            m_group.isApart = true;
            addByte(' ');
        } else if (isSeparator(control.word)) {
            addByte(' ');
        }
    }

    // Of words; formats may be in the middle of one.
    static bool isSeparator(const QByteArray &word)
    {
        static const QSet<QByteArray> words{
            "par",     "line",    "tab",    "cell",   "nestcell",  "row",      "nestrow",
            "sect",    "page",    "column", "emdash", "endash",    "bullet",   "qmspace",
            "emspace", "enspace", "lquote", "rquote", "ldblquote", "rdblquote"};
        return words.contains(word);
    }

    const QByteArray &m_rtf;
    MRVRtfCodecs m_codecs;
    QVector<Group> m_groups;
    Group m_group;
    QByteArray m_bytes; // of text, not yet decoded
    int m_substitutes = 0; // still to come
    QString m_text;
};

} // namespace

QByteArray mrvPreparedRtf(const QByteArray &rtf, MRVOfficeComments *comments)
{
    return Preparer(rtf, comments).prepared();
}

QString mrvWithCharacters(const QString &html)
{
    QString whole;
    int done = 0;
    for (int at = html.indexOf(MarkBegin); at >= 0; at = html.indexOf(MarkBegin, done)) {
        const int end = html.indexOf(MarkEnd, at);
        bool ok = false;
        const uint character = html.midRef(at + 1, qMin(end, at + 8) - at - 1).toUInt(&ok, 16);
        whole += html.midRef(done, at - done);
        done = ok ? end + 1 : at + 1;
        if (ok && character <= QChar::LastValidCodePoint) {
            whole += QString::fromUcs4(&character, 1);
        }
    }
    return whole + html.midRef(done);
}

QString mrvRtfText(const QByteArray &rtf)
{
    return Text(rtf).text();
}
