#pragma once

#include "update/mrvwebviewfactory.h"

#include <QObject>

/** Makes release-notes views of QtWebKit. */
class MRVWebView : public QObject, public MRVWebViewFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID MRVWebViewFactory_iid)
    Q_INTERFACES(MRVWebViewFactory)

public:
    QWidget *create(const QUrl &page, QWidget *parent) override;
    void show(QWidget *view, const QString &html) override;
};
