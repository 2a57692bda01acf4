#pragma once

#include "util/mrvbase_export.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

class QDataStream;
class QImage;

/**
 * One note dropped from or to the mind-mapping product: a label, and a text, a picture or a list as
 * its payload. What travels under "application/fernwick.notes.grouped" is an item whose list holds
 * the items of the group, each as toVariant() makes it.
 *
 * The meta type "MRVFernwickDropItem" and its stream operators are known to any program that
 * includes this header: see metaType().
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFernwickDropItem
{
public:
    /** An empty label and an invalid payload. */
    MRVFernwickDropItem() = default;
    /**
     * @name A label and a payload
     *
     * Whichever of a text and an image is given becomes the payload, a null one too. Neither the
     * label nor the text is changed: @p label and @p text may be empty.
     */
    //@{
    MRVFernwickDropItem(const QString &label, const QString &text);
    MRVFernwickDropItem(const QString &label, const QImage &image);
    //@}
    /** With an empty label. */
    explicit MRVFernwickDropItem(const QList<QVariant> &list);

    /** What the note is called; may be empty. */
    QString label() const { return m_label; }
    /** A QString, a QImage or a QVariantList; of items that were read or converted, any value. */
    QVariant payload() const { return m_payload; }

    /**
     * The number of the meta type "MRVFernwickDropItem", which the first call registers together
     * with the stream operators. That call is made while a program starts that includes this
     * header, as the receiver of a drop may read a stream of variants before it uses anything else
     * of the library.
     */
    static int metaType();

    /** A variant of the meta type "MRVFernwickDropItem" that holds a copy of the item. */
    QVariant toVariant() const;
    /**
     * The item that @p variant holds. Any other value becomes the payload of an item without a
     * label: a list as well as a text or a picture, so that nothing of what was dropped is lost.
     */
    static MRVFernwickDropItem fromVariant(const QVariant &variant);
    /** One item for each entry, in order. */
    static QList<MRVFernwickDropItem> fromVariant(const QList<QVariant> &list);

    /** Pictures are equal when their sizes, formats and pixels are. */
    bool operator==(const MRVFernwickDropItem &other) const
    {
        return m_label == other.m_label && m_payload == other.m_payload;
    }
    bool operator!=(const MRVFernwickDropItem &other) const { return !(*this == other); }

private:
    friend class DropItemStream;

    QString m_label;
    QVariant m_payload;
};
Q_DECLARE_METATYPE(MRVFernwickDropItem)

#ifndef MRVBASE_BUILD // loading the library itself runs no code
inline const int mrvDropItemType = MRVFernwickDropItem::metaType();
#endif

/**
 * qint32 format version 1, QString label, QVariant payload, in MCoreType::StreamVersion. Nothing is
 * written, and the stream's status is WriteFailed, where the payload holds what could not be read
 * again.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream, const MRVFernwickDropItem &item);
/**
 * Reads what operator<<() wrote, whatever the format version says; also items in lists that a
 * program of Qt 4 has written.
 *
 * Any bytes may be given. Payloads may hold texts, pictures, colours, numbers, booleans, points,
 * sizes, rectangles, UUIDs, times without a named zone, byte arrays, addresses, items, and lists
 * and maps of them, 32 levels deep. Where they hold anything else or end too early, the stream's
 * status tells and @p item is a default one. Pictures beyond 512 MiB together, when decoded, are
 * null. A picture may come in another format than it had, as PNG knows fewer.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVFernwickDropItem &item);
