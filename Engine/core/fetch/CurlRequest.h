// CurlRequest.h: one request for libcurl, with all of libcurl's automatic features turned off.
// Thread: one at a time. Ownership: owns libcurl's handle. It cannot move, because libcurl holds its address.
#pragma once

#include "Engine/core/fetch/CurlLoop.h"
#include "Engine/core/fetch/FetchRules.h"
#include "Engine/core/fetch/TransferFault.h"

#include <array>
#include <memory>
#include <optional>

typedef struct ssl_st SSL;
typedef struct ssl_ctx_st SSL_CTX;

namespace Pelnar::Engine
{

class CurlRequest
{
public:
    CurlRequest(FetchRequest const& request, FetchLimits const& limits, ConnectionSettings settings);
    CurlRequest(CurlRequest const&) = delete;
    CurlRequest& operator=(CurlRequest const&) = delete;

    /// Why the request must not be sent; empty if it may be sent.
    [[nodiscard]] std::optional<EngineError> const& Fault() const { return m_fault; }
    CURL* Handle() const { return m_easy.get(); }
    ProxyChoice const& Proxy() const { return m_settings.proxy; }

    /// How the transfer ended, except at which stage.
    TransferEnd EndWith(CURLcode code) const;
    long Number(CURLINFO info) const;
    /// Watches for the server's close of the secure connection. REQUIRES: called by one of the handle's callbacks.
    void WatchSecureConnection();
    /// True if OpenSSL has unread bytes of this connection. REQUIRES: called by one of the callbacks.
    [[nodiscard]] bool HasSecureBytes() const;
    /// True if the server has sent its close message on this connection.
    [[nodiscard]] bool HasSaidGoodbye() const;

private:
    void SetAddress();
    void SetFields();
    void SetSafety(FetchLimits const& limits);
    void SetProxy();
    void SetSecurity();
    [[nodiscard]] bool PrepareSecurity(SSL_CTX* context) const;
    /// libcurl owns it, until it closes the connection; null for none.
    SSL* SecureConnection() const;

    FetchRequest m_request;
    ConnectionSettings m_settings;
    std::optional<EngineError> m_fault;
    std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> m_fields{nullptr, &curl_slist_free_all};
    std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> m_address{nullptr, &curl_url_cleanup};
    std::array<char, CURL_ERROR_SIZE> m_text{};
    std::shared_ptr<bool> m_hasSaidGoodbye;
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> m_easy; ///< destroyed first: it uses the others
};

} // namespace Pelnar::Engine
