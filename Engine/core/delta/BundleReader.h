// BundleReader.h: reads a version of a bundle for the maker of a delta. It runs only on the publisher's computer and
// trusts the trees. Thread: any; no shared state. Ownership: an opened file owns its mapping.
#pragma once

#include "Engine/core/base/ContentHasher.h"
#include "Engine/core/base/Descriptor.h"
#include "Engine/core/delta/DeltaManifest.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Pelnar::Engine
{

/// A file of a tree, mapped.
class OpenedFile
{
public:
    /// Throws std::filesystem::filesystem_error if the file cannot be read.
    explicit OpenedFile(std::filesystem::path const& path);
    /// The same, also if the file no longer has \a size bytes.
    OpenedFile(std::filesystem::path const& path, std::uint64_t size);
    Bytes Content() const { return m_mapping->Content(); }
    /// Throws std::filesystem::filesystem_error without an error number: the file is not what it was.
    [[noreturn]] void RefuseAsChanged() const;

private:
    std::filesystem::path m_path;
    std::optional<FileMapping> m_mapping;
};

struct OldFile
{
    std::uint64_t size;
    ContentHash hash;
};

struct OldVersion
{
    std::filesystem::path folder;
    std::map<std::string, OldFile> files;
    std::map<ContentHash, std::string> pathsByHash; ///< the first path with each content
};

/// Reads every plain file. Throws std::filesystem::filesystem_error.
[[nodiscard]] OldVersion ReadOldVersion(std::filesystem::path const& folder);

/// Every folder, link and file of the new version, in the order of their paths. Kept files have their source; all other
/// files are whole. Throws std::filesystem::filesystem_error, also for any other kind of entry.
[[nodiscard]] std::vector<DeltaEntry> ReadNewVersion(std::filesystem::path const& folder, OldVersion const& old);

} // namespace Pelnar::Engine
