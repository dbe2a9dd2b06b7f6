// ArchiveEntryPolicy.h: which entries an update archive may hold. Pure: it sees descriptions, never a file, and keeps a
// model of the tree that the admitted entries would make.
// Thread: one at a time. Ownership: values only. Use one policy for one pass over one archive; the first refusal is
// final for the whole archive.
#pragma once

#include "Engine/core/payload/UpdateFault.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Pelnar::Engine
{

enum class ArchiveEntryType
{
    Folder,
    File,
    SymbolicLink,
    HardLink,
    Other, ///< devices, FIFOs, sockets, whiteouts and all else
};

/// An entry as the archive describes it.
struct ArchiveEntry
{
    std::string path;
    ArchiveEntryType type = ArchiveEntryType::Other;
    std::string linkTarget; ///< symbolic links only
    std::uint32_t mode = 0; ///< permission bits, special bits included
    std::uint64_t size = 0; ///< files only
    bool isSizeKnown = true;
    bool isSparse = false;
};

struct ArchiveLimits
{
    std::uint64_t maxBytes = std::uint64_t{4} << 30; ///< all files together
    std::size_t maxEntries = 200000;                 ///< folders that are only implied included
    std::size_t maxLinks = 10000;
    std::size_t maxPathBytes = 1024; ///< of a path, and of a link's target
    std::size_t maxNameBytes = 255;
    int maxDepth = 64;
    int maxLinkHops = 8; ///< links passed while one link is followed

    /// The limits for an archive file of that many bytes.
    static ArchiveLimits ForArchiveOf(std::uint64_t archiveBytes);
};

/// What is to be made of an admitted entry.
struct EntryAdmission
{
    UpdateFault fault = UpdateFault::None; ///< anything else: nothing is made, the archive is refused
    std::string path;                      ///< relative, no empty, "." or ".." component; empty for the archive's root
    std::uint32_t mode = 0;                ///< 0755 or 0644
};

/// An entry that the rules refuse.
struct EntryRefusal
{
    UpdateFault fault = UpdateFault::None;
    std::string path; ///< as the archive names it, or normalised
};

class ArchiveEntryPolicy
{
public:
    explicit ArchiveEntryPolicy(ArchiveLimits const& limits);

    /// Judges the next entry in the archive's order.
    [[nodiscard]] EntryAdmission Admit(ArchiveEntry const& entry);
    /// Judges the tree once every entry is admitted: all of it is one folder "Name.app", and each link leads to
    /// something inside that folder.
    [[nodiscard]] UpdateFault Finish() const;
    /// What Finish() refuses, at most \a most of it, in the order of the names.
    [[nodiscard]] std::vector<EntryRefusal> FindRefusals(std::size_t most) const;
    /// The bundle folder's name. REQUIRES: Finish() answered None.
    [[nodiscard]] std::string BundleName() const;

private:
    struct Node
    {
        ArchiveEntryType type;
        bool isImplied;
        std::string linkTarget;
    };

    UpdateFault AddFolders(std::string_view path);
    UpdateFault AddNode(std::string_view path, Node node);
    EntryRefusal CheckBundle() const;
    UpdateFault FollowLink(std::string_view path, Node const& link) const;

    ArchiveLimits m_limits;
    std::uint64_t m_bytes = 0;
    std::size_t m_links = 0;
    std::unordered_map<std::string, Node> m_nodes;
    std::unordered_map<std::string, std::string> m_foldedNames; ///< folded path to the one that claimed it
    std::vector<std::string> m_topLevel;
};

} // namespace Pelnar::Engine
