#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QVector>

#include <optional>

class QDomDocument;

/**
 * A version that an update feed offers.
 *
 * @since 1.0
 */
struct MRVUpdateOffer
{
    /** Whom it is offered to: the users of a channel; empty for everybody. */
    QString channel;
    QString version;
    /** The installer's name, and the address of its folder, which ends in "/". */
    QString fileName;
    QString url;
    /** Of the installer in bytes; -1 where the feed does not say. */
    qint64 size = -1;
    /** Of the installer, 32 bytes; empty where the feed does not say. */
    QByteArray sha256;
    bool isCritical = false;
    /** How many of a hundred users it is offered to. */
    int rollout = 100;
};

/**
 * What an update feed says.
 *
 * The root element's children, in any order, blanks around their texts trimmed; the first three
 * are needed, and may also lie deeper:
 *
 * | element | meaning |
 * |---|---|
 * | version | the version offered |
 * | linuxfilename | the installer's name |
 * | url | the address of its folder, which ends in "/" |
 * | size | bytes of the installer |
 * | sha256 | of the installer, in hexadecimal digits |
 * | critical | "true" or "false": whether users should not put it off |
 * | rollout | 0 to 100: how many of a hundred users it is offered to |
 * | expires | a date (the last day, in UTC) or an ISO date-time: the feed is not valid afterwards |
 * | application | the name of the application that it is for; a signed feed needs it |
 * | channel | with an attribute "name": the elements up to "rollout" again, for a channel |
 *
 * Channels come after the first three, which older versions of an application look for in the whole
 * document.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVUpdateFeed
{
    Q_DECLARE_TR_FUNCTIONS(MRVUpdateFeed)

public:
    /** The first is for everybody. */
    QVector<MRVUpdateOffer> offers;
    /** In UTC; not valid where the feed names no time. */
    QDateTime expires;
    /** Empty where the feed names none. */
    QString application;

    /**
     * Reads all that @p document has besides the three elements that every feed has.
     *
     * @param main   version, name and address of the offer for everybody; the rest is read.
     * @param reason receives what is wrong, as a translated end of a sentence; untouched on
     *               success. Must not be null.
     * @return false when a value is not valid, or a channel is not whole; @p feed is of no use
     *         then.
     */
    static bool read(const QDomDocument &document, const MRVUpdateOffer &main, MRVUpdateFeed *feed,
                     MRVErrorSink reason);

    /**
     * The digits of a version as one number, without its full stops and ".beta"; nothing when that
     * is no number of 32 bits. Deliberate: 2.9.0.1 is 2901 and 3.0 is 30, so that versions need the
     * same number of components.
     */
    static std::optional<int> versionNumber(QString version);
};
