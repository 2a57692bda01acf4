#pragma once

#include <QFile>

/**
 * Opens a downloaded file for reading, where anybody may have put something else in its place: a
 * symbolic link is not followed, and what is no regular file, or belongs to another user than this
 * one or the superuser, is refused.
 *
 * @param file must be closed. It loses its name, as a file that is opened by a descriptor does.
 * @param mode added to QIODevice::ReadOnly.
 */
bool mrvOpenPlain(QFile *file, const QString &path, QIODevice::OpenMode mode = QIODevice::NotOpen);

/** Lets its owner run a file, which is opened as by mrvOpenPlain(). False where that fails. */
bool mrvMakeExecutable(const QString &path);
