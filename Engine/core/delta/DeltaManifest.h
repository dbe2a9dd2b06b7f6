// DeltaManifest.h: what a delta container says of the new version's tree, as plain values, and its bytes.
// Thread: any; no state. Ownership: values only. The format is described in docs/formats/delta.md.
#pragma once

#include "Engine/core/delta/BinaryPatch.h"
#include "Engine/core/payload/ArchiveEntryPolicy.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

using ContentHash = std::array<std::uint8_t, 32>;

enum class DeltaEntryKind : std::uint8_t
{
    Directory = 0,
    SymbolicLink = 1,
    Kept = 2,    ///< a file that the old version has, here or under another path
    Patched = 3, ///< a file made from one of the old version by a binary patch
    Whole = 4,   ///< a file that the container brings whole
};

struct DeltaEntry
{
    std::string path; ///< below the bundle's folder, "/" between components
    DeltaEntryKind kind = DeltaEntryKind::Directory;
    std::string linkTarget; ///< SymbolicLink

    // Kept, Patched and Whole: the file in the new version.
    bool isExecutable = false;
    std::uint64_t size = 0;
    ContentHash hash{};

    // Kept and Patched: the file of the old version. A kept file has the new one's size and hash.
    std::string sourcePath;
    std::uint64_t sourceSize = 0;
    ContentHash sourceHash{};

    // Patched: bytes that each stream takes in the container.
    std::array<std::uint64_t, PATCH_STREAMS> streamsStored{};

    // Whole: bytes that the file takes in the container.
    std::uint64_t wholeStored = 0;

    /// Bytes that the entry takes of the container's data.
    std::uint64_t StoredBytes() const;
};

bool operator==(DeltaEntry const& a, DeltaEntry const& b);

struct DeltaManifest
{
    std::string baseVersion;         ///< the version text of the bundle that the delta starts from
    std::string targetVersion;       ///< and of the one that it makes
    std::vector<DeltaEntry> entries; ///< in ascending order of the paths' bytes; a folder stands before what it holds
};

/// What a manifest may ask for.
struct DeltaLimits
{
    std::uint64_t maxManifestBytes = 64u << 20;
    ArchiveLimits tree; ///< of the new version: the rules are those for archives
};

enum class DeltaManifestError
{
    None,
    Truncated,     ///< ends inside a value
    TrailingBytes, ///< goes on after the last entry
    BadNumber,     ///< longer than needed, or over 64 bits
    TextTooLong,
    UnknownKind,
    BadFlag,
    BadSource,   ///< a path in the old version that is empty, absolute or leads out of it
    NotInOrder,  ///< not after the entry before it, or in a folder that is no entry before it
    TreeRefused, ///< no archive may hold what the entries make either
    TooManyEntries,
    TooManyBytes, ///< sizes of stored data that pass the limits
};

struct DeltaManifestVerdict
{
    DeltaManifestError error = DeltaManifestError::None;
    UpdateFault fault = UpdateFault::None; ///< for TreeRefused: the rule that is broken
    std::string path;                      ///< of the entry that breaks a rule, where it is one
};

/// REQUIRES: a manifest that CheckDeltaManifest accepts.
ByteBuffer EncodeDeltaManifest(DeltaManifest const& manifest);
/// Reads all \a bytes and applies every rule. Use \a manifest only if the verdict has no error.
[[nodiscard]] DeltaManifestVerdict DecodeDeltaManifest(Bytes bytes, DeltaLimits const& limits, DeltaManifest& manifest);
/// The rules that a decoded manifest keeps, for one that is being made.
[[nodiscard]] DeltaManifestVerdict CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits);

} // namespace Pelnar::Engine
