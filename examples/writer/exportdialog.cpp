#include "exportdialog.h"

#include "advice.h"
#include "exporter.h"
#include "manuscriptfile.h"
#include "valueeditors.h"

#include <options/mrvoptions.h>
#include <publish/mrvoutputfiles.h>
#include <state/mrvapplicationstate.h>
#include <util/mrvpapersize.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const auto AuthorsKey = QLatin1String("Writer/Authors");

QString suffixOf(int format)
{
    return QLatin1String(Exporter::formats().at(format).suffix);
}

} // namespace

ExportDialog::ExportDialog(QTextDocument *document, const ManuscriptFile &file,
                           const MRVScriptMode &mode, QWidget *parent)
    : QDialog(parent)
    , m_document(document)
    , m_source(file.path())
    , m_mode(mode)
    , m_format(new ChoiceBox(this))
    , m_path(new PathEdit(PathEdit::NewFile, this))
    , m_title(new QLineEdit(this))
    , m_authors(new QLineEdit(this))
    , m_language(new QLineEdit(this))
    , m_cover(new PathEdit(PathEdit::File, this))
    , m_paper(new ChoiceBox(this))
    , m_comments(new QCheckBox(this))
{
    setObjectName(QStringLiteral("ExportDialog"));
    setWindowTitle(tr("Export"));
    fillFields(file.head());
    layOut();
    connect(m_format, &ChoiceBox::valueChanged, this, &ExportDialog::showFormat);
    showFormat();
    resize(sizeHint().expandedTo(QSize(520, 0)).boundedTo(screen()->availableSize()));
}

void ExportDialog::fillFields(const MRVMarkdownHead &head)
{
    const QVector<Exporter::Format> formats = Exporter::formats();
    const bool isScript = !m_mode.elements().isEmpty();
    for (int i = 0; i < formats.size(); ++i) {
        const bool isForScripts = formats.at(i).uses & Exporter::Script;
        if (isScript || !isForScripts) {
            m_format->addItem(Exporter::tr(formats.at(i).name), i);
        }
    }
    // A long name is cut off rather than the dialog being wider than a small screen.
    m_format->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_format->setMinimumContentsLength(16);
    m_paper->addItem(tr("As usual"), QSizeF());
    m_paper->addItem(tr("A4"), MRVPaperSize::A4);
    m_paper->addItem(tr("A5"), MRVPaperSize::A5);
    m_paper->addItem(tr("US Letter"), MRVPaperSize::Letter);

    MRVApplicationState *const state = MRVApplicationState::instance();
    const QString title = m_document->metaInformation(QTextDocument::DocumentTitle);
    m_title->setText(title.isEmpty() ? QFileInfo(m_source).completeBaseName() : title);
    m_authors->setText(head.authors.isEmpty() ? state->value(AuthorsKey).toString()
                                              : head.authors.join(QLatin1String("; ")));
    m_authors->setPlaceholderText(tr("Several are separated by semicolons"));
    const QLocale locale(mrvOptions()->value(MRVOptions::DictionaryLocale));
    m_language->setText(head.language.isEmpty() ? locale.bcp47Name() : head.language);
    m_language->setPlaceholderText(tr("A tag such as en or pt-BR"));
    const QString name = m_title->text().isEmpty() ? tr("Untitled") : m_title->text();
    const QString folder = state->recentExportPath();
    const QDir proposal(QFileInfo(folder).isDir() ? folder : QFileInfo(m_source).absolutePath());
    m_path->setPath(proposal.filePath(QString(name).replace(u'/', u'-')));
}

void ExportDialog::layOut()
{
    auto *const fields = new QWidget(this);
    m_form = new QFormLayout(fields);
    m_form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    addRow(0, tr("F&ormat:"), m_format, "format");
    addRow(0, tr("&File:"), m_path, "file");
    addRow(Exporter::Title, tr("&Title:"), m_title, "title");
    addRow(Exporter::Authors, tr("&Authors:"), m_authors, "authors");
    addRow(Exporter::Language, tr("&Language:"), m_language, "language");
    addRow(Exporter::Cover, tr("Co&ver:"), m_cover, "cover");
    addRow(Exporter::Paper, tr("&Paper:"), m_paper, "paper");
    m_comments->setText(tr("&Comments become notes"));
    addRow(Exporter::Comments, QString(), m_comments, "comments");

    auto *const area = new QScrollArea(this);
    area->setWidget(fields);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    QPushButton *const go = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    go->setObjectName(QStringLiteral("export"));
    go->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
    connect(m_path, &PathEdit::pathChanged, go,
            [this, go] { go->setEnabled(!m_path->path().isEmpty()); });
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
}

