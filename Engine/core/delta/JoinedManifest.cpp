#include "Engine/core/delta/JoinedManifest.h"

#include "Engine/core/delta/ImageLayout.h"
#include "Engine/core/delta/PackedText.h"

#include <algorithm>
#include <map>

namespace Pelnar::Engine
{
namespace
{

using namespace ManifestBytes;

constexpr std::uint8_t EXECUTABLE_KIND = 0x10;             ///< added to a file's kind if it is executable
constexpr std::uint64_t PACKED_TEXT = MAX_IMAGE_SPANS + 1; ///< in the place of a number of segments
constexpr std::uint64_t MAX_SOURCE_PATH_BYTES = 32u << 20; ///< of all units
constexpr std::uint8_t MOST_PACKINGS = 225;                ///< properties of LZMA are below this

/// A kept file has the size of the old file, which both sides can look up.
bool HasSize(DeltaEntry const& entry)
{
    return entry.kind == DeltaEntryKind::Patched || entry.kind == DeltaEntryKind::Whole;
}

bool IsFile(DeltaEntry const& entry)
{
    return entry.kind != DeltaEntryKind::Directory && entry.kind != DeltaEntryKind::SymbolicLink;
}

std::size_t SharedBytes(std::string const& a, std::string const& b)
{
    std::size_t const limit = std::min(a.size(), b.size());
    return static_cast<std::size_t>(
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(limit), b.begin()).first - a.begin());
}

// Values of one kind are next to each other, which compresses better: first the shared prefix lengths of all paths,
// then the rests, then the kinds, and so on.
void AppendEntries(ByteBuffer& bytes, std::vector<DeltaEntry> const& entries)
{
    AppendNumber(bytes, entries.size());
    ByteBuffer rests;
    ByteBuffer kinds;
    ByteBuffer sizes;
    ByteBuffer places;
    std::string previous;
    for (DeltaEntry const& entry : entries)
    {
        std::size_t const shared = SharedBytes(previous, entry.path);
        AppendNumber(bytes, shared);
        AppendText(rests, entry.path.substr(shared));
        kinds.push_back(static_cast<std::uint8_t>(static_cast<std::uint8_t>(entry.kind) |
                                                  (entry.isExecutable ? EXECUTABLE_KIND : 0)));
        if (HasSize(entry))
        {
            AppendNumber(sizes, entry.size);
        }
        if (entry.kind == DeltaEntryKind::SymbolicLink)
        {
            AppendText(places, entry.linkTarget);
        }
        if (entry.kind == DeltaEntryKind::Kept)
        {
            AppendText(places, entry.sourcePath == entry.path ? std::string() : entry.sourcePath);
        }
        previous = entry.path;
    }
    for (ByteBuffer const* const column : {&rests, &kinds, &sizes, &places})
    {
        bytes.insert(bytes.end(), column->begin(), column->end());
    }
}

void ReadKind(Reader& reader, DeltaEntry& entry)
{
    std::uint8_t const byte = reader.Byte();
    std::uint8_t const kind = byte & ~EXECUTABLE_KIND;
    if (kind > static_cast<std::uint8_t>(DeltaEntryKind::Whole))
    {
        return reader.Fail(DeltaManifestError::UnknownKind);
    }
    entry.kind = static_cast<DeltaEntryKind>(kind);
    entry.isExecutable = byte != kind;
    if (entry.isExecutable && !IsFile(entry))
    {
        reader.Fail(DeltaManifestError::BadFlag);
    }
}

void ReadSize(Reader& reader, DeltaEntry& entry)
{
    entry.size = HasSize(entry) ? reader.Number() : 0;
}

void ReadPlace(Reader& reader, DeltaEntry& entry)
{
    if (entry.kind == DeltaEntryKind::SymbolicLink)
    {
        entry.linkTarget = reader.Text(MAX_PATH_BYTES);
    }
    if (entry.kind == DeltaEntryKind::Kept)
    {
        std::string const path = reader.Text(MAX_PATH_BYTES);
        entry.sourcePath = path.empty() ? entry.path : path;
    }
}

void ReadEntries(Reader& reader, DeltaLimits const& limits, std::vector<DeltaEntry>& entries)
{
    std::uint64_t const count = reader.Count(limits.tree.maxEntries);
    std::vector<std::uint64_t> shared(static_cast<std::size_t>(count));
    std::generate(shared.begin(), shared.end(), [&reader] { return reader.Number(); });
    std::string const* previous = nullptr;
    std::uint64_t bytes = 0;
    entries.resize(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < entries.size() && reader.Error() == DeltaManifestError::None; ++i)
    {
        if (shared[i] > (previous ? previous->size() : 0) || shared[i] > MAX_PATH_BYTES)
        {
            return reader.Fail(DeltaManifestError::BadNumber);
        }
        entries[i].path = previous ? previous->substr(0, static_cast<std::size_t>(shared[i])) : std::string();
        entries[i].path += reader.Text(MAX_PATH_BYTES);
        previous = &entries[i].path;
        // Shared prefixes cost no bytes in the manifest, but memory.
        bytes += previous->size();
        if (bytes > limits.maxManifestBytes)
        {
            return reader.Fail(DeltaManifestError::TextTooLong);
        }
    }
    for (auto const read : {&ReadKind, &ReadSize, &ReadPlace})
    {
        for (std::size_t i = 0; i < entries.size() && reader.Error() == DeltaManifestError::None; ++i)
        {
            read(reader, entries[i]);
        }
    }
}

using IndicesByPath = std::map<std::string, std::uint64_t>;

/// If a source has the path of an entry, it refers to the entry.
void AppendSource(ByteBuffer& bytes, DeltaManifest const& manifest, IndicesByPath const& indices,
                  DeltaSource const& source)
{
    auto const same = indices.find(source.path);
    AppendNumber(bytes, same == indices.end() ? 0 : same->second + 1);
    if (same == indices.end())
    {
        AppendText(bytes, source.path);
    }
    std::uint64_t const likely = same == indices.end() ? 0 : manifest.entries[same->second].size;
    AppendNumber(bytes, FoldSign(static_cast<std::int64_t>(source.size - likely)));
}

DeltaSource ReadSource(Reader& reader, DeltaManifest const& manifest)
{
    DeltaSource source;
    std::uint64_t const same = reader.Count(manifest.entries.size());
    DeltaEntry const* const entry = same == 0 ? nullptr : &manifest.entries[static_cast<std::size_t>(same - 1)];
    source.path = entry ? entry->path : reader.Text(MAX_PATH_BYTES);
    source.size = (entry ? entry->size : 0) + static_cast<std::uint64_t>(reader.Signed());
    return source;
}

void AppendUnit(ByteBuffer& bytes, DeltaManifest const& manifest, IndicesByPath const& indices, DeltaUnit const& unit)
{
    AppendNumber(bytes, unit.sources.size());
    for (DeltaSource const& source : unit.sources)
    {
        AppendSource(bytes, manifest, indices, source);
    }
    AppendNumber(bytes, unit.targets.size());
    std::int64_t next = 0;
    for (std::uint32_t const target : unit.targets)
    {
        AppendNumber(bytes, FoldSign(std::int64_t(target) - next));
        next = std::int64_t(target) + 1;
    }
    if (unit.textBytes > 0)
    {
        AppendNumber(bytes, PACKED_TEXT);
        AppendNumber(bytes, unit.textBytes);
        return;
    }
    AppendNumber(bytes, unit.spanChanges.size());
    for (SpanChange const& change : unit.spanChanges)
    {
        for (std::int64_t const number : {change.offset, change.size, change.address})
        {
            AppendNumber(bytes, FoldSign(number));
        }
    }
}

/// What the units that are not read yet may have together. A few bytes may name a long path, or many targets.
struct UnitsLeft
{
    std::uint64_t sources;
    std::uint64_t pathBytes;
    std::uint64_t targets;
};

DeltaUnit ReadUnit(Reader& reader, UnitsLeft& left, DeltaManifest const& manifest)
{
    DeltaUnit unit;
    std::uint64_t const sources = reader.Count(left.sources);
    left.sources -= sources;
    for (std::uint64_t i = 0; i < sources && reader.Error() == DeltaManifestError::None; ++i)
    {
        std::string const& path = unit.sources.emplace_back(ReadSource(reader, manifest)).path;
        if (path.size() > left.pathBytes)
        {
            reader.Fail(DeltaManifestError::TextTooLong);
        }
        left.pathBytes -= std::min<std::uint64_t>(path.size(), left.pathBytes);
    }
    std::uint64_t const targets = reader.Number();
    if (targets > left.targets)
    {
        reader.Fail(DeltaManifestError::BadUnit);
    }
    left.targets -= std::min(targets, left.targets);
    std::uint64_t next = 0;
    for (std::uint64_t i = 0; i < targets && reader.Error() == DeltaManifestError::None; ++i)
    {
        std::uint64_t const target = next + static_cast<std::uint64_t>(reader.Signed());
        if (target >= manifest.entries.size())
        {
            reader.Fail(DeltaManifestError::BadUnit);
        }
        unit.targets.push_back(static_cast<std::uint32_t>(target));
        next = target + 1;
    }
    std::uint64_t const spans = reader.Count(PACKED_TEXT);
    if (spans == PACKED_TEXT)
    {
        unit.textBytes = reader.Count(MAX_PACKED_TEXT_BYTES);
        return unit;
    }
    for (std::uint64_t i = 0; i < spans && reader.Error() == DeltaManifestError::None; ++i)
    {
        SpanChange change;
        change.offset = reader.Signed();
        change.size = reader.Signed();
        change.address = reader.Signed();
        unit.spanChanges.push_back(change);
    }
    return unit;
}

DeltaManifestVerdict BadUnit(std::string const& path)
{
    return {DeltaManifestError::BadUnit, UpdateFault::None, path};
}

/// The sources of all units so far.
struct SourceSum
{
    std::uint64_t count = 0;
    std::uint64_t pathBytes = 0;
    std::uint64_t bytes = 0; ///< each unit may make the applier read all of its sources
};

DeltaManifestVerdict CheckSources(DeltaUnit const& unit, DeltaLimits const& limits, SourceSum& sum)
{
    for (DeltaSource const& source : unit.sources)
    {
        if (!IsBelow(source.path))
        {
            return {DeltaManifestError::BadSource, UpdateFault::None, source.path};
        }
        if (source.size > limits.tree.maxBytes - sum.bytes)
        {
            return {DeltaManifestError::TooManyBytes, UpdateFault::None, source.path};
        }
        sum.bytes += source.size;
        sum.pathBytes += source.path.size();
    }
    sum.count += unit.sources.size();
    bool const isTooMuch = sum.count > limits.tree.maxEntries || sum.pathBytes > MAX_SOURCE_PATH_BYTES;
    return {isTooMuch ? DeltaManifestError::TooManyEntries : DeltaManifestError::None, UpdateFault::None, {}};
}

} // namespace

