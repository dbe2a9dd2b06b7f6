#include "Engine/core/fetch/HttpTransfer.h"

#include "Engine/core/fetch/HttpTransferCallbacks_p.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Pelnar::Engine
{
namespace
{

constexpr int SAMPLES_IN_WINDOW = 20;
/// Bytes may wait this long for more before they go to the disk.
constexpr std::chrono::milliseconds REST_INTERVAL{10};
constexpr int STATUS_NOT_MODIFIED = 304;
constexpr int STATUS_PROXY_ASKS = 407;
/// Limit of the overhead of chunks, records and their padding: this number, plus a quarter of the answer.
constexpr qint64 FREE_FRAMING_BYTES = 1024 * 1024;
constexpr qint64 ANSWER_PER_FRAMING = 4;

} // namespace

HttpTransfer::HttpTransfer(FetchRequest const& request, FetchLimits const& limits, IBodySink* sink)
    : m_request(request)
    , m_limits(limits)
    , m_sink(sink)
    , m_reader(limits.maxHeadBytes)
    , m_loop(&CurlLoop::OfApplication())
{
    m_connectTimer.setSingleShot(true);
    m_restTimer.setSingleShot(true);
    connect(&m_connectTimer, &QTimer::timeout, this,
            [this] { Fail(m_curl ? ErrorAt(CURLE_OPERATION_TIMEDOUT) : MakeError(ErrorCause::ConnectTimeout)); });
    connect(&m_rateTimer, &QTimer::timeout, this, &HttpTransfer::SampleRate);
    connect(&m_restTimer, &QTimer::timeout, this, [this] { m_sink->Idle(); });
}

HttpTransfer::~HttpTransfer()
{
    Close();
}

void HttpTransfer::Open()
{
    m_connectTimer.start(m_limits.connectTimeout);
    m_loop->AskSettings(m_request.url, this,
                        [this](ConnectionSettings const& settings)
                        {
                            if (!m_isClosed)
                            {
                                Begin(settings);
                            }
                        });
}

void HttpTransfer::Begin(ConnectionSettings const& settings)
{
    m_curl = std::make_unique<CurlRequest>(m_request, m_limits, settings);
    if (std::optional<EngineError> const fault = m_curl->Fault())
    {
        Fail(*fault);
        return;
    }
    CURL* const easy = m_curl->Handle();
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETFUNCTION, &Callbacks::OpenSocket);
    curl_easy_setopt(easy, CURLOPT_OPENSOCKETDATA, this);
    curl_easy_setopt(easy, CURLOPT_PREREQFUNCTION, &Callbacks::BeforeRequest);
    curl_easy_setopt(easy, CURLOPT_PREREQDATA, this);
    curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, &Callbacks::HeadLine);
    curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &Callbacks::Body);
    curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, &Callbacks::Debug);
    curl_easy_setopt(easy, CURLOPT_DEBUGDATA, this);
    auto const end = [self = QPointer<HttpTransfer>(this)](CURLcode code)
    {
        if (self && !self->m_isClosed)
        {
            self->TakeEnd(code);
        }
    };
    if (!m_loop->Add(easy, end))
    {
        Fail(MakeError(ErrorCause::ConnectionFailed));
    }
}

bool HttpTransfer::MayConnectTo(AddressReach reach)
{
    if (!m_curl->Proxy().IsDirect() || reach <= m_request.nearest)
    {
        return true;
    }
    m_refusal = ErrorCause::AddressNotPublic;
    return false;
}

HttpTransfer::Verdict HttpTransfer::TakeConnection(AddressReach server)
{
    m_answeredFrom = m_curl->Proxy().IsDirect() ? server : ReachOf(m_request.url);
    // Another request judged a reused connection.
    if (!MayConnectTo(m_answeredFrom))
    {
        return Verdict::Ends;
    }
    m_refusal.reset();
    m_stage = TransferStage::Waiting;
    m_connectTimer.stop();
    m_receivedAtSample = {m_received};
    m_rateTimer.start(m_limits.rateWindow / SAMPLES_IN_WINDOW);
    return Verdict::GoesOn;
}

HttpTransfer::Verdict HttpTransfer::TakeHeadLine(QByteArray const& line)
{
    if (!m_readBefore)
    {
        m_readBefore = m_loop->BytesReadFor(m_curl->Handle());
    }
    m_received += line.size();
    m_headBytes += line.size();
    m_loop->NoteBytes();
    switch (m_reader.Take(line))
    {
    case HttpHeadReader::Progress::NeedsMore:
        return Verdict::GoesOn;
    case HttpHeadReader::Progress::Complete:
        return TakeHead();
    case HttpHeadReader::Progress::Failed:
        return Refuse(m_reader.Error());
    }
    return Refuse(ErrorCause::MalformedHead);
}