/** Adds a field for formats that have one of the uses; 0: for all. */
void ExportDialog::addRow(int use, const QString &label, QWidget *field, const char *name)
{
    field->setObjectName(QLatin1String(name));
    m_form->addRow(label, field);
    field->setAccessibleName(label.isEmpty() ? QString() : QString(label).remove(u'&'));
    m_rows.append({use, field});
}

void ExportDialog::showFormat()
{
    const int format = m_format->value().toInt();
    const int uses = Exporter::formats().at(format).uses;
    for (const auto &[use, field] : qAsConst(m_rows)) {
        const bool isUsed = use == 0 || (uses & use);
        field->setEnabled(isUsed);
        if (QWidget *const label = m_form->labelForField(field)) {
            label->setEnabled(isUsed);
        }
    }
    const QFileInfo file(m_path->path());
    const QVector<Exporter::Format> formats = Exporter::formats();
    const bool hasSuffix =
        std::any_of(formats.begin(), formats.end(), [&file](const Exporter::Format &one) {
            return file.suffix().compare(QLatin1String(one.suffix), Qt::CaseInsensitive) == 0;
        });
    const QString name = hasSuffix ? file.completeBaseName() : file.fileName();
    m_path->setPath(file.dir().filePath(name + u'.' + suffixOf(format)));
}

ExportOptions ExportDialog::options() const
{
    ExportOptions result;
    result.format = m_format->value().toInt();
    result.path = QFileInfo(m_path->path()).absoluteFilePath();
    result.title = m_title->text().trimmed();
    const QStringList authors = m_authors->text().split(u';', Qt::SkipEmptyParts);
    for (const QString &author : authors) {
        result.authors.append(author.trimmed());
    }
    result.language = m_language->text().trimmed();
    result.cover = m_cover->path();
    result.paper = m_paper->value().toSizeF();
    result.hasComments = m_comments->isChecked();
    return result;
}

bool ExportDialog::mayReplace(const QString &path)
{
    QString error;
    if (!MRVOutputFiles::spareInputs({path}, {m_source, m_cover->path()}, &error)) {
        QMessageBox::warning(this, windowTitle(), error);
        return false;
    }
    return !QFileInfo::exists(path)
        || QMessageBox::question(
               this, windowTitle(),
               tr("%1 exists already. Replace it?").arg(QDir::toNativeSeparators(path)))
        == QMessageBox::Yes;
}

void ExportDialog::accept()
{
    const ExportOptions wanted = options();
    if (!mayReplace(wanted.path)) {
        return;
    }
    Exporter exporter(m_document, m_source, m_mode);
    QProgressDialog progress(tr("Exporting to %1...").arg(QFileInfo(wanted.path).fileName()),
                             tr("Cancel"), 0, 1000, this);
    progress.setObjectName(QStringLiteral("exportProgress"));
    progress.setMinimumDuration(500);
    progress.setWindowModality(Qt::WindowModal); // the manuscript must not change meanwhile
    exporter.setProgress([&progress](int thousandths) {
        progress.setValue(thousandths); // lets the user press Cancel
        return !progress.wasCanceled();
    });
    MRVError error;
    const bool isExported = exporter.run(wanted, &error);
    progress.reset();
    if (!isExported) {
        showFailure(error);
        return;
    }
    MRVApplicationState *const state = MRVApplicationState::instance();
    state->setRecentExportPath(QFileInfo(wanted.path).path());
    state->setValue(AuthorsKey, m_authors->text());
    showSuccess(wanted.path, exporter.notes());
    QDialog::accept();
}

void ExportDialog::showFailure(const MRVError &error)
{
    if (error.kind == MRVErrorKind::Cancelled) {
        return;
    }
    QMessageBox box(QMessageBox::Critical, windowTitle(),
                    tr("The manuscript could not be exported."), QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("exportFailed"));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        QStringList{error.text, adviceFor(error.kind)}.join(QLatin1String("\n\n")).trimmed());
    box.exec();
}

void ExportDialog::showSuccess(const QString &path, const QStringList &notes)
{
    constexpr int mostShown = 5;
    QMessageBox box(notes.isEmpty() ? QMessageBox::Information : QMessageBox::Warning,
                    windowTitle(),
                    tr("The manuscript was exported to %1.").arg(QDir::toNativeSeparators(path)),
                    QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("exported"));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(notes.mid(0, mostShown).join(u'\n'));
    if (notes.size() > mostShown) {
        box.setDetailedText(notes.join(u'\n'));
    }
    box.exec();
}
