#include "publish/mrvoutputfiles.h"

#include "util/mrvfailure.h"
#include "util/mrvlocalfile.h"

#include <QSet>

bool MRVOutputFiles::areDistinct(const QStringList &outputs, QString *error)
{
    QSet<QString> known;
    for (const QString &output : outputs) {
        const QString name = MRV::fileIdentity(output);
        if (known.contains(name)) {
            return MRV::fail(error, output, tr("two inputs would be written to this file"));
        }
        known.insert(name);
    }
    return true;
}

bool MRVOutputFiles::spareInputs(const QStringList &outputs, const QStringList &inputs,
                                 QString *error)
{
    QSet<QString> spared;
    for (const QString &input : inputs) {
        spared.insert(MRV::fileIdentity(input));
    }
    for (const QString &output : outputs) {
        if (spared.contains(MRV::fileIdentity(output))) {
            return MRV::fail(error, output, tr("the output would replace an input"));
        }
    }
    return true;
}
