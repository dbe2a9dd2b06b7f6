#include "Engine/core/download/ArchiveDownload.h"

#include "Engine/core/download/ArchiveWriter.h"
#include "Engine/core/download/TransferRate.h"
#include "Engine/core/fetch/HttpTransfer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <glog/logging.h>

#include <algorithm>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr quint64 MAX_ARCHIVE_BYTES = quint64{16} << 30;
constexpr std::chrono::milliseconds PROGRESS_INTERVAL{100};
constexpr std::chrono::seconds CHECKPOINT_INTERVAL{10};
/// After a connection brings this many bytes, the count of attempts starts again.
constexpr qint64 WORTHWHILE_BYTES = 1024 * 1024;
/// For the heads of all answers of one attempt, including redirects.
constexpr qint64 USUAL_HEAD_BYTES = 8 * 1024;

PartialPlace PlaceFor(DownloadRequest const& request)
{
    return PlaceOf(request.folder, request.url, request.declaredBytes, request.signature);
}

} // namespace

class ArchiveDownload::Impl : public QObject, public IBodySink
{
public:
    explicit Impl(DownloadRequest request) : m_request(std::move(request))
    {
        m_resumeTimer.setSingleShot(true);
        m_progressTimer.setTimerType(Qt::CoarseTimer);
        connect(&m_resumeTimer, &QTimer::timeout, this, &Impl::AskAgain);
        connect(&m_checkpointTimer, &QTimer::timeout, this, [this] { m_writer->Checkpoint(Spent()); });
        connect(&m_turnTimer, &QTimer::timeout, this, [this] { Stop(ErrorCause::DownloadPaused); });
        connect(&m_budgetTimer, &QTimer::timeout, this, [this] { Stop(ErrorCause::DownloadTooLong); });
        connect(&m_trialTimer, &QTimer::timeout, this, &Impl::JudgePace);
        m_turnTimer.setSingleShot(true);
        m_budgetTimer.setSingleShot(true);
        connect(&m_progressTimer, &QTimer::timeout, this, &Impl::TellProgress);
    }

    ~Impl() override { DropTransfer(); }

    void Start(std::function<void(DownloadProgress const&)> progress, std::function<void(DownloadOutcome)> finished)
    {
        m_progress = std::move(progress);
        m_finished = std::move(finished);
        // A refusal arrives later, like any other result.
        QTimer::singleShot(0, this, [this] { Begin(); });
    }

private:
    void Begin()
    {
        if (Result<void> const address =
                JudgeArchiveAddress(m_request.url, m_request.feedReach, m_request.insecureHttp);
            !address)
        {
            Finish(Failure(AsDownloadError(address.error())));
            return;
        }
        if (m_request.declaredBytes == 0 || m_request.declaredBytes > MAX_ARCHIVE_BYTES)
        {
            Finish(Failure(ErrorCause::DownloadLengthInvalid));
            return;
        }
        ArchiveWriterEvents events;
        events.opened = [this](PartialArchive const& found, DownloadSpending const& spent)
        { TakeOpened(found, spent); };
        events.roomMade = [this]
        {
            if (m_transfer)
            {
                m_transfer->ReadOn();
            }
        };
        events.finished = [this](UniqueFd archive) { Finish(std::move(archive)); };
        events.failed = [this](EngineError const& error) { Finish(Failure(error)); };
        m_writer = std::make_unique<ArchiveWriter>(PlaceFor(m_request), std::move(events));
        m_writer->Open();
    }

    void TakeOpened(PartialArchive const& found, DownloadSpending const& spent)
    {
        m_partial = found;
        m_spent = spent;
        if (m_partial.bytes == m_partial.declaredBytes)
        {
            m_writer->Finish();
            return;
        }
        // The server may begin again.
        if (m_request.purpose == DownloadFor::Person &&
            !JudgeSpending(m_spent, m_partial.declaredBytes, m_partial.declaredBytes))
        {
            m_spent = {m_partial.bytes, 0, 0};
        }
        StartTimers();
        Ask();
    }

