#include "Engine/core/delta/DeltaMaker.h"

#include "Engine/core/delta/ContentHasher.h"
#include "Engine/core/delta/TreeAccess.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <map>
#include <optional>
#include <system_error>

namespace Pelnar::Engine
{
namespace
{

namespace fs = std::filesystem;

/// A file of a tree, open and mapped.
class OpenedFile
{
public:
    explicit OpenedFile(fs::path const& path)
        : m_fd(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC)), m_mapping(m_fd.Get(), SizeOf(m_fd.Get()))
    {
    }

    [[nodiscard]] bool IsValid() const { return m_fd && m_mapping.IsValid(); }
    Bytes Content() const { return m_mapping.Content(); }

private:
    static std::size_t SizeOf(int fd)
    {
        struct stat status;
        return fstat(fd, &status) == 0 ? static_cast<std::size_t>(status.st_size) : 0;
    }

    UniqueFd m_fd;
    FileMapping m_mapping;
};

struct OldFile
{
    std::uint64_t size;
    ContentHash hash;
};

class Maker
{
public:
    Maker(fs::path oldBundle, fs::path newBundle, DeltaReport& report)
        : m_oldBundle(std::move(oldBundle)), m_newBundle(std::move(newBundle)), m_report(report)
    {
    }

    /// Reads every plain file of the old version.
    [[nodiscard]] bool ReadOldVersion()
    {
        for (std::string const& path : PathsBelow(m_oldBundle))
        {
            fs::path const file = m_oldBundle / path;
            if (!fs::is_regular_file(fs::symlink_status(file)))
            {
                continue;
            }
            OpenedFile const opened(file);
            if (!opened.IsValid())
            {
                return Fail(path);
            }
            ContentHash const hash = HashOf(opened.Content());
            m_oldFiles.emplace(path, OldFile{opened.Content().size(), hash});
            m_oldPathsByHash.emplace(hash, path);
        }
        return true;
    }

    /// Fills \a manifest's entries and the data that goes with them.
    [[nodiscard]] bool ReadNewVersion(DeltaManifest& manifest, ByteBuffer& data, DeltaMakerProgress const& progress)
    {
        std::vector<std::string> const paths = PathsBelow(m_newBundle);
        for (std::string const& path : paths)
        {
            std::optional<DeltaEntry> const entry = MakeEntry(path, data);
            if (!entry)
            {
                return Fail(path);
            }
            manifest.entries.push_back(*entry);
            if (progress)
            {
                progress(manifest.entries.size(), paths.size());
            }
        }
        return true;
    }

private:
    static std::vector<std::string> PathsBelow(fs::path const& folder)
    {
        std::vector<std::string> paths;
        for (fs::directory_entry const& entry : fs::recursive_directory_iterator(folder))
        {
            paths.push_back(entry.path().lexically_relative(folder).generic_string());
        }
        std::sort(paths.begin(), paths.end());
        return paths;
    }

    bool Fail(std::string const& path)
    {
        m_report.outcome = {DeltaError::CannotRead, path, errno};
        return false;
    }

    std::optional<DeltaEntry> MakeEntry(std::string const& path, ByteBuffer& data)
    {
        fs::path const file = m_newBundle / path;
        fs::file_status const status = fs::symlink_status(file);
        DeltaEntry entry;
        entry.path = path;
        if (fs::is_directory(status))
        {
            entry.kind = DeltaEntryKind::Directory;
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
            errno = EINVAL;
            return std::nullopt;
        }
        OpenedFile const opened(file);
        if (!opened.IsValid())
        {
            return std::nullopt;
        }
        entry.isExecutable = (status.permissions() & fs::perms::owner_exec) != fs::perms::none;
        entry.size = opened.Content().size();
        entry.hash = HashOf(opened.Content());
        if (KeepsOldFile(entry))
        {
            ++m_report.keptFiles;
        }
        else if (!AddPatchIfSmaller(entry, opened.Content(), data))
        {
            AddWhole(entry, opened.Content(), data);
        }
        return entry;
    }

