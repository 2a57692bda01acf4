#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

/**
 * The engines that convert documents, and the ways in which a web page can be imported.
 *
 * Stored names are the same in every language and never change. Display names are translated, with
 * the context "QObject", whenever they are asked for.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVImportExport
{
public:
    MRVImportExport() = delete;

    /** What converts a document. Engines are stored by name: each enumerator is its stored name. */
    enum Engine : int {
        UnknownEngine = 0, ///< What a failed look-up gives.
        Doc2AnyAutoEngine = 1, ///< The external converter, by whatever it finds.
        Doc2AnyPreferMsOffice = 2, ///< The external converter, by Microsoft Office.
        Doc2AnyPreferOpenOffice = 3, ///< The external converter, by OpenOffice.
        Doc2AnyInternalEngine = 4, ///< The external converter, by itself.
        SubSystemsEngine = 5, ///< A converter of the application's own.
        QtEngine =
            6, ///< A converter of the application's own; serves whatever no other is set for.
        RtfBasedDoc = 7, ///< By way of an intermediate RTF document.
    };

    /** How a web page is imported; each enumerator is its stored name. */
    enum UrlImportType : int {
        ImportUndefined = 0,
        ImportAsPdfWithDoc2AnyWebKit = 1,
        ImportAsPdfWithDoc2AnyOffice = 2,
        ImportAsPdfWithDoc2AnyDefault = 3,
        ImportAsHtml = 4,
        ImportAsPlainText = 5,
        ImportAsImage = 6,
        ImportAsDynamicWeb = 7,
        ImportAsMht = 8,
    };

    /** Which ways of importing a web page the place that it goes to permits. */
    enum AllowImport : int {
        AllowNothing = 0,
        AllowAll = 1,
        AllowPlainTextOnly = 2,
        AllowTextOnly = 3, ///< HTML, plain text and MHT.
    };

    /** The stored name; empty for a number that is no type. */
    static QByteArray toByteArray(UrlImportType type);
    /**
     * The inverse of toByteArray(); exact. The older name "ImportAsPdf" is read as
     * ImportAsPdfWithDoc2AnyWebKit, and so gets its new name when it is stored again.
     *
     * @return ImportUndefined for an empty or unknown name.
     */
    static UrlImportType toUrlImportType(const QByteArray &name);
    /** Whether a page is imported as a PDF document. */
    static bool isImportToPdfType(UrlImportType type);

    /** Whether @p allow permits @p type. AllowAll permits even numbers that are no type. */
    static bool isAllowedUrlImportType(AllowImport allow, UrlImportType type);
    /** Plain text where only text is permitted, else PDF; it need not itself be permitted. */
    static UrlImportType defaultUrlImportType(AllowImport allow);

    /** The display names of the types that a user of this machine can choose. */
    static QMap<UrlImportType, QString> urlImportTypesDescr();
    /** The same display names in ascending order of their characters' codes. */
    static QStringList urlImportTypesDescrSorted();

    /** The stored names of all engines. */
    static QMap<Engine, QString> engineTypes();
    /** The display names of the engines that have one. Engines of one family share theirs. */
    static QMap<Engine, QString> engineTypesDescr();
    /**
     * The same display names, shared ones repeated, in ascending order of their characters' codes.
     */
    static QStringList engineTypesDescrSorted();

    /** The stored name; empty for a number that is no engine. */
    static QString toString(Engine engine);
    /** The inverse of toString(); exact. UnknownEngine for an unknown name. */
    static Engine toEngine(const QString &name);
    /** toEngine() in any case. */
    static Engine engineNamed(const QString &name);
    /** Whether the external converter does the work. */
    static bool isDoc2AnyEngine(Engine engine);

    /** Whether Microsoft Word can convert documents here: not on this platform. */
    static bool hasMsWord();
    /** Whether OpenOffice can convert documents here: not on this platform. */
    static bool hasOpenOffice();
    /** Whether LibreOffice can convert documents here: not on this platform. */
    static bool hasLibreOffice();
    /** Whether Internet Explorer can convert web pages here: not on this platform. */
    static bool hasIE();
};

/** The major version of Microsoft Word; 0 where there is none, as on this platform. @since 1.0 */
MRVBASE_EXPORT int msWordVersion();
