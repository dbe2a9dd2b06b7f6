// FeedFetcher.h: fetches the bytes of a feed from a server or a file, under the rules and limits of FetchRules.h.
// Thread: its maker's, with Qt's event loop. Ownership: its maker owns it. Destroying it cancels the fetch, and no
// callback follows.
#pragma once

#include "Engine/core/faults/EngineError.h"
#include "Engine/core/fetch/FetchRules.h"
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
    QUrl url;         ///< the address of the feed after redirects, without user name and password
    QByteArray bytes; ///< whole; empty on error
    AddressReach reach = AddressReach::Network; ///< of the place that the feed came from
    bool isUnchanged = false;                   ///< the bytes are those of the kept feed
    std::optional<KeptFeed> keepable;           ///< the feed, if it may be kept; its time is not set if it has changed
};

class FeedFetcher : public QObject
{
    Q_OBJECT
public:
    /// The request to the server that \a kept came from carries the validator of the kept version.
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
    bool m_isConditional = false; ///< the current request carries the condition of m_kept
    std::function<void(FetchOutcome)> m_finished;
    QTimer m_totalTimer;
    FetchRequest m_request;
    int m_redirects = 0;
    std::unique_ptr<HttpTransfer> m_transfer;
};

} // namespace Pelnar::Engine
