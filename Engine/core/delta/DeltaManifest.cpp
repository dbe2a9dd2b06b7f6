#include "Engine/core/delta/DeltaManifest.h"

#include "Engine/core/delta/JoinedManifest.h"
#include "Engine/core/delta/ManifestBytes.h"

#include <algorithm>
#include <numeric>
#include <set>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint8_t EXECUTABLE_FLAG = 1;
/// Replaces the bundle's folder name, which differs from computer to computer. It is the shortest possible name.
constexpr char ROOT[] = "x.app";

using namespace ManifestBytes;

DeltaEntry ReadEntry(Reader& reader)
{
    DeltaEntry entry;
    entry.path = reader.Text(MAX_PATH_BYTES);
    std::uint8_t const kind = reader.Byte();
    if (kind > static_cast<std::uint8_t>(DeltaEntryKind::Whole))
    {
        return reader.Fail(DeltaManifestError::UnknownKind), entry;
    }
    entry.kind = static_cast<DeltaEntryKind>(kind);
    switch (entry.kind)
    {
    case DeltaEntryKind::Directory:
        return entry;
    case DeltaEntryKind::SymbolicLink:
        entry.linkTarget = reader.Text(MAX_PATH_BYTES);
        return entry;
    case DeltaEntryKind::Kept:
    case DeltaEntryKind::Patched:
    case DeltaEntryKind::Whole:
        break;
    }
    std::uint8_t const flags = reader.Byte();
    if (flags > EXECUTABLE_FLAG)
    {
        return reader.Fail(DeltaManifestError::BadFlag), entry;
    }
    entry.isExecutable = flags == EXECUTABLE_FLAG;
    entry.size = reader.Number();
    entry.hash = reader.Hash();
    if (entry.kind == DeltaEntryKind::Whole)
    {
        entry.wholeStored = reader.Number();
        return entry;
    }
    entry.sourcePath = reader.Text(MAX_PATH_BYTES);
    if (entry.kind == DeltaEntryKind::Kept)
    {
        entry.sourceSize = entry.size;
        entry.sourceHash = entry.hash;
        return entry;
    }
    entry.sourceSize = reader.Number();
    entry.sourceHash = reader.Hash();
    for (std::uint64_t& stored : entry.streamsStored)
    {
        stored = reader.Number();
    }
    return entry;
}

// Rules.

bool HasSource(DeltaEntry const& entry, DeltaFormat format)
{
    return entry.kind == DeltaEntryKind::Kept ||
           (entry.kind == DeltaEntryKind::Patched && format == DeltaFormat::Separate);
}

/// True if sums of such sizes cannot overflow.
bool AreStoredSizesSane(DeltaEntry const& entry, std::uint64_t maxBytes)
{
    auto const isSane = [maxBytes](std::uint64_t size) { return size <= maxBytes; };
    return isSane(entry.sourceSize) && isSane(entry.wholeStored) &&
           std::all_of(entry.streamsStored.begin(), entry.streamsStored.end(), isSane);
}

ArchiveEntryType TypeOf(DeltaEntryKind kind)
{
    switch (kind)
    {
    case DeltaEntryKind::Directory:
        return ArchiveEntryType::Folder;
    case DeltaEntryKind::SymbolicLink:
        return ArchiveEntryType::SymbolicLink;
    case DeltaEntryKind::Kept:
    case DeltaEntryKind::Patched:
    case DeltaEntryKind::Whole:
        return ArchiveEntryType::File;
    }
    return ArchiveEntryType::Other;
}

/// Judges \a entry by the rules for archives, below ROOT.
UpdateFault Admit(ArchiveEntryRules& policy, DeltaEntry const& entry)
{
    ArchiveEntry admitted;
    admitted.path = std::string(ROOT) + '/' + entry.path;
    admitted.type = TypeOf(entry.kind);
    admitted.linkTarget = entry.linkTarget;
    admitted.size = entry.size;
    EntryAdmission const admission = policy.Admit(admitted);
    // An archive may write a path in several ways, a delta only in one, because the path is used unchanged.
    bool const isPlain = admission.fault != UpdateFault::None || admission.path == admitted.path;
    return isPlain ? admission.fault : UpdateFault::EntryNameInvalid;
}

