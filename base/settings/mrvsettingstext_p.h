#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

/** Values by their keys, which are those of the whole file: "Options/General/saveInterval". */
using MRVSettingsMap = QMap<QString, QVariant>;

/** What the bytes of a settings file say. */
struct MRVSettingsText
{
    MRVSettingsMap values;
    /** The texts of values that cannot be decoded safely and were left out, by key. */
    QMap<QString, QString> unreadable;
    /** A value that cannot be decoded safely, or a line that is no setting, was left out. */
    bool isDamaged = false;
    /** A line is neither a section, a setting nor a comment. */
    bool hasOtherLines = false;
    /** The first line that is no comment opens a section, as in all that a store writes. */
    bool beginsWithSection = true;
};

/**
 * Reads the INI form of QSettings. It is read here because QSettings decodes variants by Qt's
 * stream operators, which take as much memory as a damaged count asks for, or crash.
 * MRVVariantGuard checks each variant before it is decoded.
 *
 * Bytes beyond ASCII are Latin-1, or UTF-8 where the file begins with the mark of it. Of two lines
 * with one key, the later one counts. A date whose time zone is unknown here reads as UTC.
 */
MRVSettingsText mrvReadSettings(const QByteArray &bytes);

/** The same bytes that QSettings writes for these values, without the mark and in ASCII. */
QByteArray mrvWriteSettings(const MRVSettingsMap &values);

/** Whether two values are the same text in a file, as the number 5 and the text "5" are. */
bool mrvIsStoredAlike(const QVariant &a, const QVariant &b);

/** Whether mrvReadSettings() reads what mrvWriteSettings() writes for a value. */
bool mrvCanBeStored(const QVariant &value);
