#include "Engine/core/check/CheckRun.h"

#include "Engine/core/check/DelegateCall.h"

#include <QTimer>

#include <glog/logging.h>

#include <chrono>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

/// A disk that hangs delays a check at most this long.
constexpr std::chrono::seconds LONGEST_WAIT_FOR_STORE{3};

char const* NameOf(OfferVerdict verdict)
{
    switch (verdict)
    {
    case OfferVerdict::Offered:
        return "offered";
    case OfferVerdict::NotNewer:
        return "not newer than the running bundle";
    case OfferVerdict::Skipped:
        return "skipped by the user";
    case OfferVerdict::Failed:
        return "rolled back here because it did not start well";
    case OfferVerdict::HeldBack:
        return "held back because its installation failed";
    }
    return "Unknown OfferVerdict";
}

/// Why no client can take the download of \a item; null if this is not known.
char const* DefectOf(FeedItem const& item)
{
    bool const mayInform = item.policy.isInformational || !item.policy.informationalFor.isEmpty() ||
                           !item.policy.informationalBelow.isEmpty();
    return mayInform                 ? nullptr
           : item.fileUrl.isEmpty()  ? "it has no valid download address"
           : item.contentLength == 0 ? "it has no valid length"
                                     : nullptr;
}

/// A feed from another computer must not give a person a link into this computer.
void DropNearerLinks(FeedItem& item, AddressReach feedReach)
{
    for (QUrl* const link : {&item.releaseNotesUrl, &item.infoUrl})
    {
        if (ReachOf(*link) > feedReach)
        {
            link->clear();
        }
    }
    for (FeedItem& delta : item.deltas)
    {
        DropNearerLinks(delta, feedReach);
    }
}

} // namespace

CheckRun::CheckRun(CheckKind kind, CheckSettings settings, ICheckHost& host, std::function<QDateTime()> now)
    : m_kind(kind)
    , m_settings(std::move(settings))
    , m_host(host)
    , m_now(std::move(now))
    , m_order([this](QString const& a, QString const& b) { return m_host.CompareVersions(a, b); })
{
}

void CheckRun::Start()
{
    if (!m_settings.feedStore)
    {
        Fetch(std::nullopt);
        return;
    }
    m_settings.feedStore->Ask(m_settings.fetchLimits.maxBodyBytes, this,
                              [this](std::optional<KeptFeed> const& kept) { FetchOnce(kept); });
    QTimer::singleShot(LONGEST_WAIT_FOR_STORE, this, [this] { FetchOnce(std::nullopt); });
}

void CheckRun::FetchOnce(std::optional<KeptFeed> const& kept)
{
    if (std::exchange(m_hasBegun, true))
    {
        return;
    }
    m_hasKeptFeed = kept.has_value();
    bool const isFresh = kept && IsFresh(*kept, m_now().toSecsSinceEpoch());
    Fetch(isFresh ? kept : std::nullopt);
}

void CheckRun::Fetch(std::optional<KeptFeed> kept)
{
    m_fetcher = std::make_unique<FeedFetcher>(m_settings.fetchLimits, m_settings.insecureHttp, std::move(kept));
    m_fetcher->Start(m_settings.feedUrl, [this](FetchOutcome const& outcome) { TakeFeed(outcome); });
}

void CheckRun::Refuse(EngineError const& error)
{
    QMetaObject::invokeMethod(
        this,
        [this, error]
        {
            Abort(error);
            m_host.CheckEnded();
        },
        Qt::QueuedConnection);
}

void CheckRun::TakeFeed(FetchOutcome const& outcome)
{
    Result<void> const read = outcome.error ? Failure(*outcome.error) : ReadFeed(outcome);
    if (!read)
    {
        if (outcome.isUnchanged)
        {
            // The server may have another feed with the same tag.
            LOG(WARNING) << "The kept update feed was refused and removed; the whole feed is requested: "
                         << read.error().sentence.English().toStdString();
            m_settings.feedStore->Keep(std::nullopt);
            m_fetcher.release()->deleteLater(); // it is on the stack below this call
            Fetch(std::nullopt);
            return;
        }
        bool const hasAnswered = !outcome.error || outcome.error->httpStatus != 0;
        if (m_hasKeptFeed && hasAnswered)
        {
            // Some servers and proxies fail at the condition alone: the next check asks without one.
            m_settings.feedStore->Keep(std::nullopt);
        }
        Abort(read.error());
        m_host.CheckEnded();
        return;
    }

    Result<std::optional<FoundUpdate>> found;
    Result<void> const called = CallDelegate("choosing an update",
                                             [this, &found]
                                             {
                                                 ApplyPolicy();
                                                 m_host.FeedLoaded(m_items);
                                                 found = Choose();
                                             });
    if (called && found)
    {
        Tell(*found);
    }
    else
    {
        Abort(called ? found.error() : called.error());
    }
    m_host.CheckEnded();
}

