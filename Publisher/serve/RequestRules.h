// RequestRules.h: the headers of a request that decide how the test server answers. Pure functions.
#pragma once

#include "Publisher/TextLiterals.h"

#include <QByteArray>

namespace Pelnar::Publisher
{

/// The name in a Host header, in lower case and without port; empty if the header is malformed.
QByteArray HostName(QByteArray const& header);

/// The conditions of a request: the values of If-None-Match and If-Modified-Since, empty if absent.
struct Conditions
{
    QByteArray noneMatch;
    QByteArray modifiedSince;
};

/// True if the client already has the version of a file with this \a entityTag and the modification time \a changed, in
/// whole seconds since 1970.
[[nodiscard]] bool HasVersion(Conditions const& conditions, QByteArray const& entityTag, qint64 changed);

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
