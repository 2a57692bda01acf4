#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <functional>

/** Tells when a file was changed, replaced, made or removed. */
class MRVSettingsWatcher
{
public:
    /** Calls @p changed a moment after the last of the changes that belong together. */
    MRVSettingsWatcher(const QString &path, const std::function<void()> &changed);

private:
    void watch(const QString &path);

    QFileSystemWatcher m_files;
    QTimer m_timer;
};
