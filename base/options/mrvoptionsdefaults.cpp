#include "options/mrvoptionstables_p.h"

#include "core/mcoretype.h"
#include "core/mtranslator.h"
#include "fileformats/mrvenginetables.h"
#include "gui/mrvguiutil.h"
#include "presets/mrvtextpresetscheme.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvunit.h"

#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTextCodec>

namespace {

// The application's folder in the user's data, whatever the running program is called: the tool
// must report the application's folders, not its own.
QString dataFolder(QLatin1String name)
{
    QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (base.isEmpty()) {
        base = QDir::homePath();
    }
    return QStringLiteral("%1/%2/%3/%4")
        .arg(base, MRVOptions::companyName(), MRVOptions::applicationName(), name);
}

bool isMetric()
{
    return QLocale::system().measurementSystem() == QLocale::MetricSystem;
}

} // namespace

QString MRVOptions::defaultBackupPath()
{
    return dataFolder(QLatin1String("Backups"));
}

QStringList MRVOptions::guiLanguages()
{
    return MTranslator::morvaneGuiLanguages();
}

QString MRVOptions::systemGuiLanguageCode()
{
    return MTranslator::systemGuiLanguageCode();
}

QString MRVOptions::defaultGuiLanguageCode()
{
    const QStringList shipped = guiLanguages();
    const QString code = systemGuiLanguageCode();
    for (const QString &language : {code, code.section(u'_', 0, 0)}) {
        if (shipped.contains(language)) {
            return language;
        }
    }
    return QStringLiteral("en");
}

namespace MRVOptionsTables {

QString defaultTemplatesPath()
{
    return dataFolder(QLatin1String("Templates"));
}

QString defaultScratchPadPath()
{
    return dataFolder(QLatin1String("ScratchPad"));
}

QString systemLocaleName()
{
    const QLocale locale = QLocale::system();
    // No dictionary exists for the language "C".
    return locale.language() == QLocale::C ? QStringLiteral("en_US") : locale.name();
}

QString systemMeasure()
{
    return isMetric() ? QStringLiteral("cm") : QStringLiteral("in");
}

QString systemSnap()
{
    return isMetric() ? QStringLiteral("0.25cm") : QStringLiteral("0.125in");
}

QByteArray noBytes()
{
    return QByteArray();
}

QByteArray defaultShortcutScheme()
{
    return MCoreType::toByteArray(MRVShortcutScheme::morvane());
}

QByteArray defaultTextPresets()
{
    return MRVTextPresetScheme::toByteArray(MRVTextPresetScheme::defaultScheme());
}

QByteArray defaultUrlImportType()
{
    return MRVImportExport::toByteArray(
        MRVImportExport::defaultUrlImportType(MRVImportExport::AllowAll));
}

QByteArray defaultCodec()
{
    return QByteArrayLiteral("UTF-8");
}

QByteArray defaultImportEngines()
{
    using namespace MRVEngineTables;
    return MRVEngineTables::toByteArray(defaultEngines(Import, Applications()));
}

QByteArray defaultExportEngines()
{
    using namespace MRVEngineTables;
    Applications applications;
    applications.kindleConverter = MRVOptions::hasKindleConverter();
    return MRVEngineTables::toByteArray(defaultEngines(Export, applications));
}

bool isMeasure(const QString &text)
{
    if (text.isEmpty()) {
        return true; // no step
    }
    QString pattern;
    int decimals = 0;
    double value = 0;
    double points = 0;
    MRVUnit::Unit unit = MRVUnit::None;
    return MRVUnit::parseMeasure(text, pattern, decimals, value, points, unit) && qIsFinite(value)
        && value >= 0;
}

bool isLocaleName(const QString &text)
{
    return QLocale(text).language() != QLocale::C;
}

bool isShortcutScheme(const QByteArray &bytes)
{
    QString error;
    return MRVShortcutScheme::fromByteArray(bytes, &error).isValid() && error.isEmpty();
}

bool isPresetScheme(const QByteArray &bytes)
{
    QString error;
    MRVTextPresetScheme::fromByteArray(bytes, &error);
    return error.isEmpty();
}

bool isPicture(const QByteArray &bytes)
{
    return !MRVGuiUtil::toImage(bytes).isNull();
}

bool isAutoReplaceList(const QByteArray &bytes)
{
    QString reason;
    MRVAutoReplaceList().fromByteArray(bytes, &reason);
    return reason.isEmpty();
}

bool isUrlImportType(const QByteArray &bytes)
{
    const MRVImportExport::UrlImportType type = MRVImportExport::toUrlImportType(bytes);
    return type != MRVImportExport::ImportUndefined || bytes == MRVImportExport::toByteArray(type);
}

bool isCodec(const QByteArray &bytes)
{
    return QTextCodec::codecForName(bytes);
}

bool isEngineMap(const QByteArray &bytes)
{
    return !MRVEngineTables::toFormatEngines(bytes).isEmpty();
}

QFont systemFont(int percent)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        return QFont();
    }
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    // A desktop may define its font in pixels.
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(qRound(font.pointSizeF() * percent / 50) / 2.0);
    } else {
        font.setPixelSize(qMax(1, font.pixelSize() * percent / 100));
    }
    return font;
}

QTextCharFormat defaultCharFormat()
{
    // Single properties: QTextCharFormat::setFont() sets twenty, and such a format equals no stored
    // one.
    QTextCharFormat format;
    format.setFontFamily(systemFont(100).family());
    format.setFontPointSize(12);
    return format;
}

QTextBlockFormat defaultBlockFormat()
{
    QTextBlockFormat format;
    format.setProperty(MRVTextFormat::BlockSpacing, 14.4); // 1.2 lines
    format.setProperty(MRVTextFormat::BlockBaseSpacing, 12.0);
    format.setBottomMargin(6);
    return format;
}

} // namespace MRVOptionsTables
