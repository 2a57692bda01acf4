#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

class QDataStream;
class QDebug;

/**
 * An entry of a document's reference list: a titled link to a web address or to another item of the
 * project, never to both.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVReference
{
public:
    /** No title and no link. */
    MRVReference() = default;

    QString title;
    /** Set it through setUrl(), which ends an internal link. */
    QUrl url;
    /** The id of a project item; -1 for none. Set it through setInternalLink(). */
    qint32 internalLink = -1;

    /** Sets the web address and ends an internal link. */
    void setUrl(const QUrl &address);
    /** Sets the id of a project item and clears the web address. A negative @p id ends the link. */
    void setInternalLink(int id);

    /** qint32 count, then the entries as operator<<() writes them, in MCoreType::StreamVersion. */
    static QByteArray toByteArray(const QList<MRVReference> &references);
    /**
     * The inverse of toByteArray(); bytes after the list are ignored.
     *
     * @return an empty list for bytes that are empty, end too early, or count more entries than
     * they can hold.
     */
    static QList<MRVReference> toReferenceList(const QByteArray &bytes);

    bool operator==(const MRVReference &other) const
    {
        return title == other.title && url == other.url && internalLink == other.internalLink;
    }
    bool operator!=(const MRVReference &other) const { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(MRVReference, Q_MOVABLE_TYPE);

/** qint16 format version 1, QString title, QUrl url, qint32 internalLink. @since 1.0 */
MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream, const MRVReference &reference);
/**
 * Reads what operator<<() wrote, whatever the format version says. Where the bytes end too early,
 * the stream's status tells and @p reference is a default one. @since 1.0
 */
MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVReference &reference);

/**
 * Reference["title", link], where the link is the id of an internal one, else the address. @since
 * 1.0
 */
MRVBASE_EXPORT QDebug operator<<(QDebug debug, const MRVReference &reference);