ByteBuffer EncodeDeltaManifest(DeltaManifest const& manifest)
{
    ByteBuffer bytes;
    AppendText(bytes, manifest.baseVersion);
    AppendText(bytes, manifest.targetVersion);
    AppendHash(bytes, manifest.baseHash);
    AppendHash(bytes, manifest.targetHash);
    for (StoredStream const& stream : manifest.streams)
    {
        bytes.push_back(stream.packing);
        AppendNumber(bytes, stream.size);
    }
    AppendEntries(bytes, manifest.entries);
    IndicesByPath indices;
    for (std::size_t i = 0; i < manifest.entries.size(); ++i)
    {
        indices.emplace(manifest.entries[i].path, i);
    }
    AppendNumber(bytes, manifest.units.size());
    for (DeltaUnit const& unit : manifest.units)
    {
        AppendUnit(bytes, manifest, indices, unit);
    }
    return bytes;
}

void ReadJoinedManifest(Reader& reader, DeltaLimits const& limits, DeltaManifest& manifest)
{
    manifest.baseHash = reader.Hash();
    manifest.targetHash = reader.Hash();
    for (StoredStream& stream : manifest.streams)
    {
        stream.packing = reader.Byte();
        stream.size = reader.Number();
    }
    ReadEntries(reader, limits, manifest.entries);
    std::uint64_t const units = reader.Count(manifest.entries.size());
    manifest.units.clear();
    UnitsLeft left{limits.tree.maxEntries, MAX_SOURCE_PATH_BYTES, manifest.entries.size()};
    for (std::uint64_t i = 0; i < units && reader.Error() == DeltaManifestError::None; ++i)
    {
        manifest.units.push_back(ReadUnit(reader, left, manifest));
    }
}

