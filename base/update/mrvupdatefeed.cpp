#include "update/mrvupdatefeed.h"

#include "util/mrvfailure.h"

#include <QDomDocument>
#include <QTimeZone>

namespace {

constexpr int Sha256Size = 32;
constexpr int LargestRollout = 100;

// Of the first child of this name; null where it is missing.
QString textOf(const QDomElement &parent, const char *tag)
{
    const QDomElement element = parent.firstChildElement(QLatin1String(tag));
    return element.isNull() ? QString() : element.text().trimmed() + QLatin1String("");
}

// Readers of values: false when a text is none.

bool readSize(const QString &text, MRVUpdateOffer *offer)
{
    bool isNumber = false;
    offer->size = text.toLongLong(&isNumber);
    return isNumber && offer->size > 0;
}

bool readSha256(const QString &text, MRVUpdateOffer *offer)
{
    const QByteArray digits = text.toLatin1().toLower();
    offer->sha256 = QByteArray::fromHex(digits);
    return offer->sha256.size() == Sha256Size && offer->sha256.toHex() == digits;
}

bool readCritical(const QString &text, MRVUpdateOffer *offer)
{
    offer->isCritical = text == QLatin1String("true");
    return offer->isCritical || text == QLatin1String("false");
}

bool readRollout(const QString &text, MRVUpdateOffer *offer)
{
    bool isNumber = false;
    offer->rollout = text.toInt(&isNumber);
    return isNumber && offer->rollout >= 0 && offer->rollout <= LargestRollout;
}

struct Value
{
    const char *tag;
    bool (*read)(const QString &text, MRVUpdateOffer *offer);
};

constexpr Value values[] = {
    {"size", readSize},
    {"sha256", readSha256},
    {"critical", readCritical},
    {"rollout", readRollout},
};

// The tag of a value that is not valid; null for none.
const char *readValues(const QDomElement &element, MRVUpdateOffer *offer)
{
    for (const Value &value : values) {
        const QString text = textOf(element, value.tag);
        if (!text.isNull() && !value.read(text, offer)) {
            return value.tag;
        }
    }
    return nullptr;
}

const char *readChannel(const QDomElement &element, MRVUpdateOffer *offer)
{
    offer->channel = element.attribute(QStringLiteral("name")).trimmed();
    offer->version = textOf(element, "version");
    offer->fileName = textOf(element, "linuxfilename");
    offer->url = textOf(element, "url");
    const bool isWhole = !offer->channel.isEmpty() && !offer->version.isEmpty()
        && !offer->fileName.isEmpty() && !offer->url.isEmpty();
    return isWhole ? readValues(element, offer) : "channel";
}

const char *readExpires(const QString &text, QDateTime *expires)
{
    if (text.isNull()) {
        return nullptr;
    }
    const QDate day = QDate::fromString(text, Qt::ISODate);
    const bool isDay = day.isValid() && !text.contains(u'T');
    *expires = isDay ? QDateTime(day.addDays(1), QTime(0, 0), Qt::UTC)
                     : QDateTime::fromString(text, Qt::ISODate);
    if (expires->timeSpec() == Qt::LocalTime) {
        expires->setTimeSpec(Qt::UTC);
    }
    return expires->isValid() ? nullptr : "expires";
}

} // namespace

bool MRVUpdateFeed::read(const QDomDocument &document, const MRVUpdateOffer &main,
                         MRVUpdateFeed *feed, MRVErrorSink reason)
{
    const QDomElement root = document.documentElement();
    feed->offers = {main};
    feed->application = textOf(root, "application");
    const char *wrong = readValues(root, &feed->offers.first());
    if (!wrong) {
        wrong = readExpires(textOf(root, "expires"), &feed->expires);
    }
    const QString channel = QStringLiteral("channel");
    for (QDomElement element = root.firstChildElement(channel); !wrong && !element.isNull();
         element = element.nextSiblingElement(channel)) {
        feed->offers.append(MRVUpdateOffer());
        wrong = readChannel(element, &feed->offers.last());
    }
    return !wrong
        || MRV::fail(reason, MRVErrorKind::Damaged,
                     tr("its element \"%1\" is not valid").arg(QLatin1String(wrong)));
}

std::optional<int> MRVUpdateFeed::versionNumber(QString version)
{
    bool isNumber = false;
    const int number = version.remove(QLatin1String(".beta")).remove(u'.').toInt(&isNumber);
    return isNumber ? std::optional<int>(number) : std::nullopt;
}
