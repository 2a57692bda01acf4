#include "document/mrvnumberedfiles.h"

#include "core/mrvcoreutil.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace {

// Guards against accident rather than forgery, at a fifth of the time that SHA-256 takes.
constexpr QCryptographicHash::Algorithm Digest = QCryptographicHash::Sha1;

} // namespace

MRVNumberedFiles::Place MRVNumberedFiles::find(const QString &wanted, const Rules &rules)
{
    Name &name = m_names[wanted];
    QByteArray digest;
    for (;;) {
        if (digest.isNull() && !name.held.isEmpty()) {
            digest = rules.digest();
        }
        while (name.held.contains(digest)) {
            const QString path = name.held.value(digest);
            if (rules.mayUse(path)) {
                return {path, false};
            }
            name.held.remove(digest, path);
        }
        const QString path = MRVCoreUtil::NumberedFileName(wanted, name.next);
        const QString holder = rules.holder(path);
        if (holder.isNull()) {
            return {path, true};
        }
        ++name.next;
        const QByteArray held = holder.isEmpty() ? QByteArray() : digestOf(holder);
        if (!held.isEmpty()) {
            name.held.insert(held, path);
        }
    }
}

QByteArray MRVNumberedFiles::digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, Digest);
}

QByteArray MRVNumberedFiles::digestOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(Digest);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) && hash.addData(&file)
        ? hash.result()
        : QByteArray();
}
