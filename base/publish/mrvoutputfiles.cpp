#include "publish/mrvoutputfiles.h"

#include "util/mrvfailure.h"
#include "util/mrvlocalfile.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

constexpr QLatin1String StandardStream("-");

}

QString MRVOutputFiles::fileFor(const QString &input, const QString &output,
                                const QString &standardName, const QString &suffix, bool isFolder)
{
    const bool standard = input == StandardStream;
    const QString name =
        (standard ? standardName : QFileInfo(input).completeBaseName()) + u'.' + suffix;
    if (output.isEmpty()) {
        return standard ? QString(StandardStream) : QFileInfo(input).dir().filePath(name);
    }
    if (output == StandardStream) {
        return output;
    }
    return isFolder || output.endsWith(u'/') || QFileInfo(output).isDir()
        ? QDir(output).filePath(name)
        : output;
}

bool MRVOutputFiles::areDistinct(const QStringList &outputs, MRVErrorSink error)
{
    QSet<QString> known;
    for (const QString &output : outputs) {
        const QString name = MRV::fileIdentity(output);
        if (output != StandardStream && known.contains(name)) {
            return MRV::fail(error, output,
                             {MRVErrorKind::Other, tr("two inputs would be written to this file")});
        }
        known.insert(name);
    }
    return true;
}

bool MRVOutputFiles::spareInputs(const QStringList &outputs, const QStringList &inputs,
                                 MRVErrorSink error)
{
    QSet<QString> spared;
    for (const QString &input : inputs) {
        if (!input.isEmpty() && input != StandardStream) {
            spared.insert(MRV::fileIdentity(input));
        }
    }
    for (const QString &output : outputs) {
        if (output != StandardStream && spared.contains(MRV::fileIdentity(output))) {
            return MRV::fail(error, output,
                             {MRVErrorKind::Other, tr("the output would replace an input")});
        }
    }
    return true;
}
