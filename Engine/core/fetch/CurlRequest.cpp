#include "Engine/core/fetch/CurlRequest.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include <openssl/ssl.h>
#include <openssl/x509v3.h>

namespace Pelnar::Engine
{
namespace
{

/// Bytes read in one pass before the event loop runs again.
constexpr long PASS_BYTES = 256 * 1024;
/// OpenSSL's level: keys and signatures of at least 112 bits of security.
constexpr int LEAST_SECURITY_LEVEL = 2;
constexpr char CIPHERS[] = "DEFAULT:!aNULL:!eNULL:!EXPORT:!LOW:!RC4:!3DES:!MD5";

QByteArray TargetOf(QUrl const& url)
{
    QByteArray target = url.path(QUrl::FullyEncoded).toLatin1();
    if (!target.startsWith('/'))
    {
        target.prepend('/');
    }
    return url.hasQuery() ? target + '?' + url.query(QUrl::FullyEncoded).toLatin1() : target;
}

/// libcurl wants an IPv6 address in brackets.
QByteArray Bracketed(QByteArray const& host)
{
    return host.contains(':') && !host.startsWith('[') ? '[' + host + ']' : host;
}

/// The name to compare with a certificate: no final dot, no brackets, no zone.
QByteArray CertificateName(QUrl const& url)
{
    QByteArray name = url.host(QUrl::FullyEncoded).toLatin1();
    name.replace("[", "").replace("]", "");
    if (int const zone = name.indexOf('%'); zone >= 0)
    {
        name.truncate(zone);
    }
    while (name.endsWith('.'))
    {
        name.chop(1);
    }
    return name;
}

/// Whether the server has closed a secure connection. The connection and the request share it.
using Goodbye = std::shared_ptr<bool>;

int GoodbyeIndex()
{
    auto const release = [](void*, void* goodbye, CRYPTO_EX_DATA*, int, long, void*)
    { delete static_cast<Goodbye*>(goodbye); };
    static int const index = SSL_get_ex_new_index(0, nullptr, nullptr, nullptr, release);
    return index;
}

/// OpenSSL's own record does not outlive libcurl's close of the connection. Nothing else may outlive it either, because
/// libcurl then frees what the connection reads with.
void NoteGoodbye(SSL const* connection, int where, int alert)
{
    auto* const goodbye = static_cast<Goodbye*>(SSL_get_ex_data(connection, GoodbyeIndex()));
    if (goodbye && (where & SSL_CB_READ_ALERT) == SSL_CB_READ_ALERT && (alert & 0xff) == SSL_AD_CLOSE_NOTIFY)
    {
        **goodbye = true;
    }
}

} // namespace

CurlRequest::CurlRequest(FetchRequest const& request, FetchLimits const& limits, ConnectionSettings settings)
    : m_request(request), m_settings(std::move(settings)), m_easy(curl_easy_init(), &curl_easy_cleanup)
{
    if (!m_easy || !m_settings.areKnown)
    {
        m_fault = MakeError(ErrorCause::DownloadSystemBusy);
        return;
    }
    SetAddress();
    SetFields();
    SetSafety(limits);
    SetProxy();
    if (IsHttps(m_request.url))
    {
        SetSecurity();
    }
}

void CurlRequest::SetAddress()
{
    CURL* const easy = m_easy.get();
    QUrl const& url = m_request.url;
    // Part by part, so that libcurl extracts the same host from the address as the one that was judged.
    m_address.reset(curl_url());
    curl_url_set(m_address.get(), CURLUPART_SCHEME, url.scheme().toLatin1().constData(), 0);
    QByteArray const host = Bracketed(url.host(QUrl::FullyEncoded).toLatin1());
    curl_url_set(m_address.get(), CURLUPART_HOST, host.constData(), 0);
    if (url.port() != -1)
    {
        curl_url_set(m_address.get(), CURLUPART_PORT, QByteArray::number(url.port()).constData(), 0);
    }
    curl_easy_setopt(easy, CURLOPT_CURLU, m_address.get());
    // Byte for byte as given: libcurl would rewrite encoded characters.
    bool const isForwarded = m_settings.proxy.kind == ProxyChoice::Kind::Http && url.scheme() == QLatin1String("http");
    QByteArray const target = isForwarded ? url.toEncoded() : TargetOf(url);
    curl_easy_setopt(easy, CURLOPT_REQUEST_TARGET, target.constData());
}

void CurlRequest::SetFields()
{
    CURL* const easy = m_easy.get();
    curl_easy_setopt(easy, CURLOPT_USERAGENT, "PelnarUpdateEngine");
    std::vector<HeaderField> fields = {{"Accept", "application/rss+xml, application/xml, */*;q=0.5"},
                                       {"Accept-Encoding", "identity"},
                                       {"Cache-Control", "no-cache"}};
    fields.insert(fields.end(), m_request.fields.begin(), m_request.fields.end());
    fields.insert(fields.end(), m_request.rangeFields.begin(), m_request.rangeFields.end());
    for (HeaderField const& field : fields)
    {
        curl_slist* const all = curl_slist_append(m_fields.get(), (field.name + ": " + field.value).constData());
        static_cast<void>(m_fields.release());
        m_fields.reset(all);
    }
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, m_fields.get());
    curl_easy_setopt(easy, CURLOPT_HEADEROPT, long{CURLHEADER_SEPARATE}); // a proxy gets none of these fields
}

