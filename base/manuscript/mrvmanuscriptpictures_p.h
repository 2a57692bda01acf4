#pragma once

#include "manuscript/mrvmanuscript.h"

#include <QString>
#include <QVector>

/**
 * Looks for the pictures that the document names, without decoding them. Each image of a file gets
 * the file's URL as its name, and each that is part of the source a resource. Lists the files in
 * the manuscript, and counts the pictures on other machines.
 *
 * @param folder where their names count from.
 * @param drop   whether alternative texts take the places of those that cannot be read; else these
 *               stay as they are.
 * @return those that cannot be read, each once, in order of appearance.
 */
QVector<MRVUnreadablePicture> mrvLoadPictures(const QString &folder, bool drop,
                                              MRVManuscript *manuscript);
