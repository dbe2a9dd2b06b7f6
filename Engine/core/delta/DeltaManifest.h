// DeltaManifest.h: the description of the new version's tree in a delta, as plain values and as bytes.
// docs/formats/delta.md describes the format.
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
    Kept = 2,    ///< a file of the old version, with this or another path
    Patched = 3, ///< a file that is made from an old one by a binary patch
    Whole = 4,   ///< a file that the container contains whole
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

    // Kept and Patched: the file of the old version. A kept file has the same size and hash.
    std::string sourcePath;
    std::uint64_t sourceSize = 0;
    ContentHash sourceHash{};

    // Patched: the packed bytes of each stream in the container.
    std::array<std::uint64_t, PATCH_STREAMS> streamsStored{};

    // Whole: the packed bytes of the file in the container.
    std::uint64_t wholeStored = 0;

    /// The bytes of the entry in the container's data.
    std::uint64_t StoredBytes() const;
};

/// A file of the old version from which others are made.
struct DeltaSource
{
    std::string path;
    std::uint64_t size = 0;
};

/// The differences of a program's segment from the old program's.
struct SpanChange
{
    std::int64_t offset = 0;
    std::int64_t size = 0;
    std::int64_t address = 0;
};

/// Files that are made from the same old files.
struct DeltaUnit
{
    std::vector<DeltaSource> sources;    ///< joined in this order; none for files that the container contains whole
    std::vector<std::uint32_t> targets;  ///< indices of entries, in the order in which they are made
    std::vector<SpanChange> spanChanges; ///< one for each segment of the only target, if it is the next version of a
                                         ///< program
    std::uint64_t textBytes = 0; ///< of the text in the only target, if it is made from the text in the only source
};

/// One stream in the container.
struct StoredStream
{
    std::uint8_t packing = 0; ///< 0 for zstd, otherwise one more than the properties of LZMA
    std::uint64_t size = 0;
};

/// The version of the container's format.
enum class DeltaFormat : std::uint8_t
{
    Separate = 2, ///< the data of each file are separate
    Joined = 4,   ///< the files' data are joined in streams
};
/// The joined format without corrections of tokens. It is read as Joined.
constexpr std::uint64_t FORMAT_WITHOUT_CORRECTIONS = 3;

struct DeltaManifest
{
    std::string baseVersion;         ///< the version text of the bundle that the delta starts from
    std::string targetVersion;       ///< and of the one that it makes
    std::vector<DeltaEntry> entries; ///< in ascending order of the paths' bytes; a folder comes before its content

    DeltaFormat format = DeltaFormat::Separate;
    // Joined: entries have no hashes. Only kept ones have a source, and only the old version has its size.
    std::vector<DeltaUnit> units;
    std::array<StoredStream, PATCH_STREAMS> streams{};
    ContentHash baseHash{};   ///< of the hashes of all used old files: kept ones, then those of the units
    ContentHash targetHash{}; ///< of the hashes of all new files: kept ones in their order, then those of the units
};

/// The limits of a manifest.
struct DeltaLimits
{
    std::uint64_t maxManifestBytes = 64u << 20;
    ArchiveLimits tree; ///< of the new version: the rules for archives
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
    BadSource,   ///< a path in the old version that is empty, absolute or leads outside
    NotInOrder,  ///< not after the previous entry, or in a folder without an entry before it
    TreeRefused, ///< the entries make a tree that no archive may contain
    TooManyEntries,
    TooManyBytes, ///< the sizes of stored data exceed the limits
    BadUnit,      ///< a file made by no unit or by two; a program's unit with more than one file
    BadPacking,   ///< of a stream
};

struct DeltaManifestVerdict
{
    DeltaManifestError error = DeltaManifestError::None;
    UpdateFault fault = UpdateFault::None; ///< for TreeRefused: the broken rule
    std::string path;                      ///< of the entry that breaks a rule, if there is one
};

/// In the joined format. REQUIRES: a manifest that CheckDeltaManifest accepts.
ByteBuffer EncodeDeltaManifest(DeltaManifest const& manifest);
/// Reads all \a bytes, which have the format manifest.format, and applies every rule. Use \a manifest only if the
/// verdict has no error.
[[nodiscard]] DeltaManifestVerdict DecodeDeltaManifest(Bytes bytes, DeltaLimits const& limits, DeltaManifest& manifest);
/// The rules for the tree of \a entries alone, which may lack all about the container.
[[nodiscard]] DeltaManifestVerdict CheckTree(std::vector<DeltaEntry> const& entries, DeltaLimits const& limits);
/// The rules for decoded manifests, applied to a manifest that is being made.
[[nodiscard]] DeltaManifestVerdict CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits);

} // namespace Pelnar::Engine
