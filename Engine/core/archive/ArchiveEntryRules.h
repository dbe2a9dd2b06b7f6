// ArchiveEntryRules.h: which entries an update archive may have. Pure: it sees descriptions, never a file, and keeps a
// model of the tree that the admitted entries would make.
// Thread: one at a time. Use one policy for one pass over one archive. The first refusal is final for the whole
// archive.
#pragma once

#include "Engine/core/faults/UpdateFault.h"

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
    Other, ///< devices, FIFOs, sockets, whiteouts and all others
};

/// An entry as the archive describes it.
struct ArchiveEntry
{
    std::string path;
    ArchiveEntryType type = ArchiveEntryType::Other;
    std::string linkTarget; ///< symbolic links only
    std::uint32_t mode = 0; ///< permission bits, including special bits
    std::uint64_t size = 0; ///< files only
    bool isSizeKnown = true;
    bool isSparse = false;
};

struct ArchiveLimits
{
    std::uint64_t maxBytes = std::uint64_t{4} << 30; ///< all files together
    std::size_t maxEntries = 200000;                 ///< including folders that are only implied
    std::size_t maxLinks = 10000;
    std::size_t maxPathBytes = 1024; ///< of a path, and of a link's target
    std::size_t maxNameBytes = 255;
    int maxDepth = 64;
    int maxLinkHops = 8; ///< links followed to resolve one link

    /// The limits for an archive file of that many bytes.
    static ArchiveLimits ForArchiveOf(std::uint64_t archiveBytes);
};

/// How to create an admitted entry.
struct EntryAdmission
{
    UpdateFault fault = UpdateFault::None; ///< any other value: nothing is created, the archive is refused
    std::string path;                      ///< relative, without empty, "." or ".." components; empty for the archive's
                                           ///< root
    std::uint32_t mode = 0;                ///< 0755 or 0644
};

/// An entry that the rules refuse.
struct EntryRefusal
{
    UpdateFault fault = UpdateFault::None;
    std::string path; ///< as in the archive, or normalised
};

class ArchiveEntryRules
{
public:
    explicit ArchiveEntryRules(ArchiveLimits const& limits);

    /// Judges the next entry in the archive's order.
    [[nodiscard]] EntryAdmission Admit(ArchiveEntry const& entry);
    /// Judges the tree after every entry is admitted: the whole tree is one folder "Name.app", and each link points to
    /// something inside that folder.
    [[nodiscard]] UpdateFault Finish() const;
    /// What Finish() refuses: at most \a most entries, in the order of the names.
    [[nodiscard]] std::vector<EntryRefusal> FindRefusals(std::size_t most) const;
    /// The bundle folder's name. REQUIRES: Finish() returned None.
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
    std::unordered_map<std::string, std::string> m_foldedNames; ///< maps each folded path to the path that uses it
    std::vector<std::string> m_topLevel;
    std::string m_lastParent; ///< a folder, of the last entry: neighbours in an archive mostly have the same one
};

} // namespace Pelnar::Engine
