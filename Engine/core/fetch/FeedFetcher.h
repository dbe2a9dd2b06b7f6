// FeedFetcher.h: brings the bytes of a feed from a server or a file, behind the rules and limits of FetchPolicy.h.
// Thread: the one that made it, with Qt's event loop. Ownership: owned by its maker; destroying it drops the fetch and
// nothing is called any more.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/fetch/FetchPolicy.h"
#include "Engine/core/fetch/KeptFeed.h"

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

struct HttpHead;
class HttpTransfer;

struct FetchOutcome
{
    std::optional<EngineError> error;
    QUrl url;         ///< where the feed came from, after redirects, without user name and password
    QByteArray bytes; ///< whole; empty on error
    AddressReach reach = AddressReach::Network; ///< of the place where it came from
    bool isUnchanged = false;                   ///< the bytes are those of the kept feed
    std::optional<KeptFeed> keepable; ///< the feed, when it may be kept; its time is not set if it has changed
};

class FeedFetcher : public QObject
{
    Q_OBJECT
public:
    /// The server that \a kept came from is told which version is here already.
    FeedFetcher(FetchLimits const& limits, InsecureHttp insecureHttp, std::optional<KeptFeed> kept = std::nullopt);
    ~FeedFetcher() override;

    /// Fetches \a url and calls \a finished once, later, from the event loop. REQUIRES: called once.
    void Start(QUrl const& url, std::function<void(FetchOutcome)> finished);

private:
    void Begin();
    void ReadFile();
    void Send(FetchRequest const& request);
    void TakeAnswer();
    void TakeUnchanged(HttpHead const& head);
    void Fail(EngineError const& error);
    void Finish(FetchOutcome outcome);

    FetchLimits m_limits;
    InsecureHttp m_insecureHttp;
    std::optional<KeptFeed> m_kept;
    QUrl m_feedUrl;
    bool m_isConditional = false; ///< the request that is under way carries the condition of m_kept
    std::function<void(FetchOutcome)> m_finished;
    QTimer m_totalTimer;
    FetchRequest m_request;
    int m_redirects = 0;
    std::unique_ptr<HttpTransfer> m_transfer;
};

} // namespace Pelnar::Engine
