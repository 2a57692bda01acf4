#include "core/mtranslator.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

constexpr QLatin1String Prefix("mrvbase_");
constexpr QLatin1String Suffix(".qm");

// The folder that the environment names comes first: whoever sets it wants to see its content.
QStringList translationFolders()
{
    QStringList folders;
    const QString named = qEnvironmentVariable("MORVANE_TRANSLATIONS");
    if (!named.isEmpty()) {
        folders << named;
    }
    folders << QStringLiteral(":/Other/Translations");
    if (QCoreApplication::instance()) {
        folders << QCoreApplication::applicationDirPath()
                + QLatin1String("/../share/morvane/translations");
    }
    return folders;
}

bool isLanguageCode(const QString &code)
{
    const QLocale locale(code);
    return locale.language() != QLocale::C
        && (code == locale.name() || code == locale.name().section(QLatin1Char('_'), 0, 0));
}

// Empty where no file exists.
QString translationFile(const QString &code)
{
    const QString name = QLocale(code).name();
    const QString language = name.section(QLatin1Char('_'), 0, 0);
    for (const QString &wanted : {code, name, language}) {
        for (const QString &folder : translationFolders()) {
            const QString file = folder + QLatin1Char('/') + Prefix + wanted + Suffix;
            if (isLanguageCode(wanted) && QFileInfo(file).isFile()) {
                return file;
            }
        }
    }
    return QString();
}

// Its object name distinguishes it from the application's own translators.
std::unique_ptr<QTranslator> newTranslator()
{
    auto translator = std::make_unique<QTranslator>();
    translator->setObjectName(QStringLiteral("MTranslator"));
    return translator;
}

// Null where it cannot be read.
std::unique_ptr<QTranslator> loaded(const QString &file)
{
    auto translator = newTranslator();
    // Without delimiters, since Qt would otherwise look for files of other names, too.
    return translator->load(file, QString(), QLatin1String("")) ? std::move(translator) : nullptr;
}

QString &lastInstalled()
{
    static QString language;
    return language;
}

void removeTranslators(QCoreApplication *application)
{
    qDeleteAll(application->findChildren<QTranslator *>(newTranslator()->objectName(),
                                                        Qt::FindDirectChildrenOnly));
}

void installTranslator(std::unique_ptr<QTranslator> translator, QCoreApplication *application)
{
    translator->setParent(application);
    QCoreApplication::installTranslator(translator.release());
}

} // namespace

QStringList MTranslator::morvaneGuiLanguages()
{
    const QString english = QStringLiteral("en");
    QStringList languages;
    for (const QString &folder : translationFolders()) {
        const QStringList files =
            QDir(folder).entryList({Prefix + QLatin1Char('*') + Suffix}, QDir::Files);
        for (const QString &file : files) {
            const QString code =
                file.mid(Prefix.size(), file.size() - Prefix.size() - Suffix.size());
            if (code != english && isLanguageCode(code)) {
                languages << code;
            }
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
    if (locale.language() == QLocale::C) {
        return QStringLiteral("en");
    }
    const QString name = locale.name();
    if (morvaneGuiLanguages().contains(name)) {
        return name;
    }
    return name.section(QLatin1Char('_'), 0, 0);
}

bool MTranslator::install(const QString &code, MRVErrorSink error)
{
    const auto fail = [error](MRVErrorKind kind, const QString &text) {
        error.set({kind, text});
        return false;
    };
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application) {
        return fail(MRVErrorKind::Other,
                    tr("A language can only be chosen while an application object exists"));
    }

    const QString wanted = code == QLatin1String("C") ? QStringLiteral("en") : code;
    const QLocale locale(wanted);
    const bool isEnglish = locale.language() == QLocale::English;
    const QString file = translationFile(wanted);
    if (file.isEmpty() && !isEnglish) {
        return fail(MRVErrorKind::NotFound,
                    tr("No translation into the language \"%1\" exists").arg(code));
    }

    auto own = file.isEmpty() ? newTranslator() : loaded(file);
    if (!own) {
        return fail(
            MRVErrorKind::Damaged,
            tr("The translation \"%1\" cannot be read").arg(QDir::toNativeSeparators(file)));
    }

    removeTranslators(application);
    auto qt = newTranslator();
    if (!isEnglish
        && qt->load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                    QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        installTranslator(std::move(qt), application);
    }
    if (!own->isEmpty()) {
        installTranslator(std::move(own), application);
    }
    lastInstalled() = locale.bcp47Name();
    return true;
}

QString MTranslator::installedLanguage()
{
    return lastInstalled();
}

std::unique_ptr<QTranslator> MTranslator::translator(const QString &code)
{
    const QString file = translationFile(code);
    return file.isEmpty() ? nullptr : loaded(file);
}
