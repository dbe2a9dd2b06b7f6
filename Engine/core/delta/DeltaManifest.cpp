#include "Engine/core/delta/DeltaManifest.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <string_view>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint8_t EXECUTABLE_FLAG = 1;
constexpr std::uint64_t MAX_VERSION_BYTES = 256;
constexpr std::uint64_t MAX_PATH_BYTES = 65536; // more than the rules allow, so that it is they who refuse
/// Stands for the bundle's folder, which has another name on every computer: the shortest that a bundle can have.
constexpr char ROOT[] = "x.app";

// Writing.

void AppendNumber(ByteBuffer& bytes, std::uint64_t number)
{
    for (; number >= 0x80; number >>= 7)
    {
        bytes.push_back(static_cast<std::uint8_t>(number | 0x80));
    }
    bytes.push_back(static_cast<std::uint8_t>(number));
}

void AppendText(ByteBuffer& bytes, std::string const& text)
{
    AppendNumber(bytes, text.size());
    bytes.insert(bytes.end(), text.begin(), text.end());
}

void AppendHash(ByteBuffer& bytes, ContentHash const& hash)
{
    bytes.insert(bytes.end(), hash.begin(), hash.end());
}

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
    bytes.push_back(entry.isExecutable ? EXECUTABLE_FLAG : 0);
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

// Reading.

class Reader
{
public:
    explicit Reader(Bytes bytes) : m_rest(bytes) {}

    DeltaManifestError Error() const { return m_error; }
    bool IsAtEnd() const { return m_rest.empty(); }

    std::uint8_t Byte()
    {
        if (m_rest.empty())
        {
            return Fail(DeltaManifestError::Truncated), std::uint8_t(0);
        }
        std::uint8_t const byte = m_rest.front();
        m_rest.remove_prefix(1);
        return byte;
    }

    std::uint64_t Number()
    {
        std::uint64_t number = 0;
        for (int shift = 0;; shift += 7)
        {
            std::uint8_t const byte = Byte();
            if (m_error != DeltaManifestError::None)
            {
                return 0;
            }
            bool const isOverlong = byte == 0 && shift > 0;
            bool const isTooLarge = shift == 63 && byte > 1;
            if (isOverlong || isTooLarge)
            {
                return Fail(DeltaManifestError::BadNumber), 0;
            }
            number |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80)
            {
                return number;
            }
        }
    }

    std::string Text(std::uint64_t maxBytes)
    {
        std::uint64_t const size = Number();
        if (m_error != DeltaManifestError::None)
        {
            return {};
        }
        if (size > maxBytes)
        {
            return Fail(DeltaManifestError::TextTooLong), std::string();
        }
        if (size > m_rest.size())
        {
            return Fail(DeltaManifestError::Truncated), std::string();
        }
        std::string const text(m_rest.begin(), m_rest.begin() + static_cast<std::ptrdiff_t>(size));
        m_rest.remove_prefix(static_cast<std::size_t>(size));
        return text;
    }

    ContentHash Hash()
    {
        ContentHash hash{};
        if (m_rest.size() < hash.size())
        {
            return Fail(DeltaManifestError::Truncated), hash;
        }
        std::copy_n(m_rest.begin(), hash.size(), hash.begin());
        m_rest.remove_prefix(hash.size());
        return hash;
    }

    DeltaEntry Entry()
    {
        DeltaEntry entry;
        entry.path = Text(MAX_PATH_BYTES);
        std::uint8_t const kind = Byte();
        if (kind > static_cast<std::uint8_t>(DeltaEntryKind::Whole))
        {
            return Fail(DeltaManifestError::UnknownKind), entry;
        }
        entry.kind = static_cast<DeltaEntryKind>(kind);
        switch (entry.kind)
        {
        case DeltaEntryKind::Directory:
            return entry;
        case DeltaEntryKind::SymbolicLink:
            entry.linkTarget = Text(MAX_PATH_BYTES);
            return entry;
        case DeltaEntryKind::Kept:
        case DeltaEntryKind::Patched:
        case DeltaEntryKind::Whole:
            break;
        }
        std::uint8_t const flags = Byte();
        if (flags > EXECUTABLE_FLAG)
        {
            return Fail(DeltaManifestError::BadFlag), entry;
        }
        entry.isExecutable = flags == EXECUTABLE_FLAG;
        entry.size = Number();
        entry.hash = Hash();
        if (entry.kind == DeltaEntryKind::Whole)
        {
            entry.wholeStored = Number();
            return entry;
        }
        entry.sourcePath = Text(MAX_PATH_BYTES);
        if (entry.kind == DeltaEntryKind::Kept)
        {
            entry.sourceSize = entry.size;
            entry.sourceHash = entry.hash;
            return entry;
        }
        entry.sourceSize = Number();
        entry.sourceHash = Hash();
        for (std::uint64_t& stored : entry.streamsStored)
        {
            stored = Number();
        }
        return entry;
    }

    void Fail(DeltaManifestError error)
    {
        if (m_error == DeltaManifestError::None)
        {
            m_error = error;
        }
        m_rest = {};
    }

private:
    Bytes m_rest;
    DeltaManifestError m_error = DeltaManifestError::None;
};

// Rules.

/// Calls \a visit with each component between slashes; false when one of the calls answers false.
template <class Visit>
bool ForEachComponent(std::string_view path, Visit visit)
{
    for (;;)
    {
        std::size_t const slash = path.find('/');
        if (!visit(path.substr(0, slash)))
        {
            return false;
        }
        if (slash == std::string_view::npos)
        {
            return true;
        }
        path.remove_prefix(slash + 1);
    }
}