HttpTransfer::Verdict HttpTransfer::TakeHead()
{
    HttpHead const& head = m_reader.Head();
    if (head.status == STATUS_PROXY_ASKS && !m_curl->Proxy().IsDirect())
    {
        // libcurl may have an answer to this.
        m_refusal = ErrorCause::ProxyAsksForPassword;
        m_reader.Restart();
        return Verdict::GoesOn;
    }
    m_refusal.reset();
    m_stage = TransferStage::Body;
    if (IsHttps(m_request.url))
    {
        m_curl->WatchSecureConnection();
    }
    std::optional<qint64> const most = m_sink               ? m_sink->BeginBody(head)
                                       : head.status == 200 ? std::optional(m_limits.maxBodyBytes)
                                                            : std::nullopt;
    if (!most)
    {
        m_isBodyUseless = true;
        // It has no body, so its connection can be reused.
        return head.status == STATUS_NOT_MODIFIED ? Verdict::GoesOn : Verdict::Ends;
    }
    m_limits.maxBodyBytes = *most;
    Result<BodyPlan> const framing = JudgeFraming(head);
    if (!framing)
    {
        return Refuse(framing.error().cause);
    }
    m_plan = *framing;
    bool const isTooLong = m_plan.kind == BodyPlan::Kind::Length && m_plan.length > m_limits.maxBodyBytes;
    return isTooLong ? Refuse(ErrorCause::BodyTooLarge) : Verdict::GoesOn;
}

qint64 HttpTransfer::HoldOrTake(char const* bytes, qint64 size)
{
    if (!m_reader.HasHead())
    {
        return size; // another answer follows this one
    }
    if (m_isBodyUseless)
    {
        return 0;
    }
    if (!DeliverHeld())
    {
        return -1;
    }
    return TakeBody(bytes, size) == Verdict::GoesOn ? size : 0;
}

HttpTransfer::Verdict HttpTransfer::TakeBody(char const* bytes, qint64 size)
{
    m_received += size;
    m_loop->NoteBytes();
    if (m_bodyBytes + size > m_limits.maxBodyBytes)
    {
        return Refuse(ErrorCause::BodyTooLarge);
    }
    m_bodyBytes += size;
    Deliver(bytes, size);
    bool const isWhole = m_plan.kind == BodyPlan::Kind::Length && m_bodyBytes == m_plan.length;
    return isWhole && HasSurplus() ? Refuse(ErrorCause::SurplusBody) : Verdict::GoesOn;
}

void HttpTransfer::Deliver(char const* bytes, qint64 size)
{
    if (!m_sink)
    {
        m_body.append(bytes, static_cast<int>(size));
        return;
    }
    while (size > 0)
    {
        BodyBuffer const room = m_sink->Buffer();
        qint64 const count = std::min(room.size, size);
        if (count == 0)
        {
            m_held.append(bytes, static_cast<int>(size));
            m_isHeld = true; // the sink reports once when it has space
            return;
        }
        std::memcpy(room.data, bytes, static_cast<std::size_t>(count));
        m_sink->Commit(count);
        bytes += count;
        size -= count;
    }
    if (!m_restTimer.isActive())
    {
        m_restTimer.start(REST_INTERVAL);
    }
}

bool HttpTransfer::DeliverHeld()
{
    if (!m_held.isEmpty())
    {
        QByteArray const held = std::exchange(m_held, {});
        Deliver(held.constData(), held.size());
    }
    m_isHeld = !m_held.isEmpty() || (m_sink && m_sink->Buffer().size == 0);
    return !m_isHeld;
}

bool HttpTransfer::HasSurplus() const
{
    return IsHttps(m_request.url) ? m_curl->HasSecureBytes() : m_loop->HasUnreadBytes(m_curl->Handle());
}

HttpTransfer::Verdict HttpTransfer::Refuse(ErrorCause cause)
{
    m_refusal = cause;
    return Verdict::Ends;
}

void HttpTransfer::ReadOn()
{
    if (!m_isHeld || m_isClosed || !DeliverHeld())
    {
        return;
    }
    if (m_end)
    {
        TakeEnd(*m_end);
        return;
    }
    if (CURLcode const code = curl_easy_pause(m_curl->Handle(), CURLPAUSE_CONT); code != CURLE_OK)
    {
        TakeEnd(code);
    }
}

