#if defined(ONLY_MrvCore)
#include "core/mtranslator.h"
#elif defined(ONLY_MrvGui)
#include "gui/mrvguiutil.h"
#elif defined(ONLY_MrvNetwork)
#include "network/mrvnetwork.h"
#endif

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
#if defined(ONLY_MrvCore)
    std::puts(qPrintable(MTranslator::morvaneGuiLanguages().join(u' ')));
    return !MTranslator::install(QStringLiteral("en"));
#elif defined(ONLY_MrvGui)
    return MRVGuiUtil::readImageFormats().isEmpty();
#elif defined(ONLY_MrvNetwork)
    MrvNetwork::isNetworkConnected();
    return 0;
#endif
}