void CurlRequest::SetSafety(FetchLimits const& limits)
{
    CURL* const easy = m_easy.get();
    QByteArray const scheme = m_request.url.scheme().toLatin1();
    curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, scheme.constData());
    curl_easy_setopt(easy, CURLOPT_REDIR_PROTOCOLS_STR, scheme.constData());
    curl_easy_setopt(easy, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(easy, CURLOPT_NETRC, long{CURL_NETRC_IGNORED});
    curl_easy_setopt(easy, CURLOPT_HTTP09_ALLOWED, 0L);
    curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_2TLS});
    curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
    // Only the system knows when an address expires or the network changes.
    curl_easy_setopt(easy, CURLOPT_DNS_CACHE_TIMEOUT, 0L);
    // Without it, cancelling a name lookup waits for the system to finish it.
    curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(easy, CURLOPT_BUFFERSIZE, PASS_BYTES);
    // Of two addresses of one kind, the first gets half of this time.
    curl_easy_setopt(easy, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(limits.connectTimeout.count()));
    curl_easy_setopt(easy, CURLOPT_ERRORBUFFER, m_text.data());
}

void CurlRequest::SetProxy()
{
    CURL* const easy = m_easy.get();
    ProxyChoice const& proxy = m_settings.proxy;
    if (proxy.kind == ProxyChoice::Kind::Unknown)
    {
        m_fault = MakeError(ErrorCause::ProxyFailed,
                            QStringLiteral("the proxy's address must begin with http, socks5 or socks5h"));
    }
    // The engine has read the environment already; libcurl must not read it in another way.
    curl_easy_setopt(easy, CURLOPT_NOPROXY, "");
    curl_easy_setopt(easy, CURLOPT_PROXY, Bracketed(proxy.host.toUtf8()).constData());
    if (proxy.IsDirect())
    {
        return;
    }
    long const type = proxy.kind == ProxyChoice::Kind::Socks5            ? CURLPROXY_SOCKS5
                      : proxy.kind == ProxyChoice::Kind::Socks5WithNames ? CURLPROXY_SOCKS5_HOSTNAME
                                                                         : CURLPROXY_HTTP;
    curl_easy_setopt(easy, CURLOPT_PROXYTYPE, type);
    curl_easy_setopt(easy, CURLOPT_PROXYPORT, long{proxy.port});
    curl_easy_setopt(easy, CURLOPT_SOCKS5_AUTH, CURLAUTH_BASIC);
    curl_easy_setopt(easy, CURLOPT_PROXYAUTH, CURLAUTH_BASIC | CURLAUTH_DIGEST | CURLAUTH_NTLM);
    curl_easy_setopt(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    if (!proxy.user.isEmpty())
    {
        curl_easy_setopt(easy, CURLOPT_PROXYUSERNAME, proxy.user.toUtf8().constData());
        curl_easy_setopt(easy, CURLOPT_PROXYPASSWORD, proxy.password.toUtf8().constData());
    }
}

void CurlRequest::SetSecurity()
{
    CURL* const easy = m_easy.get();
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(easy, CURLOPT_SSL_SESSIONID_CACHE, 0L);
    curl_easy_setopt(easy, CURLOPT_SSL_OPTIONS, long{CURLSSLOPT_NO_PARTIALCHAIN});
    // The authorities come only from the store.
    curl_easy_setopt(easy, CURLOPT_CAINFO, nullptr);
    curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(easy, CURLOPT_CA_CACHE_TIMEOUT, 0L);
    curl_easy_setopt(easy, CURLOPT_SSL_CTX_DATA, this);
    auto const prepare = +[](CURL*, void* context, void* request)
    {
        // No exception may pass through libcurl.
        try
        {
            bool const isReady = static_cast<CurlRequest*>(request)->PrepareSecurity(static_cast<SSL_CTX*>(context));
            return isReady ? CURLE_OK : CURLE_SSL_CONNECT_ERROR;
        }
        catch (std::exception const&)
        {
            return CURLE_OUT_OF_MEMORY;
        }
    };
    // A libcurl over a library other than OpenSSL does not accept this function.
    bool const isSet = curl_easy_setopt(easy, CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2}) == CURLE_OK &&
                       curl_easy_setopt(easy, CURLOPT_SSL_CTX_FUNCTION, prepare) == CURLE_OK;
    if (!isSet || !m_settings.trust)
    {
        m_fault = MakeError(ErrorCause::SecureConnectionUnavailable);
    }
}

