#include "core/mrvcoreutil.h"
#include "core/mtranslator.h"
#include "gui/mrvguiutil.h"
#include "network/mrvnetwork.h"
#include "shortcuts/mrvshortcut.h"
#include "util/mrvmimetypes.h"

#include <QCoreApplication>
#include <QTextStream>

/// Prints a line from each library, and two that need the library's resource files.
int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    out << "core " << MRVCoreUtil::convertCompileStringDate("Oct  8 2015").toString(Qt::ISODate)
        << '\n';
    out << "gui " << MRVGuiUtil::textColorForBackground(Qt::black).name() << '\n';
    out << "network " << (MrvNetwork::isNetworkConnected() ? "up\n" : "down\n");
    out << "base " << QStringList(MRV::mimeTypeForSuffix("pdf").values()).join(' ') << '\n';
    MTranslator::install("de");
    out << "text " << MRVShortcut::tr("File") << '\n';
    return 0;
}
