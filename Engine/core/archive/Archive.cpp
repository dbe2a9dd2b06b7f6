#include "Engine/core/archive/Archive.h"

#include "Engine/core/archive/ZipStructure.h"
#include "Engine/core/base/Descriptor.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>

#include <locale.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::Engine
{
namespace
{

constexpr std::size_t READ_BYTES = std::size_t{256} << 10;

ArchiveEntryType TypeOf(archive_entry* entry)
{
    if (archive_entry_hardlink(entry))
    {
        return ArchiveEntryType::HardLink;
    }
    switch (archive_entry_filetype(entry))
    {
    case AE_IFDIR:
        return ArchiveEntryType::Folder;
    case AE_IFREG:
        return ArchiveEntryType::File;
    case AE_IFLNK:
        return ArchiveEntryType::SymbolicLink;
    }
    return ArchiveEntryType::Other;
}

std::string TextOf(char const* text)
{
    return text ? text : "";
}

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

/// If an archive declares names as UTF-8, the library converts them to the locale's encoding and composes characters.
/// In the locale "C", which needs no file, it cannot convert: it reports this and leaves the bytes unchanged.
class PlainLocale
{
public:
    PlainLocale() : m_locale(::newlocale(LC_ALL_MASK, "C", nullptr)), m_previous(::uselocale(m_locale))
    {
        if (!m_locale)
        {
            throw std::bad_alloc();
        }
    }
    ~PlainLocale()
    {
        ::uselocale(m_previous);
        ::freelocale(m_locale);
    }
    PlainLocale(PlainLocale const&) = delete;
    PlainLocale& operator=(PlainLocale const&) = delete;

private:
    locale_t m_locale;
    locale_t m_previous;
};

/// True if the library may have complained only about a name that it could not convert.
bool HasForeignText(archive_entry* entry)
{
    char const* const texts[] = {archive_entry_pathname(entry), archive_entry_symlink(entry),
                                 archive_entry_hardlink(entry), archive_entry_uname(entry), archive_entry_gname(entry)};
    return std::any_of(std::begin(texts), std::end(texts), [](char const* text) { return text && !IsAscii(text); });
}

ContainerKind DetectContainer(int descriptor)
{
    struct Mark
    {
        std::string_view bytes;
        ContainerKind kind;
    };
    using namespace std::string_view_literals;
    constexpr Mark MARKS[] = {
        {"PK\3\4"sv, ContainerKind::Zip},
        {"\x1f\x8b"sv, ContainerKind::TarGzip},
        {"BZh"sv, ContainerKind::TarBzip2},
        {"\xfd"
         "7zXZ\0"sv,
         ContainerKind::TarXz},
        {"\x28\xb5\x2f\xfd"sv, ContainerKind::TarZstandard},
    };
    char bytes[8] = {};
    ssize_t const count = Engine::ReadUpTo(descriptor, 0, bytes, sizeof bytes);
    if (count < 0)
    {
        throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
    }
    std::string_view const front(bytes, static_cast<std::size_t>(count));
    for (Mark const& mark : MARKS)
    {
        if (front.substr(0, mark.bytes.size()) == mark.bytes)
        {
            return mark.kind;
        }
    }
    throw UpdateRefusal(UpdateFault::ContainerUnknown);
}

std::vector<std::string> ReadZipNames(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0)
    {
        throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
    }
    FileMapping const mapping(descriptor, static_cast<std::size_t>(status.st_size));
    if (!mapping.IsValid())
    {
        throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
    }
    ZipContents contents = ReadZipStructure(mapping.Content());
    if (contents.fault != UpdateFault::None)
    {
        throw UpdateRefusal(contents.fault, 0, contents.refusedName);
    }
    return std::move(contents.names);
}

} // namespace

