#pragma once

#include <QDialog>

#include <memory>

class Ui_MRVDownloadAuthorize;

/** Asks for the user name and the password of a site. */
class MRVDownloadAuthorize : public QDialog
{
    Q_OBJECT

public:
    explicit MRVDownloadAuthorize(QWidget *parent = nullptr);
    ~MRVDownloadAuthorize() override;

    /** Shown as plain text, since a server chooses a part of it; long words are broken. */
    void setSite(const QString &site);
    /** The cursor waits in the first field that is empty. */
    void setCredentials(const QString &user, const QString &password);

    QString user() const;
    QString password() const;

private:
    std::unique_ptr<Ui_MRVDownloadAuthorize> m_ui;
};
