#pragma once

#include "core/mrvcore_export.h"

#include <QString>
#include <QStringList>

/**
 * The languages of the user interface.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MTranslator
{
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
};
