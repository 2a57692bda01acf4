#include "settings/mrvsettingstext_p.h"

#include "input/mrvvariantguard.h"

#include <QDataStream>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

constexpr char Utf8Mark[] = "\xef\xbb\xbf";

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

int digitOf(char c, int base)
{
    const int value = c >= '0' && c <= '9' ? c - '0'
        : std::isxdigit(uchar(c))          ? (c | 0x20) - 'a' + 10
                                           : base;
    return value < base ? value : -1;
}

struct Line
{
    int begin;
    int equals; // -1 where it has none
    int end; // a comment after it does not belong to it
};

int afterBlanksAndComments(const QByteArray &bytes, int at)
{
    while (at < bytes.size() && bytes.at(at) != 0 && std::strchr(" \t\n\r;", bytes.at(at))) {
        if (bytes.at(at++) != ';') {
            continue;
        }
        while (at < bytes.size() && !isLineEnd(bytes.at(at))) {
            ++at;
        }
    }
    return at;
}

// A quotation mark or a backslash takes a line over line ends.
Line lineAfter(const QByteArray &bytes, int at)
{
    Line line{afterBlanksAndComments(bytes, at), -1, bytes.size()};
    bool isQuoted = false;
    for (at = line.begin; at < bytes.size(); ++at) {
        const char c = bytes.at(at);
        if (c == '"') {
            isQuoted = !isQuoted;
        } else if (c == '\\') {
            const bool isPair = at + 2 < bytes.size() && isLineEnd(bytes.at(at + 1))
                && isLineEnd(bytes.at(at + 2)) && bytes.at(at + 1) != bytes.at(at + 2);
            at += isPair ? 2 : 1;
        } else if (isQuoted) {
            continue;
        } else if (c == '=' && line.equals < 0) {
            line.equals = at;
        } else if (isLineEnd(c) || c == ';') {
            line.end = at;
            break;
        }
    }
    return line;
}

QByteArray nameIn(const QByteArray &bytes, const Line &line)
{
    int end = qMax(line.equals, line.begin);
    while (end > line.begin && isBlank(QLatin1Char(bytes.at(end - 1)))) {
        --end;
    }
    return bytes.mid(line.begin, end - line.begin);
}

// "%20" and "%U20ac" stand for characters, a backslash for the slash.
QString unescapedKey(const QByteArray &key)
{
    QString text;
    for (int i = 0; i < key.size(); ++i) {
        const bool isLong = i + 1 < key.size() && key.at(i + 1) == 'U';
        const int first = isLong ? i + 2 : i + 1;
        const int digits = isLong ? 4 : 2;
        bool isCode = key.at(i) == '%' && first + digits <= key.size();
        const int code = isCode ? key.mid(first, digits).toInt(&isCode, 16) : 0;
        if (isCode) {
            text += QChar(ushort(code));
            i = first + digits - 1;
        } else {
            text += key.at(i) == '\\' ? QLatin1Char('/') : QLatin1Char(key.at(i));
        }
    }
    return text;
}

// As QSettings looks keys up: without empty parts.
QString normalized(const QString &key)
{
    return key.split(u'/', Qt::SkipEmptyParts).join(u'/');
}

// The texts of a value, which commas outside of quotation marks separate.
class Items
{
public:
    Items(const QByteArray &value, bool isUtf8)
        : m_value(value)
        , m_isUtf8(isUtf8)
    {
        read();
    }

    bool isList() const { return m_texts.size() > 1; }
    const QStringList &texts() const { return m_texts; }

private:
    void read();
    void skipBlanks();
    void readEscape();
    void readPlain();
    void endItem();

    const QByteArray m_value;
    const bool m_isUtf8;
    QStringList m_texts;
    int m_at = 0;
    QString m_text;
    int m_written = 0; // what lies before it is not cut off, though it may be a blank
    bool m_hasQuotes = false;
};

void Items::read()
{
    bool isQuoted = false;
    skipBlanks();
    while (m_at < m_value.size()) {
        const char c = m_value.at(m_at);
        if (c == '\\') {
            readEscape();
            m_written = m_text.size();
        } else if (c == '"') {
            ++m_at;
            m_hasQuotes = true;
            isQuoted = !isQuoted;
            if (!isQuoted) {
                skipBlanks();
            }
        } else if (c == ',' && !isQuoted) {
            ++m_at;
            endItem();
            skipBlanks();
        } else {
            readPlain();
        }
    }
    endItem();
}

