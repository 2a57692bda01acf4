#include "epub/mrvepubmetadata.h"

#include "manuscript/mrvmanuscript.h"
#include "util/mrvfailure.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvpicturereader.h"

#include <QLocale>

namespace {

// Empty where the locale has none: a book in no known language is better than one in a wrong one.
QString localeLanguage()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QString() : locale.bcp47Name();
}

} // namespace

void MRVEPubMetadata::completeFrom(const MRVManuscript &manuscript)
{
    if (authors.isEmpty()) {
        authors = manuscript.authors;
    }
    if (description.isEmpty()) {
        description = manuscript.description;
    }
    if (language.isEmpty()) {
        language = manuscript.language.isEmpty() ? localeLanguage() : manuscript.language;
    }
}

bool MRVEPubMetadata::readCover(const QString &file, QString *error)
{
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(file);
    QString reason;
    if (MRVPictureReader::ofFile(file).read(&reason).isNull()) {
        return MRV::fail(error, file, tr("the cover picture cannot be read: %1").arg(reason));
    }
    cover = bytes;
    return true;
}
