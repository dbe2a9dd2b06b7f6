#include "Engine/core/archive/ZipStructure.h"

#include "Engine/core/archive/ArchiveEntryRules.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include <sys/stat.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::uint32_t LOCAL_SIGNATURE = 0x04034b50;
constexpr std::uint32_t DESCRIPTOR_SIGNATURE = 0x08074b50;
constexpr std::uint32_t CENTRAL_SIGNATURE = 0x02014b50;
constexpr std::uint32_t END_SIGNATURE = 0x06054b50;
constexpr std::uint32_t END64_SIGNATURE = 0x06064b50;
constexpr std::uint32_t END64_LOCATOR_SIGNATURE = 0x07064b50;
constexpr std::uint64_t LOCAL_BYTES = 30;
constexpr std::uint64_t CENTRAL_BYTES = 46;
constexpr std::uint64_t END_BYTES = 22;
constexpr std::uint64_t END64_BYTES = 56;
constexpr std::uint64_t END64_LOCATOR_BYTES = 20;
constexpr std::uint16_t FLAG_ENCRYPTED = 1u << 0;
constexpr std::uint16_t FLAG_DESCRIPTOR = 1u << 3;
constexpr std::uint16_t FLAG_PATCH = 1u << 5;
constexpr std::uint16_t FLAG_STRONG_ENCRYPTION = 1u << 6;
constexpr std::uint16_t FLAG_MASKED_HEADER = 1u << 13;
constexpr std::uint16_t METHOD_STORED = 0;
constexpr std::uint16_t METHOD_DEFLATED = 8;
constexpr std::uint16_t EXTRA_ZIP64 = 1;
constexpr std::uint16_t EXTRA_UNICODE_NAME = 0x7075;
constexpr std::size_t UNICODE_NAME_OFFSET = 5; // after a version and the checksum of the plain name
constexpr std::uint16_t IN_EXTRA_16 = 0xffff;
constexpr std::uint32_t IN_EXTRA_32 = 0xffffffff;

template <typename Number>
Number ReadAt(Bytes bytes, std::uint64_t offset)
{
    Number number = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;)
    {
        number = static_cast<Number>(static_cast<std::uint64_t>(number) << 8 | bytes[offset + i]);
    }
    return number;
}

bool HasRoom(Bytes bytes, std::uint64_t offset, std::uint64_t size)
{
    return offset <= bytes.size() && size <= bytes.size() - offset;
}

struct Sizes
{
    std::uint64_t stored = 0;
    std::uint64_t plain = 0;
};

struct Entry
{
    std::uint16_t flags;
    std::uint16_t method;
    std::uint32_t checksum;
    Sizes sizes;
    Bytes name;
    std::uint64_t localOffset;
};

struct Directory
{
    std::uint64_t count;
    std::uint64_t offset;
    std::uint64_t size;
};

/// The body of the extra field \a kind. No value if the extra fields do not fill \a extra exactly or the field appears
/// twice. An empty body means that there is no such field.
std::optional<Bytes> FindExtra(Bytes extra, std::uint16_t kind)
{
    Bytes found;
    bool isFound = false;
    while (!extra.empty())
    {
        if (!HasRoom(extra, 0, 4) || !HasRoom(extra, 4, ReadAt<std::uint16_t>(extra, 2)))
        {
            return std::nullopt;
        }
        auto const size = ReadAt<std::uint16_t>(extra, 2);
        if (ReadAt<std::uint16_t>(extra, 0) == kind)
        {
            if (isFound)
            {
                return std::nullopt;
            }
            isFound = true;
            found = extra.substr(4, size);
        }
        extra.remove_prefix(4u + size);
    }
    return found;
}

/// False if an extra field gives the entry another name: some readers use it, others do not.
bool HasOneName(Bytes extra, Bytes name)
{
    std::optional<Bytes> const other = FindExtra(extra, EXTRA_UNICODE_NAME);
    return other &&
           (other->empty() || (other->size() >= UNICODE_NAME_OFFSET && other->substr(UNICODE_NAME_OFFSET) == name));
}

/// Replaces \a number by the next one of the 64-bit field if it only refers to that field.
bool TakeFromExtra(Bytes& extra, std::uint64_t& number)
{
    if (number != IN_EXTRA_32)
    {
        return true;
    }
    if (extra.size() < 8)
    {
        return false;
    }
    number = ReadAt<std::uint64_t>(extra, 0);
    extra.remove_prefix(8);
    return true;
}

