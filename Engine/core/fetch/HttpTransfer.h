// HttpTransfer.h: one request and its answer over libcurl, with the deadlines of a connection and what is refused of
// an answer. It follows nothing, remembers nothing and inflates nothing.
// Thread: the application object's. Ownership: owned by its maker, which may delete it later (deleteLater) from a slot;
// exactly one of its two signals is emitted, once. The sink must live until then.
#pragma once

#include "Engine/core/fetch/CurlRequest.h"
#include "Engine/core/fetch/FetchPolicy.h"
#include "Engine/core/fetch/HttpHead.h"
#include "Engine/core/fetch/IBodySink.h"
#include "Engine/core/fetch/TransferFault.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <deque>
#include <memory>
#include <optional>

namespace Pelnar::Engine
{

class HttpTransfer : public QObject
{
    Q_OBJECT
public:
    /// The body goes to \a sink, or is collected when there is none: of an answer with status 200 only.
    HttpTransfer(FetchRequest const& request, FetchLimits const& limits, IBodySink* sink = nullptr);
    ~HttpTransfer() override;

    void Open();
    /// The sink has room again after it had none.
    void ReadOn();
    /// Ends the transfer; neither signal is emitted after it, and the sink is left alone.
    void Abort() { Close(); }

    HttpHead const& Head() const { return m_reader.Head(); }
    QByteArray const& Body() const { return m_body; }
    /// Where the answer came from: of the connection's address, or of the request's behind a proxy.
    AddressReach AnsweredFrom() const { return m_answeredFrom; }
    /// What has come beside the body: heads, and the frames of chunks.
    qint64 BytesBesideBody() const;

Q_SIGNALS:
    void Completed();
    void Failed(Pelnar::Engine::EngineError const& error);

private:
    struct Callbacks;
    enum class Verdict
    {
        GoesOn,
        Ends, ///< with what m_refusal says, or with an answer whose body is of no use
    };

    void Begin(ConnectionSettings const& settings);

    [[nodiscard]] bool MayConnectTo(AddressReach reach);
    [[nodiscard]] Verdict TakeConnection(QHostAddress const& server);
    [[nodiscard]] Verdict TakeHeadLine(QByteArray const& line);
    [[nodiscard]] Verdict TakeHead();
    /// How many of \a size bytes were taken: all, or none while there is no room.
    [[nodiscard]] qint64 HoldOrTake(char const* bytes, qint64 size);
    [[nodiscard]] Verdict TakeBody(char const* bytes, qint64 size);
    void Deliver(char const* bytes, qint64 size);
    /// True when everything that was held is delivered.
    [[nodiscard]] bool DeliverHeld();
    [[nodiscard]] bool HasSurplus() const;
    [[nodiscard]] bool IsSecure() const;
    Verdict Refuse(ErrorCause cause);

    void TakeEnd(CURLcode code);
    /// True for a body that only the connection's end ended, where that end proves nothing.
    [[nodiscard]] bool IsCut() const;
    void TakeWhole();
    EngineError ErrorAt(CURLcode code) const;
    void SampleRate();
    /// True when the connection has brought much more than the answer in it.
    [[nodiscard]] bool IsMostlyFraming() const;
    void Close();
    void Fail(EngineError const& error);

    FetchRequest m_request;
    FetchLimits m_limits;
    IBodySink* m_sink;
    HttpHeadReader m_reader;
    QPointer<CurlLoop> m_loop;
    std::unique_ptr<CurlRequest> m_curl; ///< once it is known how to connect
    TransferStage m_stage = TransferStage::Connecting;
    AddressReach m_answeredFrom = AddressReach::Network;
    BodyPlan m_plan;
    QByteArray m_body;
    QByteArray m_held; ///< of the body, what the sink had no room for
    qint64 m_bodyBytes = 0;
    qint64 m_received = 0;
    qint64 m_headBytes = 0;
    qint64 m_rawBodyBytes = 0;             ///< with the frames of chunks
    std::optional<qint64> m_readBefore;    ///< by the connection, when the answer began
    std::deque<qint64> m_receivedAtSample; ///< of the samples of one window, the oldest first
    std::optional<ErrorCause> m_refusal;
    std::optional<CURLcode> m_end; ///< when only what is held remains
    bool m_isBodyUseless = false;
    bool m_isSurplus = false; ///< bytes came behind the answer
    bool m_isHeld = false;    ///< by a sink without room
    bool m_isClosed = false;
    QTimer m_connectTimer;
    QTimer m_rateTimer;
    QTimer m_restTimer;
};

} // namespace Pelnar::Engine
