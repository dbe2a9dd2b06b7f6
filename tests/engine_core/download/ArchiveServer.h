// ArchiveServer.h: answers for an archive on a LoopbackServer: whole, in ranges, cut, changed, wrong.
// Thread: the test's.
#pragma once

#include "tests/support/LoopbackServer.h"

#include <QByteArray>

#include <optional>

namespace Pelnar::Testing
{

/// \a size bytes in which every place differs from its neighbours' places.
QByteArray MakeArchive(int size);

struct ServedArchive
{
    QByteArray bytes;
    QByteArray entityTag = "\"one\""; ///< with its quotes; empty for none
    QByteArray lastModified = {};     ///< empty for none
    int cutAfter = -1;                ///< bytes of a body after which the connection is closed; none when negative
};

/// What \a request asks to begin at; nothing when it asks for the whole.
std::optional<int> RangeStart(QByteArray const& request);
/// The value of a request's field; empty when it is not there.
QByteArray FieldOf(QByteArray const& request, QByteArray const& name);

/// The answer of a server that knows ranges and conditions on them.
QByteArray AnswerFor(ServedArchive const& archive, QByteArray const& request);

/// Serves \a archive; closes after each answer.
LoopbackServer::Script Serving(ServedArchive const& archive);

} // namespace Pelnar::Testing
