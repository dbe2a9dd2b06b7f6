// PatchWriter.h: writes the streams of patches from their steps, for one file after the other.
// Thread: one at a time. Ownership: the streams are the writer's until they are taken.
#pragma once

#include "Engine/core/delta/OldText.h"

#include <vector>

namespace Pelnar::Engine
{

/// How many of \a newBytes are like old ones by \a steps, which begin at the start of \a old, but differ from them.
[[nodiscard]] std::uint64_t CountChangedBytes(IOldText& old, std::vector<PatchStep> const& steps, Bytes newBytes);

class PatchWriter
{
public:
    /// What is written next starts from the beginning of an old text.
    void StartText() { m_position = 0; }
    /// Writes what makes \a newBytes of \a old by \a steps, from where the last file has left the position in \a old.
    void Add(IOldText& old, std::vector<PatchStep> const& steps, Bytes newBytes);
    void AddRecord(Bytes record);
    void AddWhole(Bytes newBytes);
    /// Everything that has been written; call it once, last.
    [[nodiscard]] BinaryPatch Finish();

private:
    void AddLike(Bytes oldBytes, Bytes newBytes);
    void EndChangedRun();

    BinaryPatch m_patch;
    std::uint64_t m_position = 0;
    std::uint64_t m_sameRun = 0;
    std::uint64_t m_changedRun = 0;
};

} // namespace Pelnar::Engine
