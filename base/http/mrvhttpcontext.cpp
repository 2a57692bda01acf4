#include "http/mrvhttpcontext_p.h"

#include "core/mtranslator.h"

#include <QCoreApplication>
#include <QLocale>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QNetworkRequest>

namespace {

// The interface's language, and English, which most pages have.
QByteArray languages()
{
    const QString installed = MTranslator::installedLanguage();
    const QByteArray name = (installed.isEmpty() ? QLocale().bcp47Name() : installed).toLatin1();
    return name.startsWith("en") ? name : name + ", en;q=0.5";
}

QByteArray userAgent()
{
    QString name =
        QCoreApplication::applicationName() + u'/' + QCoreApplication::applicationVersion();
    name.remove(u' ');
    return name.size() > 1 ? name.toUtf8() : QByteArrayLiteral("mrvbase/1.0");
}

// A line end in a value would be another header.
bool isOneLine(const QByteArray &text)
{
    return !text.contains('\r') && !text.contains('\n') && !text.contains('\0');
}

} // namespace

QList<QByteArray> mrvHttpHeaders(const QNetworkRequest &request, const QNetworkCookieJar *jar)
{
    QList<QPair<QByteArray, QByteArray>> headers{{"Accept-Encoding", "identity"},
                                                 {"Accept-Language", languages()},
                                                 {"User-Agent", userAgent()}};
    QByteArray cookies;
    const int load = request.attribute(QNetworkRequest::CookieLoadControlAttribute).toInt();
    if (load == QNetworkRequest::Automatic && jar) {
        for (const QNetworkCookie &cookie : jar->cookiesForUrl(request.url())) {
            cookies += (cookies.isEmpty() ? "" : "; ")
                + cookie.toRawForm(QNetworkCookie::NameAndValueOnly);
        }
    }
    if (!cookies.isEmpty()) {
        headers.append({"Cookie", cookies});
    }
    QList<QByteArray> lines;
    for (const auto &header : headers) {
        if (!request.hasRawHeader(header.first)) {
            lines.append(header.first + ": " + header.second);
        }
    }
    for (const QByteArray &name : request.rawHeaderList()) {
        const QByteArray value = request.rawHeader(name);
        if (isOneLine(name) && isOneLine(value)) {
            // libcurl leaves a header out that has nothing after its colon.
            lines.append(value.isEmpty() ? name + ';' : name + ": " + value);
        }
    }
    return lines;
}
