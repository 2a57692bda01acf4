#pragma once

#include <QCoreApplication>

class QMenu;

/**
 * The update checks of the program: what MRVUpdateManager leaves to an application.
 *
 * A program that a package has installed is kept up to date by the system, and checks nothing. One
 * that has its maker's key, the resource ":/updates/key.pub", checks by itself; one without a key
 * does so only when the user asks for it.
 */
class Updates
{
    Q_DECLARE_TR_FUNCTIONS(Updates)

public:
    Updates() = delete;

    /**
     * Has the manager check in the background where the preferences say that it is time. To be
     * called once the application has its names; the check is made some seconds later.
     */
    static void checkAtStart();
    /** Whether it does so at all, and the preferences of it have an effect. */
    static bool areAutomatic();
    /** Adds the action "Check for Updates..." to a menu, unless a package keeps the program. */
    static void addTo(QMenu *menu);
};
