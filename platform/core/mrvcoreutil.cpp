#include "core/mrvcoreutil.h"

#include "core/mrverrorline_p.h"
#include "core/mrvfilewriter.h"
#include "core/mrvinputlimits.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTextCodec>

#include <algorithm>
#include <cerrno>
#include <iterator>

#include <sys/stat.h>

namespace {

constexpr qint64 PieceBytes = qint64(1) << 20;

// The longest file name that the file systems of Linux take, in bytes.
constexpr int MaxNameBytes = 255;
// Anything longer is not a suffix but part of a name with a full stop in it.
constexpr int MaxSuffixBytes = 100;

// IANA's numbers of the encodings that hold every character, each UTF family in its three orders.
constexpr int Utf8Mib = 106;
constexpr int Utf16Mibs[] = {1013, 1014, 1015};
constexpr int Utf32Mibs[] = {1017, 1018, 1019};

bool isOneOf(int mib, const int (&mibs)[3])
{
    return std::find(std::begin(mibs), std::end(mibs), mib) != std::end(mibs);
}

QTextCodec *codecForName(const char *name)
{
    return name ? QTextCodec::codecForName(name) : QTextCodec::codecForMib(Utf8Mib);
}

QString withoutHalfPairs(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (!text.at(i).isSurrogate()) {
            continue;
        }
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            ++i;
        } else {
            text[i] = QChar(QChar::ReplacementCharacter);
        }
    }
    return text;
}

// Detects undecodable bytes for codecs that report no error: they put U+FFFD for what they do not
// know, and swallow the beginning of a character that lacks its end. Encoding the text again and
// comparing the bytes would prove more, but Shift_JIS has two codes for some characters, and some
// codecs begin every text with an escape sequence.
bool isLossless(const QByteArray &bytes, const QTextCodec &codec, const QString &text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    if (codec.fromUnicode(text.constData(), text.size(), &state) == bytes) {
        return true;
    }
    const QChar unknown(QChar::ReplacementCharacter);
    const QString longer = codec.toUnicode(bytes + '\n');
    return !longer.contains(unknown) && longer.size() == text.size() + 1;
}

bool encode(const QString &text, const QTextCodec &codec, QByteArray *bytes)
{
    const int mib = codec.mibEnum();
    QTextCodec::ConverterState state(mib == Utf8Mib ? QTextCodec::IgnoreHeader
                                                    : QTextCodec::DefaultConversion);
    *bytes = codec.fromUnicode(text.constData(), text.size(), &state);
    if (isOneOf(mib, Utf32Mibs)) {
        // Qt's encoder leaves four stray bytes at the end for every surrogate pair.
        bytes->truncate(4 * (1 + text.toUcs4().size()));
    } else if (mib != Utf8Mib && !isOneOf(mib, Utf16Mibs)) {
        // invalidChars does not report all losses: some encoders hold back the last character.
        return codec.toUnicode(*bytes) == text;
    }
    return true;
}

// Counted while reading, too: a pipe has no size, and a file may grow.
QByteArray readUpTo(qint64 limit, const QString &path, MRVErrorSink error, bool isStream = false)
{
    const auto fail = [&](const MRVError &reason) {
        mrvSetErrorLine(error, MRVCoreUtil::tr("Cannot read the file \"%1\": %2"), path, reason);
        return QByteArray();
    };
    if (path.isEmpty()) {
        return fail({MRVErrorKind::Other, MRVCoreUtil::tr("the file has no name")});
    }
    if (path.contains(QChar(QChar::Null))) {
        return fail({MRVErrorKind::Other, MRVCoreUtil::tr("its name holds a null character")});
    }
    // Opening a folder succeeds, and reading it then yields nothing.
    if (QFileInfo(path).isDir()) {
        return fail({MRVErrorKind::Other, MRVCoreUtil::tr("it is a folder")});
    }
    // Opening a pipe waits for whoever writes into it, and a device may never end.
    if (!isStream && QFileInfo::exists(path) && !QFileInfo(path).isFile()) {
        return fail({MRVErrorKind::Other, MRVCoreUtil::tr("it is not a regular file")});
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return fail(MRVError::ofDevice(file));
    }
    if (file.size() > limit) {
        return fail({MRVErrorKind::TooLarge, MRVCoreUtil::tr("it is too large")});
    }
    QByteArray bytes;
    bytes.reserve(int(file.size()));
    for (QByteArray piece; !(piece = file.read(PieceBytes)).isEmpty(); bytes += piece) {
        if (bytes.size() + piece.size() > limit) {
            return fail({MRVErrorKind::TooLarge, MRVCoreUtil::tr("it is too large")});
        }
    }
    return file.error() == QFileDevice::NoError ? bytes : fail(MRVError::ofDevice(file));
}

// Not QFileInfo::exists() alone, which follows a link and so calls a dangling one free.
bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

// The stem, shortened at its end until the name fits, and what follows it.
QString shortened(QString stem, const QString &ending)
{
    int excess = QFile::encodeName(stem + ending).size() - MaxNameBytes;
    while (excess > 0 && stem.size() > 1) {
        const int length = stem.at(stem.size() - 1).isLowSurrogate() ? 2 : 1;
        excess -= QFile::encodeName(stem.right(length)).size();
        stem.chop(length);
    }
    return stem + ending;
}

} // namespace

