#pragma once

#include <QtPlugin>

class QString;
class QUrl;
class QWidget;

/**
 * What a plug-in makes that shows release notes in the library's dialogs. The library itself links
 * to no web engine; a plug-in with this interface is found in the folder "mrvbase/plugins" beside
 * the library.
 *
 * The library fetches the notes, and writes a page of its own from them, since engines have no
 * limits of time and memory: text, headings, lists, tables, links and pictures.
 *
 * @since 1.0
 */
class MRVWebViewFactory
{
public:
    virtual ~MRVWebViewFactory() = default;

    /**
     * A view that shows "about:blank". What it will show must not be able to run scripts or
     * plug-ins, to read local files, to store anything, or, where @p page is on https, to load
     * anything without encryption; its links open in the desktop's browser.
     *
     * @param page the address of the notes; empty where none will be shown.
     * @return owned by @p parent; null when no view can be made.
     */
    virtual QWidget *create(const QUrl &page, QWidget *parent) = 0;

    /**
     * Shows a page in the place of what @p view has shown.
     *
     * @param view one that create() has made.
     * @param html a page whose addresses are absolute, except of places in it.
     */
    virtual void show(QWidget *view, const QString &html) = 0;
};

#define MRVWebViewFactory_iid "org.morvane.WebViewFactory/2.0"
Q_DECLARE_INTERFACE(MRVWebViewFactory, MRVWebViewFactory_iid)
