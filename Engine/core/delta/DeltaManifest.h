// DeltaManifest.h: what a delta container says of the new version's tree, as plain values, and its bytes.
// The format is described in docs/formats/delta.md.
#pragma once

#include "Engine/core/archive/ArchiveEntryRules.h"
#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/delta/BinaryPatch.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

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

/// A file of the old version that others are made from.
struct DeltaSource
{
    std::string path;
    std::uint64_t size = 0;
};

/// How much a segment of a program differs from the old program's.
struct SpanChange
{
    std::int64_t offset = 0;
    std::int64_t size = 0;
    std::int64_t address = 0;
};

/// Files that are made of the same old ones.
struct DeltaUnit
{
    std::vector<DeltaSource> sources;    ///< one after the other; none for files that the container brings whole
    std::vector<std::uint32_t> targets;  ///< indices of entries, in the order in which they are made
    std::vector<SpanChange> spanChanges; ///< a segment each of the one target, when it is a program's next version
    std::uint64_t textBytes = 0; ///< of the text in the one target, when it is made from the text in the one source
};

/// How one stream stands in the container.
struct StoredStream
{
    std::uint8_t packing = 0; ///< 0 for zstd, else one more than the properties of LZMA
    std::uint64_t size = 0;
};

/// The version of the container's format.
enum class DeltaFormat : std::uint8_t
{
    Separate = 2, ///< every file's data stand by themselves
    Joined = 3,   ///< the files' data are joined in streams
};

struct DeltaManifest
{
    std::string baseVersion;         ///< the version text of the bundle that the delta starts from
    std::string targetVersion;       ///< and of the one that it makes
    std::vector<DeltaEntry> entries; ///< in ascending order of the paths' bytes; a folder stands before what it holds

    DeltaFormat format = DeltaFormat::Separate;
    // Joined: entries have no hashes, and no source but kept ones, whose sizes only the old version tells.
    std::vector<DeltaUnit> units;
    std::array<StoredStream, PATCH_STREAMS> streams{};
    ContentHash baseHash{};   ///< of the hashes of all old files that are used: kept ones, then those of the units
    ContentHash targetHash{}; ///< of the hashes of all new files: kept ones in their order, then those of the units
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
    BadUnit,      ///< a file that no unit makes, or two do; a program's unit with more than one file
    BadPacking,   ///< of a stream
};

struct DeltaManifestVerdict
{
    DeltaManifestError error = DeltaManifestError::None;
    UpdateFault fault = UpdateFault::None; ///< for TreeRefused: the rule that is broken
    std::string path;                      ///< of the entry that breaks a rule, where it is one
};

/// In the joined format. REQUIRES: a manifest that CheckDeltaManifest accepts.
ByteBuffer EncodeDeltaManifest(DeltaManifest const& manifest);
/// Reads all \a bytes, which are of manifest.format, and applies every rule. Use \a manifest only if the verdict has no
/// error.
[[nodiscard]] DeltaManifestVerdict DecodeDeltaManifest(Bytes bytes, DeltaLimits const& limits, DeltaManifest& manifest);
/// The rules that a decoded manifest keeps, for one that is being made.
[[nodiscard]] DeltaManifestVerdict CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits);

} // namespace Pelnar::Engine