bool MRVCoreUtil::decodeText(const QByteArray &bytes, const char *codec, QString *text,
                             MRVErrorSink reason)
{
    const auto fail = [&](MRVErrorKind kind, const QString &why) {
        reason.set({kind, why});
        return false;
    };
    QTextCodec *decoder = codecForName(codec);
    if (!decoder) {
        return fail(MRVErrorKind::Unsupported,
                    tr("unknown text encoding \"%1\"").arg(QString::fromLatin1(codec)));
    }
    if (bytes.size() > MRVInputLimits::TextFileBytes) {
        return fail(MRVErrorKind::TooLarge, tr("it is too large"));
    }
    decoder = QTextCodec::codecForUtfText(bytes, decoder);
    const int mib = decoder->mibEnum();
    const bool reportsErrors = mib == Utf8Mib || isOneOf(mib, Utf16Mibs) || isOneOf(mib, Utf32Mibs);
    QTextCodec::ConverterState state;
    const QString decoded = decoder->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0
        || (!reportsErrors && !isLossless(bytes, *decoder, decoded))) {
        return fail(MRVErrorKind::Damaged,
                    tr("it is not valid %1 text").arg(QString::fromLatin1(decoder->name())));
    }
    *text = decoded;
    return true;
}

QString MRVCoreUtil::ReadUnicodeTextFile(const QString &path, MRVErrorSink error, const char *codec)
{
    MRVError readError;
    const QByteArray bytes = readUpTo(MRVInputLimits::TextFileBytes, path, &readError);
    if (readError) {
        error.set(readError);
        return QString();
    }
    QString text;
    MRVError reason;
    if (!decodeText(bytes, codec, &text, &reason)) {
        mrvSetErrorLine(error, tr("Cannot read the file \"%1\": %2"), path, reason);
    }
    return text;
}

bool MRVCoreUtil::WriteUnicodeTextFile(const QString &text, const QString &path, MRVErrorSink error,
                                       const char *codec)
{
    const QTextCodec *encoder = codecForName(codec);
    if (!encoder) {
        mrvSetErrorLine(error, tr("Cannot write the file \"%1\": unknown text encoding \"%2\""),
                        path, {MRVErrorKind::Unsupported, QString::fromLatin1(codec)});
        return false;
    }
    QByteArray bytes;
    if (!encode(withoutHalfPairs(text), *encoder, &bytes)) {
        mrvSetErrorLine(
            error,
            tr("Cannot write the file \"%1\": the encoding %2 lacks some characters of the text"),
            path, {MRVErrorKind::Unsupported, QString::fromLatin1(encoder->name())});
        return false;
    }
    return MRVFileWriter::write(path, bytes, error);
}

QByteArray MRVCoreUtil::ReadBinaryFile(const QString &path, MRVErrorSink error)
{
    return readUpTo(MRVInputLimits::FileBytes, path, error);
}

QByteArray MRVCoreUtil::readStream(const QString &path, MRVErrorSink error)
{
    return readUpTo(MRVInputLimits::FileBytes, path, error, true);
}

bool MRVCoreUtil::WriteBinaryFile(const QByteArray &bytes, const QString &path, MRVErrorSink error)
{
    return MRVFileWriter::write(path, bytes, error);
}

bool MRVCoreUtil::isMissing(const QString &path)
{
    struct stat found;
    return ::stat(QFile::encodeName(path).constData(), &found) != 0 && errno == ENOENT;
}

QString MRVCoreUtil::NumberedFileName(const QString &path, int number)
{
    if (path.isEmpty() || number <= 0) {
        return path;
    }
    QString stem = path;
    while (stem.size() > 1 && stem.endsWith(QLatin1Char('/'))) {
        stem.chop(1);
    }
    const int nameStart = stem.lastIndexOf(QLatin1Char('/')) + 1;
    const int dot = stem.lastIndexOf(QLatin1Char('.'));
    QString suffix;
    if (dot > nameStart && !QFileInfo(path).isDir()
        && QFile::encodeName(stem.mid(dot)).size() <= MaxSuffixBytes) {
        suffix = stem.mid(dot);
        stem.truncate(dot);
    }
    const QString folder = stem.left(nameStart);
    stem.remove(0, nameStart);
    return folder + shortened(stem, QLatin1Char('-') + QString::number(number) + suffix);
}

QString MRVCoreUtil::GetUniqueFileName(const QString &path)
{
    if (path.isEmpty() || !isTaken(path)) {
        return path;
    }
    // Doubling and halving: a thousand pictures of one name must not cost half a million look-ups.
    int taken = 0;
    int free = 1;
    while (isTaken(NumberedFileName(path, free))) {
        taken = free;
        free *= 2;
    }
    while (free - taken > 1) {
        const int middle = taken + (free - taken) / 2;
        (isTaken(NumberedFileName(path, middle)) ? taken : free) = middle;
    }
    return NumberedFileName(path, free);
}

QDate MRVCoreUtil::convertCompileStringDate(const QString &text)
{
    return QLocale::c().toDate(text.simplified(), QStringLiteral("MMM d yyyy"));
}
