#include "settings/mrvsettings.h"

#include "core/mcoretype.h"
#include "gui/mrvguiutil.h"
#include "input/mrvvariantguard.h"
#include "settings/mrvsettingsstorage_p.h"
#include "settings/mrvsettingsvalue.h"
#include "textformat/mrvtextformat.h"

#include <QDataStream>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTimerEvent>

#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcSettings, "mrv.settings")

constexpr auto FontHinting = MRVSettings::FlagSetting(12);

constexpr char PictureFormat[] = "JPG";
constexpr int PictureQuality = 50;

// A stored font is never empty, unless somebody emptied it.
bool isEmpty(const QVariant &value)
{
    return !value.isValid()
        || (value.userType() == QMetaType::QString && value.toString().isEmpty());
}

int toInt(const QVariant &value, bool *ok)
{
    *ok = value.isValid();
    if (!*ok) {
        return 0;
    }
    if (value.userType() == QMetaType::Int) {
        return value.toInt();
    }
    // Not toInt(), which takes only the lower half of a larger number.
    const qlonglong number = value.toLongLong(ok);
    *ok = *ok && number == int(number);
    return int(number);
}

template<typename Format>
bool readFormat(const QByteArray &bytes, Format *format)
{
    QDataStream stream(bytes);
    stream.setVersion(MCoreType::StreamVersion);
    return MRVTextFormat::read(stream, format);
}

// QSettings takes a description without quotation marks for a list, because of its commas.
QString fontDescription(const QVariant &value)
{
    return value.toStringList().join(QLatin1Char(','));
}

QList<int> toIntList(const QString &text)
{
    static const QRegularExpression blank(QStringLiteral("\\s"));
    QList<int> numbers;
    const QStringList parts = text.split(blank, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        numbers.append(part.toInt());
    }
    return numbers;
}

QString toText(const QList<int> &numbers)
{
    QStringList parts;
    for (int number : numbers) {
        parts.append(QString::number(number));
    }
    return parts.join(QLatin1Char(' '));
}

} // namespace

// The subclass defines the default of a setting and where it is stored.

bool MRVSettings::defaultValue(FlagSetting) const
{
    return false;
}

int MRVSettings::defaultValue(IntSetting) const
{
    return 0;
}

qreal MRVSettings::defaultValue(RealSetting) const
{
    return 0.0;
}

QString MRVSettings::defaultValue(StringSetting) const
{
    return QString();
}

QStringList MRVSettings::defaultValue(StringListSetting) const
{
    return QStringList();
}

QColor MRVSettings::defaultValue(ColorSetting) const
{
    return QColor();
}

QDateTime MRVSettings::defaultValue(DateTimeSetting) const
{
    return QDateTime();
}

QFont MRVSettings::defaultValue(FontSetting) const
{
    return QFont();
}

QList<int> MRVSettings::defaultValue(IntListSetting) const
{
    return QList<int>();
}

QByteArray MRVSettings::defaultValue(ByteArraySetting) const
{
    return QByteArray();
}

QTextCharFormat MRVSettings::defaultValue(TextCharFormat) const
{
    return QTextCharFormat();
}

QTextBlockFormat MRVSettings::defaultValue(TextBlockFormat) const
{
    return QTextBlockFormat();
}

QString MRVSettings::keyText(FlagSetting) const
{
    return QString();
}

QString MRVSettings::keyText(IntSetting) const
{
    return QString();
}

QString MRVSettings::keyText(RealSetting) const
{
    return QString();
}

QString MRVSettings::keyText(StringSetting) const
{
    return QString();
}

QString MRVSettings::keyText(StringListSetting) const
{
    return QString();
}

QString MRVSettings::keyText(ColorSetting) const
{
    return QString();
}

QString MRVSettings::keyText(DateTimeSetting) const
{
    return QString();
}

QString MRVSettings::keyText(FontSetting) const
{
    return QString();
}

QString MRVSettings::keyText(TextCharFormat) const
{
    return QString();
}

QString MRVSettings::keyText(TextBlockFormat) const
{
    return QString();
}

QString MRVSettings::keyText(IntListSetting) const
{
    return QString();
}

QString MRVSettings::keyText(ByteArraySetting) const
{
    return QString();
}

void MRVSettings::setGroup(const QString &group)
{
    while (!QSettings::group().isEmpty()) {
        endGroup();
    }
    if (!group.isEmpty()) {
        beginGroup(group);
    }
    // As QSettings writes it, without slashes at either end.
    m_group = QSettings::group();
}

bool MRVSettings::value(FlagSetting setting) const
{
    bool ok = false;
    const bool flag = mrvToFlag(stored(keyText(setting)), &ok);
    return ok ? flag : defaultValue(setting);
}

