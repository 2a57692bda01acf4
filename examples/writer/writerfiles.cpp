// The files of a window: opening, saving, exporting, recovery.

#include "advice.h"
#include "exportdialog.h"
#include "findbar.h"
#include "manuscripteditor.h"
#include "notespanel.h"
#include "writerwindow.h"

#include <archive/mrvrecovery.h>
#include <core/mrverror.h>
#include <editor/mrvscriptwriting.h>
#include <gui/mrvguiutil.h>
#include <state/mrvapplicationstate.h>
#include <text/mrvdocumentcounts.h>

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace {

// What is lost, wherever and however often: "Fonts: " of "Fonts: 3".
QString kindOf(const QString &loss)
{
    static const QRegularExpression number(QStringLiteral("\\d+$"));
    return QString(loss).remove(number);
}

} // namespace

// The document that was shown before goes after all that follows it has been told.
void WriterWindow::take(std::unique_ptr<QTextDocument> document, bool isUnsaved)
{
    m_counts.reset();
    m_acceptedLosses.clear();
    m_editor->setManuscript(std::move(document));
    QTextDocument *shown = m_editor->document();
    shown->setModified(isUnsaved);
    m_counts = std::make_unique<MRVDocumentCounts>(shown);
    connect(m_counts.get(), &MRVDocumentCounts::changed, this, &WriterWindow::countLater);
    connect(shown, &QTextDocument::modificationChanged, this, &QWidget::setWindowModified);
    m_recovery->follow(shown, m_file.path());
    m_findBar->followDocument();
    showTitle();
    countLater();
}

bool WriterWindow::isUntouched() const
{
    return m_file.path().isEmpty() && !m_editor->document()->isModified();
}

WriterWindow *WriterWindow::windowOf(const QString &path)
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *window = qobject_cast<WriterWindow *>(widget);
        if (window && !window->m_file.path().isEmpty()
            && QFileInfo(window->m_file.path()) == QFileInfo(path)) {
            return window;
        }
    }
    return nullptr;
}

bool WriterWindow::openFile(const QString &path)
{
    if (WriterWindow *window = windowOf(path)) {
        window->raise();
        window->activateWindow();
        return true;
    }
    WriterWindow *window = isUntouched() ? this : new WriterWindow;
    window->show();
    if (!window->load(path, nullptr)) {
        if (window != this) {
            window->close();
        }
        return false;
    }
    MRVApplicationState *state = MRVApplicationState::instance();
    state->prependToRecentProjectList(QFileInfo(path).absoluteFilePath());
    state->setRecentProjectPath(QFileInfo(path).absolutePath());
    return true;
}

// What was recovered belongs to its own file, and not to the copy that is read.
bool WriterWindow::load(const QString &path, const MRVRecoveredFile *recovered)
{
    MRVScriptMode mode = m_editor->script()->mode();
    QStringList notes;
    MRVError error;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::unique_ptr<QTextDocument> document = m_file.read(path, &mode, &notes, &error);
    QApplication::restoreOverrideCursor();
    if (!document) {
        fail(tr("The file cannot be opened."), error);
        return false;
    }
    if (recovered) {
        m_file.setOrigin(recovered->path, recovered->time);
    }
    take(std::move(document), recovered != nullptr);
    m_editor->script()->setMode(mode);
    if (!notes.isEmpty()) {
        tell(tr("The file was opened, but not all of it could be read as it is."), notes);
    }
    return true;
}

void WriterWindow::open()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Open"), MRVApplicationState::instance()->recentProjectPath(),
        ManuscriptFile::openFilters());
    for (const QString &path : paths) {
        openFile(path);
    }
}

bool WriterWindow::save()
{
    if (m_file.path().isEmpty() || m_file.format() == ManuscriptFile::Unknown) {
        return saveAs();
    }
    return saveTo(m_file.path());
}

