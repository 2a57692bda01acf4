#include "exporter.h"

#include <core/mrvfilewriter.h>
#include <document/mrvmarginnotes.h>
#include <epub/mrvepubpackage.h>
#include <epub/mrvscriptbook.h>
#include <pdf/mrvmanuscriptpdf.h>
#include <pdf/mrvpdfwriter.h>
#include <pdf/mrvscriptpdf.h>
#include <publish/mrvpagepublisher.h>
#include <publish/mrvtextpublisher.h>
#include <screenplay/mrvscriptdocument.h>
#include <screenplay/mrvscriptfile.h>
#include <textexport/mrvdocumentlosses.h>
#include <textexport/mrvplaintextwriter.h>
#include <util/mrvpapersize.h>

#include <QTextDocument>

QVector<Exporter::Format> Exporter::formats()
{
    constexpr int book = Title | Authors | Language;
    // clang-format off
    return {
        {QT_TR_NOOP("E-book (EPUB 3)"), "epub", book | Cover | Comments, &Exporter::writeEPub3},
        {QT_TR_NOOP("E-book for older readers (EPUB 2)"), "epub", book | Cover | Comments, &Exporter::writeEPub2},
        {QT_TR_NOOP("PDF as a book"), "pdf", book | Paper, &Exporter::writeBookPdf},
        {QT_TR_NOOP("PDF as a manuscript for publishers"), "pdf", book | Paper, &Exporter::writeManuscriptPdf},
        {QT_TR_NOOP("Web page (XHTML)"), "xhtml", Title | Language, &Exporter::writePage},
        {QT_TR_NOOP("Markdown"), "md", book, &Exporter::writeMarkdown},
        {QT_TR_NOOP("Plain text"), "txt", 0, &Exporter::writeText},
        {QT_TR_NOOP("Script (PDF)"), "pdf", Script | Language | Paper, &Exporter::writeScriptPdf},
        {QT_TR_NOOP("Script (Fountain)"), "fountain", Script, &Exporter::writeFountain},
        {QT_TR_NOOP("Script (Final Draft)"), "fdx", Script, &Exporter::writeFinalDraft},
        {QT_TR_NOOP("Script as an e-book (EPUB 3)"), "epub", Script | Language, &Exporter::writeScriptBook},
    };
    // clang-format on
}

Exporter::Exporter(QTextDocument *document, const QString &source, const MRVScriptMode &mode)
    : m_document(document)
    , m_source(source)
    , m_mode(mode)
{
}

bool Exporter::run(const ExportOptions &options, MRVError *error)
{
    m_options = options;
    m_notes.clear();
    return (this->*formats().at(options.format).write)(error);
}

/** What is told of one part of the work, from and to these thousandths of the whole. */
MRVProgress Exporter::progressOf(int from, int to) const
{
    if (!m_progress) {
        return MRVProgress();
    }
    return [this, from, to](int part) { return m_progress(from + part * (to - from) / 1000); };
}

bool Exporter::writePackage(MRVEPubVersion version, MRVError *error)
{
    MRVEPubMetadata metadata;
    metadata.title = m_options.title;
    metadata.authors = m_options.authors;
    metadata.language = m_options.language;
    if (!m_options.cover.isEmpty() && !metadata.readCover(m_options.cover, error)) {
        return false;
    }
    MRVEPubOptions looks;
    looks.commentsAsNotes = m_options.hasComments;
    MRVEPubPackage package(version, metadata, looks);
    package.setProgress(progressOf(0, 500));
    if (!package.addDocument(*m_document, m_source, error)
        || !package.write(m_options.path, error)) {
        return false;
    }
    m_notes = package.losses({m_document}) + package.notes();
    return true;
}

bool Exporter::writeEPub2(MRVError *error)
{
    return writePackage(MRVEPubVersion::EPub2, error);
}

bool Exporter::writeEPub3(MRVError *error)
{
    return writePackage(MRVEPubVersion::EPub3, error);
}

