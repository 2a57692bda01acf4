#pragma once

class QMenu;

/** The update checks of the program: what MRVUpdateManager leaves to an application. */
class Updates
{
public:
    Updates() = delete;

    /**
     * Has the manager check in the background where the preferences say that it is time. To be
     * called once the application has its names; the check is made some seconds later.
     */
    static void checkAtStart();
    /** Adds the action "Check for Updates..." to a menu. */
    static void addTo(QMenu *menu);
};
