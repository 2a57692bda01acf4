#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QVector>

/**
 * What a validator finds wrong with an e-book, at one place.
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVEPubFinding
{
    enum Severity { Warning, Error, Fatal };
    Severity severity = Error;
    QString id; ///< of the rule, as epubcheck calls it: "RSC-005"
    QString text; ///< one line, in English
    QString file; ///< path within the e-book; empty: the e-book as a whole
    int line = 0; ///< from 1; 0 where none is told
    int column = 0; ///< likewise

    /** One line: "book.epub/page.xhtml:12: error: text (RSC-005)", of the path of the e-book. */
    QString toString(const QString &book) const;
    /** The members by their names, "severity" in words, and the path of the e-book as "book". */
    QJsonObject toJson(const QString &book) const;
};

/**
 * Validates e-books by epubcheck, the reference validator, where that is installed.
 *
 * It is a program of its own, in Java, which takes some seconds. It runs with a limit of time and
 * memory, and of its own temporary folder.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVEPubCheck
{
    Q_DECLARE_TR_FUNCTIONS(MRVEPubCheck)

public:
    MRVEPubCheck() = delete;

    /**
     * Validates an e-book of any version.
     *
     * @param file     absolute, or relative to the current folder.
     * @param findings receives them in the validator's order; untouched on failure.
     * @param error    if given, receives one translated line on failure; untouched on success.
     * @return false when the file does not exist or is no ZIP archive, and when epubcheck or a Java
     *         runtime is not installed or does not come to an end; the text then says what to
     *         install.
     */
    static bool check(const QString &file, QVector<MRVEPubFinding> *findings,
                      MRVErrorSink error = nullptr);
};
