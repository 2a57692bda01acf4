#include "core/mtranslator.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace {

QStringList translationFolders()
{
    QStringList folders{QStringLiteral(":/Other/Translations")};
    if (QCoreApplication::instance()) {
        folders << QCoreApplication::applicationDirPath()
                + QLatin1String("/../share/morvane/translations");
    }
    const QString named = qEnvironmentVariable("MORVANE_TRANSLATIONS");
    if (!named.isEmpty())
        folders << named;
    return folders;
}

bool isLanguageCode(const QString &code)
{
    const QLocale locale(code);
    return locale.language() != QLocale::C
        && (code == locale.name() || code == locale.name().section(QLatin1Char('_'), 0, 0));
}

} // namespace

QStringList MTranslator::morvaneGuiLanguages()
{
    static constexpr QLatin1String Prefix("mrvbase_");
    static constexpr QLatin1String Suffix(".qm");
    const QString english = QStringLiteral("en");
    QStringList languages;
    for (const QString &folder : translationFolders()) {
        const QStringList files =
            QDir(folder).entryList({Prefix + QLatin1Char('*') + Suffix}, QDir::Files);
        for (const QString &file : files) {
            const QString code =
                file.mid(Prefix.size(), file.size() - Prefix.size() - Suffix.size());
            if (code != english && isLanguageCode(code))
                languages << code;
        }
    }
    languages.sort();
    languages.removeDuplicates();
    languages.prepend(english);
    return languages;
}

QString MTranslator::systemGuiLanguageCode()
{
    const QString wanted = QLocale::system().uiLanguages().value(0);
    const QLocale locale(wanted);
    if (locale.language() == QLocale::C)
        return QStringLiteral("en");
    const QString name = locale.name();
    if (morvaneGuiLanguages().contains(name))
        return name;
    return name.section(QLatin1Char('_'), 0, 0);
}
