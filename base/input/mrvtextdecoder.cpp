#include "input/mrvtextdecoder.h"

#include "core/mrvcoreutil.h"
#include "core/mrvinputlimits.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>

namespace {

// Where declarations are looked for: 1024 bytes are what the HTML standard asks of browsers.
constexpr int HeadSize = 1024;

QByteArray declaredIn(const QString &head, const QRegularExpression &declaration)
{
    return declaration.match(head).captured(1).toLatin1();
}

QByteArray declaredEncoding(const QByteArray &bytes, MRVTextDecoder::Declaration declaration)
{
    static const QRegularExpression xml(QStringLiteral(
        "^\\s*<\\?xml\\s[^>]*?\\bencoding\\s*=\\s*[\"']([A-Za-z][A-Za-z0-9._:-]*)[\"']"));
    static const QRegularExpression meta(
        QStringLiteral("<meta\\s[^>]*?\\bcharset\\s*=\\s*[\"']?\\s*([A-Za-z0-9][A-Za-z0-9._-]*)"),
        QRegularExpression::CaseInsensitiveOption);
    if (declaration == MRVTextDecoder::Undeclared) {
        return QByteArray();
    }
    const QString head = QString::fromLatin1(bytes.left(HeadSize));
    const QByteArray name = declaredIn(head, xml);
    if (!name.isEmpty() || declaration == MRVTextDecoder::XmlDeclaration) {
        return name;
    }
    const QByteArray charset = declaredIn(head, meta);
    return QTextCodec::codecForName(charset) ? charset : QByteArray();
}

bool isWide(const QTextCodec *codec)
{
    return codec && (codec->name().startsWith("UTF-16") || codec->name().startsWith("UTF-32"));
}

// How many characters lie before the first byte that cannot be read.
int validLength(const QByteArray &bytes, const QTextCodec &codec)
{
    const auto isValid = [&](int length) {
        QTextCodec::ConverterState state;
        codec.toUnicode(bytes.constData(), length, &state);
        return state.invalidChars == 0;
    };
    int valid = 0;
    for (int step = bytes.size(); step > 0; step /= 2) {
        while (bytes.size() - valid >= step && isValid(valid + step)) {
            valid += step;
        }
    }
    QTextCodec::ConverterState state;
    const QString text = codec.toUnicode(bytes.constData(), valid, &state);
    // Most codecs but those of Unicode count no faults, and only mark them.
    const bool isMarked = valid == bytes.size() && state.remainingChars == 0;
    const int mark = isMarked ? text.indexOf(QChar::ReplacementCharacter) : -1;
    return mark < 0 ? text.size() : mark;
}

} // namespace

MRVTextFault MRVTextFault::at(const QString &text, int offset, const QString &message)
{
    MRVTextFault fault;
    const QStringView before = QStringView(text).left(qBound(0, offset, text.size()));
    fault.message = message;
    fault.line = 1 + int(std::count(before.begin(), before.end(), u'\n'));
    fault.column = int(before.size() - before.lastIndexOf(u'\n'));
    return fault;
}

QString MRVTextFault::toString() const
{
    return tr("line %1: %2").arg(QString::number(line), message);
}

QByteArray MRVTextDecoder::encodingOf(const QByteArray &bytes, Declaration declaration)
{
    if (const QTextCodec *marked = QTextCodec::codecForUtfText(bytes, nullptr)) {
        return marked->name();
    }
    // Without a byte-order mark, the first characters tell of UTF-16 (XML 1.0, appendix F).
    if (declaration != Undeclared && bytes.size() > 1) {
        if (bytes[0] == '<' && bytes[1] == 0) {
            return QByteArrayLiteral("UTF-16LE");
        }
        if (bytes[0] == 0 && bytes[1] == '<') {
            return QByteArrayLiteral("UTF-16BE");
        }
    }
    const QByteArray declared = declaredEncoding(bytes, declaration);
    return declared.isEmpty() || isWide(QTextCodec::codecForName(declared))
        ? QByteArrayLiteral("UTF-8")
        : declared;
}

bool MRVTextDecoder::decode(const QByteArray &bytes, const QByteArray &encoding, QString *text,
                            MRVTextFault *fault)
{
    QString reason;
    if (MRVCoreUtil::decodeText(bytes, encoding.constData(), text, &reason)) {
        return true;
    }
    if (!fault) {
        return false;
    }
    const QTextCodec *codec =
        QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName(encoding));
    if (!codec || bytes.size() > MRVInputLimits::TextFileBytes) {
        *fault = MRVTextFault{reason};
        return false;
    }
    const QString readable = codec->toUnicode(bytes);
    *fault = MRVTextFault::at(readable, validLength(bytes, *codec), reason);
    return false;
}
