#include "Engine/core/archive/UnpackArchive.h"

#include "Engine/core/archive/Archive.h"
#include "Engine/core/archive/TreeManifest.h"
#include "Engine/core/base/TaskThread.h"
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
constexpr std::size_t PORTION_BYTES = 128 << 10; ///< more only in one piece of the reader's
constexpr std::size_t PORTIONS_AHEAD = 32;

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

/// What is written at once: an entry, or a part of a file.
struct Portion
{
    ArchiveEntry entry;
    std::string path;
    std::uint32_t mode = 0;
    std::optional<timespec> time; ///< of a file
    ByteBuffer bytes;             ///< of a file
    bool isFirst = true;
    bool isLast = true;
};

/// Writes what the second pass reads, in a thread of its own: while the next file is decompressed, the system makes
/// this one.
class BundleWriter
{
public:
    explicit BundleWriter(int stagingFd) : m_tree(stagingFd) {}

    void Write(Portion const& portion)
    {
        std::string const& path = portion.path;
        std::size_t const slash = path.rfind('/');
        if (slash != std::string::npos)
        {
            MakeFolder(path.substr(0, slash));
        }
        switch (portion.entry.type)
        {
        case ArchiveEntryType::Folder:
            MakeFolder(path);
            return;
        case ArchiveEntryType::File:
            WriteFile(portion);
            return;
        case ArchiveEntryType::SymbolicLink:
            if (!m_tree.MakeLink(path, portion.entry.linkTarget))
            {
                ThrowErrno(errno);
            }
            m_manifest.AddLink(Below(path), portion.entry.linkTarget);
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

    void WriteFile(Portion const& portion)
    {
        if (portion.isFirst)
        {
            m_file = m_tree.MakeFile(portion.path, portion.mode == 0755);
        }
        Bytes const bytes(portion.bytes.data(), portion.bytes.size());
        if (!m_file || !WriteAll(m_file.Get(), bytes))
        {
            ThrowErrno(errno);
        }
        m_hasher.Add(bytes);
        if (portion.isLast)
        {
            EndFile(portion);
        }
    }

    void EndFile(Portion const& portion)
    {
        if (portion.time)
        {
            timespec const times[] = {{0, UTIME_OMIT}, *portion.time};
            if (::futimens(m_file.Get(), times) != 0)
            {
                ThrowErrno(errno);
            }
        }
        if (portion.entry.size >= LARGE_FILE_BYTES)
        {
            // The disk begins to write while the next file is unpacked. This shortens the sync at the end, and only
            // that sync counts.
            static_cast<void>(::sync_file_range(m_file.Get(), 0, 0, SYNC_FILE_RANGE_WRITE));
        }
        m_manifest.AddFile(Below(portion.path), portion.mode, portion.entry.size, m_hasher.Finish());
        m_file = UniqueFd();
    }

    TreeAccess m_tree;
    TreeManifest m_manifest;
    UniqueFd m_file; ///< of which portions are still to come
    ContentHasher m_hasher;
    std::unordered_set<std::string> m_folders;
    std::string m_lastFolder;
};

/// Passes the entry to \a post in portions. \a tell is called after each piece with its size.
void ReadPortions(Archive& archive, Portion portion, std::function<void(Portion)> const& post,
                  std::function<void(std::size_t)> const& tell)
{
    if (portion.entry.type == ArchiveEntryType::File)
    {
        portion.time = archive.ModificationTime();
        archive.ReadContents(portion.entry.size,
                             [&](Bytes piece)
                             {
                                 if (!portion.bytes.empty() && portion.bytes.size() + piece.size() > PORTION_BYTES)
                                 {
                                     portion.isLast = false;
                                     post(portion);
                                     portion.bytes.clear();
                                     portion.isFirst = false;
                                     portion.isLast = true;
                                 }
                                 portion.bytes.insert(portion.bytes.end(), piece.begin(), piece.end());
                                 tell(piece.size());
                             });
    }
    post(std::move(portion));
}

} // namespace

UnpackedBundle UnpackArchive(int archiveFd, int stagingFd, UnpackProgress const& progress)
{
    ArchiveContainer const container = InspectContainer(archiveFd);
    std::uint64_t const total = JudgeEntries(archiveFd, container);
    progress(0, total);

    // Judged again when read again: the only information from the first pass is that it succeeded.
    ArchiveEntryRules policy(ArchiveLimits::ForArchiveOf(SizeOf(archiveFd)));
    Archive archive(archiveFd, container);
    BundleWriter writer(stagingFd);
    TaskThread tasks(PORTIONS_AHEAD); // last, as its thread uses the writer
    auto const post = [&tasks, &writer](Portion portion)
    { tasks.Post([&writer, portion = std::move(portion)] { writer.Write(portion); }); };
    std::uint64_t done = 0;
    auto const tell = [&done, total, &progress](std::size_t size) { progress(done += size, total); };
    while (auto const entry = archive.Next())
    {
        EntryAdmission const admission = policy.Admit(*entry);
        RefuseUnlessNone(admission.fault, entry->path);
        if (!admission.path.empty())
        {
            ReadPortions(archive, {*entry, admission.path, admission.mode, {}, {}}, post, tell);
        }
    }
    tasks.Finish();
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