    void StartTimers()
    {
        m_clock.start();
        m_checkpointTimer.start(CHECKPOINT_INTERVAL);
        m_progressTimer.start(PROGRESS_INTERVAL);
        if (m_request.purpose == DownloadFor::Nobody)
        {
            m_turnTimer.start(m_request.unwatchedTurn);
            m_trialTimer.start(m_request.unwatchedTrial);
            m_receivedBefore = m_spent.receivedBytes;
        }
        std::uint64_t const seconds = BudgetOf(m_partial.declaredBytes).seconds;
        m_budgetTimer.start(std::chrono::seconds(seconds - std::min(seconds, m_spent.seconds)));
    }

    /// Ends a download that blocks checks for too little progress.
    void JudgePace()
    {
        std::uint64_t const budget = BudgetOf(m_partial.declaredBytes).seconds;
        std::uint64_t const left = budget - std::min(budget, Spent().seconds);
        auto const elapsed = static_cast<double>(std::max<qint64>(m_clock.elapsed(), 1)) / 1000;
        double const bytesPerSecond = static_cast<double>(m_spent.receivedBytes - m_receivedBefore) / elapsed;
        if (bytesPerSecond * static_cast<double>(left) < static_cast<double>(Missing()))
        {
            Stop(ErrorCause::TooSlow);
        }
    }

    quint64 Missing() const { return m_partial.declaredBytes - m_partial.bytes; }

    /// The spending including this run.
    DownloadSpending Spent() const
    {
        DownloadSpending spent = m_spent;
        spent.seconds += (static_cast<std::uint64_t>(m_clock.elapsed()) + 999) / 1000; // a started second counts
        return spent;
    }

    /// Requests the missing bytes.
    void Ask() { Ask(RangeFields(m_partial)); }

    /// A request for the whole archive that has brought nothing of it is repeated.
    void AskAgain()
    {
        bool const hasBegun = m_decision && m_decision->step == ResumeStep::Restart;
        m_sent.rangeFields.empty() && !hasBegun ? Ask({}) : Ask();
    }

    void Ask(std::vector<HeaderField> const& rangeFields)
    {
        quint64 const asked = rangeFields.empty() ? m_partial.declaredBytes : Missing();
        if (Result<void> const spending = JudgeSpending(Spent(), m_partial.declaredBytes, asked); !spending)
        {
            End(spending.error());
            return;
        }
        ++m_spent.attempts;
        m_writer->Count(Spent());
        m_redirects = 0;
        m_besideBody = 0;
        FetchRequest request = RequestFor(m_request.url, m_request.feedUrl);
        request.nearest = m_request.feedReach;
        request.rangeFields = rangeFields;
        Send(request);
    }

    void Send(FetchRequest const& request)
    {
        m_sent = request;
        m_decision.reset();
        m_transfer = std::make_unique<HttpTransfer>(request, m_request.limits, this);
        connect(m_transfer.get(), &HttpTransfer::Failed, this, &Impl::TakeFailure);
        connect(m_transfer.get(), &HttpTransfer::Completed, this, &Impl::TakeAnswer);
        m_transfer->Open();
    }

    /// The overhead of an attempt counts too, except usual heads.
    void CountBesideBody(qint64 bytes)
    {
        qint64 const before = std::max<qint64>(m_besideBody - USUAL_HEAD_BYTES, 0);
        m_besideBody += bytes;
        m_spent.receivedBytes += static_cast<quint64>(std::max<qint64>(m_besideBody - USUAL_HEAD_BYTES, 0) - before);
    }

    void DropTransfer()
    {
        if (m_transfer)
        {
            m_transfer->disconnect(this);
            CountBesideBody(m_transfer->BytesBesideBody());
            m_transfer->Abort();
            m_transfer.release()->deleteLater(); // it may be the sender of this call
        }
    }