UpdateFault ReadDirectory(Bytes archive, Directory& directory)
{
    if (archive.size() < END_BYTES || ReadAt<std::uint32_t>(archive, archive.size() - END_BYTES) != END_SIGNATURE)
    {
        return UpdateFault::ContainerAmbiguous; // truncated, or followed by extra bytes
    }
    std::uint64_t end = archive.size() - END_BYTES;
    auto const disk = ReadAt<std::uint16_t>(archive, end + 4);
    auto const directoryDisk = ReadAt<std::uint16_t>(archive, end + 6);
    auto const countHere = ReadAt<std::uint16_t>(archive, end + 8);
    directory.count = ReadAt<std::uint16_t>(archive, end + 10);
    directory.size = ReadAt<std::uint32_t>(archive, end + 12);
    directory.offset = ReadAt<std::uint32_t>(archive, end + 16);
    auto const commentBytes = ReadAt<std::uint16_t>(archive, end + 20);
    if (disk != 0 || directoryDisk != 0 || countHere != directory.count || commentBytes != 0)
    {
        return UpdateFault::ContainerAmbiguous;
    }
    if (directory.count == IN_EXTRA_16 || directory.size == IN_EXTRA_32 || directory.offset == IN_EXTRA_32)
    {
        if (end < END64_LOCATOR_BYTES + END64_BYTES)
        {
            return UpdateFault::ContainerDamaged;
        }
        std::uint64_t const locator = end - END64_LOCATOR_BYTES;
        end = locator - END64_BYTES;
        bool const isWhole = ReadAt<std::uint32_t>(archive, locator) == END64_LOCATOR_SIGNATURE &&
                             ReadAt<std::uint32_t>(archive, locator + 4) == 0 &&
                             ReadAt<std::uint64_t>(archive, locator + 8) == end &&
                             ReadAt<std::uint32_t>(archive, locator + 16) == 1 &&
                             ReadAt<std::uint32_t>(archive, end) == END64_SIGNATURE &&
                             ReadAt<std::uint64_t>(archive, end + 4) == END64_BYTES - 12 &&
                             ReadAt<std::uint64_t>(archive, end + 16) == 0 &&
                             ReadAt<std::uint64_t>(archive, end + 24) == ReadAt<std::uint64_t>(archive, end + 32);
        if (!isWhole)
        {
            return UpdateFault::ContainerAmbiguous;
        }
        directory.count = ReadAt<std::uint64_t>(archive, end + 32);
        directory.size = ReadAt<std::uint64_t>(archive, end + 40);
        directory.offset = ReadAt<std::uint64_t>(archive, end + 48);
    }
    bool const isRightBefore = directory.offset <= end && directory.size == end - directory.offset;
    return isRightBefore ? UpdateFault::None : UpdateFault::ContainerAmbiguous;
}

/// The kind of file that \a record declares; 0 if it declares none.
std::uint32_t FileTypeIn(Bytes record)
{
    constexpr std::uint8_t MADE_BY_UNIX = 3;
    constexpr std::uint8_t MADE_BY_DARWIN = 19;
    std::uint8_t const madeBy = record[5];
    bool const isTold = madeBy == MADE_BY_UNIX || madeBy == MADE_BY_DARWIN;
    return isTold ? ReadAt<std::uint32_t>(record, 38) >> 16 & S_IFMT : 0;
}

/// Checks the kind of file that the entry's record declares: readers differ in how they treat odd kinds.
UpdateFault CheckFileType(std::uint32_t type, Entry const& entry)
{
    if (type != 0 && type != S_IFREG && type != S_IFDIR && type != S_IFLNK)
    {
        return UpdateFault::EntryTypeRefused;
    }
    // It is a folder for a reader of its name, or for a reader of its kind; another reads a file or a link.
    bool const mayBeFolder = entry.name.back() == '/' || type == S_IFDIR;
    return mayBeFolder && entry.sizes.plain != 0 ? UpdateFault::ContainerAmbiguous : UpdateFault::None;
}

