#pragma once

#include "manuscript/mrvmanuscript.h"

#include <QString>
#include <QVector>

class MRVProgressMeter;

/** What is done about the pictures of a document; what is not stays as it is. */
enum class MRVPictureAction {
    /**
     * An image of a file gets the file's URL as its name, and one that is part of the source the
     * name of a resource.
     */
    Rename = 1,
    Drop = 2, ///< alternative texts take the places of those that cannot be read
};
Q_DECLARE_FLAGS(MRVPictureActions, MRVPictureAction)

/**
 * Looks for the pictures that the document names, without decoding them. Lists their files in the
 * manuscript, and counts the pictures on other machines.
 *
 * @param folder where their names count from.
 * @param meter  its stage up to 1000 thousandths is this. Cancelled, pictures are left out.
 * @return those that cannot be read, each once, in order of appearance.
 */
QVector<MRVUnreadablePicture> mrvLoadPictures(const QString &folder, MRVPictureActions actions,
                                              MRVManuscript *manuscript, MRVProgressMeter *meter);