Result<void> CheckRun::ReadFeed(FetchOutcome const& outcome)
{
    QDateTime const now = m_now();
    auto believed = BelieveKeys(
        outcome.bytes,
        {m_settings.publicKeys, m_settings.rootPublicKey, m_settings.bundleIdentifier, m_settings.feedRecord.keySerial},
        now);
    if (!believed)
    {
        return Failure(believed.error());
    }
    m_keys = *std::move(believed);
    m_settings.feedRecord = UnderKeys(m_settings.feedRecord, m_keys);
    bool const mustBeSigned = m_settings.feedSigning == FeedSigning::Required;
    QByteArray content = outcome.bytes;
    if (mustBeSigned)
    {
        auto verified = VerifyFeed(outcome.bytes, m_keys.keys);
        if (!verified)
        {
            return Failure(verified.error());
        }
        content = *std::move(verified);
    }
    if (content.trimmed().isEmpty())
    {
        return Failure(ErrorCause::FeedEmpty);
    }
    FeedParseResult result = ParseFeed(content, outcome.url, {m_settings.platform, m_settings.machine},
                                       m_settings.feedLimits, m_settings.languages);
    if (!result)
    {
        // Many pages begin with a declaration that would otherwise be reported as another error.
        return Failure(BeginsAsWebPage(content) ? MakeError(ErrorCause::FeedIsWebPage) : MakeFeedError(result.error()));
    }
    std::optional<FeedValidity> terms;
    if (mustBeSigned)
    {
        auto judged = JudgeTerms(outcome, result->channel, now);
        if (!judged)
        {
            return Failure(judged.error());
        }
        terms = *std::move(judged);
    }
    m_items = std::move(result->items);
    m_feedReach = outcome.reach;
    for (FeedItem& item : m_items)
    {
        DropNearerLinks(item, m_feedReach);
    }
    LOG_IF(INFO, outcome.isUnchanged) << "The update feed has not changed since it was last fetched";
    Remember(outcome.bytes, terms, now);
    KeepFeed(outcome);
    return {};
}

Result<FeedValidity> CheckRun::JudgeTerms(FetchOutcome const& outcome, FeedChannel const& channel,
                                          QDateTime const& now) const
{
    Result<FeedValidity> terms = ReadFeedValidity(channel);
    if (!terms)
    {
        return terms;
    }
    if (Result<void> const verdict = JudgeFeedValidity(*terms, m_settings.feedRecord.serial, now); !verdict)
    {
        return Failure(verdict.error());
    }
    // Only a root key can revoke the key that signed.
    terms->signer = m_settings.rootPublicKey.empty() ? std::string() : FeedSigner(outcome.bytes, m_keys.keys);
    return terms;
}

void CheckRun::KeepFeed(FetchOutcome const& outcome)
{
    bool const isThere = outcome.isUnchanged && outcome.keepable;
    if (!m_settings.feedStore || isThere || (!outcome.keepable && !m_hasKeptFeed))
    {
        return;
    }
    std::optional<KeptFeed> feed = outcome.keepable;
    if (feed)
    {
        feed->cameAt = m_now().toSecsSinceEpoch();
    }
    m_settings.feedStore->Keep(std::move(feed));
}

void CheckRun::Remember(QByteArray const& bytes, std::optional<FeedValidity> const& terms, QDateTime const& now)
{
    FeedRecord const record = AfterFeed(m_settings.feedRecord, m_settings.feedUrl, bytes, terms, now);
    int const days = UnchangedDays(record);
    LOG_IF(WARNING, days >= STALE_FEED_DAYS) << "The update feed has not changed for " << days
                                             << " days. If a newer one was published, it does not reach this computer";
    // A failure to store this must not prevent an update.
    (void)CallDelegate("storing the feed's record", [&] { m_host.StoreFeedRecord(record); });
}

