#pragma once

#include <QString>

/** A kind of section of a book. */
struct MRVEPubSection
{
    const char *type; // as epub:type has it
    const char *role; // of ARIA; empty: none
};

/** The kind that a heading announces, in English, French, German or Spanish; null: none known. */
const MRVEPubSection *mrvEPubSectionOf(const QString &heading);
/** The kind of this epub:type; null: none. */
const MRVEPubSection *mrvEPubSection(const QString &type);
