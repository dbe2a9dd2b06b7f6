// IBodySink.h: who takes the body of an answer piece by piece, where a whole one would cost too much memory.
// Thread: the transfer's. Ownership: the sink stays its owner's and lives as long as the transfer.
#pragma once

#include <QtGlobal>

#include <optional>

namespace Pelnar::Engine
{

struct HttpHead;

/// Where the next bytes of a body go.
struct BodyRoom
{
    char* data = nullptr;
    qint64 size = 0;
};

/// No operation may end the transfer that calls it.
class IBodySink
{
public:
    virtual ~IBodySink() = default;

    /// The head is there: how many bytes its body may have at most, or nothing when the body is of no use.
    virtual std::optional<qint64> BeginBody(HttpHead const& head) = 0;
    /// Room for the next bytes, the same until some are taken; none while nothing can be taken.
    virtual BodyRoom Room() = 0;
    /// The first \a bytes of the room are filled.
    virtual void Took(qint64 bytes) = 0;
    /// Nothing more has arrived for now.
    virtual void Rest() = 0;
};

} // namespace Pelnar::Engine