    std::optional<qint64> BeginBody(HttpHead const& head) override
    {
        if (IsRedirect(head.status))
        {
            return std::nullopt;
        }
        m_decision = DecideResume(m_partial, head);
        if (m_decision->step == ResumeStep::Restart)
        {
            if (Result<void> const budget = JudgeBytes(m_partial.declaredBytes); !budget)
            {
                m_decision = {ResumeStep::Refuse, budget.error()};
                return std::nullopt;
            }
            m_partial.validators = StrongValidators(head);
            m_partial.bytes = 0;
            m_writer->Restart(m_partial.validators);
            m_rate = TransferRate();
        }
        if (m_decision->step != ResumeStep::Append && m_decision->step != ResumeStep::Restart)
        {
            return std::nullopt;
        }
        return static_cast<qint64>(Missing());
    }

    /// Fails if so many bytes are not allowed. The request for them is already counted.
    Result<void> JudgeBytes(std::uint64_t bytes) const
    {
        std::uint64_t const budget = BudgetOf(m_partial.declaredBytes).receivedBytes;
        bool const isWithin = m_spent.receivedBytes + bytes <= budget;
        return isWithin ? Result<void>() : Failure(ErrorCause::DownloadTooMuch);
    }

    BodyBuffer Buffer() override { return m_writer->Buffer(); }
    void Idle() override { m_writer->Flush(); }
    void Commit(qint64 bytes) override
    {
        m_writer->Commit(bytes);
        m_partial.bytes += static_cast<quint64>(bytes);
        m_spent.receivedBytes += static_cast<quint64>(bytes);
        m_hasReceived = true;
        m_sinceResume += bytes;
        if (m_sinceResume >= WORTHWHILE_BYTES)
        {
            m_resumes = 0;
        }
    }

    void TakeAnswer()
    {
        HttpHead const head = m_transfer->Head();
        AddressReach const answeredFrom = m_transfer->AnsweredFrom();
        DropTransfer();
        if (!m_decision)
        {
            Follow(head, answeredFrom);
            return;
        }
        switch (m_decision->step)
        {
        case ResumeStep::Append:
        case ResumeStep::Restart:
            TakeBodyEnd(head);
            return;
        case ResumeStep::HandOver:
            FinishArchive();
            return;
        case ResumeStep::AskWhole:
            AskWhole();
            return;
        case ResumeStep::Refuse:
            TakeFailure(*m_decision->error);
            return;
        }
    }

    void Follow(HttpHead const& head, AddressReach answeredFrom)
    {
        if (Result<void> const budget = JudgeBytes(Missing()); !budget)
        {
            End(budget.error());
            return;
        }
        Result<FetchRequest> const next = JudgeRedirect(m_sent, answeredFrom, head.Values("location"), ++m_redirects,
                                                        m_request.insecureHttp, m_request.limits);
        if (!next)
        {
            return TakeFailure(next.error());
        }
        Send(*next);
    }

    void TakeBodyEnd(HttpHead const& head)
    {
        if (m_partial.bytes == m_partial.declaredBytes)
        {
            FinishArchive();
            return;
        }
        // If only the connection's end ends a body, a broken connection and a short body look the same.
        Result<BodyPlan> const plan = JudgeFraming(head);
        bool const mayBeBroken = plan && plan->kind == BodyPlan::Kind::UntilClose;
        TakeFailure(MakeError(mayBeBroken ? ErrorCause::IncompleteBody : ErrorCause::DownloadLengthDiffers));
    }

    void FinishArchive()
    {
        m_writer->Count(Spent());
        m_writer->Finish();
    }

    void AskWhole()
    {
        if (std::exchange(m_hasAskedWhole, true))
        {
            TakeFailure(MakeError(ErrorCause::DownloadRangeWrong));
            return;
        }
        Ask({});
    }

