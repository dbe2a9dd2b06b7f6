// DeltaContainer.h: the file that carries a delta: a fixed header, the manifest, the data of its entries in order.
// Ownership: descriptors stay the caller's. The format is described in docs/formats/delta.md.
#pragma once

#include "Engine/core/delta/DeltaManifest.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace Pelnar::Engine
{

enum class DeltaError
{
    None,
    NotADelta,     ///< another file, or another version of the format
    Damaged,       ///< the container is inconsistent or ends early
    OverLimits,    ///< asks for more than the limits allow
    TreeRefused,   ///< makes a tree that an archive may not hold either
    BaseDiffers,   ///< a file of the old version is missing or is not the one that the delta starts from
    ResultDiffers, ///< a new file has another hash than the manifest says
    CannotRead,    ///< the container or a version cannot be read; without an errno, the file has changed meanwhile
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

constexpr std::array<std::uint8_t, 8> DELTA_MAGIC{'P', 'E', 'L', 'D', 'E', 'L', 'T', 'A'};
constexpr std::size_t DELTA_HEADER_BYTES = 32;
/// No stream of a container in the separate format needs more than this to be decompressed.
constexpr int DELTA_WINDOW_LOG = 27;
/// The limits for the joined format, in which all five streams are open at once.
constexpr int NUMBERS_WINDOW_LOG = 22;
constexpr int EXTRA_WINDOW_LOG = 24;

/// The limit for \a stream in the joined format.
constexpr int WindowLogOf(PatchStream stream)
{
    return stream == PatchStream::Extra ? EXTRA_WINDOW_LOG : NUMBERS_WINDOW_LOG;
}

/// In the joined format the manifest is packed by LZMA with the properties 3.
constexpr std::uint8_t ManifestPackingOf(DeltaFormat format)
{
    return format == DeltaFormat::Joined ? 4 : 0;
}

constexpr int ManifestWindowLogOf(DeltaFormat format)
{
    return format == DeltaFormat::Joined ? NUMBERS_WINDOW_LOG : DELTA_WINDOW_LOG;
}

/// Reads the header and the manifest of the container open at \a containerFd. \a dataOffset is where the data of the
/// first entry begins; the data ends exactly where the file does.
[[nodiscard]] DeltaOutcome ReadDeltaManifest(int containerFd, DeltaLimits const& limits, DeltaManifest& manifest,
                                             std::uint64_t& dataOffset);

/// The outcome for a container with a manifest of this verdict.
[[nodiscard]] DeltaOutcome OutcomeOf(DeltaManifestVerdict const& verdict);

/// A compressed stream of a container, decompressed piece by piece. A stream of no bytes is empty.
class DeltaStream
{
public:
    /// \a stored from \a offset of the file open at \a containerFd, which stays open as long as this object. Needs no
    /// more memory than a window of \a windowLog.
    DeltaStream(int containerFd, std::uint64_t offset, StoredStream const& stored, int windowLog = DELTA_WINDOW_LOG);
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

} // namespace Pelnar::Engine
