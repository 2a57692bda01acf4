#include "options/mrvoptionstables_p.h"

#include <QFileInfo>
#include <QGlobalStatic>

using namespace MRVOptionsTables;

namespace {

Q_GLOBAL_STATIC(MRVOptions, theOptions)

template<typename Setting>
QString keyOf(Setting setting)
{
    const auto *row = rowOf(setting);
    return row ? row->keyText() : QString();
}

} // namespace

MRVOptions::MRVOptions(QObject *parent)
    : MRVSettings(NativeFormat, UserScope, companyName(), applicationName(), parent)
{
    setGroup(QStringLiteral("Options"));
}

MRVOptions::MRVOptions(const QString &fileName, QObject *parent)
    : MRVSettings(fileName, IniFormat, parent)
{
    setGroup(QStringLiteral("Options"));
}

MRVOptions::~MRVOptions() = default;

MRVOptions *MRVOptions::instance()
{
    return theOptions();
}

MRVOptions *mrvOptions()
{
    return MRVOptions::instance();
}

QString MRVOptions::companyName()
{
    return QStringLiteral("Morvane");
}

QString MRVOptions::applicationName()
{
    return QStringLiteral("Morvane");
}

bool MRVOptions::hasKindleConverter()
{
    static const bool isThere = mrvOptions() && QFileInfo::exists(mrvOptions()->value(KindlePath));
    return isThere;
}

bool MRVOptions::defaultValue(FlagSetting setting) const
{
    const FlagRow *row = rowOf(setting);
    return row && row->value;
}

int MRVOptions::defaultValue(IntSetting setting) const
{
    const IntRow *row = rowOf(setting);
    return row ? row->value.value : 0;
}

qreal MRVOptions::defaultValue(RealSetting setting) const
{
    const RealRow *row = rowOf(setting);
    return row ? row->value.value : 0.0;
}

QString MRVOptions::defaultValue(StringSetting setting) const
{
    const StringRow *row = rowOf(setting);
    if (!row) {
        return QString();
    }
    return row->value.ask ? row->value.ask() : QString::fromUtf8(row->value.utf8);
}

QStringList MRVOptions::defaultValue(StringListSetting) const
{
    return QStringList();
}

QColor MRVOptions::defaultValue(ColorSetting setting) const
{
    const ColorRow *row = rowOf(setting);
    return row ? QColor(row->value.color) : QColor();
}

QDateTime MRVOptions::defaultValue(DateTimeSetting) const
{
    return QDateTime();
}

QFont MRVOptions::defaultValue(FontSetting setting) const
{
    const FontRow *row = rowOf(setting);
    if (!row) {
        return QFont();
    }
    QFont font = systemFont(row->value.percent);
    if (row->value.bold) {
        font.setBold(true);
    }
    return font;
}

QList<int> MRVOptions::defaultValue(IntListSetting) const
{
    return QList<int>();
}

QByteArray MRVOptions::defaultValue(ByteArraySetting setting) const
{
    const ByteArrayRow *row = rowOf(setting);
    return row ? row->value.make() : QByteArray();
}

QTextCharFormat MRVOptions::defaultValue(TextCharFormat setting) const
{
    const CharFormatRow *row = rowOf(setting);
    return row ? row->value() : QTextCharFormat();
}

QTextBlockFormat MRVOptions::defaultValue(TextBlockFormat setting) const
{
    const BlockFormatRow *row = rowOf(setting);
    return row ? row->value() : QTextBlockFormat();
}

int MRVOptions::value(IntSetting setting) const
{
    const IntRow *row = rowOf(setting);
    const int number = MRVSettings::value(setting);
    return row ? qBound(int(row->value.least), number, int(row->value.most)) : number;
}

qreal MRVOptions::value(RealSetting setting) const
{
    const RealRow *row = rowOf(setting);
    const qreal number = MRVSettings::value(setting);
    return row ? qBound(row->value.least, number, row->value.most) : number;
}

QColor MRVOptions::value(ColorSetting setting) const
{
    const ColorRow *row = rowOf(setting);
    const QColor color = MRVSettings::value(setting);
    const bool isInvisible = color.isValid() && color.alpha() == 0;
    return row && row->value.isRead && isInvisible ? defaultValue(setting) : color;
}

// clang-format off
QString MRVOptions::keyText(FlagSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(IntSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(RealSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(StringSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(StringListSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(ColorSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(DateTimeSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(FontSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(TextCharFormat setting) const { return keyOf(setting); }
QString MRVOptions::keyText(TextBlockFormat setting) const { return keyOf(setting); }
QString MRVOptions::keyText(IntListSetting setting) const { return keyOf(setting); }
QString MRVOptions::keyText(ByteArraySetting setting) const { return keyOf(setting); }
// clang-format on
