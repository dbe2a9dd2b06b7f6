#include "Engine/core/fetch/FeedFetcher.h"

#include "Engine/core/fetch/HttpTransfer.h"

#include <QFile>
#include <QFileInfo>

#include <utility>
#include <variant>

namespace Pelnar::Engine
{

FeedFetcher::FeedFetcher(FetchLimits const& limits, InsecureHttp insecureHttp)
    : m_limits(limits), m_insecureHttp(insecureHttp)
{
    m_totalTimer.setSingleShot(true);
    connect(&m_totalTimer, &QTimer::timeout, this, [this] { Fail(MakeError(ErrorCause::TotalTimeout)); });
}

FeedFetcher::~FeedFetcher() = default;

void FeedFetcher::Start(QUrl const& url, std::function<void(FetchOutcome)> finished)
{
    m_finished = std::move(finished);
    // A refusal arrives like any other outcome: later.
    QTimer::singleShot(0, this, [this, url] { Begin(url); });
}

void FeedFetcher::Begin(QUrl const& url)
{
    if (std::optional<ErrorCause> const cause = JudgeFeedAddress(url, m_insecureHttp))
    {
        Fail(MakeError(*cause));
        return;
    }
    if (url.isLocalFile())
    {
        ReadFile(url);
        return;
    }
    m_totalTimer.start(m_limits.totalTimeout);
    Send(RequestFor(url));
}

void FeedFetcher::ReadFile(QUrl const& url)
{
    QString const path = url.toLocalFile();
    QFileInfo const info(path);
    if (!info.exists())
    {
        Fail(MakeError(ErrorCause::FileNotFound));
        return;
    }
    // Opening a pipe would wait for a writer, and a device may have no end.
    if (!info.isFile())
    {
        Fail(MakeError(ErrorCause::FileNotRegular));
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        Fail(MakeError(ErrorCause::FileUnreadable, file.errorString()));
        return;
    }
    QByteArray const bytes = file.read(m_limits.maxBodyBytes + 1);
    if (file.error() != QFileDevice::NoError)
    {
        Fail(MakeError(ErrorCause::FileUnreadable, file.errorString()));
        return;
    }
    if (bytes.size() > m_limits.maxBodyBytes)
    {
        Fail(MakeError(ErrorCause::FileTooLarge));
        return;
    }
    Finish({std::nullopt, url, bytes, AddressReach::ThisComputer});
}

void FeedFetcher::Send(FetchRequest const& request)
{
    m_request = request;
    m_transfer = std::make_unique<HttpTransfer>(request, m_limits);
    connect(m_transfer.get(), &HttpTransfer::Failed, this, [this](EngineError const& error) { Fail(error); });
    connect(m_transfer.get(), &HttpTransfer::Completed, this, &FeedFetcher::TakeAnswer);
    m_transfer->Open();
}

void FeedFetcher::TakeAnswer()
{
    HttpHead const& head = m_transfer->Head();
    if (IsRedirect(head.status))
    {
        std::variant<FetchRequest, ErrorCause> const next = JudgeRedirect(
            m_request, m_transfer->AnsweredFrom(), head.Values("location"), ++m_redirects, m_insecureHttp, m_limits);
        if (ErrorCause const* const cause = std::get_if<ErrorCause>(&next))
        {
            Fail(MakeError(*cause));
            return;
        }
        // The transfer is the sender of this very call.
        m_transfer.release()->deleteLater();
        Send(std::get<FetchRequest>(next));
        return;
    }
    if (head.status != 200)
    {
        Fail(MakeHttpStatusError(head.status));
        return;
    }
    Finish({std::nullopt, m_request.url, m_transfer->Body(), m_transfer->AnsweredFrom()});
}

void FeedFetcher::Fail(EngineError const& error)
{
    Finish({error, {}, {}, {}});
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