/// Reads the central record at the front of \a rest and removes it.
UpdateFault ReadCentral(Bytes& rest, Entry& entry)
{
    if (!HasRoom(rest, 0, CENTRAL_BYTES) || ReadAt<std::uint32_t>(rest, 0) != CENTRAL_SIGNATURE)
    {
        return UpdateFault::ContainerDamaged;
    }
    entry.flags = ReadAt<std::uint16_t>(rest, 8);
    entry.method = ReadAt<std::uint16_t>(rest, 10);
    entry.checksum = ReadAt<std::uint32_t>(rest, 16);
    entry.sizes = {ReadAt<std::uint32_t>(rest, 20), ReadAt<std::uint32_t>(rest, 24)};
    auto const nameBytes = ReadAt<std::uint16_t>(rest, 28);
    auto const extraBytes = ReadAt<std::uint16_t>(rest, 30);
    auto const commentBytes = ReadAt<std::uint16_t>(rest, 32);
    auto const disk = ReadAt<std::uint16_t>(rest, 34);
    entry.localOffset = ReadAt<std::uint32_t>(rest, 42);
    std::uint64_t const recordBytes = CENTRAL_BYTES + nameBytes + extraBytes + commentBytes;
    if (!HasRoom(rest, 0, recordBytes) || disk != 0 || nameBytes == 0)
    {
        return UpdateFault::ContainerDamaged;
    }
    entry.name = rest.substr(CENTRAL_BYTES, nameBytes);
    Bytes const extras = rest.substr(CENTRAL_BYTES + nameBytes, extraBytes);
    auto extra = FindExtra(extras, EXTRA_ZIP64);
    // The order of the 64-bit numbers is fixed: plain size, stored size, offset.
    if (!extra || !TakeFromExtra(*extra, entry.sizes.plain) || !TakeFromExtra(*extra, entry.sizes.stored) ||
        !TakeFromExtra(*extra, entry.localOffset))
    {
        return UpdateFault::ContainerDamaged;
    }
    UpdateFault const typeFault = CheckFileType(FileTypeIn(rest), entry);
    rest.remove_prefix(recordBytes);
    if (typeFault != UpdateFault::None)
    {
        return typeFault;
    }
    if (!HasOneName(extras, entry.name))
    {
        return UpdateFault::ContainerAmbiguous;
    }
    if ((entry.flags & (FLAG_ENCRYPTED | FLAG_STRONG_ENCRYPTION | FLAG_MASKED_HEADER)) != 0)
    {
        return UpdateFault::ContainerEncrypted;
    }
    if ((entry.method != METHOD_STORED && entry.method != METHOD_DEFLATED) || (entry.flags & FLAG_PATCH) != 0)
    {
        return UpdateFault::ContainerMethodUnknown;
    }
    if (entry.method == METHOD_STORED && entry.sizes.stored != entry.sizes.plain)
    {
        return UpdateFault::ContainerAmbiguous;
    }
    // Readers differ on where a name with a NUL ends, and on whether a backslash separates folders.
    bool const isClear = entry.name.find(std::uint8_t{0}) == Bytes::npos && entry.name.find('\\') == Bytes::npos;
    return isClear ? UpdateFault::None : UpdateFault::EntryNameInvalid;
}

/// True if exactly one correct data descriptor is between the data's end and the next entry.
bool IsDescriptor(Bytes gap, Entry const& entry)
{
    if (gap.size() == 16 || gap.size() == 24)
    {
        if (ReadAt<std::uint32_t>(gap, 0) != DESCRIPTOR_SIGNATURE)
        {
            return false;
        }
        gap.remove_prefix(4);
    }
    if ((gap.size() != 12 && gap.size() != 20) || ReadAt<std::uint32_t>(gap, 0) != entry.checksum)
    {
        return false;
    }
    Sizes const said = gap.size() == 12 ? Sizes{ReadAt<std::uint32_t>(gap, 4), ReadAt<std::uint32_t>(gap, 8)}
                                        : Sizes{ReadAt<std::uint64_t>(gap, 4), ReadAt<std::uint64_t>(gap, 12)};
    return said.stored == entry.sizes.stored && said.plain == entry.sizes.plain;
}

