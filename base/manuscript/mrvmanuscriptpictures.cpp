#include "manuscript/mrvmanuscriptpictures_p.h"

#include "document/mtextdoc.h"
#include "manuscript/mrvmanuscript.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvlocalfile.h"

#include "gui/mrvpicturereader.h"

#include <QHash>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVector>

namespace {

// An image character, or several equal ones side by side.
struct ImageFragment
{
    int begin;
    int end;
    QTextImageFormat format;
};

QVector<ImageFragment> imageFragments(const QTextDocument &document)
{
    QVector<ImageFragment> fragments;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextImageFormat image = fragment.charFormat().toImageFormat();
            if (image.isValid()) {
                const int end = fragment.position() + fragment.length();
                fragments.append({fragment.position(), end, image});
            }
        }
    }
    return fragments;
}

// "//host/name" takes the scheme of the page's server.
QString withScheme(const QString &name)
{
    return name.startsWith(QLatin1String("//")) ? QLatin1String("https:") + name : name;
}

} // namespace

bool mrvLoadPictures(const QString &folder, MRVManuscript *manuscript, QString *unreadable,
                     QString *reason)
{
    QHash<QString, QString> paths; // by name: an ornament may be shown a thousand times
    QSet<QString> remote;
    QTextCursor cursor(manuscript->document.get());
    cursor.beginEditBlock();
    const QVector<ImageFragment> fragments = imageFragments(*manuscript->document);
    for (const ImageFragment &fragment : fragments) {
        const QString name = withScheme(fragment.format.name());
        QTextImageFormat format = fragment.format;
        format.setName(name);
        if (MRV::isElsewhere(name)) {
            if (QUrl(name).scheme() != QLatin1String("data")) {
                remote.insert(name);
            }
        } else {
            QString &path = paths[name];
            if (path.isEmpty()) {
                path = MRV::localFile(name, folder);
                if (MRVPictureReader::ofFile(path).read(reason).isNull()) {
                    *unreadable = name;
                    return false;
                }
                manuscript->pictures.append(path);
            }
            format.setName(path);
            format.setProperty(MRVTextFormat::ImageLinkProperty, path);
        }
        cursor.setPosition(fragment.begin);
        cursor.setPosition(fragment.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
    cursor.endEditBlock();
    manuscript->remotePictures = remote.size();
    MTextDoc::fixHtmlImageFormatsAndResourceIds(manuscript->document.get());
    MTextDoc::convertUniqueImageResources(manuscript->document.get());
    return true;
}
