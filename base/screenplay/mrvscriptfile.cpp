#include "screenplay/mrvscriptfile.h"

#include "core/mrvcoreutil.h"
#include "screenplay/mrvfinaldraft.h"
#include "screenplay/mrvfountainhtml.h"
#include "scriptmode/mrvscriptmode.h"

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

bool MRVScriptFile::read(const QByteArray &bytes, Format format, QString *error)
{
    MRVScriptFile file;
    QString reason;
    bool ok = false;
    switch (format) {
    case Html:
        ok = MRVFountainHtml::fromHtml(bytes, &file.m_script, &reason, &file.m_language);
        break;
    case FinalDraft:
        ok = MRVFinalDraft::fromXml(bytes, &file.m_script, &reason, &file.m_losses);
        break;
    case Fountain:
        ok = MRVCoreUtil::decodeText(bytes, "UTF-8", &file.m_text, &reason);
        file.m_codec = QTextCodec::codecForUtfText(bytes, nullptr);
        file.m_script = MRVFountainScript::fromText(file.m_text);
        break;
    case EPub:
    case Pdf:
    case UnknownFormat:
        reason = tr("unknown type of script");
        break;
    }
    if (ok) {
        file.m_format = format;
        file.m_source = bytes;
        *this = std::move(file);
    } else if (error) {
        *error = reason;
    }
    return ok;
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

QByteArray MRVScriptFile::revised(QString *error) const
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
    if (!m_codec) {
        return text.toUtf8();
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString marked = QChar(QChar::ByteOrderMark) + text;
    return m_codec->fromUnicode(marked.constData(), marked.size(), &state);
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
