// ManifestEquality.h: compares what two manifests of deltas say.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <tuple>

namespace Pelnar::Engine
{

inline bool operator==(DeltaEntry const& a, DeltaEntry const& b)
{
    auto const fields = [](DeltaEntry const& entry)
    {
        return std::tie(entry.path, entry.kind, entry.linkTarget, entry.isExecutable, entry.size, entry.hash,
                        entry.sourcePath, entry.sourceSize, entry.sourceHash, entry.streamsStored, entry.wholeStored);
    };
    return fields(a) == fields(b);
}

inline bool operator==(DeltaSource const& a, DeltaSource const& b)
{
    return a.path == b.path && a.size == b.size;
}

inline bool operator==(SpanChange const& a, SpanChange const& b)
{
    return a.offset == b.offset && a.size == b.size && a.address == b.address;
}

inline bool operator==(DeltaUnit const& a, DeltaUnit const& b)
{
    return std::tie(a.sources, a.targets, a.spanChanges, a.textBytes) ==
           std::tie(b.sources, b.targets, b.spanChanges, b.textBytes);
}

inline bool operator==(StoredStream const& a, StoredStream const& b)
{
    return a.packing == b.packing && a.size == b.size;
}

} // namespace Pelnar::Engine
