#pragma once

#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>

/**
 * The running application's own version, and where it is installed.
 *
 * The version is QCoreApplication::applicationVersion(): numbers with full stops between them, such
 * as "2.9.0.1", or such a text that ends in ".beta".
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MVersion
{
    Q_DECLARE_TR_FUNCTIONS(MVersion)

public:
    MVersion() = delete;

    /**
     * Whether @p version ends in ".beta", or has four components of which the last is not 0.
     * Deliberate: a fourth component other than 0 marks a build before a release, also 10.
     */
    static bool isBetaVersion(const QString &version);
    /** As above, for the running application. */
    static bool isBetaVersion();
    /** The processor architecture that the library was built for, such as "x86_64". */
    static QString appPlatform();
    /**
     * Whether appPlatform() is "x86_64"; deliberate: other architectures of 64 bits are not asked
     * about.
     */
    static bool is64BitPlatform();
    /** One line for an about box, such as "Version: 2.9 (64 bit) - 18 Oct 2015", translated. */
    static QString versionLabel();
    /**
     * What support wants to know: application, version, build, executable, compiler, Qt and time of
     * the build, a line each, with translated labels.
     *
     * @param details further lines, set off by an empty one; may be empty.
     */
    static QString versionInfo(const QString &details = QString());
    /**
     * Whether the program runs from where its installer put it, and whether the user could replace
     * it there.
     *
     * The installer records its folder as "Location" in the settings of the organisation and
     * application, the user's or the system's. Without such a record nothing is warned of. The
     * answer is found once and remembered.
     *
     * @param warnForAdminRights     receives whether the user cannot write to the recorded folder;
     *        may be null.
     * @param warnRuntimeDirMismatch receives whether the program lies elsewhere than in or below
     *        it; may be null.
     * @param message                receives the recorded folder, with native separators; may be
     *        null.
     * @param force                  look again.
     */
    static void checkCurrentUserRights(bool *warnForAdminRights, bool *warnRuntimeDirMismatch,
                                       QString *message, bool force = false);
    /** The first answer of checkCurrentUserRights(). */
    static bool currentUserNeedsAdminRights();
};
