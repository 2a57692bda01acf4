#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QString>

// Qt's own operators take up to two megabytes on the word of a length. These take what is there.

/** Appends so many bytes. False, with a bad status, where there are fewer. */
bool mrvReadRaw(QDataStream &stream, quint32 size, QByteArray *bytes);
/** The stream form of a QByteArray, as QUrl and the names of types have it, too. */
bool mrvReadBytes(QDataStream &stream, QByteArray *bytes);
/** The stream form of a QString. */
bool mrvReadString(QDataStream &stream, QString *text);
