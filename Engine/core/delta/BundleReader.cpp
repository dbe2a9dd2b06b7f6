#include "Engine/core/delta/BundleReader.h"

#include "Engine/core/delta/WorkCrew.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace Pelnar::Engine
{
namespace
{

namespace fs = std::filesystem;

[[noreturn]] void Fail(fs::path const& path, int error)
{
    throw fs::filesystem_error("cannot be read", path, std::error_code(error, std::generic_category()));
}

std::vector<std::string> PathsBelow(fs::path const& folder)
{
    std::vector<std::string> paths;
    std::size_t const opening = (folder / "").native().size();
    for (fs::directory_entry const& entry : fs::recursive_directory_iterator(folder))
    {
        paths.push_back(entry.path().native().substr(opening));
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

/// The old file with the same content; the one with the same path has priority.
void KeepOldFile(DeltaEntry& entry, OldVersion const& old)
{
    auto const same = old.files.find(entry.path);
    auto const found = old.pathsByHash.find(entry.hash);
    if (found == old.pathsByHash.end())
    {
        return;
    }
    bool const isInPlace = same != old.files.end() && same->second.hash == entry.hash;
    entry.kind = DeltaEntryKind::Kept;
    entry.sourcePath = isInPlace ? entry.path : found->second;
    entry.sourceSize = entry.size;
}

DeltaEntry ReadEntry(fs::path const& folder, std::string const& path, OldVersion const& old)
{
    fs::path const file = folder / path;
    fs::file_status const status = fs::symlink_status(file);
    DeltaEntry entry;
    entry.path = path;
    if (fs::is_directory(status))
    {
        return entry;
    }
    if (fs::is_symlink(status))
    {
        entry.kind = DeltaEntryKind::SymbolicLink;
        entry.linkTarget = fs::read_symlink(file).generic_string();
        return entry;
    }
    if (!fs::is_regular_file(status))
    {
        Fail(file, EINVAL);
    }
    OpenedFile const opened(file);
    entry.kind = DeltaEntryKind::Whole;
    entry.isExecutable = (status.permissions() & fs::perms::owner_exec) != fs::perms::none;
    entry.size = opened.Content().size();
    entry.hash = HashOf(opened.Content());
    KeepOldFile(entry, old);
    return entry;
}

} // namespace

OpenedFile::OpenedFile(fs::path const& path) : m_path(path)
{
    UniqueFd const file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status;
    if (!file || fstat(file.Get(), &status) != 0)
    {
        Fail(path, errno);
    }
    m_mapping.emplace(file.Get(), static_cast<std::size_t>(status.st_size));
    if (!m_mapping->IsValid())
    {
        Fail(path, errno);
    }
}

OpenedFile::OpenedFile(fs::path const& path, std::uint64_t size) : OpenedFile(path)
{
    if (Content().size() != size)
    {
        RefuseAsChanged();
    }
}

void OpenedFile::RefuseAsChanged() const
{
    throw fs::filesystem_error("has changed", m_path, std::error_code());
}

OldVersion ReadOldVersion(fs::path const& folder)
{
    OldVersion old;
    old.folder = folder;
    std::vector<std::string> const paths = PathsBelow(folder);
    std::vector<std::optional<OldFile>> files(paths.size());
    DoAll(paths.size(),
          [&folder, &paths, &files](std::size_t i)
          {
              if (fs::is_regular_file(fs::symlink_status(folder / paths[i])))
              {
                  OpenedFile const opened(folder / paths[i]);
                  files[i] = {opened.Content().size(), HashOf(opened.Content())};
              }
          });
    for (std::size_t i = 0; i < paths.size(); ++i)
    {
        if (files[i])
        {
            old.files.emplace(paths[i], *files[i]);
            old.pathsByHash.emplace(files[i]->hash, paths[i]);
        }
    }
    return old;
}

std::vector<DeltaEntry> ReadNewVersion(fs::path const& folder, OldVersion const& old)
{
    std::vector<std::string> const paths = PathsBelow(folder);
    std::vector<DeltaEntry> entries(paths.size());
    DoAll(paths.size(), [&](std::size_t i) { entries[i] = ReadEntry(folder, paths[i], old); });
    return entries;
}

} // namespace Pelnar::Engine
