// FetchPolicy.h: what may be fetched, where a redirect may lead, and what goes along. Pure decisions.
// Thread: any; no state. Ownership: values only.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/fetch/AddressReach.h"

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <optional>
#include <variant>
#include <vector>

namespace Pelnar::Engine
{

/// How much a server may cost us. The defaults are what the engine ships with; tests scale them.
struct FetchLimits
{
    qint64 maxBodyBytes = 4 * 1024 * 1024;
    int maxHeadBytes = 64 * 1024; ///< status line and header fields, of informational answers too
    int maxRedirects = 10;
    std::chrono::milliseconds connectTimeout = std::chrono::seconds(15); ///< of each connection, its handshake included
    std::chrono::milliseconds totalTimeout = std::chrono::seconds(60);   ///< of all connections together
    std::chrono::milliseconds rateWindow = std::chrono::seconds(20);     ///< once connected
    int minBytesPerSecond = 1024;                                        ///< over every rateWindow
    /// How often a download goes on after its connection broke before a mebibyte more had arrived, and the pause before
    /// the first time; each further one is twice as long.
    int maxResumes = 5;
    std::chrono::milliseconds firstResumePause = std::chrono::seconds(1);
};

/// Whether plain http is allowed: to this computer always, elsewhere only when the host's bundle opts in.
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

/// One request: the address without user name and password, and what they became.
struct FetchRequest
{
    QUrl url;
    std::vector<HeaderField> fields;                   ///< for the origin of url only
    std::vector<HeaderField> rangeFields;              ///< for the server that answers in the end
    AddressReach nearest = AddressReach::ThisComputer; ///< no connection is made to a nearer address
};

[[nodiscard]] bool IsLoopback(QUrl const& url);
/// Same scheme, host and port, default ports counted.
[[nodiscard]] bool IsSameOrigin(QUrl const& a, QUrl const& b);

/// Why a feed must not be fetched from \a url; nothing when it may.
[[nodiscard]] std::optional<ErrorCause> JudgeFeedAddress(QUrl const& url, InsecureHttp insecureHttp);

/// Why an archive must not be downloaded from \a url, which a feed from \a feedReach names; nothing when it may. An
/// archive is never a file of this computer.
[[nodiscard]] std::optional<ErrorCause> JudgeArchiveAddress(QUrl const& url, AddressReach feedReach,
                                                            InsecureHttp insecureHttp);

/// The first request for \a url: user name and password of the address become an authorization field, or those of
/// \a feedUrl where \a url has none and is of the same origin.
FetchRequest RequestFor(QUrl const& url, QUrl const& feedUrl = QUrl());

/// True when an answer with \a status leads to another address.
[[nodiscard]] bool IsRedirect(int status);

/// Where the answer \a location to \a request leads, by hop number \a hop (from 1), or why it is not followed. The
/// fields go along while the origin stays the same; user name and password in \a location are dropped. It leads to no
/// address that is nearer than \a answeredFrom, where the answer came from.
[[nodiscard]] std::variant<FetchRequest, ErrorCause>
JudgeRedirect(FetchRequest const& request, AddressReach answeredFrom, std::vector<QByteArray> const& locations, int hop,
              InsecureHttp insecureHttp, FetchLimits const& limits);

/// True for bytes that begin as a web page does, no matter what XML would make of them: a network's login page, say.
[[nodiscard]] bool BeginsAsWebPage(QByteArray const& bytes);

} // namespace Pelnar::Engine
