#include "archive/mrvrecovery.h"

#include "archive/mrvdocumentarchive.h"
#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QUuid>

namespace {

// A copy is three files of one base name.
QString copyOf(const QString &base)
{
    return base + u'.' + MRVDocumentArchive::suffix();
}
QString originOf(const QString &base)
{
    return base + QLatin1String(".origin"); // holds the path of the document's own file
}
QString lockOf(const QString &base)
{
    return base + QLatin1String(".lock");
}

QString baseOf(const QFileInfo &copy)
{
    return copy.path() + u'/' + copy.completeBaseName();
}

QString absolute(const QString &path)
{
    return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath();
}

std::unique_ptr<QLockFile> lockFor(const QString &base)
{
    auto lock = std::make_unique<QLockFile>(lockOf(base));
    lock->setStaleLockTime(0); // it holds as long as its program runs, however long that is
    return lock;
}

} // namespace

MRVRecovery::MRVRecovery(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
    for (QTimer *timer : {&m_pause, &m_limit}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &MRVRecovery::keep);
    }
    setInterval(2);
}

MRVRecovery::~MRVRecovery()
{
    remove();
}

QString MRVRecovery::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
        + QLatin1String("/Recovery");
}

void MRVRecovery::setInterval(int seconds)
{
    m_interval = qMax(0, seconds) * 1000;
    m_pause.setInterval(m_interval);
    m_limit.setInterval(10 * m_interval);
}

void MRVRecovery::follow(QTextDocument *document, const QString &path)
{
    if (m_document) {
        m_document->disconnect(this);
    }
    remove();
    m_document = document;
    m_path = absolute(path);
    if (document) {
        connect(document, &QTextDocument::contentsChanged, this, &MRVRecovery::followChange);
        followChange(); // what was recovered is modified from the start
    }
}

void MRVRecovery::followChange()
{
    if (m_document->isModified()) {
        m_isChanged = true;
        m_pause.start();
        if (!m_limit.isActive()) {
            m_limit.start();
        }
    } else {
        remove(); // what was undone back to what is saved needs no copy
    }
}

void MRVRecovery::saved(const QString &path)
{
    remove();
    m_path = absolute(path);
}

void MRVRecovery::remove()
{
    m_pause.stop();
    m_limit.stop();
    m_isChanged = false;
    if (!m_base.isEmpty()) {
        QFile::remove(copyOf(m_base));
        QFile::remove(originOf(m_base));
    }
}

// The lock comes before the copy, so that no other program takes that for one left behind.
bool MRVRecovery::lock()
{
    if (m_lock && m_lock->isLocked() && QFile::exists(lockOf(m_base))) {
        return true;
    }
    // At first, or when somebody has cleaned up: then under the same name, which a copy may have.
    QDir().mkpath(m_folder);
    QFile::setPermissions(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_lock = m_base.isEmpty() ? nullptr : lockFor(m_base);
    if (!m_lock || !m_lock->tryLock(0)) {
        m_base = QDir(m_folder).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces));
        m_lock = lockFor(m_base);
    }
    return m_lock->isLocked() || m_lock->tryLock(0);
}

bool MRVRecovery::keep()
{
    m_pause.stop();
    m_limit.stop();
    if (!m_document || !m_isChanged) {
        return true;
    }
    QElapsedTimer time;
    time.start();
    MRVDocumentArchive archive = m_archive ? m_archive() : MRVDocumentArchive();
    MRVError error;
    if (!lock()) {
        error = {MRVErrorKind::NoPermission, tr("%1: no lock can be made there").arg(m_folder)};
    } else if (MRVFileWriter::write(originOf(m_base), m_path.toUtf8(), &error)
               && archive.write(*m_document, copyOf(m_base), &error)) {
        m_isChanged = false;
        const int taken = int(time.elapsed());
        m_pause.setInterval(qMax(m_interval, 10 * taken));
        m_limit.setInterval(10 * m_pause.interval());
        return true;
    }
    Q_EMIT failed(error);
    return false;
}

QVector<MRVRecoveredFile> MRVRecovery::leftBehind(const QString &folder)
{
    QVector<MRVRecoveredFile> files;
    const QFileInfoList copies =
        QDir(folder).entryInfoList({copyOf(QStringLiteral("*"))}, QDir::Files, QDir::Time);
    for (const QFileInfo &copy : copies) {
        const std::unique_ptr<QLockFile> lock = lockFor(baseOf(copy));
        if (lock->tryLock(0)) { // its program has ended
            const QByteArray path = MRVCoreUtil::ReadBinaryFile(originOf(baseOf(copy)));
            files.append({copy.filePath(), QString::fromUtf8(path), copy.lastModified()});
        }
    }
    return files;
}

void MRVRecovery::discard(const MRVRecoveredFile &file)
{
    const QString base = baseOf(QFileInfo(file.copy));
    QFile::remove(file.copy);
    QFile::remove(originOf(base));
    QFile::remove(lockOf(base));
}
