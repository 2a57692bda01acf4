#include "network/mrvnetwork.h"

#include <QNetworkInterface>

#include <algorithm>

namespace {

bool isUsable(const QNetworkAddressEntry &entry)
{
    // An interface has a link-local address even where no network answers.
    const QHostAddress address = entry.ip();
    return !address.isNull() && !address.isLoopback() && !address.isLinkLocal();
}

bool isConnected(const QNetworkInterface &interface)
{
    const QNetworkInterface::InterfaceFlags flags = interface.flags();
    if (!(flags & QNetworkInterface::IsUp) || !(flags & QNetworkInterface::IsRunning)
        || (flags & QNetworkInterface::IsLoopBack)) {
        return false;
    }
    const QList<QNetworkAddressEntry> entries = interface.addressEntries();
    return std::any_of(entries.cbegin(), entries.cend(), isUsable);
}

} // namespace

bool MrvNetwork::isNetworkConnected()
{
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    return std::any_of(interfaces.cbegin(), interfaces.cend(), isConnected);
}