int MRVSettings::value(IntSetting setting) const
{
    bool ok = false;
    const int number = toInt(stored(keyText(setting)), &ok);
    return ok ? number : defaultValue(setting);
}

qreal MRVSettings::value(RealSetting setting) const
{
    bool ok = false;
    const qreal number = stored(keyText(setting)).toReal(&ok);
    return ok && qIsFinite(number) ? number : defaultValue(setting);
}

QString MRVSettings::value(StringSetting setting) const
{
    const QVariant value = stored(keyText(setting));
    return value.isValid() ? mrvToText(value) : defaultValue(setting);
}

QStringList MRVSettings::value(StringListSetting setting) const
{
    const QString key = keyText(setting);
    const QVariant value = stored(key);
    // A file returns an empty list as an invalid value under an existing key.
    const bool isMissing = !value.isValid() && (key.isEmpty() || !contains(key));
    return isMissing ? defaultValue(setting) : value.toStringList();
}

QColor MRVSettings::value(ColorSetting setting) const
{
    const QVariant value = stored(keyText(setting));
    const QColor color = value.value<QColor>();
    // An invalid colour may have been set, but a text that names no colour has not.
    return color.isValid() || value.userType() == QMetaType::QColor ? color : defaultValue(setting);
}

QDateTime MRVSettings::value(DateTimeSetting setting) const
{
    const QVariant value = stored(keyText(setting));
    const QDateTime time = value.toDateTime();
    return time.isValid() || value.userType() == QMetaType::QDateTime ? time
                                                                      : defaultValue(setting);
}

QFont MRVSettings::value(FontSetting setting) const
{
    const QVariant value = stored(keyText(setting));
    QFont font;
    return !isEmpty(value) && font.fromString(fontDescription(value)) ? font
                                                                      : defaultValue(setting);
}

QList<int> MRVSettings::value(IntListSetting setting) const
{
    const QVariant value = stored(keyText(setting));
    return value.isValid() ? toIntList(value.toString()) : defaultValue(setting);
}

QByteArray MRVSettings::value(ByteArraySetting setting) const
{
    const QVariant value = stored(keyText(setting));
    return value.isValid() && !mrvIsList(value) ? value.toByteArray() : defaultValue(setting);
}

QTextCharFormat MRVSettings::value(TextCharFormat setting) const
{
    return textCharFormat(keyText(setting), defaultValue(setting));
}

QTextBlockFormat MRVSettings::value(TextBlockFormat setting) const
{
    return textBlockFormat(keyText(setting), defaultValue(setting));
}

bool MRVSettings::setValue(const QString &key, const QVariant &value)
{
    if (key.isEmpty()) {
        return false;
    }
    if (!mrvCanBeStored(value)) {
        qCWarning(lcSettings, "%s: values of the type %s cannot be stored", qPrintable(key),
                  value.typeName());
        return false;
    }
    const bool isDate = value.userType() == QMetaType::QDateTime;
    QSettings::setValue(
        key, isDate ? MRVVariantGuard::storable(value, MRVVariantGuard::SettingsDate) : value);
    recordChange(key);
    if (m_storage->isShared()) {
        m_storage->announce({inFile(key)}, this);
    }
    return status() == NoError;
}

