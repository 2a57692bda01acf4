#include "manuscript/mrvmanuscriptreader.h"

#include "archive/mrvdocumentarchive.h"
#include "input/mrvguardeddocument.h"
#include "input/mrvhtmlreader.h"
#include "input/mrvtextdecoder.h"
#include "manuscript/mrvmanuscriptdocument_p.h"
#include "manuscript/mrvmanuscriptpictures_p.h"
#include "markdown/mrvfrontmatter.h"
#include "office/mrvofficeconverter.h"
#include "plaintext/mrvplaintext.h"
#include "util/mrvfailure.h"
#include "util/mrvnames.h"

#include "core/mrvcoreutil.h"

#include <QFileInfo>
#include <QTextCodec>

namespace {

MRVFormat::Format officeFormat(MRVManuscript::Format format)
{
    switch (format) {
    case MRVManuscript::Docx:
        return MRVFormat::DOCX;
    case MRVManuscript::Odt:
        return MRVFormat::ODT;
    case MRVManuscript::Rtf:
        return MRVFormat::RTF;
    default:
        return MRVFormat::NoFormat;
    }
}

MRVManuscript::Format formatOfBytes(const QByteArray &bytes)
{
    const MRVFormat::Format office = MRVOfficeConverter::formatOf(bytes);
    for (const auto format : {MRVManuscript::Docx, MRVManuscript::Odt, MRVManuscript::Rtf}) {
        if (office == officeFormat(format)) {
            return format;
        }
    }
    if (MRVDocumentArchive::isArchive(bytes)) {
        return MRVManuscript::Native;
    }
    return MRVHtmlReader::looksLikeHtml(bytes) ? MRVManuscript::Html : MRVManuscript::PlainText;
}

// The lines of a script mean something.
bool isProse(const MRVManuscript &manuscript)
{
    return manuscript.format == MRVManuscript::PlainText
        && !manuscript.fileName.endsWith(QLatin1String(".fountain"), Qt::CaseInsensitive);
}

void takeHead(const MRVMarkdownHead &head, MRVManuscript *manuscript)
{
    manuscript->authors = head.authors;
    manuscript->description = head.description;
    manuscript->language = head.language;
    manuscript->date = head.date;
    manuscript->metadata = head.entries;
}

} // namespace

bool MRVManuscriptReader::read(const QString &path, MRVManuscript *manuscript)
{
    MRVError unreadable;
    MRVManuscript read;
    read.path = path;
    read.fileName = QFileInfo(path).fileName();
    read.bytes = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (unreadable) {
        m_error = FileError;
        m_failure = unreadable; // names the file
        return false;
    }
    read.format = m_format == MRVManuscript::Unknown ? MRVManuscript::formatOfFile(path) : m_format;
    return readBytes(QFileInfo(path).absolutePath(), &read, manuscript);
}

bool MRVManuscriptReader::readBytes(const QByteArray &bytes, const QString &name,
                                    const QString &folder, MRVManuscript *manuscript)
{
    MRVManuscript read;
    read.path = name;
    read.bytes = bytes;
    read.format = m_format == MRVManuscript::Unknown ? formatOfBytes(bytes) : m_format;
    return readBytes(folder, &read, manuscript);
}

// Reads what @p read holds in bytes, and hands it over when all went well.
bool MRVManuscriptReader::readBytes(const QString &folder, MRVManuscript *read,
                                    MRVManuscript *manuscript)
{
    m_unreadablePictures.clear();
    read->options = m_purpose == Editing ? MRVMarkdown::Footnotes : m_options;
    if (read->format == MRVManuscript::Unknown) {
        return fail(UnknownFormat, *read, {MRVErrorKind::Unsupported, tr("unknown type of file")});
    }
    // Such a file can be read as text all the same, if somebody says so.
    const MRVFormat::Format office = MRVOfficeConverter::formatOf(read->bytes);
    if (m_format == MRVManuscript::Unknown && !read->isConverted()
        && office != MRVFormat::NoFormat) {
        return fail(UnknownFormat, *read,
                    {MRVErrorKind::Unsupported,
                     tr("it is %1, which its name does not say").arg(MRVFormat::name(office))});
    }
    const bool isRead =
        read->format == MRVManuscript::Native ? readArchive(folder, read) : readText(folder, read);
    if (!isRead) {
        return false;
    }
    m_error = NoError;
    m_failure = {};
    *manuscript = std::move(*read);
    return true;
}

bool MRVManuscriptReader::readText(const QString &folder, MRVManuscript *read)
{
    QString text;
    MRVProgressMeter meter(m_progress);
    meter.begin(read->isConverted() ? 700 : 100, 1);
    const bool hasText = read->isConverted() ? convert(read, &text, &meter) : decode(read, &text);
    if (!hasText || !isGoingOn(*read, &meter)) {
        return false;
    }
    meter.begin(900, 1);
    return readDocument(text, folder, read) && isGoingOn(*read, &meter)
        && (!m_loadsPictures || loadPictures(folder, read, &meter));
}

bool MRVManuscriptReader::fail(Error error, const MRVManuscript &read, const MRVError &reason)
{
    m_error = error;
    return MRV::fail(&m_failure, read.path, reason);
}

bool MRVManuscriptReader::isGoingOn(const MRVManuscript &read, MRVProgressMeter *meter)
{
    return meter->advance() || fail(Cancelled, read, MRVProgressMeter::cancelled());
}

