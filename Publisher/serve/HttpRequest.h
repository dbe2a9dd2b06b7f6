// HttpRequest.h: the request headers that the test server reads, and the requested byte range.
#pragma once

#include "Publisher/TextLiterals.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace Pelnar::Publisher
{

struct HttpRequest
{
    QByteArray method;
    QString path; ///< below the served folder, decoded, without query; empty if the target is not valid
    QByteArray range;
    QByteArray ifRange;
    QByteArray ifNoneMatch = {};
    QByteArray ifModifiedSince = {};
    std::optional<QByteArray> host = {}; ///< as in the header
    bool isHostClear = true;             ///< the header appears once, or is absent in HTTP/1.0
};

/// Reads the head of a request, up to the empty line; nothing if it is not an HTTP/1 request.
std::optional<HttpRequest> ParseHttpRequest(QByteArray const& head);

/// The name in a Host header, in lower case and without port; empty if the header is malformed.
QByteArray HostName(QByteArray const& header);

/// True if the client already has the version of a file with this \a entityTag and the modification time \a changed, in
/// whole seconds since 1970.
[[nodiscard]] bool HasVersion(HttpRequest const& request, QByteArray const& entityTag, qint64 changed);

/// The bytes of a file from \a first up to but not including \a end.
struct ByteRange
{
    qint64 first = 0;
    qint64 end = 0;
};

enum class RangeKind
{
    Whole,         ///< no range, or one in a form that is not supported
    Part,          ///< one range
    Unsatisfiable, ///< a range that lies outside the file
};

/// Reads the Range header for a file of \a size bytes. \a range is the range to send, unless it is unsatisfiable. A
/// request for several ranges gets the whole file, which HTTP allows.
RangeKind RangeOf(QByteArray const& header, qint64 size, ByteRange& range);

} // namespace Pelnar::Publisher