/// Checks the local entry that fills \a local, from its header to the next entry's header.
UpdateFault CheckLocal(Bytes local, Entry const& entry)
{
    if (!HasRoom(local, 0, LOCAL_BYTES) || ReadAt<std::uint32_t>(local, 0) != LOCAL_SIGNATURE)
    {
        return UpdateFault::ContainerAmbiguous;
    }
    auto const nameBytes = ReadAt<std::uint16_t>(local, 26);
    auto const extraBytes = ReadAt<std::uint16_t>(local, 28);
    std::uint64_t const dataOffset = LOCAL_BYTES + nameBytes + extraBytes;
    if (!HasRoom(local, 0, dataOffset) || !HasRoom(local, dataOffset, entry.sizes.stored))
    {
        return UpdateFault::ContainerAmbiguous;
    }
    if (local.substr(LOCAL_BYTES, nameBytes) != entry.name || ReadAt<std::uint16_t>(local, 6) != entry.flags ||
        ReadAt<std::uint16_t>(local, 8) != entry.method)
    {
        return UpdateFault::ContainerAmbiguous;
    }
    auto const checksum = ReadAt<std::uint32_t>(local, 14);
    Sizes sizes{ReadAt<std::uint32_t>(local, 18), ReadAt<std::uint32_t>(local, 22)};
    Bytes const extras = local.substr(LOCAL_BYTES + nameBytes, extraBytes);
    auto extra = FindExtra(extras, EXTRA_ZIP64);
    if (!extra || !TakeFromExtra(*extra, sizes.plain) || !TakeFromExtra(*extra, sizes.stored))
    {
        return UpdateFault::ContainerDamaged;
    }
    if (!HasOneName(extras, entry.name))
    {
        return UpdateFault::ContainerAmbiguous;
    }
    Bytes const gap = local.substr(dataOffset + entry.sizes.stored);
    bool const isSame =
        checksum == entry.checksum && sizes.stored == entry.sizes.stored && sizes.plain == entry.sizes.plain;
    if ((entry.flags & FLAG_DESCRIPTOR) == 0)
    {
        return isSame && gap.empty() ? UpdateFault::None : UpdateFault::ContainerAmbiguous;
    }
    // Each number that follows the data may be missing before it.
    bool const isClear = (checksum == 0 || checksum == entry.checksum) &&
                         (sizes.stored == 0 || sizes.stored == entry.sizes.stored) &&
                         (sizes.plain == 0 || sizes.plain == entry.sizes.plain) && IsDescriptor(gap, entry);
    return isClear ? UpdateFault::None : UpdateFault::ContainerAmbiguous;
}

/// Reads every central record of \a records into \a entries. \a refused: the name in a refused record.
UpdateFault ReadEntries(Bytes records, std::uint64_t count, std::vector<Entry>& entries, Bytes& refused)
{
    if (count > records.size() / CENTRAL_BYTES)
    {
        return UpdateFault::ContainerDamaged;
    }
    if (count > ArchiveLimits().maxEntries)
    {
        return UpdateFault::TooManyEntries; // before memory is allocated for them
    }
    entries.resize(count);
    for (Entry& entry : entries)
    {
        if (UpdateFault const fault = ReadCentral(records, entry); fault != UpdateFault::None)
        {
            refused = entry.name;
            return fault;
        }
    }
    return records.empty() ? UpdateFault::None : UpdateFault::ContainerAmbiguous;
}

/// Checks that the local entries fill everything up to \a directoryOffset. \a entries: in the order of their data. \a
/// refused: the name of a refused entry.
UpdateFault CheckLocals(Bytes archive, std::uint64_t directoryOffset, std::vector<Entry> const& entries, Bytes& refused)
{
    std::uint64_t expected = 0;
    for (std::size_t i = 0; i < entries.size(); ++i)
    {
        std::uint64_t const end = i + 1 < entries.size() ? entries[i + 1].localOffset : directoryOffset;
        if (entries[i].localOffset != expected || end <= expected || end > directoryOffset)
        {
            return UpdateFault::ContainerAmbiguous;
        }
        if (UpdateFault const fault = CheckLocal(archive.substr(expected, end - expected), entries[i]);
            fault != UpdateFault::None)
        {
            refused = entries[i].name;
            return fault;
        }
        expected = end;
    }
    return expected == directoryOffset ? UpdateFault::None : UpdateFault::ContainerAmbiguous;
}

} // namespace

ZipContents ReadZipStructure(Bytes archive)
{
    ZipContents contents;
    Directory directory;
    std::vector<Entry> entries;
    Bytes refused;
    contents.fault = ReadDirectory(archive, directory);
    if (contents.fault == UpdateFault::None)
    {
        contents.fault =
            ReadEntries(archive.substr(directory.offset, directory.size), directory.count, entries, refused);
    }
    if (contents.fault != UpdateFault::None)
    {
        contents.refusedName.assign(refused.begin(), refused.end());
        return contents;
    }
    std::sort(entries.begin(), entries.end(),
              [](Entry const& a, Entry const& b) { return a.localOffset < b.localOffset; });
    contents.fault = CheckLocals(archive, directory.offset, entries, refused);
    contents.refusedName.assign(refused.begin(), refused.end());
    if (contents.fault == UpdateFault::None)
    {
        for (Entry const& entry : entries)
        {
            contents.names.emplace_back(entry.name.begin(), entry.name.end());
        }
    }
    return contents;
}

} // namespace Pelnar::Engine
