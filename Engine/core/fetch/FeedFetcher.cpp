#include "Engine/core/fetch/FeedFetcher.h"

#include "Engine/core/fetch/FeedFile.h"
#include "Engine/core/fetch/HttpTransfer.h"

#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr int STATUS_NOT_MODIFIED = 304;
constexpr int STATUS_CONDITION_FAILED = 412;

} // namespace

FeedFetcher::FeedFetcher(FetchLimits const& limits, InsecureHttp insecureHttp, std::optional<KeptFeed> kept)
    : m_limits(limits), m_insecureHttp(insecureHttp), m_kept(std::move(kept))
{
    m_totalTimer.setSingleShot(true);
    connect(&m_totalTimer, &QTimer::timeout, this, [this] { Fail(MakeError(ErrorCause::TotalTimeout)); });
}

FeedFetcher::~FeedFetcher() = default;

void FeedFetcher::Start(QUrl const& url, std::function<void(FetchOutcome)> finished)
{
    m_feedUrl = url;
    m_finished = std::move(finished);
    // A refusal arrives later, like any other result.
    QTimer::singleShot(0, this, [this] { Begin(); });
}

void FeedFetcher::Begin()
{
    if (Result<void> const address = JudgeFeedAddress(m_feedUrl, m_insecureHttp); !address)
    {
        Fail(address.error());
        return;
    }
    if (m_feedUrl.isLocalFile())
    {
        ReadFile();
        return;
    }
    m_totalTimer.start(m_limits.totalTimeout);
    Send(RequestFor(m_feedUrl));
}

void FeedFetcher::ReadFile()
{
    Result<QByteArray> const bytes = ReadFeedFile(m_feedUrl, m_limits.maxBodyBytes);
    if (!bytes)
    {
        Fail(bytes.error());
        return;
    }
    FetchOutcome outcome;
    outcome.url = m_feedUrl;
    outcome.bytes = *bytes;
    outcome.reach = AddressReach::ThisComputer;
    Finish(std::move(outcome));
}

void FeedFetcher::Send(FetchRequest const& request)
{
    m_request = request;
    FetchRequest sent = request;
    // The condition is for the one address that answered; a redirect does not pass it on.
    m_isConditional = m_kept && m_kept->place == PlaceOf(m_feedUrl, request.url);
    if (m_isConditional)
    {
        sent.fields.push_back(ConditionOf(*m_kept));
    }
    m_transfer = std::make_unique<HttpTransfer>(sent, m_limits);
    connect(m_transfer.get(), &HttpTransfer::Failed, this, [this](EngineError const& error) { Fail(error); });
    connect(m_transfer.get(), &HttpTransfer::Completed, this, &FeedFetcher::TakeAnswer);
    m_transfer->Open();
}

void FeedFetcher::TakeAnswer()
{
    HttpHead const& head = m_transfer->Head();
    if (IsRedirect(head.status))
    {
        Result<FetchRequest> const next = JudgeRedirect(m_request, m_transfer->AnsweredFrom(), head.Values("location"),
                                                        ++m_redirects, m_insecureHttp, m_limits);
        if (!next)
        {
            Fail(next.error());
            return;
        }
        // The transfer is the sender of this call.
        m_transfer.release()->deleteLater();
        Send(*next);
        return;
    }
    if (m_isConditional && (head.status == STATUS_NOT_MODIFIED || head.status == STATUS_CONDITION_FAILED))
    {
        TakeUnchanged(head);
        return;
    }
    if (head.status != 200)
    {
        Fail(MakeHttpStatusError(head.status));
        return;
    }
    FetchOutcome outcome;
    outcome.url = m_request.url;
    outcome.bytes = m_transfer->Body();
    outcome.reach = m_transfer->AnsweredFrom();
    outcome.keepable = KeepableFeed(head, m_feedUrl, m_request.url, outcome.reach);
    if (outcome.keepable)
    {
        outcome.keepable->bytes = outcome.bytes;
    }
    Finish(std::move(outcome));
}

void FeedFetcher::TakeUnchanged(HttpHead const& head)
{
    KeptFeed const kept = *std::exchange(m_kept, std::nullopt);
    if (head.status != STATUS_NOT_MODIFIED || !IsAbout(kept, head, m_transfer->AnsweredFrom()))
    {
        // The answer is not about the kept feed: the whole feed is requested, once.
        m_transfer.release()->deleteLater();
        Send(FetchRequest(m_request));
        return;
    }
    FetchOutcome outcome;
    outcome.url = m_request.url;
    outcome.bytes = kept.bytes;
    outcome.reach = kept.reach;
    outcome.isUnchanged = true;
    outcome.keepable = ForbidsKeeping(head) ? std::nullopt : std::optional(kept);
    Finish(std::move(outcome));
}

void FeedFetcher::Fail(EngineError const& error)
{
    FetchOutcome outcome;
    outcome.error = error;
    Finish(std::move(outcome));
}

void FeedFetcher::Finish(FetchOutcome outcome)
{
    m_totalTimer.stop();
    if (m_transfer)
    {
        m_transfer->disconnect(this);
        m_transfer.release()->deleteLater();
    }
    std::function<void(FetchOutcome)> const finished = std::exchange(m_finished, nullptr);
    finished(std::move(outcome));
}

} // namespace Pelnar::Engine
