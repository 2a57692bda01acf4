#include "input/mrvxmlsource.h"

#include "input/mrvtextdecoder.h"

#include "core/mrvcoreutil.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(MRVScriptMode)
};

// Qt's reader compares each attribute of a tag with every other one.
constexpr int MaxAttributes = 64;
constexpr int MaxTagLength = 16 * 1024;
constexpr int MaxScriptTagLength = 16 * 1024 * 1024; // keys and scene numbers are attributes, too

int lineAt(const QString &text, int position)
{
    return 1 + text.leftRef(position).count(u'\n');
}

// What the declaration says, where that is an encoding in which the declaration could have been
// read.
QByteArray encodingOf(const QByteArray &xml)
{
    static const QRegularExpression declaration(
        QStringLiteral("^<\\?xml\\s[^>]*\\bencoding\\s*=\\s*[\"']([\\w.:-]+)"));
    const QByteArray name =
        declaration.match(QString::fromLatin1(xml.left(256))).captured(1).toLatin1();
    const QTextCodec *codec = QTextCodec::codecForName(name);
    const bool isWide =
        codec && (codec->name().startsWith("UTF-16") || codec->name().startsWith("UTF-32"));
    return codec && !isWide ? codec->name() : QByteArrayLiteral("UTF-8");
}

/** Goes from tag to tag, as the parser does up to the first fault. */
class TagWalker
{
public:
    explicit TagWalker(const QString &xml)
        : m_xml(xml)
    {
    }

    bool toNext()
    {
        static constexpr const char *Passages[][2] = {
            {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
        for (m_at = m_xml.indexOf(u'<', m_end); m_at >= 0; m_at = m_xml.indexOf(u'<', m_end)) {
            m_end = m_at + 1;
            const char *const *passed = nullptr;
            for (const auto &passage : Passages) {
                if (isHere(passage[0])) {
                    passed = passage;
                }
            }
            if (!passed) {
                return true;
            }
            m_end = m_xml.indexOf(QLatin1String(passed[1]), m_at + int(qstrlen(passed[0])));
            if (m_end < 0) {
                return false;
            }
        }
        return false;
    }

    bool isHere(const char *beginning) const
    {
        return m_xml.midRef(m_at, 10).startsWith(QLatin1String(beginning));
    }

    // Up to the end of the tag that it is at.
    bool keepsLimits(int maxLength)
    {
        int attributes = 0;
        QChar quote;
        for (m_end = m_at; m_end < m_xml.size(); ++m_end) {
            const QChar c = m_xml.at(m_end);
            if (!quote.isNull()) {
                quote = c == quote ? QChar() : quote;
            } else if (c == u'"' || c == u'\'') {
                quote = c;
            } else if (c == u'>') {
                return true;
            } else if (c == u'=') {
                ++attributes;
            }
            if (attributes > MaxAttributes || m_end - m_at >= maxLength) {
                return false;
            }
        }
        return true;
    }

    // Whether the document type that it has passed declares anything, such as entities that grow
    // without end.
    bool declares() const { return m_xml.midRef(m_at, m_end - m_at).contains(u'['); }

    int line() const { return lineAt(m_xml, m_at); }
    int start() const { return m_at; }
    int end() const { return m_end; }

private:
    const QString &m_xml;
    int m_at = 0;
    int m_end = 0;
};

bool keepsLimits(const QString &xml, int maxLength, bool takesDoctype, QString *error)
{
    TagWalker walker(xml);
    while (walker.toNext()) {
        const bool isShort = walker.keepsLimits(maxLength);
        QString reason;
        if (walker.isHere("<!DOCTYPE") && (!takesDoctype || walker.declares())) {
            reason = Messages::tr("a document type declaration does not belong here");
        } else if (!isShort) {
            reason = Messages::tr("a tag is longer than %1 characters, or has more than %2 "
                                  "attributes")
                         .arg(QString::number(maxLength), QString::number(MaxAttributes));
        }
        if (reason.isEmpty()) {
            continue;
        }
        *error = mrvXmlLineText(walker.line(), reason);
        return false;
    }
    return true;
}

// A document type that names another file makes the parser pass over all entities that it does not
// know, as that file might say what they are. Nobody reads that file, so that what they stand for
// would be missing.
void hideOuterType(QString *xml)
{
    constexpr char Beginning[] = "<!DOCTYPE";
    TagWalker walker(*xml);
    if (!walker.toNext() || !walker.isHere(Beginning)) {
        return;
    }
    walker.keepsLimits(MaxScriptTagLength);
    const auto isSpace = [](QChar c) { return c.isSpace(); };
    const auto end = xml->begin() + walker.end();
    const auto name =
        std::find_if_not(xml->begin() + walker.start() + int(qstrlen(Beginning)), end, isSpace);
    std::replace_if(
        std::find_if(name, end, isSpace), end, [](QChar c) { return c != u'\n'; }, QChar(u' '));
}

} // namespace

QString mrvXmlLineText(qint64 line, const QString &text)
{
    return MRVTextFault{text, int(line)}.toString();
}

bool mrvDecodeXml(const QByteArray &xml, QString *text, QString *error)
{
    const QByteArray encoding = encodingOf(xml);
    QString reason;
    if (MRVCoreUtil::decodeText(xml, encoding.constData(), text, &reason)) {
        return true;
    }
    const QTextCodec *codec = QTextCodec::codecForUtfText(xml, QTextCodec::codecForName(encoding));
    const QString readable = codec->toUnicode(xml);
    const int fault = readable.indexOf(QChar::ReplacementCharacter);
    *error = mrvXmlLineText(lineAt(readable, fault < 0 ? readable.size() : fault), reason);
    return false;
}

bool mrvXmlKeepsLimits(const QString &xml, QString *error)
{
    return keepsLimits(xml, MaxTagLength, false, error);
}

bool mrvXmlText(const QByteArray &xml, QString *text, QString *error)
{
    QString reason;
    const bool ok =
        mrvDecodeXml(xml, text, &reason) && keepsLimits(*text, MaxScriptTagLength, true, &reason);
    if (ok) {
        hideOuterType(text);
    } else if (error) {
        *error = reason;
    }
    return ok;
}

bool mrvIsXmlRead(const QXmlStreamReader &xml, QString *error)
{
    if (xml.hasError() && error) {
        *error = mrvXmlLineText(xml.lineNumber(), xml.errorString());
    }
    return !xml.hasError();
}
