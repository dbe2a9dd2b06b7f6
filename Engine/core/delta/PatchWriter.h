// PatchWriter.h: writes the streams of patches from their steps, for one file after the other. Thread: one at a time.
// Ownership: the writer owns the streams until Finish.
#pragma once

#include "Engine/core/delta/OldText.h"

#include <vector>

namespace Pelnar::Engine
{

class PatchWriter
{
public:
    /// The next file starts at the beginning of an old text.
    void StartText() { m_position = 0; }
    /// Writes the patch that makes \a newBytes from \a old by \a steps. It starts at the position in \a old where the
    /// last file ended.
    void Add(IOldText& old, std::vector<PatchStep> const& steps, Bytes newBytes);
    void AddRecord(Bytes record);
    void AddWhole(Bytes newBytes);
    /// Returns all streams. Call it once, last.
    [[nodiscard]] BinaryPatch Finish();

private:
    void AddLike(Bytes oldBytes, Bytes newBytes);
    void EndChangedRun();

    BinaryPatch m_patch;
    std::uint64_t m_position = 0;
    std::uint64_t m_sameRun = 0;
    std::uint64_t m_changedRun = 0;
    ByteBuffer m_piece = ByteBuffer(PATCH_PIECE_BYTES);
};

} // namespace Pelnar::Engine
