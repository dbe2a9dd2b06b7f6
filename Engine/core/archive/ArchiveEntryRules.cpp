#include "Engine/core/archive/ArchiveEntryRules.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

#include <unicase.h>
#include <uninorm.h>
#include <unistr.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::string_view BUNDLE_SUFFIX = ".app";
constexpr std::uint32_t OWNER_MAY_EXECUTE = 0100;

std::vector<std::string_view> Split(std::string_view path)
{
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0;;)
    {
        std::size_t const end = path.find('/', begin);
        parts.push_back(path.substr(begin, end == std::string_view::npos ? end : end - begin));
        if (end == std::string_view::npos)
        {
            return parts;
        }
        begin = end + 1;
    }
}

std::string_view ParentOf(std::string_view path)
{
    std::size_t const slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

/// True for text without control characters and backslashes that is well-formed UTF-8.
bool IsCleanText(std::string_view text)
{
    auto const isOdd = [](char character)
    {
        auto const byte = static_cast<unsigned char>(character);
        return byte < 0x20 || byte == 0x7f || character == '\\';
    };
    return std::none_of(text.begin(), text.end(), isOdd) &&
           u8_check(reinterpret_cast<std::uint8_t const*>(text.data()), text.size()) == nullptr;
}

bool HasDriveLetter(std::string_view path)
{
    return path.size() >= 2 && path[1] == ':' &&
           ((path[0] >= 'a' && path[0] <= 'z') || (path[0] >= 'A' && path[0] <= 'Z'));
}

/// Names that some file system treats as equal fold to the same text.
std::string Fold(std::string_view path)
{
    bool const isAscii = std::all_of(path.begin(), path.end(),
                                     [](char character) { return static_cast<unsigned char>(character) < 0x80; });
    if (isAscii)
    {
        std::string folded(path);
        std::transform(folded.begin(), folded.end(), folded.begin(),
                       [](char character) {
                           return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                                       : character;
                       });
        return folded;
    }
    std::size_t length = 0;
    std::unique_ptr<std::uint8_t, decltype(&std::free)> const folded(
        u8_casefold(reinterpret_cast<std::uint8_t const*>(path.data()), path.size(), nullptr, UNINORM_NFD, nullptr,
                    &length),
        &std::free);
    if (!folded)
    {
        throw std::bad_alloc();
    }
    return std::string(reinterpret_cast<char const*>(folded.get()), length);
}

UpdateFault CheckComponent(std::string_view name, ArchiveLimits const& limits)
{
    if (name == "..")
    {
        return UpdateFault::EntryEscapes;
    }
    if (name.empty() || name.back() == '.' || name.back() == ' ')
    {
        return UpdateFault::EntryNameInvalid;
    }
    return name.size() > limits.maxNameBytes ? UpdateFault::EntryNameTooLong : UpdateFault::None;
}

/// Checks \a entry's path and writes it to \a path, without a leading "./" and a trailing "/".
UpdateFault NormalizePath(ArchiveEntry const& entry, ArchiveLimits const& limits, std::string& path)
{
    std::string_view text = entry.path;
    if (text.size() > limits.maxPathBytes)
    {
        return UpdateFault::EntryNameTooLong;
    }
    if (text.empty() || !IsCleanText(text))
    {
        return UpdateFault::EntryNameInvalid;
    }
    if (text.front() == '/' || HasDriveLetter(text))
    {
        return UpdateFault::EntryEscapes;
    }
    if (entry.type == ArchiveEntryType::Folder)
    {
        if (text == "." || text == "./")
        {
            path.clear();
            return UpdateFault::None;
        }
        if (text.back() == '/')
        {
            text.remove_suffix(1);
        }
    }
    if (text.substr(0, 2) == "./")
    {
        text.remove_prefix(2);
    }
    path = text;
    int depth = 0;
    for (bool isGoing = true; isGoing; ++depth)
    {
        std::size_t const slash = text.find('/');
        if (UpdateFault const fault = CheckComponent(text.substr(0, slash), limits); fault != UpdateFault::None)
        {
            return fault;
        }
        isGoing = slash != std::string_view::npos;
        text.remove_prefix(isGoing ? slash + 1 : 0);
    }
    return depth > limits.maxDepth ? UpdateFault::EntryTooDeep : UpdateFault::None;
}

UpdateFault CheckType(ArchiveEntry const& entry)
{
    switch (entry.type)
    {
    case ArchiveEntryType::Folder:
    case ArchiveEntryType::SymbolicLink:
        return UpdateFault::None;
    case ArchiveEntryType::File:
        if (entry.isSparse)
        {
            return UpdateFault::EntryIsSparse;
        }
        return entry.isSizeKnown ? UpdateFault::None : UpdateFault::EntrySizeUnknown;
    case ArchiveEntryType::HardLink:
        return UpdateFault::EntryIsHardLink;
    case ArchiveEntryType::Other:
        return UpdateFault::EntryTypeRefused;
    }
    return UpdateFault::EntryTypeRefused;
}

UpdateFault CheckLinkTarget(std::string_view target, ArchiveLimits const& limits)
{
    if (target.empty() || target.size() > limits.maxPathBytes || !IsCleanText(target))
    {
        return UpdateFault::LinkTargetInvalid;
    }
    return target.front() == '/' ? UpdateFault::LinkEscapes : UpdateFault::None;
}

} // namespace