bool Exporter::writePdf(MRVPrintOptions::Layout layout, MRVError *error)
{
    MRVPrintOptions print;
    print.layout = layout;
    print.title = m_options.title;
    print.authors = m_options.authors;
    print.language = m_options.language;
    print.paper = m_options.paper;
    MRVManuscriptPdf pdf(print);
    pdf.setProgress(m_progress);
    pdf.addDocument(*m_document, m_source);
    QByteArray bytes;
    if (!pdf.toByteArray(&bytes, error) || !writeBytes(bytes, error)) {
        return false;
    }
    m_notes = pdf.notes();
    return true;
}

bool Exporter::writeBookPdf(MRVError *error)
{
    return writePdf(MRVPrintOptions::Book, error);
}

bool Exporter::writeManuscriptPdf(MRVError *error)
{
    return writePdf(MRVPrintOptions::Manuscript, error);
}

bool Exporter::writePage(MRVError *error)
{
    MRVPageOptions page;
    page.type = MRVTextXhtmlExporter::Xhtml;
    page.title = m_options.title;
    page.language = m_options.language;
    MRVPagePublisher publisher(page);
    publisher.setProgress(m_progress);
    if (!publisher.add(m_document, m_options.language, m_options.path, error)) {
        return false;
    }
    if (!m_source.isEmpty()) {
        publisher.setSource(m_options.path, m_source);
    }
    m_notes = publisher.losses();
    return publisher.publish(nullptr, error);
}

bool Exporter::writeMarkdown(MRVError *error)
{
    MRVMarkdownHead head;
    head.title = m_options.title;
    head.authors = m_options.authors;
    head.language = m_options.language;
    m_notes = MRVDocumentLosses::of(*m_document, MRVDocumentLosses::Markdown);
    return MRVTextPublisher::writeMarkdown(*m_document, head, m_options.path, nullptr, error);
}

bool Exporter::writeText(MRVError *error)
{
    m_notes = MRVDocumentLosses::of(*m_document, MRVDocumentLosses::PlainText);
    return writeBytes(MRVPlainTextWriter(*m_document).text().toUtf8(), error);
}

MRVFountainScript Exporter::script()
{
    const int count = MRVMarginNotes::all(m_document).size();
    if (count > 0) {
        m_notes.append(tr("notes in the margin that a script has no place for: %1").arg(count));
    }
    return MRVScriptDocument::script(*m_document, m_mode.forEditor());
}

bool Exporter::writeFountain(MRVError *error)
{
    return writeBytes(MRVScriptFile::toByteArray(script(), MRVScriptFile::Fountain), error);
}

bool Exporter::writeFinalDraft(MRVError *error)
{
    return writeBytes(MRVScriptFile::toByteArray(script(), MRVScriptFile::FinalDraft), error);
}

bool Exporter::writeScriptPdf(MRVError *error)
{
    MRVScriptPdf::Options options;
    options.progress = m_progress;
    options.language = m_options.language;
    options.pagination.paper = m_options.paper == MRVPaperSize::Letter ? MRVScriptPagination::Letter
        : m_options.paper.isEmpty() ? MRVScriptPagination::PaperOfMode
                                    : MRVScriptPagination::A4;
    QString missing;
    const QByteArray bytes = MRVScriptPdf::toByteArray(script(), m_mode, options, error, &missing);
    if (!missing.isEmpty()) {
        m_notes.append(MRVPdfWriter::missingCharactersNote(missing));
    }
    return !bytes.isEmpty() && writeBytes(bytes, error);
}

bool Exporter::writeScriptBook(MRVError *error)
{
    const QByteArray bytes = MRVScriptBook::toByteArray(script(), m_mode, m_options.language,
                                                        MRVScriptBook::ReadersChoice, error);
    return !bytes.isEmpty() && writeBytes(bytes, error);
}

bool Exporter::writeBytes(const QByteArray &bytes, MRVError *error) const
{
    return MRVFileWriter::write(m_options.path, bytes, error);
}
