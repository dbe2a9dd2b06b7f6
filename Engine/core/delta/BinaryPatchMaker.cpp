#include "Engine/core/delta/PatchWriter.h"
#include "Engine/core/delta/StepFinder.h"

namespace Pelnar::Engine
{

std::optional<BinaryPatch> MakeBinaryPatch(Bytes oldBytes, Bytes newBytes)
{
    SuffixIndex index;
    if (!index.Build(oldBytes))
    {
        return std::nullopt;
    }
    PatchWriter writer;
    PlainText old({oldBytes});
    std::uint64_t position = 0;
    writer.Add(old, FindSteps(index, newBytes, position), newBytes);
    return writer.Finish();
}

} // namespace Pelnar::Engine