bool CurlRequest::PrepareSecurity(SSL_CTX* context) const
{
    X509_STORE_up_ref(m_settings.trust.get());
    SSL_CTX_set_cert_store(context, m_settings.trust.get());
    X509_VERIFY_PARAM* const parameters = SSL_CTX_get0_param(context);
    QByteArray const name = CertificateName(m_request.url);
    // As in browsers: only the list of alternative names counts, never the subject's name.
    X509_VERIFY_PARAM_set_hostflags(parameters,
                                    X509_CHECK_FLAG_NEVER_CHECK_SUBJECT | X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS);
    bool const isAddress = NumericAddressOf(QString::fromLatin1(name)).has_value();
    // Deliberate: for an empty name OpenSSL would check nothing.
    bool const isSet = name.isEmpty() ? false
                       : isAddress    ? X509_VERIFY_PARAM_set1_ip_asc(parameters, name.constData()) == 1
                                      : X509_VERIFY_PARAM_set1_host(parameters, name.constData(), 0) == 1;
    // Holds for every configuration of OpenSSL.
    bool const isStrong =
        SSL_CTX_set_min_proto_version(context, TLS1_2_VERSION) == 1 && SSL_CTX_set_cipher_list(context, CIPHERS) == 1;
    SSL_CTX_set_security_level(context, std::max(SSL_CTX_get_security_level(context), LEAST_SECURITY_LEVEL));
    SSL_CTX_set_info_callback(context, &NoteGoodbye);
    // libcurl's messages for every record are not used and take time.
    SSL_CTX_set_msg_callback(context, nullptr);
    return isSet && isStrong;
}

long CurlRequest::Number(CURLINFO info) const
{
    long number = 0;
    curl_easy_getinfo(m_easy.get(), info, &number);
    return number;
}

TransferEnd CurlRequest::EndWith(CURLcode code) const
{
    TransferEnd end;
    end.code = code;
    end.systemError = static_cast<int>(Number(CURLINFO_OS_ERRNO));
    end.certificateError = Number(CURLINFO_SSL_VERIFYRESULT);
    end.proxyStatus = Number(CURLINFO_HTTP_CONNECTCODE);
    end.proxyError = Number(CURLINFO_PROXY_ERROR);
    end.hasProxy = !Proxy().IsDirect();
    end.text = QString::fromUtf8(m_text.data());
    return end;
}

void CurlRequest::WatchSecureConnection()
{
    SSL* const connection = SecureConnection();
    if (!connection)
    {
        return;
    }
    if (auto const* const known = static_cast<Goodbye*>(SSL_get_ex_data(connection, GoodbyeIndex())))
    {
        m_hasSaidGoodbye = *known;
        return;
    }
    m_hasSaidGoodbye = std::make_shared<bool>(false);
    auto goodbye = std::make_unique<Goodbye>(m_hasSaidGoodbye);
    if (SSL_set_ex_data(connection, GoodbyeIndex(), goodbye.get()) == 1)
    {
        static_cast<void>(goodbye.release()); // now owned by the connection
    }
}

bool CurlRequest::HasSecureBytes() const
{
    SSL* const connection = SecureConnection();
    return connection && SSL_pending(connection) > 0;
}

bool CurlRequest::HasSaidGoodbye() const
{
    return m_hasSaidGoodbye && *m_hasSaidGoodbye;
}

SSL* CurlRequest::SecureConnection() const
{
    curl_tlssessioninfo* session = nullptr;
    curl_easy_getinfo(m_easy.get(), CURLINFO_TLS_SSL_PTR, &session);
    return session ? static_cast<SSL*>(session->internals) : nullptr;
}

} // namespace Pelnar::Engine
