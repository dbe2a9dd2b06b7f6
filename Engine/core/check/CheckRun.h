// CheckRun.h: one check, from the feed's address to the outcome: fetch, parse, ask, judge, tell.
// Thread: the one that made it, with Qt's event loop. Ownership: the updater owns the run and is its host; the run owns
// the fetch and the items.
#pragma once

#include "Engine/core/EngineError.h"
#include "Engine/core/check/CheckPolicy.h"
#include "Engine/core/check/FeedRecord.h"
#include "Engine/core/check/FeedTrust.h"
#include "Engine/core/check/IFeedStore.h"
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
    InsecureHttp insecureHttp = InsecureHttp::LoopbackOnly;
    FetchLimits fetchLimits;
    FeedLimits feedLimits;
    FeedSigning feedSigning = FeedSigning::NotAsked;
    TrustedKeys publicKeys;          ///< of the running bundle
    std::string rootPublicKey;       ///< base64; empty when the running bundle has none
    std::string bundleIdentifier;    ///< of the running bundle
    FeedRecord feedRecord;           ///< of the last check
    IFeedStore* feedStore = nullptr; ///< outlives the check; null when no feed is kept
};

/// An item of the loaded feed, or a delta of one.
struct ItemPlace
{
    int item = 0;
    std::optional<int> delta;
};

/// What a check leads to.
struct FoundUpdate
{
    ItemPlace place;
    std::optional<ItemPlace> fallback; ///< of a delta: the whole item of the same version, if the application gave one
    AddressReach feedReach = AddressReach::Network; ///< of the place where the feed came from
    TrustedKeys publicKeys;                         ///< by which its downloads are judged
};

/// What the application answered when it was asked for the best item.
struct BestItemAnswer
{
    enum class Kind
    {
        None,
        Place,
        Foreign,  ///< something that is not of this feed
        NotAsked, ///< the application leaves the choice to the engine
    };
    Kind kind = Kind::None;
    ItemPlace place;
};

/// The updater as a check sees it. What an operation throws is taken for a failure of the application.
class ICheckHost
{
public:
    virtual ~ICheckHost() = default;

    /// The feed can be read and, where it must, is signed: to be remembered for the next check.
    virtual void StoreFeedRecord(FeedRecord const& record) = 0;
    /// \a items live as long as the run.
    virtual void FeedLoaded(std::vector<FeedItem> const& items) = 0;
    virtual BestItemAnswer AskForBestItem() = 0;
    /// As VersionOrder.
    virtual int CompareVersions(QString const& a, QString const& b) = 0;
    virtual void TellFound(FoundUpdate const& found) = 0;
    virtual void TellNotFound() = 0;
    virtual void TellAborted(EngineError const& error) = 0;
    /// The last call. The run may be deleted later (deleteLater) from here on.
    virtual void CheckEnded() = 0;
};

class CheckRun : public QObject
{
    Q_OBJECT
public:
    CheckRun(CheckKind kind, CheckSettings settings, ICheckHost& host, std::function<QDateTime()> now);

    /// Everything that the host hears comes later, from the event loop.
    void Start();
    /// In place of Start: the check ends with \a error, and nothing is fetched.
    void Refuse(EngineError const& error);

    /// Whether there is an update that is not offered for now: a skipped one, or one that did not start well.
    [[nodiscard]] bool HasPutOff() const { return m_hasPutOff; }

private:
    /// The first of two calls begins: by the store's answer, or without it.
    void FetchOnce(std::optional<KeptFeed> const& kept);
    /// \a kept need not be sent again, if its server has no other feed by now.
    void Fetch(std::optional<KeptFeed> kept);
    void TakeFeed(FetchOutcome const& outcome);
    /// The items of what was fetched become the run's, or an error says why not.
    std::optional<EngineError> ReadFeed(FetchOutcome const& outcome);
    /// The terms of a feed that must be signed, or why it is refused.
    std::variant<FeedTerms, EngineError> JudgeTerms(FetchOutcome const& outcome, FeedChannel const& channel,
                                                    QDateTime const& now) const;
    void KeepFeed(FetchOutcome const& outcome);
    void Remember(QByteArray const& bytes, std::optional<FeedTerms> const& terms, QDateTime const& now);
    /// Asks the host and judges its answer: what to offer, or nothing; an error when the answer is of no use.
    std::optional<FoundUpdate> Choose(std::optional<EngineError>& error);
    FeedItem const& At(ItemPlace const& place) const;
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
    BelievedKeys m_keys; ///< by which the loaded feed was judged
};

} // namespace Pelnar::Engine
