// DeltaFuzz.cpp: any bytes as a delta's manifest and as the numbers of a patch: an accepted manifest is the one form of
// what it says, and no patch makes more bytes than it may.

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/delta/DeltaManifest.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{

using namespace Pelnar::Engine;

void CheckManifest(Bytes bytes)
{
    DeltaManifest manifest;
    if (DecodeDeltaManifest(bytes, {}, manifest).error != DeltaManifestError::None)
    {
        return;
    }
    ByteBuffer const again = EncodeDeltaManifest(manifest);
    if (Bytes(again.data(), again.size()) != bytes)
    {
        std::abort();
    }
}

void CheckPatch(Bytes bytes)
{
    constexpr std::uint64_t NEW_BYTES = 100000;
    ByteBuffer const oldBytes(1000, 7);
    // The first byte says where the steps end and the runs begin.
    std::size_t const split = bytes.empty() ? 0 : std::min<std::size_t>(bytes.front(), bytes.size());
    auto const sourceOf = [](Bytes all)
    {
        return [rest = all](std::uint8_t* target, std::size_t size) mutable
        {
            std::size_t const count = std::min(size, rest.size());
            std::copy_n(rest.begin(), count, target);
            rest.remove_prefix(count);
            return count;
        };
    };
    ByteSource const endless = [](std::uint8_t* target, std::size_t size)
    {
        std::fill_n(target, size, std::uint8_t(1));
        return size;
    };
    Bytes const runs = bytes.substr(split);
    PatchSources const sources{sourceOf(bytes.substr(0, split)), sourceOf(runs), sourceOf(runs), endless, endless};
    std::uint64_t made = 0;
    PatchVerdict const verdict = ApplyBinaryPatch(Bytes(oldBytes.data(), oldBytes.size()), sources, NEW_BYTES,
                                                  [&made](Bytes piece)
                                                  {
                                                      made += piece.size();
                                                      return true;
                                                  });
    if (made > NEW_BYTES || (verdict == PatchVerdict::Applied && made != NEW_BYTES))
    {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    CheckManifest(Bytes(data, size));
    CheckPatch(Bytes(data, size));
    return 0;
}