bool WriterWindow::saveAs()
{
    QString filter;
    QString proposal = m_file.path();
    if (proposal.isEmpty()) {
        proposal = MRVApplicationState::instance()->recentProjectPath();
    } else if (m_file.format() == ManuscriptFile::Unknown) { // which is only read
        const QFileInfo file(proposal);
        proposal = file.path() + u'/' + file.completeBaseName();
    }
    QString path =
        QFileDialog::getSaveFileName(this, tr("Save As"), proposal, ManuscriptFile::saveFilters(),
                                     &filter, QFileDialog::DontConfirmOverwrite);
    if (path.isEmpty()) {
        return false;
    }
    if (ManuscriptFile::formatOf(path) == ManuscriptFile::Unknown) {
        path += u'.' + ManuscriptFile::suffixOf(filter);
    }
    // Asked here, since the name may have got a suffix.
    if (path != m_file.path() && QFileInfo::exists(path)
        && QMessageBox::question(this, tr("Save As"),
                                 tr("%1 exists. Replace it?").arg(QFileInfo(path).fileName()),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes) {
        return false;
    }
    return saveTo(path);
}

bool WriterWindow::saveTo(const QString &name)
{
    const QString path = QFileInfo(name).absoluteFilePath();
    const WriterWindow *const other = windowOf(path);
    if (other && other != this) {
        fail(tr("The manuscript is not saved. The file is as it was before."),
             {MRVErrorKind::Other,
              tr("%1 is open in another window.").arg(QFileInfo(path).fileName())});
        return false;
    }
    m_notes->commit();
    if (path == m_file.path() && m_file.isChangedOutside()
        && QMessageBox::warning(this, tr("Save"),
                                tr("%1 was changed by another program since it was opened here. "
                                   "Replace what was written there?")
                                    .arg(m_file.name()),
                                QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel)
            != QMessageBox::Save) {
        return false;
    }
    const QStringList losses =
        m_file.losses(*m_editor->document(), path, m_editor->script()->mode());
    const auto isAccepted = [this](const QString &loss) {
        return m_acceptedLosses.contains(kindOf(loss));
    };
    if (path != m_file.path() || !std::all_of(losses.cbegin(), losses.cend(), isAccepted)) {
        m_acceptedLosses.clear();
    }
    if (!losses.isEmpty() && m_acceptedLosses.isEmpty()) {
        QMessageBox box(QMessageBox::Warning, tr("Save"),
                        tr("%1 cannot hold all of the manuscript. A Morvane document can.")
                            .arg(QFileInfo(path).fileName()),
                        QMessageBox::Save | QMessageBox::Cancel, this);
        box.setInformativeText(losses.join(u'\n'));
        box.setDefaultButton(QMessageBox::Cancel);
        if (box.exec() != QMessageBox::Save) {
            return false;
        }
        std::transform(losses.cbegin(), losses.cend(), std::back_inserter(m_acceptedLosses),
                       kindOf);
    }
    MRVError error;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isSaved =
        m_file.write(m_editor->document(), path, m_editor->script()->mode(), &error);
    QApplication::restoreOverrideCursor();
    if (!isSaved) {
        m_acceptedLosses.clear(); // of a file that is not there
        fail(tr("The manuscript is not saved. The file is as it was before."), error);
        return false;
    }
    m_editor->document()->setModified(false);
    m_recovery->saved(path);
    MRVApplicationState::instance()->prependToRecentProjectList(QFileInfo(path).absoluteFilePath());
    showTitle();
    if (!m_file.notes().isEmpty()) {
        tell(tr("The manuscript is saved, but not all of it could be taken along."),
             m_file.notes());
    }
    statusBar()->showMessage(tr("Saved %1").arg(QFileInfo(path).fileName()), 3000);
    return true;
}

bool WriterWindow::mayDiscard()
{
    if (!m_editor->document()->isModified()) {
        return true;
    }
    const auto answer = QMessageBox::warning(
        this, tr("Close"), tr("Save the changes of %1?").arg(m_file.name()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void WriterWindow::offerRecovery()
{
    for (const MRVRecoveredFile &left : MRVRecovery::leftBehind(MRVRecovery::defaultFolder())) {
        const QString name = left.path.isEmpty() ? ManuscriptFile().name() : left.path;
        const auto answer = QMessageBox::question(
            this, tr("Recovery"),
            tr("The program ended without saving %1. Open what was kept on %2?")
                .arg(name, QLocale().toString(left.time, QLocale::ShortFormat)),
            QMessageBox::Open | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Open);
        if (answer == QMessageBox::Discard) {
            MRVRecovery::discard(left);
        }
        if (answer != QMessageBox::Open) {
            continue;
        }
        WriterWindow *window = isUntouched() ? this : new WriterWindow;
        window->show();
        if (window->load(left.copy, &left) && window->m_recovery->keep()) {
            MRVRecovery::discard(left); // there is a copy of its own now
        }
    }
}

void WriterWindow::exportFile()
{
    ExportDialog(m_editor->document(), m_file, m_editor->script()->mode(), this).exec();
}

void WriterWindow::insertPicture()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Insert Picture"), MRVApplicationState::instance()->recentImportPath(),
        MRVGuiUtil::readImageFileFilters().join(QLatin1String(";;")));
    if (path.isEmpty()) {
        return;
    }
    MRVApplicationState::instance()->setRecentImportPath(QFileInfo(path).absolutePath());
    m_editor->insertPictureFile(path);
}

void WriterWindow::tell(const QString &text, const QStringList &details)
{
    QMessageBox box(QMessageBox::Information, QApplication::applicationDisplayName(), text,
                    QMessageBox::Ok, this);
    box.setDetailedText(details.join(u'\n'));
    box.exec();
}

void WriterWindow::fail(const QString &text, const MRVError &error)
{
    QMessageBox box(QMessageBox::Critical, QApplication::applicationDisplayName(), text,
                    QMessageBox::Ok, this);
    box.setInformativeText(QStringList{error.text, adviceFor(error.kind)}.join(u'\n').trimmed());
    box.exec();
}
