#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QVariant>

class QDataStream;

/**
 * Checks variants and text formats before Qt reads them from a stream.
 *
 * Qt's operators trust every type, count and length: a few wrong bytes make them crash, reserve
 * gigabytes or recurse without end. The guard walks over one value by a table of the types that its
 * form may hold, and gives its bytes, which Qt can then read safely.
 *
 * @code
 * const QByteArray stored; // from a file or another program
 * QDataStream stream(stored);
 * const QByteArray bytes = MRVVariantGuard::take(stream, MRVVariantGuard::CharFormat);
 * QDataStream checked(bytes);
 * checked.setVersion(stream.version());
 * QTextCharFormat format;
 * checked >> format; // a bad status where the bytes are empty
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVVariantGuard
{
public:
    MRVVariantGuard() = delete;

    /** What is expected in the stream, and thereby which types it may hold. */
    enum Form {
        SettingsValue, ///< a QVariant that QSettings stores under "@Variant"; stream version Qt_4_0
        SettingsDate, ///< a QVariant that QSettings stores under "@DateTime"; Qt_5_6
        CharFormat, ///< a QTextFormat of type QTextFormat::CharFormat; Qt_5_15
        BlockFormat, ///< a QTextFormat of type QTextFormat::BlockFormat; Qt_5_15
        DropItem, ///< an MRVFernwickDropItem: a number, a text and a QVariant; Qt_5_15
    };

    /**
     * Takes one value off @p stream.
     *
     * Counts and lengths must fit the bytes that are there, lists and maps may be nested
     * MRVInputLimits::VariantDepth levels deep, enumerators must be known ones, and pictures are
     * decoded once, since Qt reads on in the middle of a damaged one. Time linear in the bytes.
     *
     * Of a drop item, pictures beyond MRVInputLimits::PictureMemory together are replaced by null
     * ones, since the other notes are worth keeping. A format with too many pictures fails. The
     * types in a drop item may have the numbers of a stream of Qt 4; those of Qt 5 are given.
     *
     * @param stream its byte order is used; its version does not count, as the form tells it.
     * @return the value's bytes; empty, with a bad status, where it is damaged: ReadPastEnd where
     * the bytes only end too early, else ReadCorruptData.
     */
    static QByteArray take(QDataStream &stream, Form form);

    /** What takeFormat() could not read. */
    struct Rest
    {
        quint32 properties = 0; ///< how many
        QByteArray bytes; ///< all of the stream from the first of them on
    };
    /**
     * As take(), for a format with nothing after it. Where a property is of a type that this
     * process does not know, the properties before it are taken, and the rest is kept: such a value
     * has no length, so nothing after it can be found.
     *
     * @param stream as for take().
     * @param form   CharFormat or BlockFormat.
     * @param rest   receives what is not taken; empty where all is.
     */
    static QByteArray takeFormat(QDataStream &stream, Form form, Rest *rest);

    /**
     * Makes formats hold values of an application's type, which its own stream operators read. They
     * get bytes from outside, so that they have to check counts and lengths, and to set the
     * stream's status where something is wrong.
     *
     * @param type from qRegisterMetaType(), with stream operators.
     */
    static void registerType(int type);

    /**
     * The @p value as it can be written in a form. Qt crashes when it writes a date whose time zone
     * this machine does not know, and a form other than those of settings holds no named zone: such
     * dates are given in UTC, as Qt converts them. In an unknown zone, Qt takes the date for one in
     * UTC. Also those in lists, maps and hashes, at any depth; all else is left as it is.
     */
    static QVariant storable(const QVariant &value, Form form);
};