/// The library's view of the descriptor.
struct Archive::Source
{
    explicit Source(int sourceDescriptor) : descriptor(sourceDescriptor), buffer(READ_BYTES)
    {
        struct stat status;
        if (::fstat(descriptor, &status) != 0)
        {
            throw UpdateRefusal(UpdateFault::ArchiveUnreadable, errno);
        }
        size = status.st_size;
    }

    static la_ssize_t Read(archive*, void* data, void const** bytes)
    {
        auto& self = *static_cast<Source*>(data);
        for (;;)
        {
            ssize_t const count = ::pread(self.descriptor, self.buffer.data(), self.buffer.size(), self.position);
            if (count < 0 && errno == EINTR)
            {
                continue;
            }
            if (count < 0)
            {
                self.readError = errno;
                return ARCHIVE_FATAL;
            }
            self.position += count;
            *bytes = self.buffer.data();
            return count;
        }
    }

    static la_int64_t Skip(archive*, void* data, la_int64_t request)
    {
        auto& self = *static_cast<Source*>(data);
        la_int64_t const step = std::min<la_int64_t>(request, self.size - std::min(self.position, self.size));
        self.position += step;
        return step;
    }

    static la_int64_t Seek(archive*, void* data, la_int64_t offset, int whence)
    {
        auto& self = *static_cast<Source*>(data);
        la_int64_t const base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? self.position : self.size;
        if (offset < -base || offset > self.size - base)
        {
            return ARCHIVE_FATAL;
        }
        self.position = base + offset;
        return self.position;
    }

    int descriptor;
    std::vector<std::uint8_t> buffer;
    la_int64_t position = 0;
    la_int64_t size = 0;
    int readError = 0;
};

struct Archive::Reader
{
    Reader() : handle(archive_read_new())
    {
        if (!handle)
        {
            throw std::bad_alloc();
        }
    }
    ~Reader() { archive_read_free(handle); }
    Reader(Reader const&) = delete;
    Reader& operator=(Reader const&) = delete;

    archive* handle;
};

ArchiveContainer InspectContainer(int descriptor)
{
    ArchiveContainer container;
    container.kind = DetectContainer(descriptor);
    if (container.kind == ContainerKind::Zip)
    {
        container.names = ReadZipNames(descriptor);
    }
    return container;
}

Archive::Archive(int descriptor, ArchiveContainer const& container)
    : m_container(container), m_source(std::make_unique<Source>(descriptor)), m_reader(std::make_unique<Reader>())
{
    PlainLocale const locale;
    archive* const handle = m_reader->handle;
    int filter = ARCHIVE_FILTER_NONE;
    switch (container.kind)
    {
    case ContainerKind::Zip:
        archive_read_support_format_zip_seekable(handle);
        break;
    case ContainerKind::TarGzip:
        filter = ARCHIVE_FILTER_GZIP;
        break;
    case ContainerKind::TarBzip2:
        filter = ARCHIVE_FILTER_BZIP2;
        break;
    case ContainerKind::TarXz:
        filter = ARCHIVE_FILTER_XZ;
        break;
    case ContainerKind::TarZstandard:
        filter = ARCHIVE_FILTER_ZSTD;
        break;
    }
    bool isGood = true;
    if (filter != ARCHIVE_FILTER_NONE)
    {
        // One explicit filter: otherwise the library would look for nested filters.
        isGood = archive_read_support_format_tar(handle) == ARCHIVE_OK &&
                 archive_read_append_filter(handle, filter) == ARCHIVE_OK;
    }
    // If memory is short, the library loses these settings and would read from nowhere.
    isGood = isGood && archive_read_set_read_callback(handle, &Source::Read) == ARCHIVE_OK &&
             archive_read_set_skip_callback(handle, &Source::Skip) == ARCHIVE_OK &&
             archive_read_set_seek_callback(handle, &Source::Seek) == ARCHIVE_OK &&
             archive_read_set_callback_data(handle, m_source.get()) == ARCHIVE_OK;
    if (!isGood || archive_read_open1(handle) != ARCHIVE_OK)
    {
        ThrowReadFault();
    }
}

Archive::~Archive() = default;