void Items::skipBlanks()
{
    while (m_at < m_value.size() && isBlank(QLatin1Char(m_value.at(m_at)))) {
        ++m_at;
    }
    m_written = m_text.size();
}

void Items::readEscape()
{
    static constexpr char Letters[] = "abfnrtv\"?'\\";
    static constexpr char Meanings[] = "\a\b\f\n\r\t\v\"?'\\";
    if (++m_at == m_value.size()) {
        return;
    }
    const char c = m_value.at(m_at++);
    if (const char *letter = std::strchr(Letters, c); c != 0 && letter) {
        m_text += QLatin1Char(Meanings[letter - Letters]);
        return;
    }
    const char next = m_at < m_value.size() ? m_value.at(m_at) : 0;
    if (isLineEnd(c)) {
        m_at += isLineEnd(next) && next != c ? 1 : 0;
        return;
    }
    const int base = c == 'x' ? 16 : 8;
    m_at -= base == 8 ? 1 : 0;
    ushort code = 0;
    bool isCode = false;
    for (; m_at < m_value.size() && digitOf(m_value.at(m_at), base) >= 0; ++m_at) {
        code = ushort(code * base + digitOf(m_value.at(m_at), base));
        isCode = true;
    }
    if (isCode) {
        m_text += QChar(code);
    } else {
        m_at += base == 8 ? 1 : 0; // nothing that is known
    }
}

void Items::readPlain()
{
    const int begin = m_at++;
    while (m_at < m_value.size() && !std::strchr("\\\",", m_value.at(m_at))) {
        ++m_at;
    }
    const char *text = m_value.constData() + begin;
    m_text +=
        m_isUtf8 ? QString::fromUtf8(text, m_at - begin) : QString::fromLatin1(text, m_at - begin);
}

void Items::endItem()
{
    while (!m_hasQuotes && m_text.size() > m_written && isBlank(m_text.back())) {
        m_text.chop(1);
    }
    m_texts.append(m_text);
    m_text.clear();
    m_hasQuotes = false;
}

bool isMarked(const QString &text, const char *mark)
{
    return text.startsWith(QLatin1String(mark)) && text.endsWith(u')');
}

// The numbers in "@Rect(1 2 3 4)"; empty where they are not as many as are wanted.
QVector<int> numbersIn(const QString &text, int count)
{
    const int begin = text.indexOf(u'(') + 1;
    const QStringRef inner = text.midRef(begin, text.size() - begin - 1);
    QVector<int> numbers;
    const auto parts = inner.split(u' ');
    for (const QStringRef &part : parts) {
        numbers.append(part.toInt());
    }
    return numbers.size() == count && !inner.contains(u')') ? numbers : QVector<int>();
}

// An invalid value where it is damaged.
QVariant decoded(const QString &text, MRVVariantGuard::Form form, bool *isDamaged)
{
    const QByteArray stored = text.mid(text.indexOf(u'(') + 1).toLatin1();
    QDataStream stream(stored);
    const QByteArray bytes = MRVVariantGuard::take(stream, form);
    if (bytes.isEmpty()) {
        *isDamaged = true;
        return QVariant();
    }
    QDataStream checked(bytes);
    checked.setVersion(form == MRVVariantGuard::SettingsDate ? QDataStream::Qt_5_6
                                                             : QDataStream::Qt_4_0);
    QVariant value;
    checked >> value;
    return MRVVariantGuard::storable(value, MRVVariantGuard::SettingsDate);
}

