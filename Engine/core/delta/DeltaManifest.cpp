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
            return Fail(DeltaManifestError::BadPath), std::string();
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

    DeltaEntry Entry(DeltaLimits const& limits)
    {
        DeltaEntry entry;
        entry.path = Text(limits.maxPathBytes);
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
            entry.linkTarget = Text(limits.maxPathBytes);
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
        entry.sourcePath = Text(limits.maxPathBytes);
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

bool IsControl(char character)
{
    auto const unit = static_cast<unsigned char>(character);
    return unit < 0x20 || unit == 0x7F;
}

bool IsGoodPath(std::string const& path, DeltaLimits const& limits)
{
    if (path.size() > limits.maxPathBytes || std::any_of(path.begin(), path.end(), IsControl))
    {
        return false;
    }
    std::uint64_t depth = 0;
    return ForEachComponent(path,
                            [&](std::string_view component)
                            {
                                return ++depth <= limits.maxDepth && !component.empty() && component != "." &&
                                       component != ".." && component.size() <= 255;
                            });
}

/// True when \a target, read from the folder of \a path, never leaves the bundle on its way.
bool StaysInside(std::string const& path, std::string const& target)
{
    if (target.empty() || target.front() == '/' || std::any_of(target.begin(), target.end(), IsControl))
    {
        return false;
    }
    std::int64_t depth = std::count(path.begin(), path.end(), '/');
    return ForEachComponent(target,
                            [&depth](std::string_view component)
                            {
                                if (component == "..")
                                {
                                    --depth;
                                }
                                else if (component != "." && !component.empty())
                                {
                                    ++depth;
                                }
                                return depth >= 0;
                            });
}

DeltaManifestError CheckEntry(DeltaEntry const& entry, DeltaLimits const& limits)
{
    if (!IsGoodPath(entry.path, limits))
    {
        return DeltaManifestError::BadPath;
    }
    switch (entry.kind)
    {
    case DeltaEntryKind::Directory:
        return DeltaManifestError::None;
    case DeltaEntryKind::SymbolicLink:
        return StaysInside(entry.path, entry.linkTarget) ? DeltaManifestError::None : DeltaManifestError::BadLink;
    case DeltaEntryKind::Kept:
    case DeltaEntryKind::Patched:
        if (!IsGoodPath(entry.sourcePath, limits))
        {
            return DeltaManifestError::BadPath;
        }
        break;
    case DeltaEntryKind::Whole:
        break;
    }
    auto const isTooLarge = [&limits](std::uint64_t size) { return size > limits.maxTotalBytes; };
    // The last six are added up later: none may come near the end of its type.
    if (isTooLarge(entry.size) || isTooLarge(entry.sourceSize) || isTooLarge(entry.wholeStored) ||
        std::any_of(entry.streamsStored.begin(), entry.streamsStored.end(), isTooLarge))
    {
        return DeltaManifestError::TooManyBytes;
    }
    return DeltaManifestError::None;
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

DeltaManifestError DecodeDeltaManifest(Bytes bytes, DeltaLimits const& limits, DeltaManifest& manifest)
{
    Reader reader(bytes);
    manifest.baseVersion = reader.Text(MAX_VERSION_BYTES);
    manifest.targetVersion = reader.Text(MAX_VERSION_BYTES);
    std::uint64_t const count = reader.Number();
    if (reader.Error() == DeltaManifestError::None && count > limits.maxEntries)
    {
        return DeltaManifestError::TooManyEntries;
    }
    manifest.entries.clear();
    for (std::uint64_t i = 0; i < count && reader.Error() == DeltaManifestError::None; ++i)
    {
        manifest.entries.push_back(reader.Entry(limits));
    }
    if (reader.Error() != DeltaManifestError::None)
    {
        return reader.Error();
    }
    return reader.IsAtEnd() ? CheckDeltaManifest(manifest, limits) : DeltaManifestError::TrailingBytes;
}

DeltaManifestError CheckDeltaManifest(DeltaManifest const& manifest, DeltaLimits const& limits)
{
    if (manifest.entries.size() > limits.maxEntries)
    {
        return DeltaManifestError::TooManyEntries;
    }
    std::set<std::string> folders{std::string()};
    std::string const* previous = nullptr;
    std::uint64_t total = 0;
    for (DeltaEntry const& entry : manifest.entries)
    {
        if (DeltaManifestError const error = CheckEntry(entry, limits); error != DeltaManifestError::None)
        {
            return error;
        }
        // Folders are entries, so that nothing is ever made below a link or a file.
        if ((previous && *previous >= entry.path) || folders.count(ParentOf(entry.path)) == 0)
        {
            return DeltaManifestError::NotInOrder;
        }
        if (entry.kind == DeltaEntryKind::Directory)
        {
            folders.insert(entry.path);
        }
        total += entry.size;
        if (total > limits.maxTotalBytes)
        {
            return DeltaManifestError::TooManyBytes;
        }
        previous = &entry.path;
    }
    return DeltaManifestError::None;
}

} // namespace Pelnar::Engine