void Archive::ThrowReadFault() const
{
    throw UpdateRefusal(m_source->readError ? UpdateFault::ArchiveUnreadable : UpdateFault::ContainerDamaged,
                        m_source->readError);
}

std::optional<ArchiveEntry> Archive::Next()
{
    PlainLocale const locale;
    bool const isZip = m_container.kind == ContainerKind::Zip;
    int const result = archive_read_next_header(m_reader->handle, &m_entry);
    if (result == ARCHIVE_EOF)
    {
        if (isZip && m_entries != m_container.names.size())
        {
            throw UpdateRefusal(UpdateFault::ContainerAmbiguous);
        }
        return std::nullopt;
    }
    bool const mayBeNamesOnly = result == ARCHIVE_WARN && !m_source->readError &&
                                (HasForeignText(m_entry) || (isZip && !archive_entry_pathname(m_entry)));
    if (result != ARCHIVE_OK && !mayBeNamesOnly)
    {
        ThrowReadFault();
    }
    ArchiveEntry entry;
    entry.path = TextOf(archive_entry_pathname(m_entry));
    entry.type = TypeOf(m_entry);
    entry.linkTarget = TextOf(archive_entry_symlink(m_entry));
    entry.mode = archive_entry_mode(m_entry) & 07777u;
    la_int64_t const size = archive_entry_size(m_entry);
    entry.isSizeKnown = archive_entry_size_is_set(m_entry) != 0 && size >= 0;
    entry.size = entry.isSizeKnown ? static_cast<std::uint64_t>(size) : 0;
    entry.isSparse = archive_entry_sparse_count(m_entry) > 0;
    if (isZip)
    {
        TakeNameOfZipEntry(entry);
    }
    return entry;
}

/// The library drops a name that it cannot convert. With the name it drops the final slash, which marks an entry
/// without a mode as a folder.
void Archive::TakeNameOfZipEntry(ArchiveEntry& entry)
{
    if (m_entries == m_container.names.size())
    {
        throw UpdateRefusal(UpdateFault::ContainerAmbiguous);
    }
    std::string const& name = m_container.names[m_entries++];
    bool const isSame =
        entry.path.empty() ? !IsAscii(name)
                           : entry.path == name || (entry.type == ArchiveEntryType::Folder && entry.path == name + '/');
    if (!isSame)
    {
        throw UpdateRefusal(UpdateFault::ContainerAmbiguous);
    }
    entry.path = name;
    if (name.back() == '/')
    {
        entry.type = ArchiveEntryType::Folder;
    }
}

std::optional<timespec> Archive::ModificationTime() const
{
    if (!archive_entry_mtime_is_set(m_entry))
    {
        return std::nullopt;
    }
    timespec time{};
    time.tv_sec = archive_entry_mtime(m_entry);
    time.tv_nsec = archive_entry_mtime_nsec(m_entry);
    return time;
}

void Archive::ReadContents(std::uint64_t size, std::function<void(Bytes)> const& sink)
{
    std::uint64_t done = 0;
    for (;;)
    {
        void const* data = nullptr;
        std::size_t count = 0;
        la_int64_t offset = 0;
        int const result = archive_read_data_block(m_reader->handle, &data, &count, &offset);
        if (result != ARCHIVE_OK && result != ARCHIVE_EOF)
        {
            ThrowReadFault();
        }
        bool const isNext = count == 0 || (offset >= 0 && static_cast<std::uint64_t>(offset) == done);
        if (!isNext || count > size - done)
        {
            throw UpdateRefusal(UpdateFault::ContainerDamaged);
        }
        if (count > 0)
        {
            sink(Bytes(static_cast<std::uint8_t const*>(data), count));
            done += count;
        }
        if (result == ARCHIVE_EOF)
        {
            break;
        }
    }
    if (done != size)
    {
        throw UpdateRefusal(UpdateFault::ContainerDamaged);
    }
}

} // namespace Pelnar::Engine
