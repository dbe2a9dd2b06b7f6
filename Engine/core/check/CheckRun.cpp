#include "Engine/core/check/CheckRun.h"

#include <glog/logging.h>

#include <exception>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

/// Runs \a call; the error that stands for what it throws, or nothing. The one place where failures of the
/// application's code end.
std::optional<EngineError> FailureOf(char const* what, std::function<void()> const& call)
{
    QString reason;
    try
    {
        call();
        return std::nullopt;
    }
    catch (std::exception const& exception)
    {
        reason = QString::fromUtf8(exception.what());
    }
    catch (...)
    {
        reason = QStringLiteral("an exception of an unknown type");
    }
    EngineError error = MakeError(ErrorCause::DelegateRaised, reason);
    LOG(ERROR) << "Exception from the updater's delegate in " << what << ": " << error.detail.toStdString();
    return error;
}

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
    }
    return "Unknown OfferVerdict";
}

} // namespace

CheckRun::CheckRun(CheckKind kind, CheckSettings settings, ICheckHost& host)
    : m_kind(kind)
    , m_settings(std::move(settings))
    , m_host(host)
    , m_fetcher(m_settings.fetchLimits, m_settings.insecureHttp)
{
}

void CheckRun::Start()
{
    m_fetcher.Start(m_settings.feedUrl, [this](FetchOutcome const& outcome) { TakeFeed(outcome); });
}

void CheckRun::TakeFeed(FetchOutcome const& outcome)
{
    if (outcome.error)
    {
        Abort(*outcome.error);
        m_host.CheckEnded();
        return;
    }
    FeedParseResult result =
        ParseFeed(outcome.bytes, outcome.url, m_settings.platform, m_settings.feedLimits, m_settings.languages);
    if (!result.HasSucceeded())
    {
        // The declaration that many pages begin with would count as an error of its own.
        Abort(BeginsAsWebPage(outcome.bytes) ? MakeError(ErrorCause::FeedIsWebPage) : MakeFeedError(result.error));
        m_host.CheckEnded();
        return;
    }
    m_items = std::move(result.items);

    std::optional<EngineError> error;
    std::optional<ItemPlace> place;
    std::optional<EngineError> const failure = FailureOf("the choice of an update",
                                                         [this, &place, &error]
                                                         {
                                                             m_host.FeedLoaded(m_items);
                                                             place = Choose(error);
                                                         });
    if (failure || error)
    {
        Abort(failure ? *failure : *error);
    }
    else
    {
        Tell(place);
    }
    m_host.CheckEnded();
}

std::optional<ItemPlace> CheckRun::Choose(std::optional<EngineError>& error)
{
    VersionOrder const order = [this](QString const& a, QString const& b) { return m_host.CompareVersions(a, b); };
    BestItemAnswer answer = m_host.AskForBestItem();
    if (answer.kind == BestItemAnswer::Kind::Place && answer.place.delta)
    {
        // The whole item to fall back on: asked for once, whatever the answer. What is offered stays the delta.
        BestItemAnswer const fallback = m_host.AskForBestItem();
        if (fallback.kind == BestItemAnswer::Kind::Foreign)
        {
            answer = fallback;
        }
    }
    switch (answer.kind)
    {
    case BestItemAnswer::Kind::None:
        return std::nullopt;
    case BestItemAnswer::Kind::Foreign:
        error = MakeError(ErrorCause::ForeignItem);
        return std::nullopt;
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
    OfferVerdict const verdict = JudgeOffer(
        {m_kind, At(answer.place).versionString, m_settings.bundleVersion, m_settings.skippedVersion}, order);
    LOG_IF(INFO, verdict != OfferVerdict::Offered)
        << "Update " << EscapedRemoteText(At(answer.place).versionString).toStdString() << " is " << NameOf(verdict);
    return verdict == OfferVerdict::Offered ? std::optional(answer.place) : std::nullopt;
}

FeedItem const& CheckRun::At(ItemPlace const& place) const
{
    FeedItem const& item = m_items.at(static_cast<size_t>(place.item));
    return place.delta ? item.deltas.at(static_cast<size_t>(*place.delta)) : item;
}

void CheckRun::Tell(std::optional<ItemPlace> const& place)
{
    std::optional<EngineError> const failure =
        place ? FailureOf("updater:didFindValidUpdate:", [this, &place] { m_host.TellFound(*place); })
              : FailureOf("updaterDidNotFindUpdate:", [this] { m_host.TellNotFound(); });
    if (failure)
    {
        Abort(*failure);
    }
    else if (!place && m_kind != CheckKind::Probe)
    {
        // After the other message and in the same turn: it is what ends a silent download's wait.
        Abort(MakeError(ErrorCause::NoUpdate));
    }
}

void CheckRun::Abort(EngineError const& error)
{
    // It has been told as far as it can be; the check ends all the same.
    (void)FailureOf("updater:didAbortWithError:", [this, &error] { m_host.TellAborted(error); });
}

} // namespace Pelnar::Engine
