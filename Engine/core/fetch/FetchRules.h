// FetchRules.h: what may be fetched, where a redirect may lead, and which fields a request carries. Pure functions.
#pragma once

#include "Engine/core/faults/Result.h"
#include "Engine/core/fetch/AddressReach.h"

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <vector>

namespace Pelnar::Engine
{

/// The greatest limit that a bundle may set for the size of a feed.
constexpr qint64 MAX_FEED_BYTES = qint64(1) << 30;

/// How much a server may cost. The engine uses the defaults; tests scale them.
struct FetchLimits
{
    qint64 maxBodyBytes = 4 * 1024 * 1024;
    int maxHeadBytes = 64 * 1024; ///< status line and header fields, including informational answers
    int maxRedirects = 10;
    std::chrono::milliseconds connectTimeout = std::chrono::seconds(15); ///< for each connection, including its
                                                                         ///< handshake
    std::chrono::milliseconds totalTimeout = std::chrono::seconds(60);   ///< for all connections together
    std::chrono::milliseconds rateWindow = std::chrono::seconds(20);     ///< after the connection is established
    int minBytesPerSecond = 1024;                                        ///< within every rateWindow
    /// How often a download resumes if its connection breaks before one more mebibyte has arrived, and the pause before
    /// the first resume; each further pause is twice as long.
    int maxResumes = 5;
    std::chrono::milliseconds firstResumePause = std::chrono::seconds(1);
};

/// Whether plain http is allowed: always to this computer, elsewhere only if the host's bundle opts in.
enum class InsecureHttp
{
    LoopbackOnly,
    Anywhere,
};

/// One field of the head of a request or an answer.
struct HeaderField
{
    QByteArray name;
    QByteArray value;
};

/// One request: the address without user name and password, and the fields made from them.
struct FetchRequest
{
    QUrl url;
    std::vector<HeaderField> fields;                   ///< for the origin of url only
    std::vector<HeaderField> rangeFields;              ///< for the server that answers in the end
    AddressReach nearest = AddressReach::ThisComputer; ///< no connection goes to a nearer address
};

[[nodiscard]] bool IsHttps(QUrl const& url);

/// Same scheme, host and port, including default ports.
[[nodiscard]] bool IsSameOrigin(QUrl const& a, QUrl const& b);

/// Fails if a feed must not be fetched from \a url.
[[nodiscard]] Result<void> JudgeFeedAddress(QUrl const& url, InsecureHttp insecureHttp);

/// Fails if an archive must not be downloaded from \a url, which a feed from \a feedReach names. An archive is never a
/// file of this computer.
[[nodiscard]] Result<void> JudgeArchiveAddress(QUrl const& url, AddressReach feedReach, InsecureHttp insecureHttp);

/// The first request for \a url. User name and password of the address become an authorization field. If \a url has
/// none and the same origin as \a feedUrl, those of \a feedUrl are used.
FetchRequest RequestFor(QUrl const& url, QUrl const& feedUrl = QUrl());

/// True if an answer with \a status leads to another address.
[[nodiscard]] bool IsRedirect(int status);

/// The request after the answer \a location to \a request, as hop number \a hop (from 1), or why the redirect is not
/// followed. The fields stay while the origin stays the same. User name and password in \a location are removed. The
/// redirect never leads to an address nearer than \a answeredFrom, where the answer came from.
[[nodiscard]] Result<FetchRequest> JudgeRedirect(FetchRequest const& request, AddressReach answeredFrom,
                                                 std::vector<QByteArray> const& locations, int hop,
                                                 InsecureHttp insecureHttp, FetchLimits const& limits);

/// True for bytes that begin as a web page, such as a network's login page, even if they parse as XML.
[[nodiscard]] bool BeginsAsWebPage(QByteArray const& bytes);

} // namespace Pelnar::Engine
