#include "publish/mrvoutputfiles.h"

#include "util/mrvfailure.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace {

// A name that tells files apart, however their paths are written.
QString identity(const QString &file)
{
    const QString real = QFileInfo(file).canonicalFilePath();
    const QString folder = QFileInfo(QFileInfo(file).path()).canonicalFilePath();
    return !real.isEmpty()  ? real
        : !folder.isEmpty() ? QDir(folder).filePath(QFileInfo(file).fileName())
                            : QDir::cleanPath(QFileInfo(file).absoluteFilePath());
}

} // namespace

bool MRVOutputFiles::areDistinct(const QStringList &outputs, QString *error)
{
    QSet<QString> known;
    for (const QString &output : outputs) {
        const QString name = identity(output);
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
        spared.insert(identity(input));
    }
    for (const QString &output : outputs) {
        if (spared.contains(identity(output))) {
            return MRV::fail(error, output, tr("the output would replace an input"));
        }
    }
    return true;
}
