// HttpRequest.h: what the test server understands of a request, and the range of a file that it asks for.
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
    QString path; ///< below the served folder, decoded, without query; empty for what cannot be one
    QByteArray range;
    QByteArray ifRange;
    QByteArray ifNoneMatch = {};
    QByteArray ifModifiedSince = {};
    std::optional<QByteArray> host = {}; ///< as the header has it
    bool isHostClear = true;             ///< said once, or left away in HTTP/1.0
};

/// Reads the head of a request, up to the empty line; nothing for what is no HTTP/1 request.
std::optional<HttpRequest> ParseHttpRequest(QByteArray const& head);

/// The name in a header Host, in lower case and without port; empty for what has no such form.
QByteArray HostName(QByteArray const& header);

/// True when the client has the version of a file that is called \a entityTag and was changed at \a changed, which is
/// whole seconds since 1970.
[[nodiscard]] bool HasVersion(HttpRequest const& request, QByteArray const& entityTag, qint64 changed);

/// Bytes of a file, from \a first up to and without \a end.
struct ByteRange
{
    qint64 first = 0;
    qint64 end = 0;
};

enum class RangeKind
{
    Whole,         ///< no range is asked for, or one of a form that is not served
    Part,          ///< one part
    Unsatisfiable, ///< a part that the file does not have
};

/// Reads the header Range for a file of \a size bytes; \a range is what is to be sent unless unsatisfiable. Several
/// ranges at once are answered with the whole file, as a server may.
RangeKind RangeOf(QByteArray const& header, qint64 size, ByteRange& range);

} // namespace Pelnar::Publisher
