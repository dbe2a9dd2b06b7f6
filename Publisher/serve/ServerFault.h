// ServerFault.h: what the test server does wrong on demand, and the text in which it is asked for.
#pragma once

#include <QString>

#include <optional>

namespace Pelnar::Publisher
{

enum class ServerFaultKind
{
    Truncate, ///< the answer ends after so many bytes of its body
    Slow,     ///< so many bytes of the body a second
    Status,   ///< this status and no body
    Drop,     ///< the connection is reset after so many bytes of the body; before any answer when that is 0
};

struct ServerFault
{
    ServerFaultKind kind = ServerFaultKind::Truncate;
    QString name; ///< the file's path below the served folder
    qint64 number = 0;
};

/// "truncate:NAME:BYTES", "slow:NAME:BYTES-PER-SECOND", "status:NAME:CODE", "drop:NAME:BYTES"; nothing for any other
/// text.
std::optional<ServerFault> ParseServerFault(QString const& text);

} // namespace Pelnar::Publisher
