#pragma once

#include "core/mrvcore_export.h"

#include <QString>

/**
 * What the running application is, and whom its users turn to.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MrvCore
{
public:
    MrvCore() = delete;

    /** The e-mail address of the maker's support, for messages; not translated. */
    static QString supportEmail();

    /**
     * Whether the running application is the writing application.
     *
     * The mind-mapping application, which shares the library, sets
     * QCoreApplication::applicationName() to "Fernwick"; a program of any other name (Morvane, a
     * command-line tool, a test) works for the writing application.
     */
    static bool isAppMorvane();
};
