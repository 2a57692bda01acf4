#include "epub/mrvepubbook_p.h"
#include "epub/mrvepubmarkup_p.h"
#include "util/mrvlocalfile.h"

#include <QDir>
#include <QFileInfo>

QString MRVEPubBook::linkedFile(const QString &address, const QString &path)
{
    const QString file = address.left(address.indexOf(u'#'));
    if (file.isEmpty() || MRV::isElsewhere(file)) {
        return QString();
    }
    const QString folder = path.isEmpty() ? QDir::currentPath() : QFileInfo(path).path();
    return MRV::fileIdentity(MRV::localFile(file, folder));
}

void MRVEPubBook::addPlate(const QString &address, const QString &text, const QString &path)
{
    const QString file = linkedFile(address, path);
    QString folder =
        path.isEmpty() ? MRV::fileIdentity(QDir::currentPath()) : QFileInfo(path).path();
    folder += folder.endsWith(u'/') ? QString() : QStringLiteral("/");
    // A page must not make a book of what lies elsewhere on the machine.
    if (!file.startsWith(folder) || plates.contains(file)) {
        return;
    }
    const MRVDocumentPicture picture = MRVDocumentPicture::fromFile(file);
    if (picture.type() == MRVDocumentPicture::None) {
        return;
    }
    const QString name = picture.name();
    if (text.isEmpty() && !picturesWithoutText.contains(name)) {
        picturesWithoutText.append(name);
    }
    const bool isEPub3 = version == MRVEPubVersion::EPub3;
    MRVEPubPage page;
    page.fileName = QStringLiteral("plate-%1.xhtml").arg(platePages.size() + 1, 3, 10, QChar(u'0'));
    page.title = text.isEmpty() ? QFileInfo(name).completeBaseName() : text;
    page.body = (isEPub3 ? "<figure>" : "<div class=\"figure\">")
        + ("<img src=\"" + mrvEPubValue(addPicture(picture, name)) + "\" alt=\""
           + mrvEPubValue(text) + "\" />")
        + (isEPub3 ? "</figure>\n" : "</div>\n");
    platePages.append(page);
    plates.insert(file, page.fileName);
}
