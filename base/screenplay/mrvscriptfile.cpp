#include "screenplay/mrvscriptfile.h"

#include "core/mrvcoreutil.h"
#include "screenplay/mrvfinaldraft.h"
#include "screenplay/mrvfountainhtml.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfailure.h"

#include <QFileInfo>
#include <QTextCodec>
#include <QTextDocument>

#include <utility>

namespace {

// The first of a format's suffixes is the one that it is written with.
constexpr struct
{
    MRVScriptFile::Format format;
    const char *name;
    const char *suffixes;
} formats[] = {{MRVScriptFile::Fountain, "fountain", "fountain spmd txt"},
               {MRVScriptFile::Html, "html", "html htm xhtml"},
               {MRVScriptFile::FinalDraft, "fdx", "fdx"},
               {MRVScriptFile::EPub, "epub", "epub"},
               {MRVScriptFile::Pdf, "pdf", "pdf"}};

} // namespace

MRVScriptFile::Format MRVScriptFile::formatNamed(const QString &name)
{
    for (const auto &row : formats) {
        if (name == QLatin1String(row.name)) {
            return row.format;
        }
    }
    return UnknownFormat;
}

MRVScriptFile::Format MRVScriptFile::formatOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const auto &row : formats) {
        if (!suffix.isEmpty() && QString::fromLatin1(row.suffixes).split(u' ').contains(suffix)) {
            return row.format;
        }
    }
    return UnknownFormat;
}

QString MRVScriptFile::suffix(Format format)
{
    for (const auto &row : formats) {
        if (row.format == format) {
            return QString::fromLatin1(row.suffixes).section(u' ', 0, 0);
        }
    }
    return QString();
}

bool MRVScriptFile::read(const QByteArray &bytes, Format format, MRVErrorSink error)
{
    return read(bytes, format, QByteArray(), error);
}

bool MRVScriptFile::readFountain(const QByteArray &bytes, const QByteArray &encoding,
                                 MRVErrorSink reason)
{
    const QByteArray name = encoding.isEmpty() ? QByteArray("UTF-8") : encoding;
    if (!MRVCoreUtil::decodeText(bytes, name.constData(), &m_text, reason)) {
        return false;
    }
    m_codec = QTextCodec::codecForUtfText(bytes, nullptr);
    m_hasMark = m_codec;
    if (!m_codec && !encoding.isEmpty()) {
        m_codec = QTextCodec::codecForName(encoding);
    }
    m_script = MRVFountainScript::fromText(m_text);
    return true;
}

bool MRVScriptFile::read(const QByteArray &bytes, Format format, const QByteArray &encoding,
                         MRVErrorSink error)
{
    MRVScriptFile file;
    MRVError reason{MRVErrorKind::Unsupported, tr("unknown type of script")};
    bool ok = false;
    if (!encoding.isEmpty() && (format == Html || format == FinalDraft)) {
        reason.text = tr("files of this type name their encoding themselves");
        format = UnknownFormat;
    }
    switch (format) {
    case Html:
        ok = MRVFountainHtml::fromHtml(bytes, &file.m_script, &reason, &file.m_language);
        break;
    case FinalDraft:
        ok = MRVFinalDraft::fromXml(bytes, &file.m_script, &reason, &file.m_losses);
        break;
    case Fountain:
        ok = file.readFountain(bytes, encoding, &reason);
        break;
    case EPub:
    case Pdf:
    case UnknownFormat:
        break;
    }
    if (ok) {
        file.m_format = format;
        file.m_source = bytes;
        *this = std::move(file);
        return true;
    }
    return MRV::fail(error, reason);
}

int MRVScriptFile::renameCharacter(const QString &from, const QString &to,
                                   MRVScriptDocument::RenameScope scope)
{
    MRVScriptMode mode;
    mode.loadFactoryDefaults();
    QTextDocument document;
    MRVScriptDocument::setScript(&document, m_script, mode);
    const int count = MRVScriptDocument::renameCharacter(&document, mode, from, to, scope);
    m_script = MRVScriptDocument::script(document, mode);
    return count;
}

QByteArray MRVScriptFile::revised(MRVErrorSink error) const
{
    if (m_format == FinalDraft) {
        QByteArray bytes;
        MRVFinalDraft::revise(m_source, m_script, &bytes, error);
        return bytes;
    }
    if (m_format != Fountain) {
        return toByteArray(m_script, m_format, m_language);
    }
    const QString text = m_script.toText(m_text);
    if (text == m_text) {
        return m_source; // some encodings have two codes for a character
    }
    if (!m_codec) {
        return text.toUtf8();
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString written = m_hasMark ? QChar(QChar::ByteOrderMark) + text : text;
    const QByteArray bytes = m_codec->fromUnicode(written.constData(), written.size(), &state);
    if (!m_hasMark && m_codec->toUnicode(bytes) != text) {
        MRV::fail(error, MRVErrorKind::Unsupported,
                  tr("the encoding %1 lacks some characters of the changed text")
                      .arg(QString::fromLatin1(m_codec->name())));
        return QByteArray();
    }
    return bytes;
}

QByteArray MRVScriptFile::toByteArray(const MRVFountainScript &script, Format format,
                                      const QString &language)
{
    switch (format) {
    case Fountain:
        return script.toText().toUtf8();
    case Html:
        return MRVFountainHtml::toHtml(script, language);
    case FinalDraft:
        return MRVFinalDraft::toXml(script);
    case EPub:
    case Pdf:
    case UnknownFormat:
        break;
    }
    return QByteArray();
}
