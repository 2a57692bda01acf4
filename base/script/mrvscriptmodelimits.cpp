#include "core/mrvcoreutil.h"
#include "script/mrvscriptmode.h"
#include "script/mrvscriptmodefile_p.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <limits>

namespace {

// Qt's reader compares each attribute of a tag with every other one.
constexpr int MaxAttributes = 64;
constexpr int MaxTagLength = 16 * 1024;

int lineAt(const QString &text, int position)
{
    return 1 + text.leftRef(position).count(u'\n');
}

// What the declaration says, where that is an encoding in which the declaration could have been read.
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
                if (isHere(passage[0]))
                    passed = passage;
            }
            if (!passed)
                return true;
            m_end = m_xml.indexOf(QLatin1String(passed[1]), m_at + int(qstrlen(passed[0])));
            if (m_end < 0)
                return false;
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
            if (!quote.isNull())
                quote = c == quote ? QChar() : quote;
            else if (c == u'"' || c == u'\'')
                quote = c;
            else if (c == u'>')
                return true;
            else if (c == u'=')
                ++attributes;
            if (attributes > MaxAttributes || m_end - m_at >= maxLength)
                return false;
        }
        return true;
    }

    int line() const { return lineAt(m_xml, m_at); }

private:
    const QString &m_xml;
    int m_at = 0;
    int m_end = 0;
};

} // namespace

bool decodeScriptMode(const QByteArray &xml, QString *text, QString *error)
{
    const QByteArray encoding = encodingOf(xml);
    QString reason;
    if (MRVCoreUtil::decodeText(xml, encoding.constData(), text, &reason))
        return true;
    const QTextCodec *codec = QTextCodec::codecForUtfText(xml, QTextCodec::codecForName(encoding));
    const QString readable = codec->toUnicode(xml);
    const int fault = readable.indexOf(QChar::ReplacementCharacter);
    *error = scriptLineText(lineAt(readable, fault < 0 ? readable.size() : fault), reason);
    return false;
}

bool scriptModeKeepsLimits(const QString &xml, QString *error)
{
    TagWalker walker(xml);
    while (walker.toNext()) {
        QString reason;
        if (walker.isHere("<!DOCTYPE"))
            reason = MRVScriptMode::tr("a document type declaration does not belong here");
        else if (!walker.keepsLimits(MaxTagLength))
            reason = MRVScriptMode::tr("a tag is longer than %1 characters, or has more than %2 "
                                       "attributes")
                         .arg(QString::number(MaxTagLength), QString::number(MaxAttributes));
        if (reason.isEmpty())
            continue;
        *error = scriptLineText(walker.line(), reason);
        return false;
    }
    return true;
}

bool scriptXmlText(const QByteArray &xml, QString *text, QString *error)
{
    QString reason;
    bool ok = decodeScriptMode(xml, text, &reason);
    TagWalker walker(*text);
    while (ok && walker.toNext()) {
        ok = walker.keepsLimits(std::numeric_limits<int>::max());
        if (!ok)
            reason = scriptLineText(
                walker.line(),
                MRVScriptMode::tr("a tag has more than %1 attributes").arg(MaxAttributes));
    }
    if (!ok && error)
        *error = reason;
    return ok;
}
