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
/// Stands for the bundle's folder, which has another name on every computer: the shortest that a bundle can have.
constexpr char ROOT[] = "x.app";

using namespace ManifestBytes;

void AppendEntry(ByteBuffer& bytes, DeltaEntry const& entry)
{
    AppendText(bytes, entry.path);
    bytes.push_back(static_cast<std::uint8_t>(entry.kind));
    switch (entry.kind)
    {
    case DeltaEntryKind::Directory:
        return;
    case DeltaEntryKind::SymbolicLink:
        AppendText(bytes, entry.linkTarget);
        return;
    case DeltaEntryKind::Kept:
    case DeltaEntryKind::Patched:
    case DeltaEntryKind::Whole:
        break;
    }
    bytes.push_back(entry.isExecutable ? EXECUTABLE_FLAG : 0);
    AppendNumber(bytes, entry.size);
    AppendHash(bytes, entry.hash);
    if (entry.kind == DeltaEntryKind::Whole)
    {
        AppendNumber(bytes, entry.wholeStored);
        return;
    }
    AppendText(bytes, entry.sourcePath);
    if (entry.kind == DeltaEntryKind::Patched)
    {
        AppendNumber(bytes, entry.sourceSize);
        AppendHash(bytes, entry.sourceHash);
        for (std::uint64_t const stored : entry.streamsStored)
        {
            AppendNumber(bytes, stored);
        }
    }
}

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

/// True when sizes that are added up later come nowhere near the end of their type.
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

/// Judges \a entry as an archive's, below ROOT.
UpdateFault Admit(ArchiveEntryRules& policy, DeltaEntry const& entry)
{
    ArchiveEntry admitted;
    admitted.path = std::string(ROOT) + '/' + entry.path;
    admitted.type = TypeOf(entry.kind);
    admitted.linkTarget = entry.linkTarget;
    admitted.size = entry.size;
    EntryAdmission const admission = policy.Admit(admitted);
    // An archive may write a path in several ways, a delta in one: it is used as it is.
    bool const isPlain = admission.fault != UpdateFault::None || admission.path == admitted.path;
    return isPlain ? admission.fault : UpdateFault::EntryNameInvalid;
}

std::string ParentOf(std::string const& path)
{
    std::size_t const slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

} // namespace

bool operator==(DeltaEntry const& a, DeltaEntry const& b)
{
    return a.path == b.path && a.kind == b.kind && a.linkTarget == b.linkTarget && a.isExecutable == b.isExecutable &&
           a.size == b.size && a.hash == b.hash && a.sourcePath == b.sourcePath && a.sourceSize == b.sourceSize &&
           a.sourceHash == b.sourceHash && a.streamsStored == b.streamsStored && a.wholeStored == b.wholeStored;
}

bool operator==(DeltaSource const& a, DeltaSource const& b)
{
    return a.path == b.path && a.size == b.size;
}

bool operator==(SpanChange const& a, SpanChange const& b)
{
    return a.offset == b.offset && a.size == b.size && a.address == b.address;
}

bool operator==(DeltaUnit const& a, DeltaUnit const& b)
{
    return a.sources == b.sources && a.targets == b.targets && a.spanChanges == b.spanChanges &&
           a.textBytes == b.textBytes;
}

bool operator==(StoredStream const& a, StoredStream const& b)
{
    return a.packing == b.packing && a.size == b.size;
}

std::uint64_t DeltaEntry::StoredBytes() const
{
    return std::accumulate(streamsStored.begin(), streamsStored.end(), wholeStored);
}

ByteBuffer EncodeDeltaManifest(DeltaManifest const& manifest)
{
    if (manifest.format == DeltaFormat::Joined)
    {
        return EncodeJoinedManifest(manifest);
    }
    ByteBuffer bytes;
    AppendText(bytes, manifest.baseVersion);
    AppendText(bytes, manifest.targetVersion);
    AppendNumber(bytes, manifest.entries.size());
    for (DeltaEntry const& entry : manifest.entries)
    {
        AppendEntry(bytes, entry);
    }
    return bytes;
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

DeltaManifestVerdict CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits)
{
    ArchiveEntryRules policy(limits.tree);
    ArchiveEntry root;
    root.path = ROOT;
    root.type = ArchiveEntryType::Folder;
    UpdateFault fault = policy.Admit(root).fault;
    std::set<std::string> folders{std::string()};
    std::string const* previous = nullptr;
    for (DeltaEntry const& entry : manifest.entries)
    {
        fault = fault == UpdateFault::None ? Admit(policy, entry) : fault;
        if (fault != UpdateFault::None)
        {
            return {DeltaManifestError::TreeRefused, fault, entry.path};
        }
        if (HasSource(entry, manifest.format) && !IsBelow(entry.sourcePath))
        {
            return {DeltaManifestError::BadSource, UpdateFault::None, entry.path};
        }
        if (!AreStoredSizesSane(entry, limits.tree.maxBytes))
        {
            return {DeltaManifestError::TooManyBytes, UpdateFault::None, entry.path};
        }
        // Folders are entries, so that nothing is ever made below a link or a file.
        if ((previous && *previous >= entry.path) || folders.count(ParentOf(entry.path)) == 0)
        {
            return {DeltaManifestError::NotInOrder, UpdateFault::None, entry.path};
        }
        if (entry.kind == DeltaEntryKind::Directory)
        {
            folders.insert(entry.path);
        }
        previous = &entry.path;
    }
    fault = policy.Finish();
    if (fault != UpdateFault::None)
    {
        return {DeltaManifestError::TreeRefused, fault, {}};
    }
    return manifest.format == DeltaFormat::Joined ? CheckUnits(manifest, limits) : DeltaManifestVerdict();
}

} // namespace Pelnar::Engine
