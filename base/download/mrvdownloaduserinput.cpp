#include "download/mrvdownloaduserinput.h"

#include "download/mrvdownloadauthorize_p.h"
#include "download/mrvmessage.h"
#include "download/mrvservertext.h"

#include <QCoreApplication>

namespace {

QString title()
{
    return QCoreApplication::translate("QObject", "File Download");
}

} // namespace

MRVDownloadUserInput::MRVDownloadUserInput(QWidget *parent)
    : QObject(parent)
    , m_widgetParent(parent)
{
}

bool MRVDownloadUserInput::authenticate(const QString &realm, const QUrl &url, QString *user,
                                        QString *password)
{
    // On the heap, since the parent may be closed, and delete the dialog, while it is open.
    const QPointer<MRVDownloadAuthorize> dialog = new MRVDownloadAuthorize(widgetParent());
    dialog->setSite(QCoreApplication::translate("QObject", "%1 at %2")
                        .arg(MRVServerText::shortened(realm), MRVServerText::address(url)));
    dialog->setCredentials(user ? *user : QString(), password ? *password : QString());
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    if (isAccepted && user) {
        *user = dialog->user();
    }
    if (isAccepted && password) {
        *password = dialog->password();
    }
    delete dialog;
    return isAccepted;
}

bool MRVDownloadUserInput::redirectTo(const QUrl &url)
{
    const QString text =
        QCoreApplication::translate("QObject", "Redirect to %1 ?").arg(MRVServerText::address(url));
    return mrvShowMessage(widgetParent(), QMessageBox::Question, title(), text,
                          QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

bool MRVDownloadUserInput::ignoreSslErrors(const QStringList &errors)
{
    QStringList shown;
    for (const QString &error : errors) {
        shown << MRVServerText::shortened(error);
    }
    const QString text =
        QCoreApplication::translate("QObject", "One or more SSL errors has occurred: %1")
            .arg(shown.join(QLatin1String(", ")));
    return mrvShowMessage(widgetParent(), QMessageBox::Warning, title(), text,
                          QMessageBox::Ignore | QMessageBox::Abort, QMessageBox::Abort)
        == QMessageBox::Ignore;
}
