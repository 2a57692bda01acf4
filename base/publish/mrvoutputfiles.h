#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/**
 * Checks, before anything is written, that the files to be written are not those that they are
 * made from, and that each is written once.
 *
 * Paths that name the same file count as equal however they are written: relative or absolute,
 * through links, with "." and "..". Files and folders need not exist. "-" is standard input or
 * standard output, which is no file.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVOutputFiles
{
    Q_DECLARE_TR_FUNCTIONS(MRVOutputFiles)

public:
    MRVOutputFiles() = delete;

    /**
     * Where to write what is made of the file @p input: @p output, or a file named after the input
     * in the folder @p output or, where that is empty, beside the input.
     *
     * @param output       a folder if it is one, or ends with "/". Where it is empty, what is made
     *                     of standard input goes to standard output.
     * @param standardName what a file for standard input is called, without the suffix.
     * @param suffix       without a period.
     * @param isFolder     whether @p output is a folder although it does not exist.
     */
    static QString fileFor(const QString &input, const QString &output, const QString &standardName,
                           const QString &suffix, bool isFolder = false);
    /**
     * Whether each of @p outputs is another file.
     *
     * @param error if given, receives one translated line that names a file where it is not.
     */
    static bool areDistinct(const QStringList &outputs, MRVErrorSink error = nullptr);
    /**
     * Whether none of @p outputs is one of @p inputs, of which empty ones are none.
     *
     * @param error if given, receives one translated line that names the output where one is.
     */
    static bool spareInputs(const QStringList &outputs, const QStringList &inputs,
                            MRVErrorSink error = nullptr);
};
