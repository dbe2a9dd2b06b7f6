#include "tests/delta/SeparateDelta.h"

#include "Engine/core/delta/BundleReader.h"
#include "Engine/core/delta/DeltaContainerWriter.h"

namespace Pelnar::Testing
{
namespace
{

using namespace Engine;

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
        ByteBuffer const stored = CompressForDelta(Bytes(patch.streams[i].data(), patch.streams[i].size()));
        entry.streamsStored[i] = stored.size();
        Append(data, stored);
    }
}

} // namespace

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
    ByteBuffer container = EncodeDeltaOpening(manifest);
    Append(container, data);
    return {container.begin(), container.end()};
}

} // namespace Pelnar::Testing
