#pragma once

class QUrl;
class QWidget;

/**
 * A view that shows a page: the web view of a plug-in where one is installed, else one that shows
 * the page's text without its pictures. Pages that are not on http or https are not shown.
 *
 * A plug-in is looked for in the folder "mrvbase/plugins" beside the library, or, where the
 * environment variable MRV_PLUGIN_PATH is set, in the folder that it names.
 *
 * @return owned by @p parent; never null.
 */
QWidget *mrvCreateReleaseNotesView(const QUrl &page, QWidget *parent);