DeltaManifestVerdict CheckUnits(DeltaManifest const& manifest, DeltaLimits const& limits)
{
    std::vector<bool> isMade(manifest.entries.size());
    SourceSum sources;
    for (DeltaUnit const& unit : manifest.units)
    {
        if (DeltaManifestVerdict verdict = CheckSources(unit, limits, sources);
            verdict.error != DeltaManifestError::None)
        {
            return verdict;
        }
        DeltaEntryKind const kind = unit.sources.empty() ? DeltaEntryKind::Whole : DeltaEntryKind::Patched;
        for (std::uint32_t const target : unit.targets)
        {
            DeltaEntry const& entry = manifest.entries[target];
            if (isMade[target] || entry.kind != kind)
            {
                return BadUnit(entry.path);
            }
            isMade[target] = true;
        }
        bool const isOfOne = !unit.spanChanges.empty() || unit.textBytes > 0;
        bool const isOne = unit.sources.size() == 1 && unit.targets.size() == 1;
        // The recipe of a packed text is in memory, and may be as large as the file.
        bool const isLarge =
            unit.textBytes > 0 && isOne && manifest.entries[unit.targets.front()].size > MAX_PACKED_TEXT_BYTES;
        if ((isOfOne && !isOne) || isLarge)
        {
            return BadUnit({});
        }
    }
    for (std::size_t i = 0; i < manifest.entries.size(); ++i)
    {
        DeltaEntry const& entry = manifest.entries[i];
        bool const isStored = entry.kind == DeltaEntryKind::Patched || entry.kind == DeltaEntryKind::Whole;
        if (isStored != isMade[i])
        {
            return BadUnit(entry.path);
        }
    }
    bool const isPacked = std::all_of(manifest.streams.begin(), manifest.streams.end(),
                                      [&limits](StoredStream stream) {
                                          return stream.packing <= MOST_PACKINGS && stream.size <= limits.tree.maxBytes;
                                      });
    return {isPacked ? DeltaManifestError::None : DeltaManifestError::BadPacking, UpdateFault::None, {}};
}

} // namespace Pelnar::Engine
