#include "Engine/core/archive/UnpackArchive.h"

#include "Engine/core/archive/Archive.h"
#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/base/TreeAccess.h"

#include <cerrno>
#include <unordered_set>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint64_t LARGE_FILE_BYTES = 128 << 10;

void RefuseUnlessNone(UpdateFault fault, std::string const& entry)
{
    if (fault != UpdateFault::None)
    {
        throw UpdateRefusal(fault, 0, entry);
    }
}

void RefuseUnlessWhole(ArchiveEntryRules const& policy)
{
    for (EntryRefusal const& refusal : policy.FindRefusals(1))
    {
        throw UpdateRefusal(refusal.fault, 0, refusal.path);
    }
}

std::uint64_t SizeOf(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
    {
        throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
    }
    return static_cast<std::uint64_t>(status.st_size);
}

/// The first pass; returns the total number of bytes.
std::uint64_t JudgeEntries(int archiveFd, ArchiveContainer const& container)
{
    ArchiveEntryRules policy(ArchiveLimits::ForArchiveOf(SizeOf(archiveFd)));
    Archive archive(archiveFd, container);
    std::uint64_t total = 0;
    while (auto const entry = archive.Next())
    {
        RefuseUnlessNone(policy.Admit(*entry).fault, entry->path);
        total += entry->type == ArchiveEntryType::File ? entry->size : 0;
    }
    RefuseUnlessWhole(policy);
    return total;
}

/// The second pass.
class BundleWriter
{
public:
    BundleWriter(int stagingFd, std::uint64_t totalBytes, UnpackProgress const& progress)
        : m_tree(stagingFd), m_totalBytes(totalBytes), m_progress(progress)
    {
    }

    void Write(Archive& archive, ArchiveEntry const& entry, std::string const& path, std::uint32_t mode)
    {
        std::size_t const slash = path.rfind('/');
        if (slash != std::string::npos)
        {
            MakeFolder(path.substr(0, slash));
        }
        switch (entry.type)
        {
        case ArchiveEntryType::Folder:
            MakeFolder(path);
            return;
        case ArchiveEntryType::File:
            WriteFile(archive, entry, path, mode);
            return;
        case ArchiveEntryType::SymbolicLink:
            if (!m_tree.MakeLink(path, entry.linkTarget))
            {
                ThrowErrno(errno);
            }
            m_manifest.AddLink(Below(path), entry.linkTarget);
            return;
        case ArchiveEntryType::HardLink:
        case ArchiveEntryType::Other:
            break;
        }
        throw UpdateRefusal(UpdateFault::EntryTypeRefused);
    }

    ContentHash Digest() const { return m_manifest.Digest(); }

private:
    /// The path below the bundle's folder.
    static std::string Below(std::string const& path) { return path.substr(path.find('/') + 1); }

    void MakeFolder(std::string const& path)
    {
        if (path == m_lastFolder || m_folders.count(path) != 0)
        {
            return;
        }
        std::size_t const slash = path.rfind('/');
        if (slash != std::string::npos)
        {
            MakeFolder(path.substr(0, slash));
        }
        if (!m_tree.MakeFolder(path))
        {
            ThrowErrno(errno);
        }
        if (slash != std::string::npos)
        {
            m_manifest.AddFolder(Below(path), 0755);
        }
        m_folders.insert(path);
        m_lastFolder = path;
    }

    void WriteFile(Archive& archive, ArchiveEntry const& entry, std::string const& path, std::uint32_t mode)
    {
        UniqueFd const file = m_tree.MakeFile(path, mode == 0755);
        if (!file)
        {
            ThrowErrno(errno);
        }
        ContentHasher hasher;
        archive.ReadContents(entry.size,
                             [&](Bytes piece)
                             {
                                 if (!WriteAll(file.Get(), piece))
                                 {
                                     ThrowErrno(errno);
                                 }
                                 hasher.Add(piece);
                                 m_doneBytes += piece.size();
                                 m_progress(m_doneBytes, m_totalBytes);
                             });
        if (auto const time = archive.ModificationTime())
        {
            timespec const times[] = {{0, UTIME_OMIT}, *time};
            if (::futimens(file.Get(), times) != 0)
            {
                ThrowErrno(errno);
            }
        }
        if (entry.size >= LARGE_FILE_BYTES)
        {
            // The disk begins to write while the next file is unpacked. This shortens the sync at the end, and only
            // that sync counts.
            static_cast<void>(::sync_file_range(file.Get(), 0, 0, SYNC_FILE_RANGE_WRITE));
        }
        m_manifest.AddFile(Below(path), mode, entry.size, hasher.Finish());
    }

    TreeAccess m_tree;
    TreeManifest m_manifest;
    std::uint64_t m_totalBytes;
    std::uint64_t m_doneBytes = 0;
    UnpackProgress const& m_progress;
    std::unordered_set<std::string> m_folders;
    std::string m_lastFolder;
};

} // namespace

UnpackedBundle UnpackArchive(int archiveFd, int stagingFd, UnpackProgress const& progress)
{
    ArchiveContainer const container = InspectContainer(archiveFd);
    std::uint64_t const total = JudgeEntries(archiveFd, container);
    progress(0, total);

    // Judged again when read again: the only information from the first pass is that it succeeded.
    ArchiveEntryRules policy(ArchiveLimits::ForArchiveOf(SizeOf(archiveFd)));
    Archive archive(archiveFd, container);
    BundleWriter writer(stagingFd, total, progress);
    while (auto const entry = archive.Next())
    {
        EntryAdmission const admission = policy.Admit(*entry);
        RefuseUnlessNone(admission.fault, entry->path);
        if (!admission.path.empty())
        {
            writer.Write(archive, *entry, admission.path, admission.mode);
        }
    }
    RefuseUnlessWhole(policy);
    return {policy.BundleName(), writer.Digest()};
}

std::vector<EntryRefusal> FindRefusedEntries(int archiveFd, std::size_t most)
{
    ArchiveContainer const container = InspectContainer(archiveFd);
    ArchiveEntryRules policy(ArchiveLimits::ForArchiveOf(SizeOf(archiveFd)));
    Archive archive(archiveFd, container);
    std::vector<EntryRefusal> refusals;
    while (auto const entry = archive.Next())
    {
        UpdateFault const fault = policy.Admit(*entry).fault;
        if (fault != UpdateFault::None)
        {
            refusals.push_back({fault, entry->path});
        }
        if (refusals.size() == most)
        {
            return refusals;
        }
    }
    // Of a link to a refused entry, and below a refused folder, other refusals are only consequences.
    bool const isFirst = refusals.empty();
    for (EntryRefusal& refusal : policy.FindRefusals(most - refusals.size()))
    {
        if (isFirst || refusal.fault == UpdateFault::LinkEscapes)
        {
            refusals.push_back(std::move(refusal));
        }
    }
    return refusals;
}

} // namespace Pelnar::Engine
