#pragma once

#include "network/mrvnetwork_export.h"

/**
 * The state of the machine's network.
 *
 * @since 1.0
 */
class MRVNETWORK_EXPORT MrvNetwork
{
public:
    MrvNetwork() = delete;

    /**
     * Whether a network interface other than the loopback is up and running and has an address that
     * reaches beyond its own link. Asks the system at each call, sends nothing, and so cannot tell
     * whether the Internet lies behind the network.
     */
    static bool isNetworkConnected();
};