void CheckRun::ApplyPolicy()
{
    Installation installation{m_settings.bundleVersion, m_settings.machine, m_settings.channels, {}, m_now(), {}, {}};
    for (std::string const& id :
         m_keys.keys.Fault() == UpdateFault::None ? m_keys.keys.Ids() : std::vector<std::string>())
    {
        installation.trustedKeys.append(QString::fromStdString(id));
    }
    // Deliberate: a probe counts as automatic, because every check begins with one. A person who asks sees the window
    // even if the probe found nothing, and the check of that window counts as theirs.
    if (m_kind != CheckKind::Interactive)
    {
        installation.rolloutGroup = m_settings.rolloutGroup;
    }
    VersionOrder const order = [this](QString const& a, QString const& b) { return m_order.Compare(a, b); };
    LeaveOut(m_items, installation, order);
    int defects = 0;
    for (FeedItem const& item : m_items)
    {
        char const* const defect = DefectOf(item);
        bool const isMissed = defect && order(item.versionString, m_settings.bundleVersion) > 0;
        LOG_IF(WARNING, isMissed && ++defects <= MAX_LOGGED_ITEMS)
            << "The feed's item " << EscapedRemoteText(item.versionString).toStdString()
            << " cannot be offered, because " << defect;
    }
    LOG_IF(WARNING, defects > MAX_LOGGED_ITEMS)
        << "The feed has " << defects - MAX_LOGGED_ITEMS << " more items that cannot be offered";
    LOG_IF(WARNING, m_order.Uncompared() > 0)
        << "The feed has " << m_order.Uncompared() << " more versions that cannot be read";
}

Result<std::optional<FoundUpdate>> CheckRun::Choose()
{
    VersionOrder const order = [this](QString const& a, QString const& b) { return m_order.Compare(a, b); };
    BestItemAnswer answer = m_host.AskForBestItem();
    std::optional<ItemIndex> fallback;
    if (answer.kind == BestItemAnswer::Kind::Place && answer.place.delta)
    {
        // The full item as the fallback: requested once, with any answer. The delta remains the offer.
        BestItemAnswer const second = m_host.AskForBestItem();
        if (second.kind == BestItemAnswer::Kind::Foreign)
        {
            answer = second;
        }
        else if (second.kind == BestItemAnswer::Kind::Place && !second.place.delta)
        {
            fallback = second.place;
        }
    }
    switch (answer.kind)
    {
    case BestItemAnswer::Kind::None:
        return std::nullopt;
    case BestItemAnswer::Kind::Foreign:
        return Failure(ErrorCause::ForeignItem);
    case BestItemAnswer::Kind::NotAsked:
    {
        std::optional<int> const newest = NewestItem(m_items, order);
        if (!newest)
        {
            return std::nullopt;
        }
        answer.place = {*newest, std::nullopt};
        break;
    }
    case BestItemAnswer::Kind::Place:
        break;
    }
    OfferVerdict const verdict =
        JudgeOffer({m_kind, At(answer.place).versionString, m_settings.bundleVersion, m_settings.skippedVersion,
                    m_settings.failedVersion, m_settings.heldBackVersion, At(answer.place).isCritical},
                   order);
    LOG_IF(INFO, verdict != OfferVerdict::Offered)
        << "Update " << EscapedRemoteText(At(answer.place).versionString).toStdString() << " is " << NameOf(verdict);
    m_hasPutOff =
        verdict == OfferVerdict::Skipped || verdict == OfferVerdict::Failed || verdict == OfferVerdict::HeldBack;
    if (verdict == OfferVerdict::HeldBack)
    {
        return Failure(ErrorCause::HeldBack);
    }
    if (verdict != OfferVerdict::Offered)
    {
        return std::nullopt;
    }
    // The fallback is the same update: a person who agrees to one version must not get another.
    bool const isSameVersion = fallback && order(At(*fallback).versionString, At(answer.place).versionString) == 0;
    return FoundUpdate{answer.place, isSameVersion ? fallback : std::nullopt, m_feedReach, m_keys.keys};
}

FeedItem const& CheckRun::At(ItemIndex const& place) const
{
    FeedItem const& item = m_items.at(static_cast<size_t>(place.item));
    return place.delta ? item.deltas.at(static_cast<size_t>(*place.delta)) : item;
}

void CheckRun::Tell(std::optional<FoundUpdate> const& found)
{
    Result<void> const told =
        found ? CallDelegate("updater:didFindValidUpdate:", [this, &found] { m_host.TellFound(*found); })
              : CallDelegate("updaterDidNotFindUpdate:", [this] { m_host.TellNotFound(); });
    if (!told)
    {
        Abort(told.error());
    }
    else if (!found && m_kind != CheckKind::Probe)
    {
        // After the other message and in the same turn: it ends the wait of a silent download.
        Abort(MakeError(ErrorCause::NoUpdate));
    }
}

void CheckRun::Abort(EngineError const& error)
{
    // The report was attempted; the check ends in any case.
    (void)CallDelegate("updater:didAbortWithError:", [this, &error] { m_host.TellAborted(error); });
}

} // namespace Pelnar::Engine