ArchiveLimits ArchiveLimits::ForArchiveOf(std::uint64_t archiveBytes)
{
    constexpr std::uint64_t MAX_RATIO = 20;
    ArchiveLimits limits;
    if (archiveBytes > limits.maxBytes / MAX_RATIO)
    {
        limits.maxBytes = archiveBytes > UINT64_MAX / MAX_RATIO ? UINT64_MAX : archiveBytes * MAX_RATIO;
    }
    return limits;
}

ArchiveEntryRules::ArchiveEntryRules(ArchiveLimits const& limits) : m_limits(limits) {}

EntryAdmission ArchiveEntryRules::Admit(ArchiveEntry const& entry)
{
    EntryAdmission admission;
    admission.fault = CheckType(entry);
    if (admission.fault == UpdateFault::None)
    {
        admission.fault = NormalizePath(entry, m_limits, admission.path);
    }
    if (admission.fault != UpdateFault::None || admission.path.empty())
    {
        return admission;
    }
    if (entry.type == ArchiveEntryType::SymbolicLink)
    {
        admission.fault =
            ++m_links > m_limits.maxLinks ? UpdateFault::TooManyLinks : CheckLinkTarget(entry.linkTarget, m_limits);
    }
    else if (entry.type == ArchiveEntryType::File)
    {
        if (entry.size > m_limits.maxBytes - m_bytes)
        {
            admission.fault = UpdateFault::TooManyBytes;
        }
        m_bytes += entry.size;
    }
    if (admission.fault == UpdateFault::None)
    {
        std::string_view const parent = ParentOf(admission.path);
        admission.fault = AddFolders(parent);
        m_lastParent = admission.fault == UpdateFault::None ? parent : m_lastParent;
    }
    if (admission.fault == UpdateFault::None)
    {
        bool const isLink = entry.type == ArchiveEntryType::SymbolicLink;
        admission.fault = AddNode(admission.path, {entry.type, false, isLink ? entry.linkTarget : std::string()});
    }
    bool const isRunnable = entry.type == ArchiveEntryType::Folder || (entry.mode & OWNER_MAY_EXECUTE) != 0;
    admission.mode = isRunnable ? 0755 : 0644;
    return admission;
}

UpdateFault ArchiveEntryRules::AddFolders(std::string_view path)
{
    if (path.empty() || path == m_lastParent)
    {
        return UpdateFault::None;
    }
    auto const known = m_nodes.find(std::string(path));
    if (known != m_nodes.end())
    {
        return known->second.type == ArchiveEntryType::Folder ? UpdateFault::None : UpdateFault::EntryUnderNoFolder;
    }
    if (UpdateFault const fault = AddFolders(ParentOf(path)); fault != UpdateFault::None)
    {
        return fault;
    }
    return AddNode(path, {ArchiveEntryType::Folder, true, {}});
}

