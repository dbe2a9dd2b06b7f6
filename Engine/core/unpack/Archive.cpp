#include "Engine/core/unpack/Archive.h"

#include "Engine/core/delta/TreeAccess.h"

#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstring>

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

/// Names in archives are UTF-8, whatever the user's locale is.
class Utf8Scope
{
public:
    Utf8Scope() : m_locale(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)), m_previous(::uselocale(m_locale)) {}
    ~Utf8Scope()
    {
        ::uselocale(m_previous);
        if (m_locale)
        {
            ::freelocale(m_locale);
        }
    }
    Utf8Scope(Utf8Scope const&) = delete;
    Utf8Scope& operator=(Utf8Scope const&) = delete;

private:
    locale_t m_locale;
    locale_t m_previous;
};

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

    Utf8Scope names;
    archive* handle;
};

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

Archive::Archive(int descriptor) : m_source(std::make_unique<Source>(descriptor)), m_reader(std::make_unique<Reader>())
{
    archive* const handle = m_reader->handle;
    int filter = ARCHIVE_FILTER_NONE;
    switch (DetectContainer(descriptor))
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
        // One filter, named: the library would otherwise look for filters under filters.
        isGood = archive_read_support_format_tar(handle) == ARCHIVE_OK &&
                 archive_read_append_filter(handle, filter) == ARCHIVE_OK;
    }
    // Without memory the library forgets what it is given, and would read from nowhere.
    isGood = isGood && archive_read_set_read_callback(handle, &Source::Read) == ARCHIVE_OK &&
             archive_read_set_skip_callback(handle, &Source::Skip) == ARCHIVE_OK &&
             archive_read_set_seek_callback(handle, &Source::Seek) == ARCHIVE_OK &&
             archive_read_set_callback_data(handle, m_source.get()) == ARCHIVE_OK;
    if (!isGood || archive_read_open1(handle) != ARCHIVE_OK)
    {
        throw UpdateRefusal(m_source->readError ? UpdateFault::ArchiveUnreadable : UpdateFault::ContainerDamaged,
                            m_source->readError);
    }
}

Archive::~Archive() = default;

std::optional<ArchiveEntry> Archive::Next()
{
    int const result = archive_read_next_header(m_reader->handle, &m_entry);
    if (result == ARCHIVE_EOF)
    {
        return std::nullopt;
    }
    if (result != ARCHIVE_OK)
    {
        throw UpdateRefusal(m_source->readError ? UpdateFault::ArchiveUnreadable : UpdateFault::ContainerDamaged,
                            m_source->readError);
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
    return entry;
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
            throw UpdateRefusal(m_source->readError ? UpdateFault::ArchiveUnreadable : UpdateFault::ContainerDamaged,
                                m_source->readError);
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
