#include "office/mrvofficertf_p.h"

#include <QRegularExpression>
#include <QSet>
#include <QTextCodec>
#include <QVector>

#include <cctype>

namespace {

// Links are shorter; what is longer is no instruction but damage.
constexpr int LongestInstruction = 8192;

/** A backslash with what belongs to it: "\u220", "\'fc", "\{", and the bytes of "\bin". */
struct Control
{
    Control(const QByteArray &rtf, int begin)
    {
        int at = begin + 1;
        while (at < rtf.size() && isalpha(uchar(rtf.at(at)))) {
            ++at;
        }
        word = rtf.mid(begin + 1, at - begin - 1);
        end = at;
        if (word.isEmpty()) {
            end = qMin(begin + (rtf.mid(at, 1) == "'" ? 4 : 2), rtf.size());
            return;
        }
        at += rtf.mid(at, 1) == "-" ? 1 : 0;
        const int digits = at;
        while (at < rtf.size() && isdigit(uchar(rtf.at(at)))) {
            ++at;
        }
        hasNumber = at > digits;
        if (hasNumber) {
            number = rtf.mid(end, at - end).toInt();
            end = at;
        }
        if (word == "bin" && number > 0) {
            end += int(qMin(qint64(number) + 1, qint64(rtf.size() - end)));
        }
    }

    bool isCharacter() const { return word == "u" && hasNumber; }

    QByteArray word; // empty for a symbol
    int number = 0;
    bool hasNumber = false;
    int end = 0;
};

// The end of the group that has begun before @p at, without its brace; -1 if that is too far.
int groupEnd(const QByteArray &rtf, int at)
{
    const int last = qMin(rtf.size(), at + LongestInstruction);
    for (int depth = 0; at < last;) {
        const char character = rtf.at(at);
        depth += character == '{' ? 1 : character == '}' ? -1 : 0;
        if (depth < 0) {
            return at;
        }
        at = character == '\\' ? Control(rtf, at).end : at + 1;
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
            const Control control(rtf, at);
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
    static const QRegularExpression link(
        QStringLiteral("^\\s*HYPERLINK\\s+(?:\"([^\"]*)\"|([^\\s\\\\\"]+))?"
                       "(?:.*?\\\\\\\\l\\s+\"([^\"]*)\")?"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = link.match(QString::fromLatin1(instruction));
    const QString address = match.captured(1) + match.captured(2);
    const QString name = match.captured(3);
    if (address.isEmpty() && name.isEmpty()) {
        return QByteArray();
    }
    const QString place = name.isEmpty() ? QString() : u'#' + name;
    return (address.isEmpty() ? QStringLiteral("HYPERLINK \\\\l \"%1\"").arg(name)
                              : QStringLiteral("HYPERLINK \"%1\"").arg(address + place))
        .toLatin1();
}

/** Writes RTF so that pandoc reads it. */
class Preparer
{
public:
    explicit Preparer(const QByteArray &rtf)
        : m_rtf(rtf)
    {
        m_prepared.reserve(rtf.size() + rtf.size() / 8);
    }

    QByteArray prepared()
    {
        while (m_at < m_rtf.size()) {
            const char character = m_rtf.at(m_at);
            if (character == '\\') {
                copyControl();
            } else if (character != '{' || !(isField() || isOtherGroup())) {
                m_prepared += character;
                ++m_at;
            }
        }
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
        const Control control(m_rtf, m_at);
        m_prepared += m_rtf.mid(m_at, control.end - m_at);
        m_at = control.end;
        if (control.isCharacter() && m_at < m_rtf.size() && !strchr(" \\{}\r\n", m_rtf.at(m_at))) {
            m_prepared += ' ';
        }
        m_hasShapeText = m_hasShapeText || control.word == "shptxt";
    }

    // Only links stay fields.
    bool isField()
    {
        const QByteArray start("\\fldinst");
        if (!startsWith("{\\field")) {
            return false;
        }
        const int begin = m_rtf.mid(m_at, 80).indexOf(start);
        const int inside = m_at + begin + start.size();
        const int end = begin < 0 ? -1 : groupEnd(m_rtf, inside);
        if (end < 0) {
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
    QByteArray m_prepared;
    int m_at = 0;
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
                const Control control(m_rtf, at);
                control.word.isEmpty() ? readSymbol(at) : readWord(control);
                at = control.end;
                at += !control.word.isEmpty() && m_rtf.mid(at, 1) == " " ? 1 : 0;
                continue;
            }
            if (character == '{') {
                m_groups.append(m_group);
                m_group.isApart = false;
            } else if (character == '}') {
                m_bytes += m_group.isApart ? " " : "";
                flush();
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
        int substitutes = 1; // bytes after "\u220", for older programs
    };

    void flush()
    {
        m_text += m_codec->toUnicode(m_bytes);
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
            const QByteArray word = Control(m_rtf, at + 2).word;
            m_group.isSkipped =
                m_group.isSkipped || (word != "footnote" && word != "shpinst" && word != "do");
        } else if (symbol == "'") {
            addByte(char(m_rtf.mid(at + 2, 2).toInt(nullptr, 16)));
        } else if (symbol != "-") {
            addByte(' ');
        }
    }

    void readWord(const Control &control)
    {
        if (control.isCharacter()) {
            flush();
            if (!m_group.isSkipped && !m_group.isHidden) {
                m_text += QChar(ushort(control.number));
            }
            m_substitutes = m_group.substitutes;
        } else if (control.word == "uc") {
            m_group.substitutes = qBound(0, control.number, 10);
        } else if (control.word == "ansicpg") {
            setCodec("windows-" + QByteArray::number(control.number));
        } else if (control.word == "mac") {
            setCodec("macintosh");
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

    void setCodec(const QByteArray &name)
    {
        QTextCodec *codec = QTextCodec::codecForName(name);
        m_codec = codec ? codec : m_codec;
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
    QTextCodec *m_codec = QTextCodec::codecForName("windows-1252");
    QVector<Group> m_groups;
    Group m_group;
    QByteArray m_bytes; // of text, not yet decoded
    int m_substitutes = 0; // still to come
    QString m_text;
};

} // namespace

QByteArray mrvPreparedRtf(const QByteArray &rtf)
{
    return Preparer(rtf).prepared();
}

QString mrvRtfText(const QByteArray &rtf)
{
    return Text(rtf).text();
}
