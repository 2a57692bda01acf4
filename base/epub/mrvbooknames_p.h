#pragma once

#include <QString>

/** The MARC code of a role: of "trl" or "translator", in any case; empty for what is no role. */
QString mrvRoleCode(const QString &role);

/**
 * How a list of authors files a name: "Marrable, Ilse" for "Ilse Marrable". Empty where the family
 * name cannot be told: of names of more than two words other than initials, with particles, titles
 * or suffixes, of organizations, in other scripts than the Latin one.
 *
 * @param language of the book; in some, the family name comes first.
 */
QString mrvFileAs(const QString &name, const QString &language);

/** The 10 or 13 characters of an ISBN, also after "ISBN" or "urn:isbn:"; empty for a wrong one. */
QString mrvIsbn(const QString &text);
