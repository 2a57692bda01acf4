#include "textformat/mrvformatspread.h"

#include <QHash>
#include <QStringList>

namespace {

// Of these, each place may have its own.
constexpr int properties[] = {QTextFormat::AnchorHref, QTextFormat::AnchorName,
                              QTextFormat::ImageName,  QTextFormat::ImageAltText,
                              QTextFormat::ImageTitle, QTextFormat::TextToolTip};

// Qt's hash of a text is a checksum, whose bits go together as those of the texts do: only
// multiplying in between mixes them.
uint mixed(uint hash, const QString &text)
{
    hash = (hash ^ qHash(text)) * 0x9e3779b1U;
    return hash ^ (hash >> 15);
}

} // namespace

void MRVFormatSpread::update(QTextFormat *format)
{
    int texts = 0;
    bool hasList = false;
    uint hash = 0;
    for (const int property : properties) {
        const QVariant value = format->property(property);
        if (value.isValid()) {
            ++texts;
            hasList = hasList || value.userType() == QMetaType::QStringList;
            hash = mixed(hash, value.toStringList().join(QChar(QChar::Null)));
        }
    }
    if (hasList || texts > 1) {
        format->setProperty(Property, int(hash));
    } else {
        format->clearProperty(Property);
    }
}