std::string_view ParentOf(std::string_view path)
{
    std::size_t const slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

} // namespace

std::uint64_t DeltaEntry::StoredBytes() const
{
    return std::accumulate(streamsStored.begin(), streamsStored.end(), wholeStored);
}

DeltaManifestVerdict DecodeDeltaManifest(Bytes bytes, DeltaLimits const& limits, DeltaManifest& manifest)
{
    Reader reader(bytes);
    manifest.baseVersion = reader.Text(MAX_VERSION_BYTES);
    manifest.targetVersion = reader.Text(MAX_VERSION_BYTES);
    manifest.entries.clear();
    if (manifest.format == DeltaFormat::Joined)
    {
        ReadJoinedManifest(reader, limits, manifest);
    }
    else
    {
        std::uint64_t const count = reader.Count(limits.tree.maxEntries);
        for (std::uint64_t i = 0; i < count && reader.Error() == DeltaManifestError::None; ++i)
        {
            manifest.entries.push_back(ReadEntry(reader));
        }
    }
    if (reader.Error() != DeltaManifestError::None)
    {
        return {reader.Error(), UpdateFault::None, {}};
    }
    return reader.IsAtEnd() ? CheckDeltaManifest(manifest, limits)
                            : DeltaManifestVerdict{DeltaManifestError::TrailingBytes, UpdateFault::None, {}};
}

DeltaManifestVerdict CheckTree(std::vector<DeltaEntry> const& entries, DeltaLimits const& limits)
{
    ArchiveEntryRules policy(limits.tree);
    ArchiveEntry root;
    root.path = ROOT;
    root.type = ArchiveEntryType::Folder;
    UpdateFault fault = policy.Admit(root).fault;
    std::set<std::string, std::less<>> folders{std::string()};
    std::string_view lastParent;
    std::string const* previous = nullptr;
    for (DeltaEntry const& entry : entries)
    {
        fault = fault == UpdateFault::None ? Admit(policy, entry) : fault;
        if (fault != UpdateFault::None)
        {
            return {DeltaManifestError::TreeRefused, fault, entry.path};
        }
        // Folders are entries, so nothing is ever created below a link or a file.
        std::string_view const parent = ParentOf(entry.path);
        bool const isInFolder = parent == lastParent || folders.count(parent) != 0;
        if ((previous && *previous >= entry.path) || !isInFolder)
        {
            return {DeltaManifestError::NotInOrder, UpdateFault::None, entry.path};
        }
        if (entry.kind == DeltaEntryKind::Directory)
        {
            folders.insert(entry.path);
        }
        previous = &entry.path;
        lastParent = parent;
    }
    fault = policy.Finish();
    return {fault == UpdateFault::None ? DeltaManifestError::None : DeltaManifestError::TreeRefused, fault, {}};
}

DeltaManifestVerdict CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits)
{
    if (DeltaManifestVerdict verdict = CheckTree(manifest.entries, limits); verdict.error != DeltaManifestError::None)
    {
        return verdict;
    }
    for (DeltaEntry const& entry : manifest.entries)
    {
        if (HasSource(entry, manifest.format) && !IsBelow(entry.sourcePath))
        {
            return {DeltaManifestError::BadSource, UpdateFault::None, entry.path};
        }
        if (!AreStoredSizesSane(entry, limits.tree.maxBytes))
        {
            return {DeltaManifestError::TooManyBytes, UpdateFault::None, entry.path};
        }
    }
    return manifest.format == DeltaFormat::Joined ? CheckUnits(manifest, limits) : DeltaManifestVerdict();
}

} // namespace Pelnar::Engine
