// ServerFault.h: the faults that the test server can make, and their text on the command line.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::Publisher
{

enum class ServerFaultKind
{
    Truncate, ///< the response ends after this many bytes of its body
    Slow,     ///< this many bytes of the body per second
    Status,   ///< this status and no body
    Drop,     ///< the connection is reset after this many bytes of the body; with 0 before any response
};

struct ServerFault
{
    ServerFaultKind kind = ServerFaultKind::Truncate;
    QString name; ///< the file's path below the served folder
    qint64 number = 0;
};

/// Reads "truncate:NAME:BYTES", "slow:NAME:BYTES-PER-SECOND", "status:NAME:CODE" or "drop:NAME:BYTES"; nothing for any
/// other text.
std::optional<ServerFault> ParseServerFault(QString const& text);

} // namespace Pelnar::Publisher
