#pragma once

#include "core/mrverror.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/** Folders made for files that are still to come. Those that are empty go again, unless kept. */
class MRVNewFolders
{
    Q_DECLARE_TR_FUNCTIONS(MRVStagedFiles)

public:
    MRVNewFolders() = default;
    ~MRVNewFolders();
    MRVNewFolders(const MRVNewFolders &) = delete;
    MRVNewFolders &operator=(const MRVNewFolders &) = delete;

    /** Makes the folder of @p file with those above it. @p error names the folder. */
    bool makeFor(const QString &file, MRVErrorSink error);
    void keep() { m_made.clear(); }

private:
    QStringList m_made; // outer ones first
};