UpdateFault ArchiveEntryRules::AddNode(std::string_view path, Node node)
{
    std::string const key(path);
    auto const known = m_nodes.find(key);
    if (known != m_nodes.end())
    {
        // A folder may be named once after its contents implied it. No other name is used twice.
        if (known->second.isImplied && node.type == ArchiveEntryType::Folder)
        {
            known->second.isImplied = false;
            return UpdateFault::None;
        }
        return UpdateFault::EntryDuplicate;
    }
    if (m_nodes.size() == m_limits.maxEntries)
    {
        return UpdateFault::TooManyEntries;
    }
    if (!m_foldedNames.emplace(Fold(path), key).second)
    {
        return UpdateFault::EntryNameClash;
    }
    if (path.find('/') == std::string_view::npos)
    {
        m_topLevel.push_back(key);
    }
    m_nodes.emplace(key, std::move(node));
    return UpdateFault::None;
}

UpdateFault ArchiveEntryRules::Finish() const
{
    std::vector<EntryRefusal> const first = FindRefusals(1);
    return first.empty() ? UpdateFault::None : first.front().fault;
}

std::vector<EntryRefusal> ArchiveEntryRules::FindRefusals(std::size_t most) const
{
    if (EntryRefusal const refusal = CheckBundle(); refusal.fault != UpdateFault::None)
    {
        return {refusal};
    }
    std::vector<EntryRefusal> refusals;
    for (auto const& [path, node] : m_nodes)
    {
        if (node.type != ArchiveEntryType::SymbolicLink || refusals.size() == most)
        {
            continue;
        }
        if (UpdateFault const fault = FollowLink(path, node); fault != UpdateFault::None)
        {
            refusals.push_back({fault, path});
        }
    }
    std::sort(refusals.begin(), refusals.end(),
              [](EntryRefusal const& a, EntryRefusal const& b) { return a.path < b.path; });
    return refusals;
}

std::string ArchiveEntryRules::BundleName() const
{
    return m_topLevel.front();
}

EntryRefusal ArchiveEntryRules::CheckBundle() const
{
    auto const isBundleName = [](std::string const& name)
    {
        return name.size() > BUNDLE_SUFFIX.size() &&
               name.compare(name.size() - BUNDLE_SUFFIX.size(), std::string::npos, BUNDLE_SUFFIX) == 0;
    };
    auto const bundle = std::find_if(m_topLevel.begin(), m_topLevel.end(), isBundleName);
    if (bundle == m_topLevel.end())
    {
        return {UpdateFault::BundleMissing, m_topLevel.empty() ? std::string() : m_topLevel.front()};
    }
    if (m_topLevel.size() != 1)
    {
        return {UpdateFault::BundleNotAlone, bundle == m_topLevel.begin() ? m_topLevel[1] : m_topLevel.front()};
    }
    bool const isFolder = m_nodes.at(*bundle).type == ArchiveEntryType::Folder;
    return isFolder ? EntryRefusal{} : EntryRefusal{UpdateFault::BundleNotAFolder, *bundle};
}

UpdateFault ArchiveEntryRules::FollowLink(std::string_view path, Node const& link) const
{
    std::string place(ParentOf(path));
    std::vector<std::string> pending; // remaining components, the next one last
    auto const follow = [&pending](std::string const& target)
    {
        std::vector<std::string_view> const parts = Split(target);
        pending.insert(pending.end(), parts.rbegin(), parts.rend());
    };
    int hops = 0;
    follow(link.linkTarget);
    while (!pending.empty())
    {
        std::string const part = std::move(pending.back());
        pending.pop_back();
        if (part.empty() || part == ".")
        {
            continue;
        }
        if (part == "..")
        {
            place = ParentOf(place);
            if (place.empty())
            {
                return UpdateFault::LinkEscapes; // the folder above the bundle does not belong to the bundle
            }
            continue;
        }
        std::string const next = place + '/' + part;
        auto const found = m_nodes.find(next);
        if (found == m_nodes.end())
        {
            return UpdateFault::LinkDangles;
        }
        switch (found->second.type)
        {
        case ArchiveEntryType::SymbolicLink:
            if (++hops > m_limits.maxLinkHops)
            {
                return UpdateFault::LinkLoops;
            }
            follow(found->second.linkTarget);
            break;
        case ArchiveEntryType::Folder:
            place = next;
            break;
        case ArchiveEntryType::File:
        case ArchiveEntryType::HardLink:
        case ArchiveEntryType::Other:
            if (!pending.empty())
            {
                return UpdateFault::LinkDangles;
            }
            break;
        }
    }
    return UpdateFault::None;
}

} // namespace Pelnar::Engine