bool MRVSettings::setValue(FlagSetting setting, bool value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(IntSetting setting, int value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(RealSetting setting, qreal value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(StringSetting setting, const QString &value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(StringListSetting setting, const QStringList &value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(ColorSetting setting, const QColor &value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(DateTimeSetting setting, const QDateTime &value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(FontSetting setting, const QFont &value)
{
    return setValue(keyText(setting), value.toString());
}

bool MRVSettings::setValue(IntListSetting setting, const QList<int> &value)
{
    return setValue(keyText(setting), toText(value));
}

bool MRVSettings::setValue(ByteArraySetting setting, const QByteArray &value)
{
    return setValue(keyText(setting), value);
}

bool MRVSettings::setValue(TextCharFormat setting, const QTextCharFormat &value)
{
    return setValue(keyText(setting), toByteArray(value));
}

bool MRVSettings::setValue(TextBlockFormat setting, const QTextBlockFormat &value)
{
    return setValue(keyText(setting), toByteArray(value));
}

void MRVSettings::remove(const QString &key)
{
    const QStringList removed = m_storage->isShared()
        ? m_storage->keysOf(key.isEmpty() ? group() : inFile(key))
        : QStringList();
    QSettings::remove(key);
    recordChange(key);
    m_storage->announce(removed, this);
}

void MRVSettings::resetToDefaults()
{
    remove(QString());
    Q_EMIT settingsReset();
}

QTextCharFormat MRVSettings::textCharFormat(const QString &key, const QTextCharFormat &def) const
{
    QTextCharFormat format;
    return readFormat(stored(key).toByteArray(), &format) ? applyFontHinting(format) : def;
}

QTextBlockFormat MRVSettings::textBlockFormat(const QString &key, const QTextBlockFormat &def) const
{
    QTextBlockFormat format;
    return readFormat(stored(key).toByteArray(), &format) ? format : def;
}

QTextCharFormat MRVSettings::applyFontHinting(const QTextCharFormat &format) const
{
    return MRVTextFormat::setFontHinting(format, value(FontHinting));
}

MRVShortcutScheme MRVSettings::shortcutScheme(const QString &key,
                                              const MRVShortcutScheme &def) const
{
    const auto scheme = MRVShortcutScheme::fromByteArray(stored(key).toByteArray());
    if (scheme.isValid()) {
        return scheme;
    }
    return def.isValid() ? def : MRVShortcutScheme::morvane();
}

bool MRVSettings::setShortcutScheme(const QString &key, const MRVShortcutScheme &scheme)
{
    return setValue(key, MRVShortcutScheme::toByteArray(scheme));
}

MRVTextPresetScheme MRVSettings::textPresets(const QString &key,
                                             const MRVTextPresetScheme &def) const
{
    const QByteArray bytes = stored(key).toByteArray();
    QString error;
    const MRVTextPresetScheme scheme = MRVTextPresetScheme::fromByteArray(bytes, &error);
    const bool isDamaged = !error.isEmpty();
    return bytes.isEmpty() || (isDamaged && scheme.isEmpty()) ? def : scheme;
}

bool MRVSettings::setTextPresets(const QString &key, const MRVTextPresetScheme &scheme)
{
    return setValue(key, MRVTextPresetScheme::toByteArray(scheme));
}

QByteArray MRVSettings::toByteArray(const QTextCharFormat &format)
{
    return MRVTextFormat::toByteArray(format);
}

QByteArray MRVSettings::toByteArray(const QTextBlockFormat &format)
{
    return MRVTextFormat::toByteArray(format);
}

QTextCharFormat MRVSettings::toTextCharFormat(const QByteArray &bytes)
{
    return MRVTextFormat::toCharFormat(bytes);
}

QTextBlockFormat MRVSettings::toTextBlockFormat(const QByteArray &bytes)
{
    return MRVTextFormat::toBlockFormat(bytes);
}

QByteArray MRVSettings::toByteArray(const QImage &image)
{
    return MRVGuiUtil::toByteArray(image, PictureFormat, PictureQuality);
}

QImage MRVSettings::toImage(const QByteArray &bytes)
{
    return MRVGuiUtil::toImage(bytes, PictureFormat);
}

bool MRVSettings::isOpenGroup() const
{
    return m_group.isEmpty() || QSettings::group() == m_group;
}

void MRVSettings::recordChange(const QString &key)
{
    m_isDirty = true;
    const int slash = key.lastIndexOf(QLatin1Char('/'));
    if (slash <= 0 || key.at(0) == QLatin1Char('/') || signalsBlocked()) {
        return;
    }
    // Most changes are in a group that is listed already. Checking that here copies no text, while
    // asking QSettings for the open group does.
    const QStringRef group = key.leftRef(slash);
    const bool isListed = m_changedGroups.contains(group);
    if ((isListed && m_timerId != -1) || !isOpenGroup()) {
        return;
    }
    addChangedGroup(group);
}

void MRVSettings::recordForeignChanges(const QStringList &keys)
{
    if (signalsBlocked()) {
        return;
    }
    const int begin = m_group.isEmpty() ? 0 : m_group.size() + 1;
    for (const QString &key : keys) {
        const int slash = key.lastIndexOf(QLatin1Char('/'));
        const bool isInGroup = begin == 0 || key.startsWith(m_group + QLatin1Char('/'));
        if (isInGroup && slash > begin) {
            addChangedGroup(key.midRef(begin, slash - begin));
        }
    }
}

void MRVSettings::addChangedGroup(const QStringRef &group)
{
    if (!m_changedGroups.contains(group)) {
        m_changedGroups.append(group.toString());
    }
    if (m_timerId == -1) {
        const int id = startTimer(0);
        m_timerId = id == 0 ? -1 : id;
    }
}

void MRVSettings::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId) {
        QSettings::timerEvent(event);
        return;
    }
    killTimer(m_timerId);
    m_timerId = -1;
    // Changes that listeners make belong to the next announcement, so the list is cleared before
    // they are called.
    Q_EMIT groupsChanged(std::exchange(m_changedGroups, QStringList()));
}
