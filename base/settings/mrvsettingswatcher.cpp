#include "settings/mrvsettingswatcher_p.h"

#include <QFileInfo>

MRVSettingsWatcher::MRVSettingsWatcher(const QString &path, const std::function<void()> &changed)
{
    // Editors that write into the file itself do so in several steps.
    constexpr int Milliseconds = 100;
    m_timer.setSingleShot(true);
    m_timer.setInterval(Milliseconds);
    const auto restart = [this, path] {
        watch(path);
        m_timer.start();
    };
    QObject::connect(&m_files, &QFileSystemWatcher::fileChanged, &m_timer, restart);
    QObject::connect(&m_files, &QFileSystemWatcher::directoryChanged, &m_timer, restart);
    QObject::connect(&m_timer, &QTimer::timeout, &m_files, changed);
    watch(path);
}

// A file that is replaced is another file, which the watcher does not know; the folder tells of it.
void MRVSettingsWatcher::watch(const QString &path)
{
    for (const QString &one : {path, QFileInfo(path).path()}) {
        if (!m_files.files().contains(one) && !m_files.directories().contains(one)
            && QFileInfo::exists(one)) {
            m_files.addPath(one);
        }
    }
}
