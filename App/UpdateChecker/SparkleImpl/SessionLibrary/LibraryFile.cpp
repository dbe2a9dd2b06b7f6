#include "App/UpdateChecker/SparkleImpl/SessionLibrary/LibraryFile_p.h"

#include <cerrno>
#include <cstring>
#include <set>
#include <vector>

#include <elf.h>
#include <fcntl.h>
#include <link.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pelnar::App
{
namespace
{

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);
using DynamicEntry = ElfW(Dyn);

constexpr std::uint64_t MAX_TABLE_BYTES = 16 * 1024 * 1024; ///< more than any table of a real library
constexpr std::size_t MAX_LIBRARIES = 512;

/// A library's file. It is read and never mapped: if a mapped file is truncated meanwhile, the process dies.
class LibraryFile
{
public:
    /// A pipe or a device is opened too, but does not block the caller.
    explicit LibraryFile(std::string const& path)
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))
    {
    }
    ~LibraryFile()
    {
        if (m_descriptor >= 0)
        {
            ::close(m_descriptor);
        }
    }
    LibraryFile(LibraryFile const&) = delete;
    LibraryFile& operator=(LibraryFile const&) = delete;

    /// What is wrong with the file; empty if Needed() may be called.
    std::optional<std::string> Fault()
    {
        struct stat status;
        if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0)
        {
            return "cannot be opened: " + std::string(std::strerror(errno));
        }
        Header header{};
        if (!S_ISREG(status.st_mode) || !ReadAt(0, &header, sizeof header) ||
            std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_phentsize != sizeof(Segment))
        {
            return "is not a shared library";
        }
        m_segments.resize(header.e_phnum);
        bool isWhole = ReadAt(header.e_phoff, m_segments.data(), m_segments.size() * sizeof(Segment));
        auto const size = static_cast<std::uint64_t>(status.st_size);
        for (Segment const& segment : m_segments)
        {
            isWhole = isWhole && segment.p_offset <= size && segment.p_filesz <= size - segment.p_offset;
        }
        return isWhole ? std::nullopt : std::optional<std::string>("was cut short");
    }

    /// The names of the libraries that this one needs. REQUIRES: Fault() returned nothing.
    std::vector<std::string> Needed() const
    {
        std::vector<DynamicEntry> const entries = DynamicEntries();
        std::uint64_t textAddress = 0;
        std::uint64_t textSize = 0;
        for (DynamicEntry const& entry : entries)
        {
            textAddress = entry.d_tag == DT_STRTAB ? entry.d_un.d_ptr : textAddress;
            textSize = entry.d_tag == DT_STRSZ ? entry.d_un.d_val : textSize;
        }
        // One byte more than is read, so that every name ends with NUL.
        std::string text(textSize <= MAX_TABLE_BYTES ? textSize + 1 : 0, '\0');
        if (text.empty() || !ReadAt(OffsetOf(textAddress), text.data(), textSize))
        {
            return {};
        }
        std::vector<std::string> names;
        for (DynamicEntry const& entry : entries)
        {
            if (entry.d_tag == DT_NEEDED && entry.d_un.d_val < textSize)
            {
                names.emplace_back(text.c_str() + entry.d_un.d_val);
            }
        }
        return names;
    }

private:
    [[nodiscard]] bool ReadAt(std::uint64_t offset, void* target, std::size_t size) const
    {
        return size <= MAX_TABLE_BYTES &&
               ::pread(m_descriptor, target, size, static_cast<off_t>(offset)) == static_cast<ssize_t>(size);
    }

    /// Up to the end of the table.
    std::vector<DynamicEntry> DynamicEntries() const
    {
        std::vector<DynamicEntry> entries;
        for (Segment const& segment : m_segments)
        {
            if (segment.p_type == PT_DYNAMIC && segment.p_filesz <= MAX_TABLE_BYTES)
            {
                entries.resize(segment.p_filesz / sizeof(DynamicEntry));
                if (!ReadAt(segment.p_offset, entries.data(), entries.size() * sizeof(DynamicEntry)))
                {
                    return {};
                }
            }
        }
        return entries;
    }

    /// The file offset of the content that is loaded at \a address. If the file loads nothing there, the offset lies
    /// behind the end of any file.
    std::uint64_t OffsetOf(std::uint64_t address) const
    {
        for (Segment const& segment : m_segments)
        {
            if (segment.p_type == PT_LOAD && address >= segment.p_vaddr && address - segment.p_vaddr < segment.p_filesz)
            {
                return segment.p_offset + (address - segment.p_vaddr);
            }
        }
        return INT64_MAX;
    }

    int m_descriptor;
    std::vector<Segment> m_segments;
};

} // namespace

std::optional<std::string> FaultOfLibrary(std::string const& path)
{
    std::string const folder = path.substr(0, path.rfind('/') + 1);
    std::vector<std::string> waiting{path};
    std::set<std::string> seen{path};
    while (!waiting.empty())
    {
        std::string const current = waiting.back();
        waiting.pop_back();
        LibraryFile library(current);
        if (std::optional<std::string> const fault = library.Fault())
        {
            return current + ": " + *fault;
        }
        for (std::string const& name : library.Needed())
        {
            std::string const needed = folder + name;
            struct stat status;
            if (::stat(needed.c_str(), &status) == 0 && seen.size() < MAX_LIBRARIES && seen.insert(needed).second)
            {
                waiting.push_back(needed);
            }
        }
    }
    return std::nullopt;
}

} // namespace Pelnar::App
