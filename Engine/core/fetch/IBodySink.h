// IBodySink.h: receives the body of an answer piece by piece, if a whole one would take too much memory.
// Thread: the transfer's. Ownership: the sink's owner keeps it; it lives as long as the transfer.
#pragma once

#include <QtGlobal>

#include <optional>

namespace Pelnar::Engine
{

struct HttpHead;

/// The buffer for the next bytes of a body.
struct BodyBuffer
{
    char* data = nullptr;
    qint64 size = 0;
};

/// No operation may end the transfer that calls it.
class IBodySink
{
public:
    virtual ~IBodySink() = default;

    /// The head has arrived. Returns the maximum length of its body in bytes, or nothing if the body is useless.
    virtual std::optional<qint64> BeginBody(HttpHead const& head) = 0;
    /// The buffer for the next bytes. It stays the same until Commit(). It is empty while no byte can be taken.
    virtual BodyBuffer Buffer() = 0;
    /// The first \a bytes of the buffer are filled.
    virtual void Commit(qint64 bytes) = 0;
    /// No more bytes are available for now.
    virtual void Idle() = 0;
};

} // namespace Pelnar::Engine
