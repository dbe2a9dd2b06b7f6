// ManifestEquality.h: compares what two manifests of deltas say.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <tuple>
#include <utility>

namespace Pelnar::Engine
{

inline auto FieldsOf(DeltaEntry const& entry)
{
    return std::tie(entry.path, entry.kind, entry.linkTarget, entry.isExecutable, entry.size, entry.hash,
                    entry.sourcePath, entry.sourceSize, entry.sourceHash, entry.streamsStored, entry.wholeStored);
}

inline auto FieldsOf(DeltaSource const& source)
{
    return std::tie(source.path, source.size);
}

inline auto FieldsOf(SpanChange const& change)
{
    return std::tie(change.offset, change.size, change.address);
}

inline auto FieldsOf(DeltaUnit const& unit)
{
    return std::tie(unit.sources, unit.targets, unit.spanChanges, unit.textBytes);
}

inline auto FieldsOf(StoredStream const& stream)
{
    return std::tie(stream.packing, stream.size);
}

template <class Value, class = decltype(FieldsOf(std::declval<Value const&>()))>
bool operator==(Value const& a, Value const& b)
{
    return FieldsOf(a) == FieldsOf(b);
}

} // namespace Pelnar::Engine
