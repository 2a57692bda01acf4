#include "download/mrvdownloadauthorize_p.h"

#include "download/mrvservertext.h"
#include "ui_mrvdownloadauthorize.h"

#include <QLayout>

namespace {

constexpr int CharactersWide = 70;

} // namespace

MRVDownloadAuthorize::MRVDownloadAuthorize(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui_MRVDownloadAuthorize>())
{
    m_ui->setupUi(this);
}

MRVDownloadAuthorize::~MRVDownloadAuthorize() = default;

void MRVDownloadAuthorize::setSite(const QString &site)
{
    m_ui->siteDescription->setText(MRVServerText::breakable(site));
    // A dialog does not grow by itself when an address, or a translated text, takes more lines.
    const int wide = qMax(layout()->totalMinimumSize().width(),
                          fontMetrics().averageCharWidth() * CharactersWide);
    resize(wide, layout()->totalHeightForWidth(wide));
}

void MRVDownloadAuthorize::setCredentials(const QString &user, const QString &password)
{
    m_ui->userEdit->setText(user);
    m_ui->passwordEdit->setText(password);
    (user.isEmpty() ? m_ui->userEdit : m_ui->passwordEdit)->setFocus();
}

QString MRVDownloadAuthorize::user() const
{
    return m_ui->userEdit->text();
}

QString MRVDownloadAuthorize::password() const
{
    return m_ui->passwordEdit->text();
}
