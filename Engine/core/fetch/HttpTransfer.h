// HttpTransfer.h: one request and its answer through libcurl, with the deadlines of a connection and the refusals of an
// answer. It follows no redirect, stores nothing and decompresses nothing.
// Thread: the application object's. Ownership: its maker owns it, and may delete it later (deleteLater) from a slot. It
// emits exactly one of its two signals, once. The sink must live until then.
#pragma once

#include "Engine/core/fetch/CurlRequest.h"
#include "Engine/core/fetch/FetchRules.h"
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
    /// The body goes to \a sink. Without a sink it is collected, but only from an answer with status 200.
    HttpTransfer(FetchRequest const& request, FetchLimits const& limits, IBodySink* sink = nullptr);
    ~HttpTransfer() override;

    void Open();
    /// The sink has space again after it had none.
    void ReadOn();
    /// Ends the transfer. No signal and no call of the sink follows.
    void Abort() { Close(); }

    HttpHead const& Head() const { return m_reader.Head(); }
    QByteArray const& Body() const { return m_body; }
    /// Where the answer came from: by the connection's address, or by the request's address behind a proxy.
    AddressReach AnsweredFrom() const { return m_answeredFrom; }
    /// The overhead: bytes of heads and of the frames of chunks.
    qint64 BytesBesideBody() const;

Q_SIGNALS:
    void Completed();
    void Failed(Pelnar::Engine::EngineError const& error);

private:
    struct Callbacks;
    enum class Verdict
    {
        GoesOn,
        Ends, ///< with the reason in m_refusal, or with an answer whose body is useless
    };

    void Begin(ConnectionSettings const& settings);

    [[nodiscard]] bool MayConnectTo(AddressReach reach);
    [[nodiscard]] Verdict TakeConnection(AddressReach server);
    [[nodiscard]] Verdict TakeHeadLine(QByteArray const& line);
    [[nodiscard]] Verdict TakeHead();
    /// How many of \a size bytes were taken: all, or none while there is no space.
    [[nodiscard]] qint64 HoldOrTake(char const* bytes, qint64 size);
    [[nodiscard]] Verdict TakeBody(char const* bytes, qint64 size);
    void Deliver(char const* bytes, qint64 size);
    /// True if all held bytes are delivered.
    [[nodiscard]] bool DeliverHeld();
    [[nodiscard]] bool HasSurplus() const;
    Verdict Refuse(ErrorCause cause);

    void TakeEnd(CURLcode code);
    /// True for a body that ended only with the connection, if that end proves nothing.
    [[nodiscard]] bool IsCut() const;
    void TakeWhole();
    EngineError ErrorAt(CURLcode code) const;
    void SampleRate();
    /// True if the request was sent over a kept connection and no byte has come.
    [[nodiscard]] bool IsUnanswered() const;
    /// True if the overhead of the connection is much larger than the answer.
    [[nodiscard]] bool IsMostlyFraming() const;
    void Close();
    void Fail(EngineError const& error);

    FetchRequest m_request;
    FetchLimits m_limits;
    IBodySink* m_sink;
    HttpHeadReader m_reader;
    QPointer<CurlLoop> m_loop;
    std::unique_ptr<CurlRequest> m_curl; ///< set once it is known how to connect
    TransferStage m_stage = TransferStage::Connecting;
    AddressReach m_answeredFrom = AddressReach::Network;
    BodyPlan m_plan;
    QByteArray m_body;
    QByteArray m_held; ///< body bytes that the sink had no space for
    qint64 m_bodyBytes = 0;
    qint64 m_received = 0;
    qint64 m_headBytes = 0;
    qint64 m_rawBodyBytes = 0;             ///< including the frames of chunks
    std::optional<qint64> m_readBefore;    ///< read from the connection when the answer began
    std::deque<qint64> m_receivedAtSample; ///< one for each sample of the window, the oldest first
    std::optional<ErrorCause> m_refusal;
    std::optional<CURLcode> m_end; ///< set when only held bytes remain
    bool m_isBodyUseless = false;
    bool m_isSurplus = false;  ///< bytes arrived after the answer's end
    bool m_isHeld = false;     ///< by a sink without space
    bool m_isRepeated = false; ///< the request, because nothing came over a kept connection
    bool m_isClosed = false;
    QTimer m_connectTimer;
    QTimer m_rateTimer;
    QTimer m_restTimer;
};

} // namespace Pelnar::Engine
