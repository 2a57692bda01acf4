#pragma once

#include "download/mrvdownloaduserinputabstract.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

/**
 * Asks the user the questions of a download in modal dialogs.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDownloadUserInput : public QObject, public MRVDownloadUserInputAbstract
{
    Q_OBJECT

public:
    /**
     * @param parent owns this object, and is what its dialogs lie above; null gives dialogs without
     *               a parent.
     */
    explicit MRVDownloadUserInput(QWidget *parent = nullptr);

    /** Null once the widget has been deleted. */
    QWidget *widgetParent() const { return m_widgetParent; }

    /**
     * Shows the authorisation dialog, pre-filled with what the pointers hold; either may be null.
     * False when the dialog was cancelled or went away with its parent; nothing is stored then.
     */
    bool authenticate(const QString &realm, const QUrl &url, QString *user,
                      QString *password) override;
    /** Asks in a box in which Return means No. */
    bool redirectTo(const QUrl &url) override;
    bool ignoreSslErrors(const QStringList &errors) override;

private:
    QPointer<QWidget> m_widgetParent;
};