void HttpTransfer::TakeEnd(CURLcode code)
{
    if (!m_held.isEmpty())
    {
        m_end = code; // received bytes are delivered first
        return;
    }
    if (m_isBodyUseless)
    {
        Close();
        Q_EMIT Completed();
        return;
    }
    if (m_refusal)
    {
        Fail(MakeError(*m_refusal));
        return;
    }
    if (code != CURLE_OK)
    {
        Fail(ErrorAt(code));
        return;
    }
    bool const isShort =
        m_plan.kind == BodyPlan::Kind::Length ? m_bodyBytes < m_plan.length : m_reader.HasHead() && IsCut();
    if (!m_reader.HasHead() || isShort)
    {
        Fail(MakeError(isShort ? ErrorCause::IncompleteBody : ErrorCause::IncompleteHead));
        return;
    }
    TakeWhole();
}

bool HttpTransfer::IsCut() const
{
    bool const endsWithConnection =
        m_plan.kind == BodyPlan::Kind::UntilClose && m_curl->Number(CURLINFO_HTTP_VERSION) < CURL_HTTP_VERSION_2_0;
    // libcurl takes the end of a secure connection for the end of the body, even if an attacker ended it.
    return endsWithConnection && IsHttps(m_request.url) && !m_curl->HasSaidGoodbye();
}

void HttpTransfer::TakeWhole()
{
    if (m_isSurplus)
    {
        Fail(MakeError(ErrorCause::SurplusBody));
        return;
    }
    if (m_sink)
    {
        m_sink->Idle();
    }
    Close();
    Q_EMIT Completed();
}

EngineError HttpTransfer::ErrorAt(CURLcode code) const
{
    TransferEnd end = m_curl->EndWith(code);
    end.stage = m_stage;
    return ErrorOf(end);
}

qint64 HttpTransfer::BytesBesideBody() const
{
    qint64 const body = m_received - m_headBytes;
    return m_headBytes + std::max<qint64>(m_rawBodyBytes - body, 0);
}

bool HttpTransfer::IsMostlyFraming() const
{
    auto const read = m_readBefore ? m_loop->BytesReadFor(m_curl->Handle()) : std::nullopt;
    qint64 const framing = read ? *read - *m_readBefore - m_received : 0;
    return framing > FREE_FRAMING_BYTES + m_received / ANSWER_PER_FRAMING;
}

void HttpTransfer::SampleRate()
{
    if (IsMostlyFraming())
    {
        Fail(MakeError(ErrorCause::MalformedChunk));
        return;
    }
    if (m_isHeld)
    {
        m_receivedAtSample = {m_received}; // the sink is slow, not the server
        return;
    }
    m_receivedAtSample.push_back(m_received);
    if (m_receivedAtSample.size() <= SAMPLES_IN_WINDOW)
    {
        return;
    }
    qint64 const inWindow = m_received - m_receivedAtSample.front();
    bool const hasStopped = m_received == m_receivedAtSample[SAMPLES_IN_WINDOW / 2];
    m_receivedAtSample.pop_front();
    if (inWindow * 1000 >= m_limits.minBytesPerSecond * m_limits.rateWindow.count())
    {
        return;
    }
    if (!m_isRepeated && IsUnanswered() && m_loop->Remove(m_curl->Handle()))
    {
        m_isRepeated = true;
        m_rateTimer.stop();
        m_stage = TransferStage::Connecting;
        Open();
        return;
    }
    // A body that stops completely is the only sign that a network has forgotten the connection.
    bool const isForgotten = m_stage == TransferStage::Body && hasStopped;
    Fail(MakeError(isForgotten ? ErrorCause::IncompleteBody : ErrorCause::TooSlow));
}

bool HttpTransfer::IsUnanswered() const
{
    return m_received == 0 && m_curl->Number(CURLINFO_NUM_CONNECTS) == 0;
}

void HttpTransfer::Close()
{
    m_isClosed = true;
    m_connectTimer.stop();
    m_rateTimer.stop();
    m_restTimer.stop();
    if (m_loop && m_curl)
    {
        m_loop->Remove(m_curl->Handle());
    }
}

void HttpTransfer::Fail(EngineError const& error)
{
    Close();
    Q_EMIT Failed(error);
}

} // namespace Pelnar::Engine
