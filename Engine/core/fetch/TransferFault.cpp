#include "Engine/core/fetch/TransferFault.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <openssl/x509_vfy.h>

namespace Pelnar::Engine
{
namespace
{

constexpr long STATUS_TUNNEL = 200;
constexpr long STATUS_NO_TUNNEL = 300;
constexpr long STATUS_PROXY_ASKS = 407;
constexpr long STATUS_NETWORK_SIGN_IN = 511;

template <typename Number>
struct Rule
{
    Number number;
    ErrorCause cause;
};
using CertificateRule = Rule<long>;
using CodeRule = Rule<CURLcode>;
using SystemRule = Rule<int>;

template <typename Rules, typename Number>
ErrorCause CauseIn(Rules const& rules, Number number, ErrorCause otherwise)
{
    auto const rule = std::find_if(rules.begin(), rules.end(),
                                   [number](auto const& candidate) { return candidate.number == number; });
    return rule == rules.end() ? otherwise : rule->cause;
}

constexpr std::array CERTIFICATE_RULES = {
    CertificateRule{X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT, ErrorCause::CertificateSelfSigned},
    CertificateRule{X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{X509_V_ERR_CERT_UNTRUSTED, ErrorCause::CertificateAuthorityUnknown},
    CertificateRule{X509_V_ERR_CERT_NOT_YET_VALID, ErrorCause::CertificateNotYetValid},
    CertificateRule{X509_V_ERR_CERT_HAS_EXPIRED, ErrorCause::CertificateExpired},
    CertificateRule{X509_V_ERR_HOSTNAME_MISMATCH, ErrorCause::CertificateWrongName},
    CertificateRule{X509_V_ERR_IP_ADDRESS_MISMATCH, ErrorCause::CertificateWrongName},
    // libcurl compares the names again, and has no number for a mismatch.
    CertificateRule{X509_V_ERR_UNSPECIFIED, ErrorCause::CertificateWrongName},
};

constexpr std::array CODE_RULES = {
    CodeRule{CURLE_COULDNT_RESOLVE_HOST, ErrorCause::HostNotFound},
    CodeRule{CURLE_COULDNT_RESOLVE_PROXY, ErrorCause::ProxyFailed},
    CodeRule{CURLE_OPERATION_TIMEDOUT, ErrorCause::ConnectTimeout},
    CodeRule{CURLE_SSL_CIPHER, ErrorCause::HandshakeRefused},
    CodeRule{CURLE_UNSUPPORTED_PROTOCOL, ErrorCause::MalformedHead}, // the bytes are not an answer of HTTP/1 or later
    CodeRule{CURLE_WEIRD_SERVER_REPLY, ErrorCause::MalformedHead},
    CodeRule{CURLE_BAD_CONTENT_ENCODING, ErrorCause::TransferEncodingRefused},
    CodeRule{CURLE_OUT_OF_MEMORY, ErrorCause::HeadTooLarge}, // also for a line that does not end
    CodeRule{CURLE_GOT_NOTHING, ErrorCause::IncompleteHead},
};

/// How OpenSSL says that the answer is not TLS, but maybe a web page of the network.
constexpr char NOT_TLS[] = "wrong version number";

/// How libcurl and OpenSSL say that the connection ended in the middle of a handshake.
constexpr std::array BROKEN_HANDSHAKES = {"SSL_ERROR_SYSCALL", "unexpected eof", "Recv failure", "Send failure"};

constexpr std::array BREAKS = {CURLE_RECV_ERROR, CURLE_SEND_ERROR, CURLE_PARTIAL_FILE, CURLE_HTTP2, CURLE_HTTP2_STREAM};

constexpr std::array SYSTEM_RULES = {
    SystemRule{ECONNREFUSED, ErrorCause::ConnectionRefused},  SystemRule{ENETUNREACH, ErrorCause::NetworkUnreachable},
    SystemRule{EHOSTUNREACH, ErrorCause::NetworkUnreachable}, SystemRule{ENETDOWN, ErrorCause::NetworkUnreachable},
    SystemRule{ETIMEDOUT, ErrorCause::ConnectTimeout},
};

ErrorCause CauseOfConnecting(TransferEnd const& end)
{
    if (end.hasProxy)
    {
        return ErrorCause::ProxyFailed;
    }
    return CauseIn(SYSTEM_RULES, end.systemError, ErrorCause::ConnectionFailed);
}

ErrorCause CauseOfProxy(long error)
{
    bool const isAboutPassword = error == CURLPX_NO_AUTH || error == CURLPX_USER_REJECTED ||
                                 error == CURLPX_LONG_USER || error == CURLPX_LONG_PASSWD;
    bool const isAnswer = error >= CURLPX_REPLY_ADDRESS_TYPE_NOT_SUPPORTED && error <= CURLPX_REPLY_UNASSIGNED;
    return isAboutPassword ? ErrorCause::ProxyAsksForPassword
           : isAnswer      ? ErrorCause::ProxyRefused
                           : ErrorCause::ProxyFailed;
}

/// libcurl has one code for all of these. Only the text distinguishes them.
ErrorCause CauseOfHandshake(TransferEnd const& end)
{
    if (end.text.contains(QLatin1String(NOT_TLS)))
    {
        return ErrorCause::MalformedHead;
    }
    bool const isBroken = std::any_of(BROKEN_HANDSHAKES.begin(), BROKEN_HANDSHAKES.end(),
                                      [&end](char const* text) { return end.text.contains(QLatin1String(text)); });
    return isBroken ? ErrorCause::IncompleteHead : ErrorCause::HandshakeRefused;
}

/// The cause if an established connection breaks.
ErrorCause CauseOfBreak(TransferEnd const& end)
{
    switch (end.stage)
    {
    case TransferStage::Connecting:
        return CauseOfConnecting(end);
    case TransferStage::Waiting:
        return ErrorCause::IncompleteHead;
    case TransferStage::Body:
        // libcurl has one code for both. Only the text distinguishes a wrong chunk from a missing one.
        return end.text.contains(QLatin1String("chunked-encoding")) ? ErrorCause::MalformedChunk
                                                                    : ErrorCause::IncompleteBody;
    }
    return ErrorCause::ConnectionFailed;
}

ErrorCause CauseOf(TransferEnd const& end)
{
    if (end.stage == TransferStage::Connecting && end.proxyStatus >= STATUS_NO_TUNNEL)
    {
        return end.proxyStatus == STATUS_PROXY_ASKS        ? ErrorCause::ProxyAsksForPassword
               : end.proxyStatus == STATUS_NETWORK_SIGN_IN ? ErrorCause::NetworkSignIn
                                                           : ErrorCause::ProxyRefused;
    }
    if (end.code == CURLE_PROXY)
    {
        return CauseOfProxy(end.proxyError);
    }
    if (end.code == CURLE_PEER_FAILED_VERIFICATION)
    {
        return CauseIn(CERTIFICATE_RULES, end.certificateError, ErrorCause::CertificateInvalid);
    }
    if (end.code == CURLE_SSL_CONNECT_ERROR)
    {
        return CauseOfHandshake(end);
    }
    bool const waitsForProxy = end.hasProxy && end.proxyStatus < STATUS_TUNNEL;
    if (end.code == CURLE_OPERATION_TIMEDOUT && end.stage == TransferStage::Connecting && waitsForProxy)
    {
        return ErrorCause::ProxyFailed;
    }
    if (end.code == CURLE_COULDNT_CONNECT)
    {
        return CauseOfConnecting(end);
    }
    if (std::find(BREAKS.begin(), BREAKS.end(), end.code) != BREAKS.end())
    {
        return CauseOfBreak(end);
    }
    return CauseIn(CODE_RULES, end.code, ErrorCause::ConnectionFailed);
}

} // namespace

EngineError ErrorOf(TransferEnd const& end)
{
    return MakeError(CauseOf(end), end.text);
}

} // namespace Pelnar::Engine
