// ArchiveServer.h: answers for an archive on a LoopbackServer: whole, in ranges, cut, changed, wrong.
// Thread: the test's.
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QByteArray>

#include <optional>

namespace Pelnar::Testing
{

/// \a size bytes; each is different from its neighbours.
QByteArray MakeArchive(int size);

struct ServedArchive
{
    QByteArray bytes;
    QByteArray entityTag = "\"one\""; ///< with its quotes; empty for none
    QByteArray lastModified = {};     ///< empty for none
    int cutAfter = -1;                ///< bytes of a body after which the connection is closed; negative: no limit
};

/// The start of the range in \a request; empty if it asks for the whole archive.
std::optional<int> RangeStart(QByteArray const& request);
/// The value of a request's field; empty without the field.
QByteArray FieldOf(QByteArray const& request, QByteArray const& name);

/// The answer of a server that supports ranges and conditional ranges.
QByteArray AnswerFor(ServedArchive const& archive, QByteArray const& request);

/// Serves \a archive; closes after each answer.
LoopbackServer::Script Serving(ServedArchive const& archive);

} // namespace Pelnar::Testing
