#include "css/mrvcsstokens_p.h"

#include "core/mrvinputlimits.h"

#include <QLocale>

#include <cstring>

namespace {

bool isNewline(QChar c)
{
    return c == u'\n' || c == u'\r' || c == u'\f';
}

bool isSpace(QChar c)
{
    return c == u' ' || c == u'\t' || isNewline(c);
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isNameStart(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c.unicode() >= 0x80;
}

bool isNameChar(QChar c)
{
    return isNameStart(c) || isDigit(c) || c == u'-';
}

int hexValue(QChar c)
{
    const ushort lower = c.unicode() | 0x20;
    return isDigit(c) ? c.unicode() - '0' : lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The bracket that closes what a token opens; 0 where it opens none.
char closerOf(const MRVCssToken &token)
{
    if (token.type == MRVCssToken::Function || token.is('(')) {
        return ')';
    }
    return token.is('[') ? ']' : token.is('{') ? '}' : 0;
}

/// A bracket that the end of the source closes.
MRVCssToken closingToken(char closer)
{
    MRVCssToken token;
    token.type = MRVCssToken::Delim;
    token.raw = closer == ')' ? QStringView(u")") : closer == ']' ? QStringView(u"]") : u"}";
    return token;
}

} // namespace

bool MRVCssTokenizer::isEscape(int i) const
{
    return at(i) == u'\\' && !isNewline(at(i + 1));
}

bool MRVCssTokenizer::startsName(int i) const
{
    if (at(i) == u'-') {
        ++i;
        return at(i) == u'-' || isNameStart(at(i)) || isEscape(i);
    }
    return isNameStart(at(i)) || isEscape(i);
}

bool MRVCssTokenizer::startsNumber() const
{
    const int i = at(0) == u'+' || at(0) == u'-' ? 1 : 0;
    return isDigit(at(i)) || (at(i) == u'.' && isDigit(at(i + 1)));
}

void MRVCssTokenizer::skipSpace()
{
    while (isSpace(at(0))) {
        ++m_at;
    }
}

void MRVCssTokenizer::skipDigits()
{
    while (isDigit(at(0))) {
        ++m_at;
    }
}

void MRVCssTokenizer::skipNewline()
{
    m_at += at(0) == u'\r' && at(1) == u'\n' ? 2 : 1;
}

bool MRVCssTokenizer::skipComments()
{
    const int start = m_at;
    while (at(0) == u'/' && at(1) == u'*') {
        const auto end = m_css.indexOf(QStringView(u"*/"), m_at + 2);
        m_at = end < 0 ? int(m_css.size()) : int(end) + 2;
    }
    return m_at > start;
}

MRVCssToken MRVCssTokenizer::next()
{
    MRVCssToken token;
    token.followsComment = skipComments();
    if (!isAtEnd()) {
        const int start = m_at;
        token.type = readToken(token);
        token.raw = m_css.mid(start, m_at - start);
    }
    return token;
}

MRVCssToken::Type MRVCssTokenizer::readToken(MRVCssToken &token)
{
    const QChar c = at(0);
    if (isSpace(c)) {
        skipSpace();
        return MRVCssToken::Space;
    }
    if (c == u'"' || c == u'\'') {
        return readString(token.text);
    }
    if (startsNumber()) {
        return readNumber(token);
    }
    if (m_css.mid(m_at).startsWith(QLatin1String("<!--"))) {
        m_at += 4;
        return MRVCssToken::Markup;
    }
    if (m_css.mid(m_at).startsWith(QLatin1String("-->"))) {
        m_at += 3;
        return MRVCssToken::Markup;
    }
    if (startsName(0)) {
        return readWord(token.text);
    }
    ++m_at;
    const bool isHash = c == u'#' && (isNameChar(at(0)) || isEscape(0));
    if (isHash || (c == u'@' && startsName(0))) {
        token.text = readName();
        return isHash ? MRVCssToken::Hash : MRVCssToken::AtKeyword;
    }
    return MRVCssToken::Delim;
}

QString MRVCssTokenizer::readName()
{
    QString name;
    for (;;) {
        const int start = m_at;
        while (isNameChar(at(0))) {
            ++m_at;
        }
        name.append(m_css.data() + start, m_at - start);
        if (!isEscape(0)) {
            return name;
        }
        readEscape(name);
    }
}

void MRVCssTokenizer::readEscape(QString &text)
{
    ++m_at;
    if (hexValue(at(0)) < 0) {
        text.append(isAtEnd() ? QChar(QChar::ReplacementCharacter) : at(0));
        m_at = qMin(m_at + 1, int(m_css.size()));
        return;
    }
    uint code = 0;
    for (int digits = 0; digits < 6 && hexValue(at(0)) >= 0; ++digits, ++m_at) {
        code = code * 16 + uint(hexValue(at(0)));
    }
    if (isSpace(at(0))) {
        skipNewline();
    }
    if (code == 0 || code > QChar::LastValidCodePoint || QChar::isSurrogate(code)) {
        code = QChar::ReplacementCharacter;
    }
    text.append(QString::fromUcs4(&code, 1));
}

MRVCssToken::Type MRVCssTokenizer::readString(QString &text)
{
    const QChar quote = at(0);
    for (++m_at; !isAtEnd();) {
        if (at(0) == quote) {
            ++m_at;
            return MRVCssToken::String;
        }
        if (isNewline(at(0))) {
            return MRVCssToken::Bad;
        }
        if (isEscape(0)) {
            readEscape(text);
        } else if (at(0) == u'\\') {
            ++m_at;
            skipNewline();
        } else {
            text.append(at(0));
            ++m_at;
        }
    }
    return MRVCssToken::String;
}

MRVCssToken::Type MRVCssTokenizer::readWord(QString &text)
{
    text = readName();
    if (at(0) != u'(') {
        return MRVCssToken::Ident;
    }
    ++m_at;
    if (text.compare(QLatin1String("url"), Qt::CaseInsensitive) != 0) {
        return MRVCssToken::Function;
    }
    const int start = m_at;
    skipSpace();
    if (at(0) == u'"' || at(0) == u'\'') {
        m_at = start;
        return MRVCssToken::Function;
    }
    return readUrl(text);
}

MRVCssToken::Type MRVCssTokenizer::readUrl(QString &text)
{
    text.clear();
    while (!isAtEnd()) {
        const QChar c = at(0);
        const bool wasSpace = isSpace(c);
        skipSpace();
        if (at(0) == u')' || isAtEnd()) {
            m_at = qMin(m_at + 1, int(m_css.size()));
            return MRVCssToken::Url;
        }
        if (wasSpace || c == u'"' || c == u'\'' || c == u'(' || c.unicode() < 0x20 || c == u'\x7f'
            || (c == u'\\' && !isEscape(0))) {
            break;
        }
        if (c == u'\\') {
            readEscape(text);
        } else {
            text.append(c);
            ++m_at;
        }
    }
    if (isAtEnd()) {
        return MRVCssToken::Url;
    }
    while (!isAtEnd() && at(0) != u')') {
        m_at += isEscape(0) ? 2 : 1;
    }
    m_at = qMin(m_at + 1, int(m_css.size()));
    return MRVCssToken::Bad;
}

MRVCssToken::Type MRVCssTokenizer::readNumber(MRVCssToken &token)
{
    constexpr double Largest = 1e9;
    const int start = m_at++; // a sign, a dot or a digit
    skipDigits();
    if (at(0) == u'.' && isDigit(at(1)) && m_css.at(start) != u'.') {
        ++m_at;
        skipDigits();
    }
    const int sign = at(1) == u'+' || at(1) == u'-' ? 1 : 0;
    if ((at(0) == u'e' || at(0) == u'E') && isDigit(at(1 + sign))) {
        m_at += 1 + sign;
        skipDigits();
    }
    const double number = QLocale::c().toDouble(m_css.mid(start, m_at - start));
    token.number = qBound(-Largest, number, Largest);
    if (at(0) == u'%') {
        ++m_at;
        return MRVCssToken::Percentage;
    }
    if (startsName(0)) {
        token.text = readName();
        return MRVCssToken::Dimension;
    }
    return MRVCssToken::Number;
}

/// Keeps the brackets that are to be closed; false for one that was not open.
bool MRVCssTokenizer::trackBrackets(const MRVCssToken &token, Closers &closers)
{
    if (const char closer = closerOf(token)) {
        closers.append(closer);
    } else if (!closers.isEmpty() && token.is(closers.last())) {
        closers.removeLast();
    } else {
        return !closers.isEmpty() || !(token.is(')') || token.is(']') || token.is('}'));
    }
    return true;
}

MRVCssPart MRVCssTokenizer::readPart(const char *ends)
{
    MRVCssPart part;
    QVector<MRVCssToken> &tokens = part.tokens;
    Closers closers;
    for (MRVCssToken token = next(); token.type != MRVCssToken::End; token = next()) {
        const char c = token.type == MRVCssToken::Delim ? token.raw.front().toLatin1() : char(0);
        const bool isAtRule = !tokens.isEmpty() && tokens.at(0).type == MRVCssToken::AtKeyword;
        if (closers.isEmpty() && c != 0 && (std::strchr(ends, c) || (isAtRule && c == ';'))) {
            part.end = token.raw.front();
            break;
        }
        const bool isBalanced = trackBrackets(token, closers);
        if (isBalanced && c == '}' && closers.isEmpty()) {
            part.isValid = false;
            part.end = u';';
            break;
        }
        if (!isBalanced || token.type == MRVCssToken::Bad) {
            part.isValid = false;
        }
        if (tokens.size() >= MRVInputLimits::CssTokens) {
            part.isValid = false;
        } else if (token.type != MRVCssToken::Space || !tokens.isEmpty()) {
            tokens.append(token);
        }
    }
    while (!tokens.isEmpty() && tokens.constLast().type == MRVCssToken::Space) {
        tokens.removeLast();
    }
    for (; part.isValid && !closers.isEmpty(); closers.removeLast()) {
        tokens.append(closingToken(closers.last()));
    }
    return part;
}

void MRVCssTokenizer::skipBlock()
{
    Closers closers;
    closers.append('}');
    for (MRVCssToken token = next(); token.type != MRVCssToken::End; token = next()) {
        trackBrackets(token, closers);
        if (closers.isEmpty()) {
            return;
        }
    }
}

void MRVCssTokenizer::skipMarkup()
{
    MRVCssToken::Type type = MRVCssToken::Space;
    int start = m_at;
    while (type == MRVCssToken::Space || type == MRVCssToken::Markup) {
        start = m_at;
        type = next().type;
    }
    m_at = start;
}

QString mrvCssSource(const MRVCssToken *begin, const MRVCssToken *end)
{
    QString source;
    bool isSeparate = false;
    for (const MRVCssToken *token = begin; token != end; ++token) {
        isSeparate = isSeparate || token->followsComment || token->type == MRVCssToken::Space;
        if (token->type == MRVCssToken::Space) {
            continue;
        }
        if (isSeparate && !source.isEmpty()) {
            source.append(u' ');
        }
        source.append(token->raw.data(), int(token->raw.size()));
        isSeparate = false;
    }
    return source;
}
