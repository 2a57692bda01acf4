#pragma once

#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * Checks, before anything is written, that the files to be written are not those that they are
 * made from, and that each is written once.
 *
 * Paths that name the same file count as equal however they are written: relative or absolute,
 * through links, with "." and "..". Files and folders need not exist.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVOutputFiles
{
    Q_DECLARE_TR_FUNCTIONS(MRVOutputFiles)

public:
    MRVOutputFiles() = delete;

    /**
     * Whether each of @p outputs is another file.
     *
     * @param error if given, receives one translated line that names a file where it is not.
     */
    static bool areDistinct(const QStringList &outputs, QString *error = nullptr);
    /**
     * Whether none of @p outputs is one of @p inputs.
     *
     * @param error if given, receives one translated line that names the output where one is.
     */
    static bool spareInputs(const QStringList &outputs, const QStringList &inputs,
                            QString *error = nullptr);
};
