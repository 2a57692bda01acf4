#pragma once

#include <QString>

struct MRVManuscript;

/**
 * Loads the pictures on this machine into the document, gives each its full path, and lists them in
 * the manuscript.
 *
 * @param folder     where their names count from.
 * @param unreadable receives the name, as it is in the document, of a picture that cannot be read.
 * @param reason     receives why, translated.
 * @return false at the first such picture.
 */
bool mrvLoadPictures(const QString &folder, MRVManuscript *manuscript, QString *unreadable,
                     QString *reason);
