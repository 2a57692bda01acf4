#pragma once

#include <QtPlugin>

class QUrl;
class QWidget;

/**
 * What a plug-in makes that shows web pages in the library's dialogs. The library itself links to
 * no web engine; a plug-in with this interface is found in the folder that MRVReleaseNotesView
 * names.
 *
 * @since 1.0
 */
class MRVWebViewFactory
{
public:
    virtual ~MRVWebViewFactory() = default;

    /**
     * A view that shows "about:blank" and begins to load @p page, unless that is empty. The page
     * must not be able to run scripts or plug-ins, to read local files, to store anything, or to
     * lead from https to http; its links open in the desktop's browser.
     *
     * @return owned by @p parent; null when no view can be made.
     */
    virtual QWidget *create(const QUrl &page, QWidget *parent) = 0;
};

#define MRVWebViewFactory_iid "org.morvane.WebViewFactory/1.0"
Q_DECLARE_INTERFACE(MRVWebViewFactory, MRVWebViewFactory_iid)
