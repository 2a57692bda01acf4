#if defined(ONLY_MrvCore)
#include "core/mrvcoreutil.h"
#elif defined(ONLY_MrvGui)
#include "gui/mrvguiutil.h"
#elif defined(ONLY_MrvNetwork)
#include "network/mrvnetwork.h"
#endif

int main()
{
#if defined(ONLY_MrvCore)
    return MRVCoreUtil::wwwPattern().isEmpty();
#elif defined(ONLY_MrvGui)
    return MRVGuiUtil::readImageFormats().isEmpty();
#elif defined(ONLY_MrvNetwork)
    MrvNetwork::isNetworkConnected();
    return 0;
#endif
}
