#include "document/mrvpicturefiles.h"

#include "core/mrvcoreutil.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

// Finds files that may be equal, whose bytes are compared then.
constexpr QCryptographicHash::Algorithm Digest = QCryptographicHash::Sha1;

// Empty for what is no file, and for one that cannot be read.
QByteArray digestOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(Digest);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && hash.addData(&file)
        ? hash.result()
        : QByteArray();
}

} // namespace

// Looks at each number of a name once, whatever the count of pictures that want the name.
QString MRVPictureFiles::write(const QString &wanted, const QByteArray &bytes, QString *error)
{
    Numbered &numbered = m_numbered[wanted];
    const QByteArray digest = QCryptographicHash::hash(bytes, Digest);
    for (;;) {
        if (numbered.held.contains(digest)) {
            const QString path = numbered.held.take(digest);
            // A picture that wanted another name may have taken it.
            if (!m_taken.contains(path) && MRVCoreUtil::ReadBinaryFile(path) == bytes) {
                m_taken.insert(path);
                return path;
            }
            continue;
        }
        const QString path = MRVCoreUtil::NumberedFileName(wanted, numbered.next);
        ++numbered.next;
        const QFileInfo file(path);
        if (m_taken.contains(path)) {
            continue;
        }
        if (file.exists() || file.isSymLink()) {
            numbered.held.insert(digestOf(path), path);
            continue;
        }
        m_taken.insert(path);
        if (!MRVCoreUtil::WriteBinaryFile(bytes, path, error)) {
            return QString();
        }
        m_created.append(path);
        return path;
    }
}
