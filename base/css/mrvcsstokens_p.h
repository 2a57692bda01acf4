#pragma once

#include <QString>
#include <QStringView>
#include <QVarLengthArray>
#include <QVector>

/// A token of CSS Syntax Level 3. Punctuation of all kinds is a Delim.
struct MRVCssToken
{
    enum Type : quint8 {
        End,
        Space,
        Ident,
        Function,
        AtKeyword,
        Hash,
        String,
        Url,
        Bad, // a string that a line ends, an address with quotes or brackets
        Number,
        Percentage,
        Dimension,
        Markup, // <!-- or -->
        Delim,
    };

    Type type = End;
    QStringView raw; // as it stands in the source
    QString text; // without escapes: the name, the content or the unit
    double number = 0;
    bool followsComment = false;

    bool is(char c) const { return type == Delim && raw.front() == QLatin1Char(c); }
    bool isWord(QLatin1String word) const
    {
        return type == Ident && text.compare(word, Qt::CaseInsensitive) == 0;
    }
};

/// Tokens up to an end outside brackets, without white space at both ends.
struct MRVCssPart
{
    QVector<MRVCssToken> tokens;
    QChar end; // null at the end of the source
    bool isValid = true; // false with bad tokens, brackets that were not open, or too many tokens
};

/// Cuts a text, which it does not keep alive, into tokens. Comments are passed over.
class MRVCssTokenizer
{
public:
    explicit MRVCssTokenizer(QStringView css)
        : m_css(css)
    {
    }

    MRVCssToken next();
    /// Reads on to one of @p ends outside brackets, and past it. The end of a block counts as a
    /// semicolon (what holds a block is no declaration), and a semicolon always ends an at-rule.
    MRVCssPart readPart(const char *ends);
    /// Goes past the end of the block whose opening brace was read.
    void skipBlock();
    /// Goes past what may stand around a sheet in HTML.
    void skipMarkup();

private:
    QChar at(int i) const { return m_at + i < m_css.size() ? m_css.at(m_at + i) : QChar(); }
    bool isAtEnd() const { return m_at >= m_css.size(); }
    bool isEscape(int i) const;
    bool startsName(int i) const;
    bool startsNumber() const;
    void skipSpace();
    bool skipComments();
    void skipDigits();
    void skipNewline();
    QString readName();
    void readEscape(QString &text);
    MRVCssToken::Type readToken(MRVCssToken &token);
    MRVCssToken::Type readString(QString &text);
    MRVCssToken::Type readWord(QString &text);
    MRVCssToken::Type readUrl(QString &text);
    MRVCssToken::Type readNumber(MRVCssToken &token);

    using Closers = QVarLengthArray<char, 64>;
    static bool trackBrackets(const MRVCssToken &token, Closers &closers);

    QStringView m_css;
    int m_at = 0;
};

/// The source of tokens, with one blank for white space and comments.
QString mrvCssSource(const MRVCssToken *begin, const MRVCssToken *end);
