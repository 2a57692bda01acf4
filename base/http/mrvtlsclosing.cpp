#include "http/mrvtlsclosing_p.h"

#include <openssl/ssl.h>

namespace {

using Closing = std::shared_ptr<bool>;

void release(void *, void *closing, CRYPTO_EX_DATA *, int, long, void *)
{
    delete static_cast<Closing *>(closing);
}

// Where a context keeps its Closing.
int closingIndex()
{
    static const int index =
        CRYPTO_get_ex_new_index(CRYPTO_EX_INDEX_SSL_CTX, 0, nullptr, nullptr, nullptr, &release);
    return index;
}

Closing *closingOf(const SSL *connection)
{
    return static_cast<Closing *>(SSL_CTX_get_ex_data(SSL_get_SSL_CTX(connection), closingIndex()));
}

void onEvent(const SSL *connection, int where, int alert)
{
    constexpr int Description = 0xff; // the lower half of an alert; the upper one is its level
    if ((where & SSL_CB_READ_ALERT) == SSL_CB_READ_ALERT
        && (alert & Description) == SSL_AD_CLOSE_NOTIFY) {
        **closingOf(connection) = true;
    }
}

} // namespace

void MrvTlsClosing::install(void *context)
{
    auto *const tls = static_cast<SSL_CTX *>(context);
    SSL_CTX_set_ex_data(tls, closingIndex(), new Closing(std::make_shared<bool>(false)));
    SSL_CTX_set_info_callback(tls, &onEvent);
}

std::shared_ptr<const bool> MrvTlsClosing::of(void *connection)
{
    return *closingOf(static_cast<SSL *>(connection));
}