bool MRVManuscriptReader::decode(MRVManuscript *read, QString *text)
{
    const auto declaration = read->format == MRVManuscript::Html ? MRVTextDecoder::HtmlDeclaration
                                                                 : MRVTextDecoder::Undeclared;
    const QByteArray name = m_encoding.isEmpty()
        ? MRVTextDecoder::encodingOf(read->bytes, declaration)
        : m_encoding.toLatin1();
    const QTextCodec *codec = QTextCodec::codecForName(name);
    if (!codec) {
        return fail(UnknownEncoding, *read,
                    {MRVErrorKind::Unsupported,
                     tr("unknown encoding '%1'").arg(QString::fromLatin1(name))});
    }
    read->encoding = codec->name();
    return MRVTextDecoder::decode(read->bytes, read->encoding, text)
        || fail(DecodingError, *read,
                {MRVErrorKind::Damaged,
                 tr("not readable as %1").arg(QString::fromLatin1(read->encoding))});
}

bool MRVManuscriptReader::convert(MRVManuscript *read, QString *text, MRVProgressMeter *meter)
{
    MRVOfficeConverter converter;
    converter.setEmbedsPictures(m_loadsPictures);
    converter.setProgress([meter](int) { return meter->advance(0); });
    MRVError reason;
    *text = converter.toHtml(read->bytes, officeFormat(read->format), &reason);
    read->conversionNotes = converter.warnings();
    for (const MRVOfficeLoss &loss : converter.missingWords()) {
        read->report.losses.append({0,
                                    loss.after.isEmpty()
                                        ? loss.words
                                        : tr("%1 (after \"%2\")").arg(loss.words, loss.after)});
    }
    for (const QString &comment : converter.missingComments()) {
        read->report.losses.append({0, tr("the comment %1").arg(comment)});
    }
    return !text->isNull()
        || fail(meter->isCancelled() ? Cancelled : ConversionError, *read, reason);
}

bool MRVManuscriptReader::readArchive(const QString &folder, MRVManuscript *read)
{
    auto document = std::make_unique<MRVGuardedDocument>();
    document->setUndoRedoEnabled(false);
    MRVDocumentArchive archive;
    MRVError reason;
    if (!archive.read(read->bytes, document.get(), &reason)) {
        return fail(ConversionError, *read, reason);
    }
    read->document = std::move(document);
    read->location = folder.isEmpty() ? QString() : folder + u'/' + read->fileName;
    takeHead(MRVFrontMatter::head(archive.metadata()), read);
    if (archive.isTextOnly()) {
        read->report.losses.append({0, tr("formats and pictures, as the file is damaged")});
    }
    QVector<MRVUnreadablePicture> unreadable;
    for (const QString &name : archive.missingPictures()) {
        unreadable.append({name, 0, tr("it is missing or damaged"), MRVErrorKind::Damaged});
    }
    return takeUnreadable(unreadable, read);
}

bool MRVManuscriptReader::readDocument(const QString &text, const QString &folder,
                                       MRVManuscript *read)
{
    if (read->format == MRVManuscript::Html || read->isConverted()) {
        const MRVHtmlHead head = MRVHtmlReader::head(text);
        read->authors = head.authors;
        read->description = head.description;
        read->language = head.language;
        read->metadata = head.entries;
        read->date = MRVFrontMatter::head(head.entries).date;
    }
    MRVError reason;
    MRVSourceReport report;
    if (m_purpose == Publishing && isProse(*read)) {
        const QString page = MRVPlainText::toHtml(text, &report.head);
        if (report.head.title.isEmpty()) {
            report.head.title = MRVPlainText::titleOfFile(read->fileName);
        }
        read->document = mrvNewDocument(page, MRVManuscript::Html, {}, {}, &report, &reason);
    } else {
        read->location = folder.isEmpty() ? QString() : folder + u'/' + read->fileName;
        read->document =
            mrvNewDocument(text, read->format, read->options, read->location, &report, &reason);
    }
    if (!read->document) {
        return fail(NestingError, *read, reason);
    }
    if (read->isConverted()) { // lines are those of a page that nobody has seen
        report.html.pictureLines.clear();
        for (MRVHtmlLoss &loss : report.html.losses) {
            loss.line = 0;
        }
    }
    report.html.losses = read->report.losses + report.html.losses;
    read->report = report.html;
    if (read->format == MRVManuscript::Markdown || read->format == MRVManuscript::PlainText) {
        takeHead(report.head, read);
    }
    return true;
}

bool MRVManuscriptReader::loadPictures(const QString &folder, MRVManuscript *read,
                                       MRVProgressMeter *meter)
{
    MRVPictureActions actions;
    actions.setFlag(MRVPictureAction::Drop, m_missingPictures == Drop);
    actions.setFlag(MRVPictureAction::Rename, !m_keepsPictureNames);
    const QVector<MRVUnreadablePicture> unreadable = mrvLoadPictures(folder, actions, read, meter);
    if (meter->isCancelled()) {
        return fail(Cancelled, *read, MRVProgressMeter::cancelled());
    }
    return takeUnreadable(unreadable, read);
}

bool MRVManuscriptReader::takeUnreadable(const QVector<MRVUnreadablePicture> &unreadable,
                                         MRVManuscript *read)
{
    if (m_missingPictures != Refuse || unreadable.isEmpty()) {
        read->unreadablePictures = unreadable;
        return true;
    }
    m_unreadablePictures = unreadable;
    return fail(PictureError, *read,
                {unreadable.constFirst().kind,
                 unreadable.size() == 1
                     ? unreadable.constFirst().text()
                     : tr("pictures that cannot be read: %1").arg(unreadable.size())});
}