QVariant valueOf(const QString &text, bool *isDamaged)
{
    if (!text.startsWith(u'@')) {
        return text;
    }
    const auto inner = [&text](int begin) { return text.midRef(begin, text.size() - begin - 1); };
    if (isMarked(text, "@ByteArray(")) {
        return inner(11).toLatin1();
    }
    if (isMarked(text, "@String(")) {
        return inner(8).toString();
    }
    if (isMarked(text, "@Variant(")) {
        return decoded(text, MRVVariantGuard::SettingsValue, isDamaged);
    }
    if (isMarked(text, "@DateTime(")) {
        return decoded(text, MRVVariantGuard::SettingsDate, isDamaged);
    }
    if (const auto n = numbersIn(text, 4); isMarked(text, "@Rect(") && !n.isEmpty()) {
        return QRect(n.at(0), n.at(1), n.at(2), n.at(3));
    }
    if (const auto n = numbersIn(text, 2); !n.isEmpty()) {
        if (isMarked(text, "@Size(")) {
            return QSize(n.at(0), n.at(1));
        }
        if (isMarked(text, "@Point(")) {
            return QPoint(n.at(0), n.at(1));
        }
    }
    if (text == QLatin1String("@Invalid()")) {
        return QVariant();
    }
    return text.startsWith(QLatin1String("@@")) ? text.mid(1) : text;
}

QVariant valueOf(const Items &items, bool *isDamaged)
{
    if (!items.isList()) {
        return valueOf(items.texts().constFirst(), isDamaged);
    }
    QVariantList values;
    bool areTexts = true;
    for (const QString &text : items.texts()) {
        values.append(valueOf(text, isDamaged));
        areTexts = areTexts && (!text.startsWith(u'@') || text.startsWith(QLatin1String("@@")));
    }
    return areTexts ? QVariant(QVariant(values).toStringList()) : QVariant(values);
}

// The group that the keys after a line such as "[a]" belong to; empty for the group of those
// without one.
QString groupIn(const QByteArray &section)
{
    const QByteArray name = section.trimmed();
    if (name.compare("general", Qt::CaseInsensitive) == 0) {
        return QString();
    }
    if (name.compare("%general", Qt::CaseInsensitive) == 0) {
        return QString::fromLatin1(name.mid(1)) + u'/';
    }
    return unescapedKey(name) + u'/';
}

class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : m_bytes(bytes)
        , m_isUtf8(bytes.startsWith(Utf8Mark))
    {
    }

    MRVSettingsText read();

private:
    void readSection(const QByteArray &line);
    void readSetting(const Line &line);

    const QByteArray m_bytes;
    const bool m_isUtf8;
    QString m_group;
    MRVSettingsText m_text;
};

MRVSettingsText Reader::read()
{
    bool isFirst = true;
    Line line = lineAfter(m_bytes, m_isUtf8 ? int(std::strlen(Utf8Mark)) : 0);
    for (; line.begin < m_bytes.size(); line = lineAfter(m_bytes, line.end)) {
        const bool isSection = m_bytes.at(line.begin) == '[';
        if (isFirst) {
            m_text.beginsWithSection = isSection;
            isFirst = false;
        }
        if (isSection) {
            readSection(m_bytes.mid(line.begin + 1, line.end - line.begin - 1));
        } else {
            readSetting(line);
        }
    }
    m_text.isDamaged = m_text.hasOtherLines || !m_text.unreadable.isEmpty();
    return m_text;
}

void Reader::readSection(const QByteArray &line)
{
    const int end = line.indexOf(']');
    m_group = groupIn(end < 0 ? line : line.left(end));
    m_text.hasOtherLines = m_text.hasOtherLines || end < 0;
}

void Reader::readSetting(const Line &line)
{
    const QString key = normalized(m_group + unescapedKey(nameIn(m_bytes, line)));
    if (line.equals < 0 || key.isEmpty()) {
        // People write comments so, too.
        m_text.hasOtherLines = m_text.hasOtherLines || m_bytes.at(line.begin) != '#';
        return;
    }
    const QByteArray stored = m_bytes.mid(line.equals + 1, line.end - line.equals - 1);
    bool isDamaged = false;
    const QVariant value = valueOf(Items(stored, m_isUtf8), &isDamaged);
    if (isDamaged) {
        m_text.unreadable.insert(key, QString::fromLatin1(stored.trimmed()));
    } else {
        m_text.values.insert(key, value);
    }
}

} // namespace

MRVSettingsText mrvReadSettings(const QByteArray &bytes)
{
    return Reader(bytes).read();
}
