// CheckRun.h: one check, from the feed's address to the result: fetch, parse, ask, judge, report.
// Thread: its maker's, with Qt's event loop. Ownership: the updater owns the run and is its host; the run owns the
// fetch and the items.
#pragma once

#include "Engine/core/check/CheckRules.h"
#include "Engine/core/check/FeedRecord.h"
#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/check/IFeedStore.h"
#include "Engine/core/check/SparingOrder.h"
#include "Engine/core/faults/EngineError.h"
#include "Engine/core/feed/FeedParser.h"
#include "Engine/core/fetch/FeedFetcher.h"

#include <QObject>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Pelnar::Engine
{

struct CheckSettings
{
    QUrl feedUrl;
    QString bundleVersion;
    QString skippedVersion;
    QString failedVersion;   ///< see OfferQuestion
    QString heldBackVersion; ///< see OfferQuestion
    QStringList languages;
    FeedPlatform platform = FeedPlatform::Linux;
    QString machine;      ///< see Installation
    QStringList channels; ///< see Installation
    /// See Installation; ignored in a check that a person requested.
    std::function<int(QString const&)> rolloutGroup;
    InsecureHttp insecureHttp = InsecureHttp::LoopbackOnly;
    FetchLimits fetchLimits;
    FeedLimits feedLimits;
    FeedSigning feedSigning = FeedSigning::NotAsked;
    TrustedKeys publicKeys;          ///< of the running bundle
    std::string rootPublicKey;       ///< base64; empty if the running bundle has none
    std::string bundleIdentifier;    ///< of the running bundle
    FeedRecord feedRecord;           ///< from the last check
    IFeedStore* feedStore = nullptr; ///< outlives the check; null if no feed is kept
};

/// An item of the loaded feed, or a delta of one.
struct ItemIndex
{
    int item = 0;
    std::optional<int> delta;
};

/// The result of a check.
struct FoundUpdate
{
    ItemIndex place;
    std::optional<ItemIndex> fallback; ///< for a delta: the full item of the same version, if the application gave one
    AddressReach feedReach = AddressReach::Network; ///< of the place that the feed came from
    TrustedKeys publicKeys;                         ///< with which its downloads are verified
};

/// The application's answer to the question for the best item.
struct BestItemAnswer
{
    enum class Kind
    {
        None,
        Place,
        Foreign,  ///< an item that does not belong to this feed
        NotAsked, ///< the application leaves the choice to the engine
    };
    Kind kind = Kind::None;
    ItemIndex place;
};

/// The updater as a check sees it. An exception of an operation counts as a failure of the application.
class ICheckHost
{
public:
    virtual ~ICheckHost() = default;

    /// The feed was read, and verified if required: store it for the next check.
    virtual void StoreFeedRecord(FeedRecord const& record) = 0;
    /// \a items live as long as the run.
    virtual void FeedLoaded(std::vector<FeedItem> const& items) = 0;
    virtual BestItemAnswer AskForBestItem() = 0;
    /// Like VersionOrder.
    virtual int CompareVersions(QString const& a, QString const& b) = 0;
    virtual void TellFound(FoundUpdate const& found) = 0;
    virtual void TellNotFound() = 0;
    virtual void TellAborted(EngineError const& error) = 0;
    /// The last call. The run may be deleted later (deleteLater) from now on.
    virtual void CheckEnded() = 0;
};

class CheckRun : public QObject
{
    Q_OBJECT
public:
    CheckRun(CheckKind kind, CheckSettings settings, ICheckHost& host, std::function<QDateTime()> now);

    /// Every call of the host comes later, from the event loop.
    void Start();
    /// Instead of Start: the check ends with \a error, and nothing is fetched.
    void Refuse(EngineError const& error);

    /// True if an update exists but is not offered for now: it was skipped or did not start well.
    [[nodiscard]] bool HasPutOff() const { return m_hasPutOff; }

private:
    /// The store's answer and the time-out both call this; the first call starts the fetch.
    void FetchOnce(std::optional<KeptFeed> const& kept);
    /// \a kept need not be sent again if it is still current.
    void Fetch(std::optional<KeptFeed> kept);
    void TakeFeed(FetchOutcome const& outcome);
    /// The fetched items become the run's.
    Result<void> ReadFeed(FetchOutcome const& outcome);
    /// The terms of a feed that must be signed, or why it is refused.
    Result<FeedValidity> JudgeTerms(FetchOutcome const& outcome, FeedChannel const& channel,
                                    QDateTime const& now) const;
    void KeepFeed(FetchOutcome const& outcome);
    void Remember(QByteArray const& bytes, std::optional<FeedValidity> const& terms, QDateTime const& now);
    /// Removes the items that are not for this installation.
    void ApplyPolicy();
    /// Asks the host and judges its answer. Returns the update to offer, or nothing; fails if the answer is unusable.
    Result<std::optional<FoundUpdate>> Choose();
    FeedItem const& At(ItemIndex const& place) const;
    void Tell(std::optional<FoundUpdate> const& found);
    void Abort(EngineError const& error);

    CheckKind m_kind;
    CheckSettings m_settings;
    ICheckHost& m_host;
    std::function<QDateTime()> m_now;
    std::unique_ptr<FeedFetcher> m_fetcher;
    bool m_hasBegun = false;
    bool m_hasKeptFeed = false; ///< from an earlier check
    AddressReach m_feedReach = AddressReach::Network;
    std::vector<FeedItem> m_items;
    bool m_hasPutOff = false;
    SparingOrder m_order;
    BelievedKeys m_keys; ///< with which the loaded feed was verified
};

} // namespace Pelnar::Engine
