// Reads and edits an XML document by paths; docs/paths.md explains these.
#include "dom/mrvdomdoc.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);

    MRVDomDoc config;
    if (!config.setContent(QStringLiteral("<config><engine id='rtf'><timeout>30</timeout></engine>"
                                          "<engine id='doc' off='yes'/></config>"))) {
        out << config.errorMessage() << " in line " << config.errorLine() << '\n';
        return 1;
    }

    int timeout = 0;
    if (config.get(&timeout, QStringLiteral("/config/engine@id=rtf/timeout"))) {
        out << "timeout: " << timeout << '\n';
    }
    const QDomElement off = config.find(QStringLiteral("engine@off"));
    out << "off: " << off.attribute(QStringLiteral("id")) << '\n';

    // The cursor goes from one engine to the next and ends where it began.
    for (bool more = config.cd(QStringLiteral("/config/engine")); more;
         more = config.cdNext(QStringLiteral("engine"))) {
        out << config.workElement(true) << '\n';
    }

    config.set(timeout * 2, QStringLiteral("/config/engine@id=rtf/timeout"));
    config.cdRoot();
    config.createPath(QStringLiteral("cache/folder"));
    config.set(QStringLiteral("/var/cache"));
    config.remove(QStringLiteral("/config/engine@id=doc"));
    out << config.document().toString(1);
    return 0;
}
