// DeltaContainer.h: the file that carries a delta: a fixed header, the manifest, the data of its entries in order.
// Thread: any; no state. Ownership: descriptors stay the caller's. The format is described in docs/formats/delta.md.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace Pelnar::Engine
{

enum class DeltaError
{
    None,
    NotADelta,     ///< another file, or another version of the format
    Damaged,       ///< the container contradicts itself or ends early
    OverLimits,    ///< asks for more than the limits allow
    TreeRefused,   ///< makes something that no archive may hold either
    BaseDiffers,   ///< a file of the old version is missing or is not the one that the delta starts from
    ResultDiffers, ///< a file came out with another hash than the manifest's
    CannotRead,    ///< the container or the old version cannot be read
    CannotWrite,   ///< the new version or the container cannot be written
};

struct DeltaOutcome
{
    DeltaError error = DeltaError::None;
    std::string path;                      ///< the entry concerned, where there is one
    int systemError = 0;                   ///< errno, where there is one
    UpdateFault fault = UpdateFault::None; ///< TreeRefused: the rule that is broken

    [[nodiscard]] bool HasSucceeded() const { return error == DeltaError::None; }
};

constexpr std::size_t DELTA_HEADER_BYTES = 32;
/// No stream of a container needs more than this to be decompressed.
constexpr int DELTA_WINDOW_LOG = 27;

/// Reads the header and the manifest of the container open at \a containerFd. \a dataOffset is where the data of the
/// first entry begins; the data ends exactly where the file does.
[[nodiscard]] DeltaOutcome ReadDeltaManifest(int containerFd, DeltaLimits const& limits, DeltaManifest& manifest,
                                             std::uint64_t& dataOffset);

/// What a manifest that breaks a rule means for its container.
[[nodiscard]] DeltaOutcome OutcomeOf(DeltaManifestVerdict const& verdict);

/// The header and the compressed manifest that open a container.
[[nodiscard]] ByteBuffer EncodeDeltaOpening(DeltaManifest const& manifest);

/// One compressed stream of a container, decompressed piece by piece. One of no bytes is an empty stream.
class DeltaStream
{
public:
    /// \a size bytes from \a offset of the file open at \a containerFd, which stays open as long as this object.
    DeltaStream(int containerFd, std::uint64_t offset, std::uint64_t size);
    ~DeltaStream();
    DeltaStream(DeltaStream&&) noexcept;

    /// The next \a size bytes; answers how many there are, fewer only when the stream ends, is damaged or cannot be
    /// read.
    [[nodiscard]] std::size_t Read(std::uint8_t* target, std::size_t size);
    /// True when every byte has been read and the stream ends there.
    [[nodiscard]] bool IsAtEnd();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// zstd's answer at the level that containers are made with; nothing for nothing.
[[nodiscard]] ByteBuffer CompressForDelta(Bytes bytes);

} // namespace Pelnar::Engine