    void TakeFailure(EngineError const& failure)
    {
        bool const isTooLarge = failure.cause == ErrorCause::BodyTooLarge;
        // The reader's limit was the declared length. The reader has received more than that, even if it passed on
        // less.
        m_spent.receivedBytes += isTooLarge ? Missing() : 0;
        EngineError const error = isTooLarge ? MakeError(ErrorCause::DownloadLengthDiffers) : AsDownloadError(failure);
        DropTransfer();
        m_writer->Flush();
        if (!m_hasReceived || !IsPassing(error) || m_resumes >= m_request.limits.maxResumes)
        {
            // Some servers and proxies fail at the range alone. The bytes stay until a whole answer begins.
            !m_sent.rangeFields.empty() && IsAnswersFault(error) && !std::exchange(m_hasAskedWhole, true) ? Ask({})
                                                                                                          : End(error);
            return;
        }
        LOG(INFO) << "The download continues after a pause: " << error.sentence.English().toStdString();
        m_resumeTimer.start(m_request.limits.firstResumePause * (1 << m_resumes));
        ++m_resumes;
        m_sinceResume = 0;
    }

    /// During a body or a pause.
    void Stop(ErrorCause cause)
    {
        DropTransfer();
        End(AsDownloadError(MakeError(cause)));
    }

    /// Keeps useful bytes and finishes.
    void End(EngineError const& error)
    {
        StopTimers();
        auto const done = [this, error] { Finish(Failure(error)); };
        bool const isBodyRefused = m_decision && m_decision->step != ResumeStep::Refuse;
        if (isBodyRefused && IsAboutTheArchive(error.cause))
        {
            return m_writer->Remove(Spent(), done);
        }
        m_writer->Close(Spent(), done);
    }

    void StopTimers()
    {
        for (QTimer* const timer :
             {&m_resumeTimer, &m_checkpointTimer, &m_progressTimer, &m_turnTimer, &m_trialTimer, &m_budgetTimer})
        {
            timer->stop();
        }
    }

    void TellProgress()
    {
        m_rate.Add(m_partial.bytes);
        // The listener may destroy this object.
        std::function<void(DownloadProgress const&)> const progress = m_progress;
        progress({m_partial.bytes, m_partial.declaredBytes, m_rate.BytesPerSecond()});
    }

    void Finish(DownloadOutcome outcome)
    {
        StopTimers();
        DropTransfer();
        m_writer.reset();
        std::function<void(DownloadOutcome)> const finished = std::exchange(m_finished, nullptr);
        finished(std::move(outcome));
    }

    DownloadRequest m_request;
    std::function<void(DownloadProgress const&)> m_progress;
    std::function<void(DownloadOutcome)> m_finished;
    std::unique_ptr<ArchiveWriter> m_writer;
    PartialArchive m_partial; ///< including the bytes that wait to be written
    std::unique_ptr<HttpTransfer> m_transfer;
    FetchRequest m_sent;
    std::optional<ResumeRules> m_decision; ///< none while there is no answer, or only a redirect
    int m_redirects = 0;
    int m_resumes = 0;        ///< since the last worthwhile connection
    qint64 m_sinceResume = 0; ///< bytes of this connection
    qint64 m_besideBody = 0;  ///< bytes of this attempt that do not belong to the archive
    bool m_hasReceived = false;
    bool m_hasAskedWhole = false;
    TransferRate m_rate;
    DownloadSpending m_spent; ///< without the time since m_clock was started
    QElapsedTimer m_clock;
    QTimer m_turnTimer;
    QTimer m_trialTimer;
    std::uint64_t m_receivedBefore = 0; ///< in this run
    QTimer m_budgetTimer;
    QTimer m_resumeTimer;
    QTimer m_checkpointTimer;
    QTimer m_progressTimer;
};

ArchiveDownload::ArchiveDownload(DownloadRequest request) : m_impl(std::make_unique<Impl>(std::move(request))) {}

ArchiveDownload::~ArchiveDownload() = default;

void ArchiveDownload::Start(std::function<void(DownloadProgress const&)> progress,
                            std::function<void(DownloadOutcome)> finished)
{
    m_impl->Start(std::move(progress), std::move(finished));
}

UniqueFd ArchiveDownload::Discard(DownloadRequest const& request)
{
    return RemovePartialFile(PlaceFor(request));
}

void ArchiveDownload::Clear(QString const& folder)
{
    ClearDownloadFolder(folder);
}

} // namespace Pelnar::Engine
