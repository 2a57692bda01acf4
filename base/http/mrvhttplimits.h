#pragma once

#include <QtGlobal>

/**
 * What servers may ask of those who fetch from them.
 *
 * @since 1.0
 */
struct MRVHttpLimits
{
    /** What the headers of the answers to one login may take, in bytes. */
    static constexpr qint64 HeaderBytes = 300 * 1024;
    /** How many lines of headers an answer may have: looking through them takes its time, too. */
    static constexpr int HeaderLines = 500;
    /** How many cookies an answer can set; further ones are ignored. */
    static constexpr int Cookies = 100;
    /** How often somebody is asked about the certificates of a server that changes them. */
    static constexpr int Certificates = 3;
    /** How often a request is sent again with another login. */
    static constexpr int Logins = 10;
    /** What may come, in bytes, before a login is accepted. */
    static constexpr qint64 UnreadBytes = 1024 * 1024;
};
