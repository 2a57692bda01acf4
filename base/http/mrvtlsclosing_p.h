#pragma once

#include <memory>

/**
 * Whether the other end of a TLS connection has said that it closes it. Without that message
 * somebody between may have cut the connection off, and libcurl takes both alike.
 */
class MrvTlsClosing
{
public:
    MrvTlsClosing() = delete;

    /** Watches the connections of a context, an SSL_CTX, as long as they live. */
    static void install(void *context);

    /**
     * What becomes true when the message comes, and outlives the connection.
     *
     * @param connection an SSL of such a context.
     */
    static std::shared_ptr<const bool> of(void *connection);
};
