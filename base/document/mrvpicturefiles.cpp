#include "document/mrvpicturefiles.h"

#include "core/mrvcoreutil.h"

#include <QFileInfo>

QString MRVPictureFiles::write(const QString &wanted, const QByteArray &bytes, MRVErrorSink error)
{
    MRVNumberedFiles::Rules rules;
    rules.holder = [this](const QString &path) {
        const QFileInfo file(path);
        const bool isThere = file.exists() || file.isSymLink();
        return m_taken.contains(path) ? QStringLiteral("") : isThere ? path : QString();
    };
    rules.digest = [&bytes] { return MRVNumberedFiles::digestOf(bytes); };
    // Digests find files that may be equal. A picture that wanted another name may have taken one.
    rules.mayUse = [this, &bytes](const QString &path) {
        return !m_taken.contains(path) && MRVCoreUtil::ReadBinaryFile(path) == bytes;
    };
    const MRVNumberedFiles::Place place = m_numbered.find(wanted, rules);
    if (place.isFree) {
        return replace(place.path, bytes, error) ? place.path : QString();
    }
    m_taken.insert(place.path);
    return place.path;
}

bool MRVPictureFiles::replace(const QString &path, const QByteArray &bytes, MRVErrorSink error)
{
    m_taken.insert(path);
    if (!m_batch.add(path, bytes, error)) {
        return false;
    }
    m_created.append(path);
    return true;
}

QMap<QString, MRVError> MRVPictureFiles::commit()
{
    const QMap<QString, MRVError> failed = m_batch.commit();
    for (auto it = failed.cbegin(); it != failed.cend(); ++it) {
        m_created.removeOne(it.key());
    }
    return failed;
}