    bool KeepsOldFile(DeltaEntry& entry) const
    {
        auto const same = m_oldFiles.find(entry.path);
        auto const found = m_oldPathsByHash.find(entry.hash);
        if (found == m_oldPathsByHash.end())
        {
            return false;
        }
        bool const isInPlace = same != m_oldFiles.end() && same->second.hash == entry.hash;
        entry.kind = DeltaEntryKind::Kept;
        entry.sourcePath = isInPlace ? entry.path : found->second;
        entry.sourceSize = entry.size;
        entry.sourceHash = entry.hash;
        return true;
    }

    bool AddPatchIfSmaller(DeltaEntry& entry, Bytes content, ByteBuffer& data)
    {
        auto const source = m_oldFiles.find(entry.path);
        if (source == m_oldFiles.end())
        {
            return false;
        }
        OpenedFile const old(m_oldBundle / entry.path);
        std::optional<BinaryPatch> const patch =
            old.IsValid() ? MakeBinaryPatch(old.Content(), content) : std::optional<BinaryPatch>();
        if (!patch)
        {
            return false;
        }
        ByteBuffer stored;
        for (std::size_t i = 0; i < PATCH_STREAMS; ++i)
        {
            ByteBuffer const& plain = patch->streams[i];
            ByteBuffer const stream = CompressForDelta(Bytes(plain.data(), plain.size()));
            entry.streamsStored[i] = stream.size();
            stored.insert(stored.end(), stream.begin(), stream.end());
        }
        m_whole = CompressForDelta(content);
        if (stored.size() >= m_whole.size())
        {
            entry.streamsStored = {};
            return false;
        }
        m_whole.clear();
        entry.kind = DeltaEntryKind::Patched;
        entry.sourcePath = entry.path;
        entry.sourceSize = source->second.size;
        entry.sourceHash = source->second.hash;
        data.insert(data.end(), stored.begin(), stored.end());
        ++m_report.patchedFiles;
        return true;
    }

    void AddWhole(DeltaEntry& entry, Bytes content, ByteBuffer& data)
    {
        if (m_whole.empty())
        {
            m_whole = CompressForDelta(content);
        }
        entry.kind = DeltaEntryKind::Whole;
        entry.wholeStored = m_whole.size();
        data.insert(data.end(), m_whole.begin(), m_whole.end());
        m_whole.clear();
        ++m_report.wholeFiles;
    }

    fs::path m_oldBundle;
    fs::path m_newBundle;
    DeltaReport& m_report;
    std::map<std::string, OldFile> m_oldFiles;
    std::map<ContentHash, std::string> m_oldPathsByHash; ///< the first path of each content
    ByteBuffer m_whole;                                  ///< of the file at hand, once it has been compressed whole
};

} // namespace

DeltaReport MakeDelta(fs::path const& oldBundle, std::string const& baseVersion, fs::path const& newBundle,
                      std::string const& targetVersion, int containerFd, DeltaLimits const& limits,
                      DeltaMakerProgress const& progress)
{
    DeltaReport report;
    DeltaManifest manifest;
    manifest.baseVersion = baseVersion;
    manifest.targetVersion = targetVersion;
    ByteBuffer data;
    try
    {
        Maker maker(oldBundle, newBundle, report);
        if (!maker.ReadOldVersion() || !maker.ReadNewVersion(manifest, data, progress))
        {
            return report;
        }
    }
    catch (fs::filesystem_error const& error)
    {
        report.outcome = {DeltaError::CannotRead, error.path1().string(), error.code().value()};
        return report;
    }
    report.outcome = OutcomeOf(CheckDeltaManifest(manifest, limits));
    if (!report.outcome.HasSucceeded())
    {
        return report;
    }
    ByteBuffer const opening = EncodeDeltaOpening(manifest);
    if (!WriteAll(containerFd, Bytes(opening.data(), opening.size())) ||
        !WriteAll(containerFd, Bytes(data.data(), data.size())))
    {
        report.outcome = {DeltaError::CannotWrite, {}, errno};
        return report;
    }
    report.containerBytes = opening.size() + data.size();
    return report;
}

} // namespace Pelnar::Engine
