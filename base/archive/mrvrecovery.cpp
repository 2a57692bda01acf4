#include "archive/mrvrecovery.h"

#include "archive/mrvarchivesnapshot_p.h"
#include "archive/mrvdocumentarchive.h"
#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "util/mrvprogress.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <QUuid>

#include <atomic>
#include <csignal>
#include <system_error>
#include <thread>

namespace {

constexpr int LongestWait = 20 * 1000; // in milliseconds, while changes go on
constexpr int Level = 1; // of libdeflate: copies are written often

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

MRVArchiveExtras extrasOf(const MRVDocumentArchive &archive)
{
    MRVArchiveExtras extras{archive.metadata(), {}, archive.modified()};
    const QStringList names = archive.propertyNames();
    for (const QString &name : names) {
        extras.properties.insert(name, archive.property(name));
    }
    return extras;
}

std::unique_ptr<QLockFile> lockFor(const QString &base)
{
    auto lock = std::make_unique<QLockFile>(lockOf(base));
    lock->setStaleLockTime(0); // it holds as long as its program runs, however long that is
    return lock;
}

} // namespace

/** A copy that is being written, in a thread of its own. */
class MRVRecovery::Copying
{
public:
    Copying(const QString &base, const QString &path, std::unique_ptr<MRVArchiveSnapshot> snapshot)
        : m_base(base)
        , m_path(path)
        , m_snapshot(std::move(snapshot))
    {
    }
    ~Copying() { wait(); }
    Copying(const Copying &) = delete;
    Copying &operator=(const Copying &) = delete;

    // Calls @p done in the thread, when all is done.
    void start(const std::function<void()> &done)
    {
        // Signals are for the main thread, for which their handlers are written.
        sigset_t all;
        sigset_t before;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
        try {
            m_thread = std::thread([this, done] {
                write();
                m_isDone = true;
                done();
            });
        } catch (const std::system_error &) { // the system gives no more threads
            write();
            m_isDone = true;
            done();
        }
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
    void cancel() { m_isCancelled = true; }
    bool isDone() const { return m_isDone; }
    // Returns why it failed.
    MRVError wait()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
        return m_error;
    }

private:
    void write()
    {
        const auto content = [this](QIODevice *device, MRVErrorSink reason) {
            MRVProgressMeter meter([this](int) { return !m_isCancelled; });
            return m_snapshot->write(device, reason, &meter) && !m_isCancelled;
        };
        if (!MRVFileWriter::write(originOf(m_base), m_path.toUtf8(), &m_error)) {
            return;
        }
        while (!MRVFileWriter::write(copyOf(m_base), content, &m_error)) {
            if (m_isCancelled || !m_snapshot->canTryAgain()) {
                return;
            }
        }
        m_error = MRVError();
    }

    const QString m_base;
    const QString m_path;
    const std::unique_ptr<MRVArchiveSnapshot> m_snapshot;
    MRVError m_error;
    std::atomic<bool> m_isCancelled{false};
    std::atomic<bool> m_isDone{false};
    std::thread m_thread;
};

MRVRecovery::MRVRecovery(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
    for (QTimer *timer : {&m_pause, &m_limit}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &MRVRecovery::keepSoon);
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
    m_limit.setInterval(qMax(m_interval, qMin(10 * m_interval, LongestWait)));
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
    m_isDue = false;
    if (m_copying) {
        m_copying->cancel();
        m_copying.reset(); // before its file could appear
    }
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

// Takes what the document is now; a thread writes it.
bool MRVRecovery::begin()
{
    m_pause.stop();
    m_limit.stop();
    m_isDue = false;
    if (!m_document || !m_isChanged) {
        return true;
    }
    if (!lock()) {
        Q_EMIT failed(
            {MRVErrorKind::NoPermission, tr("%1: no lock can be made there").arg(m_folder)});
        return false;
    }
    QElapsedTimer time;
    time.start();
    const MRVDocumentArchive archive = m_archive ? m_archive() : MRVDocumentArchive();
    auto snapshot = std::make_unique<MRVArchiveSnapshot>(*m_document, extrasOf(archive));
    snapshot->setLostPictures(MRVArchivePictures::LeaveOut); // the words count
    snapshot->setLevel(Level);
    m_isChanged = false;
    m_copying = std::make_unique<Copying>(m_base, m_path, std::move(snapshot));
    m_copying->start(
        [this] { QMetaObject::invokeMethod(this, &MRVRecovery::finish, Qt::QueuedConnection); });
    m_pause.setInterval(qBound(m_interval, 10 * int(time.elapsed()), m_limit.interval()));
    return true;
}

// Waits for the thread.
bool MRVRecovery::end()
{
    if (!m_copying) {
        return true;
    }
    const MRVError error = m_copying->wait();
    m_copying.reset();
    if (error) {
        m_isChanged = true;
        Q_EMIT failed(error);
    }
    return !error;
}

// Is called late where somebody has waited for the thread; another one may run then.
void MRVRecovery::finish()
{
    if (m_copying && m_copying->isDone() && end() && m_isDue) {
        begin();
    }
}

void MRVRecovery::keepSoon()
{
    if (m_copying) {
        m_isDue = true;
    } else {
        begin();
    }
}

bool MRVRecovery::keep()
{
    if (m_copying) { // where that fails, the next one tells
        m_isChanged = bool(m_copying->wait()) || m_isChanged;
        m_copying.reset();
    }
    return begin() && end();
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
