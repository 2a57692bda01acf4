#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** What a document of a word processor says about itself beside its text; empty: nothing. */
struct MRVOfficeProperties
{
    QString title;
    QStringList authors;
    QString language; ///< as it is written
    QString description;
    QString date; ///< of its creation, "2020-03-04"
};

/** Reads docProps/core.xml of a DOCX or meta.xml of an ODT, up to a fault. */
MRVOfficeProperties mrvOfficeProperties(const QByteArray &xml);
