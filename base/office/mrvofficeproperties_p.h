#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/**
 * What a document of a word processor says about itself beside its text; empty: nothing. Its dates
 * are those of the file, not of the book.
 */
struct MRVOfficeProperties
{
    QString title;
    QStringList authors;
    QString language; ///< as it is written
    QString description;
};

/** Reads docProps/core.xml of a DOCX or meta.xml of an ODT, up to a fault. */
MRVOfficeProperties mrvOfficeProperties(const QByteArray &xml);