/// True for a path that can only be below the folder that it is read from.
bool IsBelow(std::string const& path)
{
    return path.find('\0') == std::string::npos &&
           ForEachComponent(path, [](std::string_view component)
                            { return !component.empty() && component != "." && component != ".."; });
}

bool HasSource(DeltaEntry const& entry)
{
    return entry.kind == DeltaEntryKind::Kept || entry.kind == DeltaEntryKind::Patched;
}

/// True when sizes that are added up later come nowhere near the end of their type.
bool AreStoredSizesSane(DeltaEntry const& entry, std::uint64_t maxBytes)
{
    auto const isSane = [maxBytes](std::uint64_t size) { return size <= maxBytes; };
    return isSane(entry.sourceSize) && isSane(entry.wholeStored) &&
           std::all_of(entry.streamsStored.begin(), entry.streamsStored.end(), isSane);
}

ArchiveEntryType TypeOf(DeltaEntryKind kind)
{
    switch (kind)
    {
    case DeltaEntryKind::Directory:
        return ArchiveEntryType::Folder;
    case DeltaEntryKind::SymbolicLink:
        return ArchiveEntryType::SymbolicLink;
    case DeltaEntryKind::Kept:
    case DeltaEntryKind::Patched:
    case DeltaEntryKind::Whole:
        return ArchiveEntryType::File;
    }
    return ArchiveEntryType::Other;
}

/// Judges \a entry as an archive's, below ROOT.
UpdateFault Admit(ArchiveEntryPolicy& policy, DeltaEntry const& entry)
{
    ArchiveEntry admitted;
    admitted.path = std::string(ROOT) + '/' + entry.path;
    admitted.type = TypeOf(entry.kind);
    admitted.linkTarget = entry.linkTarget;
    admitted.size = entry.size;
    EntryAdmission const admission = policy.Admit(admitted);
    // An archive may write a path in several ways, a delta in one: it is used as it is.
    bool const isPlain = admission.fault != UpdateFault::None || admission.path == admitted.path;
    return isPlain ? admission.fault : UpdateFault::EntryNameInvalid;
}

std::string ParentOf(std::string const& path)
{
    std::size_t const slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

} // namespace

bool operator==(DeltaEntry const& a, DeltaEntry const& b)
{
    return a.path == b.path && a.kind == b.kind && a.linkTarget == b.linkTarget && a.isExecutable == b.isExecutable &&
           a.size == b.size && a.hash == b.hash && a.sourcePath == b.sourcePath && a.sourceSize == b.sourceSize &&
           a.sourceHash == b.sourceHash && a.streamsStored == b.streamsStored && a.wholeStored == b.wholeStored;
}

std::uint64_t DeltaEntry::StoredBytes() const
{
    return std::accumulate(streamsStored.begin(), streamsStored.end(), wholeStored);
}

ByteBuffer EncodeDeltaManifest(DeltaManifest const& manifest)
{
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

DeltaManifestVerdict DecodeDeltaManifest(Bytes bytes, DeltaLimits const& limits, DeltaManifest& manifest)
{
    Reader reader(bytes);
    manifest.baseVersion = reader.Text(MAX_VERSION_BYTES);
    manifest.targetVersion = reader.Text(MAX_VERSION_BYTES);
    std::uint64_t const count = reader.Number();
    if (reader.Error() == DeltaManifestError::None && count > limits.tree.maxEntries)
    {
        return {DeltaManifestError::TooManyEntries, UpdateFault::None, {}};
    }
    manifest.entries.clear();
    for (std::uint64_t i = 0; i < count && reader.Error() == DeltaManifestError::None; ++i)
    {
        manifest.entries.push_back(reader.Entry());
    }
    if (reader.Error() != DeltaManifestError::None)
    {
        return {reader.Error(), UpdateFault::None, {}};
    }
    return reader.IsAtEnd() ? CheckDeltaManifest(manifest, limits)
                            : DeltaManifestVerdict{DeltaManifestError::TrailingBytes, UpdateFault::None, {}};
}

DeltaManifestVerdict CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits)
{
    ArchiveEntryPolicy policy(limits.tree);
    ArchiveEntry root;
    root.path = ROOT;
    root.type = ArchiveEntryType::Folder;
    UpdateFault fault = policy.Admit(root).fault;
    std::set<std::string> folders{std::string()};
    std::string const* previous = nullptr;
    for (DeltaEntry const& entry : manifest.entries)
    {
        fault = fault == UpdateFault::None ? Admit(policy, entry) : fault;
        if (fault != UpdateFault::None)
        {
            return {DeltaManifestError::TreeRefused, fault, entry.path};
        }
        if (HasSource(entry) && !IsBelow(entry.sourcePath))
        {
            return {DeltaManifestError::BadSource, UpdateFault::None, entry.path};
        }
        if (!AreStoredSizesSane(entry, limits.tree.maxBytes))
        {
            return {DeltaManifestError::TooManyBytes, UpdateFault::None, entry.path};
        }
        // Folders are entries, so that nothing is ever made below a link or a file.
        if ((previous && *previous >= entry.path) || folders.count(ParentOf(entry.path)) == 0)
        {
            return {DeltaManifestError::NotInOrder, UpdateFault::None, entry.path};
        }
        if (entry.kind == DeltaEntryKind::Directory)
        {
            folders.insert(entry.path);
        }
        previous = &entry.path;
    }
    fault = policy.Finish();
    return {fault == UpdateFault::None ? DeltaManifestError::None : DeltaManifestError::TreeRefused, fault, {}};
}

} // namespace Pelnar::Engine
