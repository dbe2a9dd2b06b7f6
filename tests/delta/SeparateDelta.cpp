#include "tests/delta/SeparateDelta.h"

#include "Engine/core/delta/BundleReader.h"
#include "Engine/core/delta/DeltaContainerWriter.h"
#include "Engine/core/delta/ManifestBytes.h"
#include "Engine/core/delta/PatchApplier.h"
#include "Engine/core/delta/PatchWriter.h"
#include "Engine/core/delta/StepFinder.h"

namespace Pelnar::Testing
{
namespace
{

using namespace Engine;
using namespace Engine::ManifestBytes;

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
    bytes.push_back(entry.isExecutable ? 1 : 0);
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

void AppendFixed(ByteBuffer& bytes, std::uint64_t number)
{
    for (int shift = 0; shift < 64; shift += 8)
    {
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

void Append(ByteBuffer& data, ByteBuffer const& stored)
{
    data.insert(data.end(), stored.begin(), stored.end());
}

void AddPatch(DeltaEntry& entry, Bytes oldBytes, Bytes newBytes, ByteBuffer& data)
{
    BinaryPatch const patch = MakeBinaryPatch(oldBytes, newBytes).value();
    entry.kind = DeltaEntryKind::Patched;
    entry.sourcePath = entry.path;
    entry.sourceSize = oldBytes.size();
    entry.sourceHash = HashOf(oldBytes, HashKind::Blake2b);
    for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
    {
        ByteBuffer const stored = CompressForDelta(View(patch.streams[i]));
        entry.streamsStored[i] = stored.size();
        Append(data, stored);
    }
}

} // namespace

std::optional<BinaryPatch> MakeBinaryPatch(Bytes oldBytes, Bytes newBytes)
{
    SuffixIndex index;
    if (!index.Build(oldBytes))
    {
        return std::nullopt;
    }
    PatchWriter writer;
    PlainText old({oldBytes});
    std::uint64_t position = 0;
    writer.Add(old, FindSteps(index, newBytes, position), newBytes);
    return writer.Finish();
}

PatchVerdict ApplyBinaryPatch(Bytes oldBytes, PatchSources const& sources, std::uint64_t newSize, ByteSink const& sink)
{
    PlainText old({oldBytes});
    PatchApplier applier(sources);
    PatchVerdict const verdict = applier.Make(old, newSize, sink);
    return verdict == PatchVerdict::Applied && !applier.IsUsedUp() ? PatchVerdict::WrongSize : verdict;
}

ByteBuffer EncodeManifest(DeltaManifest const& manifest)
{
    if (manifest.format == DeltaFormat::Joined)
    {
        return EncodeDeltaManifest(manifest);
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

ByteBuffer EncodeOpening(DeltaManifest const& manifest)
{
    if (manifest.format == DeltaFormat::Joined)
    {
        return EncodeDeltaOpening(manifest);
    }
    ByteBuffer const plain = EncodeManifest(manifest);
    ByteBuffer const stored = CompressForDelta(View(plain));
    ByteBuffer opening(DELTA_MAGIC.begin(), DELTA_MAGIC.end());
    for (std::uint64_t const number : {std::uint64_t(manifest.format), stored.size(), plain.size()})
    {
        AppendFixed(opening, number);
    }
    Append(opening, stored);
    return opening;
}

std::string MakeSeparateDelta(std::filesystem::path const& oldFolder, std::filesystem::path const& newFolder)
{
    OldVersion const old = ReadOldVersion(oldFolder);
    DeltaManifest manifest;
    manifest.baseVersion = "1.0";
    manifest.targetVersion = "2.0";
    manifest.entries = ReadNewVersion(newFolder, old);
    ByteBuffer data;
    for (DeltaEntry& entry : manifest.entries)
    {
        bool const isFile = entry.kind == DeltaEntryKind::Whole || entry.kind == DeltaEntryKind::Kept;
        if (isFile)
        {
            entry.hash = HashOf(OpenedFile(newFolder / entry.path).Content(), HashKind::Blake2b);
        }
        if (entry.kind != DeltaEntryKind::Whole)
        {
            continue;
        }
        OpenedFile const file(newFolder / entry.path);
        if (old.files.count(entry.path) != 0)
        {
            AddPatch(entry, OpenedFile(oldFolder / entry.path).Content(), file.Content(), data);
            continue;
        }
        ByteBuffer const stored = CompressForDelta(file.Content());
        entry.wholeStored = stored.size();
        Append(data, stored);
    }
    ByteBuffer container = EncodeOpening(manifest);
    Append(container, data);
    return {container.begin(), container.end()};
}

} // namespace Pelnar::Testing
