#pragma once

#include "core/mrvcore_export.h"
#include "core/mrverror.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>

class QTranslator;

/**
 * The languages of the user interface.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MTranslator
{
    Q_DECLARE_TR_FUNCTIONS(MTranslator)

public:
    MTranslator() = delete;

    /**
     * The codes of the shipped interface languages: "en", the language of the source texts, first,
     * then those that have a translation, sorted.
     *
     * A language has a translation where a file "mrvbase_CODE.qm" lies in the resource folder
     * ":/Other/Translations", in "../share/morvane/translations" beside the program's folder, or in
     * the folder that the environment variable MORVANE_TRANSLATIONS names. A code is a language
     * ("de") or a language and a country ("pt_BR"), as QLocale::name() writes them; other files are
     * passed over. The folders are read at each call.
     */
    static QStringList morvaneGuiLanguages();

    /**
     * The language that the system shows its interface in: with its country where there is a
     * translation for just that country ("pt_BR"), else the bare language ("de"); "en" for the "C"
     * locale.
     */
    static QString systemGuiLanguageCode();

    /**
     * Has the library's texts, and Qt's own, come in a language from now on.
     *
     * Loads "mrvbase_CODE.qm" from the folder that MORVANE_TRANSLATIONS names, so that a
     * translation can be tried out, else from the other folders of morvaneGuiLanguages(); and
     * "qtbase_CODE.qm" of Qt's own translations, where these are installed. What an earlier call
     * has loaded is replaced; translators of the application are left alone. The application object
     * owns the translators, and sends QEvent::LanguageChange.
     *
     * Texts that are kept from their first use on, such as those of the predefined shortcut
     * schemes, stay in the language of that moment: call this before anything else of the library.
     *
     * @param code  a language ("de") or a language and a country ("pt_BR" or "pt-BR"). Where there
     *              is no translation for just that country, the bare language's is taken. English,
     *              which "C" means, too, is always there; its file holds plural forms alone.
     * @param error if given, receives a text in the language so far on failure; untouched on
     *        success.
     * @return false, with nothing changed, where there is no such translation, where it cannot be
     *         read, and where there is no application object.
     */
    static bool install(const QString &code, MRVErrorSink error = nullptr);

    /**
     * The language that install() has chosen last, as QLocale::bcp47Name() writes it ("pt-BR");
     * empty before.
     */
    static QString installedLanguage();

    /**
     * The library's texts in a language, whichever one the interface has: for what is written in
     * the language of a document.
     *
     * @param code as install() takes it.
     * @return a translator that is not installed; null where there is none, or it cannot be read.
     *         Of English, it lacks all texts without a count.
     */
    static std::unique_ptr<QTranslator> translator(const QString &code);
};
